// SPDX-License-Identifier: MIT
#include "platform/qt/QtApplication.h"

#include <gtest/gtest.h>

#include <QPalette>
#include <QStyle>
#include <QThread>
#include <clocale>
#include <csignal>
#include <memory>

#include "platform/qt/TestApplication.h"
#include "platform/qt/drawing/Colors.h"

namespace zephrine {
namespace {

struct Delegate : ApplicationDelegate {
    std::function<void()> launched;
    int reopened = 0;

    void applicationDidFinishLaunching() override { launched(); }
    bool applicationShouldHandleReopen(bool /*hasVisibleWindows*/) override {
        ++reopened;
        return false;
    }
    void performLaunchOption(LaunchOption /*option*/) override {}
};

struct QtApplicationSignalTest : testing::TestWithParam<int> {};

TEST_P(QtApplicationSignalTest, EndsTheLoopInWhichItWasLaunched) {
    Delegate delegate;
    int launches = 0;
    bool launchedInLoop = false;
    delegate.launched = [&] {
        ++launches;
        launchedInLoop = QThread::currentThread()->loopLevel() > 0;
        testApplication().runLoop().performOnMain([] { std::raise(GetParam()); });
    };
    testApplication().setDelegate(delegate);
    testApplication().run();
    EXPECT_EQ(launches, 1);
    EXPECT_TRUE(launchedInLoop);
}

INSTANTIATE_TEST_SUITE_P(All, QtApplicationSignalTest, testing::Values(SIGTERM, SIGINT, SIGHUP));

TEST(QtApplication, DoesNotLaunchWhenItWasTerminatedBefore) {
    Delegate delegate;
    int launches = 0;
    delegate.launched = [&] {
        ++launches;
        testApplication().terminate();
    };
    testApplication().setDelegate(delegate);
    testApplication().terminate();
    testApplication().run();
    EXPECT_EQ(launches, 0);
    testApplication().run();
    EXPECT_EQ(launches, 1);
}

TEST(QtApplication, KeepsThePointInNumbersThatTheProgramFormats) {
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST(QtApplication, LooksTheSameOnEveryDesktop) {
    EXPECT_FALSE(QApplication::desktopSettingsAware());
    EXPECT_EQ(QApplication::style()->name(), "fusion");
    EXPECT_FALSE(QApplication::isEffectEnabled(Qt::UI_AnimateCombo));
    EXPECT_FALSE(QApplication::quitOnLastWindowClosed());
    EXPECT_FALSE(QApplication::windowIcon().isNull());
}

TEST(QtApplication, ChangesItsPaletteBeforeAnyoneIsToldOfANewAppearance) {
    QtApplication& application = testApplication();
    QColor seen;
    auto alive = std::make_shared<bool>(true);
    application.observeThemeChanged([&seen, watch = std::weak_ptr(alive)] {
        if (!watch.expired()) {
            seen = QApplication::palette().color(QPalette::Window);
        }
    });
    application.appearance().setFallback({Appearance::darkAqua});
    EXPECT_EQ(seen, windowBackground(Appearance::darkAqua));
    application.appearance().setFallback({Appearance::aqua});
    EXPECT_EQ(seen, windowBackground(Appearance::aqua));
}

}  // namespace
}  // namespace zephrine
