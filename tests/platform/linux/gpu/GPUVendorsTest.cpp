// SPDX-License-Identifier: MIT
// The registry with the cards of every maker, as the sampler uses it.
#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <thread>

#include "platform/linux/Eventually.h"
#include "platform/linux/OpenWatch.h"
#include "platform/linux/counters/LinuxHostCounters.h"
#include "platform/linux/gpu/FakeCards.h"
#include "platform/linux/gpu/FakeClients.h"
#include "platform/linux/gpu/FakeNVML.h"
#include "platform/linux/gpu/LinuxGPURegistry.h"
#include "sampling/Sampler.h"

namespace zephrine {
namespace {

using testing::eventually;
using testing::FakeCards;
using testing::FakeClients;
using testing::FakeNVML;
using testing::OpenWatch;

class GPUVendorsTest : public ::testing::Test {
protected:
    static constexpr const char* kIntegrated = "0000:00:02.0";
    static constexpr const char* kDiscrete = "0000:01:00.0";

    /// The sampler's reading once it is `percent`; absent when that never comes.
    std::optional<double> reaches(Sampler& sampler, double percent) {
        return eventually([&sampler, percent] {
            const auto reading = sampler.gpu();
            return reading == percent ? reading : std::nullopt;
        });
    }
    /// Lets the engines work for this share of each second, until the sampler says so. `tell` is
    /// given the nanoseconds of work and of time so far.
    std::optional<double> worksUntilSeen(
        Sampler& sampler, double percent,
        const std::function<void(std::uint64_t busy, std::uint64_t time)>& tell) {
        return eventually([&, this, time = std::uint64_t{0}]() mutable {
            time += 1'000'000'000;
            tell(static_cast<std::uint64_t>(percent * static_cast<double>(time) / 100), time);
            now = now + 1;
            std::this_thread::sleep_for(std::chrono::milliseconds(300));
            const auto reading = sampler.gpu();
            return reading == percent ? reading : std::nullopt;
        });
    }
    [[nodiscard]] GPUPlaces places() const {
        return {.sys = cards.tree.root(),
                .proc = clients.tree.root(),
                .nvml = FakeNVML::library(),
                .openPerf = [](auto, auto, auto) { return FileDescriptor(); }};
    }

