// SPDX-License-Identifier: MIT
#include "dashboard/HistoryView.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "fakes/FakeDrawing.h"
#include "fakes/FakeWidgets.h"

namespace zephrine {
namespace {

using Verb = Path::Verb;

class HistoryViewTest : public testing::Test {
protected:
    /// What the view draws on 320 by 106 points.
    RecordingContext drawn() {
        RecordingContext context;
        fake<FakeCanvas>(view.canvas()).draw(context, {320, 106});
        return context;
    }
    /// The CPU series drawn from these samples.
    std::vector<Path::Element> cpuSeries(std::vector<HistorySample> samples) {
        view.setSamples(std::move(samples));
        return drawn().strokes.at(3).path.elements();
    }

    FakeWidgetFactory widgets;
    HistoryView view{widgets};
};

HistorySample cpuAt(double time, std::optional<double> cpu) {
    return {.time = time, .cpu = cpu, .ram = {}, .gpu = {}};
}

TEST_F(HistoryViewTest, DrawsOnlyTheGridForFewerThanTwoSamples) {
    for (const std::size_t count : {0U, 1U}) {
        view.setSamples(std::vector<HistorySample>(count, cpuAt(0, 50)));
        const auto context = drawn();
        ASSERT_EQ(context.strokes.size(), 3U);
        const std::array<double, 3> heights{2, 53, 104};
        for (std::size_t i = 0; i < 3; ++i) {
            const Path& line = context.strokes[i].path;
            EXPECT_EQ(line.elements(),
                      (std::vector<Path::Element>{{Verb::move, {0, heights[i]}},
                                                  {Verb::line, {320, heights[i]}}}));
            EXPECT_EQ(line.lineWidth, 0.5);
            EXPECT_EQ(context.strokes[i].color, Color::quaternaryLabelColor);
        }
    }
}

TEST_F(HistoryViewTest, DrawsTheSeriesOverTheGridWithTheGPUOnTop) {
    view.setSamples(
        {{.time = 0, .cpu = 1, .ram = 2, .gpu = 3}, {.time = 300, .cpu = 1, .ram = 2, .gpu = 3}});
    const auto context = drawn();
    ASSERT_EQ(context.strokes.size(), 6U);
    const std::array colors{Color::systemBlueColor, Color::systemGreenColor,
                            Color::systemPurpleColor};
    for (std::size_t i = 0; i < 3; ++i) {
        EXPECT_EQ(context.strokes[3 + i].color, colors[i]);
        EXPECT_EQ(context.strokes[3 + i].path.lineWidth, 1.7);
        EXPECT_EQ(context.strokes[3 + i].path.lineJoin, LineJoin::round);
        EXPECT_DOUBLE_EQ(context.strokes[3 + i].path.elements()[0].point.y,
                         static_cast<double>(i + 1) / 100 * 102 + 2);
    }
}

TEST_F(HistoryViewTest, ConnectsEverySecondUpToTheRightEdge) {
    std::vector<HistorySample> samples;
    for (int i = 0; i <= 300; ++i) {
        samples.push_back(cpuAt(1000 + i, 50));
    }
    const auto line = cpuSeries(samples);
    ASSERT_EQ(line.size(), 301U);
    EXPECT_EQ(line.front(), (Path::Element{Verb::move, {0, 53}}));
    EXPECT_EQ(line.back(), (Path::Element{Verb::line, {320, 53}}));
    for (std::size_t i = 1; i < line.size(); ++i) {
        EXPECT_EQ(line[i].verb, Verb::line);
    }
}

TEST_F(HistoryViewTest, BreaksTheLineAtAGapOfTwelveSecondsButNotBelow) {
    EXPECT_EQ(cpuSeries({cpuAt(0, 1), cpuAt(12, 1)})[1].verb, Verb::move);
    EXPECT_EQ(cpuSeries({cpuAt(0, 1), cpuAt(11.9, 1)})[1].verb, Verb::line);
}

TEST_F(HistoryViewTest, BreaksTheLineAtAnAbsentValue) {
    const auto line = cpuSeries({cpuAt(0, 1), cpuAt(1, {}), cpuAt(2, 1), cpuAt(3, 1)});
    ASSERT_EQ(line.size(), 3U);
    EXPECT_EQ(line[0].verb, Verb::move);
    EXPECT_EQ(line[1].verb, Verb::move);
    EXPECT_EQ(line[2].verb, Verb::line);
}

TEST_F(HistoryViewTest, ClampsValuesToTheGrid) {
    const auto line = cpuSeries({cpuAt(0, 150), cpuAt(1, -5), cpuAt(2, std::nan(""))});
    EXPECT_EQ(line[0].point.y, 104);
    EXPECT_EQ(line[1].point.y, 2);
    EXPECT_EQ(line[2].point.y, 2);
}

TEST_F(HistoryViewTest, StrokesASeriesWithoutAnyValueToo) {
    view.setSamples({cpuAt(0, {}), cpuAt(1, {})});
    const auto context = drawn();
    ASSERT_EQ(context.strokes.size(), 6U);
    EXPECT_TRUE(context.strokes[3].path.elements().empty());
}

TEST_F(HistoryViewTest, FollowsTheSizeOfItsView) {
    view.setSamples({cpuAt(0, 0), cpuAt(300, 100)});
    RecordingContext context;
    fake<FakeCanvas>(view.canvas()).draw(context, {100, 54});
    EXPECT_EQ(context.strokes[2].path.elements()[1].point, (Point{100, 52}));
    const std::vector<Path::Element> ends{{Verb::move, {0, 2}}, {Verb::move, {100, 52}}};
    EXPECT_EQ(context.strokes[3].path.elements(), ends);
}

TEST_F(HistoryViewTest, PinsOldSamplesToTheLeftEdge) {
    const auto line = cpuSeries({cpuAt(0, 1), cpuAt(100, 1), cpuAt(400, 1)});
    EXPECT_EQ(line[0].point.x, 0);
    EXPECT_EQ(line[1].point.x, 0);
    EXPECT_EQ(line[2].point.x, 320);
}

TEST_F(HistoryViewTest, HasNoUpperClampOnTime) {
    // The last sample is the latest one even when an earlier one has a later time.
    EXPECT_EQ(cpuSeries({cpuAt(460, 1), cpuAt(400, 1)})[0].point.x, 384);
}

TEST_F(HistoryViewTest, RedrawsWheneverItsSamplesAreSet) {
    view.setSamples({});
    view.setSamples({});
    EXPECT_EQ(fake<FakeCanvas>(view.canvas()).displaysNeeded, 2);
}

}  // namespace
}  // namespace zephrine
