// How the logs that are no zLog text are chosen, tested and taken, each by its own entry.
#include "app/open_other_logs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/contest_choice.h"
#include "readers/frmCon_sel.h"
#include "tests/app/other_logs.h"
#include "viewers/frmDisp.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* ask = "ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。";
constexpr const char* of_no_use = "使用は無意味、[ 使用しない ] に変更した。";

class OpenOtherLogs : public testing::Test {
  protected:
    OpenOtherLogs() {
        kit.put_text("C:\\log\\x.all", sample_all_log);
        kit.put_text("C:\\log\\x.txt", sample_txt_log);
        kit.put_text("C:\\log\\x.cbr", sample_cabrillo);
        kit.put_text("C:\\log\\x.adi", sample_adif);
        kit.memory.put("C:\\log\\x.zlo", sample_zlo("全市全郡コンテスト CW"));
        kit.memory.put("C:\\log\\y.zlo", sample_zlo(""));
        kit.put_text("C:\\log\\y_z2a.all", "");
        kit.memory.put("C:\\log\\v4.log", sample_rtcl(RtclForm::before_430));
        kit.memory.put("C:\\log\\v430.log", sample_rtcl(RtclForm::from_430));
        kit.memory.put("C:\\log\\x.lg8", std::string(sample_lg8));
        kit.put_text("C:\\zLog\\acag.dat", "heading\r\n104        常呂郡\r\n");
        kit.start();
        kit.person.boxes.clear();
    }

    // Presses an entry and answers its dialog.
    void choose(MenuEntry& entry, std::string_view path) {
        kit.person.files = {std::string(path)};
        entry.press();
    }
    // The dialog of the last entry that was pressed.
    const FileDialog& dialog() { return kit.person.dialogs.back(); }

    void confirm_contest() {
        kit.person.forms.emplace_back([](WindowForm& form) {
            auto& dialog = dynamic_cast<frmCon_sel&>(form);
            dialog.List1.index = dialog.row_of("acag.dat");
            dialog.cmdOK.press();
        });
        screen.mnuOpenDat_semi.press();
        ASSERT_TRUE(has_dat(program));
    }

    ProgramKit kit;
    Program& program = *kit.program;
    MainScreen& screen = kit.screen();
};

// --- dialogs ---

TEST_F(OpenOtherLogs, CabrilloDialogOffersItsExtensions) {
    screen.mnuOpen_cbr.press();
    EXPECT_EQ(dialog().filter, "Cabriilo ﾌｧｲﾙ ( *.log , *.cbr , *.txt )|*.log;*.cbr;*.txt");
}

TEST_F(OpenOtherLogs, AdifDialogOffersItsExtension) {
    screen.mnuOpen_ADIF.press();
    EXPECT_EQ(dialog().filter, "AIF ﾌｧｲﾙ ( *.adi )|*.adi");
}

TEST_F(OpenOtherLogs, ZloDialogsOfferItsExtensionAndOneItsFolder) {
    program.settings.environment.zlo_dir = "c:\\zlog\\zlo\\";
    screen.mnuOpen_z.press();
    EXPECT_EQ(dialog().filter, "ﾊﾞｲﾅﾘ-ﾌｧｲﾙ ( *.zlo )|*.zlo");
    for (CommandButton* const entry :
         std::initializer_list<CommandButton*>{&screen.mnuOpen_z_set, &screen.tool_open_z}) {
        entry->press();
        EXPECT_EQ(dialog().filter, "バイナリーファイル(*.zlo)|*.zlo|");
        EXPECT_EQ(dialog().title, "C:\\ZLOG\\ZLO\\の ＊．ｚｌｏ ファイルを  開く ....");
        EXPECT_EQ(dialog().folder, "c:\\zlog\\zlo\\");
    }
    EXPECT_THAT(kit.person.dialogs, SizeIs(3));
}

