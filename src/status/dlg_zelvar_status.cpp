// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "status/dlg_zelvar_status.h"

#include <QFontMetrics>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include <cstddef>

#include "controls/naming.h"

namespace zelvar {

namespace {

QFrame* NewPanel(QWidget* parent) {
    auto* frame = new QFrame(parent);
    frame->setFrameShape(QFrame::StyledPanel);
    return frame;
}

/// A display field that a small screen cannot squeeze until its text is cut.
QLineEdit* NewWideField(const QString& name, const QString& accessibleName, QWidget* parent) {
    QLineEdit* field = NewDisplayField(name, accessibleName, parent);
    // A line edit asks for so many of these, and what its frame and margins take.
    constexpr int kPreferredLetters = 17;
    const QFontMetrics metrics = field->fontMetrics();
    const int letter = metrics.horizontalAdvance(QLatin1Char('x'));
    field->setMinimumWidth(field->sizeHint().width() - kPreferredLetters * letter +
                           metrics.horizontalAdvance(field->text()));
    return field;
}

}  // namespace

DlgZelvarStatus::DlgZelvarStatus()
    : SecondaryWindow(QStringLiteral("dlgZelvarStatus"),
                      QStringLiteral("ZelvarConfig - Zelvar Status")) {
    auto* left = new QVBoxLayout;
    left->addWidget(BuildSystem());
    left->addWidget(BuildPointMotorModules());
    left->addStretch();
    auto* layout = new QHBoxLayout(this);
    layout->addLayout(left);
    layout->addWidget(BuildTractionModules());
}

QWidget* DlgZelvarStatus::BuildSystem() {
    QFrame* panel = NewPanel(this);
    auto* grid = new QGridLayout(panel);
    system_ = BuildSystemFields(panel, *grid);
    // Here the first label goes by another name than in the new view.
    grid->itemAtPosition(0, 0)->widget()->setObjectName(QStringLiteral("lblStatus"));
    auto* numbers = new QHBoxLayout;
    auto* fields = new QHBoxLayout;
    for (int i = 0; i < static_cast<int>(txtDIP_.size()); ++i) {
        const QString number = QString::number(i + 1);
        QLabel* label = CaptionLabel(IndexedName("lblDIP", i), number, panel);
        label->setAlignment(Qt::AlignHCenter);
        numbers->addWidget(label);
        QLineEdit* field = NewDisplayField(IndexedName("txtDIP", i),
                                           QStringLiteral("DIP switch %1").arg(number), panel, "");
        field->setFixedWidth(field->fontMetrics().horizontalAdvance(QStringLiteral("Off")) * 2);
        label->setFixedWidth(field->minimumWidth());
        fields->addWidget(field);
        txtDIP_[i] = field;
    }
    // The two trailing spaces belong to the caption.
    grid->addWidget(
        CaptionLabel(QStringLiteral("lblDIPstat"), QStringLiteral("DIP status  "), panel), 4, 0);
    grid->addLayout(numbers, 3, 1);
    grid->addLayout(fields, 4, 1);
    return panel;
}

QWidget* DlgZelvarStatus::BuildPointMotorModules() {
    QFrame* panel = NewPanel(this);
    auto* grid = new QGridLayout(panel);
    grid->addWidget(CaptionLabel(QStringLiteral("lblJSmodule"), QStringLiteral("Module"), panel), 0,
                    0);
    grid->addWidget(CaptionLabel(QStringLiteral("lblJSstatus"), QStringLiteral("Status"), panel), 0,
                    1);
    for (int j = 0; j < kClassicJsModules; ++j) {
        const QString module = QStringLiteral("JS#%1").arg(j);
        QLineEdit* field = NewWideField(IndexedName("txtJSstatus", j),
                                        QStringLiteral("Status of %1").arg(module), panel);
        grid->addWidget(CaptionLabel(IndexedName("lblJS", j), module, panel), j + 1, 0);
        grid->addWidget(field, j + 1, 1);
        txtJSstatus_[j] = field;
    }
    return panel;
}

QWidget* DlgZelvarStatus::BuildTractionModules() {
    QFrame* panel = NewPanel(this);
    auto* grid = new QGridLayout(panel);
    grid->setVerticalSpacing(2);
    grid->addWidget(CaptionLabel(QStringLiteral("lblVDmodule"), QStringLiteral("Module"), panel), 0,
                    0);
    grid->addWidget(CaptionLabel(QStringLiteral("lblVDtype"), QStringLiteral("Type"), panel), 0, 1);
    grid->addWidget(CaptionLabel(QStringLiteral("lblVDstatus"), QStringLiteral("Status"), panel), 0,
                    2);
    for (int m = 0; m < kClassicVDLines; ++m) {
        const QString module = QStringLiteral("VD#%1").arg(m);
        txtVDtype_[m] = NewWideField(IndexedName("txtVDtype", m),
                                     QStringLiteral("Type of %1").arg(module), panel);
        txtVDstatus_[m] = NewWideField(IndexedName("txtVDstatus", m),
                                       QStringLiteral("Status of %1").arg(module), panel);
        grid->addWidget(CaptionLabel(IndexedName("lblVD", m), module, panel), m + 1, 0);
        grid->addWidget(txtVDtype_[m], m + 1, 1);
        grid->addWidget(txtVDstatus_[m], m + 1, 2);
    }
    return panel;
}

void DlgZelvarStatus::Show(const SystemStatus& status) {
    ShowSystemFields(system_, status);
    for (std::size_t i = 0; i < txtDIP_.size(); ++i) {
        const QString position = !status.dip        ? QString()
                                 : (*status.dip)[i] ? QStringLiteral("On")
                                                    : QStringLiteral("Off");
        ShowInField(*txtDIP_[i], position);
    }
    for (std::size_t j = 0; j < txtJSstatus_.size(); ++j) {
        ShowInField(*txtJSstatus_[j], ToQString(ModuleStateText(status.js[j].state)));
    }
    for (std::size_t m = 0; m < txtVDtype_.size(); ++m) {
        ShowInField(*txtVDtype_[m], ToQString(ClassicVDTypeText(status.vdTypes[m])));
        ShowInField(*txtVDstatus_[m], ToQString(ModuleStateText(status.vd[m].state)));
    }
}

}  // namespace zelvar
