// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "picture.h"

#include <QApplication>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <vector>

#include "box_record.h"
#include "lookup.h"

namespace zelvar::e2e {

namespace {

// In pixels at 96 dpi.
constexpr int kMargin = 12;  // around the windows and between them
constexpr int kEdge = 1;
constexpr int kTitlePadding = 5;  // above and below a title

/// The quality of a PNG is how fast it is packed; it loses nothing.
constexpr int kSmallest = 0;

/// What lies around the windows, in per cent of their ground's lightness.
constexpr int kDeskDarker = 115;
constexpr int kBarDarker = 106;

/// One window with its frame: where it stands on the desk and what it shows.
struct Placed {
    QRect frame;
    QString title;
    QPixmap content;
};

QWidget& InView(const QString& name) {
    QWidget* window = name == QLatin1String("box") ? OpenBox() : FindWindow(name);
    if (window == nullptr || !window->isVisible()) {
        throw ProbeError(name + QStringLiteral(" is not in view"));
    }
    return *window;
}

int BarHeight() {
    return QFontMetrics(QApplication::font()).height() + 2 * kTitlePadding;
}

QSize FrameSize(const QWidget& window) {
    return window.size() + QSize(2 * kEdge, 2 * kEdge + BarHeight());
}

/// What lies below the mouse is drawn in another shade, and a message box takes the mouse away
/// earlier or later.
void TakeMouseAway() {
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->underMouse()) {
            widget->setAttribute(Qt::WA_UnderMouse, false);
            widget->update();
        }
    }
}

std::vector<Placed> Place(const QStringList& names) {
    std::vector<Placed> placed;
    int x = kMargin;
    for (const QString& name : names) {
        QWidget& window = InView(name);
        QRect frame(QPoint(x, kMargin), FrameSize(window));
        if (&window == OpenBox() && !placed.empty()) {
            frame.moveCenter(placed.back().frame.center());
            frame.moveLeft(std::max(frame.left(), kMargin));
            frame.moveTop(std::max(frame.top(), kMargin));
        } else {
            x = frame.right() + 1 + kMargin;
        }
        placed.push_back({frame, window.windowTitle(), window.grab()});
    }
    return placed;
}

void Paint(QPainter& painter, const Placed& window) {
    const QPalette palette = QApplication::palette();
    const QRect bar(window.frame.left(), window.frame.top(), window.frame.width(),
                    BarHeight() + kEdge);
    painter.fillRect(window.frame, palette.color(QPalette::Window));
    painter.fillRect(bar, palette.color(QPalette::Window).darker(kBarDarker));
    painter.drawPixmap(QPoint(window.frame.left() + kEdge, bar.bottom() + 1), window.content);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(bar, Qt::AlignCenter, window.title);
    painter.setPen(palette.color(QPalette::Mid));
    painter.drawRect(window.frame.adjusted(0, 0, -1, -1));
}

}  // namespace

void SavePicture(const QString& file, const QStringList& windows) {
    TakeMouseAway();
    const std::vector<Placed> placed = Place(windows);
    QRect desk;
    for (const Placed& window : placed) {
        desk |= window.frame;
    }
    const QSize size(desk.right() + 1 + kMargin, desk.bottom() + 1 + kMargin);
    const qreal ratio = placed.front().content.devicePixelRatio();
    QImage picture(size * ratio, QImage::Format_RGB32);
    picture.setDevicePixelRatio(ratio);
    picture.fill(QApplication::palette().color(QPalette::Window).darker(kDeskDarker));
    QPainter painter(&picture);
    painter.setFont(QApplication::font());
    for (const Placed& window : placed) {
        Paint(painter, window);
    }
    painter.end();
    if (!picture.save(file, "PNG", kSmallest)) {
        throw ProbeError(QStringLiteral("cannot write ") + file);
    }
}

}  // namespace zelvar::e2e
