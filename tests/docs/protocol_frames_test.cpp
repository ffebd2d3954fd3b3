// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <map>
#include <optional>
#include <set>
#include <sstream>
#include <string>

#include "document.h"
#include "link/link.h"
#include "link/reply_dispatch.h"
#include "protocol/frame.h"
#include "sim/console/console.h"
#include "sim/line/faults.h"
#include "sim/protocol/wire.h"
#include "sim/unit/central_unit.h"
#include "sim/unit/commands.h"
#include "sim/unit/layout.h"
#include "support/doubles.h"

namespace zelvar::testing {

namespace {

constexpr char kDocument[] = "docs/protocol.md";

/// A line of a block of worked frames: the bytes of a command, those of its reply, the command's
/// name and, where the reply is of a kind that the program knows by itself, that kind.
struct WorkedFrame {
    Bytes sent;
    /// Empty when there is none.
    Bytes reply;
    std::string name;
    std::string kind;
};

const std::map<std::string, ReplyKind> kKinds{
    {"traction-configuration", ReplyKind::VDConfig}, {"unit-configuration", ReplyKind::KBConfig},
    {"block-speed", ReplyKind::BlockSpeed},          {"feedback", ReplyKind::Feedback},
    {"overcurrent", ReplyKind::Overcurrent},
};

/// The modules that the document says its examples talk to.
sim::Layout DocumentedLayout() {
    using sim::ModuleState;
    constexpr int kVdF = static_cast<int>(sim::TractionType::kVdF);
    constexpr int kVd60 = static_cast<int>(sim::TractionType::kVd60);
    constexpr int kQlrxS = static_cast<int>(sim::TractionType::kQlrxS);
    sim::Layout layout;
    const auto put = [&layout](int address, int type, ModuleState state, int version, int mode) {
        layout.At(address) = {sim::StatusByte(type, state), version};
        layout.At(address).settings[sim::kMasterSlaveParameter] = static_cast<std::uint8_t>(mode);
    };
    put(32 + 5, kVdF, ModuleState::kOk, 1023, 1);
    put(32 + 8, kQlrxS, ModuleState::kFault, 1102, 0);
    put(32 + 19, kVd60, ModuleState::kOk, 2014, 2);
    put(0 + 19, kVd60, ModuleState::kIdle, 2014, 2);
    put(64 + 17, 0, ModuleState::kHold, 1201, 0);
    put(96 + 2, 0, ModuleState::kOk, 1005, 0);
    return layout;
}

std::string HexText(const Bytes& bytes) {
    std::string text;
    for (const std::uint8_t byte : bytes) {
        text += FormatHexByte(byte);
    }
    return text;
}

WorkedFrame ParseWorkedFrame(const std::string& line) {
    WorkedFrame worked;
    std::istringstream words(line);
    Bytes* bytes = nullptr;
    for (std::string word; words >> word;) {
        if (word == ">>") {
            bytes = &worked.sent;
        } else if (word == "<<") {
            bytes = &worked.reply;
        } else if (bytes != nullptr && word.size() == 2 &&
                   word.find_first_not_of("0123456789ABCDEF") == std::string::npos) {
            bytes->push_back(static_cast<std::uint8_t>(std::stoi(word, nullptr, 16)));
        } else if (worked.name.empty()) {
            worked.name = word;
        } else {
            worked.kind = word;
        }
    }
    return worked;
}

/// The lines of all blocks of worked frames; each block begins with a unit of its own.
std::vector<FencedBlock> WorkedBlocks() {
    std::vector<FencedBlock> blocks;
    for (const FencedBlock& block : FencedBlocksOf(ReadDocument(kDocument))) {
        if (block.language == "frames") {
            blocks.push_back(block);
        }
    }
    return blocks;
}

bool IsWorkedFrame(const DocumentLine& line) {
    return line.text.starts_with(">>");
}

/// What the program sends and logs for the values of a worked frame.
class ProgramSide : public LinkFixture {
  public:
    void TestBody() override {}

    void Check(const WorkedFrame& worked) {
        Command command;
        command.count = worked.sent[0] & kHeaderCountMask;
        for (std::size_t i = 0; i < command.count; ++i) {
            command.values[i] = worked.sent[i + 1] & kPayloadMask;
        }
        view.stopTicked = (worked.sent[0] & kHeaderStop) != 0;
        if ((worked.sent[0] & kHeaderToggle) != 0) {
            link.Transact(kEmptyTransaction);
        }
        port.replies = {worked.reply};
        view.log.clear();
        const std::optional<Reply> reply = link.Transact(command);
        EXPECT_EQ(reply.has_value(), !worked.reply.empty());
        EXPECT_EQ(HexText(port.sent.back().wire), HexText(worked.sent));
        const bool logged = command.count > 0 || worked.reply.size() > 2;
        if (logged && !worked.reply.empty()) {
            const std::string unused((kMaxDataBytes - command.count) * 3, ' ');
            EXPECT_EQ(view.log, ">>" + HexText(worked.sent) + unused + "  <<" +
                                    HexText(worked.reply) + "\r\n");
        }
        CheckKind(worked, reply);
    }

