// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <deque>
#include <functional>
#include <initializer_list>
#include <ostream>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "link/link.h"
#include "logs/message_log.h"
#include "platform/clock.h"
#include "platform/message_box.h"
#include "platform/progress.h"
#include "platform/serial_port.h"
#include "platform/timer.h"
#include "protocol/reply.h"
#include "protocol/status.h"

namespace zelvar::testing {

using Bytes = std::vector<std::uint8_t>;

/// A frame as it stands on the wire. @param header without the count and the mark
Bytes WireFrame(std::initializer_list<int> values, int header = 0);
Bytes WireFrame(const std::vector<int>& values, int header = 0);

/// A reply as the program has received it. @param bytes a complete frame
Reply ReplyOf(const Bytes& bytes);

/// A reply with this header byte. @param values those that the header counts; missing ones are 0
Reply MakeReply(int header, std::vector<int> values);

/// The reply without data.
inline Bytes EmptyReply() {
    return WireFrame({});
}

/// A clock that stands until a wait moves it.
class FakeClock : public Clock {
  public:
    double SecondsSinceMidnight() const override { return now; }
    double now = 36000;
};

class FakeTimer : public Timer {
  public:
    void SetEnabled(bool value) override { enabled = value; }
    bool IsEnabled() const override { return enabled; }
    bool enabled = false;
};

/// One frame that the program has sent.
struct SentFrame {
    Bytes wire;
    /// The data values with bit 7 cleared.
    std::vector<int> values;

    int Header() const { return wire.front(); }
    bool operator==(const SentFrame& other) const { return wire == other.wire; }
};

/// A serial line whose other end answers as scripted. Waiting moves the clock instead of sleeping.
class ScriptedPort : public SerialPort {
  public:
    /// Gives what comes back for a frame; nothing for silence.
    using Responder = std::function<Bytes(const SentFrame&)>;

    explicit ScriptedPort(FakeClock& clock) : clock_(clock) {}

    bool Open(int portNumber, int baudRate) override;
    void Close() override;
    bool IsOpen() const override { return open; }
    void SendAndWait(std::span<const std::uint8_t> bytes, double seconds) override;
    std::size_t Read(std::span<std::uint8_t> buffer) override;
    void SetLostHandler(std::function<void()> handler) override { onLost = std::move(handler); }

    /// Bytes that arrive so many seconds from now.
    void Arrive(const Bytes& bytes, double delay = 0);

    /// The device is gone from here on, as if it had been pulled.
    void Vanish();

    /// The data values of every frame sent, in order.
    std::vector<std::vector<int>> SentValues() const;

    /// Forgets what was sent.
    void ForgetSent();

    // What a test sets and looks at.
    Responder responder = [](const SentFrame&) { return EmptyReply(); };
    double replyDelay = 0;
    /// When not empty, answers come from here first, one for each frame.
    std::deque<Bytes> replies;
    /// The port numbers that can be opened.
    std::set<int> openable = {1, 2, 3};
    bool open = false;
    int number = 0;
    int baud = 0;
    Bytes written;
    std::vector<SentFrame> sent;
    /// "open 3 19200" and "close", in order.
    std::vector<std::string> history;
    std::function<void()> onLost;

  private:
    void Send(std::uint8_t byte);
    bool HasArrived() const;

    FakeClock& clock_;
    std::deque<std::pair<double, std::uint8_t>> incoming_;
    Bytes partial_;
};

struct ShownBox {
    std::string text;
    BoxIcon icon = BoxIcon::Plain;
    BoxButtons buttons = BoxButtons::Ok;

    bool operator==(const ShownBox&) const = default;
};

void PrintTo(const ShownBox& box, std::ostream* out);

/// Records what was asked and gives the prepared answers. A question without a prepared answer, or
/// with one that is not on offer, fails the test.
class FakeMessageBox : public MessageBox {
  public:
    BoxAnswer Ask(const std::string& text, BoxIcon icon, BoxButtons buttons) override;

    std::vector<ShownBox> shown;
    std::deque<BoxAnswer> answers;
    /// Runs while the box is open.
    std::function<void()> whileShown;
};

class FakeProgress : public Progress {
  public:
    void Begin(const std::string& caption, int steps) override;
    void Step() override { ++done; }
    void End() override { ++ended; }
    void OfferCancel() override { ++offered; }
    bool IsCancelled() override { return offered > 0 && cancelAfterAsked-- <= 0; }

    std::vector<std::pair<std::string, int>> begun;
    int done = 0;
    int ended = 0;
    int offered = 0;
    /// So many looks at the offered way out find it not taken.
    int cancelAfterAsked = 1000000;
};

class FakeLinkView : public LinkView {
  public:
    bool IsStopTicked() const override { return stopTicked; }
    void ShowSystemState(SystemState state) override { states.push_back(state); }
    void FrameSent(const FrameBytes& frame) override { log += LogFrameSent(frame); }
    void ReplyReceived(const FrameBytes& frame, const Reply& reply) override {
        log += LogReplyReceived(frame, reply);
    }
    void NoReply() override { log += LogNoReply(); }

    bool stopTicked = false;
    std::vector<SystemState> states;
    std::string log;
};

/// A link with everything around it doubled, its port open.
class LinkFixture : public ::testing::Test {
  protected:
    LinkFixture() { port.open = true; }

    FakeClock clock;
    FakeTimer timer;
    ScriptedPort port{clock};
    FakeMessageBox messageBox;
    FakeLinkView view;
    FakeProgress progress;
    Link link{port, timer, clock, messageBox, view};
};

inline ShownBox Exclamation(const std::string& text) {
    return {text, BoxIcon::Exclamation, BoxButtons::Ok};
}

}  // namespace zelvar::testing
