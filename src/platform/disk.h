// Owns the port to the disk. The program thinks in drive letters, backslashes and names without
// regard to case, on every system; doubled backslashes count as one. Every file is opened, listed
// and deleted through this port, so that tests can put a disk in memory in its place, or one that
// fails.
//
// Failures are RunTimeErrors: 52 a name that no file can have, 53 file not found, 55 already open,
// 57 device error, 61 disk full, 67 too many files, 70 permission denied, 75 a folder in the place
// of a file, 76 folder not found.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/clock.h"

namespace veldrana {

// Files are read and written in blocks of this size that begin at multiples of it: the host keeps a
// file in pages, and one that is only partly written costs it more than a whole one. Larger blocks
// have it look for larger pieces of free memory, which took up to three times as long.
constexpr std::size_t disk_block_size = std::size_t{32} * 1024;

// An open file, read from its start.
class ByteSource {
  public:
    ByteSource() = default;
    ByteSource(const ByteSource&) = delete;
    ByteSource& operator=(const ByteSource&) = delete;
    virtual ~ByteSource() = default;

    // Reads up to `room` bytes; 0 at the end of the file alone.
    virtual std::size_t read(char* into, std::size_t room) = 0;
};

// An open file that is written. Destroying it closes the file without telling a failure.
class ByteSink {
  public:
    ByteSink() = default;
    ByteSink(const ByteSink&) = delete;
    ByteSink& operator=(const ByteSink&) = delete;
    virtual ~ByteSink() = default;

    virtual void write(std::string_view bytes) = 0;
    // A failure of the last bytes shows here.
    virtual void close() = 0;
};

// What a disk tells about a file or folder. Attributes are the sum of those that it has; times are
// seconds since the start of 1970 in UTC.
struct DiskEntry {
    enum Attribute : unsigned {
        read_only = 1,
        hidden = 2,
        system = 4,
        directory = 16,
        archive = 32,
    };

    std::string name;
    std::uint64_t size = 0;
    unsigned attributes = 0;
    std::int64_t created = 0;
    std::int64_t accessed = 0;
    std::int64_t written = 0;
};

enum class WriteMode {
    replace,
    append,
    // Replaces; the file can be read and written by its owner alone, from its first byte on, where
    // the system tells users apart. It stays so when it is put in the place of another.
    replace_for_owner,
};

class Disk {
  public:
    Disk() = default;
    Disk(const Disk&) = delete;
    Disk& operator=(const Disk&) = delete;
    virtual ~Disk() = default;

    virtual bool file_exists(std::string_view path) = 0;
    virtual bool folder_exists(std::string_view path) = 0;
    // The folder that holds it must be there; one that is there already is failure 75.
    virtual void make_folder(std::string_view path) = 0;

    // A file may be read by many at once; one that is open cannot be opened for writing, nor one
    // that is written for reading (failure 55).
    virtual std::unique_ptr<ByteSource> open_for_reading(std::string_view path) = 0;
    // Makes the file if it is missing.
    virtual std::unique_ptr<ByteSink> open_for_writing(std::string_view path, WriteMode mode) = 0;

    virtual std::uint64_t size(std::string_view path) = 0;
    // When the file was last written.
    virtual LocalTime modified(std::string_view path) = 0;
    virtual void remove(std::string_view path) = 0;
    // Puts a file in the place of another, which goes; in one step where the host can.
    virtual void replace(std::string_view from, std::string_view to) = 0;

    // From now on this file, by whatever path it is reached, is not written, replaced or removed
    // (failure 55). One log is protected at a time, and one log book beside it; an empty path
    // protects none.
    virtual void protect(std::string_view path) = 0;
    virtual void protect_log_book(std::string_view path) = 0;
    virtual bool is_protected(std::string_view path) = 0;

    // Whether two paths lead to one file, by whatever names; false if one is missing.
    virtual bool same_file(std::string_view one, std::string_view other) = 0;

    // The names of the files that fit a path whose last piece may hold "?" and "*", in the order of
    // their characters; none if the folder is missing.
    virtual std::vector<std::string> names(std::string_view pattern) = 0;

    // The same of files and folders, with what the disk tells about them.
    virtual std::vector<DiskEntry> entries(std::string_view pattern) = 0;
};

// Deletes every file that fits the path, but not the one that is to be kept; says how many it
// deleted.
std::size_t remove_matching(Disk& disk, std::string_view pattern, std::string_view keep = {});

// Copies the bytes of a file over another.
void copy_file(Disk& disk, std::string_view from, std::string_view to);

// When the file was last written, "yyyy/mm/dd hh:mm:ss".
std::string time_text(Disk& disk, std::string_view path);

}  // namespace veldrana
