// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

class Driving : public Journey {
  protected:
    /// Starts both, the polls too, with a page of the "TEST" tab in front.
    void StartAt(const std::string& control) {
        StartAndPoll();
        program->ShowTabOf(control);
    }

    void Keys(const std::string& control, const std::string& keys) { program->Key(control, keys); }

    /// Waits until the unit says it of itself.
    ::testing::AssertionResult UnitSays(const std::string& name, const std::string& expected) {
        std::string last;
        if (Until([&] {
                last = unit->Value(name);
                return last == expected;
            })) {
            return ::testing::AssertionSuccess();
        }
        return ::testing::AssertionFailure()
               << name << ": expected '" << expected << "', still '" << last << "'";
    }

    int AnalogSpeeds() { return unit->Count("command.analog-speed"); }

    void TearDown() override {
        Journey::TearDown();
        if (program && !portClosed_) {
            EXPECT_EQ(program->BoxesShown(), std::vector<std::string>{});
        }
    }

    bool portClosed_ = false;
};

TEST_F(Driving, AnAnalogLocomotiveRunsTurnsAndLightsUp) {
    StartAt("AnalogSpeed");
    program->Type("txtTestBlock", "200");
    EXPECT_EQ(program->TextOf("lblTestAnalogSpeed"), "---");
    Keys("AnalogSpeed", "End");
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:forward,target:63,light:0"));
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", ">>63"));
    program->Click("CheckAnalogDirection");
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:reverse,target:63,light:0"));
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", "<<63"));
    program->Click("CheckAnalogLight");
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:reverse,target:63,light:1"));
    Keys("AnalogSpeed", "Left");
    EXPECT_TRUE(UnitSays("block.200", "speed:62,direction:reverse,target:62,light:1"));
    Keys("AnalogSpeed", "Home");
    EXPECT_TRUE(UnitSays("block.200", "speed:0,direction:reverse,target:0,light:1"));
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", "<<0"));
    program->Click("CheckAnalogLight");
    EXPECT_TRUE(UnitSays("block.200", "speed:0,direction:reverse,target:0,light:0"));
    EXPECT_EQ(AnalogSpeeds(), 4) << "each new value goes out once";
    EXPECT_EQ(unit->Count("command.analog-light"), 2);
}

TEST_F(Driving, AnAcceleratingBlockReportsItsSpeedUntilItIsThere) {
    StartAt("AnalogSpeed");
    program->Type("txtTestBlock", "127");
    program->Type("txtTestAcceleration", "1");
    Keys("AnalogSpeed", "End");
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", ">>63")) << "by the reports alone";
    EXPECT_EQ(unit->Value("block.127"), "speed:63,direction:forward,target:63,light:0");
    EXPECT_EQ(AnalogSpeeds(), 1);
    unit->Do("speed 128 9 forward");
    unit->Do("speed 127 17 reverse");
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", "<<17"));
}

TEST_F(Driving, TheHfiOfTheSystemIsSet) {
    StartAt("AnalogSpeed");
    program->Type("txtTestHFI", "11");
    program->Click("CommandSetHFI");
    EXPECT_TRUE(UnitSays("hfi", "11"));
    program->Type("txtTestHFI", "99");
    EXPECT_EQ(program->TextOf("txtTestHFI"), "15");
    program->Click("CommandSetHFI");
    EXPECT_TRUE(UnitSays("hfi", "15"));
}

TEST_F(Driving, TheAnalogEmergencyStopStandsTheBlockStill) {
    StartAt("AnalogSpeed");
    program->Type("txtTestBlock", "255");
    Keys("AnalogSpeed", "End");
    ASSERT_TRUE(UnitSays("block.255", "speed:63,direction:forward,target:63,light:0"));
    program->Click("cmdEstopAnalog");
    EXPECT_TRUE(UnitSays("block.255", ""));
    EXPECT_EQ(program->ValueOf("AnalogSpeed"), 0);
    EXPECT_TRUE(program->Shows("lblTestAnalogSpeed", ">>0"));
    EXPECT_EQ(AnalogSpeeds(), 2) << "the slider itself sends nothing";
}

