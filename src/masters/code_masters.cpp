#include "masters/code_masters.h"

#include <utility>

#include "common/procedure.h"
#include "common/text.h"
#include "masters/received_number.h"

namespace veldrana {
namespace {

constexpr MasterColumn code_column{20, 6};
constexpr MasterColumn hl_code_qth{26, 32};
constexpr MasterColumn yubin_qth{26, 12};
constexpr Count yubin_key_length = 6;

}  // namespace

void CodeTable::read(const Stage& stage, std::string_view path) {
    rows_.clear();
    read_master(stage, path, HeadingsAlone::allowed, [this](std::string_view line) {
        const FixedColumns record(line);
        rows_.add(upper(column_text(record, master_key)),
                  {.code = column_text(record, code_column), .qth = column_text(record, qth_)});
    });
}

CodeAndPlace CodeTable::find(std::string_view key) const {
    const CodeAndPlace* const found = rows_.find(upper(trim(key)));
    return found == nullptr ? CodeAndPlace{} : *found;
}

HlCodeMas::HlCodeMas(std::string path) : path_(std::move(path)), table_(hl_code_qth) {}

void HlCodeMas::prepare(const Stage& stage) {
    if (loaded_) {
        return;
    }
    enter_procedure(stage.trace, "Private Sub read_hl_code_mas()", ErrorLine::number_only, [&] {
        show_reading(stage, path_);
        table_.read(stage, path_);
        show_read(stage);
        loaded_ = true;
    });
}

CodeAndPlace HlCodeMas::find(std::string_view number) {
    return trim(number).empty() ? CodeAndPlace{} : table_.find(number);
}

YubinMas::YubinMas(const Stage& stage, std::string yubin_mas_dir)
    : stage_(stage), folder_(std::move(yubin_mas_dir)) {}

void YubinMas::read_get_yubin(std::string_view digit) {
    enter_procedure(stage_.trace, "Private Sub read_get_yubin()", ErrorLine::number_only, [&] {
        const std::string path = std::string(folder_).append("yubin_m").append(digit) + ".mas";
        if (digit.empty() || !is_digit(digit.front())) {
            // Said here: of such a name a disk might say that no file can have it.
            stage_.trace.write_open_for_input(path);
            throw RunTimeError(Failure::file_not_found);
        }
        CodeTable table(yubin_qth);
        table.read(stage_, path);
        tables_.add(std::string(digit), std::move(table));
    });
}

CodeAndPlace YubinMas::find(std::string_view number) {
    const std::string_view digit = left(number, 1);
    if (tables_.find(digit) == nullptr) {
        read_get_yubin(digit);
    }
    return tables_.find(digit)->find(right(number, yubin_key_length));
}

}  // namespace veldrana
