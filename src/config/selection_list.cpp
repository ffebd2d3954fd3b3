// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/selection_list.h"

#include <algorithm>
#include <cstddef>

namespace zelvar {

namespace {

struct Group {
    const char* text;
    int data;
    VDTypes types;
    /// The Classic View has no entry for this group.
    bool newViewOnly;
};

/// In the order of the list.
constexpr Group kGroups[] = {
    {"All_VDxx", kAllVDxx, {VDType::VdF, VDType::Vd60}, true},
    {"All_VD60", kAllVD60, {VDType::Vd60}, true},
    {"All_VD-F", kAllVDF, {VDType::VdF}, false},
    {"All_QLRX", kAllQlrx, {VDType::QlrxS}, false},
};

/// A number in decimal behind one space, as the lists show it.
std::string Str(int number) {
    return " " + std::to_string(number);
}

/// The groups come before the modules; the first module is selected. No group is listed
/// without a module of it.
void SelectFirstModule(SelectionList& list, std::size_t groups) {
    list.selected = list.entries.empty() ? -1 : static_cast<int>(groups);
}

}  // namespace

SelectionList TractionModuleList(const ModuleRegistry& registry, bool classic) {
    const int lines = classic ? kClassicVDLines : kVDPrimaryLines;
    const auto& types = registry.vdTypes;
    SelectionList list;
    for (const Group& group : kGroups) {
        const bool present =
            std::any_of(types.begin(), types.begin() + lines,
                        [&group](VDType type) { return group.types.Contains(type); });
        if (present && !(classic && group.newViewOnly)) {
            list.entries.push_back({group.text, group.data});
        }
    }
    const std::size_t groups = list.entries.size();
    for (int m = 0; m < lines; ++m) {
        const VDType type = types.at(static_cast<unsigned>(m));
        const int secondary = m + kVDPrimaryLines;
        if (type == VDType::Vd60) {
            list.entries.push_back({Str(m) + ".0", m});
            if (types.at(static_cast<unsigned>(secondary)) == VDType::Vd60) {
                list.entries.push_back({Str(m) + ".1", secondary});
            }
        } else if (type != VDType::Absent) {
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
        if (registry.jsPresent.at(static_cast<unsigned>(j))) {
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
