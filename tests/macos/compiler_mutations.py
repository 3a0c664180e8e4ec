# SPDX-License-Identifier: MIT
"""Mistakes made on purpose that the compiler has to catch."""
from mutations import Mutation

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
