// The built batch program on the logs that are no zLog text, with their kind told and untold.
#include <sys/stat.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/app/other_logs.h"
#include "tests/doubles/batch_process.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class BatchOtherLogs : public testing::Test {
  protected:
    BatchOtherLogs() {
        fs::copy(fs::path(VELDRANA_SOURCE_DIR) / "tests/golden/veldrana", home,
                 fs::copy_options::recursive);
        put("c.cbr", sample_cabrillo);
        put("c.log", sample_cabrillo);
        put("c.txt", sample_cabrillo);
        put("a.adi", sample_adif);
        put("z.zlo", sample_zlo("DXコンテスト"));
        put("r4.log", sample_rtcl(RtclForm::before_430));
        put("r430.LOG", sample_rtcl(RtclForm::from_430));
        put("l.lg8", sample_lg8);
    }

    void put(const std::string& name, std::string_view bytes) { write_bytes(logs / name, bytes); }
    std::string path(const std::string& name) const { return (logs / name).string(); }

    ProcessResult run(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(),
                         {"--drive", "C=" + scratch.path().string(), "--home", home.string()});
        return run_batch(arguments);
    }

    // A converter that makes the text of every log after a moment.
    void install_converter() {
        write_bytes(scratch.path() / "text.all", sample_all_log);
        const std::string front = (logs / "l").string();
        write_bytes(home / "lg8bridge.exe", "#!/bin/sh\nsleep 0.5\ncp ../text.all " + front +
                                                ".tmp\nmv " + front + ".tmp " + front +
                                                "_lg8bridge.all\n");
        chmod((home / "lg8bridge.exe").c_str(), 0755);
    }

    ScratchFolder scratch;
    fs::path home = scratch.path() / "veldrana";
    fs::path logs = scratch.path() / "log";
};

struct Command {
    const char* name;
    const char* file;
    const char* kind;  // empty: untold
};

class BatchKind : public BatchOtherLogs, public testing::WithParamInterface<Command> {};

INSTANTIATE_TEST_SUITE_P(
    Kinds, BatchKind,
    testing::Values(Command{"cbr", "c.cbr", ""}, Command{"cbr_told", "c.cbr", "cbr"},
                    Command{"cbr_as_log", "c.log", ""}, Command{"cbr_as_log_told", "c.log", "cbr"},
                    Command{"cbr_as_txt", "c.txt", ""}, Command{"cbr_as_txt_told", "c.txt", "cbr"},
                    Command{"adif", "a.adi", ""}, Command{"adif_told", "a.adi", "ADIF"},
                    Command{"zlo", "z.zlo", ""}, Command{"zlo_told", "z.zlo", "zlo"},
                    Command{"rtcl_v4", "r4.log", ""}, Command{"rtcl_v4_told", "r4.log", "log_v4"},
                    Command{"rtcl_v430", "r430.LOG", ""},
                    Command{"rtcl_v430_told", "r430.LOG", "log_v430"},
                    Command{"ctestwin", "l.lg8", ""}, Command{"ctestwin_told", "l.lg8", "lg8"}),
    [](const auto& command) { return std::string(command.param.name); });

TEST_P(BatchKind, IsConverted) {
    install_converter();
    std::vector<std::string> arguments{"convert", path(GetParam().file)};
    if (*GetParam().kind != '\0') {
        arguments.insert(arguments.end(), {"--kind", GetParam().kind});
    }
    const std::string bytes = read_bytes(logs / GetParam().file);
    const ProcessResult ended = run(arguments);
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(ended.results, StartsWith(" 今 回 の処理数\t2\n 複 数 の局の数\t0\n"));
    EXPECT_EQ(ended.messages, "");
    const std::string front = fs::path(GetParam().file).stem().string();
    for (const char* const result : {"_hjn.csv", "_cjn.csv"}) {
        const std::string rows = read_bytes(logs / (front + result));
        EXPECT_THAT(rows, HasSubstr("\"JA1ZZA\",\"25/04/26\",\"21:05U\",\"599\",\"589\","));
        EXPECT_THAT(rows, HasSubstr("\"JR8YYX/1\",\"25/04/26\",\"21:06U\",\"59\",\"57\","));
    }
    EXPECT_EQ(read_bytes(logs / GetParam().file), bytes);
}

// --- refusals ---

TEST_F(BatchOtherLogs, WhatIsNoCabrilloIsRefused) {
    put("x.log", "1 no log\r\n");
    const ProcessResult ended = run({"convert", path("x.log")});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("Cabrillo ﾌｧｲﾙではありません！"));
    EXPECT_EQ(ended.results, "");
    EXPECT_FALSE(fs::exists(logs / "x_hjn.csv"));
}

TEST_F(BatchOtherLogs, WhatIsNoAdifIsRefused) {
    put("x.adi", "<EOH>\r\n");
    const ProcessResult ended = run({"convert", path("x.adi")});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("ADIF ﾌｧｲﾙではありません！"));
}

