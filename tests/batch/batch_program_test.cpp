// The built batch program from outside: what it prints, how it ends, what it leaves.
#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/code_page_932.h"
#include "tests/app/program_kit.h"
#include "tests/doubles/batch_process.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

const std::string ten_counters =
    " 今 回 の処理数\t2\n 複 数 の局の数\t0\n 単 数 の局の数\t2\n 複 ・単の合計数\t2\n"
    " No QSL 局の数\t0\n Name 取得の数\t0\n ＪＡＲＬ登録の数\t0\n ＪＡＲＬ無登録数\t0\n"
    " ＪＡＲＬ無検索数\t0\n Text_data 取得数\t0\n";

class BatchProgram : public testing::Test {
  protected:
    BatchProgram() {
        install();
        write_bytes(log, to_code_page(sample_all_log));
    }

    // A program folder with everything set, as a start before has left it.
    void install() {
        fs::copy(fs::path(VELDRANA_SOURCE_DIR) / "tests/golden/veldrana", home,
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    }

    // The log book's database lies there; its drive is that of the scratch files.
    void set_log_book(const std::string& path) {
        const std::string bytes = read_bytes(home / "Veldrana_cfg.ini");
        write_bytes(
            home / "Veldrana_cfg.ini",
            replace_all(bytes, "hamlog_hdb_dir=C:\\hamlog\\Hamlog.hdb", "hamlog_hdb_dir=" + path));
    }

    ProcessResult run(std::vector<std::string> arguments, RunAs user = RunAs::same_user) {
        arguments.insert(arguments.begin(),
                         {"--drive", "C=" + scratch.path().string(), "--home", home.string()});
        return run_batch(arguments, user);
    }

    std::string trace_log() {
        std::string text;
        for (const fs::directory_entry& entry : fs::directory_iterator(home / "Error_Log")) {
            text += from_code_page(read_bytes(entry.path()));
        }
        return text;
    }

    // Lets an unprivileged user read everything and write nothing.
    void open_for_reading() {
        for (const fs::directory_entry& entry : fs::recursive_directory_iterator(scratch.path())) {
            chmod(entry.path().c_str(), entry.is_directory() ? 0755 : 0644);
        }
        chmod(scratch.path().c_str(), 0755);
    }

    ScratchFolder scratch;
    fs::path home = scratch.path() / "veldrana";
    fs::path log = scratch.path() / "log" / "x.all";
};

TEST_F(BatchProgram, PrintsTheTenCountersAndEndsWith0) {
    const ProcessResult ended = run({"convert", log.string()});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_EQ(ended.results, ten_counters);
    EXPECT_EQ(ended.messages, "");
}

TEST_F(BatchProgram, EndDeletesTheWorkFilesUnlessTheyAreKept) {
    run({"convert", log.string()});
    EXPECT_FALSE(fs::exists(log.parent_path() / "zlog_1.txt"));
    // Options may stand behind the command too.
    run({"convert", log.string(), "--keep-work"});
    EXPECT_TRUE(fs::exists(log.parent_path() / "zlog_1.txt"));
}

TEST_F(BatchProgram, PathsBelowADriveTakeItsLetter) {
    run({"convert", log.string()});
    EXPECT_THAT(trace_log(), HasSubstr("strPath : C:\\veldrana\\\r\n"));
    EXPECT_THAT(trace_log(), HasSubstr("入力ファイル ：C:\\log\\x.all\r\n"));
}

TEST_F(BatchProgram, WithoutADriveEverythingLiesOnZ) {
    set_log_book("Z:\\hamlog\\Hamlog.hdb");
    const ProcessResult ended =
        run_batch({"--home", home.string(), "--keep-work", "convert", log.string()});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(trace_log(), HasSubstr("strPath : Z:\\"));
    EXPECT_TRUE(fs::exists(log.parent_path() / "zlog_1.txt"));
}

TEST_F(BatchProgram, RelativePathsAreTakenFromTheCurrentFolder) {
    const fs::path before = fs::current_path();
    fs::current_path(scratch.path());
    const ProcessResult ended =
        run_batch({"--drive", "C=.", "--home", "veldrana", "--keep-work", "convert", "log/x.all"});
    fs::current_path(before);
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_TRUE(fs::exists(log.parent_path() / "zlog_1.txt"));
    EXPECT_THAT(trace_log(), HasSubstr("入力ファイル ：C:\\log\\x.all\r\n"));
}

TEST_F(BatchProgram, SettingsGoToTheControls) {
    const ProcessResult ended = run({"--set", "txtOp_name=JA1ZZY", "--set", "Check01=0", "--set",
                                     "lblRmks1(2)=OP %", "--keep-work", "convert", log.string()});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_EQ(read_bytes(log.parent_path() / "zlog_1.txt"),
              "\"2025\",\"04\",\"26\",\"2106\",\"JR8YYX/1\",\"59\",\"57\",\"430\",\"FM \","
              "\"JA1ZZY\",\"\",\"\",\"101H\"\r\n");
}

TEST_F(BatchProgram, LogOfAnotherKindIsRefused) {
    write_bytes(log, "something else\r\n");
    const ProcessResult ended = run({"convert", log.string()});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("zlogのﾃｷｽﾄﾌｧｲﾙではありません！"));
    EXPECT_EQ(ended.results, "");
}

