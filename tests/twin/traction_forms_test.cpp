// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_window.h"

namespace zelvar::twin {
namespace {

// The kinds of modules that have a setting.
constexpr unsigned VDType::VdF = 1;
constexpr unsigned kVd60 = 2;
constexpr unsigned kQlrx = 4;

/// An entry of the list of modules, what it stands for, and the unit's lines behind it.
struct Target {
    const char* entry;
    unsigned kind;
    std::vector<int> lines;
};

const Target kModules[] = {
    {" 0", VDType::VdF, {0}}, {" 31", VDType::VdF, {31}}, {" 5.0", kVd60, {5}},
    {" 5.1", kVd60, {37}},    {" 16.0", kVd60, {16}},     {" 30.1", kVd60, {62}},
    {" 8", kQlrx, {8}},       {" 15", kQlrx, {15}},
};

const Target kGroups[] = {
    {"All_VD-F", VDType::VdF, {0, 3, 31}},
    {"All_VD60", kVd60, {5, 16, 30, 37, 62}},
    {"All_QLRX", kQlrx, {8, 15}},
    // What is common to VD-F and VD60.
    {"All_VDxx", kVd60, {0, 3, 5, 16, 30, 31, 37, 62}},
};

struct FieldRow {
    const char* field;
    int parameter;
    int first;
    int last;
    unsigned kinds;
};

/// A setting with number fields; all of them go with one press.
struct NumberSetting {
    const char* name;
    const char* button;
    std::vector<FieldRow> fields;
    unsigned kinds;
    /// Pressed before; empty for none.
    const char* option = "";
};

constexpr unsigned kBothVd = VDType::VdF | kVd60;
constexpr unsigned kAny = VDType::VdF | kVd60 | kQlrx;

const NumberSetting kNumberSettings[] = {
    {"HfiLevel", "cmdHFI", {{"txtHFI", 1, 0, 15, kBothVd}}, kBothVd},
    {"AlarmDelay",
     "cmdAL",
     {{"txtAL(0)", 2, 0, 127, kBothVd}, {"txtAL(1)", 3, 0, 127, kBothVd}},
     kBothVd},
    // A VD60 has one bank only.
    {"SwitchDelay",
     "cmdSW",
     {{"txtSW(0)", 4, 0, 7, kAny},
      {"txtSW(1)", 5, 0, 7, VDType::VdF | kQlrx},
      {"txtSW(2)", 6, 0, 7, kAny},
      {"txtSW(3)", 7, 0, 7, VDType::VdF | kQlrx}},
     kAny},
    {"DcShift", "cmdDCShift", {{"txtDCShift", 8, 0, 7, kBothVd}}, kBothVd},
    {"LoopCurrentA", "cmdLC", {{"txtLC", 13, 20, 70, kQlrx}}, kQlrx, "OptLC(0)"},
    {"LoopCurrentB", "cmdLC", {{"txtLC", 14, 20, 70, kQlrx}}, kQlrx, "OptLC(1)"},
    {"Address", "cmdAD", {{"txtAD", 15, 0, 15, kQlrx}}, kQlrx},
};

struct OptionSetting {
    const char* name;
    const char* button;
    const char* options;
    int parameter;
    std::vector<int> values;
    unsigned setFor;
    unsigned getFor;
};

const OptionSetting kOptionSettings[] = {
    {"PwmMultiplier", "cmdPWMM", "optPWMM", 9, {2, 4, 8, 16, 32}, kBothVd, kBothVd},
    {"OcdMode", "cmdOCD", "optOCD", 10, {0, 1, 2}, kBothVd, kBothVd},
    // A VD60 tells its mode, but takes none.
    {"MasterSlaveMode", "cmdMS", "optMS", 11, {0, 1, 2}, VDType::VdF, kBothVd},
    {"PowerControl", "cmdPC", "optPC", 12, {0, 1}, VDType::VdF, VDType::VdF},
};

class TractionForms : public TwinWindow {
  protected:
    TractionForms() { RequestStatus(); }

