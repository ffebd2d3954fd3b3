// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_settings.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <utility>

#include "config_fixture.h"

namespace zelvar::testing {
namespace {

const VDSetting& SettingOf(std::string_view frame) {
    const auto& settings = VDSettings();
    const auto found = std::find_if(settings.begin(), settings.end(),
                                    [&](const VDSetting& row) { return row.frame == frame; });
    EXPECT_NE(found, settings.end()) << frame;
    return *found;
}

VDInput NumbersOf(const VDSetting& setting, int option = 0) {
    VDInput input;
    input.option = option;
    for (std::size_t i = 0; i < setting.numbers.fields.size(); ++i) {
        input.numbers.push_back({static_cast<int>(i) + 3, true});
    }
    return input;
}

std::vector<ModuleCommand> CommandsOf(const VDSetting& setting, int button, bool permanent,
                                      const VDInput& input) {
    std::vector<ModuleCommand> commands;
    for (std::size_t i = 0; i < VDCommandCount(setting); ++i) {
        if (const auto command = VDCommandOf(setting, i, button, permanent, input)) {
            commands.push_back(*command);
        }
    }
    return commands;
}

/// One parameter, as it is sent.
struct ParameterCase {
    const char* name;
    const char* frame;
    /// The field that holds the value; the options hold it when there is none.
    int field;
    int option;
    int parameter;
    int value;
};

const ParameterCase kParameters[] = {
    {"HfiLevel", "frmHFI", 0, 0, 1, 15},
    {"AlarmOffDelay", "frmAL", 0, 0, 2, 127},
    {"AlarmOnDelay", "frmAL", 1, 0, 3, 0},
    {"SwitchOffBank0", "frmSW", 0, 0, 4, 1},
    {"SwitchOffBank1", "frmSW", 1, 0, 5, 2},
    {"SwitchOnBank0", "frmSW", 2, 0, 6, 3},
    {"SwitchOnBank1", "frmSW", 3, 0, 7, 7},
    {"DcShift", "frmDCS", 0, 0, 8, 4},
    {"PwmMultiplier", "frmPWMM", -1, 32, 9, 32},
    {"PwmMultiplierNotChosen", "frmPWMM", -1, 0, 9, 0},
    {"OcdMode", "frmOCD", -1, 2, 10, 2},
    {"MsMode", "frmMS", -1, 1, 11, 1},
    {"PowerControl", "frmPC", -1, 1, 12, 1},
    {"LoopA", "FrmLC", 0, 0, 13, 20},
    {"LoopB", "FrmLC", 0, 1, 14, 70},
    {"Address", "frmAD", 0, 0, 15, 9},
};

struct TargetCase {
    const char* name;
    /// Item data of the selected entry.
    int data;
    /// Address and code of each module, in order.
    std::vector<std::pair<int, int>> modules;
};

const TargetCase kTargets[] = {
    {"Channel0", 5, {{37, 8}}},
    {"Channel1", 19, {{51, 8}}},
    {"SecondaryOfChannel0", 37, {{37, 24}}},
    {"SecondaryOfChannel1", 51, {{51, 24}}},
    {"AllVD60", -4, {{37, 8}, {51, 8}, {37, 24}, {51, 24}}},
    {"AllQlrx", -3, {{39, 8}, {48, 8}}},
    {"AllVDF", -2, {{32, 8}, {47, 8}, {63, 8}}},
    {"AllVDxx", -1, {{32, 8}, {37, 8}, {47, 8}, {51, 8}, {63, 8}, {37, 24}, {40, 24}, {51, 24}}},
};

using SentCase = std::tuple<ParameterCase, TargetCase, bool, int>;

class SentSetting : public ConfigFixture, public ::testing::WithParamInterface<SentCase> {};

TEST_P(SentSetting, GoesToEveryAddressedModuleToTheByte) {
    const auto& [parameter, target, permanent, button] = GetParam();
    const VDSetting& setting = SettingOf(parameter.frame);
    VDInput input = NumbersOf(setting, parameter.option);
    for (std::size_t i = 0; i < input.numbers.size(); ++i) {
        input.numbers[i] = {parameter.value, static_cast<int>(i) == parameter.field};
    }
    const ModuleRegistry registry = MixedRegistry();
    ModuleCommands commands(services, {[&, d = target.data] {
                                           return ChosenVDModules(registry, {9, d});
                                       },
                                       {}});
    const auto toSend = CommandsOf(setting, button, permanent, input);
    ASSERT_EQ(toSend.size(), 1U);
    commands.SendModuleCommand(toSend[0]);

    Frames expected{{}};
    for (const auto& [address, code] : target.modules) {
        Values values{0, address, code, parameter.parameter + (permanent ? 64 : 0)};
        if (button == 0) {
            values.push_back(parameter.value);
        }
        expected.push_back(values);
    }
    expected.push_back({});
    EXPECT_EQ(port.SentValues(), expected);
}

INSTANTIATE_TEST_SUITE_P(OfEveryParameter, SentSetting,
                         ::testing::Combine(::testing::ValuesIn(kParameters),
                                            ::testing::ValuesIn(kTargets), ::testing::Bool(),
                                            ::testing::Values(0, 1)),
                         [](const auto& row) {
                             return std::string(std::get<3>(row.param) == 0 ? "Set" : "Get") +
                                    std::get<0>(row.param).name +
                                    (std::get<2>(row.param) ? "Permanent" : "") + "Of" +
                                    std::get<1>(row.param).name;
                         });

TEST(VDCommands, SwitchDelaysOfHiddenFieldsAreNotSent) {
    const VDSetting& setting = SettingOf("frmSW");
    VDInput input = NumbersOf(setting);
    input.numbers[1].shown = false;
    input.numbers[3].shown = false;
    EXPECT_EQ(CommandsOf(setting, kSetButton, false, input),
              (std::vector<ModuleCommand>{{32, 3, 8, 4, 3}, {32, 3, 8, 6, 5}}));
}

TEST(VDCommands, AnAlarmDelayIsTwoCommands) {
    const VDSetting& setting = SettingOf("frmAL");
    EXPECT_EQ(CommandsOf(setting, kGetButton, true, NumbersOf(setting)),
              (std::vector<ModuleCommand>{{32, 2, 8, 66, 3}, {32, 2, 8, 67, 4}}));
}

TEST(VDCommands, EraseIsParameterZeroWithThePermanentBitAndNoValue) {
    EXPECT_EQ(kVDErase, (ModuleCommand{32, 2, 8, 64, 0}));
}

TEST(VDSettings, HaveEachParameterThatIsTriedHereOnce) {
    std::set<int> tried;
    for (const ParameterCase& row : kParameters) {
        tried.insert(row.parameter);
    }
    std::multiset<int> parameters;
    for (const VDSetting& setting : VDSettings()) {
        if (setting.options.parameter) {
            parameters.insert(*setting.options.parameter);
            continue;
        }
        const std::size_t offsets = std::max<std::size_t>(setting.options.options.size(), 1);
        for (const VDField& field : setting.numbers.fields) {
            for (std::size_t offset = 0; offset < offsets; ++offset) {
                parameters.insert(field.parameter + static_cast<int>(offset));
            }
        }
    }
    EXPECT_EQ(parameters, std::multiset<int>(tried.begin(), tried.end()));
}

TEST(VDSettings, StandInCellsOfTheirOwn) {
    std::set<std::pair<int, int>> cells;
    for (const VDSetting& setting : VDSettings()) {
        EXPECT_TRUE(cells.insert({setting.place.column, setting.place.row}).second)
            << setting.frame;
    }
}

struct ReplyCase {
    const char* name;
    std::vector<int> values;
    std::optional<int> module;
    bool permanent;
    /// -1: the reply is ignored.
    int parameter;
};

class ConfigReply : public ::testing::TestWithParam<ReplyCase> {};

TEST_P(ConfigReply, IsReadOnlyFromTheChosenModule) {
    const auto read = ReadVDConfigReply(MakeReply(0x0D, GetParam().values), GetParam().module,
                                        GetParam().permanent);
    EXPECT_EQ(read ? read->parameter : -1, GetParam().parameter);
    if (read) {
        EXPECT_EQ(read->value, 9);
    }
}

INSTANTIATE_TEST_SUITE_P(
    OfModules, ConfigReply,
    ::testing::Values(ReplyCase{"Channel0", {0, 37, 10, 1, 9}, 5, false, 1},
                      ReplyCase{"Channel1", {0, 51, 10, 1, 9}, 19, false, 1},
                      ReplyCase{"Secondary", {0, 37, 26, 15, 9}, 37, false, 15},
                      ReplyCase{"Permanent", {0, 37, 10, 65, 9}, 5, true, 1},
                      ReplyCase{"OtherModule", {0, 38, 10, 1, 9}, 5, false, -1},
                      ReplyCase{"SecondaryForPrimary", {0, 37, 26, 1, 9}, 5, false, -1},
                      ReplyCase{"PrimaryForSecondary", {0, 37, 10, 1, 9}, 37, false, -1},
                      ReplyCase{"OtherCode", {0, 37, 8, 1, 9}, 5, false, -1},
                      ReplyCase{"GroupChosen", {0, 63, 10, 1, 9}, -1, false, -1},
                      ReplyCase{"NothingChosen", {0, 32, 10, 1, 9}, {}, false, -1}),
    [](const auto& row) { return std::string(row.param.name); });

TEST(ConfigReplyOfTheOtherMemory, MatchesNoSetting) {
    const auto permanentReply = ReadVDConfigReply(MakeReply(0x0D, {0, 37, 10, 65, 9}), 5, false);
    const auto activeReply = ReadVDConfigReply(MakeReply(0x0D, {0, 37, 10, 1, 9}), 5, true);
    ASSERT_TRUE(permanentReply && activeReply);
    for (const VDSetting& setting : VDSettings()) {
        for (const VDReply& reply : {*permanentReply, *activeReply}) {
            EXPECT_FALSE(FieldShowing(setting, reply.parameter, 0)) << setting.frame;
            EXPECT_FALSE(HasOptionFor(setting, reply)) << setting.frame;
        }
    }
}

TEST(FieldShowing, FollowsTheChosenLoop) {
    const VDSetting& setting = SettingOf("FrmLC");
    EXPECT_EQ(FieldShowing(setting, 13, 0), 0U);
    EXPECT_EQ(FieldShowing(setting, 14, 1), 0U);
    EXPECT_FALSE(FieldShowing(setting, 14, 0));
    EXPECT_FALSE(FieldShowing(setting, 13, 1));
}

struct OptionCase {
    const char* frame;
    int parameter;
    std::vector<int> taken;
};

class OptionReply : public ::testing::TestWithParam<OptionCase> {};

TEST_P(OptionReply, IsTakenForTheOptionsThatExistAlone) {
    std::vector<int> taken;
    for (int value = 0; value < 128; ++value) {
        if (HasOptionFor(SettingOf(GetParam().frame), {GetParam().parameter, value})) {
            taken.push_back(value);
        }
    }
    EXPECT_EQ(taken, GetParam().taken);
}

INSTANTIATE_TEST_SUITE_P(
    OfFrames, OptionReply,
    ::testing::Values(OptionCase{"frmPWMM", 9, {2, 4, 8, 16, 32}},
                      OptionCase{"frmOCD", 10, {0, 1, 2}}, OptionCase{"frmMS", 11, {0, 1, 2}},
                      OptionCase{"frmPC", 12, {0, 1}}, OptionCase{"frmPC", 13, {}}),
    [](const auto& row) {
        return std::string(row.param.frame) + std::to_string(row.param.parameter);
    });

}  // namespace
}  // namespace zelvar::testing
