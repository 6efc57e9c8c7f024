#include <array>
#include <filesystem>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "platform/host_disk.h"
#include "tests/doubles/disk_bytes.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;

std::string yes_or_no(bool value) {
    return value ? "yes" : "no";
}

std::string joined(const std::vector<std::string>& words) {
    std::string text;
    for (const std::string& word : words) {
        text += (text.empty() ? "" : " ") + word;
    }
    return text;
}

// --- the disk in memory against that of the host ---

// What a disk is asked to do, and what comes of it: an answer, or the number of a failure.
struct Operation {
    const char* name;
    std::function<std::string(Disk&)> run;
    std::string outcome;
};

std::ostream& operator<<(std::ostream& stream, const Operation& operation) {
    return stream << operation.name;
}

std::string outcome_of(const Operation& operation, Disk& disk) {
    try {
        return operation.run(disk);
    } catch (const RunTimeError& error) {
        return std::to_string(error.number());
    }
}

class BothDisks : public testing::TestWithParam<Operation> {
  protected:
    BothDisks() {
        fs::create_directories(scratch_.path() / "c" / "empty");
        memory_.put_folder(R"(C:\empty)");
        put("a.txt", "one");
        put("B.DAT", "three");
        put("c.dat", "");
        put("表ソ.dat", "x");
    }

    void put(const std::string& name, const std::string& bytes) {
        write_bytes(scratch_.path() / "c" / "files" / name, bytes);
        memory_.put(R"(C:\files\)" + name, bytes);
    }

    ScratchFolder scratch_;
    HostDisk host_{{{'C', scratch_.path() / "c"}}, scratch_.path() / "program"};
    MemoryDisk memory_;
};

TEST_P(BothDisks, DoTheSame) {
    EXPECT_EQ(outcome_of(GetParam(), host_), GetParam().outcome) << "on the host";
    EXPECT_EQ(outcome_of(GetParam(), memory_), GetParam().outcome) << "in memory";
}

std::string operation_name(const testing::TestParamInfo<Operation>& info) {
    return info.param.name;
}

Operation exists(const char* name, const char* path, bool file, bool folder) {
    return {name,
            [path](Disk& disk) {
                return yes_or_no(disk.file_exists(path)) + " " +
                       yes_or_no(disk.folder_exists(path));
            },
            yes_or_no(file) + " " + yes_or_no(folder)};
}

INSTANTIATE_TEST_SUITE_P(Existence, BothDisks,
                         testing::Values(exists("File", R"(C:\files\a.txt)", true, false),
                                         exists("AnyCase", R"(c:\FILES\A.TXT)", true, false),
                                         exists("Doubled", R"(C:\\files\\a.txt)", true, false),
                                         exists("Slashes", "c:/Files/a.txt", true, false),
                                         exists("Folder", R"(C:\files)", false, true),
                                         exists("FolderSlash", "C:/files/", false, true),
                                         exists("FolderEnd", R"(C:\Files\)", false, true),
                                         exists("EmptyFolder", R"(C:\empty)", false, true),
                                         exists("Root", R"(C:\)", false, true),
                                         exists("Wide", R"(C:\files\表ソ.DAT)", true, false),
                                         exists("Missing", R"(C:\files\none)", false, false),
                                         exists("NoFolder", R"(C:\none\a.txt)", false, false),
                                         exists("NoDrive", R"(Q:\a.txt)", false, false),
                                         exists("BadName", R"(C:\files\?.txt)", false, false)),
                         operation_name);

Operation reading(const char* name, const char* path, const char* outcome) {
    return {name, [path](Disk& disk) { return read_all(disk, path); }, outcome};
}

INSTANTIATE_TEST_SUITE_P(Reading, BothDisks,
                         testing::Values(reading("File", R"(C:\files\a.txt)", "one"),
                                         reading("AnyCase", R"(c:\Files\b.dat)", "three"),
                                         reading("Doubled", R"(C:\\files\\B.DAT)", "three"),
                                         reading("Slashes", "C:/files//B.DAT", "three"),
                                         reading("Empty", R"(C:\files\c.dat)", ""),
                                         reading("Missing", R"(C:\files\none)", "53"),
                                         reading("NoFolder", R"(C:\none\a.txt)", "76"),
                                         reading("FileAsFolder", R"(C:\files\a.txt\b)", "76"),
                                         reading("NoDrive", R"(Q:\a.txt)", "76"),
                                         reading("Folder", R"(C:\files)", "75"),
                                         reading("BadName", R"(C:\files\?.txt)", "52")),
                         operation_name);

