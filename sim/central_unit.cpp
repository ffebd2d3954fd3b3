// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "central_unit.h"

#include <sstream>

#include "commands.h"

namespace zelvar::sim {

namespace {

template <std::size_t count>
std::string ListSet(const std::bitset<count>& bits) {
    std::ostringstream out;
    for (std::size_t index = 0; index < count; ++index) {
        if (bits.test(index)) {
            out << (out.tellp() == std::streampos(0) ? "" : ",") << index;
        }
    }
    return out.str();
}

}  // namespace

CentralUnit::CentralUnit(const Layout& layout) {
    state_.layout = layout;
}

bool CentralUnit::IsKnown(const Payload& command) {
    return FindCommand(command) != nullptr;
}

std::string_view CentralUnit::CommandName(const Payload& command) {
    const CommandRow* row = FindCommand(command);
    return row == nullptr ? std::string_view() : row->name;
}

void CentralUnit::NoteHeader(const CommandFrame& command) {
    ++frames_;
    state_.stopRequested = command.Stop();
    if (lastToggle_ == command.Toggle()) {
        ++repeatedToggles_;
    }
    lastToggle_ = command.Toggle();
}

std::optional<Reply> CentralUnit::Handle(const CommandFrame& command, Time) {
    NoteHeader(command);
    Payload data;
    if (const CommandRow* row = FindCommand(command.data); row != nullptr) {
        ++carriedOut_[row->name];
        data = row->run(state_, command.data).value_or(Payload{});
    } else {
        ++unknownCommands_;
    }
    const int bits = (state_.fault ? kHeaderFaultBit : 0) | (state_.hold ? kHeaderHoldBit : 0);
    return Reply{data, static_cast<std::uint8_t>(bits)};
}

std::string CentralUnit::Describe(Time) {
    std::ostringstream out;
    out << "unit-type=" << state_.layout.unitType << '\n'
        << "system-version=" << state_.layout.systemVersion << '\n'
        << "protocol-version=" << state_.layout.protocolVersion << '\n'
        << "fault=" << state_.fault << '\n'
        << "hold=" << state_.hold << '\n'
        << "stop=" << state_.stopRequested << '\n'
        << "overcurrent=" << ListSet(state_.overcurrent) << '\n'
        << "feedback=" << ListSet(state_.feedback) << '\n'
        << "pending-reports=" << state_.reports.size() << '\n'
        << "frames=" << frames_ << '\n'
        << "broken-frames=" << brokenFrames_ << '\n'
        << "unknown-commands=" << unknownCommands_ << '\n'
        << "repeated-toggles=" << repeatedToggles_ << '\n';
    for (const auto& [name, times] : carriedOut_) {
        out << "command." << name << '=' << times << '\n';
    }
    return out.str();
}

}  // namespace zelvar::sim
