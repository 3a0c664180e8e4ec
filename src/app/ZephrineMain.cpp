// SPDX-License-Identifier: MIT
#include "app/ZephrineMain.h"

#include <algorithm>
#include <chrono>
#include <iostream>
#include <memory>
#include <thread>
#include <variant>

#include "app/AppDelegate.h"
#include "app/SelfCheck.h"

namespace zephrine {

namespace {

void runSelfCheck(Platform& platform) {
    const auto processTable = platform.processTable();
    selfCheck({.host = platform.hostCounters(),
               .gpuRegistry = platform.gpuRegistry(),
               .processTable = *processTable,
               .sleepForTimeInterval =
                   [](double seconds) {
                       std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
                   },
               .output = std::cout,
               .errors = std::cerr});
}

void printLoginStatus(Platform& platform) {
    std::cout << "Launch at login status: "
              << std::to_string(static_cast<std::int32_t>(platform.loginItem().status())) << '\n';
}

int runApplication(Platform& platform, const std::vector<std::string>& arguments) {
    const auto connection = platform.sharedApplication();
    if (const auto* none = std::get_if<NoDesktop>(&connection)) {
        std::cerr << "zephrine: " << none->reason << '\n';
        return 1;
    }
    if (std::holds_alternative<RunsAlready>(connection)) {
        return 0;
    }
    Application* const application = std::get<Application*>(connection);
    const auto controller = std::make_shared<AppDelegate>(platform, *application, arguments);
    application->setDelegate(*controller);
    application->setAccessoryActivationPolicy();
    application->run();
    return 0;
}

}  // namespace

int ZephrineMain::main(Platform& platform, const std::vector<std::string>& arguments) {
    const auto has = [&arguments](const char* option) {
        return std::find(arguments.begin(), arguments.end(), option) != arguments.end();
    };
    if (has("--self-test")) {
        runSelfCheck(platform);
        return 0;
    }
    if (has("--login-status")) {
        printLoginStatus(platform);
        return 0;
    }
    return runApplication(platform, arguments);
}

}  // namespace zephrine
