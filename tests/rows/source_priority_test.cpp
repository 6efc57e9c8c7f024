// From which source a row takes its name, code and QTH: the filters of the sources, the priority
// lists, what each place needs, and the exception at the second place of the code column.
#include "rows/source_priority.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

using testing::ElementsAre;

// A change of options that starts from what lets everything through.
using Change = std::function<void(RunOptions&)>;

const Change nothing = [](RunOptions& /*options*/) {};

RunOptions all_in_use(const Change& change) {
    RunOptions options;
    options.Option02 = 1;
    options.Option04 = 1;
    options.Check03 = true;
    options.Check14 = options.Check4 = options.Check5 = options.Check6 = options.Check7 = true;
    options.Check8 = options.Check4_A = true;
    options.Check11 = options.Check13 = options.Check9 = options.Check12 = true;
    change(options);
    return options;
}

// --- filters ---

struct FilterRow {
    std::string_view what;
    Change change;
    bool portable;
    StationData left;
};

void expect_filtered(const std::vector<FilterRow>& rows, const StationData& found,
                     const std::function<void(const RunOptions&, bool, StationData&)>& filter) {
    for (const FilterRow& row : rows) {
        SCOPED_TRACE(row.what);
        StationData data = found;
        filter(all_in_use(row.change), row.portable, data);
        EXPECT_EQ(data.name, row.left.name);
        EXPECT_EQ(data.code, row.left.code);
        EXPECT_EQ(data.qth, row.left.qth);
        EXPECT_EQ(data.gl, row.left.gl);
        EXPECT_EQ(data.rmks, row.left.rmks);
    }
}

TEST(SourceFilter, OfQthMasClearsWhatIsNotWanted) {
    const StationData all{.name = "N", .code = "C", .qth = "Q", .gl = "G", .rmks = ""};
    const StationData name_alone{.name = "N", .code = "", .qth = "", .gl = "", .rmks = ""};
    expect_filtered(
        {
            {"all wanted", nothing, false, all},
            {"all wanted, portable", nothing, true, all},
            {"no name",
             [](RunOptions& options) { options.Check6 = false; },
             false,
             {.name = "", .code = "C", .qth = "Q", .gl = "G", .rmks = ""}},
            {"no code",
             [](RunOptions& options) { options.Check4 = false; },
             false,
             {.name = "N", .code = "", .qth = "Q", .gl = "G", .rmks = ""}},
            {"no QTH",
             [](RunOptions& options) { options.Check7 = false; },
             false,
             {.name = "N", .code = "C", .qth = "", .gl = "G", .rmks = ""}},
            {"no G/L",
             [](RunOptions& options) { options.Check5 = false; },
             false,
             {.name = "N", .code = "C", .qth = "Q", .gl = "", .rmks = ""}},
            {"not for portable stations, and it is none",
             [](RunOptions& options) { options.Check16 = true; }, false, all},
            {"not for portable stations", [](RunOptions& options) { options.Check16 = true; }, true,
             name_alone},
            {"not for portable stations, and no name",
             [](RunOptions& options) { options.Check16 = true, options.Check6 = false; },
             true,
             {}},
            {"that of the user text is not looked at",
             [](RunOptions& options) {
                 options.Check17 = true;
                 options.Check11 = options.Check13 = options.Check9 = options.Check12 = false;
             },
             true, all},
        },
        all, filter_qth_mas);
}

TEST(SourceFilter, OfTextDataClearsWhatIsNotWanted) {
    const StationData all{.name = "N", .code = "C", .qth = "Q", .gl = "", .rmks = "R"};
    const StationData without_place{.name = "N", .code = "", .qth = "", .gl = "", .rmks = "R"};
    expect_filtered(
        {
            {"all wanted", nothing, false, all},
            {"all wanted, portable", nothing, true, all},
            {"no name",
             [](RunOptions& options) { options.Check11 = false; },
             false,
             {.name = "", .code = "C", .qth = "Q", .gl = "", .rmks = "R"}},
            {"no code",
             [](RunOptions& options) { options.Check13 = false; },
             false,
             {.name = "N", .code = "", .qth = "Q", .gl = "", .rmks = "R"}},
            {"no QTH",
             [](RunOptions& options) { options.Check9 = false; },
             false,
             {.name = "N", .code = "C", .qth = "", .gl = "", .rmks = "R"}},
            {"no remark",
             [](RunOptions& options) { options.Check12 = false; },
             false,
             {.name = "N", .code = "C", .qth = "Q", .gl = "", .rmks = ""}},
            {"not for portable stations, and it is none",
             [](RunOptions& options) { options.Check17 = true; }, false, all},
            {"not for portable stations", [](RunOptions& options) { options.Check17 = true; }, true,
             without_place},
            {"that of qth_mas is not looked at",
             [](RunOptions& options) {
                 options.Check16 = true;
                 options.Check4 = options.Check5 = options.Check6 = options.Check7 = false;
             },
             true, all},
        },
        all, filter_text_data);
}

