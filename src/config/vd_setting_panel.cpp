// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_setting_panel.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cstddef>

#include "controls/arrange.h"
#include "controls/command_button.h"
#include "controls/lost_focus.h"
#include "controls/naming.h"
#include "controls/palette.h"

namespace zelvar {

namespace {

// Fixed positions within a frame with banks, in pixels at 96 dpi.
constexpr int kFirstRowOfTwo = Pixels(120);
constexpr int kOnlyRow = Pixels(360);
constexpr int kSecondRow = Pixels(600);
/// A label begins this much lower than its field, and ends this much higher.
constexpr int kLabelInset = Pixels(30);
constexpr int kGap = 6;

QString NameOf(const char* name, int index) {
    return index == kNoIndex ? ToQString(name) : IndexedName(name, index);
}

}  // namespace

VDSettingPanel::VDSettingPanel(const VDSetting& setting, QWidget* parent)
    : QFrame(parent),
      setting_(setting),
      frame_(Named(new QFrame(this), setting.frame, setting.accessibleName)),
      options_(new QButtonGroup(this)) {
    // The border encloses everything, so the frame has it only if the frame holds everything.
    (setting.buttonsOutside || setting.inBanks ? this : frame_)->setFrameShape(QFrame::StyledPanel);
    KeepPlaceWhenHidden(this);
    KeepPlaceWhenHidden(frame_);
    BuildFields();
    BuildOptions();
    BuildButtons();
    if (setting.inBanks) {
        LayOutBanks();
    } else {
        LayOutInRow();
    }
}

void VDSettingPanel::BuildFields() {
    const VDNumbers& numbers = setting_.numbers;
    for (const VDField& field : numbers.fields) {
        const int number = static_cast<int>(fields_.size());
        auto* spin = new SpinField(
            NameOf(numbers.spin, field.index), NameOf(numbers.field, field.index),
            ToQString(field.accessibleName), numbers.minimum, numbers.maximum, frame_);
        QLabel* label = nullptr;
        if (field.label != nullptr) {
            label = Named(new QLabel(ToQString(field.caption), frame_),
                          NameOf(field.label, field.index), ToQString(field.accessibleName));
            label->setBuddy(spin);
        }
        fields_.push_back(spin);
        labels_.push_back(label);
        connect(spin, &SpinField::textChanged, this,
                [this, number] { Q_EMIT fieldChanged(number); });
        connect(spin, &SpinField::stepped, this, [this, number] { Q_EMIT fieldStepped(number); });
    }
}

void VDSettingPanel::BuildOptions() {
    const VDOptions& options = setting_.options;
    for (const VDOption& option : options.options) {
        const QString caption = ToQString(option.caption);
        auto* button =
            Named(new QRadioButton(caption, frame_), IndexedName(options.name, option.value),
                  ToQString(setting_.accessibleName) + QStringLiteral(": ") + caption);
        button->setChecked(option.value == options.initial);
        options_->addButton(button, option.value);
    }
}

void VDSettingPanel::BuildButtons() {
    for (std::size_t i = 0; i < buttons_.size(); ++i) {
        const int index = static_cast<int>(i);
        const QString caption = ToQString(setting_.captions[i]);
        const QString accessibleName =
            (index == kSetButton ? QStringLiteral("Set: ") : QStringLiteral("Get: ")) +
            ToQString(setting_.accessibleName);
        buttons_[i] =
            MakeCommandButton(caption, IndexedName(setting_.button, index), accessibleName,
                              setting_.buttonsOutside ? static_cast<QWidget*>(this) : frame_);
        KeepPlaceWhenHidden(buttons_[i]);
        connect(buttons_[i], &QPushButton::clicked, this,
                [this, index] { Q_EMIT buttonClicked(index); });
        OnLostFocus(buttons_[i], [this] { Q_EMIT buttonLostFocus(); });
    }
}

QLabel* VDSettingPanel::AddTitle(QGridLayout& layout) {
    auto* title = new QLabel(ToQString(setting_.title), frame_);
    if (!fields_.empty() && labels_.front() == nullptr) {
        title->setBuddy(fields_.front());
    }
    layout.addWidget(title, 0, 0, 1, layout.columnCount());
    return title;
}

QLayout* VDSettingPanel::LayOutControls() {
    // The number of options in a row, so that no setting takes more than two rows.
    constexpr int kShortRow = 2;
    constexpr int kLongRow = 3;
    auto* layout = new QGridLayout;
    int row = 1;
    for (std::size_t i = 0; i < fields_.size(); ++i, ++row) {
        if (labels_[i] != nullptr) {
            layout->addWidget(labels_[i], row, 0);
        }
        layout->addWidget(fields_[i], row, labels_[i] != nullptr ? 1 : 0, Qt::AlignLeft);
    }
    const QList<QAbstractButton*> options = options_->buttons();
    const int perRow = options.size() > kShortRow * kShortRow ? kLongRow : kShortRow;
    for (int i = 0; i < options.size(); ++i) {
        layout->addWidget(options[i], row + i / perRow, i % perRow);
    }
    layout->setColumnStretch(std::max(perRow, 2), 1);
    layout->setVerticalSpacing(2);
    AddTitle(*layout);
    return layout;
}

void VDSettingPanel::LayOutInRow() {
    auto* inFrame = new QHBoxLayout(frame_);
    inFrame->setContentsMargins(kGap, kGap, kGap, kGap);
    auto* inPanel = new QHBoxLayout(this);
    inPanel->setContentsMargins(0, 0, 0, 0);
    auto* controls = new QVBoxLayout;
    controls->addLayout(LayOutControls());
    controls->addStretch();
    auto* buttons = new QVBoxLayout;
    buttons->setSpacing(kGap);
    buttons->addWidget(buttons_[kSetButton]);
    buttons->addWidget(buttons_[kGetButton]);
    buttons->addStretch();
    inFrame->addLayout(controls, 1);
    inPanel->addWidget(frame_, 1);
    if (setting_.buttonsOutside) {
        const QMargins margins = inFrame->contentsMargins();
        buttons->setContentsMargins(0, margins.top(), margins.right(), margins.bottom());
        inPanel->setSpacing(0);
        inPanel->addLayout(buttons);
    } else {
        inFrame->addLayout(buttons);
    }
}

void VDSettingPanel::LayOutBanks() {
    const QSize field = fields_.front()->sizeHint();
    int labelWidth = 0;
    for (const QLabel* label : labels_) {
        labelWidth = std::max(labelWidth, label->sizeHint().width());
    }
    int x = kGap;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        labels_[i]->resize(labelWidth, field.height() - 2 * kLabelInset);
        fields_[i]->resize(field);
        labels_[i]->move(x, 0);
        fields_[i]->move(x + labelWidth + kGap, 0);
        // Two fields are one below the other, then comes the next column.
        if (i % 2 == 1) {
            x = fields_[i]->geometry().right() + 2 * kGap;
        }
    }
    PlaceBankRows(true);
    // The layout has only the buttons: the fields are in its left margin.
    auto* buttons = new QGridLayout(frame_);
    buttons->setContentsMargins(x, kFirstRowOfTwo, kGap, 0);
    buttons->setVerticalSpacing(kGap);
    buttons->addWidget(buttons_[kSetButton], 0, 1);
    buttons->addWidget(buttons_[kGetButton], 1, 1);
    buttons->setColumnStretch(0, 1);
    buttons->setRowStretch(2, 1);
    frame_->setMinimumHeight(fields_.back()->geometry().bottom() + 1 + kGap);
    // The fixed heights leave no space for the title within the frame.
    auto* inPanel = new QGridLayout(this);
    inPanel->setContentsMargins(0, 0, 0, 0);
    inPanel->setSpacing(0);
    inPanel->addWidget(frame_, 1, 0);
    inPanel->setRowStretch(1, 1);
    AddTitle(*inPanel)->setContentsMargins(kGap, kGap, 0, 0);
}

