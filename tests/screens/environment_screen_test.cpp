// The environment dialog: where things are, and who the operator is.
#include <QAction>
#include <QCheckBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include "platform/code_page_932.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* cfg = "Veldrana_cfg.ini";
constexpr const char* not_in_use = "使用しない";

struct Entry {
    const char* label;
    const char* caption;
    const char* field;
    const char* browse;
    const char* key;
    const char* filter;  // patterns of the file dialog; "" for a folder
    const char* file;    // to be chosen, below drive C:
    const char* taken;   // what the field then holds
};

const Entry entries[] = {
    {"lblZlog_dat", "フォルダ　：　 個別　＊．DAT ﾌｧｲﾙ", "txtZlog_dat", "cmdZlog_dat",
     "zlog_dat_dir", "zLog 用 個別 DAT ﾌｧｲﾙ (*.dat) (*.dat *.DAT)", "other/a.dat", "C:\\other\\"},
    {"lblName_mas", "フォルダ　：　NAME_MAS．TXT", "txtName_mas", "cmdName_mas", "name_mas_dir",
     "name_mas.txt (name_mas.txt;name_mas?.txt) (name_mas.txt NAME_MAS.TXT name_mas?.txt "
     "NAME_MAS?.TXT)",
     "other/name_mas.txt", "C:\\other\\"},
    {"lblQth_mas", "ファイル　：　  QTH_MAS．TXT", "txtQth_mas", "cmdQth_mas", "qth_mas_dir",
     "qth_mas.txt (qth_mas.txt) (qth_mas.txt QTH_MAS.TXT)", "other/qth_mas.txt",
     "C:\\other\\qth_mas.txt"},
    {"lblYUbin_mas", "フォルダ　：　YUBIN_M？．MAS", "txtYubin_mas", "cmdYubin_mas",
     "yubin_mas_dir", "", "other", "C:\\other\\"},
    {"lblHamlog_hdb", "ファイル　：　ハムログの ＊．hｄｂ　常用", "txtHamlog_hdb", "cmdHamlog_hdb",
     "hamlog_hdb_dir", "Hamlog の *.hdb ﾌｧｲﾙ 常用 (*.hdb) (*.hdb *.HDB)", "other/a.hdb",
     "C:\\other\\a.hdb"},
    {"lblHamlog_hdb_2", "ファイル　：　ハムログの ＊．hｄｂ　印刷用", "txtHamlog_hdb_2",
     "cmdHamlog_hdb_2", "hamlog_hdb_2_dir", "Hamlog の *.hdb ﾌｧｲﾙ 印刷用 (*.hdb) (*.hdb *.HDB)",
     "other/a.hdb", "C:\\other\\a.hdb"},
    {"lblZloDir", "フォルダ　：　 拡張子 ＺＬＯ ファイル", "txtZloDir", "cmdGetZloDir", "zlo_dir",
     "zLog の ﾊﾞｲﾅﾘｰ･ﾌｧｲﾙ (*.zlo) (*.zlo *.ZLO)", "other/a.zlo", "C:\\other\\"},
    {"lblAllDir", "フォルダ　：　 拡張子 ALL , TXT ﾌｧｲﾙ", "txtAllDir", "cmdGetAllDir", "all_dir",
     "zLog の ﾃｷｽﾄ･ﾌｧｲﾙ (*.all;*.txt) (*.all *.ALL *.txt *.TXT)", "other/a.all", "C:\\other\\"},
};

// A master that a station may do without.
struct Master {
    const char* box;
    const char* label;
    const char* field;
    const char* browse;
    const char* key;
    const char* folder;  // as it stands in the samples
};

const Master masters[] = {
    {"chkNo_name", "lblName_mas", "txtName_mas", "cmdName_mas", "name_mas_dir", "C:\\mas\\"},
    {"chkNo_qth", "lblQth_mas", "txtQth_mas", "cmdQth_mas", "qth_mas_dir", "C:\\mas\\qth_mas.txt"},
    {"chkNo_yubin", "lblYUbin_mas", "txtYubin_mas", "cmdYubin_mas", "yubin_mas_dir", "C:\\yubin\\"},
};

