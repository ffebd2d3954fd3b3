// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <sstream>

#include "sim/explain/explain.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

struct Explained {
    std::vector<std::string> lines;
    LogCount count;
};

Explained Explain(const std::string& text) {
    std::istringstream in(text);
    std::ostringstream out;
    Explained result;
    result.count = ExplainLog(in, out);
    std::istringstream lines(out.str());
    for (std::string line; std::getline(lines, line);) {
        result.lines.push_back(line);
    }
    return result;
}

/// The places of data bytes that a command does not use, as the program's log leaves them empty.
std::string Unused(std::size_t places) {
    return std::string(places * 3, ' ');
}

std::string Padded(std::string frames) {
    constexpr std::size_t kColumn = 62;
    frames.resize(kColumn, ' ');
    return frames;
}

struct LogCase {
    const char* name;
    std::string line;
    std::string frames;
    const char* meaning;
};

class LogLine : public testing::TestWithParam<LogCase> {};

TEST_P(LogLine, IsKeptWithItsMeaningAfterIt) {
    const Explained explained = Explain(GetParam().line + "\r\n");
    ASSERT_EQ(explained.lines.size(), 1U);
    EXPECT_EQ(explained.lines[0], Padded(GetParam().frames) + GetParam().meaning);
    EXPECT_EQ(explained.count.unknown, 0U);
    // What was explained once can be explained again.
    EXPECT_EQ(Explain(explained.lines[0] + "\n").lines, explained.lines);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LogLine,
    testing::Values(
        LogCase{"Answered", ">> 0B A2 85 CC 82" + Unused(4) + "  << 08 F8",
                ">> 0B A2 85 CC 82" + Unused(4) + "  << 08 F8",
                "analog speed: block 5, speed 12 forward -> acknowledged"},
        LogCase{"Unanswered", ">> 4A 81 80 B5" + Unused(5), ">> 4A 81 80 B5",
                "reset the fault -> no answer"},
        LogCase{"PollWithAReport", ">> 28 D8" + Unused(7) + "  << 2A B3 85 9E",
                ">> 28 D8" + Unused(7) + "  << 2A B3 85 9E",
                "poll [stop] -> report: overcurrent in block 133 detected [fault]"},
        LogCase{"NoUnusedPlace", ">> 4F 80 E2 C4 80 81 8A 83 FD  << 08 F8",
                ">> 4F 80 E2 C4 80 81 8A 83 FD  << 08 F8",
                "signal module 2, pin 10: aspect 3 -> acknowledged"},
        LogCase{"LongestReply", ">> 0B 81 8B A4 C5" + Unused(4) + "  << 0E 81 8B A4 A9 90 8C FD",
                ">> 0B 81 8B A4 C5" + Unused(4) + "  << 0E 81 8B A4 A9 90 8C FD",
                "ask for the status of traction module 4 -> traction module 4: VD60, fault, "
                "version 2.01 D"},
        LogCase{"SmallLetters", ">> 0b a2 85 cc 82" + Unused(4) + "  << 08 f8",
                ">> 0b a2 85 cc 82" + Unused(4) + "  << 08 f8",
                "analog speed: block 5, speed 12 forward -> acknowledged"},
        LogCase{"NothingAfterTheSign", ">> 08 F8" + Unused(7) + "  << ",
                ">> 08 F8" + Unused(7) + "  <<", "poll -> no answer"},
        LogCase{"CutOffReply", ">> 08 F8" + Unused(7) + "  << 0B A2",
                ">> 08 F8" + Unused(7) + "  << 0B A2", "poll -> incomplete: 2 of 5 bytes"}),
    [](const auto& row) { return row.param.name; });

TEST(ExplainLogTest, AnEmptyLineOfTheLogIsAPollWithoutAnAnswer) {
    const Explained explained = Explain(">> 0A 81 80 F5" + Unused(5) + "  << 08 F8\r\n\r\n");
    ASSERT_EQ(explained.lines.size(), 2U);
    EXPECT_EQ(explained.lines[1], Padded("") + "poll -> no answer");
}

TEST(ExplainLogTest, OtherEmptyLinesAreKept) {
    EXPECT_EQ(
        Explain("\n12:00:03.120  > 08 F8\n\n").lines,
        (std::vector<std::string>{"", "12:00:03.120  > 08 F8                       poll", ""}));
}

TEST(ExplainLogTest, SmallLettersOfATraceBecomeCapitals) {
    EXPECT_EQ(Explain("  > 0b a2 85 cc 82").lines[0],
              "  > 0B A2 85 CC 82              analog speed: block 5, speed 12 forward");
}

TEST(ExplainLogTest, ExplainsItsOwnOutputAgainTheSameWay) {
    const Explained once = Explain("? line\n\n>> 08 F8\n\n hello\n\n  > 08 F8\n\n? line x: y\n");
    EXPECT_EQ(once.lines[3], Padded("") + "poll -> no answer");
    EXPECT_EQ(once.lines[4], "? line 5:  hello");
    EXPECT_EQ(once.lines[8], "? line 9: ? line x: y") << "no mark of its own";
    std::string output;
    for (const std::string& line : once.lines) {
        output += line + "\n";
    }
    EXPECT_EQ(Explain(output).lines, once.lines);
    EXPECT_EQ(Explain(output).count.unknown, once.count.unknown);
    // Also a part of it: the numbers stay those of the whole.
    EXPECT_EQ(Explain(once.lines[3] + "\n" + once.lines[4]).lines,
              (std::vector<std::string>{once.lines[3], once.lines[4]}));
}

TEST(ExplainLogTest, TakesItsOwnTraceWithAndWithoutTimeAndMeaning) {
    const std::vector<std::string> trace{
        "12:00:03.120  > 0B A2 85 CC 82              analog speed: block 5, speed 12 forward",
        "12:00:03.125  < 08 F8                       acknowledged"};
    EXPECT_EQ(Explain(trace[0] + "\n" + trace[1] + "\n").lines, trace);
    EXPECT_EQ(Explain("12:00:03.120  > 0B A2 85 CC 82\n12:00:03.125  < 08 F8\n").lines, trace);
    EXPECT_EQ(Explain("  > 0B A2 85 CC 82").lines[0], trace[0].substr(12));
}

TEST(ExplainLogTest, TraceLinesOfTheLongestFrameStayInTheirColumn) {
    const std::vector<std::uint8_t> longest = EncodeFrame({0, 98, 68, 0, 1, 10, 3});
    EXPECT_EQ(TraceLine("12:00:03.120", false, longest, "x"),
              "12:00:03.120  > 0F 80 E2 C4 80 81 8A 83 BD  x");
}

TEST(ExplainLogTest, KeepsWhatItDoesNotUnderstandAndMarksItWithItsNumber) {
    const Explained explained = Explain(
        "ready /tmp/line\n>> 08 F8\n>> 0G F8\n>>\n>> 08 F8 oops\n>> 08 F8  << oops\n"
        "12:00 <\nnoon > 08 F8\n  indented");
    EXPECT_EQ(explained.lines,
              (std::vector<std::string>{
                  "? line 1: ready /tmp/line", Padded(">> 08 F8") + "poll -> no answer",
                  "? line 3: >> 0G F8", "? line 4: >>", "? line 5: >> 08 F8 oops",
                  "? line 6: >> 08 F8  << oops", "? line 7: 12:00 <", "? line 8: noon > 08 F8",
                  "? line 9:   indented"}));
    EXPECT_EQ(explained.count.lines, 9U);
    EXPECT_EQ(explained.count.unknown, 8U);
}

}  // namespace
}  // namespace zelvar::sim
