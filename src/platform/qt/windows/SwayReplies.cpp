// SPDX-License-Identifier: MIT
// JSON from another program: whatever it lacks is absent.
#include "platform/qt/windows/SwayReplies.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

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

/// Qt reads no deeper than 1024 levels, so that neither does this.
std::optional<QRect> placeIn(const QJsonObject& node, std::uint32_t window) {
    if (node["window"].toInteger() == qint64{window}) {
        return rectOf(node);
    }
    for (const char* const children : {"nodes", "floating_nodes"}) {
        const QJsonArray nodes = node[QLatin1String(children)].toArray();
        for (const auto& child : nodes) {
            if (const auto place = placeIn(child.toObject(), window)) {
                return place;
            }
        }
    }
    return std::nullopt;
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
    return placeIn(QJsonDocument::fromJson(tree).object(), window);
}

}  // namespace zephrine
