// SPDX-License-Identifier: MIT
#include "platform/qt/instance/InstanceSocket.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/stat.h>

#include <QFileInfo>
#include <QTemporaryDir>
#include <array>
#include <future>
#include <string>
#include <vector>

#include "platform/linux/base/UnixSocket.h"
#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct InstanceSocketTest : testing::Test {
    QTemporaryDir folder;
    const std::string path = folder.path().toStdString() + "/zephrine/_3a5.socket";
    std::vector<std::string> received;
    InstanceSocket first{
        [this](auto option) { received.push_back(option ? std::string(wordOf(*option)) : ""); }};

    /// From another thread, while this one goes on like a running program.
    [[nodiscard]] Handover handOver(const HandedOptions& options) const {
        auto result = std::async(std::launch::async, handOverSocket, path, options);
        waitUntil(
            [&] { return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        return result.get();
    }

    [[nodiscard]] FileDescriptor connect() const { return connectToSocket(path, SOCK_SEQPACKET); }

    /// What a client gets for a packet: the answer, or nothing when the connection is closed.
    [[nodiscard]] std::string answerTo(std::string_view packet) const {
        const FileDescriptor client = connect();
        EXPECT_EQ(::send(client.get(), packet.data(), packet.size(), MSG_NOSIGNAL),
                  static_cast<ssize_t>(packet.size()));
        return nextPacket(client);
    }

    static std::string nextPacket(const FileDescriptor& client) {
        std::array<char, 64> buffer{};
        ssize_t size = -1;
        EXPECT_TRUE(waitUntil([&] {
            size = ::recv(client.get(), buffer.data(), buffer.size(), MSG_DONTWAIT);
            return size >= 0 || errno != EAGAIN;
        }));
        return {buffer.data(), size > 0 ? static_cast<std::size_t>(size) : 0};
    }
};

TEST_F(InstanceSocketTest, FindsNobodyBeforeTheFirst) {
    EXPECT_EQ(handOver({}), Handover::nobody);
}

TEST_F(InstanceSocketTest, LetsTheFirstComeForward) {
    ASSERT_TRUE(first.claim(path));
    EXPECT_EQ(handOver({}), Handover::done);
    EXPECT_THAT(received, ElementsAre(""));
}

TEST_F(InstanceSocketTest, HandsOptionsOverInTheirOrder) {
    ASSERT_TRUE(first.claim(path));
    EXPECT_EQ(handOver({LaunchOption::enableLogin, LaunchOption::showDashboard,
                        LaunchOption::showSettings, LaunchOption::inspect}),
              Handover::done);
    EXPECT_THAT(received,
                ElementsAre("--enable-login", "--show-dashboard", "--show-settings", "--inspect"));
}

TEST_F(InstanceSocketTest, IsForTheUserAlone) {
    ASSERT_TRUE(first.claim(path));
    struct stat status {};
    ASSERT_EQ(::stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    ASSERT_EQ(::stat((folder.path().toStdString() + "/zephrine").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
}

TEST_F(InstanceSocketTest, RefusesOtherUsers) {
    InstanceSocket foreign(
        [this](auto option) { received.push_back(option ? std::string(wordOf(*option)) : ""); },
        ::geteuid() + 1);
    ASSERT_TRUE(foreign.claim(path));
    EXPECT_EQ(handOver({LaunchOption::showSettings}), Handover::silent);
    EXPECT_THAT(received, IsEmpty());
}

TEST_F(InstanceSocketTest, GivesThePlaceToOneInstance) {
    ASSERT_TRUE(first.claim(path));
    InstanceSocket second([](auto) {});
    EXPECT_FALSE(second.claim(path));
}

TEST_F(InstanceSocketTest, KeepsItsPlaceHoweverManyWaitForIt) {
    ASSERT_TRUE(first.claim(path));
    std::vector<FileDescriptor> waiting;
    while (waiting.empty() || (waiting.back() && waiting.size() < 100)) {
        waiting.push_back(connect());
    }
    InstanceSocket second([](auto) { FAIL(); });
    EXPECT_FALSE(second.claim(path));
}

TEST_F(InstanceSocketTest, TakesThePlaceOfOneThatCrashed) {
    ASSERT_EQ(::mkdir((folder.path().toStdString() + "/zephrine").c_str(), S_IRWXU), 0);
    // A crash closes the socket, but its name stays.
    ASSERT_TRUE(listenAtSocket(path, SOCK_SEQPACKET));
    ASSERT_TRUE(QFileInfo::exists(QString::fromStdString(path)));
    EXPECT_EQ(handOver({}), Handover::nobody);
    EXPECT_TRUE(first.claim(path));
    EXPECT_EQ(handOver({}), Handover::done);
    EXPECT_THAT(received, ElementsAre(""));
}

TEST_F(InstanceSocketTest, LeavesNothingBehindWhenItEnds) {
    {
        InstanceSocket ended([](auto) {});
        ASSERT_TRUE(ended.claim(path));
    }
    EXPECT_FALSE(QFileInfo::exists(QString::fromStdString(path)));
}

TEST_F(InstanceSocketTest, IgnoresWhateverIsNoMessage) {
    ASSERT_TRUE(first.claim(path));
    for (const std::string& packet :
         {std::string("quit"), std::string("open "), std::string("open --quit"),
          std::string("open --inspect "), std::string("open  --inspect"), std::string("openopen"),
          std::string("open\0", 5), std::string(16, '\xff'), "open" + std::string(250, ' '),
          "open" + std::string(100'000, 'x')}) {
        EXPECT_EQ(answerTo(packet), "") << packet.substr(0, 40);
    }
    EXPECT_THAT(received, IsEmpty());
    EXPECT_EQ(answerTo("open --inspect"), "done");
    EXPECT_THAT(received, ElementsAre("--inspect"));
}

TEST_F(InstanceSocketTest, GetsOverClientsThatGoAwayOrSayNothing) {
    ASSERT_TRUE(first.claim(path));
    { const FileDescriptor gone = connect(); }
    {
        const FileDescriptor gone = connect();
        ::send(gone.get(), "open", 4, MSG_NOSIGNAL);
    }
    ASSERT_TRUE(waitUntil([&] { return received.size() == 1; }));
    const std::array<FileDescriptor, 4> silent{connect(), connect(), connect(), connect()};
    EXPECT_EQ(handOver({}), Handover::done);
    EXPECT_EQ(received.size(), 2U);
}

TEST_F(InstanceSocketTest, TalksToNoMoreThanAFewAtATime) {
    ASSERT_TRUE(first.claim(path));
    std::vector<FileDescriptor> silent;
    for (int i = 0; i < 32; ++i) {
        silent.push_back(connect());
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(nextPacket(connect()), "") << "closed without an answer";
    silent.clear();
    ASSERT_TRUE(waitUntil([this] { return answerTo("open") == "done"; }));
}

TEST_F(InstanceSocketTest, RunsWithoutAPlaceThatCannotBeMade) {
    InstanceSocket nowhere([](auto) {});
    EXPECT_TRUE(nowhere.claim("/nonexistent/zephrine/_3a5.socket"));
    InstanceSocket tooLong([](auto) {});
    EXPECT_TRUE(tooLong.claim(path + std::string(200, 'x')));
}

}  // namespace
}  // namespace zephrine
