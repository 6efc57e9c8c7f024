#include "qsl/mark_substitution.h"

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/quoted_fields.h"
#include "common/run_time_error.h"
#include "tests/doubles/collected_trace.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scripted_person.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

using Fields = std::vector<std::string>;

const std::string contest_file = "C:\\log\\x_c0.csv";
const std::string hamlog_file = "C:\\log\\x_h0.csv";

struct Contact {
    std::string call;
    std::string qsl;
    std::string portable = "";
    std::string rmks1 = "";
    std::string rmks2 = "";
};

std::string line_of(const Fields& fields) {
    std::string line;
    for (const std::string& field : fields) {
        line += (line.empty() ? "\"" : ",\"") + field + "\"";
    }
    return line + "\r\n";
}

std::string file_of(const std::vector<Contact>& contacts) {
    std::string bytes;
    for (const Contact& contact : contacts) {
        bytes += line_of({contact.call, contact.portable, "25/04/26", "21:05U", "599", "589", "7",
                          "CW", "1001", "#", contact.qsl, "Name", "QTH", contact.rmks1,
                          contact.rmks2, "C1", "C2"});
    }
    return bytes;
}

class MarkSubstitution : public testing::Test {
  protected:
    // The same rows in both files.
    void put(const std::vector<Contact>& contacts) { put(contacts, contacts); }
    void put(const std::vector<Contact>& contest, const std::vector<Contact>& hamlog) {
        memory.put(contest_file, file_of(contest));
        memory.put(hamlog_file, file_of(hamlog));
    }

    std::vector<Fields> rows_of(const std::string& path) {
        std::vector<Fields> rows;
        TextInput input(memory, path);
        for (std::string_view line; input.next_line(line);) {
            rows.push_back(split_quoted_fields(line));
        }
        return rows;
    }

    Fields marks_of(const std::string& path) {
        Fields marks;
        for (const Fields& row : rows_of(path)) {
            marks.push_back(row.at(10));
        }
        return marks;
    }

    // Of both files, which must be alike.
    Fields marks() {
        EXPECT_EQ(marks_of(contest_file), marks_of(hamlog_file));
        return marks_of(contest_file);
    }

    Fields error_lines() {
        Fields lines;
        std::copy_if(trace.lines.begin(), trace.lines.end(), std::back_inserter(lines),
                     [](const std::string& line) { return line.starts_with("エラー発生"); });
        return lines;
    }

    Form form;
    Label lblCFG{form, "lblCFG"};
    ProgressBar bar{form, "ProgressBar1"};
    MemoryDisk memory;
    FailingDisk disk{memory};
    CollectedTrace trace;
    StableSort sorter{disk};
    ScriptedPerson person;
    const Stage stage{disk, trace.log, sorter, person, lblCFG, bar};
    MarkRequest request{.contest_file = contest_file,
                        .hamlog_file = hamlog_file,
                        .in_Dir = "C:\\log\\",
                        .txtQSL_Q = "J",
                        .No_QSL_moji = "N"};
};

// --- one N turns the station ---

TEST_F(MarkSubstitution, JToNStationWithBothMarksBecomesNThroughout) {
    put({{"JA1ZZA", "J*R"}, {"JA2ZZA", "J*R"}, {"JA1ZZA", "N  "}});
    all_JN_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("N  ", "J*R", "N  "));
}

TEST_F(MarkSubstitution, JToNClearsSentAndReceivedMarkOfWhatItTouchesAlone) {
    put({{"JA1ZZA", "N*R"}, {"JA2ZZA", "B*R"}, {"JA3ZZA", "   "}});
    all_JN_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("N  ", "B*R", "   "));
}

// The mark decides by its first character, whatever letter the user has set.
TEST_F(MarkSubstitution, JToNLooksForTheLetterNWhateverIsSet) {
    request.No_QSL_moji = "X";
    put({{"JA1ZZA", "X  "}, {"JA1ZZA", "JN "}, {"JA2ZZA", "N"}, {"JA2ZZA", "J  "}});
    all_JN_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("X  ", "JN ", "N  ", "N  "));
}

// --- one card turns the station ---

TEST_F(MarkSubstitution, NToJStationWithBothMarksGetsTheTransferMarkThroughout) {
    put({{"JA1ZZA", "J*R"}, {"JA1ZZA", "N  "}});
    all_NJ_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("J  ", "J  "));
}

