// Which masters a run asks.
#include "masters/run_masters.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/doubles/fixed_clock.h"
#include "tests/doubles/stage_fixture.h"
#include "tests/masters/master_lines.h"

namespace veldrana {
namespace {

class RunMastersTest : public StageFixture {
  protected:
    RunMastersTest() {
        options.Check03 = options.Check14 = options.Check8 = options.Check4_A = true;
        settings.options.Text_data_dir_A = "C:\\a.txt";
        settings.options.Text_data_dir_B = "C:\\b.txt";
        settings.environment.name_mas_dir = "C:\\mas\\";
        settings.environment.qth_mas_dir = "C:\\mas\\qth_mas.txt";
        put_master(disk, "C:\\a.txt", {" JA1ABCof A"});
        put_master(disk, "C:\\b.txt", {" JA1ABCof B"});
        put_master(disk, "C:\\mas\\qth_mas.txt", {" JA1ABCof Q"});
    }

    RunMasters masters() { return {options, settings, name_mas, hits}; }

    // The name that the user text in use gives; "none" without one.
    std::string user_text_in_use() {
        RunMasters run = masters();
        NameSource* const text = run.sources().text_data;
        if (text == nullptr) {
            return "none";
        }
        text->prepare(stage);
        return text->find("JA1ABC").name;
    }

    RunOptions options;
    FixedClock clock;
    SettingsStore settings{disk, clock, "C:\\veldrana\\"};
    NameMas name_mas;
    std::size_t hits = 0;
};

TEST_F(RunMastersTest, MasterIsThereIfItsOptionIsOnAndItsPathIsSet) {
    RunMasters all = masters();
    EXPECT_EQ(all.sources().name_mas, &name_mas);
    ASSERT_NE(all.sources().qth_mas, nullptr);
    all.sources().qth_mas->prepare(stage);
    EXPECT_EQ(all.sources().qth_mas->find("JA1ABC").name, "of Q");
    options = {};
    RunMasters none = masters();
    EXPECT_EQ(none.sources().name_mas, nullptr);
    EXPECT_EQ(none.sources().qth_mas, nullptr);
    EXPECT_EQ(none.sources().text_data, nullptr);
}

TEST_F(RunMastersTest, PathWithoutABackslashIsNotSet) {
    for (const char* const setting : {"", "使用しない"}) {
        settings.environment.name_mas_dir = settings.environment.qth_mas_dir = setting;
        EXPECT_FALSE(uses_name_mas(options, settings.environment));
        RunMasters run = masters();
        EXPECT_EQ(run.sources().name_mas, nullptr);
        EXPECT_EQ(run.sources().qth_mas, nullptr);
    }
}

TEST_F(RunMastersTest, NameMasNeedsItsOption) {
    EXPECT_TRUE(uses_name_mas(options, settings.environment));
    options.Check03 = false;
    EXPECT_FALSE(uses_name_mas(options, settings.environment));
}

TEST_F(RunMastersTest, UserTextIsTheOneOfItsBoxAndAGoesBeforeB) {
    struct Row {
        bool check_8;
        bool check_4_a;
        bool check_4_b;
        std::string expected;
    };
    for (const Row& row : std::vector<Row>{{true, true, false, "of A"},
                                           {true, false, true, "of B"},
                                           {true, true, true, "of A"},
                                           {true, false, false, "none"},
                                           {false, true, true, "none"}}) {
        options.Check8 = row.check_8;
        options.Check4_A = row.check_4_a;
        options.Check4_B = row.check_4_b;
        EXPECT_EQ(user_text_in_use(), row.expected);
    }
    EXPECT_EQ(hits, 3U);
}

}  // namespace
}  // namespace veldrana
