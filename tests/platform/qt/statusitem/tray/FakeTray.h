// SPDX-License-Identifier: MIT
// A tray of X11 that does what the test says, on a connection of its own.
#pragma once

#include <array>
#include <cstring>
#include <vector>

#include "platform/qt/x11/PrivateXServer.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

class FakeTray {
public:
    /// What it tells those who want to stand in it.
    struct Traits {
        std::uint32_t pixel = 0xe0e0e0;  ///< of its own background
        bool isVertical = false;
        xcb_visualid_t visual = XCB_NONE;  ///< the kind of pixels that it asks for
    };

    FakeTray(const PrivateXServer& server, const Traits& traits)
        : server_(server),
          x_(server.connection()),
          window_(server.addWindow(traits.pixel, 0, 200, 40)) {
        const auto [selection, manager, opcode, orientation, visual] =
            internAtoms<5>(x_, {"_NET_SYSTEM_TRAY_S0", "MANAGER", "_NET_SYSTEM_TRAY_OPCODE",
                                "_NET_SYSTEM_TRAY_ORIENTATION", "_NET_SYSTEM_TRAY_VISUAL"});
        opcode_ = opcode;
        orientation_ = orientation;
        setVertical(traits.isVertical);
        if (traits.visual != XCB_NONE) {
            xcb_change_property(x_, XCB_PROP_MODE_REPLACE, window_, visual, XCB_ATOM_VISUALID, 32,
                                1, &traits.visual);
        }
        xcb_set_selection_owner(x_, window_, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t news{};
        news.response_type = XCB_CLIENT_MESSAGE;
        news.format = 32;
        news.window = server_.screen().root;
        news.type = manager;
        news.data.data32[1] = selection;
        news.data.data32[2] = window_;
        xcb_send_event(x_, 0, server_.screen().root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                       reinterpret_cast<const char*>(&news));
        server_.show(window_);
    }
    ~FakeTray() {
        xcb_destroy_window(x_, window_);
        xcb_flush(x_);
    }
    FakeTray(const FakeTray&) = delete;
    FakeTray& operator=(const FakeTray&) = delete;

    std::vector<xcb_window_t> asked;  ///< by these windows to take them in, the last one last

    /// Reads what it was asked. True when it was asked since the last time.
    bool wasAsked() {
        const std::size_t before = asked.size();
        while (const auto event = own(xcb_poll_for_event(x_))) {
            const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
            if ((event->response_type & 0x7f) == XCB_CLIENT_MESSAGE && message.type == opcode_) {
                asked.push_back(message.data.data32[2]);
            }
        }
        return asked.size() > before;
    }
    void takeIn(std::uint16_t width = 80, std::uint16_t height = 24) {
        const std::array<std::uint32_t, 2> size{width, height};
        xcb_reparent_window(x_, asked.back(), window_, 0, 0);
        xcb_configure_window(x_, asked.back(), XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT,
                             size.data());
        server_.show(asked.back());
    }
    void letGo() {
        xcb_unmap_window(x_, asked.back());
        xcb_reparent_window(x_, asked.back(), server_.screen().root, 0, 0);
        xcb_flush(x_);
    }
    void destroyItem() {
        xcb_destroy_window(x_, asked.back());
        xcb_flush(x_);
    }
    void press(std::uint8_t button) {
        xcb_button_press_event_t press{};
        press.response_type = XCB_BUTTON_PRESS;
        press.detail = button;
        press.event = asked.back();
        xcb_send_event(x_, 0, asked.back(), XCB_EVENT_MASK_BUTTON_PRESS,
                       reinterpret_cast<const char*>(&press));
        xcb_flush(x_);
    }
    void setVertical(bool isVertical) {
        const std::uint32_t value = isVertical ? 1 : 0;
        xcb_change_property(x_, XCB_PROP_MODE_REPLACE, window_, orientation_, XCB_ATOM_CARDINAL, 32,
                            1, &value);
        xcb_flush(x_);
    }

    /// The least width and height that the item asks for; 0 while it asks for none.
    [[nodiscard]] std::array<std::uint32_t, 2> leastSize() const {
        const auto words =
            propertyWords(x_, xcb_get_property(x_, 0, asked.back(), XCB_ATOM_WM_NORMAL_HINTS,
                                               XCB_ATOM_WM_SIZE_HINTS, 0, 18));
        return words.size() < 7 ? std::array<std::uint32_t, 2>{} : std::array{words[5], words[6]};
    }
    [[nodiscard]] bool stillHasItem() const {
        return own(xcb_get_window_attributes_reply(x_, xcb_get_window_attributes(x_, asked.back()),
                                                   nullptr)) != nullptr;
    }
    [[nodiscard]] int depthOfItem() const {
        const auto geometry =
            own(xcb_get_geometry_reply(x_, xcb_get_geometry(x_, asked.back()), nullptr));
        return geometry ? geometry->depth : 0;
    }
    /// The four bytes of one pixel of the item, the uppermost being its opacity where it has one.
    [[nodiscard]] std::uint32_t pixelOfItem(std::int16_t x, std::int16_t y) const {
        const auto image = own(xcb_get_image_reply(
            x_, xcb_get_image(x_, XCB_IMAGE_FORMAT_Z_PIXMAP, asked.back(), x, y, 1, 1, ~0U),
            nullptr));
        std::uint32_t pixel = 0;
        if (image && xcb_get_image_data_length(image.get()) >= 4) {
            std::memcpy(&pixel, xcb_get_image_data(image.get()), sizeof pixel);
        }
        return pixel;
    }

private:
    const PrivateXServer& server_;
    xcb_connection_t* x_;
    xcb_window_t window_;
    xcb_atom_t opcode_ = XCB_ATOM_NONE;
    xcb_atom_t orientation_ = XCB_ATOM_NONE;
};

}  // namespace zephrine
