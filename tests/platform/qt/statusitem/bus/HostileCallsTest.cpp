// SPDX-License-Identifier: MIT
// Calls that no panel should make, and the menu.
#include <gtest/gtest.h>

#include <QDBusMetaType>
#include <limits>

#include "platform/qt/statusitem/bus/FakePanel.h"
#include "platform/qt/statusitem/bus/MenuTypes.h"
#include "platform/qt/statusitem/bus/NotifierItem.h"
#include "platform/qt/statusitem/bus/NotifierMenu.h"

namespace zephrine {
namespace {

constexpr const char* kProperties = "org.freedesktop.DBus.Properties";
constexpr int kLowest = std::numeric_limits<int>::min();
constexpr int kHighest = std::numeric_limits<int>::max();

bool isError(const QDBusMessage& reply, QDBusError::ErrorType type) {
    return reply.type() == QDBusMessage::ErrorMessage && QDBusError(reply).type() == type;
}

class BusObjects : public testing::Test {
protected:
    PrivateBus bus;
    BusPeer program{bus};
    int clicks = 0;
    int settings = 0;
    int quits = 0;
    NotifierItem item{program.bus(), [this] { ++clicks; }};
    NotifierMenu menu{program.bus(),
                      {.open = [this] { ++clicks; },
                       .settings = [this] { ++settings; },
                       .quit = [this] { ++quits; }}};
    FakePanel panel{bus};

    void SetUp() override { panel.registered.append(program.bus().baseService()); }