class EnvironmentKit {
  protected:
    static QLineEdit& field(QDialog& dialog, const std::string& name) {
        return DesktopKit::part<QLineEdit>(dialog, name);
    }
    static QLabel& label(QDialog& dialog, const std::string& name) {
        return DesktopKit::part<QLabel>(dialog, name);
    }
    static std::string text(QDialog& dialog, const std::string& name) {
        return DesktopKit::text_of(DesktopKit::part<QWidget>(dialog, name));
    }
    void type(QDialog& dialog, const std::string& name, const std::string& text) {
        kit.type(field(dialog, name), text);
    }
    void press(QDialog& dialog, const std::string& name) {
        kit.click(DesktopKit::part<QAbstractButton>(dialog, name));
    }
    static bool can(QDialog& dialog, const std::string& name) {
        return DesktopKit::part<QWidget>(dialog, name).isEnabled();
    }
    static void expect_good(QDialog& dialog) {
        EXPECT_TRUE(can(dialog, "cmdOK"));
        EXPECT_TRUE(can(dialog, "cmdSave"));
        EXPECT_EQ(text(dialog, "lblMsg"), "作成可能");
        EXPECT_TRUE(is_blue(label(dialog, "lblMsg")));
        EXPECT_EQ(text(dialog, "lblMsg2"),
                  "「保存」を押して下さい。 「ＯＫ」でメイン画面に戻ります。");
    }
    static void expect_bad(QDialog& dialog) {
        EXPECT_FALSE(can(dialog, "cmdOK"));
        EXPECT_FALSE(can(dialog, "cmdSave"));
        EXPECT_EQ(text(dialog, "lblMsg"), "設定不良、か空白あり");
        EXPECT_TRUE(is_red(label(dialog, "lblMsg")));
        EXPECT_EQ(text(dialog, "lblMsg2"),
                  "存在しない、又は空白項目がある場合には保存出来ません！");
    }
    // A dialog that cannot be left by its key ends the program.
    void leave(QDialog& dialog) {
        if (dialog.isVisible() && !ended_) {
            press(dialog, can(dialog, "cmdOK") ? "cmdOK" : "cmdEnd");
        }
    }
    // The dialog goes only when its own loop comes to an end.
    void end_program(QDialog& dialog) {
        press(dialog, "cmdEnd");
        ended_ = true;
    }

    DesktopKit kit;

  private:
    bool ended_ = false;
};

class EnvironmentScreen : public EnvironmentKit, public testing::Test {
  protected:
    void SetUp() override {
        for (const Entry& entry : entries) {
            if (*entry.filter != '\0') {
                write_bytes(kit.drive() / entry.file, "x\r\n");
            }
        }
        ASSERT_TRUE(kit.start_first_time());
    }
    void use(const std::function<void(QDialog&)>& act) {
        bool came = false;
        kit.on_dialog([&, act](QDialog& dialog) {
            came = true;
            kit.seen.clear();
            act(dialog);
            leave(dialog);
        });
        kit.widget<QAction>("mnuConfig").trigger();
        ASSERT_TRUE(came);
    }
};

// --- as it opens ---

TEST_F(EnvironmentScreen, SettingsThatAreThereAreEdited) {
    use([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "［ 環境設定 ］ Veldrana_cfg ．ini を編集・作成します。");
        for (const Entry& entry : entries) {
            EXPECT_EQ(text(dialog, entry.label), entry.caption);
            EXPECT_TRUE(is_black(label(dialog, entry.label))) << entry.label;
            EXPECT_EQ(text(dialog, entry.browse), "参照");
        }
        EXPECT_EQ(text(dialog, "txtZlog_dat"), "C:\\zlog\\");
        EXPECT_EQ(text(dialog, "txtQth_mas"), "C:\\mas\\qth_mas.txt");
        EXPECT_EQ(text(dialog, "txtHamlog_hdb"), "C:\\hamlog\\Hamlog.hdb");
        EXPECT_EQ(text(dialog, "txtMyCalls"), "JA1ZZZ");
        EXPECT_EQ(text(dialog, "Text1"), "N");
        for (const Master& master : masters) {
            EXPECT_EQ(text(dialog, master.box), "無用");
            EXPECT_EQ(DesktopKit::part<QCheckBox>(dialog, master.box).toolTip(),
                      "使用する予定が無い時は [ レ点マーク ] を付けて下さい。");
            EXPECT_FALSE(DesktopKit::part<QCheckBox>(dialog, master.box).isChecked());
        }
        EXPECT_EQ(text(dialog, "lblMsg1"),
                  "ファイル　の場合には　指定ファイルを指定する。\n"
                  "フォルダ　の場合には　グループのどれか一つを指定する。");
        EXPECT_EQ(text(dialog, "Label3"), "２０１０年９月よりパスワードは不要になっています。");
        expect_good(dialog);
    });
}