// --- what each source needs ---

Candidates full_candidates() {
    return {
        .dat_mas = {.name = "", .code = "dat C", .qth = "dat Q", .gl = "", .rmks = ""},
        .name_mas = {.name = "name N", .code = "name C", .qth = "name Q", .gl = "", .rmks = ""},
        .qth_mas = {.name = "qth N", .code = "qth C", .qth = "qth Q", .gl = "G", .rmks = ""},
        .text_data = {.name = "text N", .code = "text C", .qth = "text Q", .gl = "", .rmks = "R"}};
}

struct NeedRow {
    std::string_view place;  // what stands in place 1, alone
    std::string_view what;
    Change change;
    std::string_view expected;
};

TEST(NameColumn, TakesASourceIfItsOptionsHold) {
    const std::vector<NeedRow> rows{
        {"name_mas", "", nothing, "name N"},
        {"name_mas", "Check03", [](RunOptions& options) { options.Check03 = false; }, ""},
        {"qth_mas", "", nothing, "qth N"},
        {"qth_mas", "Check6", [](RunOptions& options) { options.Check6 = false; }, ""},
        {"qth_mas", "Check14", [](RunOptions& options) { options.Check14 = false; }, ""},
        {"Text_data", "", nothing, "text N"},
        {"Text_data", "Check8", [](RunOptions& options) { options.Check8 = false; }, ""},
        {"Text_data", "Check11", [](RunOptions& options) { options.Check11 = false; }, ""},
        {"dat_mas", "is no source of names", nothing, ""},
        {"other", "is no source", nothing, ""},
        {"", "is no source", nothing, ""},
    };
    const Candidates candidates = full_candidates();
    for (const NeedRow& row : rows) {
        SCOPED_TRACE(std::string(row.place) + " " + std::string(row.what));
        RunOptions options = all_in_use(row.change);
        options.name_yusen_jun = row.place;
        EXPECT_EQ(choose_name(options, candidates), row.expected);
    }
}

TEST(CodeColumn, TakesASourceIfItsOptionsHold) {
    const std::vector<NeedRow> rows{
        {"dat_mas", "", nothing, "dat C"},
        {"dat_mas", "Option02", [](RunOptions& options) { options.Option02 = 0; }, "before"},
        {"dat_mas", "Option02 is 2", [](RunOptions& options) { options.Option02 = 2; }, "dat C"},
        {"dat_mas", "Option04", [](RunOptions& options) { options.Option04 = 0; }, "before"},
        {"qth_mas", "", nothing, "qth C"},
        {"qth_mas", "Check4", [](RunOptions& options) { options.Check4 = false; }, "before"},
        {"qth_mas", "Check14", [](RunOptions& options) { options.Check14 = false; }, "before"},
        {"name_mas", "", nothing, "name C"},
        {"name_mas", "Check03", [](RunOptions& options) { options.Check03 = false; }, "before"},
        {"Text_data", "", nothing, "text C"},
        {"Text_data", "Check8", [](RunOptions& options) { options.Check8 = false; }, "before"},
        {"Text_data", "Check13", [](RunOptions& options) { options.Check13 = false; }, "before"},
        {"other", "is no source", nothing, "before"},
        {"", "is no source", nothing, "before"},
    };
    const Candidates candidates = full_candidates();
    for (const NeedRow& row : rows) {
        SCOPED_TRACE(std::string(row.place) + " " + std::string(row.what));
        RunOptions options = all_in_use(row.change);
        options.code_yusen_jun = row.place;
        EXPECT_EQ(choose_code(options, candidates, "before"), row.expected);
    }
}

TEST(QthColumn, TakesASourceIfItsOptionsHold) {
    const std::vector<NeedRow> rows{
        {"dat_mas", "", nothing, "dat Q"},
        {"dat_mas", "Option02", [](RunOptions& options) { options.Option02 = 0; }, "before"},
        {"dat_mas", "Option04", [](RunOptions& options) { options.Option04 = 0; }, "before"},
        {"qth_mas", "", nothing, "qth Q"},
        {"qth_mas", "Check7", [](RunOptions& options) { options.Check7 = false; }, "before"},
        {"qth_mas", "Check14", [](RunOptions& options) { options.Check14 = false; }, "before"},
        {"name_mas", "", nothing, "name Q"},
        {"name_mas", "Check03", [](RunOptions& options) { options.Check03 = false; }, "before"},
        {"Text_data", "", nothing, "text Q"},
        {"Text_data", "Check8", [](RunOptions& options) { options.Check8 = false; }, "before"},
        {"Text_data", "Check9", [](RunOptions& options) { options.Check9 = false; }, "before"},
        {"other", "is no source", nothing, "before"},
        {"", "is no source", nothing, "before"},
    };
    const Candidates candidates = full_candidates();
    for (const NeedRow& row : rows) {
        SCOPED_TRACE(std::string(row.place) + " " + std::string(row.what));
        RunOptions options = all_in_use(row.change);
        options.qth_yusen_jun = row.place;
        EXPECT_EQ(choose_qth(options, candidates, "before"), row.expected);
    }
}

