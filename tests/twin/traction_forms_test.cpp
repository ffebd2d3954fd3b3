// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_settings.h"
#include "twin/twin_window.h"

namespace zelvar::twin {
namespace {

/// An entry of the list of modules, the type that decides what it has, and the unit's lines behind
/// it.
struct Target {
    const char* entry;
    VDType type;
    std::vector<int> lines;
};

const Target kModules[] = {
    {" 0", VDType::VdF, {0}},     {" 31", VDType::VdF, {31}},    {" 5.0", VDType::Vd60, {5}},
    {" 5.1", VDType::Vd60, {37}}, {" 16.0", VDType::Vd60, {16}}, {" 30.1", VDType::Vd60, {62}},
    {" 8", VDType::QlrxS, {8}},   {" 15", VDType::QlrxS, {15}},
};

const Target kGroups[] = {
    {"All_VD-F", VDType::VdF, {0, 3, 31}},
    {"All_VD60", VDType::Vd60, {5, 16, 30, 37, 62}},
    {"All_QLRX", VDType::QlrxS, {8, 15}},
    // What is common to VD-F and VD60.
    {"All_VDxx", VDType::Vd60, {0, 3, 5, 16, 30, 31, 37, 62}},
};

struct FieldRow {
    std::string field;
    int parameter;
    int first;
    int last;
    VDTypes types;
};

/// A setting as the hand on the form meets it. All of its fields go with one press.
struct FormSetting {
    std::string name;
    std::string button;
    std::vector<FieldRow> fields;
    /// Clicked before; empty for none.
    std::string option;
    VDTypes setFor;
    VDTypes getFor;
    // Of a setting that has options in place of fields.
    std::string options;
    int parameter = 0;
    std::vector<int> values;
};

std::string MemberName(const char* name, int index) {
    return index == kNoIndex ? name : Member(name, index);
}

/// The modules that give a setting back: a QLRX-s gives none. The mode of a VD60 can only be read.
VDTypes ReadableFor(const VDSetting& setting) {
    const bool byVdF = setting.buttonsOutside || setting.shownFor.Contains(VDType::VdF);
    const bool byVd60 = setting.buttonsOutside || setting.shownFor.Contains(VDType::Vd60);
    return byVdF && byVd60 ? VDTypes{VDType::VdF, VDType::Vd60}
           : byVdF         ? VDTypes{VDType::VdF}
           : byVd60        ? VDTypes{VDType::Vd60}
                           : VDTypes{};
}

FormSetting NumbersOf(const VDSetting& setting, int option) {
    FormSetting form;
    form.name = setting.frame + std::to_string(option);
    form.button = setting.button;
    form.setFor = setting.shownFor;
    form.getFor = ReadableFor(setting);
    const VDNumbers& numbers = setting.numbers;
    for (const VDField& field : numbers.fields) {
        form.fields.push_back({MemberName(numbers.field, field.index), field.parameter + option,
                               numbers.minimum, numbers.maximum, field.shownFor});
    }
    if (!setting.options.options.empty()) {
        form.option = Member(setting.options.name, option);
    }
    return form;
}

std::vector<FormSetting> NumberSettings() {
    std::vector<FormSetting> all;
    for (const VDSetting& setting : VDSettings()) {
        if (setting.options.parameter) {
            continue;
        }
        all.push_back(NumbersOf(setting, 0));
        for (std::size_t i = 1; i < setting.options.options.size(); ++i) {
            all.push_back(NumbersOf(setting, setting.options.options[i].value));
        }
    }
    return all;
}

std::vector<FormSetting> OptionSettings() {
    std::vector<FormSetting> all;
    for (const VDSetting& setting : VDSettings()) {
        if (setting.options.parameter) {
            FormSetting form;
            form.name = setting.frame;
            form.button = setting.button;
            form.setFor = setting.shownFor;
            form.getFor = ReadableFor(setting);
            form.options = setting.options.name;
            form.parameter = *setting.options.parameter;
            for (const VDOption& option : setting.options.options) {
                form.values.push_back(option.value);
            }
            all.push_back(form);
        }
    }
    return all;
}

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

