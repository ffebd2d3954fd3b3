// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "sim/app/options.h"
#include "sim/app/trace.h"
#include "sim/console/console.h"
#include "sim/console/line_editor.h"
#include "sim/line/faults.h"
#include "sim/line/line_engine.h"
#include "sim/line/serial_line.h"
#include "sim/unit/central_unit.h"

namespace zelvar::sim {

/// The running program: waits for the line, the console, the next byte's time and the end.
class Server {
  public:
    explicit Server(const Options& options);

    /// Serves until `quit` or a signal; the exit code.
    int Run();

  private:
    bool OpenLine();
    void ServeLine();
    void ServeConsole();
    void RunLine(const std::string& line);
    void Act(ConsoleAction action);
    void StartTrace(Trace::Polls polls);
    /// How to go on from here, for a user at a terminal.
    void PrintWelcome();
    /// Text that ends with a line feed.
    void Print(const std::string& text);

    Options options_;
    CentralUnit unit_;
    Faults faults_;
    LineEngine engine_;
    SerialLine line_;
    std::unique_ptr<LineEditor> editor_;  // only for a user at a terminal
    std::string input_;                   // of the console, up to the next line feed
    bool consoleOpen_ = true;
    bool done_ = false;
    int exitCode_ = 0;
};

}  // namespace zelvar::sim
