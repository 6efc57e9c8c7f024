#include "readers/contest_refusals.h"

#include <string>

#include "masters/ending_boxes.h"

namespace veldrana {
namespace {

constexpr const char* no_code_title = "　　DAT ﾌｧｲﾙ よりcode、QTHの取得は不可能！";

}  // namespace

void no_get_code(Person& person, const ContestSelection& selection, ContestRefusals& refusals) {
    retry_or_end(person, no_code_title,
                 spaced_lines({"コンテスト名　：" + selection.Con_name,
                               "コンテストナンバー・タイプ : " + selection.Con_no_1,
                               "コンテストナンバーからは ｃｏｄｅ の取得が出来ません。"}));
    refusals.code = true;
}

void no_name_mas_qra_in_con_z_name_mas_qra_csv(Person& person, std::string_view contest_name,
                                               ContestRefusals& refusals) {
    retry_or_end(person, "　　別の入力ファイルに指定し直して下さい。",
                 spaced_lines({"コンテスト名　：" + std::string(contest_name),
                               "該当するコンテスト名が contest_name.csv にはありません。"}));
    refusals.list = true;
}

void no_name_mas_qra_in_header(Person& person, ContestSelection& selection) {
    retry_or_end(person, no_code_title,
                 spaced_lines({"ZLO に変換した ファイルでは [ 個別 DAT ]  の自動取得が出来ません。",
                               "ｚＬｏｇ for Windows にて直接作成したファイル、 ",
                               "または　zLog for windows にて　[ ",
                               "ＴＸＴ形式のファイルを zListw に読み込みしてから",
                               "起動画面の　[ User Defined Contest ]  [ Select ]  にて",
                               "コンテストに対応した CFG ファイルを指定した後、",
                               "* ．ZLO を作成し直して下さい。",
                               "［ 再 試 行 ］　手動にて再度個別ＤＡＴの指定を行います。",
                               "［キャンセル］　プログラムを終了します。 "}));
    selection.File_no = no_file_no;
}

void no_code_from_chosen_dat(Person& person, ContestSelection& selection,
                             ContestRefusals& refusals) {
    retry_or_end(person, no_code_title, "");
    refusals.code = true;
    selection.File_no = no_file_no;
}

}  // namespace veldrana
