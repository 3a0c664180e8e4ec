// SPDX-License-Identifier: MIT
#include "platform/qt/widgets/QtLabel.h"

#include <gtest/gtest.h>

#include <QEvent>
#include <QLabel>

#include "platform/qt/TestApplication.h"
#include "platform/qt/drawing/Colors.h"

namespace zephrine {
namespace {

class RepaintRequests final : public QObject {
public:
    explicit RepaintRequests(QWidget& widget) { widget.installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* /*widget*/, QEvent* event) override {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

struct QtLabelTest : testing::Test {
    QtLabel label{testApplication().appearance()};

    QtLabelTest() {
        label.setFrame({0, 0, 100, 20});
        label.setFont({FontFamily::system, 12, FontWeight::regular});
    }
    QImage picture() {
        QImage image(100, 20, QImage::Format_RGB32);
        image.fill(windowBackground(testApplication().appearance().current()));
        label.widget().render(&image, {}, {}, QWidget::DrawChildren);
        return image;
    }
    /// The columns from the first to the last that has ink.
    QPair<int, int> inked() {
        const QImage image = picture();
        QPair<int, int> columns{-1, -1};
        for (int x = 0; x < image.width(); ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixelColor(x, y) != windowBackground(Appearance::aqua)) {
                    columns = {columns.first < 0 ? x : columns.first, x};
                }
            }
        }
        return columns;
    }
};

TEST_F(QtLabelTest, StartsAtTheLeft) {
    label.setStringValue("HH");
    EXPECT_LE(inked().first, 3);
    EXPECT_LT(inked().second, 40);
}

TEST_F(QtLabelTest, EndsAtTheRightWhenItIsRightAligned) {
    label.setStringValue("HH");
    label.setAlignment(TextAlignment::right);
    EXPECT_GE(inked().second, 95);
}

TEST_F(QtLabelTest, EndsInAnEllipsisWhenItTruncates) {
    label.setStringValue(std::string(100, 'H'));
    const QImage clipped = picture();
    label.setLineBreakMode(LineBreakMode::truncatingTail);
    EXPECT_NE(picture(), clipped);
    EXPECT_LT(inked().second, 100);
    const QImage truncated = picture();
    label.setStringValue(std::string(99, 'H'));
    EXPECT_EQ(picture(), truncated) << "what is cut off does not show";
}

TEST_F(QtLabelTest, SetsATextThatIsALittleTooLongTighter) {
    const auto requested = [this] { return inked().second; };
    label.setFrame({0, 0, 200, 20});
    std::string text;
    while (testApplication().textMeasure().sizeOfText(text, {FontFamily::system, 12}).width < 104) {
        text += 'l';
    }
    label.setFrame({0, 0, 100, 20});
    label.setStringValue(text);
    EXPECT_LT(requested(), 100);
    EXPECT_GT(requested(), 85);
}

TEST_F(QtLabelTest, ShowsMarkupAsItsCharacters) {
    label.setStringValue("<b></b>");
    EXPECT_GT(inked().second, 20);
}

TEST_F(QtLabelTest, ShowsALineBreakAsASpace) {
    label.setStringValue("two\nlines");
    EXPECT_EQ(static_cast<QLabel&>(label.widget()).text(), "two lines");
}

TEST_F(QtLabelTest, HasTheColourOfTheCurrentAppearance) {
    label.setStringValue(std::string(9, '\xdb'));  // drawn as replacement characters
    label.setTextColor(Color::systemRedColor);
    const QImage light = picture();
    testApplication().appearance().setFallback({Appearance::darkAqua});
    const QImage dark = picture();
    testApplication().appearance().setFallback({Appearance::aqua});
    EXPECT_NE(light, dark);
}

TEST_F(QtLabelTest, DrawsNothingWhenNothingChanges) {
    label.setStringValue("42%");
    label.widget().show();
    QApplication::processEvents();
    const RepaintRequests requests(label.widget());
    label.setStringValue("42%");
    label.setTextColor(Color::labelColor);
    label.setAlignment(TextAlignment::natural);
    label.setLineBreakMode(LineBreakMode::clipping);
    label.setFont({FontFamily::system, 12, FontWeight::regular});
    label.setFrame({0, 0, 100, 20});
    QApplication::processEvents();
    EXPECT_EQ(requests.count, 0);
    label.setStringValue("43%");
    QApplication::processEvents();
    EXPECT_EQ(requests.count, 1);
    label.widget().hide();
}

}  // namespace
}  // namespace zephrine