TEST_F(OpenOtherLogs, RtclDialogsTellTheFolderAndTheirForm) {
    program.settings.environment.all_dir = "c:\\zlog\\";
    screen.mnuOpen_rtcl_log_set_new4.press();
    EXPECT_EQ(dialog().filter, "RTCL テキストファイル( *.log )|*.log|");
    EXPECT_EQ(dialog().title,
              "　c:\\zlog\\　のＲＴＣＬ ｖｅｒ　４＊．ｌｏｇ ファイルを  開く ....");
    EXPECT_EQ(dialog().folder, "c:\\zlog\\");
    screen.mnuOpen_rtcl_log_set_new430.press();
    EXPECT_EQ(dialog().filter, "RTCL テキストファイル( *.log )|*.log|");
    EXPECT_EQ(dialog().title,
              "　c:\\zlog\\　のＲＴＣＬ ｖｅｒ　４３０以降　＊．ｌｏｇ ファイルを  開く ....");
}

TEST_F(OpenOtherLogs, CtestwinDialogOffersItsExtension) {
    screen.mnuOpen_Ctestwin_lg8.press();
    EXPECT_EQ(dialog().filter, "Ctestwin lg8 ﾌｧｲﾙ ( *.lg8 )|*.lg8");
    EXPECT_EQ(dialog().title, "ファイルを開く");
}

TEST_F(OpenOtherLogs, EveryEntryAnswersToItsKind) {
    EXPECT_EQ(&open_entry(screen, InputKind::cbr), &screen.mnuOpen_cbr);
    EXPECT_EQ(&open_entry(screen, InputKind::ADIF), &screen.mnuOpen_ADIF);
    EXPECT_EQ(&open_entry(screen, InputKind::zlo), &screen.mnuOpen_z);
    EXPECT_EQ(&open_entry(screen, InputKind::lg8), &screen.mnuOpen_Ctestwin_lg8);
    EXPECT_EQ(&open_entry(screen, InputKind::log_v4), &screen.mnuOpen_rtcl_log_set_new4);
    EXPECT_EQ(&open_entry(screen, InputKind::log_v430), &screen.mnuOpen_rtcl_log_set_new430);
    EXPECT_EQ(&open_entry(screen, InputKind::all), &screen.mnuOpen);
    EXPECT_EQ(&open_entry(screen, InputKind::txt), &screen.mnuOpen);
}

// --- what all have in common ---

struct KindOfLog {
    const char* name;
    InputKind kind;
    const char* path;
    const char* record_count;  // as the label shows it behind the opening
};

class OpenEachKind : public OpenOtherLogs, public testing::WithParamInterface<KindOfLog> {
  protected:
    void open(std::string_view path = GetParam().path) {
        choose(open_entry(screen, GetParam().kind), path);
    }
};

INSTANTIATE_TEST_SUITE_P(
    Kinds, OpenEachKind,
    testing::Values(KindOfLog{"cbr", InputKind::cbr, "C:\\log\\x.cbr", "   2件"},
                    KindOfLog{"ADIF", InputKind::ADIF, "C:\\log\\x.adi", "   2件"},
                    // Nothing counts a binary log of zLog but the reading of its heading.
                    KindOfLog{"zlo", InputKind::zlo, "C:\\log\\x.zlo", ""},
                    KindOfLog{"lg8", InputKind::lg8, "C:\\log\\x.lg8", " 件"},
                    KindOfLog{"log_v4", InputKind::log_v4, "C:\\log\\v4.log", "   2件"},
                    KindOfLog{"log_v430", InputKind::log_v430, "C:\\log\\v430.log", "   2 件"}),
    [](const auto& kind) { return std::string(kind.param.name); });

TEST_P(OpenEachKind, IsReadyForARun) {
    open();
    EXPECT_EQ(program.log.f_type, GetParam().kind);
    EXPECT_EQ(program.log.in_name, GetParam().path);
    EXPECT_EQ(program.log.in_Dir, "C:\\log\\");
    EXPECT_EQ(screen.lblIn_name.caption.get(), GetParam().path);
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::blue);
    EXPECT_EQ(screen.lblIn_rec.caption.get(), GetParam().record_count);
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.tool_convert.enabled);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_FALSE(program.ended());
}

