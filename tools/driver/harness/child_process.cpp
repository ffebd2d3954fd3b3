// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "harness/child_process.h"

#include <QProcessEnvironment>

#include <csignal>
#include <ctime>
#include <stdexcept>
#include <sys/prctl.h>
#include <utmp.h>

namespace zelvar::e2e {

namespace {

constexpr int kSignalOffset = 128;  // as shells report the end by a signal

QProcessEnvironment Merge(const Variables& variables) {
    QProcessEnvironment merged = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : variables) {
        if (value) {
            merged.insert(QString::fromStdString(name), QString::fromStdString(*value));
        } else {
            merged.remove(QString::fromStdString(name));
        }
    }
    return merged;
}

}  // namespace

std::optional<std::string> ReceiveLine(QIODevice& from, Milliseconds limit) {
    const Instant start = Now();
    while (!from.canReadLine()) {
        const auto left = static_cast<int>((limit - Since(start)).count());
        if (left < 0 || !from.waitForReadyRead(left)) {
            break;
        }
    }
    if (!from.canReadLine()) {
        return std::nullopt;
    }
    std::string line = from.readLine().toStdString();
    line.pop_back();
    return line;
}

ChildProcess::ChildProcess(const std::vector<std::string>& arguments, const StartOptions& options) {
    QStringList words;
    for (const std::string& argument : arguments) {
        words << QString::fromStdString(argument);
    }
    process_.setProcessEnvironment(Merge(options.environment));
    process_.setWorkingDirectory(QString::fromStdString(options.folder));
    const int terminal = options.terminal == nullptr ? -1 : options.terminal->Slave();
    process_.setChildProcessModifier([terminal] {
        // Also when the starting program is killed.
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (terminal >= 0) {
            login_tty(terminal);
        }
    });
    process_.setProgram(words.takeFirst());
    process_.setArguments(words);
    process_.start();
    if (!process_.waitForStarted(static_cast<int>(kLimit.count()))) {
        throw std::runtime_error("cannot start " + arguments.front() + ": " +
                                 process_.errorString().toStdString());
    }
}

bool ChildProcess::Send(const std::string& line) {
    process_.write(QByteArray::fromStdString(line + '\n'));
    return process_.waitForBytesWritten(static_cast<int>(kLimit.count()));
}

void ChildProcess::CloseInput() {
    process_.closeWriteChannel();
}

std::optional<std::string> ChildProcess::Receive(Milliseconds limit) {
    return ReceiveLine(process_, limit);
}

std::optional<int> ChildProcess::WaitForExit(Milliseconds limit) {
    if (process_.state() != QProcess::NotRunning &&
        !process_.waitForFinished(static_cast<int>(limit.count()))) {
        return std::nullopt;
    }
    const bool signalled = process_.exitStatus() == QProcess::CrashExit;
    return process_.exitCode() + (signalled ? kSignalOffset : 0);
}

void ChildProcess::Kill() {
    process_.kill();
    process_.waitForFinished();
}

Milliseconds ChildProcess::CpuTime() const {
    clockid_t clock{};
    timespec spent{};
    if (clock_getcpuclockid(Id(), &clock) != 0 || clock_gettime(clock, &spent) != 0) {
        throw std::runtime_error("no processor time of " + process_.program().toStdString());
    }
    return std::chrono::duration_cast<Milliseconds>(std::chrono::seconds(spent.tv_sec) +
                                                    std::chrono::nanoseconds(spent.tv_nsec));
}

std::string ChildProcess::Errors() {
    errors_ += process_.readAllStandardError();
    return errors_.toStdString();
}

std::string ChildProcess::Describe() {
    const std::optional<int> status = WaitForExit(Milliseconds(0));
    return process_.program().toStdString() +
           (status ? " ended with status " + std::to_string(*status) : " runs") +
           "; its standard error:\n" + Errors();
}

}  // namespace zelvar::e2e
