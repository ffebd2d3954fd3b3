// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "harness/driven_program.h"
#include "harness/simulator.h"

namespace zelvar::tour {

/// Where the tour goes and how it looks.
struct Journey {
    std::string folder;   // takes the pictures; it must exist
    std::string palette;  // "light" or "dark"
};

// Windows of the program, by object name.
inline constexpr char kMainWindow[] = "frmZelvarConfig";
inline constexpr char kStatusView[] = "dlgZelvarStatus44";
inline constexpr char kClassicView[] = "dlgZelvarStatus";
inline constexpr char kFeedbackMonitor[] = "dlgZelvarFeedback";
inline constexpr char kAlarmLog[] = "dlgAlarmLog";
inline constexpr char kMessageLog[] = "dlgMsgLog";
/// The message box that is open.
inline constexpr char kBox[] = "box";

// Layouts that come with the simulated unit.
inline constexpr char kClub[] = "club";
inline constexpr char kStarter[] = "starter";

// Console commands that set how fast simulated time passes.
inline constexpr char kFast[] = "time-factor 20";
inline constexpr char kFrozen[] = "time-factor 0";

/// The program and a simulated layout, and what a step does with them. Every routine that waits
/// throws std::runtime_error when what it waits for does not come.
class Tour {
  public:
    explicit Tour(Journey journey);

    /// Starts the program again, and a unit with a layout behind port 1.
    void Start(const std::string& layout, const std::vector<std::string>& options = {});
    /// Opens port 1.
    void Connect();
    /// Lets the layout run: unticks "Stop".
    void LetRun();
    /// Presses "Status" and waits for a view.
    void RequestStatus(const std::string& view);

    e2e::DrivenProgram& Program() { return *program_; }
    e2e::Simulator& Unit() { return *unit_; }

    /// Waits until the probe answers a question so.
    void Await(const std::vector<std::string>& question, const std::string& answer);
    void AwaitText(const std::string& control, const std::string& text) {
        Await({"text", control}, text);
    }
    void AwaitWindow(const std::string& window) { Await({"window", window}, "visible"); }
    /// Waits until a control has a colour such as "#00ff00" for a role of the palette.
    void AwaitColour(const std::string& control, const std::string& role,
                     const std::string& colour) {
        Await({"colour", control, role}, colour);
    }
    /// Waits for a message box with a text in it.
    void AwaitBox(const std::string& part);
    /// Waits until a condition holds. @param what for the complaint when it never does
    void AwaitThat(const std::string& what, const std::function<bool()>& holds);
    /// Lets trains run until a condition holds, and stops time there.
    void RunUntil(const std::string& what, const std::function<bool()>& holds);
    /// Whether a train is over a section of track.
    bool IsOccupied(const std::string& section);
    /// A message box must not be open.
    void ExpectNoBox();

    /// Leaves the picture of the step that runs. @param windows as they stand side by side
    void Picture(const std::vector<std::string>& windows);

    /// Goes through all steps. @return what went wrong, with the step's name; nothing when all is
    /// well
    std::optional<std::string> Run();

    /// What the looks of the pictures depend on beside the program.
    const std::string& Looks() const { return looks_; }

  private:
    Journey journey_;
    e2e::TempFolder folder_;
    std::optional<e2e::Simulator> unit_;
    std::optional<e2e::DrivenProgram> program_;
    std::string step_;
    std::string looks_;
    int starts_ = 0;
    int pictures_ = 0;
};

/// One thing to see.
struct Step {
    const char* name;  // of its picture, too
    void (*show)(Tour& tour);
};

// In the order of the tour.
std::span<const Step> StatusSteps();
std::span<const Step> ConfigureSteps();
std::span<const Step> DriveSteps();
std::span<const Step> AlarmSteps();

}  // namespace zelvar::tour
