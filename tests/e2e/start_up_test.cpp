// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/journey.h"

namespace zelvar::e2e {

namespace {

using StartUp = Journey;

TEST_F(StartUp, ShowsTheMainWindowReadyToChooseAPort) {
    Start();
    EXPECT_EQ(program->Window("frmZelvarConfig"), "visible");
    EXPECT_EQ(program->TitleOf("frmZelvarConfig"), "ZelvarConfig 1.40B");
    EXPECT_EQ(program->ItemsOf("cboPort"), "1");
    EXPECT_EQ(program->TextOf("cboPort"), "");
    EXPECT_EQ(program->TextOf("lblBarStatus"), "System Status = Disconnected");
    EXPECT_EQ(program->TextOf("lblTestSystemStatus"), "System Status = Disconnected");
    EXPECT_EQ(program->ColourOf("lblTestSystemStatus", "WindowText"), "#000000");
    EXPECT_TRUE(program->IsTicked("Check_Stop"));
    EXPECT_FALSE(program->IsVisible("optBaud(0)"));
    EXPECT_FALSE(program->IsVisible("optBaud(1)"));
    EXPECT_TRUE(program->IsTicked("optBaud(0)"));
    EXPECT_EQ(program->AskOne({"tooltip", "cmdStatus"}), "Shift+Click for Classic View");
    EXPECT_EQ(program->ItemsOf("cboVD"), "");
    EXPECT_EQ(program->ItemsOf("cboJS"), "");
    EXPECT_EQ(Frames(), 0) << "the list of ports must not send anything";
    for (const char* window :
         {"dlgMsgLog", "dlgAlarmLog", "dlgZelvarStatus", "dlgZelvarStatus44"}) {
        EXPECT_NE(program->Window(window), "visible") << window;
    }
}

TEST_F(StartUp, ListsTheNumbersThatHaveADevice) {
    unit.emplace(folder);
    const std::string& device = unit->Device();
    program.emplace(folder, folder.Path("missing") + ":" + device + "::" + device);
    EXPECT_EQ(program->ItemsOf("cboPort"), "2|4");
    EXPECT_EQ(program->AskOne({"itemtooltip", "cboPort", "0"}), device);
}

TEST_F(StartUp, DoesNotListAPortThatAnotherProgramUses) {
    StartAndOpen();
    Program second(folder, unit->Device(), "second");
    EXPECT_EQ(second.ItemsOf("cboPort"), "");
    EXPECT_NE(second.AskOne({"tooltip", "cboPort"}).find("dialout"), std::string::npos)
        << "the list says what to do";

    // Refresh gives the port up, and the other program's Refresh finds it.
    program->Click("cmdRefresh");
    EXPECT_EQ(program->TextOf("lblBarDevice"), "No port open");
    second.Click("cmdRefresh");
    EXPECT_EQ(second.ItemsOf("cboPort"), "1");
}

TEST_F(StartUp, SaysThatAChosenPortCannotBeOpened) {
    Start();
    unit->Do("hang-up");
    program->Choose("cboPort", "1");
    EXPECT_EQ(program->AwaitBox(),
              (BoxText{"ZelvarConfig", "warning", "Fout bij openen COM poort", "OK"}));
    program->Answer("OK");
    program->Click("cmdReset");
    EXPECT_EQ(program->AwaitBox(), SelectPortBox());
}

TEST_F(StartUp, AMessageBoxBlocksTheMainWindow) {
    program.emplace(folder, "");
    program->Click("cmdReset");
    ASSERT_EQ(program->AwaitBox(), SelectPortBox());
    program->Click("Check_Stop");
    EXPECT_TRUE(program->IsTicked("Check_Stop"));
    program->Answer("OK");
    program->Click("Check_Stop");
    EXPECT_FALSE(program->IsTicked("Check_Stop"));
}

TEST_F(StartUp, EndsWithTheMainWindowWhateverElseIsOpen) {
    StartAndPoll();
    RequestStatus();
    program->Press("cmdStatus", "left", "shift");
    program->DoubleClick("lblCom");
    unit->Do("overcurrent 5");
    for (const char* window :
         {"dlgMsgLog", "dlgAlarmLog", "dlgZelvarStatus", "dlgZelvarStatus44"}) {
        ASSERT_TRUE(program->Says({"window", window}, "visible"));
    }
    program->Close("frmZelvarConfig");
    EXPECT_EQ(program->Process().WaitForExit(), 0) << program->Process().Describe();
}

TEST_F(StartUp, KeepsRunningWhenAnotherWindowIsClosed) {
    StartAndPoll();
    RequestStatus();
    program->Close("dlgZelvarStatus44");
    EXPECT_TRUE(program->Says({"window", "dlgZelvarStatus44"}, "hidden"));
    EXPECT_TRUE(Polls());
    RequestStatus();
    program->Key("dlgZelvarStatus44/chkShowChannel0", "Esc");
    EXPECT_TRUE(program->Says({"window", "dlgZelvarStatus44"}, "hidden"));
    EXPECT_TRUE(Polls());
}

}  // namespace

}  // namespace zelvar::e2e
