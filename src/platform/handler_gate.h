// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <utility>

namespace zelvar {

/// Knows whether an event handler is running, also while that handler shows a message box and so
/// lets the event loop turn. Timers ask it and keep their ticks to themselves while it is busy.
class HandlerGate {
  public:
    /// Marks one handler as running. Handlers nest when one sets a control that has its own.
    class Scope {
      public:
        explicit Scope(HandlerGate& gate) : gate_(gate) {
            if (gate_.depth_++ == 0 && gate_.onBegin_) {
                gate_.onBegin_();
            }
        }
        ~Scope() { --gate_.depth_; }
        Scope(const Scope&) = delete;
        Scope& operator=(const Scope&) = delete;

      private:
        HandlerGate& gate_;
    };

    /// Wraps what a control's signal calls, so that it counts as a handler while it runs.
    template <typename Function>
    auto Handler(Function function) {
        return [this, function](auto&&... arguments) {
            const Scope scope(*this);
            function(std::forward<decltype(arguments)>(arguments)...);
        };
    }

    bool IsBusy() const { return depth_ > 0; }

    /// @param onBegin runs whenever an outermost handler begins
    void SetBeginHandler(std::function<void()> onBegin) { onBegin_ = std::move(onBegin); }

  private:
    int depth_ = 0;
    std::function<void()> onBegin_;
};

}  // namespace zelvar
