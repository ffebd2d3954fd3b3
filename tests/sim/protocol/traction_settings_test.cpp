// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/traction_settings.h"

#include <gtest/gtest.h>

#include <set>

namespace zelvar::sim {
namespace {

TEST(TractionSettingsTest, EachRowFitsTheLine) {
    constexpr unsigned kAllTypes = kVdF | kVd60 | kQlrxS;
    std::set<int> parameters;
    std::set<std::string_view> names;
    for (const TractionSetting& setting : kTractionSettings) {
        SCOPED_TRACE(setting.name);
        EXPECT_TRUE(parameters.insert(setting.parameter).second);
        EXPECT_TRUE(names.insert(setting.name).second);
        EXPECT_GE(setting.parameter, 1);
        EXPECT_LE(setting.parameter, 63) << "above it is the bit of the permanent memory";
        EXPECT_LE(setting.min, setting.factory);
        EXPECT_GE(setting.max, setting.factory);
        EXPECT_LE(setting.max, 127) << "a data value";
        EXPECT_NE(setting.types & kAllTypes, 0U);
        for (const Word& word : setting.words) {
            EXPECT_GE(word.value, setting.min) << word.text;
            EXPECT_LE(word.value, setting.max) << word.text;
        }
    }
}

TEST(TractionSettingsTest, FactoryValuesStandAtTheirParameters) {
    EXPECT_EQ(FactoryValues(),
              (TractionSettings{0, 6, 40, 20, 1, 2, 3, 4, 5, 8, 1, 0, 1, 35, 45, 0}));
}

struct KindCase {
    TractionType type;
    std::set<int> parameters;
};

TEST(TractionSettingsTest, EachTypeOfModuleHasItsSettings) {
    const KindCase kinds[] = {
        {TractionType::kVdF, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12}},
        {TractionType::kVd60, {1, 2, 3, 4, 6, 8, 9, 10, 11}},
        {TractionType::kQlrxS, {4, 5, 6, 7, 13, 14, 15}},
    };
    for (const KindCase& kind : kinds) {
        std::set<int> parameters;
        for (const TractionSetting& setting : kTractionSettings) {
            if (setting.IsOf(static_cast<int>(kind.type))) {
                parameters.insert(setting.parameter);
            }
        }
        EXPECT_EQ(parameters, kind.parameters);
    }
}

}  // namespace
}  // namespace zelvar::sim
