// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/unit/memories.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

constexpr int kPermanent = 64;

class ModuleMemory : public UnitFixture {
  protected:
    /// The answer to a request, which comes with the next poll.
    Payload Get(const Payload& request) {
        EXPECT_EQ(Ask(request), Payload{});
        return Poll();
    }
};

struct UnitCase {
    const char* name;
    int line;
    int address;  // in configuration commands
    int second;   // the bit of a second unit
};

std::vector<int> TractionParameters() {
    std::vector<int> parameters;
    for (const TractionSetting& setting : kTractionSettings) {
        parameters.push_back(setting.parameter);
    }
    return parameters;
}

class TractionMemory : public ModuleMemory, public testing::WithParamInterface<UnitCase> {};

TEST_P(TractionMemory, KeepsEveryParameterInBothPartsApart) {
    const UnitCase& unit = GetParam();
    for (const int parameter : TractionParameters()) {
        for (const int permanent : {0, kPermanent}) {
            const int value = parameter * 3 + (permanent != 0 ? 60 : 0);
            EXPECT_EQ(Ask({0, unit.address, 8 + unit.second, permanent + parameter, value}),
                      Payload{});
        }
    }
    for (const int parameter : TractionParameters()) {
        for (const int permanent : {0, kPermanent}) {
            const bool clock = parameter == 15 && permanent == 0 && unit.line != 8;
            const int value = clock ? 0 : parameter * 3 + (permanent != 0 ? 60 : 0);
            EXPECT_EQ(Get({0, unit.address, 8 + unit.second, permanent + parameter}),
                      (Payload{0, unit.address, 10 + unit.second, permanent + parameter, value}))
                << parameter << ' ' << permanent;
        }
    }
}

TEST_P(TractionMemory, RebootBringsThePermanentSettingsBack) {
    const UnitCase& unit = GetParam();
    Ask({0, unit.address, 8 + unit.second, 1, 3});
    Ask({0, unit.address, 8 + unit.second, kPermanent + 1, 11});
    EXPECT_EQ(Get({0, unit.address, 8 + unit.second, 1})[4], 3);
    unit_.Reboot(now_);
    EXPECT_EQ(Get({0, unit.address, 8 + unit.second, 1})[4], 11);
}

TEST_P(TractionMemory, EraseRestoresTheFactorySettingsOfBothParts) {
    const UnitCase& unit = GetParam();
    Ask({0, unit.address, 8 + unit.second, 1, 3});
    Ask({0, unit.address, 8 + unit.second, kPermanent + 2, 4});
    EXPECT_EQ(Ask({0, unit.address, 8 + unit.second, kPermanent}), Payload{});
    const auto& memory = unit_.state().memories.traction[unit.line];
    EXPECT_EQ(memory.active, FactoryTractionSettings(unit.line));
    EXPECT_EQ(memory.permanent, FactoryTractionSettings(unit.line));
}

TEST_P(TractionMemory, ReportsItsClockState) {
    const UnitCase& unit = GetParam();
    unit_.state().layout.At(LineAddress(unit.line)).clock = 4;
    const int expected = unit.line == 8 ? 8 : 4;  // a QLRX-s reports its address instead
    EXPECT_EQ(Get({0, unit.address, 8 + unit.second, 15})[4], expected);
}

INSTANTIATE_TEST_SUITE_P(Units, TractionMemory,
                         testing::Values(UnitCase{"VdF", 0, 32, 0},
                                         UnitCase{"Vd60Channel1", 19, 51, 0},
                                         UnitCase{"Vd60SecondUnit", 36, 36, 16},
                                         UnitCase{"SecondUnitChannel1", 51, 51, 16},
                                         UnitCase{"Qlrx", 8, 40, 0}),
                         [](const auto& row) { return row.param.name; });

TEST_F(ModuleMemory, ASecondUnitHasAMemoryOfItsOwn) {
    Ask({0, 51, 8, 9, 4});
    Ask({0, 51, 24, 9, 32});
    EXPECT_EQ(Get({0, 51, 8, 9}), (Payload{0, 51, 10, 9, 4}));
    EXPECT_EQ(Get({0, 51, 24, 9}), (Payload{0, 51, 26, 9, 32}));
}

TEST_F(ModuleMemory, StartsWithTheModulesOwnAddress) {
    EXPECT_EQ(Get({0, 40, 8, kPermanent + 15})[4], 8);
    EXPECT_EQ(Get({0, 51, 8, kPermanent + 15})[4], 3);
    EXPECT_EQ(Get({0, 51, 24, kPermanent + 15})[4], 3);
}

