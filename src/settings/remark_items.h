// Owns the eight items that remarks are composed of: their names on the screen, and which of them
// have ever been in use.
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace veldrana {

enum class RemarkItem : std::size_t {
    memo,
    memo_equals,  // the memo with a leading "memo="
    op,
    op_percent,  // the operator between "%" and "%"
    contest,
    rcvd,
    rmks1,
    rmks2,
};

constexpr std::size_t remark_item_count = 8;

// The names on the screen, in the items' order; a slot shows one of them or nothing.
constexpr std::array<std::string_view, remark_item_count> remark_item_names{
    "memo", "memo=", "OP", "OP %", "ｺﾝﾃｽﾄ", "Rcvd", "Rmks1", "Rmks2"};

std::optional<RemarkItem> remark_item_named(std::string_view name);

// How many characters of each item a remark takes; 0: all of it.
class RemarkLengths {
  public:
    std::size_t of(RemarkItem item) const noexcept {
        return lengths_[static_cast<std::size_t>(item)];
    }
    void set(RemarkItem item, std::size_t length) noexcept {
        lengths_[static_cast<std::size_t>(item)] = length;
    }
    std::size_t sum() const noexcept;

  private:
    std::array<std::size_t, remark_item_count> lengths_{};
};

// The length of an item by its screen name, as text. The look-up knows "memo=" by a name that it
// has not ("momo="), so for this item and for names of no item it is "0"; kept, layouts rest on it.
std::string set_Rmk_Len(const RemarkLengths& lengths, std::string_view name);

// Keeps a length under an item's screen name; the same look-up, so that of "memo=" is not kept. A
// text that is no number, or a negative one, is 0.
void get_Rmk_Len_(RemarkLengths& lengths, std::string_view name, std::string_view length);

// Which items have stood in a slot at the start of some run since the program started: marks are
// set and never taken back, so that readers go on extracting what was wanted once.
class RemarkUse {
  public:
    bool in_use(RemarkItem item) const noexcept { return marks_[static_cast<std::size_t>(item)]; }
    void mark(RemarkItem item) noexcept { marks_[static_cast<std::size_t>(item)] = true; }

  private:
    std::array<bool, remark_item_count> marks_{};
};

}  // namespace veldrana
