// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "config/vd_type_view.h"

#include <algorithm>
#include <iterator>

#include "config/selection_list.h"

namespace zelvar {

namespace {

/// The key is the item data of a group, or the type of a module.
template <typename Key>
struct Row {
    Key key;
    VDTypeView view;
};

constexpr Row<int> kGroupRows[] = {
    {kAllVD60, {kForVD60, VDGetButtons::None, "VD60"}},
    {kAllQlrx, {kForQlrx, VDGetButtons::None, "QLRX-s"}},
    {kAllVDF, {kForVDF, VDGetButtons::None, "VD-F"}},
    {kAllVDxx, {kForVD60, VDGetButtons::CheckOnly, "VDxx"}},
};

constexpr Row<VDType> kTypeRows[] = {
    {VDType::VdF, {kForVDF, VDGetButtons::All, "VD-F"}},
    // A QLRX-s takes settings but does not give them back.
    {VDType::QlrxS, {kForQlrx, VDGetButtons::None, "QLRX-s"}},
    {VDType::Vd60, {kForVD60, VDGetButtons::All, "VD60", true, true}},
};

constexpr VDTypeView kUnknownView{kForAny, VDGetButtons::None, "?", false};

template <typename Rows, typename Key>
VDTypeView Find(const Rows& rows, Key key) {
    const auto found = std::find_if(std::begin(rows), std::end(rows),
                                    [key](const auto& row) { return row.key == key; });
    return found == std::end(rows) ? kUnknownView : found->view;
}

}  // namespace

VDTypeView VDTypeViewOf(int data, VDType type) {
    return data < 0 ? Find(kGroupRows, data) : Find(kTypeRows, type);
}

}  // namespace zelvar
