// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/state_table.h"

#include <algorithm>

#include "sim/protocol/names.h"
#include "sim/unit_fixture.h"

namespace zelvar::sim {
namespace {

using Rows = std::vector<std::vector<std::string>>;

class StateTable : public UnitFixture {
  protected:
    TableSection SectionOf(std::string_view heading) {
        for (const TableSection& section : StateTables(unit_.state())) {
            if (section.heading == heading) {
                return section;
            }
        }
        ADD_FAILURE() << "no section " << heading;
        return {};
    }
    Rows RowsOf(std::string_view heading) { return SectionOf(heading).rows; }
    std::string ColumnsOf(std::string_view heading) { return Joined(SectionOf(heading).columns); }
};

TEST_F(StateTable, ListsTheModulesThatAreThere) {
    unit_.state().muted.set(64);
    EXPECT_EQ(ColumnsOf("Modules"),
              "address, module, type, state, version, master/slave, clock, answers");
    const Rows modules = RowsOf("Modules");
    const Rows expected{
        {"36", "traction module 4", "VD60", "OK", "2.01 D", "slave", "good", ""},
        {"40", "traction module 8", "QLRX-s", "OK", "1.10 B", "auto", "good", ""},
        {"4", "second unit of traction module 4", "VD60", "OK", "2.01 D", "slave", "good", ""},
        {"64", "point module 0", "", "OK", "1.20 A", "", "", "muted"},
        {"81", "point module 9", "", "OK", "1.20 A", "", "", ""},
        {"98", "signal module 2", "", "idle", "1.00 E", "", "", ""}};
    for (const auto& row : expected) {
        EXPECT_NE(std::find(modules.begin(), modules.end(), row), modules.end()) << row[1];
    }
    EXPECT_EQ(modules.size(), 22U);
}

TEST_F(StateTable, ShowsWhatMovesAndWhatWasSet) {
    Send({34, 5, 76});      // block 5
    Send({58, 5, 6, 6});    // linked with 6, inverted
    Send({58, 7, 2, 8});    // linked with 8
    Send({40, 0, 106, 3});  // DCC
    Send({6, 0, 2, 2, 0});  // MCC
    Send({22, 44});         // point 300
    Send({0, 83, 25, 3});   // point of a module
    Send({0, 98, 68, 0, 1, 10, 3});
    Send({26, 44, 5, 100});
    unit_.state().overcurrent.set(9);
    unit_.state().feedback.set(200);
    unit_.state().feedback.set(7);
    EXPECT_EQ(ColumnsOf("Blocks"), "block, speed, going to, direction, light, overcurrent");
    EXPECT_EQ(ColumnsOf("Links"), "blocks, direction");
    EXPECT_EQ(ColumnsOf("Locomotives"), "decoder, speed, direction, block, functions");
    EXPECT_EQ(ColumnsOf("Points"), "point, position");
    EXPECT_EQ(ColumnsOf("Signals"), "module, pin, aspect");
    EXPECT_EQ(ColumnsOf("Outputs"), "output, instruction, parameter");
    EXPECT_EQ(RowsOf("Blocks"), (Rows{{"5", "12", "", "forward", "off", ""},
                                      {"6", "12", "", "reverse", "off", ""},
                                      {"9", "0", "", "forward", "off", "yes"}}));
    EXPECT_EQ(RowsOf("Links"), (Rows{{"5 and 6", "inverted"}, {"7 and 8", "same way"}}));
    EXPECT_EQ(RowsOf("Locomotives"), (Rows{{"DCC 3", "10 of 28", "forward", "0", "none"},
                                           {"MCC 2", "1.5 of 15", "", "", "none"}}));
    EXPECT_EQ(RowsOf("Points"), (Rows{{"300", "thrown"}, {"module 11, device 3", "thrown"}}));
    EXPECT_EQ(RowsOf("Signals"), (Rows{{"2", "10", "3"}}));
    EXPECT_EQ(RowsOf("Outputs"), (Rows{{"300", "5", "100"}}));
    EXPECT_EQ(RowsOf("Feedback"), (Rows{{"active inputs", "7, 200"}}));
}

TEST_F(StateTable, ShowsTheStateOfTheUnit) {
    const auto shown = [this](const std::string& name) {
        for (const auto& row : RowsOf("Unit")) {
            if (row[0] == name) {
                return row[1];
            }
        }
        return std::string("none");
    };
    EXPECT_EQ(shown("state"), "OK");
    EXPECT_EQ(shown("permanent configuration"), "none");
    Send({1, 7, 1, 2});
    Send({1, 5, 34});
    EXPECT_EQ(shown("configuration"), "none");
    EXPECT_EQ(shown("permanent configuration"), "channel 1 at 38k4, 64 devices per point module");
    EXPECT_EQ(shown("options"), "Ret.Report, VD-Ch0");
    unit_.state().fault = true;
    unit_.state().hold = true;
    Send({}, kHeaderStopBit);
    EXPECT_EQ(shown("state"), "fault, held, stop requested");
}

TEST_F(StateTable, ShowsTheSettingsThatWereChangedOnly) {
    EXPECT_EQ(ColumnsOf("Settings changed"), "module, setting, active, permanent");
    EXPECT_EQ(RowsOf("Settings changed"), Rows());
    Send({0, 32, 8, 1, 5});
    Send({0, 32, 8, 75, 2});
    Send({0, 64, 96, 30});
    Send({0, 64, 40, 3, 2});
    EXPECT_EQ(RowsOf("Settings changed"),
              (Rows{{"traction module 0", "HFI level", "5", "6"},
                    {"traction module 0", "master/slave mode", "master", "slave"},
                    {"point module 0", "default time", "15/60 s", "30/60 s"},
                    {"point module 0", "device 3", "default time, power high",
                     "default time, power normal"}}));
}

TEST_F(StateTable, CountsTheFrames) {
    Send({1, 2});
    Send({1, 2});
    unit_.NoteBrokenFrame();
    EXPECT_EQ(RowsOf("Frames"),
              (Rows{{"received", "2"}, {"broken", "1"}, {"protocol-version", "2"}}));
}

TEST_F(StateTable, CountsTheFramesWhoseToggleSaysThatTheyWereSentBefore) {
    for (int sent = 0; sent < 3; ++sent) {
        unit_.Handle({kHeaderMark, {}}, now_);
    }
    EXPECT_EQ(RowsOf("Frames"),
              (Rows{{"received", "3"}, {"sent twice, by the toggle", "2"}, {"poll", "3"}}));
}

TEST(RenderSectionsTest, AlignsColumnsAndLeavesOutWhatIsNotThere) {
    const TableSection sections[] = {
        {"Unit", {}, {{"type", "KB-E"}, {"HFI level", "0"}}},
        {"Points", {"point", "position"}, {}},
        {"Blocks", {"block", "speed", "light"}, {{"5", "12", ""}, {"200", "", "on"}}}};
    EXPECT_EQ(RenderSections(sections),
              "Unit\n"
              "  type       KB-E\n"
              "  HFI level  0\n"
              "\n"
              "Blocks\n"
              "  block  speed  light\n"
              "  5      12\n"
              "  200           on\n"
              "\n");
}

}  // namespace
}  // namespace zelvar::sim
