// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/kb_tab.h"

#include <QCheckBox>

#include <gtest/gtest.h>

#include <string>

#include "layout_fixture.h"

namespace zelvar::testing {
namespace {

class KBTabTest : public LayoutFixture {
  protected:
    KBTabTest() { port.ForgetSent(); }

    std::string Indexed(const char* name, int index) {
        return std::string(name) + "(" + std::to_string(index) + ")";
    }
};

TEST_F(KBTabTest, SetsTheConfigurationWithoutRegisteredModules) {
    Click("chkKBEconfig(5)");
    Click("cmdConfig(0)");
    EXPECT_EQ(port.SentValues(), (Frames{{}, {1, 6, 0, 2}, {}}));
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(KBTabTest, GetsThePermanentConfiguration) {
    Click("chkKBperm");
    Click("cmdConfig(1)");
    EXPECT_EQ(port.SentValues(), (Frames{{}, {1, 15, 0, 0}, {}}));
}

TEST_F(KBTabTest, ShowsAConfigurationReplyInGreenUntilTheButtonLosesTheFocus) {
    Click("chkKBEconfig(7)");
    port.replies = {EmptyReply(), WireFrame({1, 14, 0x25, 0x13}), EmptyReply()};
    Click("cmdConfig(1)");
    for (int i = 0; i < 8; ++i) {
        const std::string name = Indexed("chkKBEconfig", i);
        EXPECT_EQ(Find<QCheckBox>(name).isChecked(), i == 0 || i == 2 || i == 4 || i == 5) << name;
        EXPECT_TRUE(IsGreen(name)) << name;
    }
    EXPECT_TRUE(IsGreen("frmConfig"));
    Click("cmdOptions");
    EXPECT_FALSE(IsGreen("frmConfig"));
    EXPECT_FALSE(IsGreen("chkKBEconfig(0)"));
    EXPECT_FALSE(IsGreen("chkKBEconfig(7)"));
}

TEST_F(KBTabTest, TheSetButtonTurnsTheGreenBackToo) {
    port.replies = {EmptyReply(), WireFrame({1, 14, 0x25, 0x13}), EmptyReply()};
    Click("cmdConfig(0)");
    ASSERT_TRUE(IsGreen("frmConfig") && IsGreen("chkKBEconfig(3)"));
    Click("cmdOptions");
    EXPECT_FALSE(IsGreen("frmConfig"));
    EXPECT_FALSE(IsGreen("chkKBEconfig(3)"));
}

TEST_F(KBTabTest, TextOnGreenIsDarkInADarkTheme) {
    const QPalette before = QApplication::palette();
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(45, 45, 45));
    dark.setColor(QPalette::WindowText, Qt::white);
    QApplication::setPalette(dark);
    QApplication::processEvents();
    Receive({1, 14, 0x25, 0x13});
    for (const char* name : {"frmConfig", "chkKBEconfig(0)", "chkKBEconfig(7)"}) {
        EXPECT_TRUE(IsGreen(name)) << name;
        EXPECT_EQ(Find<QWidget>(name).palette().color(QPalette::WindowText), QColor(Qt::black))
            << name;
    }
    EXPECT_EQ(Find<QWidget>("chkKBEoptions(0)").palette().color(QPalette::WindowText),
              QColor(Qt::white));
    QApplication::setPalette(before);
}

TEST_F(KBTabTest, WritesTheOptions) {
    Click("chkKBEoptions(1)");
    Click("chkKBEoptions(5)");
    Click("chkKBperm");
    Click("cmdOptions");
    EXPECT_EQ(Commands(), (Frames{{1, 5, 34}})) << "there are no permanent options";
}

TEST_F(KBTabTest, OptionSevenOverflows) {
    Click("chkKBEoptions(7)");
    Click("cmdOptions");
    EXPECT_EQ(messageBox.shown,
              (std::vector<ShownBox>{{"Overflow", BoxIcon::Critical, BoxButtons::Ok}}));
}

TEST_F(KBTabTest, SetsThe64DeviceModeWithTheUnitsOwnPermanentBox) {
    Click("chkJSdevicemode(1)");
    Click("chkJSdevicemode(6)");
    Click("cmdJS70dm");
    Click("chkKBperm");
    Click("cmdJS70dm");
    EXPECT_EQ(Commands(), (Frames{{1, 6, 22, 0}, {1, 7, 22, 0}}));
}

TEST_F(KBTabTest, WithThePortClosedNothingIsSent) {
    Click("cmdRefresh");
    for (const char* button : {"cmdConfig(0)", "cmdConfig(1)", "cmdOptions", "cmdJS70dm",
                               "cmdTM(0)", "cmdTM(1)", "cmdTM(2)"}) {
        messageBox.shown.clear();
        Click(button);
        EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")}) << button;
    }
    EXPECT_TRUE(port.sent.empty());
}

class TransparentModeButton : public KBTabTest, public ::testing::WithParamInterface<int> {};

TEST_P(TransparentModeButton, IsConfirmedWhenTheUnitStopsAnswering) {
    port.replies = {EmptyReply(), Bytes{}};
    const double before = clock.now;
    Click(Indexed("cmdTM", GetParam()).c_str());
    EXPECT_EQ(port.SentValues(), (Frames{{1, 5, (GetParam() + 1) * 16}, {}}));
    EXPECT_EQ(messageBox.shown,
              std::vector{Exclamation("Your KB-E/KB-G is put in Transparent Mode\r\n"
                                      "Reboot your KB-E/KB-G to restart normal operation")});
    EXPECT_GE(clock.now - before, kReplyLimit);
    EXPECT_FALSE(timer.enabled);
}

INSTANTIATE_TEST_SUITE_P(OfEveryKind, TransparentModeButton, ::testing::Range(0, 3));

TEST_F(KBTabTest, AUnitThatStillAnswersIsNotTalkedAbout) {
    Click("cmdTM(0)");
    EXPECT_TRUE(messageBox.shown.empty());
    EXPECT_TRUE(timer.enabled);
}

TEST_F(KBTabTest, WithoutAReplyToTheSwitchThereIsNoConfirmation) {
    port.replies = {Bytes{}};
    Click("cmdTM(2)");
    EXPECT_EQ(port.SentValues(), (Frames{{1, 5, 48}}));
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

struct UnitCase {
    const char* name;
    int type;
    const char* caption;
    bool frame;
    bool full;
};

class KBTabView : public KBTabTest, public ::testing::WithParamInterface<UnitCase> {};

TEST_P(KBTabView, ShowsWhatTheUnitSupports) {
    EXPECT_FALSE(IsShown("lblKBtype"));
    unitType = GetParam().type;
    RequestStatus();
    EXPECT_TRUE(IsShown("lblKBtype"));
    EXPECT_EQ(TextOf("lblKBtype"), GetParam().caption);
    EXPECT_EQ(IsShown("frmConfig"), GetParam().frame);
    for (const int i : {0, 1, 2, 3, 5, 6}) {
        EXPECT_EQ(IsShown(Indexed("chkKBEconfig", i)), GetParam().full) << i;
    }
    EXPECT_TRUE(IsShown("chkKBEconfig(4)"));
    EXPECT_TRUE(IsShown("chkKBEconfig(7)"));
    EXPECT_EQ(IsShown("cmdConfig(1)"), GetParam().full);
    EXPECT_EQ(IsShown("cmdTM(1)"), GetParam().full);
    for (const char* name : {"cmdTM(0)", "cmdTM(2)", "frm64DM", "chkKBperm", "cmdOptions"}) {
        EXPECT_TRUE(IsShown(name)) << name;
    }
}

INSTANTIATE_TEST_SUITE_P(OfUnits, KBTabView,
                         ::testing::Values(UnitCase{"KBF", kKBF, "KB-F", false, false},
                                           UnitCase{"KBG", kKBG, "KB-G", true, true},
                                           UnitCase{"Qlrx", kQlrxUnit, "QLRX", true, false},
                                           UnitCase{"Unknown", 9, "?", true, true}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(KBTabTest, ShowsEverythingBeforeTheFirstStatusRequest) {
    EXPECT_FALSE(IsShown("lblKBtype"));
    for (int i = 0; i < 8; ++i) {
        EXPECT_TRUE(IsShown(Indexed("chkKBEconfig", i))) << i;
    }
    for (const char* name : {"frmConfig", "cmdConfig(0)", "cmdConfig(1)", "cmdTM(0)", "cmdTM(1)",
                             "cmdTM(2)", "frm64DM"}) {
        EXPECT_TRUE(IsShown(name)) << name;
    }
}

TEST_F(KBTabTest, TabGoesThroughTheControlsAsTheyStand) {
    std::vector<std::string> expected{"chkKBperm"};
    const auto add = [&](const char* name, std::initializer_list<int> indices) {
        for (const int i : indices) {
            expected.push_back(Indexed(name, i));
        }
    };
    add("chkJSdevicemode", {0, 1, 2, 3, 4, 5, 6, 7});
    expected.emplace_back("cmdJS70dm");
    add("chkKBEoptions", {0, 1, 2, 3, 4, 5, 6, 7});
    expected.emplace_back("cmdOptions");
    add("cmdTM", {0, 2, 1});
    add("chkKBEconfig", {0, 1, 2, 3, 4, 5, 6, 7});
    add("cmdConfig", {0, 1});

    QWidget* control = &Find<QWidget>("chkKBperm");
    ShowTabOf(*control);
    control->setFocus();
    std::vector<std::string> reached;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        reached.push_back(QApplication::focusWidget()->objectName().toStdString());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(reached, expected);
}

TEST_F(KBTabTest, The64DeviceModeStandsNextToItsPermanentBox) {
    ShowTabOf(Find<QWidget>("chkKBperm"));
    const auto top = [this](const char* name) {
        return Find<QWidget>(name).mapTo(window.get(), QPoint()).y();
    };
    EXPECT_LT(top("chkKBperm"), top("frm64DM"));
    EXPECT_LT(top("frm64DM"), top("cmdOptions"));
    EXPECT_LT(top("cmdJS70dm"), top("chkKBEoptions(0)"));
}

TEST_F(KBTabTest, TheTransparentModeButtonThatMayBeHiddenStandsBelowTheOthers) {
    ShowTabOf(Find<QWidget>("cmdTM(0)"));
    const auto place = [this](const char* name) { return Find<QWidget>(name).geometry(); };
    EXPECT_LT(place("cmdTM(0)").bottom(), place("cmdTM(2)").top());
    EXPECT_LT(place("cmdTM(2)").bottom(), place("cmdTM(1)").top());
    EXPECT_EQ(place("cmdTM(0)").left(), place("cmdTM(1)").left());
}

TEST_F(KBTabTest, EveryControlHasItsCaptionAndTooltip) {
    struct Control {
        const char* name;
        const char* caption;
        const char* tooltip;
    };
    const Control controls[] = {
        {"chkKBEconfig(0)", "Channel 1 speed 38k4", "Set channel 1 to 38k4 (standard = 19k2)"},
        {"chkKBEconfig(1)", "Channel 0 speed 38k4", "Set channel 0 to 38k4 (standard = 19k2)"},
        {"chkKBEconfig(2)", "Channel 0 active (disables serial host comm on KB-E!)",
         "Use Channel 0 Downstream"},
        {"chkKBEconfig(3)", "GW70 Native Addressing", "Set GW70 Native Addressing"},
        {"chkKBEconfig(4)", "GW70 Retransmission Option", "Use GW70 Reliable Transmission"},
        {"chkKBEconfig(5)", "JS70 use 64 devices per module", "Enable 64 devices per JS70"},
        {"chkKBEconfig(6)", "DCC Fixed Decoder Address (3)",
         "Fix all DCC locomotive addresses to 3"},
        {"chkKBEconfig(7)", "Not used", ""},
        {"chkKBEoptions(0)", "NU", ""},
        {"chkKBEoptions(1)", "Ret.Report", ""},
        {"chkKBEoptions(2)", "NU", ""},
        {"chkKBEoptions(3)", "NU", ""},
        {"chkKBEoptions(4)", "VD-Ch1", ""},
        {"chkKBEoptions(5)", "VD-Ch0", ""},
        {"chkKBEoptions(6)", "Debug.M", ""},
        {"chkKBEoptions(7)", "NU", ""},
        {"chkJSdevicemode(0)", "#0", ""},
        {"chkJSdevicemode(1)", "#1", ""},
        {"chkJSdevicemode(2)", "#2", ""},
        {"chkJSdevicemode(3)", "#3", ""},
        {"chkJSdevicemode(4)", "#4", ""},
        {"chkJSdevicemode(5)", "#5", ""},
        {"chkJSdevicemode(6)", "#6", ""},
        {"chkJSdevicemode(7)", "#7", ""},
        {"chkKBperm", "Permanent", ""},
        {"cmdConfig(0)", "Set KB-x Config", ""},
        {"cmdConfig(1)", "Get KB-x Config", ""},
        {"cmdOptions", "KBE-Options", ""},
        {"cmdJS70dm", "JS70 - 64 DM", ""},
        {"cmdTM(0)", "Channel 0 Transp. Mode", ""},
        {"cmdTM(1)", "Channel 1 Transp. Mode", ""},
        {"cmdTM(2)", "Bootloader Transp. Mode", ""},
    };
    for (const Control& control : controls) {
        EXPECT_EQ(TextOf(control.name), control.caption) << control.name;
        EXPECT_EQ(Find<QWidget>(control.name).toolTip(), QString::fromUtf8(control.tooltip))
            << control.name;
        EXPECT_FALSE(Find<QWidget>(control.name).accessibleName().isEmpty()) << control.name;
    }
}

}  // namespace
}  // namespace zelvar::testing
