#include "settings/settings_store.h"

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/code_page_932.h"
#include "platform/profile_file.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string folder = "C:\\veldrana\\";

// --- what the option files hold, in the order of writing ---

struct Key {
    const char* name;
    std::string OptionSettings::*value;
    const char* initial;  // on 2026-05-04
};

struct KeySection {
    const char* name;  // empty: the name of the file
    std::vector<Key> keys;
};

using O = OptionSettings;

constexpr const char* sources = "dat_mas,name_mas,qth_mas,Text_data";
constexpr const char* widths =
    "600,1300,850,700,400,400,800,450,900,900,550,1800,3700,7100,7100,400";
constexpr const char* ken_all = "https://www.post.japanpost.jp/zipcode/dl/kogaki/lzh/ken_all.lzh";

// Behind "version" and "restart".
const std::vector<Key> main_keys{
    {"Option01", &O::Option01, "0"},
    {"Option07", &O::Option07, "0"},
    {"Option02", &O::Option02, "0"},
    {"Option04", &O::Option04, "0"},
    {"Check10", &O::Check10, "0"},
    {"Check06", &O::Check06, "0"},
    {"Option1", &O::Option1, "0"},
    {"QSL_Q", &O::QSL_Q, "J"},
    {"QSL_S", &O::QSL_S, "*"},
    {"Check01", &O::Check01, "1"},
    {"Check15", &O::Check15, "1"},
    {"Check19", &O::Check19, "0"},
    {"Check20", &O::Check20, "0"},
    {"Option05", &O::Option05, "0"},
    {"Option06", &O::Option06, "0"},
    {"Check21", &O::Check21, "0"},
    {"YYYY", &O::YYYY, "2026"},
    {"Check03", &O::Check03, "0"},
    {"Option09", &O::Option09, "0"},
    {"Check08", &O::Check08, "0"},
    {"Option03", &O::Option03, "0"},
    {"Option08", &O::Option08, "0"},
    {"Check1", &O::Check1, "0"},
    {"Rmks1_cfg", &O::Rmks1_cfg, "ｺﾝﾃｽﾄ,,,,,,,,,,,,"},
    {"Rmks2_cfg", &O::Rmks2_cfg, "Rmks2,,,,,,,,,,,,"},
    {"Rmks1_cfg_len", &O::Rmks1_cfg_len, "0,0,0,0,0,0,0,0,0,0,0,0,"},
    {"Rmks2_cfg_len", &O::Rmks2_cfg_len, "0,0,0,0,0,0,0,0,0,0,0,0,"},
    {"Start_date", &O::Start_date, "19600101"},
    {"End_date", &O::End_date, "20260504"},
    {"use_system_date_flag", &O::use_system_date_flag, "1"},
    {"Check2", &O::Check2, "0"},
    {"Check3", &O::Check3, "0"},
    {"disp_top_SSTab", &O::disp_top_SSTab, "0"},
    {"disp_top_SSTab_2", &O::disp_top_SSTab_2, "0"},
    {"Check4", &O::Check4, "1"},
    {"Check5", &O::Check5, "1"},
    {"Check6", &O::Check6, "1"},
    {"Check7", &O::Check7, "0"},
    {"Check07", &O::Check07, "0"},
    {"Check14", &O::Check14, "0"},
    {"Check16", &O::Check16, "0"},
    {"Check17", &O::Check17, "0"},
    {"Check18", &O::Check18, ""},
    {"Option7", &O::Option7, "0"},
    {"Option8", &O::Option8, "0"},
    {"Option9", &O::Option9, "0"},
    {"Option2", &O::Option2, "0"},
    {"Option22", &O::Option22, "0"},
    {"Check4_A", &O::Check4_A, "0"},
    {"Check4_B", &O::Check4_B, "0"},
    {"Text_data_dir_A", &O::Text_data_dir_A, ""},
    {"Text_data_dir_B", &O::Text_data_dir_B, ""},
    {"Check8", &O::Check8, "0"},
    {"Check9", &O::Check9, "0"},
    {"Check11", &O::Check11, "0"},
    {"Check12", &O::Check12, "0"},
    {"Check13", &O::Check13, "0"},
    {"Check23", &O::Check23, "1"},
    {"DeBug_flag", &O::DeBug_flag, "0"},
};

const std::vector<KeySection> sections{
    {"", main_keys},
    {"JARL_Search",
     {{"N_sreach_flag", &O::N_sreach_flag, ""},
      {"N_ReWrite_flag", &O::N_ReWrite_flag, ""},
      {"Not_JARL_flag", &O::Not_JARL_flag, ""},
      {"ReWrite_also_flag", &O::ReWrite_also_flag, ""},
      {"QSL_moji", &O::QSL_moji, ""}}},
    {"DAT_MAS",
     {{"name_yusen_jun", &O::name_yusen_jun, sources},
      {"code_yusen_jun", &O::code_yusen_jun, sources},
      {"qth_yusen_jun", &O::qth_yusen_jun, sources},
      {"dat_mas_color", &O::dat_mas_color, "16711680"},
      {"name_mas_color", &O::name_mas_color, "16776960"},
      {"qth_mas_color", &O::qth_mas_color, "32768"},
      {"text_data_color", &O::text_data_color, "16711935"}}},
    {"ColWidth_Grid",
     {{"get_ColWidth_Grid4", &O::get_ColWidth_Grid4, widths},
      {"Grid4_Check1", &O::Grid4_Check1, "0"},
      {"get_ColWidth_Grid5", &O::get_ColWidth_Grid5, widths},
      {"Grid5_Check1", &O::Grid5_Check1, "0"}}},
    {"Main", {{"exe_rec", &O::exe_rec, "0"}, {"Check_dat", &O::Check_dat, ""}}},
    {"Make_Yubin_mas",
     {{"Make_Yubin_mas_help_flag", &O::Make_Yubin_mas_help_flag, "0"},
      {"url_ken_all_lzh", &O::url_ken_all_lzh, ken_all}}},
};

// A value that no other key has.
std::string value_for(std::string_view key) {
    return "<" + std::string(key) + ">";
}

bool is_grid_box(std::string_view key) {
    return key == "Grid4_Check1" || key == "Grid5_Check1";
}

// --- what the environment file holds behind "version", in the order of writing ---

struct EnvironmentKey {
    const char* name;
    std::string EnvironmentSettings::*value;
};

