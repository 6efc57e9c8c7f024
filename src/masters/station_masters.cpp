#include "masters/station_masters.h"

#include <utility>

#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"

namespace veldrana {
namespace {

constexpr StationColumns user_text_columns{
    .name = {8, 12}, .code = {20, 6}, .qth = {26, 28}, .gl = {}, .rmks = {54, 54}};

// Not those of the others: where they have remarks, it has G/L in front.
constexpr StationColumns qth_mas_columns{
    .name = {8, 12}, .code = {20, 6}, .qth = {26, 28}, .gl = {54, 6}, .rmks = {}};

}  // namespace

void StationTable::read(const Stage& stage, std::string_view path) {
    show_reading(stage, split_path(path).name);
    rows_.clear();
    read_master(stage, path, HeadingsAlone::fail, [this](std::string_view record) {
        rows_.add(upper(FixedColumns(record).trimmed(master_key.start, master_key.width)),
                  std::string(record));
    });
    show_read(stage);
}

std::optional<StationData> StationTable::find(std::string_view call) const {
    const std::string* const line = rows_.find(upper(trim(call)));
    if (line == nullptr) {
        return std::nullopt;
    }
    const FixedColumns record(*line);
    return StationData{.name = column_text(record, columns_.name),
                       .code = column_text(record, columns_.code),
                       .qth = column_text(record, columns_.qth),
                       .gl = column_text(record, columns_.gl),
                       .rmks = column_text(record, columns_.rmks)};
}

NameMas::NameMas() : table_(user_text_columns) {}

void NameMas::read_name_mas_txt(const Stage& stage, std::string_view name_mas_dir) {
    if (loaded_) {
        return;
    }
    enter_procedure(stage.trace, "Private Sub read_name_mas_txt()", [&] {
        table_.read(stage, std::string(name_mas_dir).append("name_mas.txt"));
        loaded_ = true;
    });
}

StationData NameMas::find(std::string_view call_base) {
    return table_.find(call_base).value_or(StationData{});
}

QthMas::QthMas(std::string path) : path_(std::move(path)), table_(qth_mas_columns) {}

void QthMas::prepare(const Stage& stage) {
    enter_procedure(stage.trace, "Private Sub read_qth_from_qth_mas()",
                    [&] { table_.read(stage, path_); });
}

StationData QthMas::find(std::string_view call_base) {
    return table_.find(call_base).value_or(StationData{});
}

UserText::UserText(Letter letter, std::string path, std::size_t& hits)
    : letter_(letter), path_(std::move(path)), hits_(hits), table_(user_text_columns) {}

void UserText::prepare(const Stage& stage) {
    enter_procedure(
        stage.trace,
        letter_ == Letter::A ? "Private Sub read_Text_data_A()" : "Private Sub read_Text_data_B()",
        [&] { table_.read(stage, path_); });
}

StationData UserText::find(std::string_view call_base) {
    const std::optional<StationData> found = table_.find(call_base);
    if (found) {
        ++hits_;
    }
    return found.value_or(StationData{});
}

}  // namespace veldrana
