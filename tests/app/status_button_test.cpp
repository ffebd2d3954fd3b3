// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/status_responder.h"
#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

class StatusButton : public WindowFixture {
  protected:
    StatusButton() {
        OpenPort();
        port.responder = std::ref(layout);
    }

    static bool IsShown(const char* dialog) {
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

struct PressRow {
    const char* name;
    int protocolVersion;
    Qt::MouseButton button;
    Qt::KeyboardModifiers modifiers;
    bool classic;
};

class StatusPresses : public StatusButton, public ::testing::WithParamInterface<PressRow> {};

TEST_P(StatusPresses, OpenTheViewThatFits) {
    layout.protocolVersion = GetParam().protocolVersion;
    QTest::mousePress(&Find("cmdStatus"), GetParam().button, GetParam().modifiers);
    EXPECT_EQ(IsShown("dlgZelvarStatus"), GetParam().classic);
    EXPECT_EQ(IsShown("dlgZelvarStatus44"), !GetParam().classic);
}

INSTANTIATE_TEST_SUITE_P(
    Presses, StatusPresses,
    ::testing::Values(
        PressRow{"Plain", 3200, Qt::LeftButton, Qt::NoModifier, false},
        PressRow{"ShiftLeft", 3200, Qt::LeftButton, Qt::ShiftModifier, true},
        PressRow{"Right", 3200, Qt::RightButton, Qt::NoModifier, false},
        PressRow{"ShiftRight", 3200, Qt::RightButton, Qt::ShiftModifier, false},
        PressRow{"Middle", 3200, Qt::MiddleButton, Qt::NoModifier, false},
        PressRow{"CtrlShiftLeft", 3200, Qt::LeftButton, Qt::ShiftModifier | Qt::ControlModifier,
                 false},
        PressRow{"AltShiftLeft", 3200, Qt::LeftButton, Qt::ShiftModifier | Qt::AltModifier, false},
        PressRow{"PlainOnALastOldSystem", 3100, Qt::LeftButton, Qt::NoModifier, true},
        PressRow{"PlainOnAFirstNewSystem", 3101, Qt::LeftButton, Qt::NoModifier, false},
        PressRow{"RightOnAnOldSystem", 3100, Qt::RightButton, Qt::NoModifier, true}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(StatusButton, SpaceAndEnterCountAsAPlainPress) {
    QTest::keyClick(&Find("cmdStatus"), Qt::Key_Space);
    EXPECT_TRUE(IsShown("dlgZelvarStatus44"));
    const std::size_t once = port.sent.size();
    QTest::keyClick(&Find("cmdStatus"), Qt::Key_Return);
    EXPECT_EQ(port.sent.size(), 2 * once);
}

TEST_F(StatusButton, FillsBothListsAndSelectsTheFirstModules) {
    Click("cmdStatus");
    EXPECT_EQ(Entries("cboVD"), (std::vector<std::string>{
                                    "All_VDxx=-1", "All_VD60=-4", "All_VD-F=-2", "All_QLRX=-3",
                                    " 0=0", " 5.0=5", " 19.0=19", " 19.1=51", " 20=20", " 31=31"}));
    EXPECT_EQ(Find<QComboBox>("cboVD").currentIndex(), 4);
    EXPECT_EQ(Entries("cboJS"), (std::vector<std::string>{"All=-1", " 0=0", " 9=9"}));
    EXPECT_EQ(Find<QComboBox>("cboJS").currentIndex(), 1);
    // A single point-motor module can be asked for its configuration.
    EXPECT_FALSE(Find("cmdGetJSConfig").isHidden());
    EXPECT_TRUE(Find("cmdHideJSConfig").isHidden());
    EXPECT_TRUE(Find("textJSReport").isHidden());
}

TEST_F(StatusButton, ChoosingAllPointMotorModulesHidesGetConfiguration) {
    Click("cmdStatus");
    Choose("cboJS", QStringLiteral("All"));
    EXPECT_TRUE(Find("cmdGetJSConfig").isHidden());
    Choose("cboJS", QStringLiteral(" 9"));
    EXPECT_FALSE(Find("cmdGetJSConfig").isHidden());
}

TEST_F(StatusButton, WithoutModulesBothListsStayEmptyAndNothingIsSelected) {
    Click("cmdStatus");
    layout.modules.clear();
    Click("cmdStatus");
    for (const char* list : {"cboVD", "cboJS"}) {
        EXPECT_TRUE(Entries(list).empty()) << list;
        EXPECT_EQ(Find<QComboBox>(list).currentIndex(), -1) << list;
    }
}

TEST_F(StatusButton, NamesTheCentralUnitOnItsTab) {
    EXPECT_TRUE(Find("lblKBtype").isHidden());
    layout.unit = {2, 1020};
    Click("cmdStatus");
    EXPECT_EQ(TextOf("lblKBtype"), QStringLiteral("KB-E"));
    EXPECT_FALSE(Find("lblKBtype").isHidden());
    layout.unit.reset();
    Click("cmdStatus");
    EXPECT_EQ(TextOf("lblKBtype"), QStringLiteral("?"));
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtSysVer"), "?");
}

TEST_F(StatusButton, AFirstRequestWithoutReplyShowsNoView) {
    layout.silent = {{1, 2}};
    Click("cmdStatus");
    EXPECT_EQ(FindWindow("dlgZelvarStatus"), nullptr);
    EXPECT_EQ(FindWindow("dlgZelvarStatus44"), nullptr);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_TRUE(Find("lblKBtype").isHidden());
}

TEST_F(StatusButton, ASecondPressRefreshesTheOpenView) {
    Click("cmdStatus");
    QWidget* view = FindWindow("dlgZelvarStatus44");
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(0)"), "OK");
    layout.modules[32].status = kHere + kIdle;
    Click("cmdStatus");
    EXPECT_EQ(FindWindow("dlgZelvarStatus44"), view);
    EXPECT_EQ(Field("dlgZelvarStatus44", "txtVDstatus(0)"), "Idle");
}

TEST_F(StatusButton, AClosedViewStaysLoadedAndComesBack) {
    Click("cmdStatus");
    QWidget* view = FindWindow("dlgZelvarStatus44");
    view->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(FindWindow("dlgZelvarStatus44"), view);
    Click("cmdStatus");
    EXPECT_TRUE(view->isVisible());
}

TEST_F(StatusButton, TheViewsDoNotBlockTheMainWindow) {
    Click("cmdStatus");
    EXPECT_FALSE(FindWindow("dlgZelvarStatus44")->isModal());
    layout.protocolVersion = 3000;
    Click("cmdStatus");
    EXPECT_FALSE(FindWindow("dlgZelvarStatus")->isModal());
}

TEST_F(StatusButton, ProgressIsShownWhileItWorksAndGoneAfterwards) {
    bool shown = true;
    std::vector<int> values;
    port.responder = [&](const SentFrame& frame) {
        shown = shown && Find("prgBar").isVisible() && Find("lblBarProgress").isVisible();
        values.push_back(Find("prgBar").property("value").toInt());
        return layout(frame);
    };
    Click("cmdStatus");
    EXPECT_TRUE(shown);
    EXPECT_FALSE(Find("prgBar").isVisible());
    EXPECT_FALSE(Find("lblBarProgress").isVisible());
    EXPECT_EQ(values.back(), 80);
}

/// A unit that has not told its protocol version yet.
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
    EXPECT_TRUE(IsShown("dlgZelvarStatus44"));
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
    EXPECT_TRUE(IsShown("dlgZelvarStatus44"));
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
    EXPECT_FALSE(IsShown("dlgZelvarStatus44"));
    EXPECT_TRUE(messageBox.shown.empty());
    EXPECT_FALSE(CancelShown());
    EXPECT_FALSE(Find("prgBar").isVisible());
    // The next request is not cancelled by it.
    layout.instead.clear();
    Click("cmdStatus");
    EXPECT_TRUE(IsShown("dlgZelvarStatus44"));
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
    EXPECT_FALSE(IsShown("dlgZelvarStatus44"));
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
            QCoreApplication::postEvent(window.get(), new QCloseEvent);
        }
    };
    Click("cmdStatus");
    QCoreApplication::processEvents();
    EXPECT_EQ(posted, 1);
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(Find<QAbstractButton>("Check_Stop").isChecked(), stopBefore);
    EXPECT_TRUE(port.IsOpen());
    EXPECT_TRUE(window->isVisible());
    EXPECT_TRUE(IsShown("dlgZelvarStatus44")) << "the wait was cancelled by something else";
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
