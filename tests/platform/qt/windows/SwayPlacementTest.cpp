// SPDX-License-Identifier: MIT
// The dialogue with sway: here a thread that answers at a socket, well or badly.
#include "platform/qt/windows/SwayPlacement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>

#include <QByteArray>
#include <QTemporaryDir>
#include <array>
#include <cstring>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "platform/linux/base/UnixSocket.h"

namespace zephrine {
namespace {

using testing::ElementsAre;

constexpr std::uint32_t kWindow = 4194310;
const QRect kPanel(15, 15, 360, 660);

QByteArray reply(std::uint32_t type, const QByteArray& json) {
    const auto length = static_cast<std::uint32_t>(json.size());
    QByteArray message("i3-ipc");
    message.append(reinterpret_cast<const char*>(&length), sizeof length);
    message.append(reinterpret_cast<const char*>(&type), sizeof type);
    return message + json;
}

struct PlacementOnSway : testing::Test {
    QTemporaryDir folder;
    const std::string path = folder.path().toStdString() + "/sway";
    QByteArray workspaces =
        R"json([{"focused": true, "rect": {"x": 0, "y": 30, "width": 1000, "height": 730}}])json";
    QByteArray tree = R"json({"nodes": [{"window": 4194310,
        "rect": {"x": 610, "y": 0, "width": 390, "height": 690}}]})json";
    QByteArray result = R"json([{"success": true}])json";
    SwayAnswer given = SwayAnswer::none;
    std::function<QByteArray(std::uint32_t type)> answer = [this](std::uint32_t type) {
        return reply(type, type == 1 ? workspaces : type == 4 ? tree : result);
    };

    /// The commands that sway gets when the window is placed.
    std::vector<std::string> commands() {
        std::vector<std::string> commands;
        FileDescriptor listener = listenAtSocket(path, SOCK_STREAM);
        std::thread sway([&] { serve(listener, commands); });
        given = moveToPointerOnSway(path, kWindow, kPanel);
        sway.join();
        return commands;
    }

private:
    void serve(FileDescriptor& listener, std::vector<std::string>& commands) const {
        pollfd caller{listener.get(), POLLIN, 0};
        constexpr int patience = 10000;  // milliseconds: the test has failed by then
        if (::poll(&caller, 1, patience) != 1) {
            return;
        }
        const FileDescriptor client(::accept(listener.get(), nullptr, nullptr));
        std::array<char, 14> head{};
        while (::recv(client.get(), head.data(), head.size(), MSG_WAITALL) ==
               static_cast<ssize_t>(head.size())) {
            std::array<std::uint32_t, 2> numbers{};
            std::memcpy(numbers.data(), head.data() + 6, sizeof numbers);
            std::string payload(numbers[0], '\0');
            if (!payload.empty() &&
                ::recv(client.get(), payload.data(), payload.size(), MSG_WAITALL) > 0) {
                commands.push_back(payload);
            }
            const QByteArray bytes = answer(numbers[1]);
            if (bytes.isEmpty()) {
                return;
            }
            ::send(client.get(), bytes.data(), static_cast<std::size_t>(bytes.size()),
                   MSG_NOSIGNAL);
        }
    }
};

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
    EXPECT_EQ(moveToPointerOnSway(path, kWindow, kPanel), SwayAnswer::none);
    EXPECT_EQ(moveToPointerOnSway({}, kWindow, kPanel), SwayAnswer::none);
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
    answer = [](std::uint32_t type) { return reply(type + 1, "[]"); };
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::none);
}

TEST_F(PlacementOnSway, EndsWhenTheAnswerSeemsEndless) {
    answer = [](std::uint32_t type) {
        QByteArray endless = reply(type, {});
        std::memset(endless.data() + 6, 0xff, sizeof(std::uint32_t));
        return endless;
    };
    EXPECT_THAT(commands(), ElementsAre("[id=4194310] move position cursor"));
    EXPECT_EQ(given, SwayAnswer::none);
}

}  // namespace
}  // namespace zephrine
