#include "settings/ini_file.h"

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/profile_file.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr const char* path = "C:\\veldrana\\Veldrana_posi.ini";

class IniFileTest : public testing::Test {
  protected:
    IniFileTest() {
        disk_.put_folder("C:\\veldrana");
        disk_.put(path,
                  "[Config]\r\nversion=5.30\r\n\r\n[Position_frmDate]\r\nLeft=10\r\nTOP=20\r\n");
    }

    std::string stored(std::string_view section, std::string_view key) {
        return ProfileFile(disk_, path).value(section, key);
    }

    MemoryDisk disk_;
    CIniFile ini_{disk_};
};

// --- Load ---

TEST_F(IniFileTest, LoadReadsSectionsAndKeys) {
    EXPECT_TRUE(ini_.Load(path));
    EXPECT_THAT(ini_.get_Sections(), ElementsAre("Config", "Position_frmDate"));
    ini_.set_Section("Config");
    EXPECT_EQ(ini_.GetValue("version"), "5.30");
    ini_.set_Section("Position_frmDate");
    EXPECT_EQ(ini_.GetValue("Left"), "10");
}

TEST_F(IniFileTest, LoadOfAnEmptyFileFails) {
    disk_.put(path, "");
    EXPECT_FALSE(ini_.Load(path));
    EXPECT_THAT(ini_.get_Sections(), IsEmpty());
}

TEST_F(IniFileTest, LoadOfAMissingFileFails) {
    EXPECT_FALSE(ini_.Load("C:\\veldrana\\none.ini"));
}

TEST_F(IniFileTest, LoadOfAFolderFails) {
    EXPECT_FALSE(ini_.Load("C:\\veldrana"));
}

TEST_F(IniFileTest, LoadClearsTheChangedFlag) {
    ini_.Load(path);
    EXPECT_FALSE(ini_.get_Changed());
    ini_.set_Section("Config");
    ASSERT_TRUE(ini_.get_Changed());
    ini_.Load(path);
    EXPECT_FALSE(ini_.get_Changed());
}

TEST_F(IniFileTest, LoadFoldsKeysToLowerCase) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    EXPECT_THAT(ini_.get_Keys(), ElementsAre("left", "top"));
}

TEST_F(IniFileTest, AKeyInUpperCaseIsFound) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    EXPECT_EQ(ini_.GetValue("Top"), "20");
    EXPECT_EQ(ini_.GetValue("top"), "20");
    EXPECT_EQ(ini_.GetValue("LEFT"), "10");
}

TEST_F(IniFileTest, LoadSplitsAtTheFirstEqualsSign) {
    disk_.put(path, "[s]\r\nk=a=b\r\n");
    ini_.Load(path);
    ini_.set_Section("s");
    EXPECT_EQ(ini_.GetValue("k"), "a=b");
}

TEST_F(IniFileTest, OfAKeyThatStandsTwiceTheLastCounts) {
    disk_.put(path, "[s]\r\nk=1\r\nK=2\r\n");
    ini_.Load(path);
    ini_.set_Section("s");
    EXPECT_EQ(ini_.GetValue("k"), "2");
    EXPECT_THAT(ini_.get_Keys(), ElementsAre("k"));
}

TEST_F(IniFileTest, LoadReadsASectionOfMoreThan4094Bytes) {
    std::string text = "[s]\r\n";
    for (int i = 0; i < 1000; ++i) {
        text += "key" + std::to_string(i) + "=" + std::to_string(i) + "\r\n";
    }
    disk_.put(path, text + "[t]\r\nk=1\r\n");
    ini_.Load(path);
    ini_.set_Section("s");
    EXPECT_THAT(ini_.get_Keys(), testing::SizeIs(1000));
    EXPECT_EQ(ini_.GetValue("key0"), "0");
    EXPECT_EQ(ini_.GetValue("key999"), "999");
    ini_.set_Section("t");
    EXPECT_EQ(ini_.GetValue("k"), "1");
}

TEST_F(IniFileTest, LoadReadsOneValueOfMoreThan4094Bytes) {
    disk_.put(path, "[s]\r\nk=" + std::string(9000, 'x') + "\r\nl=1\r\n");
    ini_.Load(path);
    ini_.set_Section("s");
    EXPECT_EQ(ini_.GetValue("k"), std::string(9000, 'x'));
    EXPECT_EQ(ini_.GetValue("l"), "1");
}

