// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

#include "support/command_arguments.h"

namespace zelvar::testing {
namespace {

TEST(AllCommandsTest, HaveNamesOfTheirOwn) {
    std::set<std::string_view> names;
    for (const CommandRow& row : AllCommands()) {
        EXPECT_TRUE(names.insert(row.name).second) << row.name;
        EXPECT_EQ(FindCommand(row.name), &row);
    }
    EXPECT_EQ(FindCommand("no-such-command"), nullptr);
}

TEST(AllCommandsTest, FitAFrameWithAllTheirArguments) {
    for (const CommandRow& row : AllCommands()) {
        ForEachArguments(row, [&row](const Arguments& arguments) {
            const Command command = row.build(arguments);
            ASSERT_LE(command.count, kMaxDataBytes) << row.name;
            for (std::size_t i = 0; i < command.count; ++i) {
                ASSERT_LT(command.values.at(i), kPayloadRange) << row.name << " value " << i;
            }
        });
    }
}

TEST(AllCommandsTest, EveryParameterMakesADifference) {
    for (const CommandRow& row : AllCommands()) {
        Arguments smallest;
        for (const CommandParameter& parameter : row.parameters) {
            EXPECT_LT(parameter.minimum, parameter.maximum) << row.name << ' ' << parameter.name;
            smallest.push_back(parameter.minimum);
        }
        for (std::size_t i = 0; i < smallest.size(); ++i) {
            Arguments other = smallest;
            ++other[i];
            EXPECT_NE(row.build(other), row.build(smallest))
                << row.name << ' ' << row.parameters[i].name;
        }
    }
}

}  // namespace
}  // namespace zelvar::testing
