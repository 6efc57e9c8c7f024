// Owns how one remark of a contact is composed from its items.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "settings/remark_items.h"

namespace veldrana {

// What the items of one contact say. The work field of the memo changes while remarks are composed:
// the item "memo" takes "memo=" out of it, so that later items and the other remark see it gone.
struct RemarkTexts {
    std::string memo;
    std::string_view op;
    std::string_view contest;
    std::string_view number_received;
    std::string_view rmks1;
    std::string_view rmks2;
};

// The texts of the items in order, joined. With all lengths 0 the whole is trimmed after each item,
// with a blank between items if there are to be any. With any length in use the remark is a fixed
// layout: an item with a length is filled or cut to so many characters, and nothing is trimmed.
std::string compose_remark(const std::vector<RemarkItem>& items, const RemarkLengths& lengths,
                           bool blank_between, RemarkTexts& texts);

}  // namespace veldrana
