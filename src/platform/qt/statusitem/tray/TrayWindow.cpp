// SPDX-License-Identifier: MIT
// A window without Qt: inside a tray it has to take over what the tray draws behind it, which is
// a property of X windows that Qt's do not offer.
#include "platform/qt/statusitem/tray/TrayWindow.h"

#include <QPainter>
#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/qt/drawing/RenderImage.h"
#include "platform/qt/statusitem/appearance/PanelPixels.h"
#include "platform/qt/statusitem/tray/TrayLayout.h"
#include "platform/qt/x11/X11.h"

namespace zephrine {

namespace {

constexpr std::uint32_t kEvents = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY |
                                  XCB_EVENT_MASK_BUTTON_PRESS | XCB_EVENT_MASK_ENTER_WINDOW |
                                  XCB_EVENT_MASK_LEAVE_WINDOW;

std::uint16_t extent(int pixels) {
    return static_cast<std::uint16_t>(pixels);
}

template <typename Event>
const Event& as(const xcb_generic_event_t& event) {
    return reinterpret_cast<const Event&>(event);  // the kinds of events share their beginning
}

}  // namespace

TrayWindow::TrayWindow(X11Client& connection, xcb_window_t manager, const TrayHints& hints,
                       Handlers handlers)
    : connection_(connection), hints_(hints), handlers_(std::move(handlers)) {
    xcb_connection_t* const x = connection_.get();
    const xcb_screen_t& screen = connection_.screen();
    window_ = xcb_generate_id(x);
    graphics_ = xcb_generate_id(x);
    colormap_ = xcb_generate_id(x);
    xcb_create_colormap(x, XCB_COLORMAP_ALLOC_NONE, colormap_, screen.root, hints_.visual);
    // Without alpha the window shows what its parent shows behind it.
    const std::uint32_t background = hints_.hasAlpha() ? 0 : XCB_BACK_PIXMAP_PARENT_RELATIVE;
    const std::uint32_t kind = hints_.hasAlpha() ? XCB_CW_BACK_PIXEL : XCB_CW_BACK_PIXMAP;
    const std::array<std::uint32_t, 4> values{background, 0, kEvents, colormap_};
    xcb_create_window(x, hints_.depth, window_, screen.root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, hints_.visual,
                      kind | XCB_CW_BORDER_PIXEL | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP,
                      values.data());
    xcb_create_gc(x, graphics_, window_, 0, nullptr);
    tellEmbedder();
    requestDock(manager);
    connection_.flush();
}

TrayWindow::~TrayWindow() {
    xcb_free_gc(connection_.get(), graphics_);
    xcb_destroy_window(connection_.get(), window_);
    xcb_free_colormap(connection_.get(), colormap_);
    connection_.flush();
}

void TrayWindow::tellEmbedder() {
    xcb_connection_t* const x = connection_.get();
    constexpr std::string_view name = "Zephrine";
    constexpr std::string_view classes{"zephrine\0Zephrine\0", 18};
    constexpr std::array<std::uint32_t, 2> info{0, 1};  // version; wants to be mapped
    const auto [infoAtom, nameAtom, utf8] =
        internAtoms<3>(x, {"_XEMBED_INFO", "_NET_WM_NAME", "UTF8_STRING"});
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, window_, infoAtom, infoAtom, 32, info.size(),
                        info.data());
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, window_, nameAtom, utf8, 8, name.size(),
                        name.data());
    xcb_change_property(x, XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, 8,
                        classes.size(), classes.data());
}

void TrayWindow::requestDock(xcb_window_t manager) {
    constexpr std::uint32_t dock = 0;  // SYSTEM_TRAY_REQUEST_DOCK
    xcb_client_message_event_t request{};
    request.response_type = XCB_CLIENT_MESSAGE;
    request.format = 32;
    request.window = manager;
    request.type = internAtoms<1>(connection_.get(), {"_NET_SYSTEM_TRAY_OPCODE"})[0];
    request.data.data32[0] = XCB_CURRENT_TIME;
    request.data.data32[1] = dock;
    request.data.data32[2] = window_;
    xcb_send_event(connection_.get(), 0, manager, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&request));
}

void TrayWindow::setLength(double length) {
    length_ = length;
    if (image_.wide.drawingHandler) {
        askForSize();
    }
}

void TrayWindow::setPicture(const StatusItemImage& image, double density) {
    image_ = image;
    density_ = density;
    askForSize();
    paint();
}

void TrayWindow::askForSize() {
    const Size wide = image_.wide.size;
    const bool isTooLow = isDocked_ && !isHighEnoughForWide(size_.height(), wide, density_);
    const double width =
        hints_.isVertical || isTooLow ? wide.height : std::max(length_, wide.width);
    const QSize wanted(static_cast<int>(std::ceil(width * density_)),
                       static_cast<int>(std::ceil(wide.height * density_)));
    if (std::exchange(asked_, wanted) == wanted) {
        return;
    }
    // WM_SIZE_HINTS of the Inter-Client Communication Conventions Manual, section 4.1.2.3: trays
    // that look at the least size give it; the others give a square.
    constexpr std::uint32_t leastSize = 1U << 4;
    std::array<std::uint32_t, 18> hints{};
    hints[0] = leastSize;
    hints[5] = static_cast<std::uint32_t>(wanted.width());
    hints[6] = static_cast<std::uint32_t>(wanted.height());
    xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, XCB_ATOM_WM_NORMAL_HINTS,
                        XCB_ATOM_WM_SIZE_HINTS, 32, hints.size(), hints.data());
    if (!isDocked_) {  // some trays take the first size for the wish
        const std::array<std::uint32_t, 2> size{hints[5], hints[6]};
        xcb_configure_window(connection_.get(), window_,
                             XCB_CONFIG_WINDOW_WIDTH | XCB_CONFIG_WINDOW_HEIGHT, size.data());
    }
    connection_.flush();
}

