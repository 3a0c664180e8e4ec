#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Launch at login: the entry as other programs take it, and what goes wrong."""
import contextlib
import os
import pathlib
import shutil
import unittest

import accessibility
import settings
from bus import Bus
from desktop import wait_until
from namespaces import NAMESPACE, NOBODY_MAY_MOUNT, may_mount
from program import PROGRAM, DesktopTestCase, strip

ALERT = "Couldn’t update launch at login"


class LoginItemTestCase(DesktopTestCase):
    @contextlib.contextmanager
    def session(self, program=PROGRAM):
        with self.desktop() as self.desk:
            self.path = pathlib.Path(program)
            self.entry = self.desk.config / "autostart/zephrine.desktop"
            yield

    def start(self, *options, wrapper=(), **environment):
        program = self.desk.start(*wrapper, str(self.path), *options, environment=environment)
        wait_until(lambda: strip(self.desk, program), 10, "the item")
        return program

    def status(self):
        return self.desk.run(str(self.path), "--login-status")

    def assert_status(self, number):
        self.assertEqual(self.status(), f"Launch at login status: {number}\n")

    def register(self):
        program = self.start("--enable-login")
        wait_until(self.entry.exists, 5, "the entry")
        return program


class Registration(LoginItemTestCase):
    @contextlib.contextmanager
    def installed(self, *folders):
        """The program in a folder of such a name."""
        with self.session():
            self.path = self.desk.folder.joinpath(*folders) / "zephrine"
            self.path.parent.mkdir(parents=True)
            shutil.copy2(PROGRAM, self.path)
            yield

    def test_the_status_tells_each_state(self):
        with self.installed("bin"):
            self.assert_status(0)
            self.register()
            self.assert_status(1)
            for line in ("Hidden=true", "X-GNOME-Autostart-enabled=false",
                         "X-MATE-Autostart-enabled=false", "X-XFCE-Autostart-Enabled=false"):
                text = self.entry.read_text(encoding="utf-8")
                kept = [old for old in text.splitlines() if not old.startswith("X-GNOME-")]
                self.entry.write_text("\n".join([*kept, line, ""]), encoding="utf-8")
                self.assert_status(2)
                self.entry.write_text(text, encoding="utf-8")
                self.assert_status(1)
            moved = self.path.rename(self.path.parent / "other")
            self.path = moved
            self.assert_status(3)
            self.entry.unlink()
            self.assert_status(0)

    def test_the_entry_is_valid_wherever_the_program_is(self):
        for folders in (["bin"], ["my tools", "100%", "%U"], ['"quoted"', "$HOME", "`x`"],
                        ["back\\slash", "ü→"]):
            with self.subTest(folders), self.installed(*folders):
                self.register()
                self.assert_status(1)
                self.assertEqual(self.desk.run("desktop-file-validate", str(self.entry)), "")

    def test_registering_again_switches_it_on(self):
        with self.session():
            self.register().kill()
            self.entry.write_text("[Desktop Entry]\nHidden=true\n", encoding="utf-8")
            self.assert_status(2)
            self.start("--enable-login")
            wait_until(lambda: self.status().endswith("1\n"), 5, "an entry that is on")

    def test_the_entry_starts_the_program(self):
        # The latter is how GNOME and many others read entries; it knows every way to quote.
        dex = ("dex", "--autostart", "--environment", "XFCE")
        gio = ("gio", "launch")
        for command, *folders in ((dex, "bin"), (dex, "my tools", "ü→"), (gio, "100%", "%U%%"),
                                  (gio, "$HOME", "`x`", '"quoted"', "'too'"),
                                  (gio, "back\\slash", "#;=[x]&|<>*?~")):
            with self.subTest(folders), self.installed(*folders):
                program = self.register()
                program.terminate()
                program.wait(timeout=60)
                self.desk.start(*command, *[str(self.entry)] * (command is gio),
                                environment={"XDG_CONFIG_DIRS": str(self.desk.folder / "none")})
                with Bus(self.desk.bus_address) as bus:
                    pid = wait_until(lambda: bus.pid("org.zephrine.Zephrine"), 10, "the program")
                self.assertEqual(os.readlink(f"/proc/{pid}/exe"), str(self.path))

    def test_an_entry_that_is_switched_off_starts_nothing(self):
        with self.session():
            self.register().terminate()
            with self.entry.open("a", encoding="utf-8") as entry:
                entry.write("Hidden=true\n")
            ran = self.desk.run("dex", "--autostart", "--dry-run", "--verbose", "--environment",
                                "XFCE")
            self.assertNotIn("zephrine", ran.replace(str(self.entry), ""))


class Failures(LoginItemTestCase):
    def assert_alert(self, words, *wrapper, **environment):
        """The program says `words` in an alert, and shows its item all the same."""
        accessibility.enable(self.desk)
        program = self.start("--enable-login", wrapper=wrapper, **environment)

        def alert():
            # A wrapper is gone by then: the program has taken its place.
            return next((list(accessibility.within(window))
                         for window in accessibility.windows(self.desk, program)
                         if any(e["name"] == ALERT for e in accessibility.within(window))), None)

        names = [element["name"] for element in wait_until(alert, 10, "the alert")]
        self.assertIn(words, names)
        wait_until(lambda: any("focused" in element["states"] for element in alert() or []), 10,
                   "the keyboard at the alert")
        self.desk.run("xdotool", "key", "Return")
        wait_until(lambda: not alert(), 5, "the alert's end")
        self.assertIsNone(program.poll())
        return program

    def mounting(self, *commands):
        """A wrapper that gives the program a configuration folder of its own."""
        if not may_mount():
            self.skipTest(NOBODY_MAY_MOUNT)
        script = " && ".join(["cd \"$XDG_CONFIG_HOME\"", *commands, 'cd / && exec "$0" "$@"'])
        return (*NAMESPACE, "sh", "-c", script)

    def test_a_read_only_home(self):
        with self.session():
            self.assert_alert(f"{self.entry}: Read-only file system", *self.mounting(
                'mount -t tmpfs -o ro tmpfs "$XDG_CONFIG_HOME"'))
            self.assert_status(0)

    def test_a_full_disk(self):
        with self.session():
            self.assert_alert(f"{self.entry}: No space left on device", *self.mounting(
                'mount -t tmpfs -o size=64k,mode=700 tmpfs "$XDG_CONFIG_HOME"',
                '{ head -c 1M /dev/zero >"$XDG_CONFIG_HOME/full" || true; }'))

    def test_no_home(self):
        with self.session():
            self.assert_alert("There is no home folder to keep the entry in.",
                              XDG_CONFIG_HOME="", HOME="")

    def test_a_file_in_the_place_of_the_folder(self):
        with self.session():
            self.entry.parent.write_text("in the way", encoding="utf-8")
            program = self.assert_alert(f"{self.entry}: Not a directory")
            self.assertEqual(self.entry.parent.read_text(encoding="utf-8"), "in the way")
            self.desk.start(str(self.path), "--show-settings").wait(timeout=60)
            box = settings.wait_for_element(self.desk, program, "check box",
                                            "Launch Zephrine at login")
            self.assertNotIn("checked", box["states"])


if __name__ == "__main__":
    unittest.main(verbosity=2)
