// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/master_slave_check.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <string>

#include "config_fixture.h"

namespace zelvar::testing {
namespace {

constexpr double kPollTime = 0.25;
constexpr int kMode = 11;
constexpr int kClock = 15;

Values Read(int module, int parameter) {
    return {0, 32 + module % 32, module / 32 * 16 + 8, parameter};
}

ShownBox Critical(const std::string& text) {
    return {text, BoxIcon::Critical, BoxButtons::Ok};
}
ShownBox Plain(const std::string& text) {
    return {text, BoxIcon::Plain, BoxButtons::Ok};
}
ShownBox ClockQuestion(const std::string& report) {
    return {report +
                "\r\nYour master/slave settings are OK\r\n\r\nDo you want to verify Clock quality?",
            BoxIcon::Plain, BoxButtons::YesNo};
}

class MasterSlaveCheckTest : public ConfigFixture {
  protected:
    MasterSlaveCheckTest() {
        port.replyDelay = kPollTime;
        registry.vdTypes[3] = VDType::VdF;
        registry.vdTypes[8] = VDType::QlrxS;
        registry.vdTypes[40] = VDType::Vd60;
    }

    void Answer(int module, int parameter, int value) {
        modules.answers[Read(module, parameter)] = {0, 32 + module % 32, module / 32 * 16 + 10,
                                                    parameter, value};
    }

    void Run() {
        port.responder = [this](const SentFrame& frame) { return modules(frame); };
        MasterSlaveCheck(services, registry).Run();
    }

    /// The commands that went out, without the polls.
    Frames Commands() {
        Frames frames = port.SentValues();
        frames.erase(std::remove(frames.begin(), frames.end(), Values()), frames.end());
        return frames;
    }

    ModuleRegistry registry;
    LateAnswers modules;
};

const std::string kSoundReport = "VD-F 3. is master\r\nVD60  40. is slave\r\n";

TEST_F(MasterSlaveCheckTest, WithThePortClosedTellsToSelectOne) {
    port.open = false;
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")});
    EXPECT_TRUE(port.sent.empty());
}

TEST_F(MasterSlaveCheckTest, ReportsOneMasterAndAsksAboutTheClocks) {
    Answer(3, kMode, 1);
    Answer(40, kMode, 2);
    messageBox.answers = {BoxAnswer::No};
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{ClockQuestion(kSoundReport)});
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 35, 8, 11}, {0, 40, 24, 11}, {}}));
}

TEST_F(MasterSlaveCheckTest, NeverAsksAQlrx) {
    registry = ModuleRegistry();
    registry.vdTypes[8] = VDType::QlrxS;
    Run();
    EXPECT_TRUE(Commands().empty());
    EXPECT_EQ(messageBox.shown, std::vector{Critical("\r\nYour system has no master!")});
}

TEST_F(MasterSlaveCheckTest, NoMasterIsCritical) {
    Answer(3, kMode, 2);
    Answer(40, kMode, 2);
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{Critical("VD-F 3. is slave\r\nVD60  40. is slave\r\n"
                                                     "\r\nYour system has no master!")});
}

TEST_F(MasterSlaveCheckTest, SeveralMastersAreCriticalAndNoClockIsAskedFor) {
    Answer(3, kMode, 1);
    Answer(40, kMode, 1);
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{Critical("VD-F 3. is master\r\nVD60  40. is master\r\n"
                                                     "\r\nYour system has multiple masters!")});
}

TEST_F(MasterSlaveCheckTest, AModuleInAutoModeIsAnErrorAndNoMaster) {
    Answer(3, kMode, 0);
    Answer(40, kMode, 77);
    Run();
    EXPECT_EQ(messageBox.shown,
              std::vector{Critical("VD-F 3. returns error: 0\r\nVD60  40. returns error: 77\r\n"
                                   "\r\nYour system has no master!")});
}

TEST_F(MasterSlaveCheckTest, TakesAnswersThatComeWithALaterPoll) {
    modules.polls = 3;
    Answer(3, kMode, 1);
    Answer(40, kMode, 2);
    messageBox.answers = {BoxAnswer::No};
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{ClockQuestion(kSoundReport)});
}

TEST_F(MasterSlaveCheckTest, ASilentModuleEndsTheSurveyWithoutASummary) {
    Answer(40, kMode, 1);
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{Plain("No answer from module 3")});
    EXPECT_EQ(Commands(), (Frames{Read(3, kMode)}));
    EXPECT_EQ(progress.ended, 1);
}

TEST_F(MasterSlaveCheckTest, AnAnswerWithThePermanentBitDoesNotCount) {
    modules.answers[Read(3, kMode)] = {0, 35, 10, 75, 1};
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{Plain("No answer from module 3")});
}

TEST_F(MasterSlaveCheckTest, AnAnswerOfAnotherLengthDoesNotCount) {
    modules.answers[Read(3, kMode)] = {0, 35, 10, 11, 1, 0};
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{Plain("No answer from module 3")});
}

TEST_F(MasterSlaveCheckTest, AnAnswerOfTheSecondaryUnitDoesNotCountForThePrimary) {
    modules.answers[Read(3, kMode)] = {0, 35, 26, 11, 1};
    Run();
    EXPECT_EQ(messageBox.shown, std::vector{Plain("No answer from module 3")});
}

