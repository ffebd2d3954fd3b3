// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/serial_port.h"
#include "sim/line/faults.h"
#include "sim/line/line_engine.h"
#include "sim/unit/central_unit.h"
#include "sim/unit/layout.h"
#include "support/doubles.h"

namespace zelvar::twin {

/// A command that reached the unit whole.
struct Received {
    sim::Payload data;
    bool stop = false;
};

/// The program's serial port with the simulated unit at its other end, in one process. Bytes take
/// no time; the unit's own delay passes on the test's clock, and only while the program waits.
class TwinPort : public SerialPort {
  public:
    /// Whatever the number, the unit is behind this port.
    static constexpr int kNumber = 1;

    TwinPort(testing::FakeClock& clock, const sim::Layout& layout);

    /// Puts a fresh unit with this layout on the line.
    void Connect(const sim::Layout& layout);

    bool Open(int number, int baudRate) override;
    void Close() override;
    bool IsOpen() const override { return open_; }
    void SendAndWait(std::span<const std::uint8_t> bytes, double seconds) override;
    std::size_t Read(std::span<std::uint8_t> buffer) override;
    void SetLostHandler(std::function<void()>) override {}

    sim::CentralUnit& unit() { return *unit_; }
    sim::UnitState& state() { return unit_->state(); }
    sim::Faults& faults() { return *faults_; }

    /// Lets time pass on both sides.
    void Pass(std::chrono::milliseconds time);
    void Reboot() { unit_->Reboot(Now()); }

    /// What the unit says of itself under a name; empty when it does not mention it.
    std::string Listed(const std::string& name);

    /// Every command since the last look, the polls left out.
    std::vector<Received> TakeCommands();
    /// Their names in the unit's words.
    std::vector<std::string> TakeNames();
    int polls() const { return polls_; }

    /// Fails the test when a frame was broken, unknown to the unit or sent as a repetition.
    void ExpectNothingMisunderstood();

  private:
    /// The unit's clock begins when it is connected.
    sim::Time Now() const;
    void Note(const std::vector<std::uint8_t>& bytes);

    testing::FakeClock& clock_;
    std::unique_ptr<sim::CentralUnit> unit_;
    std::unique_ptr<sim::Faults> faults_;
    std::unique_ptr<sim::LineEngine> line_;
    std::deque<std::uint8_t> incoming_;
    std::vector<Received> commands_;
    int polls_ = 0;
    double connectedAt_ = 0;
    bool open_ = false;
};

}  // namespace zelvar::twin
