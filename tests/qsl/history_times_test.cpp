#include "qsl/history_times.h"

#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/code_page_932.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

using namespace std::string_literals;

const std::string folder = "C:\\veldrana\\";
const std::string path = folder + "Veldrana_fdt.ini";

HistoryTimes of_QSO(const std::string& time) {
    HistoryTimes times;
    times.QSO = time;
    return times;
}

class HistoryTimesTest : public testing::Test {
  protected:
    HistoryTimesTest() { disk_.put_folder("C:\\veldrana"); }

    MemoryDisk disk_;
};

TEST_F(HistoryTimesTest, EachTimeHasASectionOfItsOwn) {
    write_history_times(disk_, folder,
                        {.QSO = "2026/05/04 13:02:09",
                         .QSL_sent = "2026/05/03 12:00:00",
                         .QSL_rcvd = "2026/05/02 11:00:00"});
    EXPECT_EQ(disk_.bytes(path),
              "[Veldrana_fdt.ini]\r\nversion=5.30\r\n"
              "[Sansyou_files QSO]\r\n"
              "hamlog_hdb_dir_FileDateTime_QSO=2026/05/04 13:02:09\r\n"
              "[Sansyou_files QSL_sent]\r\n"
              "hamlog_hdb_dir_FileDateTime_QSL_sent=2026/05/03 12:00:00\r\n"
              "[Sansyou_files QSL_rcvd]\r\n"
              "hamlog_hdb_dir_FileDateTime_QSL_rcvd=2026/05/02 11:00:00\r\n");
}

TEST_F(HistoryTimesTest, TimesThatAreNotKnownAreWrittenEmpty) {
    write_history_times(disk_, folder, {});
    EXPECT_EQ(disk_.bytes(path),
              "[Veldrana_fdt.ini]\r\nversion=5.30\r\n"
              "[Sansyou_files QSO]\r\nhamlog_hdb_dir_FileDateTime_QSO=\r\n"
              "[Sansyou_files QSL_sent]\r\nhamlog_hdb_dir_FileDateTime_QSL_sent=\r\n"
              "[Sansyou_files QSL_rcvd]\r\nhamlog_hdb_dir_FileDateTime_QSL_rcvd=\r\n");
}

TEST_F(HistoryTimesTest, TimesAreReadBack) {
    write_history_times(disk_, folder, {.QSO = "a", .QSL_sent = "b", .QSL_rcvd = "c"});
    const HistoryTimes times = read_history_times(disk_, folder);
    EXPECT_EQ(times.QSO, "a");
    EXPECT_EQ(times.QSL_sent, "b");
    EXPECT_EQ(times.QSL_rcvd, "c");
}

TEST_F(HistoryTimesTest, TimesAreReadOnlyFromTheirOwnSections) {
    disk_.put(path,
              "[Veldrana_fdt.ini]\r\nhamlog_hdb_dir_FileDateTime_QSO=x\r\n"
              "[Sansyou_files QSO]\r\nhamlog_hdb_dir_FileDateTime_QSL_sent=x\r\n");
    const HistoryTimes times = read_history_times(disk_, folder);
    EXPECT_EQ(times.QSO, "");
    EXPECT_EQ(times.QSL_sent, "");
}

TEST_F(HistoryTimesTest, WithoutAFileNoTimeIsKnown) {
    const HistoryTimes times = read_history_times(disk_, folder);
    EXPECT_EQ(times.QSO, "");
    EXPECT_EQ(times.QSL_sent, "");
    EXPECT_EQ(times.QSL_rcvd, "");
}

TEST_F(HistoryTimesTest, AMissingKeyIsATimeThatIsNotKnown) {
    disk_.put(path, "[Sansyou_files QSL_sent]\r\nhamlog_hdb_dir_FileDateTime_QSL_sent=b\r\n");
    const HistoryTimes times = read_history_times(disk_, folder);
    EXPECT_EQ(times.QSO, "");
    EXPECT_EQ(times.QSL_sent, "b");
    EXPECT_EQ(times.QSL_rcvd, "");
}