TEST_F(IniFileTest, LoadReadsMoreSectionNamesThan1022Bytes) {
    std::string text;
    for (int i = 0; i < 200; ++i) {
        text += "[Position_" + std::to_string(i) + "]\r\nLeft=" + std::to_string(i) + "\r\n";
    }
    disk_.put(path, text);
    ini_.Load(path);
    EXPECT_THAT(ini_.get_Sections(), testing::SizeIs(200));
    ini_.set_Section("Position_199");
    EXPECT_EQ(ini_.GetValue("Left"), "199");
}

TEST_F(IniFileTest, LoadPutsTheFileInThePlaceOfTheFormerOne) {
    ini_.Load(path);
    disk_.put("C:\\veldrana\\other.ini", "[Other]\r\nk=1\r\n");
    ini_.Load("C:\\veldrana\\other.ini");
    EXPECT_THAT(ini_.get_Sections(), ElementsAre("Other"));
}

TEST_F(IniFileTest, LoadReadsBehindAByteOrderMarkAndWithLineFeedsAlone) {
    disk_.put(path, "\xEF\xBB\xBF[s]\nk=1\n");
    EXPECT_TRUE(ini_.Load(path));
    ini_.set_Section("s");
    EXPECT_EQ(ini_.GetValue("k"), "1");
}

// --- sections ---

TEST_F(IniFileTest, AKnownSectionBecomesCurrentAndSetsTheChangedFlag) {
    ini_.Load(path);
    ini_.set_Section("Config");
    EXPECT_EQ(ini_.get_Section(), "Config");
    EXPECT_TRUE(ini_.get_Changed());
}

TEST_F(IniFileTest, AnUnknownSectionIsAddedEmptyAndClearsTheChangedFlag) {
    ini_.Load(path);
    ini_.set_Section("Config");
    ASSERT_TRUE(ini_.get_Changed());
    ini_.set_Section("Position_Grid4frm");
    EXPECT_EQ(ini_.get_Section(), "Position_Grid4frm");
    EXPECT_FALSE(ini_.get_Changed());
    EXPECT_THAT(ini_.get_Keys(), IsEmpty());
    EXPECT_THAT(ini_.get_Sections(),
                ElementsAre("Config", "Position_frmDate", "Position_Grid4frm"));
}

TEST_F(IniFileTest, SectionsAreFoundInAnyCase) {
    ini_.Load(path);
    ini_.set_Section("POSITION_FRMDATE");
    EXPECT_EQ(ini_.GetValue("Left"), "10");
    EXPECT_THAT(ini_.get_Sections(), testing::SizeIs(2));
}

// --- keys and values ---

TEST_F(IniFileTest, AMissingKeyIsEmpty) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    EXPECT_EQ(ini_.GetValue("Width"), "");
}

TEST_F(IniFileTest, SetValueReplacesAValue) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.SetValue("LEFT", "30");
    EXPECT_EQ(ini_.GetValue("Left"), "30");
    EXPECT_THAT(ini_.get_Keys(), testing::UnorderedElementsAre("left", "top"));
}

TEST_F(IniFileTest, SetValueAddsAKey) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.SetValue("Width", "300");
    EXPECT_EQ(ini_.GetValue("Width"), "300");
    EXPECT_THAT(ini_.get_Keys(), ElementsAre("left", "top", "width"));
}

TEST_F(IniFileTest, SetValueWorksOnTheCurrentSectionAlone) {
    ini_.Load(path);
    ini_.set_Section("Config");
    ini_.SetValue("Left", "1");
    ini_.set_Section("Position_frmDate");
    EXPECT_EQ(ini_.GetValue("Left"), "10");
}

TEST_F(IniFileTest, DeleteKeyRemovesIt) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.DeleteKey("Left");
    EXPECT_EQ(ini_.GetValue("Left"), "");
    EXPECT_THAT(ini_.get_Keys(), ElementsAre("top"));
}

TEST_F(IniFileTest, DeleteKeyOfAMissingKeyDoesNothing) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.DeleteKey("Width");
    EXPECT_THAT(ini_.get_Keys(), ElementsAre("left", "top"));
}