using E = EnvironmentSettings;

const std::vector<EnvironmentKey> environment_table{
    {"zlog_dat_dir", &E::zlog_dat_dir},
    {"name_mas_dir", &E::name_mas_dir},
    {"qth_mas_dir", &E::qth_mas_dir},
    {"yubin_mas_dir", &E::yubin_mas_dir},
    {"hamlog_hdb_dir", &E::hamlog_hdb_dir},
    {"hamlog_hdb_2_dir", &E::hamlog_hdb_2_dir},
    {"zlo_dir", &E::zlo_dir},
    {"all_dir", &E::all_dir},
    {"MyCalls", &E::MyCalls},
    {"PassWords", &E::PassWords},
    {"dir_pad", &E::dir_pad},
    {"master_name", &E::master_name},
    {"No_QSL_moji", &E::No_QSL_moji},
    {"No_QSL_moji_set_flag", &E::No_QSL_moji_set_flag},
};

class SettingsStoreTest : public testing::Test {
  protected:
    SettingsStoreTest() { disk.put_folder("C:\\veldrana"); }

    void put(std::string_view name, std::string_view text) {
        disk.put(folder + std::string(name), to_code_page(text));
    }
    std::string text(std::string_view name) {
        return from_code_page(disk.bytes(folder + std::string(name)));
    }
    std::string stored(std::string_view file, std::string_view section, std::string_view key) {
        return ProfileFile(disk, folder + std::string(file)).value(section, key);
    }
    std::string stored_option(std::string_view key) { return stored(new_ini, new_ini, key); }
    // An option file with one line behind the heading of its main section.
    void put_option(std::string_view line) {
        put(new_ini, "[Veldrana_new.ini]\r\n" + std::string(line) + "\r\n");
    }

    void give_each_option_a_value() {
        for (const KeySection& section : sections) {
            for (const Key& key : section.keys) {
                store.options.*key.value = value_for(key.name);
            }
        }
    }
    // The text of an option file in which every key has a value of its own.
    static std::string option_text(std::string_view file, std::string_view version,
                                   std::string_view restart) {
        std::string text;
        for (const KeySection& section : sections) {
            const bool is_main = *section.name == '\0';
            text += "[" + std::string(is_main ? file : section.name) + "]\r\n";
            if (is_main) {
                text += "version=" + std::string(version) + "\r\n";
                text += "restart=" + std::string(restart) + "\r\n";
            }
            for (const Key& key : section.keys) {
                text += std::string(key.name) + "=" + value_for(key.name) + "\r\n";
            }
        }
        return text;
    }

    void give_each_entry_a_value() {
        for (const EnvironmentKey& key : environment_table) {
            store.environment.*key.value = value_for(key.name);
        }
    }
    static std::string environment_text(std::string_view version) {
        std::string text = "[Veldrana_cfg.ini]\r\nversion=" + std::string(version) + "\r\n";
        for (const EnvironmentKey& key : environment_table) {
            text += std::string(key.name) + "=" + value_for(key.name) + "\r\n";
        }
        return text;
    }

    MemoryDisk disk;
    FixedClock clock;
    SettingsStore store{disk, clock, folder};
};

// --- defaults ---

TEST_F(SettingsStoreTest, HasNothingBeforeItReads) {
    for (const KeySection& section : sections) {
        for (const Key& key : section.keys) {
            EXPECT_EQ(store.options.*key.value, "") << key.name;
        }
    }
    EXPECT_FALSE(store.restart);
}

TEST_F(SettingsStoreTest, EachOptionHasItsDefault) {
    store.set_default_options();
    for (const KeySection& section : sections) {
        for (const Key& key : section.keys) {
            EXPECT_EQ(store.options.*key.value, key.initial) << key.name;
        }
    }
}

TEST_F(SettingsStoreTest, TheOptionThatIsNeverWrittenHasADefaultToo) {
    store.set_default_options();
    EXPECT_EQ(store.options.Option4, "1");
}

TEST_F(SettingsStoreTest, DefaultYearAndEndOfThePeriodAreThoseOfTheClock) {
    clock.time = {2031, 1, 9, 0, 0, 0};
    store.set_default_options();
    EXPECT_EQ(store.options.YYYY, "2031");
    EXPECT_EQ(store.options.End_date, "20310109");
}

TEST_F(SettingsStoreTest, DefaultsLeaveAColourThatIsSet) {
    store.options.dat_mas_color = "1";
    store.options.name_mas_color = "2";
    store.options.qth_mas_color = "3";
    store.options.text_data_color = "4";
    store.set_default_options();
    EXPECT_EQ(store.options.dat_mas_color, "1");
    EXPECT_EQ(store.options.name_mas_color, "2");
    EXPECT_EQ(store.options.qth_mas_color, "3");
    EXPECT_EQ(store.options.text_data_color, "4");
}

TEST_F(SettingsStoreTest, DefaultsTakeThePlaceOfOtherValues) {
    give_each_option_a_value();
    store.set_default_options();
    EXPECT_EQ(store.options.Check01, "1");
    EXPECT_EQ(store.options.Start_date, "19600101");
    EXPECT_EQ(store.options.name_yusen_jun, sources);
}

TEST_F(SettingsStoreTest, DefaultsTouchNoFile) {
    store.set_default_options();
    store.set_default_dirs();
    EXPECT_THAT(disk.files(), IsEmpty());
}

// --- writing the options ---

TEST_F(SettingsStoreTest, ANewOptionFileHasItsKeysInOrder) {
    give_each_option_a_value();
    store.write_Veldrana_new_ini();
    EXPECT_EQ(text(new_ini), option_text("Veldrana_new.ini", "5.30", "restart"));
}

TEST_F(SettingsStoreTest, TheSnapshotHasTheSameUnderItsOwnName) {
    give_each_option_a_value();
    store.write_Veldrana_ini();
    EXPECT_EQ(text(snapshot_ini), option_text("Veldrana.ini", "5.30", "restart"));
}

TEST_F(SettingsStoreTest, EachOptionFileIsWrittenAlone) {
    store.write_Veldrana_new_ini();
    EXPECT_THAT(disk.files(), ElementsAre(folder + "Veldrana_new.ini"));
    store.write_Veldrana_ini();
    store.options.Check01 = "1";
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored(snapshot_ini, snapshot_ini, "Check01"), "");
    EXPECT_EQ(stored_option("Check01"), "1");
}

