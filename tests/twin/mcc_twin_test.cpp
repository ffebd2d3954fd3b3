// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/locomotives.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

constexpr int kLastDecoder = 4095;
/// How long half a speed step takes with acceleration 1.
constexpr std::chrono::milliseconds kHalfStep{20};

class MccTwin : public TwinLink {
  protected:
    void Drive(int decoder, int speed, int topSpeed, int acceleration = 0) {
        Do(MccSpeed(decoder, MccSpeedCode(speed, topSpeed), acceleration));
    }
    const sim::MccLocomotive& Locomotive(int decoder) {
        return port.state().drive.mcc().at(decoder);
    }
};

TEST_F(MccTwin, EachOf30StepsIsAHalfStepAndNoneAnEmergencyStop) {
    for (int speed = 0; speed <= kMccTopSpeed30; ++speed) {
        Drive(7, speed, kMccTopSpeed30);
        EXPECT_EQ(Locomotive(7).halfSteps.speed(), speed);
        EXPECT_FALSE(Locomotive(7).emergencyStop);
    }
}

TEST_F(MccTwin, EachOf15StepsIsAWholeStepAndNoneAnEmergencyStop) {
    for (int speed = 0; speed <= kMccTopSpeed15; ++speed) {
        Drive(7, speed, kMccTopSpeed15);
        EXPECT_EQ(Locomotive(7).halfSteps.speed(), 2 * speed);
        EXPECT_FALSE(Locomotive(7).emergencyStop);
    }
}

TEST_F(MccTwin, EveryDecoderIsReached) {
    for (int decoder = 0; decoder <= kLastDecoder; ++decoder) {
        Drive(decoder, decoder % 31, kMccTopSpeed30);
    }
    ASSERT_EQ(port.state().drive.mcc().size(), static_cast<std::size_t>(kLastDecoder + 1));
    for (int decoder = 0; decoder <= kLastDecoder; ++decoder) {
        ASSERT_EQ(Locomotive(decoder).halfSteps.speed(), decoder % 31) << decoder;
    }
}

TEST_F(MccTwin, TheSpeedIsReachedInTheTimeOfTheAcceleration) {
    for (int acceleration = 1; acceleration <= 7; ++acceleration) {
        port.Connect(EveryKind());
        Drive(kLastDecoder, 30, kMccTopSpeed30, acceleration);
        port.Pass(30 * acceleration * kHalfStep - std::chrono::milliseconds(5));
        EXPECT_EQ(Locomotive(kLastDecoder).halfSteps.speed(), 29);
        port.Pass(std::chrono::milliseconds(5));
        EXPECT_EQ(Locomotive(kLastDecoder).halfSteps.speed(), 30);
    }
}

TEST_F(MccTwin, TheEmergencyStopIsNoSpeedAndAsksForNoRamp) {
    Drive(4095, 30, kMccTopSpeed30);
    EXPECT_EQ(EffectOf(MccEstop(4095)),
              (Changes{{"mcc.4095.half-steps", 0}, {"mcc.4095.emergency-stop", 1}}));
    EXPECT_EQ(Locomotive(4095).halfSteps.speed(), 0);
    EXPECT_EQ(EffectOf(MccSpeed(4095, MccSpeedCode(0, kMccTopSpeed15), 0)),
              (Changes{{"mcc.4095.emergency-stop", 0}}))
        << "speed 0 is another thing";
}

TEST_F(MccTwin, EachFunctionIsItsOwnBit) {
    for (const int decoder : {0, 127, 128, kLastDecoder}) {
        const std::string functions = "mcc." + std::to_string(decoder) + ".functions";
        Drive(decoder, 10, kMccTopSpeed30);
        // Light, Brake, Left, Right, F1, F2, F3, F4
        for (std::size_t function = 0; function < kMccFunctionCount; ++function) {
            EXPECT_EQ(EffectOf(MccFunctions(decoder, MccFunctionSet().set(function))),
                      (Changes{{functions, 1 << function}}));
        }
        EXPECT_EQ(EffectOf(MccFunctions(decoder, MccFunctionSet().set())),
                  (Changes{{functions, 255}}));
        EXPECT_EQ(EffectOf(MccFunctions(decoder, {})), (Changes{{functions, 0}}));
    }
}

}  // namespace
}  // namespace zelvar::twin
