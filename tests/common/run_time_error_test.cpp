// Failures: their numbers and their texts.
#include "common/run_time_error.h"

#include <exception>
#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/text.h"

namespace veldrana {
namespace {

struct Numbered {
    Failure failure;
    int number;
};

const std::vector<Numbered> failures{
    {Failure::invalid_call, 5},
    {Failure::overflow, 6},
    {Failure::out_of_memory, 7},
    {Failure::subscript, 9},
    {Failure::type_mismatch, 13},
    {Failure::internal, 51},
    {Failure::bad_file, 52},
    {Failure::file_not_found, 53},
    {Failure::already_open, 55},
    {Failure::device_error, 57},
    {Failure::disk_full, 61},
    {Failure::input_past_end, 62},
    {Failure::too_many_files, 67},
    {Failure::permission_denied, 70},
    {Failure::path_or_file_access, 75},
    {Failure::path_not_found, 76},
};

TEST(RunTimeError, HasTheNumberThatReportsHaveAlwaysShown) {
    for (const Numbered& it : failures) {
        const RunTimeError error(it.failure);
        EXPECT_EQ(error.number(), it.number);
        EXPECT_EQ(error.failure(), it.failure);
    }
}

TEST(RunTimeError, HasAJapaneseDescription) {
    const auto is_japanese = [](const std::string& text) {
        for (std::size_t at = 0; at < text.size(); at += character_at(text, at).size) {
            const char32_t code = character_at(text, at).code;
            if (code >= U'ぁ' && code <= U'ん') {
                return true;
            }
        }
        return false;
    };
    for (const Numbered& it : failures) {
        const std::string description = description_of(it.failure);
        EXPECT_TRUE(is_japanese(description)) << it.number << ": " << description;
        EXPECT_EQ(well_formed(description), description) << it.number;
        // It stands in one line of the log and of the report.
        EXPECT_EQ(description.find_first_of("\r\n"), std::string::npos) << it.number;
    }
}

TEST(RunTimeError, HasADescriptionOfItsOwnForEveryNumber) {
    std::set<std::string> descriptions;
    for (const Numbered& it : failures) {
        EXPECT_TRUE(descriptions.insert(description_of(it.failure)).second) << it.number;
    }
}

TEST(RunTimeError, TellsItsDescriptionAsAnExceptionToo) {
    for (const Numbered& it : failures) {
        const RunTimeError error(it.failure);
        EXPECT_EQ(error.description(), description_of(it.failure));
        const std::exception& base = error;
        EXPECT_EQ(base.what(), description_of(it.failure));
    }
}

TEST(RunTimeError, IsTracedOnceItIsMarkedAndSoAreItsCopies) {
    RunTimeError error(Failure::overflow);
    const RunTimeError before = error;
    EXPECT_FALSE(error.traced());
    error.mark_traced();
    const RunTimeError after = error;
    EXPECT_TRUE(error.traced());
    EXPECT_FALSE(before.traced());
    EXPECT_TRUE(after.traced());
}

}  // namespace
}  // namespace veldrana
