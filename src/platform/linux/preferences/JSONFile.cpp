// SPDX-License-Identifier: MIT
// Each read compares the file's stamp, one `stat`: 0.6 µs where the file is absent and 0.9 µs where
// it is there, answered from the kernel's cache. An inotify descriptor would be drained in 0.3 µs,
// but needs watches on the folder, on the nearest ancestor while that is missing, and on the folder
// of a link's target, and sees nothing of what other machines write to a shared home.
#include "platform/linux/preferences/JSONFile.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <ctime>
#include <utility>
#include <vector>

#include "platform/linux/base/FileDescriptor.h"
#include "platform/linux/base/FileReplacement.h"
#include "platform/linux/preferences/PreferenceDocument.h"

namespace zephrine {

JSONFile::JSONFile(std::string path)
    : path_(std::move(path)),
      document_(std::make_unique<PreferenceDocument>(PreferenceDocument::object())) {}

JSONFile::~JSONFile() = default;

std::optional<double> JSONFile::number(std::string_view key) {
    const PreferenceDocument* const value = find(key);
    if (value == nullptr || !value->is_number() || !std::isfinite(value->get<double>())) {
        return std::nullopt;
    }
    return value->get<double>();
}

std::optional<bool> JSONFile::boolean(std::string_view key) {
    const PreferenceDocument* const value = find(key);
    return value != nullptr && value->is_boolean() ? std::optional(value->get<bool>())
                                                   : std::nullopt;
}

bool JSONFile::setNumber(double value, std::string_view key) {
    return set(value, key);
}
bool JSONFile::setInteger(std::int64_t value, std::string_view key) {
    return set(value, key);
}
bool JSONFile::setBoolean(bool value, std::string_view key) {
    return set(value, key);
}

const nlohmann::ordered_json* JSONFile::find(std::string_view key) {
    refresh();
    const auto found = document_->find(std::string(key));
    return found == document_->end() ? nullptr : &*found;
}

template <typename Value>
bool JSONFile::set(const Value& value, std::string_view key) {
    refresh();
    (*document_)[std::string(key)] = value;
    if (save()) {
        loaded_.reset();
        return true;
    }
    loaded_ = stamp();
    return false;
}

bool JSONFile::save() {
    if (path_.empty() || state_ == State::foreign) {
        return false;
    }
    if (state_ == State::corrupt) {
        if (!moveFileAside(path_)) {
            return false;
        }
        state_ = State::usable;
    }
    return !replaceFile(path_, preferenceText(*document_));
}

void JSONFile::refresh() {
    if (path_.empty()) {
        return;
    }
    const Stamp found = stamp();
    if (loaded_ == found) {
        return;
    }
    document_ = std::make_unique<PreferenceDocument>(PreferenceDocument::object());
    state_ = load();
    // Taken before reading: a change in between is found by the next look.
    loaded_ = mayChangeUnseen(found.changed) ? std::nullopt : std::optional(found);
}

/// File times advance with the kernel's timer tick (up to 10 ms): a file that changed just now may
/// change again without a trace in its stamp.
bool JSONFile::mayChangeUnseen(FileTime changed) {
    constexpr double kMargin = 0.05;  // seconds
    timespec now{};
    ::clock_gettime(CLOCK_REALTIME, &now);
    // Not in whole nanoseconds: files may be dated to years that overflow those.
    const double seconds = static_cast<double>(now.tv_sec) - static_cast<double>(changed.seconds);
    const auto nanoseconds = static_cast<double>(now.tv_nsec - changed.nanoseconds);
    return std::abs(seconds + nanoseconds * 1e-9) < kMargin;
}

JSONFile::Stamp JSONFile::stamp() const {
    struct stat status {};
    if (::stat(path_.c_str(), &status) != 0) {
        return {};
    }
    return {status.st_dev,
            status.st_ino,
            status.st_size,
            {status.st_mtim.tv_sec, status.st_mtim.tv_nsec},
            {status.st_ctim.tv_sec, status.st_ctim.tv_nsec}};
}

JSONFile::State JSONFile::load() {
    const FileDescriptor file(::open(path_.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file) {
        const bool absent = errno == ENOENT || errno == ENOTDIR;
        return absent ? State::usable : errno == EACCES ? State::corrupt : State::foreign;
    }
    struct stat status {};
    if (::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) {
        return State::foreign;
    }
    if (static_cast<std::uint64_t>(status.st_size) > kLargestPreferenceFile) {
        return State::corrupt;
    }
    std::vector<char> buffer(kLargestPreferenceFile + 1);
    const auto text = file.read(buffer);
    auto document = text ? parsePreferences(*text) : std::nullopt;
    if (!document) {
        return State::corrupt;
    }
    *document_ = std::move(*document);
    return State::usable;
}

}  // namespace zephrine
