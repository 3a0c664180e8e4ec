// SPDX-License-Identifier: MIT
#include <string>
#include <vector>

#include "app/ZephrineMain.h"
#include "platform/Platform.h"

int main(int argc, char** argv) {
    const std::vector<std::string> arguments(argv, argv + argc);
    const auto platform = zephrine::makePlatform(arguments);
    return zephrine::ZephrineMain::main(*platform, arguments);
}
