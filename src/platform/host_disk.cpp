#include "platform/host_disk.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>
#include <system_error>
#include <utility>

#include "common/file_path.h"
#include "common/run_time_error.h"
#include "common/text.h"
#include "platform/host_entry.h"
#include "platform/local_time.h"
#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace veldrana {
namespace {

namespace fs = std::filesystem;

fs::path from_text(std::string_view text) {
    return {std::u8string(text.begin(), text.end())};
}

std::string to_text(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

Failure failure_of(int error) {
    switch (error) {
        case ENOENT:
            return Failure::file_not_found;
        case ENOTDIR:
            return Failure::path_not_found;
        case EACCES:
        case EPERM:
        case EROFS:
            return Failure::permission_denied;
        case ENOSPC:
        case EFBIG:
#ifdef EDQUOT
        case EDQUOT:
#endif
            return Failure::disk_full;
        case EMFILE:
        case ENFILE:
            return Failure::too_many_files;
        case ENAMETOOLONG:
        case EINVAL:
            return Failure::bad_file;
        case EIO:
        case ENXIO:
            return Failure::device_error;
        case ENOMEM:
            return Failure::out_of_memory;
        default:
            return Failure::path_or_file_access;
    }
}

[[noreturn]] void fail(int error) {
    throw RunTimeError(failure_of(error));
}

bool can_be_written(const fs::path& folder) {
#ifdef _WIN32
    // Access lists are not told by attributes: only trying tells.
    const fs::path probe = folder / L"veldrana_probe.tmp";
    std::FILE* const file = _wfopen(probe.c_str(), L"wb");
    if (file == nullptr) {
        return false;
    }
    std::fclose(file);
    std::error_code ignored;
    fs::remove(probe, ignored);
    return true;
#else
    return faccessat(AT_FDCWD, folder.c_str(), W_OK, AT_EACCESS) == 0;
#endif
}

bool is_there(const fs::path& path) {
    std::error_code error;
    return fs::exists(path, error);
}

bool is_folder(const fs::path& path) {
    std::error_code error;
    return fs::is_directory(path, error);
}

// Also by way of a link. A drive of Windows is its own root, and may be written.
bool is_host_root(const fs::path& folder) {
#ifdef _WIN32
    static_cast<void>(folder);
    return false;
#else
    std::error_code error;
    return fs::equivalent(folder, "/", error);
#endif
}

std::vector<std::string> names_in(const fs::path& folder) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
        names.push_back(to_text(it->path().filename()));
    }
    std::sort(names.begin(), names.end());
    return names;
}

// The entry of a folder by its name, whatever the case of its letters; a name that is not there
// stands for itself.
fs::path entry(const fs::path& folder, const std::string& name) {
    fs::path exact = folder / from_text(name);
    if (is_there(exact)) {
        return exact;
    }
    const std::string wanted = upper(name);
    for (const std::string& present : names_in(folder)) {
        if (upper(present) == wanted) {
            return folder / from_text(present);
        }
    }
    return exact;
}

#ifndef _WIN32
constexpr mode_t owner_alone = S_IRUSR | S_IWUSR;
#endif

// Whether nobody but its owner may do anything with the file.
bool is_for_owner(const fs::path& path) {
    std::error_code error;
    const fs::perms others = fs::perms::group_all | fs::perms::others_all;
    return (fs::status(path, error).permissions() & others) == fs::perms::none && !error;
}

struct CloseFile {
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};
using FileHandle = std::unique_ptr<std::FILE, CloseFile>;

FileHandle open_file(const fs::path& path, const char* mode) {
    errno = 0;
#ifdef _WIN32
    FileHandle file(_wfopen(path.c_str(), std::wstring(mode, mode + std::strlen(mode)).c_str()));
#else
    FileHandle file(std::fopen(path.c_str(), mode));
#endif
    if (file == nullptr) {
        fail(errno);
    }
    // Readers and writers of text bring their own buffers.
    static_cast<void>(std::setvbuf(file.get(), nullptr, _IONBF, 0));
    return file;
}

// Opens a file that its owner alone may read, and empties it. One that is there is narrowed before
// it is written. Where access follows from the folder, or the file system has no owners, it is as
// any other.
FileHandle open_file_for_owner(const fs::path& path) {
#ifdef _WIN32
    return open_file(path, "wb");
#else
    const int made = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, owner_alone);
    if (made < 0) {
        fail(errno);
    }
    static_cast<void>(fchmod(made, owner_alone));
    static_cast<void>(close(made));
    return open_file(path, "wb");
#endif
}

