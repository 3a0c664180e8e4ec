# SPDX-License-Identifier: MIT
"""A connection that is shown what others say on the bus:
https://dbus.freedesktop.org/doc/dbus-specification.html#bus-messages-become-monitor"""
from jeepney import DBusAddress, HeaderFields, message_bus, new_method_call
from jeepney.io.blocking import open_dbus_connection

from bus import Bus

MONITORING = DBusAddress("/org/freedesktop/DBus", "org.freedesktop.DBus",
                         "org.freedesktop.DBus.Monitoring")


class BusMonitor:
    """Use as `with BusMonitor(address, pid) as monitor:`. It is shown all that the process `pid`
    sends over the connections to the bus that it has by then."""

    def __init__(self, address, pid):
        with Bus(address) as bus:
            names = [name for name in bus.call(message_bus.ListNames())[0]
                     if name.startswith(":") and bus.pid(name) == pid]
        self._connection = open_dbus_connection(address)
        rules = [f"sender='{name}'" for name in names]
        self._connection.send_and_get_reply(
            new_method_call(MONITORING, "BecomeMonitor", "asu", (rules, 0)), timeout=10)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self._connection.close()

    def sent(self):
        """What was sent since the last call: a list of (member or type of the message, bytes).
        Until then the bus keeps it."""
        messages = []
        try:
            while True:
                message = self._connection.receive(timeout=0.2)
                header = message.header
                name = header.fields.get(HeaderFields.member, header.message_type.name)
                messages.append((name, len(message.serialise())))
        except TimeoutError:
            return messages
