// The zLog texts of an unpacked RTCL log.
#include "readers/rtcl_to_zlog.h"

#include <algorithm>
#include <array>
#include <bit>
#include <limits>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "readers/zlog_text.h"
#include "tests/readers/binary_log.h"
#include "tests/readers/reader_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

constexpr const char* tmp_path = "C:\\veldrana\\rtcl_tmp.txt";
constexpr const char* all_path = "C:\\log\\x_log2a.all";
constexpr const char* txt_path = "C:\\log\\x_log2z.txt";

// A line of rtcl_tmp.txt, by the places of its fields.
Contact tmp_line() {
    Contact line(rtcl_line::count);
    line[rtcl_line::kind] = "00001";
    line[rtcl_line::band] = line[rtcl_line::band_again] = "7";
    line[rtcl_line::date] = "2025/04/26";
    line[rtcl_line::time] = "210559";
    line[rtcl_line::frequency] = "   7012.345";
    line[rtcl_line::rounded_frequency] = "7012";
    line[rtcl_line::mode] = "CW";
    line[rtcl_line::second_mode] = "other";
    line[rtcl_line::call] = "JR8YYX/1";
    line[rtcl_line::report_sent] = "599";
    line[rtcl_line::exchange_sent] = "11M";
    line[rtcl_line::report_received] = "589";
    line[rtcl_line::exchange_received] = "104M";
    line[rtcl_line::points] = "3";
    line[rtcl_line::multiplier_1] = "104";
    line[rtcl_line::multiplier_2] = "JA8";
    return line;
}

Contact tmp_line_with(rtcl_line::Field field, const std::string& text) {
    Contact line = tmp_line();
    line[field] = text;
    return line;
}

class RtclToZlog : public ReaderFixture {
  protected:
    RtclToZlog() {
        disk.put_folder("C:\\log");
        disk.put_folder("C:\\veldrana");
    }

    void put_tmp(const std::vector<Contact>& given) {
        std::string bytes;
        QuotedLine line;
        for (const Contact& fields : given) {
            line.assign(std::vector<std::string_view>(fields.begin(), fields.end()));
            bytes += to_code_page(line.text()) + "\r\n";
        }
        disk.put(tmp_path, bytes);
    }

    // The lines behind the heading.
    std::vector<std::string> all_lines(const std::vector<Contact>& given) {
        put_tmp(given);
        make_rtcl_log_to_zlog_all(stage, tmp_path, rtcl_heading_of_run, {all_path});
        return lines_behind_heading(all_path);
    }

    std::vector<std::string> txt_lines(const std::vector<Contact>& given) {
        put_tmp(given);
        make_rtcl_log_to_zlog_txt(stage, tmp_path, txt_path);
        return lines_behind_heading(txt_path);
    }

    std::string all_line(const Contact& given) { return all_lines({given}).at(0); }
    std::string txt_line(const Contact& given) { return txt_lines({given}).at(0); }

    std::vector<std::string> lines_behind_heading(std::string_view path) {
        std::vector<std::string> lines;
        TextInput text(disk, path);
        heading = read_line(text);
        for (std::string_view line; text.next_line(line);) {
            lines.emplace_back(line);
        }
        return lines;
    }

    std::string heading;
};

// --- .ALL ---

TEST_F(RtclToZlog, HeadingsTellRunAndToolApart) {
    all_lines({});
    EXPECT_EQ(heading, "zLog for Windows   (rtcl.log to zlog.all)    by Morvessa 5.30");
    make_rtcl_log_to_zlog_all(stage, tmp_path, rtcl_heading_of_tool, {all_path});
    lines_behind_heading(all_path);
    EXPECT_EQ(heading, "zLog for Windows   (rtcl.log to zlog.all)    by Veldrana 5.30");
}

TEST_F(RtclToZlog, AllLineHasItsColumns) {
    EXPECT_EQ(all_line(tmp_line()),
              "2025/04/26 21:05 JR8YYX/1     599 11M     589 104M    104   JA8   7    CW   3   "
              "(7012)");
}

