// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "document.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>

namespace zelvar::testing {

namespace {

constexpr std::string_view kFence = "```";
constexpr std::string_view kIndent = "    ";

/// A block in a list is indented.
std::string Trimmed(const std::string& text) {
    const std::size_t from = text.find_first_not_of(' ');
    return from == std::string::npos ? std::string() : text.substr(from);
}

bool IsFence(const DocumentLine& line) {
    return Trimmed(line.text).starts_with(kFence);
}

}  // namespace

std::string SourcePath(std::string_view path) {
    return std::string(ZELVAR_SOURCE_FOLDER) + "/" + std::string(path);
}

std::vector<DocumentLine> ReadDocument(std::string_view path) {
    std::ifstream file(SourcePath(path));
    if (!file) {
        throw std::runtime_error("no file " + std::string(path));
    }
    std::vector<DocumentLine> lines;
    int number = 0;
    for (std::string text; std::getline(file, text);) {
        lines.push_back({++number, text});
    }
    return lines;
}

std::vector<FencedBlock> FencedBlocksOf(const std::vector<DocumentLine>& document) {
    std::vector<FencedBlock> blocks;
    bool inside = false;
    for (const DocumentLine& line : document) {
        if (IsFence(line)) {
            inside = !inside;
            if (inside) {
                blocks.push_back({Trimmed(line.text).substr(kFence.size()), {}});
            }
        } else if (inside) {
            blocks.back().lines.push_back(line);
        }
    }
    return blocks;
}

std::vector<DocumentLine> ProseOf(const std::vector<DocumentLine>& document) {
    std::vector<DocumentLine> prose;
    bool inside = false;
    // Behind an empty line an indented one is code; elsewhere it goes on with a list.
    bool canIndent = true;
    for (const DocumentLine& line : document) {
        const bool indented = canIndent && line.text.starts_with(kIndent);
        if (IsFence(line)) {
            inside = !inside;
        } else if (!inside && !indented) {
            prose.push_back(line);
        }
        canIndent = indented || line.text.empty();
    }
    return prose;
}

std::vector<std::string> Between(std::string_view line, std::string_view mark) {
    std::vector<std::string> found;
    std::size_t from = line.find(mark);
    while (from != std::string_view::npos) {
        from += mark.size();
        const std::size_t to = line.find(mark, from);
        if (to == std::string_view::npos) {
            break;
        }
        found.emplace_back(line.substr(from, to - from));
        from = line.find(mark, to + mark.size());
    }
    return found;
}

std::vector<std::string> Documents() {
    std::vector<std::string> documents{"README.md"};
    for (const auto& entry : std::filesystem::directory_iterator(SourcePath("docs"))) {
        if (entry.path().extension() == ".md") {
            documents.push_back("docs/" + entry.path().filename().string());
        }
    }
    std::sort(documents.begin(), documents.end());
    return documents;
}

}  // namespace zelvar::testing
