// The contract with the bridge that reads Ctestwin logs.
#include "readers/ctestwin.h"

#include <gtest/gtest.h>

#include "platform/code_page_932.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

constexpr const char* ini = "C:\\veldrana\\lg8bridge.ini";

class Ctestwin : public testing::Test {
  protected:
    Ctestwin() { disk.put_folder("C:\\veldrana"); }
    MemoryDisk disk;
};

TEST(CtestwinName, EndsInLg8InEitherCase) {
    for (const char* const path : {"C:\\log\\x.lg8", "C:\\log\\x.LG8", "C:\\log\\x.Lg8", ".lg8"}) {
        EXPECT_TRUE(is_lg8_name(path)) << path;
    }
    for (const char* const path :
         {"C:\\log\\x", "C:\\log\\x.lg", "C:\\log\\x.lg80", "C:\\log\\xlg8", "lg8", "", "表.lg9"}) {
        EXPECT_FALSE(is_lg8_name(path)) << path;
    }
}

TEST_F(Ctestwin, WritesTheKeysInTheSectionOfTheFilesName) {
    EXPECT_TRUE(write_lg8bridge_ini(disk, "C:\\veldrana\\", {" C:\\表\\x.lg8 ", "12"}));
    EXPECT_EQ(from_code_page(disk.bytes(ini)),
              "[lg8bridge.ini]\r\nlg8bridge_in_name=C:\\表\\x.lg8\r\nqso_su_str=12\r\n");
}

TEST_F(Ctestwin, ReadsThemBack) {
    disk.put(ini, to_code_page("[lg8bridge.ini]\r\nqso_su_str=345\r\n"
                               "lg8bridge_in_name=C:\\表\\x.lg8\r\n"));
    const Lg8Bridge bridge = read_lg8bridge_ini(disk, "C:\\veldrana\\");
    EXPECT_EQ(bridge.in_name, "C:\\表\\x.lg8");
    EXPECT_EQ(bridge.qso_su_str, "345");
}

TEST_F(Ctestwin, WhatTheBridgeHasNotWrittenStays) {
    write_lg8bridge_ini(disk, "C:\\veldrana\\", {"C:\\log\\x.lg8", "12"});
    EXPECT_EQ(read_lg8bridge_ini(disk, "C:\\veldrana\\").qso_su_str, "12");
}

TEST_F(Ctestwin, ValuesEndInFrontOfANul) {
    disk.put(ini, std::string("[lg8bridge.ini]\r\nqso_su_str=3\0", 31) +
                      "45\r\nlg8bridge_in_name=C:\\x" + std::string(1, '\0') + "y\r\n");
    const Lg8Bridge bridge = read_lg8bridge_ini(disk, "C:\\veldrana\\");
    EXPECT_EQ(bridge.qso_su_str, "3");
    EXPECT_EQ(bridge.in_name, "C:\\x");
}

TEST_F(Ctestwin, FileThatIsMissingOrNoProfileGivesNothing) {
    for (const std::string& bytes :
         {std::string(), std::string(4096, '\0'), std::string(4096, '\xFF'),
          std::string(1U << 20U, 'x'), std::string("qso_su_str=3\r\n")}) {
        disk.put(ini, bytes);
        EXPECT_EQ(read_lg8bridge_ini(disk, "C:\\veldrana\\").qso_su_str, "");
    }
    disk.remove(ini);
    EXPECT_EQ(read_lg8bridge_ini(disk, "C:\\veldrana\\").in_name, "");
}

TEST_F(Ctestwin, TellsThatItCouldNotWrite) {
    EXPECT_FALSE(write_lg8bridge_ini(disk, "C:\\none\\", {"C:\\log\\x.lg8", ""}));
}

TEST(CtestwinResult, StandsBesideTheLog) {
    EXPECT_EQ(lg8bridge_all_name("C:\\log\\x.lg8"), "C:\\log\\x_lg8bridge.all");
    EXPECT_EQ(lg8bridge_all_name("C:\\log.lg8\\x.y.LG8"), "C:\\log.lg8\\x.y_lg8bridge.all");
    EXPECT_EQ(lg8bridge_all_name("C:\\表\\ソ.lg8"), "C:\\表\\ソ_lg8bridge.all");
}

}  // namespace
}  // namespace veldrana
