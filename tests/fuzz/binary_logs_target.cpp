// The readers of binary logs, and the texts that are made of them.
#include <algorithm>
#include <string>

#include "readers/rtcl_log.h"
#include "readers/rtcl_to_zlog.h"
#include "readers/zlo_log.h"
#include "readers/zlo_to_all.h"
#include "readers/zlog_text.h"
#include "tests/fuzz/log_input.h"
#include "tests/fuzz/targets.h"

namespace veldrana {
namespace {

constexpr std::string_view text_file = "C:\\log\\zlog_01.txt";

void read_rtcl(std::string_view bytes, RtclForm form) {
    LogInput input(bytes);
    const Stage& stage = input.fuzz.stage;
    input.fuzz.disk.put_folder("C:\\veldrana");
    input.fuzz.run([&] {
        const RtclCheck check = chk_log(stage, LogInput::path, form);
        require(!check.good() || check.records * rtcl_record_size(form) == bytes.size(),
                "whole records");
        // What the check refuses is unpacked here all the same.
        const std::string unpacked = unpack_rtcl_log(stage, LogInput::path, form, "C:\\veldrana\\");
        make_rtcl_log_to_zlog_txt(stage, unpacked, "C:\\log\\x_log2z.txt");
        make_rtcl_log_to_zlog_all(stage, unpacked, rtcl_heading_of_run,
                                  {std::string(text_file), "C:\\log\\x_log2a.all"});
        require(input.fuzz.disk.bytes(text_file) == input.fuzz.disk.bytes("C:\\log\\x_log2a.all"),
                "the outputs are alike");
        a_2_t(stage, input.request_for(text_file));
    });
}

}  // namespace

void fuzz_zlo(std::string_view bytes) {
    LogInput input(bytes);
    const Stage& stage = input.fuzz.stage;
    input.fuzz.run([&] {
        const ZloHeader header = zlo_header(stage, LogInput::path);
        require(header.records == bytes.size() / zlo_record_size, "whole records");
        require(header.name_length > 0 || header.contest_name.empty(), "no name of no length");
    });
    input.fuzz.run([&] {
        const std::size_t kept = read_zlo(stage, input.request());
        require(kept <= bytes.size() / zlo_record_size, "no more than there are");
    });
    input.fuzz.run([&] {
        const std::string text = make_z2a(stage, LogInput::path);
        require(input.fuzz.disk.bytes(text).starts_with("zLog for Windows"), "a .ALL text");
        a_2_t(stage, input.request_for(text));
    });
}

void fuzz_rtcl_v4(std::string_view bytes) {
    read_rtcl(bytes, RtclForm::before_430);
}

void fuzz_rtcl_v430(std::string_view bytes) {
    read_rtcl(bytes, RtclForm::from_430);
}

}  // namespace veldrana
