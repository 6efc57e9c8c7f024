#include "rows/row_formats.h"

#include "common/text.h"
#include "rows/time_rule.h"

namespace veldrana {

void write_date(std::string& text, std::string_view date) {
    if (date.size() == 6 && is_ascii(date)) {
        text.assign(date.substr(0, 2)).append("/").append(date.substr(2, 2)).append("/");
        text.append(date.substr(4));
        return;
    }
    const DatePieces pieces = split_date(date);
    text.assign(pieces.year).append("/").append(pieces.month).append("/").append(pieces.day);
}

void write_time(std::string& text, std::string_view time) {
    if (time.size() == 5 && is_ascii(time)) {
        text.assign(time.substr(0, 2)).append(":").append(time.substr(2));
        return;
    }
    text.assign(left(time, 2)).append(":").append(right(time, 3));
}

}  // namespace veldrana
