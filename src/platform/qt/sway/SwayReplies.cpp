// SPDX-License-Identifier: MIT
// JSON from another program: whatever it lacks is absent.
#include "platform/qt/sway/SwayReplies.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <functional>

namespace zephrine {

namespace {

constexpr int kFurthest = 1 << 20;  // no screen is that large

bool isLength(int number) {
    return number > 0 && number < kFurthest;
}

bool isPlace(int number) {
    return number > -kFurthest && number < kFurthest;
}

std::optional<QRect> rectOf(const QJsonObject& node) {
    const QJsonObject rect = node["rect"].toObject();
    constexpr int none = kFurthest;
    const int x = rect["x"].toInt(none);
    const int y = rect["y"].toInt(none);
    const int width = rect["width"].toInt(none);
    const int height = rect["height"].toInt(none);
    return isPlace(x) && isPlace(y) && isLength(width) && isLength(height)
               ? std::optional(QRect(x, y, width, height))
               : std::nullopt;
}

/// Hands over the node and all below it. Qt reads no deeper than 1024 levels, so that neither does
/// this.
void visit(const QJsonObject& node, const std::function<void(const QJsonObject&)>& visitor) {
    visitor(node);
    for (const char* const children : {"nodes", "floating_nodes"}) {
        const QJsonArray nodes = node[QLatin1String(children)].toArray();
        for (const auto& child : nodes) {
            visit(child.toObject(), visitor);
        }
    }
}

/// Whether any window of the container can be seen.
bool isVisible(const QJsonObject& container) {
    bool visible = false;
    visit(container, [&](const QJsonObject& node) { visible |= node["visible"].toBool(); });
    return visible;
}

/// Workspaces and screens are always full-screen to sway.
bool isContainer(const QJsonObject& node) {
    const QString type = node["type"].toString();
    return type == QLatin1String("con") || type == QLatin1String("floating_con");
}

}  // namespace

bool hasSucceeded(const QByteArray& results) {
    const QJsonArray all = QJsonDocument::fromJson(results).array();
    return !all.isEmpty() && std::all_of(all.begin(), all.end(), [](const auto& result) {
        return result.toObject()["success"].toBool();
    });
}

std::optional<QRect> focusedWorkspace(const QByteArray& workspaces) {
    const QJsonArray all = QJsonDocument::fromJson(workspaces).array();
    for (const auto& one : all) {
        const QJsonObject workspace = one.toObject();
        if (workspace["focused"].toBool()) {
            return rectOf(workspace);
        }
    }
    return std::nullopt;
}

std::optional<QRect> placeOfWindow(const QByteArray& tree, std::uint32_t window) {
    std::optional<QRect> place;
    visit(QJsonDocument::fromJson(tree).object(), [&](const QJsonObject& node) {
        if (node["window"].toInteger() == qint64{window}) {
            place = rectOf(node);
        }
    });
    return place;
}

QList<QRect> fullScreenAreas(const QByteArray& tree) {
    QList<QRect> areas;
    visit(QJsonDocument::fromJson(tree).object(), [&](const QJsonObject& node) {
        const auto rect = rectOf(node);
        if (rect && isContainer(node) && node["fullscreen_mode"].toInt() != 0 && isVisible(node)) {
            areas.append(*rect);
        }
    });
    return areas;
}

bool isSubscribed(const QByteArray& answer) {
    return QJsonDocument::fromJson(answer).object()["success"].toBool();
}

QString changeOf(const QByteArray& event) {
    return QJsonDocument::fromJson(event).object()["change"].toString();
}

}  // namespace zephrine
