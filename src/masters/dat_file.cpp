#include "masters/dat_file.h"

#include <algorithm>
#include <array>

#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "masters/ending_boxes.h"
#include "masters/master_file.h"

namespace veldrana {
namespace {

struct DatColumns {
    MasterColumn key;
    MasterColumn code;
    MasterColumn qth;
};

constexpr DatColumns dat_columns{.key = {1, 11}, .code = {1, 7}, .qth = {12, 28}};
constexpr DatColumns mas_columns{.key = {1, 6}, .code = {7, 7}, .qth = {15, 28}};

// Null for a kind without rows.
const DatColumns* columns_of(DatKind kind) {
    switch (kind) {
        case DatKind::dat:
            return &dat_columns;
        case DatKind::mas:
        case DatKind::mst:
            return &mas_columns;
        case DatKind::other:
            break;
    }
    return nullptr;
}

std::string_view behind_last_backslash(std::string_view path) {
    return path.substr(path.rfind('\\') + 1);
}

void tell_missing(Person& person, const DatFile& file) {
    const std::string is_missing = "[  " + file.name + "  ]  がありません。";
    if (file.dat_in_name.find("no.dat") != std::string::npos) {
        show_and_end(person, missing_file_title,
                     spaced_lines({is_missing, "ＤＡＴファイルからのｃｏｄｅ取得は不可能です。"}));
    }
    retry_or_end(person, missing_file_title,
                 spaced_lines({is_missing, file.folder + "　に ｃｏｐｙ して下さい。"}));
}

}  // namespace

DatKind dat_kind(std::string_view name) {
    const std::string ending = lower(right(name, 3));
    if (ending == "dat") {
        return DatKind::dat;
    }
    if (ending == "mas") {
        return DatKind::mas;
    }
    return ending == "mst" ? DatKind::mst : DatKind::other;
}

std::string_view folder_of(DatKind kind, const DatFolders& folders) {
    switch (kind) {
        case DatKind::dat:
            return folders.zlog_dat_dir;
        case DatKind::mas:
        case DatKind::mst:
            return folders.mas_mst;
        case DatKind::other:
            break;
    }
    return {};
}

bool dat_file_chk(const Stage& stage, const DatFolders& folders, DatFile& file) {
    return enter_procedure(stage.trace, "Private Sub dat_file_chk()", [&] {
        file.name = behind_last_backslash(until_nul(file.dat_in_name));
        if (const DatKind kind = dat_kind(file.name); kind != DatKind::other) {
            file.folder = folder_of(kind, folders);
        }
        file.rebuild_path();
        if (stage.disk.file_exists(file.dat_in_name)) {
            return true;
        }
        tell_missing(stage.person, file);
        return false;
    });
}

bool dat_file_of_run(const Stage& stage, const DatFolders& folders, DatFile& file) {
    struct Way {
        std::string_view ending;  // that the name gets; none: the path stands as it is
        std::string_view trace;   // the first names another procedure; logs are read by it
    };
    const auto way_of = [](DatKind kind) -> Way {
        switch (kind) {
            case DatKind::mas:
                return {".mas", "Private Sub bak_sep1()   dat_file_chk_1"};
            case DatKind::mst:
                return {".mst", "Private Sub bak_sep2()   dat_file_chk_2"};
            default:
                return {{}, "Private Sub bak_sep2()   dat_file_chk_3"};
        }
    };
    const Way way = way_of(dat_kind(file.dat_in_name));
    if (!way.ending.empty()) {
        file.name = replace_all(lower(file.name), ".dat", way.ending);
        file.rebuild_path();
    }
    const bool is_there = dat_file_chk(stage, folders, file);
    stage.trace.write(way.trace);
    return is_there;
}

void DatTable::load(const Stage& stage, std::string_view dat_in_name) {
    const DatColumns* const columns = columns_of(dat_kind(dat_in_name));
    rows_.clear();
    TextInput input = stage.open_input(dat_in_name);
    line_buffer_ = read_line(input);  // the heading
    std::size_t count = 0;
    for (std::string_view line; input.next_line(line);) {
        line_buffer_ = until_nul(line);
        if (columns == nullptr) {
            continue;
        }
        if (++count > most_rows) {
            throw RunTimeError(Failure::subscript);
        }
        const FixedColumns row(line_buffer_);
        rows_.add(column_text(row, columns->key),
                  {.code = column_text(row, columns->code), .qth = column_text(row, columns->qth)});
    }
}

CodeAndPlace DatTable::find_exact(std::string_view number) const {
    const CodeAndPlace* const found = rows_.find(trim(number));
    return found == nullptr ? CodeAndPlace{} : *found;
}

CodeAndPlace DatTable::find_prefix(std::string_view number) const {
    constexpr std::array<std::string_view, 6> three_wide{"W1", "W0", "G1", "G0", "C1", "C0"};
    const std::string_view whole = trim(number);
    const std::string_view two = left(whole, 2);
    const bool is_wide = std::find(three_wide.begin(), three_wide.end(), two) != three_wide.end();
    return find_exact(is_wide ? left(whole, 3) : two);
}

}  // namespace veldrana
