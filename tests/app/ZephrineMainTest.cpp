// SPDX-License-Identifier: MIT
#include "app/ZephrineMain.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <iostream>

#include "fakes/FakePlatform.h"

namespace zephrine {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

class ZephrineMainTest : public testing::Test {
protected:
    /// Runs the program with `options`; what it printed is in `output` and `errors`.
    int run(std::vector<std::string> options) {
        options.insert(options.begin(), "zephrine");
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const int status = ZephrineMain::main(platform, options);
        output = testing::internal::GetCapturedStdout();
        errors = testing::internal::GetCapturedStderr();
        return status;
    }

    FakePlatform platform;
    std::string output;
    std::string errors;
};

TEST_F(ZephrineMainTest, PrintsTheLoginStatusAndNothingElse) {
    platform.login.current = LoginItemStatus::enabled;
    EXPECT_EQ(run({"--login-status"}), 0);
    EXPECT_EQ(output, "Launch at login status: 1\n");
    EXPECT_EQ(platform.applicationsAskedFor, 0);
}

TEST_F(ZephrineMainTest, PrintsEveryLoginStatusAsItsNumber) {
    for (const int status : {0, 1, 2, 3}) {
        platform.login.current = static_cast<LoginItemStatus>(status);
        run({"--login-status"});
        EXPECT_EQ(output, "Launch at login status: " + std::to_string(status) + "\n");
    }
}

TEST_F(ZephrineMainTest, TheLoginStatusWinsOverLaunchOptions) {
    EXPECT_EQ(run({"--show-dashboard", "--login-status", "--inspect"}), 0);
    EXPECT_EQ(output, "Launch at login status: 0\n");
    EXPECT_EQ(platform.applicationsAskedFor, 0);
}

TEST_F(ZephrineMainTest, TheSelfTestWinsOverTheLoginStatus) {
    // No ticks elapse on the fake machine, so the self-test ends in its fatal error.
    platform.table.processes[1];
    EXPECT_DEATH(
        {
            std::cout.rdbuf(std::cerr.rdbuf());  // what a death test looks at
            ZephrineMain::main(platform, {"zephrine", "--login-status", "--self-test"});
        },
        AllOf(HasSubstr("Unable to read live CPU or RAM statistics"),
              Not(HasSubstr("Launch at login status"))));
}

TEST_F(ZephrineMainTest, APassingSelfTestPrintsItsTwoLinesAndNothingElse) {
    platform.table.processes[1];
    platform.host.ticksRun = true;
    EXPECT_EQ(run({"--login-status", "--show-dashboard", "--self-test", "anything"}), 0);
    EXPECT_EQ(output,
              "GPU: unavailable; memory pressure: Normal; readable processes: 1\n"
              "Checks passed. Live CPU: 30.0%, RAM: 0.0% (0.0 / 16.0 GB)\n");
    EXPECT_EQ(errors, "");
    EXPECT_EQ(platform.applicationsAskedFor, 0);
}

TEST_F(ZephrineMainTest, UnknownArgumentsDoNotChangeTheLoginStatus) {
    EXPECT_EQ(run({"anything", "--login-status", "--unknown"}), 0);
    EXPECT_EQ(output, "Launch at login status: 0\n");
}

TEST_F(ZephrineMainTest, AnythingElseStartsTheApplication) {
    for (const char* option : {"--Login-Status", "--login-status=1", "-login-status",
                               "--self-test=yes", "--SELF-TEST", "anything"}) {
        platform.application.runs = 0;
        EXPECT_EQ(run({option}), 0) << option;
        EXPECT_EQ(platform.application.runs, 1) << option;
        EXPECT_EQ(output, "") << option;
    }
}

TEST_F(ZephrineMainTest, RunsAsAnAccessoryWithAControllerThatEndsWithTheLoop) {
    EXPECT_EQ(run({}), 0);
    EXPECT_TRUE(platform.application.isAccessory);
    EXPECT_TRUE(platform.calls.inOrder({"setDelegate", "setAccessoryActivationPolicy", "run"}));
    EXPECT_TRUE(platform.application.loop.timers.empty());
}

TEST_F(ZephrineMainTest, SaysInOneLineWhyThereIsNoDesktop) {
    platform.hasDesktop = false;
    EXPECT_EQ(run({}), 1);
    EXPECT_EQ(errors, "zephrine: there is no desktop\n");
    EXPECT_EQ(output, "");
}

TEST_F(ZephrineMainTest, EndsWellAndWithoutAWordWhenTheProgramRunsAlready) {
    platform.runsAlready = true;
    EXPECT_EQ(run({"--show-settings"}), 0);
    EXPECT_EQ(platform.application.runs, 0);
    EXPECT_EQ(errors + output, "");
}

}  // namespace
}  // namespace zephrine
