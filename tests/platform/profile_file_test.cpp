#include "platform/profile_file.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/code_page_932.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* path = "C:\\veldrana\\x.ini";

class ProfileFileTest : public testing::Test {
  protected:
    ProfileFileTest() { disk_.put_folder("C:\\veldrana"); }

    void put(std::string_view text) { disk_.put(path, to_code_page(text)); }
    std::string text() const { return from_code_page(disk_.bytes(path)); }

    std::string value(std::string_view section, std::string_view key) {
        return ProfileFile(disk_, path).value(section, key);
    }
    void set(std::string_view section, std::string_view key, std::string_view value) {
        ProfileFile file(disk_, path);
        file.set_value(section, key, value);
        ASSERT_TRUE(file.save());
    }

    MemoryDisk disk_;
};

// --- reading ---

TEST_F(ProfileFileTest, GivesTheValueOfAKey) {
    put("[Main]\r\nCheck01=1\r\nCheck02=0\r\n");
    EXPECT_EQ(value("Main", "Check01"), "1");
    EXPECT_EQ(value("Main", "Check02"), "0");
}

TEST_F(ProfileFileTest, FindsSectionsInAnyCase) {
    put("[Veldrana_NEW.ini]\r\na=1\r\n");
    EXPECT_EQ(value("vELDRANA_new.INI", "a"), "1");
}

TEST_F(ProfileFileTest, FindsKeysInAnyCase) {
    put("[s]\r\nEnd_date=20260504\r\n");
    EXPECT_EQ(value("s", "End_Date"), "20260504");
    EXPECT_EQ(value("s", "END_DATE"), "20260504");
}

TEST_F(ProfileFileTest, TellsSectionsApart) {
    put("[a]\r\nk=1\r\n[b]\r\nk=2\r\n");
    EXPECT_EQ(value("a", "k"), "1");
    EXPECT_EQ(value("b", "k"), "2");
}

TEST_F(ProfileFileTest, DoesNotTakeAKeyOfAnotherSection) {
    put("[a]\r\nk=1\r\n[b]\r\nl=2\r\n");
    EXPECT_EQ(value("a", "l"), "");
    EXPECT_EQ(value("b", "k"), "");
}

TEST_F(ProfileFileTest, AKeyIsNotFoundByItsBeginning) {
    put("[s]\r\nOption01=1\r\n");
    EXPECT_EQ(value("s", "Option0"), "");
    EXPECT_EQ(value("s", "Option011"), "");
}

TEST_F(ProfileFileTest, SplitsAtTheFirstEqualsSign) {
    put("[s]\r\nk=memo=,OP=\r\n");
    EXPECT_EQ(value("s", "k"), "memo=,OP=");
}

TEST_F(ProfileFileTest, DropsBlanksAroundTheKey) {
    put("[s]\r\n  k  =1\r\n");
    EXPECT_EQ(value("s", "k"), "1");
}

TEST_F(ProfileFileTest, DropsBlanksAroundTheValue) {
    put("[s]\r\nk=  a b  \r\n");
    EXPECT_EQ(value("s", "k"), "a b");
}

TEST_F(ProfileFileTest, DropsBlanksAroundTheNameOfASection) {
    put("[ s ]\r\nk=1\r\n");
    EXPECT_EQ(value("s", "k"), "1");
}

TEST_F(ProfileFileTest, KeepsQuotesInAValue) {
    put("[s]\r\ndouble=\"a\"\r\nsingle='b'\r\n");
    EXPECT_EQ(value("s", "double"), "\"a\"");
    EXPECT_EQ(value("s", "single"), "'b'");
}

TEST_F(ProfileFileTest, PassesOverComments) {
    put("[s]\r\n;k=1\r\nk=2\r\n");
    EXPECT_EQ(value("s", "k"), "2");
    EXPECT_EQ(value("s", ";k"), "");
}

TEST_F(ProfileFileTest, ASemicolonInAValueStays) {
    put("[s]\r\nk=a;b\r\n");
    EXPECT_EQ(value("s", "k"), "a;b");
}

TEST_F(ProfileFileTest, OfAKeyThatStandsTwiceTheFirstCounts) {
    put("[s]\r\nk=1\r\nK=2\r\n");
    EXPECT_EQ(value("s", "k"), "1");
}

