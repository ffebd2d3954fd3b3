// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/js_tab.h"

#include <QRadioButton>

#include <gtest/gtest.h>

#include <string>

#include "layout_fixture.h"

namespace zelvar::testing {
namespace {

/// Point-motor modules 3 on channel 0 and 9 on channel 1, whose address is 81; 9 is chosen.
class JSTabTest : public LayoutFixture {
  protected:
    JSTabTest() {
        modules = {{67, kJsStatus}, {81, kJsStatus}};
        RequestStatus();
        Choose("cboJS", " 9");
    }

    /// Answers everything that a report asks for.
    void AnswerReport() {
        port.responder = [](const SentFrame& frame) {
            Values reply = frame.values;
            if (reply.size() == 3) {
                reply.push_back(30);
            } else if (reply.size() == 4) {
                reply.insert(reply.end(), {reply[3] % 2 == 0 ? 0 : 60, 2});
            }
            return WireFrame(reply);
        };
    }
};

TEST_F(JSTabTest, ADefaultTimeIsClampedAndSentPermanently) {
    Type("txtJStime", "200");
    Type("txtJSdevice", "99");
    Click("chkJSperm");
    Click("cmdTIME");
    EXPECT_EQ(TextOf("txtJStime"), "127");
    EXPECT_EQ(TextOf("txtJSdevice"), "99") << "only the time is clamped";
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 81, 96, 127}, {}}));
}

TEST_F(JSTabTest, ADeviceTimeClampsBothFields) {
    Type("txtJStime", "-1");
    Type("txtJSdevice", "64");
    Click("cmdDeviceTime");
    EXPECT_EQ(TextOf("txtJStime"), "0");
    EXPECT_EQ(TextOf("txtJSdevice"), "63");
    EXPECT_EQ(Commands(), (Frames{{0, 81, 32, 63, 0}}));
}

TEST_F(JSTabTest, ADevicePowerClampsTheDeviceAlone) {
    Type("txtJStime", "200");
    Type("txtJSdevice", "70");
    Click("optJSpower(2)");
    Click("cmdDevicePower");
    Click("chkJSperm");
    Click("cmdDevicePower");
    EXPECT_EQ(TextOf("txtJStime"), "200");
    EXPECT_EQ(TextOf("txtJSdevice"), "63");
    EXPECT_EQ(Commands(), (Frames{{0, 81, 40, 63, 2}, {0, 81, 104, 63, 2}}));
}

TEST_F(JSTabTest, EveryPowerHasItsCode) {
    for (int code = 0; code < 4; ++code) {
        port.ForgetSent();
        Click(("optJSpower(" + std::to_string(code) + ")").c_str());
        Click("cmdDevicePower");
        EXPECT_EQ(Commands(), (Frames{{0, 81, 40, 0, code}}));
    }
}

const ShownBox kJsWarning{
    "Warning! This will permanently erase all settings of all selected JS70-units",
    BoxIcon::Exclamation, BoxButtons::OkCancel};

TEST_F(JSTabTest, EraseOfAllReachesSixteenPositions) {
    Choose("cboJS", "All");
    messageBox.answers = {BoxAnswer::Ok};
    Click("chkJSperm");
    Click("cmdJSerase");
    EXPECT_EQ(messageBox.shown, std::vector{kJsWarning});
    const Frames commands = Commands();
    ASSERT_EQ(commands.size(), 16U);
    EXPECT_EQ(commands.front(), (Values{0, 64, 64}));
    EXPECT_EQ(commands.back(), (Values{0, 87, 64}));
}

TEST_F(JSTabTest, ACancelledEraseSendsNothing) {
    messageBox.answers = {BoxAnswer::Cancel};
    Click("cmdJSerase");
    EXPECT_EQ(messageBox.shown,
              (std::vector<ShownBox>{kJsWarning,
                                     {"Operation Cancelled", BoxIcon::Plain, BoxButtons::Ok}}));
    EXPECT_TRUE(port.sent.empty());
}

TEST_F(JSTabTest, WithThePortClosedNothingIsSent) {
    Click("cmdRefresh");
    for (const char* button : {"cmdTIME", "cmdDeviceTime", "cmdDevicePower", "cmdGetJSConfig"}) {
        messageBox.shown.clear();
        Click(button);
        EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")}) << button;
    }
    EXPECT_TRUE(port.sent.empty());
}

TEST_F(JSTabTest, EraseAsksBeforeItLooksAtThePort) {
    Click("cmdRefresh");
    messageBox.answers = {BoxAnswer::Ok};
    Click("cmdJSerase");
    EXPECT_EQ(messageBox.shown, (std::vector{kJsWarning, Exclamation("Please select Comm-Port")}));
}