    FakeCards cards;
    FakeClients clients;
    FakeNVML nvml;
    std::atomic<double> now = 1000;
    LinuxHostCounters host;
    LinuxGPURegistry registry{places(), [this] { return now.load(); }};
};

TEST_F(GPUVendorsTest, HaveAFigureForNvidia) {
    cards.add(0, "nvidia", kDiscrete);
    nvml.setUtilization(kDiscrete, 42);
    Sampler sampler(host, registry);
    EXPECT_EQ(reaches(sampler, 42), 42.0);
}

TEST_F(GPUVendorsTest, HaveAFigureForNvidiaWithoutAGraphicsCard) {
    cards.addDevice("nvidia", kDiscrete);
    nvml.setUtilization(kDiscrete, 42);
    Sampler sampler(host, registry);
    EXPECT_EQ(reaches(sampler, 42), 42.0);
}

TEST_F(GPUVendorsTest, HaveAFigureForV3D) {
    const auto tell = [this](std::uint64_t busy, std::uint64_t time) {
        cards.tree.write(FakeCards::device(kIntegrated) + "gpu_stats",
                         "queue\ttimestamp\tjobs\truntime\nrender\t" + std::to_string(time) +
                             "\t5\t" + std::to_string(busy) + "\n");
    };
    cards.add(0, "v3d", kIntegrated);
    tell(0, 0);
    Sampler sampler(host, registry);
    EXPECT_EQ(worksUntilSeen(sampler, 60, tell), 60.0);
}

TEST_F(GPUVendorsTest, HaveAFigureForIntelFromItsClients) {
    const auto tell = [this](std::uint64_t busy, std::uint64_t /*time*/) {
        clients.tell(7, 4, FakeClients::client("1", kIntegrated, busy));
    };
    for (const char* driver : {"i915", "xe", "panfrost", "msm_dpu"}) {
        cards.add(0, driver, kIntegrated);
        clients.open(7, 4, "/dev/dri/renderD128", FakeClients::client("1", kIntegrated, 0));
        Sampler sampler(host, registry);
        EXPECT_EQ(worksUntilSeen(sampler, 25, tell), 25.0) << driver;
        cards.tree.remove("class");
        cards.tree.remove("devices");
        cards.tree.remove("bus");
        clients.close(7, 4);
    }
}

TEST_F(GPUVendorsTest, GiveTheBusierOfTwoCards) {
    cards.add(0, "amdgpu", kIntegrated);
    cards.tree.write(FakeCards::device(kIntegrated) + "gpu_busy_percent", "30\n");
    cards.add(1, "nvidia", kDiscrete);
    nvml.setUtilization(kDiscrete, 70);
    Sampler sampler(host, registry);
    EXPECT_EQ(reaches(sampler, 70), 70.0);
    cards.tree.write(FakeCards::device(kIntegrated) + "gpu_busy_percent", "90\n");
    EXPECT_EQ(reaches(sampler, 90), 90.0);
}

TEST_F(GPUVendorsTest, GiveTheIntegratedCardsFigureAndTouchNothingOfTheOneThatSleeps) {
    cards.add(0, "amdgpu", kIntegrated);
    cards.tree.write(FakeCards::device(kIntegrated) + "gpu_busy_percent", "30\n");
    cards.add(1, "nvidia", kDiscrete, "suspended");
    cards.tree.write(FakeCards::device(kDiscrete) + "config", "wakes the card\n");
    clients.open(7, 4, "/dev/dri/renderD129", "wakes the card\n");
    nvml.setUtilization(kDiscrete, 70);
    OpenWatch watch(cards.tree.path(FakeCards::device(kDiscrete)));
    OpenWatch power(cards.tree.path(FakeCards::device(kDiscrete) + "power"));
    OpenWatch fdinfo(clients.tree.path("7/fdinfo"));
    Sampler sampler(host, registry);
    std::size_t looks = 0;
    ASSERT_TRUE(eventually([&] {
        sampler.gpu();
        looks += power.takeReads().size();
        return looks >= 5;
    }));
    EXPECT_EQ(reaches(sampler, 30), 30.0);
    EXPECT_EQ(watch.touched(), std::set<std::string>{});
    EXPECT_EQ(power.touched(), std::set<std::string>{"runtime_status"});
    EXPECT_EQ(fdinfo.touched(), std::set<std::string>{});
    EXPECT_EQ(nvml.calls(), std::vector<std::string>{});
}

TEST_F(GPUVendorsTest, LoseACardThatIsRemovedWhileItIsRead) {
    cards.add(0, "nvidia", kDiscrete);
    nvml.setUtilization(kDiscrete, 42);
    Sampler sampler(host, registry);
    ASSERT_EQ(reaches(sampler, 42), 42.0);
    nvml.clear(kDiscrete);
    EXPECT_TRUE(eventually([&] { return !sampler.gpu(); }));
    cards.tree.remove("class");
    cards.tree.remove("devices");
    cards.tree.remove("bus");
    EXPECT_TRUE(eventually([&] { return !sampler.gpu(); }));
    sampler.discoverGPU();
    EXPECT_EQ(sampler.gpu(), std::nullopt);
    EXPECT_TRUE(eventually([&] { return !nvml.holdsDevice(); }));
}

TEST_F(GPUVendorsTest, NeverWaitForADriverThatIsStuck) {
    cards.add(0, "nvidia", kDiscrete);
    nvml.setUtilization(kDiscrete, 42);
    nvml.set("stuck", "1");
    {
        Sampler sampler(host, registry);
        EXPECT_TRUE(eventually([&] {
            EXPECT_EQ(sampler.gpu(), std::nullopt);
            return !nvml.calls().empty() && nvml.calls().back() == "rates";
        }));
        sampler.discoverGPU();
        EXPECT_EQ(sampler.gpu(), std::nullopt);
    }
    nvml.clear("stuck");
    EXPECT_TRUE(eventually([&] { return !nvml.holdsDevice(); }));
}

}  // namespace
}  // namespace zephrine
