#include "platform/host_disk.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "common/run_time_error.h"
#include "platform/profile_file.h"
#include "platform/text_file.h"
#include "tests/doubles/disk_bytes.h"
#include "tests/doubles/failure_of.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using namespace std::string_view_literals;
using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> host_names(const fs::path& folder) {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

// Root may do everything: what is not permitted is tried as a user without rights.
class OrdinaryUser {
  public:
    OrdinaryUser() : was_root_(geteuid() == 0) {
        if (was_root_ && seteuid(nobody) != 0) {
            throw std::runtime_error("cannot become an ordinary user");
        }
    }
    OrdinaryUser(const OrdinaryUser&) = delete;
    OrdinaryUser& operator=(const OrdinaryUser&) = delete;
    ~OrdinaryUser() {
        if (was_root_ && seteuid(0) != 0) {
            std::abort();
        }
    }

  private:
    static constexpr uid_t nobody = 65534;
    bool was_root_;
};

template <class Act>
int failure_as_ordinary_user(Act act) {
    const OrdinaryUser user;
    return failure_of(act);
}

// The mode of a file or folder for one test; what was there before comes back, so that the scratch
// folder can be removed.
class Mode {
  public:
    Mode(fs::path path, unsigned mode)
        : path_(std::move(path)), before_(fs::status(path_).permissions()) {
        fs::permissions(path_, static_cast<fs::perms>(mode));
    }
    Mode(const Mode&) = delete;
    Mode& operator=(const Mode&) = delete;
    ~Mode() {
        std::error_code ignored;
        fs::permissions(path_, before_, ignored);
    }

  private:
    fs::path path_;
    fs::perms before_;
};

// Files of a test can be read by every user, whatever the caller's mask.
class CommonFileMask {
  public:
    CommonFileMask() = default;
    CommonFileMask(const CommonFileMask&) = delete;
    CommonFileMask& operator=(const CommonFileMask&) = delete;
    ~CommonFileMask() { umask(before_); }

  private:
    mode_t before_ = umask(0022);
};

class HostDiskTest : public testing::Test {
  protected:
    HostDiskTest() {
        fs::create_directories(c_ / "sub");
        fs::create_directories(program_);
        write_bytes(c_ / "sub" / "file.txt", "JA1ZZZ");
        // Whoever the test runs as may write into the program's folder.
        fs::permissions(program_, static_cast<fs::perms>(0777));
    }

    const CommonFileMask mask_;
    ScratchFolder scratch_;
    const fs::path c_ = scratch_.path() / "c";
    const fs::path program_ = scratch_.path() / "program";
    HostDisk disk_{{{'C', c_}}, program_};
};

// --- drives and names ---

TEST_F(HostDiskTest, FindsAFileBelowTheFolderOfItsDrive) {
    EXPECT_TRUE(disk_.file_exists(R"(C:\sub\file.txt)"));
    EXPECT_TRUE(disk_.folder_exists(R"(C:\sub)"));
    EXPECT_EQ(read_all(disk_, R"(C:\sub\file.txt)"), "JA1ZZZ");
    EXPECT_EQ(disk_.size(R"(C:\sub\file.txt)"), 6U);
}

TEST_F(HostDiskTest, TellsFilesFromFolders) {
    EXPECT_FALSE(disk_.folder_exists(R"(C:\sub\file.txt)"));
    EXPECT_FALSE(disk_.file_exists(R"(C:\sub)"));
    EXPECT_FALSE(disk_.file_exists(R"(C:\)"));
}

TEST_F(HostDiskTest, FindsAFolderWithAndWithoutABackslashAtItsEnd) {
    for (const std::string_view folder : {R"(C:\sub\)"sv, R"(C:\sub)"sv, R"(C:\)"sv, "C:"sv}) {
        EXPECT_TRUE(disk_.folder_exists(folder)) << folder;
    }
}

TEST_F(HostDiskTest, TakesDriveLettersInAnyCase) {
    HostDisk disk({{'d', c_}}, program_);
    EXPECT_EQ(read_all(disk, R"(D:\sub\file.txt)"), "JA1ZZZ");
    EXPECT_EQ(read_all(disk, R"(d:\sub\file.txt)"), "JA1ZZZ");
}

TEST_F(HostDiskTest, HasTheRootOfTheHostAsDriveZ) {
    const std::string path = disk_.program_path("/dev/null");
    EXPECT_EQ(path, R"(Z:\dev\null)");
    EXPECT_TRUE(disk_.file_exists(path));
    EXPECT_TRUE(disk_.folder_exists(R"(Z:\)"));
}

TEST_F(HostDiskTest, LetsDriveZBeAnotherFolder) {
    HostDisk disk({{'Z', c_}}, program_);
    EXPECT_EQ(read_all(disk, R"(Z:\sub\file.txt)"), "JA1ZZZ");
    EXPECT_FALSE(disk.folder_exists(R"(Z:\dev)"));
}

TEST_F(HostDiskTest, KeepsDrivesApart) {
    const fs::path d = scratch_.path() / "d";
    write_bytes(d / "other.txt", "JR9XYZ");
    HostDisk disk({{'C', c_}, {'D', d}}, program_);
    EXPECT_EQ(read_all(disk, R"(D:\other.txt)"), "JR9XYZ");
    EXPECT_FALSE(disk.file_exists(R"(C:\other.txt)"));
    EXPECT_FALSE(disk.file_exists(R"(D:\sub\file.txt)"));
}

TEST_F(HostDiskTest, FindsNamesInAnyCase) {
    write_bytes(c_ / "Log Files" / "JA1ZZZ_Test.ALL", "a");
    write_bytes(c_ / "ＡＢＣ" / "ｘ.txt", "b");
    EXPECT_EQ(read_all(disk_, R"(C:\LOG FILES\ja1zzz_test.all)"), "a");
    EXPECT_EQ(read_all(disk_, R"(c:\log files\JA1ZZZ_TEST.ALL)"), "a");
    EXPECT_EQ(read_all(disk_, R"(C:\ａｂｃ\Ｘ.TXT)"), "b");
    EXPECT_TRUE(disk_.folder_exists(R"(C:\log FILES\)"));
    EXPECT_EQ(disk_.size(R"(C:\log files\ja1zzz_test.ALL)"), 1U);
}

TEST_F(HostDiskTest, WritesAFileThatIsThereWhateverTheCaseOfItsName) {
    write_all(disk_, R"(c:\SUB\FILE.TXT)", "new");
    EXPECT_THAT(host_names(c_ / "sub"), ElementsAre("file.txt"));
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "new");
}

TEST_F(HostDiskTest, MakesANewFileUnderTheNameAsItIsWritten) {
    write_all(disk_, R"(C:\SUB\New File.Txt)", "new");
    EXPECT_THAT(host_names(c_ / "sub"), ElementsAre("New File.Txt", "file.txt"));
}

TEST_F(HostDiskTest, TakesTheNameOfItsOwnCaseIfThereAreTwo) {
    write_bytes(c_ / "sub" / "FILE.TXT", "upper");
    EXPECT_EQ(read_all(disk_, R"(C:\sub\FILE.TXT)"), "upper");
    EXPECT_EQ(read_all(disk_, R"(C:\sub\file.txt)"), "JA1ZZZ");
    disk_.remove(R"(C:\sub\file.txt)");
    EXPECT_THAT(host_names(c_ / "sub"), ElementsAre("FILE.TXT"));
}

