// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

class Driving : public Journey {
  protected:
    /// Waits until the unit has a value under a name.
    ::testing::AssertionResult UnitSays(const std::string& name, const std::string& expected) {
        std::string last;
        if (Until([&] {
                last = unit->Value(name);
                return last == expected;
            })) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure()
               << name << ": expected '" << expected << "', found '" << last << "'";
    }
};

TEST_F(Driving, AnAnalogLocomotiveRunsTurnsAndLightsUp) {
    StartAndPoll();
    program->Type("txtTestBlock", "200");
    EXPECT_EQ(program->TextOf("lblTestAnalogSpeed"), "---");
    program->Key("AnalogSpeed", "End");
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:forward,target:63,light:0"));
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", ">>63"));
    program->Click("CheckAnalogDirection");
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:reverse,target:63,light:0"));
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", "<<63"));
    program->Click("CheckAnalogLight");
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:reverse,target:63,light:1"));
    program->Key("AnalogSpeed", "Left");
    EXPECT_TRUE(UnitSays("block.200", "speed:62,direction:reverse,target:62,light:1"));
    program->Key("AnalogSpeed", "Home");
    EXPECT_TRUE(UnitSays("block.200", "speed:0,direction:reverse,target:0,light:1"));
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", "<<0"));
    program->Click("CheckAnalogLight");
    EXPECT_TRUE(UnitSays("block.200", "speed:0,direction:reverse,target:0,light:0"));
    EXPECT_EQ(unit->Count("command.analog-speed"), 4) << "each new value goes out once";
    EXPECT_EQ(unit->Count("command.analog-light"), 2);
    EXPECT_EQ(program->BoxesShown(), std::vector<std::string>{});
}

}  // namespace

}  // namespace zelvar::e2e