TEST_F(IniFileTest, DeleteAllKeysEmptiesTheCurrentSection) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.DeleteAllKeys();
    EXPECT_THAT(ini_.get_Keys(), IsEmpty());
    EXPECT_THAT(ini_.get_Sections(), ElementsAre("Config", "Position_frmDate"));
    ini_.set_Section("Config");
    EXPECT_EQ(ini_.GetValue("version"), "5.30");
}

// --- typed values ---

struct Typed {
    const char* value;
    IniType type;
    IniValue expected;
};

TEST_F(IniFileTest, GetTypedConvertsAValue) {
    ini_.set_Section("s");
    for (const Typed& typed : std::vector<Typed>{{"12", IniType::text, std::string("12")},
                                                 {"abc", IniType::text, std::string("abc")},
                                                 {"12", IniType::integer, 12},
                                                 {"-7", IniType::integer, -7},
                                                 {"1.5", IniType::real, 1.5},
                                                 {"-30", IniType::real, -30.0},
                                                 {"True", IniType::boolean, true},
                                                 {"False", IniType::boolean, false},
                                                 {"0", IniType::boolean, false},
                                                 {"1", IniType::boolean, true}}) {
        ini_.SetValue("k", typed.value);
        EXPECT_EQ(ini_.GetTyped("K", typed.type, IniValue{}), typed.expected)
            << typed.value << " as " << static_cast<int>(typed.type);
    }
}

TEST_F(IniFileTest, GetTypedGivesTheDefaultForWhatDoesNotConvert) {
    ini_.set_Section("s");
    ini_.SetValue("k", "abc");
    EXPECT_EQ(ini_.GetTyped("k", IniType::integer, 5), IniValue(5));
    EXPECT_EQ(ini_.GetTyped("k", IniType::real, 2.5), IniValue(2.5));
    EXPECT_EQ(ini_.GetTyped("k", IniType::boolean, true), IniValue(true));
}

TEST_F(IniFileTest, GetTypedGivesTheDefaultForAMissingNumber) {
    ini_.set_Section("s");
    EXPECT_EQ(ini_.GetTyped("none", IniType::integer, 5), IniValue(5));
    EXPECT_EQ(ini_.GetTyped("none", IniType::real, 2.5), IniValue(2.5));
    EXPECT_EQ(ini_.GetTyped("none", IniType::boolean, true), IniValue(true));
}

struct Conversion {
    const char* text;
    bool as_bool;
    bool as_int;
    bool as_long;
    bool as_single;
};

class Conversions : public testing::TestWithParam<Conversion> {};

TEST_P(Conversions, AreTested) {
    const Conversion& conversion = GetParam();
    EXPECT_EQ(CIniFile::IsBool(conversion.text), conversion.as_bool) << conversion.text;
    EXPECT_EQ(CIniFile::IsInt(conversion.text), conversion.as_int) << conversion.text;
    EXPECT_EQ(CIniFile::IsLong(conversion.text), conversion.as_long) << conversion.text;
    EXPECT_EQ(CIniFile::IsSingle(conversion.text), conversion.as_single) << conversion.text;
}

INSTANTIATE_TEST_SUITE_P(
    OfTexts, Conversions,
    testing::Values(
        Conversion{"", false, false, false, false}, Conversion{" ", false, false, false, false},
        Conversion{"0", true, true, true, true}, Conversion{"1", true, true, true, true},
        Conversion{"-1", true, true, true, true}, Conversion{"+1", true, true, true, true},
        Conversion{" 12 ", true, true, true, true}, Conversion{"007", true, true, true, true},
        Conversion{"1.5", true, true, true, true}, Conversion{"-0.25", true, true, true, true},
        Conversion{"1e3", true, true, true, true}, Conversion{"abc", false, false, false, false},
        Conversion{"12abc", false, false, false, false},
        Conversion{"1 2", false, false, false, false},
        Conversion{"1.2.3", false, false, false, false},
        Conversion{"-", false, false, false, false}, Conversion{"表", false, false, false, false},
        Conversion{"True", true, false, false, false},
        Conversion{"false", true, false, false, false},
        Conversion{"Truth", false, false, false, false},
        Conversion{"32767", true, true, true, true}, Conversion{"32768", true, false, true, true},
        Conversion{"-32768", true, true, true, true}, Conversion{"-32769", true, false, true, true},
        Conversion{"32767.4", true, true, true, true},
        Conversion{"32767.6", true, false, true, true},
        Conversion{"2147483647", true, false, true, true},
        Conversion{"2147483648", true, false, false, true},
        Conversion{"-2147483648", true, false, true, true},
        Conversion{"-2147483649", true, false, false, true},
        Conversion{"3e38", true, false, false, true}, Conversion{"4e38", true, false, false, false},
        Conversion{"-4e38", true, false, false, false}));