TEST_F(ProfileFileTest, OfASectionThatStandsTwiceTheFirstCounts) {
    put("[s]\r\nk=1\r\n[t]\r\n[S]\r\nk=2\r\nl=3\r\n");
    EXPECT_EQ(value("s", "k"), "1");
    EXPECT_EQ(value("s", "l"), "");
}

TEST_F(ProfileFileTest, WhatIsMissingReadsAsEmpty) {
    EXPECT_EQ(value("s", "k"), "") << "no file";
    put("[s]\r\nk=1\r\n");
    EXPECT_EQ(value("t", "k"), "") << "no section";
    EXPECT_EQ(value("s", "l"), "") << "no key";
}

TEST_F(ProfileFileTest, AKeyWithoutAValueReadsAsEmpty) {
    put("[s]\r\nk=\r\nl\r\n");
    EXPECT_EQ(value("s", "k"), "");
    EXPECT_EQ(value("s", "l"), "");
}

TEST_F(ProfileFileTest, AnEmptyFileHasNothing) {
    put("");
    EXPECT_EQ(value("s", "k"), "");
    EXPECT_THAT(ProfileFile(disk_, path).section_names(), IsEmpty());
}

TEST_F(ProfileFileTest, AFolderInItsPlaceHasNothing) {
    disk_.put_folder(path);
    EXPECT_EQ(value("s", "k"), "");
}

TEST_F(ProfileFileTest, ReadsShiftJis) {
    disk_.put(path, "[s]\r\nname_mas_dir=\x8e\x67\x97\x70\x82\xb5\x82\xc8\x82\xa2\r\n");
    EXPECT_EQ(value("s", "name_mas_dir"), "使用しない");
}

TEST_F(ProfileFileTest, ADoubleByteCharacterThatEndsInABackslashStaysWhole) {
    disk_.put(path, "[s]\r\nall_dir=C:\\\x95\x5c\\\r\n");
    EXPECT_EQ(value("s", "all_dir"), "C:\\表\\");
}

TEST_F(ProfileFileTest, ReadsLinesThatEndInALineFeedAlone) {
    put("[s]\nk=1\nl=2\n");
    EXPECT_EQ(value("s", "k"), "1");
    EXPECT_EQ(value("s", "l"), "2");
}

TEST_F(ProfileFileTest, ReadsALastLineWithoutAnEnd) {
    put("[s]\r\nk=1");
    EXPECT_EQ(value("s", "k"), "1");
}

TEST_F(ProfileFileTest, PassesOverAByteOrderMark) {
    disk_.put(path, "\xEF\xBB\xBF[s]\r\nk=1\r\n");
    EXPECT_EQ(value("s", "k"), "1");
}

TEST_F(ProfileFileTest, GivesAValueOf127BytesWhole) {
    put("[s]\r\nk=" + std::string(127, 'x') + "\r\n");
    EXPECT_EQ(value("s", "k"), std::string(127, 'x'));
}

TEST_F(ProfileFileTest, CutsALongerValueAt127Bytes) {
    put("[s]\r\nk=" + std::string(127, 'x') + "yz\r\n");
    EXPECT_EQ(value("s", "k"), std::string(127, 'x'));
}

TEST_F(ProfileFileTest, CountsTheBytesOfTheFileAndCutsThroughACharacter) {
    // 63 characters of two bytes, and the first byte of the next.
    std::string bytes;
    for (int i = 0; i < 64; ++i) {
        bytes += "\x95\x5c";
    }
    disk_.put(path, "[s]\r\nk=" + bytes + "\r\n");
    EXPECT_EQ(to_code_page(value("s", "k")), bytes.substr(0, 127));
}

TEST_F(ProfileFileTest, CountsHalfWidthKatakanaAsOneByteEach) {
    disk_.put(path, "[s]\r\nk=" + std::string(128, '\xb1') + "\r\n");
    EXPECT_EQ(to_code_page(value("s", "k")), std::string(127, '\xb1'));
}

TEST_F(ProfileFileTest, AValueEndsInFrontOfANul) {
    disk_.put(path, "[s]\r\nk=ab\0cd\r\nl=1\r\n"s);
    EXPECT_EQ(value("s", "k"), "ab");
    EXPECT_EQ(value("s", "l"), "1");
}