TEST_F(EnvironmentScreen, WindowIsNotMadeSmallerThanItsParts) {
    use([](QDialog& dialog) {
        dialog.resize(100, 100);
        // Twips, of which a pixel has fifteen.
        EXPECT_GE(dialog.width(), 10485 / 15);
        EXPECT_GE(dialog.height(), 8300 / 15);
    });
}

TEST_F(EnvironmentScreen, OnlyItsButtonsLeaveIt) {
    use([](QDialog& dialog) {
        QTest::keyClick(&dialog, Qt::Key_Escape);
        EXPECT_TRUE(dialog.isVisible());
        dialog.close();
        EXPECT_TRUE(dialog.isVisible());
    });
}

TEST_F(EnvironmentScreen, ProgramIsEndedFromIt) {
    use([this](QDialog& dialog) { end_program(dialog); });
    EXPECT_TRUE(kit.program().ended());
}

class FirstStart : public EnvironmentKit, public testing::Test {
  protected:
    void start(const std::function<void(QDialog&)>& act) {
        kit.on_dialog([this, act](QDialog& dialog) {
            act(dialog);
            leave(dialog);
        });
        kit.accept_box();  // the hint that name masters are there
        EXPECT_TRUE(kit.start());
    }
};

TEST_F(FirstStart, AsksForWhatIsMissing) {
    kit.store(cfg, "zlo_dir", "");
    start([this](QDialog& dialog) {
        EXPECT_FALSE(can(dialog, "cmdOK"));
        EXPECT_FALSE(can(dialog, "cmdSave"));
        EXPECT_EQ(text(dialog, "lblMsg"), "作成必要");
        EXPECT_TRUE(is_red(label(dialog, "lblMsg")));
        EXPECT_TRUE(is_red(label(dialog, "lblZloDir")));
        type(dialog, "txtZloDir", "C:\\logs\\");
        expect_good(dialog);
        press(dialog, "cmdSave");
    });
    EXPECT_EQ(kit.stored(cfg, "zlo_dir"), "C:\\logs\\");
}

class OtherStarts : public EnvironmentScreen {};

TEST_F(OtherStarts, SettingsAreMadeAnewWithoutTheOptions) {
    fs::remove(kit.home() / "Veldrana_new.ini");
    fs::remove(kit.home() / cfg);
    use([this](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle().toStdString(),
                  "［ 環境設定 ］ Veldrana_cfg ．ini を新規作成します。");
        EXPECT_EQ(kit.stored(cfg, "zlo_dir"), "C:\\logs\\");
        // Both are to be looked at again.
        EXPECT_TRUE(is_red(label(dialog, "lblMyCalls")));
        EXPECT_TRUE(is_red(label(dialog, "lblPassWords")));
        EXPECT_TRUE(is_black(label(dialog, "lblZloDir")));
        EXPECT_TRUE(can(dialog, "cmdOK"));
        EXPECT_TRUE(can(dialog, "cmdSave"));
        EXPECT_EQ(text(dialog, "lblMsg"), "作成可能");
    });
}

