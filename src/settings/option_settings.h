// Owns the options as they are kept between two runs of the program: texts, each under the name of
// its key. A check box is "0" or "1", a radio group the index of its button; a text that a file
// does not hold is empty. The controls of the main screen are brought in line with them at the
// start and store every change here.
#pragma once

#include <string>

namespace veldrana {

struct OptionSettings {
    // --- radio groups and check boxes, under the names of their controls ---

    std::string Option01;
    std::string Option07;
    std::string Option02;
    std::string Option04;
    std::string Option03;
    std::string Option05;
    std::string Option06;
    std::string Option08;
    std::string Option09;
    std::string Option1;
    std::string Option2;
    std::string Option22;
    std::string Option4;  // read but never written: it lasts if the user puts it into the file
    std::string Option7;  // no control bears these three any more
    std::string Option8;
    std::string Option9;

    std::string Check01;
    std::string Check03;
    std::string Check06;
    std::string Check07;
    std::string Check08;
    std::string Check1;
    std::string Check2;
    std::string Check3;
    std::string Check4;
    std::string Check5;
    std::string Check6;
    std::string Check7;
    std::string Check8;
    std::string Check9;
    std::string Check10;
    std::string Check11;
    std::string Check12;
    std::string Check13;
    std::string Check14;
    std::string Check15;
    std::string Check16;
    std::string Check17;
    std::string Check18;
    std::string Check19;
    std::string Check20;
    std::string Check21;
    std::string Check23;
    std::string Check4_A;
    std::string Check4_B;
    std::string Check26;  // in no file: every start begins with it on

    // --- marks, year, remarks ---

    std::string QSL_Q;  // transfer mark, one character
    std::string QSL_S;  // sent mark, one character
    std::string YYYY;   // contest year
    // The items in the six slots of each remark, and how many characters each takes; comma lists.
    std::string Rmks1_cfg;
    std::string Rmks2_cfg;
    std::string Rmks1_cfg_len;
    std::string Rmks2_cfg_len;

    // --- the No QSL period, two days as yyyymmdd ---

    std::string Start_date;
    std::string End_date;
    std::string use_system_date_flag;  // "1": the end is today

    // --- tabs shown first ---

    std::string disp_top_SSTab;
    std::string disp_top_SSTab_2;

    // --- user texts of the log book, full paths ---

    std::string Text_data_dir_A;
    std::string Text_data_dir_B;

    std::string DeBug_flag;  // "1" traces what the unpacker does

    // --- member search ---

    std::string N_sreach_flag;
    std::string N_ReWrite_flag;
    std::string Not_JARL_flag;
    std::string ReWrite_also_flag;
    std::string QSL_moji;  // written for a member, one character

    // --- which source ranks higher, comma lists of source names; and the sources' colours, decimal
    // 0xBBGGRR ---

    std::string name_yusen_jun;
    std::string code_yusen_jun;
    std::string qth_yusen_jun;
    std::string dat_mas_color;
    std::string name_mas_color;
    std::string qth_mas_color;
    std::string text_data_color;

    // --- the two grid editors: column widths in twips, check box ---

    std::string get_ColWidth_Grid4;
    std::string Grid4_Check1;
    std::string get_ColWidth_Grid5;
    std::string Grid5_Check1;

    // --- the program ---

    std::string exe_rec;    // runs of the program that came to their orderly end
    std::string Check_dat;  // "1" shows the survey tools

    // --- the maker of the postal masters ---

    std::string Make_Yubin_mas_help_flag;  // "1": its help was read
    std::string url_ken_all_lzh;           // where it fetches the postal codes
};

}  // namespace veldrana
