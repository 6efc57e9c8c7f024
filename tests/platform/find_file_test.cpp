#include "platform/find_file.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <unistd.h>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/host_disk.h"
#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/memory_disk.h"
#include "tests/doubles/scratch_folder.h"

namespace veldrana {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

// A disk that tells what it is told to.
class ListedDisk : public MemoryDisk {
  public:
    explicit ListedDisk(std::vector<DiskEntry> listed) : listed_(std::move(listed)) {}
    std::vector<DiskEntry> entries(std::string_view /*pattern*/) override { return listed_; }

  private:
    std::vector<DiskEntry> listed_;
};

class TravellingClock : public FixedClock {
  public:
    int ahead = 540;
    int minutes_ahead_of_utc() override { return ahead; }
};

std::vector<std::string> walk(FindFile& find, std::string_view pattern) {
    std::vector<std::string> names;
    for (std::string name = find.FindFirst(pattern); !name.empty(); name = find.FindNext()) {
        names.push_back(name);
    }
    return names;
}

std::string shown(const LocalTime& time) {
    return date_time_text(time);
}

TEST(FindFile, GoesThroughWhatFitsThePattern) {
    MemoryDisk disk;
    FixedClock clock;
    disk.put("C:\\dat\\a.dat", "1");
    disk.put("C:\\dat\\b.DAT", "2");
    disk.put("C:\\dat\\c.mas", "3");
    FindFile find(disk, clock);
    EXPECT_THAT(walk(find, "C:\\dat\\*.dat"), ElementsAre("a.dat", "b.DAT"));
}

TEST(FindFile, GivesNoNameIfNothingFits) {
    MemoryDisk disk;
    FixedClock clock;
    disk.put_folder("C:\\dat");
    FindFile find(disk, clock);
    EXPECT_EQ(find.FindFirst("C:\\dat\\*.dat"), "");
    EXPECT_EQ(find.FindNext(), "");
}

TEST(FindFile, GivesNoNameInAMissingFolder) {
    MemoryDisk disk;
    FixedClock clock;
    FindFile find(disk, clock);
    EXPECT_EQ(find.FindFirst("C:\\none\\*"), "");
}

TEST(FindFile, FindsNothingBeforeItIsAsked) {
    MemoryDisk disk;
    FixedClock clock;
    FindFile find(disk, clock);
    EXPECT_EQ(find.FindNext(), "");
    EXPECT_EQ(find.Name(), "");
    EXPECT_EQ(find.Size(), 0U);
}

TEST(FindFile, PassesOverTheFolderItselfAndItsParent) {
    ListedDisk disk({{.name = "."}, {.name = ".."}, {.name = "a"}, {.name = "..."}});
    FixedClock clock;
    FindFile find(disk, clock);
    EXPECT_THAT(walk(find, "C:\\*"), ElementsAre("a", "..."));
}

TEST(FindFile, HoldsTheNameOfThePresentEntry) {
    ListedDisk disk({{.name = "a"}, {.name = "b"}});
    FixedClock clock;
    FindFile find(disk, clock);
    find.FindFirst("C:\\*");
    EXPECT_EQ(find.Name(), "a");
    EXPECT_EQ(find.FindNext(), "b");
    EXPECT_EQ(find.Name(), "b");
}

TEST(FindFile, IsEmptyAtTheEndAndStaysSo) {
    ListedDisk disk({{.name = "a", .size = 7, .attributes = DiskEntry::directory}});
    FixedClock clock;
    FindFile find(disk, clock);
    find.FindFirst("C:\\*");
    EXPECT_EQ(find.FindNext(), "");
    EXPECT_EQ(find.Name(), "");
    EXPECT_EQ(find.Size(), 0U);
    EXPECT_FALSE(find.IsDirectory());
    EXPECT_EQ(find.FindNext(), "");
}

TEST(FindFile, StartsAnewWithEachPattern) {
    MemoryDisk disk;
    FixedClock clock;
    disk.put("C:\\dat\\a.dat", "1");
    disk.put("C:\\dat\\b.mas", "2");
    FindFile find(disk, clock);
    EXPECT_THAT(walk(find, "C:\\dat\\*.dat"), ElementsAre("a.dat"));
    EXPECT_THAT(walk(find, "C:\\dat\\*.mas"), ElementsAre("b.mas"));
}

TEST(FindFile, TellsASizeOfMoreThan32Bits) {
    ListedDisk disk({{.name = "a", .size = 0x1'0000'0002ULL}});
    FixedClock clock;
    FindFile find(disk, clock);
    find.FindFirst("C:\\*");
    EXPECT_EQ(find.Size(), 4294967298U);
}

TEST(FindFile, ReducesAttributesToThoseItKnows) {
    ListedDisk disk({{.name = "a", .attributes = 0xFFFF}});
    FixedClock clock;
    FindFile find(disk, clock);
    find.FindFirst("C:\\*");
    EXPECT_EQ(find.Attributes(), 1U + 2U + 4U + 16U + 32U);
}

TEST(FindFile, TellsEachAttribute) {
    for (const unsigned attribute : {1U, 2U, 4U, 16U, 32U}) {
        ListedDisk disk({{.name = "a", .attributes = attribute}});
        FixedClock clock;
        FindFile find(disk, clock);
        find.FindFirst("C:\\*");
        EXPECT_EQ(find.Attributes(), attribute);
        EXPECT_EQ(find.IsDirectory(), attribute == 16U) << attribute;
    }
}

// 2025-12-31 20:00:00 in UTC.
constexpr std::int64_t new_year_in_japan = 1767211200;

TEST(FindFile, TellsTimesInLocalTime) {
    ListedDisk disk({{.name = "a",
                      .created = new_year_in_japan,
                      .accessed = new_year_in_japan + 1,
                      .written = new_year_in_japan + 3600}});
    FixedClock clock;
    FindFile find(disk, clock);
    find.FindFirst("C:\\*");
    EXPECT_EQ(shown(find.CreationTime()), "2026/01/01 05:00:00");
    EXPECT_EQ(shown(find.LastAccessTime()), "2026/01/01 05:00:01");
    EXPECT_EQ(shown(find.LastWriteTime()), "2026/01/01 06:00:00");
}

TEST(FindFile, KeepsTheTimeZoneOfItsConstruction) {
    ListedDisk disk({{.name = "a", .written = new_year_in_japan}});
    TravellingClock clock;
    FindFile find(disk, clock);
    clock.ahead = 0;
    find.FindFirst("C:\\*");
    EXPECT_EQ(shown(find.LastWriteTime()), "2026/01/01 05:00:00");
}

// --- on the disk of the host ---

class HostEntries : public testing::Test {
  protected:
    HostEntries() { fs::create_directories(folder_); }

