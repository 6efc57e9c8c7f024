#include "settings/frmConfig.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/text.h"
#include "platform/code_page_932.h"
#include "platform/profile_file.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

using E = EnvironmentSettings;

const std::string folder = "C:\\veldrana\\";
const std::string cfg_path = folder + "Veldrana_cfg.ini";
const std::string unused = "使用しない";

// A station with all eight paths, beside a program that was started before.
class FrmConfigTest : public StageFixture {
  protected:
    FrmConfigTest() {
        disk.put_folder("C:\\veldrana");
        settings.set_default_options();
        settings.write_Veldrana_new_ini();
        disk.put("C:\\Hamlog\\Hamlog.hdb", "x");
        disk.put("C:\\Hamlog\\Print.hdb", "x");
        environment().zlog_dat_dir = "C:\\zLog\\";
        environment().name_mas_dir = "C:\\mas\\";
        environment().qth_mas_dir = "C:\\mas\\qth_mas.txt";
        environment().yubin_mas_dir = "C:\\yubin\\";
        environment().hamlog_hdb_dir = "C:\\Hamlog\\Hamlog.hdb";
        environment().hamlog_hdb_2_dir = "C:\\Hamlog\\Print.hdb";
        environment().zlo_dir = "C:\\zlo\\";
        environment().all_dir = "C:\\all\\";
        environment().MyCalls = "JA1ZZZ";
        environment().PassWords = "secret";
        environment().No_QSL_moji = "N";
        environment().No_QSL_moji_set_flag = "1";
    }

    EnvironmentSettings& environment() { return settings.environment; }
    void open(bool old_version = false) {
        form.emplace(stage, settings,
                     ConfigDialogRequest{.strPath = folder, .old_version = old_version});
        form->Form_Load();
    }
    template <class T>
    T& control(std::string_view name) {
        T* const found = dynamic_cast<T*>(form->find(name));
        if (found == nullptr) {
            throw std::runtime_error("no control " + std::string(name));
        }
        return *found;
    }
    std::string stored(std::string_view key) {
        return ProfileFile(disk, cfg_path).value("Veldrana_cfg.ini", key);
    }
    std::string stored_text() { return from_code_page(disk.bytes(cfg_path)); }
    void choose(CommandButton& button, const std::string& path) {
        person.files = {path};
        button.press();
    }
    const std::string& message() { return form->lblMsg.caption; }
    const std::string& hint() { return form->lblMsg2.caption; }

    FixedClock clock;
    SettingsStore settings{disk, clock, folder};
    std::optional<frmConfig> form;
};

bool is_red(const Label& label) {
    return label.fore_colour == colours::red;
}

bool is_black(const Label& label) {
    return label.fore_colour == colours::black;
}

// --- the entries, row by row ---

enum class Kind { folder_of_file, whole_path, chosen_folder, database };

struct EntryRow {
    const char* label;
    const char* caption;
    const char* text_box;
    const char* browse;
    const char* filter;
    Kind kind;
    std::string E::*value;
    const char* key;
    void (frmConfig::*check)();
};
void PrintTo(const EntryRow& row, std::ostream* out) {
    *out << row.key;
}

const std::vector<EntryRow> entry_rows{
    {"lblZlog_dat", "フォルダ　：　 個別　＊．DAT ﾌｧｲﾙ", "txtZlog_dat", "cmdZlog_dat",
     "zLog 用 個別 DAT ﾌｧｲﾙ (*.dat)|*.DAT", Kind::folder_of_file, &E::zlog_dat_dir, "zlog_dat_dir",
     &frmConfig::Zlog_dat_Chk},
    {"lblName_mas", "フォルダ　：　NAME_MAS．TXT", "txtName_mas", "cmdName_mas",
     "name_mas.txt  (name_mas.txt;name_mas?.txt)|name_mas.txt;name_mas?.txt", Kind::folder_of_file,
     &E::name_mas_dir, "name_mas_dir", &frmConfig::Name_mas_Chk},
    {"lblQth_mas", "ファイル　：　  QTH_MAS．TXT", "txtQth_mas", "cmdQth_mas",
     "qth_mas.txt  (qth_mas.txt)|qth_mas.txt", Kind::whole_path, &E::qth_mas_dir, "qth_mas_dir",
     &frmConfig::Qth_mas_Chk},
    {"lblYUbin_mas", "フォルダ　：　YUBIN_M？．MAS", "txtYubin_mas", "cmdYubin_mas", "",
     Kind::chosen_folder, &E::yubin_mas_dir, "yubin_mas_dir", &frmConfig::Yubin_mas_Chk},
    {"lblHamlog_hdb", "ファイル　：　ハムログの ＊．hｄｂ　常用", "txtHamlog_hdb", "cmdHamlog_hdb",
     "Hamlog の *.hdb ﾌｧｲﾙ 常用 (*.hdb)|*.hdb", Kind::database, &E::hamlog_hdb_dir,
     "hamlog_hdb_dir", &frmConfig::hamlog_hdb_Chk},
    {"lblHamlog_hdb_2", "ファイル　：　ハムログの ＊．hｄｂ　印刷用", "txtHamlog_hdb_2",
     "cmdHamlog_hdb_2", "Hamlog の *.hdb ﾌｧｲﾙ 印刷用 (*.hdb)|*.hdb", Kind::database,
     &E::hamlog_hdb_2_dir, "hamlog_hdb_2_dir", &frmConfig::hamlog_hdb_2_Chk},
    {"lblZloDir", "フォルダ　：　 拡張子 ＺＬＯ ファイル", "txtZloDir", "cmdGetZloDir",
     "zLog の ﾊﾞｲﾅﾘｰ･ﾌｧｲﾙ  (*.zlo)|*.zlo", Kind::folder_of_file, &E::zlo_dir, "zlo_dir",
     &frmConfig::zlodir_Chk},
    {"lblAllDir", "フォルダ　：　 拡張子 ALL , TXT ﾌｧｲﾙ", "txtAllDir", "cmdGetAllDir",
     "zLog の ﾃｷｽﾄ･ﾌｧｲﾙ  (*.all;*.txt)|*.all;*.txt", Kind::folder_of_file, &E::all_dir, "all_dir",
     &frmConfig::alldir_Chk},
};

std::vector<EntryRow> rows_of(const std::vector<Kind>& kinds) {
    std::vector<EntryRow> rows;
    std::copy_if(entry_rows.begin(), entry_rows.end(), std::back_inserter(rows),
                 [&](const EntryRow& row) {
                     return std::find(kinds.begin(), kinds.end(), row.kind) != kinds.end();
                 });
    return rows;
}