Operation writing(const char* name, const char* path, WriteMode mode, const char* outcome) {
    return {name,
            [path, mode](Disk& disk) {
                write_all(disk, path, "two", mode);
                return read_all(disk, path);
            },
            outcome};
}

INSTANTIATE_TEST_SUITE_P(
    Writing, BothDisks,
    testing::Values(writing("New", R"(C:\empty\a)", WriteMode::replace, "two"),
                    writing("NewAtEnd", R"(C:\empty\a)", WriteMode::append, "two"),
                    writing("Slashes", "C:/files/B.DAT", WriteMode::append, "threetwo"),
                    writing("InRoot", R"(C:\a)", WriteMode::replace, "two"),
                    writing("Replacing", R"(C:\files\b.dat)", WriteMode::replace, "two"),
                    writing("Appending", R"(C:\files\b.dat)", WriteMode::append, "threetwo"),
                    writing("NoFolder", R"(C:\none\a)", WriteMode::replace, "76"),
                    writing("FileAsFolder", R"(C:\files\a.txt\b)", WriteMode::replace, "76"),
                    writing("NoDrive", R"(Q:\a.txt)", WriteMode::replace, "76"),
                    writing("Folder", R"(C:\files)", WriteMode::replace, "75"),
                    writing("FolderAtEnd", R"(C:\files)", WriteMode::append, "75"),
                    writing("BadName", R"(C:\files\a|b)", WriteMode::replace, "52")),
    operation_name);

Operation removing(const char* name, const char* path, const char* outcome) {
    return {name,
            [path](Disk& disk) {
                disk.remove(path);
                return joined(disk.names(R"(C:\files\*)"));
            },
            outcome};
}

INSTANTIATE_TEST_SUITE_P(
    Removing, BothDisks,
    testing::Values(removing("File", R"(C:\files\B.DAT)", "a.txt c.dat 表ソ.dat"),
                    removing("AnyCase", R"(C:\FILES\A.txt)", "B.DAT c.dat 表ソ.dat"),
                    removing("Missing", R"(C:\files\none)", "53"),
                    removing("NoFolder", R"(C:\none\a)", "76"),
                    removing("Folder", R"(C:\empty)", "75"),
                    removing("BadName", R"(C:\files\*.*)", "52")),
    operation_name);

Operation listing(const char* name, const char* pattern, const char* outcome) {
    return {name, [pattern](Disk& disk) { return joined(disk.names(pattern)); }, outcome};
}

INSTANTIATE_TEST_SUITE_P(
    Listing, BothDisks,
    testing::Values(listing("All", R"(C:\files\*)", "B.DAT a.txt c.dat 表ソ.dat"),
                    listing("Some", R"(C:\FILES\*.dat)", "B.DAT c.dat 表ソ.dat"),
                    listing("OneEach", R"(C:\files\?.dat)", "B.DAT c.dat"),
                    listing("One", R"(C:\files\A.TXT)", "a.txt"),
                    listing("Doubled", R"(C:\\files\\*.txt)", "a.txt"),
                    listing("Slashes", "C:/files/*.txt", "a.txt"),
                    listing("NoFile", R"(C:\files\*.csv)", ""),
                    listing("FoldersNot", R"(C:\*)", ""), listing("NoFolder", R"(C:\none\*)", ""),
                    listing("NoDrive", R"(Q:\*)", "")),
    operation_name);

Operation making_folder(const char* name, const char* path, const char* outcome) {
    return {name,
            [path](Disk& disk) {
                disk.make_folder(path);
                return yes_or_no(disk.folder_exists(path)) + " " +
                       yes_or_no(disk.file_exists(path));
            },
            outcome};
}

INSTANTIATE_TEST_SUITE_P(MakingFolders, BothDisks,
                         testing::Values(making_folder("New", R"(C:\empty\new)", "yes no"),
                                         making_folder("InRoot", R"(C:\new\)", "yes no"),
                                         making_folder("ThereAlready", R"(C:\Files)", "75"),
                                         making_folder("FileThere", R"(C:\files\A.txt)", "75"),
                                         making_folder("NoFolder", R"(C:\none\new)", "76"),
                                         making_folder("BadName", R"(C:\files\a*b)", "52")),
                         operation_name);

