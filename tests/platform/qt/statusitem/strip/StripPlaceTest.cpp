// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/strip/StripPlace.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "fakes/FakeServices.h"

namespace zephrine {
namespace {

using Corner = StripPlace::Corner;
constexpr QSize kSize{80, 28};
const QList<QRect> kOneScreen{{0, 0, 1000, 400}};
const QList<QRect> kTwoScreens{{0, 0, 1000, 400}, {1000, -200, 1920, 1080}};

TEST(StripPlace, IsCountedFromTheNearestCorner) {
    EXPECT_EQ(placeOf({{10, 5}, kSize}, kOneScreen), (StripPlace{0, Corner::topLeft, {10, 5}}));
    EXPECT_EQ(placeOf({{912, 4}, kSize}, kOneScreen), (StripPlace{0, Corner::topRight, {8, 4}}));
    EXPECT_EQ(placeOf({{10, 362}, kSize}, kOneScreen),
              (StripPlace{0, Corner::bottomLeft, {10, 10}}));
    EXPECT_EQ(placeOf({{900, 362}, kSize}, kOneScreen),
              (StripPlace{0, Corner::bottomRight, {20, 10}}));
}

TEST(StripPlace, LeadsBackToWhereTheStripWas) {
    for (const QPoint point : {QPoint(0, 0), QPoint(3, 300), QPoint(920, 0), QPoint(700, 200)}) {
        const StripPlace place = placeOf({point, kSize}, kOneScreen);
        EXPECT_EQ(positionOf(place, kSize, kOneScreen), point);
    }
}

TEST(StripPlace, StaysInItsCornerWhenTheScreenChangesItsSize) {
    const StripPlace place = placeOf({{912, 4}, kSize}, kOneScreen);
    EXPECT_EQ(positionOf(place, kSize, {{0, 0, 1920, 1080}}), QPoint(1832, 4));
}

TEST(StripPlace, BelongsToTheScreenThatTheStripIsOn) {
    const StripPlace place = placeOf({{1010, -190}, kSize}, kTwoScreens);
    EXPECT_EQ(place, (StripPlace{1, Corner::topLeft, {10, 10}}));
    EXPECT_EQ(positionOf(place, kSize, kTwoScreens), QPoint(1010, -190));
}

TEST(StripPlace, IsOnTheFirstScreenWhenItsOwnIsGone) {
    EXPECT_EQ(positionOf({1, Corner::topLeft, {10, 10}}, kSize, kOneScreen), QPoint(10, 10));
}

TEST(StripPlace, IsWhollyOnTheScreenWhateverWasStored) {
    EXPECT_EQ(positionOf({0, Corner::topRight, {5000, 5000}}, kSize, kOneScreen), QPoint(0, 372));
    EXPECT_EQ(positionOf({-7, Corner::topLeft, {5000, 5000}}, kSize, kOneScreen), QPoint(920, 372));
}

TEST(StripPlace, OfAStripBeyondTheEdgeIsAtTheEdge) {
    EXPECT_EQ(placeOf({{-50, -20}, kSize}, kOneScreen), (StripPlace{0, Corner::topLeft, {0, 0}}));
}

TEST(StripPlace, ShowsTheUpperLeftEndOfAStripThatIsLargerThanTheScreen) {
    EXPECT_EQ(positionOf({0, Corner::bottomRight, {0, 0}}, {2000, 900}, kOneScreen), QPoint(0, 0));
}

TEST(StripPlace, IsAbsentUntilOneIsKept) {
    FakePreferenceStore store;
    EXPECT_EQ(savedPlace(store, "Item"), std::nullopt);
}

TEST(StripPlace, IsKeptUnderItsName) {
    FakePreferenceStore store;
    const StripPlace place{1, Corner::bottomLeft, {12, 34}};
    savePlace(store, "Item", place);
    EXPECT_EQ(savedPlace(store, "Item"), place);
    EXPECT_EQ(savedPlace(store, "Other"), std::nullopt);
}

TEST(StripPlace, SurvivesNumbersThatAreNone) {
    FakePreferenceStore store;
    savePlace(store, "Item", {0, Corner::topLeft, {1, 1}});
    store.setDouble(std::nan(""), "ItemStripX");
    store.setDouble(std::numeric_limits<double>::infinity(), "ItemStripY");
    store.setDouble(1e300, "ItemStripScreen");
    const auto place = savedPlace(store, "Item");
    ASSERT_TRUE(place);
    EXPECT_EQ(place->inset, QPoint(0, 0));
    EXPECT_EQ(positionOf(*place, kSize, kOneScreen), QPoint(0, 0));
    for (const double corner : {5.0, -1.0, std::nan("")}) {
        store.setDouble(corner, "ItemStripCorner");
        EXPECT_EQ(savedPlace(store, "Item"), std::nullopt) << corner;
    }
}

}  // namespace
}  // namespace zephrine
