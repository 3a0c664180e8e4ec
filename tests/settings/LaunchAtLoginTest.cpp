// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "app/ControllerTest.h"

namespace zephrine {
namespace {

class LaunchAtLoginTest : public ControllerTest {
protected:
    void open() {
        launch();
        controller->openSettings();
    }
    FakeCheckBox& box() { return fake<FakeCheckBox>(*controller->settingsWindow->loginButton); }
    std::string line() { return text(controller->settingsWindow->loginStatus); }
    std::vector<FakeWindowFactory::Alert>& alerts() { return application().windowFactory.alerts; }
};

TEST_F(LaunchAtLoginTest, ShowsEachStatusInBoxAndLine) {
    struct Case {
        int status;
        bool on;
        const char* line;
    };
    open();
    for (const Case& expected :
         std::vector<Case>{{0, false, "Start manually whenever you need it."},
                           {1, true, "Ready when you sign in."},
                           {2, true, "Approve Zephrine in System Settings → Login Items."},
                           {3, false, "Start manually whenever you need it."},
                           {7, false, "Start manually whenever you need it."}}) {
        platform.login.current = static_cast<LoginItemStatus>(expected.status);
        controller->updateLoginStatus();
        EXPECT_EQ(box().on, expected.on) << expected.status;
        EXPECT_EQ(line(), expected.line) << expected.status;
    }
}

TEST_F(LaunchAtLoginTest, TickingRegisters) {
    open();
    box().click();
    EXPECT_EQ(platform.login.registrations, 1);
    EXPECT_TRUE(box().on);
    EXPECT_EQ(line(), "Ready when you sign in.");
    EXPECT_TRUE(alerts().empty());
}

TEST_F(LaunchAtLoginTest, UntickingUnregisters) {
    platform.login.current = LoginItemStatus::enabled;
    open();
    box().click();
    EXPECT_EQ(platform.login.unregistrations, 1);
    EXPECT_FALSE(box().on);
    EXPECT_EQ(line(), "Start manually whenever you need it.");
}

TEST_F(LaunchAtLoginTest, ARegistrationThatNeedsApprovalStaysTicked) {
    platform.login.afterRegistering = LoginItemStatus::requiresApproval;
    open();
    box().click();
    EXPECT_TRUE(box().on);
    EXPECT_EQ(line(), "Approve Zephrine in System Settings → Login Items.");
}

TEST_F(LaunchAtLoginTest, AnEnabledItemIsNotRegisteredAgain) {
    platform.login.current = LoginItemStatus::enabled;
    open();
    controller->setLogin(true);
    EXPECT_EQ(platform.login.registrations, 0);
    EXPECT_EQ(line(), "Ready when you sign in.");
}

TEST_F(LaunchAtLoginTest, AnItemThatWasEnabledMeanwhileIsShownSo) {
    open();
    platform.login.current = LoginItemStatus::enabled;
    controller->setLogin(true);
    EXPECT_EQ(platform.login.registrations, 0);
    EXPECT_TRUE(box().on);
    EXPECT_EQ(line(), "Ready when you sign in.");
}

TEST_F(LaunchAtLoginTest, UnregisteringAsksTheSystemWhateverTheStatus) {
    open();
    calls().clear();
    controller->setLogin(false);
    EXPECT_TRUE(calls().inOrder({"unregisterItem", "status"}));
}

TEST_F(LaunchAtLoginTest, WithoutABoxTheBoxIsNotTicked) {
    launch();
    controller->loginChanged();
    EXPECT_EQ(platform.login.registrations, 0);
    EXPECT_EQ(platform.login.unregistrations, 1);
}

TEST_F(LaunchAtLoginTest, AFailureSnapsTheBoxBackBeforeTheAlertAppears) {
    platform.login.error = "Read-only file system";
    open();
    bool onDuringAlert = true;
    application().windowFactory.whileAlert = [&] { onDuringAlert = box().on; };
    box().click();
    EXPECT_FALSE(onDuringAlert);
    ASSERT_EQ(alerts().size(), 1U);
    EXPECT_EQ(alerts()[0].messageText, "Couldn’t update launch at login");
    EXPECT_EQ(alerts()[0].informativeText, "Read-only file system");
}

TEST_F(LaunchAtLoginTest, AFailureToUnregisterShowsTheAlertToo) {
    platform.login.current = LoginItemStatus::enabled;
    platform.login.error = "Operation not permitted";
    open();
    box().click();
    EXPECT_TRUE(box().on);
    ASSERT_EQ(alerts().size(), 1U);
    EXPECT_EQ(alerts()[0].messageText, "Couldn’t update launch at login");
    EXPECT_EQ(alerts()[0].informativeText, "Operation not permitted");
}

TEST_F(LaunchAtLoginTest, TheLaunchOptionRegistersWithoutAWindow) {
    launch({"--enable-login"});
    EXPECT_EQ(platform.login.registrations, 1);
    EXPECT_TRUE(application().windowFactory.windows.empty());
}

TEST_F(LaunchAtLoginTest, TheLaunchOptionLeavesAnEnabledItemAlone) {
    platform.login.current = LoginItemStatus::enabled;
    launch({"--enable-login"});
    EXPECT_EQ(platform.login.registrations, 0);
}

TEST_F(LaunchAtLoginTest, AFailingLaunchOptionShowsTheAlert) {
    platform.login.error = "No space left on device";
    launch({"--enable-login"});
    EXPECT_EQ(alerts().size(), 1U);
}

TEST_F(LaunchAtLoginTest, EveryOpeningShowsTheLiveStatus) {
    open();
    EXPECT_FALSE(box().on);
    platform.login.current = LoginItemStatus::enabled;
    controller->openSettings();
    EXPECT_TRUE(box().on);
}

}  // namespace
}  // namespace zephrine
