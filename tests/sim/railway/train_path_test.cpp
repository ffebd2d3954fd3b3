// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/railway/train_path.h"

#include "sim/railway_fixture.h"

namespace zelvar::sim {
namespace {

std::vector<std::size_t> Under(const TrainPath& path) {
    std::vector<std::size_t> sections;
    for (const SectionUnderTrain& under : path.sections()) {
        sections.push_back(under.section);
    }
    return sections;
}

using Sections = std::vector<std::size_t>;

/// Two sections with their fronts together: who passes the joint is turned round.
TrackPlan FrontToFront() {
    TrackPlan plan;
    plan.sections = {{"a", 1, 50, {}, {{1}, {}}, {{}, {}}}, {"b", 2, 50, {}, {{0}, {}}, {{}, {}}}};
    return plan;
}

/// A ring of one section.
TrackPlan Ring() {
    TrackPlan plan;
    plan.sections = {{"ring", 1, 50, {}, {{0}, {}}, {{0}, {}}}};
    return plan;
}

TEST(TrackEnds, APointChoosesTheWay) {
    EXPECT_EQ(Beyond(LoopPlan(), kWest, true, {}), (SectionUnderTrain{kNorth, true}));
    EXPECT_EQ(Beyond(LoopPlan(), kWest, true, {{4, false}}), (SectionUnderTrain{kNorth, true}));
    EXPECT_EQ(Beyond(LoopPlan(), kWest, true, {{4, true}}), (SectionUnderTrain{kSiding, true}));
    EXPECT_EQ(Beyond(LoopPlan(), kWest, true, {{5, true}}), (SectionUnderTrain{kNorth, true}));
}

TEST(TrackEnds, APointSetAgainstATrainLetsItPass) {
    EXPECT_EQ(Beyond(LoopPlan(), kNorth, false, {{4, true}}), (SectionUnderTrain{kWest, false}));
    EXPECT_EQ(Beyond(LoopPlan(), kSiding, true, {{6, false}}), (SectionUnderTrain{kEast, true}));
}

TEST(TrackEnds, NothingIsBeyondADeadEnd) {
    EXPECT_EQ(Beyond(LoopPlan(), kStub, true, {}), std::nullopt);
    EXPECT_EQ(Beyond(LoopPlan(), kStub, false, {}), std::nullopt);
}

TEST(TrackEnds, FrontToFrontTurnsRound) {
    EXPECT_EQ(Beyond(FrontToFront(), 0, true, {}), (SectionUnderTrain{1, false}));
    EXPECT_EQ(Beyond(FrontToFront(), 1, true, {}), (SectionUnderTrain{0, false}));
}

TEST(TrackEnds, ARingLeadsFromItsFrontToItsBack) {
    EXPECT_EQ(Beyond(Ring(), 0, true, {}), (SectionUnderTrain{0, true}));
    EXPECT_EQ(Beyond(Ring(), 0, false, {}), (SectionUnderTrain{0, false}));
}

TEST(TrainPath, TheTailLiesInTheSectionsBehind) {
    const TrackPlan plan = LoopPlan();
    EXPECT_EQ(Under(TrainPath(plan, kWest, 20, 20, {})), (Sections{kWest}));
    EXPECT_EQ(Under(TrainPath(plan, kWest, 19, 20, {})), (Sections{kWest, kEast}));
    EXPECT_EQ(Under(TrainPath(plan, kWest, 19, 180, {})), (Sections{kWest, kEast, kNorth}));
    EXPECT_EQ(Under(TrainPath(plan, kWest, 19, 180, {{6, true}})),
              (Sections{kWest, kEast, kSiding, kWest}));
}

TEST(TrainPath, ASectionIsFreeWhenTheTailHasLeftIt) {
    const TrackPlan plan = LoopPlan();
    TrainPath path(plan, kWest, 100, 20, {});
    EXPECT_EQ(path.Move(plan, 1, {}), 1);
    EXPECT_EQ(Under(path), (Sections{kNorth, kWest}));
    path.Move(plan, 18.5, {});
    EXPECT_EQ(Under(path), (Sections{kNorth, kWest}));
    path.Move(plan, 0.5, {});
    EXPECT_EQ(Under(path), (Sections{kNorth}));
    EXPECT_EQ(path.Position(plan), 20);
}

TEST(TrainPath, BackwardsTheTailGoesFirst) {
    const TrackPlan plan = LoopPlan();
    TrainPath path(plan, kWest, 30, 20, {});
    EXPECT_EQ(path.Move(plan, -10, {}), -10);
    EXPECT_EQ(Under(path), (Sections{kWest}));
    path.Move(plan, -1, {});
    EXPECT_EQ(Under(path), (Sections{kWest, kEast}));
    path.Move(plan, -18.5, {});
    EXPECT_EQ(Under(path), (Sections{kWest, kEast}));
    path.Move(plan, -0.5, {});
    EXPECT_EQ(Under(path), (Sections{kEast}));
    EXPECT_EQ(path.Position(plan), 100);
}

TEST(TrainPath, BackwardsAPointInFrontOfTheTailChooses) {
    const TrackPlan plan = LoopPlan();
    TrainPath path(plan, kEast, 30, 20, {{6, true}});
    path.Move(plan, -11, {{6, true}});
    EXPECT_EQ(Under(path), (Sections{kEast, kSiding}));
}

TEST(TrainPath, APointThatIsMovedUnderATrainDoesNotTearIt) {
    const TrackPlan plan = LoopPlan();
    TrainPath path(plan, kWest, 100, 20, {});
    path.Move(plan, 5, {});
    path.Move(plan, 5, {{4, true}});
    EXPECT_EQ(Under(path), (Sections{kNorth, kWest}));
    path.Move(plan, -20, {{4, true}});
    EXPECT_EQ(Under(path), (Sections{kWest}));
}

TEST(TrainPath, ADeadEndInFrontOfTheNoseHoldsIt) {
    const TrackPlan plan = LoopPlan();
    TrainPath path(plan, kStub, 70, 20, {});
    EXPECT_EQ(path.Move(plan, 10, {}), 10);
    EXPECT_EQ(path.Position(plan), 80);
    EXPECT_EQ(path.Move(plan, 10, {}), 0);
    EXPECT_EQ(path.Position(plan), 80);
    EXPECT_EQ(path.Move(plan, -10, {}), -10);
    EXPECT_EQ(path.Move(plan, 15, {}), 10);
}

TEST(TrainPath, ADeadEndBehindTheTailHoldsIt) {
    const TrackPlan plan = LoopPlan();
    TrainPath path(plan, kStub, 70, 20, {});
    EXPECT_EQ(path.Move(plan, -50, {}), -50);
    EXPECT_EQ(path.Move(plan, -1, {}), 0);
    EXPECT_EQ(path.Position(plan), 20);
    path.Move(plan, 5, {});
    EXPECT_EQ(path.Move(plan, -10, {}), -5);
}

TEST(TrainPath, ATailThatSticksOutOfADeadEndGoesForwardOnly) {
    const TrackPlan plan = LoopPlan();
    TrainPath path(plan, kStub, 10, 20, {});
    EXPECT_EQ(Under(path), (Sections{kStub}));
    EXPECT_EQ(path.Move(plan, -1, {}), 0);
    EXPECT_EQ(path.Move(plan, 10, {}), 10);
    EXPECT_EQ(path.Position(plan), 20);
}

TEST(TrainPath, TurnedRoundTheNosePointsToTheBack) {
    const TrackPlan plan = FrontToFront();
    TrainPath path(plan, 0, 45, 20, {});
    path.Move(plan, 10, {});
    EXPECT_EQ(path.sections().front(), (SectionUnderTrain{1, false}));
    EXPECT_EQ(path.sections().back(), (SectionUnderTrain{0, true}));
    EXPECT_EQ(path.Position(plan), 45);
    path.Move(plan, 30, {});
    EXPECT_EQ(Under(path), (Sections{1}));
    EXPECT_EQ(path.Position(plan), 15);
    // Backwards over the same joint the tail goes nose to the front again.
    path.Move(plan, -20, {});
    EXPECT_EQ(path.sections().back(), (SectionUnderTrain{0, true}));
}

TEST(TrainPath, RunsRoundARingOfOneSection) {
    const TrackPlan plan = Ring();
    TrainPath path(plan, 0, 45, 20, {});
    path.Move(plan, 120, {});
    EXPECT_EQ(path.Position(plan), 15);
    EXPECT_EQ(path.Move(plan, -120, {}), -120);
    EXPECT_EQ(path.Position(plan), 45);
}

}  // namespace
}  // namespace zelvar::sim
