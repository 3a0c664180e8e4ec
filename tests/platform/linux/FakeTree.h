// SPDX-License-Identifier: MIT
// A folder of files that stands in for /proc or /sys during one test.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

namespace zephrine::testing {

class FakeTree {
public:
    FakeTree() {
        std::string name = (std::filesystem::temp_directory_path() / "zephrine-XXXXXX").string();
        if (::mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("no temporary folder");
        }
        root_ = std::move(name);
    }
    ~FakeTree() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    FakeTree(const FakeTree&) = delete;
    FakeTree& operator=(const FakeTree&) = delete;

    [[nodiscard]] std::string root() const { return root_.string(); }
    [[nodiscard]] std::string path(const std::string& name) const {
        return (root_ / name).string();
    }

    /// Writes in place, so that a descriptor that is open on the file sees the new text.
    void write(const std::string& name, std::string_view text) const {
        std::filesystem::create_directories((root_ / name).parent_path());
        std::ofstream(root_ / name, std::ios::binary) << text;
    }
    void link(const std::string& name, const std::string& target) const {
        std::filesystem::create_directories((root_ / name).parent_path());
        std::filesystem::create_symlink(target, root_ / name);
    }
    void remove(const std::string& name) const { std::filesystem::remove_all(root_ / name); }

private:
    std::filesystem::path root_;
};

}  // namespace zephrine::testing
