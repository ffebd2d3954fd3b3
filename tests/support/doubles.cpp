// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/doubles.h"

#include <algorithm>

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

bool ScriptedPort::Open() {
    history.push_back("open " + std::to_string(number) + " " + settings);
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

std::size_t ScriptedPort::BytesWaiting() {
    std::size_t waiting = 0;
    while (waiting < incoming_.size() && incoming_[waiting].first <= clock_.now) {
        ++waiting;
    }
    return open ? waiting : 0;
}

std::uint8_t ScriptedPort::ReadByte() {
    const std::uint8_t byte = incoming_.front().second;
    incoming_.pop_front();
    return byte;
}

void ScriptedPort::WriteByte(std::uint8_t byte) {
    if (!open) {
        return;
    }
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

void ScriptedPort::WaitForByte(double seconds) {
    // Time goes on by a little more than asked, as it does when an operating system sleeps.
    constexpr double kOversleep = 0.001;
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
