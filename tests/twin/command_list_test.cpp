// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <set>

#include "sim/unit/commands.h"
#include "twin/builder_table.h"
#include "twin/source_scan.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

using Names = std::set<std::string>;

/// A function that makes commands but none of its own, and why it needs no row.
struct Helper {
    const char* path;
    const char* name;
    const char* reason;
};

/// In headers.
const Helper kTools[] = {
    {"test/payload.h", "CommandOf", "puts any values together; each caller is a builder"},
};

/// Out of sight of other files.
const Helper kInternal[] = {
    {"config/js_report.cpp", "Request", "part of JsDefaultTimeRequest and JsDeviceRequest"},
    {"config/master_slave_check.cpp", "ReadOf", "a traction-get; MasterSlaveTwin drives it"},
    {"config/module_commands.cpp", "Addressed", "part of CommandForVD and CommandForJs"},
    {"config/vd_settings.cpp", "ConfigCommand", "part of VDCommandOf"},
    {"status/status_request.cpp", "Request", "part of the four status requests"},
    {"test/loco_commands.cpp", "DccDrive", "part of DccSpeed and DccEstop"},
};

/// Calls whose argument names no builder, and where it comes from.
const Handover kPassedOn[] = {
    {"config/js_report.cpp", "request"},                         // of the two report requests
    {"config/module_commands.cpp", "address(command, module)"},  // one of the CommandFor functions
    {"config/vd_tab.cpp", "*command"},                           // of VDCommandOf
    {"test/dcc_page.cpp", "*command"},                           // of DccFunctions
};

struct UnreachedRow {
    const char* name;
    const char* reason;
};

/// What the unit knows and the program never sends: nothing so far.
const std::vector<UnreachedRow> kUnreached = {};

template <typename Helpers>
bool IsListed(const Helpers& helpers, const std::string& path, const std::string& name) {
    return std::any_of(std::begin(helpers), std::end(helpers), [&](const Helper& helper) {
        return path == helper.path && name == helper.name;
    });
}

Names NamesInTable() {
    Names names;
    for (const BuilderRow& row : BuilderTable()) {
        names.insert(row.builder);
    }
    return names;
}

sim::Payload PayloadOf(const Command& command) {
    sim::Payload payload;
    for (std::size_t i = 0; i < command.count; ++i) {
        payload.Append(command.values[i]);
    }
    return payload;
}

std::string Printed(const Command& command) {
    std::string text;
    for (std::size_t i = 0; i < command.count; ++i) {
        text += std::to_string(command.values[i]) + ' ';
    }
    return text;
}

TEST(CommandList, EveryBuilderOfTheProgramHasARow) {
    Names declared;
    for (const Source& source : ProgramSources()) {
        if (!source.IsHeader()) {
            continue;
        }
        for (const std::string& name : BuildersIn(source)) {
            if (!IsListed(kTools, source.path, name)) {
                declared.insert(name);
            }
        }
    }
    EXPECT_EQ(NamesInTable(), declared);
}

TEST(CommandList, WhatAFileKeepsToItselfIsNamedHere) {
    const Names known = NamesInTable();
    std::set<std::pair<std::string, std::string>> found;
    std::set<std::pair<std::string, std::string>> listed;
    for (const Source& source : ProgramSources()) {
        for (const std::string& name : BuildersIn(source)) {
            if (!source.IsHeader() && known.count(name) == 0) {
                found.emplace(source.path, name);
            }
        }
    }
    for (const Helper& helper : kInternal) {
        listed.emplace(helper.path, helper.name);
    }
    EXPECT_EQ(found, listed);
}

TEST(CommandList, NoCallMakesACommandOfItsOwn) {
    const Names known = NamesInTable();
    std::set<Handover> passedOn;
    int calls = 0;
    for (const Source& source : ProgramSources()) {
        for (const Handover& call : HandoversIn(source)) {
            ++calls;
            EXPECT_EQ(call.argument.find('{'), std::string::npos)
                << call.path << " sends values that no builder names: " << call.argument;
            const bool named = std::any_of(known.begin(), known.end(), [&](const auto& name) {
                return HasWord(call.argument, name);
            });
            if (!named) {
                passedOn.insert(call);
            }
        }
    }
    EXPECT_EQ(passedOn, std::set<Handover>(std::begin(kPassedOn), std::end(kPassedOn)));
    EXPECT_GT(calls, 40) << "the scan has found less than there was when it was written";
}

TEST(CommandList, TheUnitKnowsEveryCommandOfTheProgramByItsName) {
    for (const BuilderRow& row : BuilderTable()) {
        const sim::Payload payload = PayloadOf(row.command);
        EXPECT_TRUE(sim::CentralUnit::IsKnown(payload))
            << row.builder << ": " << Printed(row.command);
        EXPECT_EQ(sim::CentralUnit::CommandName(payload), row.inUnitsWords)
            << row.builder << ": " << Printed(row.command);
    }
}

TEST(CommandList, TheProgramReachesEveryCommandOfTheUnit) {
    std::set<const sim::CommandRow*> reached;
    for (const BuilderRow& row : BuilderTable()) {
        reached.insert(sim::FindCommand(PayloadOf(row.command)));
    }
    for (const auto table : sim::CommandTables()) {
        for (const sim::CommandRow& row : table) {
            const bool excused =
                std::any_of(kUnreached.begin(), kUnreached.end(),
                            [&](const UnreachedRow& other) { return row.name == other.name; });
            EXPECT_NE(reached.count(&row) == 1, excused)
                << row.name << (excused ? " is reached after all" : " is never sent");
        }
    }
}

}  // namespace
}  // namespace zelvar::twin
