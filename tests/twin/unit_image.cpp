// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/unit_image.h"

#include <algorithm>
#include <optional>

namespace zelvar::twin {

/// Walks over the state of now, beside the image of before.
class UnitImage::Comparison : private sim::StateView {
  public:
    Comparison(const UnitImage& before, const sim::UnitState& now)
        : StateView(sim::kImage), before_(before), next_(before.entries_.begin()) {
        sim::WalkState(now, *this);
        SkipTo(before_.entries_.end());
    }
    Changes changes;

  private:
    using Place = std::vector<Entry>::const_iterator;

    /// Items that are left out are gone.
    void SkipTo(Place place) {
        std::for_each(next_, place,
                      [this](const Entry& entry) { changes[entry.name.Text()] = kGone; });
        next_ = place;
    }
    void Open(std::string_view, const sim::StateName& name) override {
        const Place end = before_.entries_.end();
        const Place same =
            std::find_if(next_, end, [&](const Entry& entry) { return entry.name == name; });
        now_ = name;
        number_.reset();
        if (same != end) {
            SkipTo(same);
            number_ = same->start;
            ++next_;
        }
    }
    void Take(const sim::StateValue& value) override {
        const int number = static_cast<int>(value.number);
        if (!number_ || before_.numbers_[(*number_)++] != number) {
            const std::string name = value.name.Text();
            changes[now_.Text() + (name.empty() ? "" : ".") + name] = number;
        }
    }

    const UnitImage& before_;
    Place next_;
    sim::StateName now_;
    std::optional<std::size_t> number_;  // none: the item is new
};

UnitImage::UnitImage(const sim::UnitState& state) : StateView(sim::kImage) {
    sim::WalkState(state, *this);
}

Changes UnitImage::ChangesTo(const sim::UnitState& state) const {
    return Comparison(*this, state).changes;
}

}  // namespace zelvar::twin
