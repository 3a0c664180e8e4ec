// SPDX-License-Identifier: MIT
// The choice of the form, in one place.
#include "platform/qt/statusitem/forms/Forms.h"

#include "platform/qt/statusitem/forms/SquareForm.h"
#include "platform/qt/statusitem/forms/WideForm.h"

namespace zephrine {

NotifierPixmaps pixmapsForHost(HostForm form, const StatusItemImage& image, Appearance appearance) {
    switch (form) {
        case HostForm::wideDoubled:
            return widePixmaps(image, 2, appearance);
        case HostForm::wideExact:
            return widePixmaps(image, 1, appearance);
        case HostForm::squares:
            return squarePixmaps(image, appearance);
        case HostForm::mixed:
            return squarePixmaps(image, appearance) + widePixmaps(image, 2, appearance);
    }
    return {};
}

}  // namespace zephrine
