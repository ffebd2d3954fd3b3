// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "queries.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QComboBox>
#include <QFontInfo>
#include <QImage>
#include <QMetaEnum>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QStyle>

#include "box_record.h"
#include "lookup.h"
#include "picture.h"

namespace zelvar::e2e {

namespace {

QString YesNo(bool yes) {
    return yes ? QStringLiteral("yes") : QStringLiteral("no");
}

/// What the control shows, under whichever name its kind keeps it.
QStringList Text(const QStringList& words) {
    const QWidget& control = FindControl(words[1]);
    for (const char* property : {"text", "plainText", "currentText", "title"}) {
        const QVariant value = control.property(property);
        if (value.isValid()) {
            return {value.toString()};
        }
    }
    throw ProbeError(words[1] + QStringLiteral(" has no text"));
}

QStringList Checked(const QStringList& words) {
    return {YesNo(Find<QAbstractButton>(words[1]).isChecked())};
}

QStringList Visible(const QStringList& words) {
    return {YesNo(FindControl(words[1]).isVisible())};
}

/// Whether the control is hidden itself, however far its tab is from the front.
QStringList Hidden(const QStringList& words) {
    return {YesNo(FindControl(words[1]).isHidden())};
}

QStringList Enabled(const QStringList& words) {
    return {YesNo(FindControl(words[1]).isEnabled())};
}

QStringList Focused(const QStringList& words) {
    return {YesNo(FindControl(words[1]).hasFocus())};
}

QStringList Items(const QStringList& words) {
    const auto& list = Find<QComboBox>(words[1]);
    QStringList items;
    for (int row = 0; row < list.count(); ++row) {
        items << list.itemText(row);
    }
    return {items.join(u'|')};
}

QStringList Value(const QStringList& words) {
    return {QString::number(Find<QAbstractSlider>(words[1]).value())};
}

QStringList Colour(const QStringList& words) {
    const QMetaEnum roles = QMetaEnum::fromType<QPalette::ColorRole>();
    bool known = false;
    const int role = roles.keyToValue(words[2].toLatin1().constData(), &known);
    if (!known) {
        throw ProbeError(QStringLiteral("no colour role ") + words[2]);
    }
    return {FindControl(words[1]).palette().color(static_cast<QPalette::ColorRole>(role)).name()};
}

QStringList Geometry(const QStringList& words) {
    const QRect place = FindControl(words[1]).geometry();
    return {QStringLiteral("%1 %2 %3 %4")
                .arg(place.x())
                .arg(place.y())
                .arg(place.width())
                .arg(place.height())};
}

QStringList ToolTip(const QStringList& words) {
    return {FindControl(words[1]).toolTip()};
}

QStringList ItemToolTip(const QStringList& words) {
    return {Find<QComboBox>(words[1]).itemData(words[2].toInt(), Qt::ToolTipRole).toString()};
}

QStringList Window(const QStringList& words) {
    const QWidget* window = FindWindow(words[1]);
    return {window == nullptr     ? QStringLiteral("absent")
            : window->isVisible() ? QStringLiteral("visible")
                                  : QStringLiteral("hidden")};
}

QStringList Title(const QStringList& words) {
    const QWidget* window = FindWindow(words[1]);
    return {window == nullptr ? QString() : window->windowTitle()};
}

QStringList Box(const QStringList&) {
    const QMessageBox* box = OpenBox();
    return box == nullptr ? QStringList() : Describe(*box);
}

QStringList Grab(const QStringList& words) {
    QWidget* window = FindWindow(words[1]);
    QWidget& target = window != nullptr ? *window : FindControl(words[1]);
    if (!target.grab().save(words[2])) {
        throw ProbeError(QStringLiteral("cannot write ") + words[2]);
    }
    return {};
}

QStringList Picture(const QStringList& words) {
    SavePicture(words[1], words[2].split(u'+'));
    return {};
}

/// A checksum over painted letters, which other versions of the system's libraries paint
/// differently.
quint16 LettersPainted() {
    constexpr QSize kSize(300, 30);
    QImage sample(kSize, QImage::Format_RGB32);
    sample.fill(Qt::white);
    QPainter painter(&sample);
    painter.setFont(QApplication::font());
    painter.drawText(sample.rect(), Qt::AlignCenter, QStringLiteral("Zelvar gjpqy 0123456789 @&%"));
    painter.end();
    return qChecksum(QByteArrayView(sample.constBits(), sample.sizeInBytes()));
}

/// What the looks of a picture depend on beside the program.
QStringList Looks(const QStringList&) {
    const QFontInfo font{QApplication::font()};
    return {QStringLiteral("Qt %1, %2 style, %3 %4 pt, letters %5")
                .arg(QString::fromLatin1(qVersion()), QApplication::style()->name(), font.family())
                .arg(font.pointSize())
                .arg(LettersPainted(), 4, 16, QLatin1Char('0'))};
}

struct Query {
    const char* name;
    int arguments;
    QStringList (*run)(const QStringList& words);
};

constexpr Query kQueries[] = {
    {"text", 1, &Text},         {"checked", 1, &Checked}, {"visible", 1, &Visible},
    {"hidden", 1, &Hidden},     {"enabled", 1, &Enabled}, {"focused", 1, &Focused},
    {"items", 1, &Items},       {"value", 1, &Value},     {"colour", 2, &Colour},
    {"geometry", 1, &Geometry}, {"tooltip", 1, &ToolTip}, {"itemtooltip", 2, &ItemToolTip},
    {"window", 1, &Window},     {"title", 1, &Title},     {"box", 0, &Box},
    {"grab", 2, &Grab},         {"picture", 2, &Picture}, {"looks", 0, &Looks},
};

}  // namespace

std::optional<QStringList> RunQuery(const QStringList& words) {
    for (const Query& query : kQueries) {
        if (words[0] == QLatin1String(query.name)) {
            if (words.size() != query.arguments + 1) {
                throw ProbeError(QStringLiteral("wrong number of arguments for ") + words[0]);
            }
            return query.run(words);
        }
    }
    return std::nullopt;
}

}  // namespace zelvar::e2e
