// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/accessories.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

class AccessoryTwin : public TwinLink {};

TEST_F(AccessoryTwin, EveryPointIsThrownAndSetStraight) {
    for (int device = 0; device <= 511; ++device) {
        port.Connect(EveryKind());
        const std::string point = "point." + std::to_string(device);
        ASSERT_EQ(EffectOf(SetPoint(device, true)), (Changes{{point, 1}}));
        ASSERT_EQ(EffectOf(SetPoint(device, false)), (Changes{{point, 0}}));
    }
}

TEST_F(AccessoryTwin, EveryPointOfEveryModuleIsThrownAndSetStraight) {
    for (int module = 0; module <= 15; ++module) {
        port.Connect(EveryKind());
        for (int device = 0; device <= 63; ++device) {
            const std::string point =
                "point-of-module." + std::to_string(module) + '.' + std::to_string(device);
            ASSERT_EQ(EffectOf(SetModulePoint(module, device, true)), (Changes{{point, 1}}));
            ASSERT_EQ(EffectOf(SetModulePoint(module, device, false)), (Changes{{point, 0}}));
        }
    }
}

TEST_F(AccessoryTwin, EverySignalPinTakesEveryAspect) {
    for (int module = 0; module <= 31; ++module) {
        port.Connect(EveryKind());
        for (int pin = 0; pin <= 127; ++pin) {
            for (int aspect = 11; aspect >= 0; --aspect) {
                Do(SetSignalAspect(module, pin, aspect));
                ASSERT_EQ(port.state().accessories.aspects.at({module, pin}), aspect);
            }
        }
        ASSERT_EQ(port.state().accessories.aspects.size(), 128U) << "of this module alone";
    }
}

TEST_F(AccessoryTwin, EveryOutputTakesInstructionAndParameter) {
    for (int output = 0; output <= 511; ++output) {
        port.Connect(EveryKind());
        const std::string name = "output." + std::to_string(output);
        for (const auto& [instruction, parameter] :
             {std::pair{1, 0}, {0, 1}, {63, 0}, {0, 127}, {63, 127}, {5, 100}}) {
            const UnitImage before(port.state());
            Do(SetOutput(output, instruction, parameter));
            for (const auto& [changed, value] : before.ChangesTo(port.state())) {
                ASSERT_TRUE(changed.starts_with(name + '.')) << changed;
            }
            const sim::OutputSetting& setting = port.state().accessories.outputs.at(output);
            ASSERT_EQ(setting.instruction, instruction);
            ASSERT_EQ(setting.parameter, parameter);
        }
    }
}

TEST_F(AccessoryTwin, EveryInstructionAndEveryParameterArrives) {
    for (int instruction = 0; instruction <= 63; ++instruction) {
        for (int parameter = 0; parameter <= 127; ++parameter) {
            Do(SetOutput(300, instruction, parameter));
            const sim::OutputSetting& setting = port.state().accessories.outputs.at(300);
            ASSERT_EQ(setting.instruction, instruction);
            ASSERT_EQ(setting.parameter, parameter);
        }
    }
}

}  // namespace
}  // namespace zelvar::twin
