// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "link/link.h"
#include "platform/clock.h"
#include "platform/progress.h"
#include "status/module_registry.h"
#include "status/system_report.h"

namespace zelvar {

/// How long the wait for the protocol version lasts before the user is offered a way out, in
/// seconds.
constexpr double kCancelOfferedAfter = 2.0;

// The requests of the status request; what they ask for stands behind the leading 1.
Command ProtocolVersionRequest();
Command CentralUnitRequest();
/// @param address the module's address byte, 0..127
Command ModuleStatusRequest(int address);
/// @param table 0 DIP switches, 2 presence, 3 faults, 4 types, 6 point-motor modules
Command StatusTableRequest(int table);

/// Asks the central unit and every module slot for type, state and version, one exchange after
/// the other, and fills the module registry.
class StatusRequest {
  public:
    StatusRequest(Link& link, Progress& progress, const Clock& clock, ModuleRegistry& registry);

    /// @param classicAsked the user wants the Classic View whatever the protocol version
    /// @return nothing when the first request fails or its wait is cancelled; the registry is
    /// unchanged then.
    std::optional<SystemStatus> Run(bool classicAsked);

  private:
    bool AskProtocolVersion();
    bool ReadProtocolVersion();
    void AskCentralUnit();
    void AskNewView();
    void AskTractionModule(int line);
    void AskSecondaryUnit(int line);
    void AskPointMotorModule(int position);
    void AskSignalController(int index);
    void AskClassicView();
    void AskDipSwitches();
    void AskClassicTractionModules();
    void AskClassicPointMotorModules();
    bool AskModule(int address);
    /// @param length the number of data bytes that the answer must have
    bool AskTable(int table, int length);
    void ForEachTableBit(int bytes, const std::function<void(int module, bool set)>& use) const;
    bool ReplyIs(int length, int request) const;
    std::uint8_t ReplyAt(int index) const;

    Link& link_;
    Progress& progress_;
    const Clock& clock_;
    ModuleRegistry& registry_;
    SystemStatus status_;
};

}  // namespace zelvar
