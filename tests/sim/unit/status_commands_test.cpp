// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/reports.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

using StatusCommands = UnitFixture;

TEST_F(StatusCommands, ProtocolVersion) {
    EXPECT_EQ(Ask({1, 2}), (Payload{1, 2, 0x19, 0x0A}));
}

TEST_F(StatusCommands, UnitTypeAndVersion) {
    EXPECT_EQ(Ask({1, 10}), (Payload{1, 10, 2, 1 << 3, 2 << 3}));
}

TEST_F(StatusCommands, TheOldUnitReportsItsOldProtocol) {
    unit_ = CentralUnit(OldUnitLayout());
    EXPECT_EQ(Ask({1, 2}), (Payload{1, 2, 3 << 3 | 1, 0}));
    EXPECT_EQ(Ask({1, 10})[2], 1);
}

struct ModuleCase {
    const char* name;
    int address;
    int status;
    int high;
    int low;
};

class ModuleStatusOf : public UnitFixture, public testing::WithParamInterface<ModuleCase> {};

TEST_P(ModuleStatusOf, IsReported) {
    const ModuleCase& row = GetParam();
    EXPECT_EQ(Ask({1, 11, row.address}),
              (Payload{1, 11, row.address, row.status, row.high, row.low}));
}

INSTANTIATE_TEST_SUITE_P(Modules, ModuleStatusOf,
                         testing::Values(ModuleCase{"VdF", 32, 0x08, 0x08, 0x13},
                                         ModuleCase{"VdFIdle", 33, 0x18, 8, 19},
                                         ModuleCase{"VdFFault", 34, 0x28, 8, 8},
                                         ModuleCase{"Absent", 35, 0, 0, 0},
                                         ModuleCase{"Vd60", 51, 0x09, 0x10, 0x0C},
                                         ModuleCase{"Vd60SecondUnit", 19, 0x19, 0x10, 0x0C},
                                         ModuleCase{"SecondUnitOfWrongType", 5, 0x08, 0x10, 0x0C},
                                         ModuleCase{"SecondUnitOfNoVd60", 0, 0, 0, 0},
                                         ModuleCase{"Qlrx", 40, 0x0A, 0x09, 0x02},
                                         ModuleCase{"WithoutVersion", 41, 0x1A, 0, 0},
                                         ModuleCase{"PointsHold", 65, 0x28, 0x0A, 0x01},
                                         ModuleCase{"PointsChannel1", 87, 0x08, 0x0A, 0},
                                         ModuleCase{"SignalIdle", 98, 0x18, 8, 5},
                                         ModuleCase{"LastSignal", 127, 0, 0, 0}),
                         [](const auto& row) { return row.param.name; });

TEST_F(StatusCommands, EveryAddressAnswersWithItself) {
    for (int address = 0; address < kModuleAddresses; ++address) {
        const Payload answer = Ask({1, 11, address});
        ASSERT_EQ(answer.size(), 6U);
        ASSERT_EQ(answer[2], address);
    }
}

TEST_F(StatusCommands, ClassicTablesOfTheMixedLayout) {
    // Modules 0, 1, 2, 4, 5, 6, 8, 9 of channel 0; those of channel 1 are not in these tables.
    EXPECT_EQ(Ask({1, 3, 2}), (Payload{1, 3, 0x27, 0x07, 0x03, 0}));
    EXPECT_EQ(Ask({1, 3, 4}), (Payload{1, 3, 0x40, 0, 0x03, 0}));
    EXPECT_EQ(Ask({1, 3, 3}), (Payload{1, 3, 0x34, 0x02, 0, 0}));
    EXPECT_EQ(Ask({1, 3, 6}), (Payload{1, 3, 0x6B, 0}));
    EXPECT_EQ(Ask({1, 3, 0}), (Payload{1, 3, 0x0F}));
}

