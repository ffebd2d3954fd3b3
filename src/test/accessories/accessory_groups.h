// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QGroupBox>

#include "test/locomotives/drive_controls.h"

namespace zelvar {

/// Sets a signal that a YR70 module controls.
class SignalGroup : public QGroupBox {
    Q_OBJECT

  public:
    explicit SignalGroup(const Services& services, QWidget* parent = nullptr);

  private:
    void cmdTestYR70_Click();

    Services services_;
    SpinField* UpDownTestYR70module_;
    SpinField* UpDownTestYR70pin_;
    SpinField* UpDownTestYR70aspect_;
};

/// Gives one instruction to an output of a GW70 module.
class OutputGroup : public QGroupBox {
    Q_OBJECT

  public:
    explicit OutputGroup(const Services& services, QWidget* parent = nullptr);

  private:
    void cmdTestGW70_Click();

    Services services_;
    SpinField* UpDownTestGW70instruction_;
    SpinField* UpDownTestGW70output_;
    SpinField* UpDownTestGW70parameter_;
};

}  // namespace zelvar
