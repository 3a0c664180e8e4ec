// SPDX-License-Identifier: MIT
// A library that stands in for NVIDIA's. What it answers stands in files of the folder that
// $ZEPHRINE_FAKE_NVML names, and it notes there what it was asked:
//   calls          one word a line for each call: start, stop, device, rates, display
//   init           what nvmlInit_v2 returns (0)
//   ADDRESS        percent of the card at that address; a negative number is an error
//   display        whether a screen shows the card's picture (0)
//   stuck          while this exists, questions about the load are not answered
// While started it holds the folder's file nvidia0 open, as the real one holds its devices.
#include <fcntl.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <set>
#include <string>
#include <thread>

namespace {

// Like the real one it may be used by several threads, and started as often as it is stopped.
std::mutex mutex;
int users = 0;
int device = -1;
std::set<std::string> addresses;  ///< each one's place stands for the card

std::string file(const std::string& name) {
    const char* const folder = std::getenv("ZEPHRINE_FAKE_NVML");
    return std::string(folder == nullptr ? "/nowhere" : folder) + "/" + name;
}

int number(const std::string& name, int otherwise) {
    std::ifstream stream(file(name));
    int value = otherwise;
    return stream >> value ? value : otherwise;
}

void note(const char* call) {
    std::ofstream(file("calls"), std::ios::app) << call << '\n';
}

}  // namespace

extern "C" {

int nvmlInit_v2() {
    note("start");
    const int result = number("init", 0);
    const std::lock_guard lock(mutex);
    if (result == 0 && ++users == 1) {
        device = ::open(file("nvidia0").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    }
    return result;
}

int nvmlShutdown() {
    note("stop");
    const std::lock_guard lock(mutex);
    if (--users == 0) {
        ::close(device);
    }
    return 0;
}

int nvmlDeviceGetHandleByPciBusId_v2(const char* where, void** handle) {
    constexpr int kNotFound = 6;
    note("device");
    const std::lock_guard lock(mutex);
    *handle = const_cast<std::string*>(&*addresses.insert(where).first);
    return std::filesystem::exists(file(where)) ? 0 : kNotFound;
}

int nvmlDeviceGetUtilizationRates(void* handle, unsigned* rates) {
    constexpr int kNotSupported = 3;
    note("rates");
    while (std::filesystem::exists(file("stuck"))) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
    const int percent = number(*static_cast<const std::string*>(handle), -1);
    rates[0] = static_cast<unsigned>(percent);
    return percent < 0 ? kNotSupported : 0;
}

int nvmlDeviceGetDisplayActive(void* /*handle*/, int* active) {
    note("display");
    *active = number("display", 0);
    return 0;
}
}
