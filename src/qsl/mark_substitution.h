// Owns the rules that make the QSL marks of a run consistent station by station, and the letter
// that stands for "no card".
//
// They work on _c0.csv and _h0.csv between the sorts and the last pass. In these files no card is
// the letter "N", whatever letter the user has set; the user's comes in at the end.
#pragma once

#include <string>
#include <string_view>

#include "platform/stage.h"

namespace veldrana {

struct MarkRequest {
    std::string_view contest_file;  // _c0.csv, full path
    std::string_view hamlog_file;   // _h0.csv, full path
    std::string_view in_Dir;        // for the scratch files
    std::string_view txtQSL_Q;      // the transfer mark
    std::string_view No_QSL_moji;
};

// If one contact of a station needs no card, none of them does.
void all_JN_Chikan_full(const Stage& stage, const MarkRequest& request);
// If one contact of a station needs a card, all of them do: they get the transfer mark. A transfer
// mark "N" keeps them as they are.
void all_NJ_Chikan_full(const Stage& stage, const MarkRequest& request);

// Counts the rows of _c0.csv whose mark is "N". The result is shown by nobody: the count of the row
// builder is.
std::size_t count_No_QSL(const Stage& stage, const MarkRequest& request);

// Puts the letter in the place of "N" in both files, with a blank in third place.
void No_QSL_moji_ReWrite(const Stage& stage, const MarkRequest& request);

// What makes two rows the same station: JA1ZZ/1, or KH2/JA1ZZ if a remark holds "$DX". Call and
// portable part as they stand, trimmed by the caller.
void write_station_form(std::string& form, std::string_view call, std::string_view portable,
                        bool portable_in_front);

}  // namespace veldrana