TEST_F(SettingsStoreTest, TheOptionThatIsNeverWrittenIsNotInTheFile) {
    store.options.Option4 = "3";
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored_option("Option4"), "");
    EXPECT_THAT(text(new_ini), testing::Not(testing::HasSubstr("Option4")));
}

TEST_F(SettingsStoreTest, TheOptionThatIsNeverWrittenStaysAsTheUserPutIt) {
    put_option("Option4=2");
    store.options.Option4 = "3";
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored_option("Option4"), "2");
}

TEST_F(SettingsStoreTest, TheVersionIsAlwaysThatOfTheProgram) {
    store.version = "4.10";
    store.write_Veldrana_new_ini();
    store.write_Veldrana_cfg_ini();
    EXPECT_EQ(stored_option("version"), "5.30");
    EXPECT_EQ(stored(cfg_ini, cfg_ini, "version"), "5.30");
}

TEST_F(SettingsStoreTest, TheMarkOfAnEarlierStartIsAlwaysWritten) {
    store.restart = false;
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored_option("restart"), "restart");
}

TEST_F(SettingsStoreTest, ValuesAreTrimmedBeforeTheyAreWritten) {
    store.options.YYYY = "  2026 ";
    store.options.QSL_Q = " ";
    store.environment.PassWords = " my secret ";
    store.set_dat_in_name = " C:\\a.dat ";
    store.write_Veldrana_new_ini();
    store.write_Veldrana_cfg_ini();
    store.write_dat_ini();
    EXPECT_THAT(text(new_ini), testing::HasSubstr("\r\nYYYY=2026\r\n"));
    EXPECT_THAT(text(new_ini), testing::HasSubstr("\r\nQSL_Q=\r\n"));
    EXPECT_THAT(text(cfg_ini), testing::HasSubstr("\r\nPassWords=my secret\r\n"));
    EXPECT_EQ(text(dat_ini), "[DAT_MAS]\r\nset_dat_in_name=C:\\a.dat\r\n");
}

TEST_F(SettingsStoreTest, TheEnvironmentIsForItsOwnerAlone) {
    store.write_Veldrana_new_ini();
    put(cfg_ini, "[Veldrana_cfg.ini]\r\nPassWords=secret\r\n");
    store.write_Veldrana_cfg_ini();
    EXPECT_TRUE(disk.is_for_owner(folder + std::string(cfg_ini)));
    EXPECT_FALSE(disk.is_for_owner(folder + std::string(new_ini)));
}

TEST_F(SettingsStoreTest, EachValueIsReplacedWhereItStands) {
    // Every section and key upside down.
    std::string before;
    for (auto section = sections.rbegin(); section != sections.rend(); ++section) {
        const std::string name = *section->name == '\0' ? "Veldrana_new.ini" : section->name;
        before += "[" + name + "]\r\n";
        for (auto key = section->keys.rbegin(); key != section->keys.rend(); ++key) {
            before += std::string(key->name) + "=old\r\n";
        }
    }
    put(new_ini, before + "restart=restart\r\nversion=5.30\r\n");
    give_each_option_a_value();
    store.write_Veldrana_new_ini();
    std::string after;
    for (auto section = sections.rbegin(); section != sections.rend(); ++section) {
        const std::string name = *section->name == '\0' ? "Veldrana_new.ini" : section->name;
        after += "[" + name + "]\r\n";
        for (auto key = section->keys.rbegin(); key != section->keys.rend(); ++key) {
            after += std::string(key->name) + "=" + value_for(key->name) + "\r\n";
        }
    }
    EXPECT_EQ(text(new_ini), after + "restart=restart\r\nversion=5.30\r\n");
}

TEST_F(SettingsStoreTest, AMissingKeyGoesToTheEndOfItsSection) {
    std::string before = option_text("Veldrana_new.ini", "5.30", "restart");
    before.erase(before.find("Check19="), std::string("Check19=<Check19>\r\n").size());
    put(new_ini, before);
    give_each_option_a_value();
    store.write_Veldrana_new_ini();
    std::string after = before;
    after.insert(after.find("[JARL_Search]"), "Check19=<Check19>\r\n");
    EXPECT_EQ(text(new_ini), after);
}

TEST_F(SettingsStoreTest, UnknownKeysAndSectionsStayAsTheyStand) {
    put(new_ini,
        "; by hand\r\n[Mine]\r\na = \"1\" \r\n[veldrana_NEW.ini]\r\nown=x y\r\nCheck01=1\r\n"
        "[Yours]\r\nb=2\r\n");
    store.options.Check01 = "0";
    store.write_Veldrana_new_ini();
    EXPECT_THAT(text(new_ini),
                testing::StartsWith("; by hand\r\n[Mine]\r\na = \"1\" \r\n"
                                    "[veldrana_NEW.ini]\r\nown=x y\r\nCheck01=0\r\n"));
    EXPECT_THAT(text(new_ini), testing::HasSubstr("\r\n[Yours]\r\nb=2\r\n"));
}

TEST_F(SettingsStoreTest, FilesAreShiftJis) {
    store.options.Rmks1_cfg = "ｺﾝﾃｽﾄ,";
    store.environment.qth_mas_dir = "使用しない";
    store.write_Veldrana_new_ini();
    store.write_Veldrana_cfg_ini();
    EXPECT_THAT(disk.bytes(folder + "Veldrana_new.ini"),
                testing::HasSubstr("Rmks1_cfg=\xba\xdd\xc3\xbd\xc4,\r\n"));
    EXPECT_THAT(disk.bytes(folder + "Veldrana_cfg.ini"),
                testing::HasSubstr("qth_mas_dir=\x8e\x67\x97\x70\x82\xb5\x82\xc8\x82\xa2\r\n"));
}

// --- reading the options ---

TEST_F(SettingsStoreTest, EachOptionIsReadBack) {
    put(new_ini, option_text("Veldrana_new.ini", "5.29", "restart"));
    store.read_Veldrana_new_ini();
    for (const KeySection& section : sections) {
        for (const Key& key : section.keys) {
            const std::string expected = is_grid_box(key.name) ? "" : value_for(key.name);
            EXPECT_EQ(store.options.*key.value, expected) << key.name;
        }
    }
    EXPECT_EQ(store.version, "5.29");
    EXPECT_TRUE(store.restart);
}

