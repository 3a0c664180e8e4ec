// SPDX-License-Identifier: MIT
// The settings manager owns the selection _XSETTINGS_S0, keeps the settings in a property of the
// owning window, and announces itself to the root window when it starts.
#include "platform/qt/theme/DesktopTheme.h"

#include <utility>

#include "platform/linux/desktop/XSettings.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

constexpr std::uint32_t kMostWords = 1U << 16U;  // a quarter of a megabyte; real ones have 2 kB

}  // namespace

DesktopTheme::DesktopTheme(std::function<void(const DesktopLook&)> changed)
    : changed_(std::move(changed)) {}

void DesktopTheme::follow() {
    connection_ =
        std::make_unique<X11Client>([this](const xcb_generic_event_t& event) { handle(event); });
    if (!connection_->isOpen()) {
        return;
    }
    const auto atoms =
        internAtoms<3>(connection_->get(), {"_XSETTINGS_S0", "_XSETTINGS_SETTINGS", "MANAGER"});
    selection_ = atoms[0];
    settings_ = atoms[1];
    managerMessage_ = atoms[2];
    listen(connection_->get(), connection_->screen().root, XCB_EVENT_MASK_STRUCTURE_NOTIFY);
    findManager();
}

void DesktopTheme::handle(const xcb_generic_event_t& event) {
    const int kind = event.response_type & 0x7f;
    if (kind == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == manager_ && change.atom == settings_) {
            read();
        }
    } else if (kind == XCB_CLIENT_MESSAGE) {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        if (message.type == managerMessage_ && message.data.data32[1] == selection_) {
            findManager();
        }
    }
}

/// What a manager that has ended had set still counts, until another one says otherwise.
void DesktopTheme::findManager() {
    xcb_connection_t* const x = connection_->get();
    const auto owner =
        own(xcb_get_selection_owner_reply(x, xcb_get_selection_owner(x, selection_), nullptr));
    manager_ = owner ? owner->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (manager_ != XCB_WINDOW_NONE) {
        listen(x, manager_, XCB_EVENT_MASK_PROPERTY_CHANGE);
        read();
    }
    connection_->flush();
}

void DesktopTheme::read() {
    xcb_connection_t* const x = connection_->get();
    const auto reply = own(xcb_get_property_reply(
        x, xcb_get_property(x, 0, manager_, settings_, settings_, 0, kMostWords), nullptr));
    if (!reply || reply->format != 8) {
        return;
    }
    const auto* const text = static_cast<const char*>(xcb_get_property_value(reply.get()));
    const DesktopLook look = lookOf(parseXSettings({text, reply->value_len}));
    if (std::exchange(look_, look) != look) {
        changed_(look);
    }
    connection_->flush();
}

}  // namespace zephrine
