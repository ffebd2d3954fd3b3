// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/js_report.h"
#include "config/module_commands.h"
#include "config/selection_list.h"
#include "protocol/point_settings.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

/// The positions with a module: 0..7 are on channel 0, 8..15 on channel 1.
constexpr int kModules[] = {0, 7, 8, 9, 15};

class PointsTwin : public TwinLink {
  protected:
    static std::string In(int module, bool permanent) {
        return "points." + std::to_string(module) + (permanent ? ".permanent." : ".active.");
    }
    /// Puts values that no test sets into every memory.
    void Scramble() {
        for (sim::Memory<sim::PointSettings>& memory : port.state().memories.points) {
            memory.active.defaultTime = 127;
            memory.permanent.defaultTime = 127;
            memory.active.devices.fill({127, 127});
            memory.permanent.devices.fill({127, 127});
        }
    }
};

TEST_F(PointsTwin, EveryDefaultTimeReachesItsModuleAndMemory) {
    for (const int module : kModules) {
        for (const bool permanent : {false, true}) {
            Scramble();
            for (int time = 0; time < kJsLongestTime; ++time) {
                ASSERT_EQ(EffectOf(CommandForJs(JsDefaultTime(permanent, time), module)),
                          (Changes{{In(module, permanent) + "default", time}}));
            }
        }
    }
}

TEST_F(PointsTwin, EveryTimeOfEveryDeviceReachesItsPlace) {
    for (const int module : {0, 9}) {
        for (const bool permanent : {false, true}) {
            for (int device = 0; device <= kJsLastDevice; ++device) {
                Scramble();
                const std::string name = In(module, permanent) + std::to_string(device) + ".time";
                for (const int time : {0, 1, 63, 64, 126}) {
                    ASSERT_EQ(EffectOf(CommandForJs(JsDeviceTime(permanent, device, time), module)),
                              (Changes{{name, time}}));
                }
            }
        }
    }
}

TEST_F(PointsTwin, EveryPowerOfEveryDeviceReachesItsPlace) {
    for (const int module : {7, 15}) {
        for (const bool permanent : {false, true}) {
            for (int device = 0; device <= kJsLastDevice; ++device) {
                Scramble();
                const std::string name = In(module, permanent) + std::to_string(device) + ".power";
                // Normal, Low, High, Unlimited
                for (int power = 3; power >= 0; --power) {
                    ASSERT_EQ(
                        EffectOf(CommandForJs(JsDevicePower(permanent, device, power), module)),
                        (Changes{{name, power}}));
                }
            }
        }
    }
}

TEST_F(PointsTwin, AllGoesToEveryModuleThereIs) {
    ModuleCommands commands(services, {{}, [] { return ChosenJsModules({1, kAllJs}); }});
    const UnitImage before(port.state());
    commands.SendModuleCommand(JsDefaultTime(true, 42));
    Changes meant;
    for (const int module : kModules) {
        meant[In(module, true) + "default"] = 42;
    }
    EXPECT_EQ(before.ChangesTo(port.state()), meant);
    EXPECT_EQ(port.TakeNames().size(), 16U) << "also to places where no module was found";
}

TEST_F(PointsTwin, EraseBringsBothMemoriesOfOneModuleBack) {
    for (const int module : kModules) {
        Scramble();
        Do(CommandForJs(kJsErase, module));
        for (int other = 0; other < sim::kPointModules; ++other) {
            const auto& memory = port.state().memories.points[static_cast<std::size_t>(other)];
            EXPECT_EQ(memory.active == sim::FactoryPointSettings(), other == module) << other;
            EXPECT_EQ(memory.permanent == sim::FactoryPointSettings(), other == module) << other;
        }
    }
}

TEST_F(PointsTwin, TheReportSaysWhatTheModuleHolds) {
    for (const int answerDelay : {0, 1, 3}) {
        port.state().answerDelay = answerDelay;
        for (const int module : kModules) {
            auto& memory = port.state().memories.points[static_cast<std::size_t>(module)];
            for (const bool permanent : {false, true}) {
                sim::PointSettings& part = memory.Part(permanent);
                part.defaultTime = static_cast<std::uint8_t>(module + (permanent ? 100 : 20));
                for (int device = 0; device <= kJsLastDevice; ++device) {
                    auto& entry = part.devices[static_cast<std::size_t>(device)];
                    entry.time = static_cast<std::uint8_t>((device * 2 + permanent) % 128);
                    entry.power = static_cast<std::uint8_t>((device + permanent) % 5);
                }
            }
            const auto report = JsReportRequest(services).Run(module);
            ASSERT_TRUE(report);
            EXPECT_EQ(report->module, module);
            for (const auto& [shown, kept] : {std::pair{&report->permanent, &memory.permanent},
                                              {&report->active, &memory.active}}) {
                EXPECT_EQ(shown->defaultTime, kept->defaultTime);
                for (std::size_t device = 0; device < kept->devices.size(); ++device) {
                    EXPECT_EQ(shown->devices[device].time, kept->devices[device].time);
                    EXPECT_EQ(shown->devices[device].power, kept->devices[device].power);
                }
            }
        }
    }
}

TEST_F(PointsTwin, AModuleThatIsNotThereIsReportedSilent) {
    EXPECT_FALSE(JsReportRequest(services).Run(1));
    port.state().muted.set(81);
    EXPECT_FALSE(JsReportRequest(services).Run(9));
    expectedBoxes = {{"No answer from module 1", BoxIcon::Plain, BoxButtons::Ok},
                     {"No answer from module 9", BoxIcon::Plain, BoxButtons::Ok}};
}

}  // namespace
}  // namespace zelvar::twin
