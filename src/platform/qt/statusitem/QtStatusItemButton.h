// SPDX-License-Identifier: MIT
// What is seen and clicked of the item: in a panel, else in a tray, else in a strip of our own.
#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QRect>
#include <functional>
#include <optional>
#include <string>

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/appearance/PanelAppearance.h"
#include "platform/qt/statusitem/appearance/X11PanelProbe.h"
#include "platform/qt/statusitem/bus/NotifierItem.h"
#include "platform/qt/statusitem/bus/NotifierMenu.h"
#include "platform/qt/statusitem/forms/PictureFiles.h"
#include "platform/qt/statusitem/host/HostBus.h"
#include "platform/qt/statusitem/strip/StatusStrip.h"
#include "platform/qt/statusitem/tray/TrayItem.h"
#include "platform/qt/theme/SystemAppearance.h"
#include "platform/qt/windows/ClickGuard.h"
#include "platform/qt/windows/ItemAnchor.h"

namespace zephrine {

/// What the status item is built on; all of it outlives the item.
struct StatusItemServices {
    const ClickGuard& clickGuard;
    const SystemAppearance& systemAppearance;
    PreferenceStore& preferences;
    /// What the item's menu offers besides a click.
    std::function<void()> openSettings;
    std::function<void()> quit;
};

class QtStatusItemButton final : public ItemAnchor, public StatusItemButton {
public:
    QtStatusItemButton(const QDBusConnection& bus, const StatusItemServices& services);

    [[nodiscard]] std::optional<Appearance> effectiveAppearance() override;
    void setToolTip(const std::string& text) override;
    void setAccessibilityLabel(const std::string& text) override;
    void setImage(StatusItemImage image) override;
    void setAction(std::function<void()> action) override;

    [[nodiscard]] std::optional<QRect> anchorRect() const override;

    /// Points along the bar, for the forms that are not as wide as the panel makes them.
    void setLength(double length);
    /// Shows it there. `host` is the panel's process, or the one that the panel's items are
    /// collected by; absent when nobody collects any.
    void setSurface(ItemSurface surface, const std::optional<HostProcess>& host);
    [[nodiscard]] TrayItem& tray() { return tray_; }
    [[nodiscard]] StatusStrip& strip() { return strip_; }

private:
    void panelClicked();
    /// Does it once the panel has its answer: the bus connection's thread waits until then.
    void performLater(std::function<void()> action);
    void clicked();
    void show();

    StatusItemServices services_;
    NotifierItem item_;
    NotifierMenu menu_;
    PictureFiles files_;
    TrayItem tray_;
    StatusStrip strip_;
    X11PanelProbe probe_;
    PanelAppearance panelAppearance_;

    std::function<void()> action_;
    StatusItemImage image_;
    std::string toolTip_;
    std::string label_;
    std::optional<HostProcess> host_;
    ItemSurface surface_ = ItemSurface::panel;
    bool clickIsQueued_ = false;
    std::optional<QRect> lastClick_;
};

}  // namespace zephrine