TEST_F(SettingsStoreTest, EachOptionOfTheSnapshotIsReadBack) {
    put(snapshot_ini, option_text("Veldrana.ini", "5.29", "restart"));
    store.read_Veldrana_ini();
    for (const KeySection& section : sections) {
        for (const Key& key : section.keys) {
            const std::string expected = is_grid_box(key.name) ? "" : value_for(key.name);
            EXPECT_EQ(store.options.*key.value, expected) << key.name;
        }
    }
    EXPECT_EQ(store.version, "5.29");
}

TEST_F(SettingsStoreTest, AnOptionFileUnderTheNameOfTheOtherHasNoMainSection) {
    put(snapshot_ini, option_text("Veldrana_new.ini", "5.30", "restart"));
    store.read_Veldrana_ini();
    EXPECT_EQ(store.options.Check01, "");
    EXPECT_EQ(store.options.exe_rec, "<exe_rec>") << "of a section that both files have";
}

TEST_F(SettingsStoreTest, AMissingKeyOverwritesItsOption) {
    put(new_ini, "[Veldrana_new.ini]\r\n");
    give_each_option_a_value();
    store.options.Option4 = "1";
    store.version = "5.30";
    store.restart = true;
    store.read_Veldrana_new_ini();
    for (const KeySection& section : sections) {
        for (const Key& key : section.keys) {
            EXPECT_EQ(store.options.*key.value, "") << key.name;
        }
    }
    EXPECT_EQ(store.options.Option4, "");
    EXPECT_EQ(store.version, "");
    EXPECT_FALSE(store.restart);
}

TEST_F(SettingsStoreTest, AMissingFileOverwritesTheOptions) {
    give_each_option_a_value();
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Check01, "");
    EXPECT_EQ(store.options.url_ken_all_lzh, "");
}

TEST_F(SettingsStoreTest, TheEndDateIsFoundAsItIsWritten) {
    put_option("End_date=20260504");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.End_date, "20260504");
}

TEST_F(SettingsStoreTest, TheEndDateIsFoundAsItIsAskedFor) {
    put_option("End_Date=20260504");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.End_date, "20260504");
}

TEST_F(SettingsStoreTest, TheOptionThatIsNeverWrittenIsRead) {
    put_option("Option4=2");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Option4, "2");
}

TEST_F(SettingsStoreTest, TheDefaultOfTheOptionThatIsNeverWrittenIsLostAtTheFirstRead) {
    store.set_default_options();
    store.write_Veldrana_new_ini();
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Option4, "");
}

TEST_F(SettingsStoreTest, TheCheckBoxesOfTheGridsAreWrittenButReadBackAsEmpty) {
    put(new_ini, "[ColWidth_Grid]\r\nGrid4_Check1=1\r\nGrid5_Check1=1\r\n");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Grid4_Check1, "");
    EXPECT_EQ(store.options.Grid5_Check1, "");
}

TEST_F(SettingsStoreTest, TheCheckBoxesOfTheGridsAreAskedForWithATrailingUnderscore) {
    put(new_ini, "[ColWidth_Grid]\r\nGrid4_Check1_=1\r\nGrid5_Check1_=2\r\n");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Grid4_Check1, "1");
    EXPECT_EQ(store.options.Grid5_Check1, "2");
}

TEST_F(SettingsStoreTest, TheCheckBoxesOfTheGridsAreEmptyInTheFileAfterAReadAndAWrite) {
    store.set_default_options();
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored(new_ini, "ColWidth_Grid", "Grid4_Check1"), "0");
    store.read_Veldrana_new_ini();
    store.write_Veldrana_new_ini();
    EXPECT_THAT(text(new_ini), testing::HasSubstr("\r\nGrid4_Check1=\r\n"));
    EXPECT_THAT(text(new_ini), testing::HasSubstr("\r\nGrid5_Check1=\r\n"));
    EXPECT_THAT(text(new_ini), testing::Not(testing::HasSubstr("Check1_=")));
}

TEST_F(SettingsStoreTest, OldNamesOfTheUserTextAreReplacedInThePriorityLists) {
    put(new_ini,
        "[DAT_MAS]\r\nname_yusen_jun=user_txt,dat_mas\r\ncode_yusen_jun=dat_mas,user_txt,user_txt"
        "\r\nqth_yusen_jun=name_mas,user_txt,qth_mas\r\n");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.name_yusen_jun, "Text_data,dat_mas");
    EXPECT_EQ(store.options.code_yusen_jun, "dat_mas,Text_data,Text_data");
    EXPECT_EQ(store.options.qth_yusen_jun, "name_mas,Text_data,qth_mas");
}

TEST_F(SettingsStoreTest, AReplacedNameIsSavedAtTheNextWrite) {
    put(new_ini, "[DAT_MAS]\r\nname_yusen_jun=user_txt,dat_mas\r\n");
    store.read_Veldrana_new_ini();
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored(new_ini, "DAT_MAS", "name_yusen_jun"), "Text_data,dat_mas");
}

TEST_F(SettingsStoreTest, OnlyPriorityListsAreSearchedForTheOldName) {
    put_option("Text_data_dir_A=C:\\user_txt.txt");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Text_data_dir_A, "C:\\user_txt.txt");
}

TEST_F(SettingsStoreTest, ValuesAreReadWithoutTheBlanksAroundThem) {
    put_option("YYYY = 2025 ");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.YYYY, "2025");
}

TEST_F(SettingsStoreTest, QuotesOfAValueAreKept) {
    put_option("QSL_S=\"*\"");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.QSL_S, "\"*\"");
}

TEST_F(SettingsStoreTest, ALongValueComesBackCutAndIsSavedSo) {
    const std::string cut = "memo," + std::string(122, 'x');
    put_option("Rmks1_cfg=" + cut + "yyy,");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Rmks1_cfg, cut);
    store.write_Veldrana_new_ini();
    EXPECT_THAT(text(new_ini), testing::HasSubstr("Rmks1_cfg=" + cut + "\r\n"));
}

TEST_F(SettingsStoreTest, ALongerValueInMemoryIsWrittenWhole) {
    store.options.Rmks1_cfg = std::string(200, 'x');
    store.write_Veldrana_new_ini();
    EXPECT_THAT(text(new_ini), testing::HasSubstr("Rmks1_cfg=" + std::string(200, 'x') + "\r\n"));
}

