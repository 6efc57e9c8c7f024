// The start of the built batch program on folders in every state: new, half set, old, edited by
// hand.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/code_page_932.h"
#include "tests/app/program_kit.h"
#include "tests/doubles/batch_process.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class BatchStart : public testing::Test {
  protected:
    BatchStart() {
        fs::create_directories(home / "mas_mst");
        write_bytes(home / "mas_mst" / "contest_name.csv", to_code_page(ready_contest_list));
        write_bytes(log, to_code_page(sample_all_log));
    }

    ProcessResult convert(std::vector<std::string> arguments = {}) {
        arguments.insert(arguments.begin(),
                         {"--drive", "C=" + scratch.path().string(), "--home", home.string()});
        arguments.insert(arguments.end(), {"convert", log.string()});
        return run_batch(arguments);
    }

    fs::path file(std::string_view name) const { return home / name; }
    std::string text_of(std::string_view name) const {
        return from_code_page(read_bytes(file(name)));
    }
    void put_text(std::string_view name, std::string_view text) {
        write_bytes(file(name), to_code_page(text));
    }
    void put_environment() { put_text("Veldrana_cfg.ini", ready_environment); }
    // A folder whose options have come to the main screen before.
    void make_ready() {
        put_environment();
        ASSERT_EQ(convert().status, 1);
        ASSERT_EQ(convert().status, 0);
    }
    // Gives a key that stands in the file another value.
    void change(std::string_view name, std::string_view key, std::string_view value) {
        std::string text = text_of(name);
        const std::string head = "\r\n" + std::string(key) + "=";
        const std::size_t line = text.find(head);
        ASSERT_NE(line, std::string::npos) << key;
        const std::size_t from = line + head.size();
        text.replace(from, text.find("\r\n", from) - from, value);
        put_text(name, text);
    }

    ScratchFolder scratch;
    fs::path home = scratch.path() / "veldrana";
    fs::path log = scratch.path() / "log" / "x.all";
};

// --- first starts ---

// The folder to begin with, as it lies beside the program's sources.
TEST(SampleFolder, ConvertsFromItsSecondStartOn) {
    const ScratchFolder scratch;
    const fs::path drive = scratch.path() / "radio";
    fs::copy(fs::path(VELDRANA_SOURCE_DIR) / "samples", drive, fs::copy_options::recursive);
    const std::vector<std::string> arguments{
        "--drive",   "C=" + drive.string(),
        "--home",    (drive / "veldrana").string(),
        "--set",     "Option02=2",
        "--set",     "Option04=1",
        "convert",   (drive / "logs/allja_sample.all").string(),
        "--contest", "allja.dat"};
    const ProcessResult first = run_batch(arguments);
    EXPECT_EQ(first.status, 1);
    EXPECT_THAT(first.messages, HasSubstr("初めての起動"));
    EXPECT_FALSE(fs::exists(drive / "logs/allja_sample_hjn.csv"));
    const ProcessResult second = run_batch(arguments);
    EXPECT_EQ(second.status, 0) << second.messages;
    EXPECT_THAT(second.results, testing::StartsWith(" 今 回 の処理数\t340\n"));
    EXPECT_THAT(from_code_page(read_bytes(drive / "logs/allja_sample_hjn.csv")),
                HasSubstr("\"104\""));
}

TEST_F(BatchStart, OnAnEmptyFolderNamesTheEntriesToBeSet) {
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 1);
    EXPECT_EQ(ended.results, "");
    for (const char* const key : {"zlog_dat_dir", "name_mas_dir", "hamlog_hdb_dir",
                                  "hamlog_hdb_2_dir", "zlo_dir", "all_dir"}) {
        EXPECT_THAT(ended.messages, HasSubstr(key));
    }
}

// They say from the first that these masters are not used.
TEST_F(BatchStart, OnAnEmptyFolderDoesNotNameTheEntriesThatAreSet) {
    const ProcessResult ended = convert();
    EXPECT_THAT(ended.messages, Not(HasSubstr("qth_mas_dir")));
    EXPECT_THAT(ended.messages, Not(HasSubstr("yubin_mas_dir")));
}

TEST_F(BatchStart, OnAnEmptyFolderWritesTheOptionsAndConvertsNothing) {
    convert();
    EXPECT_THAT(text_of("Veldrana_new.ini"), HasSubstr("restart=restart\r\n"));
    EXPECT_FALSE(fs::exists(log.parent_path() / "x_hjn.csv"));
    EXPECT_FALSE(fs::exists(log.parent_path() / "zlog_1.txt"));
}

