// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zelvar::testing {

/// One line of a document.
struct DocumentLine {
    /// From 1 on.
    int number = 0;
    std::string text;
};

/// A block between two lines of three backticks, and the word behind the first of them.
struct FencedBlock {
    std::string language;
    std::vector<DocumentLine> lines;
};

/// The path of a file of the source tree. @param path such as "docs/protocol.md"
std::string SourcePath(std::string_view path);

/// The lines of a file of the source tree, without their ends.
/// @throws std::runtime_error when there is no such file
std::vector<DocumentLine> ReadDocument(std::string_view path);

std::vector<FencedBlock> FencedBlocksOf(const std::vector<DocumentLine>& document);

/// The lines outside fenced blocks and outside indented ones.
std::vector<DocumentLine> ProseOf(const std::vector<DocumentLine>& document);

/// What stands between two marks on a line, such as between backticks; a mark without a partner
/// opens nothing.
std::vector<std::string> Between(std::string_view line, std::string_view mark);

/// README.md and every document in docs/, as paths in the source tree.
std::vector<std::string> Documents();

}  // namespace zelvar::testing
