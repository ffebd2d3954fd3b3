// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/master_slave_check.h"
#include "config/vd_settings.h"
#include "status/status_request.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

/// What modules say of themselves, by line; the others are slaves with a good clock.
using Said = std::map<int, int>;

constexpr int kMaster = 1;
constexpr int kSlave = 2;

/// The lines of `EveryKind` that are asked, as the report calls them.
const std::vector<std::pair<int, std::string>> kAsked{
    {0, "VD-F 0."},    {3, "VD-F 3."},   {5, "VD60  5."},   {16, "VD60  16."},
    {30, "VD60  30."}, {31, "VD-F 31."}, {37, "VD60  37."}, {62, "VD60  62."}};

/// A report in which all say the same but those that are named.
std::string Report(const std::string& all, const std::map<int, std::string>& others) {
    std::string report;
    for (const auto& [line, label] : kAsked) {
        report += label + (others.count(line) == 1 ? others.at(line) : all) + "\r\n";
    }
    return report;
}

testing::ShownBox Critical(const std::string& text) {
    return {text, BoxIcon::Critical, BoxButtons::Ok};
}
testing::ShownBox Plain(const std::string& text) {
    return {text, BoxIcon::Plain, BoxButtons::Ok};
}
testing::ShownBox Question(const std::map<int, std::string>& modes) {
    return {Report(" is slave", modes) +
                "\r\nYour master/slave settings are OK\r\n\r\nDo you want to verify Clock quality?",
            BoxIcon::Plain, BoxButtons::YesNo};
}

class MasterSlaveTwin : public TwinLink {
  protected:
    MasterSlaveTwin() { StatusRequest(link, progress, clock, registry, requestView).Run(false); }

    /// Sets a mode as the program does. @param mode 0 auto, 1 master, 2 slave
    void SetMode(int line, int mode) {
        VDInput input;
        input.option = mode;
        for (const VDSetting& setting : VDSettings()) {
            if (std::string("frmMS") == setting.frame) {
                Do(CommandForVD(*VDCommandOf(setting, 0, kSetButton, false, input), line));
            }
        }
    }
    void SetClock(int line, int clockState) {
        port.state().layout.At(sim::LineAddress(line)).clock =
            static_cast<std::uint8_t>(clockState);
    }
    void Check(const Said& modes) {
        for (const auto& [line, label] : kAsked) {
            const auto said = modes.find(line);
            SetMode(line, said == modes.end() ? kSlave : said->second);
        }
        MasterSlaveCheck(services, registry).Run();
    }

    ModuleRegistry registry;
};

TEST_F(MasterSlaveTwin, EachModuleCanBeTheOneMaster) {
    for (const auto& [line, label] : kAsked) {
        messageBox.answers = {BoxAnswer::No};
        Check({{line, kMaster}});
        expectedBoxes.push_back(Question({{line, " is master"}}));
    }
}

TEST_F(MasterSlaveTwin, NoMasterAndSeveralMastersAreToldAndTheClocksLeftAlone) {
    Check({});
    Check({{0, kMaster}, {62, kMaster}});
    expectedBoxes = {Critical(Report(" is slave", {}) + "\r\nYour system has no master!"),
                     Critical(Report(" is slave", {{0, " is master"}, {62, " is master"}}) +
                              "\r\nYour system has multiple masters!")};
}

TEST_F(MasterSlaveTwin, AutoIsAnErrorBesideAMasterAndNoMasterByItself) {
    messageBox.answers = {BoxAnswer::No};
    Check({{3, kMaster}, {37, 0}});
    Check({{37, 0}});
    expectedBoxes = {Question({{3, " is master"}, {37, " returns error: 0"}}),
                     Critical(Report(" is slave", {{37, " returns error: 0"}}) +
                              "\r\nYour system has no master!")};
}

TEST_F(MasterSlaveTwin, EveryStateOfAClockIsTold) {
    const std::map<int, std::string> clocks{
        {0, " Clock OK"},        {3, " No Clock"},           {5, " Bad Clock"},
        {16, " Degraded Clock"}, {30, " returns status: 3"}, {62, " returns status: 127"}};
    for (const auto& [line, state] : Said{{0, 0}, {3, 1}, {5, 2}, {16, 4}, {30, 3}, {62, 127}}) {
        SetClock(line, state);
    }
    messageBox.answers = {BoxAnswer::Yes};
    Check({{31, kMaster}});
    expectedBoxes = {Question({{31, " is master"}}), Plain(Report(" Clock OK", clocks))};
}

TEST_F(MasterSlaveTwin, TheAnswersMayTakeTheirTime) {
    for (const int polls : {0, 2, 5}) {
        port.state().answerDelay = polls;
        messageBox.answers = {BoxAnswer::Yes};
        Check({{5, kMaster}});
        expectedBoxes.push_back(Question({{5, " is master"}}));
        expectedBoxes.push_back(Plain(Report(" Clock OK", {})));
    }
}

TEST_F(MasterSlaveTwin, ASilentModuleEndsTheFirstQuestion) {
    port.state().muted.set(static_cast<std::size_t>(sim::LineAddress(30)));
    Check({{5, kMaster}});
    expectedBoxes = {Plain("No answer from module 30")};
}

TEST_F(MasterSlaveTwin, ASilentModuleIsNotedAmongTheClocks) {
    messageBox.answers = {BoxAnswer::Yes};
    // It falls silent between the two questions.
    messageBox.whileShown = [this] {
        port.state().muted.set(static_cast<std::size_t>(sim::LineAddress(37)));
    };
    Check({{5, kMaster}});
    expectedBoxes = {Question({{5, " is master"}}),
                     Plain(Report(" Clock OK", {{37, " does not return Sync info"}}))};
}

TEST_F(MasterSlaveTwin, TheOtherMemoryAndTheQlrxAreNotAsked) {
    for (const auto& [line, label] : kAsked) {
        port.state().memories.traction[static_cast<std::size_t>(line)].permanent[11] = kMaster;
    }
    port.state().memories.traction[8].active[11] = kMaster;
    Check({});
    expectedBoxes = {Critical(Report(" is slave", {}) + "\r\nYour system has no master!")};
}

}  // namespace
}  // namespace zelvar::twin