class ConfigRow : public FrmConfigTest, public testing::WithParamInterface<EntryRow> {
  protected:
    Label& label() { return control<Label>(GetParam().label); }
    TextBox& text_box() { return control<TextBox>(GetParam().text_box); }
    CommandButton& browse() { return control<CommandButton>(GetParam().browse); }
    std::string& value() { return environment().*GetParam().value; }
};
std::string name_of_row(const testing::TestParamInfo<EntryRow>& row) {
    return row.param.key;
}

class EachPath : public ConfigRow {};
INSTANTIATE_TEST_SUITE_P(Rows, EachPath, testing::ValuesIn(entry_rows), name_of_row);

TEST_P(EachPath, HasItsCaptions) {
    open();
    EXPECT_EQ(label().caption.get(), GetParam().caption);
    EXPECT_EQ(browse().caption.get(), "参照");
}

TEST_P(EachPath, ShowsItsValue) {
    open();
    EXPECT_EQ(text_box().text.get(), value());
    EXPECT_TRUE(is_black(label()));
    EXPECT_EQ(form->sp_flag(), 0);
}

TEST_P(EachPath, IsRedAndKeepsFromSavingWhileItIsEmpty) {
    open();
    text_box().text = "";
    EXPECT_TRUE(is_red(label()));
    EXPECT_EQ(form->sp_flag(), 1);
    EXPECT_FALSE(form->cmdSave.enabled);
    EXPECT_FALSE(form->cmdOK.enabled);
    for (const EntryRow& other : entry_rows) {
        const bool same = std::string_view(other.key) == GetParam().key;
        EXPECT_EQ(is_red(control<Label>(other.label)), same) << other.key;
    }
}

TEST_P(EachPath, IsEmptyIfItIsOfBlanks) {
    open();
    text_box().text = "   ";
    EXPECT_TRUE(is_red(label()));
}

TEST_P(EachPath, IsGoodAgainWhenItIsFilled) {
    open();
    text_box().text = "";
    text_box().text = value();
    EXPECT_TRUE(is_black(label()));
    EXPECT_TRUE(form->cmdSave.enabled);
    EXPECT_TRUE(form->cmdOK.enabled);
}

TEST_P(EachPath, IsCheckedByItsRoutineToo) {
    open();
    label().fore_colour = colours::red;
    ((*form).*GetParam().check)();
    EXPECT_TRUE(is_black(label()));
}

TEST_P(EachPath, IsNotInMemoryBeforeItIsSaved) {
    open();
    const std::string before = value();
    text_box().text = "C:\\Hamlog\\Print.hdb\\";
    EXPECT_EQ(value(), before);
    EXPECT_FALSE(disk.file_exists(cfg_path));
}

TEST_P(EachPath, IsSavedUnderItsKey) {
    open();
    const std::string path =
        GetParam().kind == Kind::database ? "C:\\Hamlog\\PRINT.HDB" : "C:\\新\\";
    text_box().text = path;
    form->cmdSave.press();
    EXPECT_EQ(value(), path);
    EXPECT_EQ(stored(GetParam().key), path);
}

TEST_P(EachPath, StaysIfTheDialogIsCancelled) {
    open();
    const std::string before = text_box().text;
    browse().press();
    EXPECT_EQ(text_box().text.get(), before);
    EXPECT_EQ(person.dialogs.size() + person.folder_dialogs.size(), 1U);
}

class EachFileDialog : public ConfigRow {};
INSTANTIATE_TEST_SUITE_P(Rows, EachFileDialog,
                         testing::ValuesIn(rows_of({Kind::folder_of_file, Kind::whole_path,
                                                    Kind::database})),
                         name_of_row);

TEST_P(EachFileDialog, HasItsFilterAndTakesOnlyWhatIsThere) {
    open();
    browse().press();
    ASSERT_THAT(person.dialogs, SizeIs(1));
    EXPECT_EQ(person.dialogs[0].filter, GetParam().filter);
    EXPECT_TRUE(person.dialogs[0].must_exist);
}

class EachFolderOfAFile : public ConfigRow {};
INSTANTIATE_TEST_SUITE_P(Rows, EachFolderOfAFile,
                         testing::ValuesIn(rows_of({Kind::folder_of_file})), name_of_row);

TEST_P(EachFolderOfAFile, DropsTheFile) {
    open();
    choose(browse(), "D:\\表\\zLog\\acag.dat");
    EXPECT_EQ(text_box().text.get(), "D:\\表\\zLog\\");
    choose(browse(), "D:\\acag.dat");
    EXPECT_EQ(text_box().text.get(), "D:\\");
}

// "D:\" and 116 letters and "\" are 120 bytes.
TEST_P(EachFolderOfAFile, KeepsAFolderOf120Bytes) {
    open();
    const std::string of_120 = "D:\\" + std::string(116, 'a') + "\\";
    choose(browse(), of_120 + "x.dat");
    EXPECT_EQ(text_box().text.get(), of_120);
}

TEST_P(EachFolderOfAFile, OfALongerPathKeepsTheLastFolderThatFits) {
    open();
    choose(browse(), "D:\\short\\" + std::string(120, 'a') + "\\x.dat");
    EXPECT_EQ(text_box().text.get(), "D:\\short\\");
    EXPECT_TRUE(is_black(label()));
}

TEST_P(EachFolderOfAFile, IsCutByTheBytesOfTheFile) {
    open();
    // 3 + 2 * 58 = 119 bytes; with "\" they are 120, with one more letter before it 122.
    std::string kanji;
    for (int i = 0; i < 58; ++i) {
        kanji += "漢";
    }
    choose(browse(), "D:\\" + kanji + "\\x.dat");
    EXPECT_EQ(text_box().text.get(), "D:\\" + kanji + "\\");
    choose(browse(), "D:\\" + kanji + "漢\\x.dat");
    EXPECT_EQ(text_box().text.get(), "D:\\");
}

class EachDatabase : public ConfigRow {};
INSTANTIATE_TEST_SUITE_P(Rows, EachDatabase, testing::ValuesIn(rows_of({Kind::database})),
                         name_of_row);

TEST_P(EachDatabase, KeepsTheFile) {
    disk.put("D:\\radio\\Mine.hdb", "x");
    open();
    choose(browse(), "D:\\radio\\Mine.hdb");
    EXPECT_EQ(text_box().text.get(), "D:\\radio\\Mine.hdb");
    EXPECT_TRUE(is_black(label()));
}

TEST_P(EachDatabase, IsBadIfItDoesNotExist) {
    open();
    text_box().text = "C:\\Hamlog\\none.hdb";
    EXPECT_TRUE(is_red(label()));
    EXPECT_EQ(form->sp_flag(), 1);
}

TEST_P(EachDatabase, WithoutABackslashIsBadEvenIfItIsInTheCurrentFolder) {
    disk.put("Hamlog.hdb", "x");
    ASSERT_TRUE(disk.file_exists("Hamlog.hdb"));
    open();
    text_box().text = "Hamlog.hdb";
    EXPECT_TRUE(is_red(label()));
}

