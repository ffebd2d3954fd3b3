// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/qt_serial_port.h"

#include <QElapsedTimer>
#include <QTest>

#include <gtest/gtest.h>

#include <atomic>
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

class QtSerialPortTest : public ::testing::Test {
  protected:
    QtSerialPortTest() {
        port.SetPortNumber(1);
        port.SetSettings("19200,o,8,1");
        port.SetLostHandler([this] { ++lost; });
    }

    PortTable TableOf(const std::string& device) { return PortTable(PortNaming::Linux, device); }

    PseudoTerminal line;
    QtSerialPort port{TableOf(line.Device())};
    int lost = 0;
};

TEST_F(QtSerialPortTest, OpensADeviceAndClosesIt) {
    EXPECT_FALSE(port.IsOpen());
    EXPECT_TRUE(port.Open());
    EXPECT_TRUE(port.IsOpen());
    port.Close();
    EXPECT_FALSE(port.IsOpen());
    EXPECT_TRUE(port.Open());
}

TEST_F(QtSerialPortTest, ADeviceInUseCannotBeOpenedAndIsNotListed) {
    ASSERT_TRUE(port.Open());
    QtSerialPort other(TableOf(line.Device()));
    other.SetPortNumber(1);
    EXPECT_FALSE(other.Open());
    EXPECT_TRUE(FindUsablePorts(other).empty());
    port.Close();
    EXPECT_EQ(FindUsablePorts(other), std::vector<int>{1});
}

TEST_F(QtSerialPortTest, WhatIsNoDeviceCannotBeOpened) {
    QtSerialPort other(TableOf("/nonexistent/device::/dev/null"));
    for (const int number : {1, 2, 3, 4, 0, 17, -1}) {
        other.SetPortNumber(number);
        EXPECT_FALSE(other.Open()) << number;
        EXPECT_FALSE(other.IsOpen()) << number;
    }
}

struct SettingsRow {
    const char* name;
    const char* settings;
    speed_t speed;
};

class SerialSettings : public QtSerialPortTest,
                       public ::testing::WithParamInterface<SettingsRow> {};

