// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// The manual against what the windows show.
#include <QAbstractButton>
#include <QGroupBox>
#include <QTabBar>

#include <functional>
#include <set>
#include <string>

#include "docs/document.h"
#include "support/status_responder.h"
#include "support/window_fixture.h"

namespace zelvar::testing {

namespace {

std::string Trim(const std::string& text) {
    return QString::fromStdString(text).trimmed().toStdString();
}

/// What the manual says in bold, which may go over a line's end.
std::set<std::string> BoldInManual() {
    std::string prose;
    for (const DocumentLine& line : ProseOf(ReadDocument("docs/manual.md"))) {
        prose += Trim(line.text) + " ";
    }
    const std::vector<std::string> words = Between(prose, "**");
    return {words.begin(), words.end()};
}

/// The program with all its windows open.
class Manual : public WindowFixture {
  protected:
    Manual() {
        OpenPort();
        port.responder = std::ref(layout_);
        Click("cmdStatus");
        QTest::mouseClick(&Find("cmdStatus"), Qt::LeftButton, Qt::ShiftModifier);
        DoubleClick("lblCom");
        Click("CommandTestFBM");
    }

    std::set<std::string> Shown() {
        std::set<std::string> texts;
        const auto add = [&texts](const QString& text) {
            texts.insert(text.trimmed().remove(u'&').toStdString());
        };
        for (const QWidget* widget : QApplication::allWidgets()) {
            for (const char* property : {"text", "title", "windowTitle"}) {
                add(widget->property(property).toString());
            }
            if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
                for (int row = 0; row < list->count(); ++row) {
                    add(list->itemText(row));
                }
            }
            if (const auto* tabs = qobject_cast<const QTabBar*>(widget)) {
                for (int tab = 0; tab < tabs->count(); ++tab) {
                    add(tabs->tabText(tab));
                }
            }
        }
        return texts;
    }

  private:
    StatusResponder layout_ = MixedLayout();
};

TEST_F(Manual, WhatIsBoldIsShown) {
    const std::set<std::string> shown = Shown();
    const std::set<std::string> words = BoldInManual();
    EXPECT_GT(words.size(), 100U);
    for (const std::string& word : words) {
        // The manual says of itself how it uses bold letters.
        EXPECT_TRUE(word == "bold" || shown.count(word) == 1) << word;
    }
}

TEST_F(Manual, EveryCaptionOfAButtonOrBoxIsInIt) {
    const std::set<std::string> words = BoldInManual();
    int found = 0;
    for (const QWidget* widget : QApplication::allWidgets()) {
        QString caption;
        if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
            caption = button->text();
        } else if (const auto* box = qobject_cast<const QGroupBox*>(widget)) {
            caption = box->title();
        }
        if (!caption.isEmpty()) {
            EXPECT_EQ(words.count(Trim(caption.toStdString())), 1U) << caption.toStdString();
            ++found;
        }
    }
    EXPECT_GT(found, 100);
}

}  // namespace

}  // namespace zelvar::testing
