// SPDX-License-Identifier: MIT
// A connection of our own to the X server, for who wants events that Qt does not pass on. Qt's
// cannot be shared: which events a window sends is one choice per connection, and Qt has made it
// for the root window.
#pragma once

#include <xcb/xcb.h>

#include <QObject>
#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace zephrine {

class X11Client final : public QObject {
public:
    using Handler = std::function<void(const xcb_generic_event_t&)>;

    /// To `display`, or to the one that Qt is on when that is null; closed when that is no X11 one.
    /// `handler` gets every event, from the event loop.
    explicit X11Client(Handler handler, const char* display = nullptr);

    [[nodiscard]] bool isOpen() const { return connection_ != nullptr; }
    /// Both only while it is open.
    [[nodiscard]] xcb_connection_t* get() const { return connection_.get(); }
    [[nodiscard]] const xcb_screen_t& screen() const { return *screen_; }

    /// Sends what is buffered, and sees to it that events which came in with a reply are handled.
    void flush();

private:
    void handleEvents();

    struct Disconnect {
        void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
    };

    Handler handler_;
    std::unique_ptr<xcb_connection_t, Disconnect> connection_;
    const xcb_screen_t* screen_ = nullptr;
    std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace zephrine
