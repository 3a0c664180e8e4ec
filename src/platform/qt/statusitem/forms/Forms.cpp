// SPDX-License-Identifier: MIT
// The choice of the form, in one place.
#include "platform/qt/statusitem/forms/Forms.h"

#include "platform/qt/statusitem/forms/LabelForm.h"
#include "platform/qt/statusitem/forms/LineForm.h"
#include "platform/qt/statusitem/forms/SquareForm.h"
#include "platform/qt/statusitem/forms/WideForm.h"

namespace zephrine {

NotifierFace faceForHost(HostForm form, const StatusItemImage& image, Appearance appearance,
                         PictureFiles& files) {
    switch (form) {
        case HostForm::wideDoubled:
            return {.pixmaps = widePixmaps(image, 2, appearance)};
        case HostForm::line:
            return {.pixmaps = linePixmaps(image, appearance)};
        case HostForm::wideFile:
            if (const QString file = files.write(image.wide, appearance); !file.isEmpty()) {
                return {.iconName = file};
            }
            [[fallthrough]];  // the figures show as text then
        case HostForm::labelled:
            return labelledFace(image, appearance);
        case HostForm::squares:
            return {.pixmaps = squarePixmaps(image, appearance)};
        case HostForm::multipliedSquares:
            return {.pixmaps = multipliedByOpacity(squarePixmaps(image, appearance))};
        case HostForm::mixed:
            return {.pixmaps =
                        squarePixmaps(image, appearance) + widePixmaps(image, 2, appearance)};
    }
    return {};
}

}  // namespace zephrine