    void ChooseModule(const Target& target) { Choose("cboVD", target.entry); }

    std::uint8_t& Kept(int line, bool permanent, int parameter) {
        auto& memory = port.state().memories.traction[static_cast<std::size_t>(line)];
        return memory.Part(permanent)[static_cast<std::size_t>(parameter)];
    }
    /// Puts a value that no form offers, so that each press shows.
    void Spoil(const Target& target, bool permanent, int parameter) {
        for (const int line : target.lines) {
            Kept(line, permanent, parameter) = 99;
        }
    }
    static void Expect(Changes& changes, const Target& target, bool permanent, int parameter,
                       int value) {
        for (const int line : target.lines) {
            changes["traction." + std::to_string(line) + (permanent ? ".permanent." : ".active.") +
                    std::to_string(parameter)] = value;
        }
    }
    /// @param pass 0 the first values, 1 the last ones, 2 one of its own for each field
    static int ValueOf(const FieldRow& field, int pass) {
        const int between = field.first + 1 + field.parameter % (field.last - field.first);
        return pass == 0 ? field.first : pass == 1 ? field.last : between;
    }

    void SetNumbers(const NumberSetting& setting, const Target& target, bool permanent, int pass) {
        Changes meant;
        for (const FieldRow& field : setting.fields) {
            if ((field.kinds & target.kind) != 0) {
                Spoil(target, permanent, field.parameter);
                Type(field.field, ValueOf(field, pass));
                Expect(meant, target, permanent, field.parameter, ValueOf(field, pass));
            }
        }
        EXPECT_EQ(EffectOfClick(Member(setting.button, 0)), meant);
    }

    void GetNumbers(const NumberSetting& setting, const Target& target, bool permanent, int pass) {
        for (const FieldRow& field : setting.fields) {
            if ((field.kinds & target.kind) != 0) {
                const int kept = ValueOf(field, pass);
                Kept(target.lines.front(), permanent, field.parameter) =
                    static_cast<std::uint8_t>(kept);
                Type(field.field, kept == field.first ? field.last : field.first);
            }
        }
        EXPECT_EQ(EffectOfClick(Member(setting.button, 1)), Changes{});
        for (const FieldRow& field : setting.fields) {
            if ((field.kinds & target.kind) != 0) {
                EXPECT_EQ(NumberIn(field.field), ValueOf(field, pass)) << field.field;
                EXPECT_TRUE(IsGreen(field.field)) << field.field;
            }
        }
    }

