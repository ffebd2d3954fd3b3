// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QAbstractSpinBox>

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "config/vd_settings.h"
#include "config/vd_tab.h"
#include "layout_fixture.h"

namespace zelvar::testing {
namespace {

using Names = std::set<std::string>;

const Names kCommonFrames{"frmHFI", "frmAL", "frmDCS", "frmPWMM", "frmOCD"};
const Names kVDFExtras{"cmdMS(0)", "frmMS", "frmPC"};
const Names kQlrxFrames{"frmAD", "FrmLC"};
const Names kBankOne{"txtSW(1)", "txtSW(3)", "lblSW(1)", "lblSW(3)", "updownSW(1)", "updownSW(3)"};
const Names kGetButtons{"cmdHFI(1)", "cmdAL(1)", "cmdSW(1)", "cmdDCShift(1)", "cmdPWMM(1)",
                        "cmdOCD(1)", "cmdPC(1)", "cmdLC(1)", "cmdAD(1)"};

Names operator+(const Names& a, const Names& b) {
    Names sum = a;
    sum.insert(b.begin(), b.end());
    return sum;
}

/// Everything whose visibility depends on the target.
const Names kAll =
    kCommonFrames + kVDFExtras + kQlrxFrames + kBankOne + kGetButtons + Names{"cmdMS(1)"};

struct ViewCase {
    const char* name;
    const char* entry;
    Names shown;
    const char* caption;
    bool captionShown;
    bool oneRow;
    const char* msCaption;
};

/// On a layout with a VD-F, a VD60, a QLRX-s and a module of unknown type.
class VDTabView : public LayoutFixture, public ::testing::WithParamInterface<ViewCase> {
  protected:
    VDTabView() {
        modules = {{37, kVdFStatus}, {51, kVd60Status}, {39, kQlrxStatus}, {44, kUnknownStatus}};
        RequestStatus();
    }

    bool IsShownOnTab(const std::string& name) {
        // A field is shown and hidden with its spin control.
        QWidget* control = &Find<QWidget>(name);
        if (qobject_cast<QAbstractSpinBox*>(control->parentWidget()) != nullptr) {
            control = control->parentWidget();
        }
        return !control->isHidden();
    }

