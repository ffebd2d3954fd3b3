// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>
#include <utility>

#include "platform/message_box.h"

namespace zelvar {

class QtMessageBox : public MessageBox {
  public:
    /// @param parent the window in front of which boxes appear when none is active
    void SetParent(QWidget* parent) { parent_ = parent; }

    /// @param beforeShow runs before each box, while no box is open yet
    void SetBeforeShow(std::function<void()> beforeShow) { beforeShow_ = std::move(beforeShow); }

    BoxAnswer Ask(const std::string& text, BoxIcon icon, BoxButtons buttons) override;

  private:
    QPointer<QWidget> parent_;
    std::function<void()> beforeShow_;
};

}  // namespace zelvar