TEST_F(HostDiskTest, RemovesAFileWhateverTheCaseOfItsName) {
    disk_.remove(R"(C:\Sub\File.txt)");
    EXPECT_THAT(host_names(c_ / "sub"), IsEmpty());
}

// One file by both separators, single and doubled.
constexpr std::array in_other_separators{
    R"(C:\sub\file.txt)"sv, R"(C:\sub\file.txt)"sv, R"(C:\sub\file.txt)"sv, R"(C:\sub/file.txt)"sv,
    R"(C:/sub\file.txt)"sv, "C:/sub/file.txt"sv,    "C://sub//file.txt"sv};

TEST_F(HostDiskTest, FindsAFileByEitherSeparator) {
    for (const std::string_view path : in_other_separators) {
        EXPECT_TRUE(disk_.file_exists(path)) << path;
        EXPECT_EQ(read_all(disk_, path), "JA1ZZZ") << path;
        EXPECT_EQ(disk_.size(path), 6U) << path;
        write_all(disk_, path, path);
        EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), path);
        disk_.remove(path);
        EXPECT_THAT(host_names(c_ / "sub"), IsEmpty()) << path;
        write_bytes(c_ / "sub" / "file.txt", "JA1ZZZ");
    }
}

TEST_F(HostDiskTest, ListsAFolderByEitherSeparator) {
    for (const std::string_view path : in_other_separators) {
        EXPECT_THAT(disk_.names(path), ElementsAre("file.txt")) << path;
        EXPECT_EQ(remove_matching(disk_, path), 1U) << path;
        EXPECT_THAT(host_names(c_ / "sub"), IsEmpty()) << path;
        write_bytes(c_ / "sub" / "file.txt", "JA1ZZZ");
    }
}

TEST_F(HostDiskTest, FollowsDotsWithinTheDrive) {
    for (const std::string_view path : {R"(C:\sub\.\file.txt)"sv, R"(C:\sub\..\sub\file.txt)"sv,
                                        R"(C:\..\sub\file.txt)"sv, "C:/./sub/deep/../file.txt"sv}) {
        EXPECT_EQ(read_all(disk_, path), "JA1ZZZ") << path;
        EXPECT_THAT(disk_.names(path), ElementsAre("file.txt")) << path;
    }
    write_all(disk_, R"(C:\sub\..\..\..\root.txt)", "a");
    EXPECT_EQ(read_bytes(c_ / "root.txt"), "a");
    EXPECT_TRUE(disk_.folder_exists(R"(C:\sub\..)"));
}

TEST_F(HostDiskTest, WorksInFoldersWhoseSecondByteIsABackslashInTheCodePage) {
    for (const std::string_view folder : {"表示"sv, "ソフト"sv, "表"sv, "ポ"sv}) {
        const std::string path = R"(C:\)" + std::string(folder);
        disk_.make_folder(path);
        write_all(disk_, path + R"(\ソ.txt)", "a");
        copy_file(disk_, path + R"(\ソ.txt)", path + R"(\能表.TXT)");

        const fs::path host = c_ / folder;
        EXPECT_EQ(read_bytes(host / "ソ.txt"), "a") << folder;
        EXPECT_EQ(read_all(disk_, path + R"(\\能表.txt)"), "a") << folder;
        EXPECT_THAT(disk_.names(path + R"(\*.txt)"), ElementsAre("ソ.txt", "能表.TXT")) << folder;
        EXPECT_EQ(disk_.program_path(host / "ソ.txt"), path + R"(\ソ.txt)");
        EXPECT_EQ(remove_matching(disk_, path + R"(\ソ*)"), 1U) << folder;
        EXPECT_THAT(host_names(host), ElementsAre("能表.TXT")) << folder;
        EXPECT_TRUE(disk_.folder_exists(path + '\\')) << folder;
    }
}

// --- what is missing or cannot be ---

struct Operation {
    const char* name;
    void (*run)(Disk& disk, std::string_view path);
};

constexpr Operation reading{"reading",
                            [](Disk& disk, std::string_view path) { disk.open_for_reading(path); }};
constexpr Operation writing{"writing", [](Disk& disk, std::string_view path) {
                                disk.open_for_writing(path, WriteMode::replace);
                            }};
constexpr Operation appending{"appending", [](Disk& disk, std::string_view path) {
                                  disk.open_for_writing(path, WriteMode::append);
                              }};
constexpr Operation sizing{"size", [](Disk& disk, std::string_view path) { disk.size(path); }};
constexpr Operation dating{"modified",
                           [](Disk& disk, std::string_view path) { disk.modified(path); }};
constexpr Operation removing{"remove",
                             [](Disk& disk, std::string_view path) { disk.remove(path); }};
constexpr Operation telling_time{"time_text",
                                 [](Disk& disk, std::string_view path) { time_text(disk, path); }};
constexpr Operation copying_from{"copy from", [](Disk& disk, std::string_view path) {
                                     copy_file(disk, path, R"(C:\sub\copy.txt)");
                                 }};
constexpr Operation copying_to{"copy to", [](Disk& disk, std::string_view path) {
                                   copy_file(disk, R"(C:\sub\file.txt)", path);
                               }};
constexpr Operation making_folder{
    "make_folder", [](Disk& disk, std::string_view path) { disk.make_folder(path); }};

constexpr std::array of_a_file_that_is_there{reading,  sizing,       dating,
                                             removing, telling_time, copying_from};
constexpr std::array that_make_a_file{writing, appending, copying_to};

TEST_F(HostDiskTest, TellsThatAFileIsMissing) {
    for (const Operation& operation : of_a_file_that_is_there) {
        for (const std::string_view path : {R"(C:\sub\none.txt)"sv, R"(C:\none.txt)"sv,
                                            R"(Z:\veldrana_none.txt)"sv, R"(C:/sub/none.txt)"sv}) {
            EXPECT_EQ(failure_of([&] { operation.run(disk_, path); }), 53)
                << operation.name << " " << path;
        }
    }
    EXPECT_FALSE(disk_.file_exists(R"(C:\sub\none.txt)"));
    EXPECT_FALSE(disk_.folder_exists(R"(C:\none)"));
    EXPECT_THAT(host_names(c_ / "sub"), ElementsAre("file.txt"));
}

void expect_no_folder(HostDisk& disk, std::string_view path) {
    for (const Operation& operation : of_a_file_that_is_there) {
        EXPECT_EQ(failure_of([&] { operation.run(disk, path); }), 76)
            << operation.name << " " << path;
    }
    for (const Operation& operation : that_make_a_file) {
        EXPECT_EQ(failure_of([&] { operation.run(disk, path); }), 76)
            << operation.name << " " << path;
    }
    EXPECT_EQ(failure_of([&] { making_folder.run(disk, path); }), 76) << path;
    EXPECT_FALSE(disk.file_exists(path)) << path;
    EXPECT_FALSE(disk.folder_exists(path)) << path;
}

TEST_F(HostDiskTest, TellsThatAFolderIsMissing) {
    for (const std::string_view path : {R"(C:\none\file.txt)"sv, R"(C:\sub\none\file.txt)"sv,
                                        R"(Z:\veldrana_none\file.txt)"sv, "C:/none/file.txt"sv}) {
        expect_no_folder(disk_, path);
    }
    EXPECT_THAT(host_names(c_), ElementsAre("sub"));
}

