// SPDX-License-Identifier: MIT
#include "platform/linux/gpu/LinuxGPURegistry.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <atomic>
#include <filesystem>
#include <iterator>

#include "platform/linux/AllocationCount.h"
#include "platform/linux/Eventually.h"
#include "platform/linux/OpenWatch.h"
#include "platform/linux/gpu/FakeCards.h"

namespace zephrine {
namespace {

using testing::eventually;
using testing::FakeCards;
using testing::OpenWatch;

/// Cards that are read on the main thread.
class LinuxGPURegistryTest : public ::testing::Test {
protected:
    static constexpr const char* kCard = "0000:03:00.0";
    static constexpr const char* kOtherCard = "0000:04:00.0";

    void addCard(const std::string& busy, const std::string& status = "active") const {
        cards.add(0, "amdgpu", kCard, status);
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
    /// What a machine with one card that says `busy` gives.
    std::optional<double> utilizationOf(const std::string& busy) {
        setBusy(kCard, busy);
        return utilization(service);
    }

    FakeCards cards;
    double now = 0;
    LinuxGPURegistry registry{{.sys = cards.tree.root()}, [this] { return now; }};
    GPUService service = 0;
};

TEST_F(LinuxGPURegistryTest, GivesTheDriversOwnFigure) {
    addCard("0\n");
    service = services().at(0);
    EXPECT_EQ(utilizationOf("0\n"), 0.0);
    EXPECT_EQ(utilizationOf("37\n"), 37.0);
    EXPECT_EQ(utilizationOf("100\n"), 100.0);
}

TEST_F(LinuxGPURegistryTest, PassesNumbersOnUncheckedForTheSamplerToJudge) {
    addCard("0\n");
    service = services().at(0);
    EXPECT_EQ(utilizationOf("120\n"), 120.0);
    EXPECT_EQ(utilizationOf("-5\n"), -5.0);
}

TEST_F(LinuxGPURegistryTest, HasNoStatisticsWhenTheFigureIsNotANumber) {
    addCard("0\n");
    service = services().at(0);
    for (const char* text :
         {"", "37", "busy\n", "3 7\n", "37%\n", "nan\n", "1e2\n", "99999999999999999999\n"}) {
        EXPECT_EQ(utilizationOf(text), std::nullopt) << text;
    }
    EXPECT_EQ(utilizationOf(std::string(3, '\0') + "\n"), std::nullopt);
    EXPECT_EQ(utilizationOf(std::string(std::size_t{10} << 20U, '1')), std::nullopt);
    EXPECT_EQ(utilizationOf("37\n"), 37.0);
}

TEST_F(LinuxGPURegistryTest, OpensNothingButTheStatusOfACardThatSleeps) {
    addCard("55\n", "suspended");
    cards.letSleep(kCard, 5000);
    OpenWatch watch(cards.tree.path(FakeCards::device(kCard)));
    OpenWatch power(cards.tree.path(FakeCards::device(kCard) + "power"));
    service = services().at(0);
    EXPECT_EQ(utilization(service), std::nullopt);
    EXPECT_EQ(utilization(service), std::nullopt);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(power.touched(), std::set<std::string>{"runtime_status"});
}

TEST_F(LinuxGPURegistryTest, ReadsACardThatWokeFromItsSecondFigureOn) {
    addCard("99\n", "suspended");
    service = services().at(0);
    EXPECT_EQ(utilization(service), std::nullopt);
    cards.setStatus(kCard, "active");
    EXPECT_EQ(utilization(service), std::nullopt);
    EXPECT_EQ(utilizationOf("55\n"), 55.0);
}

TEST_F(LinuxGPURegistryTest, StopsReadingWhenTheCardFallsAsleep) {
    addCard("55\n");
    service = services().at(0);
    EXPECT_EQ(utilization(service), 55.0);
    cards.setStatus(kCard, "suspended");
    OpenWatch watch(cards.tree.path(FakeCards::device(kCard)));
    EXPECT_EQ(utilization(service), std::nullopt);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
}

TEST_F(LinuxGPURegistryTest, LetsAnIdleCardFallAsleep) {
    addCard("0\n");
    cards.letSleep(kCard, 5000);
    service = services().at(0);
    for (; now < 3; ++now) {
        EXPECT_EQ(utilization(service), 0.0);
    }
    OpenWatch watch(cards.tree.path(FakeCards::device(kCard)));
    for (; now < 8; ++now) {
        EXPECT_EQ(utilization(service), std::nullopt);
    }
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(utilization(service), 0.0);
}

std::size_t threadCount() {
    return static_cast<std::size_t>(
        std::distance(std::filesystem::directory_iterator("/proc/self/task"),
                      std::filesystem::directory_iterator()));
}

TEST_F(LinuxGPURegistryTest, ReadsACardThatIsSlowTimeAndAgainInOneThread) {
    addCard("30\n");
    std::atomic<int> seconds = 0;
    LinuxGPURegistry slow{{.sys = cards.tree.root()},
                          [&seconds] { return static_cast<double>(++seconds); }};
    const std::size_t before = threadCount();
    service = slow.IOServiceGetMatchingServices("IOAccelerator").value().at(0);
    for (int reading = 0; reading < 12; ++reading) {
        slow.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics");
    }
    EXPECT_EQ(threadCount(), before + 1);
    EXPECT_TRUE(eventually([&] {
        return slow.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics") != nullptr;
    }));
}

TEST_F(LinuxGPURegistryTest, KeepsTwoCardsApart) {
    addCard("30\n");
    cards.add(1, "amdgpu", kOtherCard);
    setBusy(kOtherCard, "70\n");
    const auto both = services();
    ASSERT_EQ(both.size(), 2U);
    EXPECT_NE(both[0], both[1]);
    EXPECT_EQ(utilization(both[0]), 30.0);
    EXPECT_EQ(utilization(both[1]), 70.0);
    registry.IOObjectRelease(both[0]);
    EXPECT_EQ(utilization(both[0]), std::nullopt);
    EXPECT_EQ(utilization(both[1]), 70.0);
}

TEST_F(LinuxGPURegistryTest, SurvivesACardThatIsRemovedAndComesBack) {
    addCard("30\n");
    service = services().at(0);
    EXPECT_EQ(utilization(service), 30.0);
    cards.tree.remove("class");
    cards.tree.remove("devices");
    cards.tree.remove("bus");
    utilization(service);  // whatever the open descriptor still tells
    EXPECT_TRUE(services().empty());
    registry.IOObjectRelease(service);
    addCard("40\n");
    EXPECT_EQ(utilization(services().at(0)), 40.0);
}

TEST_F(LinuxGPURegistryTest, HasNoStatisticsWhileTheReadFails) {
    addCard("30\n");
    service = services().at(0);
    const std::string busy = FakeCards::device(kCard) + "gpu_busy_percent";
    cards.tree.remove(busy);
    ASSERT_EQ(::mkfifo(cards.tree.path(busy).c_str(), 0600), 0);
    registry.IOObjectRelease(service);
    service = services().at(0);
    EXPECT_EQ(utilization(service), std::nullopt);
    cards.tree.remove(busy);
    EXPECT_EQ(utilization(service), std::nullopt);
    EXPECT_EQ(utilizationOf("31\n"), 31.0);
}

TEST_F(LinuxGPURegistryTest, OffersOnlyCardsWhoseDriversTellTheirLoad) {
    cards.add(0, "bochs-drm", kCard);
    cards.tree.write("class/drm/card1/dev", "226:1\n");
    EXPECT_TRUE(services().empty());
}

TEST_F(LinuxGPURegistryTest, KnowsNoOtherClassesServicesOrProperties) {
    addCard("30\n");
    const auto none = registry.IOServiceGetMatchingServices("IODisplay");
    ASSERT_TRUE(none);
    EXPECT_TRUE(none->empty());
    service = services().at(0);
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
    EXPECT_EQ(utilization(service), 30.0);
    const std::size_t before = testing::allocationCount();
    for (int reading = 0; reading < 10; ++reading) {
        registry.IORegistryEntryCreateCFProperty(service, "PerformanceStatistics");
    }
    EXPECT_EQ(testing::allocationCount(), before);
}

}  // namespace
}  // namespace zephrine
