#include "settings/option_keys.h"

#include <array>

#include "settings/hosts.h"
#include "settings/option_defaults.h"

namespace veldrana {
namespace {

using Options = OptionSettings;
using Environment = EnvironmentSettings;

constexpr std::string_view main_section;

// The year and the end of the period are the clock's to give.
constexpr auto options = std::to_array<OptionKey>({
    {main_section, "Option01", "Option01", &Options::Option01, "0"},
    {main_section, "Option07", "Option07", &Options::Option07, "0"},
    {main_section, "Option02", "Option02", &Options::Option02, "0"},
    {main_section, "Option04", "Option04", &Options::Option04, "0"},
    {main_section, "Check10", "Check10", &Options::Check10, "0"},
    {main_section, "Check06", "Check06", &Options::Check06, "0"},
    {main_section, "Option1", "Option1", &Options::Option1, "0"},
    {main_section, "QSL_Q", "QSL_Q", &Options::QSL_Q, "J"},
    {main_section, "QSL_S", "QSL_S", &Options::QSL_S, "*"},
    {main_section, "Check01", "Check01", &Options::Check01, "1"},
    {main_section, "Check15", "Check15", &Options::Check15, "1"},
    {main_section, "Check19", "Check19", &Options::Check19, "0"},
    {main_section, "Check20", "Check20", &Options::Check20, "0"},
    {main_section, "Option05", "Option05", &Options::Option05, "0"},
    {main_section, "Option06", "Option06", &Options::Option06, "0"},
    {main_section, "Check21", "Check21", &Options::Check21, "0"},
    {main_section, "YYYY", "YYYY", &Options::YYYY, ""},
    {main_section, "Check03", "Check03", &Options::Check03, "0"},
    {main_section, "Option09", "Option09", &Options::Option09, "0"},
    {main_section, "Check08", "Check08", &Options::Check08, "0"},
    {main_section, "Option03", "Option03", &Options::Option03, "0"},
    {main_section, "Option08", "Option08", &Options::Option08, "0"},
    {main_section, "Check1", "Check1", &Options::Check1, "0"},
    {main_section, "Rmks1_cfg", "Rmks1_cfg", &Options::Rmks1_cfg, "ｺﾝﾃｽﾄ,,,,,,,,,,,,"},
    {main_section, "Rmks2_cfg", "Rmks2_cfg", &Options::Rmks2_cfg, "Rmks2,,,,,,,,,,,,"},
    {main_section, "Rmks1_cfg_len", "Rmks1_cfg_len", &Options::Rmks1_cfg_len,
     "0,0,0,0,0,0,0,0,0,0,0,0,"},
    {main_section, "Rmks2_cfg_len", "Rmks2_cfg_len", &Options::Rmks2_cfg_len,
     "0,0,0,0,0,0,0,0,0,0,0,0,"},
    {main_section, "Start_date", "Start_date", &Options::Start_date, "19600101"},
    {main_section, "End_date", "End_Date", &Options::End_date, ""},
    {main_section, "use_system_date_flag", "use_system_date_flag", &Options::use_system_date_flag,
     "1"},
    {main_section, "Check2", "Check2", &Options::Check2, "0"},
    {main_section, "Check3", "Check3", &Options::Check3, "0"},
    {main_section, "disp_top_SSTab", "disp_top_SSTab", &Options::disp_top_SSTab, "0"},
    {main_section, "disp_top_SSTab_2", "disp_top_SSTab_2", &Options::disp_top_SSTab_2, "0"},
    {main_section, "Check4", "Check4", &Options::Check4, "1"},
    {main_section, "Check5", "Check5", &Options::Check5, "1"},
    {main_section, "Check6", "Check6", &Options::Check6, "1"},
    {main_section, "Check7", "Check7", &Options::Check7, "0"},
    {main_section, "Check07", "Check07", &Options::Check07, "0"},
    {main_section, "Check14", "Check14", &Options::Check14, "0"},
    {main_section, "Check16", "Check16", &Options::Check16, "0"},
    {main_section, "Check17", "Check17", &Options::Check17, "0"},
    {main_section, "Check18", "Check18", &Options::Check18, ""},
    {main_section, "Option7", "Option7", &Options::Option7, "0"},
    {main_section, "Option8", "Option8", &Options::Option8, "0"},
    {main_section, "Option9", "Option9", &Options::Option9, "0"},
    {main_section, "Option2", "Option2", &Options::Option2, "0"},
    {main_section, "Option22", "Option22", &Options::Option22, "0"},
    {main_section, "Check4_A", "Check4_A", &Options::Check4_A, "0"},
    {main_section, "Check4_B", "Check4_B", &Options::Check4_B, "0"},
    {main_section, "Text_data_dir_A", "Text_data_dir_A", &Options::Text_data_dir_A, ""},
    {main_section, "Text_data_dir_B", "Text_data_dir_B", &Options::Text_data_dir_B, ""},
    {main_section, "Check8", "Check8", &Options::Check8, "0"},
    {main_section, "Check9", "Check9", &Options::Check9, "0"},
    {main_section, "Check11", "Check11", &Options::Check11, "0"},
    {main_section, "Check12", "Check12", &Options::Check12, "0"},
    {main_section, "Check13", "Check13", &Options::Check13, "0"},
    {main_section, "Check23", "Check23", &Options::Check23, "1"},
    {main_section, "", "Option4", &Options::Option4, "1"},
    {main_section, "DeBug_flag", "DeBug_flag", &Options::DeBug_flag, "0"},
    {"JARL_Search", "N_sreach_flag", "N_sreach_flag", &Options::N_sreach_flag, ""},
    {"JARL_Search", "N_ReWrite_flag", "N_ReWrite_flag", &Options::N_ReWrite_flag, ""},
    {"JARL_Search", "Not_JARL_flag", "Not_JARL_flag", &Options::Not_JARL_flag, ""},
    {"JARL_Search", "ReWrite_also_flag", "ReWrite_also_flag", &Options::ReWrite_also_flag, ""},
    {"JARL_Search", "QSL_moji", "QSL_moji", &Options::QSL_moji, ""},
    {"DAT_MAS", "name_yusen_jun", "name_yusen_jun", &Options::name_yusen_jun, default_priority},
    {"DAT_MAS", "code_yusen_jun", "code_yusen_jun", &Options::code_yusen_jun, default_priority},
    {"DAT_MAS", "qth_yusen_jun", "qth_yusen_jun", &Options::qth_yusen_jun, default_priority},
    {"DAT_MAS", "dat_mas_color", "dat_mas_color", &Options::dat_mas_color, "16711680"},
    {"DAT_MAS", "name_mas_color", "name_mas_color", &Options::name_mas_color, "16776960"},
    {"DAT_MAS", "qth_mas_color", "qth_mas_color", &Options::qth_mas_color, "32768"},
    {"DAT_MAS", "text_data_color", "text_data_color", &Options::text_data_color, "16711935"},
    {"ColWidth_Grid", "get_ColWidth_Grid4", "get_ColWidth_Grid4", &Options::get_ColWidth_Grid4,
     default_grid_columns},
    {"ColWidth_Grid", "Grid4_Check1", "Grid4_Check1_", &Options::Grid4_Check1, "0"},
    {"ColWidth_Grid", "get_ColWidth_Grid5", "get_ColWidth_Grid5", &Options::get_ColWidth_Grid5,
     default_grid_columns},
    {"ColWidth_Grid", "Grid5_Check1", "Grid5_Check1_", &Options::Grid5_Check1, "0"},
    {"Main", "exe_rec", "exe_rec", &Options::exe_rec, "0"},
    {"Main", "Check_dat", "Check_dat", &Options::Check_dat, ""},
    {"Make_Yubin_mas", "Make_Yubin_mas_help_flag", "Make_Yubin_mas_help_flag",
     &Options::Make_Yubin_mas_help_flag, "0"},
    {"Make_Yubin_mas", "url_ken_all_lzh", "url_ken_all_lzh", &Options::url_ken_all_lzh,
     japan_post_url},
});

constexpr auto environment = std::to_array<EnvironmentKey>({
    {"zlog_dat_dir", &Environment::zlog_dat_dir},
    {"name_mas_dir", &Environment::name_mas_dir},
    {"qth_mas_dir", &Environment::qth_mas_dir},
    {"yubin_mas_dir", &Environment::yubin_mas_dir},
    {"hamlog_hdb_dir", &Environment::hamlog_hdb_dir},
    {"hamlog_hdb_2_dir", &Environment::hamlog_hdb_2_dir},
    {"zlo_dir", &Environment::zlo_dir},
    {"all_dir", &Environment::all_dir},
    {"MyCalls", &Environment::MyCalls},
    {"PassWords", &Environment::PassWords},
    {"dir_pad", &Environment::dir_pad},
    {"master_name", &Environment::master_name},
    {"No_QSL_moji", &Environment::No_QSL_moji},
    {"No_QSL_moji_set_flag", &Environment::No_QSL_moji_set_flag},
});

}  // namespace

std::span<const OptionKey> option_keys() {
    return options;
}

std::span<const EnvironmentKey> environment_keys() {
    return environment;
}

}  // namespace veldrana
