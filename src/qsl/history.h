// Owns the history of the log book: for each call sign the bands and modes on which it was worked,
// sent a card or heard from by card. It is made from the records that qsl/hamlog_reader.h selects
// and lasts from run to run as a file, a line for each call sign in sort order: the call and, in
// one piece, its codes (qsl/band_mode.h), each in quotes. The sentinels stand in it as stations,
// and its last line is "ZZZ/ZZZZZZ,E2" without quotes.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "masters/first_rows.h"
#include "platform/stage.h"
#include "qsl/band_mode.h"
#include "rows/past_contacts.h"

namespace veldrana {

// The file of a rule, by the index of its button in Option07.
std::string history_path(std::string_view strPath, int Option07);

// Sorts bak_1.txt into bak_2.txt and leaves each pair of call and code once in bak_3.txt. A line of
// too few columns is failure 9.
void sum_bak_2(const Stage& stage, std::string_view drive_path);

// Makes the history file of bak_3.txt. Failure 51 for one that came out too short to be whole.
void sum_bak_3(const Stage& stage, std::string_view drive_path, const std::string& history_file);

// What the contacts must have in common for the one to cover the other.
struct Likeness {
    bool same_band = false;  // Check19
    bool same_mode = false;  // Check20
};

// Whether a station with these codes covers a contact on this band in this mode.
bool chk_qso_1(const Likeness& likeness, const BandMode& contact, std::string_view codes);

class QsoHistory : public PastContacts {
  public:
    QsoHistory(std::string history_file, const Likeness& likeness)
        : history_file_(std::move(history_file)), likeness_(likeness) {}

    // Failure 53 if the history file is not there, 62 if its fields come out odd.
    void sum_bak_4_bas(const Stage& stage);

    void prepare(const Stage& stage) override { sum_bak_4_bas(stage); }

    // The call is looked up as it is, trimmed; what stands behind its last slash goes if it has two
    // or more. A blank call finds the first place that holds no station.
    bool covers(std::string_view call, std::string_view frequency,
                std::string_view mode) const override;

  private:
    std::string history_file_;
    Likeness likeness_;
    FirstRows<std::string> codes_;  // by call
};

}  // namespace veldrana
