#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The operations of the system that the back end is there to call. Run by itself it prints where
each one is called; the check fails when one is called nowhere."""
import re

from apple_build import BACK_END

OPERATIONS = {
    "The application": """NSApplication.sharedApplication application_.delegate setActivationPolicy:
        [application_~run] terminate: activateIgnoringOtherApps: [application_~activate]
        applicationDidFinishLaunching: applicationShouldHandleReopen: applicationIconImage
        beginActivityWithOptions:""",
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
    "Controls": """labelWithString: field_.font field_.textColor field_.alignment lineBreakMode
        imageNamed: buttonWithTitle: NSBezelStyleRounded checkboxWithTitle: button_.state
        pullsDown:NO selectItemAtIndex: indexOfSelectedItem segmentedControlWithLabels:
        selectedSegment NSBoxSeparator drawRect: needsDisplay addSubview: accessibilityValue""",
    "Windows": """NSPopoverBehaviorTransient popover_.delegate popover_.contentViewController
        popover_.contentSize showRelativeToRect: NSRectEdgeMinY popover_.shown performClose:
        popoverDidClose: makeKeyWindow initWithContentRect: NSWindowStyleMaskClosable
        window_.title releasedWhenClosed makeKeyAndOrderFront: [window_~center] window_.visible""",
    "Alert": "alert.messageText alert.informativeText runModal]",
}


def places(operation: str) -> list[str]:
    """Where the sources name it, outside comments; "~" stands for a blank."""
    pattern = re.compile(r"(?<!\w)" + re.escape(operation.replace("~", " ")))
    return [
        f"{source.relative_to(BACK_END)}:{number}"
        for source in sorted(BACK_END.rglob("*.mm"))
        for number, line in enumerate(source.read_text().splitlines(), 1)
        if pattern.search(line.split("//")[0])
    ]


def missing_operations() -> list[str]:
    return [
        f"{operation} is called nowhere"
        for names in OPERATIONS.values() for operation in names.split() if not places(operation)
    ]


def main() -> None:
    for group, names in OPERATIONS.items():
        print(f"\n{group}\n")
        print("| operation | where, in src/platform/macos |\n|---|---|")
        for operation in names.split():
            name = operation.replace("~", " ").lstrip(":").strip("();")
            print(f"| `{name}` | {', '.join(places(operation)[:3])} |")


if __name__ == "__main__":
    main()
