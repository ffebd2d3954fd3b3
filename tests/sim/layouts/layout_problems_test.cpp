// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// What is wrong with a file, and where: the unit and the modules. The track has a file of its own.
#include "sim/layouts/layout_problems.h"

#include <gtest/gtest.h>

namespace zelvar::sim {
namespace {

class WrongLayouts : public testing::TestWithParam<ProblemCase> {};

TEST_P(WrongLayouts, SayWhereAndWhatWasExpected) {
    EXPECT_EQ(ProblemsOf(GetParam().text), GetParam().problems);
}

std::string AVersion(const std::string& how = "") {
    return "a version like \"1.02\" or \"1.02 C\"" + how +
           ", up to \"9.85 G\", the digits behind the point at most 85,";
}

const std::string kValueExpected =
    "a text in quotation marks, a number, true, false or a list expected";
const std::string kQuoteExpected = "a closing quotation mark expected before the end of the line";
const std::string kOnceExpected = "each key and each [table] once expected";

const ProblemCase kSyntax[] = {
    {"Nothing", "", {"1: [unit]: expected, but missing"}},
    {"NoValue", "title =\n", {"1: " + kValueExpected}},
    {"TextWithoutQuotes", "title = KB-E\n", {"1: " + kValueExpected}},
    {"TextLikeFalse", "title = fault\n", {"1: " + kValueExpected}},
    {"TextLikeTrue", "title = traction\n", {"1: " + kValueExpected}},
    {"TextLikeNan", "title = none\n", {"1: " + kValueExpected}},
    {"TextLikeInf", "title = inner\n", {"1: " + kValueExpected}},
    {"OpenText", "\ntitle = \"a\n", {"2: " + kQuoteExpected}},
    {"OpenTextWithATab", "title = \"a\tb\n", {"1: " + kQuoteExpected}},
    {"OpenTextOfAnotherSystem", "\r\ntitle = \"a\r\nx = 1\r\n", {"2: " + kQuoteExpected}},
    {"OpenLiteralText", "\n\ntitle = 'a\n", {"3: " + kQuoteExpected}},
    {"OpenTextAtTheEnd", "title = \"a", {"1: a closing quotation mark expected"}},
    {"OpenLongText", "title = \"\"\"a\n", {"1: a closing quotation mark expected"}},
    {"ControlCharacter",
     "\ntitle = \"a\x01z\"\n",
     {"2: string: unescaped control characters other than TAB (U+0009) are explicitly prohibited"}},
    {"ControlCharacterInAComment",
     "# \x01\n",
     {"1: comment: control characters other than TAB (U+0009) are explicitly prohibited in "
      "comments"}},
    {"OpenHeader", "\n[unit\n", {"2: table header: expected ']', saw '\\n'"}},
    {"KeyTwice", "title = \"a\"\ntitle = \"b\"\n", {"2: " + kOnceExpected}},
    {"UnitTwice", UnitText() + "[unit]\n", {"5: " + kOnceExpected}},
};

const ProblemCase kUnits[] = {
    {"UnitIsNoTable", "unit = 5\n", {"1: unit: a table, [unit] or { ... }, expected, found 5"}},
    {"UnitHasNothing",
     "title = \"a\"\n[unit]\n",
     {"2: type: expected here, but missing", "2: version: expected here, but missing",
      "2: protocol: expected here, but missing"}},
    {"UnitType",
     "[unit]\ntype = \"KB-X\"\nversion = \"1.02\"\nprotocol = \"3.10\"\n",
     {"2: type: \"KB-F\", \"KB-E\", \"KB-G\" or \"QLRX\" expected, found \"KB-X\""}},
    {"UnitTypeIsNumber",
     "[unit]\ntype = 2\nversion = \"1.02\"\nprotocol = \"3.10\"\n",
     {"2: type: \"KB-F\", \"KB-E\", \"KB-G\" or \"QLRX\" expected, found 2"}},
    {"UnitVersionNone",
     "[unit]\ntype = \"KB-E\"\nversion = \"none\"\nprotocol = \"3.10\"\n",
     {"3: version: " + AVersion() + " expected, found \"none\""}},
    {"ProtocolIsNumber",
     "[unit]\ntype = \"KB-E\"\nversion = \"1.02\"\nprotocol = 3.20\n",
     {"4: protocol: " + AVersion(" in quotation marks") + " expected, found 3.2"}},
    {"VersionIsWholeNumber",
     "[unit]\ntype = \"KB-E\"\nversion = 1\nprotocol = \"3.10\"\n",
     {"3: version: " + AVersion(" in quotation marks") + " expected, found 1"}},
    {"UnitKey",
     UnitText() + "baud = 19200\n",
     {"5: unknown key \"baud\": type, version, protocol or dip-switches expected"}},
    {"RootKey",
     "layout = 1\n" + UnitText(),
     {"1: unknown key \"layout\": title, unit, traction-module, point-module, signal-module, "
      "section or train expected"}},
    {"TitleEmpty",
     "title = \"\"\n" + UnitText(),
     {"1: title: a text of 1..64 characters expected, found \"\""}},
    {"TitleTooLong",
     "title = \"" + std::string(65, 'x') + "\"\n" + UnitText(),
     {"1: title: a text of 1..64 characters expected, found \"" + std::string(60, 'x') + "...\""}},
    {"TitleWithControls",
     "title = \"a\\tb\"\n" + UnitText(),
     {"1: title: a text of 1..64 characters expected, found \"a?b\""}},
    {"SwitchesNoList",
     UnitText() + "dip-switches = \"on\"\n",
     {"5: dip-switches: a list of 4 words expected, found \"on\""}},
    {"SwitchesTooFew",
     UnitText() + "dip-switches = [\"on\", \"on\", \"on\"]\n",
     {"5: dip-switches: a list of 4 words expected, found a list of 3"}},
    {"SwitchesTooMany",
     UnitText() + "dip-switches = [\"on\", \"on\", \"on\", \"on\", \"on\"]\n",
     {"5: dip-switches: a list of 4 words expected, found a list of 5"}},
    {"SwitchWord",
     UnitText() + "dip-switches = [\n\"on\",\n\"on\",\ntrue,\n\"up\"]\n",
     {"8: dip-switches: \"off\" or \"on\" expected, found true",
      "9: dip-switches: \"off\" or \"on\" expected, found \"up\""}},
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
     {"5: traction-module: tables, each under its own [[traction-module]], expected, found a "
      "table"}},
    {"ListOfNumbers",
     "point-module = [5]\n" + UnitText(),
     {"1: point-module: tables, each under its own [[point-module]], expected, found 5"}},
    {"NoPlace",
     UnitText() + "[[signal-module]]\nstate = \"ok\"\n",
     {"5: channel: expected here, but missing", "5: module: expected here, but missing"}},
    Module("ChannelBelow", "signal-module", "-1", "0", "",
           {"6: channel: a whole number 0..1 expected, found -1"}),
    Module("ChannelAbove", "signal-module", "2", "0", "",
           {"6: channel: a whole number 0..1 expected, found 2"}),
    Module("ChannelIsText", "signal-module", "\"1\"", "0", "",
           {"6: channel: a whole number 0..1 expected, found \"1\""}),
    Module("ChannelIsFraction", "signal-module", "1.0", "0", "",
           {"6: channel: a whole number 0..1 expected, found 1"}),
    Module("ModuleIsDate", "signal-module", "1", "2026-11-20", "",
           {"7: module: a whole number 0..15 expected, found a date or time"}),
    Module("ModuleHuge", "signal-module", "1", "4294967296", "",
           {"7: module: a whole number 0..15 expected, found 4294967296"}),
    Module("TractionBelow", "traction-module", "0", "-1", "type = \"VD-F\"\n",
           {"7: module: a whole number 0..15 expected, found -1"}),
    Module("TractionAbove", "traction-module", "0", "16", "type = \"VD-F\"\n",
           {"7: module: a whole number 0..15 expected, found 16"}),
    Module("PointsBelow", "point-module", "0", "-1", "",
           {"7: module: a whole number 0..7 expected, found -1"}),
    Module("PointsAbove", "point-module", "0", "8", "",
           {"7: module: a whole number 0..7 expected, found 8"}),
    Module("SignalsBelow", "signal-module", "0", "-1", "",
           {"7: module: a whole number 0..15 expected, found -1"}),
    Module("SignalsAbove", "signal-module", "0", "16", "",
           {"7: module: a whole number 0..15 expected, found 16"}),
    Vd("TypeMissing", "", {"5: type: expected here, but missing"}),
    Vd("Type", "type = \"VD\"\n",
       {"8: type: \"VD-F\", \"VD60\" or \"QLRX-s\" expected, found \"VD\""}),
    Vd("TractionHold", "type = \"VD-F\"\nstate = \"hold\"\n",
       {"9: state: \"ok\", \"idle\" or \"fault\" expected, found \"hold\""}),
    Module("PointsFault", "point-module", "0", "0", "state = \"fault\"\n",
           {"8: state: \"ok\", \"idle\" or \"hold\" expected, found \"fault\""}),
    Module("SignalsFault", "signal-module", "0", "0", "state = \"fault\"\n",
           {"8: state: \"ok\" or \"idle\" expected, found \"fault\""}),
    Vd("MasterSlave", "type = \"VD-F\"\nmaster-slave = \"both\"\n",
       {"9: master-slave: \"auto\", \"master\" or \"slave\" expected, found \"both\""}),
    Vd("Clock", "type = \"VD-F\"\nclock = \"late\"\n",
       {"9: clock: \"good\", \"none\", \"bad\" or \"degraded\" expected, found \"late\""}),
    Module("PointsHaveNoType", "point-module", "0", "0", "type = \"VD-F\"\n",
           {"8: unknown key \"type\": channel, module, state or version expected"}),
    Module("SignalsHaveNoClock", "signal-module", "0", "0", "clock = \"good\"\n",
           {"8: unknown key \"clock\": channel, module, state or version expected"}),
    Vd("SecondIsNoTable", "type = \"VD60\"\nsecond = true\n",
       {"9: second: a table, [second] or { ... }, expected, found true"}),
    Vd("SecondWithoutVd60", "type = \"VD-F\"\nsecond = {}\n",
       {"9: second: a module of type \"VD60\" expected, no other has one"}),
    Vd("SecondsKey", "type = \"VD60\"\nsecond = { module = 4 }\n",
       {"9: unknown key \"module\": type, state, version, master-slave or clock expected"}),
    Vd("SecondsState", "type = \"VD60\"\nsecond = { state = \"gone\" }\n",
       {"9: state: \"ok\", \"idle\" or \"fault\" expected, found \"gone\""}),
    Vd("SamePlace", "type = \"VD-F\"\n[[traction-module]]\nchannel=0\nmodule=3\ntype=\"VD60\"\n",
       {"9: traction-module: another place expected, module 3 of channel 0 is already described in "
        "line 5"}),
    Module("SamePlaceOfPoints", "point-module", "1", "7",
           "[[point-module]]\nchannel=1\nmodule=7\n[[point-module]]\nchannel=0\nmodule=7\n",
           {"8: point-module: another place expected, module 7 of channel 1 is already described "
            "in line 5"}),
};

ProblemCase Version(const char* name, const char* version) {
    return Vd(name, "type = \"VD-F\"\nversion = \"" + std::string(version) + "\"\n",
              {"9: version: " + AVersion() + " or \"none\" expected, found \"" + version + '"'});
}

const ProblemCase kVersions[] = {
    Version("AboveAll", "9.86"),
    Version("NoRoomForHundreds", "1.86"),
    Version("LetterH", "1.02 H"),
    Version("LetterBeforeA", "1.02 @"),
    Version("SmallLetter", "1.02 c"),
    Version("NoBlank", "1.02C"),
    Version("OtherThanBlank", "1.02-C"),
    Version("BlankOnly", "1.02 "),
    Version("OneDigit", "1.2"),
    Version("TwoDigitsBefore", "11.02"),
    Version("NoDigit", "1.x2"),
    Version("NoDigitBefore", "x.02"),
    Version("Comma", "1,02"),
    Version("Empty", ""),
};

INSTANTIATE_TEST_SUITE_P(Syntax, WrongLayouts, testing::ValuesIn(kSyntax), CaseName);
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
                  "2: name: a text of 1..40 characters expected, found 5",
                  "3: protocol: expected here, but missing",
                  "4: type: \"KB-F\", \"KB-E\", \"KB-G\" or \"QLRX\" expected, found 1",
                  "5: version: " + AVersion() + " expected, found \"1.0\"",
                  "6: name: expected here, but missing",
                  "6: block: expected here, but missing",
                  "6: length: expected here, but missing",
              }));
}

}  // namespace
}  // namespace zelvar::sim
