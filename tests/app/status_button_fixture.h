// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/status_responder.h"
#include "support/window_fixture.h"

namespace zelvar::testing {

/// The main window with its port open to a mixed layout.
class StatusButton : public WindowFixture {
  protected:
    StatusButton() {
        OpenPort();
        port.responder = std::ref(layout);
    }

    static bool IsInView(const char* dialog) {
        QWidget* view = FindWindow(dialog);
        return view != nullptr && view->isVisible();
    }
    std::vector<std::string> Entries(const char* list) {
        auto& combo = Find<QComboBox>(list);
        std::vector<std::string> entries;
        for (int i = 0; i < combo.count(); ++i) {
            entries.push_back(combo.itemText(i).toStdString() + '=' +
                              std::to_string(combo.itemData(i).toInt()));
        }
        return entries;
    }
    static std::string Field(const char* dialog, const char* name) {
        return FindBelow<QLineEdit>(*FindWindow(dialog), name).text().toStdString();
    }

    StatusResponder layout = MixedLayout();
};

}  // namespace zelvar::testing
