// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "platform/port_table.h"

#include <gtest/gtest.h>

#include <optional>
#include <string>

#include "support/doubles.h"

namespace zelvar::testing {
namespace {

struct DeviceRow {
    const char* name;
    PortNaming naming;
    std::optional<const char*> override;
    int port;
    const char* device;
};

class PortTables : public ::testing::TestWithParam<DeviceRow> {};

TEST_P(PortTables, NameTheDeviceBehindANumber) {
    const DeviceRow& row = GetParam();
    const PortTable table =
        row.override ? PortTable(row.naming, *row.override) : PortTable(row.naming);
    EXPECT_EQ(table.DeviceOf(row.port), row.device);
}

constexpr auto kLinux = PortNaming::Linux;
constexpr auto kWindows = PortNaming::Windows;

INSTANTIATE_TEST_SUITE_P(
    Defaults, PortTables,
    ::testing::Values(DeviceRow{"LinuxFirst", kLinux, {}, 1, "/dev/ttyS0"},
                      DeviceRow{"LinuxLastBuiltIn", kLinux, {}, 4, "/dev/ttyS3"},
                      DeviceRow{"LinuxFirstAdapter", kLinux, {}, 5, "/dev/ttyUSB0"},
                      DeviceRow{"LinuxLastAdapter", kLinux, {}, 12, "/dev/ttyUSB7"},
                      DeviceRow{"LinuxFirstModem", kLinux, {}, 13, "/dev/ttyACM0"},
                      DeviceRow{"LinuxLast", kLinux, {}, 16, "/dev/ttyACM3"},
                      DeviceRow{"LinuxZero", kLinux, {}, 0, ""},
                      DeviceRow{"LinuxSeventeen", kLinux, {}, 17, ""},
                      DeviceRow{"LinuxNegative", kLinux, {}, -1, ""},
                      DeviceRow{"WindowsFirst", kWindows, {}, 1, "COM1"},
                      DeviceRow{"WindowsLast", kWindows, {}, 16, "COM16"},
                      DeviceRow{"WindowsSeventeen", kWindows, {}, 17, ""}),
    [](const auto& row) { return std::string(row.param.name); });

INSTANTIATE_TEST_SUITE_P(
    Overrides, PortTables,
    ::testing::Values(DeviceRow{"First", kLinux, "/tmp/a:/tmp/b", 1, "/tmp/a"},
                      DeviceRow{"Second", kLinux, "/tmp/a:/tmp/b", 2, "/tmp/b"},
                      DeviceRow{"BeyondTheList", kLinux, "/tmp/a:/tmp/b", 3, ""},
                      DeviceRow{"EmptyPlace", kLinux, "/tmp/a::/tmp/c", 2, ""},
                      DeviceRow{"AfterAnEmptyPlace", kLinux, "/tmp/a::/tmp/c", 3, "/tmp/c"},
                      DeviceRow{"EmptyList", kLinux, "", 1, ""},
                      DeviceRow{"Sixteenth", kLinux, "a:b:c:d:e:f:g:h:i:j:k:l:m:n:o:p:q", 16, "p"},
                      DeviceRow{"Seventeenth", kLinux, "a:b:c:d:e:f:g:h:i:j:k:l:m:n:o:p:q", 17, ""},
                      DeviceRow{"WindowsSeparator", kWindows, "COM30;COM40", 2, "COM40"},
                      DeviceRow{"WindowsKeepsColons", kWindows, "\\\\.\\C:X;COM40", 1,
                                "\\\\.\\C:X"}),
    [](const auto& row) { return std::string(row.param.name); });

class PortScan : public ::testing::Test {
  protected:
    FakeClock clock;
    ScriptedPort port{clock};
};

TEST_F(PortScan, FindsThePortsThatCanBeOpenedInAscendingOrder) {
    port.openable = {16, 3, 9};
    EXPECT_EQ(FindUsablePorts(port, 19200), (std::vector<int>{3, 9, 16}));
}

TEST_F(PortScan, FindsNothingWhereNothingCanBeOpened) {
    port.openable = {};
    EXPECT_TRUE(FindUsablePorts(port, 19200).empty());
}

TEST_F(PortScan, NeverLooksBeyondSixteen) {
    port.openable = {16, 17, 18, 0};
    EXPECT_EQ(FindUsablePorts(port, 19200), std::vector<int>{16});
    EXPECT_EQ(port.history.size(), 17U) << "16 attempts and one close";
}

TEST_F(PortScan, ClosesEachPortAtOnceAndEndsClosed) {
    port.openable = {1, 16};
    FindUsablePorts(port, 19200);
    EXPECT_FALSE(port.IsOpen());
    ASSERT_GE(port.history.size(), 3U);
    EXPECT_EQ(port.history[0], "open 1 19200");
    EXPECT_EQ(port.history[1], "close");
    EXPECT_EQ(port.history[2], "open 2 19200");
    EXPECT_EQ(port.history.back(), "close");
}

TEST(SteadyClockTest, IsTheTimeOfDayAndGrows) {
    const SteadyClock clock;
    const double first = clock.SecondsSinceMidnight();
    EXPECT_GE(first, 0);
    EXPECT_LT(first, kSecondsPerDay);
    double later = clock.SecondsSinceMidnight();
    for (int i = 0; i < 1000000 && later == first; ++i) {
        later = clock.SecondsSinceMidnight();
    }
    // A run across midnight is the one exception.
    EXPECT_TRUE(later > first || first > kSecondsPerDay - 10);
}

TEST(SteadyClockTest, TwoClocksAgree) {
    const SteadyClock one;
    const SteadyClock other;
    const double apart = std::abs(one.SecondsSinceMidnight() - other.SecondsSinceMidnight());
    EXPECT_TRUE(apart < 1 || apart > kSecondsPerDay - 1);
}

}  // namespace
}  // namespace zelvar::testing
