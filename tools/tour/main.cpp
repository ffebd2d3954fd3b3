// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include <QCoreApplication>

#include <filesystem>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>
#include <vector>

#include "comparison.h"
#include "tour.h"
#include "tour_lock.h"

namespace zelvar::tour {

namespace {

constexpr int kWrongUsage = 2;
/// CTest, Automake and others take it for a test that was skipped.
constexpr int kNotCompared = 77;
/// Beside the pictures: what their looks depend on beside the program.
constexpr char kLooksFile[] = "made-with.txt";

constexpr char kUsage[] = R"(usage: zelvartour [options] FOLDER
Takes the program through a tour on a simulated layout, without a display, and leaves numbered
pictures in FOLDER. Fails when a step does not show what it should.

  --palette light|dark   one palette only; both by default
  --compare FOLDER       also fails when a picture there differs from the one made; ends with 77
                         when they cannot be compared, since other fonts or Qt made them
)";

struct Options {
    std::vector<std::string> palettes{"light", "dark"};
    std::string folder;
    std::string compareWith;
};

bool Parse(const std::vector<std::string>& words, Options& options) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const bool hasValue = i + 1 < words.size();
        if (words[i] == "--palette" && hasValue) {
            options.palettes = {words[++i]};
        } else if (words[i] == "--compare" && hasValue) {
            options.compareWith = words[++i];
        } else if (options.folder.empty() && !words[i].starts_with("-")) {
            options.folder = words[i];
        } else {
            return false;
        }
    }
    const std::string& palette = options.palettes.front();
    return !options.folder.empty() && (palette == "light" || palette == "dark");
}

std::string FirstLine(const std::string& file) {
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);
    return line;
}

enum class Comparison { kEqual, kDifferent, kNotMade };

Comparison Compare(const Options& options, const std::string& palette, const std::string& looks) {
    const std::string before = FirstLine(options.compareWith + "/" + kLooksFile);
    if (before != looks) {
        std::cout << "The pictures in " << options.compareWith << " were made with " << before
                  << ", these with " << looks << ": not compared." << std::endl;
        return Comparison::kNotMade;
    }
    const QStringList complaints = ComparePictures(
        QDir(QString::fromStdString(options.compareWith)),
        QDir(QString::fromStdString(options.folder)), QString::fromStdString(palette));
    for (const QString& complaint : complaints) {
        std::cerr << complaint.toStdString() << '\n';
    }
    return complaints.empty() ? Comparison::kEqual : Comparison::kDifferent;
}

int Run(const Options& options) {
    const TourLock lock;
    const std::string folder = std::filesystem::absolute(options.folder);
    std::filesystem::create_directories(folder);
    bool equal = true;
    bool compared = true;
    for (const std::string& palette : options.palettes) {
        Tour tour({folder, palette});
        if (const std::optional<std::string> complaint = tour.Run()) {
            std::cerr << "The tour fails at " << *complaint << '\n';
            return 1;
        }
        std::ofstream(folder + "/" + kLooksFile) << tour.Looks() << '\n';
        if (!options.compareWith.empty()) {
            const Comparison comparison = Compare(options, palette, tour.Looks());
            equal = equal && comparison != Comparison::kDifferent;
            compared = compared && comparison != Comparison::kNotMade;
        }
    }
    if (!equal) {
        std::cerr << "If they are as they should be, tools/pictures takes them over.\n";
    }
    return !equal ? 1 : compared ? 0 : kNotCompared;
}

}  // namespace

}  // namespace zelvar::tour

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    zelvar::tour::Options options;
    if (!zelvar::tour::Parse({argv + 1, argv + argc}, options)) {
        std::cerr << zelvar::tour::kUsage;
        return zelvar::tour::kWrongUsage;
    }
    try {
        return zelvar::tour::Run(options);
    } catch (const std::exception& error) {
        std::cerr << "zelvartour: " << error.what() << '\n';
        return 1;
    }
}
