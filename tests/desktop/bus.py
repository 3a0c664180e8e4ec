# SPDX-License-Identifier: MIT
"""A client of the session bus that reads status items the way a panel does:
https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/"""
import re
import time

from jeepney import (DBusAddress, HeaderFields, MatchRule, Properties, message_bus,
                     new_method_call)
from jeepney.io.blocking import open_dbus_connection
from jeepney.wrappers import DBusErrorResponse, unwrap_msg

WATCHER = "org.kde.StatusNotifierWatcher"
ITEM = "org.kde.StatusNotifierItem"
TEXT = re.compile(r"CPU +(\d+)%, RAM (\d+\.\d) of (\d+) GB, memory pressure (\w+)")


class Bus:
    def __init__(self, address):
        self._connection = open_dbus_connection(address)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._connection.close()

    def call(self, message):
        """The body of the answer; None when the answer is an error."""
        try:
            return unwrap_msg(self._connection.send_and_get_reply(message, timeout=60))
        except DBusErrorResponse:
            return None

    def owner(self, name):
        answer = self.call(message_bus.GetNameOwner(name))
        return answer and answer[0]

    def pid(self, name):
        answer = self.call(message_bus.GetConnectionUnixProcessID(name))
        return answer and answer[0]

    def item_of(self, pid):
        """What the process `pid` says of its item, wherever that is shown; None if nothing."""
        answer = self.call(message_bus.ListNames())
        for name in answer[0] if answer else []:
            if name.startswith(":") and self.pid(name) == pid:
                item = Item(self, name, "/StatusNotifierItem")
                if item.get("Id"):
                    return item
        return None

    def is_in_panel(self, pid):
        """Whether the panel has taken the item of the process `pid` from the bus."""
        watcher = DBusAddress("/StatusNotifierWatcher", WATCHER, WATCHER)
        answer = self.call(Properties(watcher).get("RegisteredStatusNotifierItems"))
        return any(self.pid(entry.partition("/")[0]) == pid for entry in answer[0][1]) \
            if answer else False

    def signals(self, item, seconds):
        """The names of the signals that the item sends in `seconds`, one by one as they come."""
        rule = MatchRule(type="signal", sender=item.owner, interface=ITEM, path=item.path)
        self.call(message_bus.AddMatch(rule))
        end = time.monotonic() + seconds
        try:
            with self._connection.filter(rule, bufsize=100) as queue:
                while (left := end - time.monotonic()) > 0:
                    message = self._connection.recv_until_filtered(queue, timeout=left)
                    yield message.header.fields[HeaderFields.member]
        except TimeoutError:
            pass
        finally:
            self.call(message_bus.RemoveMatch(rule))


class Item:
    def __init__(self, bus, owner, path):
        self._bus = bus
        self.owner = owner
        self.path = path
        self._address = DBusAddress(path, owner, ITEM)

    def get(self, name):
        answer = self._bus.call(Properties(self._address).get(name))
        return answer and answer[0][1]

    def activate(self, x, y):
        return self._bus.call(new_method_call(self._address, "Activate", "ii", (x, y)))

    def text(self):
        """The match of the description in what the item says, or None."""
        tip = self.get("ToolTip") or ("", [], "", "")
        return TEXT.search("\n".join([self.get("Title") or "", tip[2], tip[3]]))

    def picture(self):
        """(width, height, bytes in the order A R G B) of the largest pixmap, or None."""
        pixmaps = self.get("IconPixmap")
        return max(pixmaps, key=lambda pixmap: pixmap[1], default=None) if pixmaps else None