TEST_F(SettingsStoreTest, TheMarkOfAnEarlierStartIsTheWordItself) {
    for (const auto& [value, restart] : std::vector<std::pair<std::string, bool>>{
             {"restart", true}, {"", false}, {"1", false}, {"restarted", false}}) {
        put_option("restart=" + value);
        store.read_Veldrana_new_ini();
        EXPECT_EQ(store.restart, restart) << value;
    }
}

TEST_F(SettingsStoreTest, AMasterIsInUseUnlessItsEntrySaysNo) {
    put(cfg_ini,
        "[Veldrana_cfg.ini]\r\nname_mas_dir=使用しない\r\nqth_mas_dir=\r\n"
        "yubin_mas_dir=C:\\mas\\\r\n");
    store.read_Veldrana_cfg_ini();
    EXPECT_FALSE(store.masters_in_use.name_mas);
    EXPECT_TRUE(store.masters_in_use.qth_mas);
    EXPECT_TRUE(store.masters_in_use.yubin_mas);
    put(cfg_ini,
        "[Veldrana_cfg.ini]\r\nname_mas_dir=C:\\mas\\\r\nqth_mas_dir=使用しない\r\n"
        "yubin_mas_dir=使用しない\r\n");
    store.read_Veldrana_cfg_ini();
    EXPECT_TRUE(store.masters_in_use.name_mas);
    EXPECT_FALSE(store.masters_in_use.qth_mas);
    EXPECT_FALSE(store.masters_in_use.yubin_mas);
}

TEST_F(SettingsStoreTest, TheVersionIsThatOfTheFileReadLast) {
    put(new_ini, "[Veldrana_new.ini]\r\nversion=5.28\r\n");
    put(cfg_ini, "[Veldrana_cfg.ini]\r\nversion=5.29\r\n");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.version, "5.28");
    store.read_Veldrana_cfg_ini();
    EXPECT_EQ(store.version, "5.29");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.version, "5.28");
}

// --- the lists of lengths ---

struct Lengths {
    const char* list;
    const char* normalised;
};

class NormalisedLengths : public testing::TestWithParam<Lengths> {};

TEST_P(NormalisedLengths, ClosesGapsInOnePass) {
    EXPECT_EQ(normalised_lengths(GetParam().list), GetParam().normalised);
}

INSTANTIATE_TEST_SUITE_P(Lists, NormalisedLengths,
                         testing::Values(Lengths{"", ""}, Lengths{"0,0,0,0,0,0,", "0,0,0,0,0,0,"},
                                         Lengths{",", "0,"}, Lengths{",5", "0,5"},
                                         Lengths{"1,,2", "1,0,2"}, Lengths{"1,,", "1,0,"},
                                         Lengths{"1,,,2", "1,0,,2"}, Lengths{"1,,,,2", "1,0,,0,2"},
                                         Lengths{",,", "0,0,"}, Lengths{",,,", "0,0,,"},
                                         Lengths{",5,,,", "0,5,0,,"},
                                         Lengths{"0,5,0,,", "0,5,0,0,"},
                                         Lengths{"1,,2,,3", "1,0,2,0,3"}, Lengths{"a b", "a b"}));

TEST_F(SettingsStoreTest, AWriteClosesGapsOfTheLengths) {
    store.options.Rmks1_cfg_len = ",5,,,";
    store.options.Rmks2_cfg_len = "1,,2,";
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored_option("Rmks1_cfg_len"), "0,5,0,,");
    EXPECT_EQ(stored_option("Rmks2_cfg_len"), "1,0,2,");
}

TEST_F(SettingsStoreTest, TheNextWriteClosesAFurtherGap) {
    store.options.Rmks1_cfg_len = ",5,,,";
    store.write_Veldrana_new_ini();
    store.write_Veldrana_new_ini();
    EXPECT_EQ(stored_option("Rmks1_cfg_len"), "0,5,0,0,");
}

TEST_F(SettingsStoreTest, AReadClosesGapsOfTheLengths) {
    put_option("Rmks1_cfg_len=,5,,,\r\nRmks2_cfg_len=1,,,2");
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Rmks1_cfg_len, "0,5,0,,");
    EXPECT_EQ(store.options.Rmks2_cfg_len, "1,0,,2");
}

TEST_F(SettingsStoreTest, TheSnapshotGoesThroughTheSame) {
    store.options.Rmks1_cfg_len = ",5,,,";
    store.write_Veldrana_ini();
    EXPECT_EQ(stored(snapshot_ini, snapshot_ini, "Rmks1_cfg_len"), "0,5,0,,");
}

TEST_F(SettingsStoreTest, ItemsThatAreNoLengthsKeepTheirGaps) {
    store.options.Rmks1_cfg = ",,,";
    store.write_Veldrana_new_ini();
    store.read_Veldrana_new_ini();
    EXPECT_EQ(store.options.Rmks1_cfg, ",,,");
}

// --- the environment ---

TEST_F(SettingsStoreTest, ANewEnvironmentFileHasItsKeysInOrder) {
    give_each_entry_a_value();
    store.write_Veldrana_cfg_ini();
    EXPECT_EQ(text(cfg_ini), environment_text("5.30"));
}

TEST_F(SettingsStoreTest, EachEntryOfTheEnvironmentIsReadBack) {
    put(cfg_ini, environment_text("5.29"));
    store.read_Veldrana_cfg_ini();
    for (const EnvironmentKey& key : environment_table) {
        EXPECT_EQ(store.environment.*key.value, value_for(key.name)) << key.name;
    }
    EXPECT_EQ(store.version, "5.29");
}

TEST_F(SettingsStoreTest, AMissingEntryOverwritesItsValue) {
    put(cfg_ini, "[Veldrana_cfg.ini]\r\n");
    give_each_entry_a_value();
    store.version = "5.30";
    store.read_Veldrana_cfg_ini();
    for (const EnvironmentKey& key : environment_table) {
        EXPECT_EQ(store.environment.*key.value, "") << key.name;
    }
    EXPECT_EQ(store.version, "");
}