TEST_P(EachDatabase, PathOfOver120BytesIsCutAndFailsItsCheck) {
    const std::string path = "D:\\" + std::string(114, 'a') + ".hdb";  // 121 bytes
    disk.put(path, "x");
    open();
    choose(browse(), path);
    EXPECT_EQ(text_box().text.get(), path.substr(0, 120));
    EXPECT_TRUE(is_red(label()));
}

TEST_P(EachDatabase, IsShownTrimmed) {
    value() = "  C:\\Hamlog\\Hamlog.hdb ";
    open();
    EXPECT_EQ(text_box().text.get(), "C:\\Hamlog\\Hamlog.hdb");
    EXPECT_TRUE(is_black(label()));
}

TEST_F(FrmConfigTest, QthMasterKeepsTheWholePathHoweverLong) {
    open();
    const std::string path = "D:\\" + std::string(130, 'a') + "\\qth_mas.txt";
    choose(form->cmdQth_mas, path);
    EXPECT_EQ(form->txtQth_mas.text.get(), path);
}

TEST_F(FrmConfigTest, PostalMasterIsAskedForByAFolderDialog) {
    open();
    form->cmdYubin_mas.press();
    EXPECT_THAT(person.folder_dialogs,
                ElementsAre(testing::Pair("Yubin_m*.mas のフォルダを選択してください", "")));
    EXPECT_THAT(person.dialogs, IsEmpty());
}

TEST_F(FrmConfigTest, FolderOfThePostalMasterEndsInOneBackslash) {
    open();
    for (const auto& [chosen, shown] :
         std::vector<std::pair<std::string, std::string>>{{"D:\\mas", "D:\\mas\\"},
                                                          {"D:\\mas\\", "D:\\mas\\"},
                                                          {"D:\\", "D:\\"},
                                                          {"D:\\表\\\\郵便", "D:\\表\\郵便\\"}}) {
        person.folders = {chosen};
        form->cmdYubin_mas.press();
        EXPECT_EQ(form->txtYubin_mas.text.get(), shown) << chosen;
    }
}

// --- the postal master as it is shown ---

struct PostalFolder {
    const char* name;
    std::string stored;
    std::string shown;
};
void PrintTo(const PostalFolder& row, std::ostream* out) {
    *out << row.name;
}
const std::vector<PostalFolder> postal_folders{
    {"Whole", "C:\\yubin\\", "C:\\yubin\\"},
    {"WithoutABackslash", "C:\\yubin", "C:\\yubin\\"},
    {"Doubled", "C:\\\\yubin\\\\", "C:\\yubin\\"},
    // Empty, it becomes a backslash, which passes; kept.
    {"Empty", "", "\\"},
};

