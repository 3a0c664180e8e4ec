// SPDX-License-Identifier: MIT
// AppKit, in four parts: drawing, views, windows and the application.
#pragma once
#import <AppKit/AppKitApplication.h>
#import <AppKit/AppKitDrawing.h>
#import <AppKit/AppKitViews.h>
#import <AppKit/AppKitWindows.h>
