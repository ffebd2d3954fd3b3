// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_window.h"

namespace zelvar::twin {
namespace {

/// The tab of the point-motor modules.
class PointsForms : public TwinWindow {
  protected:
    PointsForms() { RequestStatus(); }

    static std::string In(int module, bool permanent) {
        return "points." + std::to_string(module) + (permanent ? ".permanent." : ".active.");
    }
    void ChooseModule(int module) { Choose("cboJS", " " + std::to_string(module)); }
};

TEST_F(PointsForms, TimesAndPowersReachTheModuleTheDeviceAndTheMemory) {
    for (const int module : {0, 7, 8, 9, 15}) {
        ChooseModule(module);
        for (const bool permanent : {false, true}) {
            Tick("chkJSperm", permanent);
            for (const int time : {127, 1, 0}) {
                Type("txtJStime", time);
                EXPECT_EQ(EffectOfClick("cmdTIME"),
                          (Changes{{In(module, permanent) + "default", time}}));
            }
            for (const int device : {0, 1, 63}) {
                const std::string name = In(module, permanent) + std::to_string(device);
                Type("txtJSdevice", device);
                for (const int time : {127, 1, 0}) {
                    Type("txtJStime", time);
                    EXPECT_EQ(EffectOfClick("cmdDeviceTime"), (Changes{{name + ".time", time}}));
                }
                // Unlimited, High, Low, Normal
                for (const int power : {3, 2, 1, 0}) {
                    Click(Member("optJSpower", power));
                    EXPECT_EQ(EffectOfClick("cmdDevicePower"), (Changes{{name + ".power", power}}));
                }
            }
        }
    }
}

TEST_F(PointsForms, AllMeansEveryModule) {
    Choose("cboJS", "All");
    Type("txtJStime", 42);
    Changes meant;
    Changes erased;
    for (const int module : {0, 7, 8, 9, 15}) {
        meant[In(module, false) + "default"] = 42;
        erased[In(module, false) + "default"] = sim::FactoryPointSettings().defaultTime;
    }
    EXPECT_EQ(EffectOfClick("cmdTIME"), meant);
    messageBox.answers = {BoxAnswer::Cancel, BoxAnswer::Ok};
    EXPECT_EQ(EffectOfClick("cmdJSerase"), Changes{});
    EXPECT_EQ(EffectOfClick("cmdJSerase"), erased);
    const testing::ShownBox question{
        "Warning! This will permanently erase all settings of all selected JS70-units",
        BoxIcon::Exclamation, BoxButtons::OkCancel};
    expectedBoxes = {question, {"Operation Cancelled", BoxIcon::Plain, BoxButtons::Ok}, question};
}

TEST_F(PointsForms, WhatWasSetIsWhatTheReportShows) {
    ChooseModule(9);
    Tick("chkJSperm", true);
    Type("txtJStime", 42);
    Click("cmdTIME");
    Tick("chkJSperm", false);
    Type("txtJStime", 60);
    Type("txtJSdevice", 63);
    Click("cmdDeviceTime");
    Click("optJSpower(3)");
    Click("cmdDevicePower");
    EXPECT_EQ(EffectOfClick("cmdGetJSConfig"), Changes{});
    const QString report = Find<QPlainTextEdit>("textJSReport").toPlainText();
    const qsizetype active = report.indexOf(QStringLiteral(" Active settings:"));
    ASSERT_GT(active, 0);
    const auto permanentPart = report.first(active);
    const auto activePart = report.sliced(active);
    EXPECT_TRUE(report.startsWith(QStringLiteral("JS70#9\n")));
    EXPECT_TRUE(permanentPart.contains(QStringLiteral("Default Timing =  42   700 ms")));
    EXPECT_TRUE(permanentPart.contains(QStringLiteral("    63      42   700 ms Default  Normal")));
    EXPECT_TRUE(activePart.contains(QStringLiteral("Default Timing =  15   250 ms")));
    EXPECT_TRUE(activePart.contains(QStringLiteral("    63      60  1000 ms          Unlimited")));
    EXPECT_TRUE(activePart.contains(QStringLiteral("     0      15   250 ms Default  Normal")));
}

/// The tab of the central unit.
class UnitForms : public TwinWindow {
  protected:
    UnitForms() { RequestStatus(); }

