// SPDX-License-Identifier: MIT
// The events tell that something has happened, and the tree what there is now.
#include "platform/qt/sway/SwayFullScreen.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "platform/qt/sway/SwayReplies.h"

namespace zephrine {

namespace {

// One step of the user's makes several events.
constexpr std::chrono::milliseconds kSettling{50};

}  // namespace

SwayFullScreen::SwayFullScreen(std::string socket, std::function<void()> changed)
    : socket_(std::move(socket)), changed_(std::move(changed)), events_(socket_) {
    readable_.setEnabled(false);
    const auto answer =
        events_.ask(SwayConnection::Request::subscribe, R"(["window", "workspace"])");
    if (!isSubscribed(answer.value_or(QByteArray()))) {
        return;
    }
    settled_.setSingleShot(true);
    settled_.setInterval(kSettling);
    settled_.callOnTimeout([this] { look(); });
    QObject::connect(&readable_, &QSocketNotifier::activated, [this] { receive(); });
    readable_.setSocket(events_.descriptor());
    readable_.setEnabled(true);
    areas_ = areasNow().value_or(QList<QRect>());
}

bool SwayFullScreen::covers(const QRect& place) const {
    return std::any_of(areas_.begin(), areas_.end(),
                       [&](const QRect& area) { return area.intersects(place); });
}

void SwayFullScreen::receive() {
    const auto event = events_.nextEvent();
    if (!event) {
        readable_.setEnabled(false);
        settled_.stop();
        cover({});
        return;
    }
    // Some programs change their titles many times a second.
    if (changeOf(*event) != QLatin1String("title") && !settled_.isActive()) {
        settled_.start();
    }
}

void SwayFullScreen::look() {
    if (auto areas = areasNow()) {
        cover(std::move(*areas));
    }
}

void SwayFullScreen::cover(QList<QRect> areas) {
    if (std::exchange(areas_, std::move(areas)) != areas_) {
        changed_();
    }
}

std::optional<QList<QRect>> SwayFullScreen::areasNow() const {
    SwayConnection sway(socket_);
    const auto tree = sway.ask(SwayConnection::Request::getTree);
    return tree ? std::optional(fullScreenAreas(*tree)) : std::nullopt;
}

}  // namespace zephrine