TEST_F(BatchStart, OnAnEmptyFolderIsRefusedTheSecondTimeToo) {
    convert();
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("hamlog_hdb_dir"));
}

TEST_F(BatchStart, FirstWithAFilledEnvironmentIsRefused) {
    put_environment();
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, Not(IsEmpty()));
    EXPECT_EQ(ended.results, "");
}

TEST_F(BatchStart, SecondWithAFilledEnvironmentConverts) {
    put_environment();
    convert();
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(ended.results, HasSubstr(" 今 回 の処理数\t2\n"));
    EXPECT_TRUE(fs::exists(log.parent_path() / "x_hjn.csv"));
}

// --- entries and versions ---

TEST_F(BatchStart, AnEmptiedEntryIsNamedAlone) {
    make_ready();
    change("Veldrana_cfg.ini", "zlo_dir", "");
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("zlo_dir"));
    EXPECT_THAT(ended.messages, Not(HasSubstr("all_dir")));
    EXPECT_EQ(ended.results, "");
}

TEST_F(BatchStart, AnEmptiedEntryThatIsFilledAgainIsForgotten) {
    make_ready();
    change("Veldrana_cfg.ini", "zlo_dir", "");
    EXPECT_EQ(convert().status, 1);
    change("Veldrana_cfg.ini", "zlo_dir", "C:\\log\\");
    EXPECT_EQ(convert().status, 0);
}

TEST_F(BatchStart, AnOldVersionIsRefused) {
    make_ready();
    change("Veldrana_cfg.ini", "version", "4.10");
    put_text("Veldrana_posi.ini", "[Position_Veldrana]\r\nLeft=1\r\n");
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("4.10"));
    EXPECT_EQ(text_of("Veldrana_posi.ini"), "[Config]\r\nversion=5.30\r\n\r\n");
}

TEST_F(BatchStart, AnOldVersionIsRefusedAgainUntilItIsRenewed) {
    make_ready();
    change("Veldrana_cfg.ini", "version", "5.08");
    EXPECT_EQ(convert().status, 1);
    EXPECT_EQ(convert().status, 1);
    change("Veldrana_cfg.ini", "version", "5.09");
    EXPECT_EQ(convert().status, 0);
}

TEST_F(BatchStart, AMissingCallSignIsToldAndConverts) {
    make_ready();
    change("Veldrana_cfg.ini", "MyCalls", "");
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0);
    EXPECT_THAT(ended.messages, HasSubstr("　　コールサイン、パスワードの設定が必要！\n"));
}

// --- options ---

TEST_F(BatchStart, ASettingIsKeptForTheNextStart) {
    make_ready();
    ASSERT_EQ(convert({"--set", "Check06=1", "--set", "txtQSL_Q=B"}).status, 0);
    EXPECT_THAT(text_of("Veldrana_new.ini"), HasSubstr("Check06=1\r\n"));
    fs::remove(log.parent_path() / "x.dup");
    fs::remove(log.parent_path() / "x_hjn.csv");
    ASSERT_EQ(convert().status, 0);
    EXPECT_TRUE(fs::exists(log.parent_path() / "x.dup"));
    EXPECT_THAT(read_bytes(log.parent_path() / "x_hjn.csv"), HasSubstr("\"B* \""));
}

TEST_F(BatchStart, ASettingForOneRunIsNotKept) {
    make_ready();
    ASSERT_EQ(convert({"--set", "txtOp_name=JA1ZZY"}).status, 0);
    const ProcessResult ended = convert();
    EXPECT_THAT(ended.results, HasSubstr(" 今 回 の処理数\t2\n"));
}

TEST_F(BatchStart, EveryRunIsCounted) {
    make_ready();
    EXPECT_THAT(text_of("Veldrana_new.ini"), HasSubstr("exe_rec=1\r\n"));
    convert();
    EXPECT_THAT(text_of("Veldrana_new.ini"), HasSubstr("exe_rec=2\r\n"));
}

TEST_F(BatchStart, TenthRunAsksForAReport) {
    make_ready();
    change("Veldrana_new.ini", "exe_rec", "9");
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0);
    EXPECT_THAT(ended.messages, HasSubstr("たまには使用した感想などのレポート下さいね！"));
}

// --- option files edited by hand ---

// Nothing in it says that a start has been completed; the start writes it anew, with blank options.
TEST_F(BatchStart, AnEmptyOptionFileIsRefusedOnceAndThenTakenAsBlankOptions) {
    put_environment();
    write_bytes(file("Veldrana_new.ini"), "");
    EXPECT_EQ(convert().status, 1);
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(ended.results, HasSubstr(" 今 回 の処理数\t2\n"));
}

