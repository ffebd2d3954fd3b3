// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <sstream>

#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

constexpr char kGreen[] = "#00ff00";

// Parameters of a traction module, and what the simulated factory gives it.
constexpr int kHfi = 1;
constexpr int kDcShift = 8;
constexpr int kPwmMultiplier = 9;
constexpr int kMasterSlave = 11;
constexpr int kLoopCurrentB = 14;
constexpr int kFactoryHfi = 6;
constexpr int kFactoryDcShift = 5;

BoxText PlainBox(const std::string& text) {
    return {"ZelvarConfig", "none", text, "OK"};
}

class Configuration : public Journey {
  protected:
    /// Starts both and fills the lists of modules.
    void StartWithModules() {
        StartAndOpen();
        RequestStatus();
    }

    /// A parameter 1..15 of the traction module on a line, as the unit keeps it.
    int Traction(int line, const std::string& memory, int parameter) {
        std::istringstream values(unit->Value("traction." + std::to_string(line) + "." + memory));
        std::string value;
        for (int i = 0; i < parameter; ++i) {
            std::getline(values, value, ',');
        }
        return std::stoi(value);
    }

    bool IsGreen(const std::string& control, const std::string& role) {
        return program->ColourOf(control, role) == kGreen;
    }

    /// The program answers when it is through with what was pressed.
    void ExpectNoBox() { EXPECT_EQ(program->BoxesShown(), std::vector<std::string>{}); }
};

TEST_F(Configuration, ASettingSetPermanentlyIsReadBackAfterAReboot) {
    StartWithModules();
    program->Choose("cboVD", " 1");
    EXPECT_TRUE(program->Shows("lblVDtype", "VD-F"));
    program->Click("cmdHFI(1)");
    EXPECT_TRUE(program->Shows("txtHFI", std::to_string(kFactoryHfi)));
    EXPECT_TRUE(IsGreen("txtHFI", "Base"));

    program->Type("txtHFI", "9");
    EXPECT_FALSE(IsGreen("txtHFI", "Base")) << "the button has lost the focus";
    program->Click("chkVDperm");
    program->Click("cmdHFI(0)");
    ExpectNoBox();
    EXPECT_EQ(Traction(1, "permanent", kHfi), 9);
    EXPECT_EQ(Traction(1, "active", kHfi), kFactoryHfi) << "only the permanent one is written";

    unit->Do("reboot");
    program->Type("txtHFI", "0");
    program->Click("chkVDperm");
    EXPECT_FALSE(program->IsTicked("chkVDperm"));
    program->Click("cmdHFI(1)");
    EXPECT_TRUE(program->Shows("txtHFI", "9"));
    EXPECT_TRUE(IsGreen("txtHFI", "Base"));

    program->Type("txtHFI", "12");
    program->Click("cmdHFI(0)");
    ExpectNoBox();
    EXPECT_EQ(Traction(1, "active", kHfi), 12);
    unit->Do("reboot");
    program->Click("cmdHFI(1)");
    EXPECT_TRUE(program->Shows("txtHFI", "9")) << "an active setting ends with the reboot";
    ExpectNoBox();
}

TEST_F(Configuration, AnOptionOfASecondUnitIsReadBackAfterAReboot) {
    StartWithModules();
    program->Choose("cboVD", " 19.1");
    EXPECT_TRUE(program->Shows("lblVDtype", "VD60"));
    program->Click("chkVDperm");
    program->Click("optPWMM(32)");
    program->Click("cmdPWMM(0)");
    ExpectNoBox();
    EXPECT_EQ(Traction(51, "permanent", kPwmMultiplier), 32);
    EXPECT_NE(Traction(19, "permanent", kPwmMultiplier), 32) << "the first unit keeps its own";

    unit->Do("reboot");
    program->Click("chkVDperm");
    program->Click("optPWMM(2)");
    program->Click("cmdPWMM(1)");
    EXPECT_TRUE(program->Says({"checked", "optPWMM(32)"}, "yes"));
    EXPECT_TRUE(IsGreen("optPWMM(32)", "Window"));
    ExpectNoBox();
}

