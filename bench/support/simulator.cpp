// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "support/simulator.h"

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

namespace zelvar::bench {

pid_t Start(const std::string& program, const std::vector<std::string>& arguments, int output) {
    std::vector<char*> argv{const_cast<char*>(program.c_str())};
    for (const std::string& argument : arguments) {
        argv.push_back(const_cast<char*>(argument.c_str()));
    }
    argv.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    if (output >= 0) {
        posix_spawn_file_actions_adddup2(&actions, output, STDOUT_FILENO);
    }
    pid_t process = -1;
    const int error =
        posix_spawn(&process, program.c_str(), &actions, nullptr, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    if (error != 0) {
        throw std::runtime_error("cannot start " + program);
    }
    return process;
}

Simulator::Simulator(const std::string& program, const std::vector<std::string>& options) {
    int output[2];
    if (pipe(output) != 0) {
        throw std::runtime_error("no pipe");
    }
    process_ = Start(program, options, output[1]);
    close(output[1]);
    // It says "ready PATH" when the line can be opened.
    std::string line;
    for (char c = 0; read(output[0], &c, 1) == 1 && c != '\n';) {
        line += c;
    }
    close(output[0]);
    const std::string ready = "ready ";
    if (line.rfind(ready, 0) != 0) {
        throw std::runtime_error("the simulated unit did not come up: " + line);
    }
    path_ = line.substr(ready.size());
}

Simulator::~Simulator() {
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
}

}  // namespace zelvar::bench