class PostalFolderTest : public FrmConfigTest, public testing::WithParamInterface<PostalFolder> {};
INSTANTIATE_TEST_SUITE_P(Folders, PostalFolderTest, testing::ValuesIn(postal_folders),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_P(PostalFolderTest, IsTidiedWhenItIsShown) {
    environment().yubin_mas_dir = GetParam().stored;
    open();
    EXPECT_EQ(form->txtYubin_mas.text.get(), GetParam().shown);
    EXPECT_FALSE(form->chkNo_yubin.value);
    EXPECT_TRUE(is_black(form->lblYUbin_mas));
}

TEST_P(PostalFolderTest, IsTidiedWhenItComesBack) {
    open();
    form->txtYubin_mas.text = GetParam().stored;
    form->chkNo_yubin.value = true;
    form->chkNo_yubin.value = false;
    EXPECT_EQ(form->txtYubin_mas.text.get(), GetParam().shown);
}

TEST_F(FrmConfigTest, PostalMasterOfNoUseLosesItsBackslash) {
    environment().yubin_mas_dir = unused + "\\";
    open();
    EXPECT_EQ(form->txtYubin_mas.text.get(), unused);
    EXPECT_TRUE(form->chkNo_yubin.value);
    EXPECT_FALSE(settings.masters_in_use.yubin_mas);
}

TEST_F(FrmConfigTest, DoubledBackslashesOfThePostalMasterAreReducedWhenTheyAreSaved) {
    open();
    form->txtYubin_mas.text = "C:\\\\yubin\\\\";
    form->cmdSave.press();
    EXPECT_EQ(environment().yubin_mas_dir, "C:\\yubin\\");
    EXPECT_EQ(stored("yubin_mas_dir"), "C:\\yubin\\");
}

// --- masters of no use ---

struct MasterRow {
    const char* check_box;
    const char* label;
    const char* text_box;
    const char* browse;
    std::string E::*value;
    bool MastersInUse::*in_use;
    const char* key;
};
void PrintTo(const MasterRow& row, std::ostream* out) {
    *out << row.key;
}
class EachMaster : public FrmConfigTest, public testing::WithParamInterface<MasterRow> {
  protected:
    CheckBox& check_box() { return control<CheckBox>(GetParam().check_box); }
    Label& label() { return control<Label>(GetParam().label); }
    TextBox& text_box() { return control<TextBox>(GetParam().text_box); }
    CommandButton& browse() { return control<CommandButton>(GetParam().browse); }
    std::string& value() { return environment().*GetParam().value; }
    bool in_use() { return settings.masters_in_use.*GetParam().in_use; }
};
INSTANTIATE_TEST_SUITE_P(
    Masters, EachMaster,
    testing::Values(MasterRow{"chkNo_name", "lblName_mas", "txtName_mas", "cmdName_mas",
                              &E::name_mas_dir, &MastersInUse::name_mas, "name_mas_dir"},
                    MasterRow{"chkNo_qth", "lblQth_mas", "txtQth_mas", "cmdQth_mas",
                              &E::qth_mas_dir, &MastersInUse::qth_mas, "qth_mas_dir"},
                    MasterRow{"chkNo_yubin", "lblYUbin_mas", "txtYubin_mas", "cmdYubin_mas",
                              &E::yubin_mas_dir, &MastersInUse::yubin_mas, "yubin_mas_dir"}),
    [](const auto& row) { return std::string(row.param.key); });

TEST_P(EachMaster, HasItsCaptionAndToolTip) {
    open();
    EXPECT_EQ(check_box().caption.get(), "無用");
    EXPECT_EQ(check_box().tool_tip.get(), "使用する予定が無い時は [ レ点マーク ] を付けて下さい。");
}

TEST_P(EachMaster, IsInUseAfterTheLoad) {
    open();
    EXPECT_TRUE(in_use());
    EXPECT_FALSE(check_box().value);
    EXPECT_TRUE(text_box().enabled);
    EXPECT_TRUE(browse().enabled);
}

TEST_P(EachMaster, ThatIsOfNoUseIsTickedAfterTheLoad) {
    value() = unused;
    open();
    EXPECT_TRUE(check_box().value);
    EXPECT_FALSE(in_use());
    EXPECT_EQ(text_box().text.get(), unused);
    EXPECT_FALSE(text_box().enabled);
    EXPECT_FALSE(browse().enabled);
    EXPECT_TRUE(is_black(label()));
    EXPECT_TRUE(form->cmdSave.enabled);
}

TEST_P(EachMaster, TickPutsTheWordAndTurnsTheEntryOff) {
    open();
    check_box().value = true;
    EXPECT_EQ(text_box().text.get(), unused);
    EXPECT_FALSE(text_box().enabled);
    EXPECT_FALSE(browse().enabled);
    EXPECT_FALSE(in_use());
}

TEST_P(EachMaster, TickMakesAnEmptyEntryGood) {
    open();
    text_box().text = "";
    ASSERT_TRUE(is_red(label()));
    check_box().value = true;
    EXPECT_TRUE(is_black(label()));
    EXPECT_EQ(form->sp_flag(), 0);
    EXPECT_TRUE(form->cmdSave.enabled);
}

TEST_P(EachMaster, IsGoodWhileItIsTickedWhateverTheTextIs) {
    open();
    check_box().value = true;
    text_box().text = "";
    EXPECT_TRUE(is_black(label()));
    EXPECT_FALSE(in_use());
}

TEST_P(EachMaster, TakingTheTickOffBringsTheTextBack) {
    open();
    const std::string before = text_box().text;
    check_box().value = true;
    check_box().value = false;
    EXPECT_EQ(text_box().text.get(), before);
    EXPECT_TRUE(text_box().enabled);
    EXPECT_TRUE(browse().enabled);
    EXPECT_TRUE(in_use());
}

// No text was stored that could come back.
TEST_P(EachMaster, TakingOffATickOfTheLoadBringsBackAnEmptyText) {
    value() = unused;
    open();
    check_box().value = false;
    EXPECT_EQ(text_box().text.get(), "");
    EXPECT_TRUE(text_box().enabled);
    EXPECT_TRUE(in_use());
    EXPECT_FALSE(is_black(label()));
}

TEST_P(EachMaster, IsStoredAsTheWordWhileItIsTicked) {
    open();
    check_box().value = true;
    form->cmdSave.press();
    EXPECT_EQ(value(), unused);
    EXPECT_EQ(stored(GetParam().key), unused);
}

// --- load ---

TEST_F(FrmConfigTest, ControlsHaveTheirCaptions) {
    open();
    EXPECT_EQ(form->window.name(), "frmConfig");
    EXPECT_EQ(form->lblMyCalls.caption.get(), "コールサイン");
    EXPECT_EQ(form->lblPassWords.caption.get(),
              "ＪＡＲＬのＨＰへのパスワード　（ 会員検索に使用 ）");
    EXPECT_EQ(form->Label1.caption.get(), "QSL 転送先マーク N を置きかえる文字");
    EXPECT_EQ(form->Label2.caption.get(),
              "画面上での表示や処理中は N ですが最終出力ファイルでは指定文字に置換します。");
    EXPECT_EQ(form->Label3.caption.get(), "２０１０年９月よりパスワードは不要になっています。");
    EXPECT_EQ(form->lblMsg1.caption.get(),
              "ファイル　の場合には　指定ファイルを指定する。\n"
              "フォルダ　の場合には　グループのどれか一つを指定する。");
    EXPECT_EQ(form->cmdSave.caption.get(), "保 存");
    EXPECT_EQ(form->cmdOK.caption.get(), "Ｏ Ｋ");
    EXPECT_EQ(form->cmdEnd.caption.get(), "強制終了");
}

TEST_F(FrmConfigTest, WindowHasAFloor) {
    EXPECT_EQ(frmConfig::least_width, 10485);
    EXPECT_EQ(frmConfig::least_height, 8300);
}

TEST_F(FrmConfigTest, IsShownWhenItIsLoaded) {
    form.emplace(stage, settings, ConfigDialogRequest{.strPath = folder});
    EXPECT_FALSE(form->window.visible);
    form->Form_Load();
    EXPECT_TRUE(form->window.visible);
}

TEST_F(FrmConfigTest, ComesBackWhereItWasLeft) {
    open();
    form->window.placement = WindowPlacement{WindowPlacement::normal, 10, 20, 11000, 9000};
    form->cmdOK.press();
    form.emplace(stage, settings, ConfigDialogRequest{.strPath = "C:\\veldrana"});
    form->Form_Load();
    EXPECT_EQ(form->window.placement.get(),
              (WindowPlacement{WindowPlacement::normal, 10, 20, 11000, 9000}));
}

TEST_F(FrmConfigTest, WithAnOptionFileTheEnvironmentIsEdited) {
    open();
    EXPECT_EQ(form->window.caption.get(), "［ 環境設定 ］ Veldrana_cfg ．ini を編集・作成します。");
    EXPECT_FALSE(disk.file_exists(cfg_path));
}

TEST_F(FrmConfigTest, EnvironmentFileGoesToTheTraceLogWhenItIsThere) {
    open();
    EXPECT_THAT(trace.lines, Not(Contains(HasSubstr("Veldrana_cfg.ini"))));
    disk.put(cfg_path, "[Veldrana_cfg.ini]\r\nversion=5.30\r\n");
    open();
    const auto title = std::find_if(trace.lines.begin(), trace.lines.end(), [](const auto& line) {
        return line.starts_with("=========  Veldrana_cfg.ini  ==== ");
    });
    ASSERT_LE(title + 4, trace.lines.end());
    EXPECT_THAT(std::vector<std::string>(title + 1, title + 4),
                ElementsAre("[Veldrana_cfg.ini]", "version=5.30", std::string(32, '=')));
}

TEST_F(FrmConfigTest, IsLoadedWithEverythingGood) {
    open();
    EXPECT_TRUE(form->cmdOK.enabled);
    EXPECT_TRUE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "作成可能");
    EXPECT_EQ(hint(), "「保存」を押して下さい。 「ＯＫ」でメイン画面に戻ります。");
    EXPECT_EQ(form->lblMsg.fore_colour.get(), colours::blue);
}

TEST_F(FrmConfigTest, IsLoadedWithSomethingMissing) {
    environment().zlo_dir = "";
    open();
    EXPECT_FALSE(form->cmdOK.enabled);
    EXPECT_FALSE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "作成必要");
    EXPECT_EQ(form->lblMsg.fore_colour.get(), colours::red);
    EXPECT_EQ(hint(), "存在しない、又は空白項目がある場合には保存出来ません！");
    EXPECT_TRUE(is_red(form->lblZloDir));
    EXPECT_TRUE(is_black(form->lblAllDir));
}

