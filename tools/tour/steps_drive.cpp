// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour.h"

namespace zelvar::tour {

namespace {

constexpr char kActive[] = "#ff8000";

void DriveAnalog(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ToFront("AnalogSpeed");
    program.Type("txtTestBlock", "1");
    program.Ask({"key", "AnalogSpeed", "PgUp"});
    program.Click("CheckAnalogLight");
    tour.ExpectNoBox();
    tour.Picture({kMainWindow});
}

void DriveDcc(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ToFront("DCCSpeed");
    program.Type("Text_Decoder", "3");
    program.Ask({"key", "DCCSpeed", "PgUp"});
    program.Click("Check_Pattern(0)");
    program.Click("Command1(0)");
    tour.ExpectNoBox();
    tour.Picture({kMainWindow});
}

void DriveMcc(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ToFront("MCCspeed");
    program.Type("txtTestMCCdecoder", "40");
    program.Ask({"key", "MCCspeed", "PgUp"});
    program.Click("chkTestMCCfunction(0)");
    program.Click("cmdTestMCCfunction");
    tour.ExpectNoBox();
    tour.Picture({kMainWindow});
}

void Feedback(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.Click("CommandTestFBM");
    tour.AwaitWindow(kFeedbackMonitor);
    tour.Unit().Do("feedback 3 1");
    tour.AwaitColour("lblFBM(3)", "Window", kActive);
    tour.Picture({kMainWindow, kFeedbackMonitor});
    program.Ask({"close", kFeedbackMonitor});
}

constexpr Step kSteps[] = {
    {"10-drive-analog", &DriveAnalog},
    {"11-drive-dcc", &DriveDcc},
    {"12-drive-mcc", &DriveMcc},
    {"13-feedback", &Feedback},
};

}  // namespace

std::span<const Step> DriveSteps() {
    return kSteps;
}

}  // namespace zelvar::tour