TEST_P(OpenEachKind, NamesItsResultsAfterTheLog) {
    open();
    const std::string path = GetParam().path;
    const std::string front = path.substr(0, path.rfind('.'));
    EXPECT_EQ(screen.lblOut_name1.caption.get(), front + "_cjn.csv");
    EXPECT_EQ(screen.lblOut_name2.caption.get(), front + "_hjn.csv");
    EXPECT_EQ(screen.tool_dup.tool_tip.get(), front + ".dup");
}

TEST_P(OpenEachKind, NeedsNoYear) {
    kit.open("C:\\log\\x.txt");
    ASSERT_TRUE(screen.txtYYYY.enabled);
    open();
    EXPECT_FALSE(screen.txtYYYY.enabled);
    EXPECT_FALSE(screen.Frame14.enabled);
}

TEST_P(OpenEachKind, ViewersFollowWhatAnEarlierRunLeft) {
    open();
    EXPECT_FALSE(screen.tool_contest.enabled);
    EXPECT_FALSE(screen.tool_dup.enabled);
    const std::string path = GetParam().path;
    const std::string front = path.substr(0, path.rfind('.'));
    kit.put_text(front + "_cj.csv", "");
    kit.put_text(front + "_hjn.csv", "");
    kit.put_text(front + ".dup", "");
    open();
    EXPECT_TRUE(screen.tool_contest.enabled);
    EXPECT_TRUE(screen.cmdDisp_contest.enabled);
    EXPECT_TRUE(screen.mnuDisp_con_n.enabled);
    EXPECT_FALSE(screen.tool_hamlog.enabled);
    EXPECT_FALSE(screen.cmdDisp_Hamlog.enabled);
    EXPECT_FALSE(screen.mnuDisp_ham_n.enabled);
    EXPECT_TRUE(screen.tool_dup.enabled);
    EXPECT_TRUE(screen.mnuDisp_dup.enabled);
    EXPECT_TRUE(screen.mnuDisp_ham_new.enabled);
    EXPECT_FALSE(screen.mnuDisp_con_new.enabled);
}

TEST_P(OpenEachKind, ZeroesTheCounters) {
    program.counters.values[0] = 7;
    open();
    EXPECT_EQ(program.counters.values[0], 0U);
    EXPECT_EQ(screen.MSFlexGrid1.cell(0, 1).text, "0");
}

TEST_P(OpenEachKind, ForgetsTheContestOfTheFormerLog) {
    kit.open("C:\\log\\x.all");
    screen.Option02.index = 2;
    confirm_contest();
    screen.Option02.index = 0;
    open();
    EXPECT_FALSE(has_dat(program));
    EXPECT_EQ(program.selection.Con_name, "");
    EXPECT_EQ(screen.lblDatName.caption.get(), "");
    EXPECT_EQ(screen.Label37.caption.get(), "");
    EXPECT_EQ(kit.stored(dat_ini, "DAT_MAS", "set_dat_in_name"), "");
}

TEST_P(OpenEachKind, KeepsItsContestWhenItIsOpenedAgain) {
    screen.Option02.index = 2;
    open();
    confirm_contest();
    open();
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
    EXPECT_EQ(kit.stored(dat_ini, "DAT_MAS", "set_dat_in_name"), "C:\\zLog\\acag.dat");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.tool_dat.enabled);
}

TEST_P(OpenEachKind, EndsTheReplacementOfAContestFile) {
    kit.put_text("C:\\log\\contestj_n.csv", "");
    kit.person.files = {"C:\\log\\contestj_n.csv"};
    screen.mnuOpen_con_n.press();
    ASSERT_EQ(program.run_mode, RunMode::replacement);
    open();
    EXPECT_EQ(program.run_mode, RunMode::conversion);
}

