// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>
#include <utility>

namespace zelvar {

/// A window beside the main window, shown without blocking it. Escape closes it.
class SecondaryWindow : public QWidget {
    Q_OBJECT

  public:
    explicit SecondaryWindow(const QString& name, const QString& caption);

    /// Shows the window and puts it before the others. @param activate gives it the keyboard, too
    void BringIntoView(bool activate);

  Q_SIGNALS:
    /// The user has closed the window.
    void Closed();

  protected:
    void closeEvent(QCloseEvent* event) override;
};

/// Holds a secondary window that is created when it is first needed, shown or not.
template <typename Window>
class LazyWindow {
  public:
    enum class OnClose { Unload, Keep };

    explicit LazyWindow(OnClose onClose, std::function<Window*()> make)
        : onClose_(onClose), make_(std::move(make)) {}
    ~LazyWindow() { Unload(); }
    LazyWindow(const LazyWindow&) = delete;
    LazyWindow& operator=(const LazyWindow&) = delete;

    Window& Get() {
        if (window_ == nullptr) {
            window_ = make_();
            if (onClose_ == OnClose::Unload) {
                QObject::connect(window_, &SecondaryWindow::Closed, window_, [this] {
                    window_->deleteLater();
                    window_ = nullptr;
                });
            }
        }
        return *window_;
    }

    /// Null while the window is not loaded.
    Window* Peek() const { return window_; }

    void Unload() { delete std::exchange(window_, nullptr); }

  private:
    OnClose onClose_;
    std::function<Window*()> make_;
    Window* window_ = nullptr;
};

}  // namespace zelvar
