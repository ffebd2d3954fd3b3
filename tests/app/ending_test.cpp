// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QMessageBox>

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/qt_message_box.h"
#include "support/status_responder.h"
#include "support/window_fixture.h"

namespace zelvar::testing {
namespace {

/// The program with real message boxes, so with real nested event loops, in a real event loop.
class Ending : public WindowHands {
  protected:
    Ending() {
        port.responder = std::ref(unit);
        ShowWindowOn(port, boxes);
        boxes.SetParent(window.get());
        Choose("cboPort", "1");
    }
    ~Ending() override { window.reset(); }

    /// Brings a window to the front, as the user does before a box appears over it.
    void Activate(const char* name) {
        QWidget* front = FindWindow(name);
        ASSERT_NE(front, nullptr) << name;
        front->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(front)) << name;
    }

    /// Runs a handler in the program's event loop and does something as soon as its box is open.
    void RunUntilBox(const std::function<void()>& handler,
                     const std::function<void(QWidget& box)>& act) {
        QTimer look;
        QObject::connect(&look, &QTimer::timeout, &look, [&] {
            if (QWidget* box = QApplication::activeModalWidget()) {
                look.stop();
                parentOfBox = box->parentWidget()->objectName().toStdString();
                sentBeforeEnd = port.sent.size();
                act(*box);
            }
        });
        look.start(1);
        QTimer::singleShot(0, window.get(), [&] {
            handler();
            handlerEnded = true;
            QCoreApplication::quit();
        });
        QApplication::exec();
    }

    void ExpectNothingIsLeft() {
        EXPECT_TRUE(handlerEnded);
        EXPECT_EQ(port.sent.size(), sentBeforeEnd) << "the handler went on sending";
        for (const QWidget* widget : QApplication::topLevelWidgets()) {
            EXPECT_FALSE(widget->isVisible()) << widget->objectName().toStdString();
        }
    }

    StatusResponder unit = MixedLayout();
    ScriptedPort port{clock};
    QtMessageBox boxes;
    std::string parentOfBox;
    std::size_t sentBeforeEnd = 0;
    bool handlerEnded = false;
};

class EndingOverWindow : public Ending, public ::testing::WithParamInterface<const char*> {
  protected:
    void OpenWindow() {
        const std::string name = GetParam();
        if (name == "dlgZelvarStatus" || name == "dlgZelvarStatus44") {
            unit.protocolVersion = name == "dlgZelvarStatus" ? 3000 : 3112;
            Click("cmdStatus");
        } else if (name == "dlgMsgLog") {
            QTest::mouseDClick(&Find("lblCom"), Qt::LeftButton);
        } else if (name == "dlgAlarmLog") {
            port.replies = {WireFrame({0x33, 5})};
            Click("cmdReset");
        } else if (name == "dlgZelvarFeedback") {
            Click("CommandTestFBM");
        }
        Activate(GetParam());
        port.responder = [](const SentFrame&) { return Bytes{}; };
    }
};

TEST_P(EndingOverWindow, ByQuitEndsTheHandlerToo) {
    OpenWindow();
    RunUntilBox([this] { Click("cmdReset"); }, [](QWidget&) { QCoreApplication::quit(); });
    EXPECT_EQ(parentOfBox, GetParam());
    ExpectNothingIsLeft();
}

TEST_P(EndingOverWindow, ByClosingTheMainWindowEndsTheHandlerToo) {
    OpenWindow();
    RunUntilBox([this] { Click("cmdReset"); },
                [this](QWidget& box) {
                    const QPointer<QWidget> still(&box);
                    window->close();
                    // A box over the main window stays until it is answered.
                    if (still != nullptr) {
                        still->close();
                    }
                });
    EXPECT_EQ(parentOfBox, GetParam());
    ExpectNothingIsLeft();
}

INSTANTIATE_TEST_SUITE_P(Windows, EndingOverWindow,
                         ::testing::Values("frmZelvarConfig", "dlgMsgLog", "dlgAlarmLog",
                                           "dlgZelvarStatus", "dlgZelvarStatus44",
                                           "dlgZelvarFeedback"),
                         [](const auto& row) { return std::string(row.param); });

TEST_F(Ending, InTheMiddleOfAStatusRequestShowsNoViewAndAsksNoFurtherModule) {
    unit.silent = {{1, 11, 37}};
    RunUntilBox([this] { Click("cmdStatus"); }, [](QWidget&) { QCoreApplication::quit(); });
    ExpectNothingIsLeft();
}

TEST_F(Ending, AtTheEndOfAStatusRequestShowsNoView) {
    // The transaction that closes the request is the empty one.
    unit.silent = {{}};
    RunUntilBox([this] { Click("cmdStatus"); }, [](QWidget&) { QCoreApplication::quit(); });
    ExpectNothingIsLeft();
}

TEST_F(Ending, OverAQuestionCountsAsNo) {
    Click("cmdStatus");
    Activate("dlgZelvarStatus44");
    RunUntilBox([this] { Click("cmdErase"); }, [](QWidget&) { QCoreApplication::quit(); });
    ExpectNothingIsLeft();
}

TEST_F(Ending, WhileCancelIsOfferedEndsTheWait) {
    unit.instead[{1, 2}] = {};
    port.replyDelay = 0.5;
    int exchanges = 0;
    port.responder = [&](const SentFrame& frame) {
        if (Find("cmdCancel").isVisible() && exchanges == 0) {
            QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
        }
        // Should nothing end the wait, the test does.
        exchanges += Find("cmdCancel").isVisible() ? 1 : 0;
        return exchanges > 20 ? WireFrame({1, 2, 0x19, 0x0A}) : unit(frame);
    };
    QTimer::singleShot(0, window.get(), [this] {
        Click("cmdStatus");
        handlerEnded = true;
    });
    QApplication::exec();
    EXPECT_LT(exchanges, 3);
    sentBeforeEnd = port.sent.size();
    ExpectNothingIsLeft();
}

}  // namespace
}  // namespace zelvar::testing
