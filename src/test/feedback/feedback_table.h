// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

namespace zelvar {

/// Inputs that reports can name: 0..2047.
constexpr int kFeedbackInputs = 2048;
/// The table has one entry more than there are inputs: 0..2048.
constexpr int kFeedbackEntries = kFeedbackInputs + 1;

// The state of an input; any other value shows like `kFeedbackNoInformation`.
constexpr std::int16_t kFeedbackInactive = 0;
constexpr std::int16_t kFeedbackActive = 1;
constexpr std::int16_t kFeedbackNoInformation = -1;
constexpr std::int16_t kFeedbackRequested = -2;

/// The labels of the monitor: 8 rows of 16.
constexpr int kFeedbackColumns = 16;
constexpr int kFeedbackRows = 8;
constexpr int kFeedbackLabels = kFeedbackColumns * kFeedbackRows;

/// Layout k shows 8 rows of 16 consecutive inputs that lie 16 * 2^k inputs apart.
constexpr int kFeedbackLayouts = 4;

/// The input that a label shows. @param label 0..127 @param layout 0..3
int FeedbackNumber(int layout, int base, int label);

/// The largest base of a layout, with which the last label still shows an input.
int FeedbackMaximumBase(int layout);

/// The label that shows an input. @return nothing when no label does
std::optional<int> FeedbackLabelOf(int layout, int base, int input);

/// The states of all inputs, and the cycle that asks for those that are wanted.
class FeedbackTable {
  public:
    /// Nothing is known and nothing is wanted.
    FeedbackTable() { states_.fill(kFeedbackNoInformation); }

    /// @return `kFeedbackNoInformation` for an index outside the table
    std::int16_t State(int index) const;

    /// @return false, with nothing changed, for an index outside 0..2048
    bool Update(int index, std::int16_t state);

    /// Marks inputs as wanted and starts the cycle again. Negative numbers are passed over.
    /// @return false when a number lies above 2048: the cycle stays as it was, and the numbers
    /// before it are marked
    bool RequestData(std::span<const int> numbers);

    /// Goes on to the next wanted input, which is wanted no more from then on.
    /// @return the input to ask for now, or -1 when there is none; then the cycle is over
    int fbRequestState();

    /// -1 while no cycle runs, else where the search goes on.
    int RequestPointer() const { return requestPointer_; }

  private:
    std::array<std::int16_t, kFeedbackEntries> states_{};
    std::int16_t requestPointer_ = -1;
};

}  // namespace zelvar