    std::vector<std::string> names(std::string_view pattern) {
        std::vector<std::string> names;
        for (const DiskEntry& entry : disk_.entries(pattern)) {
            names.push_back(entry.name);
        }
        return names;
    }
    DiskEntry only(std::string_view pattern) {
        const std::vector<DiskEntry> found = disk_.entries(pattern);
        EXPECT_THAT(found, testing::SizeIs(1));
        return found.empty() ? DiskEntry{} : found.front();
    }
    static bool has(const DiskEntry& entry, DiskEntry::Attribute attribute) {
        return (entry.attributes & attribute) != 0;
    }

    ScratchFolder scratch_;
    const fs::path folder_ = scratch_.path() / "c" / "dat";
    HostDisk disk_{{{'C', scratch_.path() / "c"}}, scratch_.path() / "program"};
};

TEST_F(HostEntries, AreFilesAndFoldersInTheOrderOfTheirNames) {
    write_bytes(folder_ / "c.dat", "");
    write_bytes(folder_ / "a.dat", "");
    fs::create_directories(folder_ / "b.dat");
    EXPECT_THAT(names("C:\\dat\\*"), ElementsAre("a.dat", "b.dat", "c.dat"));
}

TEST_F(HostEntries, FitThePatternInAnyCase) {
    write_bytes(folder_ / "a.dat", "");
    write_bytes(folder_ / "B.DAT", "");
    write_bytes(folder_ / "c.mas", "");
    EXPECT_THAT(names("C:\\DAT\\*.Dat"), testing::UnorderedElementsAre("a.dat", "B.DAT"));
}

TEST_F(HostEntries, NeverAreTheFolderItselfOrItsParent) {
    EXPECT_THAT(names("C:\\dat\\*"), IsEmpty());
}

TEST_F(HostEntries, AreNoneInAMissingFolder) {
    EXPECT_THAT(names("C:\\none\\*"), IsEmpty());
    EXPECT_THAT(names("Q:\\*"), IsEmpty());
}

TEST_F(HostEntries, TellSizes) {
    write_bytes(folder_ / "a.dat", "12345");
    EXPECT_EQ(only("C:\\dat\\a.dat").size, 5U);
}

TEST_F(HostEntries, TellASizeOfMoreThan32Bits) {
    write_bytes(folder_ / "a.dat", "");
    fs::resize_file(folder_ / "a.dat", 5'000'000'000);  // takes no room on the host
    EXPECT_EQ(only("C:\\dat\\a.dat").size, 5'000'000'000U);
}

TEST_F(HostEntries, TellFoldersFromFiles) {
    write_bytes(folder_ / "a", "");
    fs::create_directories(folder_ / "b");
    EXPECT_FALSE(has(only("C:\\dat\\a"), DiskEntry::directory));
    EXPECT_TRUE(has(only("C:\\dat\\b"), DiskEntry::directory));
}

TEST_F(HostEntries, TellAFileThatMayOnlyBeRead) {
    if (getuid() == 0) {
        GTEST_SKIP() << "root may write every file";
    }
    write_bytes(folder_ / "a", "");
    write_bytes(folder_ / "b", "");
    fs::permissions(folder_ / "a", static_cast<fs::perms>(0444));
    fs::permissions(folder_ / "b", static_cast<fs::perms>(0644));
    EXPECT_TRUE(has(only("C:\\dat\\a"), DiskEntry::read_only));
    EXPECT_FALSE(has(only("C:\\dat\\b"), DiskEntry::read_only));
}

TEST_F(HostEntries, TellWhenAFileWasWrittenInUtc) {
    write_bytes(folder_ / "a", "");
    const std::chrono::sys_seconds time{std::chrono::seconds{new_year_in_japan}};
    fs::last_write_time(folder_ / "a", std::chrono::file_clock::from_sys(time));
    EXPECT_EQ(only("C:\\dat\\a").written, new_year_in_japan);
}

TEST_F(HostEntries, AreWalkedThrough) {
    write_bytes(folder_ / "a.dat", "123");
    fs::create_directories(folder_ / "sub");
    const std::chrono::sys_seconds time{std::chrono::seconds{new_year_in_japan}};
    fs::last_write_time(folder_ / "a.dat", std::chrono::file_clock::from_sys(time));
    FixedClock clock;
    FindFile find(disk_, clock);
    EXPECT_EQ(find.FindFirst("C:\\dat\\*"), "a.dat");
    EXPECT_EQ(find.Size(), 3U);
    EXPECT_EQ(shown(find.LastWriteTime()), "2026/01/01 05:00:00");
    EXPECT_EQ(find.FindNext(), "sub");
    EXPECT_TRUE(find.IsDirectory());
    EXPECT_EQ(find.FindNext(), "");
}

}  // namespace
}  // namespace veldrana
