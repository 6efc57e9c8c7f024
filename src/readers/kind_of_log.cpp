#include "readers/kind_of_log.h"

#include <array>
#include <memory>
#include <string>

#include "common/file_path.h"
#include "common/text.h"
#include "readers/rtcl_log.h"
#include "readers/zlog_text.h"

namespace veldrana {
namespace {

struct KnownExtension {
    std::string_view extension;
    InputKind kind;
};
constexpr std::array extensions{
    KnownExtension{"all", InputKind::all},  KnownExtension{"txt", InputKind::txt},
    KnownExtension{"zlo", InputKind::zlo},  KnownExtension{"cbr", InputKind::cbr},
    KnownExtension{"adi", InputKind::ADIF}, KnownExtension{"lg8", InputKind::lg8},
    KnownExtension{"log", InputKind::cbr},
};

std::string start_of_file(Disk& disk, std::string_view path) {
    std::string bytes(32, '\0');
    bytes.resize(disk.open_for_reading(path)->read(bytes.data(), bytes.size()));
    return bytes;
}

InputKind kind_of_binary_log(Disk& disk, std::string_view path) {
    if (start_of_file(disk, path).starts_with('0')) {
        const std::uint64_t size = disk.size(path);
        if (size % rtcl_record_size(RtclForm::from_430) == 0) {
            return InputKind::log_v430;
        }
        if (size % rtcl_record_size(RtclForm::before_430) == 0) {
            return InputKind::log_v4;
        }
    }
    return InputKind::cbr;
}

}  // namespace

std::optional<InputKind> kind_of_log(Disk& disk, std::string_view path) {
    const std::string extension = lower(split_path(path).extension);
    for (const KnownExtension& known : extensions) {
        if (known.extension != extension) {
            continue;
        }
        if (!disk.file_exists(path)) {
            return known.kind;
        }
        if (extension == "log") {
            return kind_of_binary_log(disk, path);
        }
        if (known.kind == InputKind::txt &&
            !start_of_file(disk, path).starts_with(heading_of(InputKind::txt))) {
            return InputKind::cbr;
        }
        return known.kind;
    }
    return std::nullopt;
}

}  // namespace veldrana