TEST_F(RtclToZlog, PartsOfAnAllLineAreCut) {
    Contact line = tmp_line();
    line[rtcl_line::call] = "1234567890123";
    line[rtcl_line::report_sent] = "abcdef";
    line[rtcl_line::exchange_sent] = "123456789";
    line[rtcl_line::report_received] = "ghijkl";
    line[rtcl_line::exchange_received] = "12345678";
    line[rtcl_line::multiplier_1] = "ABCDEF";
    line[rtcl_line::multiplier_2] = "１２３";
    line[rtcl_line::band] = "123456";
    line[rtcl_line::points] = "12345";
    EXPECT_EQ(all_line(line),
              "2025/04/26 21:05 1234567890123abcd12345678ghij1234567 ABCDE １２  12345CW   1234"
              "(7012)");
}

TEST_F(RtclToZlog, EmptyMultiplierIsAHyphen) {
    Contact line = tmp_line();
    line[rtcl_line::multiplier_1] = line[rtcl_line::multiplier_2] = "";
    EXPECT_EQ(all_line(line).substr(54, 12), "-     -     ");
}

std::vector<Contact> lines_with_modes(const std::vector<std::string>& modes) {
    std::vector<Contact> lines;
    std::transform(modes.begin(), modes.end(), std::back_inserter(lines),
                   [](const std::string& mode) { return tmp_line_with(rtcl_line::mode, mode); });
    return lines;
}

TEST_F(RtclToZlog, ModesOfAnAllLineHaveThreeCharacters) {
    const std::vector<std::pair<std::string, std::string>> modes{
        {"x", "     "},   {"RTTY", "RTY  "}, {"x", "RTY  "},   {"PSK31", "PSK  "},
        {"USB", "SSB  "}, {"CW", "CW   "},   {"LSB", "SSB  "}, {"FM", "FM   "},
        {"SSB", "FM   "}, {"PH", "FM   "},   {"cw", "FM   "},  {"", "FM   "}};
    std::vector<std::string> given;
    for (const auto& [mode, written] : modes) {
        given.push_back(mode);
    }
    const auto lines = all_lines(lines_with_modes(given));
    ASSERT_THAT(lines, SizeIs(modes.size()));
    for (std::size_t i = 0; i < modes.size(); ++i) {
        EXPECT_EQ(lines[i].substr(71, 5), modes[i].second) << i << " " << modes[i].first;
    }
}

TEST_F(RtclToZlog, DupeHasItsMarkAndNoPoints) {
    EXPECT_TRUE(
        all_line(tmp_line_with(rtcl_line::dupe, "-DUPE- ")).ends_with("CW   0   -DUPE- (7012)"));
    EXPECT_TRUE(
        txt_line(tmp_line_with(rtcl_line::dupe, "-DUPE- ")).ends_with("CW  0-DUPE- (7012)"));
    // Only the whole mark takes the points.
    EXPECT_TRUE(
        all_line(tmp_line_with(rtcl_line::dupe, "-DUPE-")).ends_with("CW   3   -DUPE-(7012)"));
}

TEST_F(RtclToZlog, MemoHasOperatorDupeFrequencyAndComment) {
    Contact line = tmp_line();
    line[rtcl_line::op] = "JA1ZZZ";
    line[rtcl_line::dupe] = "-DUPE- ";
    line[rtcl_line::comment] = "移動 運用";
    EXPECT_TRUE(all_line(line).ends_with(" 0   %%JA1ZZZ%% -DUPE- (7012) 移動 運用"));
    line[rtcl_line::rounded_frequency] = "";
    line[rtcl_line::dupe] = "";
    EXPECT_TRUE(all_line(line).ends_with(" 3   %%JA1ZZZ%%  移動 運用"));
    line[rtcl_line::op] = line[rtcl_line::comment] = "";
    EXPECT_TRUE(all_line(line).ends_with("CW   3   "));
}

// --- .TXT ---

TEST_F(RtclToZlog, TxtLineHasItsColumns) {
    EXPECT_EQ(txt_line(tmp_line()),
              "4    26 2105 JR8YYX/1   59911M          589104M            104    7 CW  3(7012)");
    EXPECT_EQ(heading,
              "mon day time  callsign      sent         rcvd      multi   MHz mode pts memo");
    EXPECT_TRUE(heading.starts_with(heading_of(InputKind::txt)));
}

