// SPDX-License-Identifier: MIT
// Answers as sway 1.7 gives them, cut down to what is read, and answers that nobody should give.
#include "platform/qt/sway/SwayReplies.h"

#include <gtest/gtest.h>

namespace zephrine {
namespace {

constexpr const char* kTree = R"json({
  "id": 1, "type": "root", "rect": {"x": 0, "y": 0, "width": 1000, "height": 760}, "nodes": [
    {"id": 3, "type": "output", "window": null, "nodes": [
      {"id": 4, "type": "workspace", "rect": {"x": 0, "y": 30, "width": 1000, "height": 730},
       "nodes": [
         {"id": 7, "window": 77, "rect": {"x": 0, "y": 30, "width": 1000, "height": 730}}],
       "floating_nodes": [
         {"id": 8, "window": 4194310,
          "rect": {"x": 610, "y": 0, "width": 390, "height": 690}}]}]}]})json";

TEST(SwayReplies, TellWhetherCommandsHaveSucceeded) {
    EXPECT_TRUE(hasSucceeded(R"json([{"success": true}])json"));
    EXPECT_TRUE(hasSucceeded(R"json([{"success": true}, {"success": true}])json"));
    EXPECT_FALSE(hasSucceeded(R"json([{"success": true}, {"success": false}])json"));
    EXPECT_FALSE(hasSucceeded(R"json([{"error": "No matching node."}])json"));
}

TEST(SwayReplies, TellTheFocusedWorkspace) {
    EXPECT_EQ(focusedWorkspace(R"json([
        {"focused": false, "rect": {"x": 0, "y": 30, "width": 1000, "height": 730}},
        {"focused": true, "rect": {"x": 1000, "y": 0, "width": 800, "height": 570}}])json"),
              QRect(1000, 0, 800, 570));
    EXPECT_EQ(focusedWorkspace(R"json([{"focused": false, "rect": {}}])json"), std::nullopt);
}

TEST(SwayReplies, TellWhereAWindowIs) {
    EXPECT_EQ(placeOfWindow(kTree, 4194310), QRect(610, 0, 390, 690)) << "floating";
    EXPECT_EQ(placeOfWindow(kTree, 77), QRect(0, 30, 1000, 730)) << "tiled";
    EXPECT_EQ(placeOfWindow(kTree, 78), std::nullopt);
}

/// Of one window that has the whole screen: its own type, whether it can be seen, and what it
/// holds.
QByteArray treeWithFilm(const char* type, const char* visible, const char* children = "[]") {
    return QByteArray(R"json({"type": "root", "fullscreen_mode": 0, "nodes": [
        {"type": "output", "fullscreen_mode": 0, "nodes": [
          {"type": "workspace", "fullscreen_mode": 1, "nodes": [
             {"type": "con", "fullscreen_mode": 0, "visible": true,
              "rect": {"x": 0, "y": 30, "width": 1000, "height": 730}}],
           "rect": {"x": 0, "y": 30, "width": 1000, "height": 730}, "floating_nodes": [
             {"type": "TYPE", "fullscreen_mode": 1, "visible": VISIBLE, "nodes": CHILDREN,
              "rect": {"x": 0, "y": 0, "width": 1000, "height": 760}}]}]}]})json")
        .replace("TYPE", type)
        .replace("VISIBLE", visible)
        .replace("CHILDREN", children);
}

TEST(SwayReplies, TellWhichWindowsHaveAScreenForThemselves) {
    const QList<QRect> screen{QRect(0, 0, 1000, 760)};
    EXPECT_EQ(fullScreenAreas(treeWithFilm("con", "true")), screen);
    EXPECT_EQ(fullScreenAreas(treeWithFilm("floating_con", "true")), screen);
    EXPECT_EQ(fullScreenAreas(treeWithFilm("con", "false")), QList<QRect>()) << "elsewhere";
    EXPECT_EQ(fullScreenAreas(treeWithFilm("workspace", "true")), QList<QRect>());
    EXPECT_EQ(fullScreenAreas(kTree), QList<QRect>()) << "none at all";
}

TEST(SwayReplies, CountAGroupOfWindowsAsTheOneThatCanBeSeen) {
    const char* const tabs = R"json([{"type": "con", "visible": false},
                                     {"type": "con", "visible": true}])json";
    EXPECT_EQ(fullScreenAreas(treeWithFilm("con", "null", tabs)).size(), 1);
}

TEST(SwayReplies, NameWhatHasHappened) {
    EXPECT_EQ(changeOf(R"json({"change": "title", "container": {}})json"), "title");
    EXPECT_EQ(changeOf("{}"), "");
}

TEST(SwayReplies, MayMakeNoSense) {
    for (const char* text : {"", "null", "7", "\"\"", "{}", "[]", "[[]]", "[7]", "{\"nodes\": 7}",
                             "{\"nodes\": [7, null, []]}", "[{\"focused\": true}]",
                             "[{\"focused\": true, \"rect\": 7}]"}) {
        EXPECT_FALSE(hasSucceeded(text)) << text;
        EXPECT_EQ(focusedWorkspace(text), std::nullopt) << text;
        EXPECT_EQ(placeOfWindow(text, 77), std::nullopt) << text;
        EXPECT_EQ(fullScreenAreas(text), QList<QRect>()) << text;
        EXPECT_EQ(changeOf(text), "") << text;
    }
    for (const char* rect :
         {"{}", "7", R"json({"x": 0, "y": 0, "width": 10})json",
          R"json({"x": 0, "y": 0, "width": 0, "height": 10})json",
          R"json({"x": 0, "y": 0, "width": -5, "height": 10})json",
          R"json({"x": "0", "y": 0, "width": 10, "height": 10})json",
          R"json({"x": 1e300, "y": 0, "width": 10, "height": 10})json",
          R"json({"x": 0, "y": 2147483647, "width": 2147483647, "height": 10})json"}) {
        const QByteArray node =
            QByteArray(R"json({"focused": true, "window": 77, "rect": )json") + rect + "}";
        EXPECT_EQ(focusedWorkspace("[" + node + "]"), std::nullopt) << rect;
        EXPECT_EQ(placeOfWindow(node, 77), std::nullopt) << rect;
    }
}

TEST(SwayReplies, MayBeNestedWithoutEnd) {
    constexpr int levels = 100000;
    EXPECT_EQ(placeOfWindow(QByteArray(R"json({"nodes":[)json").repeated(levels), 77),
              std::nullopt);
    EXPECT_EQ(placeOfWindow(QByteArray(R"json({"nodes":[)json").repeated(levels) +
                                QByteArray("]}").repeated(levels),
                            77),
              std::nullopt);
}

}  // namespace
}  // namespace zephrine
