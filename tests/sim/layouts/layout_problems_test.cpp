// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// What is wrong with a file, and where: the unit and the modules. The track has a file of its own.
#include "sim/layouts/layout_problems.h"

#include <gtest/gtest.h>

#include <gmock/gmock.h>

namespace zelvar::sim {
namespace {

class WrongLayouts : public testing::TestWithParam<ProblemCase> {};

TEST_P(WrongLayouts, SayWhereAndWhatWasExpected) {
    EXPECT_EQ(ProblemsWithoutKeys(GetParam().text), GetParam().problems);
}

std::string AVersion(const std::string& how = "") {
    return "a version like \"1.02\" or \"1.02 C\"" + how +
           ", at most \"9.85 G\" and at most 85 after the point, found ";
}

struct SyntaxCase {
    const char* name;
    const char* text;
    const char* line;
};

class WrongSyntax : public testing::TestWithParam<SyntaxCase> {};

/// The text of the error is that of toml++, whose versions differ in it.
TEST_P(WrongSyntax, IsReportedAloneWithItsLine) {
    const std::vector<std::string> problems = ProblemsOf(GetParam().text);
    ASSERT_EQ(problems.size(), 1U);
    EXPECT_THAT(problems[0], testing::StartsWith(std::string(GetParam().line) + ": Error while"));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, WrongSyntax,
    testing::Values(SyntaxCase{"NoValue", "title =\n", "1"},
                    SyntaxCase{"TextWithoutQuotes", "[unit]\ntype = KB-E\n", "2"},
                    SyntaxCase{"OpenText", "\r\ntitle = \"a\r\nx = 1\r\n", "2"},
                    SyntaxCase{"OpenTextAtTheEnd", "title = \"a", "1"},
                    SyntaxCase{"OpenHeader", "\n[unit\n", "2"},
                    SyntaxCase{"KeyTwice", "title = \"a\"\ntitle = \"b\"\n", "2"}),
    [](const auto& row) { return row.param.name; });

TEST(WrongSyntaxTest, ShowsNoControlCharacters) {
    EXPECT_THAT(ProblemsOf("[a\x1b]\n").front(), testing::Not(testing::HasSubstr("\x1b")));
}

const ProblemCase kUnits[] = {
    {"Nothing", "", {"1: [unit]: expected, but missing"}},
    {"UnitIsNoTable", "unit = 5\n", {"1: unit: expected a table, [unit] or { ... }, found 5"}},
    {"UnitHasNothing",
     "title = \"a\"\n[unit]\n",
     {"2: type: expected here, but missing", "2: version: expected here, but missing",
      "2: protocol: expected here, but missing"}},
    {"UnitType",
     "[unit]\ntype = \"KB-X\"\nversion = \"1.02\"\nprotocol = \"3.10\"\n",
     {"2: type: expected \"KB-F\", \"KB-E\", \"KB-G\" or \"QLRX\", found \"KB-X\""}},
    {"UnitTypeIsNumber",
     "[unit]\ntype = 2\nversion = \"1.02\"\nprotocol = \"3.10\"\n",
     {"2: type: expected \"KB-F\", \"KB-E\", \"KB-G\" or \"QLRX\", found 2"}},
    {"UnitVersionNone",
     "[unit]\ntype = \"KB-E\"\nversion = \"none\"\nprotocol = \"3.10\"\n",
     {"3: version: expected " + AVersion() + "\"none\""}},
    {"ProtocolIsNumber",
     "[unit]\ntype = \"KB-E\"\nversion = \"1.02\"\nprotocol = 3.20\n",
     {"4: protocol: expected " + AVersion(" in quotation marks") + "3.2"}},
    {"VersionIsWholeNumber",
     "[unit]\ntype = \"KB-E\"\nversion = 1\nprotocol = \"3.10\"\n",
     {"3: version: expected " + AVersion(" in quotation marks") + "1"}},
    {"UnitKey", UnitText() + "baud = 19200\n", {"5: unknown key \"baud\""}},
    {"RootKey", "layout = 1\n" + UnitText(), {"1: unknown key \"layout\""}},
    {"TitleEmpty",
     "title = \"\"\n" + UnitText(),
     {"1: title: expected a text of 1..64 characters, found \"\""}},
    {"TitleTooLong",
     "title = \"" + std::string(65, 'x') + "\"\n" + UnitText(),
     {"1: title: expected a text of 1..64 characters, found \"" + std::string(59, 'x') + "..."}},
    {"TitleWithControls",
     "title = \"a\\tb\"\n" + UnitText(),
     {"1: title: expected a text of 1..64 characters, found \"a\\tb\""}},
    {"SwitchesNoList",
     UnitText() + "dip-switches = \"on\"\n",
     {"5: dip-switches: expected a list of 4 words, found \"on\""}},
    {"SwitchesTooFew",
     UnitText() + "dip-switches = [\"on\", \"on\", \"on\"]\n",
     {"5: dip-switches: expected a list of 4 words, found a list of 3"}},
    {"SwitchesTooMany",
     UnitText() + "dip-switches = [\"on\", \"on\", \"on\", \"on\", \"on\"]\n",
     {"5: dip-switches: expected a list of 4 words, found a list of 5"}},
    {"SwitchWord",
     UnitText() + "dip-switches = [\n\"on\",\n\"on\",\ntrue,\n\"up\"]\n",
     {"8: dip-switches: expected \"off\" or \"on\", found true",
      "9: dip-switches: expected \"off\" or \"on\", found \"up\""}},
};

/// A module's table from line 5 on: its channel in line 6, its number in line 7, then `rest`.
ProblemCase Module(const char* name, const std::string& family, const std::string& channel,
                   const std::string& number, const std::string& rest,
                   const std::vector<std::string>& problems) {
    return {name,
            UnitText() + "[[" + family + "]]\nchannel = " + channel + "\nmodule = " + number +
                '\n' + rest,
            problems};
}

ProblemCase Vd(const char* name, const std::string& rest,
               const std::vector<std::string>& problems) {
    return Module(name, "traction-module", "0", "3", rest, problems);
}

const ProblemCase kModules[] = {
    {"OneTable",
     UnitText() + "[traction-module]\nchannel = 0\n",
     {"5: traction-module: expected tables, each under its own [[traction-module]], found a "
      "table"}},
    {"ListOfNumbers",
     "point-module = [5]\n" + UnitText(),
     {"1: point-module: expected tables, each under its own [[point-module]], found 5"}},
    {"NoPlace",
     UnitText() + "[[signal-module]]\nstate = \"ok\"\n",
     {"5: channel: expected here, but missing", "5: module: expected here, but missing"}},
    Module("ChannelBelow", "signal-module", "-1", "0", "",
           {"6: channel: expected a whole number 0..1, found -1"}),
    Module("ChannelAbove", "signal-module", "2", "0", "",
           {"6: channel: expected a whole number 0..1, found 2"}),
    Module("ChannelIsText", "signal-module", "\"1\"", "0", "",
           {"6: channel: expected a whole number 0..1, found \"1\""}),
    Module("ChannelIsFraction", "signal-module", "1.0", "0", "",
           {"6: channel: expected a whole number 0..1, found 1"}),
    Module("ModuleIsDate", "signal-module", "1", "2026-11-20", "",
           {"7: module: expected a whole number 0..15, found 2026-11-20"}),
    Module("ModuleHuge", "signal-module", "1", "4294967296", "",
           {"7: module: expected a whole number 0..15, found 4294967296"}),
    Module("TractionBelow", "traction-module", "0", "-1", "type = \"VD-F\"\n",
           {"7: module: expected a whole number 0..15, found -1"}),
    Module("TractionAbove", "traction-module", "0", "16", "type = \"VD-F\"\n",
           {"7: module: expected a whole number 0..15, found 16"}),
    Module("PointsBelow", "point-module", "0", "-1", "",
           {"7: module: expected a whole number 0..7, found -1"}),
    Module("PointsAbove", "point-module", "0", "8", "",
           {"7: module: expected a whole number 0..7, found 8"}),
    Module("SignalsBelow", "signal-module", "0", "-1", "",
           {"7: module: expected a whole number 0..15, found -1"}),
    Module("SignalsAbove", "signal-module", "0", "16", "",
           {"7: module: expected a whole number 0..15, found 16"}),
    Vd("TypeMissing", "", {"5: type: expected here, but missing"}),
    Vd("Type", "type = \"VD\"\n",
       {"8: type: expected \"VD-F\", \"VD60\" or \"QLRX-s\", found \"VD\""}),
    Vd("TractionHold", "type = \"VD-F\"\nstate = \"hold\"\n",
       {"9: state: expected \"ok\", \"idle\" or \"fault\", found \"hold\""}),
    Module("PointsFault", "point-module", "0", "0", "state = \"fault\"\n",
           {"8: state: expected \"ok\", \"idle\" or \"hold\", found \"fault\""}),
    Module("SignalsFault", "signal-module", "0", "0", "state = \"fault\"\n",
           {"8: state: expected \"ok\" or \"idle\", found \"fault\""}),
    Vd("MasterSlave", "type = \"VD-F\"\nmaster-slave = \"both\"\n",
       {"9: master-slave: expected \"auto\", \"master\" or \"slave\", found \"both\""}),
    Vd("Clock", "type = \"VD-F\"\nclock = \"late\"\n",
       {"9: clock: expected \"good\", \"none\", \"bad\" or \"degraded\", found \"late\""}),
    Module("PointsHaveNoType", "point-module", "0", "0", "type = \"VD-F\"\n",
           {"8: unknown key \"type\""}),
    Module("SignalsHaveNoClock", "signal-module", "0", "0", "clock = \"good\"\n",
           {"8: unknown key \"clock\""}),
    Vd("SecondIsNoTable", "type = \"VD60\"\nsecond = true\n",
       {"9: second: expected a table, [second] or { ... }, found true"}),
    Vd("SecondWithoutVd60", "type = \"VD-F\"\nsecond = {}\n",
       {"9: second: expected a module of type \"VD60\", no other has one"}),
    Vd("SecondsKey", "type = \"VD60\"\nsecond = { module = 4 }\n", {"9: unknown key \"module\""}),
    Vd("SecondsState", "type = \"VD60\"\nsecond = { state = \"gone\" }\n",
       {"9: state: expected \"ok\", \"idle\" or \"fault\", found \"gone\""}),
    Vd("SamePlace", "type = \"VD-F\"\n[[traction-module]]\nchannel=0\nmodule=3\ntype=\"VD60\"\n",
       {"9: traction-module: expected another place, module 3 of channel 0 is already described in "
        "line 5"}),
    Module("SamePlaceOfPoints", "point-module", "1", "7",
           "[[point-module]]\nchannel=1\nmodule=7\n[[point-module]]\nchannel=0\nmodule=7\n",
           {"8: point-module: expected another place, module 7 of channel 1 is already described "
            "in line 5"}),
};

ProblemCase Version(const char* name, const char* version) {
    return Vd(name, "type = \"VD-F\"\nversion = \"" + std::string(version) + "\"\n",
              {"9: version: expected \"none\" or " + AVersion() + "\"" + version + '"'});
}

const ProblemCase kVersions[] = {
    Version("AboveAll", "9.86"),
    Version("NoRoomForHundreds", "1.86"),
    Version("LetterH", "1.02 H"),
    Version("LetterBeforeA", "1.02 @"),
    Version("LowercaseLetter", "1.02 c"),
    Version("NoSpace", "1.02C"),
    Version("OtherThanSpace", "1.02-C"),
    Version("SpaceOnly", "1.02 "),
    Version("OneDigit", "1.2"),
    Version("TwoDigitsBefore", "11.02"),
    Version("NoDigit", "1.x2"),
    Version("NoDigitBefore", "x.02"),
    Version("Comma", "1,02"),
    Version("Empty", ""),
};

INSTANTIATE_TEST_SUITE_P(Units, WrongLayouts, testing::ValuesIn(kUnits), CaseName);
INSTANTIATE_TEST_SUITE_P(Modules, WrongLayouts, testing::ValuesIn(kModules), CaseName);
INSTANTIATE_TEST_SUITE_P(Versions, WrongLayouts, testing::ValuesIn(kVersions), CaseName);

TEST(LayoutProblemsTest, AreAllListedInTheOrderOfTheFile) {
    EXPECT_EQ(ProblemsOf("[[train]]\nname = 5\n[unit]\ntype = 1\nversion = \"1.0\"\n[[section]]\n"),
              (std::vector<std::string>{
                  "1: control: expected here, but missing",
                  "1: section: expected here, but missing",
                  "1: length: expected here, but missing",
                  "1: top-speed: expected here, but missing",
                  "2: name: expected a text of 1..40 characters, found 5",
                  "3: protocol: expected here, but missing",
                  "4: type: expected \"KB-F\", \"KB-E\", \"KB-G\" or \"QLRX\", found 1",
                  "5: version: expected " + AVersion() + "\"1.0\"",
                  "6: name: expected here, but missing",
                  "6: block: expected here, but missing",
                  "6: length: expected here, but missing",
              }));
}

}  // namespace
}  // namespace zelvar::sim
