// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_settings.h"

#include <algorithm>

namespace zelvar {

namespace {

constexpr VDTypes kForBothVD{VDType::Vd60, VDType::VdF};
/// A VD60 has one bank of switch delays.
constexpr VDTypes kForTwoBanks{VDType::VdF, VDType::QlrxS};

constexpr int kNoInitialOption = -1;

const std::vector<VDSetting> kSettings{
    {.frame = "frmSW",
     .accessibleName = "Switch delay",
     .title = "Switch delay",
     .place = {0, 0},
     .button = "cmdSW",
     .captions = {"Set Switch-delay", "Get Switch-delay"},
     .numbers = {"txtSW",
                 "updownSW",
                 0,
                 7,
                 Clamped::OnChange,
                 {{4, "Off-delay of bank 0", 0, "lblSW", "Off Bank 0"},
                  {5, "Off-delay of bank 1", 1, "lblSW", "Off Bank 1", kForTwoBanks},
                  {6, "On-delay of bank 0", 2, "lblSW", "On Bank 0"},
                  {7, "On-delay of bank 1", 3, "lblSW", "On Bank 1", kForTwoBanks}}},
     .inBanks = true},
    {.frame = "FrmLC",
     .accessibleName = "Loop current",
     .title = "Loop current",
     .place = {0, 1},
     .shownFor = kForQlrx,
     .button = "cmdLC",
     .captions = {"Set Loop Current", "Get Loop Current"},
     .numbers = {"txtLC", "UpDownLC", 20, 70, Clamped::OnClick, {{13, "Loop current"}}},
     .options = {"OptLC", {{0, "Loop A"}, {1, "Loop B"}}}},
    {.frame = "frmAD",
     .accessibleName = "Module address",
     .title = "Address",
     .place = {0, 2},
     .shownFor = kForQlrx,
     .button = "cmdAD",
     .captions = {"Set Address", "Get Address"},
     .numbers = {"txtAD", "updownAD", 0, 15, Clamped::OnClick, {{15, "Module address"}}}},
    {.frame = "frmHFI",
     .accessibleName = "High-frequency injection level",
     .title = "HFI level",
     .place = {1, 0},
     .shownFor = kForBothVD,
     .button = "cmdHFI",
     .captions = {"Set HFI-level", "Get HFI-level"},
     .numbers =
         {"txtHFI", "updownHFI", 0, 15, Clamped::OnClick, {{1, "High-frequency injection level"}}}},
    {.frame = "frmAL",
     .accessibleName = "Alarm delay",
     .title = "Alarm delay",
     .place = {1, 1},
     .shownFor = kForBothVD,
     .button = "cmdAL",
     .captions = {"Set Alarm-delay", "Get Alarm-delay"},
     .numbers = {"txtAL",
                 "updownAL",
                 0,
                 127,
                 Clamped::OnChange,
                 {{2, "Alarm off-delay", 0, "lblAl", "Off-delay"},
                  {3, "Alarm on-delay", 1, "lblAl", "On-delay"}}}},
    {.frame = "frmDCS",
     .accessibleName = "DC shift",
     .title = "DC shift",
     .place = {1, 2},
     .shownFor = kForBothVD,
     .button = "cmdDCShift",
     .captions = {"Set DC-Shift", "Get DC-Shift"},
     .numbers = {"txtDCShift", "updownDCShift", 0, 7, Clamped::OnClick, {{8, "DC shift"}}}},
    {.frame = "frmPWMM",
     .accessibleName = "PWM multiplier",
     .title = "PWM multiplier",
     .place = {1, 3},
     .shownFor = kForBothVD,
     .button = "cmdPWMM",
     .captions = {"Set PWM-Mult.", "Get PWM-Mult."},
     .options =
         {"optPWMM", {{2, "2"}, {4, "4"}, {8, "8"}, {16, "16"}, {32, "32"}}, 9, kNoInitialOption}},
    {.frame = "frmOCD",
     .accessibleName = "Overcurrent detection mode",
     .title = "OCD mode",
     .place = {1, 4},
     .shownFor = kForBothVD,
     .button = "cmdOCD",
     .captions = {"Set OCD-mode", "Get OCD-mode"},
     .options = {"optOCD", {{0, "Fast"}, {1, "Moderate"}, {2, "Slow"}}, 10}},
    {.frame = "frmMS",
     .accessibleName = "Master/slave mode",
     .title = "MS mode",
     .place = {2, 0},
     .shownFor = kForVDF,
     .button = "cmdMS",
     .captions = {"Set MS-mode", "Get MS-mode"},
     .options = {"optMS", {{0, "Auto"}, {1, "Master"}, {2, "Slave"}}, kMasterSlaveParameter},
     .buttonsOutside = true},
    {.frame = "frmPC",
     .accessibleName = "Power control",
     .title = "Power control",
     .place = {2, 1},
     .shownFor = kForVDF,
     .button = "cmdPC",
     .captions = {"Set Power CTL", "Get Power CTL"},
     .options = {"optPC", {{0, "Single"}, {1, "Double"}}, 12}},
};

ModuleCommand ConfigCommand(int button, bool permanent, int parameter, int value) {
    return button == kSetButton ? VDSetCommand(permanent, parameter, value)
                                : VDGetCommand(permanent, parameter, value);
}

/// What the chosen option adds to the parameters of the numbers.
int ParameterOffset(const VDSetting& setting, int option) {
    return setting.options.parameter ? 0 : option;
}

}  // namespace

const std::vector<VDSetting>& VDSettings() {
    return kSettings;
}

std::size_t VDCommandCount(const VDSetting& setting) {
    return setting.options.parameter ? 1 : setting.numbers.fields.size();
}

std::optional<ModuleCommand> VDCommandOf(const VDSetting& setting, std::size_t number, int button,
                                         bool permanent, const VDInput& input) {
    if (setting.options.parameter) {
        return ConfigCommand(button, permanent, *setting.options.parameter, input.option);
    }
    if (!input.numbers[number].shown) {
        return std::nullopt;
    }
    const int parameter =
        setting.numbers.fields[number].parameter + ParameterOffset(setting, input.option);
    return ConfigCommand(button, permanent, parameter, input.numbers[number].value);
}

std::optional<VDReply> ReadVDConfigReply(const Reply& reply, std::optional<int> module,
                                         bool permanent) {
    if (!module || *module < 0) {
        return std::nullopt;
    }
    std::optional<VDReply> read = ReadVDConfigReply(reply, *module);
    if (read && permanent) {
        read->parameter -= kPermanentBit;
    }
    return read;
}

std::optional<std::size_t> FieldShowing(const VDSetting& setting, int parameter, int option) {
    const std::vector<VDField>& fields = setting.numbers.fields;
    for (std::size_t i = 0; i < fields.size(); ++i) {
        if (fields[i].parameter + ParameterOffset(setting, option) == parameter) {
            return i;
        }
    }
    return std::nullopt;
}

bool HasOptionFor(const VDSetting& setting, const VDReply& reply) {
    const std::vector<VDOption>& options = setting.options.options;
    return setting.options.parameter == reply.parameter &&
           std::any_of(options.begin(), options.end(),
                       [&](const VDOption& option) { return option.value == reply.value; });
}

}  // namespace zelvar
