// SPDX-License-Identifier: MIT
// Where the status item stands: in a panel, in a tray of X11, or in a strip of its own. The bus and
// the tray report what they see, and this alone decides. Panels and trays crash, restart and start
// late, so one that is missing is believed to be gone only after a while.
#pragma once

#include <chrono>
#include <optional>

namespace zephrine {

/// What the bus tells of the panel.
struct PanelReport {
    enum class State {
        unknown,  ///< the bus has not answered yet
        none,     ///< nobody collects items
        silent,   ///< somebody does, but no panel is known to show them
        showing,  ///< a panel shows the item
    };
    State state = State::unknown;
    bool isKnown = false;        ///< whose process collects the items
    bool hasBetterTray = false;  ///< and its tray shows the item better than the panel would
    bool operator==(const PanelReport&) const = default;
};

/// What the X server tells of the tray.
struct TrayReport {
    enum class State {
        none,     ///< there is none, or it has let the item go
        asked,    ///< it has been asked to take the item in
        holding,  ///< the item stands in it
    };
    State state = State::none;
    unsigned releases = 0;  ///< how often one has let the item go that goes on without it
    bool operator==(const TrayReport&) const = default;
};

enum class ItemSurface {
    panel,  ///< or unknown, while one may still turn up
    tray,   ///< likewise
    strip,
};

/// The decision, and what the next one needs to know of the past. A value: time and reports go into
/// `placeItem` and into nothing else.
struct ItemPlacement {
    using Time = std::chrono::steady_clock::time_point;
    using Duration = std::chrono::milliseconds;

    ItemSurface surface = ItemSurface::panel;
    bool offersToPanel = true;   ///< the panel is to be given the item
    bool wantsTray = false;      ///< a tray is to be looked for, and asked when it appears
    bool asksTrayAgain = false;  ///< now, although it has let the item go
    /// When to decide again if nothing is reported before.
    std::optional<Time> due = std::nullopt;

    struct PanelMemory {
        PanelReport::State state = PanelReport::State::unknown;
        bool isGone = false;
        std::optional<Time> missed = {};  ///< since when, while it is not gone
        bool trayHasFailed = false;       ///< its tray, which was expected to take the item
    };
    struct TrayMemory {
        TrayReport report = {};
        bool isGone = true;
        std::optional<Time> missed = {};     ///< likewise
        std::optional<Time> held = {};       ///< since when it holds the item
        std::optional<Time> askAgain = {};   ///< when
        std::optional<Duration> pause = {};  ///< before it was asked again last
    };
    PanelMemory panel = {};
    TrayMemory tray = {};
};

/// The decision that follows `before`. `patience` is how long a panel may be missing.
[[nodiscard]] ItemPlacement placeItem(const ItemPlacement& before, const PanelReport& panel,
                                      const TrayReport& tray, ItemPlacement::Time now,
                                      ItemPlacement::Duration patience);

}  // namespace zephrine
