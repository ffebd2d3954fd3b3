// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "status/status_request_fixture.h"

namespace zelvar::testing {
namespace {

using Requests = std::vector<std::vector<int>>;

constexpr int kDip = 0;
constexpr int kPresence = 2;
constexpr int kFaults = 3;
constexpr int kTypes = 4;
constexpr int kPointMotor = 6;

class ClassicViewRequest : public StatusRequestFixture {
  protected:
    ClassicViewRequest() {
        layout.protocolVersion = 3100;
        // Modules 0, 5, 10 and 15 are there; 5 and 15 are QLRX-s; 10 and 15 are faulty.
        layout.tables = {{kDip, {0b0101}},
                         {kPresence, {0b0001, 0b0010, 0b0100, 0b1000}},
                         {kTypes, {0b0000, 0b1111, 0b0000, 0b1000}},
                         {kFaults, {0b0010, 0b0000, 0b0100, 0b1000}},
                         {kPointMotor, {0b1000, 0b0001}}};
    }

    static std::string Line(const SystemStatus& status, std::size_t i) {
        return std::string(ModuleStateText(status.vd[i].state)) + ' ' +
               std::string(ClassicVDTypeText(status.vdTypes[i]));
    }
};

TEST_F(ClassicViewRequest, AsksTheFiveTablesInOrderThenPollsOnce) {
    ASSERT_TRUE(Run());
    EXPECT_EQ(
        port.SentValues(),
        (Requests{{1, 2}, {1, 10}, {1, 3, 0}, {1, 3, 2}, {1, 3, 4}, {1, 3, 3}, {1, 3, 6}, {}}));
}

TEST_F(ClassicViewRequest, AsksTheSameWhenTheUserWantsItOfANewSystem) {
    layout.protocolVersion = 3200;
    ASSERT_TRUE(Run(true));
    EXPECT_EQ(port.sent.size(), 8U);
}

TEST_F(ClassicViewRequest, ReadsStatesAndTypes) {
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(Line(*status, 0), "OK VD-F");
    EXPECT_EQ(Line(*status, 1), "-- N.A.");
    EXPECT_EQ(Line(*status, 4), "-- N.A.");
    EXPECT_EQ(Line(*status, 5), "OK QLRX-s");
    EXPECT_EQ(Line(*status, 10), "Fault VD-F");
    EXPECT_EQ(Line(*status, 15), "Fault QLRX-s");
}

TEST_F(ClassicViewRequest, RegistersTheModulesThatAnswer) {
    ASSERT_TRUE(Run());
    for (int n = 0; n < 16; ++n) {
        const VDType expected = n == 0 || n == 10   ? VDType::VdF
                                : n == 5 || n == 15 ? VDType::QlrxS
                                                    : VDType::Absent;
        EXPECT_EQ(registry.vdTypes.at(static_cast<unsigned>(n)), expected) << n;
    }
    for (int j = 0; j < 8; ++j) {
        EXPECT_EQ(registry.jsPresent[static_cast<std::size_t>(j)], j == 3 || j == 4) << j;
    }
}

TEST_F(ClassicViewRequest, PointMotorModulesAreThereOrNot) {
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(ModuleStateText(status->js[3].state), "OK");
    EXPECT_EQ(ModuleStateText(status->js[4].state), "OK");
    EXPECT_EQ(ModuleStateText(status->js[5].state), "--");
}

TEST_F(ClassicViewRequest, DipSwitchesReadActiveLow) {
    const auto status = Run();
    ASSERT_TRUE(status && status->dip);
    EXPECT_EQ(*status->dip, (std::array<bool, 4>{false, true, false, true}));
}

TEST_F(ClassicViewRequest, WithoutTablesEverythingIsUnknownAndNothingRegistered) {
    layout.tables.clear();
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_FALSE(status->dip);
    for (std::size_t n = 0; n < 16; ++n) {
        EXPECT_EQ(Line(*status, n), "? ?");
    }
    for (std::size_t j = 0; j < 8; ++j) {
        EXPECT_EQ(ModuleStateText(status->js[j].state), "?");
    }
    EXPECT_EQ(registry.vdTypes, ModuleRegistry().vdTypes);
    EXPECT_EQ(registry.jsPresent, ModuleRegistry().jsPresent);
}

TEST_F(ClassicViewRequest, WithoutThePresenceTableNoModuleHasATypeOrAFault) {
    layout.tables.erase(kPresence);
    const auto status = Run();
    ASSERT_TRUE(status);
    for (std::size_t n = 0; n < 16; ++n) {
        EXPECT_EQ(Line(*status, n), "? N.A.");
        EXPECT_EQ(registry.vdTypes[n], VDType::Absent);
    }
}

TEST_F(ClassicViewRequest, WithoutTheTypeTableNothingIsRegistered) {
    layout.tables.erase(kTypes);
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(Line(*status, 0), "OK ?");
    EXPECT_EQ(Line(*status, 1), "-- ?");
    EXPECT_EQ(Line(*status, 10), "Fault ?");
    EXPECT_EQ(registry.vdTypes, ModuleRegistry().vdTypes);
}

TEST_F(ClassicViewRequest, WithoutTheFaultTableModulesAreOk) {
    layout.tables.erase(kFaults);
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(Line(*status, 15), "OK QLRX-s");
}

struct TableRow {
    const char* name;
    std::vector<int> request;
    std::vector<int> reply;
};

class WrongTables : public ClassicViewRequest, public ::testing::WithParamInterface<TableRow> {};

TEST_P(WrongTables, AreSkippedSilently) {
    layout.instead[GetParam().request] = GetParam().reply;
    const auto skipped = Run();
    ASSERT_TRUE(skipped);
    const int table = GetParam().request[2];
    EXPECT_EQ(skipped->dip.has_value(), table != kDip);
    EXPECT_EQ(Line(*skipped, 0), table == kPresence ? "? N.A."
                                 : table == kTypes  ? "OK ?"
                                                    : "OK VD-F");
    EXPECT_EQ(ModuleStateText(skipped->vd[15].state), table == kPresence ? "?"
                                                      : table == kFaults ? "OK"
                                                                         : "Fault");
    EXPECT_EQ(ModuleStateText(skipped->js[3].state), table == kPointMotor ? "?" : "OK");
    EXPECT_EQ(registry.jsPresent[3], table != kPointMotor);
    EXPECT_TRUE(messageBox.shown.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Tables, WrongTables,
    ::testing::Values(TableRow{"DipWithOtherNumber", {1, 3, kDip}, {1, 3, 0x15}},
                      TableRow{"DipTooLong", {1, 3, kDip}, {1, 3, 0x05, 0}},
                      TableRow{"DipTooShort", {1, 3, kDip}, {1, 3}},
                      TableRow{"DipOfOtherRequest", {1, 3, kDip}, {1, 2, 0x05}},
                      TableRow{"DipOfOtherFamily", {1, 3, kDip}, {0, 3, 0x05}},
                      TableRow{
                          "PresenceWithOtherNumber", {1, 3, kPresence}, {1, 3, 0x3F, 15, 15, 15}},
                      TableRow{"PresenceTooShort", {1, 3, kPresence}, {1, 3, 0x2F, 15, 15}},
                      TableRow{"PresenceTooLong", {1, 3, kPresence}, {1, 3, 0x2F, 15, 15, 15, 15}},
                      TableRow{"TypesWithOtherNumber", {1, 3, kTypes}, {1, 3, 0x20, 0, 0, 0}},
                      TableRow{"TypesTooShort", {1, 3, kTypes}, {1, 3, 0x40, 0, 0}},
                      TableRow{"FaultsWithOtherNumber", {1, 3, kFaults}, {1, 3, 0x2F, 15, 15, 15}},
                      TableRow{"FaultsTooShort", {1, 3, kFaults}, {1, 3, 0x3F, 15, 15}},
                      TableRow{"PointMotorWithOtherNumber", {1, 3, kPointMotor}, {1, 3, 0x4F, 15}},
                      TableRow{"PointMotorTooLong", {1, 3, kPointMotor}, {1, 3, 0x6F, 15, 15}},
                      TableRow{"PointMotorTooShort", {1, 3, kPointMotor}, {1, 3, 0x6F}}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(ClassicViewRequest, KeepsTheLinesThatItDoesNotKnow) {
    registry.vdTypes[15] = VDType::VdF;
    registry.vdTypes[16] = VDType::Vd60;
    registry.vdTypes[48] = VDType::Vd60;
    registry.jsPresent[7] = true;
    registry.jsPresent[8] = true;
    layout.tables.clear();
    ASSERT_TRUE(Run());
    EXPECT_EQ(registry.vdTypes[15], VDType::Absent);
    EXPECT_EQ(registry.vdTypes[16], VDType::Vd60);
    EXPECT_EQ(registry.vdTypes[48], VDType::Vd60);
    EXPECT_EQ(registry.jsPresent[7], false);
    EXPECT_EQ(registry.jsPresent[8], true);
}

TEST_F(ClassicViewRequest, ProgressCountsTheTables) {
    ASSERT_TRUE(Run());
    ASSERT_EQ(progress.begun.size(), 2U);
    EXPECT_EQ(progress.begun[1].second, 5);
    EXPECT_EQ(progress.done, 5);
    EXPECT_EQ(progress.ended, 1);
}

}  // namespace
}  // namespace zelvar::testing