TEST_F(HostDiskTest, TellsThatAFileIsNoFolder) {
    expect_no_folder(disk_, R"(C:\sub\file.txt\file.txt)");
    expect_no_folder(disk_, R"(C:\sub\file.txt\deep\file.txt)");
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "JA1ZZZ");
}

TEST_F(HostDiskTest, TellsThatADriveIsMissing) {
    for (const std::string_view path :
         {R"(Q:\file.txt)"sv, R"(Q:\sub\file.txt)"sv, "Q:/file.txt"sv, "Q:/sub/file.txt"sv}) {
        expect_no_folder(disk_, path);
    }
}

TEST_F(HostDiskTest, TellsThatNoFileCanHaveTheName) {
    for (const std::string_view name :
         {"a:b"sv, "a*b"sv, "?"sv, R"("a")"sv, "a<b"sv, "a>b"sv, "a|b"sv, "a\0b"sv}) {
        const std::string path = R"(C:\sub\)" + std::string(name);
        for (const Operation& operation : of_a_file_that_is_there) {
            EXPECT_EQ(failure_of([&] { operation.run(disk_, path); }), 52)
                << operation.name << " " << path;
        }
        for (const Operation& operation : that_make_a_file) {
            EXPECT_EQ(failure_of([&] { operation.run(disk_, path); }), 52)
                << operation.name << " " << path;
        }
        EXPECT_EQ(failure_of([&] { making_folder.run(disk_, path); }), 52) << path;
        EXPECT_FALSE(disk_.file_exists(path)) << path;
        EXPECT_FALSE(disk_.folder_exists(path)) << path;
    }
    EXPECT_THAT(host_names(c_ / "sub"), ElementsAre("file.txt"));
}

TEST_F(HostDiskTest, TellsThatANameIsLongerThanAnyFileCanHave) {
    const std::string path = R"(C:\sub\)" + std::string(1000, 'x');
    EXPECT_EQ(failure_of([&] { writing.run(disk_, path); }), 52);
    EXPECT_FALSE(disk_.file_exists(path));
}

TEST_F(HostDiskTest, TellsThatAFolderStandsInThePlaceOfAFile) {
    for (const std::string_view path :
         {R"(C:\sub)"sv, R"(C:\SUB\)"sv, R"(C:\)"sv, R"(C:\sub\deep)"sv}) {
        fs::create_directories(c_ / "sub" / "deep");
        for (const Operation& operation :
             {reading, sizing, removing, copying_from, writing, appending, copying_to}) {
            EXPECT_EQ(failure_of([&] { operation.run(disk_, path); }), 75)
                << operation.name << " " << path;
        }
        EXPECT_TRUE(disk_.folder_exists(path)) << path;
    }
}

TEST_F(HostDiskTest, MakesAFolder) {
    disk_.make_folder(R"(C:\sub\New)");
    disk_.make_folder(R"(C:\Sub\new\deep\)");
    EXPECT_TRUE(fs::is_directory(c_ / "sub" / "New" / "deep"));
    EXPECT_TRUE(disk_.folder_exists(R"(C:\sub\NEW\DEEP)"));
}

TEST_F(HostDiskTest, MakesNoFolderWhereSomethingIs) {
    for (const std::string_view path : {R"(C:\sub)"sv, R"(C:\SUB\)"sv, R"(C:\sub\file.txt)"sv,
                                        R"(C:\sub\File.TXT)"sv, R"(C:\)"sv}) {
        EXPECT_EQ(failure_of([&] { disk_.make_folder(path); }), 75) << path;
    }
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "JA1ZZZ");
}

// --- reading and writing ---

TEST_F(HostDiskTest, ReadsAFileInPiecesFromItsStart) {
    const std::unique_ptr<ByteSource> source = disk_.open_for_reading(R"(C:\sub\file.txt)");
    std::array<char, 4> piece{};
    EXPECT_EQ(source->read(piece.data(), 4), 4U);
    EXPECT_EQ(std::string(piece.data(), 4), "JA1Z");
    EXPECT_EQ(source->read(piece.data(), 4), 2U);
    EXPECT_EQ(std::string(piece.data(), 2), "ZZ");
    EXPECT_EQ(source->read(piece.data(), 4), 0U);
    EXPECT_EQ(source->read(piece.data(), 4), 0U);
}

TEST_F(HostDiskTest, ReplacesOrAppendsAsTold) {
    write_all(disk_, R"(C:\sub\a.txt)", "long and old");
    write_all(disk_, R"(C:\sub\a.txt)", "new");
    EXPECT_EQ(read_bytes(c_ / "sub" / "a.txt"), "new");
    write_all(disk_, R"(C:\sub\a.txt)", "er", WriteMode::append);
    EXPECT_EQ(read_bytes(c_ / "sub" / "a.txt"), "newer");
    write_all(disk_, R"(C:\sub\b.txt)", "made", WriteMode::append);
    EXPECT_EQ(read_bytes(c_ / "sub" / "b.txt"), "made");
}

TEST_F(HostDiskTest, WritesBytesAsTheyAre) {
    const std::string bytes("\0\r\n\n\x1A\xFF\x82"sv);
    write_all(disk_, R"(C:\sub\a.dat)", bytes);
    EXPECT_EQ(read_bytes(c_ / "sub" / "a.dat"), bytes);
    EXPECT_EQ(read_all(disk_, R"(C:\sub\a.dat)"), bytes);
    EXPECT_EQ(disk_.size(R"(C:\sub\a.dat)"), 7U);
}

TEST_F(HostDiskTest, MakesTheFileWhenItIsOpened) {
    const std::unique_ptr<ByteSink> sink =
        disk_.open_for_writing(R"(C:\sub\a.txt)", WriteMode::replace);
    EXPECT_TRUE(disk_.file_exists(R"(C:\sub\a.txt)"));
}

TEST_F(HostDiskTest, KeepsWhatWasWrittenToASinkThatIsDestroyed) {
    disk_.open_for_writing(R"(C:\sub\a.txt)", WriteMode::replace)->write("a");
    EXPECT_EQ(read_bytes(c_ / "sub" / "a.txt"), "a");
}

TEST_F(HostDiskTest, LetsItsFilesOutliveIt) {
    auto disk = std::make_unique<HostDisk>(std::map<char, fs::path>{{'C', c_}}, program_);
    const std::unique_ptr<ByteSink> sink =
        disk->open_for_writing(R"(C:\sub\a.txt)", WriteMode::replace);
    const std::unique_ptr<ByteSource> source = disk->open_for_reading(R"(C:\sub\file.txt)");
    disk.reset();
    sink->write("a");
    sink->close();
    EXPECT_EQ(read_bytes(c_ / "sub" / "a.txt"), "a");
    std::array<char, 10> piece{};
    EXPECT_EQ(source->read(piece.data(), piece.size()), 6U);
}

// --- files that are open ---

// The path of one file, in other words.
constexpr std::array paths_of_the_file{R"(C:\sub\file.txt)"sv,   R"(c:\SUB\FILE.TXT)"sv,
                                       R"(C:\\sub\\file.txt)"sv, R"(D:\file.txt)"sv,
                                       R"(C:\sub\.\file.txt)"sv, R"(C:\sub\link.txt)"sv};