  private:
    static void CheckKind(const WorkedFrame& worked, const std::optional<Reply>& reply) {
        for (const auto& [name, kind] : kKinds) {
            EXPECT_EQ(reply && MatchesReply(kind, *reply), worked.kind == name) << name;
        }
        EXPECT_TRUE(worked.kind.empty() || kKinds.count(worked.kind) == 1) << worked.kind;
    }
};

/// What the simulated unit makes of a worked frame.
class UnitSide {
  public:
    void Do(const std::string& consoleLine) {
        sim::ConsoleContext context{unit_, faults_};
        const sim::ConsoleResult result = sim::RunConsoleLine(context, consoleLine);
        EXPECT_TRUE(result.text.starts_with("ok")) << result.text;
    }

    void Check(const WorkedFrame& worked) {
        sim::FrameParser parser;
        sim::FrameParser::Outcome outcome = sim::FrameParser::Outcome::kNothing;
        for (const std::uint8_t byte : worked.sent) {
            outcome = parser.Push(byte);
        }
        ASSERT_EQ(outcome, sim::FrameParser::Outcome::kFrame);
        EXPECT_EQ(sim::CentralUnit::CommandName(parser.frame().data), worked.name);
        const std::optional<sim::Reply> reply = unit_.Handle(parser.frame(), sim::Time(0));
        const Bytes bytes = reply ? sim::EncodeFrame(reply->data, reply->headerBits) : Bytes();
        EXPECT_EQ(HexText(bytes), HexText(worked.reply)) << "the unit's own reply stands first";
    }

  private:
    sim::CentralUnit unit_{DocumentedLayout()};
    sim::Faults faults_;
};

TEST(ProtocolDocument, EveryWorkedFrameIsWhatProgramAndUnitSay) {
    int frames = 0;
    for (const FencedBlock& block : WorkedBlocks()) {
        UnitSide unit;
        for (const DocumentLine& line : block.lines) {
            SCOPED_TRACE("line " + std::to_string(line.number) + ": " + line.text);
            if (line.text.starts_with("$ ")) {
                unit.Do(line.text.substr(2));
            } else if (IsWorkedFrame(line)) {
                const WorkedFrame worked = ParseWorkedFrame(line.text);
                ASSERT_GE(worked.sent.size(), 2U);
                ProgramSide().Check(worked);
                unit.Check(worked);
                ++frames;
            } else {
                EXPECT_TRUE(line.text.empty() || line.text.starts_with("# "));
            }
        }
    }
    EXPECT_GT(frames, 0);
}

TEST(ProtocolDocument, EveryCommandOfTheUnitIsNamedAndHasAWorkedFrame) {
    std::set<std::string> worked;
    for (const FencedBlock& block : WorkedBlocks()) {
        for (const DocumentLine& line : block.lines) {
            if (IsWorkedFrame(line)) {
                worked.insert(ParseWorkedFrame(line.text).name);
            }
        }
    }
    std::set<std::string> named;
    for (const DocumentLine& line : ProseOf(ReadDocument(kDocument))) {
        for (const std::string& word : Between(line.text, "`")) {
            named.insert(word);
        }
    }
    for (const auto& table : sim::CommandTables()) {
        for (const sim::CommandRow& row : table) {
            EXPECT_TRUE(worked.count(std::string(row.name)) == 1) << row.name;
            EXPECT_TRUE(named.count(std::string(row.name)) == 1) << row.name;
        }
    }
}

TEST(ProtocolDocument, EveryKindOfReplyHasAWorkedFrame) {
    std::set<std::string> worked;
    for (const FencedBlock& block : WorkedBlocks()) {
        for (const DocumentLine& line : block.lines) {
            if (IsWorkedFrame(line)) {
                worked.insert(ParseWorkedFrame(line.text).kind);
            }
        }
    }
    for (const auto& [name, kind] : kKinds) {
        EXPECT_EQ(worked.count(name), 1U) << name;
    }
}

}  // namespace

}  // namespace zelvar::testing
