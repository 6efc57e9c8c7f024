// What the fuzzer feeds with bytes of its own making: everything that reads files which others
// wrote. A target ends as its reader does, in a result or in a failure that the program reports;
// anything else is a finding.
#pragma once

#include <span>
#include <string_view>

namespace veldrana {

struct FuzzTarget {
    std::string_view name;  // also of the folder of its inputs below corpus/
    void (*run)(std::string_view bytes);
};

std::span<const FuzzTarget> fuzz_targets();

void fuzz_log_book(std::string_view bytes);

void fuzz_zlog_all(std::string_view bytes);
void fuzz_zlog_txt(std::string_view bytes);
void fuzz_cabrillo(std::string_view bytes);
void fuzz_adif(std::string_view bytes);
void fuzz_contest_dialog(std::string_view bytes);

void fuzz_zlo(std::string_view bytes);
void fuzz_rtcl_v4(std::string_view bytes);
void fuzz_rtcl_v430(std::string_view bytes);

}  // namespace veldrana