TEST_F(RtclToZlog, MonthOfATxtLineLosesALeadingZero) {
    EXPECT_EQ(txt_line(tmp_line_with(rtcl_line::date, "2025/12/06")).substr(0, 8), "12   06 ");
    EXPECT_EQ(txt_line(tmp_line_with(rtcl_line::date, "2025/01/31")).substr(0, 8), "1    31 ");
    EXPECT_EQ(txt_line(tmp_line_with(rtcl_line::date, "2025/10/31")).substr(0, 8), "10   31 ");
}

TEST_F(RtclToZlog, ReportsMultiplierAndBandOfATxtLineStandOnTheRight) {
    Contact line = tmp_line();
    line[rtcl_line::report_sent] = "59";
    line[rtcl_line::report_received] = "5";
    line[rtcl_line::multiplier_1] = "";
    line[rtcl_line::band] = "1200";
    EXPECT_EQ(txt_line(line),
              "4    26 2105 JR8YYX/1    5911M            5104M              - 1200 CW  3(7012)");
}

TEST_F(RtclToZlog, ModesOfATxtLineHaveFourCharacters) {
    const std::vector<std::pair<std::string, std::string>> modes{
        {"x", "    "},   {"RTTY", "RTY "}, {"PSK31", "PSK "}, {"USB", "SSB "}, {"CW", "CW  "},
        {"LSB", "SSB "}, {"FM", "FM  "},   {"PH", "SSB "},    {"AM", "SSB "}};
    std::vector<std::string> given;
    for (const auto& [mode, written] : modes) {
        given.push_back(mode);
    }
    const auto lines = txt_lines(lines_with_modes(given));
    ASSERT_THAT(lines, SizeIs(modes.size()));
    for (std::size_t i = 0; i < modes.size(); ++i) {
        EXPECT_EQ(lines[i].substr(68, 4), modes[i].second) << modes[i].first;
    }
}

// --- the outputs ---

TEST_F(RtclToZlog, EveryOutputHasTheSameText) {
    put_tmp({tmp_line(), tmp_line()});
    make_rtcl_log_to_zlog_all(stage, tmp_path, rtcl_heading_of_run,
                              {"C:\\zlog_01.txt", "C:\\log\\zlog_01.txt", all_path});
    EXPECT_THAT(lines_behind_heading(all_path), SizeIs(2));
    EXPECT_EQ(disk.bytes("C:\\zlog_01.txt"), disk.bytes(all_path));
    EXPECT_EQ(disk.bytes("C:\\log\\zlog_01.txt"), disk.bytes(all_path));
    EXPECT_THAT(trace.lines, ElementsAre("Private Sub make_rtcl_log_to_zlog_all()",
                                         "Open C:\\veldrana\\rtcl_tmp.txt For Input As #f_i",
                                         "Open C:\\zlog_01.txt For Output As #f_o",
                                         "Open C:\\log\\zlog_01.txt For Output As #f_o",
                                         "Open C:\\log\\x_log2a.all For Output As #f_o"));
}

TEST_F(RtclToZlog, TwoOutputsMayBeOneFile) {
    put_tmp({tmp_line()});
    make_rtcl_log_to_zlog_all(stage, tmp_path, rtcl_heading_of_run,
                              {"C:\\zlog_01.txt", "c:\\ZLOG_01.txt", all_path});
    EXPECT_THAT(lines_behind_heading("C:\\zlog_01.txt"), SizeIs(1));
    EXPECT_EQ(disk.bytes("C:\\zlog_01.txt"), disk.bytes(all_path));
}

TEST_F(RtclToZlog, TextBeforeIsReplaced) {
    all_lines({tmp_line(), tmp_line()});
    EXPECT_THAT(all_lines({tmp_line()}), SizeIs(1));
}

// --- from the log to the contact ---