std::string bytes_of(Disk& disk, std::string_view path) {
    return std::to_string(disk.size(path));
}

const std::vector<Operation> of_several_calls{
    {"SizeOfAFile", [](Disk& disk) { return bytes_of(disk, R"(C:\FILES\b.dat)"); }, "5"},
    {"SizeOfAMissingFile", [](Disk& disk) { return bytes_of(disk, R"(C:\files\none)"); }, "53"},
    {"SizeOfAFolder", [](Disk& disk) { return bytes_of(disk, R"(C:\files)"); }, "75"},
    {"TimeOfAMissingFile", [](Disk& disk) { return time_text(disk, R"(C:\files\none)"); }, "53"},
    {"TimeInAMissingFolder", [](Disk& disk) { return time_text(disk, R"(C:\none\a)"); }, "76"},
    {"NameAsFirstWritten",
     [](Disk& disk) {
         write_all(disk, R"(C:\empty\New.Txt)", "a");
         write_all(disk, R"(C:\empty\NEW.TXT)", "b");
         return joined(disk.names(R"(C:\empty\*)"));
     },
     "New.Txt"},
    {"RemoveMatching",
     [](Disk& disk) {
         const std::size_t count = remove_matching(disk, R"(C:\files\*.dat)");
         return std::to_string(count) + " " + joined(disk.names(R"(C:\files\*)"));
     },
     "3 a.txt"},
    {"CopyFile",
     [](Disk& disk) {
         copy_file(disk, R"(C:\files\b.dat)", R"(C:\files\a.txt)");
         return read_all(disk, R"(C:\files\a.txt)");
     },
     "three"},
    {"CopyOverItself",
     [](Disk& disk) {
         copy_file(disk, R"(C:\files\b.dat)", R"(C:\files\B.DAT)");
         return read_all(disk, R"(C:\files\b.dat)");
     },
     "55"},
    {"WrittenWithoutClose",
     [](Disk& disk) {
         disk.open_for_writing(R"(C:\files\a.txt)", WriteMode::append)->write("!");
         return read_all(disk, R"(C:\files\a.txt)");
     },
     "one!"},
    {"ThereOnceOpened",
     [](Disk& disk) {
         const auto open = disk.open_for_writing(R"(C:\empty\a)", WriteMode::replace);
         return yes_or_no(disk.file_exists(R"(C:\empty\a)"));
     },
     "yes"},
    {"ReadTwiceAtOnce",
     [](Disk& disk) {
         const auto open = disk.open_for_reading(R"(C:\files\a.txt)");
         return read_all(disk, R"(C:\files\A.TXT)");
     },
     "one"},
    {"WriteWhileRead",
     [](Disk& disk) {
         const auto open = disk.open_for_reading(R"(C:\files\a.txt)");
         disk.open_for_writing(R"(C:\files\A.TXT)", WriteMode::append);
         return std::string();
     },
     "55"},
    {"ReadWhileWritten",
     [](Disk& disk) {
         const auto open = disk.open_for_writing(R"(C:\files\a.txt)", WriteMode::append);
         return read_all(disk, R"(C:\files\A.TXT)");
     },
     "55"},
    {"WriteWhileWritten",
     [](Disk& disk) {
         const auto open = disk.open_for_writing(R"(C:\files\a.txt)", WriteMode::replace);
         disk.open_for_writing(R"(C:\files\a.txt)", WriteMode::replace);
         return std::string();
     },
     "55"},
    {"ReleasedByClose",
     [](Disk& disk) {
         const auto open = disk.open_for_writing(R"(C:\files\a.txt)", WriteMode::replace);
         open->write("!");
         open->close();
         return read_all(disk, R"(C:\files\a.txt)");
     },
     "!"},
    {"ReleasedByTheReader",
     [](Disk& disk) {
         disk.open_for_reading(R"(C:\files\a.txt)");
         write_all(disk, R"(C:\files\a.txt)", "!");
         return read_all(disk, R"(C:\files\a.txt)");
     },
     "!"},
};

INSTANTIATE_TEST_SUITE_P(SeveralCalls, BothDisks, testing::ValuesIn(of_several_calls),
                         operation_name);

