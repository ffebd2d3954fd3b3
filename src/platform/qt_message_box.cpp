// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_message_box.h"

#include <QApplication>
#include <QMessageBox>

#include "platform/nested_loop.h"

namespace zelvar {

namespace {

QMessageBox::Icon IconOf(BoxIcon icon) {
    switch (icon) {
        case BoxIcon::Exclamation:
            return QMessageBox::Warning;
        case BoxIcon::Critical:
            return QMessageBox::Critical;
        case BoxIcon::Plain:
            break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(BoxButtons buttons) {
    switch (buttons) {
        case BoxButtons::OkCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case BoxButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case BoxButtons::Ok:
            break;
    }
    return QMessageBox::Ok;
}

BoxAnswer AnswerOf(int button, BoxButtons buttons) {
    switch (button) {
        case QMessageBox::Yes:
            return BoxAnswer::Yes;
        case QMessageBox::No:
            return BoxAnswer::No;
        case QMessageBox::Cancel:
            return BoxAnswer::Cancel;
        case QMessageBox::Ok:
            return BoxAnswer::Ok;
        default:
            break;
    }
    // Closed without a button.
    return buttons == BoxButtons::YesNo      ? BoxAnswer::No
           : buttons == BoxButtons::OkCancel ? BoxAnswer::Cancel
                                             : BoxAnswer::Ok;
}

}  // namespace

BoxAnswer QtMessageBox::Ask(const std::string& text, BoxIcon icon, BoxButtons buttons) {
    if (beforeShow_) {
        beforeShow_();
    }
    QWidget* active = QApplication::activeWindow();
    // When the program ends while the box is open, its parent window deletes it.
    const QPointer<QMessageBox> box = new QMessageBox(active != nullptr ? active : parent_.data());
    box->setWindowTitle(QString::fromLatin1(kApplicationTitle));
    box->setTextFormat(Qt::PlainText);
    box->setText(QString::fromStdString(text).remove(QLatin1Char('\r')));
    box->setIcon(IconOf(icon));
    box->setStandardButtons(ButtonsOf(buttons));
    box->setWindowModality(Qt::ApplicationModal);
    const NestedLoop nested;
    const int button = box->exec();
    delete box.data();
    return AnswerOf(button, buttons);
}

}  // namespace zelvar