TEST_F(MarkSubstitution, NToJStationWithNAloneStaysAsItIs) {
    put({{"JA1ZZA", "N  "}, {"JA1ZZA", "N*R"}, {"JA2ZZA", "J  "}});
    all_NJ_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("N  ", "N  ", "J  "));
}

struct TransferMark {
    std::string txtQSL_Q;
    std::string mark;
};

TEST_F(MarkSubstitution, NToJGivesTheTransferMarkAndTwoBlanks) {
    const std::vector<TransferMark> rows{
        {"J", "J  "},
        {"B", "B  "},
        {" ", "   "},  // a user's empty mark is one blank
        {"N", "N  "},  // keeps all of them N
    };
    for (const TransferMark& row : rows) {
        request.txtQSL_Q = row.txtQSL_Q;
        put({{"JA1ZZA", "N*R"}, {"JA1ZZA", "J*R"}, {"JA2ZZA", "C*R"}});
        all_NJ_Chikan_full(stage, request);
        // Each station with a card is touched, one that has no N too.
        EXPECT_THAT(marks(), ElementsAre(row.mark, row.mark, row.mark)) << row.txtQSL_Q;
    }
}

// --- which list counts ---

TEST_F(MarkSubstitution, BothFilesFollowTheStationsOfTheContestFile) {
    put({{"JA1ZZA", "N  "}, {"JA2ZZA", "J  "}}, {{"JA1ZZA", "J*R"}, {"JA2ZZA", "N*R"}});
    all_JN_Chikan_full(stage, request);
    EXPECT_THAT(marks_of(contest_file), ElementsAre("N  ", "J  "));
    EXPECT_THAT(marks_of(hamlog_file), ElementsAre("N  ", "N  "));

    put({{"JA1ZZA", "N  "}, {"JA2ZZA", "J  "}}, {{"JA1ZZA", "J*R"}, {"JA2ZZA", "N*R"}});
    all_NJ_Chikan_full(stage, request);
    EXPECT_THAT(marks_of(contest_file), ElementsAre("N  ", "J  "));
    EXPECT_THAT(marks_of(hamlog_file), ElementsAre("J*R", "J  "));
}

TEST_F(MarkSubstitution, EachFileKeepsItsOwnOrderAndAllOtherColumns) {
    put({{"JA1ZZA", "N  ", "", "a\"b\"", "c, d"}, {"JA2ZZA", "J*R"}},
        {{"JA2ZZA", "J*R"}, {"JA1ZZA", "J*R", "", "a\"b\"", "c, d"}});
    all_JN_Chikan_full(stage, request);
    EXPECT_EQ(memory.bytes(contest_file),
              file_of({{"JA1ZZA", "N  ", "", "a\"b\"", "c, d"}, {"JA2ZZA", "J*R"}}));
    EXPECT_EQ(memory.bytes(hamlog_file),
              file_of({{"JA2ZZA", "J*R"}, {"JA1ZZA", "N  ", "", "a\"b\"", "c, d"}}));
}

// --- what a station is ---

struct StationForm {
    std::string call;
    std::string portable;
    bool portable_in_front;
    std::string form;
};

TEST(StationFormText, CallAndPortablePartOrTheOtherWayRound) {
    const std::vector<StationForm> rows{
        {"JA1ZZA", "", false, "JA1ZZA"},
        {"JA1ZZA", "", true, "JA1ZZA"},
        {"JA1ZZA", "2", false, "JA1ZZA/2"},
        {"JA1ZZA", "KH2", true, "KH2/JA1ZZA"},
    };
    for (const StationForm& row : rows) {
        std::string written = "left from before";
        write_station_form(written, row.call, row.portable, row.portable_in_front);
        EXPECT_EQ(written, row.form);
    }
}

TEST_F(MarkSubstitution, CallWithAndWithoutAPortablePartAreTwoStations) {
    put({{"JA1ZZA", "N  "}, {"JA1ZZA", "J  ", "1"}, {"JA1ZZA", "J  ", "2"}});
    all_JN_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("N  ", "J  ", "J  "));

    put({{"JA1ZZA", "J  "}, {"JA1ZZA", "N  ", "1"}, {"JA1ZZA", "N  ", "2"}});
    all_NJ_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("J  ", "N  ", "N  "));
}

struct DxRemarks {
    std::string rmks1;
    std::string rmks2;
    Fields marks;
};

