// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour.h"

namespace zelvar::tour {

namespace {

void Overcurrent(Tour& tour) {
    tour.Unit().Do("overcurrent 4");
    tour.Unit().Do("fault on");
    tour.AwaitWindow(kAlarmLog);
    tour.AwaitText("lblBarStatus", "System Status = Fault");
    tour.Picture({kMainWindow, kAlarmLog});
}

void MessageLog(Tour& tour) {
    // A program that has not polled yet: the toggle bit starts the same way every time.
    tour.Start("default");
    tour.Connect();
    tour.Program().Ask({"doubleclick", "lblCom"});
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
