// SPDX-License-Identifier: MIT
// The interface com.canonical.dbusmenu, version 3: a root (id 0) with a flat list of entries.
#include "platform/qt/statusitem/bus/NotifierMenu.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <algorithm>
#include <utility>

#include "platform/qt/statusitem/bus/MenuTypes.h"
#include "platform/qt/statusitem/bus/PropertyReplies.h"

namespace zephrine {

namespace {

constexpr const char* kInterface = "com.canonical.dbusmenu";
constexpr int kRoot = 0;
constexpr int kOpen = 1;
constexpr int kFigures = 2;
constexpr int kSettings = 3;
constexpr int kQuit = 4;

constexpr const char* kIntrospection = R"xml(
  <interface name="com.canonical.dbusmenu">
    <property name="Version" type="u" access="read"/>
    <property name="Status" type="s" access="read"/>
    <property name="TextDirection" type="s" access="read"/>
    <property name="IconThemePath" type="as" access="read"/>
    <method name="GetLayout"><arg type="i"/><arg type="i"/><arg type="as"/>
      <arg type="u" direction="out"/><arg type="(ia{sv}av)" direction="out"/></method>
    <method name="GetGroupProperties"><arg type="ai"/><arg type="as"/>
      <arg type="a(ia{sv})" direction="out"/></method>
    <method name="GetProperty"><arg type="i"/><arg type="s"/>
      <arg type="v" direction="out"/></method>
    <method name="Event"><arg type="i"/><arg type="s"/><arg type="v"/><arg type="u"/></method>
    <method name="EventGroup"><arg type="a(isvu)"/><arg type="ai" direction="out"/></method>
    <method name="AboutToShow"><arg type="i"/><arg type="b" direction="out"/></method>
    <method name="AboutToShowGroup"><arg type="ai"/><arg type="ai" direction="out"/>
      <arg type="ai" direction="out"/></method>
    <signal name="ItemsPropertiesUpdated"><arg type="a(ia{sv})"/><arg type="a(ias)"/></signal>
    <signal name="LayoutUpdated"><arg type="u"/><arg type="i"/></signal>
    <signal name="ItemActivationRequested"><arg type="i"/><arg type="u"/></signal>
  </interface>
)xml";

QVariantMap menuProperties() {
    return {{"Version", 3U},
            {"Status", "normal"},
            {"TextDirection", "ltr"},
            {"IconThemePath", QStringList()}};
}

QDBusMessage noSuchEntry(const QDBusMessage& call) {
    return call.createErrorReply(QDBusError::InvalidArgs, "No such menu entry");
}

}  // namespace

constinit const std::array<NotifierMenu::Method, 7> NotifierMenu::kMethods{{
    {"GetLayout", "iias", &NotifierMenu::getLayout},
    {"GetGroupProperties", "aias", &NotifierMenu::getGroupProperties},
    {"GetProperty", "is", &NotifierMenu::getProperty},
    {"Event", "isvu", &NotifierMenu::sendEvent},
    {"EventGroup", "a(isvu)", &NotifierMenu::sendEventGroup},
    {"AboutToShow", "i", &NotifierMenu::aboutToShow},
    {"AboutToShowGroup", "ai", &NotifierMenu::aboutToShowGroup},
}};

NotifierMenu::NotifierMenu(QDBusConnection bus, Actions actions)
    : bus_(std::move(bus)),
      entries_{{kOpen, "Open", true, std::move(actions.open)},
               {kFigures, "", false, {}},
               {kSettings, "Settings…", true, std::move(actions.settings)},
               {kQuit, "Quit", true, std::move(actions.quit)}} {
    registerMenuTypes();
    bus_.registerVirtualObject(kPath, this);
}

NotifierMenu::~NotifierMenu() {
    bus_.unregisterObject(kPath);
}

void NotifierMenu::setFigures(const QString& text) {
    Entry& figures = *std::find_if(entries_.begin(), entries_.end(),
                                   [](const Entry& e) { return e.id == kFigures; });
    if (figures.label != text) {
        figures.label = text;
        revision_ = isStale() ? revision_ : revision_ + 1;
    }
}

QString NotifierMenu::introspect(const QString& /*path*/) const {
    return kIntrospection;
}

bool NotifierMenu::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (answerPropertyCall(connection, message, kInterface, menuProperties())) {
        return true;
    }
    if (!message.interface().isEmpty() && message.interface() != kInterface) {
        return false;
    }
    const auto* const method = std::find_if(kMethods.begin(), kMethods.end(), [&](const Method& m) {
        return message.member() == m.name && message.signature() == m.signature;
    });
    if (method == kMethods.end()) {
        return false;
    }
    answer(connection, message, (this->*method->handler)(message));
    return true;
}

