// SPDX-License-Identifier: MIT
// One picture as it travels to a panel: the structure (iiay) of the StatusNotifierItem protocol,
// https://www.freedesktop.org/wiki/Specifications/StatusNotifierItem/Icons/.
#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>

namespace zephrine {

struct NotifierPixmap {
    qint32 width = 0;
    qint32 height = 0;
    /// Rows without padding, one pixel in four bytes: alpha, red, green, blue, not premultiplied.
    QByteArray argb;
    bool operator==(const NotifierPixmap&) const = default;
};

using NotifierPixmaps = QList<NotifierPixmap>;

/// Appends `image`; a null image is no picture and is left out.
void addPixmap(NotifierPixmaps& pixmaps, const QImage& image);

/// The same pictures for a panel that does not multiply colours by their opacity, though the
/// protocol leaves that to it.
[[nodiscard]] NotifierPixmaps multipliedByOpacity(NotifierPixmaps pixmaps);

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap);

}  // namespace zephrine
