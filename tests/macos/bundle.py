# SPDX-License-Identifier: MIT
"""What the built Zephrine.app must hold for the system to take it as what it is."""
import pathlib
import plistlib
import re
import struct


def expected_properties(root: pathlib.Path) -> dict[str, object]:
    project = (root / "CMakeLists.txt").read_text()
    version = re.search(r"project\(zephrine VERSION ([0-9.]+)", project)
    assert version
    return {
        "CFBundleExecutable": "Zephrine",
        "CFBundleIconFile": "AppIcon",
        "CFBundleIdentifier": "org.zephrine.Zephrine",
        "CFBundleInfoDictionaryVersion": "6.0",
        "CFBundleName": "Zephrine",
        "CFBundlePackageType": "APPL",
        "CFBundleShortVersionString": version[1],
        "CFBundleVersion": version[1],
        "LSMinimumSystemVersion": "13.0",
        "LSUIElement": True,
        "NSHighResolutionCapable": True,
        "NSPrincipalClass": "NSApplication",
    }


def property_faults(text: bytes, root: pathlib.Path) -> list[str]:
    try:
        properties = plistlib.loads(text, fmt=plistlib.FMT_XML)
    except Exception as error:  # the parser raises many kinds
        return [f"Info.plist is no property list: {error}"]
    return [
        f"{key} is {properties.get(key)!r}, not {value!r}"
        for key, value in expected_properties(root).items()
        if properties.get(key) != value or type(properties.get(key)) is not type(value)
    ]


def icon_faults(data: bytes) -> list[str]:
    """Walks the elements: each must be a PNG that ends where its length says."""
    if data[:4] != b"icns" or struct.unpack(">I", data[4:8])[0] != len(data):
        return ["AppIcon.icns has a wrong header"]
    offset, kinds = 8, []
    while offset < len(data):
        kind, length = struct.unpack(">4sI", data[offset : offset + 8])
        picture = data[offset + 8 : offset + length]
        if not (picture.startswith(b"\x89PNG") and picture.endswith(b"IEND\xaeB`\x82")):
            return [f"element {kind!r} of AppIcon.icns is no whole PNG"]
        kinds.append(kind)
        offset += length
    missing = {b"ic11", b"ic12", b"ic07", b"ic13", b"ic08"} - set(kinds)
    return [f"AppIcon.icns lacks {sorted(missing)}"] if missing else []


def bundle_faults(bundle: pathlib.Path, root: pathlib.Path) -> list[str]:
    contents = bundle / "Contents"
    program = contents / "MacOS/Zephrine"
    icon = contents / "Resources/AppIcon.icns"
    properties = contents / "Info.plist"
    faults = [f"{path} is missing" for path in (program, icon, properties) if not path.is_file()]
    if faults:
        return faults
    # Mach-O, 64 bits, little-endian; the processor is the second word.
    magic, processor = struct.unpack("<II", program.read_bytes()[:8])
    if (magic, processor) != (0xFEEDFACF, 0x0100000C):
        faults.append("the program is no Mach-O file for arm64")
    faults += property_faults(properties.read_bytes(), root)
    faults += icon_faults(icon.read_bytes())
    return faults
