// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <vector>

#include "protocol/command_row.h"
#include "protocol/reply.h"
#include "protocol/vd_type.h"
#include "protocol/version.h"

namespace zelvar {

// Polls, and what the central unit says of itself and its modules.

/// The command without data, with which the unit is asked for news.
constexpr Command kEmptyTransaction{};

/// Ends the unit's fault state.
constexpr Command kResetFault{2, {1, 0}};

Command ProtocolVersionRequest();
/// @return as `DecodeVersion` gives it; nothing when this is not the answer
std::optional<int> ReadProtocolVersion(const Reply& reply);

// The types of central units; a unit may report another code.
constexpr int kUnitKBF = 1;
constexpr int kUnitKBE = 2;
constexpr int kUnitKBG = 3;
constexpr int kUnitQlrx = 10;

/// The central unit as a status request found it.
struct CentralUnit {
    /// The code of its type, -1 until known.
    int type = -1;
    /// As `DecodeVersion` gives it, -1 until known.
    int version = -1;
};

Command CentralUnitRequest();
std::optional<CentralUnit> ReadCentralUnit(const Reply& reply);

/// A module's status byte and version.
struct ModuleStatus {
    bool isPresent = false;
    bool isIdle = false;
    /// In fault; on hold for a point-motor module.
    bool hasFaultBit = false;
    /// Of traction modules: never `VDType::Absent`.
    VDType type = VDType::Unknown;
    /// As `DecodeVersion` gives it, 0 when the module reports none.
    int version = 0;
};

/// @param address the module's address value, 0..127
Command ModuleStatusRequest(int address);
/// @return nothing when this is not the answer of the module at that address
std::optional<ModuleStatus> ReadModuleStatus(const Reply& reply, int address);

// The tables of the Classic View.
enum class StatusTable { DipSwitches = 0, Present = 2, Faults = 3, Types = 4, PointModules = 6 };

/// How many modules or switches one value of a table describes.
constexpr int kBitsPerTableValue = 4;

Command StatusTableRequest(StatusTable table);
/// @param values how many values of bits the table has
/// @return one flag for each module or switch; empty when this is not the answer
std::vector<bool> ReadStatusTable(const Reply& reply, StatusTable table, int values);

/// @param index 0..4095
/// @return the command that asks for the state of one feedback input
Command FeedbackRequest(int index);

std::vector<CommandRow> StatusCommands();

}  // namespace zelvar
