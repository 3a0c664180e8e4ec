// SPDX-License-Identifier: MIT
// What the popover and the windows of every back end keep to. A harness gives a suite its factories
// as `windows()` and `widgets()`, and as `button()` that of an item on the screen. It says where a
// content view stands, by whatever tells hosts apart: `placeOf(View&)`, null when it is nowhere. It
// does what a user does: `dismiss(view)` closes the popover that the view stands in as the Escape
// key does, `closeWindowOf(view)` the window as its close button does. What takes its time has
// happened when `waitFor(condition)` returns, or never will.
//
// Use: INSTANTIATE_TYPED_TEST_SUITE_P(Mine, WindowsContract, MyHarness);
#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "platform/Windows.h"

namespace zephrine {

template <typename Harness>
struct WindowsContract : testing::Test {
    static constexpr Rect frame{0, 0, 360, 500};
    Harness harness;
    std::unique_ptr<View> content = harness.widgets().makeView(frame);
    std::unique_ptr<Popover> popover = harness.windows().makePopover();
    std::unique_ptr<Window> window = harness.windows().makeWindow("Inspection", frame.size());
    int closed = 0;

    WindowsContract() {
        popover->setContentSize(frame.size());
        popover->setDidCloseHandler([this] { ++closed; });
    }
    const void* place() { return harness.placeOf(*content); }
    /// Hands the content to `host` and says where it stands then.
    template <typename Host>
    const void* handTo(Host& host) {
        host->setContentView(*content);
        return place();
    }
    void show() { popover->showRelativeTo(harness.button()); }
    void waitForClosing(int times) {
        harness.waitFor([&] { return closed >= times; });
    }
};
TYPED_TEST_SUITE_P(WindowsContract);

TYPED_TEST_P(WindowsContract, AViewStandsInTheHostThatWasGivenItLast) {
    EXPECT_EQ(this->place(), nullptr);
    const void* const inPopover = this->handTo(this->popover);
    EXPECT_NE(inPopover, nullptr);
    const void* const inWindow = this->handTo(this->window);
    EXPECT_NE(inWindow, nullptr);
    EXPECT_NE(inWindow, inPopover);
    EXPECT_EQ(this->handTo(this->popover), inPopover);
    EXPECT_EQ(this->handTo(this->popover), inPopover);
    EXPECT_EQ(this->content->frame(), this->frame);
}

TYPED_TEST_P(WindowsContract, AShownPopoverBorrowsItsContentFromTheWindowThatHasIt) {
    const void* const inPopover = this->handTo(this->popover);
    const void* const inWindow = this->handTo(this->window);
    this->window->makeKeyAndOrderFront();
    const std::function<void()> waysToClose[]{
        [this] { this->popover->performClose(); },
        [this] { this->harness.dismiss(*this->content); },
    };
    int times = 0;
    for (const auto& close : waysToClose) {
        this->show();
        EXPECT_TRUE(this->popover->isShown());
        EXPECT_EQ(this->place(), inPopover);
        close();
        this->waitForClosing(++times);
        EXPECT_EQ(this->place(), inWindow);
        EXPECT_TRUE(this->window->isVisible());
    }
    EXPECT_EQ(this->content->frame(), this->frame);
}

TYPED_TEST_P(WindowsContract, APopoverHasItsContentEachTimeAlthoughAWindowHadIt) {
    const void* const inPopover = this->handTo(this->popover);
    this->handTo(this->window);
    this->window->makeKeyAndOrderFront();
    this->harness.closeWindowOf(*this->content);
    for (const int times : {1, 2}) {
        this->show();
        EXPECT_EQ(this->place(), inPopover);
        this->popover->performClose();
        this->waitForClosing(times);
    }
}

TYPED_TEST_P(WindowsContract, AClosedWindowReturnsItsContentAndTakesItInWhenItIsShownAgain) {
    const void* const inPopover = this->handTo(this->popover);
    const void* const inWindow = this->handTo(this->window);
    for (int times = 0; times < 2; ++times) {
        this->window->makeKeyAndOrderFront();
        EXPECT_EQ(this->place(), inWindow);
        this->harness.closeWindowOf(*this->content);
        EXPECT_FALSE(this->window->isVisible());
        EXPECT_EQ(this->place(), inPopover);
    }
}

TYPED_TEST_P(WindowsContract, AViewOutlivesItsHosts) {
    const void* const inPopover = this->handTo(this->popover);
    this->handTo(this->window);
    this->window->makeKeyAndOrderFront();
    this->window.reset();
    EXPECT_EQ(this->place(), nullptr);
    this->show();
    EXPECT_EQ(this->place(), inPopover);
    this->popover.reset();
    EXPECT_EQ(this->place(), nullptr);
    EXPECT_EQ(this->closed, 0) << "nobody is told of the end of a popover";
    this->window = this->harness.windows().makeWindow("Another", this->frame.size());
    EXPECT_NE(this->handTo(this->window), nullptr);
    EXPECT_EQ(this->content->frame(), this->frame);
}

TYPED_TEST_P(WindowsContract, AHostReturnsNothingToOneThatHasGone) {
    const void* const inPopover = this->handTo(this->popover);
    this->handTo(this->window);
    this->show();
    this->window.reset();
    this->popover->performClose();
    this->waitForClosing(1);
    EXPECT_EQ(this->place(), inPopover);
}

TYPED_TEST_P(WindowsContract, AHostThatWasGivenAnotherViewKeepsThat) {
    const auto other = this->harness.widgets().makeView(this->frame);
    this->handTo(this->popover);
    this->handTo(this->window);
    this->show();
    this->window->setContentView(*other);
    const void* const ofOther = this->harness.placeOf(*other);
    EXPECT_NE(ofOther, nullptr);
    this->popover->performClose();
    this->waitForClosing(1);
    EXPECT_EQ(this->harness.placeOf(*other), ofOther);
    EXPECT_NE(this->place(), ofOther);
    this->handTo(this->window);
    EXPECT_EQ(this->harness.placeOf(*other), nullptr) << "what stood there leaves";
}

TYPED_TEST_P(WindowsContract, AHostReturnsNothingToOneThatWasGivenAnotherView) {
    const auto other = this->harness.widgets().makeView(this->frame);
    const auto another = this->harness.windows().makeWindow("Another", this->frame.size());
    const void* const inPopover = this->handTo(this->popover);
    this->handTo(this->window);
    this->show();
    this->window->setContentView(*other);
    another->setContentView(*other);
    const void* const ofOther = this->harness.placeOf(*other);
    this->popover->performClose();
    this->waitForClosing(1);
    EXPECT_EQ(this->place(), inPopover);
    EXPECT_EQ(this->harness.placeOf(*other), ofOther) << "nor does that one take it back";
}

TYPED_TEST_P(WindowsContract, APopoverTellsOnceThatItHasClosedWhenAllIsInPlaceAgain) {
    this->handTo(this->popover);
    const void* const inWindow = this->handTo(this->window);
    bool shownThen = true;
    const void* placeThen = nullptr;
    this->popover->setDidCloseHandler([&] {
        ++this->closed;
        shownThen = this->popover->isShown();
        placeThen = this->place();
    });
    this->show();
    EXPECT_EQ(this->closed, 0);
    this->popover->performClose();
    this->popover->performClose();
    this->waitForClosing(1);
    EXPECT_EQ(this->closed, 1);
    EXPECT_FALSE(shownThen);
    EXPECT_EQ(placeThen, inWindow);
}

TYPED_TEST_P(WindowsContract, APopoverThatIsNotShownHasNothingToClose) {
    this->handTo(this->popover);
    const void* const inWindow = this->handTo(this->window);
    EXPECT_FALSE(this->popover->isShown());
    this->popover->performClose();
    EXPECT_EQ(this->closed, 0);
    EXPECT_EQ(this->place(), inWindow);
}

TYPED_TEST_P(WindowsContract, APopoverClosesWithoutAHandler) {
    this->handTo(this->popover);
    const void* const inWindow = this->handTo(this->window);
    this->popover->setDidCloseHandler({});
    this->show();
    this->popover->performClose();
    this->harness.waitFor([&] { return this->place() == inWindow; });
    EXPECT_EQ(this->place(), inWindow);
    EXPECT_FALSE(this->popover->isShown());
}

TYPED_TEST_P(WindowsContract, APopoverThatIsShownTwiceIsShownOnce) {
    const void* const inPopover = this->handTo(this->popover);
    const void* const inWindow = this->handTo(this->window);
    this->show();
    this->show();
    EXPECT_TRUE(this->popover->isShown());
    EXPECT_EQ(this->place(), inPopover);
    this->popover->performClose();
    this->waitForClosing(1);
    EXPECT_FALSE(this->popover->isShown());
    EXPECT_EQ(this->closed, 1);
    EXPECT_EQ(this->place(), inWindow);
}

TYPED_TEST_P(WindowsContract, AWindowIsVisibleFromTheFrontToItsClosing) {
    const void* const inWindow = this->handTo(this->window);
    this->window->center();
    EXPECT_FALSE(this->window->isVisible());
    for (int times = 0; times < 2; ++times) {
        this->window->makeKeyAndOrderFront();
        this->window->makeKeyAndOrderFront();
        EXPECT_TRUE(this->window->isVisible());
        EXPECT_EQ(this->place(), inWindow);
        this->harness.closeWindowOf(*this->content);
        EXPECT_FALSE(this->window->isVisible());
        EXPECT_EQ(this->place(), inWindow) << "closing only hides it";
    }
}

REGISTER_TYPED_TEST_SUITE_P(WindowsContract, AViewStandsInTheHostThatWasGivenItLast,
                            AShownPopoverBorrowsItsContentFromTheWindowThatHasIt,
                            APopoverHasItsContentEachTimeAlthoughAWindowHadIt,
                            AClosedWindowReturnsItsContentAndTakesItInWhenItIsShownAgain,
                            AViewOutlivesItsHosts, AHostReturnsNothingToOneThatHasGone,
                            AHostThatWasGivenAnotherViewKeepsThat,
                            AHostReturnsNothingToOneThatWasGivenAnotherView,
                            APopoverTellsOnceThatItHasClosedWhenAllIsInPlaceAgain,
                            APopoverThatIsNotShownHasNothingToClose, APopoverClosesWithoutAHandler,
                            APopoverThatIsShownTwiceIsShownOnce,
                            AWindowIsVisibleFromTheFrontToItsClosing);

}  // namespace zephrine
