// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour.h"

namespace zelvar::tour {

namespace {

void Start(Tour& tour) {
    tour.Start(kClub);
    tour.AwaitText("lblBarDevice", "No port open");
    tour.Picture({kMainWindow});
}

void Connected(Tour& tour) {
    tour.Connect();
    tour.Program().Click("cmdReset");
    tour.AwaitText("lblBarStatus", "System Status = Stop");
    tour.ExpectNoBox();
    tour.Picture({kMainWindow});
}

void ClassicView(Tour& tour) {
    tour.Start(kStarter);
    tour.Connect();
    tour.RequestStatus(kClassicView);
    tour.AwaitText("dlgZelvarStatus/txtSystem", "OK");
    tour.AwaitText("dlgZelvarStatus/txtSysVer", "KB-F1.02");
    tour.Picture({kClassicView});
}

void Status(Tour& tour) {
    tour.Start(kClub);
    tour.Connect();
    tour.LetRun();
    tour.RequestStatus(kStatusView);
    tour.AwaitText("dlgZelvarStatus44/txtSystem", "OK");
    tour.AwaitText("dlgZelvarStatus44/txtSysVer", "KB-E 1.02");
    tour.AwaitText("dlgZelvarStatus44/txtVDstatus(2)", "Fault");
    tour.Picture({kStatusView});
    tour.Program().Close(kStatusView);
    tour.Await({"window", kStatusView}, "hidden");
}

constexpr Step kSteps[] = {
    {"01-start", &Start},
    {"02-connected", &Connected},
    {"03-classic-view", &ClassicView},
    {"04-status", &Status},
};

}  // namespace

std::span<const Step> StatusSteps() {
    return kSteps;
}

}  // namespace zelvar::tour