TEST_P(OpenEachKind, NoAnswerLeavesTheFormerLog) {
    kit.open("C:\\log\\x.all");
    open("");
    EXPECT_EQ(program.log.in_name, "C:\\log\\x.all");
    EXPECT_EQ(program.log.f_type, InputKind::all);
    EXPECT_EQ(screen.lblIn_name.caption.get(), "C:\\log\\x.all");
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_P(OpenEachKind, OnlyABinaryLogOfZlogCanBeMadeATextOf) {
    choose(screen.mnuOpen_z, "C:\\log\\y.zlo");
    ASSERT_TRUE(screen.mnuMake_z2a.enabled);
    ASSERT_TRUE(screen.mnuDisp_z2a.enabled);
    open();
    EXPECT_EQ(screen.mnuMake_z2a.enabled, GetParam().kind == InputKind::zlo);
    EXPECT_FALSE(screen.mnuDisp_z2a.enabled);
}

TEST_F(OpenOtherLogs, RefusedLogIsNotMadeATextOf) {
    kit.put_text("C:\\log\\none.cbr", "no heading\r\n");
    for (MenuEntry* const entry : {&screen.mnuOpen_cbr, &screen.mnuOpen_rtcl_log_set_new4}) {
        choose(screen.mnuOpen_z, "C:\\log\\y.zlo");
        ASSERT_TRUE(screen.mnuMake_z2a.enabled);
        choose(*entry, "C:\\log\\none.cbr");
        EXPECT_FALSE(screen.mnuMake_z2a.enabled);
        EXPECT_FALSE(screen.mnuDisp_z2a.enabled);
    }
}

TEST_F(OpenOtherLogs, CountOfTheLogBeforeDoesNotStandBesideTheNext) {
    choose(screen.mnuOpen_cbr, "C:\\log\\x.cbr");
    ASSERT_NE(screen.lblIn_rec.caption.get(), "");
    kit.put_text("C:\\log\\t.all", sample_all_log);
    kit.open("C:\\log\\t.all");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "");
    EXPECT_EQ(program.log.record_count, "");
}

TEST_F(OpenOtherLogs, BothWaysToAContestAreThereAgainBehindABinaryLog) {
    screen.Option02.index = 2;
    choose(screen.mnuOpen_z, "C:\\log\\x.zlo");
    ASSERT_FALSE(screen.Option03.buttons.get()[1].enabled);
    kit.put_text("C:\\log\\t.all", sample_all_log);
    kit.open("C:\\log\\t.all");
    EXPECT_TRUE(screen.Option03.buttons.get()[1].enabled);
}

// --- a log without its contest data file, where codes come from one ---

class OpenWithoutDat : public OpenEachKind {};

INSTANTIATE_TEST_SUITE_P(
    Kinds, OpenWithoutDat,
    testing::Values(KindOfLog{"cbr", InputKind::cbr, "C:\\log\\x.cbr", ""},
                    KindOfLog{"ADIF", InputKind::ADIF, "C:\\log\\x.adi", ""},
                    KindOfLog{"lg8", InputKind::lg8, "C:\\log\\x.lg8", ""},
                    KindOfLog{"log_v4", InputKind::log_v4, "C:\\log\\v4.log", ""},
                    KindOfLog{"log_v430", InputKind::log_v430, "C:\\log\\v430.log", ""}),
    [](const auto& kind) { return std::string(kind.param.name); });

