// SPDX-License-Identifier: MIT
// Events by the event loop of Qt.
#include "platform/qt/x11/X11Client.h"

#include <QMetaObject>
#include <utility>

#include "platform/qt/x11/X11.h"

namespace zephrine {

X11Client::X11Client(Handler handler, const char* display) : handler_(std::move(handler)) {
    if (display == nullptr && x11Connection() == nullptr) {
        return;
    }
    int number = 0;
    connection_.reset(xcb_connect(display, &number));
    if (xcb_connection_has_error(connection_.get()) != 0) {
        connection_.reset();
        return;
    }
    auto screens = xcb_setup_roots_iterator(xcb_get_setup(connection_.get()));
    while (number-- > 0 && screens.rem > 1) {
        xcb_screen_next(&screens);
    }
    screen_ = screens.data;
    notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_.get()),
                                                  QSocketNotifier::Read);
    connect(notifier_.get(), &QSocketNotifier::activated, this, [this] { handleEvents(); });
}

void X11Client::flush() {
    xcb_flush(connection_.get());
    // A reply that was waited for may have brought events along: no socket becomes readable then.
    QMetaObject::invokeMethod(
        this, [this] { handleEvents(); }, Qt::QueuedConnection);
}

void X11Client::handleEvents() {
    while (const auto event = own(xcb_poll_for_event(connection_.get()))) {
        handler_(*event);
    }
    if (xcb_connection_has_error(connection_.get()) != 0) {
        notifier_->setEnabled(false);  // the display is gone, and Qt ends the program
    }
}

}  // namespace zephrine
