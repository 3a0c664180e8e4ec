// SPDX-License-Identifier: MIT
#include "platform/qt/instance/InstanceBus.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* name = "org.zephrine.Zephrine.Display__3a5";
constexpr const char* sharedName = "org.zephrine.Zephrine";

struct InstanceBusTest : testing::Test {
    PrivateBus daemon;
    BusPeer firstPeer{daemon};
    BusPeer secondPeer{daemon};
    std::vector<std::string> received;
    InstanceBus first{firstPeer.bus(), [this](auto option) {
                          received.push_back(option ? std::string(wordOf(*option)) : "");
                      }};

    QDBusMessage callShared(const char* method, const QVariantList& arguments) {
        return secondPeer.call(sharedName, "/org/zephrine/Zephrine", "org.freedesktop.Application",
                               method, arguments);
    }
};

TEST_F(InstanceBusTest, FindsNobodyBeforeTheFirst) {
    EXPECT_EQ(handOverBus(secondPeer.bus(), name, {}), Handover::nobody);
    EXPECT_EQ(handOverBus(secondPeer.bus(), name, {LaunchOption::inspect}), Handover::nobody);
}

TEST_F(InstanceBusTest, LetsTheFirstComeForward) {
    ASSERT_TRUE(first.claim(name, sharedName));
    EXPECT_EQ(handOverBus(secondPeer.bus(), name, {}), Handover::done);
    EXPECT_THAT(received, ElementsAre(""));
}

TEST_F(InstanceBusTest, HandsOptionsOverInTheirOrder) {
    ASSERT_TRUE(first.claim(name, sharedName));
    EXPECT_EQ(handOverBus(secondPeer.bus(), name,
                          {LaunchOption::enableLogin, LaunchOption::showSettings}),
              Handover::done);
    EXPECT_THAT(received, ElementsAre("--enable-login", "--show-settings"));
}

TEST_F(InstanceBusTest, GivesItsNameToOneInstanceAtATime) {
    ASSERT_TRUE(first.claim(name, sharedName));
    InstanceBus second(secondPeer.bus(), [](auto) {});
    EXPECT_FALSE(second.claim(name, sharedName));
    firstPeer.bus().unregisterService(name);
    EXPECT_TRUE(second.claim(name, sharedName));
}

TEST_F(InstanceBusTest, LeavesTheSharedNameToTheNextSessionWhenItEnds) {
    ASSERT_TRUE(first.claim(name, sharedName));
    std::vector<std::string> other;
    InstanceBus elsewhere(secondPeer.bus(), [&](auto option) {
        other.push_back(option ? std::string(wordOf(*option)) : "");
    });
    ASSERT_TRUE(elsewhere.claim("org.zephrine.Zephrine.Display__3a6", sharedName));
    BusPeer desktop(daemon);
    const auto activate = [&desktop] {
        desktop.call(sharedName, "/org/zephrine/Zephrine", "org.freedesktop.Application",
                     "Activate", {QVariantMap()});
    };
    activate();
    EXPECT_THAT(received, ElementsAre(""));
    EXPECT_THAT(other, IsEmpty());
    firstPeer.bus().unregisterService(sharedName);
    activate();
    EXPECT_THAT(other, ElementsAre(""));
}

TEST_F(InstanceBusTest, OffersTheInterfaceOfApplications) {
    ASSERT_TRUE(first.claim(name, sharedName));
    EXPECT_EQ(callShared("Activate", {QVariantMap()}).type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(callShared("Open", {QStringList("file:///"), QVariantMap()}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_EQ(callShared("ActivateAction", {"show-settings", QVariantList(), QVariantMap()}).type(),
              QDBusMessage::ReplyMessage);
    EXPECT_THAT(received, ElementsAre("", "", "--show-settings"));
}

TEST_F(InstanceBusTest, DoesNothingForActionsThatDoNotExist) {
    ASSERT_TRUE(first.claim(name, sharedName));
    for (const char* const action : {"", "quit", "--inspect", "show", "inspect ", "Inspect"}) {
        callShared("ActivateAction", {action, QVariantList(), QVariantMap()});
    }
    EXPECT_EQ(callShared("Activate", {7}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(callShared("ActivateAction", {}).type(), QDBusMessage::ErrorMessage);
    EXPECT_THAT(received, IsEmpty());
}

TEST_F(InstanceBusTest, TellsAnOwnerThatIsNoneOfOursFromNobody) {
    ASSERT_TRUE(firstPeer.bus().registerService(name));
    EXPECT_EQ(handOverBus(secondPeer.bus(), name, {}), Handover::silent);
}

}  // namespace
}  // namespace zephrine