TEST_P(OpenWithoutDat, AsksForOneAndSetsTheManualWay) {
    screen.Option02.index = 2;
    screen.Option03.index = 0;
    screen.Option03.enable(1, false);
    open();
    for (const Label* const label : {&screen.lblDatName, &screen.Label37}) {
        EXPECT_EQ(label->caption.get(), ask);
        EXPECT_EQ(label->fore_colour.get(), colours::red);
    }
    EXPECT_EQ(screen.Option03.index, 1);
    EXPECT_TRUE(screen.Option03.buttons.get()[1].enabled);
    EXPECT_TRUE(screen.Option03.enabled);
    EXPECT_TRUE(screen.tool_dat_by_hand.enabled);
    EXPECT_TRUE(screen.tool_dat_by_contest.enabled);
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_P(OpenWithoutDat, IsNotAskedAboutWhereCodesComeFromElsewhere) {
    screen.Option02.index = 1;
    screen.Option03.index = 0;
    open();
    EXPECT_EQ(screen.lblDatName.caption.get(), "");
    EXPECT_EQ(screen.Option03.index, 0);
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_P(OpenWithoutDat, IsReadyOnceTheContestIsChosen) {
    screen.Option02.index = 2;
    open();
    confirm_contest();
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_EQ(program.selection.Code_flag, "31");
}

TEST_P(OpenWithoutDat, DatOfNoUsePresetsTheFlag10) {
    screen.Option02.index = 1;
    open();
    screen.lblDatName.caption = of_no_use;
    program.selection.Code_flag = "31";
    screen.Option02.enable(3, false);
    open();
    EXPECT_EQ(program.selection.Code_flag, "10");
    if (GetParam().kind == InputKind::lg8) {
        EXPECT_EQ(screen.Option02.index, 1);
        return;
    }
    EXPECT_EQ(screen.Option02.index, 0);
    EXPECT_TRUE(screen.Option02.buttons.get()[3].enabled);
    EXPECT_EQ(screen.lblDatName.caption.get(), ask);
    EXPECT_EQ(screen.lblDatName.fore_colour.get(), colours::red);
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_P(OpenWithoutDat, OnlyAdifPresetsTheFlag13) {
    open();
    EXPECT_EQ(program.selection.Code_flag, GetParam().kind == InputKind::ADIF ? "13" : "");
}

TEST_F(OpenOtherLogs, ContestPickedAfterwardsHasItsOwnFlagUntilTheAdifLogIsOpenedAgain) {
    screen.Option02.index = 2;
    choose(screen.mnuOpen_ADIF, "C:\\log\\x.adi");
    confirm_contest();
    EXPECT_EQ(program.selection.Code_flag, "31");
    choose(screen.mnuOpen_ADIF, "C:\\log\\x.adi");
    EXPECT_EQ(program.selection.Code_flag, "13");
    EXPECT_EQ(program.selection.dat.dat_in_name, "C:\\zLog\\acag.dat");
}

// --- Cabrillo and ADIF ---

TEST_F(OpenOtherLogs, NoAnswerAsksForADatFileOnTheTwoLabels) {
    for (MenuEntry* const entry : {&screen.mnuOpen_cbr, &screen.mnuOpen_ADIF}) {
        screen.lblDatName.show("", colours::black);
        screen.Label37.show("", colours::black);
        entry->press();
        for (const Label* const label : {&screen.lblDatName, &screen.Label37}) {
            EXPECT_EQ(label->caption.get(), ask);
            EXPECT_EQ(label->fore_colour.get(), colours::red);
        }
    }
}

TEST_F(OpenOtherLogs, WhatIsNoCabrilloIsRefusedInRed) {
    kit.open("C:\\log\\x.txt");
    choose(screen.mnuOpen_cbr, "C:\\log\\x.all");
    EXPECT_EQ(screen.lblIn_name.caption.get(), "Cabrillo ﾌｧｲﾙではありません！");
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::red);
    EXPECT_EQ(program.log.in_name, "Cabrillo ﾌｧｲﾙではありません！");
    EXPECT_EQ(program.log.f_type, InputKind::txt);  // stays
    EXPECT_FALSE(program.log.accepted);
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_FALSE(screen.tool_convert.enabled);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(OpenOtherLogs, WhatIsNoAdifIsRefusedInRed) {
    kit.open("C:\\log\\x.txt");
    choose(screen.mnuOpen_ADIF, "C:\\log\\x.cbr");
    EXPECT_EQ(screen.lblIn_name.caption.get(), "ADIF ﾌｧｲﾙではありません！");
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::red);
    EXPECT_EQ(program.log.in_name, "ADIF ﾌｧｲﾙではありません！");
    EXPECT_EQ(program.log.f_type, InputKind::txt);
    EXPECT_FALSE(screen.cmdStart.enabled);
}

TEST_F(OpenOtherLogs, EmptyFilesAreRefused) {
    kit.put_text("C:\\log\\empty.log", "");
    choose(screen.mnuOpen_cbr, "C:\\log\\empty.log");
    EXPECT_EQ(screen.lblIn_name.caption.get(), "Cabrillo ﾌｧｲﾙではありません！");
    choose(screen.mnuOpen_ADIF, "C:\\log\\empty.log");
    EXPECT_EQ(screen.lblIn_name.caption.get(), "ADIF ﾌｧｲﾙではありません！");
    EXPECT_FALSE(program.ended());
}

TEST_F(OpenOtherLogs, RefusedLogCanBeFollowedByAGoodOne) {
    choose(screen.mnuOpen_cbr, "C:\\log\\x.all");
    choose(screen.mnuOpen_cbr, "C:\\log\\x.cbr");
    EXPECT_EQ(screen.lblIn_name.caption.get(), "C:\\log\\x.cbr");
    EXPECT_EQ(screen.lblIn_name.fore_colour.get(), colours::blue);
    EXPECT_TRUE(screen.cmdStart.enabled);
}

TEST_F(OpenOtherLogs, CabrilloIsTestedByItsFirstLineAlone) {
    kit.put_text("C:\\log\\late.log", "X\r\nSTART-OF-LOG: 3.0\r\n");
    choose(screen.mnuOpen_cbr, "C:\\log\\late.log");
    EXPECT_FALSE(program.log.accepted);
    kit.put_text("C:\\log\\inside.log", "QSO: START-OF-LOG:\r\nQSO: no contact\r\nQSO:\r\nx\r\n");
    choose(screen.mnuOpen_cbr, "C:\\log\\inside.log");
    EXPECT_TRUE(program.log.accepted);
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   3件");
    EXPECT_EQ(program.log.record_count, "   3");
}

TEST_F(OpenOtherLogs, AdifIsTestedByAnyOfItsLines) {
    kit.put_text("C:\\log\\late.adi", "1\r\n2\r\n3\r\nx <caLL:6>JA1ZZA\r\n<CALL:6><CALL:6>\r\n");
    choose(screen.mnuOpen_ADIF, "C:\\log\\late.adi");
    EXPECT_EQ(program.log.f_type, InputKind::ADIF);
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "   2件");
}

TEST_F(OpenOtherLogs, MissingFileEndsInTheReport) {
    for (const InputKind kind : {InputKind::cbr, InputKind::ADIF, InputKind::log_v4}) {
        ProgramKit another;
        ASSERT_TRUE(another.start());
        another.person.boxes.clear();
        another.person.files = {"C:\\log\\missing"};
        open_entry(another.screen(), kind).press();
        EXPECT_EQ(another.program->ended(), ProgramEnd::Cause::reported);
        ASSERT_THAT(another.person.boxes, SizeIs(2));
        EXPECT_THAT(another.person.boxes[0].text, HasSubstr("エラー発生 ：　"));
    }
}

TEST_F(OpenOtherLogs, PathWithoutABackslashChangesNothing) {
    for (const InputKind kind : {InputKind::cbr, InputKind::ADIF, InputKind::zlo, InputKind::log_v4,
                                 InputKind::log_v430}) {
        choose(open_entry(screen, kind), "x.log");
        EXPECT_EQ(program.log.in_name, "");
        EXPECT_FALSE(screen.cmdStart.enabled);
    }
}

// --- binary logs of zLog ---

TEST_F(OpenOtherLogs, FrameOfContestDataFollowsTheCodeSource) {
    screen.Option02.index = 2;
    choose(screen.mnuOpen_z, "C:\\log\\x.zlo");
    EXPECT_TRUE(screen.Frame11.enabled);
    EXPECT_TRUE(screen.Option03.enabled);
    screen.Option02.index = 0;
    choose(screen.mnuOpen_z, "C:\\log\\x.zlo");
    EXPECT_FALSE(screen.Frame11.enabled);
    EXPECT_FALSE(screen.Option03.enabled);
}

TEST_F(OpenOtherLogs, ZloOfItsFolderIsTakenAsThoseOfAnywhereAre) {
    choose(screen.mnuOpen_z_set, "C:\\log\\x.zlo");
    EXPECT_EQ(program.log.f_type, InputKind::zlo);
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_TRUE(screen.mnuMake_z2a.enabled);
}

TEST_F(OpenOtherLogs, ZloBecomesATextBesideIt) {
    choose(screen.mnuOpen_z, "C:\\log\\x.zlo");
    screen.mnuMake_z2a.press();
    EXPECT_EQ(from_code_page(kit.memory.bytes("C:\\log\\x_z2a.all")),
              "zLog for Windows       by Veldrana 5.30\r\n"
              "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    -     -     7    CW   1  "
              "%%JA1ZZZ%%SSN (7012)\r\n"
              "2025/04/26 21:06 JR8YYX/1     59  11M     57  101H    -     -     430  FM   1  "
              "%%JA1ZZY%%\r\n");
    EXPECT_EQ(screen.lblCFG.caption.get(), "z2a ﾌｧｲﾙ  作 成 終 了");
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_EQ(program.log.in_name, "C:\\log\\x.zlo");
}

TEST_F(OpenOtherLogs, TextOfAZloIsShownOnceItIsThere) {
    std::vector<std::string> shown;
    const auto look = [&shown](WindowForm& form) {
        shown.push_back(dynamic_cast<frmDisp&>(form).disp_name());
    };
    kit.person.forms = {look, look};
    choose(screen.mnuOpen_z, "C:\\log\\x.zlo");
    screen.mnuDisp_z2a.press();
    EXPECT_THAT(shown, IsEmpty());
    screen.mnuMake_z2a.press();
    screen.mnuDisp_z2a.press();
    EXPECT_THAT(shown, ElementsAre("C:\\log\\x_z2a.all"));
    // One that an earlier day has left is there too.
    choose(screen.mnuOpen_cbr, "C:\\log\\x.cbr");
    EXPECT_FALSE(screen.mnuDisp_z2a.enabled);
    choose(screen.mnuOpen_z, "C:\\log\\x.zlo");
    EXPECT_TRUE(screen.mnuDisp_z2a.enabled);
    kit.memory.remove("C:\\log\\x_z2a.all");
    screen.mnuDisp_z2a.press();  // gone meanwhile
    EXPECT_THAT(shown, SizeIs(1));
}

TEST_F(OpenOtherLogs, PointInAFoldersNameCutsThePathOfTheText) {
    kit.memory.put("C:\\log.25\\x.zlo", sample_zlo(""));
    choose(screen.mnuOpen_z, "C:\\log.25\\x.zlo");
    screen.mnuMake_z2a.press();
    EXPECT_TRUE(kit.memory.file_exists("C:\\log_z2a.all"));
    EXPECT_FALSE(kit.memory.file_exists("C:\\log.25\\x_z2a.all"));
    EXPECT_TRUE(screen.mnuDisp_z2a.enabled);
}

TEST_F(OpenOtherLogs, TextOfAZloThatHasGoneEndsInTheReport) {
    choose(screen.mnuOpen_z, "C:\\log\\x.zlo");
    kit.memory.protect({});
    kit.memory.remove("C:\\log\\x.zlo");
    screen.mnuMake_z2a.press();
    EXPECT_EQ(program.ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("エラー発生 ：　53"));
}

// --- RTCL ---

TEST_F(OpenOtherLogs, FirstByteTellsARtclLog) {
    kit.put_text("C:\\log\\no.log", sample_cabrillo);
    for (MenuEntry* const entry :
         {&screen.mnuOpen_rtcl_log_set_new4, &screen.mnuOpen_rtcl_log_set_new430}) {
        kit.person.boxes.clear();
        choose(*entry, "C:\\log\\no.log");
        ASSERT_THAT(kit.person.boxes, SizeIs(1));
        EXPECT_EQ(kit.person.boxes[0].text,
                  "C:\\log\\no.log　は RTCL ver 4.0 のｌｏｇ ファイルではありません");
        EXPECT_EQ(kit.person.boxes[0].buttons, Buttons::ok);
    }
    EXPECT_FALSE(program.ended());
}

TEST_F(OpenOtherLogs, LengthTellsTheFormOfARtclLog) {
    choose(screen.mnuOpen_rtcl_log_set_new4, "C:\\log\\v430.log");
    choose(screen.mnuOpen_rtcl_log_set_new430, "C:\\log\\v4.log");
    ASSERT_THAT(kit.person.boxes, SizeIs(2));
    EXPECT_EQ(kit.person.boxes[0].text,
              "C:\\log\\v430.log　は RTCL ver 4.30 より前のｌｏｇ ファイルではありません");
    EXPECT_EQ(kit.person.boxes[1].text,
              "C:\\log\\v4.log　は RTCL ver 4.30 以降のｌｏｇ ファイルではありません");
}

TEST_F(OpenOtherLogs, RefusedRtclLogKeepsItsPathAndCannotBeStarted) {
    kit.open("C:\\log\\x.all");
    choose(screen.mnuOpen_rtcl_log_set_new430, "C:\\log\\v4.log");
    EXPECT_EQ(program.log.in_name, "C:\\log\\v4.log");
    EXPECT_EQ(screen.lblIn_name.caption.get(), "C:\\log\\v4.log");
    EXPECT_EQ(program.log.f_type, InputKind::log_v430);
    EXPECT_FALSE(program.log.accepted);
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_FALSE(screen.tool_convert.enabled);
}

// Options look at readiness too.
TEST_F(OpenOtherLogs, RefusedRtclLogCannotBeStartedBehindAnOptionEither) {
    choose(screen.mnuOpen_rtcl_log_set_new430, "C:\\log\\v4.log");
    screen.Option02.index = 1;
    EXPECT_FALSE(screen.cmdStart.enabled);
    EXPECT_FALSE(screen.tool_convert.enabled);
}

TEST_F(OpenOtherLogs, EmptyFileIsNoRtclLog) {
    kit.memory.put("C:\\log\\empty.log", "");
    choose(screen.mnuOpen_rtcl_log_set_new4, "C:\\log\\empty.log");
    ASSERT_THAT(kit.person.boxes, SizeIs(1));
    EXPECT_THAT(kit.person.boxes[0].text, HasSubstr("　は RTCL ver 4.0 の"));
}

TEST_F(OpenOtherLogs, FileOf203Times209BytesPassesAsBothForms) {
    kit.memory.put("C:\\log\\both.log", "0" + std::string(203 * 209 - 1, ' '));
    choose(screen.mnuOpen_rtcl_log_set_new4, "C:\\log\\both.log");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), " 209件");
    choose(screen.mnuOpen_rtcl_log_set_new430, "C:\\log\\both.log");
    EXPECT_EQ(screen.lblIn_rec.caption.get(), " 203 件");
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// --- Ctestwin ---

