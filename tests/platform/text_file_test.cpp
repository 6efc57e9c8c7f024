#include "platform/text_file.h"

#include <algorithm>
#include <array>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "common/text.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view path = R"(C:\work\log.txt)";
constexpr std::size_t megabyte = std::size_t{1024} * 1024;

// A disk whose files come in small pieces, so that every character and line end is cut somewhere.
class DripDisk : public MemoryDisk {
  public:
    explicit DripDisk(std::size_t room) : room_(room) {}

    std::unique_ptr<ByteSource> open_for_reading(std::string_view name) override {
        return std::make_unique<Drip>(MemoryDisk::open_for_reading(name), room_);
    }

  private:
    class Drip : public ByteSource {
      public:
        Drip(std::unique_ptr<ByteSource> source, std::size_t room)
            : source_(std::move(source)), room_(room) {}
        std::size_t read(char* into, std::size_t room) override {
            return source_->read(into, std::min(room, room_));
        }

      private:
        std::unique_ptr<ByteSource> source_;
        std::size_t room_;
    };

    std::size_t room_;
};

constexpr std::array<std::size_t, 5> rooms{1, 2, 3, 7, 16 * megabyte};

std::vector<std::string> lines_of(Disk& disk) {
    std::vector<std::string> lines;
    TextInput input(disk, path);
    for (std::string_view line; input.next_line(line);) {
        lines.emplace_back(line);
    }
    return lines;
}

std::vector<std::string> lines_of(std::string_view bytes, std::size_t room) {
    DripDisk disk(room);
    disk.put(path, std::string(bytes));
    return lines_of(disk);
}

struct Content {
    std::string_view bytes;
    std::vector<std::string_view> lines;
};

class LineEnds : public testing::TestWithParam<std::size_t> {};

TEST_P(LineEnds, EndALineAsCrLfOrLf) {
    const std::vector<Content> contents{
        {"", {}},
        {"a", {"a"}},
        {"a\n", {"a"}},
        {"a\r\n", {"a"}},
        {"a\r\nb", {"a", "b"}},
        {"a\r\nb\r\n", {"a", "b"}},
        {"a\nb\r\nc\n", {"a", "b", "c"}},
        {"\n", {""}},
        {"\r\n", {""}},
        {"\n\r\n\n", {"", "", ""}},
        {"a\r\n\r\nb\r\n", {"a", "", "b"}},
        {"a\r\n\r\n", {"a", ""}},
        {" a\t \r\n ", {" a\t ", " "}},
    };
    for (const Content& content : contents) {
        EXPECT_THAT(lines_of(content.bytes, GetParam()), testing::ElementsAreArray(content.lines))
            << testing::PrintToString(content.bytes);
    }
}

TEST_P(LineEnds, LeaveACrWithinTheLine) {
    EXPECT_THAT(lines_of("a\rb\r\n", GetParam()), ElementsAre("a\rb"));
    EXPECT_THAT(lines_of("\ra\nb", GetParam()), ElementsAre("\ra", "b"));
    EXPECT_THAT(lines_of("a\r\r\n", GetParam()), ElementsAre("a\r"));
}

TEST_P(LineEnds, LeaveNulBytesInTheLine) {
    EXPECT_THAT(lines_of("a\0b\r\n\0\r\n\0"sv, GetParam()), ElementsAre("a\0b"sv, "\0"sv, "\0"sv));
}

TEST_P(LineEnds, AreSeenBehindALeadByteWithoutItsSecond) {
    std::string cut = "A";
    append_character(cut, unreadable_byte + 0x82);
    EXPECT_THAT(lines_of("A\x82\r\nA\x82\nA\x82", GetParam()), ElementsAre(cut, cut, cut));
}

TEST_P(LineEnds, AreNotSeenInTheSecondByteOfACharacter) {
    EXPECT_THAT(lines_of("\x95\x5C\x83\x5C\r\n\xB6\xB7\n\x83\x7C", GetParam()),
                ElementsAre("表ソ", "ｶｷ", "ポ"));
}

INSTANTIATE_TEST_SUITE_P(ReadInPieces, LineEnds, testing::ValuesIn(rooms));

