// SPDX-License-Identifier: MIT
// The pictures that panels are given, down to the byte.
#include "platform/qt/statusitem/forms/Forms.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <QtEndian>

#include "platform/qt/drawing/Colors.h"
#include "platform/qt/statusitem/SampleImage.h"
#include "platform/qt/statusitem/bus/BusText.h"

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

StatusItemImage dark() {
    StatusItemImage image = sampleImage();
    image.appearance = Appearance::darkAqua;
    return image;
}

struct Forms : testing::Test {
    QTemporaryDir runtime;
    QString folder = runtime.path() + "/pictures";
    PictureFiles files{folder};

    NotifierFace face(HostForm form, const StatusItemImage& image) {
        return faceForHost(form, image, files);
    }
    NotifierPixmaps pixmaps(HostForm form, const StatusItemImage& image) {
        const NotifierFace made = face(form, image);
        EXPECT_EQ(made.iconName, QString());
        EXPECT_EQ(made.label, QString());
        return made.pixmaps;
    }
};

TEST_F(Forms, GiveAWidePictureLargeEnoughToBeScaledDown) {
    const auto doubled = pixmaps(HostForm::wideDoubled, sampleImage());
    EXPECT_EQ(widths(doubled), std::vector{136});
    EXPECT_EQ(doubled[0].height, 48);
}

QImage pictureOf(const NotifierPixmap& pixmap) {
    QImage picture(pixmap.width, pixmap.height, QImage::Format_ARGB32);
    for (int y = 0; y < pixmap.height; ++y) {
        qFromBigEndian<quint32>(pixmap.argb.constData() + qsizetype{4} * pixmap.width * y,
                                pixmap.width, picture.scanLine(y));
    }
    return picture;
}

TEST_F(Forms, GiveTheOneLineLargeEnoughToBeScaledDown) {
    StatusItemImage image;
    image.line = [] { return sampleRectangle({120, 12}, Color::systemGreenColor); };
    const auto given = pixmaps(HostForm::line, image);
    EXPECT_EQ(widths(given), std::vector{480});
    EXPECT_EQ(given[0].height, 48);
}

TEST_F(Forms, GiveSquaresFromSmallToLarge) {
    const auto given = pixmaps(HostForm::squares, sampleImage());
    EXPECT_EQ(widths(given), (std::vector{16, 22, 24, 28, 32, 33, 44, 48, 64}));
    for (const NotifierPixmap& pixmap : given) {
        EXPECT_EQ(pixmap.width, pixmap.height);
    }
}

TEST_F(Forms, MultiplyTheColorsOfSquaresByTheirOpacityWhereThePanelDoesNot) {
    StatusItemImage image;
    image.square = [](double side) {
        return Image{{side, side}, [side](DrawingContext& context) {
                         context.setFill(Color::systemGreenColor);
                         context.fillOval({0, 0, side, side});
                         return true;
                     }};
    };
    const auto plain = pixmaps(HostForm::squares, image);
    const auto multiplied = pixmaps(HostForm::multipliedSquares, image);
    ASSERT_EQ(widths(multiplied), widths(plain));
    EXPECT_NE(multiplied, plain) << "the oval's edge is not quite opaque";
    for (qsizetype i = 0; i < plain.size(); ++i) {
        const QImage from = pictureOf(plain[i]);
        const QImage to = pictureOf(multiplied[i]);
        for (int x = 0; x < from.width(); ++x) {
            EXPECT_EQ(to.pixel(x, 2), qPremultiply(from.pixel(x, 2))) << i << ' ' << x;
        }
    }
}

TEST_F(Forms, GiveAnUnknownPanelSquaresAndThenAWidePicture) {
    const auto given = pixmaps(HostForm::mixed, sampleImage());
    EXPECT_EQ(widths(given), (std::vector{16, 22, 24, 28, 32, 33, 44, 48, 64, 136}));
}

TEST_F(Forms, GiveALabelBesideASmallSquare) {
    StatusItemImage image = sampleImage();
    image.text = "CPU   5%\nRAM  45%";
    const NotifierFace given = face(HostForm::labelled, image);
    EXPECT_EQ(given.label, "CPU   5%  RAM  45%") << "on one line";
    EXPECT_EQ(given.iconName, QString());
    EXPECT_EQ(widths(given.pixmaps), std::vector{16});
}

TEST_F(Forms, GiveThePathOfAWideFileAndNoPixels) {
    const NotifierFace given = face(HostForm::wideFile, sampleImage());
    EXPECT_EQ(given.pixmaps, NotifierPixmaps());
    const QImage picture(given.iconName);
    EXPECT_EQ(picture.size(), QSize(68, 24));
    EXPECT_EQ(picture.pixelColor(5, 5), resolve(Color::systemGreenColor, Appearance::aqua));
}

TEST_F(Forms, WriteEachPictureUnderAnotherNameThanTheLast) {
    const QString first = face(HostForm::wideFile, sampleImage()).iconName;
    const QString second = face(HostForm::wideFile, dark()).iconName;
    const QString third = face(HostForm::wideFile, sampleImage()).iconName;
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
        const auto given = faceForHost(HostForm::wideFile, image, *place);
        EXPECT_EQ(given.label, "text");
        EXPECT_EQ(given.iconName, QString());
    }
}

TEST_F(Forms, LeaveOutWhatCannotBeDrawn) {
    EXPECT_TRUE(pixmaps(HostForm::mixed, {}).isEmpty());
    EXPECT_TRUE(pixmaps(HostForm::line, {}).isEmpty());
    StatusItemImage broken = sampleImage();
    broken.wide.drawingHandler = [](DrawingContext&) { return false; };
    EXPECT_TRUE(pixmaps(HostForm::wideDoubled, broken).isEmpty());
}

TEST_F(Forms, DrawInTheColoursOfThePanel) {
    const auto light = pixmaps(HostForm::wideDoubled, sampleImage());
    const auto onDark = pixmaps(HostForm::wideDoubled, dark());
    ASSERT_NE(resolve(Color::systemGreenColor, Appearance::aqua),
              resolve(Color::systemGreenColor, Appearance::darkAqua));
    EXPECT_NE(light, onDark);
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
