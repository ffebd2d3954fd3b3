// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "twin/twin_port.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <sstream>

#include "sim/console/state_dump.h"

namespace zelvar::twin {

namespace {

constexpr double kNanoseconds = 1e9;
constexpr std::chrono::milliseconds kUnitDelay{1};

}  // namespace

TwinPort::TwinPort(testing::FakeClock& clock, const sim::Layout& layout) : clock_(clock) {
    Connect(layout);
}

void TwinPort::Connect(const sim::Layout& layout) {
    connectedAt_ = clock_.now;
    unit_ = std::make_unique<sim::CentralUnit>(layout);
    faults_ = std::make_unique<sim::Faults>();
    line_ = std::make_unique<sim::LineEngine>(*unit_, *faults_, kUnitDelay);
    line_->SetBaud(0);
    line_->SetTrace([this](bool sent, std::span<const std::uint8_t> bytes) {
        if (!sent) {
            Note({bytes.begin(), bytes.end()});
        }
    });
    incoming_.clear();
}

bool TwinPort::Open(int number, int /*baudRate*/) {
    open_ = number == kNumber;
    return open_;
}

void TwinPort::Close() {
    open_ = false;
    line_->Reset();
    incoming_.clear();
}

std::size_t TwinPort::Read(std::span<std::uint8_t> buffer) {
    const std::vector<std::uint8_t> due = line_->TakeDue(Now());
    incoming_.insert(incoming_.end(), due.begin(), due.end());
    std::size_t count = 0;
    for (; open_ && count < buffer.size() && !incoming_.empty(); ++count) {
        buffer[count] = incoming_.front();
        incoming_.pop_front();
    }
    return count;
}

void TwinPort::SendAndWait(std::span<const std::uint8_t> bytes, double seconds) {
    if (!open_) {
        return;
    }
    line_->Receive(bytes, Now());
    if (seconds == 0) {
        return;
    }
    const double until = clock_.now + seconds;
    const std::optional<sim::Time> due = line_->NextDue();
    const double arrival =
        due ? connectedAt_ + static_cast<double>(due->count()) / kNanoseconds : until;
    // Waiting for nothing takes a little more than asked, so that a limit is passed.
    constexpr double kOversleep = 0.001;
    clock_.now = due && arrival <= until ? std::max(clock_.now, arrival) : until + kOversleep;
}

void TwinPort::Pass(std::chrono::milliseconds time) {
    clock_.now += std::chrono::duration<double>(time).count();
    unit_->Advance(Now());
}

std::string TwinPort::Listed(const std::string& name) {
    unit_->Advance(Now());
    std::istringstream lines(sim::StateDump(unit_->state()));
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with(name + "=")) {
            return line.substr(name.size() + 1);
        }
    }
    return "";
}

std::vector<Received> TwinPort::TakeCommands() {
    return std::exchange(commands_, {});
}

std::vector<std::string> TwinPort::TakeNames() {
    std::vector<std::string> names;
    for (const Received& command : TakeCommands()) {
        names.emplace_back(sim::CentralUnit::CommandName(command.data));
    }
    return names;
}

void TwinPort::ExpectNothingMisunderstood() {
    EXPECT_EQ(Listed("unknown-commands"), "0");
    EXPECT_EQ(Listed("broken-frames"), "0");
    EXPECT_EQ(Listed("repeated-toggles"), "0");
}

sim::Time TwinPort::Now() const {
    return sim::Time(std::llround((clock_.now - connectedAt_) * kNanoseconds));
}

void TwinPort::Note(const std::vector<std::uint8_t>& bytes) {
    if (bytes.size() != (bytes.front() & kHeaderCountMask) + std::size_t{2}) {
        return;  // the next frame has cut it off
    }
    Received command;
    command.stop = (bytes.front() & sim::kHeaderStopBit) != 0;
    for (std::size_t i = 1; i + 1 < bytes.size(); ++i) {
        command.data.Append(bytes[i]);
    }
    if (command.data.size() == 0) {
        ++polls_;
    } else {
        commands_.push_back(command);
    }
}

}  // namespace zelvar::twin
