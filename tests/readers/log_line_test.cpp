#include "readers/log_line.h"

#include <gtest/gtest.h>

namespace veldrana {
namespace {

TEST(LogLine, WritesItsThirteenFieldsInOrder) {
    QuotedLine line;
    put(line, {.year = "1",
               .month = "2",
               .day = "3",
               .time = "4",
               .call = "5",
               .report_sent = "6",
               .report_received = "7",
               .band = "8",
               .mode = "9",
               .op = "10",
               .memo = "11",
               .frequency = "12",
               .number_received = "13"});
    EXPECT_EQ(line.text(),
              "\"1\",\"2\",\"3\",\"4\",\"5\",\"6\",\"7\",\"8\",\"9\",\"10\",\"11\",\"12\",\"13\"");
}

TEST(LogLine, ReplacesTheContactBefore) {
    QuotedLine line;
    put(line, {.call = "JA1ZZA"});
    put(line, {.call = "JA1ZZB"});
    EXPECT_EQ(line.text(),
              "\"\",\"\",\"\",\"\",\"JA1ZZB\",\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"");
}

}  // namespace
}  // namespace veldrana
