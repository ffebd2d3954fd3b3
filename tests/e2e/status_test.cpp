// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

constexpr char kNewView[] = "dlgZelvarStatus44";
constexpr char kClassicView[] = "dlgZelvarStatus";
constexpr char kNone[] = "--";

std::string Indexed(const std::string& name, int index) {
    return name + "(" + std::to_string(index) + ")";
}

struct Unit {
    int line;
    std::string status;
    std::string version;
};

struct TractionModule {
    int line;
    std::string type;
};

// The modules of the simulated mixed layout, as a person reads them.
const std::vector<TractionModule> kTractionModules{
    {0, "VD-F"},   {1, "VD-F"},   {2, "VD-F"},  {4, "VD60"},  {5, "VD60"},   {6, "VD60"},
    {8, "QLRX-s"}, {9, "QLRX-s"}, {16, "VD-F"}, {19, "VD60"}, {24, "QLRX-s"}};
const std::vector<Unit> kTractionUnits{
    {0, "OK", "1.02 C"},    {1, "Idle", "1.02 C"}, {2, "Fault", "1.01"},    {4, "OK", "2.01 D"},
    {5, "Fault", "2.01 D"}, {6, "OK", "2.01"},     {8, "OK", "1.10 B"},     {9, "Idle", "?"},
    {16, "OK", "1.02 C"},   {19, "OK", "2.01 D"},  {24, "Fault", "1.10 B"}, {36, "OK", "2.01 D"},
    {37, "Error", kNone},   {51, "Idle", "2.01 D"}};
const std::vector<Unit> kPointMotorModules{{0, "OK", "1.20 A"},
                                           {1, "Hold", "1.20 A"},
                                           {3, "Idle", kNone},
                                           {9, "OK", "1.20 A"},
                                           {15, "OK", "1.20"}};
const std::vector<Unit> kSignalControllers{
    {0, "OK", "1.00 E"}, {2, "Idle", "1.00 E"}, {18, "OK", "?"}};

class StatusViews : public Journey {
  protected:
    void ExpectField(const std::string& view, const std::string& field,
                     const std::string& expected) {
        EXPECT_EQ(program->TextOf(view + "/" + field), expected) << field;
    }

    void ExpectUnits(const std::string& stateField, const std::string& versionField, int lines,
                     const std::vector<Unit>& units) {
        for (int line = 0; line < lines; ++line) {
            Unit expected{line, kNone, kNone};
            for (const Unit& known : units) {
                expected = known.line == line ? known : expected;
            }
            ExpectField(kNewView, Indexed(stateField, line), expected.status);
            ExpectField(kNewView, Indexed(versionField, line), expected.version);
        }
    }

    void ExpectMixedLayout() {
        for (int line = 0; line < 32; ++line) {
            std::string type = kNone;
            for (const TractionModule& module : kTractionModules) {
                type = module.line == line ? module.type : type;
            }
            ExpectField(kNewView, Indexed("txtVDtype", line), type);
        }
        ExpectUnits("txtVDstatus", "txtVDversion", 64, kTractionUnits);
        ExpectUnits("txtJSstatus", "txtJSver", 16, kPointMotorModules);
        ExpectUnits("txtYRstatus", "txtYRver", 32, kSignalControllers);
    }

    void ExpectClassicModules() {
        const std::vector<std::string> types{"VD-F", "VD-F", "VD-F", "N.A.",   "VD-F",
                                             "VD-F", "VD-F", "N.A.", "QLRX-s", "QLRX-s"};
        const std::vector<std::string> states{"OK",    "OK", "Fault", "--", "OK",
                                              "Fault", "OK", "--",    "OK", "OK"};
        for (int line = 0; line < 16; ++line) {
            const auto index = static_cast<std::size_t>(line);
            ExpectField(kClassicView, Indexed("txtVDtype", line),
                        index < types.size() ? types[index] : "N.A.");
            ExpectField(kClassicView, Indexed("txtVDstatus", line),
                        index < states.size() ? states[index] : kNone);
        }
        for (int module = 0; module < 8; ++module) {
            const bool present = module == 0 || module == 1 || module == 3;
            ExpectField(kClassicView, Indexed("txtJSstatus", module), present ? "OK" : kNone);
        }
        EXPECT_EQ(program->ItemsOf("cboVD"), "All_VD-F|All_QLRX| 0| 1| 2| 4| 5| 6| 8| 9");
        EXPECT_EQ(program->TextOf("cboVD"), " 0");
        EXPECT_EQ(program->ItemsOf("cboJS"), "All| 0| 1| 3");
        EXPECT_EQ(program->TextOf("cboJS"), " 0");
    }
};

