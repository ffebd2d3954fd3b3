// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/child_process.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvar::e2e {

namespace {

constexpr int kCannotStart = 127;
constexpr int kSignalOffset = 128;  // as shells report the end by a signal

std::vector<char*> Pointers(std::vector<std::string>& texts) {
    std::vector<char*> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string& text : texts) {
        pointers.push_back(text.data());
    }
    pointers.push_back(nullptr);
    return pointers;
}

std::vector<std::string> Merge(const Variables& extra) {
    std::vector<std::string> merged;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        const std::string text(*entry);
        if (extra.find(text.substr(0, text.find('='))) == extra.end()) {
            merged.push_back(text);
        }
    }
    for (const auto& [name, value] : extra) {
        if (value) {
            merged.push_back(std::string(name).append("=").append(*value));
        }
    }
    return merged;
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& arguments, const Variables& environment,
                           const std::string& errorFile, const std::string& folder)
    : name_(arguments.front()), errorFile_(errorFile) {
    std::vector<std::string> words = arguments;
    std::vector<std::string> variables = Merge(environment);
    const std::vector<char*> argv = Pointers(words);
    const std::vector<char*> envp = Pointers(variables);
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    const int errors = open(errorFile.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    if (errors < 0 || pipe2(input.data(), O_CLOEXEC) != 0 || pipe2(output.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("cannot start " + name_);
    }
    std::signal(SIGPIPE, SIG_IGN);
    pid_ = fork();
    if (pid_ == 0) {
        // Also when the starting program is killed.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        std::signal(SIGPIPE, SIG_DFL);
        dup2(input[0], STDIN_FILENO);
        dup2(output[1], STDOUT_FILENO);
        dup2(errors, STDERR_FILENO);
        if (!folder.empty() && chdir(folder.c_str()) != 0) {
            _exit(kCannotStart);
        }
        execve(argv.front(), argv.data(), envp.data());
        _exit(kCannotStart);
    }
    close(errors);
    close(input[0]);
    close(output[1]);
    console_ = LineChannel(output[0], input[1]);
}

ChildProcess::~ChildProcess() {
    Kill();
}

bool ChildProcess::IsRunning() {
    return !WaitForExit(Milliseconds(0)).has_value();
}

std::optional<int> ChildProcess::WaitForExit(Milliseconds limit) {
    Until(
        [this] {
            int status = 0;
            if (!status_ && pid_ > 0 && waitpid(pid_, &status, WNOHANG) == pid_) {
                status_ =
                    WIFEXITED(status) ? WEXITSTATUS(status) : kSignalOffset + WTERMSIG(status);
            }
            return status_.has_value();
        },
        limit);
    return status_;
}

void ChildProcess::Kill() {
    if (pid_ > 0 && !status_) {
        kill(pid_, SIGKILL);
        WaitForExit();
    }
}

Milliseconds ChildProcess::CpuTime() const {
    constexpr int kFieldsBeforeTimes = 11;  // behind the name, which ends with a bracket
    constexpr long kMillisecondsPerSecond = 1000;
    std::ifstream file("/proc/" + std::to_string(pid_) + "/stat");
    std::string text;
    std::getline(file, text);
    std::istringstream fields(text.substr(text.rfind(')') + 1));
    std::string skipped;
    for (int i = 0; i < kFieldsBeforeTimes; ++i) {
        fields >> skipped;
    }
    long user = 0;
    long system = 0;
    if (!(fields >> user >> system)) {
        throw std::runtime_error("cannot read the processor time of " + name_);
    }
    return Milliseconds((user + system) * kMillisecondsPerSecond / sysconf(_SC_CLK_TCK));
}

std::string ChildProcess::Describe() {
    std::ostringstream text;
    text << name_;
    if (IsRunning()) {
        text << " runs";
    } else {
        text << " ended with status " << status_.value_or(-1);
    }
    const std::ifstream errors(errorFile_);
    text << "; its standard error:\n" << errors.rdbuf();
    return text.str();
}

}  // namespace zelvar::e2e