TEST_F(StatusCommands, ClassicDipSwitchesAreActiveLow) {
    unit_ = CentralUnit(OldUnitLayout());
    EXPECT_EQ(Ask({1, 3, 0}), (Payload{1, 3, 0x0A}));
}

TEST_F(StatusCommands, UnknownTableIsAcknowledged) {
    EXPECT_EQ(Ask({1, 3, 1}), Payload{});
    EXPECT_EQ(Listed("unknown-commands"), "1");
}

TEST_F(StatusCommands, HeaderShowsFaultAndHold) {
    EXPECT_EQ(Send({})->headerBits, 0);
    unit_.state().hold = true;
    EXPECT_EQ(Send({})->headerBits, 0x10);
    unit_.state().fault = true;
    EXPECT_EQ(Send({})->headerBits, 0x30);
    EXPECT_EQ(Send({1, 2})->headerBits, 0x30);
}

TEST_F(StatusCommands, FaultResetClearsTheFaultAlone) {
    unit_.state().fault = true;
    unit_.state().hold = true;
    const auto reply = Send({1, 0});
    ASSERT_TRUE(reply);
    EXPECT_EQ(reply->data, Payload{});
    EXPECT_EQ(reply->headerBits, 0x10);
}

TEST_F(StatusCommands, PollBringsReportsOneByOneThenNothing) {
    unit_.state().reports.Push(OvercurrentReport(5, true));
    unit_.state().reports.Push(OvercurrentReport(5, false));
    // Only polls bring reports.
    EXPECT_EQ(Ask({1, 2}).size(), 4U);
    EXPECT_EQ(Poll(), OvercurrentReport(5, true));
    EXPECT_EQ(Poll(), OvercurrentReport(5, false));
    EXPECT_EQ(Poll(), Payload{});
}

TEST_F(StatusCommands, FeedbackRequestIsAnsweredAtOnce) {
    unit_.state().feedback.set(200);
    EXPECT_EQ(Ask({97, 72}), FeedbackReport(200, true));
    EXPECT_EQ(Ask({96, 0}), FeedbackReport(0, false));
    EXPECT_EQ(Ask({96 + 15, 127}), FeedbackReport(2047, false));
}

TEST_F(StatusCommands, FeedbackRequestBeyondTheInputsIsAcknowledged) {
    EXPECT_EQ(Ask({96 + 16, 0}), Payload{});
    EXPECT_EQ(Ask({127, 127}), Payload{});
    EXPECT_EQ(Listed("unknown-commands"), "0");
}

TEST_F(StatusCommands, UnknownCommandIsAcknowledgedAndCounted) {
    EXPECT_EQ(Ask({127, 1, 2, 3, 4, 5, 6}), Payload{});
    EXPECT_EQ(Listed("unknown-commands"), "1");
    EXPECT_EQ(Listed("frames"), "1");
}

TEST_F(StatusCommands, StopAndRepeatedToggleAreNoted) {
    unit_.Handle({kHeaderMark | kHeaderStopBit, {}}, now_);
    EXPECT_EQ(Listed("stop"), "1");
    EXPECT_EQ(Listed("repeated-toggles"), "0");
    unit_.Handle({kHeaderMark, {}}, now_);
    EXPECT_EQ(Listed("stop"), "0");
    EXPECT_EQ(Listed("repeated-toggles"), "1");
    unit_.Handle({kHeaderMark | kHeaderToggleBit, {}}, now_);
    EXPECT_EQ(Listed("repeated-toggles"), "1");
    EXPECT_EQ(Listed("command.poll"), "3");
}

TEST_F(StatusCommands, DeferredContentComesWithALaterPoll) {
    unit_.DeferContent(1);
    EXPECT_EQ(Ask({1, 0}), Payload{});  // has no content to defer
    EXPECT_EQ(Ask({1, 2}), Payload{});
    EXPECT_EQ(Poll(), (Payload{1, 2, 0x19, 0x0A}));
    EXPECT_EQ(Ask({1, 2}).size(), 4U);
}

}  // namespace
}  // namespace zelvar::sim
