// SPDX-License-Identifier: MIT
#include "platform/macos/GPUProperty.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace zephrine {

namespace {

using Scalar = std::variant<double, std::string>;

PropertyEntry number(const std::string& key, double value) {
    return {.key = key, .value = Scalar(value)};
}

TEST(GPUProperty, KeepsNumbersAndTextsUnderTheirKeys) {
    const auto dictionary = propertyDictionary(
        {number("Device Utilization %", 37), {.key = "Name", .value = Scalar("text")}});
    EXPECT_EQ(dictionary, (PropertyDictionary{{"Device Utilization %", 37.0}, {"Name", "text"}}));
}

TEST(GPUProperty, LeavesOutValuesOfOtherKinds) {
    const auto dictionary =
        propertyDictionary({{.key = "Device Utilization %", .value = std::nullopt},
                            number("In use system memory", 1)});
    EXPECT_EQ(dictionary, (PropertyDictionary{{"In use system memory", 1.0}}));
}

TEST(GPUProperty, IsNoDictionaryOnceAKeyIsNoText) {
    EXPECT_EQ(propertyDictionary({number("Device Utilization %", 37),
                                  {.key = std::nullopt, .value = Scalar(1.0)}}),
              std::nullopt);
    EXPECT_EQ(propertyDictionary({{.key = std::nullopt, .value = std::nullopt}}), std::nullopt);
}

TEST(GPUProperty, IsAnEmptyDictionaryWithoutEntries) {
    EXPECT_EQ(propertyDictionary({}), PropertyDictionary{});
}

TEST(GPUProperty, PassesImpossibleNumbersOnForTheSamplerToReject) {
    const auto dictionary =
        propertyDictionary({number("Device Utilization %", std::numeric_limits<double>::infinity()),
                            number("Other", std::nan(""))});
    ASSERT_TRUE(dictionary);
    EXPECT_EQ(std::get<double>(dictionary->at("Device Utilization %")),
              std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(std::get<double>(dictionary->at("Other"))));
}

}  // namespace

}  // namespace zephrine
