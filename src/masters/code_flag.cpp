#include "masters/code_flag.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

#include "masters/received_number.h"

namespace veldrana {
namespace {

constexpr std::array<std::string_view, 8> type_captions{
    "code取得不可能なもの",          "通常の数字のみ",          "県、市等の略号使用",
    "英字を削除の必要あり",          "KCJ略称 +１連番号　など", "NIFTY　自局のIDの頭３文字",
    "KYOTO　条件にて削除の必要あり", "数字、英字の混在"};

constexpr std::array<std::string_view, 5> kind_captions{"ｎｏ．ｄａｔ", "DAT", "MAS", "MST", "MAS"};

constexpr std::array<std::string_view, 4> kind_informations{"ｎｏ．ｄａｔ", "拡張子 DAT",
                                                            "拡張子 MAS", "拡張子 MST"};

constexpr std::array<std::string_view, 13> exact_flags{"11", "12", "13", "21", "22", "23", "31",
                                                       "32", "33", "41", "42", "51", "71"};
constexpr std::string_view prefix_flag = "64";

char digit_at(std::string_view Code_flag, std::size_t place) {
    return place < Code_flag.size() ? Code_flag[place] : '\0';
}

std::optional<std::string_view> caption_of(char digit, std::span<const std::string_view> captions) {
    if (!is_digit(digit) || static_cast<std::size_t>(digit - '0') >= captions.size()) {
        return std::nullopt;
    }
    return captions[static_cast<std::size_t>(digit - '0')];
}

}  // namespace

std::optional<std::string_view> code_type_caption(std::string_view Code_flag) {
    return caption_of(digit_at(Code_flag, 0), type_captions);
}

std::optional<std::string_view> data_kind_caption(std::string_view Code_flag) {
    return caption_of(digit_at(Code_flag, 1), kind_captions);
}

std::optional<std::string_view> data_kind_information(std::string_view Code_flag) {
    return caption_of(digit_at(Code_flag, 1), kind_informations);
}

bool kind_lies_in_dat_folder(std::string_view Code_flag) {
    const char kind = digit_at(Code_flag, 1);
    return kind == '0' || kind == '1';
}

DatSearch search_of(std::string_view Code_flag) {
    if (Code_flag == prefix_flag) {
        return DatSearch::prefix;
    }
    const bool is_exact =
        std::find(exact_flags.begin(), exact_flags.end(), Code_flag) != exact_flags.end();
    return is_exact ? DatSearch::exact : DatSearch::none;
}

std::string_view searched_number(std::string_view Code_flag, std::string_view number) {
    switch (digit_at(Code_flag, 0)) {
        case '3':
            return leading_digits(number);
        case '4':
            return leading_letters(number);
        default:
            return number;
    }
}

}  // namespace veldrana
