// Every entry of the menu, key of the toolbar and button of the main window: what stands on it and
// what a press of it does.
#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTest>
#include <QToolBar>

#include "app/program_end.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// --- the menu as it stands ---

struct Entry {
    const char* name;
    const char* caption;
};

// In the order of the screen; heads stand before what is below them.
const std::vector<Entry> menu_entries{
    {"mnuFile", "ファイル"},
    {"mnuGet_Value", "Get_Value"},
    {"mnuOpen", "zlogのﾃﾞｰﾀ ( ALL , TXT ) ﾌｧｲﾙを選ぶ"},
    {"mnuOpen_all_txt_set", "zlogのﾃﾞｰﾀ ( ALL , TXT ) を 指定フォルダから選ぶ"},
    {"mnuOpen_z", "zlogのﾃﾞｰﾀ ( ZLO ) ﾌｧｲﾙを選ぶ"},
    {"mnuOpen_z_set", "zlogのﾃﾞｰﾀ ( ZLO ) を 指定フォルダから選ぶ"},
    {"mnuOpen_cbr", "Cabrillo ファイルを選ぶ"},
    {"mnuOpen_ADIF", "N1MM Logger ADIF ファイルを選ぶ"},
    {"mnuOpen_Ctestwin_lg8", "Ctestwin lg8 ファイルを選ぶ"},
    {"mnu_rtcl_new4", "RTCL ( ver 4.30 より前 ) => txt , all 作成"},
    {"mnu_rtcl_new430", "RTCL ( ver 4.30 以降 ) => txt , all 作成"},
    {"mnuOpenDat_mnu", "個別DATﾌｧｲﾙを指定　（ 手動 ）"},
    {"mnuOpenDat_semi", "個別DATﾌｧｲﾙを指定　（ 半自 ）"},
    {"mnuMake_z2a", "＊．zLo  => ＊．all 作成"},
    {"mnuDisp_z2a", "＊．zLo => ＊．all 表示"},
    {"mnuMake_hl_code_mas", "hl_code.mas の作成"},
    {"mnuYubin2", "郵便 yubin_m?.mas の作成"},
    {"make_ini", "ini 作成"},
    {"mnuConfig", "環境設定"},
    {"mnuDisp", "表示"},
    {"mnuDisp_in", "入力ﾌｧｲﾙ"},
    {"mnuDisp_dat", "dat"},
    {"mnuDisp_hl_code_mas", "hl_code.mas"},
    {"mnuDisp_con_n", "contestj_n.csv"},
    {"mnuDisp_ham_n", "hamlogja_n.csv"},
    {"mnuDisp_con_new", "contestj_n.csv"},
    {"mnuDisp_ham_new", "hamlogja_n.csv"},
    {"mnuDisp_dup", "＊．ｄｕｐ"},
    {"mnuDisp_log2a", "＊．log => ＊．all 表示"},
    {"mnuDisp_z2a_", "＊．zLo => ＊．all"},
    {"mnuDisp_Veldrana_ini", "Veldrana.ini"},
    {"mnuDisp_Veldrana_new_ini", "Veldrana_new.ini"},
    {"mnuDisp_Veldrana_cfg_ini", "Veldrana_cfg.ini"},
    {"mnuDisp_Veldrana_Rireki_cfg", "Veldrana_Rireki.cfg"},
    {"mnuDisp_Veldrana_rmk1", "Veldrana.rmk1"},
    {"mnuDisp_Veldrana_rmk2", "Veldrana.rmk2"},
    {"mnuDisp_QSOBank", "QSOBank.txt"},
    {"mnuDel", "G・L欄の＃を置換"},
    {"mnuOpen_con_n", "contestj_n.csv を開く"},
    {"mnuEdit_Rmks", "Rmks 履歴"},
    {"mnuDownLoad", "DownLoad"},
    {"mnuHelp", "Help"},
    {"mnuDisp_KRV", "説明"},
    {"mnuJK9RVW", "ホームページ"},
    {"mnuQSOBank", "QSOBank"},
    {"mnuJARL", "JARL"},
    {"mnuJARL_Web_OK", "Web ブラウザ 表　示"},
    {"mnuJARL_Web_OK_conj", "contestj_n.csv"},
    {"mnuJARL_Web_OK_hamj", "hamlogja_n.csv"},
    {"mnuJARL_Web_NO", "Web ブラウザ 非表示"},
    {"mnuJARL_Web_NO_conj", "contestj_n.csv"},
    {"mnuJARL_Web_NO_hamj", "hamlogja_n.csv"},
    {"mnuCheck_dat", "dat調査"},
    {"mnuYubin", "郵便"},
};

