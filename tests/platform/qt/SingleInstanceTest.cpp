// SPDX-License-Identifier: MIT
#include "platform/qt/SingleInstance.h"

#include <gtest/gtest.h>

#include "platform/qt/statusitem/PrivateBus.h"

namespace zephrine {
namespace {

struct SingleInstanceTest : testing::Test {
    PrivateBus daemon;
    BusPeer firstPeer{daemon};
    BusPeer secondPeer{daemon};
    int firstReopened = 0;
    int secondReopened = 0;
    SingleInstance first{firstPeer.bus(), [this] { ++firstReopened; }};
    SingleInstance second{secondPeer.bus(), [this] { ++secondReopened; }};
};

TEST_F(SingleInstanceTest, TellsTheFirstWhenASecondOneStarts) {
    EXPECT_TRUE(first.claim());
    EXPECT_FALSE(second.claim());
    EXPECT_EQ(firstReopened, 1);
    EXPECT_EQ(secondReopened, 0);
}

TEST_F(SingleInstanceTest, CanBeOpenedAgainOverTheBus) {
    ASSERT_TRUE(first.claim());
    const auto reply = secondPeer.call("org.zephrine.Zephrine", "/org/zephrine/Zephrine",
                                       "org.freedesktop.Application", "Activate", {QVariantMap()});
    EXPECT_EQ(reply.type(), QDBusMessage::ReplyMessage) << reply.errorMessage().toStdString();
    EXPECT_EQ(firstReopened, 1);
}

TEST_F(SingleInstanceTest, RunsBesideAnOwnerOfTheNameThatDoesNotAnswer) {
    ASSERT_TRUE(firstPeer.bus().registerService("org.zephrine.Zephrine"));
    EXPECT_TRUE(second.claim());
}

TEST(SingleInstance, IsTheFirstWithoutABus) {
    SingleInstance alone(QDBusConnection("no such connection"), [] {});
    EXPECT_TRUE(alone.claim());
}

}  // namespace
}  // namespace zephrine
