// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <initializer_list>

namespace zelvar {

/// The type of a traction module.
enum class VDType : std::uint8_t {
    /// No module answers.
    Absent,
    /// A module answers, its type is not known.
    Unknown,
    VdF,
    QlrxS,
    Vd60
};

/// A set of types, such as those that a setting is for.
class VDTypes {
  public:
    constexpr VDTypes() = default;
    constexpr VDTypes(std::initializer_list<VDType> types) {
        for (const VDType type : types) {
            bits_ |= BitOf(type);
        }
    }

    constexpr bool Contains(VDType type) const { return (bits_ & BitOf(type)) != 0; }
    constexpr bool Intersects(VDTypes other) const { return (bits_ & other.bits_) != 0; }
    bool operator==(const VDTypes&) const = default;

  private:
    static constexpr unsigned BitOf(VDType type) { return 1U << static_cast<unsigned>(type); }

    unsigned bits_ = 0;
};

/// Every known type.
inline constexpr VDTypes kAllVDTypes{VDType::VdF, VDType::QlrxS, VDType::Vd60};

}  // namespace zelvar