TEST_F(JSTabTest, AReportAsksForBothMemoriesWhateverThePermanentBoxSays) {
    AnswerReport();
    Click("chkJSperm");
    Click("cmdGetJSConfig");
    ASSERT_EQ(port.sent.size(), 130U);
    EXPECT_EQ(port.sent[0].values, (Values{0, 81, 98}));
    EXPECT_EQ(port.sent[65].values, (Values{0, 81, 34}));
}

TEST_F(JSTabTest, AReportIsShownAndHiddenAgain) {
    AnswerReport();
    Click("cmdGetJSConfig");
    EXPECT_EQ(port.sent.size(), 130U);
    EXPECT_TRUE(IsShown("textJSReport"));
    EXPECT_TRUE(IsShown("cmdHideJSConfig"));
    const QString text = Find<QPlainTextEdit>("textJSReport").toPlainText();
    EXPECT_TRUE(text.startsWith(QStringLiteral("JS70#9\n\n Permanent settings:\n")));
    EXPECT_EQ(text.count(QStringLiteral(" Default  High")), 64);
    EXPECT_EQ(text.count(QStringLiteral("1000 ms")), 64);
    Click("cmdHideJSConfig");
    EXPECT_FALSE(IsShown("textJSReport"));
    EXPECT_FALSE(IsShown("cmdHideJSConfig"));
    EXPECT_TRUE(IsShown("cmdGetJSConfig"));
}

TEST_F(JSTabTest, AReportCanBeSelectedButNotChanged) {
    auto& report = Find<QPlainTextEdit>("textJSReport");
    EXPECT_TRUE(report.isReadOnly());
    EXPECT_TRUE(report.textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
    AnswerReport();
    Click("cmdGetJSConfig");
    EXPECT_EQ(report.font().family(), QStringLiteral("Lucida Console"));
}

TEST_F(JSTabTest, AReportThatFailsIsNotShownNorAnOlderOne) {
    AnswerReport();
    Click("cmdGetJSConfig");
    port.replies = {Bytes{}};
    Click("cmdGetJSConfig");
    EXPECT_FALSE(IsShown("textJSReport"));
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

TEST_F(JSTabTest, AReportIsOfferedForOneModuleAndGoneWithAnotherChoice) {
    EXPECT_TRUE(IsShown("cmdGetJSConfig"));
    AnswerReport();
    Click("cmdGetJSConfig");
    Choose("cboJS", "All");
    EXPECT_FALSE(IsShown("cmdGetJSConfig"));
    EXPECT_FALSE(IsShown("cmdHideJSConfig"));
    EXPECT_FALSE(IsShown("textJSReport"));
}

class JSTabBeforeStatus : public LayoutFixture {};

TEST_F(JSTabBeforeStatus, ACommandAsksForAStatusRequest) {
    port.ForgetSent();
    Click("cmdTIME");
    EXPECT_EQ(messageBox.shown,
              std::vector{Exclamation("Please request Status first to register modules")});
    EXPECT_EQ(port.SentValues(), (Frames{{}, {}}));
}

TEST_F(JSTabBeforeStatus, EraseAsksBeforeItLooksForModules) {
    messageBox.answers = {BoxAnswer::Ok};
    Click("cmdJSerase");
    EXPECT_EQ(
        messageBox.shown,
        (std::vector{kJsWarning, Exclamation("Please request Status first to register modules")}));
}

TEST_F(JSTabBeforeStatus, NoReportIsOffered) {
    for (const char* name : {"cmdGetJSConfig", "cmdHideJSConfig", "textJSReport"}) {
        EXPECT_FALSE(IsShown(name)) << name;
    }
}

TEST_F(JSTabBeforeStatus, EveryControlHasItsCaption) {
    const std::pair<const char*, const char*> captions[] = {
        {"lblJS", "Module"},
        {"chkJSperm", "Permanent"},
        {"lblJSdevice", "Device"},
        {"lblJStime", "Time (1/60s)"},
        {"optJSpower(0)", "Normal"},
        {"optJSpower(1)", "Low"},
        {"optJSpower(2)", "High"},
        {"optJSpower(3)", "Unlimited"},
        {"cmdTIME", "Set Default Time"},
        {"cmdDeviceTime", "Set Device Time"},
        {"cmdDevicePower", "Set Device Pwr"},
        {"cmdJSerase", "Erase All"},
        {"cmdGetJSConfig", "Get Configuration"},
        {"cmdHideJSConfig", "Hide Result"},
        {"txtJSdevice", "0"},
        {"txtJStime", "0"},
    };
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(TextOf(name), caption) << name;
        EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
    }
}

}  // namespace
}  // namespace zelvar::testing
