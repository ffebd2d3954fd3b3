// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

constexpr char kFactoryHfi[] = "6";

class Configuration : public Journey {
  protected:
    /// The HFI level of the traction module on line 1, as the unit keeps it: its first parameter.
    std::string Hfi(const std::string& memory) {
        const std::string values = unit->Value("traction.1." + memory);
        return values.substr(0, values.find(','));
    }

    bool IsGreen(const std::string& field) { return program->ColourOf(field, "Base") == "#00ff00"; }

    /// The program answers when it is through with what was pressed.
    void ExpectNoBox() { EXPECT_EQ(program->BoxesShown(), std::vector<std::string>{}); }
};

TEST_F(Configuration, ASettingSetPermanentlyIsReadBackAfterAReboot) {
    StartAndOpen();
    RequestStatus();
    program->Choose("cboVD", " 1");
    EXPECT_TRUE(program->Shows("lblVDtype", "VD-F"));
    program->Click("cmdHFI(1)");
    EXPECT_TRUE(program->Shows("txtHFI", kFactoryHfi));
    EXPECT_TRUE(IsGreen("txtHFI"));

    program->Type("txtHFI", "9");
    EXPECT_FALSE(IsGreen("txtHFI")) << "the button has lost the focus";
    program->Click("chkVDperm");
    program->Click("cmdHFI(0)");
    ExpectNoBox();
    EXPECT_EQ(Hfi("permanent"), "9");
    EXPECT_EQ(Hfi("active"), kFactoryHfi) << "only the permanent one is written";

    unit->Do("reboot");
    program->Type("txtHFI", "0");
    program->Click("chkVDperm");
    EXPECT_FALSE(program->IsTicked("chkVDperm"));
    program->Click("cmdHFI(1)");
    EXPECT_TRUE(program->Shows("txtHFI", "9"));
    EXPECT_TRUE(IsGreen("txtHFI"));

    program->Type("txtHFI", "12");
    program->Click("cmdHFI(0)");
    ExpectNoBox();
    EXPECT_EQ(Hfi("active"), "12");
    unit->Do("reboot");
    program->Click("cmdHFI(1)");
    EXPECT_TRUE(program->Shows("txtHFI", "9")) << "an active setting ends with the reboot";
    ExpectNoBox();
}

}  // namespace

}  // namespace zelvar::e2e
