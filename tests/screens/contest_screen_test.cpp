// The dialog in which a person tells the contest of a log.
#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include "app/program_end.h"
#include "platform/code_page_932.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* missing_file = "選択された個別ＤＡＴが設定フォルダに無し！";
constexpr const char* letters = "Rcvd に英字あり！　選択は不適切です。";
constexpr const char* no_letters = "Rcvd に英字なし！　選択は不適切です。";
constexpr const char* letters_go = "Rcvd の英字を削除処理して良いですか？";
constexpr const char* no_code = "code 取得は不可！";
constexpr const char* again = "再度選択も可能です。";

class ContestScreen : public DesktopTest {
  protected:
    void SetUp() override {
        DesktopTest::SetUp();
        kit.click("Option02(2)");
    }

    // The contest list anew; every row is "settings file,data file,name,flag,number,number".
    void put_list(const std::vector<std::string>& rows) {
        std::string text = "番号,CFG,DAT,名称,フラグ,1,2,備考\r\n";
        for (std::size_t i = 0; i < rows.size(); ++i) {
            text += std::to_string(i + 1) + "," + rows[i] + ",\r\n";
        }
        write_bytes(kit.home() / "mas_mst" / "contest_name.csv", to_code_page(text));
    }
    void put_dat(const std::string& name) { write_bytes(kit.drive() / "zlog" / name, "x\r\n"); }
    // A log with these numbers received.
    fs::path put_log(const std::string& name, const std::vector<std::string>& numbers) {
        std::string text = "zLog for Windows \r\n";
        for (const std::string& number : numbers) {
            std::string padded = number;
            padded.resize(8, ' ');
            text += "2025/04/26 21:11 JH8XVS       599 11M     599 " + padded +
                    "-     -     7     CW   1  \r\n";
        }
        write_bytes(kit.log(name), text);
        return kit.log(name);
    }

    // The dialog on the chosen log.
    void use(const std::function<void(QDialog&)>& act) {
        bool came = false;
        kit.on_dialog([&](QDialog& dialog) {
            came = true;
            act(dialog);
            if (dialog.isVisible()) {
                press(dialog, "cmdBack");
            }
        });
        kit.widget<QAction>("mnuOpenDat_semi").trigger();
        ASSERT_TRUE(came);
    }
    static void press(QDialog& dialog, const char* button) {
        QTest::mouseClick(&DesktopKit::part<QPushButton>(dialog, button), Qt::LeftButton);
    }
    static QListWidget& list(QDialog& dialog, const char* name = "List1") {
        return DesktopKit::part<QListWidget>(dialog, name);
    }
    static std::vector<std::string> rows(QListWidget& shown) {
        std::vector<std::string> texts;
        for (int row = 0; row < shown.count(); ++row) {
            texts.push_back(shown.item(row)->text().toStdString());
        }
        return texts;
    }
    static int selected(QDialog& dialog) {
        const auto chosen = list(dialog).selectedItems();
        return chosen.isEmpty() ? -1 : list(dialog).row(chosen.front());
    }
    // With the mouse.
    static void choose(QDialog& dialog, int row) {
        QListWidget& shown = list(dialog);
        QListWidgetItem* const item = shown.item(row);
        shown.scrollToItem(item);
        QTest::mouseClick(shown.viewport(), Qt::LeftButton, Qt::NoModifier,
                          QPoint(10, shown.visualItemRect(item).center().y()));
        ASSERT_EQ(selected(dialog), row);
    }
    static QLabel& label(QDialog& dialog, const char* name) {
        return DesktopKit::part<QLabel>(dialog, name);
    }
    static std::string text(QDialog& dialog, const char* name) {
        return DesktopKit::text_of(DesktopKit::part<QWidget>(dialog, name));
    }
    static bool can(QDialog& dialog, const char* button) {
        return DesktopKit::part<QPushButton>(dialog, button).isEnabled();
    }
    static void expect_verdict(QDialog& dialog, const std::string& verdict, bool ok) {
        EXPECT_EQ(text(dialog, "lblMsg1"), verdict);
        EXPECT_TRUE(is_red(label(dialog, "lblMsg1")));
        EXPECT_EQ(can(dialog, "cmdOK"), ok) << verdict;
    }
    static void expect_no_verdict(QDialog& dialog) {
        EXPECT_EQ(text(dialog, "lblMsg1"), "");
        EXPECT_EQ(text(dialog, "lblMsg2"), "");
        EXPECT_TRUE(is_black(label(dialog, "lblMsg1")));
        EXPECT_TRUE(is_black(label(dialog, "lblMsg2")));
        EXPECT_TRUE(can(dialog, "cmdOK"));
    }
};

