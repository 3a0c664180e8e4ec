// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/LinuxGPURegistry.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>

#include "platform/linux/AllocationCount.h"
#include "platform/linux/Eventually.h"
#include "platform/linux/gpu/FakeCards.h"

namespace zephrine {
namespace {

using testing::eventually;
using testing::FakeCards;

class LinuxGPURegistryTest : public ::testing::Test {
protected:
    static constexpr const char* kCard = "0000:03:00.0";
    static constexpr const char* kOtherCard = "0000:04:00.0";

    void addCard(const std::string& busy) const {
        cards.add(0, "amdgpu", kCard);
        setBusy(kCard, busy);
    }
    void setBusy(const char* address, const std::string& busy) const {
        cards.tree.write(FakeCards::device(address) + "gpu_busy_percent", busy);
    }
    std::vector<GPUService> services() {
        return registry.IOServiceGetMatchingServices("IOAccelerator").value();
    }
    std::optional<double> utilization(GPUService asked) {
        const Property* const property =
            registry.IORegistryEntryCreateCFProperty(asked, "PerformanceStatistics");
        if (property == nullptr) {
            return std::nullopt;
        }
        const auto& dictionary = std::get<PropertyDictionary>(*property);
        return std::get<double>(dictionary.find("Device Utilization %")->second);
    }
    /// Whether the service's figure comes to be `percent`.
    bool reaches(GPUService asked, std::optional<double> percent) {
        return eventually([&] { return utilization(asked) == percent; });
    }

    FakeCards cards;
    LinuxGPURegistry registry{{.sys = cards.tree.root()}};
    GPUService service = 0;
};

TEST_F(LinuxGPURegistryTest, GivesTheDriversOwnFigure) {
    addCard("0\n");
    service = services().at(0);
    EXPECT_TRUE(reaches(service, 0.0));
    for (const char* percent : {"37", "100", "120"}) {
        setBusy(kCard, std::string(percent) + "\n");
        EXPECT_TRUE(reaches(service, std::stod(percent)));
    }
    setBusy(kCard, "busy\n");
    EXPECT_TRUE(reaches(service, std::nullopt));
}

std::size_t threadCount() {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                      std::filesystem::directory_iterator()));
}

TEST_F(LinuxGPURegistryTest, ReadsACardInOneThread) {
    addCard("30\n");
    const std::size_t before = threadCount();
    service = services().at(0);
    EXPECT_TRUE(reaches(service, 30.0));
    EXPECT_EQ(threadCount(), before + 1);
    registry.IOObjectRelease(service);
    EXPECT_TRUE(eventually([before] { return threadCount() == before; }));
}

TEST_F(LinuxGPURegistryTest, KeepsTwoCardsApart) {
    addCard("30\n");
    cards.add(1, "amdgpu", kOtherCard);
    setBusy(kOtherCard, "70\n");
    const auto both = services();
    ASSERT_EQ(both.size(), 2U);
    EXPECT_NE(both[0], both[1]);
    EXPECT_TRUE(reaches(both[0], 30.0));
    EXPECT_TRUE(reaches(both[1], 70.0));
    registry.IOObjectRelease(both[0]);
    EXPECT_EQ(utilization(both[0]), std::nullopt);
    EXPECT_TRUE(reaches(both[1], 70.0));
}

TEST_F(LinuxGPURegistryTest, SurvivesACardThatIsRemovedAndComesBack) {
    addCard("30\n");
    service = services().at(0);
    EXPECT_TRUE(reaches(service, 30.0));
    cards.tree.remove("class");
    cards.tree.remove("devices");
    cards.tree.remove("bus");
    utilization(service);  // whatever the open descriptor still tells
    EXPECT_TRUE(services().empty());
    registry.IOObjectRelease(service);
    addCard("40\n");
    EXPECT_TRUE(reaches(services().at(0), 40.0));
}

TEST_F(LinuxGPURegistryTest, OffersOnlyCardsWhoseDriversTellTheirLoad) {
    cards.add(0, "bochs-drm", kCard);
    EXPECT_TRUE(services().empty());
}

TEST_F(LinuxGPURegistryTest, KnowsNoOtherClassesServicesOrProperties) {
    addCard("30\n");
    const auto none = registry.IOServiceGetMatchingServices("IODisplay");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->empty());
    service = services().at(0);
    ASSERT_TRUE(reaches(service, 30.0));
    EXPECT_EQ(registry.IORegistryEntryCreateCFProperty(service, "model"), nullptr);
    EXPECT_EQ(utilization(service + 1), std::nullopt);
    EXPECT_EQ(utilization(0), std::nullopt);
}

TEST_F(LinuxGPURegistryTest, IsAbsentWhenTheLookUpFails) {
    cards.tree.write("class/drm", "");
    EXPECT_FALSE(registry.IOServiceGetMatchingServices("IOAccelerator"));
}

TEST_F(LinuxGPURegistryTest, TakesNothingFromTheHeapOnceItRuns) {
    addCard("30\n");
    service = services().at(0);
    ASSERT_TRUE(reaches(service, 30.0));
    const std::size_t before = testing::allocationCount();
    for (int reading = 0; reading < 10; ++reading) {
        registry.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics");
    }
    EXPECT_EQ(testing::allocationCount(), before);
}

}  // namespace
}  // namespace zephrine