// --- without an option file ---

class WithoutOptions : public FrmConfigTest {
  protected:
    WithoutOptions() { disk.remove(folder + "Veldrana_new.ini"); }
};

TEST_F(WithoutOptions, EnvironmentIsMadeAnew) {
    open();
    EXPECT_EQ(form->window.caption.get(), "［ 環境設定 ］ Veldrana_cfg ．ini を新規作成します。");
    EXPECT_EQ(stored("zlog_dat_dir"), "C:\\zLog\\");
    EXPECT_EQ(stored("version"), "5.30");
    EXPECT_TRUE(disk.is_for_owner(cfg_path));
}

TEST_F(WithoutOptions, ItIsNotTraced) {
    open();
    EXPECT_THAT(trace.lines, Not(Contains(HasSubstr("Veldrana_cfg.ini"))));
}

TEST_F(WithoutOptions, ValuesAreShown) {
    open();
    EXPECT_EQ(form->txtHamlog_hdb.text.get(), "C:\\Hamlog\\Hamlog.hdb");
    EXPECT_EQ(form->txtMyCalls.text.get(), "JA1ZZZ");
}

// The paths are checked behind it, the operator's two entries when they are changed.
TEST_F(WithoutOptions, CallSignAndPasswordAreRedUntilTheyAreChanged) {
    open();
    EXPECT_TRUE(is_red(form->lblMyCalls));
    EXPECT_TRUE(is_red(form->lblPassWords));
    EXPECT_TRUE(is_black(form->lblZlog_dat));
    form->txtMyCalls.text = "JA1ZZY";
    form->txtPassWords.text = "other";
    EXPECT_TRUE(is_black(form->lblMyCalls));
    EXPECT_TRUE(is_black(form->lblPassWords));
}

TEST_F(WithoutOptions, PathsDecideWhatCanBeSaved) {
    open();
    EXPECT_EQ(form->sp_flag(), 0);
    EXPECT_TRUE(form->cmdSave.enabled);
    EXPECT_TRUE(form->cmdOK.enabled);
    EXPECT_EQ(message(), "作成可能");
    EXPECT_EQ(form->lblMsg2.fore_colour.get(), colours::red);
    environment().all_dir = "";
    open();
    EXPECT_EQ(form->sp_flag(), 1);
    EXPECT_FALSE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "作成必要");
}

// --- the state of the dialog ---

TEST_F(FrmConfigTest, SumOfNoneLetsSaveAndLeave) {
    open();
    form->txtAllDir.text = "C:\\other\\";
    EXPECT_TRUE(form->cmdOK.enabled);
    EXPECT_TRUE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "作成可能");
    EXPECT_EQ(form->lblMsg.fore_colour.get(), colours::blue);
    EXPECT_EQ(hint(), "「保存」を押して下さい。 「ＯＫ」でメイン画面に戻ります。");
}

TEST_F(FrmConfigTest, SumAboveNoneLetsNeither) {
    open();
    form->txtAllDir.text = "";
    form->txtZloDir.text = "";
    EXPECT_EQ(form->sp_flag(), 2);
    EXPECT_FALSE(form->cmdOK.enabled);
    EXPECT_FALSE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "設定不良、か空白あり");
    EXPECT_EQ(form->lblMsg.fore_colour.get(), colours::red);
    EXPECT_EQ(hint(), "存在しない、又は空白項目がある場合には保存出来ません！");
}

TEST_F(FrmConfigTest, SumCountsEveryPath) {
    environment() = {};
    environment().name_mas_dir = unused;
    open();
    // All but the name master, which is of no use, and the postal one, which becomes a backslash.
    EXPECT_EQ(form->sp_flag(), 6);
}

TEST_F(FrmConfigTest, SettingsOfAnOldVersionHaveToBeSaved) {
    open(true);
    form->txtAllDir.text = "C:\\other\\";
    EXPECT_FALSE(form->cmdOK.enabled);
    EXPECT_TRUE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "nwe ver です");
    EXPECT_EQ(form->lblMsg.fore_colour.get(), colours::red);
    EXPECT_EQ(hint(), "必ず「保存」を押して下さい。　「ＯＫ」でメイン画面に戻ります。");
}

TEST_F(FrmConfigTest, SettingsOfAnOldVersionCanBeSavedWithAPathMissing) {
    open(true);
    form->txtAllDir.text = "";
    EXPECT_TRUE(is_red(form->lblAllDir));
    EXPECT_TRUE(form->cmdSave.enabled);
    EXPECT_FALSE(form->cmdOK.enabled);
    EXPECT_EQ(message(), "nwe ver です");
}

// The load has the last word: its caption stands in the colour of the old version.
TEST_F(FrmConfigTest, SettingsOfAnOldVersionAreLoadedLikeOthers) {
    open(true);
    EXPECT_TRUE(form->cmdOK.enabled);
    EXPECT_TRUE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "作成可能");
    EXPECT_EQ(form->lblMsg.fore_colour.get(), colours::red);
    EXPECT_EQ(hint(), "「保存」を押して下さい。 「ＯＫ」でメイン画面に戻ります。");
}

TEST_F(FrmConfigTest, SettingsOfAnOldVersionAreLoadedWithSomethingMissing) {
    environment().zlo_dir = "";
    open(true);
    EXPECT_FALSE(form->cmdOK.enabled);
    EXPECT_FALSE(form->cmdSave.enabled);
    EXPECT_EQ(message(), "作成必要");
    EXPECT_EQ(hint(), "必ず「保存」を押して下さい。　「ＯＫ」でメイン画面に戻ります。");
}

// --- call sign ---

class CallSign : public FrmConfigTest {
  protected:
    void type(std::string_view text) { form->txtMyCalls.text = std::string(text); }
};

TEST_F(CallSign, IsShownInUpperCase) {
    environment().MyCalls = "ja1zzz";
    open();
    EXPECT_EQ(form->txtMyCalls.text.get(), "JA1ZZZ");
}

TEST_F(CallSign, IsNarrowedAndInUpperCase) {
    open();
    type("ｊａ１ｚｚｙ／１");
    EXPECT_EQ(form->txtMyCalls.text.get(), "JA1ZZY/1");
    EXPECT_EQ(environment().MyCalls, "JA1ZZY/1");
}

TEST_F(CallSign, CaretStaysAtTheEnd) {
    open();
    form->txtMyCalls.caret = 2;
    type("ja1zzzy");
    EXPECT_EQ(form->txtMyCalls.caret.get(), 7U);
}

TEST_F(CallSign, IsGoodByItsFirstCharacter) {
    for (const std::string call : {"JA1ZZZ", "7N1ZZZ", "8J1ZZZ", "J", "ja1zzz", "７Ｎ１ＺＺＺ"}) {
        open();
        type("");
        ASSERT_TRUE(is_red(form->lblMyCalls));
        type(call);
        EXPECT_TRUE(is_black(form->lblMyCalls)) << call;
    }
}

