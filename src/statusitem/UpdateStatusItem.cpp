// SPDX-License-Identifier: MIT
// Brings the status item up to date: the description every time, the picture only when something
// that can be seen in it has changed.
#include "app/AppDelegate.h"
#include "app/Preferences.h"
#include "platform/Trap.h"
#include "statusitem/SquareImage.h"
#include "statusitem/StatusImage.h"
#include "statusitem/StatusText.h"

namespace zephrine {

namespace {
// Free space on both sides of the picture in the bar, together; points.
constexpr double itemPadding = 12;
}  // namespace

void AppDelegate::updateStatusItem() {
    mainThread_.requireCurrent();
    trapUnless(statusItem != nullptr);
    StatusItemButton* button = statusItem->button();
    if (button == nullptr) {
        return;
    }
    const std::string cpuValue = cpuText(latestCPU);
    const bool ramInGB = latestMemory.has_value() && defaults.boolForKey(preferences::ramInGBKey);
    const std::string ramValue = ramText(latestMemory, ramInGB);
    const Appearance appearance = button->effectiveAppearance().value_or(Appearance::aqua);
    const bool isDark = appearance == Appearance::darkAqua;
    const std::string key = imageKey(cpuValue, ramValue, fontSize(), latestPressure, isDark);
    const std::string description = statusDescription(cpuValue, latestMemory, latestPressure);

    button->setToolTip(description);
    button->setAccessibilityLabel(description);
    if (key == lastImageKey) {
        return;
    }
    lastImageKey = key;

    const StatusContent content{.cpuText = cpuValue,
                                .ramText = ramValue,
                                .cpuPercent = latestCPU,
                                .ramPercent = percentOf(latestMemory),
                                .fontSize = fontSize(),
                                .dot = color(latestPressure),
                                .isDark = isDark};
    const TextMeasure& measure = application_.textMeasure();
    Image wide = statusImage(content, measure);
    statusItem->setLength(wide.size.width + itemPadding);
    button->setImage(
        {.wide = std::move(wide),
         .square = [content, &measure](double side) { return squareImage(content, side, measure); },
         .line = [content, &measure] { return lineImage(content, measure); },
         .text = firstLine(content) + "\n" + secondLine(content),
         .appearance = appearance});
}

}  // namespace zephrine
