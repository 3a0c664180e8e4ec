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
    if (!events_.ask(SwayConnection::Request::subscribe, R"(["window", "workspace"])")) {
        return;
    }
    settled_.setSingleShot(true);
    settled_.setInterval(kSettling);
    settled_.callOnTimeout([this] { look(); });
    QObject::connect(&readable_, &QSocketNotifier::activated, [this] { receive(); });
    readable_.setSocket(events_.descriptor());
    readable_.setEnabled(true);
    areas_ = areasNow();
}

bool SwayFullScreen::covers(const QRect& place) const {
    return std::any_of(areas_.begin(), areas_.end(),
                       [&](const QRect& area) { return area.intersects(place); });
}

void SwayFullScreen::receive() {
    const auto event = events_.nextEvent();
    if (!event) {
        readable_.setEnabled(false);  // sway has gone, or makes no sense any more
        return;
    }
    // Some programs change their titles many times a second.
    if (changeOf(*event) != QLatin1String("title") && !settled_.isActive()) {
        settled_.start();
    }
}

void SwayFullScreen::look() {
    QList<QRect> areas = areasNow();
    if (std::exchange(areas_, areas) != areas) {
        changed_();
    }
}

QList<QRect> SwayFullScreen::areasNow() const {
    SwayConnection sway(socket_);
    const auto tree = sway.ask(SwayConnection::Request::getTree);
    return fullScreenAreas(tree.value_or(QByteArray()));
}

}  // namespace zephrine