// --- the disk in memory alone ---

TEST(MemoryDisk, MakesTheFoldersAboveAFileThatIsPut) {
    MemoryDisk disk;
    disk.put(R"(C:\a\b\c.txt)", "x");
    EXPECT_TRUE(disk.folder_exists(R"(C:\a\b)"));
    EXPECT_TRUE(disk.folder_exists(R"(C:\a)"));
    EXPECT_TRUE(disk.folder_exists(R"(C:\)"));
    EXPECT_FALSE(disk.folder_exists(R"(D:\)"));
}

TEST(MemoryDisk, ShowsBytesAndNamesOfItsFiles) {
    MemoryDisk disk;
    disk.put(R"(C:\b.txt)", "b");
    disk.put(R"(C:\A.txt)", "a");
    disk.put(R"(C:\c\d.txt)", "d");
    EXPECT_THAT(disk.files(), ElementsAre(R"(C:\A.txt)", R"(C:\b.txt)", R"(C:\c\d.txt)"));
    EXPECT_EQ(disk.bytes(R"(c:\C\D.TXT)"), "d");
    try {
        disk.bytes(R"(C:\none.txt)");
        ADD_FAILURE() << "a missing file must not pass";
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.number(), 53);
    }
}

TEST(MemoryDisk, TellsTheTimeThatWasSet) {
    MemoryDisk disk;
    disk.put(R"(C:\a.txt)", "");
    disk.set_modified(R"(C:\A.TXT)", {2026, 5, 4, 13, 2, 9});
    EXPECT_EQ(time_text(disk, R"(C:\a.txt)"), "2026/05/04 13:02:09");
}

// --- the disk that fails ---

// Every kind of call that counts, one a step. A step that failed can be done again.
class CountedCalls {
  public:
    explicit CountedCalls(Disk& disk) : disk_(disk) {}

    std::vector<std::function<void()>> steps() {
        return {
            [this] { disk_.make_folder(R"(C:\new)"); },
            [this] { sink_ = disk_.open_for_writing(R"(C:\new\a.txt)", WriteMode::replace); },
            [this] { sink_->write("one"); },
            [this] { sink_->write("two"); },
            [this] { sink_->close(); },
            [this] { EXPECT_EQ(disk_.size(R"(C:\new\a.txt)"), 6U); },
            [this] { disk_.modified(R"(C:\new\a.txt)"); },
            [this] { EXPECT_THAT(disk_.names(R"(C:\new\*)"), ElementsAre("a.txt")); },
            [this] { source_ = disk_.open_for_reading(R"(C:\new\a.txt)"); },
            [this] { EXPECT_EQ(source_->read(block_.data(), 3), 3U); },
            [this] { EXPECT_EQ(source_->read(block_.data(), 9), 3U); },
            [this] { source_.reset(), disk_.remove(R"(C:\new\a.txt)"); },
        };
    }

  private:
    Disk& disk_;
    std::unique_ptr<ByteSink> sink_;
    std::unique_ptr<ByteSource> source_;
    std::array<char, 10> block_{};
};

// The steps that failed, counted from 1, each with its number; a failed step is done again.
std::vector<std::string> failed_steps(FailingDisk& disk) {
    CountedCalls calls(disk);
    std::vector<std::string> failed;
    std::size_t at = 0;
    for (const std::function<void()>& step : calls.steps()) {
        ++at;
        try {
            step();
        } catch (const RunTimeError& error) {
            failed.push_back(std::to_string(at) + ": " + std::to_string(error.number()));
            step();
        }
    }
    return failed;
}

TEST(FailingDisk, FailsAtTheOperationThatItWasToldAndAtNoOther) {
    constexpr std::size_t operations = 12;
    for (std::size_t operation = 1; operation <= operations; ++operation) {
        MemoryDisk memory;
        memory.put_folder(R"(C:\)");
        FailingDisk disk(memory);
        disk.fail_at(operation, Failure::disk_full);
        EXPECT_THAT(failed_steps(disk), ElementsAre(std::to_string(operation) + ": 61"));
        EXPECT_EQ(disk.operations(), operations + 1);
        EXPECT_TRUE(memory.files().empty());
    }
}

