#include "app/main_screen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/counters.h"

namespace veldrana {
namespace {

TEST(MainScreen, ResultGridHasItsLabelsWidthsAndColours) {
    const MainScreen screen;
    const std::vector<std::string> labels{
        " 今 回 の処理数",   " 複 数 の局の数",  " 単 数 の局の数",   " 複 ・単の合計数",
        " No QSL 局の数",    " Name 取得の数",   " ＪＡＲＬ登録の数", " ＪＡＲＬ無登録数",
        " ＪＡＲＬ無検索数", " Text_data 取得数"};
    EXPECT_THAT(screen.MSFlexGrid1.column_widths(), testing::ElementsAre(1900, 800, 400));
    ASSERT_EQ(screen.MSFlexGrid1.rows(), labels.size());
    for (std::size_t row = 0; row < labels.size(); ++row) {
        EXPECT_EQ(screen.MSFlexGrid1.cell(row, 0).text, labels[row]);
        EXPECT_EQ(screen.MSFlexGrid1.cell(row, 1).fore_colour, colours::blue);
        EXPECT_EQ(screen.MSFlexGrid1.cell(row, 2).text, "件");
    }
}

TEST(MainScreen, ViewersAreEnabledAndDisabledTogether) {
    MainScreen screen;
    const std::vector<Control*> viewers{&screen.mnuDisp_in,
                                        &screen.cmdDisp_in,
                                        &screen.cmdDisp_contest,
                                        &screen.cmdDisp_Hamlog,
                                        &screen.mnuDisp_con_n,
                                        &screen.mnuDisp_ham_n,
                                        &screen.mnuDisp_Veldrana_Rireki_cfg,
                                        &screen.mnuDisp_Veldrana_rmk1,
                                        &screen.mnuDisp_Veldrana_rmk2,
                                        &screen.mnuDisp_dup};
    screen.enable_member_search(true);
    screen.disp_enable_f();
    for (const Control* const viewer : viewers) {
        EXPECT_FALSE(viewer->enabled) << viewer->name();
    }
    EXPECT_FALSE(screen.mnuJARL.enabled);
    EXPECT_FALSE(screen.mnuJARL_Web_OK_conj.enabled);
    screen.disp_enable_t();
    for (const Control* const viewer : viewers) {
        EXPECT_TRUE(viewer->enabled) << viewer->name();
    }
    EXPECT_FALSE(screen.mnuJARL.enabled);
}

TEST(Counters, AreShownInTheirRows) {
    MainScreen screen;
    Counters counters;
    counters.values = {10, 3, 7, 10, 1, 5, 6, 7, 8, 9};
    kettuka_disp(counters, screen);
    for (std::size_t row = 0; row < counters.values.size(); ++row) {
        EXPECT_EQ(screen.MSFlexGrid1.cell(row, 1).text, std::to_string(counters.values[row]));
    }
    kettuka_disp_clear(counters, screen);
    EXPECT_EQ(counters.values, decltype(counters.values){});
    EXPECT_EQ(screen.MSFlexGrid1.cell(9, 1).text, "0");
}

TEST(Counters, StartOfARunZeroesTheLastFour) {
    Counters counters;
    counters.values = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10};
    counters.clear_search();
    EXPECT_THAT(counters.values, testing::ElementsAre(1, 2, 3, 4, 5, 6, 0, 0, 0, 0));
}

}  // namespace
}  // namespace veldrana
