// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour.h"

namespace zelvar::tour {

namespace {

// What the feedback monitor shows by its colours.
constexpr char kActive[] = "#ff8000";
constexpr char kInactive[] = "#ffffff";

// Where the club's trains are: the railcar, analog, begins at platform 1; the goods train, DCC, at
// platform 2; the tram, MCC, has a circle of its own.

/// Keys of one slider, each a step up.
void Press(Tour& tour, const std::string& slider, const std::string& keys) {
    tour.Program().Key(slider, keys);
    tour.ExpectNoBox();
}

/// The railcar leaves its platform for the next block, which is linked, and comes to rest where the
/// one after that has no speed.
void DriveAnalog(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ShowTabOf("AnalogSpeed");
    program.Type("txtTestLink(0)", "0");
    program.Type("txtTestLink(1)", "2");
    program.Click("CommandTestLink(0)");
    program.Type("txtTestBlock", "0");
    program.Type("txtTestAcceleration", "20");
    program.Click("CheckAnalogLight");
    tour.Unit().Do(kFast);
    Press(tour, "AnalogSpeed", "PgUp, PgUp, PgUp, PgUp");
    tour.AwaitText("lblTestAnalogSpeed", ">>20");
    tour.RunUntil("the railcar is in the north east", [&tour] {
        return tour.IsOccupied("north-east") && tour.IsOccupied("east") &&
               !tour.IsOccupied("platform-1");
    });
    tour.Picture({kMainWindow});
}

/// The goods train backs out of its platform, over a point that is thrown for it.
void DriveDcc(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ShowTabOf("DCCSpeed");
    for (const char* point : {"0", "1"}) {
        program.Type("txtTestJS70device", point);
        program.Click("cmdTestJS70(1)");
    }
    program.Type("txtTestBlock", "1");
    program.Type("Text_Decoder", "3");
    program.Click("Check_Pattern(0)");
    program.Click("Check_Pattern(2)");
    program.Click("Command1(0)");
    program.Click("CheckDCCDirection");
    Press(tour, "DCCSpeed", "PgUp, PgUp");
    tour.RunUntil("the goods train backs into the west",
                  [&tour] { return tour.IsOccupied("west") && tour.IsOccupied("platform-2"); });
    tour.Picture({kMainWindow});
    Press(tour, "DCCSpeed", "Home");
}

void DriveMcc(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ShowTabOf("MCCspeed");
    program.Type("txtTestMCCdecoder", "1");
    program.Click("chkTestMCCfunction(0)");
    program.Click("cmdTestMCCfunction");
    Press(tour, "MCCspeed", "PgUp");
    tour.RunUntil("the tram is in the park", [&tour] {
        return tour.IsOccupied("tram-park") && !tour.IsOccupied("tram-town");
    });
    tour.Picture({kMainWindow});
}

/// The state of all inputs, and one that changes before one's eyes.
void Feedback(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.Click("CommandTestFBM");
    tour.AwaitWindow(kFeedbackMonitor);
    program.Click("cmdFBMrefresh");
    tour.AwaitColour("lblFBM(127)", "Window", kInactive);
    tour.AwaitColour("lblFBM(17)", "Window", kActive);
    tour.RunUntil("the tram is in the town", [&tour] {
        return tour.IsOccupied("tram-town") && !tour.IsOccupied("tram-park");
    });
    tour.AwaitColour("lblFBM(16)", "Window", kActive);
    tour.AwaitColour("lblFBM(17)", "Window", kInactive);
    tour.ExpectNoBox();
    tour.Picture({kMainWindow, kFeedbackMonitor});
    program.Close(kFeedbackMonitor);
    tour.Await({"window", kFeedbackMonitor}, "absent");
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
