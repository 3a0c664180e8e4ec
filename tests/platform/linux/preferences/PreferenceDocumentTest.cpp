// SPDX-License-Identifier: MIT
#include "platform/linux/preferences/PreferenceDocument.h"

#include <gtest/gtest.h>

#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

using testing::captured;

TEST(PreferenceDocument, ComesBackAsItWas) {
    const std::string text =
        "{\n    \"zebra\": 1,\n    \"apple\": 8.0,\n    \"mango\": 9,\n    \"kiwi\": \"ä\"\n}\n";
    EXPECT_EQ(preferenceText(parsePreferences(text).value()), text);
}

TEST(PreferenceDocument, TakesTheLastOfEqualKeys) {
    const auto document = parsePreferences(captured("preferences/duplicated-keys.json"));
    ASSERT_TRUE(document);
    EXPECT_EQ(document->size(), 1);
    EXPECT_EQ(document->at("fontSize"), 10);
}

TEST(PreferenceDocument, IsAbsentForWhatIsNoObjectOrTooDeep) {
    for (const char* const name : {"truncated", "nul-bytes", "no-object", "huge-number", "deep"}) {
        EXPECT_FALSE(
            parsePreferences(captured(std::string("preferences/hostile-") + name + ".json")))
            << name;
    }
    EXPECT_FALSE(parsePreferences(""));
    EXPECT_FALSE(parsePreferences("{\"a\": \"\xff\"}"));
}

TEST(PreferenceDocument, CountsOnlyBracketsOutsideStrings) {
    const std::string brackets(1000, '[');
    EXPECT_TRUE(parsePreferences(R"({"a": "\")" + brackets + R"("})"));
    EXPECT_TRUE(parsePreferences(R"({"a": ")" + brackets + R"(\\"})"));
    EXPECT_FALSE(parsePreferences("{\"a\": " + std::string(64, '[') + std::string(64, ']') + "}"));
    EXPECT_TRUE(parsePreferences("{\"a\": " + std::string(63, '[') + std::string(63, ']') + "}"));
}

TEST(PreferenceDocument, IsAbsentBeyondTheLargestSize) {
    std::string text = R"({"a": ")" + std::string(kLargestPreferenceFile, 'x');
    EXPECT_FALSE(parsePreferences(text + "\"}"));
    text.resize(kLargestPreferenceFile - 2);
    EXPECT_TRUE(parsePreferences(text + "\"}"));
}

TEST(PreferenceDocument, ReplacesBytesThatAreNoUTF8WhenWriting) {
    PreferenceDocument document = PreferenceDocument::object();
    document["place"] = std::string("a\xff");
    EXPECT_EQ(preferenceText(document), "{\n    \"place\": \"a\xEF\xBF\xBD\"\n}\n");
}

}  // namespace
}  // namespace zephrine
