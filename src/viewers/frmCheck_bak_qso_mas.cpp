#include "viewers/frmCheck_bak_qso_mas.h"

#include <string_view>

#include "common/file_path.h"
#include "common/text.h"
#include "platform/clock.h"
#include "qsl/history.h"
#include "settings/environment_settings.h"
#include "settings/hosts.h"
#include "settings/window_positions.h"

namespace veldrana {
namespace {

constexpr std::size_t title_column = 0;
constexpr std::size_t file_column = 1;

constexpr std::array<std::string_view, frmCheck_bak_qso_mas::histories> conditions{
    "　Q S O   済みの局", "　QSL 発行済みの局", "　QSL 受領済みの局"};

std::string padded(std::string_view text, std::size_t width) {
    std::string wide(text);
    wide.append(width > length(text) ? width - length(text) : 0, ' ');
    return wide;
}

}  // namespace

frmCheck_bak_qso_mas::frmCheck_bak_qso_mas(const Stage& stage, HistoryCheckRequest request)
    : WindowForm("frmCheck_bak_qso_mas"), stage_(stage), request_(std::move(request)) {
    window.caption = " bak_qso.mas 確認 ：　" +
                     replace_all(request_.strPath + "\\Temp_Files\\", "\\\\", "\\") +
                     "bak_qso_mas*";
    Grid1.Click = [this](const Grid::Place& at) { Grid1_Click(at); };
    mnuBack.Click = [this] { mnuBack_Click(); };
    mnuHelp.Click = [this] { mnuHelp_Click(); };
}

std::string frmCheck_bak_qso_mas::path_of(std::size_t history) const {
    return history_path(request_.strPath, static_cast<int>(history) + 1);
}

std::string frmCheck_bak_qso_mas::database_text() const {
    constexpr Count name_width = 12;
    const std::string& path = request_.hamlog_hdb_dir;
    const std::string name(split_path(path).name);
    const bool in_use = request_.log_book_in_use && stage_.disk.file_exists(path);
    const std::string state =
        in_use ? date_time_text(stage_.disk.modified(path)) : std::string(not_used);
    return std::string(left(name + std::string(name_width, ' '), name_width)) + "   ( " + state +
           " )";
}

void frmCheck_bak_qso_mas::Form_Load() {
    constexpr std::size_t name_width = 8;
    constexpr std::size_t number_width = 6;
    load_position(stage_.disk, request_.strPath, window);
    Grid1.set_text(0, title_column, "　参照元ファイル名");
    Grid1.set_text(database_row, title_column, database_text());
    Grid1.set_text(first_history_row - 1, title_column, "　No QSLにする条件");
    Grid1.set_text(first_history_row - 1, file_column, "　  ファイル名 　 | 　サイズ  | 　件数  ");
    for (std::size_t history = 0; history < histories; ++history) {
        const std::string path = path_of(history);
        const bool there = stage_.disk.file_exists(path);
        const auto size = static_cast<Count>(there ? stage_.disk.size(path) : 0);
        const auto lines = static_cast<Count>(there ? line_number_at_end(stage_.disk, path) : 0);
        Grid1.set_text(first_history_row + history, title_column, std::string(conditions[history]));
        Grid1.set_text(first_history_row + history, file_column,
                       padded(split_path(path).name, name_width) + " ｜ " +
                           right_aligned(size, number_width) + " ｜ " +
                           right_aligned(lines, number_width) + "  ");
    }
    window.visible = true;
}

void frmCheck_bak_qso_mas::Grid1_Click(const Grid::Place& at) {
    if (at.column != file_column || at.row < first_history_row) {
        return;
    }
    const std::string path = path_of(at.row - first_history_row);
    const bool on_the_name = at.character < length(split_path(path).name);
    if (on_the_name && show_file && stage_.disk.file_exists(path)) {
        show_file(path);
    }
}

void frmCheck_bak_qso_mas::mnuBack_Click() {
    save_position(stage_.disk, request_.strPath, window);
    window.visible = false;
}

void frmCheck_bak_qso_mas::mnuHelp_Click() {
    stage_.person.show(
        {.title = " 　　　　bak_qso.mas 関係ファイルの確認の説明",
         .text =
             "同一行の３種類の各ファイルのサイズ、件数は同じが正常です。\n"
             "bak_qso_mas_name1_p "
             "等のファイル名部分をクリックするとファイルの内容を確認出来ます。\n"
             "参照元ファイルが  ( 使用しない )　の時はサイズ、件数は共に ０ で表示されています。\n"
             "bak_qso_mas_name1_p 等のファイルが作成されていない時はサイズ、件数は共に ０ "
             "で表示されています。\n"
             "参照元ファイルが  ( 使用しない ) では無いにも関わらず\n"
             "bak_qso_mas_name?_p サイズが 　２０ バイト以下の時は作成が異常です。\n"
             "「 変換の度に参照ファイルから再読み込みをする 」 に レ点 "
             "を付けて再度実行し、正常に作成されるか確認して下さい。\n"
             "正常に作成されない時はエラーログを添えて不具合の連絡をしていただけると幸いです。\n" +
             std::string(report_address),
         .icon = Icon::information});
}

}  // namespace veldrana
