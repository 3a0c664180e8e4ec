// SPDX-License-Identifier: MIT
#include "platform/qt/SingleInstance.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <future>
#include <string>
#include <vector>

#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

struct SingleInstanceTest : testing::Test {
    PrivateBus daemon;
    BusPeer firstPeer{daemon};
    BusPeer secondPeer{daemon};
    QDBusConnection noBus{"no such connection"};
    QTemporaryDir folder;
    InstancePlace place{":5", folder.path().toStdString()};
    std::vector<std::string> received;
    HandoverReceiver receiver = [this](auto option) {
        received.push_back(option ? std::string(wordOf(*option)) : "");
    };

    /// Claims from another thread, while this one goes on like a running program.
    static bool claim(SingleInstance& instance, const HandedOptions& options) {
        auto result = std::async(std::launch::async, [&] { return instance.claim(options); });
        waitUntil(
            [&] { return result.wait_for(std::chrono::seconds(0)) == std::future_status::ready; });
        return result.get();
    }
};

TEST_F(SingleInstanceTest, HandsOverToTheFirstOnTheBus) {
    SingleInstance first(firstPeer.bus(), place, receiver);
    EXPECT_EQ(handOver(secondPeer.bus(), place, {}), Handover::nobody);
    ASSERT_TRUE(first.claim({}));
    EXPECT_EQ(handOver(secondPeer.bus(), place, {LaunchOption::inspect}), Handover::done);
    EXPECT_THAT(received, ElementsAre("--inspect"));
}

TEST_F(SingleInstanceTest, GivesWayToOneThatWasFasterAndTellsIt) {
    SingleInstance first(firstPeer.bus(), place, receiver);
    SingleInstance second(secondPeer.bus(), place, [](auto) { FAIL(); });
    ASSERT_TRUE(first.claim({}));
    EXPECT_FALSE(second.claim({LaunchOption::showSettings}));
    EXPECT_THAT(received, ElementsAre("--show-settings"));
}

TEST_F(SingleInstanceTest, MeetsAtTheSocketWithoutABus) {
    SingleInstance first(noBus, place, receiver);
    SingleInstance second(noBus, place, [](auto) { FAIL(); });
    ASSERT_TRUE(first.claim({}));
    EXPECT_FALSE(claim(second, {LaunchOption::showSettings}));
    EXPECT_THAT(received, ElementsAre("--show-settings"));
}

TEST_F(SingleInstanceTest, MayClaimItsPlaceAgain) {
    for (const QDBusConnection& bus : {firstPeer.bus(), noBus}) {
        SingleInstance first(bus, place, receiver);
        EXPECT_TRUE(first.claim({}));
        EXPECT_TRUE(first.claim({LaunchOption::inspect}));
    }
    EXPECT_THAT(received, IsEmpty());
}

TEST_F(SingleInstanceTest, LeavesOtherDisplaysOfTheSameBusAndFolderAlone) {
    const InstancePlace other{":6", place.runtimeFolder};
    for (const bool withBus : {true, false}) {
        SingleInstance first(withBus ? firstPeer.bus() : noBus, place, receiver);
        SingleInstance second(withBus ? secondPeer.bus() : noBus, other, receiver);
        EXPECT_TRUE(first.claim({}));
        EXPECT_TRUE(second.claim({}));
    }
    EXPECT_THAT(received, IsEmpty());
}

TEST_F(SingleInstanceTest, RunsBesideAnOwnerOfTheNameThatDoesNotAnswer) {
    ASSERT_TRUE(firstPeer.bus().registerService(QString::fromStdString(place.busName())));
    SingleInstance second(secondPeer.bus(), place, receiver);
    EXPECT_TRUE(second.claim({}));
}

TEST_F(SingleInstanceTest, IsAlwaysTheFirstWhereNothingIsShared) {
    for (const InstancePlace& nowhere : {InstancePlace{":5", ""}, InstancePlace{"", "/"}}) {
        SingleInstance first(noBus, nowhere, receiver);
        SingleInstance second(noBus, nowhere, receiver);
        EXPECT_TRUE(first.claim({}));
        EXPECT_EQ(handOver(noBus, nowhere, {}), Handover::nobody);
        EXPECT_TRUE(second.claim({}));
    }
    SingleInstance offscreen(firstPeer.bus(), {"", ""}, receiver);
    EXPECT_TRUE(offscreen.claim({}));
    EXPECT_EQ(handOver(secondPeer.bus(), {"", ""}, {}), Handover::nobody);
}

}  // namespace
}  // namespace zephrine
