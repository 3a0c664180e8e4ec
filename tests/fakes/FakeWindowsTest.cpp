// SPDX-License-Identifier: MIT
// The fake popover and windows keep to what the real ones do: the core's tests rely on it.
#include "fakes/FakeWindows.h"

#include <gtest/gtest.h>

#include "contract/WindowsContract.h"
#include "fakes/FakeStatusBar.h"

namespace zephrine {
namespace {

struct FakeWindowsHarness {
    WindowFactory& windows() { return windowFactory; }
    WidgetFactory& widgets() { return widgetFactory; }
    StatusItemButton& button() { return statusButton; }
    const void* placeOf(View& view) { return fake<FakeView>(view).place.lock().get(); }
    void dismiss(View& /*view*/) { windowFactory.popover->performClose(); }
    void closeWindowOf(View& /*view*/) { windowFactory.windows.back()->close(); }
    template <typename Condition>
    void waitFor(Condition /*condition*/) {}

    FakeWidgetFactory widgetFactory;
    FakeWindowFactory windowFactory;
    FakeStatusItemButton statusButton;
};

INSTANTIATE_TYPED_TEST_SUITE_P(Fake, WindowsContract, FakeWindowsHarness);

TEST(FakePopover, ShowsNothingAndTakesNothingWhileTheItemIsHidden) {
    FakeWindowsHarness harness;
    const auto content = harness.widgets().makeView({0, 0, 360, 500});
    const auto popover = harness.windows().makePopover();
    const auto window = harness.windows().makeWindow("Inspection", {360, 500});
    popover->setContentView(*content);
    window->setContentView(*content);
    const void* const inWindow = harness.placeOf(*content);
    harness.windowFactory.popover->itemIsHidden = true;
    popover->showRelativeTo(harness.button());
    EXPECT_FALSE(popover->isShown());
    EXPECT_EQ(harness.placeOf(*content), inWindow);
}

}  // namespace
}  // namespace zephrine
