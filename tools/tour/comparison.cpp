// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <QImage>

#include <array>
#include <cstdlib>

namespace zelvar::tour {

namespace {

/// Pixels along a side of a cell of the grid: half a letter.
constexpr int kCell = 4;
/// Mean difference of a cell in one channel, 0..255. A "b" in place of a "p", which differ in
/// little more than the height of their stems, makes 50 in the light palette and 35 in the dark
/// one.
constexpr int kTolerance = 16;

using Channels = std::array<int, 3>;

Channels CellSum(const QImage& picture, int left, int top) {
    Channels sum{};
    for (int y = top; y < std::min(top + kCell, picture.height()); ++y) {
        for (int x = left; x < std::min(left + kCell, picture.width()); ++x) {
            const QRgb pixel = picture.pixel(x, y);
            sum[0] += qRed(pixel);
            sum[1] += qGreen(pixel);
            sum[2] += qBlue(pixel);
        }
    }
    return sum;
}

bool Alike(const Channels& a, const Channels& b) {
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (std::abs(a[i] - b[i]) > kTolerance * kCell * kCell) {
            return false;
        }
    }
    return true;
}

}  // namespace

std::optional<std::string> Difference(const QImage& expected, const QImage& actual) {
    const auto text = [](int a, int b) { return std::to_string(a) + " x " + std::to_string(b); };
    if (expected.size() != actual.size()) {
        return "is " + text(actual.width(), actual.height()) + " pixels large instead of " +
               text(expected.width(), expected.height());
    }
    for (int top = 0; top < expected.height(); top += kCell) {
        for (int left = 0; left < expected.width(); left += kCell) {
            if (!Alike(CellSum(expected, left, top), CellSum(actual, left, top))) {
                return "shows something else at " + std::to_string(left) + ", " +
                       std::to_string(top);
            }
        }
    }
    return std::nullopt;
}

std::vector<std::string> ComparePictures(const std::string& expectedFolder,
                                         const std::string& actualFolder,
                                         const std::vector<std::string>& names,
                                         const std::string& palette) {
    std::vector<std::string> complaints;
    for (const std::string& name : names) {
        const std::string file = "/" + name + "-" + palette + ".png";
        const QImage expected(QString::fromStdString(expectedFolder + file));
        const QImage actual(QString::fromStdString(actualFolder + file));
        if (expected.isNull() || actual.isNull()) {
            complaints.push_back((expected.isNull() ? expectedFolder : actualFolder) + file +
                                 ": no such picture");
        } else if (const std::optional<std::string> difference = Difference(expected, actual)) {
            complaints.push_back(actualFolder + file + " " + *difference);
        }
    }
    return complaints;
}

}  // namespace zelvar::tour