TEST_F(BatchOtherLogs, WhatIsNoRtclLogIsRefusedByItsBox) {
    const ProcessResult by_form = run({"convert", path("r4.log"), "--kind", "log_v430"});
    EXPECT_EQ(by_form.status, 1);
    EXPECT_THAT(
        by_form.messages,
        HasSubstr("C:\\log\\r4.log　は RTCL ver 4.30 以降のｌｏｇ ファイルではありません\n"));
    const ProcessResult by_byte = run({"convert", path("c.log"), "--kind", "log_v4"});
    EXPECT_EQ(by_byte.status, 1);
    EXPECT_THAT(by_byte.messages,
                HasSubstr("C:\\log\\c.log　は RTCL ver 4.0 のｌｏｇ ファイルではありません\n"));
    EXPECT_FALSE(fs::exists(logs / "r4_hjn.csv"));
    EXPECT_FALSE(fs::exists(home / "rtcl_tmp.txt"));
}

// A text of two contacts, the second one written later than the first.
TEST_F(BatchOtherLogs, TextOfASlowConverterIsTakenWhole) {
    install_converter();
    const std::string text = (logs / "l_lg8bridge.all").string();
    write_bytes(home / "lg8bridge.exe", "#!/bin/sh\nhead -2 ../text.all > " + text +
                                            "\nsleep 0.4\ntail -1 ../text.all >> " + text + "\n");
    const ProcessResult ended = run({"convert", path("l.lg8")});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(ended.results, StartsWith(" 今 回 の処理数\t2\n"));
}

TEST_F(BatchOtherLogs, TextOfAnEarlierConverterIsNotTakenForThisOne) {
    install_converter();
    const std::string all(sample_all_log);
    write_bytes(logs / "l_lg8bridge.all", all.substr(0, all.find("2025/04/26 21:06")));
    const ProcessResult ended = run({"convert", path("l.lg8")});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(ended.results, StartsWith(" 今 回 の処理数\t2\n"));
}

TEST_F(BatchOtherLogs, WhatIsNoCtestwinNameIsRefusedByItsBox) {
    install_converter();
    const ProcessResult ended = run({"convert", path("c.log"), "--kind", "lg8"});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("正しいファイル名を指定して下さい。\n"));
    EXPECT_FALSE(fs::exists(home / "lg8bridge.ini"));
}

TEST_F(BatchOtherLogs, CtestwinWithoutItsConverterEndsInTheReport) {
    const ProcessResult ended = run({"convert", path("l.lg8")});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　53\n"));
    EXPECT_EQ(ended.results, "");
}

TEST_F(BatchOtherLogs, MissingLogsEndInTheReport) {
    for (const char* const name : {"none.log", "none.adi", "none.zlo"}) {
        const ProcessResult ended = run({"convert", path(name)});
        EXPECT_EQ(ended.status, 3) << name;
        EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　53\n")) << name;
    }
}

TEST_F(BatchOtherLogs, KindThatIsNoneIsAUsageError) {
    for (const char* const kind : {"adif", "ZLO", "log", ""}) {
        EXPECT_EQ(run({"convert", path("c.log"), "--kind", kind}).status, 2) << kind;
    }
}

TEST_F(BatchOtherLogs, ShortLineEndsInTheReport) {
    put("s.cbr", "START-OF-LOG:\r\nQSO: 7012 CW\r\n");
    const ProcessResult ended = run({"convert", path("s.cbr")});
    EXPECT_EQ(ended.status, 3);
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　9\n"));
}

// --- questions about the contest of a binary log of zLog ---

TEST_F(BatchOtherLogs, QuestionAboutAContestThatIsCancelledConvertsNothing) {
    const ProcessResult ended = run({"--set", "Option02=2", "convert", path("z.zlo")});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("コンテスト名　：DXコンテスト\n"));
    EXPECT_EQ(ended.results, "");
    EXPECT_FALSE(fs::exists(logs / "z_hjn.csv"));
}

TEST_F(BatchOtherLogs, QuestionAboutAContestThatIsWavedThroughConverts) {
    const ProcessResult ended =
        run({"--set", "Option02=2", "--answer", "retry", "convert", path("z.zlo")});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(from_code_page(read_bytes(logs / "z_hjn.csv")), HasSubstr("\"DXコンテスト\""));
}

TEST_F(BatchOtherLogs, HeadingWithoutAContestNeedsADataFile) {
    put("n.zlo", sample_zlo(""));
    const ProcessResult ended =
        run({"--set", "Option02=2", "--answer", "retry", "convert", path("n.zlo")});
    EXPECT_EQ(ended.status, 1);
    EXPECT_THAT(ended.messages, HasSubstr("ﾒﾆｭｰからDATﾌｧｲﾙを指定して下さい。"));
    write_bytes(scratch.path() / "zlog" / "westcity.dat", "heading\r\n");
    EXPECT_EQ(run({"--set", "Option02=2", "--answer", "retry", "convert", path("n.zlo"),
                   "--contest", "westcity.dat"})
                  .status,
              0);
}

// --- options of one run ---

