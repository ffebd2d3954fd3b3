// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QRadioButton>

#include <map>
#include <set>

#include "config/vd_settings.h"
#include "test/locomotives/drive_fixture.h"
#include "twin/twin_window.h"

namespace zelvar::twin {
namespace {

std::string Times(const std::string& name, int times) {
    std::string text;
    for (int i = 0; i < times; ++i) {
        text += (i == 0 ? "" : " ") + name;
    }
    return text;
}

/// A control that makes the program send, and what the unit calls it. A new one needs a row here.
struct SendingControl {
    std::string control;
    /// The module that it is pressed for.
    const char* module;
    std::string commands;
};

const SendingControl kPlainControls[] = {
    {"cmdReset", "", "fault-reset"},
    {"cmdErase", " 0", "traction-erase"},
    {"cmdTIME", "", "points-set-default-time"},
    {"cmdDeviceTime", "", "points-set-device-time"},
    {"cmdDevicePower", "", "points-set-device-power"},
    {"cmdJSerase", "", "points-erase"},
    {"cmdConfig(0)", "", "unit-set-configuration"},
    {"cmdConfig(1)", "", "unit-get-configuration"},
    {"cmdOptions", "", "unit-set-options"},
    {"cmdJS70dm", "", "unit-set-device-mode"},
    {"AnalogSpeed", "", "analog-speed"},
    {"CheckAnalogDirection", "", "analog-speed"},
    {"CheckAnalogLight", "", "analog-light"},
    {"CommandSetHFI", "", "set-hfi"},
    {"cmdEstopAnalog", "", "analog-speed"},
    {"DCCSpeed", "", "dcc-speed-28"},
    // The slider falls back to 0, in the new step mode.
    {"CheckDCC126", "", "dcc-speed-126"},
    {"CheckDCCDirection", "", "dcc-speed-126"},
    {"cmdEstopDCC", "", "dcc-speed-126"},
    {"Command1(0)", "", "dcc-f0-f4"},
    {"Command1(1)", "", "dcc-f5-f8"},
    {"Command1(2)", "", "dcc-f9-f12"},
    {"Command1(3)", "", "dcc-f13-f20"},
    {"Command1(4)", "", "dcc-f21-f28"},
    {"CommandTestClearBlock", "", "clear-block"},
    {"MCCspeed", "", "mcc-speed"},
    // The slider falls back to 0, and speed 0 follows in the new step mode.
    {"CheckMCC30", "", "mcc-speed mcc-speed"},
    {"cmdEstopMCC", "", "mcc-speed"},
    {"cmdTestMCCfunction", "", "mcc-functions"},
    {"cmdTestJS70(0)", "", "point"},
    {"cmdTestJS70(1)", "", "point"},
    {"cmdTestYR70", "", "signal-aspect"},
    {"cmdTestGW70", "", "output"},
    {"CommandTestLink(0)", "", "link"},
    {"CommandTestLink(1)", "", "link"},
    {"CommandTestLink(2)", "", "unlink"},
    {"CommandTestLink(3)", "", "unlink"},
    {"cmdTM(0)", "", "transparent-channel-0"},
    {"cmdTM(1)", "", "transparent-channel-1"},
    {"cmdTM(2)", "", "transparent-boot-loader"},
};

std::vector<SendingControl> SendingControls() {
    std::vector<SendingControl> all(std::begin(kPlainControls), std::end(kPlainControls));
    // What a status request asks for: 32 traction modules and three second units, 16 point-motor
    // modules and 32 signal controllers.
    all.push_back({"cmdStatus", "", "protocol-version unit-type " + Times("module-status", 83)});
    // Both memories, each with a default time and 64 devices.
    const std::string memory =
        "points-get-default-time " + Times("points-get-device", sim::kPointDevices);
    all.push_back({"cmdGetJSConfig", "", memory + ' ' + memory});
    for (const VDSetting& setting : VDSettings()) {
        const int commands = static_cast<int>(VDCommandCount(setting));
        // Module 0 is a VD-F; 8 is a QLRX-s, which takes settings and gives none back.
        const bool isVdF = setting.shownFor.Contains(VDType::VdF);
        all.push_back({Member(setting.button, kSetButton), isVdF ? " 0" : " 8",
                       Times("traction-set", commands)});
        if (isVdF) {
            all.push_back(
                {Member(setting.button, kGetButton), " 0", Times("traction-get", commands)});
        }
    }
    return all;
}

/// Buttons that send nothing, or that are never offered.
std::set<std::string> QuietButtons() {
    std::set<std::string> quiet{"cmdRefresh", "CommandTestFBM", "cmdHideJSConfig", "cmdCancel"};
    for (const VDSetting& setting : VDSettings()) {
        if (!setting.shownFor.Contains(VDType::VdF)) {
            quiet.insert(Member(setting.button, kGetButton));
        }
    }
    return quiet;
}

class EveryControl : public TwinWindow {
  protected:
    EveryControl() { RequestStatus(); }

