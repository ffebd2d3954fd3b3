// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/layout_choice.h"

#include <algorithm>
#include <vector>

#include "sim/layouts/layout_file.h"
#include "sim/text/words.h"

namespace zelvar::sim {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".toml";
constexpr std::string_view kEmpty = "none";

bool IsPath(std::string_view name) {
    return name.find_first_of("/\\") != std::string_view::npos || name.ends_with(kEnding);
}

std::vector<std::string> ShippedNames(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (entry.path().extension() == kEnding) {
            names.push_back(entry.path().stem().string());
        }
    }
    std::sort(names.begin(), names.end());
    return names;
}

/// The program's name before a message, unless that begins with "FILE:LINE:", which editors jump
/// to.
std::string WithProgram(std::string message, const std::string& path) {
    const std::size_t line = path.size() + 1;
    const bool isPlace = message.size() > line && message[line] >= '0' && message[line] <= '9';
    return isPlace ? message : "zelvarsim: " + message;
}

fs::path PathOf(const std::string& name, const fs::path& folder) {
    return folder / (name + std::string(kEnding));
}

}  // namespace

fs::path LayoutFolder(const std::string& program) {
    std::error_code error;
    fs::path self = fs::read_symlink("/proc/self/exe", error);  // Linux only
    if (error) {
        self = fs::absolute(program, error);
    }
    return (self.parent_path() / ZELVAR_SIM_LAYOUTS).lexically_normal();
}

std::variant<Layout, std::string> ChooseLayout(const std::string& name, const fs::path& folder) {
    if (name == kEmpty) {
        return EmptyLayout();
    }
    std::string path = name;
    if (!IsPath(name)) {
        std::vector<std::string> known = ShippedNames(folder);
        if (std::find(known.begin(), known.end(), name) == known.end()) {
            known.emplace_back(kEmpty);
            known.emplace_back("the path of a .toml file");
            return "zelvarsim: --layout: expected " + JoinedWith(known, "or") + ", found " +
                   Quoted(name) + " (shipped layouts are read from " + folder.string() + ")";
        }
        path = PathOf(name, folder).string();
    }
    auto read = ReadLayoutFile(path);
    if (auto* error = std::get_if<std::string>(&read)) {
        return WithProgram(std::move(*error), path);
    }
    return std::move(std::get<DescribedLayout>(read).layout);
}

std::string ListLayouts(const fs::path& folder) {
    constexpr std::size_t kNameColumn = 12;
    std::string list;
    for (const std::string& name : ShippedNames(folder)) {
        const auto read = ReadLayoutFile(PathOf(name, folder).string());
        const auto* described = std::get_if<DescribedLayout>(&read);
        std::string line = name;
        line.resize(std::max(kNameColumn, name.size() + 1), ' ');
        list +=
            line + (described != nullptr ? described->title : std::get<std::string>(read)) + '\n';
    }
    return list;
}

}  // namespace zelvar::sim