    int TopInFrame(const char* name) {
        return Find<QWidget>(name).mapTo(&Find<QWidget>("frmSW"), QPoint()).y();
    }
};

TEST_P(VDTabView, ShowsTheControlsOfTheTarget) {
    const ViewCase& row = GetParam();
    Choose("cboVD", row.entry);
    Names shown;
    for (const std::string& name : kAll) {
        if (IsShownOnTab(name)) {
            shown.insert(name);
        }
    }
    EXPECT_EQ(shown, row.shown);
    EXPECT_EQ(TextOf("lblVDtype"), row.caption);
    EXPECT_EQ(IsShown("lblVDtype"), row.captionShown);
    EXPECT_EQ(TextOf("cmdMS(1)"), row.msCaption);
    EXPECT_TRUE(IsShown("frmSW"));
    for (const char* field : {"updownSW(0)", "updownSW(2)"}) {
        EXPECT_EQ(TopInFrame(field), row.oneRow ? 24 : 8) << field;
    }
    for (const char* label : {"lblSW(0)", "lblSW(2)"}) {
        EXPECT_EQ(TopInFrame(label), row.oneRow ? 26 : 10) << label;
    }
}

INSTANTIATE_TEST_SUITE_P(
    OfTargets, VDTabView,
    ::testing::Values(
        ViewCase{"AllVD60", "All_VD60", kCommonFrames, "VD60", true, true, "Get MS mode"},
        ViewCase{"AllQlrx", "All_QLRX", kQlrxFrames + kBankOne, "QLRX-s", true, false,
                 "Get MS mode"},
        ViewCase{"AllVDF", "All_VD-F", kCommonFrames + kVDFExtras + kBankOne, "VD-F", true, false,
                 "Get MS mode"},
        ViewCase{"AllVDxx", "All_VDxx", kCommonFrames + Names{"cmdMS(1)"}, "VDxx", true, true,
                 "Check MS mode"},
        ViewCase{"SingleVDF", " 5",
                 kCommonFrames + kVDFExtras + kBankOne + kGetButtons + Names{"cmdMS(1)"}, "VD-F",
                 true, false, "Get MS mode"},
        ViewCase{"SingleQlrx", " 7", kQlrxFrames + kBankOne, "QLRX-s", true, false, "Get MS mode"},
        ViewCase{"SingleVD60", " 19.0", kCommonFrames + kGetButtons + Names{"frmMS", "cmdMS(1)"},
                 "VD60", true, true, "Get MS mode"},
        ViewCase{"SingleUnknown", " 12", kCommonFrames + kVDFExtras + kQlrxFrames + kBankOne, "?",
                 false, false, "Get MS mode"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(VDTabView, NothingMovesWhenTheTargetChanges) {
    std::vector<std::pair<QWidget*, QRect>> places;
    for (const char* name :
         {"frmSW", "FrmLC", "frmAD", "frmHFI", "frmOCD", "frmMS", "frmPC", "cmdMS(0)", "cmdMS(1)",
          "cmdHFI(0)", "cmdSW(0)", "cmdErase", "chkVDperm"}) {
        auto& control = Find<QWidget>(name);
        places.emplace_back(&control, QRect(control.mapTo(window.get(), QPoint()), control.size()));
    }
    for (const char* entry : {"All_VD60", "All_QLRX", "All_VDxx", " 12", " 5", " 19.0"}) {
        Choose("cboVD", entry);
        // Hiding and showing asks for the layout again by events, which are handled here and now.
        QCoreApplication::sendPostedEvents();
        QCoreApplication::processEvents();
        for (const auto& [control, place] : places) {
            EXPECT_EQ(QRect(control->mapTo(window.get(), QPoint()), control->size()), place)
                << entry << ": " << control->objectName().toStdString();
        }
    }
}

TEST_F(VDTabView, ABorderStandsAroundTheMasterSlaveModeWithItsFrameAlone) {
    const auto& panel = Find<QFrame>("frmMS").parentWidget();
    const auto shape = [&] { return qobject_cast<QFrame*>(panel)->frameShape(); };
    for (const char* entry : {" 5", " 12", " 19.0", "All_VD-F"}) {
        Choose("cboVD", entry);
        EXPECT_EQ(shape(), QFrame::StyledPanel) << entry;
    }
    Choose("cboVD", "All_VDxx");
    EXPECT_EQ(shape(), QFrame::NoFrame);
}

TEST_F(VDTabView, EverySettingStandsUnderItsTitle) {
    for (const VDSetting& setting : VDSettings()) {
        const auto& frame = Find<QFrame>(setting.frame);
        const QString wanted = QString::fromUtf8(setting.title);
        EXPECT_FALSE(wanted.isEmpty()) << setting.frame;
        int titles = 0;
        for (const QLabel* label : frame.parentWidget()->findChildren<QLabel*>()) {
            titles += label->text() == wanted ? 1 : 0;
        }
        EXPECT_EQ(titles, 1) << setting.frame;
    }
}

TEST_F(VDTabView, FitsIntoAThousandBySevenHundredAndTwentyPixels) {
    Choose("cboVD", " 12");
    EXPECT_LE(window->minimumSizeHint().width(), 1000);
    EXPECT_LE(window->minimumSizeHint().height(), 720);
}

class VDTabBeforeStatus : public LayoutFixture {};

TEST_F(VDTabBeforeStatus, ShowsAllFramesAndNoType) {
    for (const std::string& name : kAll) {
        EXPECT_TRUE(IsShown(name)) << name;
    }
    EXPECT_FALSE(IsShown("lblVDtype"));
    EXPECT_EQ(TextOf("cmdMS(1)"), "Get MS-mode");
}

TEST_F(VDTabBeforeStatus, EveryControlHasItsCaptionAndAnAccessibleName) {
    const std::pair<const char*, const char*> captions[] = {{"cmdHFI(0)", "Set HFI-level"},
                                                            {"cmdHFI(1)", "Get HFI-level"},
                                                            {"cmdAL(0)", "Set Alarm-delay"},
                                                            {"cmdAL(1)", "Get Alarm-delay"},
                                                            {"cmdSW(0)", "Set Switch-delay"},
                                                            {"cmdSW(1)", "Get Switch-delay"},
                                                            {"cmdDCShift(0)", "Set DC-Shift"},
                                                            {"cmdDCShift(1)", "Get DC-Shift"},
                                                            {"cmdPWMM(0)", "Set PWM-Mult."},
                                                            {"cmdPWMM(1)", "Get PWM-Mult."},
                                                            {"cmdOCD(0)", "Set OCD-mode"},
                                                            {"cmdOCD(1)", "Get OCD-mode"},
                                                            {"cmdMS(0)", "Set MS-mode"},
                                                            {"cmdPC(0)", "Set Power CTL"},
                                                            {"cmdPC(1)", "Get Power CTL"},
                                                            {"cmdLC(0)", "Set Loop Current"},
                                                            {"cmdLC(1)", "Get Loop Current"},
                                                            {"cmdAD(0)", "Set Address"},
                                                            {"cmdAD(1)", "Get Address"},
                                                            {"cmdErase", "Erase All"},
                                                            {"lblAl(0)", "Off-delay"},
                                                            {"lblAl(1)", "On-delay"},
                                                            {"lblSW(0)", "Off Bank 0"},
                                                            {"lblSW(1)", "Off Bank 1"},
                                                            {"lblSW(2)", "On Bank 0"},
                                                            {"lblSW(3)", "On Bank 1"},
                                                            {"optPWMM(2)", "2"},
                                                            {"optPWMM(4)", "4"},
                                                            {"optPWMM(8)", "8"},
                                                            {"optPWMM(16)", "16"},
                                                            {"optPWMM(32)", "32"},
                                                            {"optOCD(0)", "Fast"},
                                                            {"optOCD(1)", "Moderate"},
                                                            {"optOCD(2)", "Slow"},
                                                            {"optMS(0)", "Auto"},
                                                            {"optMS(1)", "Master"},
                                                            {"optMS(2)", "Slave"},
                                                            {"optPC(0)", "Single"},
                                                            {"optPC(1)", "Double"},
                                                            {"OptLC(0)", "Loop A"},
                                                            {"OptLC(1)", "Loop B"},
                                                            {"chkVDperm", "Permanent"}};
    for (const auto& [name, caption] : captions) {
        EXPECT_EQ(TextOf(name), caption) << name;
        EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
    }
}

TEST_F(VDTabBeforeStatus, TheMasterSlaveButtonsStandOutsideTheirFrame) {
    auto& frame = Find<QFrame>("frmMS");
    EXPECT_FALSE(frame.isAncestorOf(&Find<QWidget>("cmdMS(0)")));
    EXPECT_FALSE(frame.isAncestorOf(&Find<QWidget>("cmdMS(1)")));
}

}  // namespace
}  // namespace zelvar::testing
