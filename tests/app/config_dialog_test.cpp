// The ways to the environment dialog and back: from a start to the main screen, and from the main
// screen.
#include "app/config_dialog.h"

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/frmConfig.h"
#include "tests/app/stored_settings.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const std::string home = "C:\\veldrana\\";
const std::string unused = "使用しない";

class ConfigDialogTest : public testing::Test {
  protected:
    explicit ConfigDialogTest(Installed installed) : kit("C:\\veldrana", installed) {
        for (const char* const name :
             {"Veldrana_Rireki.cfg", "hl_code.mas", "Make_hl_code_mas.txt"}) {
            kit.put_text(home + name, "x\r\n");
        }
    }

    Program& program() { return *kit.program; }
    EnvironmentSettings& environment() { return program().settings.environment; }
    // What the next dialog is used for.
    void fill_in(std::function<void(frmConfig&)> use) {
        kit.person.forms.push_back([this, use = std::move(use)](WindowForm& form) {
            ++dialogs;
            use(dynamic_cast<frmConfig&>(form));
        });
    }
    Start::Reached run_dialog() {
        program().event([this] { run_environment_dialog(program()); });
        return program().start.reached;
    }
    // A start that comes to the dialog, and the dialog.
    Start::Reached start_through_dialog() {
        kit.start();
        EXPECT_EQ(program().start.reached, Start::environment_dialog);
        return run_dialog();
    }
    std::vector<std::string> titles() const {
        std::vector<std::string> titles;
        for (const MessageBox& box : kit.person.boxes) {
            titles.push_back(box.title);
        }
        return titles;
    }
    std::string stored_entry(std::string_view key) { return kit.stored(cfg_ini, cfg_ini, key); }

    ProgramKit kit;
    int dialogs = 0;
};

const auto leave_as_it_is = [](frmConfig& form) { form.cmdOK.press(); };
const auto save_and_leave = [](frmConfig& form) {
    form.cmdSave.press();
    form.cmdOK.press();
};

// --- the first start of all ---

class FirstStartDialog : public ConfigDialogTest {
  protected:
    FirstStartDialog() : ConfigDialogTest(Installed::bare) {
        kit.memory.put("C:\\radio\\Hamlog.hdb", "x");
    }
};

void fill_everything(frmConfig& form) {
    form.txtZlog_dat.text = "C:\\zLog\\";
    form.chkNo_name.value = true;
    form.txtHamlog_hdb.text = "C:\\radio\\Hamlog.hdb";
    form.txtHamlog_hdb_2.text = "C:\\radio\\Hamlog.hdb";
    form.txtZloDir.text = "C:\\log\\";
    form.txtAllDir.text = "C:\\log\\";
    form.txtMyCalls.text = "ja1zzz";
    form.txtPassWords.text = "secret";
}

