// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

#include <memory>

#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

/// The main window before anybody has seen it.
class LateTabs : public WindowHands {
  protected:
    LateTabs() {
        const auto path = [](int /*number*/) { return QStringLiteral("/dev/port"); };
        window = std::make_unique<MainWindow>(
            Platform{port, timer, clock, messageBox, gate, path, path});
    }
    ~LateTabs() override { window.reset(); }

    bool Has(const char* name) const {
        return window->findChild<QWidget*>(QString::fromLatin1(name)) != nullptr;
    }
    /// Of how many tabs a control is there.
    int Built() const {
        int built = 0;
        for (const char* name : {"cboVD", "cboJS", "chkKBperm", "lblTestSystemStatus"}) {
            built += Has(name) ? 1 : 0;
        }
        return built;
    }

    ScriptedPort port{clock};
};

TEST_F(LateTabs, AreBuiltOnceTheWindowIsPainted) {
    EXPECT_EQ(Built(), 0);
    EXPECT_EQ(window->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->count(), 4);
    window->show();
    EXPECT_TRUE(QTest::qWaitFor([this] { return Built() == 4; }));
    EXPECT_TRUE(window->findChild<QWidget*>(QStringLiteral("cboVD"))->isVisible());
}

TEST_F(LateTabs, AreBuiltWhenOneIsChosenBefore) {
    window->findChild<QTabWidget*>(QStringLiteral("SSTab1"))->setCurrentIndex(3);
    EXPECT_EQ(Built(), 4);
}

TEST_F(LateTabs, AreBuiltOnceOnly) {
    window->BuildTabs();
    window->BuildTabs();
    EXPECT_EQ(window->findChildren<QWidget*>(QStringLiteral("cboVD")).size(), 1);
}

}  // namespace
}  // namespace zelvar::testing
