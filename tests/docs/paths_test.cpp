// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cctype>
#include <filesystem>
#include <regex>
#include <set>
#include <string>

#include "document.h"

namespace zelvar::testing {

namespace {

bool Exists(const std::string& path) {
    return std::filesystem::exists(SourcePath(path));
}

/// The path of a file or folder that a document names in backticks: with its folder in the source
/// tree or in src/, and with or without the ends of a header and its source.
bool IsFileOfTheProject(const std::string& name) {
    for (const char* folder : {"", "src/"}) {
        for (const char* ending : {"", ".h", ".cpp"}) {
            if (Exists(std::string(folder).append(name).append(ending))) {
                return true;
            }
        }
    }
    return false;
}

/// Whether a text in backticks names a file of the project, which has a folder before it.
bool LooksLikeAFile(const std::string& text) {
    static const std::regex kFile("(\\./)?[A-Za-z][A-Za-z0-9_.-]*(/[A-Za-z0-9_.-]*)*");
    return text.find('/') != std::string::npos && std::regex_match(text, kFile) &&
           !text.starts_with("build/");
}

/// The anchor that a heading gets: lowercase letters, digits, and hyphens for spaces.
std::string AnchorOf(const std::string& heading) {
    std::string anchor;
    for (const char c : heading) {
        const auto letter = static_cast<unsigned char>(c);
        if (std::isalnum(letter) != 0 || c == '-' || c == '_') {
            anchor += static_cast<char>(std::tolower(letter));
        } else if (c == ' ') {
            anchor += '-';
        }
    }
    return anchor;
}

std::set<std::string> AnchorsOf(const std::string& document) {
    std::set<std::string> anchors;
    for (const DocumentLine& line : ProseOf(ReadDocument(document))) {
        if (line.text.starts_with("#")) {
            const std::size_t from = line.text.find_first_not_of("# ");
            anchors.insert(AnchorOf(line.text.substr(from)));
        }
    }
    return anchors;
}

/// The targets of a line's links and pictures.
std::vector<std::string> TargetsOf(const std::string& line) {
    static const std::regex kTarget("\\]\\(([^)]+)\\)|src(?:set)?=\"([^\"]+)\"");
    std::vector<std::string> targets;
    for (std::sregex_iterator match(line.begin(), line.end(), kTarget), end; match != end;
         ++match) {
        targets.push_back((*match)[1].matched ? (*match)[1] : (*match)[2]);
    }
    return targets;
}

class EveryDocument : public ::testing::TestWithParam<std::string> {
  protected:
    /// The path in the source tree of a target that a link of this document names.
    std::string PathOf(const std::string& target) const {
        const std::filesystem::path folder = std::filesystem::path(GetParam()).parent_path();
        return (folder / target).lexically_normal().string();
    }
};

TEST_P(EveryDocument, HasLinksThatLeadSomewhere) {
    for (const DocumentLine& line : ProseOf(ReadDocument(GetParam()))) {
        for (const std::string& target : TargetsOf(line.text)) {
            if (target.find("://") != std::string::npos) {
                continue;
            }
            const std::size_t hash = target.find('#');
            const std::string file = target.substr(0, hash);
            const std::string path = file.empty() ? GetParam() : PathOf(file);
            EXPECT_TRUE(Exists(path)) << "line " << line.number << ": " << target;
            if (hash != std::string::npos && Exists(path)) {
                EXPECT_EQ(AnchorsOf(path).count(target.substr(hash + 1)), 1U)
                    << "line " << line.number << ": " << target;
            }
        }
    }
}

TEST_P(EveryDocument, NamesFilesThatExist) {
    for (const DocumentLine& line : ProseOf(ReadDocument(GetParam()))) {
        for (const std::string& name : Between(line.text, "`")) {
            if (LooksLikeAFile(name)) {
                EXPECT_TRUE(IsFileOfTheProject(name)) << "line " << line.number << ": " << name;
            }
        }
    }
}

std::string NameOf(const ::testing::TestParamInfo<std::string>& document) {
    std::string name;
    for (const char c : document.param) {
        name += std::isalnum(static_cast<unsigned char>(c)) != 0 ? c : '_';
    }
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, EveryDocument, ::testing::ValuesIn(Documents()), NameOf);

}  // namespace

}  // namespace zelvar::testing
