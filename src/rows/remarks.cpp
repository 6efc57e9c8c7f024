#include "rows/remarks.h"

#include "common/text.h"

namespace veldrana {
namespace {

constexpr std::string_view memo_prefix = "memo=";

std::string memo_with_prefix(const std::string& memo) {
    if (trim(memo).empty()) {
        return {};
    }
    return memo.find(memo_prefix) == std::string::npos ? std::string(memo_prefix) + memo : memo;
}

std::string item_text(RemarkItem item, RemarkTexts& texts) {
    switch (item) {
        case RemarkItem::memo:
            texts.memo = replace_all(texts.memo, memo_prefix, "");
            return texts.memo;
        case RemarkItem::memo_equals:
            return memo_with_prefix(texts.memo);
        case RemarkItem::op:
            return std::string(texts.op);
        case RemarkItem::op_percent:
            return trim(texts.op).empty() ? std::string() : "%" + std::string(texts.op) + "%";
        case RemarkItem::contest:
            return std::string(texts.contest);
        case RemarkItem::rcvd:
            return std::string(texts.number_received);
        case RemarkItem::rmks1:
            return std::string(trim(texts.rmks1));
        case RemarkItem::rmks2:
            return std::string(trim(texts.rmks2));
    }
    return {};
}

}  // namespace

std::string compose_remark(const std::vector<RemarkItem>& items, const RemarkLengths& lengths,
                           bool blank_between, RemarkTexts& texts) {
    const bool fixed_layout = lengths.sum() != 0;
    std::string remark;
    for (const RemarkItem item : items) {
        std::string text = item_text(item, texts);
        if (const std::size_t size = lengths.of(item); size != 0) {
            text.append(size, ' ');
            text = std::string(left(text, static_cast<Count>(size)));
        }
        if (fixed_layout) {
            remark += text;
            if (blank_between) {
                remark += ' ';
            }
        } else {
            if (blank_between) {
                remark += ' ';
            }
            remark += text;
            remark = std::string(trim(remark));
        }
    }
    return remark;
}

}  // namespace veldrana
