// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// The message log of a journey, explained in words by the simulator.
#include <fstream>
#include <sstream>

#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

std::vector<std::string> LinesOf(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) {
        lines.push_back(line);
    }
    return lines;
}

class ExplainedLog : public Journey {
  protected:
    /// A bit of everything: status, settings, driving, accessories, reports, a unit that is silent.
    void Travel() {
        StartAndPoll();
        RequestStatus();
        program->Choose("cboVD", " 1");
        program->Click("cmdHFI(1)");
        ASSERT_TRUE(program->Shows("txtHFI", "6"));
        program->Click("cmdConfig(1)");
        program->Type("txtTestBlock", "5");
        program->Key("AnalogSpeed", "End");
        ASSERT_TRUE(Until([&] { return unit->Count("command.analog-speed") == 1; }));
        for (const char* button : {"cmdEstopDCC", "cmdEstopMCC", "cmdTestJS70(1)", "cmdTestYR70"}) {
            program->Click(button);
        }
        unit->Do("overcurrent 133");
        ASSERT_TRUE(program->Says({"window", "dlgAlarmLog"}, "visible"));
        unit->Do("silent on");
        EXPECT_EQ(program->AwaitBox(), NoResponseBox());
        program->Answer("OK");
        unit->Do("silent off");
        program->Click("cmdReset");
        ASSERT_TRUE(Polls());
    }

    /// The log, copied into a file and explained by another simulator.
    std::vector<std::string> Explain(const std::string& log) {
        const std::string path = folder.Path("log");
        std::ofstream(path) << log;
        ChildProcess explainer({ZELVARSIM_PROGRAM, "--explain", path});
        std::vector<std::string> lines;
        while (const std::optional<std::string> line = explainer.Receive()) {
            lines.push_back(*line);
        }
        EXPECT_EQ(explainer.WaitForExit(), 0);
        return lines;
    }
};

TEST_F(ExplainedLog, OfAJourneyHasNoLineWithoutAMeaning) {
    Travel();
    const std::string log = program->TextOf("txtMsgLog");
    const std::vector<std::string> lines = LinesOf(log);
    const std::vector<std::string> explained = Explain(log);
    ASSERT_EQ(explained.size(), lines.size());
    for (std::size_t index = 0; index < lines.size(); ++index) {
        const std::string& line = explained[index];
        EXPECT_TRUE(
            line.starts_with(lines[index].substr(0, lines[index].find_last_not_of(' ') + 1)))
            << line;
        EXPECT_NE(line.find(" -> "), std::string::npos) << line;
        for (const char* bad : {"?", "unknown", "incomplete", "checksum", "not what"}) {
            EXPECT_EQ(line.find(bad), std::string::npos) << line;
        }
    }
    std::string all;
    for (const std::string& line : explained) {
        all += line + "\n";
    }
    for (const char* meaning :
         {"reset the fault [stop] -> acknowledged",
          "ask for the protocol version [stop] -> protocol version 3.11 B",
          "ask for the status of traction module 4 [stop] -> traction module 4: VD60, OK, version "
          "2.01 D",
          "ask for the active HFI level of traction module 1 [stop] -> acknowledged, no answer yet",
          "poll [stop] -> active HFI level of traction module 1: 6",
          "analog speed: block 5, speed 63 forward [stop] -> acknowledged",
          "poll [stop] -> report: block 5 at speed 63 forward",
          "poll [stop] -> report: overcurrent in block 133 detected", "poll -> no answer"}) {
        EXPECT_NE(all.find(meaning), std::string::npos) << meaning;
    }
}

}  // namespace

}  // namespace zelvar::e2e
