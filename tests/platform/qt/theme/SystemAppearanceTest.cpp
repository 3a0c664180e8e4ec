// SPDX-License-Identifier: MIT
#include "platform/qt/theme/SystemAppearance.h"

#include <gtest/gtest.h>

#include <QDBusMetaType>
#include <QDBusVariant>
#include <QDBusVirtualObject>

#include "platform/qt/statusitem/bus/PrivateBus.h"

namespace zephrine {
namespace {

const QString appearanceGroup = "org.freedesktop.appearance";
const QString gnomeGroup = "org.gnome.desktop.interface";

QVariant scheme(unsigned number) {
    return QVariant::fromValue(number);
}

struct SystemAppearanceTest : testing::Test {
    SystemAppearance appearance;
    int changes = 0;

    SystemAppearanceTest() {
        appearance.observe([this] { ++changes; });
    }
};

TEST_F(SystemAppearanceTest, StartsWithItsFallback) {
    EXPECT_EQ(appearance.current(), Appearance::aqua);
    EXPECT_EQ(SystemAppearance(DesktopLook{Appearance::darkAqua}).current(), Appearance::darkAqua);
}

TEST_F(SystemAppearanceTest, FollowsThePreferenceForDark) {
    appearance.apply(appearanceGroup, "color-scheme", scheme(1));
    EXPECT_EQ(appearance.current(), Appearance::darkAqua);
    EXPECT_EQ(changes, 1);
}

TEST_F(SystemAppearanceTest, TellsNobodyWhenNothingChanged) {
    appearance.apply(appearanceGroup, "color-scheme", scheme(2));
    appearance.apply(appearanceGroup, "color-scheme", scheme(2));
    EXPECT_EQ(changes, 0);
}

TEST_F(SystemAppearanceTest, FallsBackWithoutAPreference) {
    appearance.setFallback({Appearance::darkAqua});
    appearance.apply(appearanceGroup, "color-scheme", scheme(2));
    EXPECT_EQ(appearance.current(), Appearance::aqua);
    appearance.apply(appearanceGroup, "color-scheme", scheme(0));
    EXPECT_EQ(appearance.current(), Appearance::darkAqua);
    appearance.apply(appearanceGroup, "color-scheme", scheme(77));
    EXPECT_EQ(appearance.current(), Appearance::darkAqua);
}

TEST_F(SystemAppearanceTest, UnwrapsTheDoubleVariantOfOlderPortals) {
    const QVariant once = QVariant::fromValue(QDBusVariant(scheme(1)));
    appearance.apply(appearanceGroup, "color-scheme", QVariant::fromValue(QDBusVariant(once)));
    EXPECT_EQ(appearance.current(), Appearance::darkAqua);
}

TEST_F(SystemAppearanceTest, IgnoresSettingsOfOtherKinds) {
    appearance.apply(appearanceGroup, "color-scheme", QStringLiteral("1"));
    appearance.apply(appearanceGroup, "accent-color", scheme(1));
    appearance.apply("org.example", "color-scheme", scheme(1));
    appearance.apply(gnomeGroup, "enable-animations", QStringLiteral("false"));
    EXPECT_EQ(appearance.current(), Appearance::aqua);
    EXPECT_FALSE(appearance.reducesMotion());
}

TEST_F(SystemAppearanceTest, ReducesMotionWhereTheDesktopDoes) {
    appearance.apply(gnomeGroup, "enable-animations", false);
    EXPECT_TRUE(appearance.reducesMotion());
    appearance.apply(gnomeGroup, "enable-animations", true);
    EXPECT_FALSE(appearance.reducesMotion());
    appearance.apply(appearanceGroup, "reduced-motion", scheme(1));
    EXPECT_TRUE(appearance.reducesMotion());
    appearance.apply(gnomeGroup, "enable-animations", true);
    EXPECT_TRUE(appearance.reducesMotion()) << "the one wish does not revoke the other";
}

TEST_F(SystemAppearanceTest, ReducesMotionWhereTheApplicationsDoUnlessThePortalKnowsBetter) {
    appearance.setFallback({.animates = false});
    EXPECT_TRUE(appearance.reducesMotion());
    appearance.apply(gnomeGroup, "enable-animations", true);
    EXPECT_FALSE(appearance.reducesMotion());
}

TEST_F(SystemAppearanceTest, FollowsItsFallback) {
    appearance.setFallback({.appearance = Appearance::darkAqua});
    EXPECT_EQ(appearance.current(), Appearance::darkAqua);
    EXPECT_EQ(changes, 1);
    appearance.setFallback({.appearance = Appearance::darkAqua, .animates = false});
    EXPECT_EQ(changes, 1);
}

using Groups = QMap<QString, QVariantMap>;

/// A portal whose user prefers dark, or one that answers with something else altogether.
class Portal final : public QDBusVirtualObject {
public:
    explicit Portal(QDBusConnection bus) : bus_(std::move(bus)) {
        qDBusRegisterMetaType<Groups>();
        bus_.registerVirtualObject("/org/freedesktop/portal/desktop", this);
        bus_.registerService("org.freedesktop.portal.Desktop");
    }

    bool answersNonsense = false;
    int questions = 0;

    void change(const QVariantList& arguments) {
        QDBusMessage signal = QDBusMessage::createSignal(
            "/org/freedesktop/portal/desktop", "org.freedesktop.portal.Settings", "SettingChanged");
        signal.setArguments(arguments);
        bus_.send(signal);
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        ++questions;
        const Groups groups{{appearanceGroup, {{"color-scheme", scheme(1)}}}};
        const QVariant answer =
            answersNonsense ? QVariant("dark") : QVariant::fromValue<Groups>(groups);
        return connection.send(message.createReply(answer));
    }

private:
    QDBusConnection bus_;
};

struct PortalTest : SystemAppearanceTest {
    PrivateBus daemon;
    BusPeer portalPeer{daemon};
    BusPeer ownPeer{daemon};
    Portal portal{portalPeer.bus()};
};

TEST_F(PortalTest, AsksThePortalAtTheStart) {
    appearance.follow(ownPeer.bus());
    EXPECT_EQ(appearance.current(), Appearance::aqua) << "the answer is not waited for";
    EXPECT_TRUE(waitUntil([&] { return appearance.current() == Appearance::darkAqua; }));
}

TEST_F(PortalTest, FollowsLaterChanges) {
    appearance.follow(ownPeer.bus());
    ASSERT_TRUE(waitUntil([&] { return changes == 1; }));
    portal.change({appearanceGroup, "color-scheme", QVariant::fromValue(QDBusVariant(scheme(2)))});
    EXPECT_TRUE(waitUntil([&] { return appearance.current() == Appearance::aqua; }));
}

TEST_F(PortalTest, SurvivesAPortalThatSendsNonsense) {
    portal.answersNonsense = true;
    appearance.follow(ownPeer.bus());
    ASSERT_TRUE(waitUntil([&] { return portal.questions == 1; }));
    portal.change({});
    portal.change({QVariant::fromValue(QDBusVariant(scheme(1))), 7, "color-scheme"});
    portal.change({appearanceGroup, "color-scheme", QVariant::fromValue(QDBusVariant(scheme(1)))});
    EXPECT_TRUE(waitUntil([&] { return appearance.current() == Appearance::darkAqua; }))
        << "the last one is sound";
}

TEST_F(SystemAppearanceTest, KeepsItsFallbackWithoutABus) {
    appearance.follow(QDBusConnection("no such connection"));
    EXPECT_EQ(appearance.current(), Appearance::aqua);
}

}  // namespace
}  // namespace zephrine
