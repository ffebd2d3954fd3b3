// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "status/status_request_fixture.h"

namespace zelvar::testing {
namespace {

enum class Family { VD, Secondary, Js, YR };

struct StatusByteRow {
    const char* name;
    Family family;
    int status;
    const char* text;
    /// The type in the registry; for a point-motor module: absent or anything else.
    VDType registered;
};

class StatusBytes : public StatusRequestFixture,
                    public ::testing::WithParamInterface<StatusByteRow> {
  protected:
    static constexpr int kLine = 7;

    int Address() const {
        switch (GetParam().family) {
            case Family::VD:
                return 32 + kLine;
            case Family::Secondary:
                return kLine;
            case Family::Js:
                return 64 + kLine;
            default:
                return 96 + kLine;
        }
    }
};

TEST_P(StatusBytes, AreShownAndRegisteredByFamily) {
    const StatusByteRow& row = GetParam();
    if (row.family == Family::Secondary) {
        layout.modules[32 + kLine] = {kHere + kVd60Type, 1020};
    }
    layout.modules[Address()] = {row.status, 1020};
    const auto status = Run();
    ASSERT_TRUE(status);
    const std::string version =
        std::string(row.text) == "--" || std::string(row.text) == "Error" ? "--" : "1.02";
    switch (row.family) {
        case Family::VD:
        case Family::Secondary: {
            const std::size_t i = kLine + (row.family == Family::Secondary ? 32U : 0U);
            EXPECT_EQ(ModuleStateText(status->vd[i].state), row.text);
            EXPECT_EQ(VersionText(status->vd[i]), version);
            EXPECT_EQ(registry.vdTypes[i], row.registered);
            break;
        }
        case Family::Js:
            EXPECT_EQ(ModuleStateText(status->js[kLine].state), row.text);
            EXPECT_EQ(JsVersionText(status->js[kLine]), version);
            EXPECT_EQ(registry.jsPresent[kLine], row.registered != VDType::Absent);
            break;
        case Family::YR:
            EXPECT_EQ(ModuleStateText(status->yr[kLine].state), row.text);
            EXPECT_EQ(VersionText(status->yr[kLine]), version);
            break;
    }
}

INSTANTIATE_TEST_SUITE_P(
    TractionModule, StatusBytes,
    ::testing::Values(StatusByteRow{"Nothing", Family::VD, 0x00, "--", VDType::Absent},
                      StatusByteRow{"AllButPresent", Family::VD, 0x77, "--", VDType::Absent},
                      StatusByteRow{"Ok", Family::VD, 0x08, "OK", VDType::VdF},
                      StatusByteRow{"OkWithBit6", Family::VD, 0x48, "OK", VDType::VdF},
                      StatusByteRow{"Idle", Family::VD, 0x18, "Idle", VDType::VdF},
                      StatusByteRow{"IdleBeforeFault", Family::VD, 0x38, "Idle", VDType::VdF},
                      StatusByteRow{"Fault", Family::VD, 0x28, "Fault", VDType::VdF},
                      StatusByteRow{"Vd60", Family::VD, 0x09, "OK", VDType::Vd60},
                      StatusByteRow{"Qlrx", Family::VD, 0x0A, "OK", VDType::QlrxS},
                      StatusByteRow{"Type3", Family::VD, 0x0B, "OK", VDType::Unknown},
                      StatusByteRow{"Type4", Family::VD, 0x2C, "Fault", VDType::Unknown},
                      StatusByteRow{"Type7", Family::VD, 0x0F, "OK", VDType::Unknown}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    SecondaryUnit, StatusBytes,
    ::testing::Values(
        StatusByteRow{"Nothing", Family::Secondary, 0x01, "--", VDType::Absent},
        StatusByteRow{"Ok", Family::Secondary, 0x09, "OK", VDType::Vd60},
        StatusByteRow{"Idle", Family::Secondary, 0x19, "Idle", VDType::Vd60},
        StatusByteRow{"Fault", Family::Secondary, 0x29, "Fault", VDType::Vd60},
        StatusByteRow{"OtherTypeVdF", Family::Secondary, 0x08, "Error", VDType::Absent},
        StatusByteRow{"OtherTypeQlrx", Family::Secondary, 0x0A, "Error", VDType::Absent},
        StatusByteRow{"OtherTypeBeforeIdle", Family::Secondary, 0x18, "Error", VDType::Absent},
        StatusByteRow{"AbsentBeforeOtherType", Family::Secondary, 0x00, "--", VDType::Absent}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    PointMotorModule, StatusBytes,
    ::testing::Values(StatusByteRow{"Nothing", Family::Js, 0x00, "--", VDType::Absent},
                      StatusByteRow{"AllButPresent", Family::Js, 0x77, "--", VDType::Absent},
                      StatusByteRow{"Ok", Family::Js, 0x08, "OK", VDType::VdF},
                      StatusByteRow{"Idle", Family::Js, 0x18, "Idle", VDType::VdF},
                      StatusByteRow{"IdleBeforeHold", Family::Js, 0x38, "Idle", VDType::VdF},
                      StatusByteRow{"Hold", Family::Js, 0x28, "Hold", VDType::VdF},
                      StatusByteRow{"TypeBitsDoNotCount", Family::Js, 0x0F, "OK", VDType::VdF}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    SignalController, StatusBytes,
    ::testing::Values(StatusByteRow{"Nothing", Family::YR, 0x00, "--", VDType::Unknown},
                      StatusByteRow{"AllButPresent", Family::YR, 0x77, "--", VDType::Unknown},
                      StatusByteRow{"Ok", Family::YR, 0x08, "OK", VDType::Unknown},
                      StatusByteRow{"Idle", Family::YR, 0x18, "Idle", VDType::Unknown},
                      StatusByteRow{"Bit5DoesNotCount", Family::YR, 0x28, "OK", VDType::Unknown}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
