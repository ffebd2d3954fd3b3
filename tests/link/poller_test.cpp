// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/poller.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/doubles.h"

namespace zelvar::testing {
namespace {

class PollerTest : public LinkFixture {
  protected:
    PollerTest() { timer.enabled = true; }

    Poller poller{link, port, timer};
};

struct QueryRow {
    const char* name;
    int wanted;
    std::vector<int> sent;
};

class PollerQuery : public PollerTest, public ::testing::WithParamInterface<QueryRow> {};

TEST_P(PollerQuery, DecidesWhatATickSends) {
    poller.SetFeedbackQuery([] { return GetParam().wanted; });
    poller.Timer1_Timer();
    EXPECT_EQ(port.SentValues(), std::vector<std::vector<int>>{GetParam().sent});
}

INSTANTIATE_TEST_SUITE_P(Inputs, PollerQuery,
                         ::testing::Values(QueryRow{"Nothing", -1, {}},
                                           QueryRow{"First", 0, {96, 0}},
                                           QueryRow{"LastOfARange", 127, {96, 127}},
                                           QueryRow{"FirstOfTheNext", 128, {97, 0}},
                                           QueryRow{"Middle", 200, {97, 72}},
                                           QueryRow{"Last", 4095, {127, 127}}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(PollerTest, WithoutAMonitorATickSendsTheEmptyTransaction) {
    poller.Timer1_Timer();
    EXPECT_EQ(port.written, (Bytes{0x08, 0xF8}));
    EXPECT_TRUE(timer.enabled);
}

TEST_F(PollerTest, EveryTickAsksAnew) {
    int next = 5;
    poller.SetFeedbackQuery([&] { return next++; });
    poller.Timer1_Timer();
    poller.Timer1_Timer();
    EXPECT_EQ(port.SentValues(), (std::vector<std::vector<int>>{{96, 5}, {96, 6}}));
}

TEST_F(PollerTest, ATickThatFindsThePortClosedSwitchesPollingOffAndAsksNobody) {
    bool asked = false;
    poller.SetFeedbackQuery([&] {
        asked = true;
        return -1;
    });
    port.open = false;
    poller.Timer1_Timer();
    EXPECT_FALSE(timer.enabled);
    EXPECT_FALSE(asked);
    EXPECT_TRUE(port.written.empty());
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(PollerTest, APollWithoutReplyIsToldOnceAndStopsPolling) {
    port.replies = {Bytes{}};
    poller.Timer1_Timer();
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_FALSE(timer.enabled);
}

TEST_F(PollerTest, AnyCommandThatGetsAReplyStartsPollingAgain) {
    port.replies = {Bytes{}};
    poller.Timer1_Timer();
    link.Transact({2, {1, 0}});
    EXPECT_TRUE(timer.enabled);
}

TEST_F(PollerTest, TheIntervalIsTwentyMilliseconds) {
    EXPECT_EQ(kPollInterval, 20);
}

}  // namespace
}  // namespace zelvar::testing
