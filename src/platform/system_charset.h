// The system's own conversion of code page 932, asked once for each double-byte code: iconv, on
// Windows MultiByteToWideChar. For platform/code_page_932.cpp alone.
#pragma once

#include <cstdint>

namespace veldrana {

class SystemCharset {
  public:
    // Failure 51 where the system does not know the page.
    SystemCharset();
    SystemCharset(const SystemCharset&) = delete;
    SystemCharset& operator=(const SystemCharset&) = delete;
    ~SystemCharset();

    // The character of a double-byte code, 0 if the page leaves the code open.
    char32_t character(std::uint16_t code) const;

  private:
    void* handle_ = nullptr;
};

}  // namespace veldrana
