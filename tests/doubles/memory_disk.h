// A disk in memory, and one that fails when it is told to.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>

#include "common/run_time_error.h"
#include "platform/disk.h"

namespace veldrana {

// Names keep their case and are found in any. Folders are made by make_folder or put_folder;
// putting a file makes the folders above it.
class MemoryDisk : public Disk {
  public:
    // Bytes as they lie in the file.
    void put(std::string_view path, std::string bytes);
    void put_folder(std::string_view path);
    // The bytes of a file; failure 53 if there is none.
    std::string bytes(std::string_view path) const;
    // Whether it was made for its owner alone; failure 53 if there is none.
    bool is_for_owner(std::string_view path) const;
    // The names of all files, full paths, sorted without regard to case.
    std::vector<std::string> files() const;
    // Taken for UTC where entries are asked for, and for all three of their times.
    void set_modified(std::string_view path, const LocalTime& time);

    bool file_exists(std::string_view path) override;
    bool folder_exists(std::string_view path) override;
    void make_folder(std::string_view path) override;
    std::unique_ptr<ByteSource> open_for_reading(std::string_view path) override;
    std::unique_ptr<ByteSink> open_for_writing(std::string_view path, WriteMode mode) override;
    std::uint64_t size(std::string_view path) override;
    LocalTime modified(std::string_view path) override;
    void remove(std::string_view path) override;
    void replace(std::string_view from, std::string_view to) override;
    void protect(std::string_view path) override;
    void protect_log_book(std::string_view path) override;
    bool is_protected(std::string_view path) override;
    bool same_file(std::string_view one, std::string_view other) override;
    std::vector<std::string> names(std::string_view pattern) override;
    std::vector<DiskEntry> entries(std::string_view pattern) override;

  private:
    struct File {
        std::string path;  // as it was first written
        std::string bytes;
        LocalTime modified;
        bool for_owner = false;
        int readers = 0;
        int writers = 0;
    };
    class Source;
    class Sink;

    void require_unprotected(std::string_view path) const;
    const File& require(std::string_view path) const;
    // Fails where no file of that name can be written.
    void require_place(std::string_view path) const;

    std::map<std::string, std::shared_ptr<File>> files_;  // by their keys
    std::set<std::string> folders_;
    std::string protected_;
    std::string protected_log_book_;
};

// Passes everything on to another disk, but for one operation.
class FailingDisk : public Disk {
  public:
    explicit FailingDisk(Disk& disk) : disk_(disk) {}

    // Makes the n-th operation from now fail, counted from 1. Every call of a disk, a source or a
    // sink is an operation, tests for existence aside.
    void fail_at(std::size_t operation, Failure failure);
    // Makes every opening of a file of that name for writing fail.
    void fail_writing(std::string name, Failure failure);
    std::size_t operations() const { return operations_; }

    bool file_exists(std::string_view path) override;
    bool folder_exists(std::string_view path) override;
    void make_folder(std::string_view path) override;
    std::unique_ptr<ByteSource> open_for_reading(std::string_view path) override;
    std::unique_ptr<ByteSink> open_for_writing(std::string_view path, WriteMode mode) override;
    std::uint64_t size(std::string_view path) override;
    LocalTime modified(std::string_view path) override;
    void remove(std::string_view path) override;
    void replace(std::string_view from, std::string_view to) override;
    void protect(std::string_view path) override;
    void protect_log_book(std::string_view path) override;
    bool is_protected(std::string_view path) override;
    bool same_file(std::string_view one, std::string_view other) override;
    std::vector<std::string> names(std::string_view pattern) override;
    std::vector<DiskEntry> entries(std::string_view pattern) override;

  private:
    class Source;
    class Sink;
    void count_operation();

    Disk& disk_;
    std::size_t operations_ = 0;
    std::size_t failing_operation_ = 0;
    Failure failure_ = Failure::device_error;
    std::map<std::string, Failure> failing_names_;
};

}  // namespace veldrana