// The second row's form is KH2/JA1ZZA, the third's JA1ZZA/KH2.
TEST_F(MarkSubstitution, MarkOfAStationAbroadPutsThePortablePartInFront) {
    const std::vector<DxRemarks> rows{
        {"$DX", "", {"N  ", "N  ", "J  "}},
        {"", "$DX", {"N  ", "N  ", "J  "}},
        {"QSO in Guam$DX, again", "", {"N  ", "N  ", "J  "}},
        {"", "", {"N  ", "J  ", "N  "}},
        {"$dx", "$ DX", {"N  ", "J  ", "N  "}},
    };
    for (const DxRemarks& row : rows) {
        put({{"JA1ZZA", "N  ", "KH2", row.rmks1, row.rmks2},
             {"KH2", "J  ", "JA1ZZA"},
             {"JA1ZZA", "J  ", "KH2"}});
        all_JN_Chikan_full(stage, request);
        EXPECT_EQ(marks(), row.marks) << row.rmks1 << "," << row.rmks2;
    }
}

TEST_F(MarkSubstitution, WithoutAPortablePartTheMarkOfAStationAbroadChangesNothing) {
    put({{"JA1ZZA", "N  ", "", "$DX"}, {"JA1ZZA", "J  "}});
    all_JN_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("N  ", "N  "));
}

TEST_F(MarkSubstitution, BlanksAroundCallAndPortablePartDoNotTellStationsApart) {
    put({{" JA1ZZA ", "N  ", " 1 "}, {"JA1ZZA", "J  ", "1"}, {"JA2ZZA", "N  ", "  "}},
        {{"JA1ZZA", "J  ", "1"}, {"  JA1ZZA", "J  ", "1 "}, {"JA2ZZA", "J  "}});
    all_JN_Chikan_full(stage, request);
    EXPECT_THAT(marks(), ElementsAre("N  ", "N  ", "N  "));
    EXPECT_EQ(rows_of(contest_file).at(0).at(0), "JA1ZZA");
    EXPECT_EQ(rows_of(contest_file).at(0).at(1), "1");
}

// --- scratch files, trace, failures ---

struct Rule {
    std::string procedure;
    std::function<void(const Stage&, const MarkRequest&)> run;
    std::string noted;  // the station list of the test below
};

const std::vector<Rule> rules{
    {"all_JN_Chikan_full", all_JN_Chikan_full,
     "\"JA2ZZA/1\",\"N*R\"\r\n\"KH2/JA1ZZA\",\"N  \"\r\n"},
    {"all_NJ_Chikan_full", all_NJ_Chikan_full, "\"JA1ZZA\",\"J*R\"\r\n\"JA3ZZA\",\"   \"\r\n"},
};

TEST_F(MarkSubstitution, BothRulesDeleteTheirScratchFiles) {
    for (const Rule& rule : rules) {
        put({{"JA1ZZA", "N  "}});
        rule.run(stage, request);
        EXPECT_THAT(memory.files(), ElementsAre(contest_file, hamlog_file)) << rule.procedure;
    }
}

TEST_F(MarkSubstitution, StationListHoldsTheFormsThatWereNotedAndTheirMarks) {
    // Stops before the list is deleted.
    disk.fail_writing("hamlog_n_1.csv", Failure::disk_full);
    for (const Rule& rule : rules) {
        put({{"JA1ZZA", "J*R"},
             {"JA2ZZA", "N*R", "1"},
             {"JA1ZZA", "N  ", "KH2", "$DX"},
             {"JA3ZZA", "   "}});
        EXPECT_THROW(rule.run(stage, request), RunTimeError);
        EXPECT_EQ(memory.bytes("C:\\log\\contest_n_2.csv"), rule.noted) << rule.procedure;
    }
}

TEST_F(MarkSubstitution, BothRulesTraceTheirFourStages) {
    for (const Rule& rule : rules) {
        put({{"JA1ZZA", "N  "}});
        trace.lines.clear();
        rule.run(stage, request);
        Fields stages;
        std::copy_if(trace.lines.begin(), trace.lines.end(), std::back_inserter(stages),
                     [](const std::string& line) { return line.starts_with("Private Sub "); });
        const std::string name = "Private Sub " + rule.procedure + "()";
        EXPECT_THAT(stages, ElementsAre(name + "_1", name + "_2", name + "_3", name + "_4"));
    }
}

