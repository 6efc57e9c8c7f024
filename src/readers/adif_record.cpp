#include "readers/adif_record.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>

#include "common/text.h"

namespace veldrana {
namespace {

// The tags that are read, in the order in which those of one piece take effect.
enum Tag : unsigned {
    call = 1U << 0U,
    frequency = 1U << 1U,
    band = 1U << 2U,
    report_sent = 1U << 3U,
    report_received = 1U << 4U,
    mode = 1U << 5U,
    date = 1U << 6U,
    time_of_four = 1U << 7U,
    time_of_six = 1U << 8U,
    code = 1U << 9U,
    exchange = 1U << 10U,
};

char capital(char byte) noexcept {
    return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}

bool ends_in(std::string_view text, std::string_view capitals) noexcept {
    return text.size() >= capitals.size() &&
           std::equal(capitals.begin(), capitals.end(), text.end() - capitals.size(),
                      [](char one, char other) { return one == capital(other); });
}

// The tag whose text ends in the colon at a place of a piece; 0 if none does. The letter in front
// of the colon tells nearly all apart.
unsigned tag_at(std::string_view piece, std::size_t colon) noexcept {
    if (colon == 0) {
        return 0;
    }
    const std::string_view front = piece.substr(0, colon);
    const auto if_named = [front](std::string_view name, unsigned tag) {
        return ends_in(front, name) ? tag : 0U;
    };
    switch (capital(front.back())) {
        case 'L':
            return if_named("CALL", call);
        case 'Q':
            return if_named("FREQ", frequency);
        case 'D':
            return if_named("BAND", band) | if_named("RST_RCVD", report_received);
        case 'T':
            return if_named("RST_SENT", report_sent);
        case 'E':
            // A name that only ends in MODE, as SUBMODE does, gives no mode.
            return (front.size() == 4 ? if_named("MODE", mode) : 0U) | if_named("QSO_DATE", date);
        case 'N':
            if (colon + 1 < piece.size() && ends_in(front, "TIME_ON")) {
                const char digits = piece[colon + 1];
                return digits == '4' ? time_of_four : digits == '6' ? time_of_six : 0U;
            }
            return 0;
        case 'C':
            return if_named("JCC", code);
        case 'G':
            return if_named("JCG", code);
        case '1':
            return if_named("APP_N1MM_EXCHANGE1", exchange);
        default:
            return 0;
    }
}

// All tags that stand in a piece.
unsigned tags_in(std::string_view piece) noexcept {
    unsigned tags = 0;
    for (std::size_t colon = piece.find(':'); colon != std::string_view::npos;
         colon = piece.find(':', colon + 1)) {
        tags |= tag_at(piece, colon);
    }
    return tags;
}

// Longer ones are cut.
std::string_view frequency_value(std::string_view value) {
    constexpr Count longest = 7;
    return LenMbcs(value) > longest ? left(value, longest) : value;
}

void take_exchange(std::string_view value, const RunOptions& options, AdifRecord& record) {
    if (!options.Check28) {
        return;
    }
    record.code = value;
    if (options.Check27) {
        record.exchange.clear();
        std::copy_if(
            value.begin(), value.end(), std::back_inserter(record.exchange),
            [](char byte) { return byte != 'H' && byte != 'M' && byte != 'L' && byte != 'P'; });
        record.code = record.exchange;
    }
}

void complete_band_and_frequency(AdifRecord& record) {
    if (!record.band.empty() && record.frequency.empty()) {
        record.frequency = frequency_of_adif_band(record.band);
    }
    if (record.band.empty() && !record.frequency.empty()) {
        record.band = adif_band_of_frequency(record.frequency);
    }
}

void take_tags(unsigned tags, std::string_view piece, const RunOptions& options,
               AdifRecord& record) {
    // Without a ">" the whole piece is the value.
    const std::string_view untrimmed = piece.substr(piece.find('>') + 1);
    const std::string_view value = trim(untrimmed);
    const auto take = [tags, value](Tag tag, std::string_view& field) {
        if ((tags & tag) != 0) {
            field = value;
        }
    };
    take(call, record.call);
    if ((tags & frequency) != 0) {
        record.frequency = frequency_value(value);
    }
    take(band, record.band);
    if ((tags & (band | frequency)) != 0) {
        complete_band_and_frequency(record);
    }
    take(report_sent, record.report_sent);
    take(report_received, record.report_received);
    if ((tags & mode) != 0) {
        record.mode = untrimmed;
    }
    if ((tags & date) != 0) {
        record.date = value;
        record.year = left(value, 4);
    }
    take(time_of_four, record.time);
    if ((tags & time_of_six) != 0) {
        record.time = left(value, 4);
    }
    take(code, record.code);
    if ((tags & exchange) != 0) {
        take_exchange(value, options, record);
    }
}

struct BandName {
    std::string_view band;
    std::string_view frequency;
};

constexpr std::array<BandName, 25> band_names{{
    {"160M", "1.9"},  {"80M", "3.5"},   {"40M", "7"},     {"30M", "10"},    {"20M", "14"},
    {"17M", "18"},    {"15M", "21"},    {"12M", "24"},    {"10M", "28"},    {"6M", "50"},
    {"2M", "144"},    {"1.25M", "220"}, {"70CM", "432"},  {"35M", "902"},   {"23CM", "1300"},
    {"13CM", "2300"}, {"9CM", "3300"},  {"6CM", "5660"},  {"3CM", "10000"}, {"1.25CM", "24000"},
    {"6MM", "47"},    {"4MM", "75"},    {"2.5MM", "120"}, {"2MM", "142"},   {"1MM", "24"},
}};

struct BandRange {
    double from;  // MHz
    double to;
    std::string_view band;
};

constexpr std::array<BandRange, 16> band_ranges{{{1, 2, "160M"},
                                                 {3, 4, "80M"},
                                                 {7, 8, "40M"},
                                                 {10, 11, "30M"},
                                                 {14, 15, "20M"},
                                                 {18, 19, "17M"},
                                                 {21, 22, "15M"},
                                                 {24, 25, "12M"},
                                                 {28, 30, "10M"},
                                                 {50, 54, "6M"},
                                                 {144, 146, "2M"},
                                                 {430, 440, "70CM"},
                                                 {1200, 1300, "23CM"},
                                                 {2300, 2450, "13CM"},
                                                 {5600, 5850, "6CM"},
                                                 {10000, 10250, "3CM"}}};

}  // namespace

std::string_view frequency_of_adif_band(std::string_view band) {
    const auto* const row =
        std::find_if(band_names.begin(), band_names.end(), [band](const BandName& candidate) {
            return candidate.band.size() == band.size() && ends_in(band, candidate.band);
        });
    return row == band_names.end() ? std::string_view{} : row->frequency;
}

std::string_view adif_band_of_frequency(std::string_view frequency) {
    if (frequency == "10G") {
        return "3CM";
    }
    const double megahertz = val(frequency);
    const auto* const row = std::find_if(
        band_ranges.begin(), band_ranges.end(), [megahertz](const BandRange& candidate) {
            return megahertz >= candidate.from && megahertz <= candidate.to;
        });
    return row == band_ranges.end() ? std::string_view{} : row->band;
}

void read_adif_record(std::string_view text, const RunOptions& options, AdifRecord& record) {
    std::string kept = std::move(record.exchange);  // for its memory
    record = {};
    record.exchange = std::move(kept);
    for (std::size_t from = 0;;) {
        const std::size_t end = text.find('<', from);
        const std::string_view piece = text.substr(from, end - from);
        if (const unsigned tags = tags_in(piece); tags != 0) {
            take_tags(tags, piece, options, record);
        }
        if (end == std::string_view::npos) {
            return;
        }
        from = end + 1;
    }
}

}  // namespace veldrana
