// SPDX-License-Identifier: MIT
// The sources that a machine's cards lead to, here read on the test's own thread.
#include "platform/linux/gpu/GPUSources.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/linux/OpenWatch.h"
#include "platform/linux/gpu/FakeCards.h"

namespace zephrine {
namespace {

using testing::FakeCards;
using testing::OpenWatch;

class GPUSourcesTest : public ::testing::Test {
protected:
    static constexpr const char* kCard = "0000:03:00.0";

    void addCard(const std::string& busy, const std::string& status = "active") const {
        cards.add(0, "amdgpu", kCard, status);
        setBusy(busy);
    }
    void setBusy(const std::string& busy) const {
        cards.tree.write(FakeCards::device(kCard) + "gpu_busy_percent", busy);
    }
    [[nodiscard]] std::vector<GPUSourceMaker> makers() const {
        return findGPUSources(*findGraphicsCards(cards.tree.root()), {.sys = cards.tree.root()},
                              [this] { return now; });
    }
    /// The source of the one card.
    [[nodiscard]] std::unique_ptr<GPUSource> make() const { return makers().at(0)(); }
    /// The same, past its first figure, which is dropped.
    [[nodiscard]] std::unique_ptr<GPUSource> makeWarm() const {
        auto source = make();
        source->utilization();
        return source;
    }

    FakeCards cards;
    double now = 0;
};

TEST_F(GPUSourcesTest, GiveTheDriversOwnFigureUncheckedForTheSamplerToJudge) {
    addCard("0\n");
    const auto source = makeWarm();
    for (const double percent : {0.0, 37.0, 100.0, 120.0, -5.0}) {
        setBusy(std::to_string(static_cast<int>(percent)) + "\n");
        EXPECT_EQ(source->utilization(), percent);
    }
}

TEST_F(GPUSourcesTest, AreAbsentWhenTheFigureIsNotANumber) {
    addCard("0\n");
    const auto source = makeWarm();
    for (const char* text :
         {"", "37", "busy\n", "3 7\n", "37%\n", "nan\n", "1e2\n", "99999999999999999999\n"}) {
        setBusy(text);
        EXPECT_EQ(source->utilization(), std::nullopt) << text;
    }
    setBusy(std::string(3, '\0') + "\n");
    EXPECT_EQ(source->utilization(), std::nullopt);
    setBusy(std::string(std::size_t{10} << 20U, '1'));
    EXPECT_EQ(source->utilization(), std::nullopt);
    setBusy("37\n");
    EXPECT_EQ(source->utilization(), 37.0);
}

TEST_F(GPUSourcesTest, AreAbsentWhileTheReadFails) {
    addCard("30\n");
    const std::string busy = FakeCards::device(kCard) + "gpu_busy_percent";
    cards.tree.remove(busy);
    ASSERT_EQ(::mkfifo(cards.tree.path(busy).c_str(), 0600), 0);
    const auto source = makeWarm();
    EXPECT_EQ(source->utilization(), std::nullopt);
    cards.tree.remove(busy);
    EXPECT_EQ(source->utilization(), std::nullopt);
    setBusy("31\n");
    EXPECT_EQ(source->utilization(), 31.0);
}

TEST_F(GPUSourcesTest, OpenNothingButTheStatusOfACardThatSleeps) {
    addCard("55\n", "suspended");
    cards.letSleep(kCard, 5000);
    OpenWatch watch(cards.tree.path(FakeCards::device(kCard)));
    OpenWatch power(cards.tree.path(FakeCards::device(kCard) + "power"));
    const auto source = makeWarm();
    EXPECT_EQ(source->utilization(), std::nullopt);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(power.touched(), std::set<std::string>{"runtime_status"});
}

TEST_F(GPUSourcesTest, ReadACardThatWokeFromItsSecondFigureOn) {
    addCard("99\n", "suspended");
    const auto source = makeWarm();
    cards.setStatus(kCard, "active");
    EXPECT_EQ(source->utilization(), std::nullopt);
    EXPECT_EQ(source->utilization(), 99.0);
}

TEST_F(GPUSourcesTest, StopReadingWhenTheCardFallsAsleep) {
    addCard("55\n");
    const auto source = makeWarm();
    EXPECT_EQ(source->utilization(), 55.0);
    cards.setStatus(kCard, "suspended");
    OpenWatch watch(cards.tree.path(FakeCards::device(kCard)));
    EXPECT_EQ(source->utilization(), std::nullopt);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
}

TEST_F(GPUSourcesTest, LetAnIdleCardFallAsleep) {
    addCard("0\n");
    cards.letSleep(kCard, 5000);
    const auto source = makeWarm();
    for (; now < 3; ++now) {
        EXPECT_EQ(source->utilization(), 0.0);
    }
    OpenWatch watch(cards.tree.path(FakeCards::device(kCard)));
    for (; now < 8; ++now) {
        EXPECT_EQ(source->utilization(), std::nullopt);
    }
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(source->utilization(), 0.0);
}

TEST_F(GPUSourcesTest, AreOnlyThoseOfCardsWhoseDriversTellTheirLoad) {
    cards.add(0, "bochs-drm", kCard);
    cards.tree.write("class/drm/card1/dev", "226:1\n");
    EXPECT_TRUE(makers().empty());
}

}  // namespace
}  // namespace zephrine