TEST_F(MasterSlaveCheckTest, AFailedExchangeEndsTheCheckAtOnce) {
    Answer(3, kMode, 1);
    port.replies = {EmptyReply(), WireFrame({0, 35, 10, 11, 1}), Bytes{}};
    Run();
    EXPECT_EQ(port.sent.size(), 3U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

class SoundSystem : public MasterSlaveCheckTest {
  protected:
    SoundSystem() {
        Answer(3, kMode, 1);
        Answer(40, kMode, 2);
        messageBox.answers = {BoxAnswer::Yes};
    }
    /// The box behind the question.
    ShownBox LastBox() {
        EXPECT_EQ(messageBox.shown.size(), 2U);
        return messageBox.shown.back();
    }
};

TEST_F(SoundSystem, ReportsTheClocksInAPlainBox) {
    Answer(3, kClock, 0);
    Answer(40, kClock, 4);
    Run();
    EXPECT_EQ(LastBox(), Plain("VD-F 3. Clock OK\r\nVD60  40. Degraded Clock\r\n"));
    EXPECT_EQ(
        port.SentValues(),
        (Frames{{}, {0, 35, 8, 11}, {0, 40, 24, 11}, {}, {}, {0, 35, 8, 15}, {0, 40, 24, 15}, {}}));
    EXPECT_EQ(progress.begun.size(), 2U);
    EXPECT_EQ(progress.ended, 2);
}

TEST_F(SoundSystem, ReportsBadClocks) {
    Answer(3, kClock, 1);
    Answer(40, kClock, 2);
    Run();
    EXPECT_EQ(LastBox(), Plain("VD-F 3. No Clock\r\nVD60  40. Bad Clock\r\n"));
}

TEST_F(SoundSystem, ReportsAClockStateWithoutMeaningAsANumber) {
    Answer(3, kClock, 3);
    Answer(40, kClock, 127);
    Run();
    EXPECT_EQ(LastBox(), Plain("VD-F 3. returns status: 3\r\nVD60  40. returns status: 127\r\n"));
}

TEST_F(SoundSystem, AModuleSilentAboutItsClockIsNotedAndTheNextIsAsked) {
    Answer(40, kClock, 0);
    Run();
    EXPECT_EQ(LastBox(), Plain("VD-F 3. does not return Sync info\r\nVD60  40. Clock OK\r\n"));
}

TEST_F(SoundSystem, TakesLateClockAnswers) {
    modules.polls = 5;
    Answer(3, kClock, 0);
    Answer(40, kClock, 0);
    Run();
    EXPECT_EQ(LastBox(), Plain("VD-F 3. Clock OK\r\nVD60  40. Clock OK\r\n"));
}

TEST_F(SoundSystem, AFailedExchangeWhileAskingForClocksLeavesNoReport) {
    Answer(3, kClock, 0);
    messageBox.whileShown = [this] { port.replies = {EmptyReply(), Bytes{}}; };
    Run();
    EXPECT_EQ(LastBox(), Exclamation("No response from Zelvar"));
}

struct FailureCase {
    const char* name;
    /// What is answered before and from the question on; an empty reply in there is silence.
    std::deque<Bytes> survey;
    std::deque<Bytes> clocks;
    std::size_t sent;
};

class FailureInTheCheck : public SoundSystem, public ::testing::WithParamInterface<FailureCase> {};

TEST_P(FailureInTheCheck, EndsItWithoutAFurtherBox) {
    const FailureCase& row = GetParam();
    port.replies = row.survey;
    messageBox.whileShown = [&] { port.replies = row.clocks; };
    Run();
    std::vector<ShownBox> expected{Exclamation("No response from Zelvar")};
    if (!row.clocks.empty()) {
        expected.insert(expected.begin(), ClockQuestion(kSoundReport));
    }
    EXPECT_EQ(messageBox.shown, expected);
    EXPECT_EQ(port.sent.size(), row.sent);
    EXPECT_EQ(progress.ended, static_cast<int>(progress.begun.size()));
}

const Bytes kSilence;
const Bytes kMode3 = WireFrame({0, 35, 10, 11, 1});
const Bytes kMode40 = WireFrame({0, 40, 26, 11, 2});
const Bytes kClock3 = WireFrame({0, 35, 10, 15, 0});
const Bytes kClock40 = WireFrame({0, 40, 26, 15, 0});

INSTANTIATE_TEST_SUITE_P(
    AtEveryPlace, FailureInTheCheck,
    ::testing::Values(
        FailureCase{"OpeningTheSurvey", {kSilence}, {}, 1},
        FailureCase{"ModeRequest", {EmptyReply(), kSilence}, {}, 2},
        FailureCase{"WaitingForTheMode", {EmptyReply(), EmptyReply(), kSilence}, {}, 3},
        FailureCase{"ClosingTheSurvey", {EmptyReply(), kMode3, kMode40, kSilence}, {}, 4},
        FailureCase{"OpeningTheClocks", {}, {kSilence}, 5},
        FailureCase{"ClockRequest", {}, {EmptyReply(), kSilence}, 6},
        FailureCase{"WaitingForTheClock", {}, {EmptyReply(), EmptyReply(), kSilence}, 7},
        FailureCase{"ClosingTheClocks", {}, {EmptyReply(), kClock3, kClock40, kSilence}, 8}),
    [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
