// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "sim/protocol/addresses.h"
#include "sim/protocol/field.h"
#include "sim/protocol/wire.h"

namespace zelvar::sim {

/// The types of traction modules as far as status replies have shown them. What some frames mean
/// depends on the type.
class KnownTypes {
  public:
    /// None if nothing is known. Only a VD60 has a second unit.
    std::optional<int> Of(int address) const;
    void Set(int address, int type) { types_[address] = type; }

  private:
    std::array<std::optional<int>, kModuleAddresses> types_{};
};

/// One parameter of a command or reply in words.
class Parameter {
  public:
    using NumberWords = std::string (*)(int number);
    using FrameWords = std::string (*)(const Payload& data, const KnownTypes& types);

    constexpr Parameter() = default;
    /// A number, by `words` or in decimal.
    constexpr Parameter(const Field& field, NumberWords words = nullptr)
        : field_(field), numberWords_(words) {}
    /// One of two texts, by whether the field is 0.
    constexpr Parameter(const Field& field, std::string_view ifSet, std::string_view ifClear)
        : field_(field), ifSet_(ifSet), ifClear_(ifClear), isChoice_(true) {}
    /// Words for more than one number.
    constexpr Parameter(FrameWords words) : frameWords_(words) {}

    std::string In(const Payload& data, const KnownTypes& types) const;

  private:
    Field field_{0};
    NumberWords numberWords_ = nullptr;
    FrameWords frameWords_ = nullptr;
    std::string_view ifSet_;
    std::string_view ifClear_;
    bool isChoice_ = false;
};

/// The memory that a command or reply is about, by the field of its permanent bit.
constexpr Parameter MemoryName(const Field& permanent) {
    return {permanent, "permanent", "active"};
}

/// What a frame says: a text with "{}" in place of each parameter.
class Phrase {
  public:
    constexpr Phrase(std::string_view text, std::initializer_list<Parameter> parameters = {})
        : text_(text) {
        for (const Parameter& parameter : parameters) {
            parameters_[count_++] = parameter;
        }
    }

    std::string In(const Payload& data, const KnownTypes& types) const;
    /// Whether there is one parameter for each place.
    bool IsComplete() const;

  private:
    static constexpr std::size_t kMaxParameters = 5;

    std::string_view text_;
    std::array<Parameter, kMaxParameters> parameters_{};
    std::size_t count_ = 0;
};

}  // namespace zelvar::sim