TEST(FailingDisk, PassesEverythingOnUntilItIsTold) {
    MemoryDisk memory;
    memory.put_folder(R"(C:\)");
    FailingDisk disk(memory);
    EXPECT_THAT(failed_steps(disk), ElementsAre());
    EXPECT_EQ(disk.operations(), 12U);
}

TEST(FailingDisk, CountsFromTheMomentThatItIsTold) {
    MemoryDisk memory;
    memory.put(R"(C:\a.txt)", "a");
    FailingDisk disk(memory);
    disk.size(R"(C:\a.txt)");
    disk.size(R"(C:\a.txt)");
    disk.fail_at(2, Failure::device_error);
    EXPECT_EQ(disk.size(R"(C:\a.txt)"), 1U);
    EXPECT_THROW(disk.size(R"(C:\a.txt)"), RunTimeError);
    EXPECT_EQ(disk.size(R"(C:\a.txt)"), 1U);
}

TEST(FailingDisk, DoesNotCountTestsForExistence) {
    MemoryDisk memory;
    memory.put(R"(C:\a.txt)", "a");
    FailingDisk disk(memory);
    disk.fail_at(1, Failure::device_error);
    EXPECT_TRUE(disk.file_exists(R"(C:\a.txt)"));
    EXPECT_TRUE(disk.folder_exists(R"(C:\)"));
    EXPECT_EQ(disk.operations(), 0U);
    EXPECT_THROW(disk.size(R"(C:\a.txt)"), RunTimeError);
}

TEST(FailingDisk, DoesNotDoWhatFails) {
    MemoryDisk memory;
    memory.put(R"(C:\a.txt)", "a");
    FailingDisk disk(memory);
    disk.fail_at(1, Failure::permission_denied);
    EXPECT_THROW(disk.remove(R"(C:\a.txt)"), RunTimeError);
    disk.fail_at(1, Failure::permission_denied);
    EXPECT_THROW(disk.open_for_writing(R"(C:\a.txt)", WriteMode::replace), RunTimeError);
    const std::unique_ptr<ByteSink> sink = disk.open_for_writing(R"(C:\a.txt)", WriteMode::append);
    disk.fail_at(1, Failure::disk_full);
    EXPECT_THROW(sink->write("b"), RunTimeError);
    EXPECT_EQ(memory.bytes(R"(C:\a.txt)"), "a");
}

TEST(FailingDisk, FailsWheneverAFileOfTheNameIsOpenedForWriting) {
    MemoryDisk memory;
    memory.put(R"(C:\files\A.txt)", "a");
    memory.put_folder(R"(C:\other)");
    FailingDisk disk(memory);
    disk.fail_writing("a.TXT", Failure::permission_denied);
    for (const char* const path :
         {R"(C:\files\a.txt)", R"(C:\FILES\A.TXT)", R"(C:\other\a.txt)", R"(C:\files\A.txt)"}) {
        for (const WriteMode mode : {WriteMode::replace, WriteMode::append}) {
            try {
                disk.open_for_writing(path, mode);
                ADD_FAILURE() << path << " must not be opened";
            } catch (const RunTimeError& error) {
                EXPECT_EQ(error.number(), 70) << path;
            }
        }
    }
    EXPECT_EQ(read_all(disk, R"(C:\files\a.txt)"), "a");
    write_all(disk, R"(C:\files\aa.txt)", "b");
    EXPECT_EQ(memory.bytes(R"(C:\files\aa.txt)"), "b");
}

TEST(MemoryDisk, TellsWhatIsForItsOwnerAlone) {
    MemoryDisk disk;
    disk.put(R"(C:\a.txt)", "a");
    disk.put(R"(C:\b.txt)", "b");
    write_all(disk, R"(C:\c.txt)", "c", WriteMode::replace_for_owner);
    EXPECT_FALSE(disk.is_for_owner(R"(C:\a.txt)"));
    EXPECT_TRUE(disk.is_for_owner(R"(C:\c.txt)"));
    disk.replace(R"(C:\c.txt)", R"(C:\a.txt)");
    EXPECT_TRUE(disk.is_for_owner(R"(C:\a.txt)"));
    disk.replace(R"(C:\b.txt)", R"(C:\a.txt)");
    EXPECT_TRUE(disk.is_for_owner(R"(C:\a.txt)"));
    EXPECT_EQ(disk.bytes(R"(C:\a.txt)"), "b");
}

}  // namespace
}  // namespace veldrana
