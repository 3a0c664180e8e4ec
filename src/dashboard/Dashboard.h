// SPDX-License-Identifier: MIT
// The dashboard panel: 360 by 660 points of labels, a graph, the top processes and two buttons, all
// with fixed frames. The popover and the inspection window both show this one view.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "dashboard/HistoryView.h"
#include "platform/Application.h"
#include "platform/Formatting.h"
#include "platform/MainThread.h"
#include "processes/ProcessSnapshot.h"
#include "sampling/History.h"
#include "sampling/MemoryPressure.h"
#include "sampling/MemoryReading.h"

namespace zephrine {

class AppDelegate;

/// Main thread only: on any other, what builds it, writes to it or answers a click ends the
/// process. Labels are public for the same reason as the controller's state.
class Dashboard {
public:
    static constexpr std::size_t processRowCount = 5;

    /// Both collaborators must outlive the dashboard.
    Dashboard(Application& application, const Formatting& formatting);

    /// Builds the view, once.
    void loadView();
    /// Valid after `loadView`.
    [[nodiscard]] View& view();

    /// Writes one refresh's readings into the panel. `interval` is in seconds.
    void update(std::optional<double> cpuPercent, const std::optional<MemoryReading>& memory,
                std::optional<double> gpuPercent, MemoryPressure level, const History& readings,
                double interval);

    /// Replaces the process rows and ranks them.
    void updateProcesses(std::vector<ProcessUsage> rows);
    /// Ranks the rows held and rewrites the list.
    void sortProcesses();

    void openSettings();
    void quitApp();

private:
    MainThread mainThread_;
    Application& application_;
    const Formatting& formatting_;
    WidgetFactory& widgets_;
    const Vocabulary& words_;
    std::unique_ptr<View> view_;
    std::vector<std::unique_ptr<View>> fixedViews_;  ///< what is never touched after loading

public:
    std::weak_ptr<AppDelegate> owner;
    std::unique_ptr<Label> cpu;
    std::unique_ptr<Label> ram;
    std::unique_ptr<Label> gpu;
    std::unique_ptr<Label> ramDetail;
    std::unique_ptr<Label> gpuDetail;
    std::unique_ptr<Label> pressure;
    HistoryView history;
    std::unique_ptr<Label> cadence;
    std::vector<std::unique_ptr<Label>> processNames;   ///< top row first
    std::vector<std::unique_ptr<Label>> processValues;  ///< in the same order
    std::unique_ptr<SegmentedControl> processSort;      ///< absent until `loadView`
    std::vector<ProcessUsage> processRows;              ///< as delivered, not sorted

private:
    void addHeader();
    void addReadings();
    void addGraph();
    void addProcessList();
    void addFooter();
    void addText(const Rect& frame, const std::string& text, const Font& font, Color color,
                 TextAlignment alignment = TextAlignment::left);
    void addButton(const Rect& frame, const std::string& title, std::function<void()> action);
    std::unique_ptr<Label> makeProcessLabel(const Rect& frame, TextAlignment alignment);
    void place(Label& label, const Rect& frame, const Font& font, std::optional<Color> color);
};

}  // namespace zephrine
