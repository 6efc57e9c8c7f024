#include "qsl/hamlog_reader.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "common/failure_report.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "platform/clock.h"
#include "qsl/band_mode.h"

namespace veldrana {
namespace {

// Kept as they are: the code stands behind the letters in their first columns, the blanks behind
// it. They come out of the history as stations of their own.
constexpr std::array<std::array<std::string_view, 3>, 2> sentinels{{
    {"YYYYYYE2       ", "YYYYYY       ", "E2"},
    {"ZZZZZYE2       ", "ZZZZZZ       ", "E2"},
}};

// What counts of a record: fields as they would stand in a quoted column.
struct Record {
    std::string call;
    std::string date;
    std::string frequency;
    std::string mode;
    std::string marks;  // transfer, card sent, card received
};

// Where a field is kept; null for those that are fetched with the others and count for nothing.
std::string* place_of(Record& record, int field) {
    switch (field) {
        case 1:
            return &record.call;
        case 2:
            return &record.date;
        case 6:
            return &record.frequency;
        case 7:
            return &record.mode;
        case 10:
            return &record.marks;
        default:
            return nullptr;
    }
}

void fetch(HamlogLibrary& library, Record& record) {
    for (int field = 1; field <= HamlogLibrary::fields; ++field) {
        const std::string_view text = library.ThwString(field);
        std::string* const place = place_of(record, field);
        if (place == nullptr) {
            continue;
        }
        place->assign(text);
        if (text.find('"') != std::string_view::npos) {
            *place = replace_all(*place, "\"", "\"\"");
        }
    }
}

// The whole number that a text begins with; too large a one is as large as a number can be.
std::uint64_t leading_number(std::string_view text) {
    constexpr std::uint64_t most = UINT64_MAX / 100;
    std::uint64_t number = 0;
    for (const char character : trim(text)) {
        if (character < '0' || character > '9') {
            break;
        }
        number = std::min(most, number * 10 + static_cast<std::uint64_t>(character - '0'));
    }
    return number;
}

// yyyymmdd of a date "YY/MM/DD": 51 to 99 are of the last century.
std::uint64_t date_number(std::string_view date, std::string& memory) {
    constexpr std::uint64_t last_of_this_century = 50;
    memory.assign("  ");
    std::remove_copy(date.begin(), date.end(), std::back_inserter(memory), '/');
    const std::string_view six_digits = std::string_view(memory).substr(2);
    const bool last_century = leading_number(left(six_digits, 2)) > last_of_this_century;
    memory.replace(0, 2, last_century ? "19" : "20");
    return leading_number(memory);
}

// Closes the log, however its reading ends.
class LogCloser {
  public:
    explicit LogCloser(HamlogLibrary& library) : library_(library) {}
    LogCloser(const LogCloser&) = delete;
    LogCloser& operator=(const LogCloser&) = delete;
    ~LogCloser() { library_.HamlogClose(); }

  private:
    HamlogLibrary& library_;
};

// One reading of the database.
class LogBookReading {
  public:
    LogBookReading(const Stage& stage, HamlogLibrary& library, HistoryKind kind,
                   const LogBookRequest& request)
        : stage_(stage), library_(library), kind_(kind), request_(request) {}

    void run(HistoryTimes& times) {
        const FilePath database = split_path(request_.hamlog_hdb_dir);
        show(std::string(database.base_name) + ". 読込 for No QSL");
        note_time(times);
        take_period();
        write_history_times(stage_.disk, request_.strPath, times);
        library_.dbf_open(request_.hamlog_hdb_dir);
        const std::int32_t count = library_.dbf_rcount();
        library_.dbf_close();
        trace_period(count);
        if (library_.HamlogOpen(request_.hamlog_hdb_dir) != 0) {
            throw ProgramEnd{ProgramEnd::Cause::silent};
        }
        trace_more("     HamlogOpen 成功　: ", request_.hamlog_hdb_dir);
        write_selected(count);
    }

  private:
    void show(const std::string& caption) {
        stage_.lblCFG.caption = caption;
        stage_.trace.write(caption);
    }

    void note_time(HistoryTimes& times) {
        std::string& time = time_of(times, kind_);
        time = date_time_text(stage_.disk.modified(request_.hamlog_hdb_dir));
        stage_.trace.write(time);
    }

