// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/js_report.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>

#include "config_fixture.h"

namespace zelvar::testing {
namespace {

constexpr double kPollTime = 0.25;
constexpr int kExchanges = 2 * 65;

/// Answers every request about module 9, whose address is 81.
class JsReportTest : public ConfigFixture {
  protected:
    JsReportTest() {
        port.replyDelay = kPollTime;
        for (const int code : {34, 98}) {
            module.answers[{0, 81, code}] = {0, 81, code, code == 98 ? 45 : 30};
            for (int device = 0; device < 64; ++device) {
                module.answers[{0, 81, code, device}] = {
                    0, 81, code, device, (device + code) % 128, device % 5};
            }
        }
    }

    std::optional<JsConfiguration> Run() {
        port.responder = [this](const SentFrame& frame) { return module(frame); };
        return JsReportRequest(services).Run(9);
    }

    LateAnswers module;
};

TEST_F(JsReportTest, AsksForBothMemoriesPermanentFirst) {
    const auto configuration = Run();
    ASSERT_TRUE(configuration);
    EXPECT_EQ(configuration->module, 9);
    EXPECT_EQ(configuration->permanent.defaultTime, 45);
    EXPECT_EQ(configuration->active.defaultTime, 30);
    EXPECT_EQ(configuration->permanent.devices[0].time, 98);
    EXPECT_EQ(configuration->permanent.devices[63].time, (63 + 98) % 128);
    EXPECT_EQ(configuration->active.devices[63].time, 97);
    EXPECT_EQ(configuration->active.devices[63].power, 3);
    ASSERT_EQ(port.sent.size(), static_cast<std::size_t>(kExchanges));
    EXPECT_EQ(port.sent[0].values, (Values{0, 81, 98}));
    EXPECT_EQ(port.sent[1].values, (Values{0, 81, 98, 0}));
    EXPECT_EQ(port.sent[65].values, (Values{0, 81, 34}));
    EXPECT_EQ(port.sent[129].values, (Values{0, 81, 34, 63}));
}

TEST_F(JsReportTest, ShowsProgressOfEveryRequest) {
    Run();
    ASSERT_EQ(progress.begun.size(), 1U);
    EXPECT_EQ(progress.begun[0].second, kExchanges);
    EXPECT_EQ(progress.done, kExchanges);
    EXPECT_EQ(progress.ended, 1);
}

TEST_F(JsReportTest, TakesAnswersThatComeWithALaterPoll) {
    module.polls = 2;
    const auto configuration = Run();
    ASSERT_TRUE(configuration);
    EXPECT_EQ(configuration->active.devices[63].time, 97);
}

TEST_F(JsReportTest, WithThePortClosedTellsToSelectOne) {
    port.open = false;
    EXPECT_FALSE(Run());
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")});
}

TEST_F(JsReportTest, AModuleThatDoesNotAnswerEndsTheReport) {
    module.answers.erase({0, 81, 98, 1});
    EXPECT_FALSE(Run());
    EXPECT_EQ(messageBox.shown,
              (std::vector<ShownBox>{{"No answer from module 9", BoxIcon::Plain, BoxButtons::Ok}}));
    EXPECT_EQ(progress.ended, 1);
}

TEST_F(JsReportTest, SilenceAboutTheDefaultTimeEndsTheReport) {
    module.answers.erase({0, 81, 98});
    EXPECT_FALSE(Run());
    EXPECT_EQ(messageBox.shown,
              (std::vector<ShownBox>{{"No answer from module 9", BoxIcon::Plain, BoxButtons::Ok}}));
    Frames sent = port.SentValues();
    EXPECT_EQ(sent.front(), (Values{0, 81, 98}));
    EXPECT_EQ(std::count(sent.begin(), sent.end(), Values()),
              static_cast<std::ptrdiff_t>(sent.size()) - 1)
        << "polls alone follow";
}

TEST_F(JsReportTest, AFailedPollEndsTheReport) {
    port.replies = {EmptyReply(), Bytes{}};
    EXPECT_FALSE(Run());
    EXPECT_EQ(port.SentValues(), (Frames{{0, 81, 98}, {}}));
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

TEST_F(JsReportTest, AnAnswerForAnotherDeviceDoesNotCount) {
    module.answers[{0, 81, 98, 1}] = {0, 81, 98, 2, 5, 0};
    EXPECT_FALSE(Run());
    EXPECT_EQ(messageBox.shown.size(), 1U);
}

TEST_F(JsReportTest, AFailedExchangeEndsTheReport) {
    port.replies = {WireFrame({0, 81, 98, 45}), Bytes{}};
    EXPECT_FALSE(Run());
    EXPECT_EQ(port.sent.size(), 2U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

std::vector<std::string> LinesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        lines.push_back(line);
    }
    return lines;
}

TEST(JsReportText, HasBothSectionsWithAlignedRows) {
    JsConfiguration configuration;
    configuration.module = 12;
    configuration.permanent.defaultTime = 30;
    configuration.permanent.devices[0] = {127, 3};
    configuration.permanent.devices[1] = {0, 0};
    configuration.permanent.devices[2] = {1, 4};
    configuration.active.defaultTime = 0;
    configuration.active.devices[63] = {60, 1};
    const auto lines = LinesOf(FormatJsReport(configuration));
    ASSERT_EQ(lines.size(), 1U + 2 * (1 + 3 + 64));
    EXPECT_EQ(lines[0], "JS70#12");
    EXPECT_EQ(lines[2], " Permanent settings:");
    EXPECT_EQ(lines[3], "Default Timing =  30   500 ms");
    EXPECT_EQ(lines[4], "Device  Timing  Power");
    EXPECT_EQ(lines[5], "     0     127  2117 ms          Unlimited");
    EXPECT_EQ(lines[6], "     1      30   500 ms Default  Normal");
    EXPECT_EQ(lines[7], "     2       1    17 ms          Invalid setting");
    EXPECT_EQ(lines[70], " Active settings:");
    EXPECT_EQ(lines[71], "Default Timing =   0     0 ms");
    EXPECT_EQ(lines[72], "Device  Timing  Power");
    EXPECT_EQ(lines[136], "    63      60  1000 ms          Low");
}

}  // namespace
}  // namespace zelvar::testing
