// SPDX-License-Identifier: MIT
// Everything that the program asks of the operating system, behind one door. A port implements the
// interfaces of this folder and `makePlatform`; the build links exactly one implementation.
#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "platform/Application.h"
#include "platform/Formatting.h"
#include "platform/GPURegistry.h"
#include "platform/HostCounters.h"
#include "platform/LoginItem.h"
#include "platform/PreferenceStore.h"
#include "platform/ProcessTable.h"

namespace zephrine {

/// Why there is no application object.
struct NoDesktop {
    std::string reason;  ///< one line
};
/// The program runs on this desktop already, and was told what this start asks for: nothing is left
/// to do.
struct RunsAlready {};

/// Hands out the services, each made at its first use: asking for counters or for the login status
/// opens no connection to a display or a bus. What it hands out lives as long as it does.
class Platform {
public:
    virtual ~Platform() = default;

    virtual HostCounters& hostCounters() = 0;
    virtual GPURegistry& gpuRegistry() = 0;
    /// Nobody else's: a table of which somebody still has a share, as does a capture that was given
    /// up, is left to them. May live longer than the platform.
    virtual std::shared_ptr<ProcessTable> processTable() = 0;
    virtual PreferenceStore& preferenceStore() = 0;
    virtual LoginItem& loginItem() = 0;
    virtual Formatting& formatting() = 0;

    /// Connects to the desktop. The application is never null.
    virtual std::variant<Application*, NoDesktop, RunsAlready> sharedApplication() = 0;
};

/// `arguments` are the program's, its own path first.
std::unique_ptr<Platform> makePlatform(std::vector<std::string> arguments);

}  // namespace zephrine
