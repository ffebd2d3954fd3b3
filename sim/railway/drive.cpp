// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/railway/drive.h"

#include <algorithm>
#include <cstdlib>

#include "sim/protocol/names.h"

namespace zelvar::sim {

std::vector<int> Drive::Advance(std::chrono::nanoseconds now) {
    now_ = now;
    std::vector<int> changed;
    for (int number = 0; number < kBlocks; ++number) {
        if (blocks_[number].speed.Advance(now)) {
            changed.push_back(number);
        }
    }
    for (auto& [decoder, locomotive] : mcc_) {
        locomotive.halfSteps.Advance(now);
    }
    return changed;
}

bool Drive::Settled() const {
    return std::all_of(
               blocks_.begin(), blocks_.end(),
               [](const Block& block) { return block.speed.speed() == block.speed.target(); }) &&
           std::all_of(mcc_.begin(), mcc_.end(), [](const auto& entry) {
               return entry.second.halfSteps.speed() == entry.second.halfSteps.target();
           });
}

void Drive::Restart() {
    blocks_ = {};
    links_.clear();
    dcc_.clear();
    mcc_.clear();
}

void Drive::SetBlockSpeed(int block, int speed, bool forward, int acceleration) {
    for (const auto& [number, turned] : LinkedBlocks(block)) {
        Block& other = blocks_[number];
        other.forward = forward != turned;
        other.speed.Set(other.forward ? speed : -speed, now_, acceleration * kAnalogStep);
    }
}

void Drive::ClearBlock(int block) {
    Block& cleared = blocks_[block];
    cleared.forward = true;
    cleared.light = false;
    cleared.speed.Set(0, now_, std::chrono::nanoseconds(0));
    for (auto& [decoder, locomotive] : dcc_) {
        if (locomotive.block == block) {
            locomotive.speed = 0;
            locomotive.forward = true;
            locomotive.functions.reset();
            locomotive.cleared = true;
        }
    }
}

void Drive::Link(int first, int second, bool inverted) {
    if (first == second) {
        return;
    }
    links_[{first, second}] = inverted;
    const Block& leading = blocks_[first];
    const int speed = leading.speed.target();
    SetBlockSpeed(first, std::abs(speed), leading.forward, 0);
}

void Drive::Unlink(int block, bool up, bool clearOthers) {
    std::vector<int> others;
    for (auto link = links_.begin(); link != links_.end();) {
        const auto [first, second] = link->first;
        if ((up ? first : second) == block) {
            others.push_back(up ? second : first);
            link = links_.erase(link);
        } else {
            ++link;
        }
    }
    if (clearOthers) {
        for (const int other : others) {
            ClearBlock(other);
        }
    }
}

void Drive::SetMccSpeed(int decoder, int code, int acceleration) {
    MccLocomotive& locomotive = mcc_[decoder];
    locomotive.emergencyStop = code == 0;
    locomotive.halfSteps.Set(MccHalfSteps(code), now_, acceleration * kMccHalfStep);
}

std::map<int, bool> Drive::LinkedBlocks(int block) const {
    std::map<int, bool> linked = {{block, false}};
    std::vector<int> open = {block};
    while (!open.empty()) {
        const int current = open.back();
        open.pop_back();
        for (const auto& [ends, inverted] : links_) {
            const auto [first, second] = ends;
            if (first != current && second != current) {
                continue;
            }
            const int other = first == current ? second : first;
            if (linked.emplace(other, linked.at(current) != inverted).second) {
                open.push_back(other);
            }
        }
    }
    return linked;
}

}  // namespace zelvar::sim
