// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "config/selection_list.h"
#include "status/status_request_fixture.h"

namespace zelvar::testing {
namespace {

using Requests = std::vector<std::vector<int>>;
using NewViewRequest = StatusRequestFixture;

/// The request for every module slot in order, the secondary units of some lines among them.
Requests ModuleRequests(const std::vector<int>& linesWithSecondaryAsked) {
    Requests requests;
    for (int m = 0; m < 32; ++m) {
        requests.push_back({1, 11, 32 + m});
        for (const int line : linesWithSecondaryAsked) {
            if (line == m) {
                requests.push_back({1, 11, m});
            }
        }
    }
    for (const int first : {64, 80}) {
        for (int module = 0; module < 8; ++module) {
            requests.push_back({1, 11, first + module});
        }
    }
    for (int k = 0; k < 32; ++k) {
        requests.push_back({1, 11, 96 + k});
    }
    return requests;
}

TEST_F(NewViewRequest, AsksEverySlotInOrderAndTheSecondaryUnitsOfVd60sOnly) {
    layout = MixedLayout();
    ASSERT_TRUE(Run());
    Requests expected{{1, 2}, {1, 10}};
    for (const auto& request : ModuleRequests({5, 19})) {
        expected.push_back(request);
    }
    expected.emplace_back();
    EXPECT_EQ(port.SentValues(), expected);
}

TEST_F(NewViewRequest, AMixedLayoutIsReadIntoTheReport) {
    layout = MixedLayout();
    const auto status = Run();
    ASSERT_TRUE(status);
    const auto vd = [&](std::size_t i) {
        return std::string(ModuleStateText(status->vd[i].state)) + '|' + VersionText(status->vd[i]);
    };
    EXPECT_EQ(vd(0), "OK|1.02 A");
    EXPECT_EQ(vd(1), "--|--");
    EXPECT_EQ(vd(5), "Idle|2.00");
    EXPECT_EQ(vd(37), "--|--");
    EXPECT_EQ(vd(19), "OK|1.02");
    EXPECT_EQ(vd(51), "Fault|1.03");
    EXPECT_EQ(vd(20), "Fault|?");
    EXPECT_EQ(vd(31), "OK|1.00");
    EXPECT_EQ(VDTypeText(status->vdTypes[0]), "VD-F");
    EXPECT_EQ(VDTypeText(status->vdTypes[1]), "--");
    EXPECT_EQ(VDTypeText(status->vdTypes[5]), "VD60");
    EXPECT_EQ(VDTypeText(status->vdTypes[20]), "QLRX-s");
    EXPECT_EQ(VDTypeText(status->vdTypes[31]), "?");
    EXPECT_EQ(ModuleStateText(status->js[0].state), "OK");
    EXPECT_EQ(JsVersionText(status->js[0]), "1.10");
    EXPECT_EQ(ModuleStateText(status->js[9].state), "Hold");
    EXPECT_EQ(JsVersionText(status->js[9]), "--");
    EXPECT_EQ(ModuleStateText(status->yr[2].state), "OK");
    EXPECT_EQ(VersionText(status->yr[2]), "?");
    EXPECT_EQ(ModuleStateText(status->yr[17].state), "Idle");
    EXPECT_EQ(VersionText(status->yr[17]), "1.01");
}

TEST_F(NewViewRequest, AMixedLayoutFillsTheRegistry) {
    layout = MixedLayout();
    ASSERT_TRUE(Run());
    std::array<VDType, 64> types{};
    types[0] = VDType::VdF;
    types[5] = VDType::Vd60;
    types[19] = VDType::Vd60;
    types[51] = VDType::Vd60;
    types[20] = VDType::QlrxS;
    types[31] = VDType::Unknown;
    EXPECT_EQ(registry.vdTypes, types);
    std::array<bool, 16> present{};
    present[0] = true;
    present[9] = true;
    EXPECT_EQ(registry.jsPresent, present);
}

TEST_F(NewViewRequest, AVd60PairOnChannel1FillsBothItsLinesAndTheList) {
    layout.modules = {{32 + 16 + 3, {kHere + kVd60Type, 1020}},
                      {16 + 3, {kHere + kVd60Type, 1020}}};
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->vd[19].state, ModuleState::Ok);
    EXPECT_EQ(status->vd[51].state, ModuleState::Ok);
    const SelectionList list = TractionModuleList(registry, false);
    ASSERT_EQ(list.entries.size(), 4U);
    EXPECT_EQ(list.entries[0].text, "All_VDxx");
    EXPECT_EQ(list.entries[1].text, "All_VD60");
    EXPECT_EQ(list.entries[2], (SelectionEntry{" 19.0", 19}));
    EXPECT_EQ(list.entries[3], (SelectionEntry{" 19.1", 51}));
}

TEST_F(NewViewRequest, AVersionOfZeroIsAQuestionMarkButForPointMotorModules) {
    layout.modules = {{32, {kHere + kVd60Type, 0}},
                      {0, {kHere + kVd60Type, 0}},
                      {64, {kHere, 0}},
                      {96, {kHere, 0}}};
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(VersionText(status->vd[0]), "?");
    EXPECT_EQ(VersionText(status->vd[32]), "?");
    EXPECT_EQ(JsVersionText(status->js[0]), "--");
    EXPECT_EQ(VersionText(status->yr[0]), "?");
}

TEST_F(NewViewRequest, SignalControllersAreNotRegistered) {
    for (int k = 0; k < 32; ++k) {
        layout.modules[96 + k] = {kHere, 1020};
    }
    ASSERT_TRUE(Run());
    EXPECT_EQ(registry.vdTypes, ModuleRegistry().vdTypes);
    EXPECT_EQ(registry.jsPresent, ModuleRegistry().jsPresent);
}

struct WrongReplyRow {
    const char* name;
    /// What comes for the request of an address.
    std::vector<int> (*reply)(int address);
};

class WrongModuleReplies : public StatusRequestFixture,
                           public ::testing::WithParamInterface<WrongReplyRow> {};

TEST_P(WrongModuleReplies, LeaveTheModulesOut) {
    for (const int address : {32 + 4, 64 + 4, 96 + 4}) {
        layout.instead[{1, 11, address}] = GetParam().reply(address);
    }
    layout.modules[32 + 5] = {kHere + kVd60Type, 1020};
    layout.instead[{1, 11, 5}] = GetParam().reply(5);
    const auto status = Run();
    ASSERT_TRUE(status);
    for (const ModuleLine& line : {status->vd[4], status->vd[37], status->js[4], status->yr[4]}) {
        EXPECT_EQ(line.state, ModuleState::Absent);
        EXPECT_EQ(VersionText(line), "--");
    }
    EXPECT_EQ(registry.vdTypes[4], VDType::Absent);
    EXPECT_EQ(registry.vdTypes[37], VDType::Absent);
    EXPECT_EQ(registry.jsPresent[4], false);
}

INSTANTIATE_TEST_SUITE_P(
    Replies, WrongModuleReplies,
    ::testing::Values(
        WrongReplyRow{"Empty", [](int) { return std::vector<int>{}; }},
        WrongReplyRow{"OtherAddress",
                      [](int a) { return std::vector<int>{1, 11, a ^ 1, kHere + 1, 8, 16}; }},
        WrongReplyRow{"TooShort",
                      [](int a) {
                          return std::vector<int>{1, 11, a, kHere + 1, 8};
                      }},
        WrongReplyRow{"TooLong",
                      [](int a) { return std::vector<int>{1, 11, a, kHere + 1, 8, 16, 0}; }},
        WrongReplyRow{"OtherRequest",
                      [](int a) { return std::vector<int>{1, 10, a, kHere + 1, 8, 16}; }},
        WrongReplyRow{"OtherFamily",
                      [](int a) { return std::vector<int>{0, 11, a, kHere + 1, 8, 16}; }}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(NewViewRequest, AModuleWithoutReplyIsLeftOutAndTheOthersAreAsked) {
    layout = MixedLayout();
    layout.silent = {{1, 11, 32}};
    const auto status = Run();
    ASSERT_TRUE(status);
    EXPECT_EQ(status->vd[0].state, ModuleState::Absent);
    EXPECT_EQ(registry.vdTypes[0], VDType::Absent);
    EXPECT_EQ(registry.vdTypes[19], VDType::Vd60);
    EXPECT_EQ(messageBox.shown.size(), 1U);
}

TEST_F(NewViewRequest, ASecondRequestForgetsWhatIsGone) {
    layout = MixedLayout();
    ASSERT_TRUE(Run());
    layout.modules.clear();
    ASSERT_TRUE(Run());
    EXPECT_EQ(registry.vdTypes, ModuleRegistry().vdTypes);
    EXPECT_EQ(registry.jsPresent, ModuleRegistry().jsPresent);
}

TEST_F(NewViewRequest, NothingToFindLeavesEveryLineAbsent) {
    const auto status = Run();
    ASSERT_TRUE(status);
    for (const ModuleLine& line : status->vd) {
        EXPECT_EQ(std::string(ModuleStateText(line.state)) + VersionText(line), "----");
    }
    for (const ModuleLine& line : status->js) {
        EXPECT_EQ(std::string(ModuleStateText(line.state)) + JsVersionText(line), "----");
    }
    for (const ModuleLine& line : status->yr) {
        EXPECT_EQ(std::string(ModuleStateText(line.state)) + VersionText(line), "----");
    }
    for (const VDType type : status->vdTypes) {
        EXPECT_EQ(VDTypeText(type), "--");
    }
}

TEST_F(NewViewRequest, ProgressCountsEverySlot) {
    ASSERT_TRUE(Run());
    ASSERT_EQ(progress.begun.size(), 2U);
    EXPECT_EQ(progress.begun[1].second, 80);
    EXPECT_EQ(progress.done, 80);
    EXPECT_EQ(progress.ended, 1);
}

}  // namespace
}  // namespace zelvar::testing
