// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "app/status_button_fixture.h"

namespace zelvar::testing {
namespace {

struct PressRow {
    const char* name;
    int protocolVersion;
    Qt::MouseButton button;
    Qt::KeyboardModifiers modifiers;
    bool classic;
};

class StatusPresses : public StatusButton, public ::testing::WithParamInterface<PressRow> {};

TEST_P(StatusPresses, OpenTheViewThatFits) {
    layout.protocolVersion = GetParam().protocolVersion;
    QTest::mousePress(&Find("cmdStatus"), GetParam().button, GetParam().modifiers);
    EXPECT_EQ(IsInView("dlgZelvarStatus"), GetParam().classic);
    EXPECT_EQ(IsInView("dlgZelvarStatus44"), !GetParam().classic);
}

INSTANTIATE_TEST_SUITE_P(
    Presses, StatusPresses,
    ::testing::Values(
        PressRow{"Plain", 3200, Qt::LeftButton, Qt::NoModifier, false},
        PressRow{"ShiftLeft", 3200, Qt::LeftButton, Qt::ShiftModifier, true},
        PressRow{"Right", 3200, Qt::RightButton, Qt::NoModifier, false},
        PressRow{"ShiftRight", 3200, Qt::RightButton, Qt::ShiftModifier, false},
        PressRow{"Middle", 3200, Qt::MiddleButton, Qt::NoModifier, false},
        PressRow{"CtrlShiftLeft", 3200, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier,
                 false},
        PressRow{"AltShiftLeft", 3200, Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier, false},
        PressRow{"PlainOnALastOldSystem", 3100, Qt::LeftButton, Qt::NoModifier, true},
        PressRow{"PlainOnAFirstNewSystem", 3101, Qt::LeftButton, Qt::NoModifier, false},
        PressRow{"RightOnAnOldSystem", 3100, Qt::RightButton, Qt::NoModifier, true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(StatusButton, SpaceAndEnterCountAsAPlainPress) {
    QTest::keyClick(&Find("cmdStatus"), Qt::Key_Space);
    EXPECT_TRUE(IsInView("dlgZelvarStatus44"));
    const std::size_t once = port.sent.size();
    QTest::keyClick(&Find("cmdStatus"), Qt::Key_Return);
    EXPECT_EQ(port.sent.size(), 2 * once);
}

TEST_F(StatusButton, FillsBothListsAndSelectsTheFirstModules) {
    Click("cmdStatus");
    EXPECT_EQ(Entries("cboVD"), (std::vector<std::string>{
                                    "All_VDxx=-1", "All_VD60=-4", "All_VD-F=-2", "All_QLRX=-3",
                                    " 0=0", " 5.0=5", " 19.0=19", " 19.1=51", " 20=20", " 31=31"}));
    EXPECT_EQ(Find<QComboBox>("cboVD").currentIndex(), 4);
    EXPECT_EQ(Entries("cboJS"), (std::vector<std::string>{"All=-1", " 0=0", " 9=9"}));
    EXPECT_EQ(Find<QComboBox>("cboJS").currentIndex(), 1);
    // A single point-motor module can be asked for its configuration.
    EXPECT_FALSE(Find("cmdGetJSConfig").isHidden());
    EXPECT_TRUE(Find("cmdHideJSConfig").isHidden());
    EXPECT_TRUE(Find("textJSReport").isHidden());
}

TEST_F(StatusButton, ChoosingAllPointMotorModulesHidesGetConfiguration) {
    Click("cmdStatus");
    Choose("cboJS", "All");
    EXPECT_TRUE(Find("cmdGetJSConfig").isHidden());
    Choose("cboJS", " 9");
    EXPECT_FALSE(Find("cmdGetJSConfig").isHidden());
}

TEST_F(StatusButton, WithoutModulesBothListsStayEmptyAndNothingIsSelected) {
    Click("cmdStatus");
    layout.modules.clear();
    Click("cmdStatus");
    for (const char* list : {"cboVD", "cboJS"}) {
        EXPECT_TRUE(Entries(list).empty()) << list;
        EXPECT_EQ(Find<QComboBox>(list).currentIndex(), -1) << list;
    }
}

TEST_F(StatusButton, NamesTheCentralUnitOnItsTab) {
    EXPECT_TRUE(Find("lblKBtype").isHidden());
    layout.unit = {2, 1020};
    Click("cmdStatus");
    EXPECT_EQ(TextOf("lblKBtype"), "KB-E");
    EXPECT_FALSE(Find("lblKBtype").isHidden());
    layout.unit.reset();
    Click("cmdStatus");
    EXPECT_EQ(TextOf("lblKBtype"), "?");
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtSysVer"), "?");
}

TEST_F(StatusButton, AFirstRequestWithoutReplyShowsNoView) {
    layout.silent = {{1, 2}};
    Click("cmdStatus");
    EXPECT_EQ(FindWindow("dlgZelvarStatus"), nullptr);
    EXPECT_EQ(FindWindow("dlgZelvarStatus44"), nullptr);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_TRUE(Find("lblKBtype").isHidden());
}

TEST_F(StatusButton, ASecondPressRefreshesTheOpenView) {
    Click("cmdStatus");
    QWidget* view = FindWindow("dlgZelvarStatus44");
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(0)"), "OK");
    layout.modules[32].status = kHere + kIdle;
    Click("cmdStatus");
    EXPECT_EQ(FindWindow("dlgZelvarStatus44"), view);
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(0)"), "Idle");
}

TEST_F(StatusButton, AClosedViewStaysLoadedAndComesBack) {
    Click("cmdStatus");
    QWidget* view = FindWindow("dlgZelvarStatus44");
    view->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(FindWindow("dlgZelvarStatus44"), view);
    Click("cmdStatus");
    EXPECT_TRUE(view->isVisible());
}

TEST_F(StatusButton, TheViewsDoNotBlockTheMainWindow) {
    Click("cmdStatus");
    EXPECT_FALSE(FindWindow("dlgZelvarStatus44")->isModal());
    layout.protocolVersion = 3000;
    Click("cmdStatus");
    EXPECT_FALSE(FindWindow("dlgZelvarStatus")->isModal());
}

TEST_F(StatusButton, ProgressIsShownWhileItWorksAndGoneAfterwards) {
    bool shown = true;
    std::vector<int> values;
    port.responder = [&](const SentFrame& frame) {
        shown = shown && Find("prgBar").isVisible() && Find("lblBarProgress").isVisible();
        values.push_back(Find("prgBar").property("value").toInt());
        return layout(frame);
    };
    Click("cmdStatus");
    EXPECT_TRUE(shown);
    EXPECT_FALSE(Find("prgBar").isVisible());
    EXPECT_FALSE(Find("lblBarProgress").isVisible());
    EXPECT_EQ(values.back(), 80);
}

TEST_F(StatusButton, AnOpenViewShowsEachStepWhileTheRequestGoesOn) {
    Click("cmdStatus");
    ASSERT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(0)"), "OK");
    ASSERT_EQ(Field("dlgZelvarStatus44", "txtVDtype(19)"), "VD60");
    // Module 5 falls silent, and the box about it stands open.
    layout.silent = {{1, 11, 32 + 5}};
    int boxes = 0;
    messageBox.whileShown = [&] {
        ++boxes;
        EXPECT_EQ(Field("dlgZelvarStatus44", "txtSysVer"), "KB-G 1.02");
        EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(0)"), "OK") << "it has answered again";
        EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(5)"), "--") << "nothing is known of it";
        EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDtype(19)"), "--") << "it is not asked yet";
        EXPECT_EQ(Field("dlgZelvarStatus44", "txtJSstatus(0)"), "--");
    };
    Click("cmdStatus");
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDtype(19)"), "VD60");
}

TEST_F(StatusButton, AnOpenClassicViewShowsEachStepToo) {
    const auto press = [this] {
        QTest::mousePress(&Find("cmdStatus"), Qt::LeftButton, Qt::ShiftModifier);
    };
    layout.tables = {
        {0, {15}}, {2, {1, 0, 0, 0}}, {3, {0, 0, 0, 0}}, {4, {0, 0, 0, 0}}, {6, {1, 0}}};
    press();
    ASSERT_EQ(Field("dlgZelvarStatus", "txtVDtype(0)"), "VD-F");
    layout.silent = {{1, 3, 4}};
    int boxes = 0;
    messageBox.whileShown = [&] {
        ++boxes;
        EXPECT_EQ(Field("dlgZelvarStatus", "txtDIP(0)"), "Off");
        EXPECT_EQ(Field("dlgZelvarStatus", "txtVDstatus(0)"), "OK");
        EXPECT_EQ(Field("dlgZelvarStatus", "txtVDtype(0)"), "?");
        EXPECT_EQ(Field("dlgZelvarStatus", "txtJSstatus(0)"), "?");
    };
    press();
    EXPECT_EQ(boxes, 1);
}

TEST_F(StatusButton, ALostDeviceLeavesTheListsThatWereNotReached) {
    Click("cmdStatus");
    const auto traction = Entries("cboVD");
    const auto pointMotors = Entries("cboJS");
    port.ForgetSent();
    port.responder = [this](const SentFrame& frame) {
        if (port.sent.size() == 5) {
            port.Vanish();
        }
        return layout(frame);
    };
    Click("cmdStatus");
    EXPECT_EQ(Entries("cboVD"), traction);
    EXPECT_EQ(Entries("cboJS"), pointMotors);
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(0)"), "OK") << "found before the loss";
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(5)"), "--");
    EXPECT_EQ(messageBox.shown.size(), 1U);
}

TEST_F(StatusButton, ADeviceLostInTheFirstRequestBringsNoView) {
    port.responder = [this](const SentFrame& frame) {
        if (port.sent.size() == 5) {
            port.Vanish();
        }
        return layout(frame);
    };
    Click("cmdStatus");
    EXPECT_FALSE(IsInView("dlgZelvarStatus44"));
}

}  // namespace
}  // namespace zelvar::testing