TEST_F(FirstStartDialog, ComesThroughTheDialogToTheMainScreen) {
    fill_in([](frmConfig& form) {
        // Nothing was found: neither a logger nor a log book nor a name master.
        EXPECT_EQ(form.sp_flag(), 6);
        EXPECT_TRUE(form.chkNo_qth.value);
        EXPECT_TRUE(form.chkNo_yubin.value);
        EXPECT_FALSE(form.cmdSave.enabled);
        fill_everything(form);
        ASSERT_TRUE(form.cmdSave.enabled);
        save_and_leave(form);
    });
    EXPECT_EQ(start_through_dialog(), Start::main_screen);
    EXPECT_EQ(dialogs, 1);
    EXPECT_TRUE(kit.screen().window.visible);
    EXPECT_FALSE(program().read_master.window.visible);
    EXPECT_EQ(program().ended(), std::nullopt);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

TEST_F(FirstStartDialog, ScreenShowsWhatWasSaved) {
    fill_in([](frmConfig& form) {
        fill_everything(form);
        save_and_leave(form);
    });
    start_through_dialog();
    EXPECT_EQ(kit.screen().lblMyCalls.caption.get(), "JA1ZZZ");
    EXPECT_EQ(kit.screen().lblPassWord.caption.get(), "******");
    EXPECT_EQ(kit.screen().Option01.buttons.get().at(0).caption, "新 Hamlog.hdb");
    EXPECT_EQ(program().hdb_name, "Hamlog.hdb");
    EXPECT_FALSE(kit.screen().Check03.enabled);
    EXPECT_TRUE(kit.screen().lblNo_qth_mas.visible);
    EXPECT_FALSE(is_enabled(kit.screen().Option02, 3));
}

TEST_F(FirstStartDialog, IsFollowedByAStartWithoutIt) {
    fill_in([](frmConfig& form) {
        fill_everything(form);
        save_and_leave(form);
    });
    start_through_dialog();
    ++kit.clock.time.minute;
    NextStart next(kit);
    EXPECT_EQ(next.reached(), Start::main_screen);
    EXPECT_EQ(dialogs, 1);
}

TEST_F(FirstStartDialog, EnvironmentIsForItsOwnerAlone) {
    fill_in([](frmConfig& form) {
        fill_everything(form);
        save_and_leave(form);
    });
    start_through_dialog();
    EXPECT_TRUE(kit.memory.is_for_owner(home + "Veldrana_cfg.ini"));
}

// It holds a copy of the environment.
TEST_F(FirstStartDialog, TraceLogIsForItsOwnerAlone) {
    kit.start();
    EXPECT_TRUE(kit.memory.is_for_owner(program().trace.path()));
}

TEST_F(FirstStartDialog, WithEveryFolderFoundItIsJustSaved) {
    kit.put_text(home + "name_mas.txt", "x\r\n");
    kit.memory.put("C:\\Hamlog\\Hamlog.hdb", "x");
    kit.memory.put("C:\\zLog\\acag.dat", "x");
    fill_in([](frmConfig& form) {
        EXPECT_EQ(form.sp_flag(), 0);
        EXPECT_EQ(form.txtName_mas.text.get(), "C:\\veldrana\\");
        save_and_leave(form);
    });
    EXPECT_EQ(start_through_dialog(), Start::main_screen);
    EXPECT_EQ(stored_entry("all_dir"), "C:\\zLog\\");
    EXPECT_EQ(stored_entry("hamlog_hdb_2_dir"), "C:\\Hamlog\\Hamlog.hdb");
}

// The main screen reads the file, and there is none: no log book, and a postal master without a
// folder. The next start asks again.
TEST_F(FirstStartDialog, LeftWithoutSavingNothingIsKnown) {
    kit.put_text(home + "name_mas.txt", "x\r\n");
    kit.memory.put("C:\\Hamlog\\Hamlog.hdb", "x");
    kit.memory.put("C:\\zLog\\acag.dat", "x");
    fill_in(leave_as_it_is);
    start_through_dialog();
    EXPECT_FALSE(kit.memory.file_exists(home + "Veldrana_cfg.ini"));
    std::vector<std::string> texts;
    for (const MessageBox& box : kit.person.boxes) {
        texts.push_back(box.text);
    }
    EXPECT_THAT(texts, Contains(" が有りません！ 環境設定を確認して下さい。"));
    EXPECT_THAT(texts, Contains(HasSubstr("yubin_m0.mas")));
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::refused);
    ++kit.clock.time.minute;
    NextStart next(kit);
    EXPECT_EQ(next.reached(), Start::environment_dialog);
}

// --- a start that comes to the dialog ---

class DialogOfAStart : public ConfigDialogTest {
  protected:
    DialogOfAStart() : ConfigDialogTest(Installed::ready) {
        kit.memory.put("C:\\Hamlog\\Hamlog.hdb", "x");
        put_entry(kit, "zlo_dir", "");
    }
    static void mend(frmConfig& form) {
        form.txtZloDir.text = "C:\\log\\";
        save_and_leave(form);
    }
};

TEST_F(DialogOfAStart, MarksWhatIsMissing) {
    fill_in([](frmConfig& form) {
        EXPECT_EQ(form.sp_flag(), 1);
        EXPECT_EQ(form.lblZloDir.fore_colour.get(), colours::red);
    });
    start_through_dialog();
}

TEST_F(DialogOfAStart, MainScreenIsNotThereBeforeItIsLeft) {
    fill_in([this](frmConfig& form) {
        EXPECT_FALSE(kit.screen().window.visible);
        EXPECT_TRUE(program().read_master.window.visible);
        EXPECT_TRUE(form.window.visible);
        mend(form);
        EXPECT_FALSE(form.window.visible);
        EXPECT_FALSE(kit.screen().window.visible);
    });
    EXPECT_EQ(start_through_dialog(), Start::main_screen);
    EXPECT_TRUE(kit.screen().window.visible);
}

