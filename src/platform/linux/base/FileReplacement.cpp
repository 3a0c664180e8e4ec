// SPDX-License-Identifier: MIT
// The new contents go to a temporary file in the same folder, to the disk, and only then under the
// real name. The temporary name is fixed, so that a writer that is killed leaves at most one file
// behind, which the next one clears away; a lock on it tells a leftover from another's work.
//
// GLib's g_file_set_contents_full would replace a symbolic link in place of the file that it leads
// to, leave a file of a new name behind for each writer that is killed, and make no folders.
#include "platform/linux/base/FileReplacement.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstdio>

#include "platform/linux/base/FileDescriptor.h"

namespace zephrine {

namespace {

std::string folderOf(const std::string& path) {
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "./" : path.substr(0, slash + 1);
}

std::string nameOf(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

/// What went wrong last, asked before anything else is called.
std::error_code lastError() {
    return {errno, std::system_category()};
}

std::error_code makeFolders(const std::string& folder) {
    for (std::size_t end = 1; end != std::string::npos && end < folder.size();) {
        end = folder.find('/', end);
        if (::mkdir(folder.substr(0, end).c_str(), S_IRWXU) != 0 && errno != EEXIST) {
            return lastError();
        }
        end = end == std::string::npos ? end : end + 1;
    }
    return {};
}

FileDescriptor openFolder(const std::string& folder, std::error_code& error) {
    FileDescriptor opened(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    error = opened ? std::error_code() : lastError();
    return opened;
}

/// Takes the lock, and makes sure that the name was not given to another file meanwhile.
bool lockUnder(const FileDescriptor& file, const FileDescriptor& folder, const std::string& name) {
    // File systems without locks answer with other errors: there, one writer is assumed.
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {
        return false;
    }
    struct stat opened {};
    struct stat named {};
    return ::fstat(file.get(), &opened) == 0 &&
           ::fstatat(folder.get(), name.c_str(), &named, AT_SYMLINK_NOFOLLOW) == 0 &&
           opened.st_dev == named.st_dev && opened.st_ino == named.st_ino;
}

/// None, with the reason in `error`, when it cannot be made or another process is at work there.
FileDescriptor createTemporary(const FileDescriptor& folder, const std::string& name,
                               std::error_code& error) {
    constexpr int kCreate = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;
    constexpr int kOpen = O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
    for (int attempt = 0; attempt < 2; ++attempt) {
        FileDescriptor file(::openat(folder.get(), name.c_str(), kCreate, S_IRUSR | S_IWUSR));
        error = file ? std::error_code() : lastError();
        if (file && lockUnder(file, folder, name)) {
            return file;
        }
        const FileDescriptor leftover(file ? -1 : ::openat(folder.get(), name.c_str(), kOpen));
        const bool isAnothers = file || (leftover && !lockUnder(leftover, folder, name));
        if (isAnothers) {
            error = std::make_error_code(std::errc::resource_unavailable_try_again);
        }
        if (isAnothers || !leftover) {
            break;
        }
        ::unlinkat(folder.get(), name.c_str(), 0);
    }
    return {};
}

/// Renames without overwriting anything. EINVAL comes from file systems that cannot promise that.
bool renameToFreeName(const FileDescriptor& folder, const std::string& from,
                      const std::string& to) {
    if (::renameat2(folder.get(), from.c_str(), folder.get(), to.c_str(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    return errno == EINVAL &&
           ::faccessat(folder.get(), to.c_str(), F_OK, AT_SYMLINK_NOFOLLOW) != 0 &&
           errno == ENOENT && ::renameat(folder.get(), from.c_str(), folder.get(), to.c_str()) == 0;
}

}  // namespace

std::optional<std::string> followLinks(std::string path) {
    constexpr int kMostLinks = 40;  // the kernel's own limit
    for (int links = 0; links < kMostLinks; ++links) {
        std::array<char, PATH_MAX> buffer;
        const ssize_t length = ::readlink(path.c_str(), buffer.data(), buffer.size());
        if (length < 0) {
            const bool noLink = errno == EINVAL || errno == ENOENT || errno == ENOTDIR;
            return noLink ? std::optional(path) : std::nullopt;
        }
        const std::string target(buffer.data(), static_cast<std::size_t>(length));
        path = target.starts_with('/') ? target : folderOf(path).append(target);
    }
    return std::nullopt;
}

std::error_code replaceFile(const std::string& path, std::string_view contents) {
    const auto target = followLinks(path);
    if (!target) {
        return std::make_error_code(std::errc::too_many_symbolic_link_levels);
    }
    std::error_code error = makeFolders(folderOf(*target));
    if (error) {
        return error;
    }
    const FileDescriptor folder = openFolder(folderOf(*target), error);
    const std::string name = nameOf(*target);
    const std::string temporary = name + ".new";
    const FileDescriptor file =
        folder ? createTemporary(folder, temporary, error) : FileDescriptor();
    if (!file) {
        return error;
    }
    const bool replaced =
        ::fchmod(file.get(), S_IRUSR | S_IWUSR) == 0 && file.write(contents) &&
        ::fsync(file.get()) == 0 &&
        ::renameat(folder.get(), temporary.c_str(), folder.get(), name.c_str()) == 0;
    if (!replaced) {
        error = lastError();
        ::unlinkat(folder.get(), temporary.c_str(), 0);
        return error;
    }
    ::fsync(folder.get());  // the new name; the contents are safe already
    return {};
}

bool moveFileAside(const std::string& path) {
    constexpr int kMostNames = 100;
    const auto target = followLinks(path);
    std::error_code error;
    const FileDescriptor folder = target ? openFolder(folderOf(*target), error) : FileDescriptor();
    if (!folder) {
        return false;
    }
    const std::string name = nameOf(*target);
    for (int number = 1; number <= kMostNames; ++number) {
        std::string aside = name + ".corrupt";
        if (number > 1) {
            aside.append("-").append(std::to_string(number));
        }
        if (renameToFreeName(folder, name, aside)) {
            return true;
        }
    }
    return false;
}

}  // namespace zephrine
