// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <numeric>
#include <string>
#include <string_view>
#include <utility>

#include "config/module_commands.h"
#include "config/selection_list.h"
#include "config/vd_settings.h"
#include "sim/protocol/traction_settings.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

/// One parameter of the traction modules, as a row of the form's table sets it.
struct ParameterRow {
    std::string name;
    const VDSetting* setting;
    /// Which of the setting's commands.
    std::size_t number;
    /// The option beside a number, if it counts.
    int option;
    int parameter;
    std::vector<int> values;
};

/// Every parameter that the form can set.
std::vector<ParameterRow> ParameterRows() {
    std::vector<ParameterRow> rows;
    for (const VDSetting& setting : VDSettings()) {
        std::vector<int> options;
        for (const VDOption& option : setting.options.options) {
            options.push_back(option.value);
        }
        if (setting.options.parameter) {
            rows.push_back({setting.frame, &setting, 0, 0, *setting.options.parameter, options});
            continue;
        }
        std::vector<int> values(setting.numbers.maximum - setting.numbers.minimum + 1);
        std::iota(values.begin(), values.end(), setting.numbers.minimum);
        for (const int option : options.empty() ? std::vector<int>{0} : options) {
            for (std::size_t i = 0; i < setting.numbers.fields.size(); ++i) {
                const int parameter = setting.numbers.fields[i].parameter + option;
                rows.push_back({setting.frame + std::to_string(parameter), &setting, i, option,
                                parameter, values});
            }
        }
    }
    return rows;
}

const VDSetting& SettingIn(std::string_view frame) {
    for (const VDSetting& setting : VDSettings()) {
        if (frame == setting.frame) {
            return setting;
        }
    }
    throw std::runtime_error("no setting in " + std::string(frame));
}

/// Lines with a module: VD-F, VD60 first and second unit, QLRX-s, on both channels.
constexpr int kLines[] = {0, 3, 31, 5, 16, 30, 37, 62, 8, 15};

class TractionTwin : public TwinLink {
  protected:
    /// Presses a setting's button for the module on a line.
    void Click(const VDSetting& setting, std::size_t number, int button, int line, bool permanent,
               const VDInput& input) {
        const auto command = VDCommandOf(setting, number, button, permanent, input);
        ASSERT_TRUE(command);
        Do(CommandForVD(*command, line));
    }

    /// What the form reads when it asks for a parameter.
    std::optional<VDReply> ReadBack(const VDSetting& setting, std::size_t number, int line,
                                    bool permanent, const VDInput& input) {
        Click(setting, number, kGetButton, line, permanent, input);
        Do(kEmptyTransaction);
        EXPECT_TRUE(MatchesReply(ReplyKind::VDConfig, *reply));
        return ReadVDConfigReply(*reply, line, permanent);
    }

    static std::string ParameterName(int line, bool permanent, int parameter) {
        return "traction." + std::to_string(line) + (permanent ? ".permanent." : ".active.") +
               std::to_string(parameter);
    }

    /// Sets a value and reads it back, in both memories of every line.
    void SetEverywhere(const VDSetting& setting, std::size_t number, const VDInput& input,
                       int parameter, int value) {
        for (const int line : kLines) {
            for (const bool permanent : {false, true}) {
                // Whatever was there is another value.
                auto& memory = port.state().memories.traction[static_cast<std::size_t>(line)];
                memory.Part(permanent)[static_cast<std::size_t>(parameter)] =
                    static_cast<std::uint8_t>(127 - value);
                const UnitImage before(port.state());
                Click(setting, number, kSetButton, line, permanent, input);
                ASSERT_EQ(before.ChangesTo(port.state()),
                          (Changes{{ParameterName(line, permanent, parameter), value}}));
                const bool showsClock = parameter == 15 && !permanent && line != 8 && line != 15;
                const auto read = ReadBack(setting, number, line, permanent, input);
                ASSERT_TRUE(read);
                EXPECT_EQ(read->parameter, parameter);
                // Where a QLRX-s has its address the others have the state of their clock.
                EXPECT_EQ(read->value, showsClock ? 0 : value);
            }
        }
    }
};

class TractionParameter : public TractionTwin,
                          public ::testing::WithParamInterface<ParameterRow> {};

TEST_P(TractionParameter, EveryValueIsKeptWhereItBelongsAndReadBack) {
    const ParameterRow& row = GetParam();
    for (const int value : row.values) {
        VDInput input;
        input.numbers.resize(row.setting->numbers.fields.size());
        if (row.setting->options.parameter) {
            input.option = value;
        } else {
            input.numbers[row.number].value = value;
            input.option = row.option;
        }
        SetEverywhere(*row.setting, row.number, input, row.parameter, value);
    }
}

