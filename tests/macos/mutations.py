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


COMPILER = [
    Mutation(
        what="a wrong selector",
        check="arm64",
        source="MacRunLoop.mm",
        old="forMode:",
        new="inMode:",
        because="declares the selector 'addTimer:inMode:'",
    ),
    Mutation(
        what="a method's argument left out",
        check="arm64",
        source="windows/MacWindow.mm",
        old="defer:NO",
        new="",
        because="initWithContentRect:styleMask:backing:'",
    ),
    Mutation(
        what="an argument of the wrong type",
        check="arm64",
        source="MacPreferenceStore.mm",
        old="setDouble:value",
        new="setDouble:nsString(key)",
        because="a parameter of type 'double' with an rvalue of type 'NSString *'",
    ),
    Mutation(
        what="an enumeration's name misspelt",
        check="arm64",
        source="windows/MacPopover.mm",
        old="NSPopoverBehaviorTransient",
        new="NSPopoverBehaviourTransient",
        because="undeclared identifier 'NSPopoverBehaviourTransient'",
    ),
    Mutation(
        what="a selector that no class has",
        check="arm64",
        source="MacApplication.mm",
        old="@selector(runHandler:)",
        new="@selector(runHandlr:)",
        because="-Wundeclared-selector",
    ),
    Mutation(
        what="the name `template` used as a property",
        check="arm64",
        source="drawing/MacDrawing.mm",
        old="[native setTemplate:NO]",
        new="native.template = NO",
        because="expected unqualified-id",
    ),
    Mutation(
        what="an error handed over, not its address",
        check="arm64",
        source="MacLoginItem.mm",
        old="unregisterAndReturnError:&error",
        new="unregisterAndReturnError:error",
        because="with an lvalue of type 'NSError *__strong'",
    ),
    Mutation(
        what="a release under ARC",
        check="arm64",
        source="windows/MacWindowFactory.mm",
        old="[alert runModal];",
        new="[alert runModal]; [alert release];",
        because="declares the selector 'release'",
    ),
    Mutation(
        what="an operation newer than the oldest system, unguarded",
        check="arm64",
        source="MacApplication.mm",
        old="activateIgnoringOtherApps:YES",
        new="activate",
        because="-Wunguarded-availability-new",
    ),
    Mutation(
        what="a deprecated operation called without a word",
        check="newest",
        source="MacApplication.mm",
        old='#pragma clang diagnostic ignored "-Wdeprecated-declarations"',
        new="",
        because="'activateIgnoringOtherApps:' is deprecated",
    ),
    Mutation(
        what="a deprecated operation called after the one that may be",
        check="newest",
        source="MacApplication.mm",
        old="    // The workspace has",
        new="    [application_ activateIgnoringOtherApps:NO];\n    // The workspace has",
        because="'activateIgnoringOtherApps:' is deprecated",
    ),
    Mutation(
        what="a delegate without its protocol",
        check="arm64",
        source="windows/MacPopover.mm",
        old=" <NSPopoverDelegate>",
        new="",
        because="assigning to 'id<NSPopoverDelegate>",
    ),
    Mutation(
        what="a window's delegate without its protocol",
        check="arm64",
        source="windows/MacWindow.mm",
        old=" <NSWindowDelegate>",
        new="",
        because="assigning to 'id<NSWindowDelegate>",
    ),
    Mutation(
        what="a view taken for a content host",
        check="arm64",
        source="windows/MacContentHost.mm",
        old="isHost ? static_cast<ZephrineContentHost*>(before) : nil",
        new="before",
        because="-Wincompatible-pointer-types",
    ),
    Mutation(
        what="a view of the seam handed to AppKit",
        check="arm64",
        source="windows/MacPopover.mm",
        old="setContent:nativeView(view)",
        new="setContent:view",
        because="no viable conversion from 'zephrine::View' to 'NSView *'",
    ),
    Mutation(
        what="Mach's macros seen before the seam's enumeration",
        check="arm64",
        source="MacHostCounters.mm",
        old="#include \"platform/macos/MacHostCounters.h\"",
        new=(
            "#include <mach/mach.h>\n"
            "#include \"platform/macos/MacHostCounters.h\""
        ),
        because="expected identifier",
    ),
    Mutation(
        what="the system's Size in place of the seam's",
        check="arm64",
        source="widgets/MacCanvas.mm",
        old="std::function<void(zephrine::DrawingContext&, zephrine::Size)> _drawingHandler",
        new="std::function<void(zephrine::DrawingContext&, Size)> _drawingHandler",
        because="no viable overloaded '='",
    ),
    Mutation(
        what="a number narrowed without a word",
        check="arm64",
        source="MacHostCounters.mm",
        old="static_cast<int>(NSProcessInfo.processInfo.activeProcessorCount)",
        new="NSProcessInfo.processInfo.activeProcessorCount",
        because="-Wshorten-64-to-32",
    ),
    Mutation(
        what="a constant that does not exist",
        check="arm64",
        source="MacHostCounters.mm",
        old="HOST_VM_INFO64_COUNT",
        new="HOST_VM_INFO64_CNT",
        because="HOST_VM_INFO64_CNT",
    ),
    Mutation(
        what="an operation of the seam misspelt",
        check="arm64",
        source="statusitem/MacStatusItem.mm",
        old="MacStatusItem::setLength",
        new="MacStatusItem::setLenght",
        because="does not match any declaration in 'zephrine::MacStatusItem'",
    ),
    Mutation(
        what="a read-only property set",
        check="arm64",
        source="windows/MacPopover.mm",
        old="[popover_ close];",
        new="popover_.shown = NO;",
        because="assignment to readonly property",
    ),
    Mutation(
        what="nil where none is allowed",
        check="arm64",
        source="widgets/MacImageView.mm",
        old="imageNamed:nsString(name)",
        new="imageNamed:nil",
        because="-Wnonnull",
    ),
    Mutation(
        what="bool taken for BOOL",
        check="x86_64",
        source="drawing/MacDrawing.mm",
        old=(
            "^BOOL(NSRect /*whole*/) {\n"
            "                                MacDrawingContext context;\n"
            "                                return drawingHandler(context) ? YES : NO;"
        ),
        new=(
            "^(NSRect /*whole*/) {\n"
            " MacDrawingContext context; return drawingHandler(context);"
        ),
        because="an rvalue of type 'bool (^)(NSRect)'",
    ),
    Mutation(
        what="the system's macro `require` let in",
        check="arm64",
        source="widgets/MacView.mm",
        old='#include "platform/macos/widgets/MacView.h"',
        new=(
            "#undef __ASSERT_MACROS_DEFINE_VERSIONS_WITHOUT_UNDERSCORES\n"
            '#include "platform/macos/widgets/MacView.h"'
        ),
        because="provided to function-like macro",
    ),
]

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
