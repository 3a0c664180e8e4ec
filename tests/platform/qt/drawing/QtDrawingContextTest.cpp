// SPDX-License-Identifier: MIT
#include "platform/qt/drawing/QtDrawingContext.h"

#include <gtest/gtest.h>

#include <QRect>
#include <cmath>
#include <string>

#include "platform/qt/drawing/QtTextMeasure.h"
#include "platform/qt/drawing/RenderImage.h"

namespace zephrine {
namespace {

QImage draw(Size size, double scale, const std::function<void(DrawingContext&)>& handler) {
    return renderImage({size,
                        [&](DrawingContext& context) {
                            handler(context);
                            return true;
                        }},
                       scale, Appearance::aqua);
}

/// The smallest rectangle of device pixels around all that is drawn.
QRect inked(const QImage& image) {
    QRect box;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (qAlpha(image.pixel(x, y)) > 40) {
                box |= QRect(x, y, 1, 1);
            }
        }
    }
    return box;
}

TEST(QtDrawingContext, FillsAnOvalInItsRectangle) {
    const QImage image = draw({20, 20}, 2, [](DrawingContext& context) {
        context.setFill(Color::systemRedColor);
        context.fillOval({10, 4, 4, 4});
    });
    EXPECT_EQ(inked(image), QRect(20, 24, 8, 8));
    EXPECT_EQ(qAlpha(image.pixel(24, 28)), 255);
    EXPECT_LT(qAlpha(image.pixel(20, 24)), 128) << "its corners are round";
}

TEST(QtDrawingContext, StrokesLinesWithoutAGapBetweenThem) {
    Path path;
    path.lineWidth = 1.7;
    path.lineJoin = LineJoin::round;
    path.moveTo({2, 2});
    path.lineTo({20, 30});
    path.lineTo({38, 2});
    const QImage image = draw({40, 40}, 1, [&](DrawingContext& context) {
        context.setStroke(Color::black);
        context.stroke(path);
    });
    for (int x = 2; x < 38; ++x) {
        int strongest = 0;
        for (int y = 0; y < image.height(); ++y) {
            strongest = std::max(strongest, qAlpha(image.pixel(x, y)));
        }
        EXPECT_GT(strongest, 150) << "column " << x;
    }
    EXPECT_EQ(qAlpha(image.pixel(20, 38)), 0) << "nothing joins the two ends";
}

/// A peak whose sides are ten points wide and meet at a right angle, 40 points above the ground.
QRect inkOfPeak(LineJoin join) {
    Path path;
    path.lineWidth = 10;
    path.lineJoin = join;
    path.moveTo({10, 10});
    path.lineTo({40, 40});
    path.lineTo({70, 10});
    return inked(draw({80, 60}, 1, [&](DrawingContext& context) {
        context.setStroke(Color::black);
        context.stroke(path);
    }));
}

TEST(QtDrawingContext, RoundsAJointWhereTheRoundJoinIsAskedFor) {
    EXPECT_NEAR(60 - inkOfPeak(LineJoin::round).top(), 40 + 5, 0.5);
}

TEST(QtDrawingContext, EndsAJointInATipOtherwise) {
    EXPECT_NEAR(60 - inkOfPeak(LineJoin::miter).top(), 40 + 5 * std::sqrt(2), 0.8);
}

TEST(QtDrawingContext, FillsTheOuterSideOfAJoint) {
    for (const LineJoin join : {LineJoin::round, LineJoin::miter}) {
        Path path;
        path.lineWidth = 16;
        path.lineJoin = join;
        path.moveTo({10, 10});
        path.lineTo({40, 10});
        path.lineTo({40, 40});
        const QImage image = draw({60, 60}, 1, [&](DrawingContext& context) {
            context.setStroke(Color::black);
            context.stroke(path);
        });
        // Half the width away from the joint, on its outer side.
        EXPECT_EQ(qAlpha(image.pixel(44, 60 - 6)), 255);
        EXPECT_EQ(qAlpha(image.pixel(47, 60 - 3)), join == LineJoin::miter ? 255 : 0);
    }
}