class OpenFiles : public HostDiskTest {
  protected:
    OpenFiles() { fs::create_symlink(c_ / "sub" / "file.txt", c_ / "sub" / "link.txt"); }

    static constexpr std::string_view file_ = R"(C:\sub\file.txt)";
    HostDisk both_{{{'C', c_}, {'D', c_ / "sub"}}, program_};
};

TEST_F(OpenFiles, AreReadByMany) {
    const std::unique_ptr<ByteSource> first = both_.open_for_reading(file_);
    for (const std::string_view path : paths_of_the_file) {
        EXPECT_EQ(read_all(both_, path), "JA1ZZZ") << path;
    }
}

TEST_F(OpenFiles, AreNotWrittenWhileTheyAreRead) {
    const std::unique_ptr<ByteSource> open = both_.open_for_reading(file_);
    for (const std::string_view path : paths_of_the_file) {
        EXPECT_EQ(failure_of([&] { writing.run(both_, path); }), 55) << path;
        EXPECT_EQ(failure_of([&] { appending.run(both_, path); }), 55) << path;
    }
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "JA1ZZZ");
}

TEST_F(OpenFiles, AreNeitherReadNorWrittenWhileTheyAreWritten) {
    for (const WriteMode mode : {WriteMode::replace, WriteMode::append}) {
        const std::unique_ptr<ByteSink> open = both_.open_for_writing(file_, mode);
        for (const std::string_view path : paths_of_the_file) {
            EXPECT_EQ(failure_of([&] { reading.run(both_, path); }), 55) << path;
            EXPECT_EQ(failure_of([&] { writing.run(both_, path); }), 55) << path;
            EXPECT_EQ(failure_of([&] { appending.run(both_, path); }), 55) << path;
        }
    }
}

TEST_F(OpenFiles, AreGuardedFromTheirFirstMoment) {
    const std::unique_ptr<ByteSink> open =
        both_.open_for_writing(R"(C:\sub\new.txt)", WriteMode::replace);
    EXPECT_EQ(failure_of([&] { reading.run(both_, R"(D:\NEW.TXT)"); }), 55);
    EXPECT_EQ(failure_of([&] { writing.run(both_, R"(C:\sub\new.txt)"); }), 55);
}

TEST_F(OpenFiles, DoNotHinderOtherFiles) {
    write_bytes(c_ / "file.txt", "another");
    const std::unique_ptr<ByteSink> open = both_.open_for_writing(file_, WriteMode::replace);
    EXPECT_EQ(read_all(both_, R"(C:\file.txt)"), "another");
    write_all(both_, R"(C:\sub\file2.txt)", "a");
    EXPECT_EQ(read_bytes(c_ / "sub" / "file2.txt"), "a");
}

TEST_F(OpenFiles, AreReleasedWhenTheLastReaderIsGone) {
    std::unique_ptr<ByteSource> first = both_.open_for_reading(file_);
    std::unique_ptr<ByteSource> second = both_.open_for_reading(file_);
    first.reset();
    EXPECT_EQ(failure_of([&] { writing.run(both_, file_); }), 55);
    second.reset();
    EXPECT_EQ(failure_of([&] { writing.run(both_, file_); }), 0);
}

TEST_F(OpenFiles, AreReleasedByTheCloseOfTheirWriter) {
    const std::unique_ptr<ByteSink> closed = both_.open_for_writing(file_, WriteMode::replace);
    closed->write("a");
    closed->close();
    EXPECT_EQ(read_all(both_, file_), "a");
    EXPECT_EQ(failure_of([&] { writing.run(both_, file_); }), 0);
}

TEST_F(OpenFiles, AreReleasedWhenTheirWriterIsDestroyed) {
    both_.open_for_writing(file_, WriteMode::replace)->write("a");
    EXPECT_EQ(read_all(both_, file_), "a");
}

TEST_F(OpenFiles, StayGuardedAfterAWriterClosedBeforeIsGone) {
    std::unique_ptr<ByteSink> closed = both_.open_for_writing(file_, WriteMode::replace);
    closed->close();
    const std::unique_ptr<ByteSink> open = both_.open_for_writing(file_, WriteMode::replace);
    closed.reset();
    EXPECT_EQ(failure_of([&] { writing.run(both_, file_); }), 55);
}

TEST_F(OpenFiles, AreNotCopiedOverThemselves) {
    EXPECT_EQ(failure_of([&] { copy_file(both_, file_, R"(D:\FILE.txt)"); }), 55);
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "JA1ZZZ");
}

// --- permission and room ---

// A scratch folder that the user without rights cannot reach tells nothing.
bool ordinary_user_reaches(const fs::path& folder) {
    const OrdinaryUser user;
    return euidaccess(folder.c_str(), R_OK | X_OK) == 0;
}

class Permissions : public HostDiskTest {
  protected:
    void SetUp() override {
        if (!ordinary_user_reaches(c_)) {
            GTEST_SKIP() << "an ordinary user cannot reach the scratch folder";
        }
    }
};

TEST_F(Permissions, TellsThatAFileMayNotBeRead) {
    const Mode locked(c_ / "sub" / "file.txt", 0);
    EXPECT_EQ(failure_as_ordinary_user([&] { reading.run(disk_, R"(C:\sub\file.txt)"); }), 70);
}

TEST_F(Permissions, TellsThatAFileMayNotBeWritten) {
    const Mode locked(c_ / "sub" / "file.txt", 0444);
    for (const Operation& operation : {writing, appending}) {
        EXPECT_EQ(failure_as_ordinary_user([&] { operation.run(disk_, R"(C:\sub\file.txt)"); }), 70)
            << operation.name;
    }
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "JA1ZZZ");
}

TEST_F(Permissions, TellsThatAFolderMayNotBeChanged) {
    const Mode locked(c_ / "sub", 0555);
    EXPECT_EQ(failure_as_ordinary_user([&] { writing.run(disk_, R"(C:\sub\new.txt)"); }), 70);
    EXPECT_EQ(failure_as_ordinary_user([&] { removing.run(disk_, R"(C:\sub\file.txt)"); }), 70);
    EXPECT_EQ(failure_as_ordinary_user([&] { making_folder.run(disk_, R"(C:\sub\new)"); }), 70);
    EXPECT_THAT(host_names(c_ / "sub"), ElementsAre("file.txt"));
}

TEST_F(Permissions, AreAskedBeforeAFileCountsAsOpen) {
    {
        const Mode locked(c_ / "sub" / "file.txt", 0);
        for (const Operation& operation : {reading, writing, appending}) {
            EXPECT_EQ(failure_as_ordinary_user([&] { operation.run(disk_, R"(C:\sub\file.txt)"); }),
                      70)
                << operation.name;
        }
    }
    EXPECT_EQ(failure_of([&] { writing.run(disk_, R"(C:\sub\file.txt)"); }), 0);
}

class FullDisk : public HostDiskTest {
  protected:
    FullDisk() { fs::create_symlink("/dev/full", c_ / "sub" / "full.txt"); }

    static constexpr std::string_view full_ = R"(C:\sub\full.txt)";
};

