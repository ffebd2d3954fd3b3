// SPDX-FileCopyrightText: 2026 The ZelvarConfig authors
// SPDX-License-Identifier: MIT
#include "comparison.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace zelvar::tour {
namespace {

constexpr int kWidth = 20;
constexpr int kHeight = 10;

QImage Grey() {
    QImage picture(kWidth, kHeight, QImage::Format_RGB32);
    picture.fill(QColor(100, 100, 100));
    return picture;
}

QImage GreyWithADot() {
    QImage picture = Grey();
    picture.setPixelColor(7, 3, QColor(100, 101, 100));
    return picture;
}

/// Two folders with pictures.
class Comparison : public ::testing::Test {
  protected:
    static void Save(const QTemporaryDir& folder, const char* name, const QImage& picture) {
        ASSERT_TRUE(picture.save(folder.filePath(QString::fromLatin1(name))));
    }
    QStringList Compare(const char* palette = "light") {
        return ComparePictures(QDir(before_.path()), QDir(now_.path()),
                               QString::fromLatin1(palette));
    }

    QTemporaryDir before_;
    QTemporaryDir now_;
};

TEST_F(Comparison, EqualPicturesMakeNoComplaint) {
    Save(before_, "a-light.png", Grey());
    Save(now_, "a-light.png", Grey());
    Save(now_, "b-light.png", GreyWithADot());
    EXPECT_EQ(Compare(), QStringList());
}

TEST_F(Comparison, OnePixelIsADifferenceThatIsShown) {
    Save(before_, "a-light.png", Grey());
    Save(now_, "a-light.png", GreyWithADot());
    const QString shown = now_.filePath(QStringLiteral("a-light-differences.png"));
    ASSERT_EQ(Compare().size(), 1);
    EXPECT_TRUE(Compare().front().endsWith(shown)) << Compare().front().toStdString();
    const QImage marked(shown);
    EXPECT_EQ(marked.pixelColor(7, 3), QColor(Qt::red));
    EXPECT_NE(marked.pixelColor(6, 3), QColor(Qt::red));
}

TEST_F(Comparison, AnotherSizeIsADifference) {
    const QImage marked = Differences(Grey(), Grey().copy(0, 0, kWidth - 1, kHeight));
    EXPECT_EQ(marked.size(), Grey().size());
    EXPECT_EQ(marked.pixelColor(kWidth - 1, 0), QColor(Qt::red));
    EXPECT_NE(marked.pixelColor(kWidth - 2, 0), QColor(Qt::red));
    EXPECT_NE(Grey(), Grey().copy(0, 0, kWidth - 1, kHeight));
}

TEST_F(Comparison, AMissingPictureIsAComplaint) {
    Save(before_, "a-light.png", Grey());
    EXPECT_EQ(Compare(),
              QStringList(now_.filePath(QStringLiteral("a-light.png: no such picture"))));
}

TEST_F(Comparison, EachPaletteIsComparedByItself) {
    Save(before_, "a-dark.png", Grey());
    EXPECT_EQ(Compare("light"), QStringList());
    EXPECT_EQ(Compare("dark").size(), 1);
}

}  // namespace
}  // namespace zelvar::tour