TEST_F(ProfileFileTest, ADiskThatCannotBeReadGivesNothing) {
    put("[s]\r\nk=1\r\n");
    FailingDisk failing(disk_);
    failing.fail_at(1, Failure::permission_denied);
    EXPECT_EQ(ProfileFile(failing, path).value("s", "k"), "");
}

TEST_F(ProfileFileTest, NamesItsSectionsAsTheyAreSpelledAndInTheirOrder) {
    put("[Zeta]\r\n[alpha]\r\nk=1\r\n[JARL_Search]\r\n");
    EXPECT_THAT(ProfileFile(disk_, path).section_names(),
                ElementsAre("Zeta", "alpha", "JARL_Search"));
}

TEST_F(ProfileFileTest, GivesTheEntriesOfASectionInTheirOrder) {
    put("[a]\r\nx=0\r\n[b]\r\nTop=2\r\n;no=1\r\nleft = 1 \r\n[c]\r\ny=0\r\n");
    EXPECT_THAT(ProfileFile(disk_, path).entries("B"),
                ElementsAre(ProfileFile::Entry{"Top", "2"}, ProfileFile::Entry{"left", "1"}));
}

TEST_F(ProfileFileTest, AnEntryHasItsWholeValue) {
    put("[s]\r\nk=" + std::string(5000, 'x') + "\r\n");
    EXPECT_THAT(ProfileFile(disk_, path).entries("s"),
                ElementsAre(ProfileFile::Entry{"k", std::string(5000, 'x')}));
}

TEST_F(ProfileFileTest, AMissingSectionHasNoEntries) {
    put("[a]\r\nx=0\r\n");
    EXPECT_THAT(ProfileFile(disk_, path).entries("b"), IsEmpty());
}

// --- writing ---

TEST_F(ProfileFileTest, MakesAMissingFile) {
    set("Main", "exe_rec", "1");
    EXPECT_EQ(text(), "[Main]\r\nexe_rec=1\r\n");
}

TEST_F(ProfileFileTest, FillsAnEmptyFile) {
    put("");
    set("Main", "exe_rec", "1");
    EXPECT_EQ(text(), "[Main]\r\nexe_rec=1\r\n");
}

TEST_F(ProfileFileTest, ReplacesAValueWhereItStands) {
    put("[s]\r\na=1\r\nb=2\r\nc=3\r\n");
    set("s", "b", "9");
    EXPECT_EQ(text(), "[s]\r\na=1\r\nb=9\r\nc=3\r\n");
}

TEST_F(ProfileFileTest, ReplacesAValueWhoseKeyIsSpelledInAnotherCase) {
    put("[S]\r\nEND_DATE=1\r\nc=3\r\n");
    set("s", "End_date", "2");
    const ProfileFile file(disk_, path);
    EXPECT_EQ(file.value("s", "End_date"), "2");
    EXPECT_THAT(file.entries("s"), testing::SizeIs(2));
    EXPECT_THAT(file.section_names(), ElementsAre("S"));
}

TEST_F(ProfileFileTest, ReplacesTheFirstOfAKeyThatStandsTwice) {
    put("[s]\r\nk=1\r\nk=2\r\n");
    set("s", "k", "9");
    EXPECT_EQ(text(), "[s]\r\nk=9\r\nk=2\r\n");
}

TEST_F(ProfileFileTest, AddsANewKeyAtTheEndOfItsSection) {
    put("[a]\r\nx=1\r\n[b]\r\ny=2\r\n");
    set("a", "new", "3");
    EXPECT_EQ(text(), "[a]\r\nx=1\r\nnew=3\r\n[b]\r\ny=2\r\n");
}

TEST_F(ProfileFileTest, AddsANewKeyInFrontOfTheEmptyLinesAtTheEndOfItsSection) {
    put("[a]\r\nx=1\r\n\r\n[b]\r\ny=2\r\n");
    set("a", "new", "3");
    EXPECT_EQ(text(), "[a]\r\nx=1\r\nnew=3\r\n\r\n[b]\r\ny=2\r\n");
}

TEST_F(ProfileFileTest, AddsANewSectionAtTheEndOfTheFile) {
    put("[a]\r\nx=1\r\n");
    set("b", "y", "2");
    EXPECT_EQ(text(), "[a]\r\nx=1\r\n[b]\r\ny=2\r\n");
}