// --- what the log shows ---

TEST_F(ContestScreen, ReceivedNumbersOfATextLogAreShownWithTheirShapes) {
    kit.open("mnuOpen", put_log("some.all", {"1234", "12AB"}));
    use([](QDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "コンテスト 選択 ・ 情報　の取得");
        EXPECT_EQ(text(dialog, "lblIn_name"), "C:\\logs\\some.all");
        EXPECT_THAT(rows(list(dialog, "List2")), ElementsAre("RST Rcvd", "599 1234", "599 12AB"));
        EXPECT_EQ(text(dialog, "lblC_key"), "1 : 数字  ,  12 : 数字 + 英字  ,  ");
    });
}

TEST_F(ContestScreen, BinaryLogHasNoSampleAndNoWarning) {
    kit.open("mnuOpen_z", kit.log("zlo_sample.zlo"));
    put_list({"a.cfg,allja.dat,一,11,,", "b.cfg,acag.dat,二,21,,", "c.cfg,field.dat,三,31,,"});
    use([](QDialog& dialog) {
        EXPECT_THAT(rows(list(dialog, "List2")), ElementsAre("RST Rcvd"));
        EXPECT_EQ(text(dialog, "lblC_key"), "");
        for (int row = 0; row < 3; ++row) {
            choose(dialog, row);
            expect_no_verdict(dialog);
        }
    });
}

TEST_F(ContestScreen, RowsOfTheListShowTheContestsInColumns) {
    put_list({"a.cfg,allja.dat,ALL JA コンテスト,31,RST＋番号,電力"});
    kit.open("mnuOpen", put_log("some.all", {"1234"}));
    use([](QDialog& dialog) {
        EXPECT_THAT(rows(list(dialog)),
                    ElementsAre("1   allja.dat     ALL JA コンテスト" + std::string(21, ' ') +
                                " 31 RST＋番号" + std::string(43, ' ') + "電力"));
    });
}

TEST_F(ContestScreen, ChosenContestIsDescribed) {
    put_list({"a.cfg,allja.dat,一,11,,", "k.cfg,kcj.mas,KCJ,22,略称,TK など"});
    kit.open("mnuOpen", put_log("some.all", {"TK"}));
    use([](QDialog& dialog) {
        choose(dialog, 1);
        EXPECT_EQ(text(dialog, "lblFile_no"), "2");
        EXPECT_EQ(text(dialog, "lblCon_name"), "KCJ");
        EXPECT_EQ(text(dialog, "lblDat_name"), "kcj.mas");
        EXPECT_EQ(text(dialog, "lblCon_no_1"), "略称");
        EXPECT_EQ(text(dialog, "lblCon_no_2"), "TK など");
        EXPECT_EQ(text(dialog, "lblCode_flag"), "22");
        EXPECT_EQ(text(dialog, "lblCode_type"), "県、市等の略号使用");
        EXPECT_EQ(text(dialog, "lblFile_Syubetu"), "MAS");
    });
}

// --- verdicts ---

