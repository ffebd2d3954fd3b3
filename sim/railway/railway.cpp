// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/railway/railway.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>

namespace zelvar::sim {

namespace {

constexpr double kStepSeconds = std::chrono::duration<double>(kRailwayStep).count();
constexpr double kTopBlockSpeed = 63;
constexpr double kTopHalfSteps = 30;

/// -1..1. The library's distributions differ between libraries; its generator does not.
double UniformSigned(std::mt19937& generator) {
    constexpr double kHalfRange = 2147483647.5;  // of 32 bits
    return static_cast<double>(generator()) / kHalfRange - 1;
}

double AnalogFraction(const Drive& drive, const TrackSection& section, bool along) {
    const Block& block = drive.blocks()[section.block];
    const double fraction = block.speed.speed() / kTopBlockSpeed;
    return along ? fraction : -fraction;
}

double DccFraction(const DccLocomotive& locomotive) {
    // The codes above the top step are the top step, too.
    const double fraction =
        static_cast<double>(std::min(locomotive.speed, locomotive.steps)) / locomotive.steps;
    return locomotive.forward ? fraction : -fraction;
}

const DccLocomotive* DecoderOf(const Train& train, const Drive& drive) {
    const auto decoder = drive.dcc().find({train.address, train.longAddress});
    return decoder == drive.dcc().end() ? nullptr : &decoder->second;
}

bool StopsAtOnce(const Train& train, const Drive& drive) {
    if (train.control != TrainControl::kDcc) {
        return false;
    }
    const DccLocomotive* const decoder = DecoderOf(train, drive);
    return decoder != nullptr && (decoder->emergencyStop || decoder->cleared);
}

/// `speed`, moved towards `wanted` by at most `change`; without a limit if that is 0.
double StepTowards(double speed, double wanted, double change) {
    return change <= 0 ? wanted : speed + std::clamp(wanted - speed, -change, change);
}

template <std::size_t count>
void CollectChanges(const std::bitset<count>& now, std::bitset<count>& reported,
                    std::vector<std::pair<int, bool>>& changes) {
    if (now == reported) {
        return;
    }
    for (std::size_t number = 0; number < count; ++number) {
        if (now.test(number) != reported.test(number)) {
            changes.emplace_back(static_cast<int>(number), now.test(number));
        }
    }
    reported = now;
}

template <typename Named>
std::optional<std::size_t> FindNamed(const std::vector<Named>& all, std::string_view name) {
    const auto found =
        std::find_if(all.begin(), all.end(), [&](const Named& each) { return each.name == name; });
    return found == all.end() ? std::nullopt : std::optional<std::size_t>(found - all.begin());
}

}  // namespace

Railway::Railway(TrackPlan plan, std::uint32_t seed)
    : plan_(std::move(plan)), occupants_(plan_.sections.size()) {
    for (TrackSection& section : plan_.sections) {
        section.length = std::max(section.length, kShortestSection);
    }
    std::mt19937 generator(seed);
    for (const Train& train : plan_.trains) {
        Train own = train;
        if (seed != 0) {
            own.topSpeed *= 1 + kEngineDifference * UniformSigned(generator);
        }
        trains_.push_back({own, TrainPath(plan_, train.section, train.position, train.length, {})});
    }
    Observe();
    reportedDetected_ = detected_;
}

double Railway::WantedSpeed(const RunningTrain& train, const Drive& drive) const {
    const Train& described = train.described;
    double fraction = 0;
    if (described.control == TrainControl::kAnalog) {
        const SectionUnderTrain& engine = train.path.sections().front();
        fraction = AnalogFraction(drive, plan_.sections[engine.section], engine.along);
    } else if (described.control == TrainControl::kDcc) {
        const DccLocomotive* const decoder = DecoderOf(described, drive);
        fraction = decoder == nullptr ? 0 : DccFraction(*decoder);
    } else if (const auto decoder = drive.mcc().find(described.address);
               decoder != drive.mcc().end()) {
        fraction = decoder->second.halfSteps.speed() / kTopHalfSteps;
    }
    return fraction * described.topSpeed;
}

void Railway::Run(RunningTrain& train, const Drive& drive, const PointPositions& points) {
    const double wanted = WantedSpeed(train, drive);
    const double change = train.described.acceleration * kStepSeconds;
    if (wanted != 0) {
        train.backwards = wanted < 0;
    }
    if (StopsAtOnce(train.described, drive)) {
        train.speed = 0;
    } else if (train.described.control == TrainControl::kDcc) {
        train.speed = StepTowards(train.speed, wanted, change);
    } else if (train.resuming && std::abs(wanted) > std::abs(train.speed)) {
        // Only getting faster takes time: it stops as fast as ever.
        train.speed = StepTowards(train.speed * wanted < 0 ? 0 : train.speed, wanted, change);
    } else {
        train.speed = wanted;
    }
    train.resuming = train.resuming && train.speed != wanted;
    const double distance = train.speed * kStepSeconds;
    if (distance != 0 && train.path.Move(plan_, distance, points) != distance) {
        train.speed = 0;
    }
}

void Railway::Step(const Drive& drive, const PointPositions& points) {
    bool elsewhere = false;
    for (RunningTrain& train : trains_) {
        const SectionUnderTrain nose = train.path.sections().front();
        const SectionUnderTrain tail = train.path.sections().back();
        Run(train, drive, points);
        elsewhere = elsewhere || train.path.sections().front() != nose ||
                    train.path.sections().back() != tail;
    }
    if (elsewhere) {
        Observe();
    }
}

void Railway::Halt() {
    for (RunningTrain& train : trains_) {
        train.speed = 0;
        train.resuming = true;
    }
}

bool Railway::Resting(const Drive& drive) const {
    return trains_.empty() ||
           (drive.Settled() &&
            std::all_of(trains_.begin(), trains_.end(), [&](const RunningTrain& train) {
                return train.speed == 0 && WantedSpeed(train, drive) == 0;
            }));
}

void Railway::Place(std::size_t train, std::size_t section, double position,
                    const PointPositions& points) {
    RunningTrain& moved = trains_[train];
    moved.path = TrainPath(plan_, section, position, moved.described.length, points);
    moved.speed = 0;
    moved.resuming = true;
    Observe();
}

void Railway::Observe() {
    std::array<int, kBlocks> trainsIn{};
    detected_.reset();
    shared_.reset();
    for (std::vector<std::size_t>& trains : occupants_) {
        trains.clear();
    }
    for (std::size_t index = 0; index < trains_.size(); ++index) {
        std::bitset<kBlocks> blocks;
        for (const SectionUnderTrain& under : trains_[index].path.sections()) {
            const TrackSection& section = plan_.sections[under.section];
            std::vector<std::size_t>& trains = occupants_[under.section];
            if (trains.empty() || trains.back() != index) {
                trains.push_back(index);
            }
            const int block = section.block;
            if (!blocks.test(block)) {
                blocks.set(block);
                shared_.set(block, ++trainsIn[block] > 1);
            }
            if (section.feedback) {
                detected_.set(*section.feedback);
            }
        }
    }
}

TrackChanges Railway::TakeChanges() {
    TrackChanges changes;
    CollectChanges(detected_, reportedDetected_, changes.inputs);
    CollectChanges(shared_, reportedShared_, changes.shared);
    return changes;
}

std::optional<std::size_t> Railway::FindTrain(std::string_view name) const {
    return FindNamed(plan_.trains, name);
}

std::optional<std::size_t> Railway::FindSection(std::string_view name) const {
    return FindNamed(plan_.sections, name);
}

}  // namespace zelvar::sim
