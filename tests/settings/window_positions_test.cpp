#include "settings/window_positions.h"

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/main_screen.h"
#include "common/run_time_error.h"
#include "platform/profile_file.h"
#include "tests/doubles/memory_disk.h"

namespace veldrana {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

const std::string folder = "C:\\veldrana\\";
const std::string path = folder + "Veldrana_posi.ini";

const std::vector<std::string> window_names{
    "Veldrana",          "frmCon_sel",     "frmConfig",
    "frmDate",           "frmDisp",        "frmDisp2",
    "frmDisp3",          "frmDisp4",       "frmDownload",
    "frmJARL_Web_No",    "frmJARL_Web_On", "frmKetasu",
    "frmRmk_Rireki_sel", "frmRmks_sel",    "frmSet_koumoku_jun",
    "Grid4frm",          "Grid5frm",       "frmCheck_bak_qso_mas",
    "frmRTCL_v4"};

constexpr WindowPlacement design{.state = 0, .left = 1, .top = 2, .width = 3, .height = 4};

// A disk whose files cannot be read for a while.
class LockedDisk : public MemoryDisk {
  public:
    bool locked = false;
    std::unique_ptr<ByteSource> open_for_reading(std::string_view file) override {
        if (locked) {
            throw RunTimeError(Failure::permission_denied);
        }
        return MemoryDisk::open_for_reading(file);
    }
};

class WindowPositionsTest : public testing::Test {
  protected:
    WindowPositionsTest() { disk_.put_folder("C:\\veldrana"); }

    void put(const std::string& text) { disk_.put(path, text); }
    std::string stored(std::string_view section, std::string_view key) {
        return ProfileFile(disk_, path).value(section, key);
    }
    void save(const std::string& name, const WindowPlacement& placement) {
        WindowForm form(name);
        form.window.placement = placement;
        save_position(disk_, folder, form.window);
    }
    // Where a window comes to stand that stood as it was designed.
    WindowPlacement load(const std::string& name) {
        WindowForm form(name);
        form.window.placement = design;
        load_position(disk_, folder, form.window);
        return form.window.placement.get().value_or(WindowPlacement{});
    }

