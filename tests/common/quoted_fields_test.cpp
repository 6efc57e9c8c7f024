// The quoted-field form: what is written, what is read, and what survives both.
#include "common/quoted_fields.h"

#include <random>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "tests/doubles/string_lines.h"

namespace veldrana {
namespace {

using testing::ElementsAre;

using Fields = std::vector<std::string>;

auto fails_with(Failure failure) {
    return testing::Throws<RunTimeError>(testing::Property(&RunTimeError::failure, failure));
}

std::string written(const Fields& fields) {
    const std::vector<std::string_view> views(fields.begin(), fields.end());
    QuotedLine line;
    line.assign(views);
    return std::string(line.text());
}

TEST(QuotedLine, PutsEveryFieldInQuotesAndCommasBetween) {
    EXPECT_EQ(written({"JA1QZX", "599", "漢字"}), R"("JA1QZX","599","漢字")");
    EXPECT_EQ(written({"JA1QZX"}), R"("JA1QZX")");
}

TEST(QuotedLine, KeepsEmptyFieldsAndBlanks) {
    EXPECT_EQ(written({""}), R"("")");
    EXPECT_EQ(written({"", "", ""}), R"("","","")");
    EXPECT_EQ(written({" a ", "  "}), R"(" a ","  ")");
}

TEST(QuotedLine, EscapesNothing) {
    EXPECT_EQ(written({R"(a"b)", "c,d", R"(\n)", R"("")"}), R"("a"b","c,d","\n","""")");
}

TEST(QuotedLine, OfNoFieldIsEmpty) {
    EXPECT_EQ(QuotedLine().text(), "");
    EXPECT_EQ(written({}), "");
}

TEST(QuotedLine, ReplacesWhatItHeld) {
    const std::vector<std::string_view> longer{"JA1QZX", "599"};
    const std::vector<std::string_view> shorter{"漢"};
    QuotedLine line;
    line.assign(longer);
    EXPECT_EQ(line.text(), R"("JA1QZX","599")");
    line.assign(shorter);
    EXPECT_EQ(line.text(), R"("漢")");
    line.assign(longer);
    EXPECT_EQ(line.text(), R"("JA1QZX","599")");
    line.assign({});
    EXPECT_EQ(line.text(), "");
}

struct Reading {
    std::string line;
    Fields fields;
};

void expect_fields(const std::vector<Reading>& readings) {
    for (const Reading& it : readings) {
        EXPECT_EQ(split_quoted_fields(it.line), it.fields) << it.line;
    }
}

TEST(SplitQuotedFields, EndsFieldsAtCommasOutsideQuotes) {
    expect_fields({
        {R"("a","b","c")", {"a", "b", "c"}},
        {R"("a,b","c")", {"a,b", "c"}},
        {R"("a",b,"c")", {"a", "b", "c"}},
        {R"(",",",")", {",", ","}},
        {"a,b", {"a", "b"}},
        {R"(a"b,c"d,e)", {R"(a"b,c"d)", "e"}},
    });
}

TEST(SplitQuotedFields, FindsEmptyFields) {
    expect_fields({
        {"", {""}},
        {R"("")", {""}},
        {",", {"", ""}},
        {R"("","")", {"", ""}},
        {"a,", {"a", ""}},
        {R"("a",)", {"a", ""}},
        {",a", {"", "a"}},
        {"a,,b", {"a", "", "b"}},
    });
}

TEST(SplitQuotedFields, DropsBlanksAroundAnUnquotedField) {
    expect_fields({
        {" a , b c ,d ", {"a", "b c", "d"}},
        {"   ", {""}},
        {" , ", {"", ""}},
        {"\ta\t,　b　", {"\ta\t", "　b　"}},  // neither is a blank
        {R"( a "b" )", {R"(a "b")"}},         // the field does not begin with a quote
    });
}

TEST(SplitQuotedFields, DropsBlanksInFrontOfAnOpeningQuote) {
    expect_fields({{R"("a",  "b")", {"a", "b"}}, {R"(   " a ")", {" a "}}});
}

TEST(SplitQuotedFields, KeepsBlanksInsideQuotes) {
    expect_fields({{R"(" a ","  ")", {" a ", "  "}}});
}

TEST(SplitQuotedFields, RemovesTheFirstAndTheLastQuoteOfAFieldOnly) {
    expect_fields({
        {R"("a"b"c")", {R"(a"b"c)"}},
        {R"("a""b")", {R"(a""b)"}},
        {R"("""a""")", {R"(""a"")"}},
        {R"("""",x)", {R"("")", "x"}},
        {R"("a"x,y"b")", {"ax", R"(y"b")"}},
    });
}

TEST(SplitQuotedFields, KeepsATextBehindTheLastQuote) {
    expect_fields({
        {R"("a"b,"c")", {"ab", "c"}},
        {R"("a" ,"c")", {"a ", "c"}},
        {R"("a"b"c"d)", {R"(a"b"cd)"}},
        {R"(""b)", {"b"}},
    });
}

TEST(SplitQuotedFields, ReadsAnOpenFieldToTheEndOfTheLine) {
    expect_fields({
        {R"("abc)", {"abc"}},
        {R"("a,b,c)", {"a,b,c"}},
        {R"(")", {""}},
        {R"(x,")", {"x", ""}},
        {R"("a",",b)", {"a", ",b"}},
    });
}

TEST(SplitQuotedFields, JoinsFieldsBehindAnOddQuoteUpToTheNext) {
    EXPECT_EQ(split_quoted_fields(written({R"(5"9)", "b"})), (Fields{R"(5"9","b)"}));
    EXPECT_EQ(split_quoted_fields(written({R"(5"9)", R"(c"d)", "e"})),
              (Fields{R"(5"9","c"d)", "e"}));
    EXPECT_EQ(split_quoted_fields(written({R"(5"9)", "b", R"(c"d)", "e"})),
              (Fields{R"(5"9","b","c"d)", "e"}));
}

TEST(QuotedFields, EachSplitReplacesTheOneBefore) {
    QuotedFields fields;
    fields.split(R"("a",b,"c")");
    EXPECT_THAT(fields.all(), ElementsAre("a", "b", "c"));
    fields.split(R"("d"e)");
    EXPECT_THAT(fields.all(), ElementsAre("de"));
    fields.split("");
    EXPECT_THAT(fields.all(), ElementsAre(""));
}

TEST(RowReader, ReadsRowsOfItsColumns) {
    StringLines lines({R"("a","b")", R"("c","d")"});
    RowReader row(lines, 2);
    row.read();
    EXPECT_THAT(row.columns(), ElementsAre("a", "b"));
    EXPECT_FALSE(row.at_end());
    row.read();
    EXPECT_THAT(row.columns(), ElementsAre("c", "d"));
    EXPECT_TRUE(row.at_end());
}

TEST(RowReader, AShortLineTakesTheRestFromTheNextOne) {
    StringLines lines({R"("a","b","c")", R"("d")", R"("e","f","g","h")", R"("i")"});
    RowReader row(lines, 3);
    row.read();
    row.read();
    EXPECT_THAT(row.columns(), ElementsAre("d", "e", "f"));
    row.read();
    EXPECT_THAT(row.columns(), ElementsAre("g", "h", "i"));
    EXPECT_TRUE(row.at_end());
}

TEST(RowReader, AMissingColumnIsAReadPastTheEnd) {
    StringLines lines({R"("a")"});
    RowReader row(lines, 2);
    try {
        row.read();
        FAIL() << "no failure";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.failure(), Failure::input_past_end);
    }
}

TEST(QuotedFields, SurviveWritingAndReadingWithEvenQuotesAndNoComma) {
    const Fields pieces{"a", " ", "漢", "ｱ", "'", ";", R"("")", R"("x")", R"(" ")"};
    std::mt19937 random(73);
    for (int round = 0; round < 2000; ++round) {
        Fields fields(1 + random() % 6);
        for (std::string& field : fields) {
            for (std::size_t left = random() % 6; left > 0; --left) {
                field += pieces[random() % pieces.size()];
            }
        }
        ASSERT_EQ(split_quoted_fields(written(fields)), fields) << written(fields);
    }
}

TEST(QuotedFields, SurviveWithCommasThatDoNotStandBetweenInnerQuotes) {
    const Fields fields{"a,b", ",", R"(a,"b",c)"};
    EXPECT_EQ(split_quoted_fields(written(fields)), fields);
}

TEST(QuotedFields, AreCutAtACommaBetweenInnerQuotes) {
    EXPECT_EQ(split_quoted_fields(written({R"(a"x,y"b)"})), (Fields{R"(ax)", R"(y"b")"}));
}

TEST(QuotedFieldReader, GoesOnWithTheNextLineWhateverTheNumberOfFields) {
    StringLines lines({R"("a","b")", R"("c")", R"("d,e",f)"});
    QuotedFieldReader reader(lines);
    Fields read;
    while (!reader.at_end()) {
        read.emplace_back(reader.next());
    }
    EXPECT_THAT(read, ElementsAre("a", "b", "c", "d,e", "f"));
}

TEST(QuotedFieldReader, EndsAFieldAtTheLineEvenInsideQuotes) {
    StringLines lines({R"("a,b)", R"(c","d")"});
    QuotedFieldReader reader(lines);
    EXPECT_EQ(reader.next(), "a,b");
    EXPECT_EQ(reader.next(), R"(c","d")");
    EXPECT_TRUE(reader.at_end());
}

TEST(QuotedFieldReader, ReadsAnEmptyLineAsAnEmptyField) {
    StringLines lines({R"("a")", "", R"("b")"});
    QuotedFieldReader reader(lines);
    EXPECT_EQ(reader.next(), "a");
    EXPECT_EQ(reader.next(), "");
    EXPECT_EQ(reader.next(), "b");
    EXPECT_TRUE(reader.at_end());
}

TEST(QuotedFieldReader, IsAtTheEndBehindTheLastFieldOnly) {
    StringLines lines({R"("a","")"});
    QuotedFieldReader reader(lines);
    EXPECT_FALSE(reader.at_end());
    reader.next();
    EXPECT_FALSE(reader.at_end());
    reader.next();
    EXPECT_TRUE(reader.at_end());
}

TEST(QuotedFieldReader, FailsPastTheLastField) {
    StringLines lines({R"("a")"});
    QuotedFieldReader reader(lines);
    reader.next();
    EXPECT_THAT([&] { reader.next(); }, fails_with(Failure::input_past_end));
    EXPECT_THAT([&] { reader.next(); }, fails_with(Failure::input_past_end));
}

TEST(QuotedFieldReader, FailsOnAFileWithoutLines) {
    StringLines lines({});
    QuotedFieldReader reader(lines);
    EXPECT_TRUE(reader.at_end());
    EXPECT_THAT([&] { reader.next(); }, fails_with(Failure::input_past_end));
}

TEST(ReadLine, GivesEveryLineAndFailsPastTheLast) {
    StringLines lines({"a", "", "b"});
    EXPECT_EQ(read_line(lines), "a");
    EXPECT_EQ(read_line(lines), "");
    EXPECT_EQ(read_line(lines), "b");
    EXPECT_THAT([&] { read_line(lines); }, fails_with(Failure::input_past_end));
}

}  // namespace
}  // namespace veldrana
