#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The operations of the system that the back end is there to call. Run by itself it prints where
each one is called; the check fails when one is called nowhere."""
import pathlib
import re

from apple_build import BACK_END

OPERATIONS = {
    "The application": """NSApplication.sharedApplication application_.delegate setActivationPolicy:
        [application_~run] terminate: activateIgnoringOtherApps:YES
        applicationDidFinishLaunching: applicationShouldHandleReopen: applicationIconImage
        beginActivityWithOptions:NSActivityBackground endActivity:""",
    "Notifications": """NSWorkspace.sharedWorkspace.notificationCenter NSWorkspaceDidWakeNotification
        NSDistributedNotificationCenter AppleInterfaceThemeChangedNotification""",
    "Timers and threads": """timerWithTimeInterval: timer.tolerance addTimer: NSRunLoopCommonModes
        invalidate dispatch_get_main_queue QOS_CLASS_UTILITY dispatch_async""",
    "Preferences": """NSUserDefaults.standardUserDefaults doubleForKey: boolForKey: setDouble:
        setInteger: setBool:""",
    "Host counters": """::mach_host_self ::host_statistics( ::host_page_size( ::host_statistics64(
        ::sysctlbyname( ::mach_port_deallocate physicalMemory; systemUptime; activeProcessorCount)""",
    "GPU registry": """::IOServiceMatching( ::IOServiceGetMatchingServices( ::IOIteratorNext(
        ::IORegistryEntryCreateCFProperty( ::IOObjectRelease(""",
    "Processes": """::proc_listallpids( ::proc_pid_rusage( ::proc_name( ::mach_absolute_time(
        ::getpid(""",
    "Formatting": "stringFromByteCount: localizedStringFromNumber:",
    "Login item": """SMAppService.mainAppService.status registerAndReturnError:
        unregisterAndReturnError:""",
    "Status item": """statusItemWithLength: removeStatusItem: autosaveName item_.length item_.button
        effectiveAppearance bestMatchFromAppearancesWithNames: NSAppearanceNameDarkAqua
        button_.toolTip button_.accessibilityLabel button_.image button_.target button_.action""",
    "Drawing": """imageWithSize: setTemplate:NO bezierPathWithOvalInRect: NSRectFillUsingOperation
        moveToPoint: lineToPoint: lineWidth lineJoinStyle [native~stroke] setFill] setStroke]
        drawAtPoint: sizeWithAttributes: systemFontOfSize: monospacedDigitSystemFontOfSize:
        monospacedSystemFontOfSize: labelColor secondaryLabelColor quaternaryLabelColor
        systemBlueColor systemGreenColor systemOrangeColor systemPurpleColor systemRedColor
        whiteColor blackColor""",
    "Controls": """labelWithString:nsLine( field_.stringValue~=~nsLine( field_.font field_.textColor field_.alignment lineBreakMode
        imageNamed: buttonWithTitle: NSBezelStyleRounded checkboxWithTitle: button_.state
        pullsDown:NO selectItemAtIndex: indexOfSelectedItem segmentedControlWithLabels:
        selectedSegment NSBoxSeparator drawRect: needsDisplay addSubview: accessibilityValue""",
    "Windows": """NSPopoverBehaviorTransient popover_.delegate popover_.contentViewController
        popover_.contentSize showRelativeToRect: NSRectEdgeMinY popover_.shown performClose:
        popoverDidClose: makeKeyWindow initWithContentRect: NSWindowStyleMaskClosable
        window_.title releasedWhenClosed makeKeyAndOrderFront: [window_~center] window_.visible
        window_.delegate window_.contentView windowWillClose: MacPopover.mm/[host_~take]
        MacPopover.mm/[host_~giveBack] MacWindow.mm/[host_~take] MacWindow.mm/[host_~giveBack]""",
    "Alert": "alert.messageText alert.informativeText runModal]",
}


def back_end_texts() -> dict[pathlib.Path, str]:
    return {source: source.read_text() for source in sorted(BACK_END.rglob("*.mm"))}


def places(operation: str, texts: dict[pathlib.Path, str]) -> list[str]:
    """Where the sources name it, outside comments; "~" stands for a blank, and what comes before a
    "/" for the one file that has to name it."""
    *only, name = operation.split("/")
    pattern = re.compile(r"(?<!\w)" + re.escape(name.replace("~", " ")))
    return [
        f"{source.relative_to(BACK_END)}:{number}"
        for source, text in texts.items() if not only or source.name in only
        for number, line in enumerate(text.splitlines(), 1)
        if pattern.search(line.split("//")[0])
    ]


def missing_operations(texts: dict[pathlib.Path, str]) -> list[str]:
    return [
        f"{operation} is called nowhere"
        for names in OPERATIONS.values() for operation in names.split()
        if not places(operation, texts)
    ]


def main() -> None:
    texts = back_end_texts()
    for group, names in OPERATIONS.items():
        print(f"\n{group}\n")
        print("| operation | where, in src/platform/macos |\n|---|---|")
        for operation in names.split():
            name = operation.split("/")[-1].replace("~", " ").lstrip(":").strip("();")
            print(f"| `{name}` | {', '.join(places(operation, texts)[:3])} |")


if __name__ == "__main__":
    main()
