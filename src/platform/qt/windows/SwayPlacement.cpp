// SPDX-License-Identifier: MIT
// In two steps: sway knows where the pointer is, but does not tell, and does not mind its bars.
#include "platform/qt/windows/SwayPlacement.h"

#include <QByteArray>
#include <optional>

#include "platform/qt/sway/SwayConnection.h"
#include "platform/qt/sway/SwayReplies.h"
#include "platform/qt/windows/PopoverPlacement.h"

namespace zephrine {

namespace {

using Request = SwayConnection::Request;

SwayAnswer move(SwayConnection& sway, std::uint32_t window, const QByteArray& place) {
    const auto answer =
        sway.ask(Request::runCommand, "[id=" + QByteArray::number(window) + "] move " + place);
    return !answer                 ? SwayAnswer::none
           : hasSucceeded(*answer) ? SwayAnswer::moved
                                   : SwayAnswer::unknownWindow;
}

SwayAnswer move(SwayConnection& sway, std::uint32_t window, QPoint corner) {
    return move(sway, window,
                "absolute position " + QByteArray::number(corner.x()) + " px " +
                    QByteArray::number(corner.y()) + " px");
}

}  // namespace

SwayAnswer moveOnSway(const std::string& socket, std::uint32_t window, QPoint corner) {
    SwayConnection sway(socket);
    return move(sway, window, corner);
}

SwayAnswer moveToPointerOnSway(const std::string& socket, std::uint32_t window,
                               const QRect& panel) {
    SwayConnection sway(socket);
    if (const auto answer = move(sway, window, "position cursor"); answer != SwayAnswer::moved) {
        return answer;
    }
    const auto workspaces = sway.ask(Request::getWorkspaces);
    const auto tree = sway.ask(Request::getTree);
    const auto area = focusedWorkspace(workspaces.value_or(QByteArray()));
    const auto place = placeOfWindow(tree.value_or(QByteArray()), window);
    if (!area || !place) {
        return SwayAnswer::none;
    }
    const QPoint wanted = place->topLeft() + panel.topLeft();
    const QPoint corner = moveInto(*area, wanted, panel.size()) - panel.topLeft();
    return corner == place->topLeft() ? SwayAnswer::moved : move(sway, window, corner);
}

}  // namespace zephrine