TEST_F(SettingsStoreTest, TheEnvironmentFileLeavesTheOptionsAlone) {
    put(cfg_ini, environment_text("5.30"));
    give_each_option_a_value();
    store.read_Veldrana_cfg_ini();
    EXPECT_EQ(store.options.Check01, "<Check01>");
    store.restart = true;
    store.read_Veldrana_cfg_ini();
    EXPECT_TRUE(store.restart);
}

TEST_F(SettingsStoreTest, AMasterIsInUseUnlessItsEntrySaysNot) {
    EXPECT_FALSE(is_used("使用しない"));
    EXPECT_TRUE(is_used("C:\\veldrana\\"));
    EXPECT_TRUE(is_used(""));
}

TEST(RequiredEntries, AreTheEightPaths) {
    std::vector<std::string_view> names;
    for (const RequiredEntry& entry : required_entries) {
        names.push_back(entry.key);
    }
    EXPECT_THAT(names, ElementsAre("zlog_dat_dir", "name_mas_dir", "qth_mas_dir", "yubin_mas_dir",
                                   "hamlog_hdb_dir", "hamlog_hdb_2_dir", "zlo_dir", "all_dir"));
}

// --- the first environment ---

TEST_F(SettingsStoreTest, WithNothingFoundTwoMastersAreNotUsedAndTheRestIsEmpty) {
    give_each_entry_a_value();
    store.set_default_dirs();
    EXPECT_EQ(store.environment.zlog_dat_dir, "");
    EXPECT_EQ(store.environment.name_mas_dir, "");
    EXPECT_EQ(store.environment.qth_mas_dir, "使用しない");
    EXPECT_EQ(store.environment.yubin_mas_dir, "使用しない");
    EXPECT_EQ(store.environment.hamlog_hdb_dir, "");
    EXPECT_EQ(store.environment.hamlog_hdb_2_dir, "");
    EXPECT_EQ(store.environment.zlo_dir, "");
    EXPECT_EQ(store.environment.all_dir, "");
}

TEST_F(SettingsStoreTest, TheNameMasterIsFoundBesideTheProgram) {
    put("Name_Mas.TXT", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.name_mas_dir, "C:\\veldrana\\");
}

TEST_F(SettingsStoreTest, TheOtherMastersAreNotLookedFor) {
    put("qth_mas.txt", "");
    put("yubin_m1.mas", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.qth_mas_dir, "使用しない");
    EXPECT_EQ(store.environment.yubin_mas_dir, "使用しない");
}

