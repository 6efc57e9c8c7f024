#include "output/output_names.h"

#include <gtest/gtest.h>

namespace veldrana {
namespace {

TEST(OutputNames, ReplaceTheExtensionByASuffix) {
    const OutputNames names = make_output_names("C:\\log\\x.all");
    EXPECT_EQ(names.out_name_conj0, "C:\\log\\x_c0.csv");
    EXPECT_EQ(names.out_name_hamj0, "C:\\log\\x_h0.csv");
    EXPECT_EQ(names.out_name_conj, "C:\\log\\x_cj.csv");
    EXPECT_EQ(names.out_name_hamj, "C:\\log\\x_hj.csv");
    EXPECT_EQ(names.out_name_conj_new, "C:\\log\\x_cjn.csv");
    EXPECT_EQ(names.out_name_hamj_new, "C:\\log\\x_hjn.csv");
}

// Such a folder sends the results to a place that may not be there.
TEST(OutputNames, ExtensionIsReplacedInEveryPlaceOfThePath) {
    EXPECT_EQ(make_output_names("C:\\contest.all\\x.all").out_name_hamj_new,
              "C:\\contest_hjn.csv\\x_hjn.csv");
}

TEST(OutputNames, CaseOfTheExtensionCounts) {
    EXPECT_EQ(make_output_names("C:\\contest.ALL\\x.all").out_name_hamj_new,
              "C:\\contest.ALL\\x_hjn.csv");
}

TEST(OutputNames, DupeListIsNamedFromTheFirstPoint) {
    EXPECT_EQ(dup_name("C:\\log\\x.all"), "C:\\log\\x.dup");
    EXPECT_EQ(dup_name("C:\\2025.04\\x.all"), "C:\\2025.dup");
}

TEST(OutputNames, PointInAFolderPutsTheDupeListApartFromTheOtherFiles) {
    const std::string in_name = "C:\\2025.04\\x.all";
    EXPECT_EQ(dup_name(in_name), "C:\\2025.dup");
    EXPECT_EQ(make_output_names(in_name).out_name_conj_new, "C:\\2025.04\\x_cjn.csv");
}

}  // namespace
}  // namespace veldrana