TEST_F(MarkSubstitution, ErrorLines) {
    const std::vector<Rule> operations{{"all_JN_Chikan_full", all_JN_Chikan_full, ""},
                                       {"all_NJ_Chikan_full", all_NJ_Chikan_full, ""},
                                       {"count_No_QSL", count_No_QSL, ""}};
    for (const Rule& operation : operations) {
        const std::string line = "エラー発生  Private Sub " + operation.procedure + "() ：　";
        for (const std::string& file : memory.files()) {
            memory.remove(file);
        }
        memory.put_folder("C:\\log");
        trace.lines.clear();
        EXPECT_THROW(operation.run(stage, request), RunTimeError);
        EXPECT_THAT(error_lines(), ElementsAre(line + "53"));

        put({});  // a file without rows: the read in front of the test for its end fails
        trace.lines.clear();
        EXPECT_THROW(operation.run(stage, request), RunTimeError);
        EXPECT_THAT(error_lines(), ElementsAre(line + "62"));
    }
}

// --- the count ---

TEST_F(MarkSubstitution, CountsTheRowsOfTheContestFileThatNeedNoCard) {
    put({{"JA1ZZA", "N  "}, {"JA1ZZA", "N*R"}, {"JA2ZZA", "JN "}, {"JA3ZZA", "n  "}},
        {{"JA1ZZA", "N  "}});
    EXPECT_EQ(count_No_QSL(stage, request), 2U);
    EXPECT_EQ(lblCFG.caption.get(), "No QSL 件数カウント中");
    EXPECT_EQ(trace.lines.at(0), "Private Sub count_No_QSL()");
}

TEST_F(MarkSubstitution, CountOfNoneIsZero) {
    put({{"JA1ZZA", "J  "}});
    EXPECT_EQ(count_No_QSL(stage, request), 0U);
}

// --- the letter ---

struct LetterRow {
    std::string No_QSL_moji;
    std::string before;
    std::string after;
};

TEST_F(MarkSubstitution, LetterTakesThePlaceOfNWithABlankInThirdPlace) {
    const std::vector<LetterRow> rows{
        {"X", "N  ", "X  "}, {"X", "N*R", "X* "}, {"X", "J*R", "J*R"},
        {"X", "JNN", "JNN"}, {"X", "N", "X "},    {"X", "", ""},
        {"N", "N*R", "N* "}, {"N", "J*R", "J*R"}, {" ", "N*R", " * "},
    };
    for (const LetterRow& row : rows) {
        request.No_QSL_moji = row.No_QSL_moji;
        put({{"JA1ZZA", row.before}});
        No_QSL_moji_ReWrite(stage, request);
        EXPECT_THAT(marks(), ElementsAre(row.after)) << row.No_QSL_moji << "," << row.before;
    }
}

TEST_F(MarkSubstitution, SecondRewriteChangesNothing) {
    for (const std::string letter : {"X", "N"}) {
        request.No_QSL_moji = letter;
        put({{"JA1ZZA", "N*R"}, {"JA2ZZA", "J*R"}});
        No_QSL_moji_ReWrite(stage, request);
        const std::string once = memory.bytes(contest_file);
        No_QSL_moji_ReWrite(stage, request);
        EXPECT_EQ(memory.bytes(contest_file), once);
        EXPECT_THAT(marks(), ElementsAre(letter + "* ", "J*R"));
    }
}

TEST_F(MarkSubstitution, RewriteDeletesItsScratchFilesAndKeepsAllOtherColumns) {
    request.No_QSL_moji = "X";
    put({{" JA1ZZA ", "N  ", " 1 ", "a", "b"}}, {{"JA2ZZA", "N  ", "", "$DX", ""}});
    No_QSL_moji_ReWrite(stage, request);
    EXPECT_THAT(memory.files(), ElementsAre(contest_file, hamlog_file));
    EXPECT_EQ(memory.bytes(contest_file), file_of({{" JA1ZZA ", "X  ", " 1 ", "a", "b"}}));
    EXPECT_EQ(memory.bytes(hamlog_file), file_of({{"JA2ZZA", "X  ", "", "$DX", ""}}));
}

TEST_F(MarkSubstitution, RewriteHasNoErrorLineOfItsOwn) {
    memory.put_folder("C:\\log");
    EXPECT_THROW(No_QSL_moji_ReWrite(stage, request), RunTimeError);
    EXPECT_EQ(trace.lines.at(0), "Private Sub No_QSL_moji_ReWrite");
    EXPECT_THAT(error_lines(), IsEmpty());
}

}  // namespace
}  // namespace veldrana
