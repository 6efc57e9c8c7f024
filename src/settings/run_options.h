// Owns RunOptions: the choices that a run obeys, each under the name of its control on the main
// screen, with the values that a new installation starts from. The driver fills it from the screen
// when a run starts; stages get it as const.
#pragma once

#include <string>

namespace veldrana {

struct RunOptions {
    // --- radio groups, by the index of the chosen button ---

    int Option01 = 0;  // the log book database is the source of the history; -1: not chosen
    int Option07 = 0;  // No QSL rule: 0 none, 1 worked, 2 card sent, 3 card received
    int Option02 = 0;  // code stage: 0 none, 1 hl_code.mas, 2 contest data, 3 yubin_m?
    int Option03 = 0;  // choice of the contest data file: 0 automatic, 1 by hand
    int Option04 = 0;  // whether the source dat_mas counts in the priority order
    int Option05 = 0;  // stations worked once and more often: 0 apart, 1 together
    int Option06 = 0;  // key: 0 call, band, mode, date, time; 1 call, date, time, band, mode
    int Option08 = 0;  // time: 0 as it is, 1 all J, 2 all U, 3 DX stations U, 4 JA stations J
    int Option09 = 0;  // order: 0 ASCII, 1 JARL, 2 JARL reversed
    int Option1 = 0;   // time of the log: 0 UTC, 1 Japan time
    int Option2 = 0;   // the upper tab shown first
    int Option22 = 0;  // the lower tab shown first
    int Option4 = 1;   // Text_data remark: 0 left, 1 right of Rmks 1, 2 left, 3 right of Rmks 2

    // --- check boxes ---

    bool Check01 = true;    // take the frequency from the memo
    bool Check03 = false;   // use the source name_mas
    bool Check06 = false;   // make the dupe list
    bool Check07 = false;   // read by the replacement of "#"; both ways do the same
    bool Check08 = false;   // the chosen order for the contest file only
    bool Check1 = false;    // a blank between remark items
    bool Check10 = false;   // no card for Japanese club stations
    bool Check14 = false;   // use qth_mas.txt, and of it:
    bool Check4 = true;     //   the code
    bool Check5 = true;     //   G/L
    bool Check6 = true;     //   the name
    bool Check7 = false;    //   QTH
    bool Check16 = false;   //   but no code, QTH, G/L for portable stations
    bool Check8 = false;    // use the text data of the log book: user text
    bool Check4_A = false;  //   A or
    bool Check4_B = false;  //   B, and of it:
    bool Check11 = false;   //   the name
    bool Check13 = false;   //   the code
    bool Check9 = false;    //   QTH
    bool Check12 = false;   //   the remark
    bool Check17 = false;   //   but no code, QTH for portable stations
    bool Check15 = true;    // read only the operator txtOp_name; without a name every line
    bool Check18 = false;   // read the history at every run
    bool Check19 = false;   // the No QSL test needs the same band
    bool Check20 = false;   // and the same mode
    bool Check2 = false;    // one card turns the whole station's N into the transfer mark
    bool Check3 = false;    // one N turns the whole station's marks into N
    bool Check21 = false;   // "#" in G/L of stations worked once
    bool Check23 = true;    // the No QSL test goes by the call with its portable part; always on
    bool Check26 = true;    // keep a trace log that tells of no failure
    bool Check27 = false;   // for one run: take the power letter off the number received
    bool Check28 = false;   // for one run: copy APP_N1MM_EXCHANGE1 into the code
    bool Check31 = false;   // member search: ask about N too,
    bool Check32 = false;   //   rewrite N too,
    bool Check33 = false;   //   N for those who are no members

    // --- texts ---

    std::string txtQSL_Q = "J";   // transfer mark, one character, a blank if none is given
    std::string txtQSL_S = "*";   // sent mark, the same
    std::string txtOp_name = {};  // trimmed
    std::string txtYYYY = {};     // the contest year: the year of logs that have none
    std::string txtRmks1 = {};    // comments for the remarks, trimmed
    std::string txtRmks2 = {};

    // --- settings that no control of the main screen shows ---

    // The No QSL period, yyyymmdd.
    std::string Start_date = "19600101";
    std::string End_date = {};

    // Comma lists of source names, the first ranking highest; three places count.
    std::string name_yusen_jun = "dat_mas,name_mas,qth_mas,Text_data";
    std::string code_yusen_jun = "dat_mas,name_mas,qth_mas,Text_data";
    std::string qth_yusen_jun = "dat_mas,name_mas,qth_mas,Text_data";
    std::string No_QSL_moji = "N";  // the letter for no card, one character
};

}  // namespace veldrana
