// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/railway/train_path.h"

#include <algorithm>

namespace zelvar::sim {

namespace {

double LengthOf(const TrackPlan& plan, const SectionUnderTrain& under) {
    return plan.sections[under.section].length;
}

bool LeadsTo(const TrackEnd& end, std::size_t section) {
    return std::find(end.sections.begin(), end.sections.end(), section) != end.sections.end();
}

}  // namespace

std::optional<SectionUnderTrain> Beyond(const TrackPlan& plan, std::size_t section, bool byFront,
                                        const PointPositions& points) {
    const TrackSection& left = plan.sections[section];
    const TrackEnd& end = byFront ? left.front : left.back;
    if (end.sections.empty()) {
        return std::nullopt;
    }
    bool thrown = false;
    if (end.point && end.sections.size() > 1) {
        const auto point = points.find(*end.point);
        thrown = point != points.end() && point->second;
    }
    const std::size_t next = end.sections[thrown ? 1 : 0];
    const TrackSection& entered = plan.sections[next];
    // Front to back is the rule, so it also holds where two sections meet at both their ends.
    const bool ruleHolds = LeadsTo(byFront ? entered.back : entered.front, section);
    const bool turned = !ruleHolds && LeadsTo(byFront ? entered.front : entered.back, section);
    return SectionUnderTrain{next, byFront != turned};
}

TrainPath::TrainPath(const TrackPlan& plan, std::size_t section, double position, double length,
                     const PointPositions& points)
    : sections_{{section, true}}, nose_(position), length_(length) {
    ExtendTail(plan, -TailGap(plan), points);
}

double TrainPath::TailGap(const TrackPlan& plan) const {
    double covered = nose_;
    for (std::size_t index = 1; index < sections_.size(); ++index) {
        covered += LengthOf(plan, sections_[index]);
    }
    return covered - length_;
}

double TrainPath::ExtendTail(const TrackPlan& plan, double missing, const PointPositions& points) {
    while (missing > 0) {
        const SectionUnderTrain last = sections_.back();
        const std::optional<SectionUnderTrain> behind =
            Beyond(plan, last.section, !last.along, points);
        if (!behind) {
            return missing;
        }
        // The tail goes in first, so the nose points the other way.
        sections_.push_back({behind->section, !behind->along});
        missing -= LengthOf(plan, *behind);
    }
    return 0;
}

double TrainPath::Move(const TrackPlan& plan, double distance, const PointPositions& points) {
    double moved = distance;
    if (distance < 0) {
        // What the tail cannot go, the nose cannot either.
        const double heldUp = ExtendTail(plan, -distance - TailGap(plan), points);
        moved = std::min(distance + heldUp, 0.0);
        nose_ += moved;
        while (nose_ <= 0 && sections_.size() > 1) {
            sections_.pop_front();
            nose_ += LengthOf(plan, sections_.front());
        }
        return moved;
    }
    nose_ += distance;
    while (nose_ > LengthOf(plan, sections_.front())) {
        const SectionUnderTrain first = sections_.front();
        const double beyondEnd = nose_ - LengthOf(plan, first);
        const std::optional<SectionUnderTrain> next =
            Beyond(plan, first.section, first.along, points);
        if (!next) {
            nose_ -= beyondEnd;
            moved -= beyondEnd;
            break;
        }
        sections_.push_front(*next);
        nose_ = beyondEnd;
    }
    while (sections_.size() > 1 && TailGap(plan) >= LengthOf(plan, sections_.back())) {
        sections_.pop_back();
    }
    return moved;
}

double TrainPath::Position(const TrackPlan& plan) const {
    const SectionUnderTrain& first = sections_.front();
    return first.along ? nose_ : LengthOf(plan, first) - nose_;
}

}  // namespace zelvar::sim
