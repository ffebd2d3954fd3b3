// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "box_record.h"

#include <QAbstractButton>
#include <QApplication>

#include <array>

namespace zelvar::e2e {

namespace {

/// In the order of QMessageBox::Icon.
constexpr std::array<const char*, 5> kIcons{"none", "information", "warning", "critical",
                                            "question"};

}  // namespace

QMessageBox* OpenBox() {
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

QStringList Describe(const QMessageBox& box) {
    QStringList captions;
    for (const QAbstractButton* button : box.buttons()) {
        captions << button->text().remove(u'&');
    }
    captions.sort();
    return {box.windowTitle(), QString::fromLatin1(kIcons[static_cast<std::size_t>(box.icon())]),
            box.text(), captions.join(u',')};
}

}  // namespace zelvar::e2e
