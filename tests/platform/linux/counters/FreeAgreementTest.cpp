// SPDX-License-Identifier: MIT
// The used memory that this program shows against what `free` prints, on this machine, while
// anonymous memory, page cache and tmpfs grow in turn.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <memory>
#include <regex>
#include <string>
#include <tuple>
#include <vector>

#include "platform/linux/FakeTree.h"
#include "platform/linux/counters/LinuxHostCounters.h"
#include "sampling/MemoryReading.h"

namespace zephrine {
namespace {

std::string output(const char* command) {
    const auto close = [](FILE* pipe) { ::pclose(pipe); };
    const std::unique_ptr<FILE, decltype(close)> pipe(::popen(command, "re"), close);
    std::string text;
    std::vector<char> buffer(4096);
    while (pipe &&
           std::fgets(buffer.data(), static_cast<int>(buffer.size()), pipe.get()) != nullptr) {
        text += buffer.data();
    }
    return text;
}

/// Since 4.0.1 `free` calls used what is not available; before, it left out tmpfs.
bool isFreeRecent() {
    const std::regex name(R"(free from procps-ng (\d+)\.(\d+)\.(\d+)\s*)");
    const std::string version = output("free --version 2>/dev/null");
    std::smatch numbers;
    return std::regex_match(version, numbers, name) &&
           std::tuple(std::stoi(numbers[1]), std::stoi(numbers[2]), std::stoi(numbers[3])) >=
               std::tuple(4, 0, 1);
}

double usedByFree() {
    const std::string text = output("LC_ALL=C free -b");
    const std::regex totalAndUsed(R"(Mem: +\d+ +(\d+))");
    std::smatch numbers;
    if (!std::regex_search(text, numbers, totalAndUsed)) {
        ADD_FAILURE() << "cannot read: " << text;
        return 0;
    }
    return std::stod(numbers[1]);
}

class FreeAgreement : public ::testing::Test {
protected:
    void SetUp() override {
        if (!isFreeRecent()) {
            GTEST_SKIP() << "no free of procps-ng 4.0.1 or newer";
        }
    }

    double usedHere() {
        const auto page = counters.host_page_size();
        const auto statistics = counters.host_statistics64();
        if (!page || !statistics) {
            ADD_FAILURE() << "no memory figures";
            return 0;
        }
        return static_cast<double>(MemoryReading::usedBytes(*statistics, *page, total));
    }

    /// Both figures are read one after the other, and the machine works on: the best of some tries
    /// tells whether they mean the same.
    void expectAgreement() {
        auto difference = static_cast<double>(total);
        for (int attempt = 0; attempt < 10 && difference > 0.005 * totalBytes(); ++attempt) {
            difference = std::abs(usedHere() - usedByFree());
        }
        EXPECT_LE(difference, 0.005 * totalBytes());
    }
    /// Three times the difference that is tolerated, so that a definition of "used" which forgets
    /// it is found out; less on machines where that would be much.
    [[nodiscard]] std::size_t load() const {
        return std::min<std::size_t>(total / 64, std::size_t{512} << 20U);
    }

    /// Writes the load to `file`. False where there is no room for it.
    [[nodiscard]] bool fill(int file) const {
        const std::vector<char> block(std::size_t{1} << 20U, 'x');
        for (std::size_t written = 0; written < load(); written += block.size()) {
            if (::write(file, block.data(), block.size()) != static_cast<ssize_t>(block.size())) {
                return false;
            }
        }
        return true;
    }

    [[nodiscard]] double totalBytes() const { return static_cast<double>(total); }

    LinuxHostCounters counters;
    std::uint64_t total = counters.physicalMemory();
};

TEST_F(FreeAgreement, HoldsOnTheMachineAsItIs) {
    expectAgreement();
}

TEST_F(FreeAgreement, HoldsWithMoreAnonymousMemory) {
    std::vector<char> memory(load());
    std::memset(memory.data(), 1, memory.size());
    expectAgreement();
}

TEST_F(FreeAgreement, HoldsWithMoreMemoryInTmpfs) {
    const int file = ::memfd_create("load", MFD_CLOEXEC);
    ASSERT_GE(file, 0);
    ASSERT_TRUE(fill(file));
    expectAgreement();
    ::close(file);
}

TEST_F(FreeAgreement, HoldsWithMorePageCache) {
    const testing::FakeTree tree;
    const int file = ::open(tree.path("load").c_str(), O_CREAT | O_RDWR | O_CLOEXEC, 0600);
    ASSERT_GE(file, 0);
    const bool hasRoom = fill(file) && ::fsync(file) == 0;
    if (hasRoom) {
        expectAgreement();
    }
    ::close(file);
    if (!hasRoom) {
        GTEST_SKIP() << "no room for the load";
    }
}

}  // namespace
}  // namespace zephrine
