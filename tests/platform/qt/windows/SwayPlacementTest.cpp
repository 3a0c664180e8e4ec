// SPDX-License-Identifier: MIT
// The dialogue with sway.
#include "platform/qt/windows/SwayPlacement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QByteArray>
#include <functional>
#include <string>
#include <vector>

#include "platform/qt/sway/FakeSway.h"

namespace zephrine {
namespace {

using testing::ElementsAre;

constexpr std::uint32_t kWindow = 4194310;
const QRect kPanel(15, 15, 360, 660);

struct PlacementOnSway : testing::Test {
    QByteArray workspaces =
        R"json([{"focused": true, "rect": {"x": 0, "y": 30, "width": 1000, "height": 730}}])json";
    QByteArray tree = R"json({"nodes": [{"window": 4194310,
        "rect": {"x": 610, "y": 0, "width": 390, "height": 690}}]})json";
    QByteArray result = R"json([{"success": true}])json";
    SwayAnswer given = SwayAnswer::none;
    std::function<QByteArray(std::uint32_t type)> answer = [this](std::uint32_t type) {
        return messageOfSway(type, type == 1 ? workspaces : type == 4 ? tree : result);
    };

    /// The commands that sway gets when the window is placed.
    std::vector<std::string> commands(const std::function<SwayAnswer(const std::string&)>& place =
                                          [](const std::string& path) {
                                              return moveToPointerOnSway(path, kWindow, kPanel);
                                          }) {
        std::vector<std::string> commands;
        FakeSway sway;
        sway.answer = [&](std::uint32_t type, const QByteArray& payload) {
            if (!payload.isEmpty()) {
                commands.push_back(payload.toStdString());
            }
            return answer(type);
        };
        given = place(sway.path());
        sway.end();
        return commands;
    }
};

TEST_F(PlacementOnSway, IsWhereItIsAskedFor) {
    const auto place = [](const std::string& path) { return moveOnSway(path, kWindow, {610, -7}); };
    EXPECT_THAT(commands(place), ElementsAre("[id=4194310] move absolute position 610 px -7 px"));
    EXPECT_EQ(given, SwayAnswer::moved);
}

TEST_F(PlacementOnSway, IsAtThePointerAndThenOutsideTheBars) {
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor",
                                        "[id=4194310] move absolute position 610 px 21 px"));
    EXPECT_EQ(given, SwayAnswer::moved);
}

TEST_F(PlacementOnSway, LeavesThePanelWhereItIsRight) {
    tree.replace("\"y\": 0", "\"y\": 40");
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::moved);
}

TEST_F(PlacementOnSway, IsToBeTriedAgainWhileSwayDoesNotKnowTheWindow) {
    result = R"json([{"success": false, "error": "No matching node."}])json";
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::unknownWindow);
}

TEST_F(PlacementOnSway, EndsWhereSwayTellsNoPlace) {
    tree = "{}";
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::none);
}

TEST_F(PlacementOnSway, EndsWithoutSway) {
    const std::string nowhere = QTemporaryDir().path().toStdString() + "/sway";
    EXPECT_EQ(moveToPointerOnSway(nowhere, kWindow, kPanel), SwayAnswer::none);
    EXPECT_EQ(moveToPointerOnSway({}, kWindow, kPanel), SwayAnswer::none);
    EXPECT_EQ(moveOnSway({}, kWindow, {}), SwayAnswer::none);
}

TEST_F(PlacementOnSway, EndsWhenSwayHangsUp) {
    answer = [](std::uint32_t) { return QByteArray(); };
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::none);
}

TEST_F(PlacementOnSway, EndsWhenSwaySaysHalfAWord) {
    answer = [](std::uint32_t) { return QByteArray("i3-i"); };
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::none);
}

TEST_F(PlacementOnSway, EndsWhenTheAnswerIsToSomethingElse) {
    answer = [](std::uint32_t type) { return messageOfSway(type + 1, "[]"); };
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::none);
}

TEST_F(PlacementOnSway, EndsWhenTheAnswerSeemsEndless) {
    answer = [](std::uint32_t type) {
        QByteArray endless = messageOfSway(type, {});
        std::memset(endless.data() + 6, 0xff, sizeof(std::uint32_t));
        return endless;
    };
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::none);
}

}  // namespace
}  // namespace zephrine
