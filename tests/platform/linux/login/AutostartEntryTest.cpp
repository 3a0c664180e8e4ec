// SPDX-License-Identifier: MIT
#include "platform/linux/login/AutostartEntry.h"

#include <gtest/gtest.h>

#include <functional>
#include <set>
#include <string>

#include "platform/linux/login/AutostartStatus.h"
#include "platform/linux/login/DesktopEntry.h"
#include "platform/linux/login/DesktopExec.h"

namespace zephrine {
namespace {

std::string execLine(std::string_view program) {
    const std::string entry = autostartEntry(program);
    const std::size_t begin = entry.find("\nExec=") + 1;
    return entry.substr(begin, entry.find('\n', begin) - begin);
}

TEST(AutostartEntry, NamesTheProgramInQuotes) {
    EXPECT_EQ(execLine("/usr/bin/zephrine"), "Exec=\"/usr/bin/zephrine\"");
    EXPECT_EQ(execLine("/opt/my tools/zephrine"), "Exec=\"/opt/my tools/zephrine\"");
}

TEST(AutostartEntry, DoublesPercentSignsSoThatTheyAreNoFieldCodes) {
    const auto entry = DesktopEntry::parse(autostartEntry("/opt/100%U/zephrine"));
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->string("Exec"), "env \"/opt/100%%U/zephrine\"");
    EXPECT_EQ(entry->string("TryExec"), "/opt/100%U/zephrine");
}

TEST(AutostartEntry, EscapesTwiceBecauseExecIsAStringOfQuotedArguments) {
    EXPECT_EQ(execLine(R"(/opt/a"b/zephrine)"), R"(Exec="/opt/a\\"b/zephrine")");
    EXPECT_EQ(execLine("/opt/$HOME/`x`/zephrine"), R"(Exec="/opt/\\$HOME/\\`x\\`/zephrine")");
    EXPECT_EQ(execLine(R"(/opt/a\b/zephrine)"), R"(Exec="/opt/a\\\\b/zephrine")");
    EXPECT_EQ(execLine("/opt/a\nHidden=true\n/zephrine"),
              R"(Exec="/opt/a\nHidden=true\n/zephrine")");
}

TEST(AutostartEntry, IsReadBackAsTheSameProgramWhateverItsPath) {
    for (const std::string program :
         {"/usr/bin/zephrine", "/opt/my tools/zephrine", "/opt/100%/%U%%/zephrine",
          R"(/opt/"quoted"/'single'/zephrine)", R"(/opt/back\slash\\/zephrine\)",
          "/opt/$HOME/`id`/$(id)/zephrine", "/opt/a\tb\nc\rd/zephrine", "/opt/ü→/zephrine",
          "/opt/#;=[x]&|<>*?~/zephrine", " /leading and trailing "}) {
        const auto entry = DesktopEntry::parse(autostartEntry(program));
        ASSERT_TRUE(entry) << program;
        const bool hasPercent = program.find('%') != std::string::npos;
        EXPECT_EQ(programOfExec(entry->string("Exec").value_or("")), hasPercent ? "env" : program);
        std::set<std::string, std::less<>> programs{"env", program};
        const auto exists = [&](std::string_view found) { return programs.contains(found); };
        EXPECT_EQ(autostartStatus(*entry, "GNOME", exists), LoginItemStatus::enabled) << program;
        programs.erase(program);
        EXPECT_EQ(autostartStatus(*entry, "GNOME", exists), LoginItemStatus::notFound) << program;
    }
}

}  // namespace
}  // namespace zephrine
