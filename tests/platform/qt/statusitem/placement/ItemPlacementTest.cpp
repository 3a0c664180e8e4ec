// SPDX-License-Identifier: MIT
// Each test is a story in steps: what is reported at which moment, and the decision that follows.
#include "platform/qt/statusitem/placement/ItemPlacement.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace zephrine {
namespace {

using namespace std::chrono_literals;
using std::chrono::milliseconds;
using enum ItemSurface;

constexpr PanelReport unknown{};
constexpr PanelReport nobody{.state = PanelReport::State::none};
constexpr PanelReport unidentified{.state = PanelReport::State::silent};
constexpr PanelReport silent{.state = PanelReport::State::silent, .isKnown = true};
constexpr PanelReport showing{.state = PanelReport::State::showing, .isKnown = true};
constexpr PanelReport betterTray{
    .state = PanelReport::State::silent, .isKnown = true, .hasBetterTray = true};
constexpr PanelReport itsPanel{
    .state = PanelReport::State::showing, .isKnown = true, .hasBetterTray = true};

constexpr TrayReport noTray{};
constexpr TrayReport asked{.state = TrayReport::State::asked};
constexpr TrayReport holding{.state = TrayReport::State::holding};

constexpr TrayReport released(unsigned times) {
    return {.state = TrayReport::State::none, .releases = times};
}
constexpr TrayReport askedAfter(unsigned releases) {
    return {.state = TrayReport::State::asked, .releases = releases};
}
constexpr TrayReport holdingAfter(unsigned releases) {
    return {.state = TrayReport::State::holding, .releases = releases};
}

struct Step {
    milliseconds at;
    PanelReport panel;
    TrayReport tray;
    // The decision:
    ItemSurface surface;
    bool offersToPanel;
    bool wantsTray;
    std::optional<milliseconds> due = std::nullopt;
    bool asksTrayAgain = false;
};

constexpr bool offered = true;
constexpr bool heldBack = false;
constexpr bool trayWanted = true;
constexpr bool trayIgnored = false;

void follow(const std::vector<Step>& steps) {
    constexpr auto patience = 3s;
    // No clock starts at its own zero.
    const ItemPlacement::Time start{1h};
    ItemPlacement placement;
    for (const Step& step : steps) {
        SCOPED_TRACE("at " + std::to_string(step.at.count()) + " ms");
        placement = placeItem(placement, step.panel, step.tray, start + step.at, patience);
        EXPECT_EQ(placement.surface, step.surface);
        EXPECT_EQ(placement.offersToPanel, step.offersToPanel);
        EXPECT_EQ(placement.wantsTray, step.wantsTray);
        EXPECT_EQ(placement.due, step.due ? std::optional(start + *step.due) : std::nullopt);
        EXPECT_EQ(placement.asksTrayAgain, step.asksTrayAgain);
    }
}

TEST(ItemPlacement, WaitsForThePanelThatMayTurnUp) {
    follow({{0ms, unknown, noTray, panel, offered, trayIgnored, 3000ms},
            {100ms, unidentified, noTray, panel, offered, trayIgnored, 3000ms},
            {200ms, silent, noTray, panel, offered, trayIgnored, 3000ms},
            {2999ms, silent, noTray, panel, offered, trayIgnored, 3000ms},
            {3000ms, silent, noTray, strip, offered, trayWanted}});
}

TEST(ItemPlacement, IsThePanelOnceItShowsTheItem) {
    follow({{0ms, unknown, noTray, panel, offered, trayIgnored, 3000ms},
            {100ms, showing, noTray, panel, offered, trayIgnored},
            {9000ms, showing, noTray, panel, offered, trayIgnored}});
}

TEST(ItemPlacement, DoesNotWaitWhereNobodyCollectsItemsAtTheStart) {
    follow({{0ms, unknown, noTray, panel, offered, trayIgnored, 3000ms},
            {1ms, nobody, noTray, strip, offered, trayWanted}});
}

TEST(ItemPlacement, DoesNotWaitWithoutABus) {
    follow({{0ms, nobody, noTray, strip, offered, trayWanted}});
}

TEST(ItemPlacement, ForgivesAPanelThatRestarts) {
    follow({{0ms, showing, noTray, panel, offered, trayIgnored},
            {1000ms, nobody, noTray, panel, offered, trayIgnored, 4000ms},
            {2000ms, unidentified, noTray, panel, offered, trayIgnored, 4000ms},
            {3000ms, nobody, noTray, panel, offered, trayIgnored, 4000ms},
            {3900ms, showing, noTray, panel, offered, trayIgnored},
            {5000ms, nobody, noTray, panel, offered, trayIgnored, 8000ms}});
}

TEST(ItemPlacement, LeavesAPanelThatIsGoneAndReturnsToTheNextOne) {
    follow({{0ms, showing, noTray, panel, offered, trayIgnored},
            {1000ms, nobody, noTray, panel, offered, trayIgnored, 4000ms},
            {4000ms, nobody, noTray, strip, offered, trayWanted},
            {9000ms, silent, noTray, strip, offered, trayWanted},
            {9100ms, showing, noTray, panel, offered, trayIgnored}});
}

TEST(ItemPlacement, TakesATrayWhereThereIsNoPanel) {
    follow({{0ms, nobody, noTray, strip, offered, trayWanted},
            {10ms, nobody, asked, tray, offered, trayWanted, 3010ms},
            {3009ms, nobody, asked, tray, offered, trayWanted, 3010ms},
            {3009ms, nobody, holding, tray, offered, trayWanted},
            {99s, nobody, holding, tray, offered, trayWanted}});
}

TEST(ItemPlacement, DoesNotWaitForEverForATrayThatWasAsked) {
    follow({{0ms, nobody, asked, tray, offered, trayWanted, 3000ms},
            {3000ms, nobody, asked, strip, offered, trayWanted},
            {9000ms, nobody, holding, tray, offered, trayWanted}});
}

TEST(ItemPlacement, ForgivesATrayThatRestarts) {
    follow({{0ms, nobody, holding, tray, offered, trayWanted},
            {1000ms, nobody, noTray, tray, offered, trayWanted, 4000ms},
            {2000ms, nobody, asked, tray, offered, trayWanted, 5000ms},
            {3000ms, nobody, holding, tray, offered, trayWanted},
            {4000ms, nobody, noTray, tray, offered, trayWanted, 7000ms},
            {7000ms, nobody, noTray, strip, offered, trayWanted}});
}

TEST(ItemPlacement, LeavesTheTrayForAPanelThatTurnsUp) {
    follow({{0ms, nobody, holding, tray, offered, trayWanted},
            {1000ms, showing, holding, panel, offered, trayIgnored},
            {1001ms, showing, noTray, panel, offered, trayIgnored}});
}

TEST(ItemPlacement, AsksATrayAgainThatHasLetTheItemGoWithLongerAndLongerPauses) {
    follow({{0ms, nobody, asked, tray, offered, trayWanted, 3000ms},
            {10ms, nobody, released(1), tray, offered, trayWanted, 510ms},
            {509ms, nobody, released(1), tray, offered, trayWanted, 510ms},
            {510ms, nobody, released(1), tray, offered, trayWanted, 3000ms, true},
            {511ms, nobody, askedAfter(1), tray, offered, trayWanted, 3511ms},
            {512ms, nobody, released(2), tray, offered, trayWanted, 1512ms},
            {1512ms, nobody, released(2), tray, offered, trayWanted, 3511ms, true},
            {1513ms, nobody, askedAfter(2), tray, offered, trayWanted, 4513ms},
            {1514ms, nobody, released(3), tray, offered, trayWanted, 3514ms}});
}

TEST(ItemPlacement, PausesAtMostAboutAMinute) {
    std::vector<Step> story{{0ms, nobody, noTray, strip, offered, trayWanted}};
    milliseconds now = 0ms;
    unsigned times = 0;
    for (const milliseconds pause :
         {500ms, 1000ms, 2000ms, 4000ms, 8000ms, 16000ms, 32000ms, 64000ms, 64000ms, 64000ms}) {
        // Given up at first, so that nothing but the pause is due.
        story.push_back({now, nobody, askedAfter(times), tray, offered, trayWanted, now + 3s});
        now += 5s;
        story.push_back({now, nobody, askedAfter(times), strip, offered, trayWanted});
        ++times;
        story.push_back({now, nobody, released(times), strip, offered, trayWanted, now + pause});
        now += pause;
        story.push_back(
            {now, nobody, released(times), strip, offered, trayWanted, std::nullopt, true});
    }
    follow(story);
}

TEST(ItemPlacement, TrustsATrayAgainThatHasHeldTheItemForAWhile) {
    follow({{0ms, nobody, released(1), strip, offered, trayWanted, 500ms},
            {100ms, nobody, holdingAfter(1), tray, offered, trayWanted},
            {9000ms, nobody, holdingAfter(1), tray, offered, trayWanted},
            {10099ms, nobody, released(2), tray, offered, trayWanted, 11099ms},
            {10100ms, nobody, holdingAfter(2), tray, offered, trayWanted},
            {19000ms, nobody, holdingAfter(2), tray, offered, trayWanted},
            {20100ms, nobody, released(3), tray, offered, trayWanted, 20600ms}});
}

TEST(ItemPlacement, TrustsOnlyTheTrayThatHasHeldTheItem) {
    follow({{0ms, nobody, released(1), strip, offered, trayWanted, 500ms},
            {100ms, nobody, holdingAfter(1), tray, offered, trayWanted},
            {20000ms, nobody, released(1), tray, offered, trayWanted, 23000ms},
            {20001ms, nobody, holdingAfter(1), tray, offered, trayWanted},
            {20002ms, nobody, released(2), tray, offered, trayWanted, 21002ms}});
}

TEST(ItemPlacement, RemembersNothingOfATrayThatItDoesNotWant) {
    follow({{0ms, nobody, released(1), strip, offered, trayWanted, 500ms},
            {1ms, showing, released(1), panel, offered, trayIgnored},
            {900ms, showing, released(2), panel, offered, trayIgnored},
            {1000ms, nobody, released(2), panel, offered, trayIgnored, 4000ms},
            {4000ms, nobody, released(2), strip, offered, trayWanted},
            {4001ms, nobody, holdingAfter(2), tray, offered, trayWanted},
            {5000ms, showing, holdingAfter(2), panel, offered, trayIgnored},
            {5001ms, showing, released(2), panel, offered, trayIgnored},
            {30000ms, nobody, released(2), panel, offered, trayIgnored, 33000ms},
            {33000ms, nobody, released(2), strip, offered, trayWanted},
            {33001ms, nobody, holdingAfter(2), tray, offered, trayWanted},
            {33002ms, nobody, released(3), tray, offered, trayWanted, 34002ms}});
}

TEST(ItemPlacement, MissesATrayAnewThatItWantsAgain) {
    follow({{0ms, nobody, asked, tray, offered, trayWanted, 3000ms},
            {1000ms, showing, asked, panel, offered, trayIgnored},
            {1001ms, showing, noTray, panel, offered, trayIgnored},
            {2000ms, betterTray, noTray, tray, heldBack, trayWanted, 5000ms}});
}

TEST(ItemPlacement, DropsThePauseWhenTheNextTrayTurnsUp) {
    follow({{0ms, nobody, released(1), strip, offered, trayWanted, 500ms},
            {100ms, nobody, askedAfter(1), tray, offered, trayWanted, 3100ms},
            {500ms, nobody, askedAfter(1), tray, offered, trayWanted, 3100ms}});
}

TEST(ItemPlacement, PrefersATrayThatShowsTheItemBetterThanItsPanel) {
    follow({{0ms, unknown, noTray, panel, offered, trayIgnored, 3000ms},
            {100ms, betterTray, noTray, tray, heldBack, trayWanted, 3100ms},
            {200ms, betterTray, asked, tray, heldBack, trayWanted, 3200ms},
            {300ms, betterTray, holding, tray, heldBack, trayWanted}});
}

TEST(ItemPlacement, ReturnsToThePanelWhoseTrayDoesNotTakeTheItem) {
    follow({{0ms, betterTray, noTray, tray, heldBack, trayWanted, 3000ms},
            {3000ms, betterTray, noTray, panel, offered, trayIgnored, 6000ms},
            {3100ms, itsPanel, noTray, panel, offered, trayIgnored},
            {9000ms, itsPanel, noTray, panel, offered, trayIgnored}});
}

TEST(ItemPlacement, IsTheStripWhereNeitherThePanelNorItsTrayTakesTheItem) {
    follow({{0ms, betterTray, noTray, tray, heldBack, trayWanted, 3000ms},
            {3000ms, betterTray, noTray, panel, offered, trayIgnored, 6000ms},
            {6000ms, betterTray, noTray, strip, offered, trayWanted}});
}

TEST(ItemPlacement, TriesTheTrayOfTheNextPanelAfterOneHasFailed) {
    follow({{0ms, betterTray, noTray, tray, heldBack, trayWanted, 3000ms},
            {3000ms, betterTray, noTray, panel, offered, trayIgnored, 6000ms},
            {4000ms, unidentified, noTray, panel, offered, trayIgnored, 6000ms},
            {4100ms, betterTray, noTray, tray, heldBack, trayWanted, 7100ms},
            {4200ms, betterTray, holding, tray, heldBack, trayWanted}});
}

TEST(ItemPlacement, GivesTheTrayOfALatePanelItsTime) {
    follow({{0ms, nobody, noTray, strip, offered, trayWanted},
            {100ms, betterTray, noTray, tray, heldBack, trayWanted, 3100ms},
            {3000ms, betterTray, holding, tray, heldBack, trayWanted}});
}

TEST(ItemPlacement, KeepsTheTrayWhileItsPanelRestarts) {
    follow({{0ms, betterTray, holding, tray, heldBack, trayWanted},
            {1000ms, nobody, holding, tray, offered, trayWanted},
            {1100ms, nobody, noTray, tray, offered, trayWanted, 4100ms},
            {2000ms, betterTray, noTray, tray, heldBack, trayWanted, 4100ms},
            {2100ms, betterTray, asked, tray, heldBack, trayWanted, 5100ms},
            {2200ms, betterTray, holding, tray, heldBack, trayWanted}});
}

}  // namespace
}  // namespace zephrine
