// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/source_scan.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace zelvar::twin {

namespace {

/// Line and block comments go; of literals the quotes stay, so that a call stays a call.
std::string WithoutCommentsAndLiterals(const std::string& text) {
    static const std::regex kHidden(
        R"(//[^\n]*|/\*[^]*?\*/|"(?:[^"\\\n]|\\.)*"|'(?:[^'\\\n]|\\.)+')");
    std::string code;
    auto last = text.begin();
    for (std::sregex_iterator match(text.begin(), text.end(), kHidden), end; match != end;
         ++match) {
        code.append(last, text.begin() + match->position());
        const char first = (*match)[0].str().front();
        code += first == '/' ? " " : std::string(2, first);
        last = text.begin() + match->position() + match->length();
    }
    code.append(last, text.end());
    return code;
}

std::string OneBlankEach(const std::string& text) {
    static const std::regex kBlanks(R"(\s+)");
    return std::regex_replace(text, kBlanks, " ");
}

/// From behind an opening bracket to the end of the first argument.
std::string FirstArgument(const std::string& text, std::size_t from) {
    int depth = 0;
    for (std::size_t at = from; at < text.size(); ++at) {
        const char c = text[at];
        if (depth == 0 && (c == ',' || c == ')')) {
            return text.substr(from, at - from);
        }
        if (std::string("([{").find(c) != std::string::npos) {
            ++depth;
        } else if (std::string(")]}").find(c) != std::string::npos) {
            --depth;
        }
    }
    return text.substr(from);
}

}  // namespace

Source SourceOf(const std::string& path, const std::string& text) {
    return {path, WithoutCommentsAndLiterals(text)};
}

std::vector<Source> ProgramSources() {
    namespace fs = std::filesystem;
    const fs::path root = ZELVAR_PROGRAM_SOURCES;
    std::vector<Source> sources;
    for (const fs::directory_entry& entry : fs::recursive_directory_iterator(root)) {
        const std::string extension = entry.path().extension().string();
        if (entry.is_regular_file() && (extension == ".h" || extension == ".cpp")) {
            std::ostringstream text;
            text << std::ifstream(entry.path()).rdbuf();
            sources.push_back(
                SourceOf(fs::relative(entry.path(), root).generic_string(), text.str()));
        }
    }
    std::sort(sources.begin(), sources.end(),
              [](const Source& a, const Source& b) { return a.path < b.path; });
    return sources;
}

std::set<std::string> BuildersIn(const Source& source) {
    // The type, what may close around it, then a name: a function if a bracket follows, a constant
    // if the name begins as constants do. A trailing return type stands behind an arrow.
    static const std::regex kBefore(
        R"(\b(?:Module)?Command\b(?:\s|>|&|\*|\bconst\b)*((?:\w+::)*(\w+))\s*(\(|[{=;]|\[))");
    static const std::regex kBehind(R"((\w+)\s*\([^()]*\)\s*(?:const\s*)?(?:noexcept\s*)?->\s*)"
                                    R"((?:std::\w+<\s*)*(?:Module)?Command\b)");
    std::set<std::string> builders;
    for (std::sregex_iterator match(source.text.begin(), source.text.end(), kBefore), end;
         match != end; ++match) {
        const std::string name = (*match)[2];
        const bool isFunction = (*match)[3] == "(";
        const bool isConstant = name.size() > 1 && name[0] == 'k' && std::isupper(name[1]) != 0;
        if ((isFunction && name != "operator") || isConstant) {
            builders.insert(name);
        }
    }
    for (std::sregex_iterator match(source.text.begin(), source.text.end(), kBehind), end;
         match != end; ++match) {
        builders.insert((*match)[1]);
    }
    return builders;
}

std::vector<Handover> HandoversIn(const Source& source) {
    // A call follows a dot, an arrow or no name at all; a declaration follows its type or class.
    static const std::regex kCall(R"((bool|void|::)?\s*\b(?:Transact|SendModuleCommand)\s*\()");
    std::vector<Handover> handovers;
    for (std::sregex_iterator match(source.text.begin(), source.text.end(), kCall), end;
         match != end; ++match) {
        if (!(*match)[1].matched) {
            const auto behind = static_cast<std::size_t>(match->position() + match->length());
            std::string argument = OneBlankEach(FirstArgument(source.text, behind));
            argument.erase(0, argument.find_first_not_of(' '));
            handovers.push_back({source.path, argument});
        }
    }
    return handovers;
}

bool HasWord(const std::string& text, const std::string& word) {
    return std::regex_search(text, std::regex("\\b" + word + "\\b"));
}

}  // namespace zelvar::twin