    LockedDisk disk_;
};

// --- the file ---

TEST_F(WindowPositionsTest, ANewFileHasItsVersionAndAnEmptyLine) {
    make_position_file(disk_, folder);
    EXPECT_EQ(disk_.bytes(path), "[Config]\r\nversion=5.30\r\n\r\n");
}

TEST_F(WindowPositionsTest, AFileThatIsThereStays) {
    put("[Position_Veldrana]\r\nLeft=1\r\n");
    make_position_file(disk_, folder);
    EXPECT_EQ(disk_.bytes(path), "[Position_Veldrana]\r\nLeft=1\r\n");
}

TEST_F(WindowPositionsTest, AllNineteenWindowsHaveOne) {
    EXPECT_THAT(positioned_windows, testing::ElementsAreArray(window_names));
}

TEST_F(WindowPositionsTest, TheMainWindowIsNamedAsItsSection) {
    const MainScreen screen;
    EXPECT_EQ(screen.window.name(), "Veldrana");
}

// --- each window ---

class EachWindow : public WindowPositionsTest, public testing::WithParamInterface<std::string> {};

TEST_P(EachWindow, SavesItsPositionInItsOwnSection) {
    make_position_file(disk_, folder);
    save(GetParam(), {.state = 2, .left = 150, .top = -30, .width = 12000, .height = 9000.5});
    const std::string section = "Position_" + GetParam();
    EXPECT_THAT(ProfileFile(disk_, path).section_names(), ElementsAre("Config", section));
    EXPECT_EQ(stored(section, "WindowState"), "2");
    EXPECT_EQ(stored(section, "Left"), "150");
    EXPECT_EQ(stored(section, "Top"), "-30");
    EXPECT_EQ(stored(section, "Width"), "12000");
    EXPECT_EQ(stored(section, "Height"), "9000.5");
}

TEST_P(EachWindow, LoadsThePositionOfItsOwnSection) {
    std::string text;
    int number = 0;
    int own = 0;
    for (const std::string& name : window_names) {
        ++number;
        own = name == GetParam() ? number : own;
        const std::string digits = std::to_string(number);
        text += "[Position_" + name + "]\r\nWindowState=2\r\nLeft=1" + digits + "\r\nTop=2" +
                digits + "\r\nWidth=30" + digits + "\r\nHeight=40" + digits + "\r\n";
    }
    put(text);
    const auto placed = [&](const char* front) {
        return static_cast<float>(std::stoi(front + std::to_string(own)));
    };
    EXPECT_EQ(load(GetParam()), (WindowPlacement{.state = 2,
                                                 .left = placed("1"),
                                                 .top = placed("2"),
                                                 .width = placed("30"),
                                                 .height = placed("40")}));
}

INSTANTIATE_TEST_SUITE_P(Windows, EachWindow, testing::ValuesIn(window_names),
                         [](const auto& window) { return window.param; });

// --- save ---

TEST_F(WindowPositionsTest, AMinimisedWindowIsSavedAsANormalOne) {
    save("frmDate", {.state = 1, .left = 10, .top = 20, .width = 300, .height = 400});
    EXPECT_EQ(stored("Position_frmDate", "WindowState"), "0");
    EXPECT_EQ(stored("Position_frmDate", "Left"), "10");
}

TEST_F(WindowPositionsTest, ANormalWindowIsSavedAsOne) {
    save("frmDate", design);
    EXPECT_EQ(stored("Position_frmDate", "WindowState"), "0");
}

TEST_F(WindowPositionsTest, TheKeysStandInTheirOrder) {
    save("frmDate", design);
    std::vector<std::string> values;
    for (const ProfileFile::Entry& entry : ProfileFile(disk_, path).entries("Position_frmDate")) {
        values.push_back(entry.value);
    }
    EXPECT_THAT(values, ElementsAre("0", "1", "2", "3", "4"));
}

TEST_F(WindowPositionsTest, ASaveReplacesTheFormerPosition) {
    save("frmDate", design);
    save("frmDate", {.state = 2, .left = 10, .top = 20, .width = 300, .height = 400});
    EXPECT_THAT(ProfileFile(disk_, path).section_names(), ElementsAre("Position_frmDate"));
    EXPECT_THAT(ProfileFile(disk_, path).entries("Position_frmDate"), testing::SizeIs(5));
    EXPECT_EQ(stored("Position_frmDate", "Width"), "300");
}

TEST_F(WindowPositionsTest, ASaveLeavesOtherSectionsAsTheyStand) {
    put("[Config]\r\nversion=5.30\r\n\r\n[Position_Veldrana]\r\nLeft=7\r\nMine=x\r\n");
    save("frmDate", design);
    EXPECT_THAT(disk_.bytes(path),
                testing::StartsWith("[Config]\r\nversion=5.30\r\n\r\n[Position_Veldrana]\r\n"
                                    "Left=7\r\nMine=x\r\n"));
}

TEST_F(WindowPositionsTest, ASaveMakesAMissingFile) {
    save("frmDate", design);
    EXPECT_EQ(stored("Position_frmDate", "Height"), "4");
}

TEST_F(WindowPositionsTest, AWindowThatStandsNowhereIsNotSaved) {
    const WindowForm form("frmDate");
    save_position(disk_, folder, form.window);
    EXPECT_THAT(disk_.files(), IsEmpty());
}

TEST_F(WindowPositionsTest, ASaveThatFailsIsNotNoticed) {
    make_position_file(disk_, folder);
    disk_.protect(path);
    save("frmDate", design);
    EXPECT_EQ(disk_.bytes(path), "[Config]\r\nversion=5.30\r\n\r\n");
}

TEST_F(WindowPositionsTest, ASaveKeepsOtherPositionsWhenTheFileCannotBeRead) {
    put("[Position_Veldrana]\r\nLeft=7\r\n");
    disk_.locked = true;
    save("frmDate", design);
    disk_.locked = false;
    EXPECT_EQ(stored("Position_Veldrana", "Left"), "7");
}

// --- load ---

TEST_F(WindowPositionsTest, AMaximisedWindowComesBackWithItsNormalRectangle) {
    const WindowPlacement maximised{
        .state = 2, .left = 150, .top = 300, .width = 9000, .height = 6000};
    save("frmDisp", maximised);
    EXPECT_EQ(load("frmDisp"), maximised);
}

TEST_F(WindowPositionsTest, AMinimisedWindowComesBackAsANormalOne) {
    save("frmDisp", {.state = 1, .left = 150, .top = 300, .width = 9000, .height = 6000});
    EXPECT_EQ(
        load("frmDisp"),
        (WindowPlacement{.state = 0, .left = 150, .top = 300, .width = 9000, .height = 6000}));
}

TEST_F(WindowPositionsTest, AWindowComesBackFromOffTheScreen) {
    put("[Position_frmDate]\r\nLeft=-30000\r\nTop=32000\r\nWidth=1\r\nHeight=0\r\n");
    EXPECT_EQ(load("frmDate"),
              (WindowPlacement{.state = 0, .left = -30000, .top = 32000, .width = 1, .height = 0}));
}

TEST_F(WindowPositionsTest, WithoutAFileEverythingStays) {
    EXPECT_EQ(load("frmDate"), design);
    EXPECT_THAT(disk_.files(), IsEmpty());
}

TEST_F(WindowPositionsTest, WithoutItsSectionEverythingStays) {
    put("[Config]\r\nversion=5.30\r\n\r\n[Position_frmDisp]\r\nLeft=7\r\n");
    EXPECT_EQ(load("frmDate"), design);
    EXPECT_EQ(disk_.bytes(path),
              "[Config]\r\nversion=5.30\r\n\r\n[Position_frmDisp]\r\nLeft=7\r\n");
}

TEST_F(WindowPositionsTest, WhatIsMissingStays) {
    put("[Position_frmDate]\r\nTop=20\r\n");
    EXPECT_EQ(load("frmDate"),
              (WindowPlacement{.state = 0, .left = 1, .top = 20, .width = 3, .height = 4}));
}

TEST_F(WindowPositionsTest, ATextForANumberLeavesTheDesignPosition) {
    put("[Position_frmDate]\r\nLeft=abc\r\nTop=20\r\nWidth=\r\nHeight=40x\r\n");
    EXPECT_EQ(load("frmDate"),
              (WindowPlacement{.state = 0, .left = 1, .top = 20, .width = 3, .height = 4}));
}

TEST_F(WindowPositionsTest, ANumberWithAFractionConvertsToo) {
    put("[Position_frmDate]\r\nLeft=120.25\r\n");
    EXPECT_NEAR(load("frmDate").left.value_or(0), 120, 0.5);
}

TEST_F(WindowPositionsTest, EachOfTheThreeStatesIsTaken) {
    for (const int state : {0, 1, 2}) {
        put("[Position_frmDate]\r\nWindowState=" + std::to_string(state) + "\r\n");
        WindowForm form("frmDate");
        WindowPlacement other = design;
        other.state = state == 0 ? 2 : 0;
        form.window.placement = other;
        load_position(disk_, folder, form.window);
        EXPECT_EQ(form.window.placement.get()->state, state);
    }
}

TEST_F(WindowPositionsTest, AnotherStateIsNotTaken) {
    for (const std::string state : {"3", "-1", "", "12", "01", "x", "1.0"}) {
        put("[Position_frmDate]\r\nWindowState=" + state + "\r\n");
        WindowForm form("frmDate");
        WindowPlacement maximised = design;
        maximised.state = 2;
        form.window.placement = maximised;
        load_position(disk_, folder, form.window);
        EXPECT_EQ(form.window.placement.get()->state, 2) << state;
    }
}

TEST_F(WindowPositionsTest, KeysAndSectionsAreFoundInAnyCase) {
    put("[POSITION_FRMDATE]\r\nLEFT=10\r\nwidth=300\r\n");
    EXPECT_EQ(load("frmDate"),
              (WindowPlacement{.state = 0, .left = 10, .top = 2, .width = 300, .height = 4}));
}

TEST_F(WindowPositionsTest, ASectionOfMoreThan4094BytesIsReadWhole) {
    std::string text = "[Position_frmDate]\r\n";
    for (int i = 0; i < 500; ++i) {
        text += "filler" + std::to_string(i) + "=xxxxxxxx\r\n";
    }
    put(text + "Left=10\r\n");
    EXPECT_EQ(load("frmDate").left, 10);
}

TEST_F(WindowPositionsTest, AFileAsNoProgramWritesItDoesNoHarm) {
    for (const std::string text :
         {"", "[", "]\r\n=\r\n[Position_frmDate\r\nLeft=9\r\n", "\xFF\xFE[", "Left=9\r\n"}) {
        put(text);
        EXPECT_EQ(load("frmDate"), design) << text;
    }
}

TEST_F(WindowPositionsTest, LineFeedsAloneAndAByteOrderMarkDoNoHarm) {
    put("\xEF\xBB\xBF[Position_frmDate]\nLeft=10\n");
    EXPECT_EQ(load("frmDate").left, 10);
}

TEST_F(WindowPositionsTest, AFolderInPlaceOfTheFileDoesNoHarm) {
    disk_.put_folder(path);
    save("frmDate", design);
    EXPECT_EQ(load("frmDate"), design);
    EXPECT_THAT(disk_.files(), IsEmpty());
}

TEST_F(WindowPositionsTest, AFileThatCannotBeReadDoesNoHarm) {
    put("[Position_frmDate]\r\nLeft=10\r\n");
    disk_.locked = true;
    EXPECT_EQ(load("frmDate"), design);
}

}  // namespace
}  // namespace veldrana
