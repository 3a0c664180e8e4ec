// SPDX-License-Identifier: MIT
// The item's menu as panels see it: the object /MenuBar on the message bus. Some panels show no
// item without a menu, others open it on the first click, so it leads to what a click does.
// https://github.com/AyatanaIndicators/libdbusmenu/blob/master/libdbusmenu-glib/dbus-menu.xml
#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QString>
#include <QStringList>
#include <QVariantMap>
#include <array>
#include <functional>
#include <vector>

namespace zephrine {

class NotifierMenu final : public QDBusVirtualObject {
public:
    static constexpr const char* kPath = "/MenuBar";

    /// What the entries do. They are called while the panel waits for its answer: they return at
    /// once.
    struct Actions {
        std::function<void()> open;
        std::function<void()> settings;
        std::function<void()> quit;
    };

    NotifierMenu(QDBusConnection bus, Actions actions);
    ~NotifierMenu() override;
    Q_DISABLE_COPY_MOVE(NotifierMenu)

    /// The line of figures. Panels are told only when one is about to show the menu.
    void setFigures(const QString& text);

    [[nodiscard]] QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    struct Entry {
        int id;
        QString label;
        bool enabled;
        std::function<void()> action;
    };
    using Handler = QDBusMessage (NotifierMenu::*)(const QDBusMessage&);
    struct Method {
        const char* name;
        const char* signature;
        Handler handler;
    };
    static const std::array<Method, 7> kMethods;

    [[nodiscard]] const Entry* entry(int id) const;
    [[nodiscard]] bool knows(int id) const { return id == 0 || entry(id) != nullptr; }
    [[nodiscard]] QVariantMap properties(int id, const QStringList& wanted) const;
    /// False for an entry that does not exist.
    bool handleEvent(int id, const QString& event);
    /// Whether the menu is another than the one last handed out.
    [[nodiscard]] bool isStale() const { return revision_ != servedRevision_; }
    /// The same, for a panel that is about to show it: tells what it says now.
    bool tellIfStale();

    QDBusMessage getLayout(const QDBusMessage& call);
    QDBusMessage getGroupProperties(const QDBusMessage& call);
    QDBusMessage getProperty(const QDBusMessage& call);
    QDBusMessage sendEvent(const QDBusMessage& call);
    QDBusMessage sendEventGroup(const QDBusMessage& call);
    QDBusMessage aboutToShow(const QDBusMessage& call);
    QDBusMessage aboutToShowGroup(const QDBusMessage& call);

    QDBusConnection bus_;
    std::vector<Entry> entries_;
    uint revision_ = 1;
    uint servedRevision_ = 0;
};

}  // namespace zephrine
