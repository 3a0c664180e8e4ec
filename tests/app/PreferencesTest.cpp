// SPDX-License-Identifier: MIT
#include "app/Preferences.h"

#include <gtest/gtest.h>

#include <limits>

#include "fakes/FakeServices.h"

namespace zephrine {
namespace {

TEST(Preferences, AFreshInstallationUsesTheDefaults) {
    const FakePreferenceStore store;
    EXPECT_EQ(preferences::interval(store), 1.0);
    EXPECT_EQ(preferences::fontSize(store), 9.0);
    EXPECT_FALSE(store.boolForKey(preferences::ramInGBKey));
}

TEST(Preferences, ReadingWritesNothing) {
    const FakePreferenceStore store;
    preferences::interval(store);
    preferences::fontSize(store);
    EXPECT_TRUE(store.values.empty());
}

TEST(Preferences, EveryAllowedIntervalIsUsedInEitherForm) {
    FakePreferenceStore store;
    for (const double seconds : {0.5, 1.0, 2.0, 5.0}) {
        store.setDouble(seconds, "refreshInterval");
        EXPECT_EQ(preferences::interval(store), seconds);
    }
    store.setInteger(5, "refreshInterval");
    EXPECT_EQ(preferences::interval(store), 5.0);
}

TEST(Preferences, AnyOtherIntervalReadsAsOneSecond) {
    FakePreferenceStore store;
    for (const double seconds :
         {0.0, -1.0, -5.0, 0.25, 3.0, 5.0001, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
        store.setDouble(seconds, "refreshInterval");
        EXPECT_EQ(preferences::interval(store), 1.0) << seconds;
    }
}

TEST(Preferences, EveryAllowedFontSizeIsUsedInEitherForm) {
    FakePreferenceStore store;
    for (const int size : {8, 9, 10}) {
        store.setInteger(size, "fontSize");
        EXPECT_EQ(preferences::fontSize(store), size);
        store.setDouble(size, "fontSize");
        EXPECT_EQ(preferences::fontSize(store), size);
    }
}

TEST(Preferences, AnyOtherFontSizeReadsAsNine) {
    FakePreferenceStore store;
    for (const double size : {9.5, 11.0, 12.0, 7.0, 0.0, -9.0}) {
        store.setDouble(size, "fontSize");
        EXPECT_EQ(preferences::fontSize(store), 9.0) << size;
    }
}

}  // namespace
}  // namespace zephrine