// The absolute form without dots and without a separator at its end.
fs::path plain(const fs::path& path) {
    std::error_code error;
    const fs::path normal = fs::absolute(path, error).lexically_normal();
    return normal.has_filename() ? normal : normal.parent_path();
}

// What tells a file apart however it was reached, by links too; empty if it is not there.
std::string identity(const fs::path& path) {
#ifdef _WIN32
    std::error_code error;
    const fs::path canonical = fs::canonical(path, error);
    return error ? std::string() : upper(to_text(canonical));
#else
    struct stat status {};
    if (stat(path.c_str(), &status) != 0) {
        return {};
    }
    return std::to_string(status.st_dev) + ":" + std::to_string(status.st_ino);
#endif
}

}  // namespace

class HostDisk::FileSource : public ByteSource {
  public:
    FileSource(const HostPath& path, std::shared_ptr<OpenFiles> open_files)
        : open_files_(std::move(open_files)) {
        const std::string id = identity(path);
        if (open_files_->written.contains(id)) {
            throw RunTimeError(Failure::already_open);
        }
        file_ = open_file(path, "rb");
        registered_ = open_files_->read.insert(id);
    }
    FileSource(const FileSource&) = delete;
    FileSource& operator=(const FileSource&) = delete;
    ~FileSource() override { open_files_->read.erase(registered_); }

    std::size_t read(char* into, std::size_t room) override {
        errno = 0;
        const std::size_t count = std::fread(into, 1, room, file_.get());
        if (count == 0 && std::ferror(file_.get()) != 0) {
            fail(errno);
        }
        return count;
    }

  private:
    std::shared_ptr<OpenFiles> open_files_;
    std::multiset<std::string>::iterator registered_;
    FileHandle file_;
};

class HostDisk::FileSink : public ByteSink {
  public:
    FileSink(const HostPath& path, WriteMode mode, std::shared_ptr<OpenFiles> open_files)
        : open_files_(std::move(open_files)) {
        if (const std::string id = identity(path);
            open_files_->written.contains(id) || open_files_->read.contains(id)) {
            throw RunTimeError(Failure::already_open);
        }
        file_ = mode == WriteMode::replace_for_owner
                    ? open_file_for_owner(path)
                    : open_file(path, mode == WriteMode::append ? "ab" : "wb");
        registered_ = open_files_->written.insert(identity(path)).first;
    }
    FileSink(const FileSink&) = delete;
    FileSink& operator=(const FileSink&) = delete;
    ~FileSink() override {
        if (file_ != nullptr) {
            open_files_->written.erase(registered_);
        }
    }

    void write(std::string_view bytes) override {
        errno = 0;
        if (std::fwrite(bytes.data(), 1, bytes.size(), file_.get()) != bytes.size()) {
            fail(errno);
        }
    }

    void close() override {
        if (file_ == nullptr) {
            return;
        }
        open_files_->written.erase(registered_);
        errno = 0;
        if (std::fclose(file_.release()) != 0) {
            fail(errno);
        }
    }

  private:
    std::shared_ptr<OpenFiles> open_files_;
    std::set<std::string>::iterator registered_;
    FileHandle file_;
};

HostDisk::HostDisk(const std::map<char, HostPath>& drives, const HostPath& program_folder)
    : program_folder_(plain(program_folder)) {
#ifdef _WIN32
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        drives_[letter] = std::string(1, letter) + ":\\";
    }
#else
    drives_['Z'] = "/";
#endif
    for (const auto& [letter, folder] : drives) {
        drives_[upper(std::string(1, letter)).front()] = plain(folder);
    }
}

std::string HostDisk::program_path(const HostPath& host) const {
    const HostPath path = plain(host);
    std::string nearest;
    std::size_t nearest_depth = 0;
    for (const auto& [letter, folder] : drives_) {
        const HostPath relative = path.lexically_relative(folder);
        if (relative.empty() || *relative.begin() == "..") {
            continue;
        }
        const auto depth = static_cast<std::size_t>(std::distance(folder.begin(), folder.end()));
        if (nearest.empty() || depth > nearest_depth) {
            std::string behind = relative == "." ? "" : to_text(relative.lexically_normal());
            std::replace(behind.begin(), behind.end(), '/', '\\');
            nearest = std::string(1, letter) + ":\\" + behind;
            nearest_depth = depth;
        }
    }
    return well_formed(nearest);
}

