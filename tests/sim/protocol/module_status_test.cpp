// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/module_status.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

struct StatusCase {
    const char* name;
    int address;
    int type;
    ModuleState state;
    int status;
};

const StatusCase kStatuses[] = {
    {"VD-F, OK", 32, 0, ModuleState::kOk, 0x08},
    {"VD60, idle", 33, 1, ModuleState::kIdle, 0x19},
    {"QLRX-s, fault", 34, 2, ModuleState::kFault, 0x2A},
    {"VD60, fault", 0, 1, ModuleState::kFault, 0x29},
    {"unknown type 5, OK", 32, 5, ModuleState::kOk, 0x0D},
    {"hold", 64, 0, ModuleState::kHold, 0x28},
    {"OK", 96, 0, ModuleState::kFault, 0x28},  // signal modules have no such state
};

TEST(ModuleStatusTest, IsMadeOfTypeAndState) {
    for (const StatusCase& row : kStatuses) {
        EXPECT_EQ(StatusByte(row.type, row.state), row.status) << row.name;
        EXPECT_EQ(StatusName(row.address, row.status), row.name);
    }
    EXPECT_EQ(StatusName(32, kAbsentStatus), "absent");
}

TEST(ModuleStatusTest, IdleCountsMoreThanFault) {
    constexpr int kBoth = kPresentBit | kIdleBit | kFaultBit;
    EXPECT_FALSE(IsFaulty(kBoth));
    EXPECT_EQ(StatusName(64, kBoth), "idle");
    EXPECT_FALSE(IsFaulty(kFaultBit)) << "absent";
}

}  // namespace
}  // namespace zelvar::sim
