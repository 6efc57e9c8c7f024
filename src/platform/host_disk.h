// Owns the disk of the system that the program runs on.
//
// On Windows a drive letter is what it is. Elsewhere it stands for a folder, and Z: is the root of
// the host's tree; a name is found whatever its case.
//
// Scratch files belong into the root of a drive. Where that folder cannot be written, and for the
// host's own root always, a file that stands directly in it is written to the folder "Drive_X"
// (with the drive's letter) below the program's folder, and looked for there first. So nothing is
// ever written to the host's root, nor deleted from it.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <set>

#include "platform/disk.h"

namespace veldrana {

class HostDisk : public Disk {
  public:
    using HostPath = std::filesystem::path;

    // The folders that drive letters stand for, beside or in place of the drives that are there
    // anyway, and the program's folder.
    HostDisk(const std::map<char, HostPath>& drives, const HostPath& program_folder);

    // A path of the host as the program writes it: the drive whose folder holds it, the nearest if
    // several do.
    std::string program_path(const HostPath& host) const;
    // Where a file or folder of the program lies on the host; the failures of its opening.
    HostPath host_path(std::string_view path) const { return require(path); }

    bool file_exists(std::string_view path) override;
    bool folder_exists(std::string_view path) override;
    void make_folder(std::string_view path) override;
    std::unique_ptr<ByteSource> open_for_reading(std::string_view path) override;
    std::unique_ptr<ByteSink> open_for_writing(std::string_view path, WriteMode mode) override;
    std::uint64_t size(std::string_view path) override;
    LocalTime modified(std::string_view path) override;
    void remove(std::string_view path) override;
    void replace(std::string_view from, std::string_view to) override;
    void protect(std::string_view path) override { protected_log_ = path; }
    void protect_log_book(std::string_view path) override { protected_log_book_ = path; }
    bool is_protected(std::string_view path) override;
    bool same_file(std::string_view one, std::string_view other) override;
    std::vector<std::string> names(std::string_view pattern) override;
    std::vector<DiskEntry> entries(std::string_view pattern) override;

  private:
    // The files and folders that fit a pattern: names as text, and where they lie.
    struct Found {
        std::string name;
        HostPath path;
    };
    std::vector<Found> matching(std::string_view pattern) const;

    // A path taken apart: the folder that its drive stands for, and the names behind it.
    struct Place {
        char letter;
        HostPath drive_folder;
        std::vector<std::string> names;
    };

    // Nothing if no drive of that letter is there, or a name is one that no file can have.
    std::optional<Place> place_of(std::string_view path) const;
    // The folder that takes the place of a root that cannot be written.
    std::optional<HostPath> substitute_root(const Place& place) const;
    // Where an existing file or folder of that name is.
    std::optional<HostPath> find(std::string_view path) const;
    // Where a file or folder of that name would be written.
    HostPath target(std::string_view path) const;
    // What find gives, or the failure that tells why there is nothing.
    HostPath require(std::string_view path) const;

    bool leads_to_protected(const HostPath& path) const;
    // Failure 55 if the host path leads to a protected file.
    void require_unprotected(const HostPath& path) const;

    std::map<char, HostPath> drives_;
    HostPath program_folder_;
    std::string protected_log_;
    std::string protected_log_book_;

    // The files that are open, by what the host tells them apart with; shared with them, so that a
    // file may outlive the disk.
    struct OpenFiles {
        std::multiset<std::string> read;
        std::set<std::string> written;
    };
    class FileSource;
    class FileSink;
    std::shared_ptr<OpenFiles> open_files_ = std::make_shared<OpenFiles>();
};

}  // namespace veldrana
