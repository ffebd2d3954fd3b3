// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/explain/explain.h"
#include "sim/explain/replies.h"
#include "sim/unit/commands.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

using Bytes = std::vector<std::uint8_t>;

struct ReplyCase {
    const char* name;
    Payload command;
    Payload reply;
    const char* words;
};

class ReplyMeaning : public testing::TestWithParam<ReplyCase> {};

TEST_P(ReplyMeaning, DependsOnItsCommand) {
    Conversation conversation;
    conversation.command = GetParam().command;
    EXPECT_EQ(ExplainReplyData(conversation, GetParam().reply), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Answers, ReplyMeaning,
    testing::Values(
        ReplyCase{"Acknowledged", {34, 5, 76}, {}, "acknowledged"},
        ReplyCase{"NothingToReport", {}, {}, "nothing to report"},
        ReplyCase{"NoAnswerYet", {0, 37, 8, 2}, {}, "acknowledged, no answer yet"},
        ReplyCase{"UnknownCommand", {1, 99}, {}, "acknowledged"},
        ReplyCase{"Protocol", {1, 2}, {1, 2, 0x19, 0x0A}, "protocol version 3.11 B"},
        ReplyCase{"UnitType", {1, 10}, {1, 10, 2, 8, 16}, "KB-E, version 1.02"},
        ReplyCase{"StrangeUnit", {1, 10}, {1, 10, 7, 0, 0}, "unknown type 7, version none"},
        ReplyCase{"Vd60",
                  {1, 11, 36},
                  {1, 11, 36, 0x29, 16, 12},
                  "traction module 4: VD60, fault, version 2.01 D"},
        ReplyCase{"Absent", {1, 11, 36}, {1, 11, 36, 0, 0, 0}, "traction module 4: absent"},
        ReplyCase{"PointHold",
                  {1, 11, 65},
                  {1, 11, 65, 0x28, 10, 1},
                  "point module 1: hold, version 1.20 A"},
        ReplyCase{"SignalIdle",
                  {1, 11, 98},
                  {1, 11, 98, 0x18, 8, 5},
                  "signal module 2: idle, version 1.00 E"},
        ReplyCase{"OtherModule",
                  {1, 11, 36},
                  {1, 11, 37, 0, 0, 0},
                  "traction module 5: absent (not what was asked for)"},
        ReplyCase{"ModuleOfAShorterCommand",
                  {1, 11},
                  {1, 11, 0, 0, 0, 0},
                  "second unit of traction module 0: absent (not what was asked for)"},
        ReplyCase{"LateModule", {}, {1, 11, 37, 0, 0, 0}, "traction module 5: absent"},
        ReplyCase{"DipSwitches", {1, 3, 0}, {1, 3, 5}, "DIP switches: off on off on"},
        ReplyCase{"Present",
                  {1, 3, 2},
                  {1, 3, 0x23, 0, 1, 8},
                  "traction modules that are there: 0, 1, 8, 15"},
        ReplyCase{"NoFaults", {1, 3, 3}, {1, 3, 0x30, 0, 0, 0}, "traction modules in fault: none"},
        ReplyCase{"Types", {1, 3, 4}, {1, 3, 0x40, 2, 0, 0}, "QLRX-s modules: 5"},
        ReplyCase{"Points", {1, 3, 6}, {1, 3, 0x61, 8}, "point modules that are there: 0, 7"},
        ReplyCase{"OtherTable",
                  {1, 3, 2},
                  {1, 3, 0x61, 8},
                  "point modules that are there: 0, 7 (not what was asked for)"},
        ReplyCase{"Configuration",
                  {1, 15, 0, 0},
                  {1, 15, 0x21, 0x12},
                  "permanent configuration of the central unit: channel 1 at 38k4, 64 devices per "
                  "point module"},
        ReplyCase{"Setting",
                  {0, 37, 8, 66},
                  {0, 37, 10, 66, 40},
                  "permanent alarm off-delay of traction module 5: 40"},
        ReplyCase{"SettingWithName",
                  {},
                  {0, 37, 26, 11, 2},
                  "active master/slave mode of the second unit of traction module 5: slave"},
        ReplyCase{"ClockOrAddress",
                  {0, 37, 8, 15},
                  {0, 37, 10, 15, 4},
                  "clock of traction module 5: degraded (in a QLRX-s: module address 4)"},
        ReplyCase{"ClockOfSecond",
                  {0, 37, 24, 15},
                  {0, 37, 26, 15, 4},
                  "clock of the second unit of traction module 5: degraded"},
        ReplyCase{"PermanentAddress",
                  {0, 37, 8, 79},
                  {0, 37, 10, 79, 4},
                  "permanent module address of traction module 5: 4"},
        ReplyCase{"OtherSetting",
                  {0, 37, 8, 2},
                  {0, 37, 10, 3, 40},
                  "active alarm on-delay of traction module 5: 40 (not what was asked for)"},
        ReplyCase{"DefaultTime",
                  {0, 81, 34},
                  {0, 81, 34, 15},
                  "active default time of point module 9: 15/60 s"},
        ReplyCase{"Device",
                  {0, 81, 98, 3},
                  {0, 81, 98, 3, 0, 3},
                  "permanent setting of device 3 of point module 9: time the default, power "
                  "unlimited"},
        ReplyCase{"Unknown", {}, {5, 6, 7}, "unknown answer, values 5, 6, 7"}),
    [](const auto& row) { return row.param.name; });

INSTANTIATE_TEST_SUITE_P(
    Reports, ReplyMeaning,
    testing::Values(
        ReplyCase{"Overcurrent",
                  {},
                  OvercurrentReport(133, true),
                  "report: overcurrent in block 133 detected"},
        ReplyCase{
            "Release", {}, OvercurrentReport(5, false), "report: overcurrent in block 5 released"},
        ReplyCase{"Forward",
                  {},
                  BlockSpeedReport(200, 12, true),
                  "report: block 200 at speed 12 forward"},
        ReplyCase{
            "Reverse", {}, BlockSpeedReport(5, 63, false), "report: block 5 at speed 63 reverse"},
        ReplyCase{"Active", {97, 72}, FeedbackReport(200, true), "feedback input 200 is active"},
        ReplyCase{"Inactive", {}, FeedbackReport(2047, false), "feedback input 2047 is inactive"}),
    [](const auto& row) { return row.param.name; });

/// The unit's own answer to each command that asks for something has its words.
class OwnAnswer : public UnitFixture {};

TEST_F(OwnAnswer, ToEveryRequestIsWhatWasAskedFor) {
    unit_.state().answerDelay = 0;
    const Payload requests[] = {{1, 2},        {1, 10},         {1, 11, 36}, {1, 11, 64},
                                {1, 11, 96},   {1, 3, 0},       {1, 3, 2},   {1, 3, 3},
                                {1, 3, 4},     {1, 3, 6},       {96, 5},     {1, 14, 0, 0},
                                {0, 36, 8, 1}, {0, 36, 24, 75}, {0, 64, 34}, {0, 64, 98, 63}};
    for (const Payload& request : requests) {
        const CommandRow* row = FindCommand(request);
        ASSERT_NE(row, nullptr);
        EXPECT_EQ(row->asks, Asks::kYes) << row->name;
        Conversation conversation;
        conversation.command = request;
        const std::string meaning = ExplainReplyData(conversation, Ask(request));
        for (const char* bad : {"unknown", "not what", "acknowledged"}) {
            EXPECT_EQ(meaning.find(bad), std::string::npos) << row->name << ": " << meaning;
        }
    }
}

TEST(ReplyTableTest, EveryRowHasCompleteWords) {
    for (const ReplyRow& row : ReplyTable()) {
        EXPECT_TRUE(row.words.IsComplete()) << row.name;
    }
}

TEST(ExplainerTest, ShowsAnUnknownCommandAsItsValues) {
    EXPECT_EQ(ExplainCommandData({1, 99, 3}), "unknown command, values 1, 99, 3");
}

TEST(ExplainerTest, LearnsFromAStatusWhatAnAnswerMeans) {
    struct Learned {
        int type;
        const char* request;
        const char* answer;
    };
    for (const auto& [type, request, answer] :
         {Learned{2, "ask for the active module address of traction module 5",
                  "active module address 4 of traction module 5"},
          Learned{1, "ask for the active clock state of traction module 5",
                  "clock of traction module 5: degraded"}}) {
        Explainer explainer;
        explainer.Command(EncodeFrame({1, 11, 37}));
        explainer.Reply(EncodeFrame({1, 11, 37, 8 + type, 0, 0}));
        EXPECT_EQ(explainer.Command(EncodeFrame({0, 37, 8, 15})), request);
        explainer.Command(EncodeFrame({}));
        EXPECT_EQ(explainer.Reply(EncodeFrame({0, 37, 10, 15, 4})), answer);
    }
}

TEST(ExplainerTest, LearnsNothingFromOtherRepliesAndBrokenOnes) {
    constexpr int kPresentQlrxS = 10;
    Explainer explainer;
    explainer.Reply(EncodeFrame({1, 2, 37, kPresentQlrxS}));
    Bytes broken = EncodeFrame({1, 11, 37, kPresentQlrxS, 0, 0});
    broken.back() ^= 1;
    explainer.Reply(broken);
    EXPECT_EQ(explainer.Command(EncodeFrame({0, 37, 8, 15})),
              "ask for the active clock state (in a QLRX-s: module address) of traction module 5");
}

TEST(ExplainerTest, ShowsTheBitsOfTheHeader) {
    Explainer explainer;
    EXPECT_EQ(explainer.Command(EncodeFrame({1, 0}, kHeaderStopBit | kHeaderToggleBit)),
              "reset the fault [stop]");
    EXPECT_EQ(explainer.Reply(EncodeFrame({}, kHeaderFaultBit)), "acknowledged [fault]");
    EXPECT_EQ(explainer.Reply(EncodeFrame({}, kHeaderHoldBit)), "acknowledged [hold]");
    EXPECT_EQ(explainer.Reply(EncodeFrame({}, kHeaderFaultBit | kHeaderHoldBit)),
              "acknowledged [fault, hold]");
}

struct BrokenCase {
    const char* name;
    Bytes bytes;
    const char* asCommand;
    const char* asReply;
};

class BrokenFrame : public testing::TestWithParam<BrokenCase> {};

TEST_P(BrokenFrame, IsSaidToBeSo) {
    Explainer explainer;
    EXPECT_EQ(explainer.Command(GetParam().bytes), GetParam().asCommand);
    Explainer other;
    EXPECT_EQ(other.Reply(GetParam().bytes), GetParam().asReply);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, BrokenFrame,
    testing::Values(
        BrokenCase{"Checksum",
                   {0x08, 0xF9},
                   "wrong checksum, F8 expected: poll",
                   "wrong checksum, F8 expected: acknowledged"},
        BrokenCase{
            "Incomplete", {0x0B, 0xA2}, "incomplete: 2 of 5 bytes", "incomplete: 2 of 5 bytes"},
        BrokenCase{"HeaderOnly", {0x08}, "incomplete: 1 of 2 bytes", "incomplete: 1 of 2 bytes"},
        BrokenCase{
            "NoHeader", {0x81, 0x82}, "2 bytes without a header", "2 bytes without a header"},
        BrokenCase{
            "WrongHeader", {0x03, 0x82}, "no frame: 03 is no header", "no frame: 03 is no header"},
        BrokenCase{"HoldBit", {0x18, 0xE8}, "no frame: 18 is no header", "acknowledged [hold]"},
        BrokenCase{"Twice", {0x08, 0xF8, 0x08, 0xF8}, "poll; poll", "acknowledged; acknowledged"},
        BrokenCase{"StrayBefore",
                   {0xFF, 0x08, 0xF8},
                   "1 bytes without a header; poll",
                   "1 bytes without a header; acknowledged"},
        BrokenCase{"StrayAfter",
                   {0x08, 0xF8, 0xF8},
                   "poll; bytes behind the frame: 1",
                   "acknowledged; bytes behind the frame: 1"}),
    [](const auto& row) { return row.param.name; });

TEST(ExplainerTest, ABrokenCommandIsNotTheOneThatIsAnswered) {
    Explainer explainer;
    explainer.Command(EncodeFrame({}));
    EXPECT_EQ(explainer.Reply(EncodeFrame({})), "nothing to report");
    explainer.Command(Bytes{0x08, 0xF9});
    EXPECT_EQ(explainer.Reply(EncodeFrame({})), "acknowledged");
}

}  // namespace
}  // namespace zelvar::sim