TEST_F(Configuration, AGroupIsWrittenWholeAndNothingBesideIt) {
    StartWithModules();
    program->Choose("cboVD", "All_VD-F");
    program->Type("txtDCShift", "3");
    program->Click("cmdDCShift(0)");
    ExpectNoBox();
    for (const int line : {0, 1, 2, 16}) {
        EXPECT_EQ(Traction(line, "active", kDcShift), 3) << line;
        EXPECT_EQ(Traction(line, "permanent", kDcShift), kFactoryDcShift) << line;
    }
    for (const int line : {4, 5, 6, 8, 9, 19, 24, 36, 51}) {
        EXPECT_EQ(Traction(line, "active", kDcShift), kFactoryDcShift) << line;
    }
}

TEST_F(Configuration, ALoopCurrentGoesToTheChosenLoop) {
    StartWithModules();
    program->Choose("cboVD", " 24");
    EXPECT_TRUE(program->Shows("lblVDtype", "QLRX-s"));
    program->Click("OptLC(1)");
    program->Type("txtLC", "99");
    program->Click("cmdLC(0)");
    EXPECT_EQ(program->TextOf("txtLC"), "70") << "the greatest current";
    EXPECT_EQ(Traction(24, "active", kLoopCurrentB), 70);
    ExpectNoBox();
}

TEST_F(Configuration, EraseAsksFirstAndPutsTheModuleBack) {
    StartWithModules();
    program->Choose("cboVD", " 2");
    program->Type("txtHFI", "13");
    program->Click("cmdHFI(0)");
    program->Click("chkVDperm");
    program->Click("cmdHFI(0)");
    ExpectNoBox();
    ASSERT_EQ(Traction(2, "active", kHfi), 13);
    ASSERT_EQ(Traction(2, "permanent", kHfi), 13);

    const BoxText warning{"ZelvarConfig", "warning",
                          "Warning! This will permanently erase all settings of all selected "
                          "VD-units",
                          "Cancel,OK"};
    program->Click("cmdErase");
    EXPECT_EQ(program->AwaitBox(), warning);
    program->Answer("Cancel");
    EXPECT_EQ(program->AwaitBox(), PlainBox("Operation Cancelled"));
    program->Answer("OK");
    EXPECT_EQ(unit->Count("command.traction-erase"), 0);
    EXPECT_EQ(Traction(2, "permanent", kHfi), 13);

    program->Click("cmdErase");
    EXPECT_EQ(program->AwaitBox(), warning);
    program->Answer("OK");
    EXPECT_EQ(program->Box(), BoxText());
    EXPECT_EQ(unit->Count("command.traction-erase"), 1);
    EXPECT_EQ(Traction(2, "active", kHfi), kFactoryHfi);
    EXPECT_EQ(Traction(2, "permanent", kHfi), kFactoryHfi);
    EXPECT_EQ(Traction(2, "permanent", kMasterSlave), 0);
}

// The traction modules of the simulated default layout but the QLRX-s, as the check goes on.
const std::vector<std::string> kCheckedModules{"VD-F 0.",   "VD-F 1.",  "VD-F 2.",  "VD60  4.",
                                               "VD60  5.",  "VD60  6.", "VD-F 16.", "VD60  19.",
                                               "VD60  36.", "VD60  51."};

/// The lines of a check's report: one module says something else than the others.
std::string CheckReport(const std::string& module, const std::string& says,
                        const std::string& others) {
    std::string report;
    for (const std::string& checked : kCheckedModules) {
        report += checked + (checked == module ? says : others) + "\n";
    }
    return report;
}

class MasterSlaveJourney : public Configuration {
  protected:
    void StartCheck() {
        StartWithModules();
        program->Choose("cboVD", "All_VDxx");
        EXPECT_TRUE(program->Shows("cmdMS(1)", "Check MS mode"));
    }

    BoxText Check() {
        program->Click("cmdMS(1)");
        return program->AwaitBox();
    }
};

