// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "sim/app/options.h"
#include "sim/app/server.h"
#include "sim/explain/explain.h"
#include "sim/layouts/layout_choice.h"

namespace {

constexpr int kWrongUsage = 2;

int Explain(const std::string& path) {
    std::ifstream file;
    if (path != "-") {
        file.open(path);
        // A folder opens, but cannot be read.
        if (!file || file.peek() == std::ifstream::traits_type::eof()) {
            if (!file.eof()) {
                std::cerr << "zelvarsim: cannot read " << path << '\n';
                return 1;
            }
        }
    }
    const zelvar::sim::LogCount count =
        zelvar::sim::ExplainLog(path == "-" ? std::cin : file, std::cout);
    if (count.unknown > 0) {
        std::cerr << "zelvarsim: " << count.unknown << " of " << count.lines
                  << " lines not understood, marked with ?\n";
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    auto parsed = zelvar::sim::ParseOptions(arguments);
    if (const auto* message = std::get_if<std::string>(&parsed)) {
        std::cerr << "zelvarsim: " << *message << "\nTry \"zelvarsim --help\".\n";
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
    if (!options.explain.empty()) {
        return Explain(options.explain);
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
