// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/layout.h"

#include <gtest/gtest.h>

#include <set>

namespace zelvar::sim {
namespace {

int Decode(const VersionBytes& bytes) {
    return (bytes.high >> 3) * 1000 + (bytes.high & 7) * 100 + (bytes.low >> 3) * 10 +
           (bytes.low & 7);
}

TEST(EncodeVersionTest, DecodesToTheSameNumberWheneverThereAreBytes) {
    std::set<int> possible;
    for (int high = 0; high < 128; ++high) {
        for (int low = 0; low < 128; ++low) {
            possible.insert(
                Decode({static_cast<std::uint8_t>(high), static_cast<std::uint8_t>(low)}));
        }
    }
    for (int version = -10; version <= 20000; ++version) {
        const auto bytes = EncodeVersion(version);
        ASSERT_EQ(bytes.has_value(), possible.count(version) == 1) << version;
        if (bytes) {
            ASSERT_EQ(Decode(*bytes), version);
        }
    }
}

TEST(EncodeVersionTest, KnownVersions) {
    const auto bytes = EncodeVersion(3112);
    ASSERT_TRUE(bytes);
    EXPECT_EQ(bytes->high, 0x19);
    EXPECT_EQ(bytes->low, 0x0A);
    EXPECT_FALSE(EncodeVersion(1018));
    EXPECT_FALSE(EncodeVersion(-1));
}

struct StatusCase {
    const char* name;
    int type;
    ModuleState state;
    int status;
};

class StatusByteTest : public testing::TestWithParam<StatusCase> {};

TEST_P(StatusByteTest, IsBuiltFromTypeAndState) {
    EXPECT_EQ(StatusByte(GetParam().type, GetParam().state), GetParam().status);
}

INSTANTIATE_TEST_SUITE_P(Rows, StatusByteTest,
                         testing::Values(StatusCase{"VdF", 0, ModuleState::kOk, 0x08},
                                         StatusCase{"Vd60Idle", 1, ModuleState::kIdle, 0x19},
                                         StatusCase{"QlrxFault", 2, ModuleState::kFault, 0x2A},
                                         StatusCase{"PointsHold", 0, ModuleState::kHold, 0x28}),
                         [](const auto& row) { return row.param.name; });

TEST(LayoutTest, AnEmptyUnitHasNoModulesAndNoTrack) {
    const Layout layout = EmptyLayout();
    for (const ModuleSlot& slot : layout.modules) {
        EXPECT_FALSE(slot.Present());
    }
    EXPECT_TRUE(layout.track.sections.empty());
    EXPECT_TRUE(EncodeVersion(layout.protocolVersion));
    EXPECT_TRUE(EncodeVersion(layout.systemVersion));
}

TEST(LineAddressTest, PrimaryLinesComeBeforeSecondaryOnes) {
    EXPECT_EQ(LineAddress(0), 32);
    EXPECT_EQ(LineAddress(31), 63);
    EXPECT_EQ(LineAddress(32), 0);
    EXPECT_EQ(LineAddress(63), 31);
}

}  // namespace
}  // namespace zelvar::sim