TEST(QtDrawingContext, CutsAStretchOffWhereItEnds) {
    for (const LineJoin join : {LineJoin::round, LineJoin::miter}) {
        Path path;
        path.lineWidth = 6;
        path.lineJoin = join;
        path.moveTo({10, 20});
        path.lineTo({20, 20});
        path.lineTo({30, 20});
        path.moveTo({40, 20});
        path.lineTo({50, 20});
        path.moveTo({60, 20});
        path.lineTo({60, 30});
        const QImage image = draw({80, 40}, 1, [&](DrawingContext& context) {
            context.setStroke(Color::black);
            context.stroke(path);
        });
        EXPECT_EQ(inked(image.copy(0, 0, 35, 40)), QRect(10, 17, 20, 6));
        EXPECT_EQ(inked(image.copy(35, 0, 20, 40)), QRect(5, 17, 10, 6));
        EXPECT_EQ(inked(image.copy(55, 0, 25, 40)), QRect(2, 10, 6, 10));
    }
}

TEST(QtDrawingContext, DrawsAThinLevelLineInOneRowOfPixels) {
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        for (const double y : {10.0, 10.25, 10.5}) {
            const QImage image = draw({20, 20}, scale, [&](DrawingContext& context) {
                Path line;
                line.lineWidth = 0.5;
                line.moveTo({0, y});
                line.lineTo({20, y});
                context.setStroke(Color::black);
                context.stroke(line);
            });
            int rows = 0;
            for (int row = 0; row < image.height(); ++row) {
                const int alpha = qAlpha(image.pixel(image.width() / 2, row));
                if (alpha > 4) {
                    ++rows;
                    EXPECT_NEAR(alpha, 255 * 0.5 * scale, 4) << "at " << scale;
                    EXPECT_NEAR(row, (20 - y) * scale, 1) << "at " << scale;
                }
            }
            EXPECT_EQ(rows, 1) << "at " << scale << " and " << y;
        }
    }
}

TEST(QtDrawingContext, DrawsNothingBetweenTwoStretches) {
    Path path;
    path.moveTo({0, 5});
    path.lineTo({10, 5});
    path.moveTo({30, 5});
    path.lineTo({40, 5});
    const QImage image = draw({40, 10}, 1, [&](DrawingContext& context) {
        context.setStroke(Color::black);
        context.stroke(path);
    });
    for (int y = 0; y < image.height(); ++y) {
        EXPECT_EQ(qAlpha(image.pixel(20, y)), 0);
    }
    EXPECT_FALSE(inked(image).isEmpty());
}

TEST(QtDrawingContext, DrawsNothingForAPathWithoutLines) {
    Path path;
    path.lineWidth = 1.7;
    path.lineJoin = LineJoin::round;
    path.moveTo({5, 5});
    const QImage image = draw({10, 10}, 1, [&](DrawingContext& context) {
        context.setStroke(Color::black);
        context.stroke(path);
    });
    EXPECT_TRUE(inked(image).isEmpty());
}

struct DrawingScaleTest : testing::TestWithParam<double> {};

TEST_P(DrawingScaleTest, PutsTextIntoTheBoxThatIsMeasured) {
    const double scale = GetParam();
    const Font font{FontFamily::monospaced, 10, FontWeight::medium};
    const Size box = QtTextMeasure().sizeOfText("CPU 42%g", font);
    const QImage image = draw({100, 40}, scale, [&](DrawingContext& context) {
        context.drawText("CPU 42%g", {5, 10}, font, Color::black);
    });
    const QRect ink = inked(image);
    EXPECT_GE(ink.left(), 5 * scale - 1);
    EXPECT_LE(ink.right(), (5 + box.width) * scale + 1);
    EXPECT_LE(ink.bottom(), (40 - 10) * scale + 1);
    EXPECT_GE(ink.top(), (40 - 10 - box.height) * scale - 1);
    EXPECT_GT(ink.width(), 0.8 * box.width * scale);
}

INSTANTIATE_TEST_SUITE_P(Scales, DrawingScaleTest, testing::Values(1.0, 1.25, 1.5, 2.0));

TEST(QtDrawingContext, DrawsMarkupAndLineBreaksAsOneLineOfText) {
    const Font font{FontFamily::system, 12, FontWeight::regular};
    const std::string text = "<b>a</b>\nb";
    const QImage image = draw({200, 60}, 1, [&](DrawingContext& context) {
        context.drawText(text, {2, 20}, font, Color::black);
    });
    EXPECT_LE(inked(image).height(), QtTextMeasure().sizeOfText("x", font).height);
    EXPECT_GT(inked(image).width(), QtTextMeasure().sizeOfText("ab", font).width * 2);
}

}  // namespace
}  // namespace zephrine
