// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/unit_image.h"

#include <algorithm>

namespace zelvar::twin {

UnitImage::UnitImage(const sim::UnitState& state) : StateView(sim::kImage) {
    constexpr std::size_t kUsualEntries = 7000;
    entries_.reserve(kUsualEntries);
    sim::WalkState(state, *this);
}

void UnitImage::Take(const sim::StateValue& value) {
    entries_.push_back({item_, value.name, static_cast<int>(value.number)});
}

bool UnitImage::Entry::SameName(const Entry& other) const {
    // Numbers first: they differ more often than the words before them.
    return item.first == other.item.first && item.second == other.item.second &&
           value == other.value && item == other.item;
}

std::string UnitImage::Entry::Name() const {
    const std::string name = value.Text();
    return item.Text() + (name.empty() ? "" : ".") + name;
}

Changes UnitImage::ChangesTo(const sim::UnitState& state) const {
    const UnitImage now(state);
    Changes changes;
    auto before = entries_.begin();
    for (const Entry& entry : now.entries_) {
        const auto same = std::find_if(before, entries_.end(),
                                       [&](const Entry& old) { return old.SameName(entry); });
        if (same == entries_.end()) {
            changes[entry.Name()] = entry.number;
            continue;
        }
        std::for_each(before, same, [&](const Entry& old) { changes[old.Name()] = kGone; });
        if (same->number != entry.number) {
            changes[entry.Name()] = entry.number;
        }
        before = same + 1;
    }
    std::for_each(before, entries_.end(), [&](const Entry& old) { changes[old.Name()] = kGone; });
    return changes;
}

}  // namespace zelvar::twin
