// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// What is wrong with a file, and where: the sections and the trains.
#include <gtest/gtest.h>

#include "sim/layouts/layout_problems.h"

namespace zelvar::sim {
namespace {

class WrongTracks : public testing::TestWithParam<ProblemCase> {};

TEST_P(WrongTracks, SayWhereAndWhatWasExpected) {
    EXPECT_EQ(ProblemsWithoutKeys(GetParam().text), GetParam().problems);
}

/// The section "a" in the lines 5 to 8: its block in line 7, its length in line 8, then `rest`.
std::string SectionA(const std::string& block, const std::string& length,
                     const std::string& rest = "") {
    return UnitText() + "[[section]]\nname = \"a\"\nblock = " + block + "\nlength = " + length +
           '\n' + rest;
}

/// One with the section "a" that is right, and `rest` from line 9 on.
ProblemCase WithA(const char* name, const std::string& rest,
                  const std::vector<std::string>& problems) {
    return {name, SectionA("3", "100", rest), problems};
}

/// Another section, in four lines and `rest`.
std::string Another(const std::string& name, const std::string& rest, int block = 4) {
    return "[[section]]\nname = \"" + name + "\"\nblock = " + std::to_string(block) +
           "\nlength = 100\n" + rest;
}

const ProblemCase kSections[] = {
    {"BlockLeast", SectionA("0", "1"), {}},
    {"BlockMost", SectionA("255", "10000"), {}},
    {"BlockBelow", SectionA("-1", "1"), {"7: block: expected a whole number 0..255, found -1"}},
    {"BlockAbove", SectionA("256", "1"), {"7: block: expected a whole number 0..255, found 256"}},
    {"LengthBelow", SectionA("0", "0.99"), {"8: length: expected a number 1..10000, found 0.99"}},
    {"LengthAbove",
     SectionA("0", "10000.5"),
     {"8: length: expected a number 1..10000, found 10000.5"}},
    {"LengthIsNoNumber",
     SectionA("0", "nan"),
     {"8: length: expected a number 1..10000, found nan"}},
    {"LengthIsText",
     SectionA("0", "\"long\""),
     {"8: length: expected a number 1..10000, found \"long\""}},
    WithA("FeedbackLeast", "feedback = 0\n", {}),
    WithA("FeedbackMost", "feedback = 2047\n", {}),
    WithA("FeedbackBelow", "feedback = -1\n",
          {"9: feedback: expected a whole number 0..2047, found -1"}),
    WithA("FeedbackAbove", "feedback = 2048\n",
          {"9: feedback: expected a whole number 0..2047, found 2048"}),
    WithA("FeedbackTwice", "feedback = 7\n" + Another("b", "feedback = 7\n"),
          {"14: feedback: expected an input of its own, 7 is already used in line 9"}),
    WithA("NameTwice", Another("b", "") + Another("a", ""),
          {"14: name: expected another one, there is already a section \"a\" in line 6"}),
    WithA("NameLongest", Another(std::string(40, 'n'), ""), {}),
    WithA("NameTooLong", Another(std::string(41, 'n'), ""),
          {"10: name: expected a text of 1..40 characters, found \"" + std::string(41, 'n') + '"'}),
    WithA("UnknownKey", "colour = 3\n", {"9: unknown key \"colour\""}),
    {"OneTable",
     UnitText() + "[section]\n",
     {"5: section: expected tables, each under its own [[section]], found a table"}},
};

const ProblemCase kWays[] = {
    WithA("NextUnknown", "next = \"b\"\n",
          {"9: next: expected the name of a section, found \"b\""}),
    WithA("PreviousUnknown", "previous = \"b\"\n",
          {"9: previous: expected the name of a section, found \"b\""}),
    WithA("OneOfTwoUnknown", "next = [\n\"a\",\n\"b\"]\nnext-point = 1\n",
          {"11: next: expected the name of a section, found \"b\""}),
    WithA("NextIsNumber", "next = 5\n", {"9: next: expected a name or a list of names, found 5"}),
    WithA("NextHasNumber", "next = [\"a\", 5]\n",
          {"9: next: expected a name or a list of names, found 5"}),
    WithA("ThreeWays", "next = [\"a\", \"b\", \"c\"]\n",
          {"9: next: expected at most 2 names, found 3"}),
    WithA("SameWayTwice", "next = [\"a\", \"a\"]\nnext-point = 1\n",
          {"9: next: expected different names, found \"a\" twice"}),
    WithA("PointMissing", "next = [\"a\", \"b\"]\n" + Another("b", ""),
          {"9: next: expected next-point beside two names"}),
    WithA("PointBeforeMissing",
          "previous = [\"a\", \"b\"]\nnext = \"a\"\n" + Another("b", "next = \"a\"\n"),
          {"9: previous: expected previous-point beside two names"}),
    WithA("PointWithOneWay", "next = \"a\"\nnext-point = 1\n",
          {"10: next-point: expected two names in next, straight on and thrown"}),
    WithA("PointWithoutWays", "previous-point = 1\n",
          {"9: previous-point: expected two names in previous, straight on and thrown"}),
    WithA("PointBelow", "next = [\"a\", \"b\"]\nnext-point = -1\n" + Another("b", ""),
          {"10: next-point: expected a whole number 0..511, found -1"}),
    WithA("PointAbove", "next = [\"a\", \"b\"]\nnext-point = 512\n" + Another("b", ""),
          {"10: next-point: expected a whole number 0..511, found 512"}),
    WithA("PointMost", "next = [\"a\", \"b\"]\nnext-point = 511\n" + Another("b", ""), {}),
    WithA("TwoLeadHere", "next = \"c\"\n" + Another("b", "next = \"c\"\n") + Another("c", ""),
          {"15: section \"c\": expected previous and previous-point, since \"a\" and \"b\" lead "
           "here"}),
    WithA("NoWayBackByNext", "next = \"b\"\n" + Another("b", "previous = []\n"),
          {"9: next: expected a section that leads back to \"a\"; \"b\" names it neither in next "
           "nor in previous"}),
    WithA("NoWayBackByPrevious", "previous = \"b\"\n" + Another("b", ""),
          {"9: previous: expected a section that leads back to \"a\"; \"b\" names it neither in "
           "next nor in previous"}),
    // The mistake is at the other section, and reported once.
    WithA("WrongWayBack", "next = \"b\"\n" + Another("b", "previous = 7\n"),
          {"14: previous: expected a name or a list of names, found 7"}),
};

/// The section "a" of 100 cm in block 3, and a train from line 9 on: control, length and top speed
/// in the lines 12 to 14, then `rest`.
ProblemCase Train(const char* name, const std::string& control, const std::string& length,
                  const std::string& topSpeed, const std::string& rest,
                  const std::vector<std::string>& problems) {
    return WithA(name,
                 "[[train]]\nname = \"T\"\nsection = \"a\"\ncontrol = \"" + control +
                     "\"\nlength = " + length + "\ntop-speed = " + topSpeed + '\n' + rest,
                 problems);
}

ProblemCase Analog(const char* name, const std::string& rest,
                   const std::vector<std::string>& problems) {
    return Train(name, "analog", "40", "30", rest, problems);
}

const ProblemCase kTrains[] = {
    Train("Control", "steam", "40", "30", "address = 3\n",
          {"12: control: expected \"analog\", \"dcc\" or \"mcc\", found \"steam\""}),
    Train("Least", "analog", "1", "1", "acceleration = 0\n", {}),
    Train("Most", "analog", "100", "500", "acceleration = 500\n", {}),
    Train("LengthBelow", "analog", "0.5", "30", "",
          {"13: length: expected a number 1..1000, found 0.5"}),
    Train("LengthAbove", "analog", "1001", "30", "",
          {"13: length: expected a number 1..1000, found 1001"}),
    Train("LongerThanItsSection", "analog", "100.5", "30", "",
          {"13: length: expected at most the 100 cm of section \"a\", where the train begins"}),
    Train("SpeedBelow", "analog", "40", "0", "",
          {"14: top-speed: expected a number 1..500, found 0"}),
    Train("SpeedAbove", "analog", "40", "500.5", "",
          {"14: top-speed: expected a number 1..500, found 500.5"}),
    Analog("AccelerationBelow", "acceleration = -1\n",
           {"15: acceleration: expected a number 0..500, found -1"}),
    Analog("AccelerationAbove", "acceleration = 501\n",
           {"15: acceleration: expected a number 0..500, found 501"}),
    Analog("PositionBelow", "position = 39.5\n",
           {"15: position: expected at least the train's length and at most the 100 cm of section "
            "\"a\""}),
    Analog("PositionAbove", "position = 100.5\n",
           {"15: position: expected at least the train's length and at most the 100 cm of section "
            "\"a\""}),
    Analog("PositionIsText", "position = \"front\"\n",
           {"15: position: expected a number 0..10000, found \"front\""}),
    Analog(
        "AnalogAddress", "address = 3\n",
        {"15: address: expected only with control = \"dcc\" or \"mcc\", an analog train has none"}),
    Analog(
        "AnalogLong", "long-address = true\n",
        {"15: long-address: expected only with control = \"dcc\", other addresses have one form"}),
    Train("NoAddress", "dcc", "40", "30", "", {"9: address: expected here, but missing"}),
    Train("DccBelow", "dcc", "40", "30", "address = 0\n",
          {"15: address: expected a whole number 1..10239, found 0"}),
    Train("DccAbove", "dcc", "40", "30", "address = 10240\n",
          {"15: address: expected a whole number 1..10239, found 10240"}),
    Train("MccBelow", "mcc", "40", "30", "address = -1\n",
          {"15: address: expected a whole number 0..4095, found -1"}),
    Train("MccAbove", "mcc", "40", "30", "address = 4096\n",
          {"15: address: expected a whole number 0..4095, found 4096"}),
    Train(
        "MccLong", "mcc", "40", "30", "address = 5\nlong-address = true\n",
        {"16: long-address: expected only with control = \"dcc\", other addresses have one form"}),
    Train("ShortAbove127", "dcc", "40", "30", "address = 128\nlong-address = false\n",
          {"16: long-address: expected true above address 127, found false"}),
    Train("LongIsWord", "dcc", "40", "30", "address = 5\nlong-address = \"yes\"\n",
          {"16: long-address: expected true or false, found \"yes\""}),
    Analog("UnknownKey", "wheels = 8\n", {"15: unknown key \"wheels\""}),
    WithA("UnknownSection",
          "[[train]]\nname = \"T\"\nsection = \"b\"\ncontrol = \"analog\"\nlength = 40\n"
          "top-speed = 30\n",
          {"11: section: expected the name of a section, found \"b\""}),
    // A mistake in a section is reported once, not again for its trains.
    {"LengthOfItsSection",
     SectionA("3", "0",
              "[[train]]\nname = \"T\"\nsection = \"a\"\ncontrol = \"analog\"\nlength = 40\n"
              "top-speed = 30\nposition = 50\n"),
     {"8: length: expected a number 1..10000, found 0"}},
    {"BlockOfItsSection",
     SectionA("-3", "100",
              Another("b", "", 0) +
                  "[[train]]\nname = \"T\"\nsection = \"a\"\ncontrol = \"analog\"\nlength = 40\n"
                  "top-speed = 30\n[[train]]\nname = \"U\"\nsection = \"b\"\ncontrol = \"analog\"\n"
                  "length = 40\ntop-speed = 30\n"),
     {"7: block: expected a whole number 0..255, found -3"}},
    Analog("NameAndBlockTwice",
           "[[train]]\nname = \"T\"\nsection = \"a\"\ncontrol = \"analog\"\nlength = 40\n"
           "top-speed = 30\n",
           {"16: name: expected another one, there is already a train \"T\" in line 10",
            "17: section: expected one in another block, a train already begins in block 3 in line "
            "11"}),
};

INSTANTIATE_TEST_SUITE_P(Sections, WrongTracks, testing::ValuesIn(kSections), CaseName);
INSTANTIATE_TEST_SUITE_P(Ways, WrongTracks, testing::ValuesIn(kWays), CaseName);
INSTANTIATE_TEST_SUITE_P(Trains, WrongTracks, testing::ValuesIn(kTrains), CaseName);

}  // namespace
}  // namespace zelvar::sim