TEST_F(FullDisk, IsToldByTheWriter) {
    EXPECT_EQ(failure_of([&] { write_all(disk_, full_, "a"); }), 61);
    EXPECT_EQ(failure_of([&] { write_all(disk_, full_, std::string(1'000'000, 'a')); }), 61);
    EXPECT_EQ(failure_of([&] { copy_file(disk_, R"(C:\sub\file.txt)", full_); }), 61);
}

TEST_F(FullDisk, IsToldByATextFileWhenItIsClosed) {
    TextOutput output(disk_, full_);
    output.write_line("JA1ZZZ");
    EXPECT_EQ(failure_of([&] { output.close(); }), 61);
}

TEST_F(FullDisk, ReleasesTheFile) {
    EXPECT_EQ(failure_of([&] { write_all(disk_, full_, "a"); }), 61);
    EXPECT_EQ(failure_of([&] { writing.run(disk_, full_); }), 0);
}

// Takes all file handles but those in use.
class NoMoreFiles {
  public:
    NoMoreFiles() {
        getrlimit(RLIMIT_NOFILE, &before_);
        const int next = open("/dev/null", O_RDONLY | O_CLOEXEC);
        close(next);
        rlimit limit = before_;
        limit.rlim_cur = static_cast<rlim_t>(next);
        setrlimit(RLIMIT_NOFILE, &limit);
    }
    NoMoreFiles(const NoMoreFiles&) = delete;
    NoMoreFiles& operator=(const NoMoreFiles&) = delete;
    ~NoMoreFiles() { setrlimit(RLIMIT_NOFILE, &before_); }

  private:
    rlimit before_{};
};

TEST_F(HostDiskTest, TellsThatTooManyFilesAreOpen) {
    const NoMoreFiles limit;
    EXPECT_EQ(failure_of([&] { reading.run(disk_, R"(C:\sub\file.txt)"); }), 67);
    EXPECT_EQ(failure_of([&] { appending.run(disk_, R"(C:\sub\file.txt)"); }), 67);
}

#ifdef __linux__
TEST_F(HostDiskTest, TellsThatADeviceFailed) {
    // The first page of a process's memory is never there to be read.
    fs::create_symlink("/proc/self/mem", c_ / "sub" / "device.txt");
    if (access("/proc/self/mem", R_OK) != 0) {
        GTEST_SKIP() << "no device that fails";
    }
    EXPECT_EQ(failure_of([&] { read_all(disk_, R"(C:\sub\device.txt)"); }), 57);
}
#endif

// --- lists ---

class Names : public HostDiskTest {
  protected:
    Names() {
        for (const char* const name :
             {"B1.DAT", "a.dat", "ab.dat", "b.txt", "noext", "表.dat", "x.y.dat", "Ω.DATA"}) {
            write_bytes(c_ / "work" / name, "");
        }
        fs::create_directories(c_ / "work" / "folder.dat");
    }
};

TEST_F(Names, AreThoseThatFitThePatternInTheOrderOfTheirCharacters) {
    struct Row {
        std::string_view pattern;
        std::vector<std::string> names;
    };
    const std::vector<Row> rows{
        {"*", {"B1.DAT", "a.dat", "ab.dat", "b.txt", "noext", "x.y.dat", "Ω.DATA", "表.dat"}},
        {"*.dat", {"B1.DAT", "a.dat", "ab.dat", "x.y.dat", "表.dat"}},
        {"*.DAT", {"B1.DAT", "a.dat", "ab.dat", "x.y.dat", "表.dat"}},
        {"*.dat*", {"B1.DAT", "a.dat", "ab.dat", "x.y.dat", "Ω.DATA", "表.dat"}},
        {"?.dat", {"a.dat", "表.dat"}},
        {"??.dat", {"B1.DAT", "ab.dat"}},
        {"A*", {"a.dat", "ab.dat"}},
        {"*b*", {"B1.DAT", "ab.dat", "b.txt"}},
        {"B.TXT", {"b.txt"}},
        {"表.*", {"表.dat"}},
        {"*.d", {}},
        {"none*", {}},
        {"folder.dat", {}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(disk_.names(R"(C:\WORK\)" + std::string(row.pattern)), row.names) << row.pattern;
    }
}

TEST_F(Names, AreNoneInAFolderThatIsMissing) {
    for (const std::string_view pattern :
         {R"(C:\none\*.dat)"sv, R"(Q:\*.dat)"sv, R"(C:\work\a.dat\*)"sv}) {
        EXPECT_THAT(disk_.names(pattern), IsEmpty()) << pattern;
        EXPECT_EQ(remove_matching(disk_, pattern), 0U) << pattern;
    }
}

TEST_F(Names, AreFoundInTheRootOfADrive) {
    write_bytes(c_ / "Sort-in.dat", "");
    EXPECT_THAT(disk_.names(R"(C:\*.dat)"), ElementsAre("Sort-in.dat"));
    EXPECT_THAT(disk_.names(R"(C:\*)"), ElementsAre("Sort-in.dat"));
}

TEST_F(Names, AreFoundWhereAPathWithoutABackslashLeads) {
    write_all(disk_, "C:Sort-in.dat", "");
    EXPECT_TRUE(disk_.file_exists(R"(C:\Sort-in.dat)"));
    EXPECT_THAT(disk_.names("C:*.dat"), ElementsAre("Sort-in.dat"));
}

TEST_F(Names, OfFilesThatFitAreRemoved) {
    EXPECT_EQ(remove_matching(disk_, R"(C:\work\*.dat)"), 5U);
    EXPECT_THAT(host_names(c_ / "work"), ElementsAre("b.txt", "folder.dat", "noext", "Ω.DATA"));
    EXPECT_EQ(remove_matching(disk_, R"(C:\work\*.dat)"), 0U);
}

// --- copies and times ---

TEST_F(HostDiskTest, CopiesTheBytesOfAFileOverAnother) {
    std::string bytes;
    for (int i = 0; i < 300'000; ++i) {
        bytes += static_cast<char>(i % 251);
    }
    write_bytes(c_ / "sub" / "from.dat", bytes);
    write_bytes(c_ / "sub" / "to.dat", bytes + bytes);
    copy_file(disk_, R"(C:\sub\from.dat)", R"(C:\sub\to.dat)");
    EXPECT_EQ(read_bytes(c_ / "sub" / "to.dat"), bytes);
    EXPECT_EQ(read_bytes(c_ / "sub" / "from.dat"), bytes);
}

TEST_F(HostDiskTest, CopiesAnEmptyFile) {
    write_bytes(c_ / "sub" / "empty.dat", "");
    copy_file(disk_, R"(C:\sub\empty.dat)", R"(C:\sub\file.txt)");
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "");
}

TEST_F(HostDiskTest, KeepsTheFileThatAMissingOneShouldReplace) {
    EXPECT_EQ(failure_of([&] { copy_file(disk_, R"(C:\sub\none.dat)", R"(C:\sub\file.txt)"); }),
              53);
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "JA1ZZZ");
}

