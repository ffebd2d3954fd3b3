// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/line/line_engine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "sim/console/state_dump.h"
#include "sim/test_layouts.h"

namespace zelvar::sim {
namespace {

using Bytes = std::vector<std::uint8_t>;
using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr int kMillisecondAByte = 11'000;  // the rate at which a byte takes a millisecond

class LineEngineTest : public testing::Test {
  protected:
    LineEngineTest() : unit_(MixedLayout()), engine_(unit_, faults_, milliseconds(1)) {}

    /// Every byte that is due until `end`, with the time it was due at.
    std::vector<std::pair<Time, std::uint8_t>> RunUntil(Time end) {
        std::vector<std::pair<Time, std::uint8_t>> sent;
        for (auto due = engine_.NextDue(); due && *due <= end; due = engine_.NextDue()) {
            for (const std::uint8_t byte : engine_.TakeDue(*due)) {
                sent.emplace_back(*due, byte);
            }
        }
        return sent;
    }

    CentralUnit unit_;
    Faults faults_;
    LineEngine engine_;
};

TEST_F(LineEngineTest, AnswersAfterTheUnitsDelay) {
    engine_.Receive(Bytes{0x08, 0xF8}, milliseconds(5));
    EXPECT_EQ(engine_.NextDue(), milliseconds(6));
    EXPECT_TRUE(engine_.TakeDue(milliseconds(6) - microseconds(1)).empty());
    EXPECT_EQ(engine_.TakeDue(milliseconds(6)), (Bytes{0x08, 0xF8}));
    EXPECT_EQ(engine_.NextDue(), std::nullopt);
}

TEST_F(LineEngineTest, PacesBothDirections) {
    engine_.SetBaud(kMillisecondAByte);
    engine_.Receive(Bytes{0x08, 0xF8}, milliseconds(0));
    // Two bytes in, the unit's delay, then byte by byte out.
    EXPECT_EQ(RunUntil(milliseconds(100)), (std::vector<std::pair<Time, std::uint8_t>>{
                                               {milliseconds(4), 0x08}, {milliseconds(5), 0xF8}}));
}

TEST_F(LineEngineTest, AFrameMayArriveInPieces) {
    engine_.Receive(Bytes{0x0A, 0x81}, milliseconds(0));
    EXPECT_EQ(engine_.NextDue(), std::nullopt);
    engine_.Receive(Bytes{0x82, 0xF3}, milliseconds(3));
    EXPECT_EQ(engine_.TakeDue(milliseconds(4)).size(), 6U);
}

TEST_F(LineEngineTest, DripPutsTimeBetweenTheBytes) {
    engine_.SetBaud(kMillisecondAByte);
    faults_.SetDrip(milliseconds(10));
    engine_.Receive(Bytes{0x08, 0xF8}, milliseconds(0));
    EXPECT_EQ(RunUntil(milliseconds(100)), (std::vector<std::pair<Time, std::uint8_t>>{
                                               {milliseconds(4), 0x08}, {milliseconds(15), 0xF8}}));
}

TEST_F(LineEngineTest, ALateReplyKeepsItsPlaceInTheOrder) {
    faults_.SetLate(milliseconds(50), 1);
    unit_.state().hold = true;
    engine_.Receive(Bytes{0x08, 0xF8}, milliseconds(0));
    unit_.state().hold = false;
    engine_.Receive(Bytes{0x48, 0xB8}, milliseconds(10));
    EXPECT_TRUE(engine_.TakeDue(milliseconds(50)).empty());
    EXPECT_EQ(engine_.TakeDue(milliseconds(51)), (Bytes{0x18, 0xE8, 0x08, 0xF8}));
}

TEST_F(LineEngineTest, BrokenFramesGetNoReplyAndAreCounted) {
    engine_.Receive(Bytes{0x08, 0xF9}, milliseconds(0));
    engine_.Receive(Bytes{0x18, 0xE8}, milliseconds(0));
    EXPECT_EQ(engine_.NextDue(), std::nullopt);
    EXPECT_NE(StateDump(unit_.state()).find("broken-frames=2\n"), std::string::npos);
}

TEST_F(LineEngineTest, SilentUnitStillCarriesOut) {
    faults_.SetSilent(true);
    engine_.Receive(Bytes{0x0B, 0xA2, 0x85, 0xCC, 0x82}, milliseconds(0));
    EXPECT_EQ(engine_.NextDue(), std::nullopt);
    EXPECT_NE(StateDump(unit_.state()).find("block.5=speed:12"), std::string::npos);
}

TEST_F(LineEngineTest, TracesFramesAsTheyWere) {
    std::vector<std::pair<bool, Bytes>> traced;
    engine_.SetTrace([&](bool sent, std::span<const std::uint8_t> bytes) {
        traced.emplace_back(sent, Bytes(bytes.begin(), bytes.end()));
    });
    engine_.Receive(Bytes{0x08, 0xF8, 0x08, 0xF9}, milliseconds(0));
    EXPECT_EQ(traced, (std::vector<std::pair<bool, Bytes>>{
                          {false, {0x08, 0xF8}}, {true, {0x08, 0xF8}}, {false, {0x08, 0xF9}}}));
}

TEST_F(LineEngineTest, TracesAFrameThatWasCutOffAndBytesWithoutAHeader) {
    std::vector<Bytes> traced;
    engine_.SetTrace([&](bool sent, std::span<const std::uint8_t> bytes) {
        if (!sent) {
            traced.emplace_back(bytes.begin(), bytes.end());
        }
    });
    engine_.Receive(Bytes{0x81, 0x0B, 0xA2, 0x08, 0xF8}, milliseconds(0));
    EXPECT_EQ(traced, (std::vector<Bytes>{{0x81}, {0x0B, 0xA2}, {0x08, 0xF8}}));
}

TEST_F(LineEngineTest, EndlessBytesOutsideAFrameAreNotKept) {
    std::size_t longest = 0;
    engine_.SetTrace([&](bool, std::span<const std::uint8_t> bytes) {
        longest = std::max(longest, bytes.size());
    });
    engine_.Receive(Bytes(100'000, 0xFF), milliseconds(0));
    engine_.Receive(Bytes{0x08, 0xF8}, milliseconds(0));
    constexpr std::size_t kLongestFrame = 9;
    EXPECT_EQ(longest, kLongestFrame);
    EXPECT_EQ(engine_.TakeDue(milliseconds(1)).size(), 2U);
}

TEST_F(LineEngineTest, ResetForgetsWaitingBytesAndHalfAFrame) {
    engine_.Receive(Bytes{0x08, 0xF8, 0x09}, milliseconds(0));
    engine_.Reset();
    EXPECT_EQ(engine_.NextDue(), std::nullopt);
    engine_.Receive(Bytes{0xF7, 0x80}, milliseconds(0));
    EXPECT_EQ(engine_.NextDue(), std::nullopt);
}

}  // namespace
}  // namespace zelvar::sim