TEST_F(Driving, ADccLocomotiveRunsInBothStepModes) {
    StartAt("DCCSpeed");
    program->Type("txtTestBlock", "130");
    program->Type("Text_Decoder", "127");
    Keys("DCCSpeed", "End");
    EXPECT_TRUE(UnitSays("dcc.short.127",
                         "steps:28,speed:28,direction:forward,block:130,emergency-stop:0,"
                         "functions:"));
    program->Click("CheckDCCDirection");
    EXPECT_TRUE(UnitSays("dcc.short.127",
                         "steps:28,speed:28,direction:reverse,block:130,emergency-stop:0,"
                         "functions:"));
    program->Click("CheckDCC126");
    EXPECT_TRUE(UnitSays("dcc.short.127",
                         "steps:126,speed:0,direction:reverse,block:130,emergency-stop:0,"
                         "functions:"))
        << "the slider falls back to 0 in the new mode";
    Keys("DCCSpeed", "End");
    EXPECT_TRUE(UnitSays("dcc.short.127",
                         "steps:126,speed:126,direction:reverse,block:130,emergency-stop:0,"
                         "functions:"));
    EXPECT_EQ(unit->Count("command.dcc-speed-28"), 2);
    EXPECT_EQ(unit->Count("command.dcc-speed-126"), 2);
}

TEST_F(Driving, ADccLocomotiveWithALongAddressIsAnotherOne) {
    StartAt("DCCSpeed");
    const std::string runs =
        "steps:28,speed:1,direction:forward,block:0,emergency-stop:0,functions:";
    program->Type("Text_Decoder", "10239");
    Keys("DCCSpeed", "Right");
    EXPECT_TRUE(UnitSays("dcc.long.10239", runs));
    Keys("DCCSpeed", "Home");
    EXPECT_TRUE(UnitSays("command.dcc-speed-28", "2"));
    program->Type("Text_Decoder", "3");
    program->Click("CheckDCCForceLong");
    Keys("DCCSpeed", "Right");
    EXPECT_TRUE(UnitSays("dcc.long.3", runs));
    EXPECT_EQ(unit->Value("dcc.short.3"), "");
}

TEST_F(Driving, TheDccFunctionsAreSetGroupByGroup) {
    StartAt("DCCSpeed");
    program->Type("txtTestBlock", "99");
    program->Type("Text_Decoder", "128");
    for (const int function : {0, 1, 4, 5, 8, 9, 12, 13, 20, 21, 28}) {
        program->Click("Check_Pattern(" + std::to_string(function) + ")");
    }
    const std::string loco =
        "steps:28,speed:0,direction:forward,block:99,emergency-stop:0,functions:";
    std::string functions;
    int group = 0;
    for (const char* added : {"0+1+4", "+5+8", "+9+12", "+13+20", "+21+28"}) {
        functions += added;
        program->Click("Command1(" + std::to_string(group++) + ")");
        EXPECT_TRUE(UnitSays("dcc.long.128", loco + functions));
    }
    program->Click("Check_Pattern(28)");
    program->Click("Command1(4)");
    EXPECT_TRUE(UnitSays("dcc.long.128", loco + "0+1+4+5+8+9+12+13+20+21"));
}

TEST_F(Driving, TheDccEmergencyStopIsToldToTheDecoder) {
    StartAt("DCCSpeed");
    Keys("DCCSpeed", "End");
    ASSERT_TRUE(UnitSays("command.dcc-speed-28", "1"));
    program->Click("cmdEstopDCC");
    EXPECT_TRUE(UnitSays("dcc.short.1",
                         "steps:28,speed:0,direction:forward,block:0,emergency-stop:1,functions:"));
    EXPECT_EQ(program->ValueOf("DCCSpeed"), 0);
    EXPECT_EQ(unit->Count("command.dcc-speed-28"), 2) << "the slider itself sends nothing";

    program->Click("CheckDCC126");
    Keys("DCCSpeed", "PgUp");
    EXPECT_TRUE(UnitSays("dcc.short.1",
                         "steps:126,speed:5,direction:forward,block:0,emergency-stop:0,"
                         "functions:"));
    program->Click("cmdEstopDCC");
    EXPECT_TRUE(UnitSays("dcc.short.1",
                         "steps:126,speed:0,direction:forward,block:0,emergency-stop:1,"
                         "functions:"));
}

