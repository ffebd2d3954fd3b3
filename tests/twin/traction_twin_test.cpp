// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/selection_list.h"
#include "config/vd_settings.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

/// A setting of the traction modules as their makers number it.
struct SettingRow {
    const char* name;
    /// The frame of the form, and which of its fields; the option beside it, if it counts.
    const char* frame;
    std::size_t field;
    int option;
    int parameter;
    int first;
    int last;
};

const SettingRow kNumberRows[] = {
    {"HfiLevel", "frmHFI", 0, 0, 1, 0, 15},      {"AlarmOffDelay", "frmAL", 0, 0, 2, 0, 127},
    {"AlarmOnDelay", "frmAL", 1, 0, 3, 0, 127},  {"SwitchOffBank0", "frmSW", 0, 0, 4, 0, 7},
    {"SwitchOffBank1", "frmSW", 1, 0, 5, 0, 7},  {"SwitchOnBank0", "frmSW", 2, 0, 6, 0, 7},
    {"SwitchOnBank1", "frmSW", 3, 0, 7, 0, 7},   {"DcShift", "frmDCS", 0, 0, 8, 0, 7},
    {"LoopCurrentA", "FrmLC", 0, 0, 13, 20, 70}, {"LoopCurrentB", "FrmLC", 0, 1, 14, 20, 70},
    {"ModuleAddress", "frmAD", 0, 0, 15, 0, 15},
};

struct OptionRow {
    const char* name;
    const char* frame;
    int parameter;
    std::vector<int> values;
};

const OptionRow kOptionRows[] = {
    {"PwmMultiplier", "frmPWMM", 9, {2, 4, 8, 16, 32}},
    {"OcdMode", "frmOCD", 10, {0, 1, 2}},
    {"MasterSlaveMode", "frmMS", 11, {0, 1, 2}},
    {"PowerControl", "frmPC", 12, {0, 1}},
};

const VDSetting& SettingIn(const std::string& frame) {
    for (const VDSetting& setting : VDSettings()) {
        if (frame == setting.frame) {
            return setting;
        }
    }
    throw std::runtime_error("no setting in " + frame);
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
        EXPECT_TRUE(MatchesReply(ReplyKind::VDConfig, link.Reply()));
        return ReadVDConfigReply(link.Reply(), line, permanent);
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

class TractionNumber : public TractionTwin, public ::testing::WithParamInterface<SettingRow> {};

TEST_P(TractionNumber, EveryValueIsKeptWhereItWasMeantAndReadBack) {
    const SettingRow& row = GetParam();
    const VDSetting& setting = SettingIn(row.frame);
    for (int value = row.first; value <= row.last; ++value) {
        VDInput input;
        input.numbers.resize(setting.numbers.fields.size());
        input.numbers[row.field].value = value;
        input.option = row.option;
        SetEverywhere(setting, row.field, input, row.parameter, value);
    }
    EXPECT_EQ(setting.numbers.minimum, row.first);
    EXPECT_EQ(setting.numbers.maximum, row.last);
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionNumber, ::testing::ValuesIn(kNumberRows),
                         NameOf<SettingRow>);

class TractionOption : public TractionTwin, public ::testing::WithParamInterface<OptionRow> {};

TEST_P(TractionOption, EveryOptionIsKeptWhereItWasMeantAndReadBack) {
    const OptionRow& row = GetParam();
    const VDSetting& setting = SettingIn(row.frame);
    std::vector<int> offered;
    for (const VDOption& option : setting.options.options) {
        offered.push_back(option.value);
        VDInput input;
        input.option = option.value;
        SetEverywhere(setting, 0, input, row.parameter, option.value);
    }
    EXPECT_EQ(offered, row.values);
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionOption, ::testing::ValuesIn(kOptionRows), NameOf<OptionRow>);

TEST_F(TractionTwin, EverySettingOfTheFormHasARow) {
    std::size_t fields = 0;
    for (const VDSetting& setting : VDSettings()) {
        // The loop currents share a field.
        const bool loops = std::string("FrmLC") == setting.frame;
        fields += loops ? 2 : VDCommandCount(setting);
    }
    EXPECT_EQ(fields, std::size(kNumberRows) + std::size(kOptionRows));
}

TEST_F(TractionTwin, EraseBringsOneModuleBackInBothMemories) {
    for (const int line : kLines) {
        const sim::TractionSettings factory =
            port.state().memories.traction[static_cast<std::size_t>(line)].active;
        for (sim::Memory<sim::TractionSettings>& memory : port.state().memories.traction) {
            memory.active.fill(99);
            memory.permanent.fill(98);
        }
        const Changes changes = EffectOf(CommandForVD(kVDErase, line));
        EXPECT_EQ(changes.size(), 2U * 15U);
        for (int parameter = 1; parameter <= 15; ++parameter) {
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
                                          {kVd60, {5, 16, 30, 37, 62}},
                                          {kQlrxS, {8, 15}}}) {
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

TEST_P(TractionGroup, AllOfItTakeTheValueAndNobodyElse) {
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

TEST_P(TractionGroup, AllOfItAreErasedAndNobodyElse) {
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