TEST_F(BatchProgram, KindThatTheLogIsNotIsRefused) {
    EXPECT_EQ(run({"convert", log.string(), "--kind", "txt"}).status, 1);
    EXPECT_EQ(run({"convert", log.string(), "--kind", "all"}).status, 0);
}

TEST_F(BatchProgram, UsageErrorsEndWith2) {
    const std::vector<std::vector<std::string>> wrong{
        {},
        {"convert"},
        {"no-such-command", log.string()},
        {"--no-such-option", "convert", log.string()},
        {"convert", log.string(), "--kind", "adif"},
        {"--answer", "perhaps", "convert", log.string()},
        {"--drive", "nonsense", "convert", log.string()},
        {"--drive", "D=/no/such/folder", "convert", log.string()},
        {"--set", "Check15", "convert", log.string()},
        {"--set", "NoSuchControl=1", "convert", log.string()},
        {"convert", ""},
        {"--set", "Check15=yes", "convert", log.string()},
        {"--set", "lblRmks1(0)=nothing of that name", "convert", log.string()},
    };
    for (const std::vector<std::string>& arguments : wrong) {
        const ProcessResult ended = run(arguments);
        EXPECT_EQ(ended.status, 2) << testing::PrintToString(arguments);
        EXPECT_THAT(ended.messages, Not(IsEmpty()));
        EXPECT_EQ(ended.results, "");
    }
}

TEST_F(BatchProgram, HelpIsNoError) {
    const ProcessResult ended = run_batch({"--help"});
    EXPECT_EQ(ended.status, 0);
    EXPECT_THAT(ended.results, HasSubstr("--keep-work"));
}

TEST_F(BatchProgram, MissingProgramFolderIsRefused) {
    fs::remove_all(home);
    const ProcessResult ended = run({"convert", log.string()});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr(home.string()));
    EXPECT_FALSE(fs::exists(home));
}

TEST_F(BatchProgram, MissingLogEndsInTheReportWith53) {
    const ProcessResult ended = run({"convert", (log.parent_path() / "missing.all").string()});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, StartsWith("　　エラー発生の為、　終了します！\n"));
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　53\n"));
}

TEST_F(BatchProgram, FolderOfTheLogWithoutWritePermissionEndsInTheReportWith70) {
    open_for_reading();
    fs::create_directories(home / "Error_Log");
    chmod(home.c_str(), 0777);
    chmod((home / "Error_Log").c_str(), 0777);
    if (geteuid() != 0) {
        chmod(log.parent_path().c_str(), 0555);
    }
    const ProcessResult ended = run({"convert", log.string()}, RunAs::unprivileged);
    chmod(log.parent_path().c_str(), 0755);
    EXPECT_EQ(ended.status, 3) << ended.messages;
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　70\n"));
    EXPECT_THAT(trace_log(), HasSubstr("エラー発生 ：　70\r\n"));
}