TEST(TextInput, ReadsCharactersThatLieAcrossTheEndsOfItsBuffer) {
    // Lines of odd length: wherever the buffer ends, it cuts characters in some of them.
    constexpr std::size_t count = 40000;
    std::string bytes;
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < count; ++i) {
        const std::string number = std::to_string(i);
        bytes += number + "\x93\x8C\x8B\x9E\xC4\xB3\xB7\xAE\xB3\x95\x5C\r\n";
        expected.push_back(number + "東京ﾄｳｷｮｳ表");
    }
    EXPECT_EQ(lines_of(bytes, 16 * megabyte), expected);
    EXPECT_EQ(lines_of(bytes, 4095), expected);
}

TEST(TextInput, ReadsAsciiLinesThatLieAcrossTheEndsOfItsBuffer) {
    std::string bytes;
    std::vector<std::string> expected;
    for (std::size_t i = 0; i < 3000; ++i) {
        expected.emplace_back(i % 1999, static_cast<char>('A' + i % 26));
        bytes += expected.back() + (i % 3 == 0 ? "\n" : "\r\n");
    }
    EXPECT_EQ(lines_of(bytes, 16 * megabyte), expected);
    EXPECT_EQ(lines_of(bytes, 4095), expected);
}

TEST(TextInput, ReadsLinesOfAMegabyte) {
    const std::string ascii(megabyte, 'x');
    std::string bytes = ascii + "\r\n";
    std::string wide;
    for (std::size_t i = 0; i < megabyte / 2; ++i) {
        bytes += "\x82\xA0";
        wide += "あ";
    }
    bytes += "\n73\n" + ascii;
    EXPECT_EQ(lines_of(bytes, 16 * megabyte), (std::vector<std::string>{ascii, wide, "73", ascii}));
    EXPECT_EQ(lines_of(bytes, 65537), (std::vector<std::string>{ascii, wide, "73", ascii}));
}

TEST(TextInput, HasNoFurtherLineBehindTheLast) {
    for (const std::string_view bytes : {"a\r\n"sv, "a"sv}) {
        MemoryDisk disk;
        disk.put(path, std::string(bytes));
        TextInput input(disk, path);
        std::string_view line;
        ASSERT_TRUE(input.next_line(line));
        EXPECT_EQ(line, "a");
        EXPECT_FALSE(input.next_line(line));
        EXPECT_FALSE(input.next_line(line));
    }
}

TEST(TextInput, IsAtItsEndBehindTheLastLineAlone) {
    for (const std::string_view bytes : {"a\r\n\r\nc\r\n"sv, "a\n\nc"sv}) {
        MemoryDisk disk;
        disk.put(path, std::string(bytes));
        TextInput input(disk, path);
        std::string_view line;
        for (const std::string_view expected : {"a"sv, ""sv, "c"sv}) {
            EXPECT_FALSE(input.at_end());
            ASSERT_TRUE(input.next_line(line));
            EXPECT_EQ(line, expected);
        }
        EXPECT_TRUE(input.at_end());
        EXPECT_TRUE(input.at_end());
    }
}

TEST(TextInput, LosesNoLineByTestingForTheEnd) {
    DripDisk disk(1);
    disk.put(path, "a\r\nb");
    TextInput input(disk, path);
    std::vector<std::string> lines;
    for (std::string_view line; !input.at_end() && !input.at_end() && input.next_line(line);) {
        lines.emplace_back(line);
    }
    EXPECT_THAT(lines, ElementsAre("a", "b"));
}

TEST(TextInput, IsAtItsEndAtOnceInAnEmptyFile) {
    MemoryDisk disk;
    disk.put(path, "");
    EXPECT_TRUE(TextInput(disk, path).at_end());
    EXPECT_THAT(lines_of(disk), IsEmpty());
}

TEST(TextInput, FailsWhenReadPastItsEnd) {
    MemoryDisk disk;
    disk.put(path, "a\r\n");
    TextInput input(disk, path);
    EXPECT_EQ(read_line(input), "a");
    EXPECT_EQ(failure_of([&] { read_line(input); }), 62);
}

TEST(TextInput, TellsThatAFileOrItsFolderIsMissing) {
    MemoryDisk disk;
    EXPECT_EQ(failure_of([&] { TextInput(disk, path); }), 76);
    disk.put_folder(R"(C:\work)");
    EXPECT_EQ(failure_of([&] { TextInput(disk, path); }), 53);
}

TEST(TextInput, PassesOnAFailureWhileReading) {
    MemoryDisk disk;
    disk.put(path, "a\r\n");
    FailingDisk failing(disk);
    TextInput input(failing, path);
    failing.fail_at(1, Failure::device_error);
    std::string_view line;
    EXPECT_EQ(failure_of([&] { input.next_line(line); }), 57);
}