TEST_F(Driving, AnMccLocomotiveRunsInBothStepModesAndStops) {
    StartAt("MCCspeed");
    EXPECT_FALSE(program->IsVisible("txtTestBlock")) << "its commands carry no block";
    program->Type("txtTestMCCdecoder", "4095");
    Keys("MCCspeed", "End");
    EXPECT_TRUE(UnitSays("mcc.4095", "half-steps:30,target:30,functions:0,emergency-stop:0"));
    Keys("MCCspeed", "Left");
    EXPECT_TRUE(UnitSays("mcc.4095", "half-steps:28,target:28,functions:0,emergency-stop:0"));
    program->Click("CheckMCC30");
    EXPECT_TRUE(UnitSays("mcc.4095", "half-steps:0,target:0,functions:0,emergency-stop:0"));
    Keys("MCCspeed", "End");
    EXPECT_TRUE(UnitSays("mcc.4095", "half-steps:30,target:30,functions:0,emergency-stop:0"));
    Keys("MCCspeed", "Left");
    EXPECT_TRUE(UnitSays("mcc.4095", "half-steps:29,target:29,functions:0,emergency-stop:0"));

    program->Click("chkTestMCCfunction(0)");
    program->Click("chkTestMCCfunction(7)");
    program->Click("cmdTestMCCfunction");
    EXPECT_TRUE(UnitSays("mcc.4095", "half-steps:29,target:29,functions:129,emergency-stop:0"));
    program->Click("cmdEstopMCC");
    EXPECT_TRUE(UnitSays("mcc.4095", "half-steps:0,target:0,functions:129,emergency-stop:1"));
    EXPECT_EQ(program->ValueOf("MCCspeed"), 0);
}

TEST_F(Driving, PointsSignalsAndOutputsAreSet) {
    StartAt("txtTestJS70device");
    program->Type("txtTestJS70device", "511");
    program->Click("cmdTestJS70(1)");
    EXPECT_TRUE(UnitSays("point.511", "thrown"));
    program->Click("cmdTestJS70(0)");
    EXPECT_TRUE(UnitSays("point.511", "straight"));

    program->Click("chkTestJS70selectmodule");
    EXPECT_EQ(program->TextOf("txtTestJS70device"), "63") << "a module has no more devices";
    program->Type("txtTestJS70module", "15");
    program->Click("cmdTestJS70(1)");
    EXPECT_TRUE(UnitSays("point-of-module.15.63", "thrown"));
    program->Click("cmdTestJS70(0)");
    EXPECT_TRUE(UnitSays("point-of-module.15.63", "straight"));
    EXPECT_EQ(unit->Value("point.63"), "");

    program->Type("txtTestYR70module", "31");
    program->Type("txtTestYR70pin", "127");
    program->Type("txtTestYR70aspect", "11");
    program->Click("cmdTestYR70");
    EXPECT_TRUE(UnitSays("aspect.31.127", "11"));

    program->Type("txtTestGW70output", "511");
    program->Type("txtTestGW70instruction", "63");
    program->Type("txtTestGW70parameter", "127");
    program->Click("cmdTestGW70");
    EXPECT_TRUE(UnitSays("output.511", "instruction:63,parameter:127"));
}

