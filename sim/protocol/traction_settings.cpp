// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/traction_settings.h"

namespace zelvar::sim {

std::string SettingName(int parameter) {
    const TractionSetting* setting = FindTractionSetting(parameter);
    return setting == nullptr ? "setting " + std::to_string(parameter) : std::string(setting->name);
}

std::string SettingValueName(int parameter, int value) {
    const TractionSetting* setting = FindTractionSetting(parameter);
    return setting == nullptr ? std::to_string(value) : WordFor(setting->words, value);
}

}  // namespace zelvar::sim
