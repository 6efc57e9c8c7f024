// The .ALL text of a binary log.
#include "readers/zlo_to_all.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "readers/zlog_text.h"
#include "tests/readers/binary_log.h"
#include "tests/readers/reader_fixture.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::SizeIs;

class ZloToAll : public ReaderFixture {
  protected:
    // The lines of the text, its heading included.
    std::vector<std::string> make(const std::vector<ZloContactBytes>& given) {
        std::string bytes = zlo_heading("x");
        for (const ZloContactBytes& contact : given) {
            bytes += contact.bytes();
        }
        return make_of(bytes);
    }

    std::vector<std::string> make_of(const std::string& bytes) {
        disk.put("C:\\log\\x.zlo", bytes);
        EXPECT_EQ(make_z2a(stage, "C:\\log\\x.zlo"), "C:\\log\\x_z2a.all");
        std::vector<std::string> lines;
        TextInput text(disk, "C:\\log\\x_z2a.all");
        for (std::string_view line; text.next_line(line);) {
            lines.emplace_back(line);
        }
        return lines;
    }
};

// --- the name ---

TEST(ZloToAllName, EndsAtTheFirstPointOfThePath) {
    EXPECT_EQ(z2a_name("C:\\log\\x.zlo"), "C:\\log\\x_z2a.all");
    EXPECT_EQ(z2a_name("C:\\log.2025\\x.zlo"), "C:\\log_z2a.all");
    EXPECT_EQ(z2a_name("C:\\log\\x.y.zlo"), "C:\\log\\x_z2a.all");
    EXPECT_EQ(z2a_name("C:\\log\\x"), "C:\\log\\x_z2a.all");
    EXPECT_EQ(z2a_name(" C:\\表\\x.zlo "), "C:\\表\\x_z2a.all");
}

TEST(ZloToAllName, TakesThe120FirstBytesOfThePath) {
    const std::string front = "C:\\" + std::string(116, 'a');  // 119 bytes
    EXPECT_EQ(z2a_name(front + "bc.zlo"), front + "b_z2a.all");
    // A double-byte character that does not fit is left out, and blanks at the cut are trimmed.
    EXPECT_EQ(z2a_name(front + "表.zlo"), front + "_z2a.all");
    EXPECT_EQ(z2a_name(front + " c.zlo"), front + "_z2a.all");
}

// --- the text ---

TEST_F(ZloToAll, HeadingIsThatOfATextLog) {
    const auto lines = make({});
    EXPECT_THAT(lines, ElementsAre("zLog for Windows       by Veldrana 5.30"));
    EXPECT_TRUE(lines[0].starts_with(heading_of(InputKind::all)));
}

TEST_F(ZloToAll, ContactStandsInItsColumns) {
    EXPECT_THAT(make({{.call = "JR8YYX/1",
                       .number_sent = "11M",
                       .number_received = "104M",
                       .band = 12,
                       .multiplier_1 = "104",
                       .multiplier_2 = "JA8",
                       .multiplier_1_is_new = true,
                       .multiplier_2_is_new = true,
                       .points = 3,
                       .op = "JA1ZZZ",
                       .memo = "SSN (1296012)"}})[1],
                "2025/04/26 21:05 JR8YYX/1     599 11M     589 104M    104   JA8   1200 CW   3  "
                "%%JA1ZZZ%%SSN (1296012)");
}

TEST_F(ZloToAll, ContactWithoutANewMultiplierShowsAHyphenInBothColumns) {
    EXPECT_EQ(make({{.multiplier_1 = "104", .multiplier_2 = "JA8"}})[1],
              "2025/04/26 21:05 JA1ZZA       599 11M     589 104M    -     -     7    CW   1  ");
}

TEST_F(ZloToAll, NewMultiplierWithoutATextShowsNothing) {
    EXPECT_EQ(make({{.multiplier_1 = "", .multiplier_1_is_new = true}})[1].substr(54, 12),
              "      -     ");
}

TEST_F(ZloToAll, PartsAreCutToTheirWidths) {
    const std::string line = make({{.call = "123456789012",
                                    .number_sent = "123456789",
                                    .number_received = "abcdefghi",
                                    .report_sent = 65535,
                                    .report_received = 12345,
                                    .mode = 5,
                                    .multiplier_1 = "ABCDEFGH",
                                    .multiplier_2 = "１２３４",
                                    .multiplier_1_is_new = true,
                                    .multiplier_2_is_new = true,
                                    .points = 255}})[1];
    EXPECT_EQ(line,
              "2025/04/26 21:05 123456789012 655312345678"
              "1234abcdefghABCDEF１２３7    Other255");
}

TEST_F(ZloToAll, OperatorAndMemoEndInFrontOfANul) {
    ZloContactBytes contact{.op = "JA1ZZZ", .memo = "memo"};
    contact.op += std::string("\0x", 2);
    contact.memo += std::string("\0x", 2);
    EXPECT_TRUE(make({contact})[1].ends_with("1  %%JA1ZZZ%%memo"));
    contact.op = std::string("\0x", 2);
    EXPECT_TRUE(make({contact})[1].ends_with("1  memo"));
}

TEST_F(ZloToAll, HeadingRecordHasNoLine) {
    EXPECT_THAT(make({{}, {}}), SizeIs(3));
}

TEST_F(ZloToAll, ModeAndBandBesideTheTablesStayAsTheyWere) {
    const auto lines = make({{.mode = 1, .band = 4}, {.mode = 6, .band = 16}});
    EXPECT_EQ(lines[2].substr(66, 10), "14   SSB  ");
}

TEST_F(ZloToAll, TextIsReadLikeAnyTextLog) {
    make({{.call = "JR8YYX/1", .op = "JA1ZZZ", .memo = "SSN (7012)"}});
    use.mark(RemarkItem::op);
    use.mark(RemarkItem::memo);
    a_2_t(stage,
          {.in_name = "C:\\log\\x_z2a.all", .in_Dir = "C:\\log\\", .options = options, .use = use});
    EXPECT_THAT(contacts(),
                ElementsAre(ElementsAre("2025", "04", "26", "2105", "JR8YYX/1", "599", "589", "7",
                                        "CW ", "JA1ZZZ", "SSN", "7.012", "104M")));
}

TEST_F(ZloToAll, TellsThatItIsDone) {
    make({{}});
    EXPECT_EQ(lblCFG.caption.get(), "z2a ﾌｧｲﾙ  作 成 終 了");
    EXPECT_EQ(lblCFG.fore_colour.get(), colours::blue);
    EXPECT_THAT(trace.lines, ElementsAre("Open C:\\log\\x.zlo For Input As #f_i",
                                         "Open C:\\log\\x_z2a.all For Output As #f_o"));
}

// --- what is no log ---

TEST_F(ZloToAll, FileCutAnywhereLosesItsLastRecord) {
    const std::string whole =
        zlo_heading("x") + ZloContactBytes{}.bytes() + ZloContactBytes{}.bytes();
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        EXPECT_THAT(make_of(whole.substr(0, size)), SizeIs(size < 512 ? 1 : size / 256)) << size;
    }
}

TEST_F(ZloToAll, MissingLogLeavesNoText) {
    disk.put_folder("C:\\log");
    EXPECT_EQ(failure_of([&] { make_z2a(stage, "C:\\log\\none.zlo"); }), 53);
    EXPECT_FALSE(disk.file_exists("C:\\log\\none_z2a.all"));
}

TEST_F(ZloToAll, TimeOfNoCalendarOverflows) {
    EXPECT_EQ(failure_of([&] { make({{.days = 1e300}}); }), 6);
}

}  // namespace
}  // namespace veldrana
