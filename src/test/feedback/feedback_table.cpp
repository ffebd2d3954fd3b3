// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "test/feedback/feedback_table.h"

namespace zelvar {

namespace {

constexpr std::int16_t kNoCycle = -1;

bool IsEntry(int index) {
    return index >= 0 && index < kFeedbackEntries;
}

/// How many inputs lie between the beginnings of two rows.
int RowStride(int layout) {
    return kFeedbackColumns << layout;
}

}  // namespace

int FeedbackNumber(int layout, int base, int label) {
    return base + label % kFeedbackColumns + RowStride(layout) * (label / kFeedbackColumns);
}

int FeedbackMaximumBase(int layout) {
    return kFeedbackInputs - kFeedbackRows * RowStride(layout);
}

std::optional<int> FeedbackLabelOf(int layout, int base, int input) {
    const int offset = input - base;
    if (offset < 0) {
        return std::nullopt;
    }
    const int row = offset / RowStride(layout);
    const int column = offset % RowStride(layout);
    if (row >= kFeedbackRows || column >= kFeedbackColumns) {
        return std::nullopt;
    }
    return row * kFeedbackColumns + column;
}

std::int16_t FeedbackTable::State(int index) const {
    return IsEntry(index) ? states_[index] : kFeedbackNoInformation;
}

bool FeedbackTable::Update(int index, std::int16_t state) {
    if (!IsEntry(index)) {
        return false;
    }
    states_[index] = state;
    return true;
}

bool FeedbackTable::RequestData(std::span<const int> numbers) {
    for (const int number : numbers) {
        if (number >= 0 && !Update(number, kFeedbackRequested)) {
            return false;
        }
    }
    requestPointer_ = 0;
    return true;
}

int FeedbackTable::fbRequestState() {
    if (requestPointer_ == kNoCycle) {
        return kNoCycle;
    }
    for (std::int16_t index = requestPointer_; index < kFeedbackInputs; ++index) {
        std::int16_t& state = states_[index];
        if (state == kFeedbackRequested) {
            state = kFeedbackNoInformation;
            requestPointer_ = index;
            return requestPointer_;
        }
    }
    requestPointer_ = kNoCycle;
    return kNoCycle;
}

}  // namespace zelvar