    /// The controls of a kind; one without a name would not be found by its name.
    template <typename Control>
    std::vector<Control*> All() {
        const QList<Control*> found = window->findChildren<Control*>();
        return {found.begin(), found.end()};
    }

    void Use(const std::string& name) {
        if (auto* slider = window->findChild<QSlider*>(QString::fromStdString(name))) {
            SlideTo(name.c_str(), slider->value() == 0 ? 5 : 0);
        } else {
            Click(name);
        }
    }

    std::string Sent() {
        std::string text;
        for (const std::string& name : port.TakeNames()) {
            text += (text.empty() ? "" : " ") + name;
        }
        return text;
    }
};

TEST_F(EveryControl, ThatSendsIsUnderstoodAsMeant) {
    for (const SendingControl& row : SendingControls()) {
        SCOPED_TRACE(row.control);
        if (*row.module != '\0') {
            Choose("cboVD", row.module);
        }
        if (row.control.find("rase") != std::string::npos) {
            messageBox.answers = {BoxAnswer::Ok};
        }
        port.TakeCommands();
        Use(row.control);
        EXPECT_EQ(Sent(), row.commands);
        if (port.state().transparent) {
            port.Reboot();
        }
    }
    for (const testing::ShownBox& box : messageBox.shown) {
        EXPECT_TRUE(box.text.find("erase") != std::string::npos ||
                    box.text.find("Transparent") != std::string::npos)
            << box.text;
    }
    expectedBoxes = messageBox.shown;
}

TEST_F(EveryControl, IsEitherListedOrQuiet) {
    std::set<std::string> sending;
    for (const SendingControl& row : SendingControls()) {
        sending.insert(row.control);
    }
    std::set<std::string> buttons;
    for (const auto* button : All<QPushButton>()) {
        buttons.insert(button->objectName().toStdString());
    }
    for (const auto* slider : All<QSlider>()) {
        buttons.insert(slider->objectName().toStdString());
    }
    std::set<std::string> listed = QuietButtons();
    for (const std::string& name : sending) {
        if (name.rfind("Check", 0) != 0) {
            listed.insert(name);
        }
    }
    EXPECT_EQ(buttons, listed);
}

TEST_F(EveryControl, ABoxOrOptionThatIsNotListedSendsNothing) {
    std::set<std::string> sending;
    for (const SendingControl& row : SendingControls()) {
        sending.insert(row.control);
    }
    int pressed = 0;
    for (const char* module : {" 0", " 8"}) {
        Choose("cboVD", module);
        for (auto* button : All<QAbstractButton>()) {
            const std::string name = button->objectName().toStdString();
            const bool isBox = qobject_cast<QCheckBox*>(button) != nullptr ||
                               qobject_cast<QRadioButton*>(button) != nullptr;
            ShowTabOf(*button);
            if (!isBox || sending.count(name) == 1 || !button->isVisible()) {
                continue;
            }
            port.TakeCommands();
            Click(name);
            testing::Settle();
            EXPECT_EQ(Sent(), "") << name;
            ++pressed;
        }
    }
    // 29 functions, 8 of MCC, 24 of the unit, and those of the settings.
    EXPECT_GT(pressed, 2 * 61);
}

}  // namespace
}  // namespace zelvar::twin
