// SPDX-License-Identifier: MIT
// What has a whole screen for itself, as sway tells it.
#include "platform/qt/sway/SwayFullScreen.h"

#include <gtest/gtest.h>

#include <QTimer>
#include <atomic>
#include <memory>

#include "platform/qt/statusitem/bus/PrivateBus.h"
#include "platform/qt/sway/FakeSway.h"

namespace zephrine {
namespace {

constexpr std::uint32_t kSubscribe = 2;
constexpr std::uint32_t kGetTree = 4;
constexpr std::uint32_t kWindowEvent = 0x80000003;
const QRect kStrip(912, 4, 80, 28);

struct FullScreenOnSway : testing::Test {
    FakeSway sway;
    std::atomic<bool> film = false;
    std::atomic<bool> tellsTree = true;
    std::atomic<int> looks = 0;
    QByteArray subscription = R"({"success": true})";
    QByteArray news;  ///< comes right behind the answer to who wants to know them
    int changes = 0;

    FullScreenOnSway() {
        sway.answer = [this](std::uint32_t type, const QByteArray& payload) {
            if (type == kSubscribe) {
                EXPECT_EQ(payload, R"(["window", "workspace"])");
                return messageOfSway(type, subscription) + news;
            }
            EXPECT_EQ(type, kGetTree);
            ++looks;
            if (!tellsTree) {
                return QByteArray();
            }
            return messageOfSway(type, QByteArray(R"json({"nodes": [{"type": "con",
                "rect": {"x": 0, "y": 0, "width": 1000, "height": 760}, "visible": true,
                "fullscreen_mode": MODE}]})json")
                                           .replace("MODE", film ? "1" : "0"));
        };
    }

    std::unique_ptr<SwayFullScreen> fullScreen() {
        return std::make_unique<SwayFullScreen>(sway.path(), [this] { ++changes; });
    }
};

QByteArray event(const char* change) {
    return messageOfSway(kWindowEvent,
                         QByteArray(R"({"change": "CHANGE"})").replace("CHANGE", change));
}

/// Several times what may pass between an event and the look that it leads to.
void letTimePass() {
    bool hasPassed = false;
    QTimer::singleShot(200, [&] { hasPassed = true; });
    ASSERT_TRUE(waitUntil([&] { return hasPassed; }));
}

TEST_F(FullScreenOnSway, IsKnownFromTheBeginning) {
    film = true;
    const auto watched = fullScreen();
    EXPECT_TRUE(watched->isWatching());
    EXPECT_TRUE(watched->covers(kStrip));
    EXPECT_FALSE(watched->covers(kStrip.translated(1000, 0))) << "on another screen";
    EXPECT_EQ(changes, 0) << "nothing has changed yet";
}

TEST_F(FullScreenOnSway, IsLookedForAgainWhenSomethingHasHappened) {
    news = event("fullscreen_mode");
    const auto watched = fullScreen();
    EXPECT_FALSE(watched->covers(kStrip));
    film = true;
    ASSERT_TRUE(waitUntil([&] { return changes == 1; }));
    EXPECT_TRUE(watched->covers(kStrip));
}

TEST_F(FullScreenOnSway, IsLookedForOnceWhereMuchHappensAtOnce) {
    news = event("new") + event("title") + event("focus") + event("fullscreen_mode");
    const auto watched = fullScreen();
    film = true;
    ASSERT_TRUE(waitUntil([&] { return changes == 1; }));
    EXPECT_EQ(looks, 2) << "at the beginning, and then";
}

TEST_F(FullScreenOnSway, IsNotLookedForWhenATitleChanges) {
    news = event("title") + event("title");
    const auto watched = fullScreen();
    letTimePass();
    EXPECT_EQ(looks, 1);
}

TEST_F(FullScreenOnSway, IsNothingOnceSwayHasGone) {
    film = true;
    const auto watched = fullScreen();
    ASSERT_TRUE(watched->covers(kStrip));
    sway.end();
    ASSERT_TRUE(waitUntil([&] { return changes == 1; }));
    EXPECT_FALSE(watched->covers(kStrip));
    EXPECT_FALSE(watched->isWatching());
}

TEST_F(FullScreenOnSway, IsAsItWasWhileSwayDoesNotTell) {
    film = true;
    news = event("focus");
    auto watched = fullScreen();
    ASSERT_TRUE(watched->covers(kStrip));
    tellsTree = false;
    ASSERT_TRUE(waitUntil([&] { return looks == 2; }));
    letTimePass();
    EXPECT_TRUE(watched->covers(kStrip));
    EXPECT_EQ(changes, 0);
}

TEST_F(FullScreenOnSway, IsNothingWhereSwayRefusesToTell) {
    subscription = R"({"success": false})";
    EXPECT_FALSE(fullScreen()->isWatching());
}

TEST_F(FullScreenOnSway, IsNothingWhereSwayTalksNonsense) {
    for (const QByteArray& nonsense :
         {QByteArray("nonsense, and no message"), messageOfSway(kGetTree, "{}")}) {
        news = nonsense;
        const auto watched = fullScreen();
        film = true;
        letTimePass();
        EXPECT_FALSE(watched->isWatching());
        EXPECT_FALSE(watched->covers(kStrip));
        EXPECT_EQ(changes, 0);
        film = false;
    }
}

TEST_F(FullScreenOnSway, IsNothingWithoutSway) {
    const SwayFullScreen nowhere({}, [] { FAIL(); });
    EXPECT_FALSE(nowhere.isWatching());
    EXPECT_FALSE(nowhere.covers(kStrip));
}

}  // namespace
}  // namespace zephrine