TEST_F(OpenOtherLogs, CtestwinConverterIsStartedAndGivenAMoment) {
    kit.processes.work = [this] {
        kit.put_text("C:\\veldrana\\lg8bridge.ini",
                     "[lg8bridge.ini]\r\nlg8bridge_in_name=C:\\log\\x.lg8\r\nqso_su_str=12\r\n");
    };
    choose(screen.mnuOpen_Ctestwin_lg8, "C:\\log\\x.lg8");
    EXPECT_THAT(kit.processes.started, ElementsAre("C:\\veldrana\\lg8bridge.exe"));
    EXPECT_THAT(kit.processes.sleeps, ElementsAre(std::chrono::milliseconds(200)));
    EXPECT_EQ(screen.lblIn_rec.caption.get(), "12 件");
}

// --- refusals of a contest ---

TEST_F(OpenOtherLogs, WhatWasWavedThroughForALogIsForgottenWithTheNext) {
    for (const InputKind kind : {InputKind::cbr, InputKind::ADIF, InputKind::lg8}) {
        program.refusals = {.code = true, .list = true};
        const char* const path = kind == InputKind::cbr    ? "C:\\log\\x.cbr"
                                 : kind == InputKind::ADIF ? "C:\\log\\x.adi"
                                                           : "C:\\log\\x.lg8";
        choose(open_entry(screen, kind), path);
        EXPECT_FALSE(program.refusals.code);
        EXPECT_FALSE(program.refusals.list);
    }
}

}  // namespace
}  // namespace veldrana
