#include "masters/master_file.h"

#include "common/text_lines.h"

namespace veldrana {

std::string column_text(const FixedColumns& record, MasterColumn column) {
    return std::string(record.trimmed(column.start, column.width));
}

void read_master(const Stage& stage, std::string_view path, HeadingsAlone headings_alone,
                 const std::function<void(std::string_view record)>& take) {
    TextInput input = stage.open_input(path);
    read_line(input);
    read_line(input);
    if (headings_alone == HeadingsAlone::fail) {
        take(read_line(input));
    }
    for (std::string_view line; input.next_line(line);) {
        take(line);
    }
}

void show_reading(const Stage& stage, std::string_view file) {
    stage.lblCFG.caption = std::string(file) + " を読込中 ．．．";
}

void show_read(const Stage& stage) {
    stage.lblCFG.caption = "";
}

}  // namespace veldrana
