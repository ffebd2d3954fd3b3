// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <QPainter>

namespace zelvar::tour {

namespace {

/// How much of a picture is left when it is faded, of 1.
constexpr double kFaded = 0.3;

}  // namespace

QImage Differences(const QImage& expected, const QImage& actual) {
    QImage marked(expected.size().expandedTo(actual.size()), QImage::Format_RGB32);
    marked.fill(Qt::white);
    QPainter painter(&marked);
    painter.setOpacity(kFaded);
    painter.drawImage(0, 0, expected);
    painter.end();
    for (int y = 0; y < marked.height(); ++y) {
        for (int x = 0; x < marked.width(); ++x) {
            const bool inBoth = expected.valid(x, y) && actual.valid(x, y);
            if (!inBoth || expected.pixel(x, y) != actual.pixel(x, y)) {
                marked.setPixelColor(x, y, Qt::red);
            }
        }
    }
    return marked;
}

QStringList ComparePictures(const QDir& expected, const QDir& actual, const QString& palette) {
    QStringList complaints;
    const QString ending = u'-' + palette + QStringLiteral(".png");
    for (const QString& name : expected.entryList({u'*' + ending}, QDir::Files)) {
        const QImage before(expected.filePath(name));
        const QImage now(actual.filePath(name));
        if (now.isNull()) {
            complaints << actual.filePath(name) + QStringLiteral(": no such picture");
        } else if (before != now) {
            const QString shown = actual.filePath(
                QString(name).replace(ending, u'-' + palette + QStringLiteral("-differences.png")));
            Differences(before, now).save(shown);
            complaints << actual.filePath(name) + QStringLiteral(" differs from ") +
                              expected.filePath(name) + QStringLiteral(": look at ") + shown;
        }
    }
    return complaints;
}

}  // namespace zelvar::tour
