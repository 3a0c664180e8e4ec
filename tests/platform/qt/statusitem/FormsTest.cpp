// SPDX-License-Identifier: MIT
// The pictures that panels are given, down to the byte.
#include "platform/qt/statusitem/forms/Forms.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/statusitem/BusText.h"
#include "platform/qt/statusitem/SampleImage.h"

namespace zephrine {
namespace {

std::vector<int> widths(const NotifierPixmaps& pixmaps) {
    std::vector<int> result;
    for (const NotifierPixmap& pixmap : pixmaps) {
        result.push_back(pixmap.width);
        EXPECT_EQ(pixmap.argb.size(), qsizetype{pixmap.width} * pixmap.height * 4);
    }
    return result;
}

struct Forms : testing::Test {
    QTemporaryDir runtime;
    QString folder = runtime.path() + "/pictures";
    PictureFiles files{folder};

    NotifierFace face(HostForm form, const StatusItemImage& image, Appearance appearance) {
        return faceForHost(form, image, appearance, files);
    }
    NotifierPixmaps pixmaps(HostForm form, const StatusItemImage& image, Appearance appearance) {
        const NotifierFace made = face(form, image, appearance);
        EXPECT_EQ(made.iconName, QString());
        EXPECT_EQ(made.label, QString());
        return made.pixmaps;
    }
};

TEST_F(Forms, GiveAWidePictureAtTheScaleThatThePanelWants) {
    const auto doubled = pixmaps(HostForm::wideDoubled, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(doubled), std::vector{136});
    EXPECT_EQ(doubled[0].height, 48);
    const auto exact = pixmaps(HostForm::wideExact, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(exact), std::vector{68});
    EXPECT_EQ(exact[0].height, 24);
}

TEST_F(Forms, GiveSquaresFromSmallToLarge) {
    const auto given = pixmaps(HostForm::squares, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(given), (std::vector{16, 22, 24, 32, 44, 48, 64}));
    for (const NotifierPixmap& pixmap : given) {
        EXPECT_EQ(pixmap.width, pixmap.height);
    }
}

TEST_F(Forms, GiveAnUnknownPanelSquaresAndThenAWidePicture) {
    const auto given = pixmaps(HostForm::mixed, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(given), (std::vector{16, 22, 24, 32, 44, 48, 64, 136}));
}

TEST_F(Forms, GiveALabelBesideASmallSquare) {
    StatusItemImage image = sampleImage();
    image.text = "CPU   5%\nRAM  45%";
    const NotifierFace given = face(HostForm::labelled, image, Appearance::aqua);
    EXPECT_EQ(given.label, "CPU   5%  RAM  45%") << "on one line";
    EXPECT_EQ(given.iconName, QString());
    EXPECT_EQ(widths(given.pixmaps), std::vector{16});
}

TEST_F(Forms, GiveThePathOfAWideFileAndNoPixels) {
    const NotifierFace given = face(HostForm::wideFile, sampleImage(), Appearance::aqua);
    EXPECT_EQ(given.pixmaps, NotifierPixmaps());
    const QImage picture(given.iconName);
    EXPECT_EQ(picture.size(), QSize(68, 24));
    EXPECT_EQ(picture.pixelColor(5, 5), resolve(Color::systemGreenColor, Appearance::aqua));
}

TEST_F(Forms, WriteEachPictureUnderAnotherNameThanTheLast) {
    const QString first = face(HostForm::wideFile, sampleImage(), Appearance::aqua).iconName;
    const QString second = face(HostForm::wideFile, sampleImage(), Appearance::darkAqua).iconName;
    const QString third = face(HostForm::wideFile, sampleImage(), Appearance::aqua).iconName;
    EXPECT_NE(first, second);
    EXPECT_EQ(first, third);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(), 2);
}

TEST_F(Forms, LeaveNoFileBehind) {
    {
        PictureFiles other(runtime.path() + "/other");
        ASSERT_NE(other.write(sampleImage().wide, Appearance::aqua), QString());
    }
    EXPECT_FALSE(QDir(runtime.path() + "/other").exists());
}

TEST_F(Forms, FallBackToALabelWhereNoFileCanBeWritten) {
    PictureFiles nowhere{QString()};
    PictureFiles forbidden("/proc/zephrine");
    StatusItemImage image = sampleImage();
    image.text = "text";
    for (PictureFiles* place : {&nowhere, &forbidden}) {
        const auto given = faceForHost(HostForm::wideFile, image, Appearance::aqua, *place);
        EXPECT_EQ(given.label, "text");
        EXPECT_EQ(given.iconName, QString());
    }
}

TEST_F(Forms, LeaveOutWhatCannotBeDrawn) {
    EXPECT_TRUE(pixmaps(HostForm::mixed, {}, Appearance::aqua).isEmpty());
    StatusItemImage broken = sampleImage();
    broken.wide.drawingHandler = [](DrawingContext&) { return false; };
    EXPECT_TRUE(pixmaps(HostForm::wideExact, broken, Appearance::aqua).isEmpty());
}

TEST_F(Forms, DrawInTheColoursOfThePanel) {
    const auto light = pixmaps(HostForm::wideExact, sampleImage(), Appearance::aqua);
    const auto dark = pixmaps(HostForm::wideExact, sampleImage(), Appearance::darkAqua);
    ASSERT_NE(resolve(Color::systemGreenColor, Appearance::aqua),
              resolve(Color::systemGreenColor, Appearance::darkAqua));
    EXPECT_NE(light, dark);
}

TEST(NotifierPixmap, IsInNetworkByteOrderAndNotPremultiplied) {
    QImage image(2, 1, QImage::Format_ARGB32);
    image.setPixel(0, 0, qRgba(0x10, 0x20, 0x30, 0xff));
    image.setPixel(1, 0, qRgba(0xff, 0x00, 0x00, 0x80));
    NotifierPixmaps pixmaps;
    addPixmap(pixmaps, image.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    ASSERT_EQ(pixmaps.size(), 1);
    EXPECT_EQ(pixmaps[0].argb.toHex(), "ff10203080ff0000");
}

TEST(BusText, HoldsNothingThatCouldBeTakenAsMarkup) {
    EXPECT_EQ(withoutMarkup("CPU   5%, a & <b>b</b>\n"), "CPU   5%, a  bb/b ");
}

}  // namespace
}  // namespace zephrine
