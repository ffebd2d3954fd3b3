// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <map>
#include <numeric>

#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

constexpr char kMonitor[] = "dlgZelvarFeedback";
constexpr int kLabels = 128;

// What a label shows by its colour.
constexpr char kActive[] = "#ff8000";
constexpr char kInactive[] = "#ffffff";

class FeedbackMonitor : public Journey {
  protected:
    void Open() {
        program->Click("CommandTestFBM");
        ASSERT_TRUE(program->Says({"window", kMonitor}, "visible"));
        none_ = Colour("lblFBMform(3)");
    }

    /// Inputs that are active, their reports lost.
    void SetUnreported(const std::vector<int>& inputs) {
        for (const int input : inputs) {
            unit->Do("feedback " + std::to_string(input) + " 1");
        }
        unit->Do("reboot");
        ASSERT_EQ(unit->Count("pending-reports"), 0);
    }

    std::string Colour(const std::string& label) { return program->ColourOf(label, "Window"); }
    std::string ColourOf(int label) { return Colour(Label(label)); }
    static std::string Label(int index) { return "lblFBM(" + std::to_string(index) + ")"; }

    ::testing::AssertionResult Becomes(int label, const std::string& colour) {
        return program->Says({"colour", Label(label), "Window"}, colour);
    }

    /// All labels have one colour but those that are named.
    void ExpectLabels(const std::string& colour, const std::map<int, std::string>& others) {
        for (int label = 0; label < kLabels; ++label) {
            const auto other = others.find(label);
            EXPECT_EQ(ColourOf(label), other == others.end() ? colour : other->second) << label;
        }
    }

    /// The inputs 0..127 that the program has asked for since tracing was turned on.
    std::vector<int> Requested() {
        std::vector<int> inputs;
        for (const std::string& frame : unit->Trace()) {
            constexpr std::size_t kCodeAt = 6;  // "rx HH E0 NN CC", NN with its highest bit set
            constexpr std::size_t kNumberAt = 9;
            if (frame.starts_with("rx") && frame.substr(kCodeAt, 2) == "E0") {
                inputs.push_back(std::stoi(frame.substr(kNumberAt, 2), nullptr, 16) - 0x80);
            }
        }
        return inputs;
    }

    int Requests() { return unit->Count("command.feedback-request"); }

    /// The colour of a label without information.
    std::string none_;
};

TEST_F(FeedbackMonitor, OpensEmptyAndFollowsTheInputs) {
    StartAndPoll();
    EXPECT_EQ(program->Window(kMonitor), "absent");
    Open();
    EXPECT_EQ(program->TitleOf(kMonitor), "Feedback Monitor");
    EXPECT_NE(none_, kActive);
    EXPECT_NE(none_, kInactive);
    ExpectLabels(none_, {});
    unit->Do("feedback 127 1");
    EXPECT_TRUE(Becomes(127, kActive));
    unit->Do("feedback 127 0");
    EXPECT_TRUE(Becomes(127, kInactive));
    ExpectLabels(none_, {{127, kInactive}});
    EXPECT_EQ(Requests(), 0) << "an opened monitor asks for nothing";
    program->Click("cmdReset");
    EXPECT_EQ(program->Box(), BoxText()) << "the main window keeps working";
}

TEST_F(FeedbackMonitor, RequestDataAsksForEachInputOnceInOrder) {
    StartAndOpen();
    SetUnreported({0, 63, 100});
    program->Click("cmdReset");
    Open();
    ExpectLabels(none_, {});
    unit->Do("trace on");
    program->Click("cmdFBMrefresh");
    EXPECT_TRUE(Becomes(127, kInactive));
    ExpectLabels(kInactive, {{0, kActive}, {63, kActive}, {100, kActive}});
    EXPECT_TRUE(Polls());
    std::vector<int> all(kLabels);
    std::iota(all.begin(), all.end(), 0);
    EXPECT_EQ(Requested(), all);
    EXPECT_EQ(program->BoxesShown().size(), 0U);
}

}  // namespace

}  // namespace zelvar::e2e