TEST_F(ProfileFileTest, KeysComeInTheOrderOfTheirWriting) {
    ProfileFile file(disk_, path);
    file.set_value("s", "b", "1");
    file.set_value("s", "a", "2");
    file.set_value("t", "d", "3");
    file.set_value("s", "c", "4");
    ASSERT_TRUE(file.save());
    EXPECT_EQ(text(), "[s]\r\nb=1\r\na=2\r\nc=4\r\n[t]\r\nd=3\r\n");
}

TEST_F(ProfileFileTest, WritesAnEmptyValue) {
    set("s", "k", "");
    EXPECT_EQ(text(), "[s]\r\nk=\r\n");
}

TEST_F(ProfileFileTest, EndsALastLineThatHasNoEndBeforeItAddsAnother) {
    put("[s]\r\na=1");
    set("s", "b", "2");
    EXPECT_EQ(text(), "[s]\r\na=1\r\nb=2\r\n");
}

TEST_F(ProfileFileTest, WritesShiftJis) {
    set("s", "k", "使用しない");
    EXPECT_EQ(disk_.bytes(path), "[s]\r\nk=\x8e\x67\x97\x70\x82\xb5\x82\xc8\x82\xa2\r\n");
}

TEST_F(ProfileFileTest, WritesALineBreakInAValueAsABlank) {
    set("s", "k", "a\r\nl=b");
    const ProfileFile file(disk_, path);
    EXPECT_EQ(file.value("s", "l"), "");
    EXPECT_THAT(file.entries("s"), testing::SizeIs(1));
    EXPECT_THAT(file.value("s", "k"), testing::StartsWith("a "));
}

TEST_F(ProfileFileTest, KeepsWhatItDoesNotKnowAsItStands) {
    const std::string front = "; mine\r\n\r\n[Other]\r\n x = \"1\" \r\nnonsense\r\n[s]\r\n;k=0\r\n";
    const std::string back = "unknown= \x81\xfd\xa0 \r\n[Last]\r\nk=1\r\n\r\n";
    disk_.put(path, front + "k=1\r\n" + back);
    set("s", "k", "2");
    EXPECT_EQ(disk_.bytes(path), front + "k=2\r\n" + back);
}

TEST_F(ProfileFileTest, LosesNoLineThatEndsInALineFeedAlone) {
    put("[s]\na=1\nb=2\n[t]\nc=3\n");
    set("s", "b", "9");
    const ProfileFile file(disk_, path);
    EXPECT_THAT(file.entries("s"),
                ElementsAre(ProfileFile::Entry{"a", "1"}, ProfileFile::Entry{"b", "9"}));
    EXPECT_THAT(file.entries("t"), ElementsAre(ProfileFile::Entry{"c", "3"}));
}

TEST_F(ProfileFileTest, WritesIntoAFileWithAByteOrderMark) {
    disk_.put(path, "\xEF\xBB\xBF[s]\r\nk=1\r\n");
    set("s", "k", "2");
    EXPECT_EQ(value("s", "k"), "2");
    EXPECT_THAT(ProfileFile(disk_, path).section_names(), ElementsAre("s"));
}

TEST_F(ProfileFileTest, ASavedValueReadsBack) {
    for (const std::string text : {"a b", "\"q\"", "x=y", "ｺﾝﾃｽﾄ,,,", ";no comment", "表ソ能"}) {
        set("s", "k", text);
        EXPECT_EQ(value("s", "k"), text);
    }
}

TEST_F(ProfileFileTest, PutsEntriesInThePlaceOfAWholeSection) {
    put("[a]\r\nx=0\r\n[b]\r\nold=1\r\n;old\r\n[c]\r\ny=0\r\n");
    ProfileFile file(disk_, path);
    file.set_entries("b", {{"left", "1"}, {"top", "2"}});
    ASSERT_TRUE(file.save());
    EXPECT_EQ(text(), "[a]\r\nx=0\r\n[b]\r\nleft=1\r\ntop=2\r\n[c]\r\ny=0\r\n");
}

TEST_F(ProfileFileTest, PutsTheEntriesOfANewSectionAtTheEnd) {
    put("[a]\r\nx=0\r\n");
    ProfileFile file(disk_, path);
    file.set_entries("b", {{"left", "1"}});
    ASSERT_TRUE(file.save());
    EXPECT_EQ(text(), "[a]\r\nx=0\r\n[b]\r\nleft=1\r\n");
}

