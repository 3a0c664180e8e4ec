// SPDX-License-Identifier: MIT
// Whether the user wants things light or dark, and how much motion: from the desktop's settings
// portal (org.freedesktop.portal.Settings), which is asked and listened to without ever waiting,
// else from what the desktop's applications look like.
#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QVariant>
#include <functional>
#include <optional>
#include <vector>

#include "platform/Color.h"
#include "platform/linux/desktop/DesktopLook.h"

namespace zephrine {

class SystemAppearance final : public QObject {
    Q_OBJECT

public:
    /// `fallback` is what counts while the portal has not answered, or states no preference.
    explicit SystemAppearance(const DesktopLook& fallback = {});

    /// Asks the portal on `bus`, if that is connected, and follows its changes.
    void follow(QDBusConnection bus);

    [[nodiscard]] Appearance current() const { return preference_.value_or(fallback_.appearance); }
    [[nodiscard]] bool reducesMotion() const {
        return prefersReducedMotion_ || !animates_.value_or(fallback_.animates);
    }

    /// `handler` is called after each change between light and dark; never removed.
    void observe(std::function<void()> handler);

    void setFallback(const DesktopLook& fallback);
    /// Takes one setting as the portal words it; anything that is no such setting is ignored.
    void apply(const QString& group, const QString& key, const QVariant& value);

private:
    Q_SLOT void settingChanged(const QDBusMessage& message);
    void applyAll(const QDBusMessage& reply);
    void change(const std::function<void()>& set);

    DesktopLook fallback_;
    std::optional<Appearance> preference_;
    bool prefersReducedMotion_ = false;
    std::optional<bool> animates_;
    std::vector<std::function<void()>> handlers_;
};

}  // namespace zephrine
