#include "masters/received_number.h"

namespace veldrana {

std::string_view leading_digits(std::string_view number) noexcept {
    return number.substr(0, number.find_first_not_of("0123456789"));
}

std::string_view leading_letters(std::string_view number) noexcept {
    return number.substr(0, number.find_first_of("0123456789"));
}

}  // namespace veldrana
