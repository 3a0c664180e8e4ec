// SPDX-License-Identifier: MIT
#include "platform/macos/widgets/MacLabel.h"

#include "platform/Trap.h"
#include "platform/macos/MacString.h"
#include "platform/macos/drawing/MacColors.h"
#include "platform/macos/drawing/MacFonts.h"

namespace zephrine {

namespace {

// By name only: right and centre have changed places between the two architectures.
NSTextAlignment nsTextAlignment(TextAlignment alignment) {
    switch (alignment) {
        case TextAlignment::natural:
            return NSTextAlignmentNatural;
        case TextAlignment::left:
            return NSTextAlignmentLeft;
        case TextAlignment::right:
            return NSTextAlignmentRight;
    }
    trap();
}

}  // namespace

MacLabel::MacLabel(const std::string& text)
    : MacLabel([NSTextField labelWithString:nsLine(text)], text) {}

MacLabel::MacLabel(NSTextField* field, const std::string& text)
    : MacView(field), field_(field), text_(text) {}

void MacLabel::setStringValue(const std::string& text) {
    if (text != text_) {
        text_ = text;
        // On one line by its characters: the field's own single-line mode would put the baseline of
        // every font, the large figures' as well, where that of the standard one belongs.
        field_.stringValue = nsLine(text);
    }
}

std::string MacLabel::stringValue() const {
    return text_;
}

void MacLabel::setFont(const Font& font) {
    field_.font = nsFont(font);
}

void MacLabel::setTextColor(Color color) {
    NSColor* native = nsColor(color);
    if (![field_.textColor isEqual:native]) {
        field_.textColor = native;
    }
}

void MacLabel::setAlignment(TextAlignment alignment) {
    field_.alignment = nsTextAlignment(alignment);
}

void MacLabel::setLineBreakMode(LineBreakMode mode) {
    field_.lineBreakMode =
        mode == LineBreakMode::truncatingTail ? NSLineBreakByTruncatingTail : NSLineBreakByClipping;
}

}  // namespace zephrine
