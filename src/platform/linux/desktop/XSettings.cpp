// SPDX-License-Identifier: MIT
// Byte order, serial and number of settings; then each setting: kind, name, serial and value, all
// padded to four bytes.
#include "platform/linux/desktop/XSettings.h"

#include <cstddef>

namespace zephrine {

namespace {

enum Kind : std::uint8_t { integer = 0, text = 1, colour = 2 };

/// Takes pieces off the front; once there is too little left, it fails for good, and gives nothing.
class Scanner {
public:
    explicit Scanner(std::string_view rest) : rest_(rest) {}

    [[nodiscard]] bool hasFailed() const { return hasFailed_; }
    void setBigEndian(bool isBig) { isBigEndian_ = isBig; }

    std::string_view bytes(std::size_t count) {
        hasFailed_ = hasFailed_ || rest_.size() < count;
        if (hasFailed_) {
            return {};
        }
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }
    std::string_view padded(std::size_t count) {
        const std::string_view taken = bytes(count);
        bytes((4 - count % 4) % 4);
        return taken;
    }
    std::uint32_t number(std::size_t size) {
        const std::string_view taken = bytes(size);
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < taken.size(); ++i) {
            const char byte = taken[isBigEndian_ ? i : taken.size() - 1 - i];
            value = value << 8U | static_cast<unsigned char>(byte);
        }
        return value;
    }

private:
    std::string_view rest_;
    bool isBigEndian_ = false;
    bool hasFailed_ = false;
};

/// False when it makes no sense.
bool takeSetting(Scanner& scanner, XSettings& settings) {
    const std::uint32_t kind = scanner.number(1);
    scanner.bytes(1);
    const std::string name(scanner.padded(scanner.number(2)));
    scanner.number(4);  // the serial of its last change
    if (kind == Kind::colour) {
        scanner.bytes(8);
        return !scanner.hasFailed();
    }
    const std::uint32_t number = scanner.number(4);  // the value, or how long it is
    const std::string_view value = kind == Kind::text ? scanner.padded(number) : "";
    if (scanner.hasFailed() || kind > Kind::text) {
        return false;
    }
    if (kind == Kind::text) {
        settings[name] = std::string(value);
    } else {
        settings[name] = static_cast<std::int32_t>(number);
    }
    return true;
}

}  // namespace

XSettings parseXSettings(std::string_view property) {
    XSettings settings;
    Scanner scanner(property);
    const std::uint32_t order = scanner.number(1);
    scanner.setBigEndian(order == 1);
    scanner.bytes(3);
    scanner.number(4);  // the serial
    const std::uint32_t count = scanner.number(4);
    if (scanner.hasFailed() || order > 1) {
        return settings;
    }
    for (std::uint32_t i = 0; i < count && takeSetting(scanner, settings); ++i) {
    }
    return settings;
}

}  // namespace zephrine
