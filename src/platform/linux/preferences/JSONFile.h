// SPDX-License-Identifier: MIT
// A small JSON file of values under string keys, which other programs and people may edit while it
// is in use. Main thread only; nothing throws.
#pragma once

#include <cstdint>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>

namespace zephrine {

/// Reading never creates or changes the file. A file that is not JSON, or that cannot be read, is
/// taken as empty; the next write moves it aside rather than over it. What could not be written is
/// kept in memory until the file changes.
class JSONFile {
public:
    /// With an empty `path` the values live in memory only.
    explicit JSONFile(std::string path);
    ~JSONFile();
    JSONFile(const JSONFile&) = delete;
    JSONFile& operator=(const JSONFile&) = delete;

    /// Absent when there is no such key or when it holds another kind of value.
    std::optional<double> number(std::string_view key);
    std::optional<bool> boolean(std::string_view key);

    /// True when the value has reached the disk; later reads see it either way.
    bool setNumber(double value, std::string_view key);
    bool setInteger(std::int64_t value, std::string_view key);
    bool setBoolean(bool value, std::string_view key);

private:
    struct FileTime {
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;
        bool operator==(const FileTime&) const = default;
    };
    /// What tells one state of the file from another; all zero when there is no file.
    struct Stamp {
        std::uint64_t device = 0;
        std::uint64_t inode = 0;
        std::int64_t size = 0;
        FileTime modified;
        FileTime changed;
        bool operator==(const Stamp&) const = default;
    };
    enum class State {
        usable,   ///< read, or not there
        corrupt,  ///< to be moved aside before writing
        foreign,  ///< a folder or a device stands there, or it cannot be told: leave it alone
    };

    [[nodiscard]] Stamp stamp() const;
    static bool mayChangeUnseen(FileTime changed);
    void refresh();
    State load();
    const nlohmann::ordered_json* find(std::string_view key);
    template <typename Value>
    bool set(const Value& value, std::string_view key);
    bool save();

    std::string path_;
    std::unique_ptr<nlohmann::ordered_json> document_;
    std::optional<Stamp> loaded_;  ///< the file that `document_` is; absent: to be read again
    State state_ = State::usable;
};

}  // namespace zephrine