TEST_F(SettingsStoreTest, TheDatabaseIsFoundBelowTheProgramsFolderOfTheDrive) {
    disk.put("C:\\Program Files\\Hamlog\\Hamlog.hdb", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.hamlog_hdb_dir, "C:\\Program Files\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(store.environment.hamlog_hdb_2_dir, "C:\\Program Files\\Hamlog\\Hamlog.hdb");
}

TEST_F(SettingsStoreTest, TheDatabaseIsFoundBelowTheRoot) {
    disk.put("C:\\Hamlog\\Hamlog.hdb", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.hamlog_hdb_dir, "C:\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(store.environment.hamlog_hdb_2_dir, "C:\\Hamlog\\Hamlog.hdb");
}

TEST_F(SettingsStoreTest, OfTwoDatabasesThatBelowTheRootWins) {
    disk.put("C:\\Program Files\\Hamlog\\Hamlog.hdb", "");
    disk.put("C:\\Hamlog\\Hamlog.hdb", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.hamlog_hdb_dir, "C:\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(store.environment.hamlog_hdb_2_dir, "C:\\Hamlog\\Hamlog.hdb");
}

TEST_F(SettingsStoreTest, TheLoggerIsFoundBelowTheProgramsFolderOfTheDrive) {
    disk.put("C:\\Program Files\\zLog\\acag.dat", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.zlog_dat_dir, "C:\\Program Files\\zLog\\");
    EXPECT_EQ(store.environment.zlo_dir, "C:\\Program Files\\zLog\\");
    EXPECT_EQ(store.environment.all_dir, "C:\\Program Files\\zLog\\");
}

TEST_F(SettingsStoreTest, TheLoggerIsFoundBelowTheRoot) {
    disk.put("C:\\zLog\\acag.dat", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.zlog_dat_dir, "C:\\zLog\\");
    EXPECT_EQ(store.environment.zlo_dir, "C:\\zLog\\");
    EXPECT_EQ(store.environment.all_dir, "C:\\zLog\\");
}

TEST_F(SettingsStoreTest, OfTwoLoggersThatBelowTheRootWins) {
    disk.put("C:\\Program Files\\zLog\\acag.dat", "");
    disk.put("C:\\zLog\\acag.dat", "");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.zlog_dat_dir, "C:\\zLog\\");
    EXPECT_EQ(store.environment.zlo_dir, "C:\\zLog\\");
    EXPECT_EQ(store.environment.all_dir, "C:\\zLog\\");
}

TEST_F(SettingsStoreTest, ALoggersFolderWithoutItsDataIsNotTaken) {
    disk.put("C:\\zLog\\other.dat", "");
    disk.put_folder("C:\\Hamlog");
    store.set_default_dirs();
    EXPECT_EQ(store.environment.zlog_dat_dir, "");
    EXPECT_EQ(store.environment.hamlog_hdb_dir, "");
}

TEST_F(SettingsStoreTest, OnlyTheDriveOfTheProgramIsSearched) {
    disk.put_folder("D:\\radio\\veldrana");
    disk.put("C:\\Hamlog\\Hamlog.hdb", "");
    disk.put("D:\\zLog\\acag.dat", "");
    SettingsStore other(disk, clock, "D:\\radio\\veldrana\\");
    other.set_default_dirs();
    EXPECT_EQ(other.environment.hamlog_hdb_dir, "");
    EXPECT_EQ(other.environment.zlog_dat_dir, "D:\\zLog\\");
}

TEST_F(SettingsStoreTest, TheLetterForNoCardHasADefault) {
    store.set_default_dirs();
    EXPECT_EQ(store.environment.No_QSL_moji, "N");
    EXPECT_EQ(store.environment.No_QSL_moji_set_flag, "1");
}

// --- the chosen DAT ---

TEST_F(SettingsStoreTest, TheChosenDatIsTheOnlyValueOfItsFile) {
    store.set_dat_in_name = "C:\\zLog\\表.dat";
    store.write_dat_ini();
    EXPECT_EQ(text(dat_ini), "[DAT_MAS]\r\nset_dat_in_name=C:\\zLog\\表.dat\r\n");
}

TEST_F(SettingsStoreTest, TheChosenDatIsReadBack) {
    put(dat_ini, "[dat_mas]\r\nSet_Dat_In_Name=C:\\zLog\\acag.dat\r\n");
    store.read_dat_ini();
    EXPECT_EQ(store.set_dat_in_name, "C:\\zLog\\acag.dat");
}

TEST_F(SettingsStoreTest, WithoutItsFileNoDatIsChosen) {
    store.set_dat_in_name = "C:\\zLog\\acag.dat";
    store.read_dat_ini();
    EXPECT_EQ(store.set_dat_in_name, "");
}

// --- version, dates, numbers ---

TEST_F(SettingsStoreTest, TheVersionAsANumber) {
    for (const auto& [text, number] : std::vector<std::pair<std::string, double>>{{"5.30", 5.3},
                                                                                  {"", 1},
                                                                                  {"4.10", 4.1},
                                                                                  {"5.3t", 5.3},
                                                                                  {"5.t9", 5.09},
                                                                                  {"5.0999", 5.09},
                                                                                  {"12.34", 12.3},
                                                                                  {"1.2t5", 1.2},
                                                                                  {"abc", 0}}) {
        store.version = text;
        EXPECT_DOUBLE_EQ(store.version_number(), number) << text;
    }
}

TEST_F(SettingsStoreTest, TheVersionStaysWhenItIsReadAsANumber) {
    store.version = "5.3t";
    EXPECT_DOUBLE_EQ(store.version_number(), 5.3);
    EXPECT_EQ(store.version, "5.3t");
}

TEST_F(SettingsStoreTest, TodayIsEightDigits) {
    EXPECT_EQ(store.today(), "20260504");
    clock.time = {2030, 12, 31, 23, 59, 59};
    EXPECT_EQ(store.today(), "20301231");
}

TEST_F(SettingsStoreTest, TheEndFollowsTheClockIfTheFlagIsOne) {
    for (const auto& [flag, follows] : std::vector<std::pair<std::string, bool>>{
             {"1", true}, {"0", false}, {"", false}, {"2", false}}) {
        store.options.use_system_date_flag = flag;
        EXPECT_EQ(store.end_follows_clock(), follows) << flag;
    }
}

TEST_F(SettingsStoreTest, AnEndThatFollowsTheClockBecomesToday) {
    store.options.use_system_date_flag = "1";
    store.options.End_date = "20200131";
    store.refresh_end_date();
    EXPECT_EQ(store.options.End_date, "20260504");
}

TEST_F(SettingsStoreTest, AnEmptyEndBecomesToday) {
    store.options.use_system_date_flag = "0";
    store.refresh_end_date();
    EXPECT_EQ(store.options.End_date, "20260504");
}

TEST_F(SettingsStoreTest, AnEndThatIsSetLosesItsSeparators) {
    store.options.use_system_date_flag = "0";
    for (const std::string date : {"20200131", "2020/01/31", "2020-01-31", "2020/01-31"}) {
        store.options.End_date = date;
        store.refresh_end_date();
        EXPECT_EQ(store.options.End_date, "20200131") << date;
    }
}

TEST_F(SettingsStoreTest, ARunFillsAnEmptyPeriod) {
    store.fill_empty_period();
    EXPECT_EQ(store.options.Start_date, "19600101");
    EXPECT_EQ(store.options.End_date, "20100101");
}

TEST_F(SettingsStoreTest, ARunKeepsAPeriodThatIsSet) {
    store.options.Start_date = "20200131";
    store.options.End_date = "20210228";
    store.fill_empty_period();
    EXPECT_EQ(store.options.Start_date, "20200131");
    EXPECT_EQ(store.options.End_date, "20210228");
}

TEST(SettingsTexts, SeparatorsAreTakenOutOfADate) {
    EXPECT_EQ(without_separators("2026/05/04"), "20260504");
    EXPECT_EQ(without_separators("2026-05-04"), "20260504");
    EXPECT_EQ(without_separators("20260504"), "20260504");
    EXPECT_EQ(without_separators(""), "");
}

TEST(SettingsTexts, ABlankTextIsTheNumberZero) {
    for (const auto& [text, number] : std::vector<std::pair<std::string, int>>{
             {"", 0}, {" ", 0}, {"0", 0}, {"1", 1}, {"3", 3}, {"abc", 0}}) {
        EXPECT_EQ(stored_number(text), number) << text;
    }
}

// --- files as no program writes them ---

// What each file is for one of its keys.
struct StoreFile {
    const char* name;
    const char* section;
    const char* key;
    std::function<std::string&(SettingsStore&)> value;
    void (SettingsStore::*read)();
    void (SettingsStore::*write)();
};

std::ostream& operator<<(std::ostream& stream, const StoreFile& file) {
    return stream << file.name;
}

class EachSettingsFile : public testing::TestWithParam<StoreFile> {
  protected:
    EachSettingsFile() { disk.put_folder("C:\\veldrana"); }

    const StoreFile& file = GetParam();
    const std::string path = folder + file.name;
    std::string heading() const { return "[" + std::string(file.section) + "]"; }
    std::string line(std::string_view value) const {
        return std::string(file.key) + "=" + std::string(value);
    }
    std::string& value() { return file.value(store); }
    void read() { (store.*file.read)(); }
    void write() { (store.*file.write)(); }

    MemoryDisk disk;
    FixedClock clock;
    SettingsStore store{disk, clock, folder};
};

TEST_P(EachSettingsFile, ReadsAsBlankWhenItIsEmpty) {
    disk.put(path, "");
    value() = "before";
    read();
    EXPECT_EQ(value(), "");
}

TEST_P(EachSettingsFile, ReadsAsBlankWhenAFolderIsInItsPlace) {
    disk.put_folder(path);
    value() = "before";
    read();
    EXPECT_EQ(value(), "");
}

TEST_P(EachSettingsFile, ReadsAsBlankWhenTheDiskFails) {
    disk.put(path, heading() + "\r\n" + line("x") + "\r\n");
    FailingDisk failing(disk);
    SettingsStore other(failing, clock, folder);
    failing.fail_at(1, Failure::device_error);
    (other.*file.read)();
    EXPECT_EQ(file.value(other), "");
}

TEST_P(EachSettingsFile, ReadsAsBlankWithoutItsSection) {
    disk.put(path, line("x") + "\r\n[Other]\r\n" + line("y") + "\r\n");
    read();
    EXPECT_EQ(value(), "");
}

TEST_P(EachSettingsFile, IsReadBehindAByteOrderMark) {
    disk.put(path, "\xEF\xBB\xBF" + heading() + "\r\n" + line("x") + "\r\n");
    read();
    EXPECT_EQ(value(), "x");
}

TEST_P(EachSettingsFile, IsReadWithLineFeedsAlone) {
    disk.put(path, heading() + "\n" + line("x") + "\n");
    read();
    EXPECT_EQ(value(), "x");
}

TEST_P(EachSettingsFile, IsReadAmongKeysThatNobodyKnows) {
    disk.put(path, "nonsense\r\n" + heading() + "\r\nfoo=1\r\n=\r\n===\r\n" + line("x") +
                       "\r\nfoo=2\r\n[\r\n]\r\n");
    read();
    EXPECT_EQ(value(), "x");
}

TEST_P(EachSettingsFile, IsReadInAnyCase) {
    std::string upper = heading() + "\r\n" + file.key;
    for (char& letter : upper) {
        letter = static_cast<char>(letter >= 'a' && letter <= 'z' ? letter - 'a' + 'A' : letter);
    }
    disk.put(path, upper + "=x\r\n");
    read();
    EXPECT_EQ(value(), "x");
}

TEST_P(EachSettingsFile, CutsALongValue) {
    disk.put(path, heading() + "\r\n" + line(std::string(200, 'x')) + "\r\n");
    read();
    EXPECT_EQ(value(), std::string(127, 'x'));
}

TEST_P(EachSettingsFile, KeepsWhatItDoesNotKnowWhenItIsWritten) {
    disk.put(path, "[Other]\r\nfoo=1\r\n" + heading() + "\r\nbar = 2\r\n" + line("x") + "\r\n");
    value() = "y";
    write();
    EXPECT_THAT(disk.bytes(path), testing::StartsWith("[Other]\r\nfoo=1\r\n" + heading() +
                                                      "\r\nbar = 2\r\n" + line("y") + "\r\n"));
}

TEST_P(EachSettingsFile, IsNotWrittenWhenAFolderIsInItsPlace) {
    disk.put_folder(path);
    write();
    EXPECT_TRUE(disk.folder_exists(path));
    EXPECT_THAT(disk.files(), IsEmpty());
}

TEST_P(EachSettingsFile, IsPassedOverWhenItsFolderIsGone) {
    SettingsStore other(disk, clock, "C:\\none\\");
    (other.*file.write)();
    (other.*file.read)();
    EXPECT_THAT(disk.files(), IsEmpty());
}

// Unknown lines stand at both ends, so that a part of the file can be told from the whole.
std::string old_bytes(const StoreFile& file) {
    return "[Other]\r\nfoo=1\r\n[" + std::string(file.section) + "]\r\n" + file.key +
           "=x\r\n[Last]\r\nbar=2\r\n";
}

struct WriteOutcome {
    std::string bytes;
    std::size_t operations;
};

// Writes on a disk whose n-th operation fails; with 0 none does.
WriteOutcome write_failing_at(std::size_t operation, const StoreFile& file) {
    MemoryDisk disk;
    disk.put(folder + file.name, old_bytes(file));
    FailingDisk failing(disk);
    FixedClock clock;
    SettingsStore store(failing, clock, folder);
    file.value(store) = "y";
    if (operation > 0) {
        failing.fail_at(operation, Failure::disk_full);
    }
    (store.*file.write)();
    return {disk.bytes(folder + file.name), failing.operations()};
}

TEST_P(EachSettingsFile, IsLeftWholeByAWriteThatFails) {
    const WriteOutcome good = write_failing_at(0, file);
    ASSERT_NE(good.bytes, old_bytes(file));
    for (std::size_t operation = 1; operation <= good.operations; ++operation) {
        EXPECT_EQ(write_failing_at(operation, file).bytes, old_bytes(file))
            << "operation " << operation;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Files, EachSettingsFile,
    testing::Values(
        StoreFile{"Veldrana_new.ini", "Veldrana_new.ini", "Check01",
                  [](SettingsStore& store) -> std::string& { return store.options.Check01; },
                  &SettingsStore::read_Veldrana_new_ini, &SettingsStore::write_Veldrana_new_ini},
        StoreFile{"Veldrana.ini", "Veldrana.ini", "Check01",
                  [](SettingsStore& store) -> std::string& { return store.options.Check01; },
                  &SettingsStore::read_Veldrana_ini, &SettingsStore::write_Veldrana_ini},
        StoreFile{"Veldrana_cfg.ini", "Veldrana_cfg.ini", "all_dir",
                  [](SettingsStore& store) -> std::string& { return store.environment.all_dir; },
                  &SettingsStore::read_Veldrana_cfg_ini, &SettingsStore::write_Veldrana_cfg_ini},
        StoreFile{"Veldrana_dat.ini", "DAT_MAS", "set_dat_in_name",
                  [](SettingsStore& store) -> std::string& { return store.set_dat_in_name; },
                  &SettingsStore::read_dat_ini, &SettingsStore::write_dat_ini}),
    [](const auto& file) {
        const std::string name = file.param.name;
        return name.substr(0, name.find('.'));
    });

// What could not be read would be lost, even if the disk has come to itself meanwhile.
TEST(UnreadSettings, AreNotWrittenUntilTheProgramEnds) {
    const std::string kept = "[Veldrana_new.ini]\r\nCheck01=1\r\n[Other]\r\nkept=1\r\n";
    MemoryDisk memory;
    memory.put("C:\\veldrana\\Veldrana_new.ini", kept);
    FailingDisk disk(memory);
    FixedClock clock;
    SettingsStore settings(disk, clock, "C:\\veldrana\\");
    disk.fail_at(1, Failure::permission_denied);
    settings.read_Veldrana_new_ini();
    EXPECT_EQ(settings.options.Check01, "");
    settings.write_Veldrana_new_ini();
    EXPECT_EQ(memory.bytes("C:\\veldrana\\Veldrana_new.ini"), kept);
}

}  // namespace
}  // namespace veldrana
