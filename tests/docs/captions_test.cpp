// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

#include "config/vd_settings.h"
#include "document.h"

namespace zelvar::testing {

namespace {

constexpr char kManual[] = "docs/manual.md";

std::string Trim(const std::string& text) {
    const std::size_t from = text.find_first_not_of(' ');
    return from == std::string::npos ? std::string()
                                     : text.substr(from, text.find_last_not_of(' ') - from + 1);
}

/// Where the line comment or include ends that begins at this place, or the place itself.
std::size_t SkipLine(const std::string& source, std::size_t at) {
    const bool skipped = source.compare(at, 2, "//") == 0 || source.compare(at, 8, "#include") == 0;
    return skipped ? std::min(source.find('\n', at), source.size()) : at;
}

/// Adds the texts between quotes, trimmed; literals that follow each other are one text, and a
/// line end in a text separates two.
void CollectLiterals(const std::string& source, std::set<std::string>& texts) {
    std::string text;
    bool open = false;
    const auto finish = [&] {
        texts.insert(Trim(text));
        text.clear();
    };
    for (std::size_t at = 0; at < source.size(); ++at) {
        const char c = source[at];
        if (open && c == '\\') {
            ++at;
            if (source[at] == 'r' || source[at] == 'n') {
                finish();
            } else {
                text += source[at];
            }
        } else if (c == '"') {
            open = !open;
        } else if (open) {
            text += c;
        } else if (const std::size_t end = SkipLine(source, at); end != at) {
            at = end;
        } else if (c != ' ' && c != '\n') {
            finish();
        }
    }
    finish();
}

/// What stands in each source file of the program.
const std::vector<std::string>& Sources() {
    static const std::vector<std::string> kSources = [] {
        std::vector<std::string> sources;
        for (const auto& entry : std::filesystem::recursive_directory_iterator(SourcePath("src"))) {
            const auto extension = entry.path().extension();
            if (extension == ".cpp" || extension == ".h") {
                std::ifstream file(entry.path());
                sources.emplace_back(std::istreambuf_iterator<char>(file),
                                     std::istreambuf_iterator<char>());
            }
        }
        return sources;
    }();
    return kSources;
}

/// Every text in the sources of the program.
const std::set<std::string>& ProgramTexts() {
    static const std::set<std::string> kTexts = [] {
        std::set<std::string> texts;
        for (const std::string& source : Sources()) {
            CollectLiterals(source, texts);
        }
        return texts;
    }();
    return kTexts;
}

/// What the manual says in bold, which may go over a line's end.
std::vector<std::string> BoldInManual() {
    std::string prose;
    for (const DocumentLine& line : ProseOf(ReadDocument(kManual))) {
        prose += Trim(line.text) + " ";
    }
    return Between(prose, "**");
}

TEST(Manual, WhatIsBoldIsATextOfTheProgram) {
    const std::vector<std::string> words = BoldInManual();
    EXPECT_GT(words.size(), 100U);
    for (const std::string& word : words) {
        // The manual says of itself how it uses bold letters.
        EXPECT_TRUE(word == "bold" || ProgramTexts().count(word) == 1) << word;
    }
}

TEST(Manual, EverySettingOfATractionModuleIsInIt) {
    const std::vector<std::string> words = BoldInManual();
    const auto expectTold = [&words](const std::string& caption) {
        EXPECT_NE(std::find(words.begin(), words.end(), caption), words.end()) << caption;
    };
    for (const VDSetting& setting : VDSettings()) {
        expectTold(setting.title);
        for (const char* caption : setting.captions) {
            expectTold(caption);
        }
    }
}

TEST(Manual, EveryCaptionOfAButtonOrBoxIsInIt) {
    const std::vector<std::string> words = BoldInManual();
    for (const std::string kind :
         {"QPushButton", "PressButton", "QCheckBox", "QGroupBox", "MakeCommandButton"}) {
        const std::regex made(kind + "\\(QStringLiteral\\(\"([^\"%]+)\"\\)");
        int found = 0;
        for (const std::string& source : Sources()) {
            for (std::sregex_iterator match(source.begin(), source.end(), made), end; match != end;
                 ++match) {
                const std::string caption = Trim((*match)[1]);
                EXPECT_NE(std::find(words.begin(), words.end(), caption), words.end()) << caption;
                ++found;
            }
        }
        EXPECT_GT(found, 0) << kind;
    }
}

}  // namespace

}  // namespace zelvar::testing