void collect(const QList<QAction*>& actions, std::vector<std::pair<std::string, std::string>>& to) {
    for (const QAction* const action : actions) {
        if (!action->isSeparator()) {
            to.emplace_back(action->objectName().toStdString(), action->text().toStdString());
        }
        if (action->menu() != nullptr) {
            collect(action->menu()->actions(), to);
        }
    }
}

class MainScreenTables : public DesktopTest {};

// Other entries of ours may stand between those of the table.
TEST_F(MainScreenTables, MenuStandsInTheOrderOfTheScreen) {
    std::vector<std::pair<std::string, std::string>> shown;
    collect(kit.window().menuBar()->actions(), shown);
    auto from = shown.begin();
    for (const Entry& entry : menu_entries) {
        const auto found = std::find(
            from, shown.end(), std::pair<std::string, std::string>(entry.name, entry.caption));
        ASSERT_NE(found, shown.end()) << entry.name << " " << entry.caption;
        from = found + 1;
    }
}

TEST_F(MainScreenTables, MenuHeadsStandInOneLine) {
    std::vector<std::string> heads;
    for (const QAction* const action : kit.window().menuBar()->actions()) {
        if (action->isVisible()) {
            heads.push_back(action->objectName().toStdString());
        }
    }
    EXPECT_THAT(heads, ElementsAre("mnuFile", "mnuDisp", "mnuDel", "mnuEdit_Rmks", "mnuDownLoad",
                                   "mnuHelp", "mnuQSOBank", "mnuJARL", "mnuYubin"));
}

TEST_F(MainScreenTables, SurveyOfContestDataIsSeenBySettingAlone) {
    EXPECT_FALSE(kit.widget<QAction>("mnuCheck_dat").isVisible());
}

// Entries whose forms come later are there and disabled.
TEST_F(MainScreenTables, WhatIsNotThereYetIsDisabled) {
    for (const char* const name :
         {"mnuMake_hl_code_mas", "mnuYubin2", "mnuEdit_Rmks", "mnuDownLoad", "mnuDisp_KRV",
          "mnuJK9RVW", "mnuQSOBank", "mnuDisp_QSOBank", "mnuJARL_Web_OK_conj",
          "mnuJARL_Web_OK_hamj", "mnuJARL_Web_NO_conj", "mnuJARL_Web_NO_hamj", "mnuYubin"}) {
        EXPECT_FALSE(kit.widget<QAction>(name).isEnabled()) << name;
    }
    for (const char* const name :
         {"cmdStart_JARL", "cmdStart_JARL2", "cmdRireki", "cmdKetasu", "cmdStop"}) {
        EXPECT_FALSE(kit.widget<QPushButton>(name).isEnabled()) << name;
    }
}

// --- entries and keys that ask for a file ---

struct Opening {
    const char* name;    // of the action
    const char* filter;  // patterns of its dialog
    const char* folder;  // below drive C:, where the dialog starts; "" where it is left to it
};

const Opening openings[] = {
    {"mnuOpen", "*.txt *.TXT *.all *.ALL", ""},
    {"mnuOpen_all_txt_set", "*.all *.ALL *.txt *.TXT", "logs"},
    {"mnuOpen_z", "*.zlo *.ZLO", ""},
    {"mnuOpen_z_set", "*.zlo *.ZLO", "logs"},
    {"mnuOpen_cbr", "*.log *.LOG *.cbr *.CBR *.txt *.TXT", ""},
    {"mnuOpen_ADIF", "*.adi *.ADI", ""},
    {"開く", "*.all *.ALL *.txt *.TXT", "logs"},
    {"開 z", "*.zlo *.ZLO", "logs"},
    {"mnuOpen_con_n", "contestj_n.csv CONTESTJ_N.CSV", ""},
};

class MainScreenOpenings : public MainScreenTables, public testing::WithParamInterface<Opening> {};

