// SPDX-License-Identifier: MIT
// The form for panels that keep a picture wide only when they read it from a file: files in the
// user's runtime folder, under two names in turn, since a panel does not read a name again that it
// knows.
#pragma once

#include <QString>

#include "platform/Drawing.h"

namespace zephrine {

class PictureFiles {
public:
    /// In `folder`, which is made when it is needed; it goes with this object. Empty means that
    /// there is no place for files.
    explicit PictureFiles(QString folder);
    ~PictureFiles();
    Q_DISABLE_COPY_MOVE(PictureFiles)

    /// The path of a file with the picture; empty when it cannot be written.
    [[nodiscard]] QString write(const Image& picture, Appearance appearance);

private:
    QString folder_;
    int turn_ = 0;
};

/// A folder of this process's own in the user's runtime folder; empty when there is none.
[[nodiscard]] QString pictureFolder();

}  // namespace zephrine