const NotifierMenu::Entry* NotifierMenu::entry(int id) const {
    const auto found =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.id == id; });
    return found == entries_.end() ? nullptr : &*found;
}

QVariantMap NotifierMenu::properties(int id, const QStringList& wanted) const {
    QVariantMap all;
    if (const Entry* const known = entry(id)) {
        // An underscore would mark the next letter as the entry's shortcut.
        all = {{"label", QString(known->label).replace('_', "__")}, {"enabled", known->enabled}};
    } else {
        all = {{"children-display", "submenu"}};
    }
    if (!wanted.isEmpty()) {
        all.removeIf([&](const auto& property) { return !wanted.contains(property.key()); });
    }
    return all;
}

bool NotifierMenu::handleEvent(int id, const QString& event) {
    const Entry* const known = entry(id);
    if (known != nullptr && event == "clicked" && known->enabled) {
        known->action();
    }
    return knows(id);
}

QDBusMessage NotifierMenu::getLayout(const QDBusMessage& call) {
    const int parent = call.arguments().at(0).toInt();
    const int depth = call.arguments().at(1).toInt();
    const QStringList wanted = call.arguments().at(2).toStringList();
    if (!knows(parent)) {
        return noSuchEntry(call);
    }
    MenuLayout layout{parent, properties(parent, wanted), {}};
    // A negative depth means everything below.
    if (parent == kRoot && depth != 0) {
        for (const Entry& child : entries_) {
            layout.children.append({child.id, properties(child.id, wanted), {}});
        }
        servedRevision_ = revision_;
    }
    return call.createReply({revision_, QVariant::fromValue(layout)});
}

QDBusMessage NotifierMenu::getGroupProperties(const QDBusMessage& call) {
    const auto ids = qdbus_cast<QList<int>>(call.arguments().at(0));
    const QStringList wanted = call.arguments().at(1).toStringList();
    const auto isAsked = [&](int id) { return ids.isEmpty() || ids.contains(id); };
    QList<MenuItemProperties> found;
    if (isAsked(kRoot)) {
        found.append({kRoot, properties(kRoot, wanted)});
    }
    for (const Entry& known : entries_) {
        if (isAsked(known.id)) {
            found.append({known.id, properties(known.id, wanted)});
        }
    }
    return call.createReply(QVariant::fromValue(found));
}

QDBusMessage NotifierMenu::getProperty(const QDBusMessage& call) {
    const int id = call.arguments().at(0).toInt();
    const QString name = call.arguments().at(1).toString();
    if (!knows(id)) {
        return noSuchEntry(call);
    }
    const QVariantMap found = properties(id, {name});
    if (found.isEmpty()) {
        return call.createErrorReply(QDBusError::InvalidArgs, "No such property");
    }
    return call.createReply(QVariant::fromValue(QDBusVariant(found.first())));
}

QDBusMessage NotifierMenu::sendEvent(const QDBusMessage& call) {
    const bool known =
        handleEvent(call.arguments().at(0).toInt(), call.arguments().at(1).toString());
    return known ? call.createReply() : noSuchEntry(call);
}

QDBusMessage NotifierMenu::sendEventGroup(const QDBusMessage& call) {
    QList<int> unknown;
    const auto events = qdbus_cast<QList<MenuEvent>>(call.arguments().at(0));
    for (const MenuEvent& happened : events) {
        if (!handleEvent(happened.id, happened.event)) {
            unknown.append(happened.id);
        }
    }
    return call.createReply(QVariant::fromValue(unknown));
}

bool NotifierMenu::tellIfStale() {
    if (!isStale()) {
        return false;
    }
    // GNOME asks for the menu's layout once more, but not for what its entries say.
    QDBusMessage signal = QDBusMessage::createSignal(kPath, kInterface, "ItemsPropertiesUpdated");
    const QList<MenuItemProperties> changed{{kFigures, properties(kFigures, {})}};
    signal << QVariant::fromValue(changed) << QVariant::fromValue(QList<MenuItemNames>());
    bus_.send(signal);
    return true;
}

QDBusMessage NotifierMenu::aboutToShow(const QDBusMessage& call) {
    const int id = call.arguments().at(0).toInt();
    return knows(id) ? call.createReply(id == kRoot && tellIfStale()) : noSuchEntry(call);
}

QDBusMessage NotifierMenu::aboutToShowGroup(const QDBusMessage& call) {
    QList<int> stale;
    QList<int> unknown;
    const auto ids = qdbus_cast<QList<int>>(call.arguments().at(0));
    for (const int id : ids) {
        if (!knows(id)) {
            unknown.append(id);
        } else if (id == kRoot && tellIfStale()) {
            stale.append(id);
        }
    }
    return call.createReply({QVariant::fromValue(stale), QVariant::fromValue(unknown)});
}

}  // namespace zephrine