TEST_F(HostDiskTest, PassesOnEveryFailureOfACopy) {
    const auto copy = [](Disk& disk) { copy_file(disk, R"(C:\sub\file.txt)", R"(C:\sub\to.txt)"); };
    FailingDisk counting(disk_);
    copy(counting);
    // At the least two openings, a read, a write and the close, where the last bytes may fail.
    ASSERT_GE(counting.operations(), 5U);
    for (std::size_t operation = 1; operation <= counting.operations(); ++operation) {
        FailingDisk failing(disk_);
        failing.fail_at(operation, Failure::device_error);
        EXPECT_EQ(failure_of([&] { copy(failing); }), 57) << operation;
    }
    EXPECT_EQ(read_bytes(c_ / "sub" / "file.txt"), "JA1ZZZ");
}

TEST_F(HostDiskTest, TellsWhenAFileWasLastWrittenInLocalTime) {
    std::tm time{};
    time.tm_year = 2024 - 1900;
    time.tm_mon = 1;
    time.tm_mday = 29;
    time.tm_hour = 8;
    time.tm_min = 5;
    time.tm_sec = 9;
    time.tm_isdst = -1;
    const timespec seconds{std::mktime(&time), 999'999'999};
    const std::array<timespec, 2> times{seconds, seconds};
    ASSERT_EQ(utimensat(AT_FDCWD, (c_ / "sub" / "file.txt").c_str(), times.data(), 0), 0);

    EXPECT_EQ(time_text(disk_, R"(C:\sub\FILE.txt)"), "2024/02/29 08:05:09");
    const LocalTime modified = disk_.modified(R"(C:\sub\file.txt)");
    EXPECT_EQ(modified.year, 2024);
    EXPECT_EQ(modified.month, 2);
    EXPECT_EQ(modified.day, 29);
    EXPECT_EQ(modified.hour, 8);
    EXPECT_EQ(modified.minute, 5);
    EXPECT_EQ(modified.second, 9);
}

// --- roots that cannot be written ---

TEST_F(HostDiskTest, WritesIntoTheRootOfADriveThatCanBeWritten) {
    write_all(disk_, R"(C:\Sort-in.dat)", "a");
    EXPECT_EQ(read_bytes(c_ / "Sort-in.dat"), "a");
    EXPECT_THAT(host_names(program_), IsEmpty());
}

// A drive whose root cannot be written, seen by a user without rights.
class LockedRoot : public HostDiskTest {
  protected:
    LockedRoot() {
        write_bytes(c_ / "Old.dat", "old");
        fs::permissions(c_ / "sub", static_cast<fs::perms>(0777));
        locked_.emplace(c_, 0555);
        user_.emplace();
    }

    void SetUp() override {
        if (!ordinary_user_reaches(c_)) {
            GTEST_SKIP() << "an ordinary user cannot reach the scratch folder";
        }
    }

    std::vector<std::string> substituted() { return host_names(program_ / "Drive_C"); }

    std::optional<Mode> locked_;
    std::optional<OrdinaryUser> user_;
};

TEST_F(LockedRoot, HasItsFilesWrittenBelowTheProgramsFolder) {
    write_all(disk_, R"(C:\Sort-in.dat)", "a");
    write_all(disk_, R"(c:\SORT-IN.DAT)", "b", WriteMode::append);
    EXPECT_THAT(substituted(), ElementsAre("Sort-in.dat"));
    EXPECT_EQ(read_bytes(program_ / "Drive_C" / "Sort-in.dat"), "ab");
    EXPECT_THAT(host_names(c_), ElementsAre("Old.dat", "sub"));
}

TEST_F(LockedRoot, HasItsFilesFoundWhereTheyWereWritten) {
    write_all(disk_, R"(C:\Sort-in.dat)", "abc");
    EXPECT_TRUE(disk_.file_exists(R"(C:\Sort-in.dat)"));
    EXPECT_EQ(read_all(disk_, R"(c:\sort-IN.dat)"), "abc");
    EXPECT_EQ(disk_.size(R"(C:\Sort-in.dat)"), 3U);
    EXPECT_EQ(failure_of([&] { time_text(disk_, R"(C:\Sort-in.dat)"); }), 0);
    EXPECT_THAT(disk_.names(R"(C:\Sort*)"), ElementsAre("Sort-in.dat"));
    copy_file(disk_, R"(C:\Sort-in.dat)", R"(C:\temp_h_n)");
    EXPECT_THAT(substituted(), ElementsAre("Sort-in.dat", "temp_h_n"));
}

TEST_F(LockedRoot, HasItsFilesRemovedWhereTheyWereWritten) {
    write_all(disk_, R"(C:\a.dat)", "a");
    write_all(disk_, R"(C:\b.dat)", "b");
    write_all(disk_, R"(C:\c.dat)", "c");
    disk_.remove(R"(C:\A.dat)");
    EXPECT_THAT(substituted(), ElementsAre("b.dat", "c.dat"));
    EXPECT_EQ(remove_matching(disk_, R"(C:\?.dat)"), 2U);
    EXPECT_THAT(substituted(), IsEmpty());
    EXPECT_FALSE(disk_.file_exists(R"(C:\a.dat)"));
}

TEST_F(LockedRoot, IsStillRead) {
    EXPECT_TRUE(disk_.file_exists(R"(C:\old.dat)"));
    EXPECT_EQ(read_all(disk_, R"(C:\Old.dat)"), "old");
    EXPECT_EQ(disk_.size(R"(C:\Old.dat)"), 3U);
    EXPECT_EQ(read_all(disk_, R"(C:\sub\file.txt)"), "JA1ZZZ");
    EXPECT_TRUE(disk_.folder_exists(R"(C:\sub)"));
}

TEST_F(LockedRoot, IsLookedAtBehindItsSubstitute) {
    write_all(disk_, R"(C:\old.DAT)", "newer");
    EXPECT_EQ(read_all(disk_, R"(C:\Old.dat)"), "newer");
    EXPECT_EQ(disk_.size(R"(C:\Old.dat)"), 5U);
    EXPECT_EQ(read_bytes(c_ / "Old.dat"), "old");
    disk_.remove(R"(C:\Old.dat)");
    EXPECT_EQ(read_all(disk_, R"(C:\Old.dat)"), "old");
}

TEST_F(LockedRoot, KeepsItsOwnFiles) {
    EXPECT_EQ(failure_of([&] { disk_.remove(R"(C:\Old.dat)"); }), 70);
    EXPECT_THAT(host_names(c_), ElementsAre("Old.dat", "sub"));
}

TEST_F(LockedRoot, HasTheFilesOfItsFoldersWrittenInPlace) {
    write_all(disk_, R"(C:\sub\new.txt)", "a");
    EXPECT_EQ(read_bytes(c_ / "sub" / "new.txt"), "a");
    EXPECT_THAT(host_names(program_), IsEmpty());
}

TEST_F(LockedRoot, HasNoFileWrittenInThePlaceOfAFolder) {
    EXPECT_EQ(failure_of([&] { writing.run(disk_, R"(C:\sub)"); }), 75);
    EXPECT_TRUE(disk_.folder_exists(R"(C:\sub)"));
}

TEST_F(LockedRoot, GuardsItsOpenFilesToo) {
    const std::unique_ptr<ByteSink> open =
        disk_.open_for_writing(R"(C:\a.dat)", WriteMode::replace);
    EXPECT_EQ(failure_of([&] { reading.run(disk_, R"(C:\A.DAT)"); }), 55);
    EXPECT_EQ(failure_of([&] { writing.run(disk_, R"(C:\A.DAT)"); }), 55);
}

