# SPDX-License-Identifier: MIT
"""Mistakes made on purpose, each of which a check has to catch. A check that has never failed
proves nothing."""
from dataclasses import dataclass


@dataclass(frozen=True)
class Mutation:
    """`old` becomes `new` in `source`; `check` is what must then fail."""

    what: str
    check: str  # "arm64", "x86_64" or "newest" for the compiler, "analyzer", "operations", "link"
    source: str
    old: str
    new: str
    because: str  # stands in the message: it has to fail for this reason and no other


ANALYZER = [
    Mutation(
        what="a copied dictionary never released",
        check="analyzer",
        source="MacPlatform.mm",
        old="CFRelease(session);",
        new="",
        because="leak of an object stored into 'session'",
    ),
    Mutation(
        what="a property not handed over to ARC",
        check="analyzer",
        source="MacGPURegistry.mm",
        old="__bridge_transfer id",
        new="__bridge id",
        because="leak of an object stored into 'object'",
    ),
    Mutation(
        what="the consumed matching dictionary released again",
        check="analyzer",
        source="MacGPURegistry.mm",
        old=(
            "if (::IOServiceGetMatchingServices(kIOMainPortDefault,\n"
            "                                       ::IOServiceMatching(std::string(name).c_str()),\n"
            "                                       &iterator) != KERN_SUCCESS) {"
        ),
        new=(
            "const CFDictionaryRef matching = ::IOServiceMatching(std::string(name).c_str());\n"
            "const auto result =\n"
            "    ::IOServiceGetMatchingServices(kIOMainPortDefault, matching, &iterator);\n"
            "CFRelease(matching);\n"
            "if (result != KERN_SUCCESS) {"
        ),
        because="used after it is released",
    ),
    Mutation(
        what="a dictionary released twice",
        check="analyzer",
        source="MacPlatform.mm",
        old="CFRelease(session);",
        new="CFRelease(session); CFRelease(session);",
        because="used after it is released",
    ),
]

# Texts that compile either way.
OPERATIONS = [
    Mutation(
        what="a popover that does not take its content in when it is shown",
        check="operations",
        source="windows/MacPopover.mm",
        old="    [host_ take];\n",
        new="",
        because="MacPopover.mm/[host_~take] is called nowhere",
    ),
    Mutation(
        what="a window that does not take its content in when it is shown",
        check="operations",
        source="windows/MacWindow.mm",
        old="    [host_ take];\n",
        new="",
        because="MacWindow.mm/[host_~take] is called nowhere",
    ),
    Mutation(
        what="a window that does not return its content when it is closed",
        check="operations",
        source="windows/MacWindow.mm",
        old="[host_ giveBack];",
        new="",
        because="MacWindow.mm/[host_~giveBack] is called nowhere",
    ),
    Mutation(
        what="an application that only asks for the activation",
        check="operations",
        source="MacApplication.mm",
        old="[application_ activateIgnoringOtherApps:YES];",
        new="if (@available(macOS 14.0, *)) { [application_ activate]; }",
        because="activateIgnoringOtherApps:YES is called nowhere",
    ),
    Mutation(
        what="an activity that says that the user waits for it",
        check="operations",
        source="MacApplication.mm",
        old="NSActivityBackground",
        new="NSActivityUserInitiatedAllowingIdleSystemSleep",
        because="beginActivityWithOptions:NSActivityBackground is called nowhere",
    ),
    Mutation(
        what="a label that starts with its line breaks",
        check="operations",
        source="widgets/MacLabel.mm",
        old="labelWithString:nsLine(text)",
        new="labelWithString:nsString(text)",
        because="labelWithString:nsLine( is called nowhere",
    ),
    Mutation(
        what="a label that is given its line breaks later",
        check="operations",
        source="widgets/MacLabel.mm",
        old="field_.stringValue = nsLine(text)",
        new="field_.stringValue = nsString(text)",
        because="field_.stringValue~=~nsLine( is called nowhere",
    ),
]

# Declared wrongly as well, as a mistake in the declarations would be.
LINKER = [
    Mutation(
        what="a function that the system does not have",
        check="link",
        source="MacProcessTable.mm",
        old="namespace zephrine {",
        new=(
            "extern \"C\" int proc_nam(int, void*, uint32_t);\n"
            "#define proc_name_ proc_nam\n"
            "namespace zephrine {\n"
            "int misspelt() { return ::proc_name_(0, nullptr, 0); }"
        ),
        because="undefined symbol: _proc_nam",
    ),
    Mutation(
        what="a class that the system does not have",
        check="link",
        source="MacFormatting.mm",
        old="namespace zephrine {",
        new=(
            "@interface NSByteFormatter : NSObject\n"
            "@end\n"
            "namespace zephrine {\n"
            "NSObject* misspelt() { return [[NSByteFormatter alloc] init]; }"
        ),
        because="undefined symbol: _OBJC_CLASS_$_NSByteFormatter",
    ),
]

# Texts of Info.plist.in.
PROPERTIES = [
    ("an application with an icon in the Dock", "<key>LSUIElement</key>\n    <true/>", ""),
    ("a flag written as a text", "<true/>", "<string>true</string>"),
    ("another oldest system", "13.0", "12.0"),
    ("another identifier", "org.zephrine.Zephrine", "org.example.Zephrine"),
    ("no icon", "AppIcon", ""),
    ("a tag that is not closed", "</dict>", ""),
]
