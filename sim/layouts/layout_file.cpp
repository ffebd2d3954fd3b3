// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/layout_file.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>

#include "sim/layouts/layout_track.h"
#include "sim/layouts/table_reader.h"
#include "sim/protocol/names.h"

namespace zelvar::sim {

namespace {

constexpr std::uintmax_t kLargestFile = 1'048'576;  // bytes: the largest system takes some 20 000
constexpr std::size_t kLongestTitle = 64;           // bytes: fits a line of the list, with the name
constexpr Limits kChannels{0, 1};
constexpr std::size_t kDipSwitches = 4;

constexpr Word kSwitches[] = {{"off", 0}, {"on", 1}};

constexpr Word kOk{"ok", static_cast<int>(ModuleState::kOk)};
constexpr Word kIdle{"idle", static_cast<int>(ModuleState::kIdle)};
constexpr Word kTractionStates[] = {kOk, kIdle, {"fault", static_cast<int>(ModuleState::kFault)}};
constexpr Word kPointStates[] = {kOk, kIdle, {"hold", static_cast<int>(ModuleState::kHold)}};
constexpr Word kSignalStates[] = {kOk, kIdle};

/// A kind of module: its tables, the first of its addresses and its places on each channel.
struct Family {
    std::string_view key;
    int address;
    int places;
    std::span<const Word> states;
};

constexpr Family kFamilies[] = {
    {"traction-module", kTractionFamily, kModulesPerChannel, kTractionStates},
    {"point-module", kPointFamily, kPointModulesPerChannel, kPointStates},
    {"signal-module", kSignalFamily, kModulesPerChannel, kSignalStates},
};

ModuleState ReadState(TableReader& reader, std::span<const Word> states) {
    return static_cast<ModuleState>(
        reader.OneOf("state", states, Need::kOptional).value_or(kOk.value));
}

/// A setting in words, or a number in its range.
std::optional<int> ReadSetting(TableReader& reader, const TractionSetting& setting) {
    return setting.words.empty()
               ? reader.Int(setting.layoutKey, {setting.min, setting.max}, Need::kOptional)
               : reader.OneOf(setting.layoutKey, setting.words, Need::kOptional);
}

/// What only traction units have.
void ReadSettingsAndClock(TableReader& reader, ModuleSlot& slot) {
    for (const TractionSetting& setting : kTractionSettings) {
        if (!setting.layoutKey.empty()) {
            slot.settings[setting.parameter] =
                static_cast<std::uint8_t>(ReadSetting(reader, setting).value_or(setting.factory));
        }
    }
    slot.clock =
        static_cast<std::uint8_t>(reader.OneOf("clock", kClockWords, Need::kOptional).value_or(0));
}

/// A VD60's second unit; without a version of its own it has that of the first unit.
ModuleSlot ReadSecondUnit(const toml::table& table, int version, LayoutProblems& problems) {
    TableReader reader(table, problems);
    ModuleSlot slot;
    const int type = reader.OneOf("type", kTractionTypeWords, Need::kOptional)
                         .value_or(static_cast<int>(TractionType::kVd60));
    slot.status = StatusByte(type, ReadState(reader, kTractionStates));
    slot.version = reader.Version("version", true, Need::kOptional).value_or(version);
    ReadSettingsAndClock(reader, slot);
    reader.RejectOtherKeys();
    return slot;
}

class ModuleReader {
  public:
    ModuleReader(Layout& layout, LayoutProblems& problems) : layout_(layout), problems_(problems) {}

    void Read(const Family& family, const toml::table& table) {
        TableReader reader(table, problems_);
        const auto channel = reader.Int("channel", kChannels, Need::kRequired);
        const auto module = reader.Int("module", {0, family.places - 1}, Need::kRequired);
        const bool isTraction = family.address == kTractionFamily;
        const int type =
            isTraction ? reader.OneOf("type", kTractionTypeWords, Need::kRequired).value_or(0) : 0;
        ModuleSlot slot;
        slot.status = StatusByte(type, ReadState(reader, family.states));
        slot.version = reader.Version("version", true, Need::kOptional).value_or(0);
        ModuleSlot second;
        if (isTraction) {
            ReadSettingsAndClock(reader, slot);
            if (const toml::table* unit = reader.Table("second", Need::kOptional)) {
                second = ReadSecondUnit(*unit, slot.version, problems_);
                if (type != static_cast<int>(TractionType::kVd60)) {
                    reader.Problem(LineOf(*unit),
                                   R"(second: expected a module of type "VD60", no other has one)");
                }
            }
        }
        reader.RejectOtherKeys();
        if (channel && module) {
            const int place = *channel * kModulesPerChannel + *module;
            Put(family, place, slot, LineOf(table));
            if (second.Present()) {
                layout_.At(kSecondaryFamily + place) = second;
            }
        }
    }