    static std::string In(const char* name, bool permanent) {
        return std::string(name) + (permanent ? ".permanent" : ".active");
    }
    /// The ticked boxes of an array, as bits.
    int Ticked(const std::string& array) {
        int pattern = 0;
        for (int i = 0; i < 8; ++i) {
            pattern |= IsTicked(Member(array, i)) ? 1 << i : 0;
        }
        return pattern;
    }
    void TickAll(const std::string& array, int pattern) {
        for (int i = 0; i < 8; ++i) {
            Tick(Member(array, i), (pattern >> i & 1) != 0);
        }
    }
};

TEST_F(UnitForms, EverySwitchIsItsOwnBitAndReadBack) {
    for (const bool permanent : {false, true}) {
        Tick("chkKBperm", permanent);
        for (const int pattern : {1, 2, 4, 8, 16, 32, 64, 128, 255, 0}) {
            TickAll("chkKBEconfig", pattern);
            EXPECT_EQ(EffectOfClick("cmdConfig(0)"),
                      (Changes{{In("configuration", permanent), pattern}}));
            TickAll("chkKBEconfig", 255 - pattern);
            EXPECT_EQ(EffectOfClick("cmdConfig(1)"), Changes{});
            EXPECT_EQ(Ticked("chkKBEconfig"), pattern);
            EXPECT_TRUE(IsGreen("chkKBEconfig(0)"));
        }
    }
}

TEST_F(UnitForms, EveryOptionIsItsOwnBit) {
    for (const int pattern : {1, 2, 4, 8, 64, 34, 127}) {
        TickAll("chkKBEoptions", pattern);
        EXPECT_EQ(EffectOfClick("cmdOptions"), (Changes{{"options", pattern}}));
    }
    TickAll("chkKBEoptions", 128);
    EXPECT_EQ(EffectOfClick("cmdOptions"), Changes{});
    expectedBoxes = {{"Overflow", BoxIcon::Critical, BoxButtons::Ok}};
}

TEST_F(UnitForms, The64DeviceBoxesAddUpInTheirMemory) {
    for (const bool permanent : {false, true}) {
        Tick("chkKBperm", permanent);
        for (const auto& [pattern, sum] : {std::pair{1, 1},
                                           {2, 2},
                                           {4, 4},
                                           {8, 8},
                                           {32, 2},
                                           {0x11, 2},
                                           {64, 4},
                                           {128, 8},
                                           {0x42, 6},
                                           {255, 30},
                                           {16, 1},
                                           {0, 0}}) {
            port.state().memories.unit.Part(permanent).deviceMode = 99;
            TickAll("chkJSdevicemode", pattern);
            EXPECT_EQ(EffectOfClick("cmdJS70dm"), (Changes{{In("device-mode", permanent), sum}}));
        }
    }
}

TEST_F(UnitForms, EachTransparentModeIsTheOneThatIsNamed) {
    const testing::ShownBox told = testing::Exclamation(
        "Your KB-E/KB-G is put in Transparent Mode\r\n"
        "Reboot your KB-E/KB-G to restart normal operation");
    const std::vector<std::string> names{"transparent-channel-0", "transparent-channel-1",
                                         "transparent-boot-loader"};
    for (int index = 0; index < 3; ++index) {
        EXPECT_EQ(EffectOfClick(Member("cmdTM", index)), (Changes{{"transparent", 1}}));
        EXPECT_EQ(port.TakeNames(),
                  std::vector<std::string>{names[static_cast<std::size_t>(index)]});
        EXPECT_FALSE(timer.enabled);
        expectedBoxes.push_back(told);
        port.Reboot();
        Click("cmdReset");
        EXPECT_TRUE(timer.enabled);
        port.TakeNames();
    }
}

}  // namespace
}  // namespace zelvar::twin
