#include "settings/remark_items.h"

#include <gtest/gtest.h>

namespace veldrana {
namespace {

TEST(RemarkItems, AreFoundByTheirScreenNames) {
    for (std::size_t i = 0; i < remark_item_count; ++i) {
        EXPECT_EQ(remark_item_named(remark_item_names[i]), static_cast<RemarkItem>(i));
    }
    EXPECT_EQ(remark_item_named("OP %"), RemarkItem::op_percent);
    EXPECT_EQ(remark_item_named(""), std::nullopt);
    EXPECT_EQ(remark_item_named("op"), std::nullopt);
}

}  // namespace
}  // namespace veldrana
