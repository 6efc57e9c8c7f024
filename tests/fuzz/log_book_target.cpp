// The log book's reader, and what is made of its records.
#include <string>

#include "platform/log_book_file.h"
#include "qsl/hamlog_reader.h"
#include "qsl/history.h"
#include "tests/fuzz/fuzz_stage.h"
#include "tests/fuzz/targets.h"

namespace veldrana {
namespace {

constexpr std::string_view database = "C:\\Hamlog.hdb";
constexpr std::string_view history_file = "C:\\veldrana\\bak_qso.mas1_p";

// Every field of every record, forwards and then once back.
void read_fields(Disk& disk) {
    OwnHamlogLibrary library(disk);
    library.dbf_open(database);
    const std::int32_t count = library.dbf_rcount();
    library.dbf_close();
    require(count >= 0, "a count of records");
    require(static_cast<std::uint64_t>(count) <= disk.size(database) + 1, "records take bytes");
    if (library.HamlogOpen(database) == 0) {
        for (std::int32_t record = 1; record <= count; ++record) {
            require(library.THW_read(record, HamlogLibrary::by_number) == 0, "counted, so there");
            for (int field = 0; field <= HamlogLibrary::fields + 1; ++field) {
                require(library.ThwString(field).find('\0') == std::string_view::npos, "no NUL");
            }
        }
        require(library.THW_read(count + 1, HamlogLibrary::by_number) != 0, "not there");
        require(count == 0 || library.THW_read(1, HamlogLibrary::by_number) == 0, "back again");
    }
    library.HamlogClose();
}

}  // namespace

void fuzz_log_book(std::string_view bytes) {
    FuzzStage fuzz(database, bytes);
    fuzz.disk.put_folder("C:\\veldrana");
    fuzz.run([&] { read_fields(fuzz.disk); });
    fuzz.run([&] {
        OwnHamlogLibrary library(fuzz.disk);
        HistoryTimes times;
        const auto kind = static_cast<HistoryKind>(1 + bytes.size() % 3);
        read_hl_hdb(fuzz.stage, library, kind,
                    {.hamlog_hdb_dir = database,
                     .drive_path = "C:\\",
                     .strPath = "C:\\veldrana\\",
                     .Start_Date = "0",
                     .End_Date = "99999999",
                     .End_Date_bak = ""},
                    times);
        sum_bak_2(fuzz.stage, "C:\\");
        sum_bak_3(fuzz.stage, "C:\\", std::string(history_file));
        QsoHistory history(std::string(history_file), {.same_band = true, .same_mode = false});
        history.prepare(fuzz.stage);
        static_cast<void>(history.covers("JA1ZZA", "14", "SSB"));
    });
}

}  // namespace veldrana