TEST_F(RtclToZlog, LogOfEitherFormBecomesContacts) {
    use.mark(RemarkItem::op);
    use.mark(RemarkItem::memo);
    for (const RtclForm shape : {RtclForm::before_430, RtclForm::from_430}) {
        put_log(RtclContactBytes{.multiplier_1 = "104", .op = "JA1ZZZ"}.bytes(shape) +
                RtclContactBytes{.kind = "QTC"}.bytes(shape) +
                RtclContactBytes{.band = "1200",
                                 .counter = 3521225472 + 250 * 96,  // 1200.096 MHz
                                 .mode = "USB",
                                 .dupe = 1,
                                 .call = "JR8YYX/1",
                                 .comment = "QRP"}
                    .bytes(shape));
        const std::string tmp = unpack_rtcl_log(stage, log_path, shape, "C:\\veldrana\\");
        make_rtcl_log_to_zlog_all(stage, tmp, rtcl_heading_of_run, {"C:\\log\\zlog_01.txt"});
        a_2_t(stage, {.in_name = "C:\\log\\zlog_01.txt",
                      .in_Dir = "C:\\log\\",
                      .options = options,
                      .use = use});
        EXPECT_THAT(contacts(),
                    ElementsAre(ElementsAre("2025", "04", "26", "2105", "JA1ZZA", "599", "589", "7",
                                            "CW ", "JA1ZZZ", "", "7.012", "104M"),
                                ElementsAre("2025", "04", "26", "2105", "JR8YYX/1", "599", "589",
                                            "1200", "SSB", "", "QRP", "", "104M")));
    }
}

// A line break within a field: the fields are read on from line to line, and a row that lacks some
// fails.
TEST_F(RtclToZlog, FieldWithALineBreakIsReadAsTheFileThenReads) {
    put_log(RtclContactBytes{.comment = "a\r\nb"}.bytes(RtclForm::from_430));
    const std::string tmp = unpack_rtcl_log(stage, log_path, RtclForm::from_430, "C:\\veldrana\\");
    EXPECT_EQ(
        failure_of([&] { make_rtcl_log_to_zlog_all(stage, tmp, rtcl_heading_of_run, {all_path}); }),
        62);
    EXPECT_EQ(error_lines(), std::vector<std::string>{
                                 "エラー発生  Private Sub make_rtcl_log_to_zlog_all() ：　62"});
}

// --- unpacked and converted in one pass ---

// All that a run leaves of an RTCL log, and how it went.
struct Outcome {
    int failure = 0;
    std::vector<std::string> texts;
    std::vector<std::string> trace;

    bool operator==(const Outcome&) const = default;
};

class RtclInOnePass : public RtclToZlog, public testing::WithParamInterface<RtclForm> {
  protected:
    const std::vector<std::string> outputs{"C:\\zlog_01.txt", "C:\\log\\zlog_01.txt", all_path};

    template <class Act>
    Outcome outcome_of(Act act) {
        trace.lines.clear();
        disk.put(tmp_path, "of the run before");
        for (const std::string& path : outputs) {
            disk.put(path, "of the run before");
        }
        Outcome outcome{failure_of(act), {disk.bytes(tmp_path)}, trace.lines};
        for (const std::string& path : outputs) {
            outcome.texts.push_back(disk.bytes(path));
        }
        return outcome;
    }

    Outcome one_after_the_other() {
        return outcome_of([this] {
            const std::string tmp = unpack_rtcl_log(stage, log_path, GetParam(), "C:\\veldrana\\");
            make_rtcl_log_to_zlog_all(stage, tmp, rtcl_heading_of_run, outputs);
        });
    }

    Outcome in_one_pass() {
        return outcome_of([this] {
            unpack_rtcl_log_to_zlog_all(
                stage, {.in_name = log_path, .form = GetParam(), .strPath = "C:\\veldrana\\"},
                rtcl_heading_of_run, outputs);
        });
    }

