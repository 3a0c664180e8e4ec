// SPDX-License-Identifier: MIT
// Runs the tests in the locale that the environment names, for C++ and C alike, as a program is
// whose toolkit has called setlocale.
#include <gtest/gtest.h>

#include <clocale>
#include <locale>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    std::locale::global(std::locale(""));
    return std::setlocale(LC_ALL, "") != nullptr ? RUN_ALL_TESTS() : 1;
}