TEST_F(DialogOfAStart, ClosedOtherwiseTheStartWaits) {
    fill_in([](frmConfig& form) { form.window.visible = false; });
    EXPECT_EQ(start_through_dialog(), Start::environment_dialog);
    EXPECT_FALSE(kit.screen().window.visible);
    EXPECT_EQ(program().ended(), std::nullopt);
    fill_in(mend);
    EXPECT_EQ(run_dialog(), Start::main_screen);
}

TEST_F(DialogOfAStart, FolderOfTheMarksStaysEmpty) {
    fill_in(mend);
    start_through_dialog();
    EXPECT_EQ(program().paths.qsl_dir, "");
}

TEST_F(DialogOfAStart, StepsAreTracedInTheirOrder) {
    fill_in(mend);
    start_through_dialog();
    const std::vector<std::string> lines = kit.trace_lines();
    auto at = lines.begin();
    for (const std::string_view step :
         {"Public Sub Main()", "Private Sub Form_Load()", "Private Sub cmdSave_Click()",
          "Private Sub cmdOK_Click()", "Public Sub Main2_bas()", "Private Sub Form_Load()"}) {
        at = std::find(at, lines.end(), step);
        ASSERT_NE(at, lines.end()) << step;
    }
    EXPECT_THAT(lines, Not(Contains("Public Sub Main2_bas_2()")));
}

TEST_F(DialogOfAStart, EndsWithoutAFileThatIsNeeded) {
    kit.memory.remove(home + "hl_code.mas");
    bool closed = true;
    fill_in([&](frmConfig& form) {
        try {
            mend(form);
        } catch (...) {
            closed = !form.window.visible;
            throw;
        }
    });
    EXPECT_EQ(start_through_dialog(), Start::nothing);
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::refused);
    EXPECT_FALSE(closed);
    EXPECT_THAT(titles(), ElementsAre("　　ｈｌ_ｃｏｄｅ．ｍａｓ　がありません。"));
    EXPECT_FALSE(kit.screen().window.visible);
    // What was saved before stays.
    EXPECT_EQ(stored_entry("zlo_dir"), "C:\\log\\");
}

TEST_F(DialogOfAStart, EndsWithoutAServiceThatIsNeeded) {
    kit.services.missing = Service::sorter;
    fill_in(mend);
    start_through_dialog();
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::refused);
    EXPECT_THAT(titles(), ElementsAre("　　KSORT32．DLL　がありません。"));
}

TEST_F(DialogOfAStart, HintsComeBeforeTheTests) {
    use_all_masters(kit);
    put_entry(kit, "zlo_dir", "C:\\log\\");
    put_entry(kit, "version", "4.10");
    kit.memory.remove(home + "hl_code.mas");
    fill_in([](frmConfig& form) {
        form.chkNo_qth.value = true;
        form.chkNo_qth.value = false;
        save_and_leave(form);
    });
    start_through_dialog();
    EXPECT_THAT(titles(), ElementsAre("　　qth_mas.txt　の使用が可能です",
                                      "　　ｈｌ_ｃｏｄｅ．ｍａｓ　がありません。"));
}

TEST_F(DialogOfAStart, EndButtonEndsTheProgramAtOnce) {
    fill_in([](frmConfig& form) {
        form.window.placement = WindowPlacement{WindowPlacement::normal, 5, 6, 11000, 9000};
        form.cmdEnd.press();
    });
    start_through_dialog();
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::orderly);
    EXPECT_EQ(kit.stored("Veldrana_posi.ini", "Position_frmConfig", "Left"), "5");
    EXPECT_EQ(stored_entry("zlo_dir"), "");
    EXPECT_FALSE(kit.screen().window.visible);
    EXPECT_FALSE(program().trace.is_open());
    EXPECT_TRUE(kit.memory.file_exists(program().trace.path()));
    EXPECT_THAT(kit.person.boxes, IsEmpty());
}

// The dialog has marked them red; a start without it shows a box.
TEST_F(DialogOfAStart, SaysNothingMoreOfACallSignThatIsUnset) {
    fill_in([](frmConfig& form) {
        form.txtMyCalls.text = "入力必要";
        mend(form);
    });
    EXPECT_EQ(start_through_dialog(), Start::main_screen);
    EXPECT_THAT(titles(), IsEmpty());
}

