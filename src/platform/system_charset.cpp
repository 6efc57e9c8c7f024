#include "platform/system_charset.h"

#include <array>

#include "common/run_time_error.h"

#ifdef _WIN32
#include <windows.h>
#else
#include <iconv.h>
#endif

namespace veldrana {

#ifdef _WIN32

SystemCharset::SystemCharset() {
    if (IsValidCodePage(932) == 0) {
        throw RunTimeError(Failure::internal);
    }
}

SystemCharset::~SystemCharset() = default;

char32_t SystemCharset::character(std::uint16_t code) const {
    const std::array<char, 2> bytes{static_cast<char>(code >> 8U), static_cast<char>(code & 0xFFU)};
    std::array<wchar_t, 2> wide{};
    const int count = MultiByteToWideChar(932, MB_ERR_INVALID_CHARS, bytes.data(), 2, wide.data(),
                                          static_cast<int>(wide.size()));
    return count == 1 ? static_cast<char32_t>(wide[0]) : 0;
}

#else

SystemCharset::SystemCharset() : handle_(iconv_open("UTF-16LE", "CP932")) {
    // iconv tells failure by the handle -1.
    if (handle_ == reinterpret_cast<iconv_t>(-1)) {  // NOLINT(performance-no-int-to-ptr)
        throw RunTimeError(Failure::internal);
    }
}

SystemCharset::~SystemCharset() {
    iconv_close(handle_);
}

char32_t SystemCharset::character(std::uint16_t code) const {
    std::array<char, 2> bytes{static_cast<char>(code >> 8U), static_cast<char>(code & 0xFFU)};
    std::array<unsigned char, 4> wide{};
    char* from = bytes.data();
    char* to = reinterpret_cast<char*>(wide.data());
    std::size_t from_left = bytes.size();
    std::size_t to_left = wide.size();
    iconv(handle_, nullptr, nullptr, nullptr, nullptr);
    const std::size_t result = iconv(handle_, &from, &from_left, &to, &to_left);
    if (result == static_cast<std::size_t>(-1) || from_left != 0 || to_left != 2) {
        return 0;
    }
    return static_cast<char32_t>(wide[0] | wide[1] << 8U);
}

#endif

}  // namespace veldrana
