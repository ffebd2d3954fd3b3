// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "link/link.h"
#include "platform/clock.h"
#include "platform/progress.h"
#include "status/module_registry.h"
#include "status/system_report.h"

namespace zelvar {

/// How long the wait for the protocol version lasts before the user is offered a way out, in
/// seconds.
constexpr double kCancelOfferedAfter = 2.0;

/// Shows what a status request finds while it goes on.
class StatusRequestView {
  public:
    virtual ~StatusRequestView() = default;

    /// After every step, beginning with everything cleared. @param status what is known by now
    virtual void ShowStatus(const SystemStatus& status) = 0;

    // Once each, in this order; what is not reached keeps what it showed.
    virtual void ShowCentralUnit(const CentralUnit& unit) = 0;
    /// The registry has the traction modules. @param classic only the lines of the Classic View
    virtual void ListTractionModules(bool classic) = 0;
    virtual void ListPointMotorModules(bool classic) = 0;
};

/// Asks the central unit and every module slot for type, state and version, one exchange after
/// the other, and fills the module registry.
class StatusRequest {
  public:
    StatusRequest(Link& link, Progress& progress, const Clock& clock, ModuleRegistry& registry,
                  StatusRequestView& view);

    /// @param classicAsked the user wants the Classic View whatever the protocol version
    /// @return nothing when the first request fails, its wait is cancelled or the device vanishes:
    /// then the request ends where it is
    std::optional<SystemStatus> Run(bool classicAsked);

  private:
    bool AskProtocolVersion();
    bool TakeProtocolVersion(const std::optional<Reply>& reply);
    void AskCentralUnit();
    bool AskNewView();
    bool AskTractionModules();
    void AskTractionModule(int line);
    void AskSecondaryUnit(int line);
    bool AskPointMotorModules();
    void AskPointMotorModule(int position);
    bool AskSignalControllers();
    void AskSignalController(int module);
    bool AskClassicView();
    void AskDipSwitches();
    void AskClassicPresence();
    void AskClassicTypes();
    void AskClassicFaults();
    void AskClassicPointMotorModules();
    std::optional<ModuleStatus> AskModule(int address);
    std::vector<bool> AskTable(StatusTable table, int values);
    /// Shows what a step has found. @return whether there is still a device to ask
    bool Shown();

    Link& link_;
    Progress& progress_;
    const Clock& clock_;
    ModuleRegistry& registry_;
    StatusRequestView& view_;
    SystemStatus status_;
};

}  // namespace zelvar
