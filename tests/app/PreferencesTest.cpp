// SPDX-License-Identifier: MIT
#include "app/Preferences.h"

#include <gtest/gtest.h>

#include <limits>

#include "fakes/FakeServices.h"

namespace zephrine {
namespace {

TEST(Preferences, AFreshInstallationUsesTheDefaults) {
    const FakePreferenceStore store;
    EXPECT_EQ(preferences::refreshInterval.value(store), 1.0);
    EXPECT_EQ(preferences::fontSize.value(store), 9.0);
    EXPECT_FALSE(store.boolForKey(preferences::ramInGBKey));
}

TEST(Preferences, ReadingWritesNothing) {
    const FakePreferenceStore store;
    EXPECT_GT(preferences::refreshInterval.value(store), 0);
    EXPECT_GT(preferences::fontSize.value(store), 0);
    EXPECT_TRUE(store.values.empty());
}

TEST(Preferences, EveryAllowedIntervalIsUsedInEitherForm) {
    FakePreferenceStore store;
    for (const double seconds : {0.5, 1.0, 2.0, 5.0}) {
        store.setDouble(seconds, "refreshInterval");
        EXPECT_EQ(preferences::refreshInterval.value(store), seconds);
    }
    store.setInteger(5, "refreshInterval");
    EXPECT_EQ(preferences::refreshInterval.value(store), 5.0);
}

TEST(Preferences, AnyOtherIntervalReadsAsOneSecond) {
    FakePreferenceStore store;
    for (const double seconds :
         {0.0, -1.0, -5.0, 0.25, 3.0, 5.0001, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        store.setDouble(seconds, "refreshInterval");
        EXPECT_EQ(preferences::refreshInterval.value(store), 1.0) << seconds;
    }
}

TEST(Preferences, EveryAllowedFontSizeIsUsedInEitherForm) {
    FakePreferenceStore store;
    for (const int size : {8, 9, 10}) {
        store.setInteger(size, "fontSize");
        EXPECT_EQ(preferences::fontSize.value(store), size);
        store.setDouble(size, "fontSize");
        EXPECT_EQ(preferences::fontSize.value(store), size);
    }
}

TEST(Preferences, AnyOtherFontSizeReadsAsNine) {
    FakePreferenceStore store;
    for (const double size : {9.5, 11.0, 12.0, 7.0, 0.0, -9.0}) {
        store.setDouble(size, "fontSize");
        EXPECT_EQ(preferences::fontSize.value(store), 9.0) << size;
    }
}

TEST(Preferences, EveryChoiceIsStoredInItsOwnForm) {
    FakePreferenceStore store;
    using Value = FakePreferenceStore::Value;
    const std::vector<Value> intervals{0.5, 1.0, std::int64_t{2}, std::int64_t{5}};
    for (std::size_t i = 0; i < intervals.size(); ++i) {
        preferences::refreshInterval.choose(static_cast<int>(i), store);
        EXPECT_EQ(store.values.at("refreshInterval"), intervals[i]);
        EXPECT_EQ(preferences::refreshInterval.index(store), i);
    }
    const std::vector<Value> sizes{8.0, std::int64_t{9}, std::int64_t{10}};
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        preferences::fontSize.choose(static_cast<int>(i), store);
        EXPECT_EQ(store.values.at("fontSize"), sizes[i]);
        EXPECT_EQ(preferences::fontSize.index(store), i);
    }
}

TEST(PreferencesDeathTest, AChoiceThatIsNotOfferedStopsTheProgram) {
    FakePreferenceStore store;
    EXPECT_DEATH(preferences::fontSize.choose(-1, store), "^$");
    EXPECT_DEATH(preferences::fontSize.choose(3, store), "^$");
    EXPECT_DEATH(preferences::refreshInterval.choose(4, store), "^$");
}

}  // namespace
}  // namespace zephrine