TEST_F(LockedRoot, HasAFolderOfItsOwnForEachDrive) {
    HostDisk disk({{'C', c_}, {'e', c_}}, program_);
    write_all(disk, R"(C:\a.dat)", "a");
    write_all(disk, R"(e:\b.dat)", "b");
    EXPECT_THAT(host_names(program_), ElementsAre("Drive_C", "Drive_E"));
    EXPECT_EQ(read_bytes(program_ / "Drive_E" / "b.dat"), "b");
}

TEST_F(LockedRoot, CannotBeSubstitutedInALockedProgramFolder) {
    // Root's own folder: an ordinary user may not write there.
    HostDisk disk({{'C', c_}}, c_);
    EXPECT_EQ(failure_of([&] { writing.run(disk, R"(C:\a.dat)"); }), 70);
}

// The root of the host, and a file name there that belongs to this test alone. Should a file ever
// come there, it is gone with the test.
class HostRoot : public HostDiskTest {
  public:
    HostRoot() = default;
    HostRoot(const HostRoot&) = delete;
    HostRoot& operator=(const HostRoot&) = delete;
    ~HostRoot() override {
        std::error_code ignored;
        fs::remove(in_root_, ignored);
    }

  protected:
    fs::path substitute(char letter) const {
        return program_ / (std::string("Drive_") + letter) / name_;
    }

    const std::string name_ = "veldrana_test_" + std::to_string(getpid()) + "_root.dat";
    const fs::path in_root_ = fs::path("/") / name_;
};

TEST_F(HostRoot, HasItsFilesWrittenBelowTheProgramsFolder) {
    const std::string path = R"(Z:\)" + name_;
    write_all(disk_, path, "a");
    write_all(disk_, path, "b", WriteMode::append);
    EXPECT_FALSE(fs::exists(in_root_));
    EXPECT_EQ(read_bytes(substitute('Z')), "ab");
    EXPECT_EQ(read_all(disk_, path), "ab");
    EXPECT_THAT(disk_.names(R"(Z:\veldrana_test_*_root.DAT)"), ElementsAre(name_));
    disk_.remove(path);
    EXPECT_FALSE(fs::exists(substitute('Z')));
}

TEST_F(HostRoot, IsNotWrittenByACopy) {
    copy_file(disk_, R"(C:\sub\file.txt)", R"(Z:\)" + name_);
    EXPECT_FALSE(fs::exists(in_root_));
    EXPECT_EQ(read_bytes(substitute('Z')), "JA1ZZZ");
}

TEST_F(HostRoot, IsNotWrittenHoweverItIsWritten) {
    for (const std::string_view root :
         {R"(z:\)"sv, "Z:"sv, R"(Z:\\)"sv, "Z:/"sv, R"(Z:\.\)"sv, R"(Z:\dev\..\)"sv}) {
        write_all(disk_, std::string(root) + name_, root);
        EXPECT_FALSE(fs::exists(in_root_)) << root;
        EXPECT_EQ(read_bytes(substitute('Z')), root) << root;
    }
}

TEST_F(HostRoot, IsNotWrittenUnderAnyLetter) {
    for (const fs::path folder : {"/", "/.", "/dev/.."}) {
        HostDisk disk({{'R', folder}}, program_);
        write_all(disk, R"(R:\)" + name_, folder.string());
        EXPECT_FALSE(fs::exists(in_root_)) << folder;
        EXPECT_EQ(read_bytes(substitute('R')), folder.string());
    }
}

TEST_F(HostRoot, IsNotWrittenThroughALink) {
    fs::create_directory_symlink("/", scratch_.path() / "link");
    HostDisk disk({{'R', scratch_.path() / "link"}}, program_);
    write_all(disk, R"(R:\)" + name_, "a");
    EXPECT_FALSE(fs::exists(in_root_));
    EXPECT_EQ(read_all(disk, R"(R:\)" + name_), "a");
}

TEST_F(HostRoot, GetsNoFolder) {
    failure_of([&] { disk_.make_folder(R"(Z:\)" + name_); });
    EXPECT_FALSE(fs::exists(in_root_));
}

TEST_F(HostRoot, HasNoFileWrittenInThePlaceOfAFolder) {
    EXPECT_EQ(failure_of([&] { writing.run(disk_, R"(Z:\dev)"); }), 75);
    EXPECT_TRUE(disk_.folder_exists(R"(Z:\dev)"));
}

// A file of the host that somebody with root's rights could lose.
class HostRootWithFile : public HostRoot {
  protected:
    void SetUp() override {
        if (euidaccess("/", W_OK) != 0) {
            GTEST_SKIP() << "nobody could delete from there";
        }
        write_bytes(in_root_, "the host's");
    }
};

TEST_F(HostRootWithFile, KeepsIt) {
    for (const std::string_view root : {R"(Z:\)"sv, R"(z:\)"sv, "Z:"sv, "Z:/"sv}) {
        EXPECT_EQ(failure_of([&] { disk_.remove(std::string(root) + name_); }), 70) << root;
        EXPECT_EQ(remove_matching(disk_, std::string(root) + name_), 0U) << root;
        EXPECT_TRUE(fs::exists(in_root_)) << root;
    }
}

TEST_F(HostRootWithFile, KeepsItBehindDotsInThePath) {
    for (const std::string_view root : {R"(Z:\.\)"sv, R"(Z:\dev\..\)"sv}) {
        EXPECT_EQ(failure_of([&] { disk_.remove(std::string(root) + name_); }), 70) << root;
        EXPECT_TRUE(fs::exists(in_root_)) << root;
        write_bytes(in_root_, "the host's");
        failure_of([&] { remove_matching(disk_, std::string(root) + name_); });
        EXPECT_TRUE(fs::exists(in_root_)) << root;
        write_bytes(in_root_, "the host's");
    }
}

TEST_F(HostRootWithFile, KeepsItsBytes) {
    write_all(disk_, R"(Z:\)" + name_, "ours");
    EXPECT_EQ(read_bytes(in_root_), "the host's");
    EXPECT_EQ(read_all(disk_, R"(Z:\)" + name_), "ours");
    disk_.remove(R"(Z:\)" + name_);
    EXPECT_EQ(read_all(disk_, R"(Z:\)" + name_), "the host's");
}

// --- paths of the host ---

TEST_F(HostDiskTest, WritesAPathOfTheHostWithTheLetterOfItsDrive) {
    EXPECT_EQ(disk_.program_path(c_), R"(C:\)");
    EXPECT_EQ(disk_.program_path(c_ / "sub" / "File.txt"), R"(C:\sub\File.txt)");
    EXPECT_EQ(disk_.program_path(c_ / "none" / "表.txt"), R"(C:\none\表.txt)");
    EXPECT_EQ(disk_.program_path(c_ / "sub" / ".." / "a.txt"), R"(C:\a.txt)");
    EXPECT_EQ(disk_.program_path(c_ / "sub" / ""), R"(C:\sub)");
}

TEST_F(HostDiskTest, WritesAPathBelowNoOtherDriveFromTheRoot) {
    EXPECT_EQ(disk_.program_path("/home/ja1zzz/log.ALL"), R"(Z:\home\ja1zzz\log.ALL)");
    EXPECT_EQ(disk_.program_path("/"), R"(Z:\)");
}