// --- ranks ---

// Every column by one list, with some sources that have nothing.
std::vector<std::string> chosen(const std::string& list, const Candidates& candidates) {
    RunOptions options = all_in_use(nothing);
    options.name_yusen_jun = options.code_yusen_jun = options.qth_yusen_jun = list;
    return {std::string(choose_name(options, candidates)),
            std::string(choose_code(options, candidates, "before")),
            std::string(choose_qth(options, candidates, "before"))};
}

TEST(PriorityList, ThePlaceInFrontWins) {
    const Candidates candidates = full_candidates();
    EXPECT_THAT(chosen("name_mas,qth_mas,dat_mas", candidates),
                ElementsAre("name N", "name C", "name Q"));
    EXPECT_THAT(chosen("qth_mas,name_mas,Text_data", candidates),
                ElementsAre("qth N", "qth C", "qth Q"));
    EXPECT_THAT(chosen("Text_data,name_mas,qth_mas", candidates),
                ElementsAre("text N", "text C", "text Q"));
    EXPECT_THAT(chosen("dat_mas,qth_mas,name_mas", candidates),
                ElementsAre("qth N", "dat C", "dat Q"));
}

TEST(PriorityList, APlaceWithoutAValueLeavesItToTheNext) {
    Candidates candidates = full_candidates();
    candidates.qth_mas = {};
    EXPECT_THAT(chosen("qth_mas,name_mas,Text_data", candidates),
                ElementsAre("name N", "name C", "name Q"));
    candidates.name_mas = {};
    EXPECT_THAT(chosen("qth_mas,name_mas,Text_data", candidates),
                ElementsAre("text N", "text C", "text Q"));
    candidates.text_data = {};
    EXPECT_THAT(chosen("qth_mas,name_mas,Text_data", candidates),
                ElementsAre("", "before", "before"));
}

TEST(PriorityList, ColumnsGoEachByItsOwnList) {
    RunOptions options = all_in_use(nothing);
    options.name_yusen_jun = "Text_data";
    options.code_yusen_jun = "name_mas";
    options.qth_yusen_jun = "qth_mas";
    const Candidates candidates = full_candidates();
    EXPECT_EQ(choose_name(options, candidates), "text N");
    EXPECT_EQ(choose_code(options, candidates, "before"), "name C");
    EXPECT_EQ(choose_qth(options, candidates, "before"), "qth Q");
}

TEST(PriorityList, OfFewerThanThreePlacesHasBlankOnes) {
    const Candidates candidates = full_candidates();
    EXPECT_THAT(chosen("name_mas,qth_mas", candidates), ElementsAre("name N", "name C", "name Q"));
    EXPECT_THAT(chosen("name_mas", candidates), ElementsAre("name N", "name C", "name Q"));
    EXPECT_THAT(chosen("", candidates), ElementsAre("", "before", "before"));
    EXPECT_THAT(chosen(",,name_mas", candidates), ElementsAre("name N", "name C", "name Q"));
    EXPECT_THAT(chosen(",name_mas,", candidates), ElementsAre("name N", "name C", "name Q"));
    EXPECT_THAT(chosen(",,,name_mas", candidates), ElementsAre("", "before", "before"));
}

TEST(PriorityList, DefaultTakesTheNameOfNameMasBeforeThatOfQthMas) {
    const RunOptions options = all_in_use(nothing);
    EXPECT_EQ(choose_name(options, full_candidates()), "name N");
}

TEST(PriorityList, DefaultTakesCodeAndQthOfDatMasFirst) {
    const RunOptions options = all_in_use(nothing);
    const Candidates candidates = full_candidates();
    EXPECT_EQ(choose_code(options, candidates, "before"), "dat C");
    EXPECT_EQ(choose_qth(options, candidates, "before"), "dat Q");
}