TEST_F(BatchProgram, ReadOnlyProgramFolderEndsInTheReportWithoutALog) {
    open_for_reading();
    if (geteuid() != 0) {
        chmod(home.c_str(), 0555);
    }
    const ProcessResult ended = run({"convert", log.string()}, RunAs::unprivileged);
    chmod(home.c_str(), 0755);
    EXPECT_EQ(ended.status, 3) << ended.messages;
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　70\n"));
    EXPECT_FALSE(fs::exists(home / "Temp_Files"));
    EXPECT_FALSE(fs::exists(home / "Error_Log"));
}

TEST_F(BatchProgram, FullDiskEndsInTheReportWith61) {
    // What is written to this device finds no room.
    fs::create_symlink("/dev/full", log.parent_path() / "zlog_1.txt");
    const ProcessResult ended = run({"convert", log.string()});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　61\n"));
    EXPECT_THAT(trace_log(), HasSubstr("エラー発生 ：　61\r\n"));
    EXPECT_EQ(read_bytes(log), to_code_page(sample_all_log));
}

TEST_F(BatchProgram, TooShortLineEndsInTheReportWithTheTraceLogKeptAndTheLogUntouched) {
    const std::string bytes = to_code_page(sample_all_log) + "too short\r\n";
    write_bytes(log, bytes);
    const ProcessResult ended =
        run({"--set", "lblRmks1(0)=memo", "--set", "Check26=0", "convert", log.string()});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　5\n"));
    EXPECT_THAT(trace_log(), HasSubstr("エラー発生 ：　5\r\n"));
    EXPECT_EQ(read_bytes(log), bytes);
}

TEST_F(BatchProgram, LogThatBearsTheNameOfTheIntermediateFileIsNotWritten) {
    const fs::path named = log.parent_path() / "zlog_1.txt";
    const std::string bytes = "mon day time  callsign      sent\r\n";
    write_bytes(named, bytes);
    const ProcessResult ended = run({"convert", named.string()});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　55\n"));
    EXPECT_EQ(read_bytes(named), bytes);
}

TEST_F(BatchProgram, LogWhoseNameFitsAWorkFileIsNotDeleted) {
    const fs::path named = log.parent_path() / "zlog_7.txt";
    const std::string bytes(sample_txt_log);
    write_bytes(named, bytes);
    EXPECT_EQ(run({"convert", named.string()}).status, 0);
    EXPECT_EQ(read_bytes(named), bytes);
}

// It was kept from an earlier run, say, and chosen by mistake.
TEST_F(BatchProgram, RefusedLogWhoseNameFitsAWorkFileIsNotDeleted) {
    const fs::path named = log.parent_path() / "zlog_1.txt";
    write_bytes(named, "no heading\r\n");
    EXPECT_EQ(run({"convert", named.string()}).status, 1);
    EXPECT_EQ(read_bytes(named), "no heading\r\n");
}

TEST_F(BatchProgram, LogIsNotDeletedUnderTheLetterOfAnotherDrive) {
    const fs::path named = scratch.path() / "zlog_7.txt";
    write_bytes(named, sample_txt_log);
    fs::create_directory_symlink(scratch.path(), scratch.path() / "link");
    const ProcessResult ended = run({"--drive", "D=" + (scratch.path() / "link").string(),
                                     "convert", (scratch.path() / "link/zlog_7.txt").string()});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_EQ(read_bytes(named), sample_txt_log);
}

TEST_F(BatchProgram, LogThatIsLinkedToTheIntermediateFileIsNotWritten) {
    fs::create_hard_link(log, log.parent_path() / "zlog_1.txt");
    const ProcessResult ended = run({"convert", log.string()});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　55\n"));
    EXPECT_EQ(read_bytes(log), to_code_page(sample_all_log));
}

