// How a remark is composed: what each item says, lengths, blanks, and what the memo leaves behind.
#include "rows/remarks.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

using Items = std::vector<RemarkItem>;
using Lengths = std::vector<std::pair<RemarkItem, std::size_t>>;

// The texts of a contact, of which a test names those that it is about.
struct Texts {
    std::string_view memo = {};
    std::string_view op = {};
    std::string_view contest = {};
    std::string_view number_received = {};
    std::string_view rmks1 = {};
    std::string_view rmks2 = {};

    RemarkTexts all() const {
        return {.memo = std::string(memo),
                .op = op,
                .contest = contest,
                .number_received = number_received,
                .rmks1 = rmks1,
                .rmks2 = rmks2};
    }
};

RemarkLengths lengths_of(const Lengths& lengths) {
    RemarkLengths all;
    for (const auto& [item, length] : lengths) {
        all.set(item, length);
    }
    return all;
}

// A length of an item that is not composed: makes the layout a fixed one and touches nothing else.
const RemarkLengths fixed_by_another = lengths_of({{RemarkItem::contest, 3}});

std::string composed(const Items& items, const Texts& named, const RemarkLengths& lengths = {},
                     bool blank_between = false) {
    RemarkTexts texts = named.all();
    return compose_remark(items, lengths, blank_between, texts);
}