TEST(TextOutput, EndsEveryLineInCrLf) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    TextOutput output(disk, path);
    output.write_line("JA1ZZZ");
    output.write_line("");
    output.write_line("東京 ﾄｳｷｮｳ 表");
    output.close();
    EXPECT_EQ(disk.bytes(path), "JA1ZZZ\r\n\r\n\x93\x8C\x8B\x9E \xC4\xB3\xB7\xAE\xB3 \x95\x5C\r\n");
}

TEST(TextOutput, WritesAQuestionMarkForWhatThePageLacks) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    TextOutput(disk, path).write_line("Café");
    EXPECT_EQ(disk.bytes(path), "Caf?\r\n");
}

TEST(TextOutput, WritesNulBytesAndCrWithinALine) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    TextOutput(disk, path).write_line("a\0b\rc"sv);
    EXPECT_EQ(disk.bytes(path), "a\0b\rc\r\n"sv);
}

TEST(TextOutput, WritesWhatWasReadAsItWas) {
    // With bytes that are no character, a code that the page leaves open and a cut character.
    const std::string bytes = "\x80\xA0\xFD\xFE\xFF\r\n\x85\x40 \x82\r\n\xF0\x40\x81\x60\r\n";
    MemoryDisk disk;
    disk.put(path, bytes);
    const std::string copy = R"(C:\work\copy.txt)";
    TextInput input(disk, path);
    TextOutput output(disk, copy);
    for (std::string_view line; input.next_line(line);) {
        output.write_line(line);
    }
    output.close();
    EXPECT_EQ(disk.bytes(copy), bytes);
}

TEST(TextOutput, ReplacesWhatTheFileHeld) {
    MemoryDisk disk;
    disk.put(path, "an older and longer log\r\n");
    TextOutput output(disk, path);
    output.write_line("new");
    output.close();
    EXPECT_EQ(disk.bytes(path), "new\r\n");
}

TEST(TextOutput, EmptiesTheFileIfNothingIsWritten) {
    MemoryDisk disk;
    disk.put(path, "old\r\n");
    TextOutput(disk, path).close();
    EXPECT_EQ(disk.bytes(path), "");
}

TEST(TextOutput, AppendsBehindWhatTheFileHeld) {
    MemoryDisk disk;
    disk.put(path, "old\r\n");
    TextOutput output(disk, path, WriteMode::append);
    output.write_line("new");
    output.close();
    EXPECT_EQ(disk.bytes(path), "old\r\nnew\r\n");
}

TEST(TextOutput, MakesAMissingFileToAppendTo) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    TextOutput output(disk, path, WriteMode::append);
    output.write_line("new");
    output.close();
    EXPECT_EQ(disk.bytes(path), "new\r\n");
}

TEST(TextOutput, HandsOverAtAFlushWhatWasWritten) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    TextOutput output(disk, path);
    output.write_line("first");
    output.flush();
    EXPECT_EQ(disk.bytes(path), "first\r\n");
    output.flush();
    EXPECT_EQ(disk.bytes(path), "first\r\n");
    output.write_line("second");
    output.flush();
    EXPECT_EQ(disk.bytes(path), "first\r\nsecond\r\n");
}

TEST(TextOutput, HandsOverWhatWasWrittenWhenItIsDestroyed) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    try {
        TextOutput output(disk, path);
        output.write_line("the last words");
        throw RunTimeError(Failure::type_mismatch);
    } catch (const RunTimeError&) {
        EXPECT_EQ(disk.bytes(path), "the last words\r\n");
    }
}

TEST(TextOutput, DoesNotKeepALongFileInMemory) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    TextOutput output(disk, path);
    const std::string line(998, 'x');
    for (int i = 0; i < 8000; ++i) {
        output.write_line(line);
    }
    EXPECT_GT(disk.size(path), 7 * megabyte);
    output.close();
    EXPECT_EQ(disk.size(path), 8'000'000U);
}

TEST(TextOutput, WritesLinesOfAMegabyte) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    const std::string line(megabyte, 'x');
    TextOutput output(disk, path);
    output.write_line("73");
    output.write_line(line);
    output.write_line("88");
    output.close();
    EXPECT_EQ(disk.bytes(path), "73\r\n" + line + "\r\n88\r\n");
}

class FailingOutput : public testing::Test {
  protected:
    FailingOutput() { disk_.put_folder(R"(C:\work)"); }

