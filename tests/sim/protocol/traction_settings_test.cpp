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
    const TractionSettings values = FactoryValues();
    EXPECT_EQ(values[0], 0);
    EXPECT_EQ(values[1], 6);
    EXPECT_EQ(values[14], 45);
}

}  // namespace
}  // namespace zelvar::sim
