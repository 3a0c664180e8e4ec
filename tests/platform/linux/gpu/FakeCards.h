// SPDX-License-Identifier: MIT
// Graphics cards in a folder that stands in for /sys, laid out and linked as the kernel does it.
#pragma once

#include <string>

#include "platform/linux/FakeTree.h"

namespace zephrine::testing {

class FakeCards {
public:
    /// Adds card `number` at `address` on the PCI bus.
    void add(int number, const std::string& driver, const std::string& address,
             const std::string& status = "active") const {
        addDevice(driver, address, status);
        const std::string card = "card" + std::to_string(number);
        const std::string node = device(address) + "drm/" + card;
        tree.link(node + "/device", "../../../" + address);
        tree.write(device(address) + "drm/renderD" + std::to_string(128 + number) + "/dev", "\n");
        tree.link("class/drm/" + card, "../../" + node);
    }
    /// Adds a device that has no card in /sys/class/drm.
    void addDevice(const std::string& driver, const std::string& address,
                   const std::string& status = "active") const {
        tree.link(device(address) + "driver", "../../../bus/pci/drivers/" + driver);
        tree.link("bus/pci/drivers/" + driver + "/" + address, "../../../../" + device(address));
        setStatus(address, status);
    }
    void setStatus(const std::string& address, const std::string& status) const {
        tree.write(device(address) + "power/runtime_status", status + "\n");
    }
    /// Lets the card fall asleep by itself after some idle time.
    void letSleep(const std::string& address, int milliseconds) const {
        tree.write(device(address) + "power/control", "auto\n");
        tree.write(device(address) + "power/autosuspend_delay_ms",
                   std::to_string(milliseconds) + "\n");
    }
    /// Below the root; with a slash at its end.
    static std::string device(const std::string& address) {
        return "devices/pci0000:00/" + address + "/";
    }

    FakeTree tree;
};

}  // namespace zephrine::testing
