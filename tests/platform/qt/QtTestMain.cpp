// SPDX-License-Identifier: MIT
// Runs the tests inside one application object, on Qt's platform without a screen.
#include <gtest/gtest.h>

#include <cstdio>

#include "fakes/FakeServices.h"
#include "platform/qt/TestApplication.h"

namespace {

zephrine::QtApplication* application = nullptr;

}  // namespace

zephrine::QtApplication& zephrine::testApplication() {
    return *application;
}

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The user's own are no business of tests.
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    qputenv("DBUS_SYSTEM_BUS_ADDRESS", "disabled:");
    zephrine::FakePreferenceStore preferences;
    std::string whyNot;
    const auto owned = zephrine::QtApplication::connect({argv[0]}, preferences, whyNot);
    if (!owned) {
        std::fprintf(stderr, "%s\n", whyNot.c_str());
        return 1;
    }
    application = owned.get();
    return RUN_ALL_TESTS();
}