TEST(PriorityList, TextDataLastOfFourIsAsGoodAsNoMentionOfIt) {
    Candidates candidates;
    candidates.text_data = full_candidates().text_data;
    EXPECT_THAT(chosen("dat_mas,name_mas,qth_mas,Text_data", candidates),
                ElementsAre("", "before", "before"));
    EXPECT_THAT(chosen("dat_mas,name_mas,qth_mas", candidates),
                ElementsAre("", "before", "before"));
    // In the third place it counts.
    EXPECT_THAT(chosen("dat_mas,name_mas,Text_data,qth_mas", candidates),
                ElementsAre("text N", "text C", "text Q"));
}

// --- the exception ---

struct TextDataRow {
    std::string_view list;
    std::string_view name_mas;
    std::string_view text_data;
    std::string_view expected;
};

Candidates of_two(const TextDataRow& row) {
    Candidates candidates;
    for (StationData* const source : {&candidates.name_mas, &candidates.text_data}) {
        const std::string value(source == &candidates.name_mas ? row.name_mas : row.text_data);
        source->name = source->code = source->qth = value;
    }
    return candidates;
}

TEST(CodeColumn, SecondPlaceTakesTextDataIfNameMasHasACode) {
    const std::vector<TextDataRow> rows{
        {"dat_mas,Text_data,qth_mas", "", "T", "before"},  // a filled one is ignored
        {"dat_mas,Text_data,qth_mas", "N", "T", "T"},
        {"dat_mas,Text_data,qth_mas", "N", "", ""},  // an empty one wipes
        {"dat_mas,Text_data,qth_mas", "", "", "before"},
        {"dat_mas,Text_data,name_mas", "N", "", ""},   // wipes what place 3 had put there
        {"name_mas,Text_data,dat_mas", "N", "", "N"},  // place 1 puts it back
        {"name_mas,Text_data,dat_mas", "N", "T", "N"},
        {"Text_data,Text_data,dat_mas", "", "T", "T"},  // place 1 looks at its own
    };
    for (const TextDataRow& row : rows) {
        SCOPED_TRACE(std::string(row.list) + " '" + std::string(row.name_mas) + "' '" +
                     std::string(row.text_data) + "'");
        RunOptions options = all_in_use(nothing);
        options.code_yusen_jun = row.list;
        EXPECT_EQ(choose_code(options, of_two(row), "before"), row.expected);
    }
}

TEST(CodeColumn, SecondPlaceStillNeedsTheOptionsOfTextData) {
    for (const Change& change : {Change([](RunOptions& options) { options.Check8 = false; }),
                                 Change([](RunOptions& options) { options.Check13 = false; })}) {
        RunOptions options = all_in_use(change);
        options.code_yusen_jun = "dat_mas,Text_data,qth_mas";
        const TextDataRow both{options.code_yusen_jun, "N", "T", ""};
        EXPECT_EQ(choose_code(options, of_two(both), "before"), "before");
    }
}

TEST(CodeColumn, FirstAndThirdPlaceTestTextDataItself) {
    const std::vector<TextDataRow> rows{
        {"Text_data,dat_mas,qth_mas", "", "T", "T"},
        {"Text_data,dat_mas,qth_mas", "N", "", "before"},
        {"dat_mas,qth_mas,Text_data", "", "T", "T"},
        {"dat_mas,qth_mas,Text_data", "N", "", "before"},
    };
    for (const TextDataRow& row : rows) {
        SCOPED_TRACE(std::string(row.list) + " '" + std::string(row.name_mas) + "'");
        RunOptions options = all_in_use(nothing);
        options.code_yusen_jun = row.list;
        EXPECT_EQ(choose_code(options, of_two(row), "before"), row.expected);
    }
}

TEST(CodeColumn, SecondPlaceTestsTheOtherSourcesThemselves) {
    Candidates candidates;
    candidates.qth_mas.code = "Q";
    RunOptions options = all_in_use(nothing);
    options.code_yusen_jun = "dat_mas,qth_mas,name_mas";
    EXPECT_EQ(choose_code(options, candidates, "before"), "Q");
    candidates.dat_mas.code = "D";
    options.code_yusen_jun = "name_mas,dat_mas,qth_mas";
    EXPECT_EQ(choose_code(options, candidates, "before"), "D");
}

TEST(QthAndNameColumn, HaveNoExceptionAtTheSecondPlace) {
    const std::vector<TextDataRow> rows{{"dat_mas,Text_data,qth_mas", "", "T", "T"},
                                        {"dat_mas,Text_data,name_mas", "N", "", "N"}};
    for (const TextDataRow& row : rows) {
        SCOPED_TRACE(row.list);
        RunOptions options = all_in_use(nothing);
        options.name_yusen_jun = options.qth_yusen_jun = row.list;
        const Candidates candidates = of_two(row);
        EXPECT_EQ(choose_qth(options, candidates, "before"), row.expected);
        EXPECT_EQ(choose_name(options, candidates), row.expected);
    }
}

}  // namespace
}  // namespace veldrana
