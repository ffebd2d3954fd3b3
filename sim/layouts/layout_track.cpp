// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "sim/layouts/layout_track.h"

#include <algorithm>
#include <array>
#include <map>
#include <sstream>

#include "sim/text/words.h"
#include "sim/unit/reports.h"

namespace zelvar::sim {

namespace {

// In centimetres and seconds: far beyond any table, and small enough to calculate with.
constexpr Limits kSectionLength{1, 10'000};
constexpr Limits kTrainLength{1, 1'000};
constexpr Limits kTopSpeed{1, 500};  // 300 km/h in 1:160 is 52 cm/s
constexpr Limits kTrainAcceleration{0, 500};
constexpr Limits kBlockNumbers{0, kBlocks - 1};
constexpr Limits kFeedbackNumbers{0, kFeedbackInputs - 1};
constexpr Limits kPointNumbers{0, 511};
constexpr std::size_t kMaxWays = 2;  // from an end of a section, by a point
constexpr Limits kDccAddresses{1, 10'239};
constexpr Limits kMccAddresses{0, 4'095};
constexpr int kHighestShortAddress = 127;

constexpr Word kControls[] = {{"analog", static_cast<int>(TrainControl::kAnalog)},
                              {"dcc", static_cast<int>(TrainControl::kDcc)},
                              {"mcc", static_cast<int>(TrainControl::kMcc)}};

/// An end of a section as the file describes it.
struct DescribedEnd {
    int line = 0;
    std::optional<std::vector<LocatedText>> names;  // none: missing or wrong
    bool written = false;
};

struct DescribedSection {
    int line = 0;
    bool hasBlock = false;   // a valid one
    bool hasLength = false;  // a valid one
    DescribedEnd next;
    DescribedEnd previous;
};

struct EndKeys {
    std::string_view ways;
    std::string_view point;
};

constexpr EndKeys kNext{"next", "next-point"};
constexpr EndKeys kPrevious{"previous", "previous-point"};

class TrackReader {
  public:
    explicit TrackReader(LayoutProblems& problems) : problems_(problems) {}

    void ReadSection(const toml::table& table);
    void ReadTrain(const toml::table& table);
    /// Connects the sections by their names, once all are read.
    void Connect();

    TrackPlan plan;

  private:
    void Problem(int line, std::string text) { problems_.push_back({line, std::move(text)}); }
    /// Registers `key` of a section or train; a key that is taken already is a problem.
    template <typename Key>
    void TakeOnce(std::map<Key, int>& taken, const Key& key, int line, const std::string& what);
    DescribedEnd ReadEnd(TableReader& reader, const EndKeys& keys, TrackEnd& end);
    void ReadAddress(TableReader& reader, Train& train);
    void PlaceTrain(TableReader& reader, Train& train, const std::string& section);
    std::optional<std::size_t> SectionNamed(const std::string& name) const;
    std::vector<std::size_t> Indexes(const DescribedEnd& end, std::string_view key);
    void DerivePrevious(std::size_t index);
    void ExpectWayBack(std::size_t index, const TrackEnd& end, const DescribedEnd& described,
                       std::string_view key);

    LayoutProblems& problems_;
    std::vector<DescribedSection> described_;
    std::map<std::string, int> sectionLines_;
    std::map<std::string, int> trainLines_;
    std::map<int, int> feedbackLines_;
    std::map<int, int> occupiedLines_;  // by block
};

template <typename Key>
void TrackReader::TakeOnce(std::map<Key, int>& taken, const Key& key, int line,
                           const std::string& what) {
    const auto [entry, isNew] = taken.emplace(key, line);
    if (!isNew) {
        Problem(line, what + " in line " + std::to_string(entry->second));
    }
}

DescribedEnd TrackReader::ReadEnd(TableReader& reader, const EndKeys& keys, TrackEnd& end) {
    DescribedEnd described{reader.LineOf(keys.ways), std::nullopt, reader.Has(keys.ways)};
    described.names = reader.Names(keys.ways, kMaxWays, Need::kOptional);
    end.point = reader.Int(keys.point, kPointNumbers, Need::kOptional);
    const bool forks = described.names && described.names->size() == kMaxWays;
    const bool isRight = !described.written || described.names.has_value();
    if (forks && !reader.Has(keys.point)) {
        Problem(described.line, std::string(keys.ways) + ": expected " + std::string(keys.point) +
                                    " beside two names");
    } else if (!forks && isRight && reader.Has(keys.point)) {
        Problem(reader.LineOf(keys.point), std::string(keys.point) + ": expected two names in " +
                                               std::string(keys.ways) + ", straight on and thrown");
    }
    return described;
}

void TrackReader::ReadSection(const toml::table& table) {
    TableReader reader(table, problems_);
    TrackSection section;
    DescribedSection described;
    described.line = LineOf(table);
    section.name = reader.Name("name", Need::kRequired).value_or("");
    const auto block = reader.Int("block", kBlockNumbers, Need::kRequired);
    const auto length = reader.Number("length", kSectionLength, Need::kRequired);
    section.block = block.value_or(0);
    section.length = length.value_or(0);
    described.hasBlock = block.has_value();
    described.hasLength = length.has_value();
    section.feedback = reader.Int("feedback", kFeedbackNumbers, Need::kOptional);
    described.next = ReadEnd(reader, kNext, section.front);
    described.previous = ReadEnd(reader, kPrevious, section.back);
    reader.RejectOtherKeys();
    if (!section.name.empty()) {
        TakeOnce(sectionLines_, section.name, reader.LineOf("name"),
                 "name: expected another one, there is already a section " + Quoted(section.name));
    }
    if (section.feedback) {
        TakeOnce(feedbackLines_, *section.feedback, reader.LineOf("feedback"),
                 "feedback: expected an input of its own, " + std::to_string(*section.feedback) +
                     " is already used");
    }
    plan.sections.push_back(std::move(section));
    described_.push_back(std::move(described));
}

std::optional<std::size_t> TrackReader::SectionNamed(const std::string& name) const {
    const auto found =
        std::find_if(plan.sections.begin(), plan.sections.end(),
                     [&](const TrackSection& section) { return section.name == name; });
    if (found == plan.sections.end()) {
        return std::nullopt;
    }
    return found - plan.sections.begin();
}

std::vector<std::size_t> TrackReader::Indexes(const DescribedEnd& end, std::string_view key) {
    std::vector<std::size_t> indexes;
    for (const LocatedText& name : end.names.value_or(std::vector<LocatedText>{})) {
        if (const auto index = SectionNamed(name.text)) {
            indexes.push_back(*index);
        } else {
            Problem(name.line, std::string(key) + ": expected the name of a section, found " +
                                   Quoted(name.text));
        }
    }
    return indexes;
}

bool Leads(const TrackEnd& end, std::size_t section) {
    return std::find(end.sections.begin(), end.sections.end(), section) != end.sections.end();
}

void TrackReader::DerivePrevious(std::size_t index) {
    std::vector<std::size_t> before;
    std::vector<std::string> names;
    for (std::size_t other = 0; other < plan.sections.size(); ++other) {
        if (Leads(plan.sections[other].front, index)) {
            before.push_back(other);
            names.push_back(Quoted(plan.sections[other].name));
        }
    }
    if (before.size() > 1) {
        Problem(described_[index].line, "section " + Quoted(plan.sections[index].name) +
                                            ": expected previous and previous-point, since " +
                                            JoinedWith(names, "and") + " lead here");
    }
    plan.sections[index].back.sections = before;
}

void TrackReader::ExpectWayBack(std::size_t index, const TrackEnd& end,
                                const DescribedEnd& described, std::string_view key) {
    for (const std::size_t other : end.sections) {
        const TrackSection& section = plan.sections[other];
        const DescribedSection& theirs = described_[other];
        const bool isWrong = (theirs.next.written && !theirs.next.names) ||
                             (theirs.previous.written && !theirs.previous.names);
        if (!isWrong && !Leads(section.front, index) && !Leads(section.back, index)) {
            Problem(described.line, std::string(key) + ": expected a section that leads back to " +
                                        Quoted(plan.sections[index].name) + "; " +
                                        Quoted(section.name) +
                                        " names it neither in next nor in previous");
        }
    }
}

void TrackReader::Connect() {
    for (std::size_t index = 0; index < plan.sections.size(); ++index) {
        plan.sections[index].front.sections = Indexes(described_[index].next, kNext.ways);
        plan.sections[index].back.sections = Indexes(described_[index].previous, kPrevious.ways);
    }
    for (std::size_t index = 0; index < plan.sections.size(); ++index) {
        if (!described_[index].previous.written) {
            DerivePrevious(index);
        }
    }
    for (std::size_t index = 0; index < plan.sections.size(); ++index) {
        const TrackSection& section = plan.sections[index];
        ExpectWayBack(index, section.front, described_[index].next, kNext.ways);
        if (described_[index].previous.written) {
            ExpectWayBack(index, section.back, described_[index].previous, kPrevious.ways);
        }
    }
}

void TrackReader::ReadAddress(TableReader& reader, Train& train) {
    if (train.control == TrainControl::kAnalog) {
        reader.Allow("address");
        if (reader.Has("address")) {
            Problem(
                reader.LineOf("address"),
                R"(address: expected only with control = "dcc" or "mcc", an analog train has none)");
        }
    } else {
        const bool isDcc = train.control == TrainControl::kDcc;
        train.address =
            reader.Int("address", isDcc ? kDccAddresses : kMccAddresses, Need::kRequired)
                .value_or(0);
    }
    // Above this number there is no short address.
    train.longAddress = train.control == TrainControl::kDcc && train.address > kHighestShortAddress;
    const std::optional<bool> isLong = reader.Bool("long-address", Need::kOptional);
    if (!isLong) {
        return;
    }
    if (train.control != TrainControl::kDcc) {
        Problem(
            reader.LineOf("long-address"),
            R"(long-address: expected only with control = "dcc", other addresses have one form)");
    } else if (train.longAddress && !*isLong) {
        Problem(reader.LineOf("long-address"), "long-address: expected true above address " +
                                                   std::to_string(kHighestShortAddress) +
                                                   ", found false");
    }
    train.longAddress = *isLong;
}

void TrackReader::PlaceTrain(TableReader& reader, Train& train, const std::string& section) {
    const auto index = SectionNamed(section);
    if (!index) {
        Problem(reader.LineOf("section"),
                "section: expected the name of a section, found " + Quoted(section));
        return;
    }
    train.section = *index;
    const TrackSection& place = plan.sections[*index];
    if (described_[*index].hasBlock) {
        TakeOnce(occupiedLines_, place.block, reader.LineOf("section"),
                 "section: expected one in another block, a train already begins in block " +
                     std::to_string(place.block));
    }
    if (!described_[*index].hasLength) {
        return;  // already reported; cannot check further without a valid length
    }
    std::ostringstream room;
    room << "at most the " << place.length << " cm of section " << Quoted(place.name);
    if (train.length > place.length) {
        Problem(reader.LineOf("length"),
                "length: expected " + room.str() + ", where the train begins");
        return;
    }
    // In the middle, unless the file says otherwise.
    const bool isPlaced = reader.Has("position");
    train.position = isPlaced ? train.position : (place.length + train.length) / 2;
    if (isPlaced && (train.position < train.length || train.position > place.length)) {
        Problem(reader.LineOf("position"),
                "position: expected at least the train's length and " + room.str());
    }
}

void TrackReader::ReadTrain(const toml::table& table) {
    TableReader reader(table, problems_);
    Train train;
    train.name = reader.Name("name", Need::kRequired).value_or("");
    const auto control = reader.OneOf("control", kControls, Need::kRequired);
    if (control) {
        train.control = static_cast<TrainControl>(*control);
        ReadAddress(reader, train);
    }
    const auto section = reader.Name("section", Need::kRequired);
    const auto length = reader.Number("length", kTrainLength, Need::kRequired);
    const auto position = reader.Number("position", {0, kSectionLength.max}, Need::kOptional);
    train.topSpeed = reader.Number("top-speed", kTopSpeed, Need::kRequired).value_or(0);
    train.acceleration =
        reader.Number("acceleration", kTrainAcceleration, Need::kOptional).value_or(0);
    if (!train.name.empty()) {
        TakeOnce(trainLines_, train.name, reader.LineOf("name"),
                 "name: expected another one, there is already a train " + Quoted(train.name));
    }
    const bool isPlaceable = length && position.has_value() == reader.Has("position");
    if (section && isPlaceable) {
        train.length = *length;
        train.position = position.value_or(0);
        PlaceTrain(reader, train, *section);
    }
    // Without a valid control it is unknown which of these belong here.
    if (!control) {
        reader.Allow("address");
        reader.Allow("long-address");
    }
    reader.RejectOtherKeys();
    plan.trains.push_back(std::move(train));
}

}  // namespace

TrackPlan ReadTrack(TableReader& root, LayoutProblems& problems) {
    TrackReader reader(problems);
    for (const toml::table* table : root.Tables("section")) {
        reader.ReadSection(*table);
    }
    reader.Connect();
    for (const toml::table* table : root.Tables("train")) {
        reader.ReadTrain(*table);
    }
    return std::move(reader.plan);
}

}  // namespace zelvar::sim