TEST_F(Driving, LinkedBlocksRunTogetherUntilTheyAreUnlinked) {
    StartAt("AnalogSpeed");
    program->Type("txtTestLink(0)", "10");
    program->Type("txtTestLink(1)", "200");
    program->Click("CommandTestLink(0)");
    EXPECT_TRUE(UnitSays("link.10.200", "straight"));
    program->Type("txtTestBlock", "10");
    Keys("AnalogSpeed", "End");
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:forward,target:63,light:0"));

    program->Click("CommandTestLink(3)");
    EXPECT_TRUE(UnitSays("link.10.200", ""));
    EXPECT_EQ(unit->Value("block.200"), "speed:63,direction:forward,target:63,light:0")
        << "an unlinked block goes on";

    program->Click("CommandTestLink(1)");
    EXPECT_TRUE(UnitSays("link.10.200", "inverted"));
    EXPECT_TRUE(UnitSays("block.200", "speed:63,direction:reverse,target:63,light:0"));
    program->Click("chkTestUnlinkZero");
    program->Click("CommandTestLink(2)");
    EXPECT_TRUE(UnitSays("command.unlink", "2"));
    EXPECT_EQ(unit->Value("link.10.200"), "inverted") << "down are the links to a block";
    program->Click("CommandTestLink(3)");
    EXPECT_TRUE(UnitSays("link.10.200", ""));
    EXPECT_TRUE(UnitSays("block.200", "")) << "cleared with the link";
    EXPECT_EQ(unit->Value("block.10"), "speed:63,direction:forward,target:63,light:0");
}

TEST_F(Driving, ClearBlockRestsTheBlockAndThePages) {
    StartAt("AnalogSpeed");
    program->Type("txtTestBlock", "77");
    Keys("AnalogSpeed", "End");
    ASSERT_TRUE(UnitSays("block.77", "speed:63,direction:forward,target:63,light:0"));
    program->Click("CheckAnalogDirection");
    program->Click("CheckAnalogLight");
    ASSERT_TRUE(UnitSays("block.77", "speed:63,direction:reverse,target:63,light:1"));
    const int frames = AnalogSpeeds();
    program->Click("CommandTestClearBlock");
    EXPECT_TRUE(UnitSays("block.77", ""));
    EXPECT_EQ(program->ValueOf("AnalogSpeed"), 0);
    EXPECT_TRUE(program->IsTicked("CheckAnalogDirection"));
    EXPECT_FALSE(program->IsTicked("CheckAnalogLight"));
    EXPECT_EQ(AnalogSpeeds(), frames);
    EXPECT_EQ(unit->Count("command.analog-light"), 1);
    EXPECT_EQ(unit->Count("command.clear-block"), 1);
}

TEST_F(Driving, WithoutAPortEachControlShowsOneBox) {
    portClosed_ = true;
    Start();
    std::size_t shown = 0;
    const auto expectOneBox = [&](const std::vector<std::string>& action) {
        program->ShowTabOf(action[1]);
        program->Ask(action);
        EXPECT_EQ(program->AwaitBox(), SelectPortBox()) << action[1];
        program->Answer("OK");
        EXPECT_EQ(program->Box(), BoxText()) << action[1];
        EXPECT_EQ(program->BoxesShown().size(), ++shown) << action[1];
    };
    for (const char* button :
         {"cmdEstopAnalog", "CommandSetHFI", "CommandTestClearBlock", "cmdEstopDCC", "Command1(0)",
          "Command1(4)", "CheckDCCDirection", "cmdEstopMCC", "cmdTestMCCfunction", "cmdTestJS70(0)",
          "cmdTestJS70(1)", "cmdTestYR70", "cmdTestGW70", "CommandTestLink(0)",
          "CommandTestLink(3)"}) {
        expectOneBox({"click", button});
    }
    for (const char* slider : {"AnalogSpeed", "DCCSpeed", "MCCspeed"}) {
        expectOneBox({"key", slider, "End"});
    }
    // The slider that this sets to 0 says it, and the box itself nothing more.
    expectOneBox({"click", "CheckDCC126"});
    expectOneBox({"click", "CheckMCC30"});
    for (const char* silent : {"CheckAnalogDirection", "CheckAnalogLight"}) {
        program->ShowTabOf(silent);
        program->Click(silent);
        EXPECT_EQ(program->Box(), BoxText()) << silent;
    }
    EXPECT_EQ(program->BoxesShown().size(), shown);
    EXPECT_EQ(Frames(), 0);
}

}  // namespace

}  // namespace zelvar::e2e
