// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_type_view.h"

#include <gtest/gtest.h>

#include <string>

namespace zelvar {
namespace {

struct ViewCase {
    const char* name;
    int data;
    VDType type;
    bool a;
    bool b;
    bool c;
    VDGetButtons getButtons;
    const char* caption;
    bool captionVisible;
    bool withMSFrame;
};

class VDTypeViewRow : public ::testing::TestWithParam<ViewCase> {};

TEST_P(VDTypeViewRow, ShowsWhatTheTargetSupports) {
    const ViewCase& row = GetParam();
    const VDTypeView view = VDTypeViewOf(row.data, row.type);
    EXPECT_EQ(view.frames.Intersects(kForVD60), row.a);
    EXPECT_EQ(view.frames.Intersects(kForVDF), row.b);
    EXPECT_EQ(view.frames.Intersects(kForQlrx), row.c);
    EXPECT_EQ(view.getButtons, row.getButtons);
    EXPECT_STREQ(view.caption, row.caption);
    EXPECT_EQ(view.captionVisible, row.captionVisible);
    EXPECT_EQ(view.withMSFrame, row.withMSFrame);
}

constexpr auto kNone = VDGetButtons::None;
constexpr auto kAll = VDGetButtons::All;
constexpr auto kCheck = VDGetButtons::CheckOnly;

INSTANTIATE_TEST_SUITE_P(
    OfTargets, VDTypeViewRow,
    ::testing::Values(
        ViewCase{"AllVD60", -4, VDType::Unknown, true, false, false, kNone, "VD60", true, false},
        ViewCase{"AllQlrx", -3, VDType::Unknown, false, false, true, kNone, "QLRX-s", true, false},
        ViewCase{"AllVDF", -2, VDType::Unknown, false, true, false, kNone, "VD-F", true, false},
        ViewCase{"AllVDxx", -1, VDType::Unknown, true, false, false, kCheck, "VDxx", true, false},
        ViewCase{"SingleVDF", 0, VDType::VdF, false, true, false, kAll, "VD-F", true, false},
        ViewCase{"SingleQlrx", 31, VDType::QlrxS, false, false, true, kNone, "QLRX-s", true, false},
        ViewCase{"SingleVD60", 63, VDType::Vd60, true, false, false, kAll, "VD60", true, true},
        ViewCase{"SingleUnknown", 4, VDType::Unknown, true, true, true, kNone, "?", false, false},
        ViewCase{"SingleAbsent", 4, VDType::Absent, true, true, true, kNone, "?", false, false}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar
