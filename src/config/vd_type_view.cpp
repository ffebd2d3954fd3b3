// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_type_view.h"

#include "config/selection_list.h"
#include "status/module_registry.h"

namespace zelvar {

namespace {

struct Row {
    /// Item data of a group, or a type code.
    int key;
    VDTypeView view;
};

constexpr Row kGroupRows[] = {
    {kAllVD60, {kForVD60, VDGetButtons::None, "VD60"}},
    {kAllQlrx, {kForQlrx, VDGetButtons::None, "QLRX-s"}},
    {kAllVDF, {kForVDF, VDGetButtons::None, "VD-F"}},
    {kAllVDxx, {kForVD60, VDGetButtons::CheckOnly, "VDxx"}},
};

constexpr Row kTypeRows[] = {
    {kVdF, {kForVDF, VDGetButtons::All, "VD-F"}},
    // A QLRX-s takes settings but does not give them back.
    {kQlrxS, {kForQlrx, VDGetButtons::None, "QLRX-s"}},
    {kVd60, {kForVD60, VDGetButtons::All, "VD60", true, true}},
};

constexpr VDTypeView kUnknownView{kForAny, VDGetButtons::None, "?", false};

template <typename Rows>
VDTypeView Find(const Rows& rows, int key) {
    for (const Row& row : rows) {
        if (row.key == key) {
            return row.view;
        }
    }
    return kUnknownView;
}

}  // namespace

VDTypeView VDTypeViewOf(int data, std::int16_t type) {
    return data < 0 ? Find(kGroupRows, data) : Find(kTypeRows, type);
}

}  // namespace zelvar