TEST_P(MainScreenOpenings, AsksForItsFile) {
    kit.choose({});
    kit.widget<QAction>(GetParam().name).trigger();
    ASSERT_THAT(kit.seen, SizeIs(1));
    ASSERT_FALSE(kit.seen[0].filters.empty());
    EXPECT_THAT(kit.seen[0].filters[0], HasSubstr(std::string("(") + GetParam().filter + ")"));
    if (*GetParam().folder != '\0') {
        EXPECT_EQ(fs::path(kit.seen[0].folder), kit.drive() / GetParam().folder);
    }
}

INSTANTIATE_TEST_SUITE_P(Entries, MainScreenOpenings, testing::ValuesIn(openings));

TEST_F(MainScreenTables, ToolbarBringsTheFilesToTheFrontWhenItOpensALog) {
    for (const char* const key : {"開く", "開 z"}) {
        kit.widget<QLineEdit>("txtRmks1").setFocus();
        const unsigned before = kit.screen().Frame13.selections;
        kit.choose({});
        kit.widget<QAction>(key).trigger();
        EXPECT_EQ(kit.screen().Frame13.selections, before + 1) << key;
        EXPECT_NE(QApplication::focusWidget(), &kit.widget<QLineEdit>("txtRmks1")) << key;
    }
}

TEST_F(MainScreenTables, RtclToolOpensFromBothItsEntries) {
    for (const char* const name : {"mnu_rtcl_new4", "mnu_rtcl_new430"}) {
        std::string form;
        kit.on_dialog([&form](QDialog& dialog) {
            form = dialog.objectName().toStdString();
            DesktopKit::part<QAction>(dialog, "mnuBack").trigger();
        });
        kit.widget<QAction>(name).trigger();
        EXPECT_EQ(form, "frmRTCL_v4") << name;
    }
}

TEST_F(MainScreenTables, CtestwinLogsAreAskedFor) {
    kit.choose({});
    kit.accept_box();
    kit.widget<QAction>("mnuOpen_Ctestwin_lg8").trigger();
    ASSERT_THAT(kit.seen, SizeIs(2));
    EXPECT_THAT(kit.seen[0].filters[0], HasSubstr("*.lg8"));
    EXPECT_EQ(kit.seen[1].text, "正しいファイル名を指定して下さい。");
}

// --- entries and keys of the contest data file ---

TEST_F(MainScreenTables, ContestIsChosenFromMenuAndToolbar) {
    kit.click("Option02(2)");
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    for (const char* const name : {"mnuOpenDat_semi", "dat半自"}) {
        std::string form;
        kit.on_dialog([&form](QDialog& dialog) {
            form = dialog.objectName().toStdString();
            DesktopKit::part<QPushButton>(dialog, "cmdBack").click();
        });
        kit.widget<QAction>(name).trigger();
        EXPECT_EQ(form, "frmCon_sel") << name;
    }
}

TEST_F(MainScreenTables, DataFileIsChosenByHandFromMenuAndToolbar) {
    kit.click("Option02(2)");
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    for (const char* const name : {"mnuOpenDat_mnu", "dat手動"}) {
        kit.seen.clear();
        kit.choose(kit.drive() / "zlog" / "allja.dat");
        kit.widget<QAction>(name).trigger();
        ASSERT_THAT(kit.seen, SizeIs(1)) << name;
        EXPECT_EQ(fs::path(kit.seen[0].folder), kit.drive() / "zlog") << name;
        EXPECT_THAT(kit.text("lblDatName"), HasSubstr("allja.dat")) << name;
    }
}

// --- viewers ---

struct Viewer {
    const char* name;
    const char* file;  // the end of the title
};

