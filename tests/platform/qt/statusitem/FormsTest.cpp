// SPDX-License-Identifier: MIT
// The pictures that panels are given, down to the byte.
#include "platform/qt/statusitem/forms/Forms.h"

#include <gtest/gtest.h>

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

TEST(Forms, GiveAWidePictureAtTheScaleThatThePanelWants) {
    const auto doubled = pixmapsForHost(HostForm::wideDoubled, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(doubled), std::vector{136});
    EXPECT_EQ(doubled[0].height, 48);
    const auto exact = pixmapsForHost(HostForm::wideExact, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(exact), std::vector{68});
    EXPECT_EQ(exact[0].height, 24);
}

TEST(Forms, GiveSquaresFromSmallToLarge) {
    const auto pixmaps = pixmapsForHost(HostForm::squares, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(pixmaps), (std::vector{16, 22, 24, 32, 44, 48, 64}));
    for (const NotifierPixmap& pixmap : pixmaps) {
        EXPECT_EQ(pixmap.width, pixmap.height);
    }
}

TEST(Forms, GiveAnUnknownPanelSquaresAndThenAWidePicture) {
    const auto pixmaps = pixmapsForHost(HostForm::mixed, sampleImage(), Appearance::aqua);
    EXPECT_EQ(widths(pixmaps), (std::vector{16, 22, 24, 32, 44, 48, 64, 136}));
}

TEST(Forms, LeaveOutWhatCannotBeDrawn) {
    EXPECT_TRUE(pixmapsForHost(HostForm::mixed, {}, Appearance::aqua).isEmpty());
    StatusItemImage broken = sampleImage();
    broken.wide.drawingHandler = [](DrawingContext&) { return false; };
    EXPECT_TRUE(pixmapsForHost(HostForm::wideExact, broken, Appearance::aqua).isEmpty());
}

TEST(Forms, DrawInTheColoursOfThePanel) {
    const auto light = pixmapsForHost(HostForm::wideExact, sampleImage(), Appearance::aqua);
    const auto dark = pixmapsForHost(HostForm::wideExact, sampleImage(), Appearance::darkAqua);
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