TEST_F(HistoryTimesTest, ATimeEndsAtItsFirstNul) {
    disk_.put(path, "[Sansyou_files QSO]\r\nhamlog_hdb_dir_FileDateTime_QSO=2026\0x\r\n"s);
    EXPECT_EQ(read_history_times(disk_, folder).QSO, "2026");
}

TEST_F(HistoryTimesTest, ATimeIsCutAt127Bytes) {
    disk_.put(path, "[Sansyou_files QSO]\r\nhamlog_hdb_dir_FileDateTime_QSO=" +
                        std::string(200, 'x') + "\r\n");
    EXPECT_EQ(read_history_times(disk_, folder).QSO, std::string(127, 'x'));
}

TEST_F(HistoryTimesTest, AWriteReplacesTheTimes) {
    write_history_times(disk_, folder, {.QSO = "a", .QSL_sent = "b", .QSL_rcvd = "c"});
    write_history_times(disk_, folder, {.QSO = "d", .QSL_sent = "", .QSL_rcvd = "c"});
    const HistoryTimes times = read_history_times(disk_, folder);
    EXPECT_EQ(times.QSO, "d");
    EXPECT_EQ(times.QSL_sent, "");
    EXPECT_EQ(times.QSL_rcvd, "c");
}

TEST_F(HistoryTimesTest, AWriteRenewsTheVersion) {
    disk_.put(path, "[Veldrana_fdt.ini]\r\nversion=5.09\r\n");
    write_history_times(disk_, folder, {});
    EXPECT_THAT(disk_.bytes(path), testing::StartsWith("[Veldrana_fdt.ini]\r\nversion=5.30\r\n"));
}

TEST_F(HistoryTimesTest, AWriteKeepsWhatItDoesNotKnow) {
    disk_.put(path, "[Mine]\r\na=1\r\n[Sansyou_files QSO]\r\nb=2\r\n");
    write_history_times(disk_, folder, {});
    EXPECT_THAT(disk_.bytes(path),
                testing::StartsWith("[Mine]\r\na=1\r\n[Sansyou_files QSO]\r\nb=2\r\n"));
}

TEST_F(HistoryTimesTest, AFileAsNoProgramWritesItDoesNoHarm) {
    for (const std::string text : {"", "[", "=\r\n", "[Sansyou_files QSO\r\nx"}) {
        disk_.put(path, text);
        EXPECT_EQ(read_history_times(disk_, folder).QSO, "") << text;
    }
}

TEST_F(HistoryTimesTest, LineFeedsAloneAndAByteOrderMarkDoNoHarm) {
    disk_.put(path, "\xEF\xBB\xBF[Sansyou_files QSO]\nhamlog_hdb_dir_FileDateTime_QSO=a\n");
    EXPECT_EQ(read_history_times(disk_, folder).QSO, "a");
}

TEST_F(HistoryTimesTest, AFolderInPlaceOfTheFileDoesNoHarm) {
    disk_.put_folder(path);
    write_history_times(disk_, folder, of_QSO("a"));
    EXPECT_EQ(read_history_times(disk_, folder).QSO, "");
    EXPECT_TRUE(disk_.folder_exists(path));
}

TEST_F(HistoryTimesTest, AWriteThatFailsIsNotNoticedAndLeavesTheFileWhole) {
    write_history_times(disk_, folder, of_QSO("old"));
    const std::string before = disk_.bytes(path);
    FailingDisk counted(disk_);
    write_history_times(counted, folder, of_QSO("old"));
    ASSERT_EQ(disk_.bytes(path), before);
    for (std::size_t operation = 1; operation <= counted.operations(); ++operation) {
        FailingDisk failing(disk_);
        failing.fail_at(operation, Failure::disk_full);
        write_history_times(failing, folder, of_QSO("new"));
        EXPECT_EQ(disk_.bytes(path), before) << "operation " << operation;
        disk_.put(path, before);
    }
}

}  // namespace
}  // namespace veldrana
