// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <map>
#include <numeric>
#include <set>

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
        program->ShowTabOf("CommandTestFBM");
        program->Click("CommandTestFBM");
        ASSERT_TRUE(program->Says({"window", kMonitor}, "visible"));
        none_ = Colour("lblFBMform(3)");
    }

    /// Inputs that are active before anybody has looked: their reports are gone.
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

    /// Makes the program fetch what waits, whatever its timer does: a configuration command does.
    void AskForReports() {
        while (unit->Count("pending-reports") > 0) {
            program->Click("cmdOptions");
            ASSERT_EQ(program->Box(), BoxText());
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

TEST_F(FeedbackMonitor, KeepsWhatWasReportedBeforeItWasShown) {
    StartAndPoll();
    unit->Do("feedback 3 1");
    ASSERT_TRUE(program->Says({"window", kMonitor}, "hidden")) << "made by the first report";
    unit->Do("feedback 3 0");
    unit->Do("feedback 12 1");
    unit->Do("feedback 2047 1");
    ASSERT_TRUE(Until([this] { return unit->Count("pending-reports") == 0; }));
    ASSERT_TRUE(Polls());
    EXPECT_EQ(program->Window(kMonitor), "hidden") << "no report brings it into view";
    Open();
    ExpectLabels(none_, {{3, kInactive}, {12, kActive}});

    program->Close(kMonitor);
    ASSERT_TRUE(program->Says({"window", kMonitor}, "absent"));
    Open();
    ExpectLabels(none_, {});
}

TEST_F(FeedbackMonitor, ShowsTheInputsOfItsLayout) {
    StartAndPoll();
    unit->Do("feedback 1807 1");
    ASSERT_TRUE(program->Says({"window", kMonitor}, "hidden"));
    Open();
    ExpectLabels(none_, {});
    program->Click("opFBmod(3)");
    EXPECT_EQ(program->TextOf(Label(16)), "128");
    EXPECT_EQ(program->TextOf(Label(127)), "911");
    program->Click("opFBmod(1)");
    EXPECT_EQ(program->TextOf(Label(127)), "239");
    unit->Do("feedback 239 1");
    EXPECT_TRUE(Becomes(127, kActive));
    program->Click("opFBmod(0)");
    ExpectLabels(none_, {});
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

TEST_F(FeedbackMonitor, ASilentUnitEndsTheCycleWithOneBoxAndItGoesOnLater) {
    StartAndOpen();
    SetUnreported({1, 20});
    program->Click("cmdReset");
    Open();
    program->Click("cmdFBMrefresh");
    ASSERT_TRUE(Until([this] { return Requests() > 3; }));
    unit->Do("silent on");
    EXPECT_EQ(program->AwaitBox(), NoResponseBox());
    program->Answer("OK");
    EXPECT_TRUE(DoesNotPoll());
    EXPECT_EQ(program->BoxesShown().size(), 1U);
    EXPECT_EQ(ColourOf(1), kActive);
    EXPECT_EQ(ColourOf(20), none_);

    unit->Do("silent off");
    program->Click("cmdReset");
    EXPECT_TRUE(Becomes(20, kActive));
    EXPECT_EQ(program->BoxesShown().size(), 1U);
    int unknown = 0;
    for (int label = 0; label < 20; ++label) {
        unknown += ColourOf(label) == none_ ? 1 : 0;
    }
    EXPECT_EQ(unknown, 1) << "the one request that was lost is not repeated";
}

TEST_F(FeedbackMonitor, ReportsThatComeUnaskedInBetweenAreKept) {
    StartAndOpen();
    SetUnreported({2, 50, 100});
    program->Click("cmdReset");
    Open();
    program->ShowTabOf("cmdOptions");
    unit->Do("trace on");
    program->Click("cmdFBMrefresh");
    ASSERT_TRUE(Until([this] { return Requests() > 3; }));
    // Inputs whose turn is over, is still to come, or never comes; and other reports.
    for (const char* report : {"feedback 0 1", "feedback 104 1", "feedback 100 0", "feedback 700 1",
                               "speed 0 21 forward", "overcurrent 4"}) {
        unit->Do(report);
    }
    // A handler's empty transactions bring them while the cycle runs.
    AskForReports();
    EXPECT_LT(Requests(), 100) << "the reports came too late for this test";
    EXPECT_EQ(program->Window("dlgAlarmLog"), "visible");
    constexpr int kLast = 110;
    EXPECT_TRUE(Becomes(kLast, kInactive));
    const std::set<int> active{0, 2, 50, 104};
    for (int label = 0; label <= kLast; ++label) {
        EXPECT_EQ(ColourOf(label), active.contains(label) ? kActive : kInactive) << label;
    }
    EXPECT_EQ(program->TextOf("lblTestAnalogSpeed"), ">>21");
    std::vector<int> expected(kLast + 1);
    std::iota(expected.begin(), expected.end(), 0);
    std::erase_if(expected, [](int input) { return input == 100 || input == 104; });
    std::vector<int> asked = Requested();
    ASSERT_GE(asked.size(), expected.size());
    asked.resize(expected.size());
    EXPECT_EQ(asked, expected) << "what was reported meanwhile need not be asked for";
    EXPECT_EQ(program->BoxesShown().size(), 0U);
}

TEST_F(FeedbackMonitor, AnswersThatComeLaterAreShownToo) {
    StartAndOpen();
    SetUnreported({2, 5});
    program->Click("cmdReset");
    Open();
    program->ShowTabOf("cmdOptions");
    unit->Do("defer 6");
    program->Click("cmdFBMrefresh");
    EXPECT_TRUE(Becomes(6, kInactive));
    AskForReports();
    for (int label = 0; label <= 6; ++label) {
        EXPECT_EQ(ColourOf(label), label == 2 || label == 5 ? kActive : kInactive) << label;
    }
    EXPECT_LT(Requests(), kLabels) << "the cycle still runs";
    EXPECT_EQ(program->BoxesShown().size(), 0U);
}

}  // namespace

}  // namespace zelvar::e2e
