#include "common/run_time_error.h"

namespace veldrana {

std::string description_of(Failure failure) {
    switch (failure) {
        case Failure::invalid_call:
            return "呼び出しまたは引数の値が正しくありません。";
        case Failure::overflow:
            return "数値が大きすぎます。";
        case Failure::out_of_memory:
            return "メモリが足りません。";
        case Failure::subscript:
            return "添字が範囲を超えています。";
        case Failure::type_mismatch:
            return "データの型が合いません。";
        case Failure::internal:
            return "内部エラーです。";
        case Failure::bad_file:
            return "ファイル名が正しくありません。";
        case Failure::file_not_found:
            return "ファイルが見つかりません。";
        case Failure::already_open:
            return "ファイルは既に開いています。";
        case Failure::device_error:
            return "装置の入出力エラーです。";
        case Failure::disk_full:
            return "ディスクに空きがありません。";
        case Failure::input_past_end:
            return "ファイルの終わりを超えて読もうとしました。";
        case Failure::too_many_files:
            return "開いているファイルが多すぎます。";
        case Failure::permission_denied:
            return "書き込みまたは読み出しが許可されていません。";
        case Failure::path_or_file_access:
            return "パスまたはファイルを扱えません。";
        case Failure::path_not_found:
            return "フォルダが見つかりません。";
    }
    return "不明なエラーです。";
}

RunTimeError::RunTimeError(Failure failure)
    : failure_(failure), description_(description_of(failure)) {}

}  // namespace veldrana