    /// Whether there is something to press for these modules.
    bool IsOffered(const char* button, int index) {
        return Find<QWidget>(Member(button, index)).isVisibleTo(window.get());
    }
};

class TractionNumberForm : public TractionForms,
                           public ::testing::WithParamInterface<NumberSetting> {};

TEST_P(TractionNumberForm, IsSetAndGotInEveryModuleThatHasIt) {
    const NumberSetting& setting = GetParam();
    for (const Target& target : kModules) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        const bool has = (setting.kinds & target.kind) != 0;
        EXPECT_EQ(IsOffered(setting.button, 0), has);
        // A QLRX-s takes settings and gives none back.
        const bool tells = has && target.kind != kQlrx;
        if (has && *setting.option != '\0') {
            Click(setting.option);
        }
        for (const bool permanent : {false, true}) {
            Tick("chkVDperm", permanent);
            for (int pass = 0; has && pass < 3; ++pass) {
                SetNumbers(setting, target, permanent, pass);
                if (tells) {
                    GetNumbers(setting, target, permanent, pass);
                }
            }
        }
    }
}

TEST_P(TractionNumberForm, IsSetInEveryModuleOfAGroupAndInNoOther) {
    const NumberSetting& setting = GetParam();
    int tried = 0;
    for (const Target& target : kGroups) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        if ((setting.kinds & target.kind) == 0) {
            continue;
        }
        ++tried;
        if (*setting.option != '\0') {
            Click(setting.option);
        }
        for (const bool permanent : {false, true}) {
            Tick("chkVDperm", permanent);
            SetNumbers(setting, target, permanent, 2);
        }
    }
    EXPECT_GT(tried, 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionNumberForm, ::testing::ValuesIn(kNumberSettings),
                         NameOf<NumberSetting>);

class TractionOptionForm : public TractionForms,
                           public ::testing::WithParamInterface<OptionSetting> {
  protected:
    void SetOption(const Target& target, bool permanent, int value) {
        const OptionSetting& setting = GetParam();
        Spoil(target, permanent, setting.parameter);
        Click(Member(setting.options, value));
        Changes meant;
        Expect(meant, target, permanent, setting.parameter, value);
        EXPECT_EQ(EffectOfClick(Member(setting.button, 0)), meant);
    }
    void GetOption(const Target& target, bool permanent, int value) {
        const OptionSetting& setting = GetParam();
        Kept(target.lines.front(), permanent, setting.parameter) = static_cast<std::uint8_t>(value);
        Click(Member(setting.options,
                     value == setting.values[0] ? setting.values[1] : setting.values[0]));
        EXPECT_EQ(EffectOfClick(Member(setting.button, 1)), Changes{});
        EXPECT_TRUE(IsTicked(Member(setting.options, value)));
        EXPECT_TRUE(IsGreen(Member(setting.options, value)));
    }
};

TEST_P(TractionOptionForm, IsSetAndGotInEveryModuleThatHasIt) {
    const OptionSetting& setting = GetParam();
    for (const Target& target : kModules) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        const bool takes = (setting.setFor & target.kind) != 0;
        const bool tells = (setting.getFor & target.kind) != 0;
        EXPECT_EQ(IsOffered(setting.button, 0), takes);
        EXPECT_EQ(IsOffered(setting.button, 1), tells);
        for (const bool permanent : {false, true}) {
            Tick("chkVDperm", permanent);
            for (const int value : setting.values) {
                if (takes) {
                    SetOption(target, permanent, value);
                }
                if (tells) {
                    GetOption(target, permanent, value);
                }
            }
        }
    }
}

TEST_P(TractionOptionForm, IsSetInEveryModuleOfAGroupAndInNoOther) {
    const OptionSetting& setting = GetParam();
    int tried = 0;
    for (const Target& target : kGroups) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        const bool takes = (setting.setFor & target.kind) != 0;
        for (const int value : setting.values) {
            if (takes) {
                SetOption(target, false, value);
                ++tried;
            }
        }
    }
    EXPECT_GT(tried, 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionOptionForm, ::testing::ValuesIn(kOptionSettings),
                         NameOf<OptionSetting>);

TEST_F(TractionForms, EraseAsksAndThenBringsBackWhatIsChosen) {
    const testing::ShownBox question{
        "Warning! This will permanently erase all settings of all selected VD-units",
        BoxIcon::Exclamation, BoxButtons::OkCancel};
    const testing::ShownBox cancelled{"Operation Cancelled", BoxIcon::Plain, BoxButtons::Ok};
    for (const auto* targets : {kModules, kGroups}) {
        const std::size_t count = targets == kModules ? std::size(kModules) : std::size(kGroups);
        for (const Target* target = targets; target != targets + count; ++target) {
            SCOPED_TRACE(target->entry);
            for (int line = 0; line < sim::kTractionLines; ++line) {
                Kept(line, false, 1) = 99;
                Kept(line, true, 12) = 99;
            }
            ChooseModule(*target);
            messageBox.answers = {BoxAnswer::Cancel, BoxAnswer::Ok};
            EXPECT_EQ(EffectOfClick("cmdErase"), Changes{});
            Changes meant;
            Expect(meant, *target, false, 1, sim::FactoryTractionSettings(0)[1]);
            Expect(meant, *target, true, 12, sim::FactoryTractionSettings(0)[12]);
            EXPECT_EQ(EffectOfClick("cmdErase"), meant);
            for (const auto& box : {question, cancelled, question}) {
                expectedBoxes.push_back(box);
            }
        }
    }
}

}  // namespace
}  // namespace zelvar::twin
