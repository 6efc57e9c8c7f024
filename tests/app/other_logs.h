// Small logs of every kind that is no zLog text: the two contacts of sample_all_log in each.
#pragma once

#include <string>
#include <string_view>

#include "tests/app/program_kit.h"
#include "tests/readers/binary_log.h"

namespace veldrana {

inline constexpr std::string_view sample_cabrillo =
    "START-OF-LOG: 3.0\r\n"
    "CALLSIGN: JA1ZZZ\r\n"
    "QSO:   7012 CW 2025-04-26 2105 JA1ZZZ 599 11M JA1ZZA   589 104M\r\n"
    "QSO: 433000 FM 2025-04-26 2106 JA1ZZZ 59  11M JR8YYX/1 57  101H\r\n"
    "END-OF-LOG:\r\n";

inline constexpr std::string_view sample_adif =
    "as the logger writes it\r\n"
    "<eoh>\r\n"
    "<CALL:6>JA1ZZA <QSO_DATE:8>20250426 <TIME_ON:6>210559 <FREQ:5>7.012 <BAND:3>40M <MODE:2>CW"
    "<RST_SENT:3>599 <RST_RCVD:3>589 <APP_N1MM_EXCHANGE1:4>104M <EOR>\r\n"
    "<call:8>JR8YYX/1 <QSO_DATE:8>20250426 <TIME_ON:4>2106 <FREQ:7>433.000 <BAND:4>70CM <MODE:2>FM"
    "<RST_SENT:2>59 <RST_RCVD:2>57 <APP_N1MM_EXCHANGE1:4>101H <eor>\r\n";

inline const ZloContactBytes first_zlo_contact{.op = "JA1ZZZ", .memo = "SSN (7012)"};
inline const ZloContactBytes second_zlo_contact{.days = april_26 + day_part(21, 6),
                                                .call = "JR8YYX/1",
                                                .number_received = "101H",
                                                .report_sent = 59,
                                                .report_received = 57,
                                                .mode = 2,
                                                .band = 11,
                                                .op = "JA1ZZY"};

// A binary log of zLog whose heading names the contest; empty: none.
inline std::string sample_zlo(std::string_view contest_name) {
    return zlo_heading(contest_name) + first_zlo_contact.bytes() + second_zlo_contact.bytes();
}

// 7.012 MHz, and 433 MHz, 3,000,000 steps of 1 Hz above 430.
inline std::string sample_rtcl(RtclForm form) {
    return RtclContactBytes{.op = "JA1ZZZ", .comment = "SSN"}.bytes(form) +
           RtclContactBytes{.band = "430",
                            .counter = 3114354560U + 3000000U,
                            .mode = "FM",
                            .days = april_26 + day_part(21, 6),
                            .call = "JR8YYX/1",
                            .report_sent = "59",
                            .report_received = "57",
                            .exchange_received = "101H"}
               .bytes(form);
}

// A log of Ctestwin, of which nobody here reads a byte; four lines by its line ends.
inline constexpr std::string_view sample_lg8 = "lg8\n\n\n\x01";

}  // namespace veldrana
