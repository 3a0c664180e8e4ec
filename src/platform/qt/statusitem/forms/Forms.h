// SPDX-License-Identifier: MIT
// From a panel's form to what the item shows there.
#pragma once

#include "platform/StatusBar.h"
#include "platform/qt/statusitem/bus/NotifierFace.h"
#include "platform/qt/statusitem/forms/PictureFiles.h"
#include "platform/qt/statusitem/host/HostForm.h"

namespace zephrine {

/// `files` is where a form that needs a file writes it. A form that `image` lacks has no picture.
[[nodiscard]] NotifierFace faceForHost(HostForm form, const StatusItemImage& image,
                                       PictureFiles& files);

}  // namespace zephrine
