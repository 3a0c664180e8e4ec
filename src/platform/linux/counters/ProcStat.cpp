// SPDX-License-Identifier: MIT
// Format: proc(5) and Documentation/filesystems/proc.rst, section 1.7, "Miscellaneous kernel
// statistics in /proc/stat".
#include "platform/linux/counters/ProcStat.h"

#include <array>
#include <cstddef>
#include <cstdint>

#include "platform/linux/base/TextScan.h"

namespace zephrine {
namespace {

/// Columns of the "cpu" line. What follows, guest and guest_nice, is contained in user and nice.
enum Column : std::size_t {
    user,
    nice,
    system,
    idle,
    iowait,
    irq,
    softirq,
    steal,
    columnCount,
};
constexpr std::size_t kColumnsSinceEver = 4;  // iowait and the rest came with Linux 2.6

using Columns = std::array<std::uint64_t, columnCount>;

/// The columns of what follows "cpu"; those that an old kernel does not have are 0.
std::optional<Columns> parseColumns(std::string_view line) {
    Columns columns{};
    for (std::size_t index = 0; index < columns.size(); ++index) {
        const std::string_view word = takeWord(line);
        if (word.empty() && index >= kColumnsSinceEver) {
            break;
        }
        const auto value = parseUnsigned(word);
        if (!value) {
            return std::nullopt;
        }
        columns[index] = *value;
    }
    return columns;
}

/// `sum` += `value`; false when that does not fit.
bool add(std::uint64_t& sum, std::uint64_t value) {
    return !__builtin_add_overflow(sum, value, &sum);
}

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

}  // namespace

std::optional<ProcessorTicks> parseProcessorTicks(std::string_view stat) {
    while (auto line = takeLine(stat)) {
        if (takeWord(*line) != "cpu") {
            continue;
        }
        const auto columns = parseColumns(*line);
        if (!columns) {
            return std::nullopt;
        }
        ProcessorTicks ticks{.user = (*columns)[user],
                             .system = (*columns)[system],
                             .idle = (*columns)[idle],
                             .nice = (*columns)[nice]};
        // Time that a processor waits for a disk is idle time; time that it serves interrupts, or
        // that the hypervisor gave to somebody else, is not.
        const bool fits =
            add(ticks.idle, (*columns)[iowait]) && add(ticks.system, (*columns)[irq]) &&
            add(ticks.system, (*columns)[softirq]) && add(ticks.system, (*columns)[steal]);
        return fits ? std::optional(ticks) : std::nullopt;
    }
    return std::nullopt;
}

std::optional<int> countProcessors(std::string_view stat) {
    int count = 0;
    while (auto line = takeLine(stat)) {
        const std::string_view word = takeWord(*line);
        if (!word.starts_with("cpu")) {
            return count > 0 ? std::optional(count) : std::nullopt;
        }
        if (word.size() > 3 && isDigit(word[3])) {
            ++count;
        }
    }
    return std::nullopt;
}

}  // namespace zephrine