TEST_F(StatusViews, TheNewViewShowsTheWholeLayout) {
    StartAndOpen();
    RequestStatus();
    EXPECT_EQ(program->TitleOf(kNewView), "ZelvarConfig - Zelvar Status");
    ExpectField(kNewView, "txtSystem", "OK");
    ExpectField(kNewView, "txtSysVer", "KB-E 1.02");
    ExpectField(kNewView, "txtProtVer", "3.11 B");
    ExpectMixedLayout();
    EXPECT_NE(program->Window(kClassicView), "visible");
    EXPECT_EQ(program->BoxesShown().size(), 0U);
    EXPECT_EQ(program->ItemsOf("cboVD"),
              "All_VDxx|All_VD60|All_VD-F|All_QLRX| 0| 1| 2| 4.0| 4.1| 5.0| 6.0| 8| 9| 16| 19.0| "
              "19.1| 24");
    EXPECT_EQ(program->ItemsOf("cboJS"), "All| 0| 1| 3| 9| 15");
    EXPECT_EQ(program->TextOf("frmZelvarConfig/lblKBtype"), "KB-E");

    // 32 primary units, the second units of four VD60s, 16 point-motor and 32 signal modules.
    EXPECT_EQ(unit->Count("command.module-status"), 32 + 4 + 16 + 32);
    EXPECT_EQ(unit->Count("command.protocol-version"), 1);
    EXPECT_EQ(unit->Count("command.unit-type"), 1);
    EXPECT_EQ(unit->Count("repeated-toggles"), 0);
    EXPECT_EQ(unit->Count("broken-frames"), 0);
}

TEST_F(StatusViews, ShiftAndTheLeftButtonOpenTheClassicView) {
    StartAndOpen();
    program->Press("cmdStatus", "left", "shift");
    ASSERT_TRUE(program->Says({"window", kClassicView}, "visible"));
    EXPECT_NE(program->Window(kNewView), "visible");
    ExpectField(kClassicView, "txtSysVer", "KB-E 1.02");
    ExpectField(kClassicView, "txtProtVer", "3.11 B");
    for (int i = 0; i < 4; ++i) {
        ExpectField(kClassicView, Indexed("txtDIP", i), "Off");
    }
    ExpectClassicModules();
    EXPECT_EQ(unit->Count("command.module-status"), 0);
}

TEST_F(StatusViews, AnOldProtocolOpensTheClassicViewOnAPlainClick) {
    StartAndOpen({"--layout", ZELVAR_TEST_LAYOUTS "/old-unit.toml"});
    RequestStatus(kClassicView);
    EXPECT_NE(program->Window(kNewView), "visible");
    ExpectField(kClassicView, "txtSysVer", "KB-F1.02");
    ExpectField(kClassicView, "txtProtVer", "3.10");
    ExpectField(kClassicView, "txtDIP(0)", "On");
    ExpectField(kClassicView, "txtDIP(1)", "Off");
    ExpectField(kClassicView, "txtDIP(2)", "On");
    ExpectField(kClassicView, "txtDIP(3)", "Off");
    ExpectClassicModules();
    EXPECT_EQ(program->TextOf("frmZelvarConfig/lblKBtype"), "KB-F");
}

}  // namespace

}  // namespace zelvar::e2e