    // The one way leaves just what the other does; returns it.
    Outcome same_either_way(const std::vector<RtclContactBytes>& contacts,
                            const std::string& what) {
        std::string bytes;
        for (const RtclContactBytes& contact : contacts) {
            bytes += contact.bytes(GetParam());
        }
        put_log(bytes);
        Outcome expected = one_after_the_other();
        const Outcome outcome = in_one_pass();
        EXPECT_EQ(outcome.failure, expected.failure) << what;
        EXPECT_EQ(outcome.texts, expected.texts) << what;
        EXPECT_EQ(outcome.trace, expected.trace) << what;
        return expected;
    }

    bool reads_back(const RtclContactBytes& contact) {
        put_log(RtclContactBytes{}.bytes(GetParam()) + contact.bytes(GetParam()));
        return RtclUnpacker(stage, log_path, GetParam(), "C:\\veldrana\\").fields_read_back();
    }
};

INSTANTIATE_TEST_SUITE_P(BothForms, RtclInOnePass,
                         testing::Values(RtclForm::before_430, RtclForm::from_430));

// A moment of 26 April 2025 with a line end and a quote among its bytes.
constexpr auto odd_days = std::bit_cast<double>(std::uint64_t{0x40E659A000000A22});

constexpr std::array text_fields{&RtclContactBytes::kind,
                                 &RtclContactBytes::band,
                                 &RtclContactBytes::mode,
                                 &RtclContactBytes::second_mode,
                                 &RtclContactBytes::call,
                                 &RtclContactBytes::report_sent,
                                 &RtclContactBytes::exchange_sent,
                                 &RtclContactBytes::text_sent,
                                 &RtclContactBytes::report_received,
                                 &RtclContactBytes::exchange_received,
                                 &RtclContactBytes::text_received,
                                 &RtclContactBytes::multiplier_1,
                                 &RtclContactBytes::multiplier_2,
                                 &RtclContactBytes::third_text,
                                 &RtclContactBytes::op,
                                 &RtclContactBytes::comment};

// Texts as a place may hold them, as bytes of the code page: every byte alone and between
// others; characters of two bytes, cut by narrow places; blanks around and within.
std::vector<std::string> texts_of_pages() {
    std::vector<std::string> texts{"",
                                   "  7",
                                   "a b",
                                   " \x88\xDA ",
                                   "\x88\xDA\x93\xAE",
                                   "a\x88\xDA\x93\xAE\x89\x5E\x97\x70",
                                   "\x95\x5C",           // its second byte is a backslash
                                   "\x87\x90",           // stands in the page twice
                                   "\xED\x40",           // the same
                                   "\x81\xAD",           // a code that the page leaves open
                                   "\x83\"",             // a lead byte in front of a quote
                                   "\xB6\xC5 \xD2\xD3",  // half-width
                                   "\"",
                                   "\"\"",
                                   "a\"b",
                                   "\"a,b\"",
                                   "a,b",
                                   "\r\n",
                                   "a\r\nb",
                                   "\n",
                                   "\r",
                                   std::string("a\0b", 3),
                                   std::string(25, 'x'),
                                   std::string(25, '"')};
    for (int byte = 0; byte <= 0xFF; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        texts.insert(texts.end(), {one, "1" + one + "2"});
    }
    return texts;
}

TEST_P(RtclInOnePass, EveryTextInEveryFieldGivesTheSame) {
    for (const std::string& page_bytes : texts_of_pages()) {
        const std::string text = from_code_page(page_bytes);
        for (std::size_t i = 0; i < text_fields.size(); ++i) {
            RtclContactBytes odd{.call = "JA1ZZB", .op = "JA1ZZZ", .comment = "QRP"};
            odd.*text_fields[i] = text;
            same_either_way({{}, odd, {.mode = "USB", .call = "JA1ZZC"}},
                            testing::PrintToString(page_bytes) + " in " + std::to_string(i));
        }
    }
}

