// SPDX-License-Identifier: MIT
// The program's readings without its windows, for machines that have a graphics card to check but
// no desktop: built from the counters alone, by any C++20 compiler.
//   probe self-test              what the program's own self-test does
//   probe watch                  each second the time and the GPU's percent, or "-", on a line
// Both take --sys=FOLDER and --nvml=LIBRARY to look elsewhere than in the system's places.
#include <chrono>
#include <iomanip>
#include <iostream>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "app/SelfCheck.h"
#include "platform/linux/counters/LinuxHostCounters.h"
#include "platform/linux/gpu/LinuxGPURegistry.h"
#include "platform/linux/processes/LinuxProcessTable.h"
#include "sampling/Sampler.h"

namespace {

using namespace zephrine;

void sleepForTimeInterval(double seconds) {
    std::this_thread::sleep_for(std::chrono::duration<double>(seconds));
}

int runSelfTest(LinuxGPURegistry& gpuRegistry) {
    LinuxHostCounters host;
    LinuxProcessTable processTable;
    selfCheck({.host = host,
               .gpuRegistry = gpuRegistry,
               .processTable = processTable,
               .sleepForTimeInterval = sleepForTimeInterval,
               .output = std::cout,
               .errors = std::cerr});
    return 0;
}

int watch(LinuxGPURegistry& gpuRegistry) {
    LinuxHostCounters host;
    Sampler sampler(host, gpuRegistry);
    std::cout << std::fixed << std::setprecision(3);
    while (std::cout) {  // until nobody listens
        sleepForTimeInterval(1);
        const auto percent = sampler.gpu();
        const std::chrono::duration<double> time =
            std::chrono::system_clock::now().time_since_epoch();
        std::cout << time.count() << ' ';
        if (percent) {
            std::cout << *percent << std::endl;
        } else {
            std::cout << '-' << std::endl;
        }
    }
    return 0;
}

/// What follows `name` in the argument that begins with it.
std::string option(const std::vector<std::string>& arguments, std::string_view name,
                   std::string otherwise) {
    for (const std::string& argument : arguments) {
        if (argument.starts_with(name)) {
            return argument.substr(name.size());
        }
    }
    return otherwise;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv + 1, argv + argc);
    GPUPlaces places;
    places.sys = option(arguments, "--sys=", places.sys);
    places.nvml = option(arguments, "--nvml=", places.nvml);
    LinuxGPURegistry gpuRegistry(places);
    for (const std::string& argument : arguments) {
        if (argument == "self-test") {
            return runSelfTest(gpuRegistry);
        }
        if (argument == "watch") {
            return watch(gpuRegistry);
        }
    }
    std::cerr << "probe self-test | probe watch, [--sys=FOLDER] [--nvml=LIBRARY]\n";
    return 2;
}
