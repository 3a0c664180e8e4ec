# SPDX-License-Identifier: MIT
"""Stand-ins for services of the desktop, by python-dbusmock, which are told what to send:
https://martinpitt.github.io/python-dbusmock/"""
from jeepney import DBusAddress, new_method_call

from bus import Bus
from desktop import wait_until

PORTAL = ("org.freedesktop.portal.Desktop", "/org/freedesktop/portal/desktop",
          "org.freedesktop.portal.Settings")
LOGIND = ("org.freedesktop.login1", "/org/freedesktop/login1", "org.freedesktop.login1.Manager")


class Mock:
    """A service on the bus at `address`: `place` is its name, its object and its interface."""

    def __init__(self, desktop, address, variable, place):
        self._bus = Bus(address)
        self._place = place
        self.process = desktop.start("/usr/bin/python3", "-m", "dbusmock",
                                     f"--{variable}", *place,
                                     environment={f"DBUS_{variable.upper()}_BUS_ADDRESS": address})
        wait_until(lambda: self._bus.owner(place[0]), 20, place[0])

    def __enter__(self):
        return self

    def __exit__(self, *failure):
        self._bus.__exit__(*failure)

    def add_method(self, name, takes, gives, code):
        self._tell("AddMethod", "sssss", (self._place[2], name, takes, gives, code))

    def emit(self, name, signature, *values):
        self._tell("EmitSignal", "sssav", (self._place[2], name, signature, list(values)))

    def _tell(self, method, signature, body):
        address = DBusAddress(self._place[1], self._place[0], "org.freedesktop.DBus.Mock")
        self._bus.call(new_method_call(address, method, signature, body))


class Portal(Mock):
    """The settings portal of a user who prefers `scheme`: 0 nothing, 1 dark, 2 light."""

    def __init__(self, desktop, scheme):
        super().__init__(desktop, desktop.bus_address, "session", PORTAL)
        self.add_method("ReadAll", "as", "a{sa{sv}}",
                        "ret = {'org.freedesktop.appearance':"
                        f" {{'color-scheme': dbus.UInt32({scheme})}}}}")

    def prefer(self, scheme):
        self.emit("SettingChanged", "ssv", ("s", "org.freedesktop.appearance"),
                  ("s", "color-scheme"), ("v", ("u", scheme)))


class Logind(Mock):
    """The login manager, on a system bus of its own, which programs started later take for the
    system's."""

    def __init__(self, desktop):
        address = f"unix:path={desktop.folder}/runtime/system_bus"
        desktop.start("dbus-daemon", "--session", "--nofork", "--nopidfile", "--address=" + address)
        wait_until((desktop.folder / "runtime/system_bus").exists, 20, "a system bus")
        desktop.environment["DBUS_SYSTEM_BUS_ADDRESS"] = address
        super().__init__(desktop, address, "system", LOGIND)

    def prepare_for_sleep(self, begins):
        self.emit("PrepareForSleep", "b", ("b", begins))