class Verdicts : public ContestScreen {
  protected:
    void SetUp() override {
        ContestScreen::SetUp();
        put_dat("no.dat");
        put_list({"a.cfg,no.dat,零,00,,", "b.cfg,allja.dat,一,11,,", "c.cfg,allja.dat,二,21,,",
                  "d.cfg,allja.dat,三,31,,", "e.cfg,allja.dat,七,71,,", "f.cfg,gone.dat,無,11,,"});
    }
};

TEST_F(Verdicts, OfALogWithDigitsAlone) {
    kit.open("mnuOpen", put_log("some.all", {"1234", "25"}));
    use([](QDialog& dialog) {
        choose(dialog, 2);
        expect_verdict(dialog, no_letters, true);
        EXPECT_EQ(text(dialog, "lblMsg2"), again);
        for (const int row : {1, 3, 4}) {
            choose(dialog, row);
            expect_no_verdict(dialog);
        }
    });
}

TEST_F(Verdicts, OfALogWithDigitsAndLetters) {
    kit.open("mnuOpen", put_log("some.all", {"25M"}));
    use([](QDialog& dialog) {
        choose(dialog, 1);
        expect_verdict(dialog, letters, true);
        choose(dialog, 3);
        expect_verdict(dialog, letters_go, true);
        EXPECT_EQ(text(dialog, "lblMsg2"), again);
        for (const int row : {2, 4}) {
            choose(dialog, row);
            expect_no_verdict(dialog);
        }
    });
}

TEST_F(Verdicts, OfALogWithLettersAlone) {
    kit.open("mnuOpen", put_log("some.all", {"TK"}));
    use([](QDialog& dialog) {
        choose(dialog, 1);
        expect_verdict(dialog, letters, true);
        for (const int row : {2, 3, 4}) {
            choose(dialog, row);
            expect_no_verdict(dialog);
        }
    });
}

TEST_F(Verdicts, ContestWithoutCodesCannotBeTaken) {
    kit.open("mnuOpen", put_log("some.all", {"25M"}));
    use([](QDialog& dialog) {
        choose(dialog, 0);
        expect_verdict(dialog, no_code, false);
        EXPECT_EQ(text(dialog, "lblMsg2"), again);
        choose(dialog, 4);
        expect_no_verdict(dialog);
    });
}

TEST_F(Verdicts, ContestWithoutItsFileCannotBeTaken) {
    kit.open("mnuOpen", put_log("some.all", {"1234"}));
    use([](QDialog& dialog) {
        choose(dialog, 5);
        expect_verdict(dialog, missing_file, false);
        choose(dialog, 1);
        expect_no_verdict(dialog);
    });
}

