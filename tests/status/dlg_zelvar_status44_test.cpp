// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/dlg_zelvar_status44.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "status/status_request.h"
#include "support/recording_view.h"
#include "support/status_responder.h"
#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

std::string Indexed(const char* name, int index) {
    return std::string(name) + '(' + std::to_string(index) + ')';
}

class NewView : public ::testing::Test {
  protected:
    NewView() {
        view.BringIntoView(true);
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
    }

    template <typename Control = QLineEdit>
    Control& Find(const std::string& name) {
        return FindBelow<Control>(view, name.c_str());
    }
    QWidget& Frame(int index) { return Find<QWidget>(Indexed("frmStatus", index)); }
    std::string Field(const std::string& name) { return Find(name).text().toStdString(); }
    std::string Label(const std::string& name) { return Find<QLabel>(name).text().toStdString(); }
    void ClickBox() {
        auto& box = Find<QCheckBox>("chkShowChannel0");
        QTest::mouseClick(&box, Qt::LeftButton, Qt::NoModifier, QPoint(8, box.height() / 2));
    }

    DlgZelvarStatus44 view;
};

struct FieldRow {
    const char* name;
    int count;
};

const FieldRow kFields[] = {{"txtVDtype", 32},   {"txtVDstatus", 64}, {"txtVDversion", 64},
                            {"txtJSstatus", 16}, {"txtJSver", 16},    {"txtYRstatus", 32},
                            {"txtYRver", 32}};

TEST_F(NewView, HasItsCaptionAndNames) {
    EXPECT_EQ(view.objectName(), QStringLiteral("dlgZelvarStatus44"));
    EXPECT_EQ(view.windowTitle(), QStringLiteral("ZelvarConfig - Zelvar Status"));
    EXPECT_EQ(Label("lblSystem"), "System Status");
    EXPECT_EQ(Label("lblSysVer"), "System Version");
    EXPECT_EQ(Label("lblProtVer"), "Protocol Version");
    EXPECT_EQ(Find<QCheckBox>("chkShowChannel0").text(), QStringLiteral("Show Channel 0"));
    for (int frame = 0; frame < 6; ++frame) {
        EXPECT_EQ(Label(Indexed("lblSSchannel", frame)),
                  frame % 2 == 0 ? "Channel 0" : "Channel 1");
    }
    for (int pair = 0; pair < 2; ++pair) {
        EXPECT_EQ(Label(Indexed("lblVDprimary", pair)), "Primary");
        EXPECT_EQ(Label(Indexed("lblVDsecondary", pair)), "Secondary");
        EXPECT_EQ(Label(Indexed("lblJSstatus", pair)), "Status");
        EXPECT_EQ(Label(Indexed("lblJSversion", pair)), "Version");
        for (const char* name : {"lblVDmodule", "lblVDtype", "lblJSmodule", "lblYRmodule"}) {
            EXPECT_FALSE(Label(Indexed(name, pair)).empty());
        }
    }
}

TEST_F(NewView, EveryFieldIsUnknownAtFirstAndCannotBeWrittenIn) {
    std::vector<std::string> names{"txtSystem", "txtSysVer", "txtProtVer"};
    for (const FieldRow& row : kFields) {
        for (int i = 0; i < row.count; ++i) {
            names.push_back(Indexed(row.name, i));
        }
        EXPECT_EQ(view.findChild<QWidget*>(QString::fromStdString(Indexed(row.name, row.count))),
                  nullptr);
    }
    for (const std::string& name : names) {
        EXPECT_EQ(Field(name), "Unknown") << name;
        EXPECT_TRUE(Find(name).isReadOnly()) << name;
    }
}

struct GeometryRow {
    const char* name;
    int frame;
    const char* caption;
    QRect pixels;
};

class FrameGeometry : public NewView, public ::testing::WithParamInterface<GeometryRow> {};

TEST_P(FrameGeometry, FollowsTheDesign) {
    auto& frame = Find<QGroupBox>(Indexed("frmStatus", GetParam().frame));
    EXPECT_EQ(frame.title(), QString::fromUtf8(GetParam().caption));
    EXPECT_EQ(frame.geometry(), GetParam().pixels);
}

