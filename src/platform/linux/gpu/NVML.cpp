// SPDX-License-Identifier: MIT
// Names, arguments and values: NVIDIA's "NVML API Reference Guide". All functions return 0 on
// success.
#include "platform/linux/gpu/NVML.h"

#include <dlfcn.h>

#include <utility>

namespace zephrine {

namespace {

using Device = void*;
struct Utilization {
    unsigned gpu;     ///< percent of the last sample period, a sixth of a second to one second
    unsigned memory;  ///< likewise, of the memory's bandwidth
};

class Library {
public:
    /// The code stays mapped once it was loaded: threads of the library may still run in it.
    explicit Library(const std::string& name)
        : handle_(::dlopen(name.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE)) {}
    ~Library() {
        if (handle_ != nullptr) {
            ::dlclose(handle_);
        }
    }
    Library(const Library&) = delete;
    Library& operator=(const Library&) = delete;

    template <typename Function>
    bool find(const char* name, Function*& function) const {
        function =
            handle_ == nullptr ? nullptr : reinterpret_cast<Function*>(::dlsym(handle_, name));
        return function != nullptr;
    }

private:
    void* handle_;
};

}  // namespace

struct NVML::Functions {
    explicit Functions(const std::string& name) : library(name) {}

    Library library;
    int (*init)() = nullptr;
    int (*shutdown)() = nullptr;
    int (*deviceAt)(const char* address, Device*) = nullptr;
    int (*utilizationRates)(Device, Utilization*) = nullptr;
    int (*displayActive)(Device, int*) = nullptr;

    bool findAll() {
        return library.find("nvmlInit_v2", init) && library.find("nvmlShutdown", shutdown) &&
               library.find("nvmlDeviceGetHandleByPciBusId_v2", deviceAt) &&
               library.find("nvmlDeviceGetUtilizationRates", utilizationRates) &&
               library.find("nvmlDeviceGetDisplayActive", displayActive);
    }
};

std::unique_ptr<NVML> NVML::start(const std::string& library) {
    auto functions = std::make_unique<Functions>(library);
    if (!functions->findAll() || functions->init() != 0) {
        return nullptr;
    }
    return std::unique_ptr<NVML>(new NVML(std::move(functions)));
}

NVML::NVML(std::unique_ptr<Functions> functions) : functions_(std::move(functions)) {}

NVML::~NVML() {
    functions_->shutdown();
}

std::optional<double> NVML::utilization(const std::string& address) const {
    constexpr unsigned kMost = 100;
    Device device = nullptr;
    Utilization rates{};
    if (functions_->deviceAt(address.c_str(), &device) != 0 ||
        functions_->utilizationRates(device, &rates) != 0 || rates.gpu > kMost) {
        return std::nullopt;
    }
    return rates.gpu;
}

bool NVML::drivesDisplay(const std::string& address) const {
    Device device = nullptr;
    int active = 0;
    return functions_->deviceAt(address.c_str(), &device) == 0 &&
           functions_->displayActive(device, &active) == 0 && active != 0;
}

}  // namespace zephrine