const Viewer viewers[] = {
    {"mnuDisp_in", "logs\\allja_sample.all"},
    {"cmdDisp_in", "logs\\allja_sample.all"},
    {"入力ﾌｧｲﾙ", "logs\\allja_sample.all"},
    {"mnuDisp_dat", "zlog\\allja.dat"},
    {"dat", "zlog\\allja.dat"},
    {"mnuDisp_hl_code_mas", "veldrana\\hl_code.mas"},
    {"mnuDisp_con_n", "logs\\allja_sample_cjn.csv"},
    {"mnuDisp_con_new", "logs\\allja_sample_cjn.csv"},
    {"cmdDisp_contest", "logs\\allja_sample_cjn.csv"},
    {"contestj_n", "logs\\allja_sample_cjn.csv"},
    {"mnuDisp_ham_n", "logs\\allja_sample_hjn.csv"},
    {"mnuDisp_ham_new", "logs\\allja_sample_hjn.csv"},
    {"cmdDisp_Hamlog", "logs\\allja_sample_hjn.csv"},
    {"hamlogja_n", "logs\\allja_sample_hjn.csv"},
    {"mnuDisp_dup", "logs\\allja_sample.dup"},
    {"＊．ｄｕｐ", "logs\\allja_sample.dup"},
    {"mnuDisp_Veldrana_ini", "veldrana\\Veldrana.ini"},
    {"mnuDisp_Veldrana_new_ini", "veldrana\\Veldrana_new.ini"},
    {"cmdDisp_Veldrana_new_ini", "veldrana\\Veldrana_new.ini"},
    {"mnuDisp_Veldrana_cfg_ini", "veldrana\\Veldrana_cfg.ini"},
    {"cmdDisp_Veldrana_cfg_ini", "veldrana\\Veldrana_cfg.ini"},
    {"mnuDisp_Veldrana_Rireki_cfg", "veldrana\\Veldrana_Rireki.cfg"},
    {"mnuDisp_Veldrana_rmk1", "veldrana\\Veldrana.rmk1"},
    {"mnuDisp_Veldrana_rmk2", "veldrana\\Veldrana.rmk2"},
};

TEST_F(MainScreenTables, EveryViewerShowsItsFileAfterARun) {
    kit.click("Option02(2)");
    kit.click("Check06");
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    kit.choose(kit.drive() / "zlog" / "allja.dat");
    kit.widget<QAction>("mnuOpenDat_mnu").trigger();
    kit.click("cmdStart");
    ASSERT_EQ(kit.text("lblCFG"), "処 理 終 了");
    write_bytes(kit.home() / "Veldrana.rmk1", "title\r\none\r\n");
    write_bytes(kit.home() / "Veldrana.rmk2", "title\r\ntwo\r\n");

    for (const Viewer& viewer : viewers) {
        kit.seen.clear();
        kit.on_dialog(
            [](QDialog& dialog) { DesktopKit::part<QAction>(dialog, "mnuOK").trigger(); });
        auto* const entry = kit.window().findChild<QAction*>(viewer.name);
        if (entry != nullptr) {
            entry->trigger();
        } else {
            kit.click(viewer.name);
        }
        ASSERT_THAT(kit.seen, SizeIs(1)) << viewer.name;
        EXPECT_THAT(kit.seen[0].title, testing::EndsWith(viewer.file)) << viewer.name;
    }
}

TEST_F(MainScreenTables, FactsOfTheContestDataFileAreToldByTheirButtons) {
    kit.click("Option02(2)");
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    kit.choose(kit.drive() / "zlog" / "allja.dat");
    kit.widget<QAction>("mnuOpenDat_mnu").trigger();
    for (const char* const name : {"cmdDisp_dat", "cmdDisp_dat2"}) {
        kit.seen.clear();
        kit.accept_box();
        kit.click(name);
        ASSERT_THAT(kit.seen, SizeIs(1)) << name;
        EXPECT_EQ(kit.seen[0].title, "個別 ＤＡＴ ファイル情報") << name;
    }
}

TEST_F(MainScreenTables, TextOfABinaryLogIsMadeAndShown) {
    kit.open("mnuOpen_z", kit.log("zlo_sample.zlo"));
    EXPECT_FALSE(kit.widget<QAction>("mnuDisp_z2a").isEnabled());
    kit.widget<QAction>("mnuMake_z2a").trigger();
    for (const char* const name : {"mnuDisp_z2a", "mnuDisp_z2a_"}) {
        kit.seen.clear();
        kit.on_dialog(
            [](QDialog& dialog) { DesktopKit::part<QAction>(dialog, "mnuOK").trigger(); });
        kit.widget<QAction>(name).trigger();
        ASSERT_THAT(kit.seen, SizeIs(1)) << name;
        EXPECT_THAT(kit.seen[0].title, testing::EndsWith("zlo_sample_z2a.all")) << name;
    }
}

// --- what else is started ---