TEST_F(DialogOfAStart, SavingAnOldEnvironmentMakesItNew) {
    put_entry(kit, "zlo_dir", "C:\\log\\");
    put_entry(kit, "version", "4.10");
    put_entry(kit, "mine", "1");
    fill_in([](frmConfig& form) {
        form.txtAllDir.text = "C:\\other\\";
        EXPECT_EQ(form.lblMsg.caption.get(), "nwe ver です");
        EXPECT_FALSE(form.cmdOK.enabled);
        save_and_leave(form);
    });
    EXPECT_EQ(start_through_dialog(), Start::main_screen);
    EXPECT_FALSE(program().start.old_version);
    EXPECT_EQ(stored_entry("version"), "5.30");
    EXPECT_EQ(stored_entry("mine"), "");
    ++kit.clock.time.minute;
    NextStart next(kit);
    EXPECT_EQ(next.reached(), Start::main_screen);
}

TEST_F(DialogOfAStart, WhatIsTypedAndNotSavedLastsForTheRun) {
    put_entry(kit, "zlo_dir", "C:\\log\\");
    put_entry(kit, "version", "4.10");
    fill_in([](frmConfig& form) {
        form.txtMyCalls.text = "JA1ZZY";
        form.txtPassWords.text = "other one";
        form.Text1.text = "K";
        form.cmdOK.press();
    });
    EXPECT_EQ(start_through_dialog(), Start::main_screen);
    EXPECT_EQ(environment().MyCalls, "JA1ZZY");
    EXPECT_EQ(environment().PassWords, "other one");
    EXPECT_EQ(environment().No_QSL_moji, "K");
    EXPECT_EQ(kit.screen().lblMyCalls.caption.get(), "JA1ZZY");
    EXPECT_EQ(kit.screen().lblPassWord.caption.get(), "*********");
    EXPECT_EQ(stored_entry("MyCalls"), "JA1ZZZ");
    EXPECT_EQ(stored_entry("PassWords"), "secret");
    EXPECT_EQ(stored_entry("No_QSL_moji"), "N");
}

// As the text of the form has it, an empty postal master becomes a backslash, and the main screen
// looks for its files there.
TEST_F(DialogOfAStart, PostalMasterThatIsEmptyIsLookedForAtABackslash) {
    put_entry(kit, "zlo_dir", "C:\\log\\");
    put_entry(kit, "yubin_mas_dir", "");
    fill_in([](frmConfig& form) {
        EXPECT_EQ(form.txtYubin_mas.text.get(), "\\");
        EXPECT_EQ(form.sp_flag(), 0);
        save_and_leave(form);
    });
    start_through_dialog();
    EXPECT_EQ(stored_entry("yubin_mas_dir"), "\\");
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::refused);
}

TEST_F(DialogOfAStart, FailureInTheDialogIsReported) {
    put_entry(kit, "version", "4.10");
    fill_in([this](frmConfig& form) {
        form.txtZloDir.text = "C:\\log\\";
        kit.memory.protect(home + "Veldrana_cfg.ini");
        form.cmdSave.press();
    });
    start_through_dialog();
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::reported);
    ASSERT_THAT(kit.person.boxes, testing::Not(IsEmpty()));
    EXPECT_THAT(kit.person.boxes.front().text, HasSubstr("エラー発生 ：　55"));
    EXPECT_THAT(kit.trace_lines(), Contains("エラー発生 ：　55"));
    EXPECT_FALSE(kit.screen().window.visible);
}

// --- the entry of the menu ---

class DialogOfTheMenu : public ConfigDialogTest {
  protected:
    DialogOfTheMenu() : ConfigDialogTest(Installed::ready) {
        kit.memory.put("C:\\Hamlog\\Hamlog.hdb", "x");
        kit.memory.put("D:\\radio\\Club.hdb", "x");
    }
    void SetUp() override { ASSERT_TRUE(kit.start()); }
    void press() { screen.mnuConfig.press(); }

    MainScreen& screen = kit.screen();
};

TEST_F(DialogOfTheMenu, HasItsCaption) {
    EXPECT_EQ(screen.mnuConfig.caption.get(), "環境設定");
}