TEST_P(RtclInOnePass, NumbersGiveTheSame) {
    const std::uint32_t quotes = 0x22222222;
    const std::uint32_t line_ends = 0x0A0A0A0A;

    const Outcome outcome =
        same_either_way({{.band = "x", .counter = 0},
                         {.counter = quotes},
                         {.counter = line_ends},
                         {.band = "5600", .counter = 0xFFFFFFFF},
                         {.band = "5600", .counter = 3521225471},
                         {.dupe = '"', .points = '"'},
                         {.dupe = '\n', .points = '\n'},
                         {.days = odd_days},
                         {.days = odd_days + 1.0},
                         {.days = odd_days},
                         {.kind = "QTC\"", .days = std::numeric_limits<double>::quiet_NaN()},
                         {.days = -657434.99}},
                        "numbers");
    EXPECT_EQ(outcome.failure, 0);
}

TEST_P(RtclInOnePass, ContactsReachEveryOutput) {
    const Outcome outcome = same_either_way(
        {{}, {.kind = "QTC"}, {.call = "JA1ZZB", .comment = "移動 運用"}}, "three records");
    const std::string all =
        "zLog for Windows   (rtcl.log to zlog.all)    by Morvessa 5.30\r\n"
        "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    -     -     7    CW   1   (7012)\r\n"
        "2025/04/26 21:05 JA1ZZB       599 11M     589 104M    -     -     7    CW   1   (7012) " +
        to_code_page("移動 運用") + "\r\n";
    EXPECT_THAT(outcome.texts, ElementsAre(testing::_, all, all, all));
}

TEST_P(RtclInOnePass, LogWithoutContactsGivesHeadings) {
    EXPECT_EQ(same_either_way({}, "nothing").texts.at(0), "");
    EXPECT_EQ(same_either_way({{.kind = "QTC"}}, "a QTC").texts.at(1),
              "zLog for Windows   (rtcl.log to zlog.all)    by Morvessa 5.30\r\n");
}

// The line that is put together across the end of a block of the disk, and many of them.
TEST_P(RtclInOnePass, LongLogGivesTheSame) {
    std::vector<RtclContactBytes> contacts(2000);
    for (std::size_t i = 0; i < contacts.size(); ++i) {
        contacts[i].days += static_cast<double>(i) / 100;
        contacts[i].comment = i % 7 == 0 ? "移動" : std::string(i % 21, 'm');
    }
    EXPECT_EQ(same_either_way(contacts, "2000").failure, 0);
    contacts.back().comment = "\"";
    same_either_way(contacts, "a quote at the end");
}

// What was written before stays where the log cannot be unpacked to its end.
TEST_P(RtclInOnePass, TimeOfNoCalendarLeavesTheTextsBefore) {
    const Outcome outcome =
        same_either_way({{}, {.days = std::numeric_limits<double>::quiet_NaN()}, {}}, "no time");
    EXPECT_EQ(outcome.failure, 6);
    EXPECT_EQ(std::count(outcome.texts[0].begin(), outcome.texts[0].end(), '\n'), 1);
    EXPECT_EQ(outcome.texts[1], "of the run before");
    EXPECT_EQ(outcome.texts[3], "of the run before");
}

TEST_P(RtclInOnePass, OutputThatCannotBeWrittenComesBehindTheUnpacking) {
    disk.protect(all_path);
    const Outcome outcome = same_either_way({{}, {}}, "protected");
    EXPECT_EQ(outcome.failure, 55);
    EXPECT_EQ(std::count(outcome.texts[0].begin(), outcome.texts[0].end(), '\n'), 2);
    EXPECT_EQ(outcome.texts[1], "");
    EXPECT_EQ(outcome.texts[3], "of the run before");
}

// Whatever the disk fails at is told.
TEST_P(RtclInOnePass, FailureOfAnyOperationIsMet) {
    std::string bytes;
    for (int i = 0; i < 1000; ++i) {
        bytes += RtclContactBytes{}.bytes(GetParam());
    }
    put_log(bytes);
    FailingDisk failing(disk);
    const Stage failing_stage{failing, trace.log, sorter, person, lblCFG, bar};
    std::size_t met = 0;
    int failure = 57;
    for (std::size_t operation = 1; failure != 0; ++operation, ++met) {
        ASSERT_EQ(failure, 57) << operation - 1;
        failing.fail_at(operation, Failure::device_error);
        failure = failure_of([&] {
            unpack_rtcl_log_to_zlog_all(
                failing_stage,
                {.in_name = log_path, .form = GetParam(), .strPath = "C:\\veldrana\\"},
                rtcl_heading_of_run, outputs);
        });
    }
    // The log is opened, read to its end and closed twice, four files are opened and written.
    EXPECT_GT(met, 30U);
}

