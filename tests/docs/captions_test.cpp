// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// The manual against what the program shows, on a line to the simulated unit.
#include <QGroupBox>
#include <QRegularExpression>
#include <QTabBar>

#include <set>
#include <string>

#include "docs/document.h"
#include "sim/console/console.h"
#include "twin/twin_window.h"

namespace zelvar::testing {

namespace {

std::string Trim(const QString& text) {
    return text.trimmed().toStdString();
}

/// What the manual says in bold, which may go over a line's end.
std::set<std::string> BoldInManual() {
    std::string prose;
    for (const DocumentLine& line : ProseOf(ReadDocument("docs/manual.md"))) {
        prose += Trim(QString::fromStdString(line.text)) + " ";
    }
    const std::vector<std::string> words = Between(prose, "**");
    return {words.begin(), words.end()};
}

/// A journey through everything that the program shows.
class Manual : public twin::TwinWindow {
  protected:
    void TearDown() override { expectedBoxes = messageBox.shown; }

    void Travel() {
        Collect();
        Click("cmdHFI(0)");  // before the first status request
        SeeModules();
        CheckMasters();
        SeePointMotors();
        SeeTestTab();
        SeeFailures();
    }

    /// Whether it is a caption, or stands in a message box, a report or a log.
    bool WasShown(const std::string& words) const {
        return captions_.count(words) == 1 || texts_.find(words) != std::string::npos;
    }

    void Collect() {
        for (const QWidget* widget : QApplication::allWidgets()) {
            for (const char* property : {"text", "title", "windowTitle"}) {
                captions_.insert(Trim(widget->property(property).toString()));
            }
            texts_ += widget->property("plainText").toString().toStdString() + '\n';
            if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
                for (int row = 0; row < list->count(); ++row) {
                    captions_.insert(Trim(list->itemText(row)));
                }
            }
            if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
                for (int tab = 0; tab < tabs->count(); ++tab) {
                    captions_.insert(Trim(tabs->tabText(tab)));
                }
            }
        }
        for (const ShownBox& box : messageBox.shown) {
            texts_ += box.text + '\n';
        }
    }

  private:
    /// Polls until a module answers.
    static constexpr int kNever = 1'000'000;

    void SeeModules() {
        using sim::ModuleState;
        const auto put = [this](int address, ModuleState state) {
            port.state().layout.At(address).status =
                sim::StatusByte(static_cast<int>(sim::TractionType::kVdF), state);
        };
        put(32 + 0, ModuleState::kIdle);
        put(32 + 3, ModuleState::kFault);
        put(64 + 0, ModuleState::kHold);
        put(5, ModuleState::kOk);  // a secondary unit of another kind than a VD60
        RequestStatus();
        RequestStatus(true);
        Collect();
        RequestStatus();
        Choose("cboVD", " 0");
        Collect();
        messageBox.answers = {BoxAnswer::Cancel};
        Click("cmdErase");
    }

    void CheckMasters() {
        Choose("cboVD", "All_VDxx");
        auto& traction = port.state().memories.traction;
        constexpr std::size_t kMode = 11;
        for (const std::size_t line : {0, 3, 16, 30, 31, 62}) {
            traction[line].active[kMode] = 2;
        }
        Click("cmdMS(1)");
        traction[0].active[kMode] = 1;
        traction[3].active[kMode] = 1;
        Click("cmdMS(1)");
        traction[3].active[kMode] = 7;
        port.state().layout.At(32 + 3).clock = 1;
        port.state().layout.At(32 + 16).clock = 2;
        port.state().layout.At(32 + 30).clock = 4;
        messageBox.answers = {BoxAnswer::Yes, BoxAnswer::Yes};
        Click("cmdMS(1)");
        messageBox.whileShown = [this] { port.state().answerDelay = kNever; };
        Click("cmdMS(1)");
        messageBox.whileShown = {};
        port.state().answerDelay = 0;
    }

    void SeePointMotors() {
        Choose("cboJS", " 0");
        Click("cmdGetJSConfig");
        Collect();
        port.state().answerDelay = kNever;
        Click("cmdHideJSConfig");
        Click("cmdGetJSConfig");
        port.state().answerDelay = 0;
        Click("cmdTM(0)");
        port.Reboot();
    }

    void SeeTestTab() {
        Tick("chkTestJS70selectmodule", true);
        Type("txtTestBlock", 255);
        Click("Command1(0)");
        port.state().reports.Push(sim::OvercurrentReport(1, true));
        port.state().reports.Push(sim::OvercurrentReport(1, false));
        Click("cmdReset");
        Poll(2);
        Click("CommandTestFBM");
        DoubleClick("lblCom");
        Collect();
        port.state().fault = true;
        Poll();
        Collect();
        Tick("Check_Stop", true);
        Poll();
        Collect();
    }

    void SeeFailures() {
        sim::ConsoleContext console{port.unit(), port.faults()};
        sim::RunConsoleLine(console, "silent on");
        Click("cmdReset");
        Click("cmdRefresh");
        Click("cmdReset");
        Collect();
    }

    std::set<std::string> captions_;
    std::string texts_;
};

TEST_F(Manual, WhatIsBoldIsShown) {
    Travel();
    // How the manual uses bold letters, and a device that this line does not have.
    const std::set<std::string> others{"bold", "Fout bij openen COM poort"};
    const std::set<std::string> words = BoldInManual();
    EXPECT_GT(words.size(), 100U);
    for (const std::string& word : words) {
        EXPECT_TRUE(others.count(word) == 1 || WasShown(word)) << word;
    }
}

TEST_F(Manual, EveryCaptionOfAButtonOrBoxIsInIt) {
    Travel();
    const std::set<std::string> words = BoldInManual();
    // Members of a series, such as F13, #4 and 16, and one of their groups.
    const QRegularExpression member(QStringLiteral("^(F|#)?[0-9]+$|^Set F"));
    int found = 0;
    for (const QWidget* widget : QApplication::allWidgets()) {
        QString caption;
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            caption = button->text();
        } else if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
            caption = box->title();
        }
        if (!caption.isEmpty() && !member.match(caption).hasMatch()) {
            EXPECT_EQ(words.count(Trim(caption)), 1U) << caption.toStdString();
            ++found;
        }
    }
    EXPECT_GT(found, 80);
}

}  // namespace

}  // namespace zelvar::testing