TEST_P(TractionParameter, TheUnitHasItWithTheSameRangeInTheSameModules) {
    const ParameterRow& row = GetParam();
    const sim::TractionSetting* setting = sim::FindTractionSetting(row.parameter);
    ASSERT_NE(setting, nullptr);
    EXPECT_EQ(row.values.front(), setting->min);
    EXPECT_EQ(row.values.back(), setting->max);
    const VDTypes frame = row.setting->shownFor;
    const bool isNumber = !row.setting->options.parameter;
    const VDTypes types = isNumber ? row.setting->numbers.fields[row.number].shownFor : kAllVDTypes;
    for (const auto& [type, unitType] : {std::pair{VDType::VdF, sim::TractionType::kVdF},
                                         {VDType::Vd60, sim::TractionType::kVd60},
                                         {VDType::QlrxS, sim::TractionType::kQlrxS}}) {
        // The mode of a VD60 can only be read.
        const bool readOnly = row.setting->buttonsOutside && type == VDType::Vd60;
        EXPECT_EQ(readOnly || (frame.Contains(type) && types.Contains(type)),
                  setting->IsOf(static_cast<int>(unitType)))
            << row.parameter;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionParameter, ::testing::ValuesIn(ParameterRows()),
                         NameOf<ParameterRow>);

TEST_F(TractionTwin, EraseBringsOneModuleBackInBothMemories) {
    for (const int line : kLines) {
        const sim::TractionSettings factory =
            port.state().memories.traction[static_cast<std::size_t>(line)].active;
        for (sim::Memory<sim::TractionSettings>& memory : port.state().memories.traction) {
            memory.active.fill(99);
            memory.permanent.fill(98);
        }
        const Changes changes = EffectOf(CommandForVD(kVDErase, line));
        EXPECT_EQ(changes.size(), 2U * (sim::kTractionParameters - 1));
        for (int parameter = 1; parameter < sim::kTractionParameters; ++parameter) {
            for (const bool permanent : {false, true}) {
                EXPECT_EQ(changes.at(ParameterName(line, permanent, parameter)),
                          factory[static_cast<std::size_t>(parameter)]);
            }
        }
        port.Connect(EveryKind());
    }
}

/// A group of the list and the lines of `EveryKind` that belong to it.
struct GroupRow {
    const char* name;
    int data;
    std::vector<int> lines;
};

const GroupRow kGroupRows[] = {
    {"AllVDxx", kAllVDxx, {0, 3, 5, 16, 30, 31, 37, 62}},
    {"AllVD60", kAllVD60, {5, 16, 30, 37, 62}},
    {"AllVDF", kAllVDF, {0, 3, 31}},
    {"AllQlrx", kAllQlrx, {8, 15}},
    {"OneFirstUnit", 5, {5}},
    {"OneSecondUnit", 37, {37}},
    {"LastSecondUnit", 62, {62}},
};

class TractionGroup : public TractionTwin, public ::testing::WithParamInterface<GroupRow> {
  protected:
    void Send(const ModuleCommand& command) {
        ModuleRegistry registry;
        for (const auto& [type, lines] : {std::pair{VDType::VdF, std::vector{0, 3, 31}},
                                          {VDType::Vd60, {5, 16, 30, 37, 62}},
                                          {VDType::QlrxS, {8, 15}}}) {
            for (const int line : lines) {
                registry.vdTypes.at(static_cast<unsigned>(line)) = type;
            }
        }
        ModuleCommands commands(services,
                                {[&] {
                                     return ChosenVDModules(registry, {1, GetParam().data});
                                 },
                                 {}});
        commands.SendModuleCommand(command);
    }
};

TEST_P(TractionGroup, AllOfItTakeTheValueAndNoOther) {
    for (const bool permanent : {false, true}) {
        VDInput input;
        input.numbers.resize(1);
        input.numbers[0].value = 3;
        const UnitImage before(port.state());
        Send(*VDCommandOf(SettingIn("frmDCS"), 0, kSetButton, permanent, input));
        Changes meant;
        for (const int line : GetParam().lines) {
            meant[ParameterName(line, permanent, 8)] = 3;
        }
        EXPECT_EQ(before.ChangesTo(port.state()), meant);
    }
}

TEST_P(TractionGroup, AllOfItAreErasedAndNoOther) {
    for (sim::Memory<sim::TractionSettings>& memory : port.state().memories.traction) {
        memory.permanent[1] = 15;
        memory.active[1] = 14;
    }
    const UnitImage before(port.state());
    Send(kVDErase);
    Changes meant;
    for (const int line : GetParam().lines) {
        const int factory = sim::FactoryTractionSettings(line)[1];
        meant[ParameterName(line, false, 1)] = factory;
        meant[ParameterName(line, true, 1)] = factory;
    }
    EXPECT_EQ(before.ChangesTo(port.state()), meant);
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionGroup, ::testing::ValuesIn(kGroupRows), NameOf<GroupRow>);

}  // namespace
}  // namespace zelvar::twin