TEST_F(CallSign, IsBadIfItIsEmpty) {
    open();
    for (const std::string call : {"", "   "}) {
        type("JA1ZZZ");
        type(call);
        EXPECT_TRUE(is_red(form->lblMyCalls)) << call;
    }
}

TEST_F(CallSign, PromptAndEachOfItsLettersAreUnset) {
    open();
    for (const std::string call : {"入力必要", "JA1入", "J力", "必JA1ZZZ", "7要"}) {
        type("JA1ZZZ");
        ASSERT_TRUE(is_black(form->lblMyCalls));
        type(call);
        EXPECT_TRUE(is_red(form->lblMyCalls)) << call;
    }
}

TEST_F(CallSign, OfAnotherCountryAfterAGoodOneStaysBlack) {
    open();
    type("W1AW");
    EXPECT_TRUE(is_black(form->lblMyCalls));
}

TEST_F(CallSign, OfAnotherCountryAfterAnEmptyOneStaysRed) {
    open();
    type("");
    type("W1AW");
    EXPECT_TRUE(is_red(form->lblMyCalls));
}

TEST_F(CallSign, ThatIsEmptyIsRedAfterTheLoad) {
    environment().MyCalls = "";
    open();
    EXPECT_TRUE(is_red(form->lblMyCalls));
    EXPECT_EQ(form->sp_flag(), 0);
}

TEST_F(CallSign, OfAnotherCountryIsBlackAfterTheLoad) {
    environment().MyCalls = "W1AW";
    open();
    EXPECT_TRUE(is_black(form->lblMyCalls));
}

TEST_F(CallSign, ThatIsBadKeepsFromNothing) {
    open();
    type("");
    EXPECT_EQ(form->sp_flag(), 0);
    EXPECT_TRUE(form->cmdOK.enabled);
    form->cmdSave.press();
    EXPECT_EQ(stored("MyCalls"), "");
    EXPECT_EQ(message(), "保存完了");
}

TEST_F(CallSign, IsInMemoryAtOnceButNotInTheFile) {
    open();
    form->cmdSave.press();
    type("JA1ZZY");
    EXPECT_EQ(environment().MyCalls, "JA1ZZY");
    EXPECT_EQ(stored("MyCalls"), "JA1ZZZ");
    form->cmdOK.press();
    EXPECT_EQ(environment().MyCalls, "JA1ZZY");
    EXPECT_EQ(stored("MyCalls"), "JA1ZZZ");
}

TEST_F(CallSign, IsSavedInUpperCase) {
    open();
    type("ja1zzy");
    form->cmdSave.press();
    EXPECT_EQ(stored("MyCalls"), "JA1ZZY");
}

// --- password ---

class Password : public FrmConfigTest {
  protected:
    void type(std::string_view text) { form->txtPassWords.text = std::string(text); }
};

TEST_F(Password, IsHiddenUntilItIsToBeSeen) {
    open();
    EXPECT_TRUE(form->txtPassWords.hidden_text);
    EXPECT_FALSE(form->chkShow_PassWords.value);
    form->chkShow_PassWords.value = true;
    EXPECT_FALSE(form->txtPassWords.hidden_text);
    form->chkShow_PassWords.value = false;
    EXPECT_TRUE(form->txtPassWords.hidden_text);
    EXPECT_EQ(form->txtPassWords.text.get(), "secret");
}

TEST_F(Password, IsKeptTrimmedAndShownAsTyped) {
    open();
    type("  Ｓecret ワ ");
    EXPECT_EQ(form->txtPassWords.text.get(), "  Ｓecret ワ ");
    EXPECT_EQ(environment().PassWords, "Ｓecret ワ");
    form->cmdSave.press();
    EXPECT_EQ(stored("PassWords"), "Ｓecret ワ");
}

TEST_F(Password, IsBadIfItIsEmpty) {
    open();
    EXPECT_TRUE(is_black(form->lblPassWords));
    for (const std::string word : {"", "   "}) {
        type("x");
        type(word);
        EXPECT_TRUE(is_red(form->lblPassWords)) << word;
    }
}

TEST_F(Password, PromptAndEachOfItsLettersAreUnset) {
    open();
    for (const std::string word : {"入力必要", "a入", "力b", "必", "x要x"}) {
        type("x");
        ASSERT_TRUE(is_black(form->lblPassWords));
        type(word);
        EXPECT_TRUE(is_red(form->lblPassWords)) << word;
    }
}

TEST_F(Password, ThatIsEmptyIsRedAfterTheLoad) {
    environment().PassWords = "";
    open();
    EXPECT_TRUE(is_red(form->lblPassWords));
}

TEST_F(Password, ThatIsBadKeepsFromNothing) {
    open();
    type("");
    EXPECT_EQ(form->sp_flag(), 0);
    EXPECT_TRUE(form->cmdOK.enabled);
    form->cmdSave.press();
    EXPECT_EQ(stored("PassWords"), "");
}

TEST_F(Password, IsInMemoryAtOnceButNotInTheFile) {
    open();
    form->cmdSave.press();
    type("other");
    EXPECT_EQ(environment().PassWords, "other");
    form->cmdOK.press();
    EXPECT_EQ(environment().PassWords, "other");
    EXPECT_EQ(stored("PassWords"), "secret");
}

// --- the letter for "no card" ---