void VDSettingPanel::PlaceBankRows(bool twoRows) {
    const int first = twoRows ? kFirstRowOfTwo : kOnlyRow;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        // Lower when a large font makes the fields high.
        const int second =
            std::max(kSecondRow, kFirstRowOfTwo + fields_[i]->height() + kLabelInset);
        const int top = i % 2 == 0 ? first : second;
        fields_[i]->move(fields_[i]->x(), top);
        labels_[i]->move(labels_[i]->x(), top + kLabelInset);
    }
}

void VDSettingPanel::ShowFor(VDTypes types, bool always) {
    const bool shown = setting_.shownFor.Intersects(types);
    frame_->setVisible(shown || always);
    bool twoRows = false;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
        const bool fieldShown = setting_.numbers.fields[i].shownFor.Intersects(types);
        fields_[i]->setVisible(fieldShown);
        if (labels_[i] != nullptr) {
            labels_[i]->setVisible(fieldShown);
        }
        twoRows = twoRows || (i % 2 == 1 && fieldShown);
    }
    if (setting_.inBanks) {
        PlaceBankRows(twoRows);
    }
    if (setting_.buttonsOutside) {
        buttons_[kSetButton]->setVisible(shown);
    }
}

void VDSettingPanel::ShowVDGetButtons(VDGetButtons buttons) {
    QPushButton* get = buttons_[kGetButton];
    if (!setting_.buttonsOutside) {
        get->setVisible(buttons == VDGetButtons::All);
        return;
    }
    const bool isCheck = buttons == VDGetButtons::CheckOnly;
    get->setText(isCheck ? QStringLiteral("Check MS mode") : QStringLiteral("Get MS mode"));
    get->setAccessibleName(isCheck ? QStringLiteral("Check masters, slaves and clocks")
                                   : QStringLiteral("Get: ") + ToQString(setting_.accessibleName));
    get->setVisible(buttons != VDGetButtons::None);
    setVisible(!frame_->isHidden() || !buttons_[kSetButton]->isHidden() || !get->isHidden());
    ShowBorder(!frame_->isHidden());
}

