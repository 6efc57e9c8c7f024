// Log books as files, as a test needs them: tables of the log book's own layout and of any other,
// and texts of quoted rows.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/code_page_932.h"

namespace veldrana {

struct TableColumn {
    std::string name;  // as far as 11 bytes
    std::size_t width = 0;
};

// A table in the making. What its header tells follows from its columns and records, unless a test
// has it tell something else.
class LogBookTable {
  public:
    explicit LogBookTable(std::vector<TableColumn> columns) : columns_(std::move(columns)) {}

    // A record of values in the bytes of the file, each filled with blanks or cut to its width.
    LogBookTable& add(const std::vector<std::string>& values, char mark = ' ') {
        std::string record(1, mark);
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            std::string value = i < values.size() ? values[i] : std::string();
            value.resize(columns_[i].width, ' ');
            record += value;
        }
        records_ += record;
        ++count_;
        return *this;
    }

    std::string bytes() const {
        std::string header(32, '\0');
        header[0] = first_byte;
        put_number(header, 4, 4, count.value_or(count_));
        put_number(header, 8, 2, header_length.value_or(own_header_length()));
        put_number(header, 10, 2, record_length.value_or(own_record_length()));
        for (const TableColumn& column : columns_) {
            std::string descriptor = column.name.substr(0, 11);
            descriptor.resize(32, '\0');
            descriptor[11] = 'C';
            descriptor[16] = static_cast<char>(column.width);
            header += descriptor;
        }
        return header + "\x0D" + behind_columns + records_ + behind_records;
    }

    std::size_t own_header_length() const {
        return 32 + 32 * columns_.size() + 1 + behind_columns.size();
    }
    std::size_t own_record_length() const {
        std::size_t length = 1;
        for (const TableColumn& column : columns_) {
            length += column.width;
        }
        return length;
    }

    char first_byte = 0x03;
    std::optional<std::size_t> count;
    std::optional<std::size_t> header_length;
    std::optional<std::size_t> record_length;
    std::string behind_columns;  // within the header, behind the byte 0x0D
    std::string behind_records;

  private:
    // Low byte first.
    static void put_number(std::string& bytes, std::size_t place, std::size_t size,
                           std::size_t number) {
        for (std::size_t i = 0; i < size; ++i) {
            bytes[place + i] = static_cast<char>((number >> (8 * i)) & 0xFFU);
        }
    }

    std::vector<TableColumn> columns_;
    std::string records_;
    std::size_t count_ = 0;
};

// A contact as the log book's own table holds it, by the names of its columns.
struct LoggedContact {
    std::string CALLS = "JA1ZZA";
    std::string IGN = "";
    int year = 2025;
    int month = 4;
    int day = 26;
    int hour = 21;
    int minute = 5;
    bool utc = false;
    std::string FREQ = "7";
    std::string MODE = "CW";
    std::string QSL = "J  ";
    std::string CODE = "";
    std::string GL = "";
    std::string HIS = "599";
    std::string MY = "589";
    std::string NAME = "";
    std::string QTH = "";
    std::string RMK1 = "";
    std::string RMK2 = "";
};

inline std::vector<TableColumn> own_columns() {
    return {{"CALLS", 6}, {"IGN", 14}, {"DATE", 4},  {"TIME", 2}, {"CODE", 6}, {"GL", 6},
            {"QSL", 3},   {"FLAG", 2}, {"HIS", 3},   {"MY", 3},   {"FREQ", 7}, {"MODE", 4},
            {"NAME", 12}, {"QTH", 28}, {"RMK1", 54}, {"RMK2", 54}};
}

// The four bytes of DATE: century, year of the century, month, day.
inline std::string date_bytes(int year, int month, int day) {
    return {static_cast<char>(year / 100), static_cast<char>(year % 100), static_cast<char>(month),
            static_cast<char>(day)};
}

// The two bytes of TIME: hour, and minute with the top bit for UTC.
inline std::string time_bytes(int hour, int minute, bool utc) {
    return {static_cast<char>(hour), static_cast<char>(utc ? minute | 0x80 : minute)};
}

// In the order of own_columns.
inline std::vector<std::string> own_values(const LoggedContact& contact) {
    return {contact.CALLS,
            contact.IGN,
            date_bytes(contact.year, contact.month, contact.day),
            time_bytes(contact.hour, contact.minute, contact.utc),
            contact.CODE,
            contact.GL,
            contact.QSL,
            "",
            contact.HIS,
            contact.MY,
            contact.FREQ,
            contact.MODE,
            to_code_page(contact.NAME),
            to_code_page(contact.QTH),
            to_code_page(contact.RMK1),
            to_code_page(contact.RMK2)};
}

inline LogBookTable own_table(const std::vector<LoggedContact>& contacts) {
    LogBookTable table(own_columns());
    for (const LoggedContact& contact : contacts) {
        table.add(own_values(contact));
    }
    return table;
}

// A line of quoted columns with its line end, in the bytes of the file.
inline std::string quoted_row(const std::vector<std::string>& columns) {
    std::string line;
    for (const std::string& column : columns) {
        line += (line.empty() ? "\"" : ",\"") + column + "\"";
    }
    return to_code_page(line) + "\r\n";
}

}  // namespace veldrana
