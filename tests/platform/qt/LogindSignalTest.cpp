// SPDX-License-Identifier: MIT
#include "platform/qt/LogindSignal.h"

#include <gtest/gtest.h>

#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

struct LogindSignalTest : testing::Test {
    PrivateBus daemon;
    BusPeer manager{daemon};
    BusPeer stranger{daemon};
    BusPeer ownPeer{daemon};
    int wakeUps = 0;
    LogindSignal signal{ownPeer.bus(), [this] { ++wakeUps; }};

    LogindSignalTest() { manager.bus().registerService("org.freedesktop.login1"); }

    static void send(BusPeer& sender, const QVariantList& arguments) {
        QDBusMessage message = QDBusMessage::createSignal(
            "/org/freedesktop/login1", "org.freedesktop.login1.Manager", "PrepareForSleep");
        message.setArguments(arguments);
        sender.bus().send(message);
    }
    /// Waits until everything sent before has arrived: an answer comes behind it.
    void settle() {
        for (BusPeer* sender : {&stranger, &manager}) {
            ownPeer.call(sender->bus().baseService(), "/", "org.example", "Nothing");
        }
        QCoreApplication::processEvents();
    }
};

TEST_F(LogindSignalTest, TellsOfTheEndOfASleepButNotOfItsBeginning) {
    send(manager, {true});
    send(manager, {false});
    settle();
    EXPECT_EQ(wakeUps, 1);
}

TEST_F(LogindSignalTest, BelievesNobodyButTheLoginManager) {
    send(stranger, {false});
    settle();
    EXPECT_EQ(wakeUps, 0);
}

TEST_F(LogindSignalTest, IgnoresSignalsOfAnotherForm) {
    send(manager, {});
    send(manager, {QStringLiteral("false")});
    send(manager, {0});
    settle();
    EXPECT_EQ(wakeUps, 0);
}

TEST(LogindSignal, DoesWithoutASystemBus) {
    int wakeUps = 0;
    LogindSignal signal(QDBusConnection("no such connection"), [&] { ++wakeUps; });
    EXPECT_EQ(wakeUps, 0);
}

}  // namespace
}  // namespace zephrine