void VDSettingPanel::ShowBorder(bool shown) {
    setFrameShape(QFrame::StyledPanel);
    // A margin takes the border's space, so that nothing moves.
    const int margin = shown ? 0 : frameWidth();
    if (!shown) {
        setFrameShape(QFrame::NoFrame);
    }
    layout()->setContentsMargins(margin, margin, margin, margin);
}

int VDSettingPanel::ButtonWidth() const {
    return std::max(buttons_[kSetButton]->sizeHint().width(),
                    buttons_[kGetButton]->sizeHint().width());
}

void VDSettingPanel::SetButtonWidth(int width) {
    for (QPushButton* button : buttons_) {
        button->setFixedWidth(width);
    }
}

int VDSettingPanel::ChosenOption() const {
    return std::max(options_->checkedId(), 0);
}

VDInput VDSettingPanel::Input() const {
    VDInput input;
    for (const SpinField* field : fields_) {
        input.numbers.push_back({field->value(), !field->isHidden()});
    }
    input.option = ChosenOption();
    return input;
}

void VDSettingPanel::ClampOnClick() {
    if (setting_.numbers.clamped == Clamped::OnClick) {
        for (SpinField* field : fields_) {
            field->clamp();
        }
    }
}

void VDSettingPanel::ClampField(int field) {
    fields_[field]->clamp();
}

void VDSettingPanel::RestoreFieldColour(int field) {
    RestoreSystemColour(fields_[field]->lineEdit());
}

bool VDSettingPanel::ShowReply(const VDReply& reply) {
    if (HasOptionFor(setting_, reply)) {
        // The green of an earlier reply no longer holds.
        RestoreColours();
        QAbstractButton* option = options_->button(reply.value);
        option->setChecked(true);
        SetGroundColour(option, kColourGreen);
        return true;
    }
    const std::optional<std::size_t> shown =
        FieldShowing(setting_, reply.parameter, ChosenOption());
    if (shown) {
        QLineEdit* field = fields_[*shown]->lineEdit();
        field->setText(QString::number(reply.value));
        SetGroundColour(field, kColourGreen);
    }
    return shown.has_value();
}

void VDSettingPanel::RestoreColours() {
    for (const SpinField* field : fields_) {
        RestoreSystemColour(field->lineEdit());
    }
    for (QAbstractButton* option : options_->buttons()) {
        RestoreSystemColour(option);
    }
}

}  // namespace zelvar
