// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "sim/unit/unit_state.h"

namespace zelvar::sim {

/// Who looks at the state: `dump`, `state`, and tests that compare two moments.
enum StateViews : unsigned { kDump = 1, kTable = 2, kImage = 4, kAllViews = 7 };

/// The name of something, such as "block.5", "link.3.4" or "traction.5.active".
struct StateName {
    static constexpr int kNone = -1;

    std::string_view group;
    std::string_view part{};
    int first = kNone;
    int second = kNone;

    bool operator==(const StateName&) const = default;
    std::string Text() const;
};

/// One value: a number or, if it has no number, a text.
struct StateValue {
    using Words = std::string (*)(int number);

    unsigned views;  // that get it
    StateName name{};
    std::int64_t number = 0;
    Words dumpWords = nullptr;  // null: decimal
    Words tableWords = nullptr;
    std::string_view text{};
    bool isText = false;
};

/// Gets the values of one walk over the state.
class StateView {
  public:
    virtual ~StateView() = default;

    /// Whether this is one of the views: to make texts for those only that use them.
    bool IsOneOf(unsigned views) const { return (view_ & views) != 0; }

    /// Begins an item for these views: a line of `dump`, a row of the table with this heading.
    void Begin(unsigned views, std::string_view table, const StateName& name) {
        open_ = views & view_;
        if (open_ != 0) {
            Open(table, name);
        }
    }
    /// Adds a value to the item.
    void Add(const StateValue& value) {
        if ((open_ & value.views) != 0) {
            Take(value);
        }
    }
    /// A whole item.
    void Item(unsigned views, std::string_view table, const StateName& name,
              std::initializer_list<StateValue> values) {
        Begin(views, table, name);
        for (const StateValue& value : values) {
            Add(value);
        }
    }

  protected:
    explicit StateView(StateViews view) : view_(view) {}

  private:
    virtual void Open(std::string_view table, const StateName& name) = 0;
    virtual void Take(const StateValue& value) = 0;

    unsigned view_;
    unsigned open_ = 0;
};

/// Shows the whole state to a view, always in the same order. To show one more value, add it here.
void WalkState(const UnitState& state, StateView& view);

}  // namespace zelvar::sim