TEST_P(SerialSettings, ReachTheDevice) {
    port.SetSettings(GetParam().settings);
    ASSERT_TRUE(port.Open());
    const termios settings = line.Settings();
    EXPECT_EQ(cfgetospeed(&settings), GetParam().speed);
    EXPECT_EQ(settings.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
    EXPECT_EQ(settings.c_cflag & CSTOPB, 0U);
    // A pseudo-terminal has no parity bit, but keeps which one was asked for.
    EXPECT_NE(settings.c_cflag & PARODD, 0U);
}

INSTANTIATE_TEST_SUITE_P(Rows, SerialSettings,
                         ::testing::Values(SettingsRow{"Slow", "19200,o,8,1", B19200},
                                           SettingsRow{"Fast", "38400,o,8,1", B38400}),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(QtSerialPortTest, BytesGoOutInOrderAndUnchanged) {
    ASSERT_TRUE(port.Open());
    const Bytes bytes{0x0A, 0x0D, 0x00, 0x03, 0x11, 0x13, 0x7F, 0x80, 0xFF};
    for (const std::uint8_t byte : bytes) {
        port.WriteByte(byte);
    }
    port.Flush();
    EXPECT_EQ(line.Receive(bytes.size()), bytes);
}

TEST_F(QtSerialPortTest, TheWaitSendsWhatWasHeldBack) {
    ASSERT_TRUE(port.Open());
    port.WriteByte(0x08);
    port.WriteByte(0xF8);
    port.WaitForByte(0);
    EXPECT_EQ(line.Receive(2), (Bytes{0x08, 0xF8}));
}

TEST_F(QtSerialPortTest, WhatTheSystemDoesNotTakeAtOnceFollowsWithLaterWaits) {
    ASSERT_TRUE(port.Open());
    Bytes bytes(100'000);  // more than a pseudo-terminal buffers
    for (std::size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<std::uint8_t>(i % 251);
        port.WriteByte(bytes[i]);
    }
    port.WaitForByte(0);
    Bytes got;
    std::atomic<bool> done{false};
    std::thread reader([&] {
        got = line.Receive(bytes.size());
        done = true;
    });
    while (!done) {
        port.WaitForByte(0.01);
    }
    reader.join();
    EXPECT_EQ(got, bytes);
}

TEST_F(QtSerialPortTest, BytesComeInOrderAndUnchanged) {
    ASSERT_TRUE(port.Open());
    const Bytes bytes{0x0A, 0x0D, 0x00, 0x03, 0x11, 0x13, 0x7F, 0x80, 0xFF};
    line.Send(bytes);
    Bytes got;
    while (got.size() < bytes.size()) {
        if (port.BytesWaiting() == 0) {
            port.WaitForByte(1);
            ASSERT_GT(port.BytesWaiting(), 0U);
        }
        got.push_back(port.ReadByte());
    }
    EXPECT_EQ(got, bytes);
    EXPECT_EQ(port.BytesWaiting(), 0U);
}

TEST_F(QtSerialPortTest, TheWaitEndsWithAByteAndElseWithItsTime) {
    ASSERT_TRUE(port.Open());
    QElapsedTimer watch;
    watch.start();
    port.WaitForByte(0.05);
    EXPECT_GE(watch.elapsed(), 50);
    std::thread sender([this] { line.Send({0x08}); });
    watch.restart();
    port.WaitForByte(30);
    EXPECT_LT(watch.elapsed(), 5 * kSoon);
    sender.join();
    EXPECT_EQ(port.ReadByte(), 0x08);
}

TEST_F(QtSerialPortTest, TheWaitSleeps) {
    ASSERT_TRUE(port.Open());
    const std::clock_t before = std::clock();
    port.WaitForByte(0.3);
    const double used = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
    EXPECT_LT(used, 0.1);
}

TEST_F(QtSerialPortTest, AHangUpEndsTheWaitAtOnceAndIsToldOnceFromTheEventLoop) {
    ASSERT_TRUE(port.Open());
    std::thread puller([this] { line.HangUp(); });
    QElapsedTimer watch;
    watch.start();
    port.WaitForByte(30);
    puller.join();
    EXPECT_LT(watch.elapsed(), 5 * kSoon);
    port.WaitForByte(0);
    EXPECT_FALSE(port.IsOpen());
    EXPECT_EQ(port.BytesWaiting(), 0U);
    EXPECT_EQ(lost, 0) << "told in the middle of a handler";
    EXPECT_TRUE(QTest::qWaitFor([this] { return lost > 0; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(lost, 1);
}

TEST_F(QtSerialPortTest, AHangUpWhileIdleIsNoticedWithoutSpinning) {
    ASSERT_TRUE(port.Open());
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
    ASSERT_TRUE(port.Open());
    line.HangUp();
    port.WriteByte(0x08);
    port.WriteByte(0xF8);
    port.Flush();
    port.WaitForByte(0.5);
    EXPECT_FALSE(port.IsOpen());
    port.WriteByte(0x08);
    port.Flush();
    EXPECT_EQ(port.ReadByte(), 0);
}

TEST_F(QtSerialPortTest, AfterALossAnotherDeviceCanBeOpened) {
    const PseudoTerminal second;
    QtSerialPort both(TableOf(line.Device() + ":" + second.Device()));
    both.SetPortNumber(1);
    ASSERT_TRUE(both.Open());
    line.HangUp();
    both.WaitForByte(1);
    EXPECT_FALSE(both.IsOpen());
    both.SetPortNumber(2);
    EXPECT_TRUE(both.Open());
    QCoreApplication::processEvents();
    EXPECT_TRUE(both.IsOpen()) << "the news of the first loss closed the second device";
    second.Send({0x08});
    both.WaitForByte(1);
    EXPECT_EQ(both.ReadByte(), 0x08);
}

TEST_F(QtSerialPortTest, AnExchangeOverAHungUpLineFailsAtOnceWithOneBox) {
    ASSERT_TRUE(port.Open());
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
    EXPECT_FALSE(link.CheckPort());
    EXPECT_EQ(messageBox.shown, std::vector{Exclamation("No response from Zelvar")});
}

}  // namespace
}  // namespace zelvar::testing