TEST_F(OtherStarts, SettingsOfAnOldVersionHaveToBeSaved) {
    kit.end();
    kit.store(cfg, "version", "5.08");
    kit.on_dialog([this](QDialog& dialog) {
        EXPECT_TRUE(can(dialog, "cmdSave"));
        type(dialog, "txtZloDir", "C:\\hamlog\\");
        EXPECT_FALSE(can(dialog, "cmdOK"));
        EXPECT_TRUE(can(dialog, "cmdSave"));
        EXPECT_EQ(text(dialog, "lblMsg"), "nwe ver です");
        EXPECT_TRUE(is_red(label(dialog, "lblMsg")));
        EXPECT_EQ(text(dialog, "lblMsg2"),
                  "必ず「保存」を押して下さい。　「ＯＫ」でメイン画面に戻ります。");
        // A path that is bad keeps nobody from saving then.
        type(dialog, "txtAllDir", "");
        EXPECT_TRUE(is_red(label(dialog, "lblAllDir")));
        EXPECT_TRUE(can(dialog, "cmdSave"));
        type(dialog, "txtAllDir", "C:\\logs\\");
        press(dialog, "cmdSave");
        EXPECT_EQ(text(dialog, "lblMsg"), "保存完了");
        EXPECT_TRUE(can(dialog, "cmdOK"));
        type(dialog, "txtAllDir", "");
        expect_bad(dialog);
        type(dialog, "txtAllDir", "C:\\logs\\");
        expect_good(dialog);
        press(dialog, "cmdOK");
    });
    kit.accept_box();  // the hint that name masters are there
    EXPECT_TRUE(kit.start());
    EXPECT_EQ(kit.stored(cfg, "zlo_dir"), "C:\\hamlog\\");
}

// --- paths ---

class PathEntries : public EnvironmentScreen, public testing::WithParamInterface<Entry> {};
INSTANTIATE_TEST_SUITE_P(Entries, PathEntries, testing::ValuesIn(entries),
                         [](const auto& entry) { return std::string(entry.param.field); });

TEST_F(EnvironmentScreen, BlankPathIsRedAndCannotBeSaved) {
    use([this](QDialog& dialog) {
        for (const Entry& entry : entries) {
            const std::string before = text(dialog, entry.field);
            for (const char* const blank : {"", "  "}) {
                type(dialog, entry.field, blank);
                expect_bad(dialog);
                for (const Entry& any : entries) {
                    const bool is_blank = any.field == entry.field;
                    EXPECT_EQ(is_red(label(dialog, any.label)), is_blank) << any.label;
                    EXPECT_EQ(is_black(label(dialog, any.label)), !is_blank) << any.label;
                }
            }
            type(dialog, entry.field, before);
            EXPECT_TRUE(is_black(label(dialog, entry.label))) << entry.label;
            expect_good(dialog);
        }
    });
}

TEST_P(PathEntries, IsBrowsedFor) {
    use([this](QDialog& dialog) {
        kit.choose(kit.drive() / GetParam().file);
        press(dialog, GetParam().browse);
        ASSERT_THAT(kit.seen, SizeIs(1));
        if (*GetParam().filter != '\0') {
            EXPECT_THAT(kit.seen[0].filters, ElementsAre(GetParam().filter));
        } else {
            EXPECT_EQ(kit.seen[0].title, "Yubin_m*.mas のフォルダを選択してください");
            EXPECT_EQ(kit.seen[0].folder, QDir::currentPath().toStdString());
        }
        EXPECT_EQ(text(dialog, GetParam().field), GetParam().taken);
        EXPECT_TRUE(is_black(label(dialog, GetParam().label)));
        press(dialog, "cmdSave");
        EXPECT_EQ(text(dialog, "lblMsg"), "保存完了");
        EXPECT_EQ(text(dialog, "lblMsg2"), "「ＯＫ」でメイン画面に戻ります。");
        EXPECT_EQ(kit.stored(cfg, GetParam().key), GetParam().taken);
        end_program(dialog);  // the masters are not in the other folder
    });
}

TEST_F(EnvironmentScreen, PathsStayWhenNothingIsChosen) {
    use([this](QDialog& dialog) {
        for (const Entry& entry : entries) {
            const std::string before = text(dialog, entry.field);
            kit.on_dialog([](QDialog& files) { files.reject(); });
            press(dialog, entry.browse);
            EXPECT_EQ(text(dialog, entry.field), before);
            expect_good(dialog);
        }
    });
}

