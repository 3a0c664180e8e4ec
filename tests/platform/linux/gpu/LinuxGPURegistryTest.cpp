// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/LinuxGPURegistry.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/linux/AllocationCount.h"
#include "platform/linux/FakeTree.h"
#include "platform/linux/OpenWatch.h"

namespace zephrine {
namespace {

using testing::FakeTree;
using testing::OpenWatch;

class LinuxGPURegistryTest : public ::testing::Test {
protected:
    static std::string device(int card) {
        return "class/drm/card" + std::to_string(card) + "/device/";
    }
    void addCard(int card, const std::string& busy, const std::string& status = "active") const {
        sys.link(device(card) + "driver", "../../../bus/pci/drivers/amdgpu");
        sys.write(device(card) + "power/runtime_status", status + "\n");
        sys.write(device(card) + "gpu_busy_percent", busy);
    }

    std::vector<GPUService> services() {
        return registry.IOServiceGetMatchingServices("IOAccelerator").value();
    }
    std::optional<double> utilization(GPUService service) {
        const Property* const property =
            registry.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics");
        if (property == nullptr) {
            return std::nullopt;
        }
        const auto& dictionary = std::get<PropertyDictionary>(*property);
        return std::get<double>(dictionary.find("Device Utilization %")->second);
    }
    /// What a machine with one card that says `busy` gives.
    std::optional<double> utilizationOf(const std::string& busy) {
        addCard(0, "0\n");
        const GPUService service = services().at(0);
        sys.write(device(0) + "gpu_busy_percent", busy);
        const auto result = utilization(service);
        registry.IOObjectRelease(service);
        sys.remove("class");
        return result;
    }

