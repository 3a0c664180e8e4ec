// SPDX-License-Identifier: MIT
// The settings portal: https://flatpak.github.io/xdg-desktop-portal/docs/
// (org.freedesktop.portal.Settings). What it sends is checked before it is believed.
#include "platform/qt/theme/SystemAppearance.h"

#include <QDBusArgument>
#include <QDBusPendingCallWatcher>
#include <QDBusVariant>
#include <QMap>
#include <QStringList>
#include <utility>

namespace zephrine {

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString path = QStringLiteral("/org/freedesktop/portal/desktop");
const QString interface = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceGroup = QStringLiteral("org.freedesktop.appearance");
const QString interfaceGroup = QStringLiteral("org.gnome.desktop.interface");

/// Older portals wrap a value twice.
QVariant unwrapped(QVariant value) {
    while (value.metaType() == QMetaType::fromType<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value;
}

std::optional<Appearance> appearanceFor(unsigned colorScheme) {
    switch (colorScheme) {
        case 1:
            return Appearance::darkAqua;
        case 2:
            return Appearance::aqua;
        default:
            return std::nullopt;  // 0 is "no preference", as is every number to come
    }
}

}  // namespace

SystemAppearance::SystemAppearance(const DesktopLook& fallback) : fallback_(fallback) {}

void SystemAppearance::follow(QDBusConnection bus) {
    if (!bus.isConnected()) {
        return;
    }
    bus.connect(service, path, interface, QStringLiteral("SettingChanged"), this,
                SLOT(settingChanged(QDBusMessage)));
    QDBusMessage ask =
        QDBusMessage::createMethodCall(service, path, interface, QStringLiteral("ReadAll"));
    ask << QStringList{appearanceGroup, interfaceGroup};
    auto* answer = new QDBusPendingCallWatcher(bus.asyncCall(ask), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        applyAll(answer->reply());
        answer->deleteLater();
    });
}

void SystemAppearance::observe(std::function<void()> handler) {
    handlers_.push_back(std::move(handler));
}

void SystemAppearance::setFallback(const DesktopLook& fallback) {
    change([&] { fallback_ = fallback; });
}

void SystemAppearance::apply(const QString& group, const QString& key, const QVariant& value) {
    const QVariant plain = unwrapped(value);
    if (group == appearanceGroup && plain.metaType() == QMetaType::fromType<unsigned>()) {
        if (key == QStringLiteral("color-scheme")) {
            change([&] { preference_ = appearanceFor(plain.toUInt()); });
        } else if (key == QStringLiteral("reduced-motion")) {
            prefersReducedMotion_ = plain.toUInt() == 1;
        }
    } else if (group == interfaceGroup && key == QStringLiteral("enable-animations") &&
               plain.metaType() == QMetaType::fromType<bool>()) {
        animates_ = plain.toBool();
    }
}

void SystemAppearance::settingChanged(const QDBusMessage& message) {
    if (message.signature() == QStringLiteral("ssv")) {
        const QVariantList arguments = message.arguments();
        apply(arguments[0].toString(), arguments[1].toString(), arguments[2]);
    }
}

void SystemAppearance::applyAll(const QDBusMessage& reply) {
    if (reply.type() != QDBusMessage::ReplyMessage ||
        reply.signature() != QStringLiteral("a{sa{sv}}")) {
        return;
    }
    const auto groups = qdbus_cast<QMap<QString, QVariantMap>>(reply.arguments().constFirst());
    for (auto group = groups.begin(); group != groups.end(); ++group) {
        for (auto entry = group->begin(); entry != group->end(); ++entry) {
            apply(group.key(), entry.key(), entry.value());
        }
    }
}

void SystemAppearance::change(const std::function<void()>& set) {
    const Appearance before = current();
    set();
    if (current() == before) {
        return;
    }
    const auto handlers = handlers_;
    for (const auto& handler : handlers) {
        handler();
    }
}

}  // namespace zephrine