std::optional<HostDisk::Place> HostDisk::place_of(std::string_view path) const {
    Place place{};
    std::string_view rest = path;
    if (const std::string_view drive = split_path(path).drive; !drive.empty()) {
        place.letter = upper(drive).front();
        const auto known = drives_.find(place.letter);
        if (known == drives_.end()) {
            return std::nullopt;
        }
        place.drive_folder = known->second;
        rest.remove_prefix(drive.size());
    } else if (path.starts_with('\\')) {
        return std::nullopt;
    } else {
        std::error_code error;
        place.drive_folder = fs::current_path(error);
    }
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find_first_of("\\/"), rest.size());
        const std::string_view name = rest.substr(0, end);
        if (!is_possible_name(name)) {
            return std::nullopt;
        }
        if (name == "..") {
            if (!place.names.empty()) {
                place.names.pop_back();
            }
        } else if (!name.empty() && name != ".") {
            place.names.emplace_back(name);
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return place;
}

std::optional<HostDisk::HostPath> HostDisk::substitute_root(const Place& place) const {
    const bool in_a_root = place.letter != 0 && place.names.size() == 1;
    if (!in_a_root || program_folder_.empty()) {
        return std::nullopt;
    }
    if (!is_host_root(place.drive_folder) && can_be_written(place.drive_folder)) {
        return std::nullopt;
    }
    return program_folder_ / (std::string("Drive_") + place.letter);
}

std::optional<HostDisk::HostPath> HostDisk::find(std::string_view path) const {
    const std::optional<Place> place = place_of(path);
    if (!place) {
        return std::nullopt;
    }
    if (const std::optional<HostPath> substitute = substitute_root(*place)) {
        if (HostPath found = entry(*substitute, place->names.back()); is_there(found)) {
            return found;
        }
    }
    HostPath found = place->drive_folder;
    for (const std::string& name : place->names) {
        found = entry(found, name);
    }
    return is_there(found) ? std::optional(found) : std::nullopt;
}

HostDisk::HostPath HostDisk::require(std::string_view path) const {
    if (std::optional<HostPath> found = find(path)) {
        return *std::move(found);
    }
    target(path);  // tells a missing folder or a bad name
    throw RunTimeError(Failure::file_not_found);
}

HostDisk::HostPath HostDisk::target(std::string_view path) const {
    const std::optional<Place> place = place_of(path);
    if (!place) {
        const bool bad_name = !is_possible_name(split_path(path).name);
        throw RunTimeError(bad_name ? Failure::bad_file : Failure::path_not_found);
    }
    if (place->names.empty()) {
        return place->drive_folder;
    }
    if (const std::optional<HostPath> substitute = substitute_root(*place)) {
        return entry(*substitute, place->names.back());
    }
    HostPath folder = place->drive_folder;
    for (std::size_t i = 0; i + 1 < place->names.size(); ++i) {
        folder = entry(folder, place->names[i]);
    }
    if (!is_folder(folder)) {
        throw RunTimeError(Failure::path_not_found);
    }
    return entry(folder, place->names.back());
}

bool HostDisk::file_exists(std::string_view path) {
    const std::optional<HostPath> found = find(path);
    return found && !is_folder(*found);
}

bool HostDisk::folder_exists(std::string_view path) {
    const std::optional<HostPath> found = find(path);
    return found && is_folder(*found);
}

void HostDisk::make_folder(std::string_view path) {
    const HostPath folder = target(path);
    std::error_code error;
    if (!fs::create_directory(folder, error)) {
        fail(error ? error.value() : EEXIST);
    }
}

std::unique_ptr<ByteSource> HostDisk::open_for_reading(std::string_view path) {
    const HostPath found = require(path);
    std::error_code error;
    const fs::file_type type = fs::status(found, error).type();
    // Whoever opens a pipe waits for its other end.
    if (type == fs::file_type::directory || type == fs::file_type::fifo ||
        type == fs::file_type::socket) {
        throw RunTimeError(Failure::path_or_file_access);
    }
    return std::make_unique<FileSource>(found, open_files_);
}

std::unique_ptr<ByteSink> HostDisk::open_for_writing(std::string_view path, WriteMode mode) {
    const HostPath file = target(path);
    // Also where a file would go elsewhere: the program must not see a file and a folder in one.
    if (is_folder(file) || folder_exists(path)) {
        throw RunTimeError(Failure::path_or_file_access);
    }
    require_unprotected(file);
    // The folder that stands for a root is made when it is first needed.
    if (const std::optional<HostPath> substitute = substitute_root(*place_of(path))) {
        std::error_code error;
        fs::create_directory(*substitute, error);
        if (error) {
            fail(error.value());
        }
    }
    return std::make_unique<FileSink>(file, mode, open_files_);
}

