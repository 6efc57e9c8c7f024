// The history of the log book: how it is made of the selected records, and what it answers.
#include "qsl/history.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "platform/code_page_932.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/stage_fixture.h"

namespace veldrana {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

using Lines = std::vector<std::string>;

const std::string bak_1 = "C:\\bak_1.txt";
const std::string bak_2 = "C:\\bak_2.txt";
const std::string bak_3 = "C:\\bak_3.txt";
const std::string history_file = "C:\\veldrana\\Temp_Files\\bak_qso.mas1_p";

const std::string first_sentinel = "\"YYYYYYE2       \",\"YYYYYY       \",\"E2\"\r\n";
const std::string second_sentinel = "\"ZZZZZYE2       \",\"ZZZZZZ       \",\"E2\"\r\n";
const std::string sentinels = first_sentinel + second_sentinel;

const std::string sentinel_pairs = "\"YYYYYY       \",\"E2\"\r\n\"ZZZZZZ       \",\"E2\"\r\n";

const std::string history_end = "\"YYYYYY\",\"E2\"\r\n\"ZZZZZZ\",\"E2\"\r\nZZZ/ZZZZZZ,E2\r\n";

// A call filled up to the 13 characters of a call field.
std::string call_field(std::string call) {
    call.resize(13, ' ');
    return call;
}

// A line of bak_1.txt.
std::string selected(const std::string& call, const std::string& code) {
    const std::string field = call_field(call);
    return "\"" + field + code + "\",\"" + field + "\",\"" + code + "\"\r\n";
}

// A line of bak_3.txt.
std::string pair_of(const std::string& call, const std::string& code) {
    return "\"" + call_field(call) + "\",\"" + code + "\"\r\n";
}

// Keeps the commands and sorts.
class RecordingSorter : public SortService {
  public:
    explicit RecordingSorter(Disk& disk) : sorter_(disk) {}
    int ksort(const std::string& command, std::string& buffer) override {
        commands.push_back(command);
        return sorter_.ksort(command, buffer);
    }

    Lines commands;

  private:
    StableSort sorter_;
};

// A disk on which every file is of this size, if one is given.
class SizedDisk : public FailingDisk {
  public:
    using FailingDisk::FailingDisk;
    std::optional<std::uint64_t> told_size;
    std::uint64_t size(std::string_view path) override {
        return told_size.value_or(FailingDisk::size(path));
    }
};

class HistoryTest : public StageFixture {
  protected:
    HistoryTest() {
        disk.put_folder("C:\\");
        disk.put_folder("C:\\veldrana\\Temp_Files");
    }

    void run_sum_bak_2() { sum_bak_2(failing_stage, "C:\\"); }
    void run_sum_bak_3() { sum_bak_3(failing_stage, "C:\\", history_file); }

    // bak_3.txt of a bak_1.txt.
    std::string pairs_of(const std::string& records) {
        disk.put(bak_1, records);
        run_sum_bak_2();
        return disk.bytes(bak_3);
    }
    // The history of a bak_3.txt.
    std::string history_of(const std::string& pairs) {
        disk.put(bak_3, pairs);
        run_sum_bak_3();
        return disk.bytes(history_file);
    }
    // The history of a bak_1.txt without its sentinels.
    std::string history_of_records(const std::string& records) {
        pairs_of(records + sentinels);
        run_sum_bak_3();
        return disk.bytes(history_file);
    }

    // Every caption that the status label shows from now on.
    void watch_status() {
        lblCFG.listener = [this] { captions.push_back(lblCFG.caption); };
    }