    MemoryDisk disk_;
    FailingDisk failing_{disk_};
};

TEST_F(FailingOutput, TellsAtTheCloseThatTheLastBytesWereNotWritten) {
    TextOutput output(failing_, path);
    output.write_line("a");
    failing_.fail_at(1, Failure::disk_full);
    EXPECT_EQ(failure_of([&] { output.close(); }), 61);
}

TEST_F(FailingOutput, TellsThatTheFileCouldNotBeClosed) {
    TextOutput output(failing_, path);
    output.write_line("a");
    // First the bytes go, then the file is closed.
    failing_.fail_at(2, Failure::device_error);
    EXPECT_EQ(failure_of([&] { output.close(); }), 57);
    EXPECT_EQ(disk_.bytes(path), "a\r\n");
}

TEST_F(FailingOutput, TellsAtAFlushThatTheDiskIsFull) {
    TextOutput output(failing_, path);
    output.write_line("a");
    failing_.fail_at(1, Failure::disk_full);
    EXPECT_EQ(failure_of([&] { output.flush(); }), 61);
}

TEST_F(FailingOutput, DoesNotTryAgainWhatAFlushCouldNotWrite) {
    {
        TextOutput output(failing_, path);
        output.write_line("a");
        failing_.fail_at(1, Failure::disk_full);
        EXPECT_EQ(failure_of([&] { output.flush(); }), 61);
    }
    EXPECT_EQ(disk_.bytes(path), "");
}

TEST_F(FailingOutput, TellsThatTheFileCannotBeOpened) {
    failing_.fail_writing("log.txt", Failure::permission_denied);
    EXPECT_EQ(failure_of([&] { TextOutput(failing_, path); }), 70);
}

TEST_F(FailingOutput, SaysNothingWhenItIsDestroyed) {
    for (const unsigned operation : {1U, 2U}) {
        const std::size_t before = failing_.operations();
        EXPECT_EQ(failure_of([&] {
                      TextOutput output(failing_, path);
                      output.write_line("a");
                      failing_.fail_at(operation, Failure::disk_full);
                  }),
                  0);
        // The failing operation was reached: the opening comes before it.
        EXPECT_GT(failing_.operations(), before + operation);
    }
}

TEST_F(FailingOutput, IsClosedOnce) {
    TextOutput output(failing_, path);
    output.write_line("a");
    output.close();
    const std::size_t operations = failing_.operations();
    output.close();
    EXPECT_EQ(failing_.operations(), operations);
    EXPECT_EQ(disk_.bytes(path), "a\r\n");
}

struct Counted {
    std::string_view bytes;
    std::size_t number;
};

TEST(LineNumberAtEnd, IsOneMoreThanTheLineEnds) {
    const std::vector<Counted> cases{
        {"", 1},          {"a", 1},      {"a\r\n", 2},      {"a\n", 2},
        {"a\r\nb", 2},    {"a\nb\n", 3}, {"\r\n\r\n", 3},   {"a\rb", 1},
        {"a\0\n\0"sv, 2}, {"\n", 2},     {"\x95\x5C\n", 2}, {"a\r\n\r\n", 3},
    };
    for (const Counted& counted : cases) {
        for (const std::size_t room : rooms) {
            DripDisk disk(room);
            disk.put(path, std::string(counted.bytes));
            EXPECT_EQ(line_number_at_end(disk, path), counted.number)
                << testing::PrintToString(counted.bytes) << " by " << room;
        }
    }
}

TEST(LineNumberAtEnd, CountsFilesThatAreLongerThanItsBuffer) {
    MemoryDisk disk;
    std::string bytes;
    for (int i = 0; i < 300'000; ++i) {
        bytes += "JA1ZZZ\r\n";
    }
    disk.put(path, bytes);
    EXPECT_EQ(line_number_at_end(disk, path), 300'001U);
    disk.put(path, std::string(2 * megabyte, '\n'));
    EXPECT_EQ(line_number_at_end(disk, path), 2 * megabyte + 1);
}

TEST(LineNumberAtEnd, TellsThatTheFileIsMissing) {
    MemoryDisk disk;
    disk.put_folder(R"(C:\work)");
    EXPECT_EQ(failure_of([&] { line_number_at_end(disk, path); }), 53);
    EXPECT_FALSE(disk.file_exists(path));
}

}  // namespace
}  // namespace veldrana