std::uint64_t HostDisk::size(std::string_view path) {
    std::error_code error;
    const std::uint64_t bytes = fs::file_size(require(path), error);
    if (error) {
        fail(error.value());
    }
    return bytes;
}

LocalTime HostDisk::modified(std::string_view path) {
    // The standard library's file clock has no defined start before C++20's calendar is complete.
#ifdef _WIN32
    struct _stat64 status {};
    const int result = _wstat64(require(path).c_str(), &status);
#else
    struct stat status {};
    const int result = stat(require(path).c_str(), &status);
#endif
    if (result != 0) {
        fail(errno);
    }
    return local_time(status.st_mtime);
}

void HostDisk::remove(std::string_view path) {
    HostPath found = require(path);
    const std::optional<Place> place = place_of(path);
    if (const std::optional<HostPath> substitute = substitute_root(*place)) {
        if (found.parent_path() != *substitute) {
            throw RunTimeError(Failure::permission_denied);
        }
    }
    if (is_folder(found)) {
        throw RunTimeError(Failure::path_or_file_access);
    }
    require_unprotected(found);
    std::error_code error;
    fs::remove(found, error);
    if (error) {
        fail(error.value());
    }
}

bool HostDisk::is_protected(std::string_view path) {
    const std::optional<HostPath> found = find(path);
    return found && leads_to_protected(*found);
}

bool HostDisk::leads_to_protected(const HostPath& path) const {
    const std::array<std::string_view, 2> paths{protected_log_, protected_log_book_};
    return std::any_of(paths.begin(), paths.end(), [&](std::string_view protected_path) {
        if (protected_path.empty()) {
            return false;
        }
        const std::optional<HostPath> kept = find(protected_path);
        return kept && !identity(*kept).empty() && identity(*kept) == identity(path);
    });
}

void HostDisk::require_unprotected(const HostPath& path) const {
    if (leads_to_protected(path)) {
        throw RunTimeError(Failure::already_open);
    }
}

void HostDisk::replace(std::string_view from, std::string_view to) {
    const HostPath source = require(from);
    std::error_code error;
    // Behind a link its file is replaced, and the link stays.
    const HostPath named = target(to);
    const HostPath behind = fs::canonical(named, error);
    const HostPath& place = error ? named : behind;
    const std::string id = identity(place);
    if (open_files_->written.contains(id) || open_files_->read.contains(id)) {
        throw RunTimeError(Failure::already_open);
    }
    require_unprotected(source);
    require_unprotected(place);
    // The file's own permissions stay, unless what takes its place is for its owner alone; one that
    // may not be written is not replaced either.
    if (const fs::file_status status = fs::status(place, error); fs::exists(status)) {
        if ((status.permissions() & fs::perms::owner_write) == fs::perms::none) {
            throw RunTimeError(Failure::permission_denied);
        }
        if (!is_for_owner(source)) {
            fs::permissions(source, status.permissions(), error);
        }
    }
    fs::rename(source, place, error);
    if (error) {
        fail(error.value());
    }
}

bool HostDisk::same_file(std::string_view one, std::string_view other) {
    const std::optional<HostPath> first = find(one);
    const std::optional<HostPath> second = find(other);
    return first && second && identity(*first) == identity(*second);
}

std::vector<HostDisk::Found> HostDisk::matching(std::string_view pattern) const {
    const FilePath parts = split_path(pattern);
    // A place for the folder's own files: the name is not looked at.
    const std::optional<Place> place = place_of(std::string(parts.folder) + "x");
    if (!place) {
        return {};
    }
    HostPath folder = place->drive_folder;
    if (const std::optional<HostPath> substitute = substitute_root(*place)) {
        folder = *substitute;
    } else {
        for (std::size_t i = 0; i + 1 < place->names.size(); ++i) {
            folder = entry(folder, place->names[i]);
        }
    }
    std::vector<Found> found;
    for (std::string& name : names_in(folder)) {
        if (matches(name, parts.name)) {
            HostPath path = folder / from_text(name);
            found.push_back({std::move(name), std::move(path)});
        }
    }
    return found;
}

std::vector<std::string> HostDisk::names(std::string_view pattern) {
    std::vector<std::string> names;
    for (Found& found : matching(pattern)) {
        if (!is_folder(found.path)) {
            names.push_back(std::move(found.name));
        }
    }
    return names;
}

std::vector<DiskEntry> HostDisk::entries(std::string_view pattern) {
    std::vector<DiskEntry> entries;
    for (const Found& found : matching(pattern)) {
        DiskEntry entry = describe(found.path);
        entry.name = found.name;
        entries.push_back(std::move(entry));
    }
    return entries;
}

}  // namespace veldrana
