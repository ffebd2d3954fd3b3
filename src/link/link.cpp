// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/link.h"

#include <algorithm>
#include <array>
#include <string>

namespace zelvar {

namespace {

/// Room for what a line brings between two looks at it; more is read in the next round.
constexpr std::size_t kReadSize = 64;

}  // namespace

Link::Link(SerialPort& port, Timer& pollTimer, const Clock& clock, MessageBox& messageBox,
           LinkView& view)
    : port_(port), pollTimer_(pollTimer), clock_(clock), messageBox_(messageBox), view_(view) {}

bool Link::CheckPort() {
    if (port_.IsOpen()) {
        return true;
    }
    messageBox_.Tell(std::string(kSelectPortText), BoxIcon::Exclamation);
    return false;
}

std::optional<Reply> Link::Transact(const Command& command, std::string_view errorText) {
    pollTimer_.SetEnabled(false);
    if (!port_.IsOpen()) {
        return std::nullopt;
    }
    Flush();
    const EncodedFrame frame = EncodeFrame(command, view_.IsStopTicked(), frameToggle_);
    if (!frame.isWhole) {
        // The bytes before the value that does not fit go out. This is intentional.
        port_.SendAndWait(frame.bytes.View(), 0);
        messageBox_.Tell(std::string(kOverflowText), BoxIcon::Critical);
        return std::nullopt;
    }
    view_.FrameSent(frame.bytes);
    frameToggle_ = !frameToggle_;
    const std::optional<Reply> reply = ReceiveReply(frame.bytes);
    if (!reply) {
        messageBox_.Tell(std::string(errorText.empty() ? kNoResponseText : errorText),
                         BoxIcon::Exclamation);
        view_.NoReply();
        return std::nullopt;
    }
    view_.ReplyReceived(frame.bytes, *reply);
    handlers_.Dispatch(*reply);
    if (port_.IsOpen()) {
        pollTimer_.SetEnabled(true);
    }
    return reply;
}

void Link::Flush() {
    std::array<std::uint8_t, kReadSize> discarded;
    while (port_.Read(discarded) > 0) {
    }
}

bool Link::WaitForFrame(const FrameBytes& sent, FrameReader& reader) {
    const double start = clock_.SecondsSinceMidnight();
    const double limit = start + kReplyLimit;
    // At midnight the clock falls behind the start, which ends the wait early.
    const auto timeLeftAt = [limit](double now) { return std::min(limit, kSecondsPerDay) - now; };
    port_.SendAndWait(sent.View(), timeLeftAt(start));
    std::array<std::uint8_t, kReadSize> buffer;
    for (double now = clock_.SecondsSinceMidnight(); now <= limit && now >= start;
         now = clock_.SecondsSinceMidnight()) {
        const std::size_t count = port_.Read(buffer);
        for (std::size_t i = 0; i < count; ++i) {
            if (reader.Push(buffer[i])) {
                return true;
            }
        }
        if (count == 0) {
            if (!port_.IsOpen()) {
                return false;
            }
            port_.SendAndWait({}, timeLeftAt(now));
        }
    }
    return false;
}

std::optional<Reply> Link::ReceiveReply(const FrameBytes& frame) {
    FrameReader reader;
    if (!WaitForFrame(frame, reader) || !IsSumRight(reader.Frame())) {
        return std::nullopt;
    }
    const Reply reply(reader.Frame());
    ShowStateOf(reply);
    return reply;
}

void Link::ShowStateOf(const Reply& reply) {
    if (view_.IsStopTicked()) {
        view_.ShowSystemState(SystemState::Stop);
    } else {
        view_.ShowSystemState(reply.IsFault() ? SystemState::Fault : SystemState::Run);
    }
}

}  // namespace zelvar