TEST_F(MasterSlaveJourney, FindsTheMasterSetOnTheConsoleAndAsksForTheClocks) {
    StartCheck();
    unit->Do("ms 0 2");
    const BoxText none = Check();
    EXPECT_EQ(none,
              (BoxText{"ZelvarConfig", "critical",
                       CheckReport("", "", " is slave") + "\nYour system has no master!", "OK"}));
    program->Answer("OK");

    unit->Do("ms 19 1");
    const std::string modes = CheckReport("VD60  19.", " is master", " is slave");
    const BoxText question{"ZelvarConfig", "none",
                           modes +
                               "\nYour master/slave settings are OK\n\n"
                               "Do you want to verify Clock quality?",
                           "No,Yes"};
    EXPECT_EQ(Check(), question);
    program->Answer("No");
    EXPECT_EQ(program->Box(), BoxText()) << "no report without a yes";

    unit->Do("clock 51 4");
    EXPECT_EQ(Check(), question);
    program->Answer("Yes");
    EXPECT_EQ(program->AwaitBox(),
              PlainBox(CheckReport("VD60  51.", " Degraded Clock", " Clock OK")));
    program->Answer("OK");

    unit->Do("ms 16 1");
    const BoxText several = Check();
    EXPECT_EQ(several.icon, "critical");
    EXPECT_NE(several.text.find("VD-F 16. is master\nVD60  19. is master\n"), std::string::npos)
        << several.text;
    EXPECT_TRUE(several.text.ends_with("\n\nYour system has multiple masters!")) << several.text;
    program->Answer("OK");
    EXPECT_TRUE(Polls());
}

class Js70Journey : public Configuration {
  protected:
    std::string Report() {
        program->Click("cmdGetJSConfig");
        EXPECT_TRUE(program->Says({"visible", "textJSReport"}, "yes"));
        return program->TextOf("textJSReport");
    }

    /// How often a line stands in a report.
    static int Lines(const std::string& report, const std::string& wanted) {
        std::istringstream lines(report);
        int found = 0;
        for (std::string line; std::getline(lines, line);) {
            found += line == wanted ? 1 : 0;
        }
        return found;
    }
};

TEST_F(Js70Journey, TimesSetPermanentlyAreReportedAfterAReboot) {
    StartWithModules();
    program->ShowTabOf("cboJS");
    program->Choose("cboJS", " 9");
    program->Click("chkJSperm");
    program->Type("txtJStime", "42");
    program->Click("cmdTIME");
    program->Type("txtJStime", "30");
    program->Type("txtJSdevice", "5");
    program->Click("cmdDeviceTime");
    program->Click("optJSpower(2)");
    program->Click("cmdDevicePower");
    ExpectNoBox();
    EXPECT_EQ(unit->Value("points.9.permanent"), "default:42,5:30/2");
    EXPECT_EQ(unit->Value("points.9.active"), "default:15");

    const std::string changed = "Default Timing =  42   700 ms";
    const std::string factory = "Default Timing =  15   250 ms";
    const std::string device = "     5      30   500 ms          High";
    const std::string before = Report();
    EXPECT_TRUE(before.starts_with("JS70#9\n\n Permanent settings:\n" + changed + "\n")) << before;
    EXPECT_EQ(Lines(before, factory), 1) << before;
    EXPECT_EQ(Lines(before, device), 1) << before;

    program->Click("cmdHideJSConfig");
    EXPECT_FALSE(program->IsVisible("textJSReport"));
    unit->Do("reboot");
    const std::string after = Report();
    EXPECT_EQ(Lines(after, changed), 2) << after;
    EXPECT_EQ(Lines(after, factory), 0) << after;
    EXPECT_EQ(Lines(after, device), 2) << after;
    EXPECT_EQ(Lines(after, "    63      42   700 ms Default  Normal"), 2) << after;
    ExpectNoBox();
}

TEST_F(Js70Journey, EraseTakesTheTimesBack) {
    StartWithModules();
    program->ShowTabOf("cboJS");
    program->Choose("cboJS", "All");
    program->Type("txtJStime", "77");
    program->Click("cmdTIME");
    ExpectNoBox();
    for (const char* module : {"0", "1", "3", "9", "15"}) {
        EXPECT_EQ(unit->Value(std::string("points.") + module + ".active"), "default:77") << module;
    }
    program->Click("cmdJSerase");
    EXPECT_EQ(program->AwaitBox().text,
              "Warning! This will permanently erase all settings of all selected JS70-units");
    program->Answer("OK");
    EXPECT_EQ(program->Box(), BoxText());
    EXPECT_EQ(unit->Value("points.15.active"), "default:15");
}

class CentralUnitJourney : public Configuration {
  protected:
    void StartAtUnit() {
        StartWithModules();
        program->ShowTabOf("chkKBperm");
    }

    /// The numbers of the ticked configuration switches.
    std::string Ticked() {
        std::string ticked;
        for (int i = 0; i < 8; ++i) {
            if (program->IsTicked(Switch(i))) {
                ticked += std::to_string(i);
            }
        }
        return ticked;
    }

