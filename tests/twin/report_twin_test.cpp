// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/poller.h"
#include "protocol/reports.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

class ReportTwin : public TwinLink {
  protected:
    ReportTwin() {
        link.Handlers().SetHandler(ReplyKind::Feedback, [this](const Reply& received) {
            feedback.push_back(ReadFeedbackReport(received));
        });
        link.Handlers().SetHandler(ReplyKind::Overcurrent, [this](const Reply& received) {
            overcurrents.push_back(ReadOvercurrentReport(received));
        });
        link.Handlers().SetHandler(ReplyKind::BlockSpeed, [this](const Reply& received) {
            speeds.push_back(ReadBlockSpeedReport(received));
        });
    }

    /// Ticks of the poll timer until no report waits.
    void PollAll() {
        do {
            poller.Timer1_Timer();
        } while (port.state().reports.size() > 0);
    }

    Poller poller{link, port, timer};
    std::vector<FeedbackReport> feedback;
    std::vector<OvercurrentReport> overcurrents;
    std::vector<BlockSpeedReport> speeds;
};

TEST_F(ReportTwin, EveryFeedbackInputIsAskedForByItsNumber) {
    for (const bool active : {true, false}) {
        for (int input = 0; input < sim::kFeedbackInputs; ++input) {
            // The neighbours say the opposite.
            if (active) {
                port.state().feedback.reset();
            } else {
                port.state().feedback.set();
            }
            port.state().feedback.set(static_cast<std::size_t>(input), active);
            int wanted = input;
            poller.SetFeedbackQuery([&] { return std::exchange(wanted, kNoFeedbackWanted); });
            poller.Timer1_Timer();
            ASSERT_EQ(feedback, (std::vector<FeedbackReport>{{input, active}}));
            feedback.clear();
        }
    }
    EXPECT_EQ(port.polls(), 0) << "a request takes the place of a poll";
}

TEST_F(ReportTwin, AnInputThatNoReportCanNameIsOnlyAcknowledged) {
    for (const int input : {sim::kFeedbackInputs, 4095}) {
        Do(FeedbackRequest(input));
        EXPECT_EQ(reply->Count(), 0);
    }
    EXPECT_TRUE(feedback.empty());
}

TEST_F(ReportTwin, EveryReportReadsAsTheUnitMeantIt) {
    for (int block = 0; block < sim::kBlocks; ++block) {
        port.state().reports.Push(sim::OvercurrentReport(block, true));
        port.state().reports.Push(sim::OvercurrentReport(block, false));
        for (int speed = 0; speed <= 63; speed += 21) {
            port.state().reports.Push(sim::BlockSpeedReport(block, speed, true));
            port.state().reports.Push(sim::BlockSpeedReport(block, speed, false));
        }
        PollAll();
        ASSERT_EQ(overcurrents, (std::vector<OvercurrentReport>{{block, true}, {block, false}}));
        std::vector<BlockSpeedReport> meant;
        for (int speed = 0; speed <= 63; speed += 21) {
            meant.push_back({block, speed, true});
            meant.push_back({block, speed, false});
        }
        ASSERT_EQ(speeds, meant);
        overcurrents.clear();
        speeds.clear();
    }
    for (int input = 0; input < sim::kFeedbackInputs; ++input) {
        port.state().reports.Push(sim::FeedbackReport(input, input % 2 == 0));
        PollAll();
        ASSERT_EQ(feedback, (std::vector<FeedbackReport>{{input, input % 2 == 0}}));
        feedback.clear();
    }
    EXPECT_TRUE(overcurrents.empty());
    EXPECT_TRUE(speeds.empty());
}

}  // namespace
}  // namespace zelvar::twin
