// Code_flag: its captions, what is searched of a number, and how.
#include "masters/code_flag.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "masters/received_number.h"

namespace veldrana {
namespace {

TEST(CodeFlag, CodeTypeHasACaptionForEachFirstDigit) {
    struct Row {
        std::string_view flag;
        std::string_view caption;
    };
    for (const Row& row : std::vector<Row>{{"00", "code取得不可能なもの"},
                                           {"11", "通常の数字のみ"},
                                           {"22", "県、市等の略号使用"},
                                           {"31", "英字を削除の必要あり"},
                                           {"42", "KCJ略称 +１連番号　など"},
                                           {"51", "NIFTY　自局のIDの頭３文字"},
                                           {"64", "KYOTO　条件にて削除の必要あり"},
                                           {"71", "数字、英字の混在"}}) {
        EXPECT_EQ(code_type_caption(row.flag), row.caption) << row.flag;
    }
}

TEST(CodeFlag, FileKindHasACaptionForEachSecondDigit) {
    struct Row {
        std::string_view flag;
        std::string_view caption;
        std::optional<std::string_view> information;
        bool in_dat_folder;
    };
    for (const Row& row : std::vector<Row>{{"10", "ｎｏ．ｄａｔ", "ｎｏ．ｄａｔ", true},
                                           {"11", "DAT", "拡張子 DAT", true},
                                           {"12", "MAS", "拡張子 MAS", false},
                                           {"13", "MST", "拡張子 MST", false},
                                           {"14", "MAS", std::nullopt, false}}) {
        EXPECT_EQ(data_kind_caption(row.flag), row.caption) << row.flag;
        EXPECT_EQ(data_kind_information(row.flag), row.information) << row.flag;
        EXPECT_EQ(kind_lies_in_dat_folder(row.flag), row.in_dat_folder) << row.flag;
    }
}

TEST(CodeFlag, OtherDigitsAndMissingOnesHaveNoCaption) {
    for (const std::string_view flag : {"", "8", "95", "x6", "  "}) {
        EXPECT_EQ(code_type_caption(flag), std::nullopt) << flag;
        EXPECT_EQ(data_kind_caption(flag), std::nullopt) << flag;
        EXPECT_EQ(data_kind_information(flag), std::nullopt) << flag;
    }
}

TEST(CodeFlag, WholeFlagDecidesTheSearch) {
    for (const std::string_view flag :
         {"11", "12", "13", "21", "22", "23", "31", "32", "33", "41", "42", "51", "71"}) {
        EXPECT_EQ(search_of(flag), DatSearch::exact) << flag;
    }
    EXPECT_EQ(search_of("64"), DatSearch::prefix);
    for (const std::string_view flag :
         {"00", "01", "02", "03", "04", "10", "14", "20",  "24",  "30", "34",
          "40", "43", "44", "50", "52", "53", "54", "60",  "61",  "62", "63",
          "70", "72", "73", "74", "",   "1",  "1 ", " 11", "110", "AB"}) {
        EXPECT_EQ(search_of(flag), DatSearch::none) << flag;
    }
}

TEST(CodeFlag, FirstDigitDecidesWhatIsSearchedOfANumber) {
    struct Row {
        std::string_view flag;
        std::string_view number;
        std::string_view searched;
    };
    for (const Row& row : std::vector<Row>{// 3: the digits at its head
                                           {"31", "1234H", "1234"},
                                           {"31", "1234", "1234"},
                                           {"32", "H1234", ""},
                                           {"33", "12H34", "12"},
                                           {"31", "12 34", "12"},
                                           {"31", "１２", ""},
                                           {"31", "12東", "12"},
                                           {"31", "", ""},
                                           // 4: what stands in front of its first digit
                                           {"41", "TK12", "TK"},
                                           {"42", "TK", "TK"},
                                           {"41", "12TK", ""},
                                           {"41", "T1K2", "T"},
                                           {"41", "東京1", "東京"},
                                           {"41", "TK１2", "TK１"},
                                           // 5: whole, whatever it begins with
                                           {"51", "JK1", "JK1"},
                                           {"51", "123", "123"},
                                           // others: as it stands
                                           {"00", "1234H", "1234H"},
                                           {"11", "1234H", "1234H"},
                                           {"21", "TK12", "TK12"},
                                           {"64", "W1234", "W1234"},
                                           {"71", "12AB", "12AB"},
                                           {"", "12AB", "12AB"}}) {
        EXPECT_EQ(searched_number(row.flag, row.number), row.searched)
            << row.flag << " " << row.number;
    }
}

TEST(ReceivedNumber, ADigitIsOneOfTen) {
    for (const char digit : std::string_view("0123456789")) {
        EXPECT_TRUE(is_digit(digit));
    }
    for (const char other : std::string_view("/:aA -+.,\0\x93", 11)) {
        EXPECT_FALSE(is_digit(other)) << static_cast<int>(other);
    }
}

TEST(ReceivedNumber, IsCutAtTheFirstCharacterOfTheOtherSort) {
    EXPECT_EQ(leading_digits("1234H"), "1234");
    EXPECT_EQ(leading_digits("H1234"), "");
    EXPECT_EQ(leading_digits(" 1234"), "");
    EXPECT_EQ(leading_digits("1234"), "1234");
    EXPECT_EQ(leading_digits(""), "");
    EXPECT_EQ(leading_letters("TK12"), "TK");
    EXPECT_EQ(leading_letters("1TK"), "");
    EXPECT_EQ(leading_letters("TK"), "TK");
    EXPECT_EQ(leading_letters(""), "");
}

}  // namespace
}  // namespace veldrana