    static std::string Switch(int index) { return "chkKBEconfig(" + std::to_string(index) + ")"; }
};

TEST_F(CentralUnitJourney, SwitchesSetPermanentlyAreReadBackAfterAReboot) {
    StartAtUnit();
    for (const int index : {0, 5, 6}) {
        program->Click(Switch(index));
    }
    program->Click("chkKBperm");
    program->Click("cmdConfig(0)");
    ExpectNoBox();
    EXPECT_EQ(unit->Value("configuration.permanent"), "97");
    EXPECT_EQ(unit->Value("configuration.active"), "0");

    program->Click("chkKBperm");
    program->Click("cmdConfig(1)");
    EXPECT_TRUE(program->Says({"checked", Switch(0)}, "no"));
    EXPECT_EQ(Ticked(), "") << "the active ones are still the factory's";

    unit->Do("reboot");
    EXPECT_EQ(unit->Value("configuration.active"), "97");
    program->Click("cmdConfig(1)");
    EXPECT_TRUE(program->Says({"checked", Switch(6)}, "yes"));
    EXPECT_EQ(Ticked(), "056");
    EXPECT_TRUE(IsGreen("frmConfig", "Window"));
    EXPECT_TRUE(IsGreen(Switch(3), "Window"));
    program->Click("chkKBperm");
    EXPECT_FALSE(IsGreen("frmConfig", "Window")) << "the button has lost the focus";
    ExpectNoBox();
}

TEST_F(CentralUnitJourney, OptionsAndThe64DeviceModeReachTheUnit) {
    StartAtUnit();
    program->Click("chkKBEoptions(1)");
    program->Click("chkKBEoptions(6)");
    program->Click("cmdOptions");
    program->Click("chkJSdevicemode(0)");
    program->Click("chkJSdevicemode(7)");
    program->Click("chkKBperm");
    program->Click("cmdJS70dm");
    ExpectNoBox();
    EXPECT_EQ(unit->Value("options"), "66");
    EXPECT_EQ(unit->Value("device-mode.permanent"), "9");
    EXPECT_EQ(unit->Value("device-mode.active"), "0");
    unit->Do("reboot");
    EXPECT_EQ(unit->Value("device-mode.active"), "9");
}

TEST_F(CentralUnitJourney, TransparentModeIsConfirmedByABoxAndLastsUntilTheReboot) {
    StartAtUnit();
    program->Click("cmdTM(2)");
    EXPECT_EQ(program->AwaitBox(), (BoxText{"ZelvarConfig", "warning",
                                            "Your KB-E/KB-G is put in Transparent Mode\nReboot "
                                            "your KB-E/KB-G to restart normal operation",
                                            "OK"}));
    EXPECT_EQ(unit->Value("transparent"), "1");
    EXPECT_EQ(unit->Count("command.transparent-boot-loader"), 1);
    program->Answer("OK");
    EXPECT_TRUE(DoesNotPoll());
    EXPECT_EQ(program->BoxesShown().size(), 1U);

    unit->Do("reboot");
    EXPECT_EQ(unit->Value("transparent"), "0");
    ExpectRecovery();
}

TEST_F(Configuration, WithoutAPortEachButtonShowsOneBox) {
    Start();
    std::size_t shown = 0;
    for (const char* button : {"cmdHFI(0)", "cmdSW(1)", "cmdMS(1)", "cmdOCD(0)", "cmdTIME",
                               "cmdDeviceTime", "cmdDevicePower", "cmdConfig(0)", "cmdConfig(1)",
                               "cmdOptions", "cmdJS70dm", "cmdTM(0)"}) {
        program->ShowTabOf(button);
        program->Click(button);
        EXPECT_EQ(program->AwaitBox(), SelectPortBox()) << button;
        program->Answer("OK");
        EXPECT_EQ(program->Box(), BoxText()) << button;
        EXPECT_EQ(program->BoxesShown().size(), ++shown) << button;
    }
    EXPECT_EQ(Frames(), 0);
}

TEST_F(Configuration, WithoutAStatusRequestThereIsNothingToWriteTo) {
    StartAndOpen();
    program->Click("cmdHFI(0)");
    EXPECT_EQ(program->AwaitBox().text, "Please request Status first to register modules");
    program->Answer("OK");
    EXPECT_EQ(unit->Count("command.traction-set"), 0);
}

}  // namespace

}  // namespace zelvar::e2e
