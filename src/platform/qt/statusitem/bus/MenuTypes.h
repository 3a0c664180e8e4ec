// SPDX-License-Identifier: MIT
// The structures of com.canonical.dbusmenu, and their marshalling.
#pragma once

#include <QDBusArgument>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariantMap>

namespace zephrine {

/// (ia{sv}): an entry and its properties.
struct MenuItemProperties {
    int id = 0;
    QVariantMap properties;
};

/// (ias): an entry and names of its properties.
struct MenuItemNames {
    int id = 0;
    QStringList names;
};

/// (ia{sv}av): an entry, its properties, and the entries below it.
struct MenuLayout {
    int id = 0;
    QVariantMap properties;
    QList<MenuLayout> children;
};

/// (isvu): something that happened to an entry; its data and time are read over.
struct MenuEvent {
    int id = 0;
    QString event;
};

QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemProperties& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemProperties& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuItemNames& item);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuItemNames& item);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuLayout& layout);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuLayout& layout);
QDBusArgument& operator<<(QDBusArgument& argument, const MenuEvent& event);
const QDBusArgument& operator>>(const QDBusArgument& argument, MenuEvent& event);

/// Before the first of them travels.
void registerMenuTypes();

}  // namespace zephrine
