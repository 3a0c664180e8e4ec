// SPDX-License-Identifier: MIT
// The layout of the panel: every frame, font, colour and text that never changes by itself.
#include "dashboard/Dashboard.h"

#include <array>
#include <utility>

#include "app/AppDelegate.h"
#include "platform/Trap.h"

namespace zephrine {

namespace {

constexpr Rect viewFrame{0, 0, 360, 660};
constexpr double firstRowBottom = 225;
constexpr double rowPitch = 25;

constexpr Font system(double size, FontWeight weight = FontWeight::regular) {
    return {FontFamily::system, size, weight};
}

constexpr Font semibold(double size) {
    return system(size, FontWeight::semibold);
}

}  // namespace

Dashboard::Dashboard(Application& application, const Formatting& formatting)
    : application_(application),
      formatting_(formatting),
      widgets_(application.widgets()),
      words_(application.vocabulary()),
      view_(widgets_.makeView(viewFrame)),
      cpu(widgets_.makeLabel("—")),
      ram(widgets_.makeLabel("—")),
      gpu(widgets_.makeLabel("—")),
      ramDetail(widgets_.makeLabel("Measuring memory")),
      gpuDetail(widgets_.makeLabel("Driver-reported usage")),
      pressure(widgets_.makeLabel("● Memory pressure: —")),
      history(widgets_),
      cadence(widgets_.makeLabel("Updates every second")) {}

void Dashboard::loadView() {
    mainThread_.requireCurrent();
    addHeader();
    addReadings();
    addGraph();
    addProcessList();
    addFooter();
}

View& Dashboard::view() {
    return *view_;
}

void Dashboard::openSettings() {
    mainThread_.requireCurrent();
    if (const auto controller = owner.lock()) {
        controller->openSettings();
    }
}

void Dashboard::quitApp() {
    mainThread_.requireCurrent();
    application_.terminate();
}

void Dashboard::addHeader() {
    auto icon = widgets_.makeImageView();
    icon->setFrame({20, 599, 40, 40});
    if (!icon->setImageNamed("AppIcon")) {
        icon->setApplicationIcon();
    }
    view_->addSubview(*icon);
    fixedViews_.push_back(std::move(icon));
    addText({70, 620, 260, 24}, "Zephrine", semibold(20), Color::labelColor);
    addText({70, 600, 260, 18}, "Your " + std::string(words_.machine) + ", at a glance.",
            system(11), Color::secondaryLabelColor);
}

void Dashboard::addReadings() {
    struct Column {
        const char* caption;
        Label& value;
        Color color;
    };
    const std::array<Column, 3> columns{{{"CPU", *cpu, Color::systemBlueColor},
                                         {"RAM", *ram, Color::systemGreenColor},
                                         {"GPU", *gpu, Color::systemPurpleColor}}};
    const Font figures{FontFamily::monospacedDigit, 27, FontWeight::medium};
    double x = 20;
    for (const Column& column : columns) {
        addText({x, 568, 95, 16}, column.caption, semibold(10), column.color);
        place(column.value, {x, 530, 110, 34}, figures, std::nullopt);
        x += 110;
    }
    addText({20, 513, 105, 14}, "Total capacity", system(9), Color::secondaryLabelColor);
    place(*ramDetail, {130, 513, 105, 14}, system(9), Color::secondaryLabelColor);
    place(*gpuDetail, {240, 513, 105, 14}, system(9), Color::secondaryLabelColor);
    place(*pressure, {20, 465, 320, 22}, system(12, FontWeight::medium), std::nullopt);
}

void Dashboard::addGraph() {
    addText({20, 425, 180, 16}, "LAST 5 MINUTES", semibold(10), Color::secondaryLabelColor);
    addText({300, 425, 40, 16}, "100%", system(10), Color::secondaryLabelColor,
            TextAlignment::right);
    Canvas& graph = history.canvas();
    graph.setFrame({20, 309, 320, 106});
    graph.setAccessibilityLabel("CPU, memory and GPU usage history for the last five minutes");
    view_->addSubview(graph);
    addText({20, 288, 100, 16}, "5 min ago", system(9), Color::secondaryLabelColor);
    addText({300, 288, 40, 16}, "Now", system(9), Color::secondaryLabelColor, TextAlignment::right);
}

void Dashboard::addProcessList() {
    addText({20, 255, 170, 22}, "Top processes", semibold(13), Color::labelColor);
    processSort = widgets_.makeSegmentedControl({"CPU", "RAM"});
    trapUnless(processSort != nullptr);
    processSort->setFrame({235, 254, 106, 24});
    processSort->setSelectedSegment(0);
    processSort->setAction([this] { sortProcesses(); });
    processSort->setAccessibilityLabel("Sort top processes");
    view_->addSubview(*processSort);

    for (std::size_t row = 0; row < processRowCount; ++row) {
        const double y = firstRowBottom - rowPitch * static_cast<double>(row);
        processNames.push_back(makeProcessLabel({20, y, 233, 20}, TextAlignment::left));
        processValues.push_back(makeProcessLabel({256, y, 84, 20}, TextAlignment::right));
    }
    processNames.front()->setStringValue("Measuring…");
    addText({20, 98, 325, 15}, "Accessible processes · CPU share of total capacity", system(9),
            Color::secondaryLabelColor);
}

void Dashboard::addFooter() {
    auto separator = widgets_.makeSeparator();
    separator->setFrame({20, 82, 320, 1});
    view_->addSubview(*separator);
    fixedViews_.push_back(std::move(separator));
    addButton({14, 37, 100, 30}, "Settings…", [this] { openSettings(); });
    addButton({277, 37, 70, 30}, "Quit", [this] { quitApp(); });
    place(*cadence, {20, 13, 320, 15}, system(9), Color::secondaryLabelColor);
}

void Dashboard::addText(const Rect& frame, const std::string& text, const Font& font, Color color,
                        TextAlignment alignment) {
    auto label = widgets_.makeLabel(text);
    label->setAlignment(alignment);
    label->setLineBreakMode(LineBreakMode::truncatingTail);
    place(*label, frame, font, color);
    fixedViews_.push_back(std::move(label));
}

void Dashboard::addButton(const Rect& frame, const std::string& title,
                          std::function<void()> action) {
    auto button = widgets_.makeButton(title);
    button->setFrame(frame);
    button->setAction(std::move(action));
    view_->addSubview(*button);
    fixedViews_.push_back(std::move(button));
}

std::unique_ptr<Label> Dashboard::makeProcessLabel(const Rect& frame, TextAlignment alignment) {
    auto label = widgets_.makeLabel("");
    label->setAlignment(alignment);
    label->setLineBreakMode(LineBreakMode::truncatingTail);
    place(*label, frame, system(12), Color::labelColor);
    return label;
}

void Dashboard::place(Label& label, const Rect& frame, const Font& font,
                      std::optional<Color> color) {
    label.setFrame(frame);
    label.setFont(font);
    if (color) {
        label.setTextColor(*color);
    }
    view_->addSubview(label);
}

}  // namespace zephrine
