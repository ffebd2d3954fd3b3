// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/console/state_dump.h"

#include <utility>

#include "sim/console/state_walk.h"

namespace zelvar::sim {

namespace {

class Dump : public StateView {
  public:
    Dump() : StateView(kDump) {}
    std::string Text() { return std::move(text_); }

  private:
    void Open(std::string_view, const StateName& name) override {
        text_.append(text_.empty() ? "" : "\n").append(name.Text());
        separator_ = '=';
    }
    void Take(const StateValue& value) override {
        text_ += std::exchange(separator_, ',');
        const std::string name = value.name.Text();
        text_.append(name).append(name.empty() ? "" : ":");
        if (value.isText) {
            text_ += value.text;
        } else if (value.dumpWords != nullptr) {
            text_ += value.dumpWords(static_cast<int>(value.number));
        } else {
            text_ += std::to_string(value.number);
        }
    }

    std::string text_;
    char separator_ = '=';
};

}  // namespace

std::string StateDump(const UnitState& state) {
    Dump dump;
    WalkState(state, dump);
    return dump.Text() + '\n';
}

}  // namespace zelvar::sim