TEST_F(BatchOtherLogs, ExchangeOfAnAdifLogIsTakenForThisRunAlone) {
    const std::vector<std::string> told{"--set",       "Check27=1", "--set",      "Check28=1",
                                        "--keep-work", "convert",   path("a.adi")};
    EXPECT_EQ(run(told).status, 0);
    EXPECT_THAT(read_bytes(logs / "zlog_1.txt"), HasSubstr("\"104\"\r\n"));
    EXPECT_EQ(run({"--keep-work", "convert", path("a.adi")}).status, 0);
    EXPECT_THAT(read_bytes(logs / "zlog_1.txt"), Not(HasSubstr("\"104")));
}

// --- z2a ---

TEST_F(BatchOtherLogs, Z2aMakesTheTextAndTellsItsPath) {
    const ProcessResult ended = run({"z2a", path("z.zlo")});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_EQ(ended.results, "C:\\log\\z_z2a.all\n");
    EXPECT_EQ(ended.messages, "");
    EXPECT_EQ(read_bytes(logs / "z_z2a.all"),
              "zLog for Windows       by Veldrana 5.30\r\n"
              "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    -     -     7    CW   1  "
              "%%JA1ZZZ%%SSN (7012)\r\n"
              "2025/04/26 21:06 JR8YYX/1     59  11M     57  101H    -     -     430  FM   1  "
              "%%JA1ZZY%%\r\n");
    EXPECT_FALSE(fs::exists(logs / "z_hjn.csv"));
}

TEST_F(BatchOtherLogs, TextOfZ2aIsConvertedAsTheLogIs) {
    ASSERT_EQ(run({"z2a", path("z.zlo")}).status, 0);
    const ProcessResult ended = run({"convert", path("z_z2a.all")});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(ended.results, StartsWith(" 今 回 の処理数\t2\n"));
}

TEST_F(BatchOtherLogs, Z2aAsksNobodyAboutTheContest) {
    write_bytes(logs / "unnamed.zlo", sample_zlo(""));
    const ProcessResult ended = run({"--set", "Option02=2", "z2a", path("unnamed.zlo")});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_EQ(ended.messages, "");
    EXPECT_TRUE(fs::exists(logs / "unnamed_z2a.all"));
}

TEST_F(BatchOtherLogs, Z2aOfAMissingLogEndsInTheReport) {
    const ProcessResult ended = run({"z2a", path("none.zlo")});
    EXPECT_EQ(ended.status, 3);
    EXPECT_EQ(ended.results, "");
    EXPECT_THAT(ended.messages, HasSubstr("エラー発生 ：　53\n"));
}

TEST_F(BatchOtherLogs, Z2aWithoutALogIsAUsageError) {
    EXPECT_EQ(run({"z2a"}).status, 2);
    EXPECT_EQ(run({"z2a", path("z.zlo"), "--kind", "zlo"}).status, 2);
}

TEST_F(BatchOtherLogs, Z2aTakesNoOtherOptionThanTheCommonOnes) {
    const ProcessResult ended = run({"--set", "NoSuch=1", "z2a", path("z.zlo")});
    EXPECT_EQ(ended.status, 2);
    EXPECT_FALSE(fs::exists(logs / "z_z2a.all"));
}

// --- the samples that lie beside the sources ---

struct Sample {
    const char* file;
    std::size_t contacts;
    const char* name;
};

class BatchSample : public testing::TestWithParam<Sample> {};

// As many as samples/README.md tells.
INSTANTIATE_TEST_SUITE_P(Samples, BatchSample,
                         testing::Values(Sample{"cqww_sample.cbr", 240, "cbr"},
                                         Sample{"n1mm_sample.adi", 180, "adif"},
                                         Sample{"zlo_sample.zlo", 160, "zlo"},
                                         Sample{"rtcl_v4_sample.log", 150, "rtcl_v4"},
                                         Sample{"rtcl_v430_sample.log", 130, "rtcl_v430"},
                                         Sample{"ctestwin_sample_lg8bridge.all", 140, "ctestwin"}),
                         [](const auto& sample) { return std::string(sample.param.name); });

TEST_P(BatchSample, HasARowForEachOfItsContacts) {
    const ScratchFolder scratch;
    fs::copy(fs::path(VELDRANA_SOURCE_DIR) / "tests/golden/veldrana", scratch.path() / "veldrana",
             fs::copy_options::recursive);
    const fs::path log = scratch.path() / "log" / GetParam().file;
    write_bytes(log, read_bytes(fs::path(VELDRANA_SOURCE_DIR) / "samples/logs" / GetParam().file));
    const ProcessResult ended =
        run_batch({"--drive", "C=" + scratch.path().string(), "--home",
                   (scratch.path() / "veldrana").string(), "convert", log.string()});
    EXPECT_EQ(ended.status, 0) << ended.messages;
    EXPECT_THAT(ended.results,
                StartsWith(" 今 回 の処理数\t" + std::to_string(GetParam().contacts) + "\n"));
    const std::string rows = read_bytes(log.parent_path() / (log.stem().string() + "_hjn.csv"));
    EXPECT_EQ(static_cast<std::size_t>(std::count(rows.begin(), rows.end(), '\n')),
              GetParam().contacts);
}

}  // namespace
}  // namespace veldrana
