// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <memory>
#include <utility>

namespace zelvar {

/// A window beside the main window, shown without blocking it. Escape closes it.
class SecondaryWindow : public QWidget {
    Q_OBJECT

  public:
    explicit SecondaryWindow(const QString& name, const QString& caption);

    /// Shows the window in front of the others. @param activate gives it the keyboard, too
    void BringIntoView(bool activate);

  Q_SIGNALS:
    /// The user has closed the window.
    void closed();

  protected:
    void closeEvent(QCloseEvent* event) override;
};

/// Owns a secondary window that is created when it is first needed, shown or not.
template <typename Window>
class LazyWindow {
  public:
    enum class OnClose { Unload, Keep };

    using Make = std::function<std::unique_ptr<Window>()>;

    explicit LazyWindow(
        OnClose onClose, Make make = [] { return std::make_unique<Window>(); })
        : onClose_(onClose), make_(std::move(make)) {}

    Window& Get() {
        if (window_ == nullptr) {
            window_ = make_();
            if (onClose_ == OnClose::Unload) {
                // The window is still handling the event that closes it.
                QObject::connect(window_.get(), &SecondaryWindow::closed, window_.get(),
                                 [this] { window_.release()->deleteLater(); });
            }
        }
        return *window_;
    }

    /// Null while the window is not loaded.
    Window* Peek() const { return window_.get(); }

    void Unload() { window_.reset(); }

  private:
    OnClose onClose_;
    Make make_;
    std::unique_ptr<Window> window_;
};

}  // namespace zelvar
