// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/layout_file.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace zelvar::sim {
namespace {

constexpr std::string_view kUnit =
    "[unit]\ntype = \"KB-E\"\nversion = \"1.02\"\nprotocol = \"3.11 B\"\n";

/// The layout of a text that follows a unit; the test fails if there is a problem.
Layout Read(const std::string& text) {
    const auto parsed = ParseLayout(std::string(kUnit) + text);
    if (const auto* problems = std::get_if<LayoutProblems>(&parsed)) {
        ADD_FAILURE() << problems->front().line << ": " << problems->front().text;
        return {};
    }
    return std::get<DescribedLayout>(parsed).layout;
}

TEST(LayoutFileTest, AUnitAloneIsALayout) {
    const Layout layout = Read("");
    EXPECT_EQ(layout.unitType, 2);
    EXPECT_EQ(layout.systemVersion, 1020);
    EXPECT_EQ(layout.protocolVersion, 3112);
    EXPECT_EQ(layout.dipSwitches, 0x0F);
    for (const ModuleSlot& slot : layout.modules) {
        EXPECT_FALSE(slot.Present());
    }
    EXPECT_TRUE(layout.track.sections.empty());
}

TEST(LayoutFileTest, ASwitchThatIsOnIsAClearBit) {
    EXPECT_EQ(Read(R"(dip-switches = ["on", "off", "on", "off"])").dipSwitches, 0x0A);
}

TEST(LayoutFileTest, ATitleIsKept) {
    const auto parsed = ParseLayout("title = \"Attic\"\n" + std::string(kUnit));
    ASSERT_TRUE(std::holds_alternative<DescribedLayout>(parsed));
    EXPECT_EQ(std::get<DescribedLayout>(parsed).title, "Attic");
}

struct UnitTypeCase {
    const char* name;
    const char* word;
    int type;
};

class UnitTypes : public testing::TestWithParam<UnitTypeCase> {};

TEST_P(UnitTypes, HaveTheirNumbers) {
    const auto parsed = ParseLayout("[unit]\nversion=\"1.00\"\nprotocol=\"3.10\"\ntype=\"" +
                                    std::string(GetParam().word) + '"');
    ASSERT_TRUE(std::holds_alternative<DescribedLayout>(parsed));
    EXPECT_EQ(std::get<DescribedLayout>(parsed).layout.unitType, GetParam().type);
}

INSTANTIATE_TEST_SUITE_P(Rows, UnitTypes,
                         testing::Values(UnitTypeCase{"KbF", "KB-F", 1},
                                         UnitTypeCase{"KbE", "KB-E", 2},
                                         UnitTypeCase{"KbG", "KB-G", 3},
                                         UnitTypeCase{"Qlrx", "QLRX", 10}),
                         [](const auto& row) { return row.param.name; });

struct ExpectedSlot {
    int status;
    int version;
    int masterSlave;
    int clock;
};

struct ModuleCase {
    const char* name;
    std::string text;
    int address;
    ExpectedSlot slot;
};

class ModuleTables : public testing::TestWithParam<ModuleCase> {};

TEST_P(ModuleTables, DescribeOneSlot) {
    const Layout layout = Read(GetParam().text);
    const ModuleSlot& slot = layout.At(GetParam().address);
    EXPECT_EQ(slot.status, GetParam().slot.status);
    EXPECT_EQ(slot.version, GetParam().slot.version);
    EXPECT_EQ(slot.settings[kMasterSlaveParameter], GetParam().slot.masterSlave);
    EXPECT_EQ(slot.clock, GetParam().slot.clock);
    const auto present = [](const ModuleSlot& candidate) { return candidate.Present(); };
    const bool isPair = GetParam().address < kTractionFamily;
    EXPECT_EQ(std::count_if(layout.modules.begin(), layout.modules.end(), present), isPair ? 2 : 1);
}

std::string Traction(const std::string& rest) {
    return "[[traction-module]]\n" + rest;
}

INSTANTIATE_TEST_SUITE_P(
    Rows, ModuleTables,
    testing::Values(
        ModuleCase{
            "FirstTraction", Traction("channel=0\nmodule=0\ntype=\"VD-F\""), 32, {0x08, 0, 0, 0}},
        ModuleCase{"LastTraction",
                   Traction("channel=1\nmodule=15\ntype=\"QLRX-s\"\nversion=\"1.02 C\""),
                   63,
                   {0x0A, 1023, 0, 0}},
        ModuleCase{"FaultyMaster",
                   Traction("channel=0\nmodule=3\ntype=\"VD-F\"\nstate=\"fault\"\n"
                            "master-slave=\"master\"\nclock=\"degraded\"\nversion=\"none\""),
                   35,
                   {0x28, 0, 1, 4}},
        ModuleCase{"IdleSlave",
                   Traction("channel=0\nmodule=3\ntype=\"VD60\"\nstate=\"idle\"\n"
                            "master-slave=\"slave\"\nclock=\"bad\"\nversion=\"9.85 G\""),
                   35,
                   {0x19, 9857, 2, 2}},
        ModuleCase{"WrittenOut",
                   Traction("channel=0\nmodule=3\ntype=\"VD60\"\nstate=\"ok\"\n"
                            "master-slave=\"auto\"\nclock=\"none\""),
                   35,
                   {0x09, 0, 0, 1}},
        ModuleCase{"SecondUnitTakesOver",
                   Traction("channel=1\nmodule=3\ntype=\"VD60\"\nversion=\"2.01 D\"\nsecond={}"),
                   19,
                   {0x09, 2014, 0, 0}},
        ModuleCase{"SecondUnitOfItsOwn",
                   Traction("channel=1\nmodule=3\ntype=\"VD60\"\nversion=\"2.01 D\"\n"
                            "second={type=\"VD-F\",version=\"1.00\",state=\"fault\",clock=\"good\","
                            "master-slave=\"slave\"}"),
                   19,
                   {0x28, 1000, 2, 0}},
        ModuleCase{"PointsHold",
                   "[[point-module]]\nchannel=1\nmodule=7\nversion=\"1.20\"\nstate=\"hold\"",
                   87,
                   {0x28, 1200, 0, 0}},
        ModuleCase{"Signals",
                   "[[signal-module]]\nchannel=1\nmodule=15\nstate=\"idle\"",
                   127,
                   {0x18, 0, 0, 0}}),
    [](const auto& row) { return row.param.name; });

TEST(LayoutFileTest, TablesInAListAreTheSame) {
    const auto parsed =
        ParseLayout("signal-module = [{ channel = 0, module = 1 }, { channel = 1, module = 2 }]\n" +
                    std::string(kUnit));
    ASSERT_TRUE(std::holds_alternative<DescribedLayout>(parsed));
    EXPECT_TRUE(std::get<DescribedLayout>(parsed).layout.At(kSignalFamily + 1).Present());
    EXPECT_TRUE(std::get<DescribedLayout>(parsed).layout.At(kSignalFamily + 18).Present());
}

class ReadLayoutFileTest : public testing::Test {
  protected:
    void SetUp() override {
        std::string pattern = testing::TempDir() + "zelvarlayoutXXXXXX";
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        folder_ = pattern;
        path_ = (folder_ / "attic.toml").string();
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    void Write(std::string_view text) const { std::ofstream(path_) << text; }
    /// What is wrong with a file.
    static std::string Message(const std::string& path) {
        const auto read = ReadLayoutFile(path);
        const auto* message = std::get_if<std::string>(&read);
        return message == nullptr ? "nothing wrong" : *message;
    }

    std::filesystem::path folder_;
    std::string path_;
};

TEST_F(ReadLayoutFileTest, ReadsALayout) {
    Write(kUnit);
    EXPECT_EQ(Message(path_), "nothing wrong");
}

TEST_F(ReadLayoutFileTest, ListsEveryProblemWithFileAndLine) {
    Write("[unit]\ntype = \"KB-E\"\nversion = 1.02\nprotocol = \"3.11 B\"\ndip-switches = 5\n");
    EXPECT_EQ(Message(path_),
              path_ +
                  ":3: version: expected a version like \"1.02\" or \"1.02 C\" in quotation marks, "
                  "at most \"9.85 G\" and at most 85 after the point, found 1.02\n" +
                  path_ + ":5: dip-switches: expected a list of 4 words, found 5");
}

TEST_F(ReadLayoutFileTest, SaysWhenThereIsNone) {
    EXPECT_EQ(Message(path_), path_ + ": No such file or directory");
}

TEST_F(ReadLayoutFileTest, TakesNoFolder) {
    EXPECT_EQ(Message(folder_.string()), folder_.string() + ": expected a file, found a folder");
}

TEST_F(ReadLayoutFileTest, ReadsUpToAMebibyte) {
    std::string text(kUnit);
    text.resize(1'048'576, '\n');
    Write(text);
    EXPECT_EQ(Message(path_), "nothing wrong");
    Write(text + '\n');
    EXPECT_EQ(Message(path_), path_ + ": expected at most 1048576 bytes");
}

}  // namespace
}  // namespace zelvar::sim
