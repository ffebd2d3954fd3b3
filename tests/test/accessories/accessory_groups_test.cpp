// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/accessories/accessory_groups.h"

#include <QGroupBox>

#include <gtest/gtest.h>

#include "test/locomotives/drive_fixture.h"

namespace zelvar::testing {
namespace {

using AccessoryGroupsTest = DriveFixture;

TEST_F(AccessoryGroupsTest, APointMovesByItsDeviceNumber) {
    OpenPort();
    SetText("txtTestJS70device", "300");
    Click("cmdTestJS70(1)");
    SetText("txtTestJS70device", "5");
    Click("cmdTestJS70(0)");
    EXPECT_EQ(TakeSent(), (Sent{{22, 44}, {16, 5}}));
}

TEST_F(AccessoryGroupsTest, APointMovesByItsModule) {
    OpenPort();
    Click("chkTestJS70selectmodule");
    SetText("txtTestJS70module", "11");
    SetText("txtTestJS70device", "3");
    Click("cmdTestJS70(1)");
    Click("cmdTestJS70(0)");
    EXPECT_EQ(TakeSent(), (Sent{{0, 83, 25, 3}, {0, 83, 17, 3}}));
}

TEST_F(AccessoryGroupsTest, TheModuleModeShowsTheModuleAndCutsTheDevice) {
    auto& module = Find<QWidget>("UpDowntestJS70module");
    auto& deviceCaption = Find<QLabel>("lblTestJS70(1)");
    ShowTabOf(module);
    SetText("txtTestJS70device", "400");
    EXPECT_EQ(TextOf("lblTestJS70(0)"), "JS70 Device");
    EXPECT_FALSE(module.isVisible());
    EXPECT_FALSE(Find<QLineEdit>("txtTestJS70module").isVisible());
    EXPECT_FALSE(deviceCaption.isVisible());

    Click("chkTestJS70selectmodule");
    EXPECT_EQ(TextOf("lblTestJS70(0)"), "JS70 Module");
    EXPECT_TRUE(module.isVisible());
    EXPECT_TRUE(Find<QLineEdit>("txtTestJS70module").isVisible());
    EXPECT_TRUE(deviceCaption.isVisible());
    EXPECT_EQ(TextOf("txtTestJS70device"), "63");
    EXPECT_EQ(Find<QWidget>("UpDownTestJS70device").property("maximum").toInt(), 63);
    SetText("txtTestJS70device", "64");
    EXPECT_EQ(TextOf("txtTestJS70device"), "63");

    Box("chkTestJS70selectmodule").setChecked(false);
    EXPECT_EQ(TextOf("lblTestJS70(0)"), "JS70 Device");
    EXPECT_FALSE(module.isVisible());
    EXPECT_FALSE(deviceCaption.isVisible());
    SetText("txtTestJS70device", "512");
    EXPECT_EQ(TextOf("txtTestJS70device"), "511");
}

TEST_F(AccessoryGroupsTest, AnotherPointModeMovesNoOtherGroup) {
    auto& box = Box("chkTestJS70selectmodule");
    ShowTabOf(box);
    const auto groups = window->findChildren<QGroupBox*>();
    std::vector<QRect> before;
    for (const QGroupBox* group : groups) {
        before.push_back(group->geometry());
    }
    ASSERT_GE(before.size(), 5U);
    Click("chkTestJS70selectmodule");
    QTest::qWait(0);
    for (qsizetype i = 0; i < groups.size(); ++i) {
        EXPECT_EQ(groups[i]->geometry(), before[static_cast<std::size_t>(i)])
            << groups[i]->title().toStdString();
    }
}

TEST_F(AccessoryGroupsTest, ASignalTakesItsAspect) {
    OpenPort();
    SetText("txtTestYR70module", "2");
    SetText("txtTestYR70pin", "10");
    SetText("txtTestYR70aspect", "3");
    Click("cmdTestYR70");
    EXPECT_EQ(TakeSent(), (Sent{{0, 98, 68, 0, 1, 10, 3}}));
}

TEST_F(AccessoryGroupsTest, AnOutputTakesItsInstruction) {
    OpenPort();
    SetText("txtTestGW70output", "300");
    SetText("txtTestGW70instruction", "5");
    SetText("txtTestGW70parameter", "100");
    Click("cmdTestGW70");
    EXPECT_EQ(TakeSent(), (Sent{{26, 44, 5, 100}}));
}

TEST_F(AccessoryGroupsTest, FractionsAreRoundedAndTextThatIsNoNumberIs0) {
    OpenPort();
    SetText("txtTestGW70output", "2.5");
    SetText("txtTestGW70instruction", "3.5");
    SetText("txtTestGW70parameter", "loud");
    Click("cmdTestGW70");
    SetText("txtTestGW70output", "");
    SetText("txtTestGW70parameter", " 7 up");
    Click("cmdTestGW70");
    EXPECT_EQ(TakeSent(), (Sent{{24, 2, 4, 0}, {24, 0, 4, 7}}));
}

}  // namespace
}  // namespace zelvar::testing
