// The guess from the name of a log to its contest.
#include "readers/contest_preselection.h"

#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// --- keys ---

ContestKeys keys(std::string_view Cfg_name, std::string_view Dat_name, std::string_view Con_name) {
    return keys_of({.Cfg_name = std::string(Cfg_name),
                    .Dat_name = std::string(Dat_name),
                    .Con_name = std::string(Con_name)});
}

TEST(ContestKeys, KeyAIsTheSettingsFileInCapitalsWithoutCfg) {
    EXPECT_EQ(keys("Fham.cfg", "", "").by_settings_file, "FHAM");
    EXPECT_EQ(keys("a.CFG.cfg", "", "").by_settings_file, "A");
    EXPECT_EQ(keys("fham.dat", "", "").by_settings_file, "FHAM.DAT");
}

TEST(ContestKeys, KeyBIsTheDataFileInCapitalsWithoutItsExtension) {
    EXPECT_EQ(keys("", "fham.dat", "").by_data_file, "FHAM");
    EXPECT_EQ(keys("", "Acag.Mas", "").by_data_file, "ACAG");
    EXPECT_EQ(keys("", "kcj.mst", "").by_data_file, "KCJ");
    EXPECT_EQ(keys("", "x.cfg", "").by_data_file, "X.CFG");
}

TEST(ContestKeys, KeyCLosesTheWordsThatManyHave) {
    for (const std::string_view word :
         {"コンテスト", "用",         "オール", "ＳＳＢ", "ＣＷ",   "ＡＭ", "ＦＭ",
          "ＲＴＴＹ",   "Ｖ・ＵＨＦ", "ＶＨＦ", "ＵＨＦ", "Ｖ・Ｕ", "SSB",  "CW",
          "AM",         "FM",         "RTTY",   "V・U",   "VHF",    "UHF"}) {
        EXPECT_EQ(keys("", "", "兵庫" + std::string(word) + "2").by_name, "兵庫2") << word;
    }
    EXPECT_EQ(keys("", "", "ｓｓｂ兵庫cw").by_name, "兵庫");
    EXPECT_EQ(keys("", "", "hyogo コンテスト").by_name, "HYOGO ");
}

TEST(ContestKeys, WordsGoInTheirOrder) {
    // "V・U" goes first, so that "HF" of "V・UHF" stays.
    EXPECT_EQ(keys("", "", "V・UHF").by_name, "HF");
    // The full-width form goes as a whole.
    EXPECT_EQ(keys("", "", "Ｖ・ＵＨＦ").by_name, "");
    // What a removal puts together goes if its word comes later, and stays if it came before.
    EXPECT_EQ(keys("", "", "CSSBW").by_name, "");
    EXPECT_EQ(keys("", "", "SSCWB").by_name, "SSB");
}

TEST(ContestKeys, KeyCIsCutInFrontOfTheFirstParenthesisOfEitherWidth) {
    EXPECT_EQ(keys("", "", "ALL JA(県外)").by_name, "ALL JA");
    EXPECT_EQ(keys("", "", "ALL JA（県外）").by_name, "ALL JA");
    EXPECT_EQ(keys("", "", "A（B(C").by_name, "A");
    EXPECT_EQ(keys("", "", "(県外)").by_name, "");
}

// --- rows ---

// As many contests as wanted, whose keys occur in no name.
std::vector<ContestKeys> contests(std::size_t count) {
    return std::vector<ContestKeys>(count, {"*", "*", "*"});
}

TEST(Preselection, KeyAIsTriedFromRow64On) {
    std::vector<ContestKeys> rows = contests(70);
    rows[63].by_settings_file = "FHAM";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\fham.all"), IsEmpty());
    rows[64].by_settings_file = "FHAM";
    rows[65].by_settings_file = "FHAM";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\fham.all"), ElementsAre(64));
}

TEST(Preselection, KeysBAndCAreTriedFromTheFirstRowWhoseHitIsNone) {
    for (std::string ContestKeys::*const key :
         {&ContestKeys::by_data_file, &ContestKeys::by_name}) {
        std::vector<ContestKeys> rows = contests(5);
        rows[1].*key = "FHAM";
        rows[2].*key = "FHAM";
        EXPECT_THAT(preselected_rows(rows, "C:\\log\\fham.all"), ElementsAre(1));
        rows[0].*key = "FHAM";
        EXPECT_THAT(preselected_rows(rows, "C:\\log\\fham.all"), IsEmpty());
    }
}

TEST(Preselection, BBeatsCAndBothBeatA) {
    struct Case {
        bool a;
        bool b;
        bool c;
        std::vector<std::size_t> selected;
    };
    for (const Case& hits : std::vector<Case>{{true, false, false, {64}},
                                              {false, true, false, {2}},
                                              {false, false, true, {3}},
                                              {true, true, false, {64, 2}},
                                              {true, false, true, {64, 3}},
                                              {false, true, true, {2}},
                                              {true, true, true, {64, 2}},
                                              {false, false, false, {}}}) {
        std::vector<ContestKeys> rows = contests(70);
        rows[64].by_settings_file = hits.a ? "FHAM" : "*";
        rows[2].by_data_file = hits.b ? "FHAM" : "*";
        rows[3].by_name = hits.c ? "FHAM" : "*";
        EXPECT_EQ(preselected_rows(rows, "C:\\log\\fham.all"), hits.selected);
    }
}

TEST(Preselection, EmptySettingsFileFromRow64OnHitsEveryNameUnlessBOrCHit) {
    std::vector<ContestKeys> rows = contests(70);
    rows[66].by_settings_file = "";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\anything.all"), ElementsAre(66));
    rows[4].by_name = "ANYTHING";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\anything.all"), ElementsAre(66, 4));
}

TEST(Preselection, KeyMayStandAnywhereInTheName) {
    std::vector<ContestKeys> rows = contests(3);
    rows[1].by_data_file = "FHAM";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\2021fham_1.all"), ElementsAre(1));
    EXPECT_THAT(preselected_rows(rows, "C:\\fham\\2021.all"), IsEmpty());
}

TEST(Preselection, EndingsOfLogsAreNotLookedAt) {
    std::vector<ContestKeys> rows = contests(3);
    rows[1].by_data_file = "A.";
    for (const std::string_view name : {"a_z2a.all", "A_Z2A.ALL", "a.txt", "a.cbr", "a.adi"}) {
        EXPECT_THAT(preselected_rows(rows, "C:\\log\\" + std::string(name)), IsEmpty()) << name;
    }
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\a.all"), ElementsAre(1));
    rows[1].by_data_file = "Z2A";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\fham_z2a.all"), IsEmpty());
    rows[1].by_data_file = "FHAM";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\fham_z2a.all"), ElementsAre(1));
}

TEST(Preselection, NameIsSearchedInCapitals) {
    std::vector<ContestKeys> rows = contests(3);
    rows[1].by_name = "ＫＣＪ";
    EXPECT_THAT(preselected_rows(rows, "C:\\log\\ｋｃｊ.all"), ElementsAre(1));
}

TEST(Preselection, EmptyListSelectsNothing) {
    EXPECT_THAT(preselected_rows({}, "C:\\log\\a.all"), IsEmpty());
}

}  // namespace
}  // namespace veldrana
