// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

constexpr Milliseconds kCancelOfferedAfter{2000};
/// A valid frame that is no answer to the first request: an acknowledgement.
constexpr char kAcknowledgeFirst[] = "stray 08 F8";

/// The unit acknowledges the first request of a status request and never answers it.
class EndlessWait : public Journey {
  protected:
    void StartToWait() {
        StartAndOpen();
        unit->Do(kAcknowledgeFirst);
        const Instant start = Now();
        program->Click("cmdStatus");
        ASSERT_TRUE(program->Says({"visible", "cmdCancel"}, "yes"));
        EXPECT_GE(Since(start), kCancelOfferedAfter);
        EXPECT_GT(unit->Count("command.poll"), 0);
    }

    void ExpectEndedWithoutAView() {
        ASSERT_TRUE(program->Says({"visible", "cmdCancel"}, "no"));
        EXPECT_NE(program->Window("dlgZelvarStatus44"), "visible");
        EXPECT_EQ(program->BoxesShown().size(), 0U);
        EXPECT_FALSE(program->IsVisible("prgBar"));
        EXPECT_EQ(program->ItemsOf("cboVD"), "");
    }
};

TEST_F(EndlessWait, CancelEndsIt) {
    StartToWait();
    program->Click("cmdCancel");
    ExpectEndedWithoutAView();
    EXPECT_TRUE(Polls());
    RequestStatus();
    EXPECT_EQ(program->TextOf("dlgZelvarStatus44/txtProtVer"), "3.11 B");
}

TEST_F(EndlessWait, NothingButCancelReacts) {
    StartToWait();
    const int resets = unit->Count("command.fault-reset");
    program->Click("Check_Stop");
    program->Click("cmdReset");
    program->DoubleClick("lblCom");
    program->Close("frmZelvarConfig");
    program->Click("cmdCancel");
    ExpectEndedWithoutAView();
    EXPECT_TRUE(program->IsTicked("Check_Stop"));
    EXPECT_EQ(unit->Count("command.fault-reset"), resets);
    EXPECT_NE(program->Window("dlgMsgLog"), "visible");
    EXPECT_EQ(program->Window("frmZelvarConfig"), "visible");
    // Nothing of it was only put off.
    EXPECT_TRUE(Polls());
    EXPECT_TRUE(program->IsTicked("Check_Stop"));
    EXPECT_EQ(unit->Count("command.fault-reset"), resets);
    program->Click("Check_Stop");
    EXPECT_FALSE(program->IsTicked("Check_Stop"));
}

TEST_F(EndlessWait, EndsWhenTheDeviceVanishes) {
    StartToWait();
    unit->Do("late 60000");
    unit->Do("hang-up");
    EXPECT_EQ(program->AwaitBox(), NoResponseBox());
    program->Answer("OK");
    EXPECT_TRUE(program->Shows("lblBarDevice", "Connection to port 1 lost"));
    EXPECT_FALSE(program->IsVisible("cmdCancel"));
    EXPECT_NE(program->Window("dlgZelvarStatus44"), "visible");
    EXPECT_TRUE(Rests());
    EXPECT_EQ(program->BoxesShown().size(), 1U);
}

}  // namespace

}  // namespace zelvar::e2e