TEST_F(ModuleMemory, StartsWithOneMasterAndGoodClocks) {
    EXPECT_EQ(Get({0, 32, 8, 11})[4], 1);
    EXPECT_EQ(Get({0, 33, 8, 11})[4], 2);
    EXPECT_EQ(Get({0, 32, 8, 15})[4], 0);
}

TEST_F(ModuleMemory, AnAbsentModuleAnswersNothingAndKeepsNothing) {
    EXPECT_EQ(Get({0, 35, 8, 1}), Payload{});
    EXPECT_EQ(Ask({0, 35, 8, 1, 5}), Payload{});
    EXPECT_EQ(Ask({0, 35, 8, kPermanent}), Payload{});
    EXPECT_EQ(unit_.state().memories.traction[3].active, FactoryTractionSettings(3));
    EXPECT_EQ(Get({0, 64 + 2, 34}), Payload{});
    EXPECT_EQ(Get({0, 64 + 8, 34}), Payload{});  // no place for a point module
}

TEST_F(ModuleMemory, ParametersThatDoNotExistAreNeitherSetNorAnswered) {
    for (const int parameter : {0, kTractionParameters, 63, kPermanent + kTractionParameters}) {
        EXPECT_EQ(Get({0, 32, 8, parameter}), Payload{}) << parameter;
    }
    const auto before = unit_.state().memories.traction[0].active;
    Ask({0, 32, 8, 0, 5});
    Ask({0, 32, 8, kTractionParameters, 5});
    EXPECT_EQ(unit_.state().memories.traction[0].active, before);
}

TEST_F(ModuleMemory, AMutedModuleKeepsButDoesNotAnswer) {
    unit_.state().muted.set(32);
    Ask({0, 32, 8, 1, 5});
    EXPECT_EQ(Get({0, 32, 8, 1}), Payload{});
    unit_.state().muted.reset(32);
    EXPECT_EQ(Get({0, 32, 8, 1})[4], 5);
}

TEST_F(ModuleMemory, MutingASecondUnitLeavesTheFirstOneTalking) {
    unit_.state().muted.set(19);
    EXPECT_EQ(Get({0, 51, 24, 1}), Payload{});
    EXPECT_EQ(Get({0, 51, 8, 1}).size(), 5U);
}

TEST_F(ModuleMemory, AnswersComeAsManyPollsLaterAsSet) {
    unit_.state().answerDelay = 3;
    EXPECT_EQ(Ask({0, 32, 8, 1}), Payload{});
    EXPECT_EQ(Poll(), Payload{});
    EXPECT_EQ(Poll(), Payload{});
    EXPECT_EQ(Poll().size(), 5U);
    unit_.state().answerDelay = 0;
    EXPECT_EQ(Ask({0, 32, 8, 1}).size(), 5U);
    EXPECT_EQ(Poll(), Payload{});
}

TEST_F(ModuleMemory, PointModulesKeepDefaultTimeInBothParts) {
    Ask({0, 81, 32, 20});
    Ask({0, 81, 96, 127});
    EXPECT_EQ(Get({0, 81, 34}), (Payload{0, 81, 34, 20}));
    EXPECT_EQ(Get({0, 81, 98}), (Payload{0, 81, 98, 127}));
    unit_.Reboot(now_);
    EXPECT_EQ(Get({0, 81, 34}), (Payload{0, 81, 34, 127}));
}

TEST_F(ModuleMemory, PointModulesKeepTimeAndPowerOfEveryDevice) {
    for (int device = 0; device < kPointDevices; ++device) {
        Ask({0, 64, 32, device, device + 1});
        Ask({0, 64, 40, device, device % 4});
        Ask({0, 64, 96, device, device + 2});
        Ask({0, 64, 104, device, (device + 1) % 4});
    }
    for (int device = 0; device < kPointDevices; ++device) {
        EXPECT_EQ(Get({0, 64, 34, device}), (Payload{0, 64, 34, device, device + 1, device % 4}));
        EXPECT_EQ(Get({0, 64, 98, device}),
                  (Payload{0, 64, 98, device, device + 2, (device + 1) % 4}));
    }
}

TEST_F(ModuleMemory, ErasingAPointModuleRestoresBothParts) {
    Ask({0, 64, 32, 99});
    Ask({0, 64, 104, 5, 3});
    EXPECT_EQ(Ask({0, 64, 64}), Payload{});
    EXPECT_EQ(unit_.state().memories.points[0].active, FactoryPointSettings());
    EXPECT_EQ(unit_.state().memories.points[0].permanent, FactoryPointSettings());
}

}  // namespace
}  // namespace zelvar::sim