// By the time the stage behind the reader writes its file, nobody has the log open any more.
TEST_F(BatchProgram, LogThatBearsTheNameOfALaterFileIsNotWritten) {
    for (const fs::path& named : {log.parent_path() / "zlog_2.txt", scratch.path() / "zlog_4.txt",
                                  scratch.path() / "zlog_3.txt", home / "zg_i7__.txt"}) {
        write_bytes(named, sample_txt_log);
        const ProcessResult ended = run({"--set", "Check06=1", "convert", named.string()});
        EXPECT_EQ(ended.status, 3) << named;
        EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　55\n")) << named;
        EXPECT_EQ(read_bytes(named), sample_txt_log) << named;
        fs::remove(named);
    }
}

TEST_F(BatchProgram, LogWithoutAnExtensionKeepsItsBytes) {
    const fs::path named = log.parent_path() / "xall";
    write_bytes(named, sample_all_log);
    const ProcessResult ended = run({"convert", named.string()});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_EQ(read_bytes(named), sample_all_log);
    EXPECT_TRUE(fs::exists(log.parent_path() / "xall_hjn.csv"));
}

TEST_F(BatchProgram, PipeInPlaceOfALogEndsInTheReport) {
    const fs::path pipe = log.parent_path() / "pipe.all";
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    const ProcessResult ended = run({"convert", pipe.string()});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　75\n"));
}

TEST_F(BatchProgram, SettingThatTheFilesCannotHoldIsMarked) {
    run({"--set", "txtRmks2=caf\u00e9", "convert", log.string()});
    EXPECT_THAT(read_bytes(log.parent_path() / "x_hjn.csv"), HasSubstr("\"caf?\""));
}

// A shell loop converts several logs within a second.
TEST_F(BatchProgram, EachStartHasATraceLogOfItsOwn) {
    run({"convert", (log.parent_path() / "missing.all").string()});
    run({"--set", "Check26=0", "convert", log.string()});
    run({"--set", "Check26=0", "convert", log.string()});
    EXPECT_THAT(trace_log(), HasSubstr("エラー発生"));
}

TEST_F(BatchProgram, TraceLogOfAnUneventfulRunGoesIfItNeedNotBeKept) {
    EXPECT_EQ(run({"--set", "Check26=0", "convert", log.string()}).status, 0);
    EXPECT_TRUE(fs::is_empty(home / "Error_Log"));
}

// --- the contest of a log ---

class BatchContest : public BatchProgram {
  protected:
    BatchContest() { write_bytes(scratch.path() / "zlog" / "westcity.dat", "heading\r\n"); }

    ProcessResult convert_with(const std::string& contest) {
        return run({"--set", "Option02=2", "convert", log.string(), "--contest", contest});
    }
};

TEST_F(BatchContest, ThatIsInTheListIsTaken) {
    const ProcessResult ended = convert_with("westcity.dat");
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_EQ(ended.results, ten_counters);
}

TEST_F(BatchContest, ThatIsNotInTheListIsRefused) {
    const ProcessResult ended = convert_with("nowhere.dat");
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("コンテスト一覧にありません: nowhere.dat"));
}

TEST_F(BatchContest, WithoutItsFileIsRefusedWithTheVerdict) {
    fs::remove(scratch.path() / "zlog" / "westcity.dat");
    const ProcessResult ended = convert_with("westcity.dat");
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("選択された個別ＤＡＴが設定フォルダに無し！"));
    EXPECT_EQ(ended.results, "");
}

TEST_F(BatchContest, NeedsItsCodeSource) {
    const ProcessResult ended = run({"convert", log.string(), "--contest", "westcity.dat"});
    EXPECT_EQ(ended.status, 2);
    EXPECT_THAT(ended.messages, HasSubstr("Option02=2"));
}

TEST_F(BatchContest, IsAskedForWhereCodesComeFromAFile) {
    const ProcessResult ended = run({"--set", "Option02=2", "convert", log.string()});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。"));
}

}  // namespace
}  // namespace veldrana
