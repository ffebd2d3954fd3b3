// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "tour.h"

#include <iostream>
#include <stdexcept>
#include <utility>

#include "surroundings.h"

namespace zelvar::tour {

namespace {

/// The same in every run: the status bar shows it. The program runs in the folder where it is.
constexpr char kPort[] = "./unit";
constexpr char kFont[] = "DejaVu Sans";

std::vector<Step> AllSteps() {
    std::vector<Step> steps;
    for (const std::span<const Step> part :
         {StatusSteps(), ConfigureSteps(), DriveSteps(), AlarmSteps()}) {
        steps.insert(steps.end(), part.begin(), part.end());
    }
    return steps;
}

}  // namespace

Tour::Tour(Journey journey) : journey_(std::move(journey)) {}

void Tour::Start(const std::string& layout, const std::vector<std::string>& options) {
    program_.reset();
    unit_.reset();
    std::vector<std::string> words{"--layout", layout};
    words.insert(words.end(), options.begin(), options.end());
    unit_.emplace(folder_, words);
    program_.emplace(folder_, kPort, "program" + std::to_string(++starts_),
                     Surroundings(folder_, journey_.palette));
    looks_ = program_->AskOne({"looks"});
    if (looks_.find(kFont) == std::string::npos) {
        throw std::runtime_error("the font " + std::string(kFont) +
                                 " is missing (Debian and Ubuntu: fonts-dejavu-core)");
    }
}

void Tour::Connect() {
    if (program_->ItemsOf("cboPort").empty()) {
        throw std::runtime_error(std::string("the port ") + kPort +
                                 " is in use: does another user run the tour?");
    }
    program_->Choose("cboPort", "1");
    AwaitText("lblBarDevice", std::string("Port 1: ") + kPort + ", 19k2");
}

void Tour::LetRun() {
    program_->Click("Check_Stop");
    program_->Click("cmdReset");
    AwaitText("lblBarStatus", "System Status = Run");
}

void Tour::RequestStatus(const std::string& view) {
    program_->Click("cmdStatus");
    AwaitWindow(view);
    ExpectNoBox();
}

void Tour::Await(const std::vector<std::string>& question, const std::string& answer) {
    if (const std::optional<std::string> complaint = program_->Mismatch(question, answer)) {
        throw std::runtime_error(*complaint);
    }
}

void Tour::AwaitBox(const std::string& part) {
    const e2e::BoxText box = program_->AwaitBox();
    if (box.text.find(part) == std::string::npos) {
        throw std::runtime_error("a message box with '" + part + "' was expected, not '" +
                                 box.text + "'");
    }
}

void Tour::AwaitThat(const std::string& what, const std::function<bool()>& holds) {
    if (!e2e::Until(holds)) {
        throw std::runtime_error("never: " + what);
    }
}

void Tour::RunUntil(const std::string& what, const std::function<bool()>& holds) {
    AwaitThat(what, [&] {
        unit_->Do(kFast);
        const bool held = e2e::Until(holds);
        unit_->Do(kFrozen);
        // It may have gone on between the look and the stop.
        return held && holds();
    });
}

bool Tour::IsOccupied(const std::string& section) {
    return unit_->Value("section." + section).starts_with("occupied:1");
}

void Tour::ExpectNoBox() {
    const e2e::BoxText box = program_->Box();
    if (box != e2e::BoxText{}) {
        throw std::runtime_error("an unexpected message box: " + box.text);
    }
}

void Tour::Picture(const std::vector<std::string>& windows) {
    std::string list;
    for (const std::string& window : windows) {
        list += (list.empty() ? "" : "+") + window;
    }
    program_->Ask(
        {"picture", journey_.folder + "/" + step_ + "-" + journey_.palette + ".png", list});
    ++pictures_;
}

std::optional<std::string> Tour::Run() {
    for (const Step& step : AllSteps()) {
        step_ = step.name;
        const int before = pictures_;
        try {
            step.show(*this);
            if (pictures_ != before + 1) {
                return step_ + ": leaves no picture";
            }
        } catch (const std::exception& error) {
            return step_ + ": " + error.what();
        }
        std::cout << step_ << " (" << journey_.palette << ")" << std::endl;
    }
    return std::nullopt;
}

}  // namespace zelvar::tour
