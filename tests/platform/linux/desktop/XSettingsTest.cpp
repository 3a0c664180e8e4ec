// SPDX-License-Identifier: MIT
#include "platform/linux/desktop/XSettings.h"

#include <gtest/gtest.h>

#include "platform/linux/desktop/DesktopLook.h"

namespace zephrine {
namespace {

/// The property of a settings manager, in either byte order.
class Property {
public:
    explicit Property(bool isBigEndian = false) : isBigEndian_(isBigEndian) {}

    Property& integer(std::string_view name, std::uint32_t value) {
        begin(0, name);
        number(value, 4);
        return *this;
    }
    Property& text(std::string_view name, std::string_view value) {
        begin(1, name);
        number(static_cast<std::uint32_t>(value.size()), 4);
        padded(value);
        return *this;
    }
    Property& colour(std::string_view name) {
        begin(2, name);
        settings_.append(8, '\x7f');
        return *this;
    }
    [[nodiscard]] std::string bytes() const { return bytes(count_); }
    [[nodiscard]] std::string bytes(std::uint32_t count) const {
        Property header(isBigEndian_);
        header.number(isBigEndian_ ? 1 : 0, 1);
        header.settings_.append(3, '\0');
        header.number(77, 4);  // the serial
        header.number(count, 4);
        return header.settings_ + settings_;
    }

private:
    void begin(std::uint32_t kind, std::string_view name) {
        ++count_;
        number(kind, 1);
        number(0, 1);
        number(static_cast<std::uint32_t>(name.size()), 2);
        padded(name);
        number(5, 4);  // the serial
    }
    void number(std::uint32_t value, unsigned size) {
        for (unsigned i = 0; i < size; ++i) {
            const unsigned shift = 8 * (isBigEndian_ ? size - 1 - i : i);
            settings_ += static_cast<char>(value >> shift & 0xFFU);
        }
    }
    void padded(std::string_view text) {
        settings_ += text;
        settings_.append((4 - text.size() % 4) % 4, '\0');
    }

    bool isBigEndian_;
    std::string settings_;
    std::uint32_t count_ = 0;
};

std::string ordinary(bool isBigEndian) {
    return Property(isBigEndian)
        .integer("Xft/DPI", 98304)
        .colour("Net/Accent")
        .text("Net/ThemeName", "Adwaita-dark")
        .text("Gtk/FontName", "")
        .integer("Gtk/EnableAnimations", 0)
        .bytes();
}

TEST(XSettings, AreReadInEitherByteOrder) {
    for (const bool isBigEndian : {false, true}) {
        const XSettings settings = parseXSettings(ordinary(isBigEndian));
        EXPECT_EQ(settings.size(), 4U);
        EXPECT_EQ(std::get<std::int32_t>(settings.at("Xft/DPI")), 98304);
        EXPECT_EQ(std::get<std::string>(settings.at("Net/ThemeName")), "Adwaita-dark");
        EXPECT_EQ(std::get<std::string>(settings.at("Gtk/FontName")), "");
        EXPECT_EQ(std::get<std::int32_t>(settings.at("Gtk/EnableAnimations")), 0);
    }
}

TEST(XSettings, MayBeNegative) {
    const auto settings = parseXSettings(Property().integer("Xft/Hinting", 0xFFFFFFFF).bytes());
    EXPECT_EQ(std::get<std::int32_t>(settings.at("Xft/Hinting")), -1);
}

TEST(XSettings, EndWhereTheyAreCutOff) {
    const std::string whole = ordinary(false);
    std::size_t last = 0;
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::size_t found = parseXSettings(whole.substr(0, length)).size();
        EXPECT_GE(found, last);
        EXPECT_LT(found, 4U);
        last = found;
    }
}

TEST(XSettings, EndWhereTheyMakeNoSense) {
    EXPECT_TRUE(parseXSettings("").empty());
    EXPECT_TRUE(parseXSettings(std::string(12, '\xff')).empty());
    EXPECT_TRUE(parseXSettings("\2" + ordinary(false).substr(1)).empty()) << "no byte order";
    const Property one = Property().integer("a", 1);
    EXPECT_EQ(parseXSettings(one.bytes(0xFFFFFFFF)).size(), 1U) << "fewer than it says";
    EXPECT_TRUE(parseXSettings(one.bytes(0)).empty());
    std::string unknownKind = Property().integer("a", 1).integer("b", 2).bytes();
    unknownKind[12] = '\x09';
    EXPECT_TRUE(parseXSettings(unknownKind).empty());
    std::string longText = Property().text("a", "b").bytes();
    longText[24] = '\x7f';
    EXPECT_TRUE(parseXSettings(longText).empty()) << "a text that is longer than the rest";
}

DesktopLook lookWithTheme(std::string_view name) {
    return lookOf(parseXSettings(Property().text("Net/ThemeName", name).bytes()));
}

TEST(DesktopLook, IsDarkWhereTheNameOfTheThemeSaysSo) {
    for (const char* name : {"Adwaita-dark", "Arc-Dark", "Yaru-blue-dark", "Mint-Y-Dark-Aqua",
                             "BlackMATE", "HighContrastInverse"}) {
        EXPECT_EQ(lookWithTheme(name).appearance, Appearance::darkAqua) << name;
    }
    for (const char* name : {"", "Adwaita", "Greybird", "TraditionalOk", "\xff\xfe"}) {
        EXPECT_EQ(lookWithTheme(name).appearance, Appearance::aqua) << name;
    }
}

TEST(DesktopLook, IsLightAndAnimatedUnlessTheSettingsSayOtherwise) {
    EXPECT_EQ(lookOf({}), DesktopLook{});
    EXPECT_TRUE(lookOf({}).animates);
    EXPECT_FALSE(lookOf(parseXSettings(ordinary(false))).animates);
    const auto ofAnotherKind =
        Property().integer("Net/ThemeName", 1).text("Gtk/EnableAnimations", "0").bytes();
    EXPECT_EQ(lookOf(parseXSettings(ofAnotherKind)), DesktopLook{});
}

}  // namespace
}  // namespace zephrine