TEST_F(DialogOfTheMenu, OpensInFrontOfTheMainScreen) {
    fill_in([this](frmConfig& form) {
        EXPECT_TRUE(form.window.visible);
        EXPECT_TRUE(screen.window.visible);
        EXPECT_EQ(form.txtMyCalls.text.get(), "JA1ZZZ");
        EXPECT_TRUE(form.cmdOK.enabled);
    });
    press();
    EXPECT_EQ(dialogs, 1);
}

TEST_F(DialogOfTheMenu, OptionsAreSavedBeforeItOpens) {
    kit.memory.remove(home + "Veldrana.ini");
    fill_in([this](frmConfig&) {
        EXPECT_TRUE(kit.memory.file_exists(home + "Veldrana.ini"));
        EXPECT_TRUE(kit.memory.file_exists(home + "Veldrana_dat.ini"));
    });
    press();
}

TEST_F(DialogOfTheMenu, LeavesTheMainScreenReady) {
    fill_in(leave_as_it_is);
    press();
    EXPECT_EQ(program().start.reached, Start::main_screen);
    EXPECT_TRUE(screen.window.visible);
    EXPECT_EQ(program().ended(), std::nullopt);
    EXPECT_THAT(kit.person.boxes, IsEmpty());
    EXPECT_THAT(kit.trace_lines(), Contains("Private Sub mnuConfig_Click()"));
}

TEST_F(DialogOfTheMenu, TestsTheNeededFiles) {
    kit.memory.remove(home + "Make_hl_code_mas.txt");
    fill_in(leave_as_it_is);
    press();
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::refused);
    EXPECT_THAT(titles(), ElementsAre("　　Ｍａｋｅ_ｈｌ_ｃｏｄｅ_ｍａｓ．ｔｘｔ　がありません。"));
}

TEST_F(DialogOfTheMenu, LastStepOfAStartIsNotRepeated) {
    fill_in(save_and_leave);
    press();
    const std::vector<std::string> lines = kit.trace_lines();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Public Sub Main2_bas_2()"), 1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "Public Sub Main2_bas()"), 1);
}

TEST_F(DialogOfTheMenu, FolderOfTheMarksStaysAsTheStartHasSetIt) {
    fill_in(save_and_leave);
    press();
    EXPECT_EQ(program().paths.qsl_dir, "C:\\veldrana\\\\qsl_dir\\");
}

TEST_F(DialogOfTheMenu, OpenLogCanStillBeConverted) {
    kit.put_text("C:\\log\\x.all", sample_all_log);
    kit.open("C:\\log\\x.all");
    ASSERT_TRUE(screen.cmdStart.enabled);
    fill_in(save_and_leave);
    press();
    EXPECT_TRUE(screen.cmdStart.enabled);
    EXPECT_EQ(program().log.in_name, "C:\\log\\x.all");
    EXPECT_EQ(screen.lblInfo.caption.get(), "");
}

TEST_F(DialogOfTheMenu, AnotherLogBookIsTakenUp) {
    fill_in([](frmConfig& form) {
        form.txtHamlog_hdb.text = "D:\\radio\\Club.hdb";
        save_and_leave(form);
    });
    press();
    EXPECT_EQ(program().hdb_name, "Club.hdb");
    EXPECT_EQ(screen.Option01.buttons.get().at(0).caption, "新 Club.hdb");
    EXPECT_EQ(program().paths.drive_path, "D:\\");
}

TEST_F(DialogOfTheMenu, AnotherOperatorIsTakenUp) {
    fill_in([](frmConfig& form) {
        form.txtMyCalls.text = "7n1zzz";
        form.txtPassWords.text = "1234";
        save_and_leave(form);
    });
    press();
    EXPECT_EQ(screen.lblMyCalls.caption.get(), "7N1ZZZ");
    EXPECT_EQ(screen.lblPassWord.caption.get(), "****");
}

