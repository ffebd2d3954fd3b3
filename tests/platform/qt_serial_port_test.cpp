// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_serial_port.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>
#include <functional>
#include <string>
#include <termios.h>
#include <thread>

#include "harness/pseudo_terminal.h"
#include "support/doubles.h"

namespace zelvar::testing {
namespace {

using e2e::PseudoTerminal;

/// In milliseconds: far below the reply limit, far above what a busy machine takes.
constexpr int kSoon = 1000;
constexpr int kBaud = 19200;

/// What has come by now.
Bytes Take(QtSerialPort& port) {
    Bytes buffer(64);
    buffer.resize(port.Read(buffer));
    return buffer;
}

class QtSerialPortTest : public ::testing::Test {
  protected:
    QtSerialPortTest() {
        port.SetLostHandler([this] { ++lost; });
    }

    PortTable TableOf(const std::string& device) { return PortTable(PortNaming::Linux, device); }

    PseudoTerminal line;
    QtSerialPort port{TableOf(line.Device())};
    int lost = 0;
};

TEST_F(QtSerialPortTest, OpensADeviceAndClosesIt) {
    EXPECT_FALSE(port.IsOpen());
    EXPECT_TRUE(port.Open(1, kBaud));
    EXPECT_TRUE(port.IsOpen());
    port.Close();
    EXPECT_FALSE(port.IsOpen());
    EXPECT_TRUE(port.Open(1, kBaud));
}

TEST_F(QtSerialPortTest, ADeviceInUseCannotBeOpenedAndIsNotListed) {
    ASSERT_TRUE(port.Open(1, kBaud));
    QtSerialPort other(TableOf(line.Device()));
    EXPECT_FALSE(other.Open(1, kBaud));
    EXPECT_TRUE(FindUsablePorts(other, kBaud).empty());
    port.Close();
    EXPECT_EQ(FindUsablePorts(other, kBaud), std::vector<int>{1});
}

TEST_F(QtSerialPortTest, WhatIsNoDeviceCannotBeOpened) {
    QtSerialPort other(TableOf("/nonexistent/device::/dev/null"));
    for (const int number : {1, 2, 3, 4, 0, 17, -1}) {
        EXPECT_FALSE(other.Open(number, kBaud)) << number;
        EXPECT_FALSE(other.IsOpen()) << number;
    }
}

struct SettingsRow {
    const char* name;
    int baudRate;
    speed_t speed;
};

class SerialSettings : public QtSerialPortTest,
                       public ::testing::WithParamInterface<SettingsRow> {};

TEST_P(SerialSettings, ReachTheDevice) {
    ASSERT_TRUE(port.Open(1, GetParam().baudRate));
    const termios settings = line.Settings();
    EXPECT_EQ(cfgetospeed(&settings), GetParam().speed);
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_cflag & CSTOPB, 0U);
    // A pseudo-terminal has no parity bit, but keeps which one was asked for.
    EXPECT_NE(settings.c_cflag & PARODD, 0U);
}

INSTANTIATE_TEST_SUITE_P(Rows, SerialSettings,
                         ::testing::Values(SettingsRow{"Slow", 19200, B19200},
                                           SettingsRow{"Fast", 38400, B38400}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(QtSerialPortTest, BytesGoOutInOrderAndUnchanged) {
    ASSERT_TRUE(port.Open(1, kBaud));
    const Bytes bytes{0x0A, 0x0D, 0x00, 0x03, 0x11, 0x13, 0x7F, 0x80, 0xFF};
    port.SendAndWait(bytes, 0);
    EXPECT_EQ(line.Receive(bytes.size()), bytes);
}

/// More than a pseudo-terminal buffers.
Bytes ManyBytes() {
    Bytes bytes(100'000);
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i % 251);
    }
    return bytes;
}

TEST_F(QtSerialPortTest, WhatTheSystemDoesNotTakeAtOnceFollowsDuringTheWait) {
    ASSERT_TRUE(port.Open(1, kBaud));
    const Bytes bytes = ManyBytes();
    Bytes got;
    std::thread reader([&] {
        got = line.Receive(bytes.size());
        line.Send({0x08});
    });
    port.SendAndWait(bytes, 30);
    reader.join();
    EXPECT_EQ(got, bytes);
    EXPECT_EQ(Take(port), Bytes{0x08});
}

TEST_F(QtSerialPortTest, WhatTheSystemHasNotTakenWhenTheTimeIsOverIsNotSentLater) {
    constexpr std::chrono::milliseconds kQuiet{50};
    ASSERT_TRUE(port.Open(1, kBaud));
    port.SendAndWait(ManyBytes(), 0.02);
    EXPECT_TRUE(port.IsOpen());
    while (e2e::WaitReadable(line.Master(), kQuiet)) {
        line.Receive(1);
    }
    port.SendAndWait({}, 0.02);
    EXPECT_FALSE(e2e::WaitReadable(line.Master(), kQuiet));
}

TEST_F(QtSerialPortTest, BytesComeInOrderAndUnchanged) {
    ASSERT_TRUE(port.Open(1, kBaud));
    const Bytes bytes{0x0A, 0x0D, 0x00, 0x03, 0x11, 0x13, 0x7F, 0x80, 0xFF};
    line.Send(bytes);
    Bytes got;
    while (got.size() < bytes.size()) {
        port.SendAndWait({}, 1);
        const Bytes more = Take(port);
        ASSERT_FALSE(more.empty());
        got.insert(got.end(), more.begin(), more.end());
    }
    EXPECT_EQ(got, bytes);
    EXPECT_TRUE(Take(port).empty());
}

TEST_F(QtSerialPortTest, WhatComesWhileIdleIsDiscardedAndCostsNothing) {
    ASSERT_TRUE(port.Open(1, kBaud));
    line.Send(Bytes(1000, 0x80));
    EXPECT_TRUE(QTest::qWaitFor([this] {
        port.SendAndWait({}, 0);
        return Take(port).empty();
    }));
    EXPECT_TRUE(port.IsOpen());
}

TEST_F(QtSerialPortTest, TheWaitEndsWithAByteAndElseWithItsTime) {
    ASSERT_TRUE(port.Open(1, kBaud));
    QElapsedTimer watch;
    watch.start();
    port.SendAndWait({}, 0.05);
    EXPECT_GE(watch.elapsed(), 50);
    std::thread sender([this] { line.Send({0x08}); });
    watch.restart();
    port.SendAndWait({}, 30);
    EXPECT_LT(watch.elapsed(), 5 * kSoon);
    sender.join();
    EXPECT_EQ(Take(port), Bytes{0x08});
}

TEST_F(QtSerialPortTest, TheWaitSleeps) {
    ASSERT_TRUE(port.Open(1, kBaud));
    const std::clock_t before = std::clock();
    port.SendAndWait({}, 0.3);
    const double used = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_LT(used, 0.1);
}

TEST_F(QtSerialPortTest, AHangUpEndsTheWaitAtOnceAndIsReportedOnceFromTheEventLoop) {
    ASSERT_TRUE(port.Open(1, kBaud));
    std::thread puller([this] { line.HangUp(); });
    QElapsedTimer watch;
    watch.start();
    port.SendAndWait({}, 30);
    puller.join();
    EXPECT_LT(watch.elapsed(), 5 * kSoon);
    port.SendAndWait({}, 0);
    EXPECT_FALSE(port.IsOpen());
    EXPECT_TRUE(Take(port).empty());
    EXPECT_EQ(lost, 0) << "reported in the middle of a handler";
    EXPECT_TRUE(QTest::qWaitFor([this] { return lost > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(lost, 1);
}

TEST_F(QtSerialPortTest, AHangUpWhileIdleIsNoticedWithoutSpinning) {
    ASSERT_TRUE(port.Open(1, kBaud));
    line.HangUp();
    EXPECT_TRUE(QTest::qWaitFor([this] { return lost > 0; }));
    EXPECT_FALSE(port.IsOpen());
    const std::clock_t before = std::clock();
    QElapsedTimer watch;
    watch.start();
    EXPECT_FALSE(QTest::qWaitFor([this] { return lost > 1; }, 200));
    const double used = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_LT(used * 1000, static_cast<double>(watch.elapsed()) / 2);
}

TEST_F(QtSerialPortTest, WritingToALostDeviceDoesNothing) {
    ASSERT_TRUE(port.Open(1, kBaud));
    line.HangUp();
    port.SendAndWait(Bytes{0x08, 0xF8}, 0.5);
    EXPECT_FALSE(port.IsOpen());
    port.SendAndWait(Bytes{0x08}, 0);
    EXPECT_TRUE(Take(port).empty());
}

TEST_F(QtSerialPortTest, AfterALossAnotherDeviceCanBeOpened) {
    const PseudoTerminal second;
    QtSerialPort both(TableOf(line.Device() + ":" + second.Device()));
    ASSERT_TRUE(both.Open(1, kBaud));
    line.HangUp();
    both.SendAndWait({}, 1);
    EXPECT_FALSE(both.IsOpen());
    EXPECT_TRUE(both.Open(2, kBaud));
    QCoreApplication::processEvents();
    EXPECT_TRUE(both.IsOpen()) << "the news of the first loss closed the second device";
    second.Send({0x08});
    both.SendAndWait({}, 1);
    EXPECT_EQ(Take(both), Bytes{0x08});
}

TEST_F(QtSerialPortTest, AnExchangeOverAHungUpLineFailsAtOnceWithOneBox) {
    ASSERT_TRUE(port.Open(1, kBaud));
    const SteadyClock clock;
    FakeTimer timer;
    FakeMessageBox messageBox;
    FakeLinkView view;
    Link link(port, timer, clock, messageBox, view);
    std::thread puller([this] {
        // After the whole command.
        line.Receive(2);
        line.HangUp();
    });
    QElapsedTimer watch;
    watch.start();
    EXPECT_FALSE(link.Transact(kEmptyTransaction));
    puller.join();
    EXPECT_LT(watch.elapsed(), 1500) << "it waited for the whole reply limit";
    EXPECT_FALSE(link.IsOpen());
    EXPECT_FALSE(link.Transact(kEmptyTransaction));
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

}  // namespace
}  // namespace zelvar::testing
