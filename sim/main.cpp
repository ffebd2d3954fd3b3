// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <iostream>
#include <string_view>
#include <vector>

#include "options.h"
#include "server.h"

namespace {

constexpr int kWrongUsage = 2;

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    const auto parsed = zelvar::sim::ParseOptions(arguments);
    if (const auto* message = std::get_if<std::string>(&parsed)) {
        std::cerr << "zelvarsim: " << *message << '\n' << zelvar::sim::UsageText();
        return kWrongUsage;
    }
    const auto& options = std::get<zelvar::sim::Options>(parsed);
    if (options.help) {
        std::cout << zelvar::sim::UsageText();
        return 0;
    }
    if (options.version) {
        std::cout << "zelvarsim " ZELVAR_SIM_VERSION "\n";
        return 0;
    }
    return zelvar::sim::Server(options).Run();
}