TEST(Remark, EveryItemGivesItsText) {
    struct Row {
        RemarkItem item;
        Texts texts;
        std::string_view expected;
    };
    const std::vector<Row> rows{
        {RemarkItem::memo, {.memo = "nice fist"}, "nice fist"},
        {RemarkItem::memo, {.memo = "memo=nice fist"}, "nice fist"},
        {RemarkItem::memo, {.memo = "a memo=b memo=c"}, "a b c"},  // everywhere
        {RemarkItem::memo, {.memo = "MEMO=a"}, "MEMO=a"},
        {RemarkItem::memo, {.memo = ""}, ""},
        {RemarkItem::memo_equals, {.memo = "nice fist"}, "memo=nice fist"},
        {RemarkItem::memo_equals, {.memo = "memo=nice fist"}, "memo=nice fist"},
        {RemarkItem::memo_equals, {.memo = "a memo=b"}, "a memo=b"},  // held anywhere
        {RemarkItem::memo_equals, {.memo = "memo="}, "memo="},
        {RemarkItem::op, {.op = "JA1ZZZ"}, "JA1ZZZ"},
        {RemarkItem::op, {.op = ""}, ""},
        {RemarkItem::op_percent, {.op = "JA1ZZZ"}, "%JA1ZZZ%"},
        {RemarkItem::op_percent, {.op = " A "}, "% A %"},  // trimmed for the test alone
        {RemarkItem::op_percent, {.op = ""}, ""},
        {RemarkItem::op_percent, {.op = "  "}, ""},
        {RemarkItem::contest, {.contest = "ALL JA"}, "ALL JA"},
        {RemarkItem::rcvd, {.number_received = "104M"}, "104M"},
        {RemarkItem::rmks1, {.rmks1 = "first"}, "first"},
        {RemarkItem::rmks2, {.rmks2 = "second"}, "second"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(std::string(remark_item_names.at(static_cast<std::size_t>(row.item))) + ": " +
                     std::string(row.expected));
        EXPECT_EQ(composed({row.item}, row.texts), row.expected);
    }
}

TEST(Remark, ItemsTakeNothingFromTheTextsOfOthers) {
    const Texts all{
        .memo = "m", .op = "o", .contest = "c", .number_received = "n", .rmks1 = "1", .rmks2 = "2"};
    EXPECT_EQ(composed({RemarkItem::rmks2, RemarkItem::rmks1, RemarkItem::rcvd, RemarkItem::contest,
                        RemarkItem::op, RemarkItem::memo},
                       all),
              "21ncom");
    EXPECT_EQ(composed({RemarkItem::op_percent, RemarkItem::memo_equals}, all), "%o%memo=m");
}

TEST(Remark, EmptyMemoWithMemoEqualsGivesNothing) {
    EXPECT_EQ(composed({RemarkItem::memo_equals}, {.memo = ""}), "");
    // With a length in use nothing is trimmed, so that a blank memo shows as nothing too.
    EXPECT_EQ(composed({RemarkItem::memo_equals}, {.memo = "  "}, fixed_by_another), "");
}

TEST(Remark, CommentsAreTrimmedInAFixedLayoutTooOtherTextsAreNot) {
    struct Row {
        RemarkItem item;
        Texts texts;
        std::string_view expected;
    };
    const RemarkLengths lengths = lengths_of({{RemarkItem::memo, 0}, {RemarkItem::op_percent, 9}});
    const std::vector<Row> rows{
        {RemarkItem::rmks1, {.rmks1 = "  first "}, "first"},
        {RemarkItem::rmks2, {.rmks2 = "  second "}, "second"},
        {RemarkItem::memo, {.memo = " m "}, " m "},
        {RemarkItem::memo_equals, {.memo = " m "}, "memo= m "},
        {RemarkItem::op, {.op = " o "}, " o "},
        {RemarkItem::contest, {.contest = " c "}, " c "},
        {RemarkItem::rcvd, {.number_received = " n "}, " n "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(composed({row.item}, row.texts, lengths), row.expected);
    }
}

// --- joining ---

TEST(Remark, IsJoinedByLengthsAndCheck1) {
    struct Row {
        bool any_length;
        bool check_1;
        std::string_view expected;
    };
    const std::vector<Row> rows{{false, true, "AB 12"},
                                {false, false, "AB12"},
                                {true, true, " AB  12  "},
                                {true, false, " AB 12 "}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(
            composed({RemarkItem::op, RemarkItem::rcvd}, {.op = " AB ", .number_received = "12 "},
                     row.any_length ? fixed_by_another : RemarkLengths{}, row.check_1),
            row.expected);
    }
}

TEST(Remark, EmptyItemsLeaveNoBlankUnlessTheLayoutIsFixed) {
    struct Row {
        bool any_length;
        bool check_1;
        std::string_view expected;
    };
    const std::vector<Row> rows{{false, true, "AB 12"},
                                {false, false, "AB12"},
                                {true, true, " AB  12 "},
                                {true, false, "AB12"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(composed({RemarkItem::rmks1, RemarkItem::op, RemarkItem::rmks2, RemarkItem::rcvd},
                           {.op = "AB", .number_received = "12"},
                           row.any_length ? fixed_by_another : RemarkLengths{}, row.check_1),
                  row.expected);
    }
}

TEST(Remark, WithoutItemsIsEmpty) {
    EXPECT_EQ(composed({}, {.memo = "m", .op = "o"}, {}, true), "");
    EXPECT_EQ(composed({}, {.memo = "m", .op = "o"}, fixed_by_another, true), "");
}

// A full-width blank is a character like any other.
TEST(Remark, OnlyBlanksOfOneByteAreTrimmed) {
    EXPECT_EQ(composed({RemarkItem::memo}, {.memo = " 　東　 "}), "　東　");
}

// --- lengths ---

TEST(Remark, LengthOf10WithAnItemOf3Gives7BlanksBehindIt) {
    const RemarkLengths lengths = lengths_of({{RemarkItem::op, 10}});
    EXPECT_EQ(composed({RemarkItem::op}, {.op = "ABC"}, lengths, false), "ABC       ");
    EXPECT_EQ(composed({RemarkItem::op}, {.op = "ABC"}, lengths, true), "ABC        ");
    EXPECT_EQ(composed({RemarkItem::op, RemarkItem::rcvd}, {.op = "ABC", .number_received = "12"},
                       lengths, false),
              "ABC       12");
}

TEST(Remark, EveryItemIsFilledOrCutToItsLength) {
    const Texts texts{.memo = "abcde",
                      .op = "fghij",
                      .contest = "klmno",
                      .number_received = "pqrst",
                      .rmks1 = "uvwxy",
                      .rmks2 = "zABCD"};
    struct Row {
        RemarkItem item;
        std::size_t length;
        std::string_view expected;
    };
    const std::vector<Row> rows{
        {RemarkItem::memo, 2, "ab"},        {RemarkItem::memo, 5, "abcde"},
        {RemarkItem::memo, 6, "abcde "},    {RemarkItem::memo_equals, 6, "memo=a"},
        {RemarkItem::op, 1, "f"},           {RemarkItem::op, 7, "fghij  "},
        {RemarkItem::op_percent, 3, "%fg"}, {RemarkItem::op_percent, 8, "%fghij% "},
        {RemarkItem::contest, 4, "klmn"},   {RemarkItem::contest, 6, "klmno "},
        {RemarkItem::rcvd, 3, "pqr"},       {RemarkItem::rcvd, 6, "pqrst "},
        {RemarkItem::rmks1, 2, "uv"},       {RemarkItem::rmks1, 7, "uvwxy  "},
        {RemarkItem::rmks2, 2, "zA"},       {RemarkItem::rmks2, 7, "zABCD  "},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.expected);
        EXPECT_EQ(composed({row.item}, texts, lengths_of({{row.item, row.length}})), row.expected);
    }
}

TEST(Remark, AnEmptyItemIsFilledToItsLength) {
    EXPECT_EQ(composed({RemarkItem::op, RemarkItem::rcvd}, {.op = "", .number_received = "12"},
                       lengths_of({{RemarkItem::op, 4}})),
              "    12");
}

TEST(Remark, ADoubleByteCharacterCountsAsOneInALength) {
    struct Row {
        std::size_t length;
        std::string_view expected;
    };
    const std::vector<Row> rows{{1, "東"}, {2, "東京"}, {3, "東京A"}, {5, "東京A  "}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.length);
        EXPECT_EQ(composed({RemarkItem::memo}, {.memo = "東京A"},
                           lengths_of({{RemarkItem::memo, row.length}})),
                  row.expected);
    }
}

TEST(Remark, ALengthOf0LeavesTheItemAsItIs) {
    EXPECT_EQ(composed({RemarkItem::rcvd, RemarkItem::op}, {.op = "ABCDE", .number_received = "12"},
                       lengths_of({{RemarkItem::rcvd, 4}})),
              "12  ABCDE");
}

// A length that a layout cannot ask for still counts once it is there.
TEST(Remark, ALengthOfMemoEqualsCountsInTheSum) {
    const RemarkLengths lengths = lengths_of({{RemarkItem::memo_equals, 8}});
    EXPECT_EQ(composed({RemarkItem::op}, {.op = " A "}, lengths), " A ");
    EXPECT_EQ(composed({RemarkItem::memo_equals}, {.memo = "abcdef"}, lengths), "memo=abc");
}

// --- the work field of the memo ---

TEST(Remark, MemoTakesMemoEqualsOutForLaterItemsAndTheOtherRemark) {
    RemarkTexts texts = Texts{.memo = "a memo=b"}.all();
    EXPECT_EQ(compose_remark({RemarkItem::memo, RemarkItem::memo_equals}, {}, false, texts),
              "a bmemo=a b");
    EXPECT_EQ(compose_remark({RemarkItem::memo_equals}, {}, false, texts), "memo=a b");
}

TEST(Remark, MemoEqualsLeavesTheMemoAsItIs) {
    RemarkTexts texts = Texts{.memo = "b"}.all();
    EXPECT_EQ(compose_remark({RemarkItem::memo_equals}, {}, false, texts), "memo=b");
    EXPECT_EQ(compose_remark({RemarkItem::memo}, {}, false, texts), "b");
    EXPECT_EQ(texts.memo, "b");
}

TEST(Remark, ALengthCutsTheItemAndNotTheMemo) {
    RemarkTexts texts = Texts{.memo = "memo=abcdef"}.all();
    const RemarkLengths lengths = lengths_of({{RemarkItem::memo, 2}});
    EXPECT_EQ(compose_remark({RemarkItem::memo}, lengths, false, texts), "ab");
    EXPECT_EQ(texts.memo, "abcdef");
}

}  // namespace
}  // namespace veldrana
