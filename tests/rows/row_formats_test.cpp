// The two row formats: where each column stands, and how date and time are written.
#include "rows/row_formats.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

struct Place {
    std::size_t column;
    std::size_t number;  // as the files' users count, from 1
    std::string_view what;
};

void expect_places(const std::vector<Place>& places) {
    for (const Place& place : places) {
        EXPECT_EQ(place.column + 1, place.number) << place.what;
    }
}

TEST(ContestRowFormat, ColumnsStandInTheirPlaces) {
    namespace row = contest_row;
    expect_places({{row::call_base, 1, "call base"},
                   {row::portable, 2, "portable part"},
                   {row::code, 3, "code"},
                   {row::gl, 4, "G/L"},
                   {row::frequency, 5, "frequency"},
                   {row::mode, 6, "mode"},
                   {row::name, 7, "name"},
                   {row::transfer_mark, 8, "QSL transfer mark"},
                   {row::sent_mark, 9, "sent mark"},
                   {row::reserved, 10, "reserved"},
                   {row::date, 11, "date"},
                   {row::time, 12, "time"},
                   {row::report_sent, 13, "report sent"},
                   {row::report_received, 14, "report received"},
                   {row::qth, 15, "QTH"},
                   {row::rmks1, 16, "Rmks 1"},
                   {row::rmks2, 17, "Rmks 2"},
                   {row::call_1, 18, "call as logged"},
                   {row::call_2, 19, "call as logged"}});
    EXPECT_EQ(static_cast<std::size_t>(row::count), 19U);
}

TEST(HamlogRowFormat, ColumnsStandInTheirPlaces) {
    namespace row = hamlog_row;
    expect_places({{row::call_base, 1, "call base"},
                   {row::portable, 2, "portable part"},
                   {row::date, 3, "date"},
                   {row::time, 4, "time"},
                   {row::report_sent, 5, "report sent"},
                   {row::report_received, 6, "report received"},
                   {row::frequency, 7, "frequency"},
                   {row::mode, 8, "mode"},
                   {row::code, 9, "code"},
                   {row::gl, 10, "G/L"},
                   {row::qsl, 11, "QSL field"},
                   {row::name, 12, "name"},
                   {row::qth, 13, "QTH"},
                   {row::rmks1, 14, "Rmks 1"},
                   {row::rmks2, 15, "Rmks 2"},
                   {row::call_1, 16, "call as logged"},
                   {row::call_2, 17, "call as logged"}});
    EXPECT_EQ(static_cast<std::size_t>(row::count), 17U);
}

TEST(HamlogRowFormat, DateHasSlashesBetweenItsPieces) {
    struct Row {
        std::string_view date;
        std::string_view expected;
    };
    const std::vector<Row> rows{{"210801", "21/08/01"}, {"991231", "99/12/31"},
                                {"000101", "00/01/01"}, {"2101", "21/01/01"},
                                {"211", "21/1/11"},     {"", "//"}};
    std::string text = "left from the row before";
    for (const Row& row : rows) {
        SCOPED_TRACE(row.date);
        write_date(text, row.date);
        EXPECT_EQ(text, row.expected);
    }
}

TEST(HamlogRowFormat, TimeIsItsFirstTwoCharactersAColonAndItsLastThree) {
    struct Row {
        std::string_view time;
        std::string_view expected;
    };
    const std::vector<Row> rows{{"0218U", "02:18U"},
                                {"2359J", "23:59J"},
                                {"0000U", "00:00U"},
                                {"218U", "21:18U"},
                                {"U", "U:U"}};
    std::string text = "left from the row before";
    for (const Row& row : rows) {
        SCOPED_TRACE(row.time);
        write_time(text, row.time);
        EXPECT_EQ(text, row.expected);
    }
}

}  // namespace
}  // namespace veldrana
