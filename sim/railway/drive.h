// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <bitset>
#include <chrono>
#include <map>
#include <tuple>
#include <utility>
#include <vector>

#include "sim/protocol/addresses.h"
#include "sim/railway/ramp.h"

namespace zelvar::sim {

/// The unit's acceleration numbers in time: how long one speed step takes for acceleration 1.
inline constexpr std::chrono::milliseconds kAnalogStep{10};   // 127 takes 80 s to the top
inline constexpr std::chrono::milliseconds kMccHalfStep{20};  // 7 takes 4.2 s to the top

/// A track block with the analog locomotives in it.
struct Block {
    Ramp speed;           // -63..63, forward is positive
    bool forward = true;  // the requested direction
    bool light = false;

    /// The actual direction while moving, the requested one at standstill.
    bool RunsForward() const { return speed.speed() == 0 ? forward : speed.speed() > 0; }
};

inline constexpr int kDccFunctions = 29;

struct DccDecoder {
    int address = 1;
    bool longAddress = false;

    bool operator<(const DccDecoder& other) const {
        return std::tie(address, longAddress) < std::tie(other.address, other.longAddress);
    }
};

struct DccLocomotive {
    int steps = 28;
    int speed = 0;
    bool forward = true;
    bool emergencyStop = false;
    int block = 0;
    std::bitset<kDccFunctions> functions;  // 0 is the light
    bool cleared = false;                  // stopped together with its block, until its next speed
};

struct MccLocomotive {
    Ramp halfSteps;  // 0..30
    bool emergencyStop = false;
    int functions = 0;  // eight bits
};

/// The last command to one output of an output module.
struct OutputSetting {
    int instruction = 0;
    int parameter = 0;
};

/// Points, signals and outputs, each as its last command set it.
struct Accessories {
    std::map<int, bool> points;                        // thrown, by device 0..511
    std::map<std::pair<int, int>, bool> modulePoints;  // thrown, by module position and device
    std::map<std::pair<int, int>, int> aspects;        // by signal module 0..31 and pin
    std::map<int, OutputSetting> outputs;              // by output 0..511
};

/// What runs on the layout.
class Drive {
  public:
    /// Lets time pass up to `now`. Returns the blocks whose speed changed, also by a command since
    /// the last call.
    std::vector<int> Advance(std::chrono::nanoseconds now);
    /// Whether no speed is on its way to another one.
    bool Settled() const;
    /// Everything stands, no blocks are linked, no locomotive is known.
    void Restart();

    /// Speed 0..63 of a block and of those linked to it. The acceleration is 0 (at once) to 127.
    void SetBlockSpeed(int block, int speed, bool forward, int acceleration);
    void SetBlockLight(int block, bool light) { blocks_[block].light = light; }
    /// Everything in the block stops, turns forward and goes dark.
    void ClearBlock(int block);
    /// From now on the two blocks run together, the second one in the other direction if
    /// `inverted`. It takes over the first one's speed.
    void Link(int first, int second, bool inverted);
    /// Ends the links up (those with the block first) or down (second). Clears the blocks at their
    /// other ends if `clearOthers`.
    void Unlink(int block, bool up, bool clearOthers);

    DccLocomotive& Dcc(const DccDecoder& decoder) { return dcc_[decoder]; }
    /// Speed code 0 is the emergency stop, 16 stands still; the acceleration is 0 (at once) to 7.
    void SetMccSpeed(int decoder, int code, int acceleration);
    void SetMccFunctions(int decoder, int functions) { mcc_[decoder].functions = functions; }

    using Links = std::map<std::pair<int, int>, bool>;  // inverted, by the two blocks

    const std::array<Block, kBlocks>& blocks() const { return blocks_; }
    const Links& links() const { return links_; }
    const std::map<DccDecoder, DccLocomotive>& dcc() const { return dcc_; }
    const std::map<int, MccLocomotive>& mcc() const { return mcc_; }

  private:
    /// The blocks that run together with `block`, itself included, and whether each of them runs in
    /// the other direction.
    std::map<int, bool> LinkedBlocks(int block) const;

    std::array<Block, kBlocks> blocks_;
    Links links_;
    std::map<DccDecoder, DccLocomotive> dcc_;
    std::map<int, MccLocomotive> mcc_;
    std::chrono::nanoseconds now_{0};
};

}  // namespace zelvar::sim