    FakeTree sys;
    double now = 0;
    LinuxGPURegistry registry{sys.root(), [this] { return now; }};
};

TEST_F(LinuxGPURegistryTest, GivesTheDriversOwnFigure) {
    EXPECT_EQ(utilizationOf("0\n"), 0.0);
    EXPECT_EQ(utilizationOf("37\n"), 37.0);
    EXPECT_EQ(utilizationOf("100\n"), 100.0);
}

TEST_F(LinuxGPURegistryTest, PassesNumbersOnUncheckedForTheSamplerToJudge) {
    EXPECT_EQ(utilizationOf("120\n"), 120.0);
    EXPECT_EQ(utilizationOf("-5\n"), -5.0);
}

TEST_F(LinuxGPURegistryTest, HasNoStatisticsWhenTheFigureIsNotANumber) {
    for (const char* text :
         {"", "37", "busy\n", "3 7\n", "37%\n", "nan\n", "1e2\n", "99999999999999999999\n"}) {
        EXPECT_EQ(utilizationOf(text), std::nullopt) << text;
    }
    EXPECT_EQ(utilizationOf(std::string(3, '\0') + "\n"), std::nullopt);
    EXPECT_EQ(utilizationOf(std::string(std::size_t{10} << 20U, '1')), std::nullopt);
}

TEST_F(LinuxGPURegistryTest, OpensNothingButTheStatusOfACardThatSleeps) {
    addCard(0, "55\n", "suspended");
    sys.write(device(0) + "power/control", "auto\n");
    const GPUService service = services().at(0);
    OpenWatch watch(sys.path(device(0)));
    OpenWatch power(sys.path(device(0) + "power"));
    EXPECT_EQ(utilization(service), std::nullopt);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(power.touched(), std::set<std::string>{"runtime_status"});
    sys.write(device(0) + "power/runtime_status", "active\n");
    EXPECT_EQ(utilization(service), 55.0);
    EXPECT_EQ(watch.touched(), std::set<std::string>{"gpu_busy_percent"});
}

TEST_F(LinuxGPURegistryTest, StopsReadingWhenTheCardFallsAsleep) {
    addCard(0, "55\n");
    const GPUService service = services().at(0);
    EXPECT_EQ(utilization(service), 55.0);
    sys.write(device(0) + "power/runtime_status", "suspended\n");
    OpenWatch watch(sys.path(device(0)));
    EXPECT_EQ(utilization(service), std::nullopt);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
}

TEST_F(LinuxGPURegistryTest, TouchesNoCardWhileLookingForThem) {
    addCard(0, "55\n", "suspended");
    OpenWatch watch(sys.path(device(0)));
    OpenWatch power(sys.path(device(0) + "power"));
    EXPECT_EQ(services().size(), 1U);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(power.touched(), std::set<std::string>{});
}

TEST_F(LinuxGPURegistryTest, LetsAnIdleCardFallAsleep) {
    addCard(0, "0\n");
    sys.write(device(0) + "power/control", "auto\n");
    sys.write(device(0) + "power/autosuspend_delay_ms", "5000\n");
    const GPUService service = services().at(0);
    for (; now < 3; ++now) {
        EXPECT_EQ(utilization(service), 0.0);
    }
    OpenWatch watch(sys.path(device(0)));
    for (; now < 8; ++now) {
        EXPECT_EQ(utilization(service), std::nullopt);
    }
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(utilization(service), 0.0);
}

TEST_F(LinuxGPURegistryTest, KeepsTwoCardsApart) {
    addCard(0, "30\n");
    addCard(1, "70\n");
    const auto both = services();
    ASSERT_EQ(both.size(), 2U);
    EXPECT_NE(both[0], both[1]);
    EXPECT_EQ(utilization(both[0]), 30.0);
    EXPECT_EQ(utilization(both[1]), 70.0);
    registry.IOObjectRelease(both[0]);
    EXPECT_EQ(utilization(both[0]), std::nullopt);
    EXPECT_EQ(utilization(both[1]), 70.0);
}

TEST_F(LinuxGPURegistryTest, SurvivesACardThatIsRemoved) {
    addCard(0, "30\n");
    const GPUService service = services().at(0);
    EXPECT_EQ(utilization(service), 30.0);
    sys.remove("class/drm/card0");
    const auto again = services();
    EXPECT_TRUE(again.empty());
    registry.IOObjectRelease(service);
    addCard(0, "40\n");
    EXPECT_EQ(utilization(services().at(0)), 40.0);
}

TEST_F(LinuxGPURegistryTest, HasNoStatisticsWhileTheReadFails) {
    addCard(0, "30\n");
    const GPUService service = services().at(0);
    sys.remove(device(0) + "gpu_busy_percent");
    EXPECT_EQ(utilization(service), std::nullopt);
    ASSERT_EQ(::mkfifo(sys.path(device(0) + "gpu_busy_percent").c_str(), 0600), 0);
    EXPECT_EQ(utilization(service), std::nullopt);
    sys.remove(device(0) + "gpu_busy_percent");
    sys.write(device(0) + "gpu_busy_percent", "31\n");
    EXPECT_EQ(utilization(service), 31.0);
}

TEST_F(LinuxGPURegistryTest, OffersOnlyCardsWhoseDriversTellTheirLoad) {
    sys.link("class/drm/card0/device/driver", "../../../bus/pci/drivers/bochs-drm");
    sys.write("class/drm/card1/dev", "226:1\n");
    EXPECT_TRUE(services().empty());
}

TEST_F(LinuxGPURegistryTest, KnowsNoOtherClassesServicesOrProperties) {
    addCard(0, "30\n");
    const auto none = registry.IOServiceGetMatchingServices("IODisplay");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->empty());
    const GPUService service = services().at(0);
    EXPECT_EQ(registry.IORegistryEntryCreateCFProperty(service, "model"), nullptr);
    EXPECT_EQ(utilization(service + 1), std::nullopt);
    EXPECT_EQ(utilization(0), std::nullopt);
}

TEST_F(LinuxGPURegistryTest, IsAbsentWhenTheLookUpFails) {
    sys.write("class/drm", "");
    EXPECT_FALSE(registry.IOServiceGetMatchingServices("IOAccelerator"));
}

TEST_F(LinuxGPURegistryTest, TakesNothingFromTheHeapOnceItRuns) {
    addCard(0, "30\n");
    const GPUService service = services().at(0);
    EXPECT_EQ(utilization(service), 30.0);
    const std::size_t before = testing::allocationCount();
    for (int reading = 0; reading < 10; ++reading) {
        registry.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics");
    }
    EXPECT_EQ(testing::allocationCount(), before);
}

}  // namespace
}  // namespace zephrine
