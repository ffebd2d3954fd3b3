// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "actions.h"

#include <QApplication>
#include <QPointer>
#include <QTabBar>
#include <QTabWidget>
#include <QWindow>

#include <utility>

#include "box_record.h"
#include "lookup.h"

namespace zelvar::e2e {

namespace {

using Action = std::function<void()>;

/// A control that is in the user's reach.
QWidget& Reach(const QString& name) {
    QWidget& control = FindControl(name);
    const QString obstacle = Input::Obstacle(control);
    if (!obstacle.isEmpty()) {
        throw ProbeError(obstacle);
    }
    return control;
}

Qt::MouseButton ButtonOf(const QStringList& words) {
    const QString name = words.value(2, QStringLiteral("left"));
    return name == QLatin1String("right")    ? Qt::RightButton
           : name == QLatin1String("middle") ? Qt::MiddleButton
                                             : Qt::LeftButton;
}

Qt::KeyboardModifiers ModifiersOf(const QStringList& words) {
    Qt::KeyboardModifiers modifiers;
    for (const QString& name : words.value(3).split(u'+')) {
        modifiers.setFlag(Qt::ShiftModifier,
                          modifiers.testFlag(Qt::ShiftModifier) || name == QLatin1String("shift"));
        modifiers.setFlag(Qt::ControlModifier,
                          modifiers.testFlag(Qt::ControlModifier) || name == QLatin1String("ctrl"));
        modifiers.setFlag(Qt::AltModifier,
                          modifiers.testFlag(Qt::AltModifier) || name == QLatin1String("alt"));
    }
    return modifiers;
}

template <void (Input::*act)(QWidget&, Qt::MouseButton, Qt::KeyboardModifiers)>
Action WithMouse(Input& input, const QStringList& words) {
    QWidget& control = Reach(words[1]);
    return [&input, &control, button = ButtonOf(words), modifiers = ModifiersOf(words)] {
        (input.*act)(control, button, modifiers);
    };
}

Action DoubleClick(Input& input, const QStringList& words) {
    QWidget& control = Reach(words[1]);
    return [&input, &control] { input.DoubleClick(control); };
}

Action Type(Input& input, const QStringList& words) {
    QWidget& field = Reach(words[1]);
    return [&input, &field, text = words.value(2)] { input.Type(field, text); };
}

Action Key(Input& input, const QStringList& words) {
    QWidget& control = Reach(words[1]);
    return [&input, &control, keys = words.value(2)] { input.Key(control, keys); };
}

Action Choose(Input& input, const QStringList& words) {
    Reach(words[1]);
    auto& list = Find<QComboBox>(words[1]);
    const int row = list.findText(words.value(2), Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (row < 0) {
        throw ProbeError(words[1] + QStringLiteral(" has no entry '") + words.value(2) + u'\'');
    }
    return [&input, &list, row] { input.Choose(list, row); };
}

/// Brings every tab that a control lies on to the front, the outermost first, unless it is there.
Action Tab(Input& input, const QStringList& words) {
    std::vector<std::pair<QTabBar*, int>> tabs;
    for (QWidget* page = &FindControl(words[1]); page->parentWidget() != nullptr;
         page = page->parentWidget()) {
        QWidget* stack = page->parentWidget();
        auto* owner = qobject_cast<QTabWidget*>(stack->parentWidget());
        const int index = owner == nullptr ? -1 : owner->indexOf(page);
        if (index >= 0 && index != owner->currentIndex()) {
            tabs.insert(tabs.begin(), {owner->tabBar(), index});
        }
    }
    return [&input, tabs] {
        for (const auto& [bar, index] : tabs) {
            input.ClickAt(*bar, bar->tabRect(index).center());
        }
    };
}

Action AnswerBox(Input& input, const QStringList& words) {
    const QMessageBox* box = OpenBox();
    if (box == nullptr) {
        throw ProbeError(QStringLiteral("no message box is open"));
    }
    for (QAbstractButton* button : box->buttons()) {
        if (button->text().remove(u'&') == words[1]) {
            return [&input, button] { input.Click(*button, Qt::LeftButton, {}); };
        }
    }
    throw ProbeError(QStringLiteral("the message box has no button ") + words[1]);
}

/// Closes a window by its frame, as far as the window system lets the user.
Action Close(Input&, const QStringList& words) {
    QWidget* window = FindWindow(words[1]);
    if (window == nullptr || window->windowHandle() == nullptr) {
        throw ProbeError(words[1] + QStringLiteral(" is not open"));
    }
    // Qt drops the window system's request in this case, but not QWindow::close.
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal != nullptr && modal != window) {
        throw ProbeError(words[1] + QStringLiteral(" is blocked by a message box"));
    }
    return [target = QPointer<QWindow>(window->windowHandle())] {
        if (target != nullptr) {
            target->close();
        }
    };
}

Action Quit(Input&, const QStringList&) {
    return [] { QCoreApplication::quit(); };
}

struct ActionRow {
    const char* name;
    int leastArguments;
    Action (*prepare)(Input& input, const QStringList& words);
};

constexpr ActionRow kActions[] = {
    {"press", 1, &WithMouse<&Input::Press>},
    {"release", 1, &WithMouse<&Input::Release>},
    {"click", 1, &WithMouse<&Input::Click>},
    {"doubleclick", 1, &DoubleClick},
    {"type", 1, &Type},
    {"key", 2, &Key},
    {"choose", 2, &Choose},
    {"tab", 1, &Tab},
    {"answer", 1, &AnswerBox},
    {"close", 1, &Close},
    {"quit", 0, &Quit},
};

}  // namespace

std::optional<Action> PrepareAction(Input& input, const QStringList& words) {
    for (const ActionRow& row : kActions) {
        if (words[0] == QLatin1String(row.name)) {
            if (words.size() <= row.leastArguments) {
                throw ProbeError(QStringLiteral("too few arguments for ") + words[0]);
            }
            return row.prepare(input, words);
        }
    }
    return std::nullopt;
}

}  // namespace zelvar::e2e
