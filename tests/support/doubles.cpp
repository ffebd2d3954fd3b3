// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/doubles.h"

#include <algorithm>

#include "platform/nested_loop.h"

namespace zelvar::testing {

Bytes WireFrame(const std::vector<int>& values, int header) {
    Bytes frame{static_cast<std::uint8_t>(header + 8 + static_cast<int>(values.size()))};
    int sum = frame[0];
    for (const int value : values) {
        sum += value;
        frame.push_back(static_cast<std::uint8_t>(128 + value));
    }
    frame.push_back(static_cast<std::uint8_t>(128 + (128 - sum % 128) % 128));
    return frame;
}

Bytes WireFrame(std::initializer_list<int> values, int header) {
    return WireFrame(std::vector<int>(values), header);
}

Reply ReplyOf(const Bytes& bytes) {
    FrameReader reader;
    bool complete = false;
    for (const std::uint8_t byte : bytes) {
        complete = reader.Push(byte);
    }
    EXPECT_TRUE(complete) << "not a complete frame";
    return Reply(reader.Frame());
}

Reply MakeReply(int header, std::vector<int> values) {
    values.resize(static_cast<std::size_t>(header & kHeaderCountMask));
    Bytes bytes = WireFrame(values);
    bytes.back() = static_cast<std::uint8_t>(
        kNotHeader + ((bytes.back() + bytes.front() - header) & kPayloadMask));
    bytes.front() = static_cast<std::uint8_t>(header);
    return ReplyOf(bytes);
}

bool ScriptedPort::Open(int portNumber, int baudRate) {
    number = portNumber;
    baud = baudRate;
    history.push_back("open " + std::to_string(number) + " " + std::to_string(baud));
    open = openable.count(number) > 0;
    return open;
}

void ScriptedPort::Close() {
    if (open) {
        history.emplace_back("close");
    }
    open = false;
    incoming_.clear();
}

bool ScriptedPort::HasArrived() const {
    return !incoming_.empty() && incoming_.front().first <= clock_.now;
}

std::size_t ScriptedPort::Read(std::span<std::uint8_t> buffer) {
    std::size_t count = 0;
    for (; open && count < buffer.size() && HasArrived(); ++count) {
        buffer[count] = incoming_.front().second;
        incoming_.pop_front();
    }
    return count;
}

void ScriptedPort::Send(std::uint8_t byte) {
    written.push_back(byte);
    if (byte < 128) {
        partial_.clear();
    }
    partial_.push_back(byte);
    const std::size_t expected = static_cast<std::size_t>(partial_.front() & 7) + 2;
    if (partial_.front() >= 128 || partial_.size() < expected) {
        return;
    }
    SentFrame frame{partial_, {}};
    for (std::size_t i = 1; i + 1 < partial_.size(); ++i) {
        frame.values.push_back(partial_[i] & 127);
    }
    partial_.clear();
    sent.push_back(frame);
    Bytes reply;
    if (!replies.empty()) {
        reply = replies.front();
        replies.pop_front();
    } else {
        reply = responder(frame);
    }
    Arrive(reply, replyDelay);
}

void ScriptedPort::SendAndWait(std::span<const std::uint8_t> bytes, double seconds) {
    // Time goes on by a little more than asked, as it does when an operating system sleeps.
    constexpr double kOversleep = 0.001;
    for (const std::uint8_t byte : bytes) {
        if (open) {
            Send(byte);
        }
    }
    if (seconds == 0 || HasArrived() || !open) {
        return;
    }
    if (!incoming_.empty() && incoming_.front().first <= clock_.now + seconds) {
        clock_.now = std::max(clock_.now, incoming_.front().first);
    } else {
        clock_.now += seconds + kOversleep;
        if (clock_.now >= kSecondsPerDay) {
            clock_.now -= kSecondsPerDay;
        }
    }
}

void ScriptedPort::Arrive(const Bytes& bytes, double delay) {
    for (const std::uint8_t byte : bytes) {
        incoming_.emplace_back(clock_.now + delay, byte);
    }
}

void ScriptedPort::Vanish() {
    open = false;
    incoming_.clear();
}

std::vector<std::vector<int>> ScriptedPort::SentValues() const {
    std::vector<std::vector<int>> values;
    values.reserve(sent.size());
    for (const SentFrame& frame : sent) {
        values.push_back(frame.values);
    }
    return values;
}

void ScriptedPort::ForgetSent() {
    sent.clear();
    written.clear();
}

void PrintTo(const ShownBox& box, std::ostream* out) {
    constexpr const char* kIcons[] = {"plain", "exclamation", "critical"};
    constexpr const char* kButtons[] = {"OK", "OK/Cancel", "Yes/No"};
    *out << '"' << box.text << "\" (" << kIcons[static_cast<int>(box.icon)] << ", "
         << kButtons[static_cast<int>(box.buttons)] << ')';
}

BoxAnswer FakeMessageBox::Ask(const std::string& text, BoxIcon icon, BoxButtons buttons) {
    shown.push_back({text, icon, buttons});
    if (whileShown) {
        const NestedLoop nested;
        whileShown();
    }
    if (buttons == BoxButtons::Ok) {
        return BoxAnswer::Ok;
    }
    const bool isYesNo = buttons == BoxButtons::YesNo;
    const BoxAnswer negative = isYesNo ? BoxAnswer::No : BoxAnswer::Cancel;
    const BoxAnswer positive = isYesNo ? BoxAnswer::Yes : BoxAnswer::Ok;
    if (answers.empty()) {
        ADD_FAILURE() << "no answer was prepared to: " << text;
        return negative;
    }
    const BoxAnswer answer = answers.front();
    answers.pop_front();
    EXPECT_TRUE(answer == negative || answer == positive) << "not on offer for: " << text;
    return answer;
}

void FakeProgress::Begin(const std::string& caption, int steps) {
    begun.emplace_back(caption, steps);
    done = 0;
}

}  // namespace zelvar::testing
