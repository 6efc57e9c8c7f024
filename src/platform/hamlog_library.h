// Owns the port to the log book's library: the seven operations by which the program reads the
// station's own log book, and nothing else of it. Nothing here can write.
//
// A record has 14 text fields, known by number: 1 call sign, 2 date "YY/MM/DD", 3 time, 4 and 5
// reports, 6 frequency in MHz, 7 mode, 8 code, 9 G/L, 10 the three QSL marks, 11 name, 12 QTH, 13
// and 14 remarks.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "platform/disk.h"

namespace veldrana {

class HamlogLibrary {
  public:
    static constexpr int fields = 14;
    // How THW_read is told to take the records: as they lie in the file.
    static constexpr int by_number = 2;

    HamlogLibrary() = default;
    HamlogLibrary(const HamlogLibrary&) = delete;
    HamlogLibrary& operator=(const HamlogLibrary&) = delete;
    virtual ~HamlogLibrary() = default;

    // Opens the file for its count of records; whether it could is not told. The program's own
    // library counts none in a file that is no log book.
    virtual void dbf_open(std::string_view path) = 0;
    virtual std::int32_t dbf_rcount() = 0;
    virtual void dbf_close() = 0;

    // Opens the log for reading; an answer other than 0 is a failure.
    virtual int HamlogOpen(std::string_view path) = 0;
    // Makes a record, counted from 1, the current one. One that is not there has empty fields and
    // an answer other than 0.
    virtual int THW_read(std::int32_t record, int way) = 0;
    // A field of the current record by its number, as far as its first NUL; empty for a number that
    // no field has. Valid until the next call of any operation.
    virtual std::string_view ThwString(int field) = 0;
    // May be called after a HamlogOpen that failed, and twice.
    virtual void HamlogClose() noexcept = 0;
};

// The library that reads this station's log book: the log book's own where it is installed, else
// the program's (log_book_file.h).
std::unique_ptr<HamlogLibrary> make_hamlog_library(Disk& disk);

}  // namespace veldrana