TEST(ProgramPath, NamesTheNearestDrive) {
    const HostDisk disk(
        {{'C', "/tmp/a"}, {'D', "/tmp/a/deep/er/"}, {'E', "/tmp"}, {'F', "/tmp/a/deep"}},
        "/tmp/program");
    struct Row {
        const char* host;
        std::string_view path;
    };
    constexpr std::array rows{
        Row{"/tmp/a/x.txt", R"(C:\x.txt)"},
        Row{"/tmp/a/deep/er/x.txt", R"(D:\x.txt)"},
        Row{"/tmp/a/deep/er", R"(D:\)"},
        Row{"/tmp/a/deep/er/", R"(D:\)"},
        Row{"/tmp/a/deep/x.txt", R"(F:\x.txt)"},
        Row{"/tmp/a/deep/error.txt", R"(F:\error.txt)"},
        Row{"/tmp/ab", R"(E:\ab)"},
        Row{"/tmp/ab/x.txt", R"(E:\ab\x.txt)"},
        Row{"/tmp/..x", R"(E:\..x)"},
        Row{"/tmpx/x.txt", R"(Z:\tmpx\x.txt)"},
        Row{"/var/x.txt", R"(Z:\var\x.txt)"},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(disk.program_path(row.host), row.path) << row.host;
    }
}

TEST_F(HostDiskTest, FindsAFileByThePathThatItTells) {
    EXPECT_EQ(read_all(disk_, disk_.program_path(c_ / "sub" / "file.txt")), "JA1ZZZ");
    write_bytes(scratch_.path() / "elsewhere" / "ソ.txt", "a");
    EXPECT_EQ(read_all(disk_, disk_.program_path(scratch_.path() / "elsewhere" / "ソ.txt")), "a");
}

TEST_F(HostDiskTest, TellsPathsAsWellFormedText) {
    EXPECT_EQ(disk_.program_path(c_ / "A\x82\xA0"), R"(C:\A??)");
}

// --- a file in the place of another ---

class HostReplace : public testing::Test {
  protected:
    HostReplace() {
        write_bytes(folder / "old.ini", "old");
        write_bytes(folder / "new.ini", "new");
    }
    void replace() { disk.replace(R"(C:\new.ini)", R"(C:\old.ini)"); }

    ScratchFolder scratch;
    fs::path folder = scratch.path();
    HostDisk disk{{{'C', folder}}, folder};
};

TEST_F(HostReplace, TakesItsPlaceAndLeavesNothingBehind) {
    replace();
    EXPECT_EQ(read_bytes(folder / "old.ini"), "new");
    EXPECT_THAT(host_names(folder), ElementsAre("old.ini"));
}

TEST_F(HostReplace, BehindALinkItsFileIsReplacedAndTheLinkStays) {
    fs::create_directory(folder / "elsewhere");
    fs::rename(folder / "old.ini", folder / "elsewhere" / "kept.ini");
    fs::create_symlink(folder / "elsewhere" / "kept.ini", folder / "old.ini");
    replace();
    EXPECT_TRUE(fs::is_symlink(folder / "old.ini"));
    EXPECT_EQ(read_bytes(folder / "elsewhere" / "kept.ini"), "new");
}

TEST_F(HostReplace, PermissionsOfTheOldFileStay) {
    const fs::perms owner_alone = fs::perms::owner_read | fs::perms::owner_write;
    fs::permissions(folder / "old.ini", owner_alone);
    replace();
    EXPECT_EQ(fs::status(folder / "old.ini").permissions(), owner_alone);
}

TEST_F(HostReplace, WriteProtectedFileIsNotReplaced) {
    fs::permissions(folder / "old.ini", fs::perms::owner_read);
    EXPECT_EQ(failure_of([this] { replace(); }), 70);
    EXPECT_EQ(read_bytes(folder / "old.ini"), "old");
}

// --- files for their owner alone ---

constexpr auto for_owner = static_cast<fs::perms>(0600);

class ForOwner : public HostReplace {
  protected:
    void write(const char* path, std::string_view bytes) {
        write_all(disk, path, bytes, WriteMode::replace_for_owner);
    }
    fs::perms permissions(const char* name) { return fs::status(folder / name).permissions(); }

    const CommonFileMask mask;
};

TEST_F(ForOwner, ANewFileIsReadByNobodyElse) {
    write(R"(C:\secret.ini)", "PassWords=x");
    EXPECT_EQ(read_bytes(folder / "secret.ini"), "PassWords=x");
    EXPECT_EQ(permissions("secret.ini"), for_owner);
}

TEST_F(ForOwner, ItIsSoBeforeAnythingIsWritten) {
    const std::unique_ptr<ByteSink> open =
        disk.open_for_writing(R"(C:\secret.ini)", WriteMode::replace_for_owner);
    EXPECT_EQ(permissions("secret.ini"), for_owner);
}

TEST_F(ForOwner, AFileThatIsThereIsEmptiedAndNarrowed) {
    fs::permissions(folder / "old.ini", static_cast<fs::perms>(0664));
    write(R"(C:\OLD.ini)", "x");
    EXPECT_EQ(read_bytes(folder / "old.ini"), "x");
    EXPECT_EQ(permissions("old.ini"), for_owner);
}

TEST_F(ForOwner, ItStaysSoInThePlaceOfAWiderFile) {
    fs::permissions(folder / "old.ini", static_cast<fs::perms>(0644));
    write(R"(C:\new.ini)", "x");
    replace();
    EXPECT_EQ(read_bytes(folder / "old.ini"), "x");
    EXPECT_EQ(permissions("old.ini"), for_owner);
}

TEST_F(ForOwner, OtherFilesAreMadeForAll) {
    write_all(disk, R"(C:\a.txt)", "x");
    EXPECT_EQ(permissions("a.txt"), static_cast<fs::perms>(0644));
}

TEST_F(ForOwner, OneThatIsOpenIsNotOpenedAgain) {
    const std::unique_ptr<ByteSink> open =
        disk.open_for_writing(R"(C:\secret.ini)", WriteMode::replace_for_owner);
    EXPECT_EQ(failure_of([this] { write(R"(C:\secret.ini)", "x"); }), 55);
}

TEST_F(ForOwner, AFolderInItsPlaceIsAFailure) {
    fs::create_directory(folder / "sub");
    EXPECT_EQ(failure_of([this] { write(R"(C:\sub)", "x"); }), 75);
    EXPECT_EQ(failure_of([this] { write(R"(C:\none\x.ini)", "x"); }), 76);
}

TEST_F(ForOwner, AProfileFileIsNarrowedWhenItIsWrittenNext) {
    write_bytes(folder / "cfg.ini", "[s]\r\nk=1\r\n");
    fs::permissions(folder / "cfg.ini", static_cast<fs::perms>(0644));
    ProfileFile file(disk, R"(C:\cfg.ini)");
    file.set_value("s", "k", "2");
    file.keep_for_owner();
    EXPECT_EQ(permissions("cfg.ini"), static_cast<fs::perms>(0644));
    ASSERT_TRUE(file.save());
    EXPECT_EQ(read_bytes(folder / "cfg.ini"), "[s]\r\nk=2\r\n");
    EXPECT_EQ(permissions("cfg.ini"), for_owner);
}

}  // namespace
}  // namespace veldrana