TEST_F(EnvironmentScreen, FileThatIsNotThereCannotBeChosen) {
    use([this](QDialog& dialog) {
        kit.on_dialog([this](QDialog& files) {
            DesktopKit::part<QLineEdit>(files, "fileNameEdit")
                .setText(QString::fromStdString((kit.drive() / "none.hdb").string()));
            kit.on_dialog([](QDialog& warning) { dynamic_cast<QMessageBox&>(warning).accept(); });
            QMetaObject::invokeMethod(&files, "accept");
            EXPECT_TRUE(files.isVisible());
            files.reject();
        });
        press(dialog, "cmdHamlog_hdb");
        EXPECT_EQ(text(dialog, "txtHamlog_hdb"), "C:\\hamlog\\Hamlog.hdb");
    });
}

TEST_F(EnvironmentScreen, LongPathIsCut) {
    // 8 and 61 and 61 bytes, and the file.
    const std::string deep = "logs/" + std::string(60, 'a') + "/" + std::string(60, 'b') + "/";
    const std::string upper = "C:\\logs\\" + std::string(60, 'a') + "\\";
    const std::string whole = upper + std::string(60, 'b') + "\\";
    for (const char* const name : {"x.hdb", "x.zlo", "qth_mas.txt"}) {
        write_bytes(kit.drive() / deep / name, "x\r\n");
    }
    use([&](QDialog& dialog) {
        kit.choose(kit.drive() / deep / "x.zlo");
        press(dialog, "cmdGetZloDir");
        EXPECT_EQ(text(dialog, "txtZloDir"), upper);
        EXPECT_TRUE(is_black(label(dialog, "lblZloDir"))) << "only looked at whether it is blank";
        kit.choose(kit.drive() / deep / "qth_mas.txt");
        press(dialog, "cmdQth_mas");
        EXPECT_EQ(text(dialog, "txtQth_mas"), whole + "qth_mas.txt");
        expect_good(dialog);
        kit.choose(kit.drive() / deep / "x.hdb");
        press(dialog, "cmdHamlog_hdb");
        EXPECT_EQ(text(dialog, "txtHamlog_hdb"), (whole + "x.hdb").substr(0, 120));
        EXPECT_TRUE(is_red(label(dialog, "lblHamlog_hdb")));
        expect_bad(dialog);
    });
}

TEST_F(EnvironmentScreen, LogBookNeedsAFolderAndAFileThatIsThere) {
    fs::copy_file(kit.drive() / "hamlog" / "Hamlog.hdb", kit.home() / "Hamlog.hdb");
    fs::copy_file(kit.drive() / "hamlog" / "Hamlog.hdb", "Hamlog.hdb");
    const std::pair<const char*, const char*> log_books[] = {
        {"lblHamlog_hdb", "txtHamlog_hdb"}, {"lblHamlog_hdb_2", "txtHamlog_hdb_2"}};
    use([&](QDialog& dialog) {
        for (const auto& [title, name] : log_books) {
            for (const char* const bad : {"Hamlog.hdb", "C:\\hamlog\\none.hdb"}) {
                type(dialog, name, bad);
                EXPECT_TRUE(is_red(label(dialog, title))) << bad;
                expect_bad(dialog);
            }
            type(dialog, name, "C:\\hamlog\\Hamlog.hdb");
            EXPECT_TRUE(is_black(label(dialog, title)));
            expect_good(dialog);
        }
    });
}

// --- masters of no use ---

class UnusedMasters : public EnvironmentScreen, public testing::WithParamInterface<Master> {};
INSTANTIATE_TEST_SUITE_P(Masters, UnusedMasters, testing::ValuesIn(masters),
                         [](const auto& master) { return std::string(master.param.box); });

TEST_P(UnusedMasters, WordStandsForThePath) {
    use([this](QDialog& dialog) {
        press(dialog, GetParam().box);
        EXPECT_EQ(text(dialog, GetParam().field), not_in_use);
        EXPECT_FALSE(can(dialog, GetParam().field));
        EXPECT_FALSE(can(dialog, GetParam().browse));
        EXPECT_TRUE(is_black(label(dialog, GetParam().label)));
        expect_good(dialog);
        press(dialog, "cmdSave");
        EXPECT_EQ(kit.stored(cfg, GetParam().key), not_in_use);
        if (GetParam().key == std::string("yubin_mas_dir")) {
            kit.accept_box();  // the masters are looked at again, and told
        }
    });
    EXPECT_FALSE(kit.program().ended());
    use([this](QDialog& dialog) {
        EXPECT_EQ(text(dialog, GetParam().field), not_in_use);
        EXPECT_TRUE(DesktopKit::part<QCheckBox>(dialog, GetParam().box).isChecked());
        EXPECT_FALSE(can(dialog, GetParam().field));
        EXPECT_FALSE(can(dialog, GetParam().browse));
        expect_good(dialog);
    });
}

