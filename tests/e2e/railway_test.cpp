// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

constexpr char kActive[] = "#ff8000";
constexpr char kInactive[] = "#ffffff";

class RunningTrains : public Journey {
  protected:
    /// The trains run five times as fast as real ones: a block takes them half a second.
    void StartAt(const std::string& control) {
        StartAndPoll({"--layout", ZELVAR_TEST_LAYOUTS "/loop.toml", "--time-factor", "5"});
        program->Click("Check_Stop");
        ASSERT_TRUE(program->Shows("lblBarStatus", "System Status = Run"));
        program->ShowTabOf(control);
    }
    void Keys(const std::string& control, const std::string& keys) { program->Key(control, keys); }
    void Link(int first, int second) {
        program->Type("txtTestLink(0)", std::to_string(first));
        program->Type("txtTestLink(1)", std::to_string(second));
        program->Click("CommandTestLink(0)");
    }
    /// The block of the red train and those behind it, round the loop, at full speed.
    void DriveRed() {
        Link(1, 2);
        Link(2, 3);
        program->Type("txtTestBlock", "1");
        Keys("AnalogSpeed", "End");
    }
    /// The blue train comes out of its spur.
    void DriveBlue() {
        program->Type("Text_Decoder", "3");
        Keys("DCCSpeed", "End");
    }
    ::testing::AssertionResult Shows(int input, const std::string& colour) {
        return program->Says({"colour", "lblFBM(" + std::to_string(input) + ")", "Window"}, colour);
    }
    /// One of the values in the unit's line about a train or a section.
    std::string Part(const std::string& name, const std::string& key) {
        const std::string line = "," + unit->Value(name) + ",";
        const std::size_t at = line.find("," + key + ":");
        if (at == std::string::npos) {
            return {};
        }
        const std::size_t from = at + key.size() + 2;
        return line.substr(from, line.find(',', from) - from);
    }
    bool Stands(const std::string& train) { return Part("train." + train, "speed") == "0.0"; }
};

TEST_F(RunningTrains, TheMonitorFollowsAnAnalogTrainRoundTheLoop) {
    StartAt("AnalogSpeed");
    program->Click("CommandTestFBM");
    ASSERT_TRUE(program->Says({"window", "dlgZelvarFeedback"}, "visible"));
    program->Click("cmdFBMrefresh");
    EXPECT_TRUE(Shows(1, kActive));
    EXPECT_TRUE(Shows(2, kInactive));
    EXPECT_TRUE(Shows(3, kInactive));
    EXPECT_TRUE(Shows(4, kActive));

    DriveRed();
    for (const int entered : {2, 3, 1}) {
        EXPECT_TRUE(Shows(entered, kActive)) << entered;
    }
    program->Click("cmdEstopAnalog");
    ASSERT_TRUE(Until([this] { return Stands("red"); }));
    ASSERT_TRUE(Until([this] { return unit->Count("pending-reports") == 0; }));
    const std::string sections[] = {"south", "east", "north", "spur"};
    for (int input = 1; input <= 4; ++input) {
        const bool occupied = Part("section." + sections[input - 1], "occupied") == "1";
        EXPECT_TRUE(Shows(input, occupied ? kActive : kInactive)) << input;
    }
    EXPECT_EQ(unit->Value("fault"), "0");
    EXPECT_EQ(program->BoxesShown(), std::vector<std::string>{});
}

TEST_F(RunningTrains, TwoTrainsInOneBlockRaiseTheAlarmUntilOneHasLeft) {
    StartAt("DCCSpeed");
    DriveBlue();
    ASSERT_TRUE(program->Says({"window", "dlgAlarmLog"}, "visible"));
    EXPECT_TRUE(program->Shows("txtAlarmLog", "Overcurrent block 1 detected .............\n"));
    EXPECT_TRUE(program->Shows("lblBarStatus", "System Status = Fault"));
    EXPECT_TRUE(Stands("blue"));
    EXPECT_EQ(Part("section.south", "trains"), "red+blue");

    program->Click("CheckDCCDirection");
    EXPECT_TRUE(Stands("blue")) << "without power";
    program->Click("cmdReset");
    EXPECT_TRUE(program->Shows("txtAlarmLog",
                               "Overcurrent block 1 detected .............\n"
                               "Overcurrent block 1 .............. released\n"));
    EXPECT_TRUE(program->Shows("lblBarStatus", "System Status = Run"));
    EXPECT_TRUE(Until([this] { return Part("section.south", "trains") == "red"; }));
    EXPECT_TRUE(Until([this] { return Stands("blue"); })) << "at the end of the spur";
    EXPECT_EQ(Part("train.blue", "position"), "30.0");
}

}  // namespace

}  // namespace zelvar::e2e
