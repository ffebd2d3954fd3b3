// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <set>
#include <vector>

#include "support/doubles.h"

namespace zelvar::testing {

/// The two bytes with which a version travels. @param version such as 3112 for 3.11 B
std::vector<int> VersionBytes(int version);

// Status bytes of modules: the type bits 0-2 and the flags above them.
constexpr int kVdFType = 0;
constexpr int kVd60Type = 1;
constexpr int kQlrxType = 2;
constexpr int kHere = 0x08;
constexpr int kIdle = 0x10;
constexpr int kFaultOrHold = 0x20;

// Headers of a unit in a state, for `StatusResponder::header`.
constexpr int kHeaderOfHold = 0x10;
constexpr int kHeaderOfFault = 0x20;

/// A central unit with modules that answers the requests of both status views. What is left out of
/// the description gets the empty reply, which the program ignores.
///
///     StatusResponder unit;
///     unit.modules[32 + 5] = {kHere + kVdFType, 1020};
///     port.responder = std::ref(unit);
struct StatusResponder {
    struct Module {
        /// Status byte.
        int status = kHere;
        /// Such as 1021 for 1.02 A; 0 for a module that reports none.
        int version = 1020;
    };

    struct Unit {
        int type = 3;
        int version = 1020;
    };

    /// Goes into the header of every reply: the Hold and Fault bits.
    int header = 0;
    /// Nothing: the request for it is answered by the empty reply.
    std::optional<int> protocolVersion = 3112;
    /// Nothing: the request for it is answered by the empty reply.
    std::optional<Unit> unit = Unit{};
    /// By address byte: 32.. traction modules, 0.. secondary units, 64.. point-motor modules,
    /// 96.. signal controllers; 16 more on channel 1.
    std::map<int, Module> modules;
    /// The low nibbles of the tables of the Classic View, by table number.
    std::map<int, std::vector<int>> tables;
    /// Requests that get no reply at all, as data values.
    std::set<std::vector<int>> silent;
    /// Replies that differ from what the description gives, by the request's data values.
    std::map<std::vector<int>, std::vector<int>> instead;

    Bytes operator()(const SentFrame& frame) const;

  private:
    std::vector<int> ReplyTo(const std::vector<int>& request) const;
    std::vector<int> ModuleReply(int address) const;
    std::vector<int> TableReply(int table) const;
};

/// A KB-G with all four families on both channels, a VD60 pair among them, and several states:
/// line 0 a VD-F, 5 a VD60 without and 19 one with a secondary unit, 20 a faulty QLRX-s, 31 of
/// unknown type; point-motor modules 0 and 9; signal controllers 2 and 17.
StatusResponder MixedLayout();

}  // namespace zelvar::testing
