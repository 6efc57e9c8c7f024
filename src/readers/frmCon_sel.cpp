#include "readers/frmCon_sel.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "common/procedure.h"
#include "common/quoted_fields.h"
#include "common/text.h"
#include "masters/code_flag.h"
#include "readers/contest_preselection.h"

namespace veldrana {
namespace {

constexpr std::string_view list_file = "con_aa_name.txt";
constexpr std::string_view choice_file = "con_aaa_name.txt";
constexpr std::string_view heading_of_sample = "RST Rcvd";
constexpr std::string_view choose_again = "再度選択も可能です。";

// A contest as the list shows it, in columns of bytes.
std::string list_row(std::size_t number, const ContestEntry& entry) {
    return fixed_width(std::to_string(number), 4) + fixed_width(entry.Dat_name, 14) +
           fixed_width(entry.Con_name, 38) + " " + fixed_width(entry.Code_flag, 3) +
           fixed_width(entry.Con_no_1, 52) + entry.Con_no_2;
}

// What does not go together: a code type, and what the numbers of the log hold.
struct Warning {
    char code_type;
    bool has_digit;
    bool has_letter;
    std::string_view text;
};

constexpr std::array<Warning, 4> warnings{
    {{'1', true, true, "Rcvd に英字あり！　選択は不適切です。"},
     {'2', true, false, "Rcvd に英字なし！　選択は不適切です。"},
     {'1', false, true, "Rcvd に英字あり！　選択は不適切です。"},
     {'3', true, true, "Rcvd の英字を削除処理して良いですか？"}}};

}  // namespace

frmCon_sel::frmCon_sel(const Stage& stage, ContestDialogRequest request)
    : WindowForm("frmCon_sel", "　　コンテスト 選択 ・ 情報　の取得"),
      stage_(stage),
      request_(std::move(request)) {
    List1.index.on_change = [this] { List1_Click(); };
    Text1.text.on_change = [this] { Text1_Change(); };
    Text1.tool_tip = "検索する dat , mas mst ファイル名かコンテスト名の略称を入力する。";
    cmdSearch.Click = [this] { cmdSearch_Click(); };
    cmdCLR.Click = [this] { cmdCLR_Click(); };
    cmdOK.Click = [this] { cmdOK_Click(); };
    cmdBack.Click = [this] { cmdBack_Click(); };
}

void frmCon_sel::Form_Load() {
    enter_procedure(stage_.trace, "Private Sub Form_Load()", ErrorLine::number_only, [this] {
        lblIn_name.caption = request_.in_name;
        LogSurvey survey =
            survey_log(stage_, request_.f_type,
                       {.in_name = request_.in_name, .current_folder = request_.current_folder});
        survey.rows.insert(survey.rows.begin(), std::string(heading_of_sample));
        List2.rows = std::move(survey.rows);
        shapes_ = std::move(survey.shapes);
        lblC_key.caption = shapes_.text;
        load_contests();
        show_list();
        check_cmd_OK();
        cmdSearch.enabled = false;
        cmdCLR.enabled = false;
        preselect();
    });
}

void frmCon_sel::load_contests() {
    ContestList list(stage_, request_.contest_name_csv, ContestList::Heading::skipped);
    for (ContestEntry entry; list.next(entry);) {
        if (contests_.size() == most_contests) {
            throw RunTimeError(Failure::subscript);
        }
        contests_.push_back(entry);
    }
}

// The rows to show pass through a file of their own.
void frmCon_sel::show_list() {
    const std::string path = request_.strPath + std::string(list_file);
    TextOutput file = stage_.open_output(path);
    for (std::size_t i = 0; i < contests_.size(); ++i) {
        file.write_line(list_row(i + 1, contests_[i]));
    }
    file.close();
    std::vector<std::string> rows;
    {
        TextInput input = stage_.open_input(path);
        for (std::string_view line; input.next_line(line);) {
            rows.emplace_back(line);
        }
    }
    stage_.remove(path);
    List1.rows = std::move(rows);
}

void frmCon_sel::preselect() {
    std::vector<ContestKeys> keys;
    std::transform(contests_.begin(), contests_.end(), std::back_inserter(keys), keys_of);
    for (const std::size_t row : preselected_rows(keys, request_.in_name)) {
        List1.index = static_cast<int>(row);
    }
}

int frmCon_sel::row_of(std::string_view Dat_name) const {
    const auto found =
        std::find_if(contests_.begin(), contests_.end(),
                     [Dat_name](const ContestEntry& entry) { return entry.Dat_name == Dat_name; });
    return found == contests_.end() ? ListBox::none : static_cast<int>(found - contests_.begin());
}

const ContestEntry& frmCon_sel::chosen() const {
    return contests_.at(static_cast<std::size_t>(List1.index.get()));
}

std::string frmCon_sel::File_no() const {
    return std::to_string(List1.index + 1);
}

void frmCon_sel::List1_Click() {
    if (List1.index == ListBox::none) {
        return;
    }
    lblMsg1.caption = "";
    const ContestEntry& entry = chosen();
    lblFile_no.caption = File_no();
    lblDat_name.caption = entry.Dat_name;
    lblCon_name.caption = entry.Con_name;
    lblCode_flag.caption = entry.Code_flag;
    lblCon_no_1.caption = entry.Con_no_1;
    lblCon_no_2.caption = entry.Con_no_2;
    if (const auto type = code_type_caption(entry.Code_flag)) {
        lblCode_type.caption = std::string(*type);
    }
    if (const auto kind = data_kind_caption(entry.Code_flag)) {
        lblFile_Syubetu.caption = std::string(*kind);
        folder_ = kind_lies_in_dat_folder(entry.Code_flag) ? request_.folders.zlog_dat_dir
                                                           : request_.folders.mas_mst;
    }
    check_select_code();
    check_cmd_OK();
}

void frmCon_sel::warn(std::string_view text) {
    lblMsg1.show(text, colours::red);
    lblMsg2.caption = std::string(choose_again);
}

void frmCon_sel::check_select_code() {
    const ContestEntry& entry = chosen();
    if (!stage_.disk.file_exists(folder_ + entry.Dat_name)) {
        lblMsg1.show("選択された個別ＤＡＴが設定フォルダに無し！", colours::red);
        ok_blocked_ = true;
        return;
    }
    ok_blocked_ = false;
    for (const Warning& warning : warnings) {
        if (entry.Code_flag.starts_with(warning.code_type) &&
            shapes_.has_digit == warning.has_digit && shapes_.has_letter == warning.has_letter) {
            warn(warning.text);
            return;
        }
    }
    if (entry.Code_flag.starts_with('0')) {
        warn("code 取得は不可！");
        ok_blocked_ = true;
        return;
    }
    lblMsg1.show("", colours::black);
    lblMsg2.show("", colours::black);
}

void frmCon_sel::check_cmd_OK() {
    cmdOK.enabled = !ok_blocked_;
}

void frmCon_sel::Text1_Change() {
    Text1.text = std::string(trim(Text1.text.get()));
    const bool has_text = !Text1.text.get().empty();
    cmdSearch.enabled = has_text;
    cmdCLR.enabled = has_text;
}

void frmCon_sel::Text1_Enter() {
    cmdSearch.press();
}

void frmCon_sel::cmdSearch_Click() {
    const std::vector<std::string>& rows = List1.rows;
    const auto found = std::find_if(rows.begin(), rows.end(), [this](const std::string& row) {
        return row.find(Text1.text.get()) != std::string::npos;
    });
    if (found != rows.end()) {
        List1.index = static_cast<int>(found - rows.begin());
    }
}

void frmCon_sel::cmdCLR_Click() {
    Text1.text = "";
    cmdSearch.enabled = false;
    cmdCLR.enabled = false;
}

// Writes the choice to its file; returns the file's path.
std::string frmCon_sel::Save_dat() const {
    return enter_procedure(stage_.trace, "Private Sub Save_dat()", ErrorLine::number_only, [this] {
        std::string path = request_.strPath + std::string(choice_file);
        const std::string number = File_no();
        QuotedLine line;
        line.assign(std::array<std::string_view, 3>{number, chosen().Dat_name, chosen().Con_name});
        TextOutput output = stage_.open_output(path);
        output.write_line(line.text());
        output.close();
        return path;
    });
}

void frmCon_sel::cmdOK_Click() {
    if (List1.index == ListBox::none) {
        return;
    }
    enter_procedure(stage_.trace, "Private Sub cmdOK_Click()", ErrorLine::number_only, [this] {
        const std::string path = Save_dat();
        ContestDialogResult result{.confirmed = true, .selection = request_.selection};
        ContestSelection& selection = result.selection;
        selection.Code_flag = chosen().Code_flag;
        selection.Con_no_1 = chosen().Con_no_1;
        selection.Con_no_2 = chosen().Con_no_2;
        selection.picked_folder = folder_;
        {
            TextInput input = stage_.open_input(path);
            RowReader row(input, 3);
            row.read();
            selection.File_no = row[0];
            selection.dat.name = row[1];
            selection.Con_name = row[2];
        }
        selection.dat.folder = dat_kind(selection.dat.name) == DatKind::dat
                                   ? request_.folders.zlog_dat_dir
                                   : request_.folders.mas_mst;
        selection.dat.dat_in_name = lower(selection.dat.folder + selection.dat.name);
        result.shown_path = selection.dat.dat_in_name;
        stage_.remove(path);
        result.dat_is_there = dat_file_chk(stage_, request_.folders, selection.dat);
        close(std::move(result));
    });
}

void frmCon_sel::cmdBack_Click() {
    enter_procedure(stage_.trace, "Private Sub cmdBack_Click()", ErrorLine::number_only,
                    [this] { close({.selection = request_.selection}); });
}

void frmCon_sel::close(ContestDialogResult result) {
    result_ = std::move(result);
    window.visible = false;
}

}  // namespace veldrana
