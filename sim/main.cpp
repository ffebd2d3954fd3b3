// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <iostream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "layout_choice.h"
#include "options.h"
#include "server.h"

namespace {

constexpr int kWrongUsage = 2;

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    auto parsed = zelvar::sim::ParseOptions(arguments);
    if (const auto* message = std::get_if<std::string>(&parsed)) {
        std::cerr << "zelvarsim: " << *message << '\n' << zelvar::sim::UsageText();
        return kWrongUsage;
    }
    auto& options = std::get<zelvar::sim::Options>(parsed);
    if (options.help) {
        std::cout << zelvar::sim::UsageText();
        return 0;
    }
    if (options.version) {
        std::cout << "zelvarsim " ZELVAR_SIM_VERSION "\n";
        return 0;
    }
    const auto folder = zelvar::sim::LayoutFolder(argv[0]);
    if (options.listLayouts) {
        std::cout << zelvar::sim::ListLayouts(folder);
        return 0;
    }
    auto layout = zelvar::sim::ChooseLayout(options.layoutName, folder);
    if (const auto* message = std::get_if<std::string>(&layout)) {
        std::cerr << *message << '\n';
        return kWrongUsage;
    }
    options.layout = std::get<zelvar::sim::Layout>(layout);
    return zelvar::sim::Server(options).Run();
}
