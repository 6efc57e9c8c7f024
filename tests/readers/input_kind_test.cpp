#include "readers/input_kind.h"

#include <gtest/gtest.h>

namespace veldrana {
namespace {

TEST(InputKind, GoesByTheThirdLetterFromTheEnd) {
    EXPECT_EQ(kind_of_extension("C:\\log\\x.all"), InputKind::all);
    EXPECT_EQ(kind_of_extension("C:\\log\\x.ALL"), InputKind::all);
    EXPECT_EQ(kind_of_extension("C:\\log\\x.txt"), InputKind::txt);
    EXPECT_EQ(kind_of_extension("C:\\log\\x.Txt"), InputKind::txt);
    EXPECT_EQ(kind_of_extension("C:\\log\\x.log"), std::nullopt);
    EXPECT_EQ(kind_of_extension("C:\\log\\表.all"), InputKind::all);
    EXPECT_EQ(kind_of_extension(""), std::nullopt);
}

}  // namespace
}  // namespace veldrana
