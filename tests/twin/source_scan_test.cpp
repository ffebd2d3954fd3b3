// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/source_scan.h"

#include <gtest/gtest.h>

namespace zelvar::twin {
namespace {

constexpr const char* kDeclarations = R"text(
    /// Command InAComment(int block);
    Command Plain(int block);
    static constexpr Command Constant() { return {}; }
    std::optional<Command> Perhaps(int group);
    std::vector<zelvar::Command> Several();
    const ModuleCommand& Shared();
    zelvar::Command Room::Member(int value) const;
    auto Behind(int value) -> std::optional<ModuleCommand>;
    constexpr Command kConstant{1, {0}};
    inline const ModuleCommand kOther = {};
    const Command kSeveral[] = {};
    const char* text = "Command InAText(int)";
    void Takes(const Command& command, ModuleCommand other = {});
    using Address = Command (*)(const ModuleCommand&, int);
    bool operator==(const Command&) const = default;
)text";

constexpr const char* kCalls = R"text(
    bool Link::Transact(const Command& command, std::string_view text) {}
    void SendModuleCommand(const ModuleCommand& command);
    // link.Transact(kCommented);
    if (!link_.Transact({2, {1, 0}}, "with, a comma)")) {}
    commands_->SendModuleCommand(Builder(1,
                                         Other(2)));
)text";

TEST(SourceScan, FindsEveryWayToDeclareABuilder) {
    EXPECT_EQ(BuildersIn(SourceOf("room/new.h", kDeclarations)),
              (std::set<std::string>{"Plain", "Constant", "Perhaps", "Several", "Shared", "Member",
                                     "Behind", "kConstant", "kOther", "kSeveral"}));
}

TEST(SourceScan, FindsCallsWithTheirFirstArgumentAndNoDeclarations) {
    EXPECT_EQ(HandoversIn(SourceOf("room/new.cpp", kCalls)),
              (std::vector<Handover>{{"room/new.cpp", "{2, {1, 0}}"},
                                     {"room/new.cpp", "Builder(1, Other(2))"}}));
}

TEST(SourceScan, LooksForWholeWords) {
    EXPECT_TRUE(HasWord("SetPoint(1)", "SetPoint"));
    EXPECT_FALSE(HasWord("SetPointOfModule(1)", "SetPoint"));
    EXPECT_FALSE(HasWord("ResetPoint(1)", "SetPoint"));
}

}  // namespace
}  // namespace zelvar::twin
