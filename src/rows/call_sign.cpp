#include "rows/call_sign.h"

#include <algorithm>
#include <array>
#include <vector>

#include "common/text.h"

namespace veldrana {
namespace {

bool ends_in_a_mark(std::string_view call) {
    constexpr std::array<std::string_view, 5> marks{"/P", "/MM", "/M", "/QRPP", "/QRP"};
    return std::any_of(marks.begin(), marks.end(),
                       [call](std::string_view mark) { return call.ends_with(mark); });
}

// One after the other and everywhere in the text, so that a longer mark leaves its rest.
std::string without_trailing_marks(std::string text) {
    for (const std::string_view mark : {"/P", "/M", "/MM", "/CM", "/QRP", "/QRPP"}) {
        text = replace_all(text, mark, "");
    }
    return text;
}

std::string without_inner_marks(std::string text) {
    for (const std::string_view mark : {"/QRP/", "/QRPP/", "/M/", "/MM/", "/CM/", "/P/"}) {
        if (text.find(mark) != std::string::npos) {
            text = replace_all(upper(text), mark.substr(0, mark.size() - 1), "");
        }
    }
    return text;
}

bool between(char letter, char first, char last) {
    return letter >= first && letter <= last;
}

}  // namespace

CallParts split_portable(std::string_view call) {
    const std::size_t first = call.find('/');
    if (first == std::string_view::npos) {
        return {call, {}};
    }
    const std::size_t last = call.rfind('/');
    const std::size_t end = last == first ? call.size() : last;
    return {call.substr(0, first), call.substr(first + 1, end - first - 1)};
}

void find_ja_key(std::string_view call, CallMemory& memory) {
    if (call.find('/') == std::string_view::npos) {
        memory.ja_key = call;
        return;
    }
    std::string text(call);
    if (std::string capitals = upper(call); ends_in_a_mark(capitals)) {
        text = without_trailing_marks(std::move(capitals));
    }
    text = without_inner_marks(std::move(text));
    const std::vector<std::string_view> pieces = split(text, "/");
    if (pieces.size() < 2) {
        memory.ja_key = text;
        return;
    }
    const std::size_t a = length(pieces[0]);
    const std::size_t b = length(pieces[1]);
    if (b == 1) {
        memory.ja_key = pieces[0];
    } else if (b >= 2 && a != b) {
        memory.ja_key = pieces[a > b ? 1 : 0];
    }
}

bool is_japanese(std::string_view ja_key) {
    if (ja_key.size() < 3 || !between(ja_key[2], '0', '9')) {
        return false;
    }
    const char first = ja_key[0];
    const char second = ja_key[1];
    return ((first == '7' || first == '8') && between(second, 'J', 'N')) ||
           (first == 'J' && between(second, 'A', 'S'));
}

bool is_club(std::string_view call_base, CallMemory& memory) {
    constexpr std::string_view letters = "ABCDEFGHIJKLMNOPQRS";
    if (length(call_base) == 5) {
        return false;
    }
    if (call_base.starts_with('J')) {
        // An empty second character is found at the first place, as every search finds nothing.
        memory.club_position = find(letters, mid(call_base, 2, 1));
    }
    const std::string_view fourth = mid(call_base, 4, 1);
    return memory.club_position != 0 && (fourth == "Y" || fourth == "Z");
}

}  // namespace veldrana
