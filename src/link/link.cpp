// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "link/link.h"

#include <algorithm>
#include <numeric>

namespace zelvar {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
/// The text of a data byte is this wide, so unused places are filled up with as many blanks.
constexpr std::string_view kUnusedPlace = "   ";
/// The text of a reply with at least one data byte: header, value and checksum are longer.
constexpr std::size_t kReplyTextWithData = 7;
/// A reply's sum is taken over the header and the eight places behind it.
constexpr std::size_t kSummedPlaces = 9;
constexpr int kLargestByte = 255;
/// The running sum is cut only when it exceeds this; at exactly 256 it stays.
constexpr int kSumLimit = 256;

}  // namespace

Link::Link(SerialPort& port, Timer& pollTimer, const Clock& clock, MessageBox& messageBox,
           LinkView& view)
    : port_(port), pollTimer_(pollTimer), clock_(clock), messageBox_(messageBox), view_(view) {}

bool Link::CheckPort() {
    if (port_.IsOpen()) {
        return true;
    }
    // An exchange ran in this handler, so the port was open: its device has vanished since.
    if (!exchangedInThisHandler_) {
        messageBox_.Tell(std::string(kSelectPortText), BoxIcon::Exclamation);
    }
    return false;
}

bool Link::Transact(const Command& command, std::string_view errorText) {
    pollTimer_.SetEnabled(false);
    if (!port_.IsOpen()) {
        return false;
    }
    exchangedInThisHandler_ = true;
    Flush();
    std::string line = ">>";
    if (SendFrame(command, line) == Sent::Overflow) {
        port_.Flush();
        messageBox_.Tell(std::string(kOverflowText), BoxIcon::Critical);
        return false;
    }
    if (command.count != 0) {
        view_.AppendMessageLog(line);
    }
    frameToggle_ = !frameToggle_;
    const std::string replyText = ReceiveReply();
    if (replyText.empty()) {
        messageBox_.Tell(std::string(errorText.empty() ? kNoResponseText : errorText),
                         BoxIcon::Exclamation);
        view_.AppendMessageLog(std::string(kLineEnd));
        return false;
    }
    ReportReply(command, line, replyText);
    if (port_.IsOpen()) {
        pollTimer_.SetEnabled(true);
    }
    return true;
}

void Link::ReportReply(const Command& command, const std::string& line,
                       const std::string& replyText) {
    // Polls would flood the log: only one that brings data is logged.
    const bool isPoll = command.count == 0;
    if (!isPoll || replyText.size() >= kReplyTextWithData) {
        view_.AppendMessageLog((isPoll ? line : std::string()) + "  <<" + replyText +
                               std::string(kLineEnd));
    }
    // The handlers get a copy, so that they see one reply whatever happens meanwhile.
    const ReplyBuffer reply = reply_;
    handlers_.Dispatch(reply);
}

void Link::Flush() {
    while (port_.BytesWaiting() > 0) {
        port_.ReadByte();
    }
}

void Link::SendByte(std::uint8_t byte, std::string& line) {
    port_.WriteByte(byte);
    line += FormatHexByte(byte);
}

Link::Sent Link::SendFrame(const Command& command, std::string& line) {
    // A count above 7 spills into bit 4 of the header, and seven data bytes are sent.
    const int header = command.count + kHeaderMark + (view_.IsStopTicked() ? kHeaderStop : 0) +
                       (frameToggle_ ? kHeaderToggle : 0);
    if (header > kLargestByte) {
        return Sent::Overflow;
    }
    SendByte(static_cast<std::uint8_t>(header), line);
    int sum = header;
    const std::size_t sent = std::min<std::size_t>(command.count, kMaxDataBytes);
    for (std::size_t i = 0; i < sent; ++i) {
        const int byte = command.values[i] + kNotHeader;
        if (byte > kLargestByte) {
            return Sent::Overflow;
        }
        sum += byte;
        if (sum > kSumLimit) {
            sum -= kSumLimit;
        }
        SendByte(static_cast<std::uint8_t>(byte), line);
    }
    int checksum = kSumLimit - sum;
    if (checksum < kNotHeader) {
        checksum += kNotHeader;
    }
    // The frame goes out when the wait for its reply begins.
    SendByte(static_cast<std::uint8_t>(checksum), line);
    for (std::size_t i = sent; i < kMaxDataBytes; ++i) {
        line += kUnusedPlace;
    }
    return Sent::Whole;
}

bool Link::WaitForFrame(std::string& text) {
    constexpr int kNoHeaderYet = 8;
    constexpr int kComplete = -1;
    std::fill(reply_.begin(), reply_.begin() + kSummedPlaces, std::uint8_t{0});
    int remaining = kNoHeaderYet;
    std::size_t position = 0;
    const double start = clock_.SecondsSinceMidnight();
    const double limit = start + kReplyLimit;
    // At midnight the clock falls behind the start, which ends the wait early.
    for (double now = start; now <= limit && now >= start && remaining != kComplete;
         now = clock_.SecondsSinceMidnight()) {
        if (port_.BytesWaiting() == 0) {
            if (!port_.IsOpen()) {
                return false;
            }
            port_.WaitForByte(std::min(limit, kSecondsPerDay) - now);
            continue;
        }
        const std::uint8_t byte = port_.ReadByte();
        if (byte < kNotHeader) {
            // A header begins the frame anew at any time.
            std::fill(reply_.begin(), reply_.begin() + kSummedPlaces, std::uint8_t{0});
            reply_[0] = byte;
            text = FormatHexByte(byte);
            remaining = byte & kHeaderCountMask;
            position = 1;
        } else if (remaining < kNoHeaderYet) {
            reply_[position++] = byte & kPayloadMask;
            text += FormatHexByte(byte);
            --remaining;
        }
    }
    return remaining == kComplete;
}

std::string Link::ReceiveReply() {
    std::string text;
    if (!WaitForFrame(text)) {
        return {};
    }
    const int sum = std::accumulate(reply_.begin(), reply_.begin() + kSummedPlaces, 0);
    if ((sum & kPayloadMask) != 0) {
        return {};
    }
    if (view_.IsStopTicked()) {
        view_.ShowSystemState(SystemState::Stop);
    } else if ((reply_[0] & kHeaderFault) != 0) {
        view_.ShowSystemState(SystemState::Fault);
    } else {
        view_.ShowSystemState(SystemState::Run);
    }
    return text;
}

}  // namespace zelvar
