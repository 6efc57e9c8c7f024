// What kind a log is where nobody has said it.
#include "readers/kind_of_log.h"

#include <gtest/gtest.h>

#include "tests/doubles/failure_of.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

class KindOfLog : public testing::Test {
  protected:
    std::optional<InputKind> kind(std::string_view path, std::string bytes) {
        disk.put(path, std::move(bytes));
        return kind_of_log(disk, path);
    }
    // The kind of a .log of so many bytes.
    std::optional<InputKind> kind_of_size(std::size_t size, char first = '0') {
        std::string bytes(size, ' ');
        bytes.front() = first;
        return kind("C:\\log\\x.log", bytes);
    }
    MemoryDisk disk;
};

TEST_F(KindOfLog, MostExtensionsTellItThemselves) {
    EXPECT_EQ(kind("C:\\log\\x.all", "anything"), InputKind::all);
    EXPECT_EQ(kind("C:\\log\\x.zlo", "anything"), InputKind::zlo);
    EXPECT_EQ(kind("C:\\log\\x.cbr", "anything"), InputKind::cbr);
    EXPECT_EQ(kind("C:\\log\\x.adi", "anything"), InputKind::ADIF);
    EXPECT_EQ(kind("C:\\log\\x.lg8", "anything"), InputKind::lg8);
}

TEST_F(KindOfLog, ExtensionsAreReadInEitherCase) {
    EXPECT_EQ(kind("C:\\log\\X.ZLO", ""), InputKind::zlo);
    EXPECT_EQ(kind("C:\\log\\X.Adi", ""), InputKind::ADIF);
    EXPECT_EQ(kind("C:\\log\\X.LG8", ""), InputKind::lg8);
    EXPECT_EQ(kind("C:\\log\\X.LOG", "START-OF-LOG:"), InputKind::cbr);
}

TEST_F(KindOfLog, LastExtensionCounts) {
    EXPECT_EQ(kind("C:\\log.zlo\\x.y.adi", ""), InputKind::ADIF);
}

TEST_F(KindOfLog, LogOfRtclIsToldByItsFirstByteAndItsLength) {
    EXPECT_EQ(kind_of_size(203), InputKind::log_v4);
    EXPECT_EQ(kind_of_size(203 * 3), InputKind::log_v4);
    EXPECT_EQ(kind_of_size(209), InputKind::log_v430);
    EXPECT_EQ(kind_of_size(209 * 3), InputKind::log_v430);
}

TEST_F(KindOfLog, LengthOfBothFormsIsTheLaterOne) {
    EXPECT_EQ(kind_of_size(203 * 209), InputKind::log_v430);
}

TEST_F(KindOfLog, LogOfAnyOtherLengthIsCabrillo) {
    for (const std::size_t size : {1U, 202U, 204U, 208U, 210U, 203U + 209U}) {
        EXPECT_EQ(kind_of_size(size), InputKind::cbr) << size;
    }
}

TEST_F(KindOfLog, LogOfAnyOtherFirstByteIsCabrillo) {
    for (const char first : {'S', '1', '\0', 'O', ' '}) {
        EXPECT_EQ(kind_of_size(203, first), InputKind::cbr) << first;
        EXPECT_EQ(kind_of_size(209, first), InputKind::cbr) << first;
    }
}

TEST_F(KindOfLog, EmptyLogIsCabrillo) {
    EXPECT_EQ(kind("C:\\log\\x.log", ""), InputKind::cbr);
}

TEST_F(KindOfLog, TxtIsOfZlogByItsHeading) {
    EXPECT_EQ(kind("C:\\log\\x.txt", "mon day time  callsign      sent\r\n"), InputKind::txt);
    EXPECT_EQ(kind("C:\\log\\x.txt", "mon day time  callsign"), InputKind::txt);
}

TEST_F(KindOfLog, TxtOfAnyOtherHeadingIsCabrillo) {
    for (const char* const heading :
         {"START-OF-LOG: 3.0\r\n", "mon day time  callsig", "Mon day time  callsign",
          " mon day time  callsign", "zLog for Windows", ""}) {
        EXPECT_EQ(kind("C:\\log\\x.txt", heading), InputKind::cbr) << heading;
    }
}

TEST_F(KindOfLog, AnythingElseIsOfNoKind) {
    for (const char* const path : {"C:\\log\\x", "C:\\log\\x.csv", "C:\\log\\x.", "C:\\log.all\\x",
                                   "C:\\log\\x.adif", "C:\\log\\x.zl", "C:\\log\\xall", ""}) {
        if (*path != '\0') {
            disk.put(path, "zLog for Windows");
        }
        EXPECT_EQ(kind_of_log(disk, path), std::nullopt) << path;
    }
}

TEST_F(KindOfLog, MissingFileIsWhatItsExtensionTellsFirst) {
    EXPECT_EQ(kind_of_log(disk, "C:\\log\\none.log"), InputKind::cbr);
    EXPECT_EQ(kind_of_log(disk, "C:\\log\\none.txt"), InputKind::txt);
    EXPECT_EQ(kind_of_log(disk, "C:\\log\\none.zlo"), InputKind::zlo);
    EXPECT_EQ(kind_of_log(disk, "C:\\log\\none.csv"), std::nullopt);
}

}  // namespace
}  // namespace veldrana