    void SetNumbers(const FormSetting& setting, const Target& target, bool permanent, int pass) {
        Changes meant;
        for (const FieldRow& field : setting.fields) {
            if (field.types.Contains(target.type)) {
                Spoil(target, permanent, field.parameter);
                Type(field.field, ValueOf(field, pass));
                Expect(meant, target, permanent, field.parameter, ValueOf(field, pass));
            }
        }
        EXPECT_EQ(EffectOfClick(Member(setting.button, 0)), meant);
    }

    void GetNumbers(const FormSetting& setting, const Target& target, bool permanent, int pass) {
        for (const FieldRow& field : setting.fields) {
            if (field.types.Contains(target.type)) {
                const int kept = ValueOf(field, pass);
                Kept(target.lines.front(), permanent, field.parameter) =
                    static_cast<std::uint8_t>(kept);
                Type(field.field, kept == field.first ? field.last : field.first);
            }
        }
        EXPECT_EQ(EffectOfClick(Member(setting.button, 1)), Changes{});
        for (const FieldRow& field : setting.fields) {
            if (field.types.Contains(target.type)) {
                EXPECT_EQ(NumberIn(field.field), ValueOf(field, pass)) << field.field;
                EXPECT_TRUE(IsGreen(field.field)) << field.field;
            }
        }
    }

    /// Whether there is something to press for these modules.
    bool IsOffered(const std::string& button, int index) {
        return Find<QWidget>(Member(button, index)).isVisibleTo(window.get());
    }
};

class TractionNumberForm : public TractionForms,
                           public ::testing::WithParamInterface<FormSetting> {};

TEST_P(TractionNumberForm, IsSetAndGotInEveryModuleThatHasIt) {
    const FormSetting& setting = GetParam();
    for (const Target& target : kModules) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        const bool has = setting.setFor.Contains(target.type);
        EXPECT_EQ(IsOffered(setting.button, 0), has);
        // A QLRX-s takes settings and gives none back.
        const bool tells = setting.getFor.Contains(target.type);
        if (has && !setting.option.empty()) {
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
    const FormSetting& setting = GetParam();
    int tried = 0;
    for (const Target& target : kGroups) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        if (!setting.setFor.Contains(target.type)) {
            continue;
        }
        ++tried;
        if (!setting.option.empty()) {
            Click(setting.option);
        }
        for (const bool permanent : {false, true}) {
            Tick("chkVDperm", permanent);
            SetNumbers(setting, target, permanent, 2);
        }
    }
    EXPECT_GT(tried, 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionNumberForm, ::testing::ValuesIn(NumberSettings()),
                         NameOf<FormSetting>);

class TractionOptionForm : public TractionForms, public ::testing::WithParamInterface<FormSetting> {
  protected:
    void SetOption(const Target& target, bool permanent, int value) {
        const FormSetting& setting = GetParam();
        Spoil(target, permanent, setting.parameter);
        Click(Member(setting.options, value));
        Changes meant;
        Expect(meant, target, permanent, setting.parameter, value);
        EXPECT_EQ(EffectOfClick(Member(setting.button, 0)), meant);
    }
    void GetOption(const Target& target, bool permanent, int value) {
        const FormSetting& setting = GetParam();
        Kept(target.lines.front(), permanent, setting.parameter) = static_cast<std::uint8_t>(value);
        Click(Member(setting.options,
                     value == setting.values[0] ? setting.values[1] : setting.values[0]));
        EXPECT_EQ(EffectOfClick(Member(setting.button, 1)), Changes{});
        EXPECT_TRUE(IsTicked(Member(setting.options, value)));
        EXPECT_TRUE(IsGreen(Member(setting.options, value)));
    }
};

TEST_P(TractionOptionForm, IsSetAndGotInEveryModuleThatHasIt) {
    const FormSetting& setting = GetParam();
    for (const Target& target : kModules) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        const bool takes = setting.setFor.Contains(target.type);
        const bool tells = setting.getFor.Contains(target.type);
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
    const FormSetting& setting = GetParam();
    int tried = 0;
    for (const Target& target : kGroups) {
        SCOPED_TRACE(target.entry);
        ChooseModule(target);
        const bool takes = setting.setFor.Contains(target.type);
        for (const int value : setting.values) {
            if (takes) {
                SetOption(target, false, value);
                ++tried;
            }
        }
    }
    EXPECT_GT(tried, 0);
}

INSTANTIATE_TEST_SUITE_P(Rows, TractionOptionForm, ::testing::ValuesIn(OptionSettings()),
                         NameOf<FormSetting>);

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
