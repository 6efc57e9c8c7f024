#include "platform/installed_hamlog_library.h"

#if defined(_WIN32) && !defined(_WIN64)

#include <array>
#include <cstddef>
#include <string>
#include <windows.h>

#include "common/text.h"
#include "platform/code_page_932.h"

namespace veldrana {
namespace {

// The libraries keep their state in memory of the caller, of which they tell no size.
using State = std::array<std::byte, std::size_t{64} * 1024>;

// A library that is loaded as long as this lives.
class LoadedLibrary {
  public:
    explicit LoadedLibrary(const wchar_t* name) : handle_(LoadLibraryW(name)) {}
    LoadedLibrary(const LoadedLibrary&) = delete;
    LoadedLibrary& operator=(const LoadedLibrary&) = delete;
    ~LoadedLibrary() {
        if (handle_ != nullptr) {
            FreeLibrary(handle_);
        }
    }

    // Null if the library or the operation is not there.
    template <class Operation>
    Operation operation(const char* name) const {
        return handle_ == nullptr
                   ? nullptr
                   : reinterpret_cast<Operation>(  // NOLINT: what a library's loader gives
                         reinterpret_cast<void*>(GetProcAddress(handle_, name)));
    }

  private:
    HMODULE handle_;
};

class InstalledHamlogLibrary : public HamlogLibrary {
  public:
    bool is_there() const {
        return dbf_open_ != nullptr && dbf_rcount_ != nullptr && dbf_close_ != nullptr &&
               HamlogOpen_ != nullptr && THW_read_ != nullptr && HamlogClose_ != nullptr &&
               ThwString_ != nullptr;
    }

    void dbf_open(std::string_view path) override {
        file_.fill(std::byte{});
        dbf_open_(to_code_page(path).c_str(), file_.data());
    }
    std::int32_t dbf_rcount() override { return dbf_rcount_(file_.data()); }
    void dbf_close() override { dbf_close_(file_.data()); }

    int HamlogOpen(std::string_view path) override {
        log_.fill(std::byte{});
        return HamlogOpen_(0, log_.data(), to_code_page(path).c_str(), 0);
    }
    int THW_read(std::int32_t record, int way) override {
        return THW_read_(log_.data(), record, way);
    }
    std::string_view ThwString(int field) override {
        buffer_.front() = '\0';
        buffer_.back() = '\0';
        ThwString_(buffer_.data(), log_.data(), field);
        text_.clear();
        append_from_code_page(text_, until_nul({buffer_.data(), buffer_.size()}));
        return text_;
    }
    void HamlogClose() noexcept override { HamlogClose_(log_.data(), 0); }

  private:
    LoadedLibrary hamlog50_{L"Hamlog50.dll"};
    LoadedLibrary thdll2vb_{L"Thdll2Vb.dll"};

    using DbfOpen = int(__stdcall*)(const char*, void*);
    using DbfCount = std::int32_t(__stdcall*)(void*);
    using DbfClose = int(__stdcall*)(void*);
    using Open = int(__stdcall*)(int, void*, const char*, int);
    using Read = int(__stdcall*)(void*, std::int32_t, int);
    using Close = int(__stdcall*)(void*, int);
    using String = int(__stdcall*)(char*, void*, int);
    DbfOpen dbf_open_ = hamlog50_.operation<DbfOpen>("dbf_open");
    DbfCount dbf_rcount_ = hamlog50_.operation<DbfCount>("dbf_rcount");
    DbfClose dbf_close_ = hamlog50_.operation<DbfClose>("dbf_close");
    Open HamlogOpen_ = hamlog50_.operation<Open>("HamlogOpen");
    Read THW_read_ = hamlog50_.operation<Read>("THW_read");
    Close HamlogClose_ = hamlog50_.operation<Close>("HamlogClose");
    String ThwString_ = thdll2vb_.operation<String>("ThwString");

    State file_{};
    State log_{};
    std::array<char, 4096> buffer_{};
    std::string text_;
};

}  // namespace

std::unique_ptr<HamlogLibrary> installed_hamlog_library() {
    auto library = std::make_unique<InstalledHamlogLibrary>();
    return library->is_there() ? std::move(library) : nullptr;
}

}  // namespace veldrana

#else

namespace veldrana {

std::unique_ptr<HamlogLibrary> installed_hamlog_library() {
    return nullptr;
}

}  // namespace veldrana

#endif
