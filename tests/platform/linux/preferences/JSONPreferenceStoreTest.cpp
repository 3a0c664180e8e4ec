// SPDX-License-Identifier: MIT
#include "platform/linux/preferences/JSONPreferenceStore.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "platform/linux/AllocationCount.h"
#include "platform/linux/Captured.h"
#include "platform/linux/FakeTree.h"

namespace zephrine {
namespace {

class JSONPreferenceStoreTest : public ::testing::Test {
protected:
    [[nodiscard]] std::string text(const std::string& name = kFile) const {
        std::ifstream file(tree_.path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    [[nodiscard]] mode_t mode(const std::string& name) const {
        struct stat status {};
        return ::stat(tree_.path(name).c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
    }
    [[nodiscard]] bool exists(const std::string& name) const {
        return std::filesystem::exists(std::filesystem::symlink_status(tree_.path(name)));
    }
    [[nodiscard]] std::size_t filesInFolder() const {
        const std::filesystem::directory_iterator folder(tree_.path("zephrine"));
        return static_cast<std::size_t>(std::distance(begin(folder), end(folder)));
    }

    static constexpr const char* kFile = "zephrine/preferences.json";
    testing::FakeTree tree_;
    JSONPreferenceStore store_{tree_.path(kFile)};
};

TEST_F(JSONPreferenceStoreTest, ReadsNothingFromAFileThatIsNotThereAndDoesNotMakeIt) {
    EXPECT_EQ(store_.doubleForKey("fontSize"), 0);
    EXPECT_FALSE(store_.boolForKey("ramInGB"));
    EXPECT_FALSE(exists("zephrine"));
}

TEST_F(JSONPreferenceStoreTest, KeepsIntegersAndFloatingPointNumbersApart) {
    store_.setDouble(8.0, "fontSize");
    store_.setInteger(2, "refreshInterval");
    store_.setBool(true, "ramInGB");
    EXPECT_EQ(text(),
              "{\n    \"fontSize\": 8.0,\n    \"refreshInterval\": 2,\n    \"ramInGB\": true\n}\n");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 8);
    EXPECT_EQ(store_.doubleForKey("refreshInterval"), 2);
    EXPECT_TRUE(store_.boolForKey("ramInGB"));
}

TEST_F(JSONPreferenceStoreTest, IsReadByTheNextLaunch) {
    store_.setInteger(10, "fontSize");
    EXPECT_EQ(JSONPreferenceStore(tree_.path(kFile)).doubleForKey("fontSize"), 10);
}

TEST_F(JSONPreferenceStoreTest, ReadsOtherKindsOfValuesAsNothing) {
    tree_.write(
        kFile,
        R"({"text": "8", "flag": true, "list": [8], "null": null, "zero": 0.0, "half": 0.5})");
    for (const char* const key : {"text", "flag", "list", "null", "absent", ""}) {
        EXPECT_EQ(store_.doubleForKey(key), 0) << key;
    }
    for (const char* const key : {"text", "list", "null", "zero", "absent"}) {
        EXPECT_FALSE(store_.boolForKey(key)) << key;
    }
    EXPECT_TRUE(store_.boolForKey("flag"));
    EXPECT_TRUE(store_.boolForKey("half"));
}

TEST_F(JSONPreferenceStoreTest, KeepsForeignKeysAndTheOrderOfAll) {
    tree_.write(kFile, testing::captured("preferences/ordinary.json"));
    store_.setInteger(9, "fontSize");
    store_.setBool(false, "new");
    const std::string now = text();
    EXPECT_LT(now.find("fontSize"), now.find("zebra"));
    EXPECT_LT(now.find("zebra"), now.find("refreshInterval"));
    EXPECT_LT(now.find("ramInGB"), now.find("new"));
    EXPECT_NE(now.find("future"), std::string::npos);
    EXPECT_NE(now.find("\"fontSize\": 9,"), std::string::npos);
}

TEST_F(JSONPreferenceStoreTest, IsOnlyForItsUser) {
    store_.setInteger(9, "fontSize");
    EXPECT_EQ(mode("zephrine"), 0700);
    EXPECT_EQ(mode(kFile), 0600);
    ::chmod(tree_.path(kFile).c_str(), 0644);
    store_.setInteger(10, "fontSize");
    EXPECT_EQ(mode(kFile), 0600);
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(JSONPreferenceStoreTest, SeesWhatWasChangedByHand) {
    store_.setInteger(9, "fontSize");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 9);
    tree_.write(kFile, "{\"fontSize\": 8}");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 8);
    tree_.remove("zephrine");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 0);
    tree_.write(kFile, "{\"fontSize\": 10}");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 10);
}

TEST_F(JSONPreferenceStoreTest, SeesAChangeOfTheSameLengthRightAfterAnother) {
    for (int round = 0; round < 1000; ++round) {
        tree_.write(kFile, "{\"fontSize\": " + std::to_string(round % 2) + "}");
        ASSERT_EQ(store_.doubleForKey("fontSize"), round % 2) << round;
    }
}

TEST_F(JSONPreferenceStoreTest, DoesNotReadAgainWhatHasNotChanged) {
    tree_.write(kFile, "{\"fontSize\": 8}");
    const std::size_t start = testing::allocationCount();
    ASSERT_EQ(store_.doubleForKey("fontSize"), 8);
    EXPECT_GT(testing::allocationCount(), start);  // reading takes memory from the heap,
    ::usleep(60'000);  // and a file that changed just now is read each time
    ASSERT_EQ(store_.doubleForKey("fontSize"), 8);
    const std::size_t before = testing::allocationCount();
    ASSERT_EQ(store_.doubleForKey("fontSize"), 8);
    EXPECT_EQ(testing::allocationCount(), before);
}

TEST_F(JSONPreferenceStoreTest, WritesBesideWhatWasChangedByHandMeanwhile) {
    store_.setInteger(9, "fontSize");
    tree_.write(kFile, "{\"refreshInterval\": 5}");
    store_.setBool(true, "ramInGB");
    EXPECT_EQ(store_.doubleForKey("refreshInterval"), 5);
    EXPECT_EQ(store_.doubleForKey("fontSize"), 0);
    EXPECT_TRUE(store_.boolForKey("ramInGB"));
}

TEST_F(JSONPreferenceStoreTest, WritesThroughALinkAndKeepsIt) {
    tree_.write("dotfiles/z.json", "{\"fontSize\": 8.0}");
    tree_.link(kFile, "../dotfiles/z.json");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 8);
    store_.setInteger(10, "fontSize");
    EXPECT_TRUE(std::filesystem::is_symlink(tree_.path(kFile)));
    EXPECT_NE(text("dotfiles/z.json").find("10"), std::string::npos);
    EXPECT_EQ(store_.doubleForKey("fontSize"), 10);
}

TEST_F(JSONPreferenceStoreTest, WritesWhereALinkLeadsThoughNothingIsThereYet) {
    tree_.link(kFile, tree_.path("later/z.json"));
    store_.setInteger(10, "fontSize");
    EXPECT_TRUE(std::filesystem::is_symlink(tree_.path(kFile)));
    EXPECT_NE(text("later/z.json").find("10"), std::string::npos);
}

TEST_F(JSONPreferenceStoreTest, SurvivesALinkToItself) {
    tree_.link(kFile, "preferences.json");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 0);
    store_.setInteger(10, "fontSize");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 10);
}

