// Paths as the program writes them.
#include "common/file_path.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "common/text.h"

namespace veldrana {
namespace {

TEST(SplitPath, TellsThePartsOfAPath) {
    struct Case {
        std::string path, drive, folder, name, base_name, extension;
    };
    const std::vector<Case> cases{
        {R"(C:\logs\2025\allja.zlo)", "C:", R"(C:\logs\2025\)", "allja.zlo", "allja", "zlo"},
        {R"(d:\a.txt)", "d:", R"(d:\)", "a.txt", "a", "txt"},
        {R"(\logs\a.txt)", "", R"(\logs\)", "a.txt", "a", "txt"},
        {R"(logs\a.txt)", "", R"(logs\)", "a.txt", "a", "txt"},
        {"a.txt", "", "", "a.txt", "a", "txt"},
        {R"(C:\logs\)", "C:", R"(C:\logs\)", "", "", ""},
        {R"(C:\)", "C:", R"(C:\)", "", "", ""},
        {R"(C:\logs)", "C:", R"(C:\)", "logs", "logs", ""},
        {"", "", "", "", "", ""},
        // The last point counts, and only one of the name.
        {R"(C:\a.tar.gz)", "C:", R"(C:\)", "a.tar.gz", "a.tar", "gz"},
        {R"(C:\v5.30\readme)", "C:", R"(C:\v5.30\)", "readme", "readme", ""},
        {R"(C:\name.)", "C:", R"(C:\)", "name.", "name", ""},
        {R"(C:\.ini)", "C:", R"(C:\)", ".ini", "", "ini"},
        // Characters whose second byte in the code page is a backslash.
        {R"(C:\表示\ソ.能)", "C:", R"(C:\表示\)", "ソ.能", "ソ", "能"},
        {R"(C:\a/b.txt)", "C:", R"(C:\a/)", "b.txt", "b", "txt"},
    };
    for (const Case& it : cases) {
        SCOPED_TRACE(it.path);
        const FilePath parts = split_path(it.path);
        EXPECT_EQ(parts.drive, it.drive);
        EXPECT_EQ(parts.folder, it.folder);
        EXPECT_EQ(parts.name, it.name);
        EXPECT_EQ(parts.base_name, it.base_name);
        EXPECT_EQ(parts.extension, it.extension);
    }
}

TEST(SplitPath, GivesViewsOfThePath) {
    const std::string path = R"(C:\logs\allja.zlo)";
    const FilePath parts = split_path(path);
    EXPECT_EQ(parts.drive.data(), path.data());
    EXPECT_EQ(parts.folder.data(), path.data());
    EXPECT_EQ(parts.name.data(), path.data() + 8);
    EXPECT_EQ(parts.base_name.data(), path.data() + 8);
    EXPECT_EQ(parts.extension.data(), path.data() + 14);
}

TEST(HasBackslash, SeesOneAnywhere) {
    EXPECT_TRUE(has_backslash(R"(C:\a.txt)"));
    EXPECT_TRUE(has_backslash(R"(\)"));
    EXPECT_TRUE(has_backslash(R"(logs\)"));
    EXPECT_FALSE(has_backslash("a.txt"));
    EXPECT_FALSE(has_backslash("C:a/b.txt"));
    EXPECT_FALSE(has_backslash("表ソ能＼"));
    EXPECT_FALSE(has_backslash(""));
}

TEST(WithBackslash, AddsOneWhereNoneIs) {
    EXPECT_EQ(with_backslash(R"(C:\logs)"), R"(C:\logs\)");
    EXPECT_EQ(with_backslash(R"(C:\logs\)"), R"(C:\logs\)");
    EXPECT_EQ(with_backslash("C:"), R"(C:\)");
    EXPECT_EQ(with_backslash(R"(C:\)"), R"(C:\)");
    EXPECT_EQ(with_backslash(R"(C:\表)"), R"(C:\表\)");
}

struct Fit {
    std::string name;
    std::string pattern;
    bool fits;
};

void expect_fits(const std::vector<Fit>& fits) {
    for (const Fit& it : fits) {
        EXPECT_EQ(matches(it.name, it.pattern), it.fits) << it.name << " and " << it.pattern;
    }
}

TEST(Matches, ANameWithoutWildcardsInAnyCase) {
    expect_fits({
        {"allja.zlo", "allja.zlo", true},
        {"AllJA.ZLO", "aLLja.zlo", true},
        {"ａｌｌ.zlo", "ＡＬＬ.zlo", true},
        {"漢字.txt", "漢字.txt", true},
        {"allja.zlo", "allja.zl", false},
        {"allja.zl", "allja.zlo", false},
        {"allja.zlo", "ollja.zlo", false},
        {"", "", true},
        {"", "a", false},
        {"a", "", false},
    });
}

TEST(Matches, OneCharacterForAQuestionMark) {
    expect_fits({
        {"a1.txt", "a?.txt", true},
        {"a.txt", "a?.txt", false},
        {"a12.txt", "a?.txt", false},
        {"a12.txt", "a??.txt", true},
        {"漢.txt", "?.txt", true},
        {"漢.txt", "??.txt", false},
        {"ｱ", "?", true},
        {"𠮷", "?", true},
        {"a", "?", true},
        {"", "?", false},
        {"abc", "??", false},
        {"a", "a?", false},
    });
}

TEST(Matches, AnyNumberOfCharactersForAStar) {
    expect_fits({
        {"allja.zlo", "*.zlo", true},
        {"ALLJA.ZLO", "*.zlo", true},
        {".zlo", "*.zlo", true},
        {"allja.zlo", "*", true},
        {"", "*", true},
        {"", "**", true},
        {"allja.zlo", "all*", true},
        {"all", "all*", true},
        {"al", "all*", false},
        {"allja.zlox", "*.zlo", false},
        {"allja.zlo.txt", "*.zlo", false},
        {"漢字記録.txt", "漢*.txt", true},
        {"漢字記録.txt", "*録.txt", true},
        {"漢字記録.txt", "*字.txt", false},
    });
}

TEST(Matches, LooksFurtherWhenAStarTookTooLittle) {
    expect_fits({
        {"aXbYbZc", "a*b*c", true},
        {"aaab", "*aab", true},
        {"a.zlo.zlo", "*.zlo", true},
        {"abcabd", "*abd", true},
        {"abab", "*ab*ab", true},
        {"aba", "*ab*ab", false},
        {"漢漢字", "*漢字", true},
        {"mississippi", "m*iss*p?", true},
        {"mississippi", "m*iss*s?", false},
    });
}

TEST(Matches, BothWildcardsTogether) {
    expect_fits({
        {"a", "?*", true},
        {"", "?*", false},
        {"a", "*?", true},
        {"", "*?", false},
        {"ab", "*?*?", true},
        {"a", "*?*?", false},
        {"漢", "*?*?", false},
        {"漢", "*??", false},
        {"漢字", "*???", false},
        {"log_1.txt", "log_?.*", true},
        {"log_12.txt", "log_?.*", false},
    });
}

TEST(Matches, OtherSignsForThemselves) {
    expect_fits({
        {"[a].txt", "[a].txt", true},
        {"a.txt", "[a].txt", false},
        {"a#1", "a##", false},
        {"axtxt", "a.txt", false},
        {"a+.txt", "a+.txt", true},
    });
}

constexpr std::size_t width = 49;

TEST(ShortenedPath, LeavesAPathThatFitsAsItStands) {
    // 3 + 20 + 1 + 25 bytes.
    const std::string fitting = R"(C:\my logs　of the year\allja contest day one.zlo)";
    ASSERT_EQ(LenMbcs(fitting), width);
    EXPECT_EQ(shortened_path(fitting, width), fitting);
    EXPECT_EQ(shortened_path("", width), "");
    EXPECT_EQ(shortened_path("a b.zlo", 7), "a b.zlo");
}

TEST(ShortenedPath, KeepsTheStartAndTheNameOfALongerPath) {
    // The tail "...\ja1qzx.zlo" takes 14 bytes and leaves 35 for the start.
    EXPECT_EQ(shortened_path(R"(C:\radio\logs\2025\contests\all_japan\phone\ja1qzx.zlo)", width),
              R"(C:\radio\logs\2025\contests\all_jap...\ja1qzx.zlo)");
    EXPECT_EQ(shortened_path(R"(C:\abcdef\g.txt)", 14), R"(C:\ab...\g.txt)");
}

TEST(ShortenedPath, ShortensAPathOneByteTooLong) {
    // 50 bytes: 3 + 36 + 1 + 10. The start of 35 bytes ends inside the folder.
    const std::string path = R"(D:\abcdefghijklmnopqrstuvwxyz0123456789\ja1qzx.zlo)";
    ASSERT_EQ(LenMbcs(path), width + 1);
    EXPECT_EQ(shortened_path(path, width), R"(D:\abcdefghijklmnopqrstuvwxyz012345...\ja1qzx.zlo)");
}

TEST(ShortenedPath, PutsLowLinesForBlanksOfBothWidths) {
    EXPECT_EQ(shortened_path(R"(C:\my logs\of the year 2025\all japan contest\day one.zlo)", width),
              R"(C:\my_logs\of_the_year_2025\all_ja...\day_one.zlo)");
    // The tail takes 14 bytes; of the 35 left, the first folder takes 14 and ten characters 20.
    EXPECT_EQ(shortened_path(R"(C:\無線　記録\国内コンテスト電信部門の控え\一　日.zlo)", width),
              R"(C:\無線_記録\国内コンテスト電信部...\一_日.zlo)");
}

TEST(ShortenedPath, CutsNoCharacterOfTheStart) {
    // The tail takes 8 bytes; of the 7 left, C:\ takes 3 and 漢字 4. With 6 left 字 is cut.
    const std::string path = R"(C:\漢字記録控え\ab.c)";
    EXPECT_EQ(shortened_path(path, 15), R"(C:\漢字...\ab.c)");
    EXPECT_EQ(shortened_path(path, 14), R"(C:\漢...\ab.c)");
}

TEST(ShortenedPath, CountsTheBytesOfTheCodePage) {
    // 3 + 8 * 2 + 1 + 5 = 25 bytes of the code page, 33 of the text inside.
    const std::string path = R"(C:\無線記録国内電信\a.zlo)";
    EXPECT_EQ(shortened_path(path, 25), path);
    EXPECT_EQ(shortened_path(path, 24), R"(C:\無線記録国内...\a.zlo)");
}

}  // namespace
}  // namespace veldrana
