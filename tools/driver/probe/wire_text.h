// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

// What the probe and the tests write to each other: lines with a JSON array of words each.
namespace zelvar::e2e {

inline QByteArray ToLine(const QStringList& words) {
    return QJsonDocument(QJsonArray::fromStringList(words)).toJson(QJsonDocument::Compact) + '\n';
}

inline QStringList FromLine(const QByteArray& line) {
    return QJsonDocument::fromJson(line).toVariant().toStringList();
}

}  // namespace zelvar::e2e
