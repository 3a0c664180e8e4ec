// SPDX-License-Identifier: MIT
// Icons as pixel images, one a size: Qt's reader for SVG is an extra that may not be installed.
#include "platform/qt/drawing/AppIcon.h"

#include <QFile>
#include <QResource>
#include <QSize>

// Resources of a static library are linked in only when somebody asks, and the macro that asks
// works in no namespace.
static void linkIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace zephrine {

QIcon builtInIcon(const QString& name) {
    linkIcons();
    QIcon icon;
    for (const int side : {16, 22, 24, 32, 48, 64, 128, 256}) {
        const QString path = QStringLiteral(":/icons/%1-%2.png").arg(name).arg(side);
        if (QFile::exists(path)) {
            icon.addFile(path, QSize(side, side));
        }
    }
    return icon;
}

}  // namespace zephrine
