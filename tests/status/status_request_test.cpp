// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/status_request.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "status/status_request_fixture.h"

namespace zelvar::testing {
namespace {

using Requests = std::vector<std::vector<int>>;
using Notes = std::vector<std::pair<std::string, std::size_t>>;

const std::vector<int> kEmpty{};

struct ViewRow {
    const char* name;
    int protocolVersion;
    bool classicAsked;
    bool classic;
};

using StatusRequestTest = StatusRequestFixture;

class ViewChoice : public StatusRequestFixture, public ::testing::WithParamInterface<ViewRow> {};

TEST_P(ViewChoice, FollowsTheProtocolVersionAndTheUser) {
    layout.protocolVersion = GetParam().protocolVersion;
    const auto status = Run(GetParam().classicAsked);
    ASSERT_TRUE(status);
    EXPECT_EQ(status->classic, GetParam().classic);
    EXPECT_EQ(status->protocolVersion, GetParam().protocolVersion);
}

INSTANTIATE_TEST_SUITE_P(Views, ViewChoice,
                         ::testing::Values(ViewRow{"LastOld", 3100, false, true},
                                           ViewRow{"FirstNew", 3101, false, false},
                                           ViewRow{"NewButClassicAsked", 3200, true, true},
                                           ViewRow{"New", 3200, false, false},
                                           ViewRow{"VeryOld", 0, false, true}),
                         [](const auto& row) { return std::string(row.param.name); });

struct StateRow {
    const char* name;
    int header;
    int state;
    const char* text;
};

class SystemStates : public StatusRequestFixture, public ::testing::WithParamInterface<StateRow> {};

TEST_P(SystemStates, ComeFromTheHeaderOfTheFirstReply) {
    layout.header = GetParam().header;
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->systemState, GetParam().state);
    EXPECT_EQ(SystemStateName(status->systemState), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(States, SystemStates,
                         ::testing::Values(StateRow{"Ok", 0x00, 0, "OK"},
                                           StateRow{"OkWithToggle", 0x40, 0, "OK"},
                                           StateRow{"Hold", 0x10, 1, "Hold"},
                                           StateRow{"Fault", 0x20, 2, "Fault"},
                                           StateRow{"FaultAndHold", 0x30, 3, "Fault+Hold"}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST(SystemStateNameTest, OtherValuesAreUnknown) {
    EXPECT_EQ(SystemStateName(4), "?");
    EXPECT_EQ(SystemStateName(-1), "?");
}

TEST_F(StatusRequestTest, AFirstRequestWithoutReplyEndsItWithOneBoxAndTheOldRegistry) {
    registry.vdTypes[3] = VDType::VdF;
    registry.jsPresent[2] = true;
    port.replies = {Bytes{}};
    EXPECT_FALSE(Run());
    EXPECT_EQ(port.sent.size(), 1U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_EQ(registry.vdTypes[3], VDType::VdF);
    EXPECT_EQ(registry.jsPresent[2], true);
    EXPECT_EQ(progress.ended, 1);
}

struct MismatchRow {
    const char* name;
    std::vector<int> reply;
};

class VersionMismatch : public StatusRequestFixture,
                        public ::testing::WithParamInterface<MismatchRow> {};

TEST_P(VersionMismatch, IsWaitedOutWithEmptyPolls) {
    port.replies = {WireFrame(GetParam().reply), EmptyReply(), WireFrame({1, 2, 0x19, 0x0A})};
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->protocolVersion, 3112);
    const Requests sent = port.SentValues();
    EXPECT_EQ(Requests(sent.begin(), sent.begin() + 4), (Requests{{1, 2}, {}, {}, {1, 10}}));
}

INSTANTIATE_TEST_SUITE_P(Replies, VersionMismatch,
                         ::testing::Values(MismatchRow{"Empty", {}},
                                           MismatchRow{"TooShort", {1, 2, 0x19}},
                                           MismatchRow{"TooLong", {1, 2, 0x19, 0x0A, 0}},
                                           MismatchRow{"OtherFamily", {0, 2, 0x19, 0x0A}},
                                           MismatchRow{"OtherRequest", {1, 3, 0x19, 0x0A}}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(StatusRequestTest, TheStateIsNotTakenFromALaterReply) {
    port.replies = {WireFrame({}, kHeaderOfHold), WireFrame({1, 2, 0x19, 0x0A}, kHeaderOfFault)};
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->systemState, 1);
}

TEST_F(StatusRequestTest, TheWaitForTheVersionHasNoEndOfItsOwn) {
    layout.instead[{1, 2}] = {};
    int polls = 0;
    constexpr int kMany = 1000;
    port.responder = [&](const SentFrame& frame) {
        if (frame.values.empty() && ++polls == kMany) {
            return WireFrame({1, 2, 0x19, 0x0A});
        }
        return layout(frame);
    };
    EXPECT_TRUE(Run());
    // The last one is the poll that ends every request.
    EXPECT_EQ(polls, kMany + 1);
}

TEST_F(StatusRequestTest, APollWithoutReplyDoesNotEndTheWait) {
    port.replies = {EmptyReply(), Bytes{}, WireFrame({1, 2, 0x19, 0x0A})};
    EXPECT_TRUE(Run());
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

TEST_F(StatusRequestTest, CancelIsOfferedOnceTheWaitHasLastedTwoSecondsAndNotBefore) {
    layout.instead[{1, 2}] = {};
    port.replyDelay = 0.4;
    std::vector<double> notOffered;
    double offeredAt = 0;
    const double start = clock.now + port.replyDelay;
    port.responder = [&](const SentFrame& frame) {
        if (progress.offered == 0) {
            notOffered.push_back(clock.now - start);
        } else if (offeredAt == 0) {
            offeredAt = clock.now - start;
        } else {
            return WireFrame({1, 2, 0x19, 0x0A});
        }
        return layout(frame);
    };
    EXPECT_TRUE(Run());
    EXPECT_LT(notOffered.back(), 2.0);
    EXPECT_GE(offeredAt, 2.0);
    EXPECT_LT(offeredAt, 2.5);
    EXPECT_EQ(progress.offered, 1);
}

TEST_F(StatusRequestTest, CancelIsOfferedAlsoAcrossMidnight) {
    layout.instead[{1, 2}] = {};
    clock.now = kSecondsPerDay - 1;
    port.replyDelay = 0.3;
    progress.cancelAfterAsked = 0;
    double cancelledAt = 0;
    port.responder = [&](const SentFrame& frame) {
        cancelledAt = clock.now;
        return layout(frame);
    };
    EXPECT_FALSE(Run());
    EXPECT_EQ(progress.offered, 1);
    EXPECT_LT(cancelledAt, 3.0);
}

TEST_F(StatusRequestTest, NoCancelIsOfferedWhenTheVersionComesAtOnce) {
    EXPECT_TRUE(Run());
    EXPECT_EQ(progress.offered, 0);
}

TEST_F(StatusRequestTest, CancelEndsItAsAFailedFirstRequestDoes) {
    layout.instead[{1, 2}] = {};
    port.replyDelay = 0.4;
    progress.cancelAfterAsked = 3;
    registry.vdTypes[3] = VDType::VdF;
    EXPECT_FALSE(Run());
    EXPECT_EQ(registry.vdTypes[3], VDType::VdF);
    EXPECT_TRUE(messageBox.shown.empty());
    EXPECT_EQ(progress.ended, 1);
    const Requests sent = port.SentValues();
    EXPECT_EQ(Requests(sent.begin() + 1, sent.end()), Requests(sent.size() - 1, kEmpty));
}

TEST_F(StatusRequestTest, ADeviceThatVanishesDuringTheWaitEndsIt) {
    layout.instead[{1, 2}] = {};
    int polls = 0;
    port.responder = [&](const SentFrame& frame) {
        if (frame.values.empty() && ++polls == 3) {
            port.Vanish();
        }
        return layout(frame);
    };
    EXPECT_FALSE(Run());
    EXPECT_EQ(port.sent.size(), 4U);
    EXPECT_EQ(messageBox.shown.size(), 1U);
}

TEST_F(StatusRequestTest, ADeviceThatVanishesAmongTheModulesEndsItWithOneBox) {
    layout = MixedLayout();
    port.responder = [&](const SentFrame& frame) {
        if (port.sent.size() == 10) {
            port.Vanish();
        }
        return layout(frame);
    };
    EXPECT_FALSE(Run());
    EXPECT_EQ(port.sent.size(), 10U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_FALSE(timer.enabled);
    // What was found stays in view; the lists were not reached.
    EXPECT_EQ(requestView.shown.back().vdTypes[5], VDType::Vd60);
    EXPECT_EQ(requestView.notes, (Notes{{"unit", 2}}));
}

TEST_F(StatusRequestTest, ADeviceThatVanishesWithTheLastPollEndsItToo) {
    const auto all = [this] {
        port.ForgetSent();
        Run();
        return port.sent.size();
    }();
    port.ForgetSent();
    port.responder = [&](const SentFrame& frame) {
        if (port.sent.size() == all) {
            port.Vanish();
        }
        return layout(frame);
    };
    EXPECT_FALSE(Run());
}

TEST_F(StatusRequestTest, TheUnitAndTheListsAreShownBeforeTheNextFamilyIsAsked) {
    layout = MixedLayout();
    ASSERT_TRUE(Run());
    // Two questions about the unit, 32 traction modules with two second units, 16 point motors.
    EXPECT_EQ(requestView.notes, (Notes{{"unit", 2}, {"traction", 36}, {"points", 52}}));
}

TEST_F(StatusRequestTest, TheClassicListsAreShownBeforeTheNextTableIsAsked) {
    ASSERT_TRUE(Run(true));
    EXPECT_EQ(requestView.notes,
              (Notes{{"unit", 2}, {"classic traction", 6}, {"classic points", 7}}));
}

TEST_F(StatusRequestTest, EveryModuleIsShownWhenItHasAnsweredAndNotBefore) {
    layout = MixedLayout();
    ASSERT_TRUE(Run());
    const std::vector<SystemStatus>& shown = requestView.shown;
    ASSERT_EQ(shown.size(), 1U + 32 + 16 + 32);
    // The first one has everything cleared but what is known of the system.
    EXPECT_EQ(shown[0].protocolVersion, 3112);
    EXPECT_EQ(shown[0].unit.type, 3);
    for (const std::size_t line : {0U, 5U, 19U, 20U, 31U}) {
        EXPECT_EQ(shown[line].vdTypes[line], VDType::Absent) << line;
        EXPECT_EQ(shown[line + 1].vdTypes[line], shown.back().vdTypes[line]) << line;
        EXPECT_NE(shown[line + 1].vd[line].state, ModuleState::Absent) << line;
    }
    EXPECT_EQ(shown[32 + 9].js[9].state, ModuleState::Absent);
    EXPECT_EQ(shown[32 + 10].js[9].state, ModuleState::Hold);
    EXPECT_EQ(shown[48 + 17].yr[17].state, ModuleState::Absent);
    EXPECT_EQ(shown[48 + 18].yr[17].state, ModuleState::Idle);
}

TEST_F(StatusRequestTest, ACancelledWaitShowsNothing) {
    layout.instead[{1, 2}] = {};
    progress.cancelAfterAsked = 0;
    port.replyDelay = 0.4;
    EXPECT_FALSE(Run());
    EXPECT_TRUE(requestView.shown.empty());
    EXPECT_TRUE(requestView.notes.empty());
}

TEST_F(StatusRequestTest, ACentralUnitThatDoesNotAnswerStaysUnknown) {
    layout.silent = {{1, 10}};
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->unit.type, -1);
    EXPECT_EQ(status->unit.version, -1);
    EXPECT_EQ(messageBox.shown.size(), 1U);
}

class UnitMismatch : public StatusRequestFixture,
                     public ::testing::WithParamInterface<MismatchRow> {};

TEST_P(UnitMismatch, LeavesTheCentralUnitUnknown) {
    layout.instead[{1, 10}] = GetParam().reply;
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->unit.type, -1);
    EXPECT_EQ(status->unit.version, -1);
}

INSTANTIATE_TEST_SUITE_P(Replies, UnitMismatch,
                         ::testing::Values(MismatchRow{"Empty", {}},
                                           MismatchRow{"TooShort", {1, 10, 3, 8}},
                                           MismatchRow{"TooLong", {1, 10, 3, 8, 16, 0}},
                                           MismatchRow{"OtherFamily", {2, 10, 3, 8, 16}},
                                           MismatchRow{"OtherRequest", {1, 11, 3, 8, 16}}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(StatusRequestTest, TheCentralUnitsTypeAndVersionAreRead) {
    layout.unit = {10, 1021};
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->unit.type, 10);
    EXPECT_EQ(status->unit.version, 1021);
}

TEST_F(StatusRequestTest, PollingIsOnAfterwards) {
    EXPECT_TRUE(Run());
    EXPECT_TRUE(timer.enabled);
}

}  // namespace
}  // namespace zelvar::testing