TEST_P(UnusedMasters, PathComesBack) {
    use([this](QDialog& dialog) {
        press(dialog, GetParam().box);
        press(dialog, GetParam().box);
        EXPECT_EQ(text(dialog, GetParam().field), GetParam().folder);
        EXPECT_TRUE(can(dialog, GetParam().field));
        EXPECT_TRUE(can(dialog, GetParam().browse));
        end_program(dialog);  // without the hints
    });
}

TEST_P(UnusedMasters, BlankPathIsGoodWhileItIsOfNoUse) {
    use([this](QDialog& dialog) {
        type(dialog, GetParam().field, "");
        expect_bad(dialog);
        press(dialog, GetParam().box);
        EXPECT_TRUE(is_black(label(dialog, GetParam().label)));
        expect_good(dialog);
    });
}

TEST_F(EnvironmentScreen, MainWindowFollowsTheMastersInUse) {
    use([this](QDialog& dialog) {
        for (const Master& master : masters) {
            press(dialog, master.box);
        }
        press(dialog, "cmdSave");
    });
    for (const char* const name : {"Check03", "cmdCount", "Check14", "Option02(3)"}) {
        EXPECT_FALSE(kit.widget<QWidget>(name).isEnabled()) << name;
    }
    EXPECT_FALSE(kit.widget<QLabel>("lblNo_qth_mas").isHidden());
}

TEST_F(EnvironmentScreen, MastersThatCanBeUsedAgainAreTold) {
    use([this](QDialog& dialog) {
        press(dialog, "chkNo_name");
        press(dialog, "chkNo_name");
        kit.accept_box();
        press(dialog, "cmdOK");
        EXPECT_FALSE(dialog.isVisible());
    });
    ASSERT_THAT(kit.seen, SizeIs(1));
    EXPECT_EQ(kit.seen[0].title, "name_mas.txt　の使用が可能です");
    use([this](QDialog& dialog) {
        press(dialog, "chkNo_qth");
        press(dialog, "chkNo_qth");
        kit.accept_box();
        press(dialog, "cmdOK");
    });
    ASSERT_THAT(kit.seen, SizeIs(1));
    EXPECT_EQ(kit.seen[0].title, "qth_mas.txt　の使用が可能です");
    kit.click("Check03");
    kit.click("Check14");
    use([this](QDialog& dialog) {
        for (const char* const box : {"chkNo_name", "chkNo_name", "chkNo_qth", "chkNo_qth"}) {
            press(dialog, box);
        }
        press(dialog, "cmdOK");
    });
    EXPECT_THAT(kit.seen, IsEmpty()) << "they are used already";
}

// --- the operator ---

TEST_F(EnvironmentScreen, PromptIsNoCallSignAndNoPassword) {
    const std::pair<const char*, const char*> told[] = {{"lblMyCalls", "txtMyCalls"},
                                                        {"lblPassWords", "txtPassWords"}};
    use([&](QDialog& dialog) {
        for (const auto& [title, name] : told) {
            for (const char* const prompt : {"入力必要", "JA1入", "力", "J必", "要る", "", "  "}) {
                type(dialog, name, "JA1ZZY");
                ASSERT_TRUE(is_black(label(dialog, title))) << title;
                type(dialog, name, prompt);
                EXPECT_TRUE(is_red(label(dialog, title))) << title << prompt;
                expect_good(dialog);  // neither keeps anybody from saving
            }
            type(dialog, name, "JA1ZZY");
        }
    });
}

