// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
//
// An exchange through `Transact` against a bare write-and-poll loop on the same pseudo-terminal.

#include <QCoreApplication>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <fcntl.h>
#include <memory>
#include <poll.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "link/link.h"
#include "platform/qt_serial_port.h"
#include "support/answering_line.h"
#include "support/outcome.h"

namespace {

class NoTimer : public zelvar::Timer {
  public:
    void SetEnabled(bool value) override { enabled_ = value; }
    bool IsEnabled() const override { return enabled_; }

  private:
    bool enabled_ = false;
};

class NoBox : public zelvar::MessageBox {
  public:
    zelvar::BoxAnswer Ask(const std::string& text, zelvar::BoxIcon /*icon*/,
                          zelvar::BoxButtons /*buttons*/) override {
        std::fprintf(stderr, "unexpected: %s\n", text.c_str());
        return zelvar::BoxAnswer::Ok;
    }
};

class NoView : public zelvar::LinkView {
  public:
    bool IsStopTicked() const override { return false; }
    void ShowSystemState(zelvar::SystemState /*state*/) override {}
    void FrameSent(const zelvar::FrameBytes& frame) override { seen_ += frame.size(); }
    void ReplyReceived(const zelvar::FrameBytes& /*frame*/, const zelvar::Reply& reply) override {
        seen_ += static_cast<std::size_t>(reply.Count());
    }
    void NoReply() override {}

  private:
    std::size_t seen_ = 0;
};

/// Speed of block 5, which is how most commands look: three data bytes.
constexpr zelvar::Command kCommand{3, {34, 5, 76}};
constexpr std::uint8_t kSameCommand[] = {0x0B, 0xA2, 0x85, 0xCC, 0x82};
constexpr int kReplyBytes = 2;

/// One write, then poll and read until the reply is whole: what no program can do without.
bool BareExchange(int line) {
    if (write(line, kSameCommand, sizeof kSameCommand) != sizeof kSameCommand) {
        return false;
    }
    for (int received = 0; received < kReplyBytes;) {
        pollfd wait{line, POLLIN, 0};
        std::uint8_t bytes[16];
        if (poll(&wait, 1, 2000) <= 0) {
            return false;
        }
        const ssize_t count = read(line, bytes, sizeof bytes);
        if (count <= 0) {
            return false;
        }
        received += static_cast<int>(count);
    }
    return true;
}

/// @return the time that an exchange takes, in microseconds
template <typename Exchange>
double Timed(std::chrono::microseconds rest, Exchange exchange) {
    std::this_thread::sleep_for(rest);
    const auto start = std::chrono::steady_clock::now();
    exchange();
    const std::chrono::duration<double, std::micro> took = std::chrono::steady_clock::now() - start;
    return took.count();
}

double Median(std::vector<double> times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
}

/// Both ways over the same pseudo-terminal, taking turns so that a busy machine slows both; the
/// medians are compared. The rest before each exchange, in microseconds, is the argument: none, as
/// in a long sequence; enough for the other end to fall asleep; and that of the poll timer.
void BM_TransactAgainstBareLoop(benchmark::State& state) {
    const zelvar::bench::AnsweringLine line;
    // Before the program, which lets only root open the line beside it.
    const int bare = open(line.Device().c_str(), O_RDWR | O_NOCTTY);
    if (bare < 0) {
        zelvar::bench::Fail(state, "cannot open the bare line");
        return;
    }
    zelvar::QtSerialPort port(zelvar::PortTable(zelvar::PortNaming::Linux, line.Device()));
    NoTimer timer;
    NoBox box;
    NoView view;
    const zelvar::SteadyClock clock;
    zelvar::Link link(port, timer, clock, box, view);
    if (!port.Open(1, 19200)) {
        close(bare);
        zelvar::bench::Fail(state, "cannot open the line");
        return;
    }
    std::vector<double> bareTimes;
    std::vector<double> transactTimes;
    const std::chrono::microseconds rest(state.range(0));
    bool ok = true;
    while (state.KeepRunning()) {
        bareTimes.push_back(Timed(rest, [&] { ok = BareExchange(bare) && ok; }));
        transactTimes.push_back(Timed(rest, [&] { ok = link.Transact(kCommand) && ok; }));
    }
    close(bare);
    if (!ok) {
        zelvar::bench::Fail(state, "an exchange failed");
        return;
    }
    const double bareMedian = Median(bareTimes);
    const double transactMedian = Median(transactTimes);
    state.counters["bare_us"] = bareMedian;
    state.counters["transact_us"] = transactMedian;
    state.counters["ratio"] = transactMedian / bareMedian;
}
BENCHMARK(BM_TransactAgainstBareLoop)
    ->ArgName("rest_us")
    ->Arg(0)
    ->Arg(300)
    ->Arg(20'000)
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime()
    ->MinTime(3);

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    return zelvar::bench::RunBenchmarks(argc, argv);
}
