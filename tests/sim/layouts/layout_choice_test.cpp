// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/layout_choice.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>

#include "sim/test_layouts.h"

namespace zelvar::sim {
namespace {

const std::filesystem::path kShipped = ZELVAR_SHIPPED_LAYOUTS;

Layout Shipped(const std::string& name) {
    const auto chosen = ChooseLayout(name, kShipped);
    if (const auto* message = std::get_if<std::string>(&chosen)) {
        ADD_FAILURE() << *message;
        return {};
    }
    return std::get<Layout>(chosen);
}

std::string Message(const std::string& name, const std::filesystem::path& folder) {
    const auto chosen = ChooseLayout(name, folder);
    const auto* message = std::get_if<std::string>(&chosen);
    return message == nullptr ? "nothing wrong" : *message;
}

int Present(const Layout& layout, int family, int places) {
    int present = 0;
    for (int channel = 0; channel < 2; ++channel) {
        for (int module = 0; module < places; ++module) {
            present += layout.At(family + channel * kModulesPerChannel + module).Present() ? 1 : 0;
        }
    }
    return present;
}

TEST(ChooseLayoutTest, AWordWithoutSlashIsAShippedOne) {
    EXPECT_EQ(Shipped("club").unitType, static_cast<int>(UnitType::kKbE));
    EXPECT_EQ(Shipped("starter").unitType, static_cast<int>(UnitType::kKbF));
}

TEST(ChooseLayoutTest, NoneIsAUnitAlone) {
    EXPECT_FALSE(Shipped("none").At(kTractionFamily).Present());
    EXPECT_TRUE(Shipped("none").track.sections.empty());
}

TEST(ChooseLayoutTest, WhatHasASlashOrTheEndingIsAFile) {
    EXPECT_EQ(Message("club.toml", kShipped), "zelvarsim: club.toml: No such file or directory");
    EXPECT_EQ(Message("./club", kShipped), "zelvarsim: ./club: No such file or directory");
    EXPECT_EQ(Message(ZELVAR_TEST_LAYOUTS "/mixed.toml", kShipped), "nothing wrong");
}

TEST(ChooseLayoutTest, APlaceInAFileStandsAtTheBeginningOfTheMessage) {
    const std::string path = testing::TempDir() + "zelvar-empty.toml";
    std::ofstream(path).flush();
    EXPECT_EQ(Message(path, kShipped), path + ":1: [unit]: expected, but missing");
}

TEST(ChooseLayoutTest, TheErrorForAnUnknownNameListsTheKnownOnes) {
    EXPECT_EQ(Message("big", kShipped),
              "zelvarsim: --layout: expected club, largest, starter, none or the path of a .toml "
              "file, found \"big\" (shipped layouts are read from " +
                  kShipped.string() + ")");
    EXPECT_EQ(Message("club", "/nowhere"),
              "zelvarsim: --layout: expected none or the path of a .toml file, found \"club\" "
              "(shipped layouts are read from /nowhere)");
    EXPECT_NE(Message("", kShipped), "nothing wrong");
}

TEST(ListLayoutsTest, NamesEachWithItsTitle) {
    EXPECT_EQ(ListLayouts(kShipped),
              "club        A loop with a station, a tram, every kind of module, on a KB-E\n"
              "largest     Every place for a module taken and every block in use, on a KB-E\n"
              "starter     A starter set: one analog train on an oval, on a KB-F\n");
    EXPECT_EQ(ListLayouts("/nowhere"), "");
}

TEST(ShippedLayouts, TheStarterSetIsTooOldForTheNewView) {
    const Layout layout = Shipped("starter");
    EXPECT_LT(layout.protocolVersion, 3101);
    EXPECT_EQ(layout.track.trains.size(), 1U);
    EXPECT_EQ(layout.track.trains.front().control, TrainControl::kAnalog);
    for (int module = 0; module < kModulesPerChannel; ++module) {
        const int channel1 = kTractionFamily + kModulesPerChannel + module;
        EXPECT_FALSE(layout.At(channel1).Present()) << "the Classic View has no channel 1";
    }
}

TEST(ShippedLayouts, TheClubHasEveryFamilyOnBothChannelsAndEveryState) {
    const Layout layout = Shipped("club");
    std::set<int> families;
    std::set<int> types;
    std::set<int> states;
    int masters = 0;
    for (int address = 0; address < kModuleAddresses; ++address) {
        const ModuleSlot& slot = layout.At(address);
        if (!slot.Present()) {
            continue;
        }
        families.insert(address / kModulesPerChannel);  // family and channel
        states.insert(slot.status & (kIdleBit | kFaultBit));
        masters += slot.settings[kMasterSlaveParameter] == 1 ? 1 : 0;
        if (address / kTractionFamily == 1) {
            types.insert(slot.status & kTypeMask);
        }
    }
    EXPECT_EQ(families, (std::set<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(types, (std::set<int>{0, 1, 2}));
    EXPECT_EQ(states, (std::set<int>{0, kIdleBit, kFaultBit}));
    EXPECT_EQ(masters, 1);
    EXPECT_GE(layout.protocolVersion, 3101);
    std::set<TrainControl> controls;
    for (const Train& train : layout.track.trains) {
        controls.insert(train.control);
    }
    EXPECT_EQ(controls.size(), 3U);
}

TEST(ShippedLayouts, TheLargestHasNoPlaceFree) {
    const Layout layout = Shipped("largest");
    EXPECT_EQ(Present(layout, kTractionFamily, kModulesPerChannel), 32);
    EXPECT_EQ(Present(layout, kSecondaryFamily, kModulesPerChannel), 32);
    EXPECT_EQ(Present(layout, kPointFamily, kPointModulesPerChannel), 16);
    EXPECT_EQ(Present(layout, kSignalFamily, kModulesPerChannel), 32);
    std::set<int> blocks;
    for (const TrackSection& section : layout.track.sections) {
        blocks.insert(section.block);
    }
    EXPECT_EQ(blocks.size(), 256U);
}

class ShippedTracks : public testing::TestWithParam<const char*> {};

TEST_P(ShippedTracks, LeadOnAtBothEndsAndAreDetectedEverywhere) {
    for (const TrackSection& section : Shipped(GetParam()).track.sections) {
        EXPECT_FALSE(section.front.sections.empty()) << section.name;
        EXPECT_FALSE(section.back.sections.empty()) << section.name;
        EXPECT_TRUE(section.feedback.has_value()) << section.name;
    }
}

// Eight blocks a traction line is what these files say of themselves.
TEST_P(ShippedTracks, AreFedByModulesThatAreThere) {
    const Layout layout = Shipped(GetParam());
    for (const TrackSection& section : layout.track.sections) {
        const ModuleSlot& feeding = layout.At(LineAddress(section.block / 8));
        EXPECT_TRUE(feeding.Present()) << section.name;
        EXPECT_TRUE(GetParam() == std::string("largest") || (feeding.status & kFaultBit) == 0)
            << section.name;
    }
}

INSTANTIATE_TEST_SUITE_P(Rows, ShippedTracks, testing::Values("starter", "club", "largest"),
                         [](const auto& row) { return row.param; });

TEST(LayoutFolderTest, LiesBesideTheProgramsFolder) {
    // On Linux the first word of the command line does not matter.
    const std::filesystem::path folder = LayoutFolder("/somewhere/else/zelvarsim");
    EXPECT_TRUE(folder.string().ends_with("/share/zelvarsim/layouts")) << folder;
}

}  // namespace
}  // namespace zelvar::sim