// Fifteen twips are a pixel.
INSTANTIATE_TEST_SUITE_P(Frames, FrameGeometry,
                         ::testing::Values(GeometryRow{"JS0", 0, "JS-Ch0", {128, 200, 105, 241}},
                                           GeometryRow{"JS1", 1, "JS-Ch1", {16, 200, 105, 241}},
                                           GeometryRow{"VD0", 2, "VD-Ch0", {504, 8, 257, 433}},
                                           GeometryRow{"VD1", 3, "VD-Ch1", {240, 8, 257, 433}},
                                           GeometryRow{"YR0", 4, "YR-Ch0", {880, 8, 113, 433}},
                                           GeometryRow{"YR1", 5, "YR-Ch1", {768, 8, 105, 433}}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(NewView, TheSystemFieldsStandOutsideTheFrames) {
    for (const char* name : {"txtSystem", "txtSysVer", "txtProtVer"}) {
        for (int frame = 0; frame < 6; ++frame) {
            EXPECT_FALSE(Frame(frame).isAncestorOf(&Find(name))) << name;
        }
    }
}

TEST_F(NewView, EveryFieldStandsInTheFrameOfItsModule) {
    for (int m = 0; m < 32; ++m) {
        QWidget& vd = Frame(m < 16 ? 2 : 3);
        EXPECT_TRUE(vd.isAncestorOf(&Find(Indexed("txtVDtype", m))));
        for (const int i : {m, m + 32}) {
            EXPECT_TRUE(vd.isAncestorOf(&Find(Indexed("txtVDstatus", i))));
            EXPECT_TRUE(vd.isAncestorOf(&Find(Indexed("txtVDversion", i))));
        }
        EXPECT_TRUE(Frame(m < 16 ? 4 : 5).isAncestorOf(&Find(Indexed("txtYRstatus", m))));
        EXPECT_TRUE(Frame(m < 16 ? 4 : 5).isAncestorOf(&Find(Indexed("txtYRver", m))));
    }
    for (int j = 0; j < 16; ++j) {
        EXPECT_TRUE(Frame(j < 8 ? 0 : 1).isAncestorOf(&Find(Indexed("txtJSstatus", j))));
        EXPECT_TRUE(Frame(j < 8 ? 0 : 1).isAncestorOf(&Find(Indexed("txtJSver", j))));
    }
}

TEST_F(NewView, ThePrimaryAndSecondaryUnitStandInOneRowWithTheirNumber) {
    for (int m = 0; m < 32; ++m) {
        const int y = Find(Indexed("txtVDtype", m)).y();
        int left = Find(Indexed("txtVDtype", m)).x();
        for (const std::string& name :
             {Indexed("txtVDstatus", m), Indexed("txtVDversion", m), Indexed("txtVDstatus", m + 32),
              Indexed("txtVDversion", m + 32)}) {
            EXPECT_EQ(Find(name).y(), y) << name;
            EXPECT_GT(Find(name).x(), left) << name;
            left = Find(name).x();
        }
        EXPECT_EQ(Label(Indexed("lblVD", m)), std::to_string(m % 16));
        EXPECT_EQ(Label(Indexed("lblYR", m)), std::to_string(m % 16));
    }
    for (int j = 0; j < 16; ++j) {
        EXPECT_EQ(Label(Indexed("lblJS", j)), std::to_string(j % 8));
    }
}

TEST_F(NewView, NothingIsClipped) {
    // The widest text of each field.
    for (const FieldRow& row : kFields) {
        const std::string name = row.name;
        const char* widest = name == "txtVDtype"                          ? "QLRX-s"
                             : name.find("ver") != std::string::npos      ? "3.11 B"
                             : name.find("VDstatus") != std::string::npos ? "Fault"
                                                                          : "Hold";
        for (int i = 0; i < row.count; ++i) {
            QLineEdit& field = Find(Indexed(row.name, i));
            EXPECT_TRUE(field.parentWidget()->rect().contains(field.geometry()))
                << Indexed(row.name, i);
            EXPECT_GE(field.width(),
                      field.fontMetrics().horizontalAdvance(QString::fromUtf8(widest)))
                << Indexed(row.name, i) << ' ' << widest;
            EXPECT_GE(field.height(), field.fontMetrics().ascent()) << Indexed(row.name, i);
        }
    }
    for (const QLabel* label : view.findChildren<QLabel*>()) {
        EXPECT_GE(label->width(), label->fontMetrics().horizontalAdvance(label->text()))
            << label->objectName().toStdString();
        EXPECT_TRUE(label->parentWidget()->rect().contains(label->geometry()))
            << label->objectName().toStdString();
    }
    auto& box = Find<QCheckBox>("chkShowChannel0");
    EXPECT_GE(box.width(), box.sizeHint().width());
    EXPECT_GE(Find("txtSysVer").width(),
              Find("txtSysVer").fontMetrics().horizontalAdvance(QStringLiteral("QLRX 1.02 A")));
}

TEST_F(NewView, StartsWithTheBoxUntickedAndAllFramesShown) {
    EXPECT_FALSE(Find<QCheckBox>("chkShowChannel0").isChecked());
    for (int frame = 0; frame < 6; ++frame) {
        EXPECT_TRUE(Frame(frame).isVisible()) << frame;
    }
    // 15030 twips.
    EXPECT_EQ(view.width(), 1002);
}

TEST_F(NewView, TheChannel0BoxShowsAndHidesChannel0) {
    const QRect vd1 = Frame(3).geometry();
    const QRect js1 = Frame(1).geometry();
    ClickBox();
    for (int frame = 0; frame < 6; ++frame) {
        EXPECT_TRUE(Frame(frame).isVisible()) << frame;
    }
    EXPECT_EQ(view.width(), 1002);
    EXPECT_EQ(Frame(5).geometry(), QRect(768, 8, 105, 433));

    ClickBox();
    for (int frame = 0; frame < 6; ++frame) {
        EXPECT_EQ(Frame(frame).isVisible(), frame % 2 == 1) << frame;
    }
    // 9400 and 7560 twips.
    EXPECT_EQ(view.width(), 627);
    EXPECT_EQ(Frame(5).geometry(), QRect(504, 8, 105, 433));
    EXPECT_EQ(Frame(3).geometry(), vd1);
    EXPECT_EQ(Frame(1).geometry(), js1);

    ClickBox();
    EXPECT_EQ(view.width(), 1002);
    EXPECT_EQ(Frame(5).geometry(), QRect(768, 8, 105, 433));
    EXPECT_TRUE(Frame(4).isVisible());
}

TEST_F(NewView, ARequestDoesNotTouchTheChannel0Layout) {
    ClickBox();
    ClickBox();
    SystemStatus status;
    status.protocolVersion = 3112;
    view.Show(status);
    EXPECT_FALSE(Frame(2).isVisible());
    EXPECT_EQ(view.width(), 627);
}

class FilledNewView : public LinkFixture {
  protected:
    void Fill(const StatusResponder& layout) {
        port.responder = layout;
        const auto status = StatusRequest(link, progress, clock, registry, requestView).Run(false);
        ASSERT_TRUE(status);
        view.Show(*status);
    }
    std::string Field(const std::string& name) {
        return FindBelow<QLineEdit>(view, name.c_str()).text().toStdString();
    }

    RecordingView requestView;
    ModuleRegistry registry;
    DlgZelvarStatus44 view;
};

TEST_F(FilledNewView, ShowsAMixedLayout) {
    StatusResponder layout = MixedLayout();
    layout.header = kHeaderOfFault;
    layout.unit = {1, 1020};
    Fill(layout);
    EXPECT_EQ(Field("txtSystem"), "Fault");
    EXPECT_EQ(Field("txtSysVer"), "KB-F1.02");
    EXPECT_EQ(Field("txtProtVer"), "3.11 B");
    const char* expected[][2] = {
        {"txtVDtype(0)", "VD-F"},     {"txtVDstatus(0)", "OK"},     {"txtVDversion(0)", "1.02 A"},
        {"txtVDtype(1)", "--"},       {"txtVDstatus(1)", "--"},     {"txtVDversion(1)", "--"},
        {"txtVDtype(5)", "VD60"},     {"txtVDstatus(5)", "Idle"},   {"txtVDversion(5)", "2.00"},
        {"txtVDstatus(37)", "--"},    {"txtVDversion(37)", "--"},   {"txtVDtype(19)", "VD60"},
        {"txtVDstatus(19)", "OK"},    {"txtVDversion(19)", "1.02"}, {"txtVDstatus(51)", "Fault"},
        {"txtVDversion(51)", "1.03"}, {"txtVDtype(20)", "QLRX-s"},  {"txtVDstatus(20)", "Fault"},
        {"txtVDversion(20)", "?"},    {"txtVDtype(31)", "?"},       {"txtVDstatus(31)", "OK"},
        {"txtJSstatus(0)", "OK"},     {"txtJSver(0)", "1.10"},      {"txtJSstatus(9)", "Hold"},
        {"txtJSver(9)", "--"},        {"txtYRstatus(2)", "OK"},     {"txtYRver(2)", "?"},
        {"txtYRstatus(17)", "Idle"},  {"txtYRver(17)", "1.01"},     {"txtYRstatus(18)", "--"},
    };
    for (const auto& [name, text] : expected) {
        EXPECT_EQ(Field(name), text) << name;
    }
}

TEST_F(FilledNewView, WithoutModulesEveryModuleFieldIsTwoDashes) {
    StatusResponder layout;
    layout.unit.reset();
    Fill(layout);
    EXPECT_EQ(Field("txtSysVer"), "?");
    for (const FieldRow& row : kFields) {
        for (int i = 0; i < row.count; ++i) {
            EXPECT_EQ(Field(Indexed(row.name, i)), "--") << Indexed(row.name, i);
        }
    }
}

TEST_F(FilledNewView, ALaterRequestOverwritesIt) {
    Fill(MixedLayout());
    Fill(StatusResponder());
    EXPECT_EQ(Field("txtVDtype(19)"), "--");
    EXPECT_EQ(Field("txtVDversion(51)"), "--");
    EXPECT_EQ(Field("txtJSstatus(9)"), "--");
    EXPECT_EQ(Field("txtYRver(17)"), "--");
}

}  // namespace
}  // namespace zelvar::testing