class CorruptFile : public JSONPreferenceStoreTest,
                    public ::testing::WithParamInterface<std::string> {};

TEST_P(CorruptFile, ReadsAsEmptyAndIsMovedAsideByTheNextWrite) {
    tree_.write(kFile, GetParam());
    EXPECT_EQ(store_.doubleForKey("fontSize"), 0);
    EXPECT_EQ(text(), GetParam());
    store_.setInteger(9, "fontSize");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 9);
    EXPECT_EQ(text("zephrine/preferences.json.corrupt"), GetParam());
    tree_.write(kFile, "not JSON either");
    store_.setInteger(10, "fontSize");
    EXPECT_EQ(text("zephrine/preferences.json.corrupt"), GetParam());
    EXPECT_EQ(text("zephrine/preferences.json.corrupt-2"), "not JSON either");
}

INSTANTIATE_TEST_SUITE_P(Kinds, CorruptFile,
                         ::testing::Values(testing::captured("preferences/hostile-truncated.json"),
                                           testing::captured("preferences/hostile-nul-bytes.json"),
                                           testing::captured("preferences/hostile-deep.json"),
                                           std::string(), std::string(64, '\0'),
                                           std::string(std::size_t{10} << 20U, '\xA7')));

TEST_F(JSONPreferenceStoreTest, LeavesAFolderInItsPlaceAlone) {
    tree_.write(std::string(kFile) + "/mine", "x");
    store_.setInteger(9, "fontSize");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 9);
    EXPECT_EQ(text(std::string(kFile) + "/mine"), "x");
    EXPECT_EQ(filesInFolder(), 1);
}

TEST_F(JSONPreferenceStoreTest, LeavesAFIFOInItsPlaceAlone) {
    std::filesystem::create_directories(tree_.path("zephrine"));
    ASSERT_EQ(::mkfifo(tree_.path(kFile).c_str(), 0600), 0);
    EXPECT_EQ(store_.doubleForKey("fontSize"), 0);
    store_.setInteger(9, "fontSize");
    EXPECT_EQ(store_.doubleForKey("fontSize"), 9);
    EXPECT_TRUE(std::filesystem::is_fifo(tree_.path(kFile)));
}

TEST_F(JSONPreferenceStoreTest, LivesInMemoryWithoutAHome) {
    JSONPreferenceStore store("");
    store.setInteger(9, "fontSize");
    EXPECT_EQ(store.doubleForKey("fontSize"), 9);
}

TEST_F(JSONPreferenceStoreTest, ReadsAFileThatIsDatedToAnotherAge) {
    store_.setInteger(9, "fontSize");
    for (const std::int64_t seconds :
         {std::int64_t{13'569'465'600}, std::int64_t{-2'000'000'000}}) {
        const std::array<timespec, 2> times{timespec{seconds, 0}, timespec{seconds, 0}};
        ASSERT_EQ(::utimensat(AT_FDCWD, tree_.path(kFile).c_str(), times.data(), 0), 0);
        EXPECT_EQ(JSONPreferenceStore(tree_.path(kFile)).doubleForKey("fontSize"), 9);
        EXPECT_EQ(store_.doubleForKey("fontSize"), 9);
    }
}

TEST_F(JSONPreferenceStoreTest, WritesValuesThatJSONDoesNotHaveAsNothing) {
    store_.setDouble(std::nan(""), "a");
    store_.setInteger(1, "b\xff");
    EXPECT_EQ(store_.doubleForKey("a"), 0);
    EXPECT_EQ(JSONPreferenceStore(tree_.path(kFile)).doubleForKey("b\xEF\xBF\xBD"), 1);
}

}  // namespace
}  // namespace zephrine
