// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/master_slave_check.h"

#include <string_view>

#include "config/await_answer.h"
#include "config/module_commands.h"
#include "config/selection_list.h"
#include "protocol/status.h"
#include "protocol/traction_settings.h"

namespace zelvar {

namespace {

constexpr std::string_view kLineEnd = "\r\n";

struct ValueText {
    int value;
    const char* text;
};

constexpr int kMaster = 1;
constexpr ValueText kModes[] = {{kMaster, " is master"}, {2, " is slave"}};
constexpr ValueText kClocks[] = {
    {0, " Clock OK"}, {1, " No Clock"}, {2, " Bad Clock"}, {4, " Degraded Clock"}};

template <typename Texts>
std::string TextOf(const Texts& texts, const char* other, int value) {
    for (const ValueText& row : texts) {
        if (row.value == value) {
            return row.text;
        }
    }
    return other + std::to_string(value);
}

}  // namespace

MasterSlaveCheck::MasterSlaveCheck(const Services& services, const ModuleRegistry& registry)
    : services_(services),
      registry_(registry),
      modules_(ChosenVDModules(registry, {1, kAllVDxx}).modules) {}

void MasterSlaveCheck::Run() {
    if (!services_.link.CheckPort()) {
        return;
    }
    const std::optional<Survey> survey = AskModes();
    if (!survey || !Judge(*survey)) {
        return;
    }
    if (const std::optional<std::string> report = AskClocks()) {
        services_.messageBox.Tell(*report, BoxIcon::Plain);
    }
}

bool MasterSlaveCheck::AskParameter(int module, int parameter, std::optional<int>& value) {
    const Command command = CommandForVD(VDGetCommand(false, parameter), module);
    const Awaited awaited =
        AskModule(services_.link, services_.clock, command, [&](const Reply& reply) {
            value = ReadVDAnswer(reply, module, parameter);
            return value.has_value();
        });
    return awaited != Awaited::Failure;
}

std::optional<MasterSlaveCheck::Survey> MasterSlaveCheck::AskModes() {
    const ProgressScope progress(services_.progress, "Asking for masters and slaves",
                                 static_cast<int>(modules_.size()) + 1);
    if (!services_.link.Transact(kEmptyTransaction)) {
        return std::nullopt;
    }
    Survey survey;
    for (const int module : modules_) {
        std::optional<int> mode;
        if (!AskParameter(module, kMasterSlaveParameter, mode)) {
            return std::nullopt;
        }
        if (!mode) {
            survey.silent = module;
            return survey;
        }
        // A module in "Auto" counts as an error, too: the role it has taken is not known.
        survey.report += LabelOf(module) + TextOf(kModes, " returns error: ", *mode);
        survey.report += kLineEnd;
        survey.masters += *mode == kMaster ? 1 : 0;
        services_.progress.Step();
    }
    if (!services_.link.Transact(kEmptyTransaction)) {
        return std::nullopt;
    }
    return survey;
}

bool MasterSlaveCheck::Judge(const Survey& survey) {
    if (survey.silent) {
        services_.messageBox.Tell("No answer from module " + std::to_string(*survey.silent),
                                  BoxIcon::Plain);
        return false;
    }
    const std::string report = survey.report + std::string(kLineEnd);
    if (survey.masters != 1) {
        services_.messageBox.Tell(
            report + (survey.masters == 0 ? "Your system has no master!"
                                          : "Your system has multiple masters!"),
            BoxIcon::Critical);
        return false;
    }
    return services_.messageBox.Ask(report +
                                        "Your master/slave settings are OK\r\n\r\n"
                                        "Do you want to verify Clock quality?",
                                    BoxIcon::Plain, BoxButtons::YesNo) == BoxAnswer::Yes;
}

std::optional<std::string> MasterSlaveCheck::AskClocks() {
    const ProgressScope progress(services_.progress, "Asking for the clocks",
                                 static_cast<int>(modules_.size()) + 1);
    if (!services_.link.Transact(kEmptyTransaction)) {
        return std::nullopt;
    }
    std::string report;
    for (const int module : modules_) {
        std::optional<int> state;
        if (!AskParameter(module, kClockStateParameter, state)) {
            return std::nullopt;
        }
        report += LabelOf(module);
        report += state ? TextOf(kClocks, " returns status: ", *state)
                        : std::string(" does not return Sync info");
        report += kLineEnd;
        services_.progress.Step();
    }
    if (!services_.link.Transact(kEmptyTransaction)) {
        return std::nullopt;
    }
    return report;
}

std::string MasterSlaveCheck::LabelOf(int module) const {
    const bool isVdF = registry_.vdTypes.at(static_cast<unsigned>(module)) == VDType::VdF;
    return (isVdF ? "VD-F " : "VD60  ") + std::to_string(module) + ".";
}

}  // namespace zelvar