TEST_F(MainScreenTables, OptionsAreWrittenFromMenuAndToolbar) {
    for (const char* const name : {"make_ini", "INI作成"}) {
        fs::remove(kit.home() / "Veldrana_new.ini");
        kit.widget<QAction>(name).trigger();
        EXPECT_TRUE(fs::exists(kit.home() / "Veldrana_new.ini")) << name;
    }
}

TEST_F(MainScreenTables, ControlsAreListedInAFile) {
    kit.widget<QAction>("mnuGet_Value").trigger();
    EXPECT_TRUE(fs::exists(kit.home() / "Controls.lst_0"));
    EXPECT_THAT(read_bytes(kit.home() / "Controls.lst"), HasSubstr("Check01"));
}

TEST_F(MainScreenTables, EnvironmentDialogOpensFromTheMenu) {
    std::string form;
    kit.on_dialog([&form](QDialog& dialog) {
        form = dialog.objectName().toStdString();
        DesktopKit::part<QPushButton>(dialog, "cmdOK").click();
    });
    kit.widget<QAction>("mnuConfig").trigger();
    EXPECT_EQ(form, "frmConfig");
}

TEST_F(MainScreenTables, ReplacementModeIsChosenFromItsMenu) {
    const fs::path file = kit.drive() / "logs" / "contestj_n.csv";
    write_bytes(file, "\"JA1ZZZ\"\r\n");
    kit.open("mnuOpen_con_n", file);
    EXPECT_EQ(kit.program().run_mode, RunMode::replacement);
}

TEST_F(MainScreenTables, RunStartsFromButtonToolbarAndKey) {
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    const fs::path result = kit.drive() / "logs" / "allja_sample_hjn.csv";
    kit.click("cmdStart");
    EXPECT_TRUE(fs::remove(result));
    kit.widget<QAction>("変換").trigger();
    EXPECT_TRUE(fs::remove(result));
    kit.window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&kit.window()));
    QTest::keyClick(kit.window().windowHandle(), Qt::Key_F5);
    EXPECT_TRUE(fs::remove(result));
}

TEST_F(MainScreenTables, StartWaitsForALog) {
    EXPECT_FALSE(kit.widget<QPushButton>("cmdStart").isEnabled());
    EXPECT_FALSE(kit.widget<QAction>("変換").isEnabled());
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    EXPECT_TRUE(kit.widget<QPushButton>("cmdStart").isEnabled());
    EXPECT_TRUE(kit.widget<QAction>("変換").isEnabled());
}

TEST_F(MainScreenTables, PeriodDialogOpensFromItsButton) {
    std::string form;
    kit.on_dialog([&form](QDialog& dialog) {
        form = dialog.objectName().toStdString();
        DesktopKit::part<QPushButton>(dialog, "cmdOK").click();
    });
    kit.click("cmdDate");
    EXPECT_EQ(form, "frmDate");
}

TEST_F(MainScreenTables, NameMastersAreCountedByTheirButton) {
    kit.accept_box();
    kit.click("cmdCount");
    EXPECT_THAT(kit.seen, SizeIs(1));
}

TEST_F(MainScreenTables, YearOfTodayIsFilledInByItsButton) {
    kit.open("mnuOpen", kit.log("field_sample.txt"));
    kit.type("txtYYYY", "1999");
    kit.click("cmdNow");
    EXPECT_EQ(kit.text("txtYYYY"), QDate::currentDate().toString("yyyy").toStdString());
}

TEST_F(MainScreenTables, CommentsAreClearedByTheirButtons) {
    kit.type("txtRmks1", "one");
    kit.type("txtRmks2", "two");
    kit.click("cmdCl_rmk1");
    EXPECT_EQ(kit.text("txtRmks1"), "");
    EXPECT_EQ(kit.text("txtRmks2"), "two");
    kit.click("cmdCl_rmk2");
    EXPECT_EQ(kit.text("txtRmks2"), "");
}

TEST_F(MainScreenTables, SlotsAreClosedUpAndPutBackByTheirButtons) {
    kit.drag("Command1(5)", "lblRmks1(4)");
    ASSERT_EQ(kit.text("lblRmks1(4)"), "Rcvd");
    kit.click("cmdAll_Sort");
    EXPECT_EQ(kit.text("lblRmks1(1)"), "Rcvd");
    EXPECT_EQ(kit.text("lblRmks1(4)"), "");
    kit.click("cmdAll_Redo");
    EXPECT_EQ(kit.text("lblRmks1(4)"), "Rcvd");
    EXPECT_EQ(kit.text("lblRmks1(1)"), "");
}

