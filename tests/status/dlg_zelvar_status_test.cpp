// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/dlg_zelvar_status.h"

#include <gtest/gtest.h>

#include <string>

#include "status/status_request.h"
#include "support/recording_view.h"
#include "support/status_responder.h"
#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

std::string Indexed(const char* name, int index) {
    return std::string(name) + '(' + std::to_string(index) + ')';
}

/// Pixels that a text field has for its text.
int RoomForText(const QLineEdit& field) {
    constexpr int kPadding = 2;  // on both sides, for the cursor
    QStyleOptionFrame option;
    option.initFrom(&field);
    option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
    return field.style()->subElementRect(QStyle::SE_LineEditContents, &option, &field).width() -
           2 * kPadding;
}

class ClassicView : public LinkFixture {
  protected:
    std::string Field(const std::string& name) {
        return FindBelow<QLineEdit>(view, name.c_str()).text().toStdString();
    }
    std::string Label(const std::string& name) {
        return FindBelow<QLabel>(view, name.c_str()).text().toStdString();
    }
    void Fill(const StatusResponder& layout) {
        port.responder = layout;
        const auto status = StatusRequest(link, progress, clock, registry, requestView).Run(true);
        ASSERT_TRUE(status);
        view.Show(*status);
    }

    RecordingView requestView;
    ModuleRegistry registry;
    DlgZelvarStatus view;
};

TEST_F(ClassicView, CutsNoTextOnASmallScreen) {
    for (const char* name : {"txtVDtype(0)", "txtVDstatus(15)", "txtJSstatus(7)"}) {
        auto& field = FindBelow<QLineEdit>(view, name);
        // What its own minimum leaves: that of its font alone may be narrower than a type.
        field.resize(field.minimumWidth(), field.height());
        for (const char* text : {"QLRX-s", "Error", "Unknown"}) {
            EXPECT_GE(RoomForText(field),
                      field.fontMetrics().horizontalAdvance(QString::fromLatin1(text)))
                << name << " cuts " << text;
        }
    }
}

TEST_F(ClassicView, HasItsCaptionAndNames) {
    EXPECT_EQ(view.objectName(), QStringLiteral("dlgZelvarStatus"));
    EXPECT_EQ(view.windowTitle(), QStringLiteral("ZelvarConfig - Zelvar Status"));
    const char* labels[][2] = {{"lblStatus", "System Status"},     {"lblSysVer", "System Version"},
                               {"lblProtVer", "Protocol Version"}, {"lblDIPstat", "DIP status  "},
                               {"lblJSmodule", "Module"},          {"lblJSstatus", "Status"},
                               {"lblVDmodule", "Module"},          {"lblVDtype", "Type"},
                               {"lblVDstatus", "Status"}};
    for (const auto& [name, text] : labels) {
        EXPECT_EQ(Label(name), text) << name;
    }
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Label(Indexed("lblDIP", i)), std::to_string(i + 1));
    }
    for (int j = 0; j < 8; ++j) {
        EXPECT_EQ(Label(Indexed("lblJS", j)), "JS#" + std::to_string(j));
    }
    for (int m = 0; m < 16; ++m) {
        EXPECT_EQ(Label(Indexed("lblVD", m)), "VD#" + std::to_string(m));
    }
}

TEST_F(ClassicView, EveryFieldIsUnknownAtFirstButTheDipSwitches) {
    for (const char* name : {"txtSystem", "txtSysVer", "txtProtVer"}) {
        EXPECT_EQ(Field(name), "Unknown") << name;
    }
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Field(Indexed("txtDIP", i)), "");
    }
    for (int j = 0; j < 8; ++j) {
        EXPECT_EQ(Field(Indexed("txtJSstatus", j)), "Unknown");
    }
    for (int m = 0; m < 16; ++m) {
        EXPECT_EQ(Field(Indexed("txtVDtype", m)), "Unknown");
        EXPECT_EQ(Field(Indexed("txtVDstatus", m)), "Unknown");
    }
    EXPECT_EQ(view.findChild<QWidget*>(QStringLiteral("txtJSstatus(8)")), nullptr);
    EXPECT_EQ(view.findChild<QWidget*>(QStringLiteral("txtVDtype(16)")), nullptr);
    for (const QLineEdit* field : view.findChildren<QLineEdit*>()) {
        EXPECT_TRUE(field->isReadOnly()) << field->objectName().toStdString();
    }
}

TEST_F(ClassicView, ShowsWhatTheTablesTell) {
    StatusResponder layout;
    layout.header = kHeaderOfHold | kHeaderOfFault;
    layout.protocolVersion = 3100;
    layout.unit = {2, 1020};
    layout.tables = {{0, {0b1010}},
                     {2, {0b0001, 0, 0, 0b1000}},
                     {4, {0, 0, 0, 0b1000}},
                     {3, {0, 0, 0, 0b1000}},
                     {6, {0b0010, 0}}};
    Fill(layout);
    EXPECT_EQ(Field("txtSystem"), "Fault+Hold");
    EXPECT_EQ(Field("txtSysVer"), "KB-E 1.02");
    EXPECT_EQ(Field("txtProtVer"), "3.10");
    EXPECT_EQ(Field("txtDIP(0)"), "On");
    EXPECT_EQ(Field("txtDIP(1)"), "Off");
    EXPECT_EQ(Field("txtDIP(2)"), "On");
    EXPECT_EQ(Field("txtDIP(3)"), "Off");
    EXPECT_EQ(Field("txtVDstatus(0)"), "OK");
    EXPECT_EQ(Field("txtVDtype(0)"), "VD-F");
    EXPECT_EQ(Field("txtVDstatus(1)"), "--");
    EXPECT_EQ(Field("txtVDtype(1)"), "N.A.");
    EXPECT_EQ(Field("txtVDstatus(15)"), "Fault");
    EXPECT_EQ(Field("txtVDtype(15)"), "QLRX-s");
    EXPECT_EQ(Field("txtJSstatus(0)"), "--");
    EXPECT_EQ(Field("txtJSstatus(1)"), "OK");
}

TEST_F(ClassicView, WithoutTablesEveryModuleFieldIsAQuestionMarkAndTheSwitchesAreEmpty) {
    StatusResponder layout;
    layout.tables = {{0, {0b1010}}, {6, {15, 15}}};
    Fill(layout);
    layout.tables.clear();
    Fill(layout);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(Field(Indexed("txtDIP", i)), "");
    }
    for (int j = 0; j < 8; ++j) {
        EXPECT_EQ(Field(Indexed("txtJSstatus", j)), "?");
    }
    for (int m = 0; m < 16; ++m) {
        EXPECT_EQ(Field(Indexed("txtVDtype", m)), "?");
        EXPECT_EQ(Field(Indexed("txtVDstatus", m)), "?");
    }
}

TEST_F(ClassicView, NothingIsClipped) {
    view.BringIntoView(true);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&view));
    for (const QLabel* label : view.findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()))
            << label->objectName().toStdString();
    }
    for (const char* name : {"txtVDtype(0)", "txtVDstatus(15)", "txtJSstatus(7)"}) {
        const auto& field = FindBelow<QLineEdit>(view, name);
        EXPECT_GT(field.width(), field.fontMetrics().horizontalAdvance(QStringLiteral("QLRX-s")));
    }
    const auto& dip = FindBelow<QLineEdit>(view, "txtDIP(3)");
    EXPECT_GT(dip.width(), dip.fontMetrics().horizontalAdvance(QStringLiteral("Off")));
}

}  // namespace
}  // namespace zelvar::testing
