// SPDX-License-Identifier: MIT
// One running program a session: the first owns its name on the session bus and offers
// org.freedesktop.Application there; a second one asks it to come forward and ends.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <functional>

namespace zephrine {

class SingleInstance final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    /// `reopened` is called each time that the program is opened again.
    SingleInstance(QDBusConnection bus, std::function<void()> reopened);

    /// True when this is the first instance. Otherwise the first one has been told. Without a
    /// session bus nobody can be found, and every instance is the first.
    [[nodiscard]] bool claim();

    // The methods of https://specifications.freedesktop.org/desktop-entry-spec (D-Bus activation).
    Q_SCRIPTABLE Q_SLOT void Activate(const QVariantMap& platformData);
    Q_SCRIPTABLE Q_SLOT void Open(const QStringList& uris, const QVariantMap& platformData);
    Q_SCRIPTABLE Q_SLOT void ActivateAction(const QString& name, const QVariantList& parameter,
                                            const QVariantMap& platformData);

private:
    QDBusConnection bus_;
    std::function<void()> reopened_;
};

}  // namespace zephrine