TEST_F(DialogOfTheMenu, MastersThatCanBeUsedNowAreTakenUp) {
    ASSERT_FALSE(screen.Check03.enabled);
    ASSERT_FALSE(screen.Check14.enabled);
    kit.put_text("C:\\mas\\name_mas.txt", "x\r\nx\r\n");
    kit.put_text("C:\\mas\\qth_mas.txt", "x\r\nx\r\n");
    for (const char digit : std::string_view("0123456789")) {
        kit.put_text(std::string("C:\\mas\\yubin_m") + digit + ".mas", "x\r\n");
    }
    fill_in([this](frmConfig& form) {
        form.chkNo_name.value = false;
        kit.person.files = {"C:\\mas\\name_mas.txt", "C:\\mas\\qth_mas.txt"};
        form.cmdName_mas.press();
        form.chkNo_qth.value = false;
        form.cmdQth_mas.press();
        form.chkNo_yubin.value = false;
        kit.person.folders = {"C:\\mas"};
        form.cmdYubin_mas.press();
        save_and_leave(form);
    });
    press();
    EXPECT_EQ(program().ended(), std::nullopt);
    EXPECT_TRUE(screen.Check03.enabled);
    EXPECT_TRUE(screen.cmdCount.enabled);
    EXPECT_TRUE(screen.Check14.enabled);
    EXPECT_FALSE(screen.lblNo_qth_mas.visible);
    EXPECT_TRUE(is_enabled(screen.Option02, 3));
    // What the QTH master gives waits for its own option.
    EXPECT_FALSE(screen.Check4.enabled);
    screen.Check14.value = true;
    EXPECT_TRUE(screen.Check4.enabled);
    EXPECT_THAT(titles(), Contains("　　qth_mas.txt　の使用が可能です"));
    EXPECT_EQ(stored_entry("yubin_mas_dir"), "C:\\mas\\");
}

// The switch of the master is the run's, its path is the file's.
TEST_F(DialogOfTheMenu, TickThatIsNotSavedLastsForTheRun) {
    fill_in([](frmConfig& form) {
        form.chkNo_qth.value = false;
        form.txtQth_mas.text = "C:\\mas\\qth_mas.txt";
        form.cmdOK.press();
    });
    press();
    EXPECT_TRUE(screen.Check14.enabled);
    EXPECT_EQ(environment().qth_mas_dir, unused);
    EXPECT_EQ(stored_entry("qth_mas_dir"), unused);
    fill_in([](frmConfig& form) {
        EXPECT_TRUE(form.chkNo_qth.value);
        form.cmdOK.press();
    });
    press();
    EXPECT_FALSE(screen.Check14.enabled);
}

TEST_F(DialogOfTheMenu, PostalFilesThatAreMissingAreTold) {
    fill_in([](frmConfig& form) {
        form.chkNo_yubin.value = false;
        form.txtYubin_mas.text = "C:\\none\\";
        save_and_leave(form);
    });
    press();
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::refused);
    EXPECT_THAT(titles(), Contains("　　エラー　：　必要ファイルがありません。"));
}

TEST_F(DialogOfTheMenu, WhatIsTypedAndNotSavedLastsForTheRun) {
    fill_in([](frmConfig& form) {
        form.txtMyCalls.text = "JA1ZZY";
        form.Text1.text = "K";
        form.cmdOK.press();
    });
    press();
    EXPECT_EQ(environment().MyCalls, "JA1ZZY");
    EXPECT_EQ(environment().No_QSL_moji, "K");
    EXPECT_EQ(screen.lblMyCalls.caption.get(), "JA1ZZY");
    EXPECT_EQ(stored_entry("MyCalls"), "JA1ZZZ");
    EXPECT_EQ(stored_entry("No_QSL_moji"), "N");
}

TEST_F(DialogOfTheMenu, EndButtonEndsTheProgramAtOnce) {
    kit.memory.put("C:\\semp_s.csv", "x");
    fill_in([](frmConfig& form) { form.cmdEnd.press(); });
    press();
    EXPECT_EQ(program().ended(), ProgramEnd::Cause::orderly);
    EXPECT_TRUE(kit.memory.file_exists("C:\\semp_s.csv"));
}

TEST_F(DialogOfTheMenu, ClosedOtherwiseNothingIsTakenUp) {
    fill_in([](frmConfig& form) {
        form.txtHamlog_hdb.text = "D:\\radio\\Club.hdb";
        form.window.visible = false;
    });
    press();
    EXPECT_EQ(program().hdb_name, "Hamlog.hdb");
    EXPECT_EQ(program().start.reached, Start::main_screen);
    EXPECT_THAT(kit.trace_lines(), Not(Contains("Public Sub Main2_bas()")));
}

}  // namespace
}  // namespace veldrana
