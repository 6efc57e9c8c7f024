#include "masters/master_checks.h"

#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "masters/ending_boxes.h"
#include "settings/environment_settings.h"
#include "settings/hosts.h"

namespace veldrana {
namespace {

constexpr std::size_t highest_number = 20;
constexpr std::ptrdiff_t most_records = 45000;
constexpr std::ptrdiff_t headings = 2;
constexpr std::string_view name_mas_txt = "name_mas.txt";
constexpr std::string_view user_text_heading = "ｺｰﾙｻｲﾝ|__氏  名___|";

std::string numbered(std::size_t number) {
    return "name_mas" + std::to_string(number) + ".txt";
}

std::string in_folder(std::string_view folder, std::string_view name) {
    return std::string(folder).append(name);
}

std::string copy_there(std::string_view folder) {
    return std::string(folder).append("　に ｃｏｐｙ して下さい。。");
}

std::size_t highest_of(Disk& disk, std::string_view folder) {
    std::size_t number = highest_number;
    while (number > 0 && !disk.file_exists(in_folder(folder, numbered(number)))) {
        --number;
    }
    return number;
}

void require_no_gap(const Stage& stage, std::string_view folder, std::size_t highest) {
    for (std::size_t number = 1; number < highest; ++number) {
        if (!stage.disk.file_exists(in_folder(folder, numbered(number)))) {
            show_and_end(
                stage.person, missing_file_title,
                spaced_lines({"[  " + numbered(highest) + "  ]  までありますが、連続で必要な",
                              "[  " + numbered(number) + "  ]  がありません。",
                              copy_there(folder)}));
        }
    }
}

// The check where there is no numbered file; returns Check03 as it is to stand.
bool check_name_mas_txt(const Stage& stage, std::string_view folder, bool Check03) {
    const bool is_there = stage.disk.file_exists(in_folder(folder, name_mas_txt));
    if (!is_there && has_backslash(folder)) {
        show_and_end(stage.person, missing_file_title,
                     spaced_lines({"[ name_mas.txt ]  がありません。", copy_there(folder)}));
    }
    if (!is_there && Check03) {
        stage.person.show({.title = "　　name_mas.txt　は使用しません",
                           .text = "　「 QRA の取得する 」 のレ点を消しました。",
                           .icon = Icon::information});
    }
    if (is_there && !Check03) {
        stage.person.show({.title = "　　name_mas.txt　の使用が可能です",
                           .text = spaced_lines(
                               {"「 name_mas ．txt 」より QRA の取得する場合には",
                                "メイン画面の [ dat / mas ]  タブの中の「 name_mas ．txt より 」の",
                                "　「 QRA の取得する 」 のレ点を付けて下さい。"}),
                           .icon = Icon::information});
    }
    return is_there && Check03;
}

// How many lines a file has; a last one without an end counts.
std::ptrdiff_t lines_of(const Stage& stage, const std::string& path) {
    TextInput input = stage.open_input(path);
    std::ptrdiff_t lines = 0;
    for (std::string_view line; input.next_line(line);) {
        ++lines;
    }
    return lines;
}

std::vector<std::string> count_lines(const std::vector<MasterCount>& counts,
                                     bool has_name_mas_txt) {
    std::vector<std::string> lines;
    for (const MasterCount& count : counts) {
        const bool is_missing = lines.empty() && !has_name_mas_txt;
        lines.push_back(count.name + (is_missing ? "　： ファイル無し"
                                                 : " の件数　： " + std::to_string(count.records)));
    }
    if (counts.back().records > most_records) {
        lines.emplace_back("件数が　 45,000 以上です。　name　の取りこぼしの恐れがありますので");
        lines.emplace_back("ｇｅｔ_ｎａｍｅ．ｅｘｅ にてファイルを複数に分割を勧めます｡");
        lines.emplace_back(name_mas_splitter_url);
    }
    return lines;
}

std::string joined(const std::vector<std::string>& lines) {
    std::string text;
    for (const std::string& line : lines) {
        text += (text.empty() ? "" : "\n") + line;
    }
    return text;
}

}  // namespace

NameMasCheck name_mas_dir_check(const Stage& stage, std::string_view name_mas_dir, bool Check03) {
    return enter_procedure(stage.trace, "Private Sub name_mas_dir_check()", [&]() -> NameMasCheck {
        const std::size_t highest = highest_of(stage.disk, name_mas_dir);
        if (highest == 0) {
            return {.name_mas_max = 0, .Check03 = check_name_mas_txt(stage, name_mas_dir, Check03)};
        }
        if (Check03) {
            stage.lblCFG.caption =
                "name_mas" + std::to_string(highest) + " ．txt 迄あり。 件数をカウント中 !!";
        }
        require_no_gap(stage, name_mas_dir, highest);
        return {.name_mas_max = highest,
                .Check03 = Check03,
                .note = "複数の name_mas? ．txt を検索するので処理に１分程掛かります。"};
    });
}

std::vector<MasterCount> name_mas_txt_count1(const Stage& stage, std::string_view name_mas_dir,
                                             std::size_t name_mas_max) {
    return enter_procedure(stage.trace, "Private Sub name_mas_txt_count1()", [&] {
        stage.lblCFG.caption = "name_mas．txt の件数をカウント中 !!";
        const std::string first = in_folder(name_mas_dir, name_mas_txt);
        const bool has_name_mas_txt = stage.disk.file_exists(first);
        std::vector<MasterCount> counts;
        counts.push_back(
            {std::string(name_mas_txt), has_name_mas_txt ? lines_of(stage, first) - headings : 0});
        for (std::size_t number = 1; number <= name_mas_max; ++number) {
            const std::string name = numbered(number);
            counts.push_back({name, lines_of(stage, in_folder(name_mas_dir, name)) - headings});
        }
        const std::vector<std::string> lines = count_lines(counts, has_name_mas_txt);
        for (const std::string& line : lines) {
            stage.trace.write(line);
        }
        stage.person.show({.title = "　　name_mas．ｔｘｔ の件数",
                           .text = joined(lines),
                           .icon = Icon::information});
        stage.lblCFG.caption = "";
        return counts;
    });
}

void yubin_dir_check(const Stage& stage, std::string_view yubin_mas_dir) {
    enter_procedure(stage.trace, "Private Sub yubin_dir_check()", [&] {
        if (!is_used(yubin_mas_dir)) {
            return;
        }
        for (const char digit : std::string_view("0123456789")) {
            const std::string name = std::string("yubin_m") + digit + ".mas";
            if (!stage.disk.file_exists(in_folder(yubin_mas_dir, name))) {
                show_and_end(stage.person, missing_file_title,
                             spaced_lines({"[  " + name + "  ]  がありません。",
                                           copy_there(yubin_mas_dir)}));
            }
        }
    });
}

bool check_form_of_user_text(const Stage& stage, const std::string& path) {
    TextInput input = stage.open_input(path);
    std::string_view line;
    const bool fits = input.next_line(line) && input.next_line(line) &&
                      line.find(user_text_heading) != std::string_view::npos;
    if (!fits) {
        stage.person.show({.text = "Ｈａｍｌｏｇのユーザー・テキスト形式ではありません！"});
    }
    return fits;
}

std::string user_text_caption(std::string_view path) {
    if (path.empty()) {
        return "使用なら要 set";
    }
    return replace_all(replace_all(split_path(path).name, ".txt", ""), ".TXT", "");
}

bool check_user_text(const Stage& stage, std::string& path) {
    if (stage.disk.file_exists(path)) {
        return true;
    }
    stage.person.show(
        {.text = path + " が有りません！　設定内容をクリアします。　必要なら再設定して下さい。"});
    path.clear();
    return false;
}

}  // namespace veldrana
