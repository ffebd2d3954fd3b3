// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string_view>

#include "sim/protocol/pattern.h"
#include "sim/protocol/phrase.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// One shape of reply and its words. To add a shape, add a row to the table.
struct ReplyRow {
    std::string_view name;
    FramePattern pattern;
    Phrase words;
    /// Whether it is what `command` asked for; null for reports.
    bool (*answers)(const Payload& command, const Payload& reply) = nullptr;
};

std::span<const ReplyRow> ReplyTable();

/// The first row that fits; null if there is none.
const ReplyRow* FindReply(const Payload& reply);

/// The type that a status reply gives for a module that is there.
struct ReportedType {
    int address;
    int type;
};
std::optional<ReportedType> TypeInStatus(const Payload& reply);

}  // namespace zelvar::sim
