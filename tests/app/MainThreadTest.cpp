// SPDX-License-Identifier: MIT
// What belongs to the main thread ends the process when it is asked for on another one, before it
// has read, written or shown anything.
#include "platform/MainThread.h"

#include <gtest/gtest.h>

#include <iostream>
#include <thread>

#include "app/ControllerTest.h"

namespace zephrine {
namespace {

class MainThreadDeathTest : public ControllerTest {
protected:
    MainThreadDeathTest() {
        launch();
        controller->openSettings();
    }

    template <typename Operation>
    void expectStopElsewhere(Operation operation) {
        const auto elsewhere = [&] {
            calls().echoTo(std::cerr);
            std::thread(operation).join();
        };
        EXPECT_DEATH(elsewhere(), "^$");
    }
    SettingsWindow& settings() { return *controller->settingsWindow; }
};

TEST(MainThread, LetsTheThreadThatMadeItPass) {
    const MainThread here;
    here.requireCurrent();
    std::thread([] { MainThread().requireCurrent(); }).join();
}

TEST_F(MainThreadDeathTest, GuardsTheStatusItem) {
    expectStopElsewhere([this] { controller->updateStatusItem(); });
}

TEST_F(MainThreadDeathTest, GuardsTheDrawingOfThePicture) {
    RecordingContext context;
    context.calls = calls();
    const Image square = button().image.square(22);
    expectStopElsewhere([&] { button().image.wide.drawingHandler(context); });
    expectStopElsewhere([&] { square.drawingHandler(context); });
}

TEST_F(MainThreadDeathTest, GuardsTheDashboardsLayoutAndTexts) {
    Dashboard& dashboard = *controller->dashboard;
    Dashboard early(application(), platform.texts);
    expectStopElsewhere([&] { early.loadView(); });
    expectStopElsewhere([&] { dashboard.update({}, {}, {}, MemoryPressure::normal, {}, 1); });
    expectStopElsewhere([&] { dashboard.sortProcesses(); });
}

TEST_F(MainThreadDeathTest, GuardsTheDashboardsButtons) {
    Dashboard ownerless(application(), platform.texts);
    expectStopElsewhere([&] { ownerless.openSettings(); });
    expectStopElsewhere([&] { ownerless.quitApp(); });
}

TEST_F(MainThreadDeathTest, GuardsTheSettingsAndTheirChoices) {
    expectStopElsewhere([this] { controller->openSettings(); });
    expectStopElsewhere([this] { controller->ramChanged(*settings().ramDisplay); });
    expectStopElsewhere([this] { controller->fontChanged(*settings().fontSize); });
    expectStopElsewhere([this] { controller->intervalChanged(*settings().refreshInterval); });
    expectStopElsewhere([this] { controller->loginChanged(); });
}

}  // namespace
}  // namespace zephrine
