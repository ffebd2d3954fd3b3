// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/module_commands.h"

#include <gtest/gtest.h>

#include <string>

#include "config_fixture.h"

namespace zelvar::testing {
namespace {

constexpr ModuleCommand kVDSet{kTargetVD, 3, 8, 1, 9};
constexpr ModuleCommand kJsSet{kTargetJs, 3, 32, 7, 50};

class ModuleCommandsTest : public ConfigFixture {
  protected:
    void Send(const ModuleCommand& command) {
        ModuleCommands commands(services, {[this] { return ChosenVDModules(registry, cboVD); },
                                           [this] { return ChosenJsModules(cboJS); }});
        commands.SendModuleCommand(command);
    }

    ModuleRegistry registry = MixedRegistry();
    ModuleSelection cboVD{3, 5};
    ModuleSelection cboJS{3, 9};
};

TEST_F(ModuleCommandsTest, BracketsACommandBetweenTwoEmptyTransactions) {
    Send(kVDSet);
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 37, 8, 1, 9}, {}}));
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(ModuleCommandsTest, WithThePortClosedTellsToSelectOneAndSendsNothing) {
    port.open = false;
    Send(kVDSet);
    EXPECT_TRUE(port.sent.empty());
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")});
}

TEST_F(ModuleCommandsTest, SendsOnlyTheEmptyTransactionsWhileNoTractionModuleIsRegistered) {
    cboVD = {};
    Send(kVDSet);
    EXPECT_EQ(port.SentValues(), (Frames{{}, {}}));
    EXPECT_EQ(messageBox.shown,
              std::vector{Exclamation("Please request Status first to register modules")});
}

TEST_F(ModuleCommandsTest, SendsOnlyTheEmptyTransactionsWhileNoPointMotorModuleIsRegistered) {
    cboJS = {};
    Send(kJsSet);
    EXPECT_EQ(port.SentValues(), (Frames{{}, {}}));
    EXPECT_EQ(messageBox.shown,
              std::vector{Exclamation("Please request Status first to register modules")});
}