// A full disk under the .ALL does not keep rtcl_tmp.txt from being finished.
TEST_P(RtclInOnePass, UnpackedTextIsWholeWhereTheAllCannotBeWritten) {
    put_log(RtclContactBytes{}.bytes(GetParam()) + RtclContactBytes{}.bytes(GetParam()));
    FailingDisk failing(disk);
    failing.fail_writing("x_log2a.all", Failure::disk_full);
    const Stage failing_stage{failing, trace.log, sorter, person, lblCFG, bar};
    EXPECT_EQ(failure_of([&] {
                  unpack_rtcl_log_to_zlog_all(
                      failing_stage,
                      {.in_name = log_path, .form = GetParam(), .strPath = "C:\\veldrana\\"},
                      rtcl_heading_of_run, outputs);
              }),
              61);
    const std::string tmp = disk.bytes(tmp_path);
    EXPECT_EQ(std::count(tmp.begin(), tmp.end(), '\n'), 2);
    EXPECT_EQ(error_lines(), std::vector<std::string>{
                                 "エラー発生  Private Sub make_rtcl_log_to_zlog_all() ：　61"});
}

TEST_P(RtclInOnePass, MissingLogFails) {
    EXPECT_EQ(one_after_the_other(), in_one_pass());
    EXPECT_EQ(in_one_pass().failure, 53);
}

// Only what would be read as something else takes the longer way.
TEST_P(RtclInOnePass, FieldsReadBackUnlessAQuoteOrALineEndIsInThem) {
    EXPECT_TRUE(reads_back({}));
    EXPECT_TRUE(reads_back({.counter = 0x0A220A22, .dupe = '"', .days = odd_days, .points = '\n'}));
    EXPECT_TRUE(reads_back({.call = "a,b", .comment = "移動\r"}));
    EXPECT_TRUE(reads_back({.kind = "QTC\""}));
    for (const auto field : text_fields) {
        for (const char* const text : {"\"", "\n", "a\"", " \n "}) {
            RtclContactBytes contact;
            contact.*field = text;
            EXPECT_FALSE(reads_back(contact)) << text;
        }
    }
    EXPECT_FALSE(reads_back({.days = std::numeric_limits<double>::infinity()}));
}

// --- what is no unpacked log ---

TEST_F(RtclToZlog, RowCutAnywhereFails) {
    put_tmp({tmp_line()});
    const std::string whole = disk.bytes(tmp_path);
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const std::string cut = whole.substr(0, size);
        disk.put(tmp_path, cut);
        // The last field is there as soon as the comma in front of it is; only nothing is no row.
        const auto commas = std::count(cut.begin(), cut.end(), ',');
        const int expected = size == 0 || commas == 22 ? 0 : 62;
        EXPECT_EQ(failure_of([&] {
                      make_rtcl_log_to_zlog_all(stage, tmp_path, rtcl_heading_of_run, {all_path});
                  }),
                  expected)
            << size;
        EXPECT_EQ(failure_of([&] { make_rtcl_log_to_zlog_txt(stage, tmp_path, txt_path); }),
                  expected)
            << size;
    }
}

TEST_F(RtclToZlog, OtherFilesAreMisreadOrEndWithinARow) {
    for (const Damage& damage : damaged_logs()) {
        disk.put(tmp_path, damage.bytes);
        // No comma stands in them: each line is a field.
        auto fields = std::count(damage.bytes.begin(), damage.bytes.end(), '\n');
        if (!damage.bytes.empty() && damage.bytes.back() != '\n') {
            ++fields;
        }
        EXPECT_EQ(failure_of([&] { make_rtcl_log_to_zlog_txt(stage, tmp_path, txt_path); }),
                  fields % 23 == 0 ? 0 : 62)
            << damage.name;
    }
}

}  // namespace
}  // namespace veldrana
