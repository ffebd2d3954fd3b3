// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/driven_program.h"

#include <cstring>
#include <poll.h>
#include <stdexcept>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "probe/wire_text.h"

namespace zelvar::e2e {

namespace {

/// How long a program that is told to end may take before it is killed.
constexpr Milliseconds kFarewell{2000};

int ListenAt(const std::string& path) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::strncpy(address.sun_path, path.c_str(), sizeof address.sun_path - 1);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (bind(fd, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(fd, 1) != 0) {
        throw std::runtime_error("no socket at " + path);
    }
    return fd;
}

Variables Environment(const std::string& ports, const std::string& socket, Variables variables) {
    variables.insert({{"ZELVARCONFIG_PORTS", ports},
                      {"ZELVARPROBE_SOCKET", socket},
                      {"QT_QPA_PLATFORM", "offscreen"},
                      {"QT_QPA_GENERIC_PLUGINS", "zelvarprobe"},
                      {"QT_PLUGIN_PATH", ZELVARPROBE_PLUGINS}});
    return variables;
}

}  // namespace

std::ostream& operator<<(std::ostream& out, const BoxText& box) {
    return out << box.title << " | " << box.icon << " | " << box.text << " | " << box.buttons;
}

DrivenProgram::DrivenProgram(const TempFolder& folder, const std::string& ports,
                             const std::string& name, const Variables& variables)
    : listener_(ListenAt(folder.Path(name + ".sock"))),
      process_({ZELVARCONFIG_PROGRAM}, Environment(ports, folder.Path(name + ".sock"), variables),
               folder.Path(name + ".err"), folder.Path(".")) {
    pollfd ready{listener_, POLLIN, 0};
    const Instant start = Now();
    // A program that ends at once must not cost the whole limit.
    while (poll(&ready, 1, static_cast<int>(kLook.count())) == 0) {
        if (!process_.IsRunning() || Since(start) > kLimit) {
            throw std::runtime_error("the program does not start: " + process_.Describe());
        }
    }
    const int fd = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    channel_ = LineChannel(fd, fd);
    // The probe is there before the windows; it answers when the program has started.
    Ask({"boxes"});
}

DrivenProgram::~DrivenProgram() {
    if (process_.IsRunning() && channel_.Send("quit")) {
        process_.WaitForExit(kFarewell);
    }
    process_.Kill();
    close(listener_);
}

std::vector<std::string> DrivenProgram::Ask(const std::vector<std::string>& words) {
    channel_.Send(JoinWords(words));
    const std::optional<std::string> line = channel_.Receive();
    if (!line) {
        throw std::runtime_error("no answer to " + JoinWords(words) + ": " + process_.Describe());
    }
    std::vector<std::string> answer = SplitWords(*line);
    if (answer.front() != "ok") {
        throw std::runtime_error(JoinWords(words) + ": " + *line);
    }
    answer.erase(answer.begin());
    return answer;
}

std::string DrivenProgram::AskOne(const std::vector<std::string>& words) {
    const std::vector<std::string> answer = Ask(words);
    return answer.empty() ? std::string() : answer.front();
}

BoxText DrivenProgram::Box() {
    const std::vector<std::string> values = Ask({"box"});
    constexpr std::size_t kParts = 4;
    return values.size() == kParts ? BoxText{values[0], values[1], values[2], values[3]}
                                   : BoxText{};
}

void DrivenProgram::Choose(const std::string& list, const std::string& entry) {
    Ask({"choose", list, entry});
}

void DrivenProgram::Answer(const std::string& button) {
    const BoxText box = Box();
    const std::size_t shown = BoxesShown().size();
    Ask({"answer", button});
    if (!Until([&] { return Box() != box || BoxesShown().size() > shown; })) {
        throw std::runtime_error("the message box stays open: " + box.text);
    }
}

BoxText DrivenProgram::AwaitBox() {
    BoxText box;
    Until([&] {
        box = Box();
        return box != BoxText{};
    });
    return box;
}

std::optional<std::string> DrivenProgram::WhyNot(const std::vector<std::string>& question,
                                                 const std::string& answer, Milliseconds limit) {
    std::string last;
    if (Until(
            [&] {
                last = AskOne(question);
                return last == answer;
            },
            limit)) {
        return std::nullopt;
    }
    return JoinWords(question) + ": expected '" + answer + "', still '" + last + "'; " +
           process_.Describe();
}

}  // namespace zelvar::e2e
