// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/line/pacing.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

using std::chrono::microseconds;
using std::chrono::nanoseconds;

TEST(PacerTest, AByteTakesElevenBits) {
    EXPECT_EQ(Pacer(19200).ByteTime(), nanoseconds(572'916));
    EXPECT_EQ(Pacer(38400).ByteTime(), nanoseconds(286'458));
    EXPECT_EQ(Pacer(0).ByteTime(), nanoseconds(0));
    EXPECT_EQ(Pacer(-1).ByteTime(), nanoseconds(0));
}

TEST(PacerTest, BytesHandedOverTogetherPassOneAfterTheOther) {
    Pacer pacer(11'000);  // a millisecond a byte
    EXPECT_EQ(pacer.Pass(microseconds(500)), microseconds(1500));
    EXPECT_EQ(pacer.Pass(microseconds(500)), microseconds(2500));
    EXPECT_EQ(pacer.Pass(microseconds(600)), microseconds(3500));
}

TEST(PacerTest, AByteAfterAPauseFindsTheLineFree) {
    Pacer pacer(11'000);
    pacer.Pass(microseconds(0));
    EXPECT_EQ(pacer.Pass(microseconds(5000)), microseconds(6000));
}

TEST(PacerTest, AChangeOfRateHoldsForTheNextByte) {
    Pacer pacer(11'000);
    pacer.Pass(microseconds(0));
    pacer.SetBaud(22'000);
    EXPECT_EQ(pacer.Pass(microseconds(0)), microseconds(1500));
}

TEST(PacerTest, AnUnpacedLineTakesNoTime) {
    Pacer pacer;
    EXPECT_EQ(pacer.Pass(microseconds(7)), microseconds(7));
    EXPECT_EQ(pacer.Pass(microseconds(7)), microseconds(7));
}

TEST(PacerTest, RestartFreesTheLine) {
    Pacer pacer(11'000);
    pacer.Pass(microseconds(0));
    pacer.Pass(microseconds(0));
    pacer.Restart();
    EXPECT_EQ(pacer.Pass(microseconds(0)), microseconds(1000));
}

}  // namespace
}  // namespace zelvar::sim