TEST_F(EnvironmentScreen, ForeignCallSignKeepsTheColourThatStands) {
    use([this](QDialog& dialog) {
        const auto expect_colour_behind = [&](const char* call, bool red) {
            type(dialog, "txtMyCalls", call);
            EXPECT_EQ(is_red(label(dialog, "lblMyCalls")), red) << call;
            EXPECT_EQ(is_black(label(dialog, "lblMyCalls")), !red) << call;
        };
        expect_colour_behind("JA1ZZY", false);
        expect_colour_behind("W1ZZZ", false);
        expect_colour_behind("", true);
        expect_colour_behind("W1ZZZ", true);
        expect_colour_behind("7K1ZZZ", false);
        expect_colour_behind("", true);
        expect_colour_behind("8J1ZZZ", false);
    });
}

TEST_F(EnvironmentScreen, CallSignIsOfNarrowCapitals) {
    use([this](QDialog& dialog) {
        type(dialog, "txtMyCalls", "ｊａ１ｚｚｙ／１");
        EXPECT_EQ(text(dialog, "txtMyCalls"), "JA1ZZY/1");
        QLineEdit& call = field(dialog, "txtMyCalls");
        type(dialog, "txtMyCalls", "");
        QTest::keyClicks(&call, "ja1zzx");
        EXPECT_EQ(text(dialog, "txtMyCalls"), "JA1ZZX");
        call.setCursorPosition(0);
        QTest::keyClicks(&call, "j");
        EXPECT_EQ(text(dialog, "txtMyCalls"), "JJA1ZZX");
        EXPECT_EQ(call.cursorPosition(), 7);
    });
}

TEST_F(EnvironmentScreen, PasswordIsDotsUntilItIsToBeSeen) {
    use([this](QDialog& dialog) {
        const QLineEdit& password = field(dialog, "txtPassWords");
        EXPECT_EQ(password.text(), "sample");
        EXPECT_EQ(password.echoMode(), QLineEdit::Password);
        EXPECT_NE(password.displayText(), "sample");
        press(dialog, "chkShow_PassWords");
        EXPECT_EQ(password.displayText(), "sample");
        type(dialog, "txtPassWords", "another");
        EXPECT_EQ(password.displayText(), "another");
        press(dialog, "chkShow_PassWords");
        EXPECT_EQ(password.echoMode(), QLineEdit::Password);
        EXPECT_EQ(password.text(), "another");
    });
}

TEST_F(EnvironmentScreen, OperatorThatIsNotSavedIsForThisRunAlone) {
    use([this](QDialog& dialog) {
        type(dialog, "txtMyCalls", "JA1ZZY");
        type(dialog, "txtPassWords", " abc ");
        press(dialog, "cmdOK");
    });
    EXPECT_EQ(kit.text("lblMyCalls"), "JA1ZZY");
    EXPECT_EQ(kit.text("lblPassWord").size(), 3U) << "a mark for each letter";
    EXPECT_EQ(kit.stored(cfg, "MyCalls"), "JA1ZZZ");
    EXPECT_EQ(kit.stored(cfg, "PassWords"), "sample");
}

TEST_F(EnvironmentScreen, OperatorIsSaved) {
    use([this](QDialog& dialog) {
        type(dialog, "txtMyCalls", "ja1zzy");
        type(dialog, "txtPassWords", " abc ");
        press(dialog, "cmdSave");
    });
    EXPECT_EQ(kit.stored(cfg, "MyCalls"), "JA1ZZY");
    EXPECT_EQ(kit.stored(cfg, "PassWords"), "abc");
}

TEST_F(EnvironmentScreen, LetterForNoCardIsTheFirstNarrowOne) {
    use([this](QDialog& dialog) {
        type(dialog, "Text1", "Ｘy");
        EXPECT_EQ(text(dialog, "Text1"), "Xy");
        press(dialog, "cmdSave");
        EXPECT_EQ(kit.stored(cfg, "No_QSL_moji"), "X");
        EXPECT_EQ(kit.stored(cfg, "No_QSL_moji_set_flag"), "1");
        type(dialog, "Text1", "");
        press(dialog, "cmdSave");
    });
    use([](QDialog& dialog) { EXPECT_EQ(text(dialog, "Text1"), " ") << "a blank is a letter"; });
}

}  // namespace
}  // namespace veldrana
