// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <vector>

#include "config/vd_type_view.h"
#include "protocol/traction_settings.h"

namespace zelvar {

// The index of a setting's buttons.
constexpr int kSetButton = 0;
constexpr int kGetButton = 1;

/// In place of an index: the control is not a member of an array.
constexpr int kNoIndex = -1;

/// When a number that is out of its range is brought into it.
enum class Clamped { OnClick, OnChange };

/// A text field with its spin control.
struct VDField {
    /// 1..63
    int parameter = 0;
    const char* accessibleName = "";
    int index = kNoIndex;
    /// Name and caption of the label beside it, if it has one.
    const char* label = nullptr;
    const char* caption = "";
    /// It is hidden for all other kinds of modules.
    VDTypes shownFor = kForAny;
};

struct VDNumbers {
    const char* field = "";
    const char* spin = "";
    int minimum = 0;
    int maximum = 0;
    Clamped clamped = Clamped::OnClick;
    std::vector<VDField> fields = {};
};

/// An option button; its index in the control array is its value.
struct VDOption {
    int value = 0;
    const char* caption = "";
};

struct VDOptions {
    const char* name = "";
    std::vector<VDOption> options = {};
    /// The parameter that the options stand for. None: the chosen option's value is added to the
    /// parameter of the number beside it.
    std::optional<int> parameter = std::nullopt;
    /// Chosen at the start; none when no option has that value.
    int initial = 0;
};

/// Where a setting stands: its cell of the grid.
struct VDPlace {
    int column = 0;
    int row = 0;
};

/// One setting: its frame, its controls and its two buttons.
struct VDSetting {
    const char* frame = "";
    const char* accessibleName = "";
    /// Stands above the controls.
    const char* title = "";
    VDPlace place = {};
    /// The frame is hidden for all other kinds of modules.
    VDTypes shownFor = kForAny;
    const char* button = "";
    /// Set, Get
    std::array<const char*, 2> captions{};
    /// Empty for a setting that has options alone.
    VDNumbers numbers = {};
    /// Empty for a setting that has numbers alone.
    VDOptions options = {};
    /// Fixed heights in the frame: the even fields in the first line, the odd ones in the second.
    bool inBanks = false;
    /// The buttons stand beside the frame and are shown and hidden without it.
    bool buttonsOutside = false;
};

/// All settings of the traction modules, in the order of the form. A further setting is a further
/// row.
const std::vector<VDSetting>& VDSettings();

/// What the controls of a setting say.
struct VDInput {
    struct Number {
        int value = 0;
        bool shown = true;
    };
    /// One for each field.
    std::vector<Number> numbers;
    /// 0 when none is chosen.
    int option = 0;
};

/// How many commands a press of a setting's button sends at most: one for each field, or one for
/// the options.
std::size_t VDCommandCount(const VDSetting& setting);

/// One of these commands. @param number 0..`VDCommandCount`-1
/// @param button `kSetButton` or `kGetButton`, which carries no value
/// @return nothing for a field that is not shown
std::optional<ModuleCommand> VDCommandOf(const VDSetting& setting, std::size_t number, int button,
                                         bool permanent, const VDInput& input);

/// @param module the line 0..63 that is chosen; for a group or none there is no reply
/// @param permanent which settings the form shows
/// @return nothing unless the reply is from that module and of these settings; the parameter is
/// 1..63 then
std::optional<VDReply> ReadVDConfigReply(const Reply& reply, std::optional<int> module,
                                         bool permanent);

/// The field that shows a parameter. @param option the value of the chosen option
std::optional<std::size_t> FieldShowing(const VDSetting& setting, int parameter, int option);

/// @return whether the setting has an option for what was reported.
bool HasOptionFor(const VDSetting& setting, const VDReply& reply);

}  // namespace zelvar
