// SPDX-License-Identifier: MIT
// The application object exists before any test: controls and fonts rely on it.
#include <gtest/gtest.h>

#import <AppKit/AppKit.h>

int main(int argc, char** argv) {
    @autoreleasepool {
        testing::InitGoogleTest(&argc, argv);
        [NSApplication.sharedApplication
            setActivationPolicy:NSApplicationActivationPolicyAccessory];
        return RUN_ALL_TESTS();
    }
}
