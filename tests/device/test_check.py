# SPDX-License-Identifier: MIT
"""Tries the check of real GPUs where there is none: on a fake card, library, load and nvidia-smi.

Environment: PROBE and FAKE_NVML, the built probe and the library that stands in for NVIDIA's.
"""
import os
import pathlib
import subprocess
import tempfile
import unittest

CHECK = pathlib.Path(__file__).with_name("check")
CARD = "0000:01:00.0"

# Tells the fake library's figure, with the points in the file "off" added.
NVIDIA_SMI = f"""#!/bin/sh
case $1 in
    *utilization.gpu)
        cd "$ZEPHRINE_FAKE_NVML" && echo $(($(cat {CARD}) + $(cat off))) ;;
    *display_active) echo Disabled ;;
    *) echo "Fake GPU, 1.0, 00000000:01:00.0" ;;
esac
"""
LOAD = f"""#!/bin/sh
trap 'echo 0 > "$ZEPHRINE_FAKE_NVML/{CARD}"; exit' TERM
echo "$1" > "$ZEPHRINE_FAKE_NVML/{CARD}"
echo busy
while :; do sleep 0.1; done
"""


class CheckTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.answers = self.make("answers")
        (self.answers / CARD).write_text("0\n")
        (self.answers / "off").write_text("0\n")
        self.tools = self.make("tools")
        self.write_tool("load", LOAD)
        device = self.make(f"sys/devices/{CARD}/power")
        (device / "runtime_status").write_text("active\n")
        drivers = self.make("sys/bus/pci/drivers/nvidia")
        (drivers / CARD).symlink_to(f"../../../../devices/{CARD}")

    def make(self, name):
        path = self.folder / name
        path.mkdir(parents=True)
        return path

    def write_tool(self, name, text):
        path = self.tools / name
        path.write_text(text)
        path.chmod(0o755)

    def run_check(self, *options):
        environment = {"PATH": f"{self.tools}:{os.environ['PATH']}",
                       "ZEPHRINE_FAKE_NVML": str(self.answers)}
        done = subprocess.run(
            [CHECK, "--probe", os.environ["PROBE"], "--load", self.tools / "load",
             "--readings", "2", "--settle", "0.2", "--patience", "8",
             "--devices", self.answers / "nvidia", "--sys", self.folder / "sys",
             "--nvml", os.environ["FAKE_NVML"], *options],
            env=environment, capture_output=True, text=True, timeout=110, check=False)
        return done.returncode, done.stdout + done.stderr

    def test_says_plainly_that_there_is_no_gpu(self):
        self.write_tool("nvidia-smi", "#!/bin/sh\nexit 9\n")
        status, output = self.run_check()
        self.assertEqual(status, 77, output)
        self.assertIn("There is no NVIDIA GPU here", output)

    def test_passes_where_the_figures_agree_and_the_devices_are_let_go(self):
        self.write_tool("nvidia-smi", NVIDIA_SMI)
        status, output = self.run_check()
        self.assertEqual(status, 0, output)
        self.assertIn("self-test: GPU: 0%", output)
        self.assertRegex(output, r"devices opened after .* s, closed after .* s: good")
        self.assertIn("load  50 %: ours 50 50 (mean 50.0), nvidia-smi 50", output)
        self.assertIn("load 100 %: ours 100 100 (mean 100.0), nvidia-smi 100", output)

    def test_fails_where_the_figures_differ_or_the_devices_stay_open(self):
        self.write_tool("nvidia-smi", NVIDIA_SMI)
        (self.answers / "off").write_text("6\n")
        (self.answers / "display").write_text("1\n")  # a reason to keep the library open
        status, output = self.run_check()
        self.assertEqual(status, 1, output)
        self.assertIn("devices not closed in 8 s: FAILED", output)
        self.assertRegex(output, r"load   0 %: ours 0 0 .* nvidia-smi 6 .*: FAILED")
        self.assertRegex(output, r"load  50 %: ours 50 50 .* nvidia-smi 56 .*: FAILED")


if __name__ == "__main__":
    unittest.main()
