#include "readers/input_kind.h"

#include "common/text.h"

namespace veldrana {

std::optional<InputKind> kind_of_extension(std::string_view path) {
    // Both menus judge by the third character from the end alone.
    const std::string letter = lower(left(right(path, 3), 1));
    if (letter == "a") {
        return InputKind::all;
    }
    if (letter == "t") {
        return InputKind::txt;
    }
    return std::nullopt;
}

}  // namespace veldrana
