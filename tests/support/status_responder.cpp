// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/status_responder.h"

namespace zelvar::testing {

namespace {

constexpr int kProtocolVersion = 2;
constexpr int kStatusTable = 3;
constexpr int kCentralUnit = 10;
constexpr int kModuleStatus = 11;

}  // namespace

std::vector<int> VersionBytes(int version) {
    return {(version / 1000 << 3) + version / 100 % 10, (version / 10 % 10 << 3) + version % 10};
}

Bytes StatusResponder::operator()(const SentFrame& frame) const {
    if (silent.count(frame.values) > 0) {
        return {};
    }
    const auto other = instead.find(frame.values);
    return WireFrame(other != instead.end() ? other->second : ReplyTo(frame.values), header);
}

std::vector<int> StatusResponder::ReplyTo(const std::vector<int>& request) const {
    if (request.size() < 2 || request[0] != 1) {
        return {};
    }
    std::vector<int> reply{1, request[1]};
    std::vector<int> version;
    if (request[1] == kProtocolVersion && protocolVersion) {
        version = VersionBytes(*protocolVersion);
    } else if (request[1] == kCentralUnit && unit) {
        reply.push_back(unit->type);
        version = VersionBytes(unit->version);
    } else if (request[1] == kModuleStatus) {
        return ModuleReply(request[2]);
    } else if (request[1] == kStatusTable) {
        return TableReply(request[2]);
    } else {
        return {};
    }
    reply.insert(reply.end(), version.begin(), version.end());
    return reply;
}

std::vector<int> StatusResponder::ModuleReply(int address) const {
    const auto module = modules.find(address);
    if (module == modules.end()) {
        return {};
    }
    const std::vector<int> version = VersionBytes(module->second.version);
    return {1, kModuleStatus, address, module->second.status, version[0], version[1]};
}

std::vector<int> StatusResponder::TableReply(int table) const {
    const auto nibbles = tables.find(table);
    if (nibbles == tables.end()) {
        return {};
    }
    std::vector<int> reply{1, kStatusTable};
    for (const int nibble : nibbles->second) {
        // The table's number stands in the first byte alone; the others carry noise there.
        const bool first = reply.size() == 2;
        reply.push_back((first ? table << 4 : 0x70) + nibble);
    }
    return reply;
}

StatusResponder MixedLayout() {
    StatusResponder layout;
    layout.modules = {
        {32 + 0, {kHere + kVdFType, 1021}},
        {32 + 5, {kHere + kVd60Type + kIdle, 2000}},
        {32 + 19, {kHere + kVd60Type, 1020}},
        {0 + 19, {kHere + kVd60Type + kFaultOrHold, 1030}},
        {32 + 20, {kHere + kQlrxType + kFaultOrHold, 0}},
        {32 + 31, {kHere + 5, 1000}},
        {64 + 0, {kHere, 1100}},
        {64 + 17, {kHere + kFaultOrHold, 0}},
        {96 + 2, {kHere + kFaultOrHold, 0}},
        {96 + 17, {kHere + kIdle, 1010}},
    };
    return layout;
}

}  // namespace zelvar::testing