struct LetterRow {
    const char* name;
    std::string flag;
    std::string stored;
    std::string shown;
};
void PrintTo(const LetterRow& row, std::ostream* out) {
    *out << row.name;
}
class StoredLetter : public FrmConfigTest, public testing::WithParamInterface<LetterRow> {};
INSTANTIATE_TEST_SUITE_P(
    Letters, StoredLetter,
    testing::Values(LetterRow{"Set", "1", "K", "K"}, LetterRow{"SetBlank", "1", "", " "},
                    LetterRow{"NeverSet", "", "K", "N"}, LetterRow{"Zero", "0", "K", "N"},
                    LetterRow{"OtherFlag", "x", "K", "K"}, LetterRow{"NeverSetBlank", "", "", "N"}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_P(StoredLetter, IsShown) {
    environment().No_QSL_moji_set_flag = GetParam().flag;
    environment().No_QSL_moji = GetParam().stored;
    open();
    EXPECT_EQ(form->Text1.text.get(), GetParam().shown);
    EXPECT_EQ(environment().No_QSL_moji, GetParam().shown);
}

TEST_F(FrmConfigTest, LetterIsTheFirstCharacterOfTheNarrowedText) {
    open();
    form->Text1.text = "Ｋｘ";
    EXPECT_EQ(form->Text1.text.get(), "Kx");
    EXPECT_EQ(environment().No_QSL_moji, "K");
    form->Text1.text = "カ";
    EXPECT_EQ(environment().No_QSL_moji, "ｶ");
    form->Text1.text = "";
    EXPECT_EQ(environment().No_QSL_moji, "");
}

TEST_F(FrmConfigTest, LetterIsInMemoryAtOnceButNotInTheFile) {
    open();
    form->cmdSave.press();
    form->Text1.text = "K";
    form->cmdOK.press();
    EXPECT_EQ(environment().No_QSL_moji, "K");
    EXPECT_EQ(stored("No_QSL_moji"), "N");
}

TEST_F(FrmConfigTest, LetterIsSavedTrimmedAndMarkedAsSet) {
    environment().No_QSL_moji_set_flag = "0";
    open();
    form->Text1.text = "  Ｋx";
    form->cmdSave.press();
    EXPECT_EQ(environment().No_QSL_moji, "K");
    EXPECT_EQ(stored("No_QSL_moji"), "K");
    EXPECT_EQ(stored("No_QSL_moji_set_flag"), "1");
}

// The file holds no blank; the flag tells the next load that it was meant.
TEST_F(FrmConfigTest, LetterThatIsEmptyIsABlank) {
    for (const std::string text : {"", "  "}) {
        open();
        form->Text1.text = text;
        form->cmdSave.press();
        EXPECT_EQ(environment().No_QSL_moji, " ");
        EXPECT_EQ(stored("No_QSL_moji"), "");
        settings.read_Veldrana_cfg_ini();
        open();
        EXPECT_EQ(form->Text1.text.get(), " ");
    }
}

// --- saving ---

TEST_F(FrmConfigTest, SavesEveryEntry) {
    open();
    form->cmdSave.press();
    EXPECT_EQ(stored_text(),
              "[Veldrana_cfg.ini]\r\nversion=5.30\r\nzlog_dat_dir=C:\\zLog\\\r\n"
              "name_mas_dir=C:\\mas\\\r\nqth_mas_dir=C:\\mas\\qth_mas.txt\r\n"
              "yubin_mas_dir=C:\\yubin\\\r\nhamlog_hdb_dir=C:\\Hamlog\\Hamlog.hdb\r\n"
              "hamlog_hdb_2_dir=C:\\Hamlog\\Print.hdb\r\nzlo_dir=C:\\zlo\\\r\nall_dir=C:\\all\\\r\n"
              "MyCalls=JA1ZZZ\r\nPassWords=secret\r\ndir_pad=\r\nmaster_name=\r\nNo_QSL_moji=N\r\n"
              "No_QSL_moji_set_flag=1\r\n");
}

TEST_F(FrmConfigTest, SavingTellsThatItIsDone) {
    open();
    form->cmdOK.enabled = false;
    form->cmdSave.press();
    EXPECT_EQ(message(), "保存完了");
    EXPECT_EQ(hint(), "「ＯＫ」でメイン画面に戻ります。");
    EXPECT_TRUE(form->cmdOK.enabled);
    EXPECT_TRUE(form->window.visible);
}

TEST_F(FrmConfigTest, SavingCompletesTheStart) {
    settings.restart = false;
    open();
    form->txtAllDir.text = "C:\\other\\";
    EXPECT_FALSE(settings.restart);
    form->cmdSave.press();
    EXPECT_TRUE(settings.restart);
}

TEST_F(FrmConfigTest, SavedFileIsForItsOwnerAlone) {
    disk.put(cfg_path, "[Veldrana_cfg.ini]\r\nPassWords=old\r\n");
    open();
    ASSERT_FALSE(disk.is_for_owner(cfg_path));
    form->cmdSave.press();
    EXPECT_TRUE(disk.is_for_owner(cfg_path));
}

TEST_F(FrmConfigTest, SavedFileGoesToTheTraceLog) {
    open();
    trace.lines.clear();
    form->cmdSave.press();
    EXPECT_THAT(trace.lines, Contains("all_dir=C:\\all\\"));
    EXPECT_EQ(trace.lines.front(), "Private Sub cmdSave_Click()");
    EXPECT_EQ(trace.lines.back(), std::string(32, '='));
}

TEST_F(FrmConfigTest, WhatTheFileHoldsBesidesStays) {
    disk.put(cfg_path, "[Veldrana_cfg.ini]\r\nmine=1\r\n");
    open();
    form->cmdSave.press();
    EXPECT_EQ(stored("mine"), "1");
    EXPECT_EQ(stored("all_dir"), "C:\\all\\");
}

TEST_F(FrmConfigTest, FileOfAnOldVersionIsMadeAnew) {
    disk.put(cfg_path, "[Veldrana_cfg.ini]\r\nversion=4.10\r\nmine=1\r\n");
    open(true);
    form->cmdSave.press();
    EXPECT_EQ(stored("mine"), "");
    EXPECT_EQ(stored("version"), "5.30");
    EXPECT_EQ(stored("all_dir"), "C:\\all\\");
}

TEST_F(FrmConfigTest, FileOfAnOldVersionMayBeMissing) {
    open(true);
    form->cmdSave.press();
    EXPECT_EQ(stored("version"), "5.30");
}

TEST_F(FrmConfigTest, SavingClearsTheMarkOfAnOldVersion) {
    open(true);
    form->txtAllDir.text = "C:\\other\\";
    ASSERT_FALSE(form->cmdOK.enabled);
    form->cmdSave.press();
    EXPECT_TRUE(form->cmdOK.enabled);
    form->txtAllDir.text = "C:\\all\\";
    EXPECT_EQ(message(), "作成可能");
    EXPECT_TRUE(form->cmdOK.enabled);
    // What was added since then stays.
    ProfileFile file(disk, cfg_path);
    file.set_value("Veldrana_cfg.ini", "mine", "1");
    ASSERT_TRUE(file.save());
    form->cmdSave.press();
    EXPECT_EQ(stored("mine"), "1");
}

// --- leaving ---

class Leaving : public FrmConfigTest {
  protected:
    // Runs while cmdOK leaves the dialog.
    void watch(std::function<void()> look) { form->leave = std::move(look); }
    void take_off(CheckBox& box) {
        box.value = true;
        box.value = false;
    }
};

TEST_F(Leaving, ClosesTheDialog) {
    open();
    EXPECT_FALSE(form->confirmed());
    form->cmdOK.press();
    EXPECT_TRUE(form->confirmed());
    EXPECT_FALSE(form->window.visible);
}

TEST_F(Leaving, TellsThatItIsOnTheWay) {
    open();
    bool seen = false;
    watch([&] {
        seen = true;
        EXPECT_FALSE(form->cmdOK.enabled);
        EXPECT_EQ(message(), "メイン画面に戻る処理中．．．");
        EXPECT_EQ(hint(), "");
        EXPECT_TRUE(form->window.visible);
    });
    form->cmdOK.press();
    EXPECT_TRUE(seen);
}

TEST_F(Leaving, SavesThePositionOfTheWindow) {
    open();
    form->window.placement = WindowPlacement{WindowPlacement::normal, 10, 20, 11000, 9000};
    form->cmdOK.press();
    const ProfileFile file(disk, folder + "Veldrana_posi.ini");
    EXPECT_EQ(file.value("Position_frmConfig", "Left"), "10");
    EXPECT_EQ(file.value("Position_frmConfig", "Height"), "9000");
}

TEST_F(Leaving, SavesNoEntry) {
    open();
    form->txtAllDir.text = "C:\\other\\";
    form->cmdOK.press();
    EXPECT_FALSE(disk.file_exists(cfg_path));
    EXPECT_EQ(environment().all_dir, "C:\\all\\");
}

TEST_F(Leaving, NothingHappensWhileItIsOff) {
    environment().all_dir = "";
    open();
    form->cmdOK.press();
    EXPECT_TRUE(form->window.visible);
    EXPECT_FALSE(form->confirmed());
}

TEST_F(Leaving, FailureOnTheWayLeavesItOpen) {
    open();
    watch([] { throw RunTimeError(Failure::device_error); });
    EXPECT_EQ(failure_of([&] { form->cmdOK.press(); }), 57);
    EXPECT_TRUE(form->window.visible);
    EXPECT_FALSE(form->confirmed());
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 ：　57"));
}

TEST_F(Leaving, TellsThatTheNameMasterCanBeUsed) {
    open();
    take_off(form->chkNo_name);
    form->cmdSave.press();
    form->cmdOK.press();
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　name_mas.txt　の使用が可能です");
    EXPECT_EQ(person.boxes[0].text,
              "「 name_mas ．txt 」より QRA の取得する場合には\n\n"
              "メイン画面の [ dat / mas ]  タブの中の「 name_mas ．txt より 」の\n\n"
              "　「 QRA の取得する 」 のレ点を付けて下さい。");
    EXPECT_EQ(person.boxes[0].buttons, Buttons::ok);
}

TEST_F(Leaving, TellsThatTheQthMasterCanBeUsed) {
    open();
    take_off(form->chkNo_qth);
    form->cmdSave.press();
    form->cmdOK.press();
    ASSERT_THAT(person.boxes, SizeIs(1));
    EXPECT_EQ(person.boxes[0].title, "　　qth_mas.txt　の使用が可能です");
    EXPECT_EQ(person.boxes[0].text,
              "「 qth_mas ．txt 」より取得する場合には\n\n"
              "メイン画面の [ 取得 ]  タブの中の「  ＱＴＨ_ＭＡＳ．ｔｘｔ よりの取得 」の\n\n"
              "　「 使用する 」 のレ点を付けて下さい。");
}

TEST_F(Leaving, TellsBothBeforeItGoes) {
    open();
    take_off(form->chkNo_name);
    take_off(form->chkNo_qth);
    std::size_t told = 0;
    watch([&] { told = person.boxes.size(); });
    form->cmdOK.press();
    EXPECT_EQ(told, 2U);
    EXPECT_EQ(person.boxes.at(0).title, "　　name_mas.txt　の使用が可能です");
    EXPECT_EQ(person.boxes.at(1).title, "　　qth_mas.txt　の使用が可能です");
}

TEST_F(Leaving, TellsNothingOfThePostalMaster) {
    open();
    take_off(form->chkNo_yubin);
    form->cmdOK.press();
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(Leaving, TellsNothingIfTheMastersAreAskedAlready) {
    settings.options.Check03 = "1";
    settings.options.Check14 = "1";
    open();
    take_off(form->chkNo_name);
    take_off(form->chkNo_qth);
    form->cmdOK.press();
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(Leaving, TellsNothingWithoutATickTakenOff) {
    open();
    form->txtName_mas.text = "C:\\other\\";
    form->cmdSave.press();
    form->cmdOK.press();
    EXPECT_THAT(person.boxes, IsEmpty());
}

TEST_F(Leaving, TellsNothingOfATickThatWasPutBack) {
    open();
    take_off(form->chkNo_name);
    take_off(form->chkNo_qth);
    form->chkNo_name.value = true;
    form->chkNo_qth.value = true;
    form->cmdOK.press();
    EXPECT_THAT(person.boxes, IsEmpty());
}

// It goes by what is saved, not by what stands in the box.
TEST_F(Leaving, TellsNothingOfAPathThatIsNotSaved) {
    environment().name_mas_dir = unused;
    environment().qth_mas_dir = unused;
    open();
    form->chkNo_name.value = false;
    form->chkNo_qth.value = false;
    form->txtName_mas.text = "C:\\mas\\";
    form->txtQth_mas.text = "C:\\mas\\qth_mas.txt";
    form->cmdOK.press();
    EXPECT_THAT(person.boxes, IsEmpty());
    open();
    form->chkNo_name.value = false;
    form->txtName_mas.text = "C:\\mas\\";
    form->cmdSave.press();
    form->cmdOK.press();
    EXPECT_THAT(person.boxes, SizeIs(1));
}

// --- the end ---

TEST_F(FrmConfigTest, EndSavesThePositionAndEndsTheProgram) {
    open();
    form->window.placement = WindowPlacement{WindowPlacement::normal, 1, 2, 11000, 9000};
    std::string stored_by_then;
    form->end_program = [&] {
        stored_by_then =
            ProfileFile(disk, folder + "Veldrana_posi.ini").value("Position_frmConfig", "Left");
    };
    form->cmdEnd.press();
    EXPECT_EQ(stored_by_then, "1");
    EXPECT_FALSE(form->confirmed());
    EXPECT_FALSE(disk.file_exists(cfg_path));
}

TEST_F(FrmConfigTest, EndIsOnWhateverIsMissing) {
    environment() = {};
    open();
    EXPECT_TRUE(form->cmdEnd.enabled);
}

// --- failures ---

TEST_F(FrmConfigTest, FailureOfAHandlerIsTraced) {
    disk.put(cfg_path, "[Veldrana_cfg.ini]\r\nversion=4.10\r\n");
    open(true);
    disk.protect(cfg_path);
    EXPECT_EQ(failure_of([&] { form->cmdSave.press(); }), 55);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生 ：　55"));
}

TEST_F(FrmConfigTest, WriteThatFailsIsNotNoticed) {
    disk.put(cfg_path, "[Veldrana_cfg.ini]\r\nall_dir=old\r\n");
    open();
    disk.protect(cfg_path);
    form->cmdSave.press();
    EXPECT_EQ(message(), "保存完了");
    EXPECT_EQ(stored("all_dir"), "old");
}

}  // namespace
}  // namespace veldrana