TEST_F(MainScreenTables, HistoriesAreCheckedByTheirButton) {
    std::string form;
    kit.on_dialog([&form](QDialog& dialog) {
        form = dialog.objectName().toStdString();
        DesktopKit::part<QAction>(dialog, "mnuBack").trigger();
    });
    kit.click("cmdCheck_bak_qso_mas");
    EXPECT_EQ(form, "frmCheck_bak_qso_mas");
}

TEST_F(MainScreenTables, UserTextsAreChosenByTheirButtons) {
    for (const char* const name : {"cmdSet_UserTxt_A", "cmdSet_UserTxt_B"}) {
        EXPECT_EQ(kit.text(name), "使用なら要 set");
        kit.choose(kit.drive() / "mas" / "友達.txt");
        kit.click(name);
        EXPECT_EQ(kit.text(name), "友達");
    }
}

TEST_F(MainScreenTables, ProgramEndsByTheToolbar) {
    kit.widget<QAction>("終了").trigger();
    EXPECT_EQ(kit.program().ended(), ProgramEnd::Cause::orderly);
}

TEST_F(MainScreenTables, ToolbarHasItsKeysInOrder) {
    std::vector<std::string> keys;
    for (const QAction* const action : kit.widget<QToolBar>("Toolbar1").actions()) {
        keys.push_back(action->text().toStdString());
    }
    EXPECT_THAT(keys,
                ElementsAre("開く", "開 z", "dat手動", "dat半自", "INI作成", "変換", "入力ﾌｧｲﾙ",
                            "dat", "contestj_n", "hamlogja_n", "＊．ｄｕｐ", "終了"));
}

// --- buttons and what stands on them ---

TEST_F(MainScreenTables, ButtonsBearTheirCaptions) {
    const std::vector<Entry> buttons{
        {"cmdStart", "変　　換"},
        {"cmdStart_JARL", "変換　＋　会員検索"},
        {"cmdStart_JARL2", "変換 + 検索"},
        {"cmdCount", "件 数 カウント"},
        {"cmdDate", "期 間"},
        {"cmdRireki", "履 歴"},
        {"cmdKetasu", "桁 数"},
        {"cmdAll_Sort", "整列"},
        {"cmdAll_Redo", "戻す"},
        {"cmdCl_rmk1", "消す"},
        {"cmdCl_rmk2", "消す"},
        {"cmdNow", "今年を取得"},
        {"cmdCheck_bak_qso_mas", "bak_qso.mas 確認"},
        {"cmdStop", "強 制 終 了"},
    };
    for (const Entry& button : buttons) {
        EXPECT_EQ(kit.text(button.name), button.caption) << button.name;
    }
    for (const char* const name :
         {"cmdDisp_contest", "cmdDisp_Hamlog", "cmdDisp_in", "cmdDisp_dat", "cmdDisp_dat2",
          "cmdDisp_Veldrana_new_ini", "cmdDisp_Veldrana_cfg_ini"}) {
        EXPECT_FALSE(kit.text(name).empty()) << name;
    }
}

TEST_F(MainScreenTables, BothTabControlsHaveFourPages) {
    EXPECT_EQ(kit.widget<QTabWidget>("SSTab1").count(), 4);
    EXPECT_EQ(kit.widget<QTabWidget>("SSTab2").count(), 4);
    EXPECT_NE(kit.widget<QTabWidget>("SSTab1").widget(3)->findChild<QWidget*>("MSFlexGrid1"),
              nullptr);
    EXPECT_NE(kit.widget<QTabWidget>("SSTab1").widget(2)->findChild<QWidget*>("Check31"), nullptr);
}

TEST_F(MainScreenTables, ThePagesShownFirstAreThoseThatWereChosen) {
    kit.click("Option2(1)");
    kit.click("Option22(2)");
    kit.end();
    kit.accept_box();  // the hint that name masters are there
    ASSERT_TRUE(kit.start());
    EXPECT_EQ(kit.widget<QTabWidget>("SSTab1").currentIndex(), 1);
    EXPECT_EQ(kit.widget<QTabWidget>("SSTab2").currentIndex(), 2);
}

}  // namespace
}  // namespace veldrana
