// Owns the forms in which the program reads a log book by itself, told apart by what the file
// holds, never by its name; docs/formats/log-book.md tells them.
//
// A text: a contact a line, in quoted fields (common/quoted_fields.h), whose first 14 columns are
// the fields; its first line that is not blank has ten columns at least and no NUL. Blank lines are
// no records.
//
// A table: first byte 0x03 or 0x83, the count of records in bytes 4 to 7, the header's length in 8
// and 9, a record's length in 10 and 11, low byte first; from byte 32 on descriptors of 32 bytes,
// the name in their first 11 bytes and the width in byte 16, up to a byte 0x0D. A record begins
// with a mark, "*" for a deleted one, which has empty fields. With columns CALLS and IGN it is the
// log book's own table; of any other the first 14 columns are the fields.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "platform/disk.h"
#include "platform/hamlog_library.h"

namespace veldrana {

// A log book that is open for reading, whatever its form.
class LogBookFile {
  public:
    LogBookFile() = default;
    LogBookFile(const LogBookFile&) = delete;
    LogBookFile& operator=(const LogBookFile&) = delete;
    virtual ~LogBookFile() = default;

    // Records that are there whole, whatever the file promises.
    virtual std::int32_t count() = 0;
    // Makes a record current; false if there is none of that number. Reading on is cheap, reading
    // back begins the file anew.
    virtual bool read(std::int32_t record) = 0;
    // As HamlogLibrary::ThwString, for 1 to 14.
    virtual std::string_view field(int number) = 0;
};

// Null for a file that is none of the forms, or no file. An empty file is a log book without
// records. The failures of Disk::open_for_reading pass where the file is there.
std::unique_ptr<LogBookFile> open_log_book(Disk& disk, std::string_view path);

// The program's own library, for every system.
class OwnHamlogLibrary : public HamlogLibrary {
  public:
    explicit OwnHamlogLibrary(Disk& disk) : disk_(disk) {}

    void dbf_open(std::string_view path) override;
    std::int32_t dbf_rcount() override;
    void dbf_close() override;
    int HamlogOpen(std::string_view path) override;
    int THW_read(std::int32_t record, int way) override;
    std::string_view ThwString(int field) override;
    void HamlogClose() noexcept override;

  private:
    Disk& disk_;
    std::unique_ptr<LogBookFile> counted_;
    std::unique_ptr<LogBookFile> log_;
    bool current_ = false;  // whether log_ has a current record
};

}  // namespace veldrana
