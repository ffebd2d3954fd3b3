// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "protocol/version.h"
#include "status/status_request.h"
#include "twin/described_layout.h"
#include "twin/twin_link.h"

namespace zelvar::twin {
namespace {

constexpr std::uint32_t kLayouts = 200;

class StatusTwin : public TwinLink {
  protected:
    SystemStatus Request(const DescribedLayout& layout, bool classic = false) {
        port.Connect(layout.ForTheUnit());
        registry = ModuleRegistry();
        const auto status =
            StatusRequest(link, progress, clock, registry, requestView).Run(classic);
        EXPECT_TRUE(status);
        return status.value_or(SystemStatus());
    }

    ModuleRegistry registry;
};

std::string Text(std::string_view text) {
    return std::string(text);
}

/// The type of a line in the registry, by what the new view shows of it.
VDType RegisteredType(const DescribedLayout& layout, int line) {
    const std::string state = layout.TractionState(line);
    if (state == "--" || state == "Error") {
        return VDType::Absent;
    }
    const std::map<std::string, VDType> types{{"?", VDType::Unknown},
                                              {"VD-F", VDType::VdF},
                                              {"QLRX-s", VDType::QlrxS},
                                              {"VD60", VDType::Vd60}};
    return types.at(layout.TypeOf(line));
}

TEST_F(StatusTwin, TheNewViewShowsTheUnitsLayout) {
    for (std::uint32_t seed = 0; seed < kLayouts; ++seed) {
        SCOPED_TRACE(seed);
        const DescribedLayout layout = AnyLayout(seed);
        const SystemStatus status = Request(layout);
        EXPECT_FALSE(status.classic);
        EXPECT_EQ(FormatVersion(status.protocolVersion), layout.protocolVersion);
        EXPECT_EQ(SystemVersionText(status.unit), layout.SystemVersion());
        for (std::size_t i = 0; i < status.vd.size(); ++i) {
            const int line = static_cast<int>(i);
            EXPECT_EQ(ModuleStateText(status.vd[i].state), layout.TractionState(line)) << line;
            EXPECT_EQ(VersionText(status.vd[i]), layout.TractionVersion(line)) << line;
            EXPECT_EQ(registry.vdTypes[i], RegisteredType(layout, line)) << line;
        }
        for (std::size_t i = 0; i < status.vdTypes.size(); ++i) {
            EXPECT_EQ(VDTypeText(status.vdTypes[i]), layout.TypeOf(static_cast<int>(i))) << i;
        }
        for (std::size_t i = 0; i < status.js.size(); ++i) {
            const int position = static_cast<int>(i);
            EXPECT_EQ(ModuleStateText(status.js[i].state), layout.PointsState(position)) << i;
            EXPECT_EQ(JsVersionText(status.js[i]), layout.PointsVersion(position)) << i;
            EXPECT_EQ(registry.jsPresent[i], layout.points.count(position) == 1);
        }
        for (std::size_t i = 0; i < status.yr.size(); ++i) {
            const int number = static_cast<int>(i);
            EXPECT_EQ(ModuleStateText(status.yr[i].state), layout.SignalState(number)) << i;
            EXPECT_EQ(VersionText(status.yr[i]), layout.SignalVersion(number)) << i;
        }
    }
}

TEST_F(StatusTwin, TheClassicViewShowsChannel0OfTheUnitsLayout) {
    for (std::uint32_t seed = 0; seed < kLayouts; ++seed) {
        SCOPED_TRACE(seed);
        const DescribedLayout layout = AnyLayout(seed);
        const SystemStatus status = Request(layout, true);
        EXPECT_TRUE(status.classic);
        EXPECT_EQ(SystemVersionText(status.unit), layout.SystemVersion());
        EXPECT_EQ(status.dip, layout.dipOn);
        for (int line = 0; line < kClassicVDLines; ++line) {
            const auto i = static_cast<std::size_t>(line);
            EXPECT_EQ(ClassicVDTypeText(status.vdTypes[i]), layout.ClassicType(line)) << line;
            EXPECT_EQ(ModuleStateText(status.vd[i].state), layout.ClassicState(line)) << line;
        }
        for (int position = 0; position < kClassicJsModules; ++position) {
            const auto i = static_cast<std::size_t>(position);
            EXPECT_EQ(ModuleStateText(status.js[i].state), layout.ClassicPointsState(position));
            EXPECT_EQ(registry.jsPresent[i], layout.points.count(position) == 1);
        }
    }
}

TEST_F(StatusTwin, EveryVersionArrivesAsItIs) {
    // Letters up to G and a first decimal up to 7 are what two values carry.
    for (int version = 1; version < 10000; ++version) {
        if (version / 100 % 10 > 7 || version % 10 > 7) {
            continue;
        }
        sim::Layout layout = sim::EmptyLayout();
        layout.protocolVersion = version;
        port.Connect(layout);
        Do(ProtocolVersionRequest());
        ASSERT_EQ(ReadProtocolVersion(*reply), version);
    }
}

TEST_F(StatusTwin, AnOldProtocolBringsTheClassicView) {
    for (const auto& [version, classic] :
         {std::pair{"3.10", true}, {"3.10 A", false}, {"3.00 G", true}, {"3.20", false}}) {
        DescribedLayout layout = AnyLayout(1);
        layout.protocolVersion = version;
        EXPECT_EQ(Request(layout).classic, classic) << version;
    }
}

TEST_F(StatusTwin, TheStateOfTheSystemIsThatOfTheUnit) {
    constexpr const char* kNames[] = {"OK", "Hold", "Fault", "Fault+Hold"};
    for (const int state : {0, 1, 2, 3}) {
        port.Connect(AnyLayout(2).ForTheUnit());
        port.state().hold = (state & 1) != 0;
        port.state().fault = (state & 2) != 0;
        const auto status = StatusRequest(link, progress, clock, registry, requestView).Run(false);
        ASSERT_TRUE(status);
        EXPECT_EQ(Text(SystemStateName(status->systemState)), kNames[state]);
    }
}

TEST_F(StatusTwin, AReplyThatComesWithAPollStillCounts) {
    const DescribedLayout layout = AnyLayout(3);
    port.Connect(layout.ForTheUnit());
    port.unit().DeferContent(1);
    const auto status = StatusRequest(link, progress, clock, registry, requestView).Run(false);
    ASSERT_TRUE(status);
    EXPECT_EQ(FormatVersion(status->protocolVersion), layout.protocolVersion);
}

}  // namespace
}  // namespace zelvar::twin
