// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour.h"

namespace zelvar::tour {

namespace {

/// The goods train runs into the block where the railcar still stands.
void Overcurrent(Tour& tour) {
    e2e::DrivenProgram& program = tour.Program();
    program.ShowTabOf("DCCSpeed");
    program.Click("CheckDCCDirection");
    program.Key("DCCSpeed", "PgUp, PgUp");
    tour.Unit().Do(kFast);
    tour.AwaitWindow(kAlarmLog);
    tour.AwaitText("lblBarStatus", "System Status = Fault");
    tour.AwaitText("lblTestSystemStatus", "System Status = Fault");
    tour.AwaitThat("the overcurrent of block 2 is logged", [&program] {
        return program.TextOf("txtAlarmLog").starts_with("Overcurrent block 2 detected");
    });
    tour.ExpectNoBox();
    tour.Picture({kMainWindow, kAlarmLog});
}

void MessageLog(Tour& tour) {
    // A program that has not polled yet: the toggle bit starts the same way every time.
    tour.Start(kClub);
    tour.Connect();
    tour.Program().DoubleClick("lblCom");
    tour.AwaitWindow(kMessageLog);
    tour.RequestStatus(kStatusView);
    tour.Picture({kMainWindow, kMessageLog});
}

void NoAnswer(Tour& tour) {
    tour.Unit().Do("silent on");
    tour.AwaitBox("No response from Zelvar");
    tour.Picture({kMainWindow, kBox});
    tour.Program().Answer("OK");
}

constexpr Step kSteps[] = {
    {"14-overcurrent", &Overcurrent},
    {"15-message-log", &MessageLog},
    {"16-no-answer", &NoAnswer},
};

}  // namespace

std::span<const Step> AlarmSteps() {
    return kSteps;
}

}  // namespace zelvar::tour
