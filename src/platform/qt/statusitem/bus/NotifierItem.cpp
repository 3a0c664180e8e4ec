// SPDX-License-Identifier: MIT
// The interface org.kde.StatusNotifierItem. Its properties are always there: a panel that misses
// one guesses (without ItemIsMenu some never send a click) or fills its log.
#include "platform/qt/statusitem/bus/NotifierItem.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <utility>

#include "platform/qt/statusitem/bus/NotifierMenu.h"
#include "platform/qt/statusitem/bus/PropertyReplies.h"

namespace zephrine {

/// A tool tip as the protocol has it: (sa(iiay)ss), an icon by name or as pixels, title, body.
struct NotifierToolTip {
    QString title;
};

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierToolTip& toolTip) {
    argument.beginStructure();
    argument << QString() << NotifierPixmaps() << toolTip.title << QString();
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierToolTip& toolTip) {
    QString iconName;
    NotifierPixmaps icon;
    QString body;
    argument.beginStructure();
    argument >> iconName >> icon >> toolTip.title >> body;
    argument.endStructure();
    return argument;
}

namespace {

constexpr const char* kPath = "/StatusNotifierItem";
constexpr const char* kInterface = "org.kde.StatusNotifierItem";

constexpr const char* kIntrospection = R"xml(
  <interface name="org.kde.StatusNotifierItem">
    <property name="Category" type="s" access="read"/>
    <property name="Id" type="s" access="read"/>
    <property name="Title" type="s" access="read"/>
    <property name="Status" type="s" access="read"/>
    <property name="WindowId" type="i" access="read"/>
    <property name="ItemIsMenu" type="b" access="read"/>
    <property name="Menu" type="o" access="read"/>
    <property name="IconName" type="s" access="read"/>
    <property name="IconThemePath" type="s" access="read"/>
    <property name="IconPixmap" type="a(iiay)" access="read"/>
    <property name="IconAccessibleDesc" type="s" access="read"/>
    <property name="OverlayIconName" type="s" access="read"/>
    <property name="OverlayIconPixmap" type="a(iiay)" access="read"/>
    <property name="AttentionIconName" type="s" access="read"/>
    <property name="AttentionIconPixmap" type="a(iiay)" access="read"/>
    <property name="AttentionMovieName" type="s" access="read"/>
    <property name="AttentionAccessibleDesc" type="s" access="read"/>
    <property name="ToolTip" type="(sa(iiay)ss)" access="read"/>
    <property name="XAyatanaLabel" type="s" access="read"/>
    <property name="XAyatanaLabelGuide" type="s" access="read"/>
    <method name="Activate"><arg type="i"/><arg type="i"/></method>
    <method name="SecondaryActivate"><arg type="i"/><arg type="i"/></method>
    <method name="ContextMenu"><arg type="i"/><arg type="i"/></method>
    <method name="Scroll"><arg type="i"/><arg type="s"/></method>
    <signal name="NewIcon"/>
    <signal name="NewToolTip"/>
    <signal name="XAyatanaNewLabel"><arg type="s"/><arg type="s"/></signal>
  </interface>
)xml";

bool isMethod(const QDBusMessage& call) {
    const QString member = call.member();
    if (member == "Scroll") {
        return call.signature() == "is";
    }
    return (member == "Activate" || member == "SecondaryActivate" || member == "ContextMenu") &&
           call.signature() == "ii";
}

}  // namespace

NotifierItem::NotifierItem(QDBusConnection bus, std::function<void()> clicked)
    : bus_(std::move(bus)), clicked_(std::move(clicked)) {
    qDBusRegisterMetaType<NotifierPixmap>();
    qDBusRegisterMetaType<NotifierPixmaps>();
    qDBusRegisterMetaType<NotifierToolTip>();
    bus_.registerVirtualObject(kPath, this);
}

NotifierItem::~NotifierItem() {
    bus_.unregisterObject(kPath);
}

void NotifierItem::setIsInPanel(bool isInPanel) {
    const bool wasInPanel = std::exchange(isInPanel_, isInPanel);
    if (isInPanel && !wasInPanel) {
        announce("NewToolTip");  // it may have changed, and the panel have asked before
    }
}

void NotifierItem::setFace(NotifierFace face) {
    const NotifierFace before = std::exchange(face_, std::move(face));
    if (before.iconName != face_.iconName || before.pixmaps != face_.pixmaps) {
        announce("NewIcon");
    }
    if (before.label != face_.label) {
        announce("XAyatanaNewLabel", {face_.label, face_.label});
    }
}

void NotifierItem::setToolTip(const QString& text) {
    if (text == toolTip_) {
        return;
    }
    toolTip_ = text;
    announce("NewToolTip");
}

QString NotifierItem::introspect(const QString& /*path*/) const {
    return kIntrospection;
}

bool NotifierItem::handleMessage(const QDBusMessage& message, const QDBusConnection& connection) {
    if (answerPropertyCall(connection, message, kInterface, properties())) {
        return true;
    }
    // A call need not name the interface.
    if ((!message.interface().isEmpty() && message.interface() != kInterface) ||
        !isMethod(message)) {
        return false;
    }
    answer(connection, message, message.createReply());
    // The coordinates of the call are not used: depending on the panel they are the pointer's, the
    // item's, or relative to some widget. A panel that opens the menu itself never asks for it.
    if (message.member() == "Activate" || message.member() == "ContextMenu") {
        clicked_();
    }
    return true;
}

QVariantMap NotifierItem::properties() const {
    const QVariant noPixmaps = QVariant::fromValue(NotifierPixmaps());
    QVariantMap all{
        {"Category", "SystemServices"},
        {"Id", "zephrine"},
        {"Title", "Zephrine"},
        {"Status", "Active"},
        {"WindowId", 0},
        {"ItemIsMenu", false},
        {"Menu", QVariant::fromValue(QDBusObjectPath(NotifierMenu::kPath))},
        {"IconName", face_.iconName},
        {"IconThemePath", ""},
        {"IconPixmap", QVariant::fromValue(face_.pixmaps)},
        {"IconAccessibleDesc", accessibleText_},
        {"OverlayIconName", ""},
        {"OverlayIconPixmap", noPixmaps},
        {"AttentionIconName", ""},
        {"AttentionIconPixmap", noPixmaps},
        {"AttentionMovieName", ""},
        {"AttentionAccessibleDesc", ""},
        {"ToolTip", QVariant::fromValue(NotifierToolTip{toolTip_})},
    };
    if (!face_.label.isEmpty()) {  // MATE shows the label in place of the picture, an empty one too
        all.insert("XAyatanaLabel", face_.label);
        all.insert("XAyatanaLabelGuide", face_.label);
    }
    return all;
}

void NotifierItem::announce(const QString& signal, const QVariantList& arguments) const {
    if (!isInPanel_) {
        return;
    }
    QDBusMessage message = QDBusMessage::createSignal(kPath, kInterface, signal);
    message.setArguments(arguments);
    bus_.send(message);
}

}  // namespace zephrine
