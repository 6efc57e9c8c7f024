#include "readers/contest_preselection.h"

#include <initializer_list>

#include "common/text.h"

namespace veldrana {
namespace {

std::string without(std::string text, std::initializer_list<std::string_view> pieces) {
    for (const std::string_view piece : pieces) {
        text = replace_all(text, piece, "");
    }
    return text;
}

std::string searched_name(std::string_view in_name) {
    const std::string capitals = upper(in_name);
    return without(capitals.substr(capitals.rfind('\\') + 1), {"_Z2A.ALL", ".TXT", ".CBR", ".ADI"});
}

// 0 for no hit.
std::size_t first_hit(const std::vector<ContestKeys>& rows, std::string ContestKeys::*key,
                      std::size_t from, std::string_view name) {
    for (std::size_t row = from; row < rows.size(); ++row) {
        if (name.find(rows[row].*key) != std::string_view::npos) {
            return row;
        }
    }
    return 0;
}

}  // namespace

ContestKeys keys_of(const ContestEntry& entry) {
    std::string name =
        without(upper(entry.Con_name),
                {"コンテスト", "用",         "オール", "ＳＳＢ", "ＣＷ",   "ＡＭ", "ＦＭ",
                 "ＲＴＴＹ",   "Ｖ・ＵＨＦ", "ＶＨＦ", "ＵＨＦ", "Ｖ・Ｕ", "SSB",  "CW",
                 "AM",         "FM",         "RTTY",   "V・U",   "VHF",    "UHF",  "V・U"});
    for (const std::string_view parenthesis : {"(", "（"}) {
        name = name.substr(0, name.find(parenthesis));
    }
    return {.by_settings_file = without(upper(entry.Cfg_name), {".CFG"}),
            .by_data_file = without(upper(entry.Dat_name), {".DAT", ".MAS", ".MST"}),
            .by_name = name};
}

std::vector<std::size_t> preselected_rows(const std::vector<ContestKeys>& rows,
                                          std::string_view in_name) {
    constexpr std::size_t first_row_of_settings_files = 64;
    const std::string name = searched_name(in_name);
    const std::size_t a =
        first_hit(rows, &ContestKeys::by_settings_file, first_row_of_settings_files, name);
    const std::size_t b = first_hit(rows, &ContestKeys::by_data_file, 0, name);
    const std::size_t c = first_hit(rows, &ContestKeys::by_name, 0, name);
    std::vector<std::size_t> selected;
    if (a != 0) {
        selected.push_back(a);
    }
    if (b != 0 || c != 0) {
        selected.push_back(b != 0 ? b : c);
    }
    return selected;
}

}  // namespace veldrana