TEST_F(BatchStart, AnEmptyEnvironmentFileIsRefused) {
    make_ready();
    write_bytes(file("Veldrana_cfg.ini"), "");
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 1);
    // Read as empty: nothing stands in for what the file does not hold.
    EXPECT_THAT(ended.messages, HasSubstr("qth_mas_dir"));
    EXPECT_THAT(ended.messages, HasSubstr("all_dir"));
}

TEST_F(BatchStart, FilesWithUnixLineEndsAreRead) {
    make_ready();
    change("Veldrana_new.ini", "Check06", "1");
    for (const char* const name : {"Veldrana_new.ini", "Veldrana_cfg.ini"}) {
        write_bytes(file(name), replace_all(read_bytes(file(name)), "\r\n", "\n"));
    }
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_TRUE(fs::exists(log.parent_path() / "x.dup"));
}

TEST_F(BatchStart, FilesWithAByteOrderMarkAreRead) {
    make_ready();
    change("Veldrana_new.ini", "Check06", "1");
    for (const char* const name : {"Veldrana_new.ini", "Veldrana_cfg.ini"}) {
        write_bytes(file(name), "\xEF\xBB\xBF" + read_bytes(file(name)));
    }
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_TRUE(fs::exists(log.parent_path() / "x.dup"));
}

// It cannot be written, so each start is a first one.
TEST_F(BatchStart, AFolderInPlaceOfTheOptionsIsRefusedEveryTime) {
    put_environment();
    fs::create_directory(file("Veldrana_new.ini"));
    EXPECT_EQ(convert().status, 1);
    EXPECT_EQ(convert().status, 1);
    EXPECT_TRUE(fs::is_directory(file("Veldrana_new.ini")));
}

TEST_F(BatchStart, AFolderInPlaceOfTheEnvironmentIsRefused) {
    make_ready();
    fs::remove(file("Veldrana_cfg.ini"));
    fs::create_directory(file("Veldrana_cfg.ini"));
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("hamlog_hdb_dir"));
}

TEST_F(BatchStart, AFolderInPlaceOfTheSnapshotIsNoHindrance) {
    make_ready();
    fs::remove(file("Veldrana.ini"));
    fs::create_directory(file("Veldrana.ini"));
    EXPECT_EQ(convert().status, 0);
}

TEST_F(BatchStart, AFolderInPlaceOfThePositionsDoesNotCrash) {
    make_ready();
    fs::remove(file("Veldrana_posi.ini"));
    fs::create_directory(file("Veldrana_posi.ini"));
    EXPECT_THAT(convert().status, AnyOf(0, 3));
}

// A read gives 127 bytes at most, and the next write stores what was read.
TEST_F(BatchStart, ALongValueIsCutAndStoredSo) {
    make_ready();
    change("Veldrana_new.ini", "QSL_Q", std::string(300, 'B'));
    change("Veldrana_new.ini", "Check_dat", std::string(300, '7'));
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(text_of("Veldrana_new.ini"),
                HasSubstr("\r\nCheck_dat=" + std::string(127, '7') + "\r\n"));
}

TEST_F(BatchStart, ALongEntryOfTheEnvironmentDoesNoHarm) {
    make_ready();
    change("Veldrana_cfg.ini", "all_dir", "C:\\" + std::string(297, 'x'));
    const ProcessResult ended = convert();
    EXPECT_EQ(ended.status, 0) << ended.messages;
}

TEST_F(BatchStart, ALongListOfSlotsDoesNoHarm) {
    make_ready();
    std::string slots;
    for (int i = 0; i < 60; ++i) {
        slots += "memo,";
    }
    change("Veldrana_new.ini", "Rmks2_cfg", slots);
    EXPECT_EQ(convert().status, 0);
}

TEST_F(BatchStart, BytesThatAreNoTextDoNoHarm) {
    make_ready();
    std::string bytes = read_bytes(file("Veldrana_new.ini"));
    bytes += std::string("\x00\xFF\x81=\x81\r\n[\r\n=\r\n[[]]\r\n", 17);
    write_bytes(file("Veldrana_new.ini"), bytes);
    EXPECT_EQ(convert().status, 0);
}

TEST_F(BatchStart, NumbersOfNoButtonDoNotCrash) {
    make_ready();
    change("Veldrana_new.ini", "Option02", "77");
    change("Veldrana_new.ini", "Option09", "-3");
    EXPECT_THAT(convert().status, AnyOf(0, 3));
}

}  // namespace
}  // namespace veldrana