TEST_F(ModuleCommandsTest, SendsOnlyTheEmptyTransactionsWhenNoEntryIsSelected) {
    cboVD.data.reset();
    cboJS.data.reset();
    Send(kVDSet);
    Send(kJsSet);
    EXPECT_EQ(port.SentValues(), (Frames{{}, {}, {}, {}}));
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(ModuleCommandsTest, SendsOnlyTheEmptyTransactionsToAnUnknownTarget) {
    Send({96, 3, 8, 1, 9});
    EXPECT_EQ(port.SentValues(), (Frames{{}, {}}));
}

TEST_F(ModuleCommandsTest, SendsOneCommandToTheCentralUnitWithItsCountUnchanged) {
    cboVD = {};
    cboJS = {};
    Send({kTargetUnit, 4, 6, 0, 2});
    EXPECT_EQ(port.SentValues(), (Frames{{}, {1, 6, 0, 2}, {}}));
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(ModuleCommandsTest, AddressesPointMotorModuleNineOnChannelOne) {
    Send(kJsSet);
    EXPECT_EQ(port.SentValues(), (Frames{{}, {0, 81, 32, 7, 50}, {}}));
}

TEST_F(ModuleCommandsTest, AllPointMotorModulesAreSixteenPositionsRegisteredOrNot) {
    cboJS.data = kAllJs;
    Send({kTargetJs, 1, 64, 0, 0});
    Frames expected{{}};
    for (const int address : {64, 65, 66, 67, 68, 69, 70, 71, 80, 81, 82, 83, 84, 85, 86, 87}) {
        expected.push_back({0, address, 64});
    }
    expected.push_back({});
    EXPECT_EQ(port.SentValues(), expected);
    EXPECT_EQ(progress.begun.size(), 1U);
    EXPECT_EQ(progress.begun[0].second, 16);
    EXPECT_EQ(progress.done, 16);
    EXPECT_EQ(progress.ended, 1);
}

TEST_F(ModuleCommandsTest, ShowsNoProgressForASingleModule) {
    Send(kVDSet);
    EXPECT_TRUE(progress.begun.empty());
}

TEST_F(ModuleCommandsTest, WithTheFirstEmptyTransactionFailedNothingMoreIsSent) {
    port.responder = [](const SentFrame&) { return Bytes(); };
    Send(kVDSet);
    EXPECT_EQ(port.SentValues(), (Frames{{}}));
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

TEST_F(ModuleCommandsTest, IgnoresThatTheClosingTransactionFails) {
    port.replies = {EmptyReply(), EmptyReply(), Bytes{}};
    Send({kTargetUnit, 4, 6, 0, 2});
    EXPECT_EQ(port.sent.size(), 3U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

TEST_F(ModuleCommandsTest, AfterAFailureOfTheCentralUnitNoClosingTransactionFollows) {
    port.replies = {EmptyReply(), Bytes{}};
    Send({kTargetUnit, 4, 6, 0, 2});
    EXPECT_EQ(port.SentValues(), (Frames{{}, {1, 6, 0, 2}}));
}

TEST_F(ModuleCommandsTest, ADeviceThatVanishesEndsTheCommandWithOneMessage) {
    cboVD.data = kAllVDxx;
    port.responder = [this](const SentFrame& frame) {
        if (frame.values.size() == 5) {
            port.Vanish();
        }
        return EmptyReply();
    };
    Send(kVDSet);
    EXPECT_EQ(port.sent.size(), 2U);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    Send(kVDSet);
    EXPECT_EQ(port.sent.size(), 2U);
    EXPECT_EQ(messageBox.shown.back(), Exclamation("Please select Comm-Port"));
}

class FailureInGroup : public ModuleCommandsTest, public ::testing::WithParamInterface<int> {};

TEST_P(FailureInGroup, SkipsTheRemainingModulesAndTheClosingTransaction) {
    const int failing = GetParam();
    cboVD.data = kAllVDxx;
    int commands = 0;
    port.responder = [&](const SentFrame& frame) {
        const bool fails = !frame.values.empty() && ++commands == failing;
        return fails ? Bytes() : EmptyReply();
    };
    Send(kVDSet);
    // The opening transaction and the commands up to the one that failed.
    EXPECT_EQ(port.sent.size(), static_cast<std::size_t>(1 + failing));
    EXPECT_FALSE(port.sent.back().values.empty());
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_EQ(progress.ended, 1);
}

INSTANTIATE_TEST_SUITE_P(OfEightModules, FailureInGroup, ::testing::Range(1, 9));

struct GroupCase {
    const char* name;
    int data;
    std::vector<int> lines;
};

class Group : public ::testing::TestWithParam<GroupCase> {};

TEST_P(Group, AddressesTheLinesOfItsTypesInAscendingOrder) {
    const ChosenModules chosen = ChosenVDModules(MixedRegistry(), {9, GetParam().data});
    EXPECT_TRUE(chosen.registered);
    EXPECT_EQ(chosen.modules, GetParam().lines);
}

// The VD-F in line 40 and the QLRX-s in line 60 lie beyond the lines that their groups look at;
// All_VDxx looks at all 64.
INSTANTIATE_TEST_SUITE_P(OfMixedRegistry, Group,
                         ::testing::Values(GroupCase{"AllVD60", -4, {5, 19, 37, 51}},
                                           GroupCase{"AllQlrx", -3, {7, 16}},
                                           GroupCase{"AllVDF", -2, {0, 15, 31}},
                                           GroupCase{"AllVDxx", -1, {0, 5, 15, 19, 31, 37, 40, 51}},
                                           GroupCase{"SingleOfUnknownType", 12, {12}},
                                           GroupCase{"SingleThatIsNotRegistered", 33, {33}}),
                         [](const auto& row) { return std::string(row.param.name); });

struct AddressCase {
    const char* name;
    int module;
    int address;
    int code;
};

class VDAddress : public ::testing::TestWithParam<AddressCase> {};

TEST_P(VDAddress, CarriesTheLowFiveBitsAndMovesTheSixthIntoTheCode) {
    const Command command = CommandForVD(kVDSet, GetParam().module);
    EXPECT_EQ(command.count, 5);
    EXPECT_EQ(command.values[0], 0);
    EXPECT_EQ(command.values[1], GetParam().address);
    EXPECT_EQ(command.values[2], GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(OfLines, VDAddress,
                         ::testing::Values(AddressCase{"FirstOfChannel0", 0, 32, 8},
                                           AddressCase{"LastOfChannel0", 15, 47, 8},
                                           AddressCase{"FirstOfChannel1", 16, 48, 8},
                                           AddressCase{"LastOfChannel1", 31, 63, 8},
                                           AddressCase{"FirstSecondary", 32, 32, 24},
                                           AddressCase{"Module37", 37, 37, 24},
                                           AddressCase{"LastSecondary", 63, 63, 24}),
                         [](const auto& row) { return std::string(row.param.name); });

}  // namespace
}  // namespace zelvar::testing
