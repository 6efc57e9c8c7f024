#include "output/keyed_rows.h"

#include <algorithm>

#include "common/text.h"
#include "rows/row_formats.h"

namespace veldrana {
namespace {

// "00000000" and the frequency, the last nine characters; without Check01 a frequency with a point
// counts as its first character alone.
void append_frequency(std::string& key, std::string_view text, bool Check01) {
    const bool band_alone = !Check01 && text.find('.') != std::string_view::npos;
    const std::string_view frequency = band_alone ? left(text, 1) : trim(text);
    constexpr std::size_t width = 9;
    const std::size_t size = length(frequency);
    if (size < width) {
        key.append(std::min(width - size, width - 1), '0');
    }
    key += right(frequency, width);
}

// Three characters of the mode and one blank behind it; a mode of one letter gives two.
void append_mode(std::string& key, std::string_view mode) {
    key += left(mode, 3);
    if (length(mode) < 3) {
        key += ' ';
    }
}

}  // namespace

void make_contest_key(std::string& key, std::span<const std::string_view> row,
                      std::size_t call_width, const RunOptions& options) {
    key = fixed_width(row[contest_row::call_base], call_width);
    const auto append_band_and_mode = [&] {
        append_frequency(key, row[contest_row::frequency], options.Check01);
        append_mode(key, row[contest_row::mode]);
    };
    if (options.Option06 == 0) {
        append_band_and_mode();
        key.append(row[contest_row::date]).append(row[contest_row::time]);
    } else {
        key.append(row[contest_row::date]).append(row[contest_row::time]);
        append_band_and_mode();
    }
}

void make_jarl_key(std::string& key, std::string_view call_base) {
    const std::string_view third = mid(call_base, 3, 1);
    if (call_base.starts_with('7')) {
        key = "01";
    } else if (third == "0") {
        key = "10";
    } else {
        key.assign("0").append(third);
    }
    key += fixed_width(call_base, 6);
}

std::string_view behind_key(std::string_view written_line) noexcept {
    const std::size_t key_end = written_line.find("\",");
    return key_end == std::string_view::npos ? std::string_view{}
                                             : written_line.substr(key_end + 2);
}

void KeyedLine::assign(std::string_view key, std::span<const std::string_view> row,
                       std::string_view written) {
    if (!written.empty()) {
        line_.assign(key, written);
        return;
    }
    columns_.assign(1, key);
    columns_.insert(columns_.end(), row.begin(), row.end());
    line_.assign(columns_);
}

}  // namespace veldrana
