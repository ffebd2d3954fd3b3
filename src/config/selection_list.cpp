// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/selection_list.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

namespace zelvar {

namespace {

struct Group {
    const char* text;
    int data;
    std::initializer_list<std::int16_t> types;
    /// The Classic View has no entry for this group.
    bool newViewOnly;
};

/// In the order of the list.
const Group kGroups[] = {
    {"All_VDxx", kAllVDxx, {kVdF, kVd60}, true},
    {"All_VD60", kAllVD60, {kVd60}, true},
    {"All_VD-F", kAllVDF, {kVdF}, false},
    {"All_QLRX", kAllQlrx, {kQlrxS}, false},
};

/// A number in decimal behind one blank, as the lists show it.
std::string Str(int number) {
    return " " + std::to_string(number);
}

/// The groups stand before the modules; the first module is selected, else the last group.
void SelectFirstModule(SelectionList& list, std::size_t groups) {
    const std::size_t selected = list.entries.size() > groups ? groups : groups - 1;
    list.selected = list.entries.empty() ? -1 : static_cast<int>(selected);
}

}  // namespace

SelectionList TractionModuleList(const ModuleRegistry& registry, bool classic) {
    const int lines = classic ? kClassicVDLines : kVDPrimaryLines;
    const auto& types = registry.vdType;
    SelectionList list;
    for (const Group& group : kGroups) {
        const bool present = std::any_of(types.begin(), types.begin() + lines, [&](auto type) {
            return std::find(group.types.begin(), group.types.end(), type) != group.types.end();
        });
        if (present && !(classic && group.newViewOnly)) {
            list.entries.push_back({group.text, group.data});
        }
    }
    const std::size_t groups = list.entries.size();
    for (int m = 0; m < lines; ++m) {
        const std::int16_t type = types[static_cast<std::size_t>(m)];
        const int secondary = m + kVDPrimaryLines;
        if (type == kVd60) {
            list.entries.push_back({Str(m) + ".0", m});
            if (types[static_cast<std::size_t>(secondary)] == kVd60) {
                list.entries.push_back({Str(m) + ".1", secondary});
            }
        } else if (type >= kVdUnknown) {
            list.entries.push_back({Str(m), m});
        }
    }
    SelectFirstModule(list, groups);
    return list;
}

SelectionList PointMotorModuleList(const ModuleRegistry& registry, bool classic) {
    const int modules = classic ? kClassicJsModules : kJsModules;
    SelectionList list;
    for (int j = 0; j < modules; ++j) {
        if (registry.jsPresent[static_cast<std::size_t>(j)] == kJsPresent) {
            if (list.entries.empty()) {
                list.entries.push_back({"All", kAllJs});
            }
            list.entries.push_back({Str(j), j});
        }
    }
    SelectFirstModule(list, 1);
    return list;
}

}  // namespace zelvar