// --- Save ---

TEST_F(IniFileTest, SaveWritesOneSection) {
    ini_.Load(path);
    ini_.set_Section("Config");
    ini_.SetValue("version", "1");
    ini_.set_Section("Position_frmDate");
    ini_.SetValue("Left", "30");
    EXPECT_TRUE(ini_.Save("Position_frmDate"));
    EXPECT_EQ(stored("Position_frmDate", "Left"), "30");
    EXPECT_EQ(stored("Position_frmDate", "Top"), "20");
    EXPECT_EQ(stored("Config", "version"), "5.30");
}

TEST_F(IniFileTest, SaveWithoutANameWritesEverySection) {
    ini_.Load(path);
    ini_.set_Section("Config");
    ini_.SetValue("version", "1");
    ini_.set_Section("Position_frmDate");
    ini_.SetValue("Left", "30");
    EXPECT_TRUE(ini_.Save());
    EXPECT_EQ(stored("Position_frmDate", "Left"), "30");
    EXPECT_EQ(stored("Config", "version"), "1");
}

TEST_F(IniFileTest, SaveWritesASectionAsAWhole) {
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.DeleteKey("Top");
    ini_.SetValue("Width", "300");
    ini_.Save("Position_frmDate");
    EXPECT_EQ(stored("Position_frmDate", "Top"), "");
    EXPECT_EQ(stored("Position_frmDate", "Width"), "300");
}

TEST_F(IniFileTest, SaveWritesANewSection) {
    ini_.Load(path);
    ini_.set_Section("Position_Grid4frm");
    ini_.SetValue("Left", "1");
    EXPECT_TRUE(ini_.Save("Position_Grid4frm"));
    EXPECT_EQ(stored("Position_Grid4frm", "Left"), "1");
    EXPECT_THAT(ProfileFile(disk_, path).section_names(),
                ElementsAre("Config", "Position_frmDate", "Position_Grid4frm"));
}

TEST_F(IniFileTest, SaveMakesAMissingFile) {
    disk_.remove(path);
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.SetValue("Left", "1");
    EXPECT_TRUE(ini_.Save("Position_frmDate"));
    EXPECT_EQ(stored("Position_frmDate", "Left"), "1");
}

TEST_F(IniFileTest, SaveSetsTheChangedFlagWhenItSucceeds) {
    ini_.Load(path);
    ini_.set_Section("New");
    ASSERT_FALSE(ini_.get_Changed());
    EXPECT_TRUE(ini_.Save("New"));
    EXPECT_TRUE(ini_.get_Changed());
}

TEST_F(IniFileTest, SaveMakesItsSectionCurrent) {
    ini_.Load(path);
    ini_.set_Section("Config");
    ini_.Save("Position_frmDate");
    EXPECT_EQ(ini_.get_Section(), "Position_frmDate");
}

TEST_F(IniFileTest, SaveTellsAFailureAndLeavesTheFileWhole) {
    const std::string before = disk_.bytes(path);
    ini_.Load(path);
    ini_.set_Section("Position_frmDate");
    ini_.SetValue("Left", "30");
    disk_.protect(path);
    EXPECT_FALSE(ini_.Save("Position_frmDate"));
    EXPECT_EQ(disk_.bytes(path), before);
}

TEST_F(IniFileTest, AFailedSaveOfANewSectionLeavesTheChangedFlagClear) {
    ini_.Load(path);
    disk_.protect(path);
    EXPECT_FALSE(ini_.Save("New"));
    EXPECT_FALSE(ini_.get_Changed());
}

TEST_F(IniFileTest, WithoutASectionNothingIsFoundOrChanged) {
    ini_.Load(path);
    ini_.SetValue("k", "1");
    ini_.DeleteKey("k");
    ini_.DeleteAllKeys();
    EXPECT_EQ(ini_.GetValue("k"), "");
    EXPECT_THAT(ini_.get_Keys(), IsEmpty());
    EXPECT_THAT(ini_.get_Sections(), ElementsAre("Config", "Position_frmDate"));
}

}  // namespace
}  // namespace veldrana
