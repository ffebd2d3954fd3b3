// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour.h"

namespace zelvar::tour {

namespace {

/// What the program shows as read back from the layout.
constexpr char kGreen[] = "#00ff00";

void ConfigureVD(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.Choose("cboVD", " 1");
    tour.AwaitText("lblVDtype", "VD-F");
    for (const char* get : {"cmdSW(1)", "cmdAL(1)", "cmdDCShift(1)", "cmdPWMM(1)", "cmdOCD(1)",
                            "cmdMS(1)", "cmdPC(1)"}) {
        program.Click(get);
    }
    program.Type("txtHFI", "9");
    program.Click("cmdHFI(0)");
    program.Type("txtHFI", "0");
    program.Click("cmdHFI(1)");
    tour.AwaitText("txtHFI", "9");
    tour.AwaitColour("txtHFI", "Base", kGreen);
    tour.ExpectNoBox();
    tour.Picture({kMainWindow});
}

void ConfigurePoint(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ShowTabOf("cboJS");
    program.Choose("cboJS", " 8");
    program.Click("chkJSperm");
    program.Type("txtJStime", "42");
    program.Click("cmdTIME");
    program.Type("txtJStime", "30");
    program.Type("txtJSdevice", "5");
    program.Click("cmdDeviceTime");
    program.Click("optJSpower(2)");
    program.Click("cmdDevicePower");
    tour.ExpectNoBox();
    tour.AwaitThat("the module keeps its times", [&tour] {
        return tour.Unit().Value("points.8.permanent") == "default:42,5:30/2";
    });
    tour.Picture({kMainWindow});
}

void MasterSlaveCheck(Tour& tour) {
    tour.Program().ShowTabOf("cboVD");
    tour.Program().Choose("cboVD", "All_VDxx");
    tour.AwaitText("cmdMS(1)", "Check MS mode");
    tour.Program().Click("cmdMS(1)");
    tour.AwaitBox("Your master/slave settings are OK");
    tour.Picture({kMainWindow, kBox});
    tour.Program().Answer("No");
}

void KbOptions(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ShowTabOf("chkKBperm");
    program.Click("chkKBEoptions(1)");
    program.Click("cmdOptions");
    program.Click("chkKBEconfig(0)");
    program.Click("chkKBEconfig(5)");
    program.Click("cmdConfig(0)");
    program.Click("cmdConfig(1)");
    tour.AwaitColour("frmConfig", "Window", kGreen);
    tour.Await({"checked", "chkKBEconfig(5)"}, "yes");
    tour.ExpectNoBox();
    tour.Picture({kMainWindow});
}

void Js70Report(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ShowTabOf("cboJS");
    program.Click("cmdGetJSConfig");
    tour.Await({"visible", "textJSReport"}, "yes");
    tour.AwaitThat("the report says the time that was set", [&program] {
        return program.TextOf("textJSReport").find("Default Timing =  42   700 ms") !=
               std::string::npos;
    });
    tour.ExpectNoBox();
    tour.Picture({kMainWindow});
    program.Click("cmdHideJSConfig");
    tour.Await({"visible", "textJSReport"}, "no");
}

constexpr Step kSteps[] = {
    {"05-configure-vd", &ConfigureVD},
    {"06-configure-point", &ConfigurePoint},
    {"07-master-slave-check", &MasterSlaveCheck},
    {"08-kb-options", &KbOptions},
    {"09-js70-report", &Js70Report},
};

}  // namespace

std::span<const Step> ConfigureSteps() {
    return kSteps;
}

}  // namespace zelvar::tour
