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

int Explain(const std::string& path) {
    std::ifstream file;
    if (path != "-") {
        file.open(path);
        // A folder can be opened, but not read.
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
                  << " lines not recognised, marked with ?\n";
    }
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> arguments(argv + 1, argv + argc);
    auto parsed = zelvar::sim::ParseOptions(arguments);
    if (const auto* end = std::get_if<zelvar::sim::EarlyEnd>(&parsed)) {
        (end->status == 0 ? std::cout : std::cerr) << end->text;
        return end->status;
    }
    auto& options = std::get<zelvar::sim::Options>(parsed);
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
        return zelvar::sim::kWrongUsage;
    }
    options.layout = std::get<zelvar::sim::Layout>(layout);
    return zelvar::sim::Server(options).Run();
}
