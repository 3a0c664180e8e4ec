// SPDX-License-Identifier: MIT
// The item as panels see it: the object /StatusNotifierItem on the message bus. It answers what it
// is asked, and announces what has changed while a panel shows it.
// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/StatusNotifierItem/
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QString>
#include <QVariantMap>
#include <functional>

#include "platform/qt/statusitem/bus/NotifierFace.h"

namespace zephrine {

class NotifierItem final : public QDBusVirtualObject {
public:
    /// `clicked` is called while the bus connection waits: it returns at once.
    NotifierItem(QDBusConnection bus, std::function<void()> clicked);
    ~NotifierItem() override;
    Q_DISABLE_COPY_MOVE(NotifierItem)

    /// Whether a panel shows it, or may: at first it may.
    void setIsInPanel(bool isInPanel);
    /// Announces the picture, the label, or both, if they are others than before.
    void setFace(NotifierFace face);
    /// The tool tip, without markup; announced if it is another than before.
    void setToolTip(const QString& text);
    /// What a screen reader says for the picture, without markup. Read along with the picture.
    void setAccessibleText(const QString& text) { accessibleText_ = text; }

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    [[nodiscard]] QVariantMap properties() const;
    void announce(const QString& signal, const QVariantList& arguments = {}) const;

    QDBusConnection bus_;
    std::function<void()> clicked_;
    NotifierFace face_;
    QString toolTip_;
    QString accessibleText_;
    bool isInPanel_ = true;
};

}  // namespace zephrine