    void take_period() {
        stage_.trace.write(request_.End_Date);
        End_Date_ = request_.End_Date;
        if (End_Date_.empty()) {
            End_Date_ = request_.End_Date_bak;
            stage_.trace.write("     End_Date = End_Date_bak  " + std::string(End_Date_));
        }
        first_day_ = leading_number(request_.Start_Date);
        last_day_ = leading_number(End_Date_);
    }

    // The reader of cards sent tells more of itself than the others; kept.
    void trace_more(std::string_view title, std::string_view value) {
        if (kind_ == HistoryKind::sent) {
            stage_.trace.write(std::string(title).append(value));
        }
    }

    void trace_period(std::int32_t count) {
        trace_more("     Start_Date = ", request_.Start_Date);
        trace_more("     End_Date = ", End_Date_);
        trace_more("     ", request_.hamlog_hdb_dir);
        trace_more("     recno = ", std::to_string(count));
    }

    void write_selected(std::int32_t count) {
        stage_.ProgressBar1.restart(static_cast<std::size_t>(std::max(count, 1)));
        const std::string path = std::string(request_.drive_path).append(selected_records_file);
        TextOutput output = stage_.open_output(path);
        QuotedLine line;
        // A library may count up to the largest number there is.
        for (std::int64_t number = 1; number <= count; ++number) {
            const auto record = static_cast<std::int32_t>(number);
            if (kind_ == HistoryKind::sent) {
                stage_.trace.write("     " + std::to_string(record));
            }
            library_.THW_read(record, HamlogLibrary::by_number);
            fetch(library_, record_);
            if (in_period() && selects()) {
                write_record(output, line);
            }
            stage_.ProgressBar1.step();
        }
        for (const auto& sentinel : sentinels) {
            line.assign(sentinel);
            output.write_line(line.text());
        }
        output.close();
        stage_.ProgressBar1.restart(1);
        if (kind_ == HistoryKind::sent) {
            stage_.trace.write("bak_1.txt の件数" +
                               std::to_string(line_number_at_end(stage_.disk, path)));
        }
    }

    bool in_period() {
        const std::uint64_t day = date_number(record_.date, date_);
        return day >= first_day_ && day <= last_day_;
    }

    bool selects() {
        if (kind_ == HistoryKind::worked) {
            return true;
        }
        // The second of the three marks is that of a card sent, the third of one received.
        return !trim(mid(record_.marks, static_cast<Count>(kind_), 1)).empty();
    }

    void write_record(TextOutput& output, QuotedLine& line) {
        constexpr Count call_width = 13;
        record_.call.append(static_cast<std::size_t>(call_width), ' ');
        const std::string_view call = left(record_.call, call_width);
        const BandMode band_mode = band_mode_of(record_.frequency, record_.mode);
        const std::array<char, 2> code{band_mode.letter, band_mode.digit};
        key_.assign(call).append(code.data(), code.size());
        const std::array<std::string_view, 3> columns{key_, call,
                                                      std::string_view(code.data(), code.size())};
        line.assign(columns);
        output.write_line(line.text());
    }

    const Stage& stage_;
    HamlogLibrary& library_;
    HistoryKind kind_;
    const LogBookRequest& request_;
    std::string_view End_Date_;  // the one that counts
    std::uint64_t first_day_ = 0;
    std::uint64_t last_day_ = 0;
    Record record_;  // the one under way
    std::string date_;
    std::string key_;
};

}  // namespace

std::string& time_of(HistoryTimes& times, HistoryKind kind) {
    switch (kind) {
        case HistoryKind::sent:
            return times.QSL_sent;
        case HistoryKind::received:
            return times.QSL_rcvd;
        case HistoryKind::worked:
            break;
    }
    return times.QSO;
}

void read_hl_hdb(const Stage& stage, HamlogLibrary& library, HistoryKind kind,
                 const LogBookRequest& request, HistoryTimes& times) {
    const std::string procedure =
        "Private Sub read_hl_hdb_" + std::to_string(static_cast<int>(kind)) + "()";
    enter_procedure(stage.trace, procedure, [&] {
        const LogCloser closer(library);
        LogBookReading(stage, library, kind, request).run(times);
    });
}

}  // namespace veldrana