TEST_F(Verdicts, ContestIsTakenInSpiteOfAWarning) {
    kit.open("mnuOpen", put_log("some.all", {"1234"}));
    use([](QDialog& dialog) {
        choose(dialog, 2);
        expect_verdict(dialog, no_letters, true);
        press(dialog, "cmdOK");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(kit.text("lblDatName"), "c:\\zlog\\allja.dat");
    EXPECT_TRUE(is_blue(kit.widget<QWidget>("lblDatName")));
    EXPECT_TRUE(kit.widget<QPushButton>("cmdStart").isEnabled());
    EXPECT_TRUE(kit.widget<QAction>("変換").isEnabled());
    EXPECT_TRUE(kit.widget<QAction>("dat").isEnabled());
    EXPECT_FALSE(fs::exists(kit.home() / "con_aa_name.txt"));
    EXPECT_FALSE(fs::exists(kit.home() / "con_aaa_name.txt"));
}

TEST_F(Verdicts, DialogThatIsLeftByBackChangesNothing) {
    kit.open("mnuOpen", put_log("some.all", {"1234"}));
    const std::string before = kit.text("lblDatName");
    use([](QDialog& dialog) {
        choose(dialog, 1);
        press(dialog, "cmdBack");
        EXPECT_FALSE(dialog.isVisible());
    });
    EXPECT_EQ(kit.text("lblDatName"), before);
    EXPECT_FALSE(kit.widget<QPushButton>("cmdStart").isEnabled());
    EXPECT_FALSE(kit.widget<QAction>("変換").isEnabled());
}

// --- search ---

TEST_F(ContestScreen, SearchSelectsTheFirstRowWithItsText) {
    put_list({"a.cfg,allja.dat,一番,11,,", "b.cfg,acag.dat,全市全郡,11,,",
              "c.cfg,field.dat,全市の二番,11,,"});
    kit.open("mnuOpen", put_log("some.all", {"1234"}));
    use([this](QDialog& dialog) {
        auto& field = DesktopKit::part<QLineEdit>(dialog, "Text1");
        EXPECT_EQ(field.toolTip(),
                  "検索する dat , mas mst ファイル名かコンテスト名の略称を入力する。");
        EXPECT_FALSE(can(dialog, "cmdSearch"));
        EXPECT_FALSE(can(dialog, "cmdCLR"));
        kit.type(field, "  ");
        EXPECT_FALSE(can(dialog, "cmdSearch"));
        kit.type(field, " 全市 ");
        EXPECT_EQ(field.text(), "全市");
        EXPECT_TRUE(can(dialog, "cmdSearch"));
        EXPECT_TRUE(can(dialog, "cmdCLR"));
        press(dialog, "cmdSearch");
        EXPECT_EQ(selected(dialog), 1);
        EXPECT_EQ(text(dialog, "lblFile_no"), "2");
        kit.type(field, "FIELD");
        press(dialog, "cmdSearch");
        EXPECT_EQ(selected(dialog), 1) << "capitals are told apart";
        kit.type(field, "field");
        QTest::keyClick(&field, Qt::Key_Return);
        EXPECT_EQ(selected(dialog), 2);
        EXPECT_TRUE(dialog.isVisible());
        press(dialog, "cmdCLR");
        EXPECT_EQ(field.text(), "");
        EXPECT_FALSE(can(dialog, "cmdSearch"));
        EXPECT_FALSE(can(dialog, "cmdCLR"));
    });
}

// --- preselection ---

TEST_F(ContestScreen, NameOfTheTextOfABinaryLogIsMatchedWithoutItsEnding) {
    put_list({"a.cfg,one.dat,一,11,,", "b.cfg,z2a.dat,二,11,,", "c.cfg,field.dat,三,11,,"});
    kit.open("mnuOpen", put_log("field_z2a.all", {"1234"}));
    use([](QDialog& dialog) { EXPECT_EQ(selected(dialog), 2); });
}

TEST_F(ContestScreen, DataFileCountsMoreThanTheNameOfTheContest) {
    put_list({"a.cfg,one.dat,一,11,,", "b.cfg,other.dat,FIELD,11,,", "c.cfg,field.dat,三,11,,"});
    kit.open("mnuOpen", put_log("field.all", {"1234"}));
    use([](QDialog& dialog) { EXPECT_EQ(selected(dialog), 2); });
}

TEST_F(ContestScreen, NameOfTheContestIsMatchedWithoutItsModes) {
    put_list({"a.cfg,one.dat,一,11,,", "b.cfg,two.dat,二,11,,",
              "c.cfg,three.dat,FIELDコンテストＣＷ（冬）,11,,"});
    kit.open("mnuOpen", put_log("field.all", {"1234"}));
    use([](QDialog& dialog) { EXPECT_EQ(selected(dialog), 2); });
}

TEST_F(ContestScreen, FirstRowIsNeverPreselected) {
    put_list({"a.cfg,field.dat,FIELD,11,,", "b.cfg,two.dat,二,11,,"});
    kit.open("mnuOpen", put_log("field.all", {"1234"}));
    use([](QDialog& dialog) {
        EXPECT_EQ(selected(dialog), -1);
        list(dialog).setFocus();
        EXPECT_EQ(selected(dialog), -1);
        EXPECT_EQ(text(dialog, "lblFile_no"), "");
    });
}

class LongLists : public ContestScreen {
  protected:
    static std::vector<std::string> many(int rows) {
        std::vector<std::string> list;
        for (int row = 0; row < rows; ++row) {
            const std::string number = std::to_string(row);
            list.push_back("q" + number + ".cfg,w" + number + "w.dat,Q" + number + "Q,11,,");
        }
        return list;
    }
};

TEST_F(LongLists, SettingsFileWithoutANameHitsAnyLogFromItsRowOn) {
    std::vector<std::string> rows = many(70);
    rows[63] = ",w63w.dat,Q63Q,11,,";
    rows[66] = ",w66w.dat,Q66Q,11,,";
    put_list(rows);
    kit.open("mnuOpen", put_log("field.all", {"1234"}));
    use([](QDialog& dialog) { EXPECT_EQ(selected(dialog), 66); });

    rows[5] = "five.cfg,five.dat,FIELD,11,,";
    put_list(rows);
    use([](QDialog& dialog) { EXPECT_EQ(selected(dialog), 5) << "a name that hits goes before"; });
}

TEST_F(LongLists, HundredAndFiftyContestsAreShown) {
    put_list(many(150));
    kit.open("mnuOpen", put_log("some.all", {"1234"}));
    use([](QDialog& dialog) {
        EXPECT_EQ(list(dialog).count(), 150);
        choose(dialog, 149);
        EXPECT_EQ(text(dialog, "lblFile_no"), "150");
        EXPECT_EQ(text(dialog, "lblDat_name"), "w149w.dat");
    });
}

TEST_F(LongLists, OneContestMoreIsAFailure) {
    put_list(many(151));
    kit.open("mnuOpen", put_log("some.all", {"1234"}));
    kit.seen.clear();
    kit.accept_box();  // the report, and its second box
    kit.accept_box();
    kit.widget<QAction>("mnuOpenDat_semi").trigger();
    ASSERT_THAT(kit.seen, SizeIs(2));
    EXPECT_THAT(kit.seen[0].text, HasSubstr("エラー発生 ：　9"));
    EXPECT_EQ(kit.program().ended(), ProgramEnd::Cause::reported);
}

// --- the ways to it ---

TEST_F(ContestScreen, NothingOpensWithoutALog) {
    for (const char* const name : {"mnuOpenDat_semi", "dat半自", "mnuOpenDat_mnu", "dat手動"}) {
        auto& entry = kit.widget<QAction>(name);
        ASSERT_TRUE(entry.isEnabled()) << name;
        entry.trigger();
        QApplication::processEvents();
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr) << name;
    }
    EXPECT_THAT(kit.seen, IsEmpty());
}

TEST_F(ContestScreen, ManualWayAsksInTheFolderOfTheDataFiles) {
    kit.open("mnuOpen", kit.log("field_sample.txt"));
    kit.seen.clear();
    kit.choose(kit.drive() / "zlog" / "field.dat");
    kit.widget<QAction>("mnuOpenDat_mnu").trigger();
    ASSERT_THAT(kit.seen, SizeIs(1));
    EXPECT_EQ(kit.seen[0].title, "C:\\ZLOG\\　の ＊．ｄａｔ ファイルを  開く ....");
    EXPECT_THAT(
        kit.seen[0].filters,
        ElementsAre(
            "手動用個別ＤＡＴファイル(*.dat;*.mas;*.mst) (*.dat *.DAT *.mas *.MAS *.mst *.MST)"));
    EXPECT_EQ(fs::path(kit.seen[0].folder), kit.drive() / "zlog");
    EXPECT_THAT(kit.text("lblDatName"), EndsWith("field.dat"));
    EXPECT_TRUE(kit.widget<QPushButton>("cmdStart").isEnabled());
}

}  // namespace
}  // namespace veldrana
