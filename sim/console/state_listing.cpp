// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/state_listing.h"

#include <cstdlib>

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

void ListBlocks(std::ostream& out, const Drive& drive) {
    for (std::size_t number = 0; number < drive.blocks().size(); ++number) {
        const Block& block = drive.blocks()[number];
        const bool moves = block.speed.speed() != 0 || block.speed.target() != 0;
        if (moves || block.light || !block.forward) {
            out << "block." << number << "=speed:" << std::abs(block.speed.speed())
                << ",direction:" << (block.RunsForward() ? "forward" : "reverse")
                << ",target:" << std::abs(block.speed.target()) << ",light:" << block.light << '\n';
        }
    }
    for (const auto& [ends, inverted] : drive.links()) {
        out << "link." << ends.first << '.' << ends.second << '='
            << (inverted ? "inverted" : "straight") << '\n';
    }
}

void ListDcc(std::ostream& out, const DccDecoder& decoder, const DccLocomotive& locomotive) {
    out << "dcc." << (decoder.longAddress ? "long." : "short.") << decoder.address
        << "=steps:" << locomotive.steps << ",speed:" << locomotive.speed
        << ",direction:" << (locomotive.forward ? "forward" : "reverse")
        << ",block:" << locomotive.block << ",emergency-stop:" << locomotive.emergencyStop
        << ",functions:";
    const char* separator = "";
    for (std::size_t number = 0; number < locomotive.functions.size(); ++number) {
        if (locomotive.functions.test(number)) {
            out << separator << number;
            separator = "+";
        }
    }
    out << '\n';
}

void ListAccessories(std::ostream& out, const Accessories& accessories) {
    const auto position = [](bool thrown) { return thrown ? "thrown" : "straight"; };
    for (const auto& [device, thrown] : accessories.points) {
        out << "point." << device << '=' << position(thrown) << '\n';
    }
    for (const auto& [place, thrown] : accessories.modulePoints) {
        out << "point-of-module." << place.first << '.' << place.second << '=' << position(thrown)
            << '\n';
    }
    for (const auto& [place, aspect] : accessories.aspects) {
        out << "aspect." << place.first << '.' << place.second << '=' << aspect << '\n';
    }
    for (const auto& [output, setting] : accessories.outputs) {
        out << "output." << output << "=instruction:" << setting.instruction
            << ",parameter:" << setting.parameter << '\n';
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

void ListDrive(std::ostream& out, const UnitState& state) {
    out << "hfi=" << state.hfiLevel << '\n';
    ListBlocks(out, state.drive);
    for (const auto& [decoder, locomotive] : state.drive.dcc()) {
        ListDcc(out, decoder, locomotive);
    }
    for (const auto& [decoder, locomotive] : state.drive.mcc()) {
        out << "mcc." << decoder << "=half-steps:" << locomotive.halfSteps.speed()
            << ",target:" << locomotive.halfSteps.target() << ",functions:" << locomotive.functions
            << ",emergency-stop:" << locomotive.emergencyStop << '\n';
    }
    ListAccessories(out, state.accessories);
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
