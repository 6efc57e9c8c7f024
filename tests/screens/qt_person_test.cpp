// Boxes and file dialogs as the toolkit shows them.
#include "screens/qt_person.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

class QtPersonTest : public testing::Test {
  protected:
    // Looks at the dialog that comes next, and answers it.
    template <class Dialog>
    void on_next(std::function<void(Dialog&)> act) {
        QTimer::singleShot(20, [act] {
            auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
            ASSERT_NE(dialog, nullptr);
            act(*dialog);
        });
    }

    static void accept(QFileDialog& dialog, const QString& file) {
        dialog.findChild<QLineEdit*>("fileNameEdit")->setText(dialog.directory().filePath(file));
        QMetaObject::invokeMethod(&dialog, "accept");
    }

    ScratchFolder scratch;
    HostDisk disk{{{'C', scratch.path()}}, scratch.path()};
    Pump pump;
    QtPerson person{disk, pump};
};

TEST_F(QtPersonTest, BoxHasItsTitleTextAndIcon) {
    const std::vector<std::pair<Icon, QMessageBox::Icon>> icons{
        {Icon::none, QMessageBox::NoIcon},
        {Icon::information, QMessageBox::Information},
        {Icon::warning, QMessageBox::Warning},
        {Icon::critical, QMessageBox::Critical}};
    for (const auto& [told, shown] : icons) {
        on_next<QMessageBox>([shown = shown](QMessageBox& box) {
            EXPECT_EQ(box.windowTitle(), "件数");
            EXPECT_EQ(box.text(), "一行目\n\n<b>二行目</b>");
            EXPECT_EQ(box.textFormat(), Qt::PlainText);
            EXPECT_EQ(box.icon(), shown);
            EXPECT_EQ(box.buttons().size(), 1);
            EXPECT_EQ(box.button(QMessageBox::Ok)->text(), "ＯＫ");
            box.accept();
        });
        EXPECT_EQ(person.show({.title = "　件数", .text = "一行目\n\n<b>二行目</b>", .icon = told}),
                  Answer::ok);
    }
}

TEST_F(QtPersonTest, QuestionOffersRetryFirstAndTellsTheAnswer) {
    for (const auto& [pressed, answer] :
         {std::pair{QMessageBox::Retry, Answer::retry}, {QMessageBox::Cancel, Answer::cancel}}) {
        on_next<QMessageBox>([pressed = pressed](QMessageBox& box) {
            EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Retry));
            EXPECT_EQ(box.button(QMessageBox::Retry)->text(), "再 試 行");
            EXPECT_EQ(box.button(QMessageBox::Cancel)->text(), "キャンセル");
            box.button(pressed)->click();
        });
        EXPECT_EQ(person.show({.title = "", .text = "", .buttons = Buttons::retry_cancel}), answer);
    }
}

TEST_F(QtPersonTest, QuestionThatIsClosedIsCancelled) {
    on_next<QMessageBox>([](QMessageBox& box) { box.close(); });
    EXPECT_EQ(person.show({.title = "", .text = "", .buttons = Buttons::retry_cancel}),
              Answer::cancel);
}

TEST_F(QtPersonTest, FiltersStandAsTheyAreWritten) {
    EXPECT_THAT(name_filters("ﾃｷｽﾄﾌｧｲﾙ ( *.txt , *.all )|*.txt;*.all"),
                ElementsAre("ﾃｷｽﾄﾌｧｲﾙ ( *.txt , *.all ) (*.txt *.TXT *.all *.ALL)"));
    EXPECT_THAT(name_filters("手動用(*.dat;*.mas)|*.dat;*.mas|"),
                ElementsAre("手動用(*.dat;*.mas) (*.dat *.DAT *.mas *.MAS)"));
    EXPECT_THAT(name_filters("A|*.a|B|*.b"), ElementsAre("A (*.a *.A)", "B (*.b *.B)"));
    EXPECT_THAT(name_filters(""), testing::IsEmpty());
}

TEST_F(QtPersonTest, FileIsChosenInItsFolderAndToldAsThePathOfADrive) {
    write_bytes(scratch.path() / "logs/表.all", "x");
    on_next<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.windowTitle(), "C:\\LOGS\\　の ＊．ａｌｌ");
        EXPECT_EQ(dialog.directory().dirName(), "logs");
        EXPECT_TRUE(dialog.testOption(QFileDialog::HideNameFilterDetails));
        EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
        accept(dialog, "表.all");
    });
    EXPECT_EQ(person.choose_file({.title = "　C:\\LOGS\\　の ＊．ａｌｌ",
                                  .filter = "ALL|*.all",
                                  .folder = "c:\\logs\\",
                                  .must_exist = true}),
              "C:\\logs\\表.all");
}

TEST_F(QtPersonTest, DialogThatIsCancelledChoosesNothing) {
    on_next<QFileDialog>([](QFileDialog& dialog) { dialog.reject(); });
    EXPECT_EQ(person.choose_file({.title = "", .filter = "ALL|*.all"}), "");
}

// Where a dialog names no folder, it begins where the last one ended.
TEST_F(QtPersonTest, DialogWithoutAFolderStartsWhereTheLastOneWas) {
    write_bytes(scratch.path() / "logs/x.all", "x");
    on_next<QFileDialog>([](QFileDialog& dialog) { accept(dialog, "x.all"); });
    person.choose_file({.title = "", .filter = "ALL|*.all", .folder = "C:\\logs\\"});
    on_next<QFileDialog>([](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().dirName(), "logs");
        dialog.reject();
    });
    person.choose_file({.title = "", .filter = "ALL|*.all"});
}

}  // namespace
}  // namespace veldrana
