// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/wire.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zelvar::sim {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Outcome = FrameParser::Outcome;

struct FrameCase {
    std::string name;
    Payload data;
    std::uint8_t bits;
    Bytes bytes;
};

class FrameOnTheWire : public testing::TestWithParam<FrameCase> {};

TEST_P(FrameOnTheWire, HasTheseBytes) {
    EXPECT_EQ(EncodeFrame(GetParam().data, GetParam().bits), GetParam().bytes);
}

TEST_P(FrameOnTheWire, IsReadBack) {
    FrameParser parser;
    const Bytes& bytes = GetParam().bytes;
    for (std::size_t index = 0; index + 1 < bytes.size(); ++index) {
        EXPECT_EQ(parser.Push(bytes[index]), Outcome::kNothing) << index;
    }
    EXPECT_EQ(parser.Push(bytes.back()), Outcome::kFrame);
    EXPECT_EQ(parser.frame().data, GetParam().data);
    EXPECT_EQ(parser.frame().header, bytes.front());
}

TEST_P(FrameOnTheWire, IsRefusedWithAnyBitOfTheChecksumWrong) {
    for (int bit = 0; bit < 7; ++bit) {
        FrameParser parser;
        Bytes bytes = GetParam().bytes;
        bytes.back() = static_cast<std::uint8_t>(bytes.back() ^ (1U << bit));
        Outcome outcome = Outcome::kNothing;
        for (const std::uint8_t byte : bytes) {
            outcome = parser.Push(byte);
        }
        EXPECT_EQ(outcome, Outcome::kBadChecksum) << bit;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Frames, FrameOnTheWire,
    testing::Values(FrameCase{"Empty", {}, 0, {0x08, 0xF8}},
                    FrameCase{"EmptyWithStop", {}, kHeaderStopBit, {0x28, 0xD8}},
                    FrameCase{
                        "SumJustAbove256", {1, 0}, kHeaderToggleBit, {0x4A, 0x81, 0x80, 0xB5}},
                    // The sum is a multiple of 128 already: the checksum is 0.
                    FrameCase{"ChecksumZero", {0x77}, 0, {0x09, 0xF7, 0x80}},
                    FrameCase{"ChecksumOne", {0x76}, 0, {0x09, 0xF6, 0x81}},
                    FrameCase{"ChecksumHighest", {0x78}, 0, {0x09, 0xF8, 0xFF}},
                    FrameCase{"SumWrapsManyTimes",
                              {127, 127, 127, 127, 127, 127, 127},
                              kHeaderToggleBit | kHeaderStopBit,
                              {0x6F, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x98}}),
    [](const auto& row) { return row.param.name; });

Outcome PushAll(FrameParser& parser, const Bytes& bytes) {
    Outcome outcome = Outcome::kNothing;
    for (const std::uint8_t byte : bytes) {
        outcome = parser.Push(byte);
    }
    return outcome;
}

TEST(FrameParserTest, AHeaderRestartsTheFrameAtAnyTime) {
    FrameParser parser;
    EXPECT_EQ(PushAll(parser, {0x0B, 0x81, 0x4A, 0x81, 0x80, 0xB5}), Outcome::kFrame);
    EXPECT_EQ(parser.frame().data, (Payload{1, 0}));
    EXPECT_TRUE(parser.frame().Toggle());
    EXPECT_FALSE(parser.frame().Stop());
}

TEST(FrameParserTest, TwoHeadersInARowUseTheSecond) {
    FrameParser parser;
    EXPECT_EQ(PushAll(parser, {0x0F, 0x28, 0xD8}), Outcome::kFrame);
    EXPECT_EQ(parser.frame().data.size(), 0U);
    EXPECT_TRUE(parser.frame().Stop());
}

TEST(FrameParserTest, IgnoresBytesBeforeTheFirstHeader) {
    FrameParser parser;
    EXPECT_EQ(PushAll(parser, {0x81, 0xFF, 0x80, 0x08, 0xF8}), Outcome::kFrame);
}

TEST(FrameParserTest, IgnoresBytesAfterAFrame) {
    FrameParser parser;
    EXPECT_EQ(PushAll(parser, {0x08, 0xF8, 0xF8}), Outcome::kNothing);
    EXPECT_EQ(PushAll(parser, {0x08, 0xF8}), Outcome::kFrame);
}

TEST(FrameParserTest, SkipsAFrameWithAHeaderThatIsNone) {
    for (const int header : {0x00, 0x07, 0x18, 0x1F, 0x70}) {
        FrameParser parser;
        EXPECT_EQ(parser.Push(static_cast<std::uint8_t>(header)), Outcome::kUnknownHeader);
        EXPECT_EQ(PushAll(parser, {0x80, 0xF8, 0x80}), Outcome::kNothing);
        EXPECT_EQ(PushAll(parser, {0x08, 0xF8}), Outcome::kFrame);
    }
}

TEST(PayloadTest, HoldsSevenBitsAndSevenValues) {
    const Payload data{0x1FF, 1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(data.size(), kMaxDataBytes);
    EXPECT_EQ(data[0], 0x7F);
    EXPECT_EQ(data[6], 6);
}

TEST(EncodeFrameTest, HeaderBitsDoNotTouchTheCount) {
    EXPECT_EQ(EncodeFrame({5}, 0xFF).front(), 0x79);
}

}  // namespace
}  // namespace zelvar::sim
