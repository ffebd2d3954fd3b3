// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QWindow>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "app/status_button_fixture.h"

namespace zelvar::testing {
namespace {

/// A unit that has not reported its protocol version yet.
class VersionWait : public StatusButton {
  protected:
    VersionWait() {
        layout.instead[{1, 2}] = {};
        port.replyDelay = 0.5;
        // Should nothing end the wait, the test does.
        port.responder = [this](const SentFrame& frame) {
            if (onPoll) {
                onPoll();
            }
            return ++exchanges > 50 ? WireFrame({1, 2, 0x19, 0x0A}) : layout(frame);
        };
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }

    static void Post(QWidget& target, QEvent::Type type) {
        const QPointF place = target.rect().center();
        QCoreApplication::postEvent(
            &target,
            new QMouseEvent(type, place, target.mapToGlobal(place), Qt::LeftButton,
                            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton,
                            Qt::NoModifier));
    }
    void PostClick(const char* name) {
        Post(Find(name), QEvent::MouseButtonPress);
        Post(Find(name), QEvent::MouseButtonRelease);
    }
    static void PostKey(QWidget& target, Qt::Key key) {
        QCoreApplication::postEvent(&target, new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier));
        QCoreApplication::postEvent(&target,
                                    new QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier));
    }
    bool CancelShown() { return Find("cmdCancel").isVisible(); }

    std::function<void()> onPoll;
    int exchanges = 0;
};

TEST_F(VersionWait, CancelAppearsAfterTwoSecondsAndGoesWithTheRequest) {
    std::vector<bool> shown;
    onPoll = [&] { shown.push_back(CancelShown()); };
    EXPECT_FALSE(CancelShown());
    Click("cmdStatus");
    ASSERT_GT(shown.size(), 8U);
    // Each exchange takes half a second.
    EXPECT_EQ(std::vector<bool>(shown.begin(), shown.begin() + 8),
              (std::vector<bool>{false, false, false, false, false, true, true, true}));
    EXPECT_FALSE(CancelShown());
    EXPECT_TRUE(IsInView("dlgZelvarStatus44"));
}

TEST_F(VersionWait, CancelGoesAsSoonAsTheVersionHasCome) {
    bool shownAmongTheModules = false;
    port.responder = [&](const SentFrame& frame) {
        if (!frame.values.empty() && frame.values.size() == 3) {
            shownAmongTheModules = shownAmongTheModules || CancelShown();
        }
        return ++exchanges > 10 && frame.values.empty() ? WireFrame({1, 2, 0x19, 0x0A})
                                                        : layout(frame);
    };
    Click("cmdStatus");
    EXPECT_TRUE(IsInView("dlgZelvarStatus44"));
    EXPECT_FALSE(shownAmongTheModules) << "a button that does nothing";
}

TEST_F(VersionWait, PressingCancelEndsItWithoutAViewOrABox) {
    onPoll = [&] {
        if (CancelShown()) {
            PostClick("cmdCancel");
            onPoll = nullptr;
        }
    };
    Click("cmdStatus");
    EXPECT_LT(exchanges, 10);
    EXPECT_FALSE(IsInView("dlgZelvarStatus44"));
    EXPECT_TRUE(messageBox.shown.empty());
    EXPECT_FALSE(CancelShown());
    EXPECT_FALSE(Find("prgBar").isVisible());
    // The next request is not cancelled by it.
    layout.instead.clear();
    Click("cmdStatus");
    EXPECT_TRUE(IsInView("dlgZelvarStatus44"));
}

class CancelKeys : public VersionWait, public ::testing::WithParamInterface<Qt::Key> {};

TEST_P(CancelKeys, CancelTheWait) {
    onPoll = [&] {
        if (CancelShown()) {
            EXPECT_EQ(QApplication::focusWidget(), &Find("cmdCancel"));
            PostKey(*QApplication::focusWidget(), GetParam());
            onPoll = nullptr;
        }
    };
    Find("cmdReset").setFocus();
    Click("cmdStatus");
    EXPECT_LT(exchanges, 10);
    EXPECT_FALSE(IsInView("dlgZelvarStatus44"));
}

INSTANTIATE_TEST_SUITE_P(Keys, CancelKeys,
                         ::testing::Values(Qt::Key_Escape, Qt::Key_Return, Qt::Key_Enter,
                                           Qt::Key_Space),
                         [](const auto& row) {
                             return QVariant::fromValue(row.param).toString().mid(4).toStdString();
                         });

TEST_F(VersionWait, TheKeyboardReturnsToWhereItWas) {
    bool offered = false;
    onPoll = [&] { offered = offered || Find("cmdCancel").hasFocus(); };
    Click("cmdStatus");
    EXPECT_TRUE(offered);
    EXPECT_EQ(window->focusWidget(), &Find("cmdStatus"));
}

TEST_F(VersionWait, NothingElseReactsWhileItLasts) {
    int resets = 0;
    QObject::connect(&Find<QPushButton>("cmdReset"), &QPushButton::clicked, window.get(),
                     [&] { ++resets; });
    const bool stopBefore = Find<QAbstractButton>("Check_Stop").isChecked();
    int posted = 0;
    onPoll = [&] {
        if (CancelShown() && posted == 0) {
            ++posted;
            PostClick("cmdReset");
            PostClick("Check_Stop");
            PostClick("cmdStatus");
            PostClick("cmdRefresh");
            PostKey(Find("cmdReset"), Qt::Key_Space);
            PostKey(*Find("cmdCancel").window(), Qt::Key_Escape);
            PostKey(Find("cmdCancel"), Qt::Key_Tab);
            QCoreApplication::postEvent(window->windowHandle(), new QCloseEvent);
        }
    };
    Click("cmdStatus");
    QCoreApplication::processEvents();
    EXPECT_EQ(posted, 1);
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(Find<QAbstractButton>("Check_Stop").isChecked(), stopBefore);
    EXPECT_TRUE(port.IsOpen());
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(IsInView("dlgZelvarStatus44")) << "the wait was cancelled by something else";
}

TEST_F(VersionWait, BeforeCancelIsOfferedNoEventIsLetIn) {
    int resets = 0;
    QObject::connect(&Find<QPushButton>("cmdReset"), &QPushButton::clicked, window.get(),
                     [&] { ++resets; });
    int resetsWhileWaiting = -1;
    onPoll = [&] {
        if (exchanges == 0) {
            PostClick("cmdReset");
        } else if (exchanges == 3) {
            resetsWhileWaiting = resets;
        }
    };
    Click("cmdStatus");
    EXPECT_EQ(resetsWhileWaiting, 0);
}

}  // namespace
}  // namespace zelvar::testing