TEST_F(ProfileFileTest, LeavesNothingButTheFile) {
    set("s", "k", "1");
    set("s", "k", "2");
    EXPECT_THAT(disk_.files(), ElementsAre(path));
}

TEST_F(ProfileFileTest, ChangesNothingBeforeItIsSaved) {
    put("[s]\r\nk=1\r\n");
    ProfileFile file(disk_, path);
    file.set_value("s", "k", "2");
    EXPECT_EQ(file.value("s", "k"), "2");
    EXPECT_EQ(text(), "[s]\r\nk=1\r\n");
}

TEST_F(ProfileFileTest, IsForAllReadersUnlessItIsKeptForItsOwner) {
    set("s", "k", "1");
    EXPECT_FALSE(disk_.is_for_owner(path));
    ProfileFile file(disk_, path);
    file.keep_for_owner();
    ASSERT_TRUE(file.save());
    EXPECT_TRUE(disk_.is_for_owner(path));
    EXPECT_EQ(text(), "[s]\r\nk=1\r\n");
}

TEST_F(ProfileFileTest, AFolderInItsPlaceCannotBeSaved) {
    disk_.put_folder(path);
    ProfileFile file(disk_, path);
    file.set_value("s", "k", "1");
    EXPECT_FALSE(file.save());
    EXPECT_TRUE(disk_.folder_exists(path));
    EXPECT_THAT(disk_.files(), IsEmpty());
}

TEST_F(ProfileFileTest, AFileInAMissingFolderCannotBeSaved) {
    ProfileFile file(disk_, "C:\\none\\x.ini");
    file.set_value("s", "k", "1");
    EXPECT_FALSE(file.save());
}

TEST_F(ProfileFileTest, AProtectedFileCannotBeSavedAndStaysWhole) {
    put("[s]\r\nk=1\r\n");
    disk_.protect(path);
    ProfileFile file(disk_, path);
    file.set_value("s", "k", "2");
    EXPECT_FALSE(file.save());
    EXPECT_EQ(text(), "[s]\r\nk=1\r\n");
}

// Saves on a disk whose n-th operation fails; with 0 none does.
struct SaveOutcome {
    bool saved;
    std::string bytes;
    std::vector<std::string> files;
    std::size_t operations;
};

SaveOutcome save_failing_at(std::size_t operation) {
    MemoryDisk disk;
    disk.put(path, "[s]\r\nk=1\r\n");
    FailingDisk failing(disk);
    ProfileFile file(failing, path);
    file.set_value("s", "k", "2");
    const std::size_t before = failing.operations();
    if (operation > 0) {
        failing.fail_at(operation, Failure::disk_full);
    }
    const bool saved = file.save();
    return {saved, disk.bytes(path), disk.files(), failing.operations() - before};
}

TEST(ProfileFileFaults, AFailureAnywhereLeavesTheOldFileWhole) {
    const std::size_t operations = save_failing_at(0).operations;
    ASSERT_GT(operations, 2U) << "open, write, close at least";
    for (std::size_t operation = 1; operation <= operations; ++operation) {
        const SaveOutcome outcome = save_failing_at(operation);
        EXPECT_FALSE(outcome.saved) << "operation " << operation;
        EXPECT_EQ(outcome.bytes, "[s]\r\nk=1\r\n") << "operation " << operation;
    }
}

TEST(ProfileFileFaults, AFileThatCouldNotBeReadIsNotOverwritten) {
    MemoryDisk disk;
    disk.put(path, "[s]\r\nk=1\r\n");
    FailingDisk failing(disk);
    failing.fail_at(1, Failure::permission_denied);
    ProfileFile file(failing, path);
    file.set_value("t", "l", "2");
    EXPECT_FALSE(file.save());
    EXPECT_EQ(disk.bytes(path), "[s]\r\nk=1\r\n");
}

TEST(ProfileFileFaults, AFailureLeavesNoNeighbour) {
    for (std::size_t operation = 1; operation <= save_failing_at(0).operations; ++operation) {
        EXPECT_THAT(save_failing_at(operation).files, ElementsAre(path)) << operation;
    }
}

}  // namespace
}  // namespace veldrana
