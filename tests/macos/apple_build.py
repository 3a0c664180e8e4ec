# SPDX-License-Identifier: MIT
"""Building for a Mac on Linux: one CMake build for arm64, from which the other checks take their
commands, so that there is one list of flags. A command here returns what it printed when it
failed, and None when it did not."""
import json
import pathlib
import re
import shlex
import shutil
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]
BACK_END = ROOT / "src/platform/macos"
DECLARATIONS = ROOT / "tests/macos-declarations"
TOOLCHAIN = ROOT / "tests/macos/toolchain.cmake"
STANDARD_HEADERS = """algorithm array atomic cstddef cstdint cstdlib functional limits map memory
    optional span string string_view utility variant vector""".split()


def run(command: list[str], **options) -> str | None:
    done = subprocess.run(command, capture_output=True, text=True, check=False, **options)
    return None if done.returncode == 0 else done.stdout + done.stderr


class AppleBuild:
    """One configured build folder of one architecture."""

    def __init__(self, folder: pathlib.Path, arch: str):
        self.folder = folder
        self.arch = arch

    def configure(self) -> str | None:
        """Afresh each time: a changed toolchain file is read only then."""
        caching = [f"-DCMAKE_{language}_COMPILER_LAUNCHER={cache}"
                   for language in ("CXX", "OBJCXX") if (cache := shutil.which("ccache"))]
        return run(
            ["cmake", "--fresh", "-S", str(ROOT), "-B", str(self.folder), "-G", "Ninja",
             f"--toolchain={TOOLCHAIN}", f"-DZEPHRINE_APPLE_ARCH={self.arch}",
             "-DZEPHRINE_TESTS=OFF", "-DCMAKE_BUILD_TYPE=Debug",
             "-DCMAKE_COMPILE_WARNING_AS_ERROR=ON", *caching]
        )

    def build(self) -> str | None:
        return run(["ninja", "-C", str(self.folder), "-k", "0"])

    @property
    def bundle(self) -> pathlib.Path:
        return self.folder / "src/Zephrine.app"

    def sources(self, pattern: str) -> list[pathlib.Path]:
        return sorted(source for source in self._commands() if re.search(pattern, str(source)))

    def flags(self) -> list[str]:
        """The compiler and what it is given for every Objective-C++ file."""
        command = self._commands()[self.sources(r"\.mm$")[0]]
        return command[: command.index("-o")]

    def link(self, *, replaced: dict[str, pathlib.Path | None], without: str = "") -> str | None:
        """Links the program from its objects again, some of them replaced or left out, without
        one framework."""
        objects = [
            replaced.get(path.name.removesuffix(".o"), path)
            for path in sorted(self.folder.glob("src/**/*.o"))
        ]
        frameworks = re.findall(r"-framework (\w+)", (self.folder / "build.ninja").read_text())
        chosen = [name for name in dict.fromkeys(frameworks) if name != without]
        cache = (self.folder / "CMakeCache.txt").read_text()

        def setting(name: str) -> list[str]:
            match = re.search(rf"^{name}:\w+=(.*)$", cache, re.MULTILINE)
            assert match, name
            return shlex.split(match[1])

        return run(
            [self.flags()[0], *setting("CMAKE_CXX_FLAGS"), *setting("CMAKE_EXE_LINKER_FLAGS"),
             *(str(path) for path in objects if path),
             *(word for name in chosen for word in ("-framework", name)),
             "-o", str(self.folder / "relinked")]
        )

    def _commands(self) -> dict[pathlib.Path, list[str]]:
        if not hasattr(self, "_parsed"):
            entries = json.loads((self.folder / "compile_commands.json").read_text())
            self._parsed = {
                pathlib.Path(entry["file"]): shlex.split(entry["command"]) for entry in entries
            }
        return self._parsed



class Compiler:
    """One way of compiling an Objective-C++ file without keeping the result. The C++ library's
    headers, which take most of the time, are compiled once."""

    def __init__(self, flags: list[str], mode: list[str], folder: pathlib.Path):
        self._flags = flags
        self._mode = mode
        self._header = folder / "standard.h"
        self._precompiled = folder / "standard.pch"

    def prepare(self) -> str | None:
        self._header.parent.mkdir(exist_ok=True)
        self._header.write_text("".join(f"#include <{name}>\n" for name in STANDARD_HEADERS))
        return run([*self._flags, "-x", "objective-c++-header", str(self._header),
                    "-o", str(self._precompiled)])

    def compile(self, source: pathlib.Path, *options: str) -> str | None:
        return run([*self._flags, *self._mode, *options, "-include-pch", str(self._precompiled),
                    "-x", "objective-c++", str(source)])
