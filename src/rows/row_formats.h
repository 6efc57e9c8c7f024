// Owns ContestRow and HamlogRow, the two row formats that all stages behind the row builder share.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldrana {

// Sort-in.dat, Sort-out.dat, temp_h_o.csv and the group files. Places from 0.
namespace contest_row {
enum Column : std::size_t {
    call_base,
    portable,
    code,
    gl,
    frequency,
    mode,
    name,
    transfer_mark,
    sent_mark,  // empty in Sort-in.dat
    reserved,
    date,  // YYMMDD
    time,  // HHMM and the zone letter
    report_sent,
    report_received,
    qth,
    rmks1,
    rmks2,
    call_1,  // as logged, twice
    call_2,
    count
};
}  // namespace contest_row

// temp_h_n.csv, _h0.csv, _c0.csv. Places from 0.
namespace hamlog_row {
enum Column : std::size_t {
    call_base,
    portable,
    date,  // YY/MM/DD
    time,  // HH:MM and the zone letter
    report_sent,
    report_received,
    frequency,
    mode,
    code,
    gl,
    qsl,  // transfer mark, sent mark, received mark
    name,
    qth,
    rmks1,
    rmks2,
    call_1,  // as logged, twice
    call_2,
    count
};
}  // namespace hamlog_row

// YY/MM/DD of YYMMDD.
void write_date(std::string& text, std::string_view date);
// HH:MMz of HHMMz: the first two characters, ":", the last three.
void write_time(std::string& text, std::string_view time);

}  // namespace veldrana
