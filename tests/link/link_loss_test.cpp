// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/doubles.h"

namespace zelvar::testing {
namespace {

constexpr Command kResetFault{2, {1, 0}};

enum class Stage { Flush, FirstByte, LastByte, Wait, MidReply };

/// Vanishes at a chosen moment of an exchange of `kResetFault`.
class VanishingPort : public ScriptedPort {
  public:
    using ScriptedPort::ScriptedPort;

    std::size_t Read(std::span<std::uint8_t> buffer) override {
        VanishIf(stage == Stage::Flush && written.empty());
        const bool midReply = stage == Stage::MidReply && !written.empty();
        const std::size_t count = ScriptedPort::Read(midReply ? buffer.first(1) : buffer);
        VanishIf(midReply && count > 0);
        return count;
    }
    void SendAndWait(std::span<const std::uint8_t> bytes, double seconds) override {
        ++waits;
        VanishIf(stage == Stage::FirstByte);
        if (stage == Stage::LastByte) {
            ScriptedPort::SendAndWait(bytes.first(bytes.size() - 1), 0);
            Vanish();
        }
        if (stage == Stage::Wait) {
            ScriptedPort::SendAndWait(bytes, 0);
            Vanish();
        }
        ScriptedPort::SendAndWait(open ? bytes : bytes.first(0), seconds);
    }

    Stage stage = Stage::Flush;
    int waits = 0;

  private:
    void VanishIf(bool now) {
        if (now) {
            Vanish();
        }
    }
};

struct StageRow {
    const char* name;
    Stage stage;
    std::size_t written;
};

class DeviceVanishing : public ::testing::TestWithParam<StageRow> {
  protected:
    DeviceVanishing() {
        port.open = true;
        port.stage = GetParam().stage;
        port.replyDelay = port.stage == Stage::Wait ? 1.0 : 0.0;
        timer.enabled = true;
    }

    FakeClock clock;
    FakeTimer timer;
    VanishingPort port{clock};
    FakeMessageBox messageBox;
    FakeLinkView view;
    Link link{port, timer, clock, messageBox, view};
};

TEST_P(DeviceVanishing, IsReportedOnceAndAtOnceAndNothingMoreIsSent) {
    ASSERT_TRUE(link.CheckPort());
    EXPECT_FALSE(link.Transact(kResetFault));
    EXPECT_EQ(port.written.size(), GetParam().written);
    EXPECT_LT(clock.now, 36001.5) << "it waited for a device that is gone";
    EXPECT_LE(port.waits, 1);

    // The rest of the handler.
    EXPECT_FALSE(link.Transact(kEmptyTransaction));
    EXPECT_FALSE(link.Transact(kResetFault));
    EXPECT_EQ(port.written.size(), GetParam().written);
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
    EXPECT_FALSE(timer.enabled);
    EXPECT_FALSE(link.IsOpen());
    EXPECT_TRUE(view.states.empty());

    // The next handler meets a closed port like any other.
    EXPECT_FALSE(link.CheckPort());
    EXPECT_EQ(messageBox.shown.back(), Exclamation("Please select Comm-Port"));
    EXPECT_EQ(messageBox.shown.size(), 2U);
}

INSTANTIATE_TEST_SUITE_P(Stages, DeviceVanishing,
                         ::testing::Values(StageRow{"DuringTheFlush", Stage::Flush, 0},
                                           StageRow{"AtTheFirstByte", Stage::FirstByte, 0},
                                           StageRow{"AtTheLastByte", Stage::LastByte, 3},
                                           StageRow{"DuringTheWait", Stage::Wait, 4},
                                           StageRow{"InMidReply", Stage::MidReply, 4}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(LinkFixture, ADeviceThatVanishesBehindAWholeReplyLeavesPollingOff) {
    link.Handlers().SetHandler(ReplyKind::Overcurrent, [this](const Reply&) { port.Vanish(); });
    port.replies = {WireFrame({0x33, 5})};
    EXPECT_TRUE(link.Transact(kEmptyTransaction));
    EXPECT_FALSE(timer.enabled);
    EXPECT_TRUE(messageBox.shown.empty());
}

TEST_F(LinkFixture, ADeviceThatVanishedWhileIdleAsksForAPort) {
    EXPECT_TRUE(link.Transact(kResetFault));
    port.Vanish();
    EXPECT_FALSE(link.CheckPort());
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("Please select Comm-Port")});
}

TEST_F(LinkFixture, WithThePortOpenCheckPortIsSilent) {
    EXPECT_TRUE(link.CheckPort());
    EXPECT_TRUE(messageBox.shown.empty());
}

}  // namespace
}  // namespace zelvar::testing
