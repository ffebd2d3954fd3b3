// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QCheckBox>
#include <QLineEdit>
#include <QSlider>
#include <QStyle>
#include <QTimer>

#include <vector>

#include "support/window_fixture.h"

namespace zelvar::testing {

using Sent = std::vector<std::vector<int>>;

/// Where a slider's handle stands for a value.
inline QPoint PlaceOf(const QSlider& slider, int value) {
    const int handle = slider.style()->pixelMetric(QStyle::PM_SliderLength, nullptr, &slider);
    const int x = QStyle::sliderPositionFromValue(slider.minimum(), slider.maximum(), value,
                                                  slider.width() - handle);
    return {x + handle / 2, slider.height() / 2};
}

/// The main window with the controls of the TEST tab at hand.
class DriveFixture : public WindowFixture {
  protected:
    QSlider& Slider(const char* name) { return Find<QSlider>(name); }
    QCheckBox& Box(const char* name) { return Find<QCheckBox>(name); }
    void SetText(const char* field, const char* text) {
        Find<QLineEdit>(field).setText(QString::fromUtf8(text));
    }

    /// A step of a slider's handle by the keyboard, which is reported when the event loop turns.
    void StepByKey(const char* name) {
        QSlider& slider = Slider(name);
        const int before = slider.value();
        ShowTabOf(slider);
        slider.setFocus();
        QTest::keyClick(&slider, Qt::Key_PageUp);
        ASSERT_EQ(slider.value(), before + slider.pageStep());
    }

    /// What was sent since the last look.
    Sent TakeSent() {
        Sent sent = port.SentValues();
        port.ForgetSent();
        return sent;
    }

    const std::vector<ShownBox> kSelectPort{Exclamation("Please select Comm-Port")};
};

}  // namespace zelvar::testing
