#include "readers/contest_selection.h"

#include "common/text.h"
#include "masters/code_flag.h"

namespace veldrana {

MessageBox contest_information(const ContestSelection& selection, std::string& kind_caption) {
    const std::string& flag = selection.Code_flag;
    kind_caption = data_kind_information(flag).value_or(kind_caption);
    const auto digit_and_caption = [&flag](Count place, std::string_view caption) {
        return std::string(mid(flag, place, 1)).append("　").append(caption);
    };
    return {.title = "　　個別 ＤＡＴ ファイル情報",
            .text = spaced_lines(
                {"コンテスト名　： " + selection.Con_name, "コード・フラグ　：　" + flag,
                 "処 理 方 法 　：　" + digit_and_caption(1, code_type_caption(flag).value_or("")),
                 "個別ＤＡＴ種別　：　" + digit_and_caption(2, kind_caption),
                 "コンテスト・ナンバー　：　" + selection.Con_no_1,
                 "　　　　　　　　　　　　　　" + selection.Con_no_2}),
            .icon = Icon::information};
}

}  // namespace veldrana