    SizedDisk failing{disk};
    RecordingSorter recorded{failing};
    const Stage failing_stage{failing, trace.log, recorded, person, lblCFG, bar};
    Lines captions;
};

// --- where it lies ---

struct HistoryPath {
    std::string strPath;
    int Option07;
    std::string path;
};

TEST(HistoryPathText, HasTheDigitOfTheRuleAndNoDoubledBackslash) {
    const std::vector<HistoryPath> rows{
        {"C:\\veldrana\\", 1, "C:\\veldrana\\Temp_Files\\bak_qso.mas1_p"},
        {"C:\\veldrana\\", 2, "C:\\veldrana\\Temp_Files\\bak_qso.mas2_p"},
        {"C:\\veldrana\\", 3, "C:\\veldrana\\Temp_Files\\bak_qso.mas3_p"},
        {"C:\\", 1, "C:\\Temp_Files\\bak_qso.mas1_p"},
        {"C:\\a\\\\b\\\\", 2, "C:\\a\\b\\Temp_Files\\bak_qso.mas2_p"},
    };
    for (const HistoryPath& row : rows) {
        EXPECT_EQ(history_path(row.strPath, row.Option07), row.path);
    }
}

// --- sum_bak_2 ---

TEST_F(HistoryTest, RecordsAreSortedByCallAndCode) {
    disk.put(bak_1, selected("JA2ZZB", "E2") + selected("JA1ZZA", "E2") + selected("JA1ZZA", "C1") +
                        sentinels);
    run_sum_bak_2();
    EXPECT_EQ(disk.bytes(bak_2), selected("JA1ZZA", "C1") + selected("JA1ZZA", "E2") +
                                     selected("JA2ZZB", "E2") + sentinels);
    EXPECT_THAT(recorded.commands, ElementsAre("/k(1:16)  'C:\\bak_1.txt'  'C:\\bak_2.txt'"));
}

TEST_F(HistoryTest, EachPairOfCallAndCodeComesOnce) {
    EXPECT_EQ(
        pairs_of(selected("JA1ZZA", "E2") + selected("JA2ZZB", "E2") + selected("JA1ZZA", "E2") +
                 selected("JA1ZZA", "C1") + selected("JA1ZZA", "E2") + sentinels),
        pair_of("JA1ZZA", "C1") + pair_of("JA1ZZA", "E2") + pair_of("JA2ZZB", "E2") +
            sentinel_pairs);
}

TEST_F(HistoryTest, SentinelsAloneGiveTheirTwoPairs) {
    EXPECT_EQ(pairs_of(sentinels), sentinel_pairs);
}

TEST_F(HistoryTest, ASentinelThatIsAStationTooComesOnce) {
    // The record's first column is built in another way than the sentinel's.
    EXPECT_EQ(pairs_of(selected("YYYYYY", "E2") + sentinels),
              "\"YYYYYY       \",\"E2\"\r\n" + sentinel_pairs);
}

TEST_F(HistoryTest, CallsBehindTheSentinelsComeLast) {
    EXPECT_EQ(pairs_of(selected("ZZZZZZ", "C1") + sentinels),
              sentinel_pairs + pair_of("ZZZZZZ", "C1"));
}

TEST_F(HistoryTest, QuotesWithinACallAreTakenOut) {
    // As the reader writes JA1"ZZA.
    EXPECT_EQ(pairs_of("\"JA1\"\"ZZA     E2\",\"JA1\"\"ZZA     \",\"E2\"\r\n" + sentinels),
              "\"JA1ZZA     \",\"E2\"\r\n" + sentinel_pairs);
}

// A line is divided at each comma: what stands behind that of a call counts as its next columns.
TEST_F(HistoryTest, ACommaWithinACallMovesTheColumns) {
    EXPECT_EQ(pairs_of(selected("JA1,ZZ", "E2") + sentinels),
              "\"ZZ       E2\",\"JA1\"\r\n" + sentinel_pairs);
}

TEST_F(HistoryTest, StatusAndTraceOfTheSorting) {
    disk.put(bak_1, selected("JA1ZZA", "E2") + sentinels);
    watch_status();
    run_sum_bak_2();
    EXPECT_THAT(captions, ElementsAre("  ソ ー ト 中 ．．．１", "  処　理　中 ．．．１"));
    EXPECT_THAT(trace.lines, Contains(testing::StartsWith("Private Sub sum_bak_2()")));
    // Three lines, which a stream that was read to its end counts as one more.
    EXPECT_THAT(trace.lines, Contains(testing::AllOf(
                                 testing::StartsWith("bak_2.txt の件数"),
                                 testing::AnyOf(testing::EndsWith("3"), testing::EndsWith("4")))));
}

TEST_F(HistoryTest, LineOfTooFewColumnsIsAFailure) {
    for (const std::string& records :
         {sentinels + "\"ZZZZZZ\",\"E2\"\r\n", sentinels + "\r\n", "x\r\n" + sentinels}) {
        trace.lines.clear();
        EXPECT_EQ(failure_of([&] { pairs_of(records); }), 9) << records;
        EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub sum_bak_2() ：　9"));
    }
}

TEST_F(HistoryTest, FewerThanTwoLinesEndInAReadPastTheEnd) {
    for (const std::string& records : {std::string(), first_sentinel}) {
        trace.lines.clear();
        EXPECT_EQ(failure_of([&] { pairs_of(records); }), 62) << records;
        EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub sum_bak_2() ：　62"));
    }
}

TEST_F(HistoryTest, MissingRecordsAreAFailureOfTheSorting) {
    EXPECT_EQ(failure_of([&] { run_sum_bak_2(); }), 53);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub sum_bak_2() ：　53"));
}

// --- sum_bak_3 ---

TEST_F(HistoryTest, StationWithThreeCodesHasThemInOnePiece) {
    EXPECT_EQ(history_of_records(selected("JA1ZZA", "C2") + selected("JA1ZZA", "E2") +
                                 selected("JA1ZZA", "C1")),
              "\"JA1ZZA\",\"C1C2E2\"\r\n" + history_end);
}

TEST_F(HistoryTest, EachStationHasALineInTheOrderOfTheSort) {
    EXPECT_EQ(history_of_records(selected("JR8YYX/1", "L4") + selected("JA1ZZA", "E2") +
                                 selected("JA1ZZA/1", "C1") + selected("7K1ZZA", "J1") +
                                 selected("JA1ZZA", "E2")),
              "\"7K1ZZA\",\"J1\"\r\n\"JA1ZZA\",\"E2\"\r\n\"JA1ZZA/1\",\"C1\"\r\n"
              "\"JR8YYX/1\",\"L4\"\r\n" +
                  history_end);
}

TEST_F(HistoryTest, SentinelsAloneGiveAHistoryOfThreeLines) {
    EXPECT_EQ(history_of_records(""), history_end);
}

TEST_F(HistoryTest, ABlankCallIsAStationToo) {
    EXPECT_EQ(history_of_records(selected("", "C1") + selected("", "E2")),
              "\"\",\"C1E2\"\r\n" + history_end);
}

TEST_F(HistoryTest, CallsCutToThirteenCharactersAreOneStation) {
    EXPECT_EQ(
        history_of_records(selected("KH2/JA1ZZA/QRP", "C2") + selected("KH2/JA1ZZA/QRO", "E2")),
        "\"KH2/JA1ZZA/QR\",\"C2E2\"\r\n" + history_end);
}

TEST_F(HistoryTest, ALaterHistoryReplacesTheEarlierOne) {
    disk.put(history_file, std::string(10000, 'x'));
    EXPECT_EQ(history_of(sentinel_pairs), history_end);
}

TEST_F(HistoryTest, StatusOfTheSumming) {
    disk.put(bak_3, sentinel_pairs);
    watch_status();
    run_sum_bak_3();
    EXPECT_THAT(captions, ElementsAre("  処　理　中 ．．．．．．２"));
    EXPECT_THAT(trace.lines, Contains(testing::StartsWith("Private Sub sum_bak_3()")));
}

TEST_F(HistoryTest, FewerThanTwoPairsEndInAReadPastTheEnd) {
    for (const std::string& pairs : {std::string(), pair_of("JA1ZZA", "E2")}) {
        trace.lines.clear();
        EXPECT_EQ(failure_of([&] { history_of(pairs); }), 62);
        EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub sum_bak_3() ：　62"));
    }
}

TEST_F(HistoryTest, MissingPairsAreAFailureOfTheSumming) {
    EXPECT_EQ(failure_of([&] { run_sum_bak_3(); }), 53);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub sum_bak_3() ：　53"));
}

TEST_F(HistoryTest, MissingFolderOfTheHistoryIsAFailureOfTheSumming) {
    disk.put(bak_3, sentinel_pairs);
    EXPECT_EQ(failure_of([&] { sum_bak_3(failing_stage, "C:\\", "C:\\nowhere\\bak_qso.mas1_p"); }),
              76);
    EXPECT_THAT(error_lines(), ElementsAre("エラー発生  Private Sub sum_bak_3() ：　76"));
}

TEST_F(HistoryTest, HistoryOfUnderTenBytesIsAFailure) {
    failing.told_size = 9;
    EXPECT_EQ(failure_of([&] { history_of(sentinel_pairs); }), 51);
    EXPECT_THAT(trace.lines,
                Contains(testing::AllOf(testing::StartsWith("エラー発生 ：　ファイル不良"),
                                        HasSubstr(history_file))));
    failing.told_size = 10;
    trace.lines.clear();
    EXPECT_EQ(failure_of([&] { history_of(sentinel_pairs); }), 0);
    EXPECT_THAT(error_lines(), IsEmpty());
}

// Whatever fails on the disk is told by its procedure, once.
TEST_F(HistoryTest, EveryOperationOfTheDiskMayFail) {
    std::string records;
    for (int i = 1000; i < 3000; ++i) {  // more than one block
        records += selected("JA" + std::to_string(i), "E2");
    }
    struct Procedure {
        std::string name;
        std::function<void()> run;
        std::string result;
    };
    disk.put(bak_1, records + sentinels);
    const std::vector<Procedure> procedures{
        {"sum_bak_2", [this] { run_sum_bak_2(); }, bak_3},
        {"sum_bak_3", [this] { run_sum_bak_3(); }, history_file}};
    for (const Procedure& procedure : procedures) {
        const std::size_t before = failing.operations();
        procedure.run();
        const std::size_t operations = failing.operations() - before;
        const std::string whole = disk.bytes(procedure.result);
        ASSERT_GT(operations, 5U);
        for (std::size_t operation = 1; operation <= operations; ++operation) {
            trace.lines.clear();
            failing.fail_at(operation, Failure::device_error);
            EXPECT_EQ(failure_of(procedure.run), 57) << procedure.name << " " << operation;
            EXPECT_THAT(error_lines(),
                        ElementsAre("エラー発生  Private Sub " + procedure.name + "() ：　57"));
        }
        procedure.run();
        EXPECT_EQ(disk.bytes(procedure.result), whole);
    }
}

// --- what a station's codes cover ---

constexpr Likeness anything{};
constexpr Likeness band{.same_band = true, .same_mode = false};
constexpr Likeness mode{.same_band = false, .same_mode = true};
constexpr Likeness band_and_mode{.same_band = true, .same_mode = true};

struct Covered {
    BandMode contact;
    std::string codes;
    bool anything;
    bool band;
    bool mode;
    bool band_and_mode;
};

// C 7, E 14, G 21, L 430 MHz, Z no band; 1 SSB, 2 CW, 4 FM, 9 no mode of the table.
const std::vector<Covered> covered_rows{
    {{'C', '2'}, "C1C2E2", true, true, true, true},
    {{'C', '1'}, "C1C2E2", true, true, true, true},
    {{'E', '2'}, "C1C2E2", true, true, true, true},
    {{'E', '1'}, "C1C2E2", true, true, true, false},
    {{'C', '4'}, "C1C2E2", true, true, false, false},
    {{'G', '2'}, "C1C2E2", true, false, true, false},
    {{'G', '4'}, "C1C2E2", true, false, false, false},
    {{'L', '4'}, "L4", true, true, true, true},
    {{'Z', '9'}, "Z9", true, true, true, true},
    {{'Z', '9'}, "C1", true, false, false, false},
    {{'C', '9'}, "C9", true, true, true, true},
    {{'C', '9'}, "Z9", true, false, true, false},
    {{'Z', '2'}, "Z1", true, true, false, false},
    {{'C', '2'}, "", true, false, false, false},
    {{'O', '7'}, "A1B2C3D4E5F6G7", true, false, true, false},
    {{'A', '9'}, "A1B2C3D4E5F6G7", true, true, false, false},
};

TEST(CoveredByPast, EachCombinationOfBandAndMode) {
    for (const Covered& row : covered_rows) {
        const std::string tag = row.contact.code() + " in " + row.codes;
        EXPECT_EQ(chk_qso_1(anything, row.contact, row.codes), row.anything) << tag;
        EXPECT_EQ(chk_qso_1(band, row.contact, row.codes), row.band) << tag;
        EXPECT_EQ(chk_qso_1(mode, row.contact, row.codes), row.mode) << tag;
        EXPECT_EQ(chk_qso_1(band_and_mode, row.contact, row.codes), row.band_and_mode) << tag;
    }
}

// A history that was changed by hand: the codes are searched at every place, and only digits and
// capital letters make way.
TEST(CoveredByPast, SearchDoesNotKeepToPairs) {
    EXPECT_TRUE(chk_qso_1(band_and_mode, {'C', '2'}, "1C2E"));
    EXPECT_TRUE(chk_qso_1(band, {'C', '2'}, "xC7"));
    EXPECT_TRUE(chk_qso_1(mode, {'C', '2'}, "7X2"));
    EXPECT_FALSE(chk_qso_1(mode, {'C', '2'}, "c2"));
    EXPECT_FALSE(chk_qso_1(band, {'C', '2'}, "CE"));
}

TEST(CoveredByPast, EveryCapitalLetterAndEveryDigitMakesWay) {
    for (char letter = 'A'; letter <= 'Z'; ++letter) {
        EXPECT_TRUE(chk_qso_1(mode, {'C', '2'}, std::string{letter, '2'})) << letter;
    }
    for (char digit = '0'; digit <= '9'; ++digit) {
        EXPECT_TRUE(chk_qso_1(band, {'C', '2'}, std::string{'C', digit})) << digit;
    }
}

// --- the history in memory ---

class QsoHistoryTest : public HistoryTest {
  protected:
    // Whether the history of a file's text covers a contact.
    bool covers(const std::string& text, const Likeness& likeness, std::string_view call,
                std::string_view frequency = "14", std::string_view mode_text = "CW") {
        disk.put(history_file, to_code_page(text));
        QsoHistory history(history_file, likeness);
        history.prepare(failing_stage);
        return history.covers(call, frequency, mode_text);
    }
};

const std::string small_history =
    "\"JA1ZZA\",\"C1C2E2\"\r\n\"JA1ZZA/1\",\"L4\"\r\n\"KH2/JA1ZZA\",\"E1\"\r\n" + history_end;

TEST_F(QsoHistoryTest, ContactWithAStationOfTheHistoryIsCovered) {
    EXPECT_TRUE(covers(small_history, anything, "JA1ZZA"));
    EXPECT_FALSE(covers(small_history, anything, "JA2ZZB"));
}

TEST_F(QsoHistoryTest, SameBandCountsInAnyMode) {
    EXPECT_FALSE(covers(small_history, band, "JA1ZZA", "21", "CW"));
    EXPECT_TRUE(covers(small_history, band, "JA1ZZA", "7", "FM"));
    EXPECT_TRUE(covers(small_history, band, "JA1ZZA", "14.012", "SSB"));
}

TEST_F(QsoHistoryTest, SameModeCountsOnAnyBand) {
    EXPECT_FALSE(covers(small_history, mode, "JA1ZZA", "7", "FM"));
    for (const std::string frequency : {"1.9", "7", "14", "21", "430", "5600", "26"}) {
        EXPECT_TRUE(covers(small_history, mode, "JA1ZZA", frequency, "CW")) << frequency;
    }
}

TEST_F(QsoHistoryTest, SameBandAndModeCountTogether) {
    EXPECT_TRUE(covers(small_history, band_and_mode, "JA1ZZA", "14", "CW"));
    EXPECT_TRUE(covers(small_history, band_and_mode, "JA1ZZA", "7", "A3J"));
    EXPECT_FALSE(covers(small_history, band_and_mode, "JA1ZZA", "14", "SSB"));
    EXPECT_FALSE(covers(small_history, band_and_mode, "JA1ZZA", "21", "CW"));
}

TEST_F(QsoHistoryTest, TwoUnknownModesAreTheSameMode) {
    const std::string history = "\"JA1ZZA\",\"E9\"\r\n" + history_end;
    for (const Likeness& likeness : {mode, band_and_mode}) {
        EXPECT_TRUE(covers(history, likeness, "JA1ZZA", "14", "FT8"));
        EXPECT_TRUE(covers(history, likeness, "JA1ZZA", "14", "JT65"));
        EXPECT_FALSE(covers(history, likeness, "JA1ZZA", "14", "CW"));
    }
}

TEST_F(QsoHistoryTest, FrequenciesOutsideEveryBandAreOneBand) {
    const std::string history = "\"JA1ZZA\",\"Z2\"\r\n" + history_end;
    for (const Likeness& likeness : {band, band_and_mode}) {
        EXPECT_TRUE(covers(history, likeness, "JA1ZZA", "2.5"));
        EXPECT_TRUE(covers(history, likeness, "JA1ZZA", "10000"));
        EXPECT_FALSE(covers(history, likeness, "JA1ZZA", "14"));
    }
}

TEST_F(QsoHistoryTest, PortableCallFindsTheSamePortableCallAlone) {
    EXPECT_TRUE(covers(small_history, mode, "JA1ZZA/1", "7", "FM"));
    EXPECT_FALSE(covers(small_history, mode, "JA1ZZA/1", "7", "CW"));
    EXPECT_FALSE(covers(small_history, anything, "JA1ZZA/2"));
    EXPECT_TRUE(covers(small_history, anything, "KH2/JA1ZZA"));
    EXPECT_FALSE(covers(small_history, anything, "KH0/JA1ZZA"));
}

TEST_F(QsoHistoryTest, CallWithTwoSlashesIsLookedUpWithoutWhatFollowsTheLast) {
    EXPECT_TRUE(covers(small_history, mode, "JA1ZZA/1/QRP", "7", "FM"));
    EXPECT_FALSE(covers(small_history, mode, "JA1ZZA/1/QRP", "7", "CW")) << "JA1ZZA is another";
    EXPECT_TRUE(covers(small_history, anything, "KH2/JA1ZZA/"));
    EXPECT_FALSE(covers(small_history, anything, "JA1ZZA//1"));
    // Cut once, however many there are.
    EXPECT_FALSE(covers(small_history, anything, "JA1ZZA/1/P/QRP"));
    EXPECT_TRUE(covers("\"JA1ZZA/1/P\",\"E2\"\r\n" + history_end, anything, "JA1ZZA/1/P/QRP"));
    EXPECT_FALSE(covers("\"JA1ZZA/1/P\",\"E2\"\r\n" + history_end, anything, "JA1ZZA/1/P"));
}

TEST_F(QsoHistoryTest, BlanksAroundTheCallDoNotCount) {
    EXPECT_TRUE(covers(small_history, anything, "  JA1ZZA "));
    EXPECT_FALSE(covers(small_history, anything, "JA1 ZZA"));
}

TEST_F(QsoHistoryTest, CallsAreTheSameOnlyToTheLetter) {
    for (const std::string call : {"ja1zza", "JA1ZZ", "JA1ZZAA", "A1ZZA"}) {
        EXPECT_FALSE(covers(small_history, anything, call)) << call;
    }
}

TEST_F(QsoHistoryTest, OfSeveralLinesOfACallTheFirstCounts) {
    const std::string history =
        "\"JA1ZZA\",\"C1\"\r\n\"JA1ZZA\",\"E2\"\r\n\"JA1ZZA\",\"C1E2\"\r\n" + history_end;
    EXPECT_TRUE(covers(history, band_and_mode, "JA1ZZA", "7", "SSB"));
    EXPECT_FALSE(covers(history, band_and_mode, "JA1ZZA", "14", "CW"));
}

TEST_F(QsoHistoryTest, LastLineAndTheSentinelsAreStationsToo) {
    for (const std::string call : {"YYYYYY", "ZZZZZZ", "ZZZ/ZZZZZZ"}) {
        EXPECT_TRUE(covers(small_history, band_and_mode, call, "14", "CW")) << call;
        EXPECT_FALSE(covers(small_history, band_and_mode, call, "7", "CW")) << call;
    }
}

// It finds the first place of the arrays that holds no station, whose codes are empty.
TEST_F(QsoHistoryTest, BlankCallIsCoveredByAnyContactButNotByLikeOnes) {
    for (const std::string call : {"", "   "}) {
        EXPECT_TRUE(covers(small_history, anything, call));
        EXPECT_FALSE(covers(small_history, band, call));
        EXPECT_FALSE(covers(small_history, mode, call));
        EXPECT_FALSE(covers(small_history, band_and_mode, call));
    }
}

TEST_F(QsoHistoryTest, BlankCallFindsTheBlankStationOfTheHistoryFirst) {
    const std::string history = "\"\",\"E2\"\r\n" + small_history;
    EXPECT_TRUE(covers(history, band_and_mode, "", "14", "CW"));
    EXPECT_FALSE(covers(history, band_and_mode, "", "7", "CW"));
}

TEST_F(QsoHistoryTest, ValuesAreReadWithoutRegardToTheLines) {
    EXPECT_TRUE(covers("\"JA1ZZA\"\r\n\"C1\",\"JA2ZZB\"\r\n\"E2\"\r\n", band_and_mode, "JA2ZZB"));
    EXPECT_TRUE(covers("JA1ZZA,C1,JA2ZZB,E2", band_and_mode, "JA2ZZB"));
}

TEST_F(QsoHistoryTest, EveryStationOfALongHistoryIsFound) {
    std::string history;
    for (int i = 1000; i < 9000; ++i) {
        history += "\"JA" + std::to_string(i) + "\",\"" + (i % 2 == 0 ? "C1" : "E2") + "\"\r\n";
    }
    disk.put(history_file, history + history_end);
    QsoHistory past(history_file, band_and_mode);
    past.sum_bak_4_bas(failing_stage);
    for (int i = 1000; i < 9000; ++i) {
        ASSERT_EQ(past.covers("JA" + std::to_string(i), "14", "CW"), i % 2 != 0) << i;
    }
    EXPECT_FALSE(past.covers("JA9000", "14", "CW"));
}

TEST_F(QsoHistoryTest, EachReadingBeginsAnew) {
    disk.put(history_file, small_history);
    QsoHistory past(history_file, anything);
    past.prepare(failing_stage);
    EXPECT_TRUE(past.covers("JA1ZZA", "14", "CW"));
    disk.put(history_file, "\"JA2ZZB\",\"E2\"\r\n" + history_end);
    past.prepare(failing_stage);
    EXPECT_FALSE(past.covers("JA1ZZA", "14", "CW"));
    EXPECT_TRUE(past.covers("JA2ZZB", "14", "CW"));
}

TEST_F(QsoHistoryTest, ReadingLeavesTheFileAsItIs) {
    EXPECT_TRUE(covers(small_history, anything, "JA1ZZA"));
    EXPECT_EQ(disk.bytes(history_file), small_history);
    EXPECT_THAT(disk.files(), ElementsAre(history_file));
    EXPECT_NO_THROW(disk.open_for_writing(history_file, WriteMode::append));
}

TEST_F(QsoHistoryTest, MissingHistoryFailsWithoutAnErrorLineOfItsOwn) {
    QsoHistory past(history_file, anything);
    EXPECT_EQ(failure_of([&] { past.prepare(failing_stage); }), 53);
    EXPECT_THAT(error_lines(), IsEmpty());
}

TEST_F(QsoHistoryTest, ACallWithoutItsCodesIsAReadPastTheEnd) {
    disk.put(history_file, "\"JA1ZZA\",\"C1\"\r\n\"JA2ZZB\"\r\n");
    QsoHistory past(history_file, anything);
    EXPECT_EQ(failure_of([&] { past.prepare(failing_stage); }), 62);
    EXPECT_THAT(error_lines(), IsEmpty());
}

TEST_F(QsoHistoryTest, EveryOperationOfTheDiskMayFail) {
    std::string history;
    for (int i = 1000; i < 9000; ++i) {  // more than one block
        history += "\"JA" + std::to_string(i) + "\",\"E2\"\r\n";
    }
    disk.put(history_file, history + history_end);
    const std::size_t before = failing.operations();
    QsoHistory(history_file, anything).prepare(failing_stage);
    const std::size_t operations = failing.operations() - before;
    ASSERT_GT(operations, 3U);
    for (std::size_t operation = 1; operation <= operations; ++operation) {
        QsoHistory past(history_file, anything);
        failing.fail_at(operation, Failure::device_error);
        EXPECT_EQ(failure_of([&] { past.prepare(failing_stage); }), 57) << operation;
    }
}

}  // namespace
}  // namespace veldrana
