// SPDX-License-Identifier: MIT
// Pictures in network byte order, and their marshalling.
#include "platform/qt/statusitem/bus/NotifierPixmap.h"

#include <QtEndian>

namespace zephrine {

void addPixmap(NotifierPixmaps& pixmaps, const QImage& image) {
    if (image.isNull()) {
        return;
    }
    const QImage straight = image.convertToFormat(QImage::Format_ARGB32);
    const qsizetype rowBytes = qsizetype{straight.width()} * 4;
    NotifierPixmap pixmap{straight.width(), straight.height(), {}};
    pixmap.argb.resize(rowBytes * straight.height());
    char* out = pixmap.argb.data();
    for (int y = 0; y < straight.height(); ++y, out += rowBytes) {
        qToBigEndian<quint32>(straight.constScanLine(y), straight.width(), out);
    }
    pixmaps.append(pixmap);
}

NotifierPixmaps multipliedByOpacity(NotifierPixmaps pixmaps) {
    for (NotifierPixmap& pixmap : pixmaps) {
        char* pixel = pixmap.argb.data();
        for (const char* const end = pixel + pixmap.argb.size(); pixel < end; pixel += 4) {
            qToBigEndian(qPremultiply(qFromBigEndian<quint32>(pixel)), pixel);
        }
    }
    return pixmaps;
}

QDBusArgument& operator<<(QDBusArgument& argument, const NotifierPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.argb;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, NotifierPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.argb;
    argument.endStructure();
    return argument;
}

}  // namespace zephrine
