// SPDX-License-Identifier: MIT
// Runs the tests in the locale that the environment names, for C++ and C alike, as a program is
// whose toolkit has called setlocale. With --german=FOLDER that is the German locale in FOLDER.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdlib>
#include <locale>
#include <string_view>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    constexpr std::string_view german = "--german=";
    if (argc > 1 && std::string_view(argv[1]).starts_with(german)) {
        ::setenv("LOCPATH", argv[1] + german.size(), 1);
        ::setenv("LC_ALL", "de_DE.UTF-8", 1);
    }
    std::locale::global(std::locale(""));
    return std::setlocale(LC_ALL, "") != nullptr ? RUN_ALL_TESTS() : 1;
}
