// Lines put together from pieces and fixed columns.
#include "common/column_line.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "common/text.h"

namespace veldrana {
namespace {

TEST(ColumnLineTest, PiecesFollowEachOther) {
    ColumnLine line;
    EXPECT_EQ(line.text(), "");
    EXPECT_EQ(line.add("a", "", "漢字", std::string("b")).add("c").text(), "a漢字bc");
    EXPECT_EQ(line.clear().add("d").text(), "d");
}

// Short copies go by the size.
TEST(ColumnLineTest, PiecesOfEverySizeKeepTheirBytes) {
    const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    for (std::size_t size = 0; size <= alphabet.size(); ++size) {
        ColumnLine line;
        EXPECT_EQ(line.add("<", std::string_view(alphabet).substr(0, size), ">").text(),
                  "<" + alphabet.substr(0, size) + ">");
    }
}

TEST(ColumnLineTest, ColumnsAreFilledAndCut) {
    ColumnLine line;
    line.add("x").add_columns(
        std::array<FixedText, 5>{{{"ab", 4}, {"abcdef", 3, 2}, {"", 2}, {"y", 0}, {"z", 1}}});
    EXPECT_EQ(line.text(), "xab  abc    z");
    EXPECT_EQ(line.add_column("1234", 2).add_column("", 1).text(), "xab  abc    z12 ");
}

TEST(ColumnLineTest, ColumnsTakeBytesOfTheCodePage) {
    std::string unreadable;
    append_character(unreadable, unreadable_byte + 0x80);
    ColumnLine line;
    line.add_columns(std::array<FixedText, 5>{
        {{"ab", 3}, {"漢字", 3, 1}, {"ｱｲｳ", 2}, {unreadable, 2, 1}, {"c山", 5}}});
    EXPECT_EQ(line.text(), "ab 漢  ｱｲ" + unreadable + "  c山  ");
    // A character behind the cut does no harm.
    EXPECT_EQ(line.clear().add_column("abc漢", 3).text(), "abc");
}

TEST(ColumnLineTest, LongLinesFindRoom) {
    const std::string long_piece(5000, 'x');
    ColumnLine line;
    line.add(long_piece, "漢").add_column(long_piece, 3000);
    EXPECT_EQ(line.text(), long_piece + "漢" + std::string(3000, 'x'));
}

}  // namespace
}  // namespace veldrana
