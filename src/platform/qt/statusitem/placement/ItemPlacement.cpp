// SPDX-License-Identifier: MIT
#include "platform/qt/statusitem/placement/ItemPlacement.h"

#include <algorithm>

namespace zephrine {

namespace {

using Time = ItemPlacement::Time;
using Duration = ItemPlacement::Duration;
using PanelMemory = ItemPlacement::PanelMemory;
using TrayMemory = ItemPlacement::TrayMemory;
using PanelState = PanelReport::State;
using TrayState = TrayReport::State;

// For a tray that was asked to take the item in, or to come back after it has gone.
constexpr std::chrono::seconds trayPatience{3};
// Back-off before a tray is asked again that has let the item go: some do so while they rebuild
// their own window, others do not want it. Each pause is twice the last one, until the item has
// stood in a tray for a while.
constexpr Duration shortestPause{500};
constexpr Duration longestPause{64000};
constexpr std::chrono::seconds aWhile{10};

bool prefersTray(const PanelMemory& memory, const PanelReport& panel) {
    return panel.hasBetterTray && !memory.trayHasFailed;
}

/// Whether what has been missing since `missed`, from now on if that is absent, is gone by now.
bool isGone(std::optional<Time>& missed, Time now, Duration patience) {
    if (!missed) {
        missed = now;
    }
    return now - *missed >= patience;
}

void followPanel(PanelMemory& memory, const PanelReport& panel, Time now, Duration patience) {
    const bool isFirstAnswer = memory.state == PanelState::unknown;
    memory.state = panel.state;
    if (panel.state == PanelState::showing) {
        memory.isGone = false;
    } else if (prefersTray(memory, panel) || (isFirstAnswer && panel.state == PanelState::none)) {
        memory.isGone = true;
    } else if (isGone(memory.missed, now, patience)) {
        memory.isGone = true;
    }
    if (memory.isGone || panel.state == PanelState::showing) {
        memory.missed.reset();
    }
}

void backOff(TrayMemory& memory, Time now) {
    const bool stoodAWhile = memory.held && now - *memory.held >= aWhile;
    const bool isFirst = stoodAWhile || !memory.pause;
    memory.pause = isFirst ? shortestPause : std::min(2 * *memory.pause, longestPause);
    memory.askAgain = now + *memory.pause;
}

void followTray(TrayMemory& memory, const TrayReport& tray, Time now) {
    if (tray.releases != memory.report.releases) {
        backOff(memory, now);
    }
    const bool isNew = tray.state != memory.report.state;
    memory.report = tray;
    if (tray.state != TrayState::none) {
        memory.askAgain.reset();
        if (isNew) {
            memory.isGone = false;
            memory.missed.reset();
        }
    }
    if (tray.state == TrayState::holding) {
        memory.held = memory.held.value_or(now);
    } else {
        memory.held.reset();
        memory.isGone = memory.isGone || isGone(memory.missed, now, trayPatience);
    }
    if (memory.isGone) {
        memory.missed.reset();
    }
}

std::optional<Time> dueTime(const ItemPlacement& placement, Duration patience) {
    std::optional<Time> due;
    const auto consider = [&due](std::optional<Time> time, Duration delay) {
        if (time && (!due || *time + delay < *due)) {
            due = *time + delay;
        }
    };
    consider(placement.panel.missed, patience);
    consider(placement.tray.missed, trayPatience);
    consider(placement.tray.askAgain, Duration::zero());
    return due;
}

}  // namespace

ItemPlacement placeItem(const ItemPlacement& before, const PanelReport& panel,
                        const TrayReport& tray, Time now, Duration patience) {
    ItemPlacement next{.panel = before.panel, .tray = before.tray};
    next.panel.trayHasFailed = next.panel.trayHasFailed && panel.isKnown;
    const bool prefersIt = prefersTray(next.panel, panel);
    followPanel(next.panel, panel, now, patience);

    next.wantsTray = prefersIt || next.panel.isGone;
    if (next.wantsTray) {
        // One that is expected is missed only after a while, although it was never seen.
        next.tray.isGone = next.tray.isGone && !prefersIt;
        followTray(next.tray, tray, now);
    }
    if (prefersIt && next.tray.isGone) {
        // Then the panel is to have the item after all.
        next.panel.trayHasFailed = true;
        next.panel.isGone = false;
        next.panel.missed = now;
        next.wantsTray = false;
    }
    if (!next.wantsTray) {
        next.tray = {.report = tray, .pause = next.tray.pause};
    }
    if (next.tray.askAgain && now >= *next.tray.askAgain) {
        next.tray.askAgain.reset();
        next.asksTrayAgain = true;
    }
    next.offersToPanel = !prefersTray(next.panel, panel);
    next.surface = !next.panel.isGone ? ItemSurface::panel
                   : next.tray.isGone ? ItemSurface::strip
                                      : ItemSurface::tray;
    next.due = dueTime(next, patience);
    return next;
}

}  // namespace zephrine
