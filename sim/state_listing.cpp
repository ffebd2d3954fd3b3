// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "state_listing.h"

namespace zelvar::sim {

namespace {

constexpr bool kParts[] = {false, true};

const char* PartName(bool permanent) {
    return permanent ? ".permanent=" : ".active=";
}

template <std::size_t count>
void ListSet(std::ostream& out, const char* name, const std::bitset<count>& bits) {
    out << name << '=';
    const char* separator = "";
    for (std::size_t index = 0; index < count; ++index) {
        if (bits.test(index)) {
            out << separator << index;
            separator = ",";
        }
    }
    out << '\n';
}

void ListTraction(std::ostream& out, const UnitState& state, int line) {
    for (const bool permanent : kParts) {
        const TractionSettings& settings =
            state.memories.traction[static_cast<std::size_t>(line)].Part(permanent);
        out << "traction." << line << PartName(permanent);
        for (std::size_t parameter = 1; parameter < settings.size(); ++parameter) {
            out << (parameter == 1 ? "" : ",") << int{settings[parameter]};
        }
        out << '\n';
    }
    out << "traction." << line << ".clock=" << int{state.layout.At(LineAddress(line)).clock}
        << '\n';
}

void ListPoints(std::ostream& out, const UnitState& state, int position) {
    for (const bool permanent : kParts) {
        const PointSettings& settings =
            state.memories.points[static_cast<std::size_t>(position)].Part(permanent);
        out << "points." << position << PartName(permanent)
            << "default:" << int{settings.defaultTime};
        for (std::size_t device = 0; device < settings.devices.size(); ++device) {
            const PointDevice& entry = settings.devices[device];
            if (entry != PointDevice{}) {
                out << ',' << device << ':' << int{entry.time} << '/' << int{entry.power};
            }
        }
        out << '\n';
    }
}

}  // namespace

void ListUnit(std::ostream& out, const UnitState& state) {
    out << "unit-type=" << state.layout.unitType << '\n'
        << "system-version=" << state.layout.systemVersion << '\n'
        << "protocol-version=" << state.layout.protocolVersion << '\n'
        << "fault=" << state.fault << '\n'
        << "hold=" << state.hold << '\n'
        << "stop=" << state.stopRequested << '\n'
        << "transparent=" << state.transparent << '\n';
    for (const bool permanent : kParts) {
        const UnitSettings& settings = state.memories.unit.Part(permanent);
        out << "configuration" << PartName(permanent) << int{settings.configuration} << '\n'
            << "device-mode" << PartName(permanent) << int{settings.deviceMode} << '\n';
    }
    out << "options=" << int{state.memories.options} << '\n'
        << "answer-delay=" << state.answerDelay << '\n';
    ListSet(out, "muted", state.muted);
    ListSet(out, "overcurrent", state.overcurrent);
    ListSet(out, "feedback", state.feedback);
    out << "pending-reports=" << state.reports.size() << '\n';
}

void ListMemories(std::ostream& out, const UnitState& state) {
    for (int line = 0; line < kTractionLines; ++line) {
        if (state.layout.At(LineAddress(line)).Present()) {
            ListTraction(out, state, line);
        }
    }
    for (int position = 0; position < kPointModules; ++position) {
        if (state.layout.At(PointAddress(position)).Present()) {
            ListPoints(out, state, position);
        }
    }
}

}  // namespace zelvar::sim
