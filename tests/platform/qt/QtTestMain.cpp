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
    const auto connection = zephrine::QtApplication::connect({argv[0]}, preferences);
    if (const auto* none = std::get_if<zephrine::NoDesktop>(&connection)) {
        std::fprintf(stderr, "%s\n", none->reason.c_str());
        return 1;
    }
    const auto& owned = std::get<std::unique_ptr<zephrine::QtApplication>>(connection);
    application = owned.get();
    return RUN_ALL_TESTS();
}