    MenuLayout layout() {
        const QDBusMessage reply = panel.callMenu("GetLayout", {0, -1, QStringList()});
        return qdbus_cast<MenuLayout>(reply.arguments().value(1));
    }
    bool isStale() { return panel.callMenu("AboutToShow", {0}).arguments().at(0).toBool(); }
};

TEST_F(BusObjects, RefuseACallWithWrongArguments) {
    for (const QVariantList& arguments : {QVariantList{}, {"1", "2"}, {1}, {1, 2, 3}}) {
        EXPECT_EQ(panel.callItem("Activate", arguments).type(), QDBusMessage::ErrorMessage);
        EXPECT_EQ(panel.callItem("Scroll", arguments).type(), QDBusMessage::ErrorMessage);
        EXPECT_EQ(panel.callMenu("GetLayout", arguments).type(), QDBusMessage::ErrorMessage);
        EXPECT_EQ(panel.callMenu("Event", arguments).type(), QDBusMessage::ErrorMessage);
        EXPECT_EQ(panel.callMenu("EventGroup", arguments).type(), QDBusMessage::ErrorMessage);
    }
    EXPECT_EQ(clicks, 0);
}

TEST_F(BusObjects, RefuseMethodsAndInterfacesThatTheyDoNotHave) {
    EXPECT_EQ(panel.callItem("Explode", {1, 2}).type(), QDBusMessage::ErrorMessage);
    EXPECT_EQ(panel.callItem("Activate", {1, 2}, "org.example.Other").type(),
              QDBusMessage::ErrorMessage);
    EXPECT_EQ(panel.callMenu("AboutToShow", {0}, "org.example.Other").type(),
              QDBusMessage::ErrorMessage);
    EXPECT_EQ(clicks, 0);
}

TEST_F(BusObjects, RefusePropertiesThatTheyDoNotHave) {
    const QString interface = "org.kde.StatusNotifierItem";
    const auto get = [&](const QVariantList& arguments) {
        return panel.callItem("Get", arguments, kProperties);
    };
    EXPECT_TRUE(isError(get({interface, "Secret"}), QDBusError::UnknownProperty));
    EXPECT_TRUE(isError(get({interface, ""}), QDBusError::UnknownProperty));
    EXPECT_TRUE(isError(get({"org.example.Other", "Id"}), QDBusError::UnknownInterface));
    EXPECT_TRUE(isError(get({1, 2}), QDBusError::InvalidArgs));
    EXPECT_TRUE(isError(panel.callItem("GetAll", {"org.example.Other"}, kProperties),
                        QDBusError::UnknownInterface));
    EXPECT_TRUE(
        isError(panel.callItem("Set", {interface, "Id", QVariant::fromValue(QDBusVariant("other"))},
                               kProperties),
                QDBusError::PropertyReadOnly));
    EXPECT_EQ(panel.property("Id"), "zephrine");
}

TEST_F(BusObjects, TellAllTheirPropertiesAtOnce) {
    const QDBusMessage reply =
        panel.callItem("GetAll", {"org.kde.StatusNotifierItem"}, kProperties);
    const auto properties = qdbus_cast<QVariantMap>(reply.arguments().value(0));
    EXPECT_EQ(properties.size(), 18);
    EXPECT_EQ(properties.value("Title"), "Zephrine");
    const QDBusMessage menuReply =
        panel.callMenu("GetAll", {"com.canonical.dbusmenu"}, kProperties);
    const auto menuProperties = qdbus_cast<QVariantMap>(menuReply.arguments().value(0));
    EXPECT_EQ(menuProperties.value("Version"), 3U);
    EXPECT_EQ(menuProperties.value("Status"), "normal");
    EXPECT_EQ(menuProperties.value("TextDirection"), "ltr");
    EXPECT_EQ(menuProperties.value("IconThemePath"), QStringList());
}

TEST_F(BusObjects, HaveNoLabelPropertyWhileThereIsNoLabel) {
    const auto hasLabel = [&] {
        const QDBusMessage reply =
            panel.callItem("GetAll", {"org.kde.StatusNotifierItem"}, kProperties);
        return qdbus_cast<QVariantMap>(reply.arguments().value(0)).contains("XAyatanaLabel");
    };
    EXPECT_FALSE(hasLabel());
    item.setFace({.label = "CPU   5%"});
    EXPECT_TRUE(hasLabel());
}

TEST_F(BusObjects, DescribeThemselves) {
    const QDBusMessage reply =
        panel.callItem("Introspect", {}, "org.freedesktop.DBus.Introspectable");
    const QString xml = reply.arguments().value(0).toString();
    EXPECT_TRUE(xml.contains("name=\"org.kde.StatusNotifierItem\"")) << xml.toStdString();
}

TEST_F(BusObjects, HaveAMenuThatBeginsWithOpenAndShowsTheFigures) {
    menu.setFigures("CPU   5%, a_b");
    const MenuLayout root = layout();
    EXPECT_EQ(root.id, 0);
    EXPECT_EQ(root.properties.value("children-display"), "submenu");
    ASSERT_EQ(root.children.size(), 4);
    EXPECT_EQ(root.children[0].properties.value("label"), "Open");
    EXPECT_EQ(root.children[0].properties.value("enabled"), true);
    EXPECT_EQ(root.children[1].properties.value("label"), "CPU   5%, a__b");
    EXPECT_EQ(root.children[1].properties.value("enabled"), false);
    EXPECT_EQ(root.children[2].properties.value("label"), "Settings…");
    EXPECT_EQ(root.children[3].properties.value("label"), "Quit");
}

TEST_F(BusObjects, DoWhatTheChosenEntrySays) {
    const auto choose = [&](int index) {
        const QVariant none = QVariant::fromValue(QDBusVariant(0));
        panel.callMenu("Event", {layout().children.at(index).id, "clicked", none, 0U});
    };
    choose(0);
    EXPECT_EQ(clicks, 1);
    choose(1);  // the figures are there to be read
    choose(2);
    EXPECT_EQ(settings, 1);
    choose(3);
    EXPECT_EQ(quits, 1);
    EXPECT_EQ(clicks + settings + quits, 3);
}

TEST_F(BusObjects, AnnounceALabelOnceAndAPictureOnlyWhenItChanges) {
    item.setFace({.label = "CPU   5%"});
    item.setFace({.label = "CPU   5%"});
    panel.settle();
    EXPECT_EQ(panel.signalCounts["XAyatanaNewLabel"], 1);
    EXPECT_EQ(panel.signalCounts["NewIcon"], 0);
    EXPECT_EQ(panel.property("XAyatanaLabel"), "CPU   5%");
    EXPECT_EQ(panel.property("XAyatanaLabelGuide"), "CPU   5%");
    item.setFace({.iconName = "/run/picture.png", .label = "CPU   5%"});
    panel.settle();
    EXPECT_EQ(panel.signalCounts["XAyatanaNewLabel"], 1);
    EXPECT_EQ(panel.signalCounts["NewIcon"], 1);
    EXPECT_EQ(panel.property("IconName"), "/run/picture.png");
}

TEST_F(BusObjects, GiveOnlyThePartOfTheMenuThatIsAskedFor) {
    const auto ask = [&](int parent, int depth, const QStringList& names) {
        const QDBusMessage reply = panel.callMenu("GetLayout", {parent, depth, names});
        return qdbus_cast<MenuLayout>(reply.arguments().value(1));
    };
    EXPECT_TRUE(ask(0, 0, {}).children.isEmpty());
    EXPECT_EQ(ask(1, -1, {}).properties.value("label"), "Open");
    const MenuLayout labels = ask(0, 1, {"label"});
    ASSERT_EQ(labels.children.size(), 4);
    EXPECT_EQ(labels.children[0].properties.keys(), QStringList("label"));
}

TEST_F(BusObjects, KnowWhetherTheMenuThatWasHandedOutIsStillTrue) {
    EXPECT_TRUE(isStale());
    layout();
    EXPECT_FALSE(isStale());
    menu.setFigures("CPU   5%");
    EXPECT_TRUE(isStale());
    layout();
    menu.setFigures("CPU   5%");
    EXPECT_FALSE(isStale());
}

TEST_F(BusObjects, TellAPanelThatIsAboutToShowTheMenuWhatItSaysNow) {
    layout();
    menu.setFigures("CPU   5%");
    menu.setFigures("CPU   6%");
    panel.settle();
    EXPECT_TRUE(panel.signalCounts.isEmpty()) << "nobody looks";
    EXPECT_TRUE(isStale());
    panel.settle();
    EXPECT_EQ(panel.signalCounts["ItemsPropertiesUpdated"], 1);
    layout();
    EXPECT_FALSE(isStale());
    panel.settle();
    EXPECT_EQ(panel.signalCounts["ItemsPropertiesUpdated"], 1);
}

TEST_F(BusObjects, CallTheActionForAClickOnOpenOnly) {
    const auto event = [&](int id, const char* type) {
        return panel.callMenu(
            "Event", {id, type, QVariant::fromValue(QDBusVariant(0)), QVariant::fromValue(0U)});
    };
    EXPECT_EQ(event(1, "hovered").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(2, "clicked").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(event(0, "clicked").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(clicks, 0);
    EXPECT_EQ(event(1, "clicked").type(), QDBusMessage::ReplyMessage);
    EXPECT_EQ(clicks, 1);
}

TEST_F(BusObjects, RefuseMenuEntriesThatDoNotExist) {
    for (const int id : {5, -1, kLowest, kHighest}) {
        EXPECT_TRUE(isError(panel.callMenu("GetLayout", {id, kLowest, QStringList()}),
                            QDBusError::InvalidArgs));
        EXPECT_TRUE(isError(panel.callMenu("GetProperty", {id, "label"}), QDBusError::InvalidArgs));
        EXPECT_TRUE(isError(panel.callMenu("AboutToShow", {id}), QDBusError::InvalidArgs));
        EXPECT_TRUE(
            isError(panel.callMenu("Event", {id, "clicked", QVariant::fromValue(QDBusVariant(0)),
                                             QVariant::fromValue(0U)}),
                    QDBusError::InvalidArgs));
    }
    EXPECT_TRUE(isError(panel.callMenu("GetProperty", {1, "secret"}), QDBusError::InvalidArgs));
    EXPECT_EQ(clicks, 0);
}

TEST_F(BusObjects, AnswerForTheEntriesOfAGroupThatExist) {
    const QList<int> ids{1, 99, kLowest, 1};
    const auto found = qdbus_cast<QList<MenuItemProperties>>(
        panel.callMenu("GetGroupProperties", {QVariant::fromValue(ids), QStringList("label")})
            .arguments()
            .value(0));
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].id, 1);
    EXPECT_EQ(found[0].properties, (QVariantMap{{"label", "Open"}}));

    const QList<MenuEvent> events{{1, "clicked"}, {99, "clicked"}};
    const QDBusMessage reply = panel.callMenu("EventGroup", {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(reply.arguments().value(0)), QList<int>{99});
    EXPECT_EQ(clicks, 1);

    const QDBusMessage shown = panel.callMenu("AboutToShowGroup", {QVariant::fromValue(ids)});
    EXPECT_EQ(qdbus_cast<QList<int>>(shown.arguments().value(0)), QList<int>());
    EXPECT_EQ(qdbus_cast<QList<int>>(shown.arguments().value(1)), (QList<int>{99, kLowest}));
}

}  // namespace
}  // namespace zephrine