void TrayWindow::handle(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {  // the uppermost bit tells that a program has sent it
        case XCB_EXPOSE:
            if (as<xcb_expose_event_t>(event).window == window_) {
                background_ = {};
                painted_ = {};
                paint();
            }
            break;
        case XCB_CONFIGURE_NOTIFY:
            if (const auto& change = as<xcb_configure_notify_event_t>(event);
                change.window == window_) {
                resized({change.width, change.height});
            }
            break;
        case XCB_REPARENT_NOTIFY:
            if (const auto& change = as<xcb_reparent_notify_event_t>(event);
                change.window == window_) {
                reparented(change.parent);
            }
            break;
        case XCB_DESTROY_NOTIFY:
            if (as<xcb_destroy_notify_event_t>(event).window == window_) {
                handlers_.lost();
            }
            break;
        default:
            handlePointer(event);
    }
}

void TrayWindow::handlePointer(const xcb_generic_event_t& event) {
    switch (event.response_type & 0x7f) {
        case XCB_BUTTON_PRESS:
            if (const auto& press = as<xcb_button_press_event_t>(event);
                press.event == window_ && press.detail <= XCB_BUTTON_INDEX_3) {  // no scrolling
                xcb_ungrab_pointer(connection_.get(), press.time);
                connection_.flush();
                handlers_.clicked();
            }
            break;
        case XCB_ENTER_NOTIFY:
        case XCB_LEAVE_NOTIFY:  // both are events of one form
            if (const auto& crossing = as<xcb_enter_notify_event_t>(event);
                crossing.event == window_) {
                handlers_.hovered((crossing.response_type & 0x7f) == XCB_ENTER_NOTIFY);
            }
            break;
        default:
            break;
    }
}

void TrayWindow::reparented(xcb_window_t parent) {
    const bool isInTray = parent != connection_.screen().root;
    if (std::exchange(isDocked_, isInTray) == isInTray) {
        return;
    }
    isInTray ? handlers_.placed() : handlers_.lost();
}

void TrayWindow::resized(QSize size) {
    if (std::exchange(size_, size) != size) {
        background_ = {};
        painted_ = {};
        if (image_.wide.drawingHandler) {
            askForSize();
        }
        paint();
        if (isDocked_) {
            handlers_.placed();
        }
    }
}

QImage TrayWindow::picture() const {
    const TrayLayout layout = layOutInTray(size_, image_.wide.size, density_);
    QImage part = layout.isWide   ? renderImage(image_.wide, layout.scale, image_.appearance)
                  : image_.square ? renderImage(image_.square(layout.side), 1, image_.appearance)
                                  : QImage();
    part.setDevicePixelRatio(1);
    QImage whole(size_, QImage::Format_ARGB32_Premultiplied);
    whole.fill(Qt::transparent);
    QPainter(&whole).drawImage(layout.corner, part);
    return whole;
}

std::optional<Appearance> TrayWindow::surface() const {
    std::vector<std::uint32_t> pixels;
    for (int y = 0; y < background_.height(); ++y) {
        for (int x = 0; x < background_.width(); ++x) {
            pixels.push_back(background_.pixel(x, y));
        }
    }
    return appearanceOfPixels(pixels);
}

const QImage& TrayWindow::background() {
    if (background_.isNull()) {
        xcb_connection_t* const x = connection_.get();
        xcb_clear_area(x, 0, window_, 0, 0, 0, 0);
        const auto seen = own(
            xcb_get_image_reply(x,
                                xcb_get_image(x, XCB_IMAGE_FORMAT_Z_PIXMAP, window_, 0, 0,
                                              extent(size_.width()), extent(size_.height()), ~0U),
                                nullptr));
        QImage image(size_, QImage::Format_RGB32);
        const auto bytes = static_cast<std::size_t>(image.sizeInBytes());
        if (seen && static_cast<std::size_t>(xcb_get_image_data_length(seen.get())) >= bytes) {
            std::memcpy(image.bits(), xcb_get_image_data(seen.get()), bytes);
            background_ = std::move(image);
        }
    }
    return background_;
}

void TrayWindow::paint() {
    // No tray is larger, and no request to the server holds more than four million pixels.
    constexpr int largest = 1024;
    if (!isDocked_ || !image_.wide.drawingHandler || size_.width() > largest ||
        size_.height() > largest) {
        return;
    }
    QImage pixels = picture();
    if (!hints_.hasAlpha()) {
        QImage opaque = background();
        if (opaque.isNull()) {
            return;  // partly off the screen, as in a panel that hides itself: it is exposed later
        }
        QPainter(&opaque).drawImage(0, 0, pixels);
        pixels = std::move(opaque);
    }
    if (pixels == painted_) {
        return;
    }
    painted_ = pixels;
    xcb_put_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, window_, graphics_,
                  extent(pixels.width()), extent(pixels.height()), 0, 0, 0, hints_.depth,
                  static_cast<std::uint32_t>(pixels.sizeInBytes()), pixels.constBits());
    connection_.flush();
}

}  // namespace zephrine
