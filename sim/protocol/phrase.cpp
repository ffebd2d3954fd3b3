// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/protocol/phrase.h"

#include "sim/protocol/module_status.h"

namespace zelvar::sim {

namespace {

constexpr std::string_view kPlace = "{}";

}  // namespace

std::optional<int> KnownTypes::Of(int address) const {
    const bool second = FamilyOf(address) == kSecondaryFamily;
    return !types_[address] && second ? static_cast<int>(TractionType::kVd60) : types_[address];
}

std::string Parameter::In(const Payload& data, const KnownTypes& types) const {
    if (frameWords_ != nullptr) {
        return frameWords_(data, types);
    }
    const int number = field_.In(data);
    if (isChoice_) {
        return std::string(number != 0 ? ifSet_ : ifClear_);
    }
    return numberWords_ == nullptr ? std::to_string(number) : numberWords_(number);
}

std::string Phrase::In(const Payload& data, const KnownTypes& types) const {
    std::string words;
    std::string_view rest = text_;
    for (std::size_t index = 0; index < count_; ++index) {
        const std::size_t place = rest.find(kPlace);
        words.append(rest.substr(0, place)).append(parameters_[index].In(data, types));
        rest.remove_prefix(place + kPlace.size());
    }
    return words.append(rest);
}

bool Phrase::IsComplete() const {
    std::size_t places = 0;
    for (std::size_t at = text_.find(kPlace); at != std::string_view::npos;
         at = text_.find(kPlace, at + kPlace.size())) {
        ++places;
    }
    return !text_.empty() && places == count_;
}

}  // namespace zelvar::sim
