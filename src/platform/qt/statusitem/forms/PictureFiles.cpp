// SPDX-License-Identifier: MIT
// Writing and cleaning up.
#include "platform/qt/statusitem/forms/PictureFiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QSaveFile>
#include <utility>

#include "platform/qt/drawing/RenderImage.h"

namespace zephrine {

PictureFiles::PictureFiles(QString folder) : folder_(std::move(folder)) {}

PictureFiles::~PictureFiles() {
    if (turn_ > 0) {
        QDir(folder_).removeRecursively();
    }
}

QString PictureFiles::write(const Image& picture, Appearance appearance) {
    const QImage pixels = renderImage(picture, 1, appearance);
    if (folder_.isEmpty() || pixels.isNull() || !QDir().mkpath(folder_)) {
        return {};
    }
    ++turn_;
    QString path = folder_ + QStringLiteral("/status-%1.png").arg(turn_ % 2);
    QSaveFile file(path);  // a panel never reads half a picture
    if (!file.open(QIODevice::WriteOnly) || !pixels.save(&file, "PNG") || !file.commit()) {
        return {};
    }
    return path;
}

QString pictureFolder() {
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    return QDir::isAbsolutePath(runtime)
               ? runtime + QStringLiteral("/zephrine-%1").arg(QCoreApplication::applicationPid())
               : QString();
}

}  // namespace zephrine
