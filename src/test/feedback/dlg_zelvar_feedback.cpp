// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/feedback/dlg_zelvar_feedback.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QRadioButton>

#include <algorithm>

#include "controls/naming.h"
#include "controls/palette.h"

namespace zelvar {

namespace {

// Colours are 0xBBGGRR values; without information a label has the theme's shadow of buttons.
constexpr std::uint32_t kInactiveColour = 0xFFFFFF;
constexpr std::uint32_t kActiveColour = 0x0080FF;

constexpr const char* kLayoutCaptions[] = {"1x128", "8x16 mod 32", "8x16 mod 64", "8x16 mod 128"};
constexpr const char* kLookCaptions[] = {"= Inactive", "= Active", "= No information"};

/// The words of assistive technology, in the order of the looks.
constexpr const char* kLookWords[] = {"inactive", "active", "no information"};

/// Shown by the labels until they are laid out; also the widest number.
constexpr int kWidestNumber = kFeedbackInputs;
// Pixels around a number.
constexpr int kMarginX = 5;
constexpr int kMarginY = 4;
constexpr int kSpacing = 2;
/// A gap after this many columns, half a module, for orientation.
constexpr int kGroupColumns = 8;
constexpr int kGroupGap = 8;

// Places in the array lblFBMform.
constexpr int kBaseCaption = 0;
constexpr int kFirstSwatch = 1;
constexpr int kFirstLookCaption = 4;

QPalette GroundPalette(const QColor& ground) {
    QPalette palette;
    palette.setColor(QPalette::Window, ground);
    palette.setColor(QPalette::WindowText, ReadableOn(ground));
    return palette;
}

}  // namespace

DlgZelvarFeedback::DlgZelvarFeedback()
    : SecondaryWindow(QStringLiteral("dlgZelvarFeedback"), QStringLiteral("Feedback Monitor")),
      lblFBbase_(Named(new QLabel(this), "lblFBbase", "Number of the first input")),
      UpDownFBbase_(Named(new LabelStepper(lblFBbase_, 0, FeedbackMaximumBase(0), this),
                          "UpDownFBbase", "Number of the first input")),
      cmdFBMrefresh_(Named(new QPushButton(QStringLiteral("Request Data"), this), "cmdFBMrefresh",
                           "Request the state of all inputs shown")) {
    MakePalettes();
    auto* grid = new QGridLayout;
    BuildGrid(*grid);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(BuildChoices());
    layout->addLayout(grid);
    layout->addLayout(BuildLegend());
    layout->addStretch();
    connect(UpDownFBbase_, &LabelStepper::valueChanged, this, &DlgZelvarFeedback::LayOutLabels);
    connect(cmdFBMrefresh_, &QPushButton::clicked, this, &DlgZelvarFeedback::cmdFBMrefresh_Click);
    LayOutLabels();
}

void DlgZelvarFeedback::BuildGrid(QGridLayout& grid) {
    grid.setSpacing(kSpacing);
    const QFontMetrics metrics(font());
    const QSize size(metrics.horizontalAdvance(QString::number(kWidestNumber)) + 2 * kMarginX,
                     metrics.height() + 2 * kMarginY);
    for (int i = 0; i < kFeedbackLabels; ++i) {
        Cell& cell = lblFBM_[i];
        cell.label = Named(new QLabel(QString::number(kWidestNumber), this),
                           IndexedName("lblFBM", i), QStringLiteral("Feedback input"));
        cell.label->setTextFormat(Qt::PlainText);
        cell.label->setAlignment(Qt::AlignCenter);
        cell.label->setAutoFillBackground(true);
        // A fixed size: numbers of other lengths move nothing and cost no new layout.
        cell.label->setFixedSize(size);
        cell.label->setPalette(PaletteOf(cell.look));
        const int column = i % kFeedbackColumns;
        grid.addWidget(cell.label, i / kFeedbackColumns, column + column / kGroupColumns);
    }
    grid.setColumnMinimumWidth(kGroupColumns, kGroupGap);
    grid.setColumnStretch(kFeedbackColumns + 1, 1);
}

QLayout* DlgZelvarFeedback::BuildChoices() {
    auto* row = new QHBoxLayout;
    int index = 0;
    for (const char* caption : kLayoutCaptions) {
        const QString text = ToQString(caption);
        auto* button = Named(new QRadioButton(text, this), IndexedName("opFBmod", index),
                             QStringLiteral("Layout ") + text);
        opFBmod_->addButton(button, index++);
        row->addWidget(button);
    }
    opFBmod_->button(0)->setChecked(true);
    connect(opFBmod_, &QButtonGroup::idToggled, this, [this](int id, bool chosen) {
        if (chosen) {
            opFBmod_Click(id);
        }
    });
    row->addStretch();
    lblFBbase_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    lblFBbase_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    lblFBbase_->setMargin(2);
    lblFBbase_->setMinimumWidth(
        lblFBbase_->fontMetrics().horizontalAdvance(QString::number(kWidestNumber)) + 2 * kMarginX);
    row->addWidget(FormLabel(kBaseCaption, "Base"));
    row->addWidget(lblFBbase_);
    row->addWidget(UpDownFBbase_);
    return row;
}

QLayout* DlgZelvarFeedback::BuildLegend() {
    auto* row = new QHBoxLayout;
    for (int i = 0; i < kLooks; ++i) {
        QLabel* swatch = FormLabel(kFirstSwatch + i, "");
        swatch->setAccessibleName(QStringLiteral("Colour of the state"));
        swatch->setAutoFillBackground(true);
        swatch->setFrameStyle(QFrame::Box | QFrame::Plain);
        swatch->setPalette(palettes_[i]);
        const int side = fontMetrics().height();
        swatch->setFixedSize(side, side);
        swatches_[i] = swatch;
        row->addWidget(swatch);
        row->addWidget(FormLabel(kFirstLookCaption + i, kLookCaptions[i]));
        row->addSpacing(kGroupGap);
    }
    row->addStretch();
    row->addWidget(cmdFBMrefresh_);
    return row;
}

QLabel* DlgZelvarFeedback::FormLabel(int index, const char* caption) {
    return Named(new QLabel(ToQString(caption), this), IndexedName("lblFBMform", index),
                 ToQString(caption));
}

void DlgZelvarFeedback::MakePalettes() {
    palettes_ = {GroundPalette(ColourOf(kInactiveColour)), GroundPalette(ColourOf(kActiveColour)),
                 GroundPalette(QApplication::palette().color(QPalette::Dark))};
}

void DlgZelvarFeedback::changeEvent(QEvent* event) {
    SecondaryWindow::changeEvent(event);
    if (event->type() != QEvent::PaletteChange) {
        return;
    }
    // Only the last look takes its colour from the theme.
    MakePalettes();
    const QPalette& last = PaletteOf(Look::NoInformation);
    swatches_.back()->setPalette(last);
    for (const Cell& cell : lblFBM_) {
        if (cell.look == Look::NoInformation) {
            cell.label->setPalette(last);
        }
    }
}

DlgZelvarFeedback::Look DlgZelvarFeedback::LookOf(std::int16_t state) {
    return state == kFeedbackActive     ? Look::Active
           : state == kFeedbackInactive ? Look::Inactive
                                        : Look::NoInformation;
}

void DlgZelvarFeedback::Paint(Cell& cell, int number, Look look) {
    // Setting a text or a palette costs far more than comparing them.
    if (cell.number == number && cell.look == look) {
        return;
    }
    if (cell.number != number) {
        cell.number = number;
        cell.label->setText(QString::number(number));
    }
    if (cell.look != look) {
        cell.look = look;
        cell.label->setPalette(PaletteOf(look));
    }
    cell.label->setAccessibleName(QStringLiteral("Input %1, %2")
                                      .arg(number)
                                      .arg(ToQString(kLookWords[static_cast<int>(look)])));
}

void DlgZelvarFeedback::LayOutLabels() {
    const int layout = Layout();
    const int base = Base();
    for (int i = 0; i < kFeedbackLabels; ++i) {
        const int number = FeedbackNumber(layout, base, i);
        Paint(lblFBM_[i], number, LookOf(table_.State(number)));
    }
}

bool DlgZelvarFeedback::fbUpdate(int index, std::int16_t state) {
    if (!table_.Update(index, state)) {
        return false;
    }
    if (const auto label = FeedbackLabelOf(Layout(), Base(), index)) {
        Paint(lblFBM_[*label], index, LookOf(state));
    }
    return true;
}

void DlgZelvarFeedback::Show(const FeedbackReport& report) {
    fbUpdate(report.index, report.active ? kFeedbackActive : kFeedbackInactive);
}

void DlgZelvarFeedback::opFBmod_Click(int index) {
    UpDownFBbase_->setMaximum(FeedbackMaximumBase(index));
    LayOutLabels();
}

void DlgZelvarFeedback::cmdFBMrefresh_Click() {
    std::array<int, kFeedbackLabels> numbers{};
    std::transform(lblFBM_.begin(), lblFBM_.end(), numbers.begin(),
                   [](const Cell& cell) { return cell.number; });
    table_.RequestData(numbers);
    LayOutLabels();
}

}  // namespace zelvar