  private:
    void Put(const Family& family, int place, const ModuleSlot& slot, int line) {
        const int address = family.address + place;
        const auto [earlier, isNew] = lines_.emplace(address, line);
        if (!isNew) {
            problems_.push_back(
                {line, std::string(family.key) + ": expected another place, module " +
                           std::to_string(place % kModulesPerChannel) + " of channel " +
                           std::to_string(place / kModulesPerChannel) +
                           " is already described in line " + std::to_string(earlier->second)});
            return;
        }
        layout_.At(address) = slot;
    }

    Layout& layout_;
    LayoutProblems& problems_;
    std::map<int, int> lines_;  // of the described modules, by address
};

void ReadUnit(const toml::table& table, Layout& layout, LayoutProblems& problems) {
    TableReader reader(table, problems);
    layout.unitType = reader.OneOf("type", kUnitTypeWords, Need::kRequired).value_or(0);
    layout.systemVersion = reader.Version("version", false, Need::kRequired).value_or(0);
    layout.protocolVersion = reader.Version("protocol", false, Need::kRequired).value_or(0);
    const auto switches = reader.ListOf("dip-switches", kSwitches, kDipSwitches, Need::kOptional)
                              .value_or(std::vector<int>(kDipSwitches, 0));
    layout.dipSwitches = 0;
    for (std::size_t index = 0; index < kDipSwitches; ++index) {
        // A switch that is on pulls its line down.
        layout.dipSwitches |= static_cast<std::uint8_t>(switches[index] == 0 ? 1U << index : 0U);
    }
    reader.RejectOtherKeys();
}

/// Reads every table of the file.
DescribedLayout ReadRoot(const toml::table& file, LayoutProblems& problems) {
    DescribedLayout described;
    TableReader root(file, problems);
    described.title = root.Text("title", kLongestTitle, Need::kOptional).value_or("");
    if (const toml::table* unit = root.Table("unit", Need::kRequired)) {
        ReadUnit(*unit, described.layout, problems);
    }
    ModuleReader modules(described.layout, problems);
    for (const Family& family : kFamilies) {
        for (const toml::table* table : root.Tables(family.key)) {
            modules.Read(family, *table);
        }
    }
    described.layout.track = ReadTrack(root, problems);
    root.RejectOtherKeys();
    return described;
}

}  // namespace

std::variant<DescribedLayout, LayoutProblems> ParseLayout(std::string_view text) {
    LayoutProblems problems;
    try {
        DescribedLayout described = ReadRoot(toml::parse(text), problems);
        if (problems.empty()) {
            return described;
        }
    } catch (const toml::parse_error& error) {
        problems = {
            {static_cast<int>(error.source().begin.line), std::string(error.description())}};
    }
    std::stable_sort(
        problems.begin(), problems.end(),
        [](const LayoutProblem& a, const LayoutProblem& b) { return a.line < b.line; });
    return problems;
}

std::variant<DescribedLayout, std::string> ReadLayoutFile(const std::string& path) {
    std::error_code error;
    if (std::filesystem::is_directory(path, error)) {
        return path + ": expected a file, found a folder";
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return path + ": " + std::strerror(errno);
    }
    std::string text(kLargestFile + 1, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (file.bad()) {
        return path + ": cannot be read";
    }
    text.resize(file.gcount());
    if (text.size() > kLargestFile) {
        return path + ": expected at most " + std::to_string(kLargestFile) + " bytes";
    }
    auto parsed = ParseLayout(text);
    if (auto* described = std::get_if<DescribedLayout>(&parsed)) {
        return std::move(*described);
    }
    std::string lines;
    for (const LayoutProblem& problem : std::get<LayoutProblems>(parsed)) {
        lines += (lines.empty() ? "" : "\n") + path + ':' + std::to_string(problem.line) + ": " +
                 problem.text;
    }
    return lines;
}

}  // namespace zelvar::sim
