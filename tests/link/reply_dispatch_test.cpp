// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/reply_dispatch.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "support/doubles.h"

namespace zelvar::testing {
namespace {

constexpr std::array<const char*, kReplyKindCount> kKindNames{"VDConfig", "KBConfig", "BlockSpeed",
                                                              "Feedback", "Overcurrent"};

struct MatchRow {
    const char* name;
    /// Header without the mark: number of data bytes and flags.
    int header;
    int r1;
    int r2;
    /// The kinds that match, by name with a space behind each.
    const char* kinds;
};

std::string Matching(const Reply& reply) {
    std::string kinds;
    for (std::size_t i = 0; i < kKindNames.size(); ++i) {
        if (MatchesReply(static_cast<ReplyKind>(i), reply)) {
            kinds += std::string(kKindNames[i]) + " ";
        }
    }
    return kinds;
}

class ReplyTests : public ::testing::TestWithParam<MatchRow> {};

TEST_P(ReplyTests, MatchByLengthAndFirstValues) {
    const MatchRow& row = GetParam();
    EXPECT_EQ(Matching(MakeReply(row.header + 8, {row.r1, row.r2})), row.kinds);
}

// Every mask and value has a row on either side of it.
INSTANTIATE_TEST_SUITE_P(VDConfig, ReplyTests,
                         ::testing::Values(MatchRow{"FiveBytes", 5, 0, 0x20, "VDConfig "},
                                           MatchRow{"SixBytes", 6, 0, 0x25, "VDConfig "},
                                           MatchRow{"SevenBytes", 7, 0, 0x3F, "VDConfig "},
                                           MatchRow{"FaultAndToggleDoNotCount", 0x75, 0, 0x20,
                                                    "VDConfig "},
                                           MatchRow{"FourBytesAreTooFew", 4, 0, 0x20, ""},
                                           MatchRow{"FirstValueNotZero", 5, 1, 0x20, ""},
                                           MatchRow{"FirstValueHigh", 5, 0x40, 0x20, ""},
                                           MatchRow{"SecondaryUnit", 5, 0, 0x1F, ""},
                                           MatchRow{"PointMotorModule", 5, 0, 0x40, ""},
                                           MatchRow{"SignalController", 5, 0, 0x60, ""}),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(KBConfig, ReplyTests,
                         ::testing::Values(MatchRow{"Fourteen", 4, 1, 14, "KBConfig "},
                                           MatchRow{"Fifteen", 4, 1, 15, "KBConfig "},
                                           MatchRow{"WithFlags", 0x74, 1, 14, "KBConfig "},
                                           MatchRow{"Thirteen", 4, 1, 13, ""},
                                           MatchRow{"Sixteen", 4, 1, 16, ""},
                                           MatchRow{"ThreeBytes", 3, 1, 14, ""},
                                           MatchRow{"FiveBytes", 5, 1, 14, ""},
                                           MatchRow{"FirstValueZero", 4, 0, 14, ""},
                                           MatchRow{"FirstValueTwo", 4, 2, 14, ""}),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(BlockSpeed, ReplyTests,
                         ::testing::Values(MatchRow{"LowBlock", 3, 0x22, 0, "BlockSpeed "},
                                           MatchRow{"HighBlock", 3, 0x23, 127, "BlockSpeed "},
                                           MatchRow{"WithFlags", 0x73, 0x22, 0, "BlockSpeed "},
                                           MatchRow{"Below", 3, 0x21, 0, ""},
                                           MatchRow{"Above", 3, 0x24, 0, ""},
                                           MatchRow{"TwoBytes", 2, 0x22, 0, ""},
                                           MatchRow{"FourBytes", 4, 0x22, 0, ""}),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(Feedback, ReplyTests,
                         ::testing::Values(MatchRow{"Lowest", 2, 0x40, 0, "Feedback "},
                                           MatchRow{"Highest", 2, 0x7F, 127, "Feedback "},
                                           MatchRow{"WithFlags", 0x72, 0x40, 0, "Feedback "},
                                           MatchRow{"Below", 2, 0x3F, 0, ""},
                                           MatchRow{"Zero", 2, 0, 0, ""},
                                           MatchRow{"OneByte", 1, 0x40, 0, ""},
                                           MatchRow{"ThreeBytes", 3, 0x40, 0, ""}),
                         [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(Overcurrent, ReplyTests,
                         ::testing::Values(MatchRow{"ReleasedLow", 2, 0x30, 5, "Overcurrent "},
                                           MatchRow{"ReleasedHigh", 2, 0x31, 5, "Overcurrent "},
                                           MatchRow{"DetectedLow", 2, 0x32, 5, "Overcurrent "},
                                           MatchRow{"DetectedHigh", 2, 0x33, 5, "Overcurrent "},
                                           MatchRow{"WithFlags", 0x72, 0x33, 5, "Overcurrent "},
                                           MatchRow{"Below", 2, 0x2F, 5, ""},
                                           MatchRow{"Above", 2, 0x34, 5, ""},
                                           MatchRow{"OneByte", 1, 0x30, 5, ""},
                                           MatchRow{"ThreeBytes", 3, 0x30, 5, ""}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(ReplyDispatch, NoReplyIsOfTwoKinds) {
    for (int header = 8; header < 16; ++header) {
        for (int r1 = 0; r1 < 128; ++r1) {
            for (int r2 = 0; r2 < 128; ++r2) {
                const Reply reply = MakeReply(header, {r1, r2});
                const std::string kinds = Matching(reply);
                ASSERT_EQ(kinds.find(' '), kinds.empty() ? std::string::npos : kinds.size() - 1)
                    << kinds << header << ' ' << r1 << ' ' << r2;
            }
        }
    }
}

TEST(ReplyDispatch, HandsTheReplyToTheHandlerOfItsKindAlone) {
    std::vector<std::string> called;
    int seen = 0;
    ReplyDispatch dispatch;
    for (std::size_t i = 0; i < kKindNames.size(); ++i) {
        dispatch.SetHandler(static_cast<ReplyKind>(i), [&, i](const Reply& reply) {
            called.emplace_back(kKindNames[i]);
            seen = reply[2];
        });
    }
    dispatch.Dispatch(MakeReply(0x0B, {0x22, 7, 0x4C}));
    EXPECT_EQ(called, std::vector<std::string>{"BlockSpeed"});
    EXPECT_EQ(seen, 7);
}

TEST(ReplyDispatch, AKindWithoutHandlerIsPassedOver) {
    const ReplyDispatch dispatch;
    EXPECT_NO_FATAL_FAILURE(dispatch.Dispatch(MakeReply(0x0A, {0x33, 5})));
}

TEST_F(LinkFixture, ABrokenReplyReachesNoHandler) {
    int calls = 0;
    link.Handlers().SetHandler(ReplyKind::Overcurrent, [&](const Reply&) { ++calls; });
    Bytes broken = WireFrame({0x33, 5});
    broken.back() ^= 1;
    port.replies = {broken, WireFrame({0x33, 5})};
    link.Transact(kEmptyTransaction);
    EXPECT_EQ(calls, 0);
    link.Transact(kEmptyTransaction);
    EXPECT_EQ(calls, 1);
}

TEST_F(LinkFixture, ARepliesLogLineIsWrittenBeforeItsHandlerRuns) {
    std::string logInHandler;
    link.Handlers().SetHandler(ReplyKind::Overcurrent,
                               [&](const Reply&) { logInHandler = view.log; });
    port.replies = {WireFrame({0x33, 5})};
    link.Transact(kEmptyTransaction);
    EXPECT_EQ(logInHandler, ">> 08 F8                       << 0A B3 85 BE\r\n");
}

}  // namespace
}  // namespace zelvar::testing
