// A log book's library that answers from a script and remembers how it was called.
#pragma once

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

#include "platform/hamlog_library.h"

namespace veldrana {

// A record by the fields that the program looks at; the others hold something of their own, so that
// it would show if they were used.
struct ScriptedRecord {
    std::string call = "JA1ZZA";
    std::string date = "25/04/26";
    std::string frequency = "14";
    std::string mode = "CW";
    std::string marks = "J  ";

    std::array<std::string, HamlogLibrary::fields> fields() const {
        return {call,   date, "21:05J", "599",  "589", frequency, mode,
                "1001", "gl", marks,    "name", "qth", "rmks1",   "rmks2"};
    }
};

class ScriptedHamlogLibrary : public HamlogLibrary {
  public:
    std::vector<ScriptedRecord> records;
    int open_answer = 0;
    int read_answer = 0;

    // The operations with their arguments, in order: "THW_read 1 2".
    std::vector<std::string> calls;
    // Runs within each operation, which it may have fail.
    std::function<void(const std::string& call)> on_call = [](const std::string&) {};

    void dbf_open(std::string_view path) override { note("dbf_open " + std::string(path)); }
    std::int32_t dbf_rcount() override {
        note("dbf_rcount");
        return static_cast<std::int32_t>(records.size());
    }
    void dbf_close() override { note("dbf_close"); }

    int HamlogOpen(std::string_view path) override {
        note("HamlogOpen " + std::string(path));
        return open_answer;
    }
    int THW_read(std::int32_t record, int way) override {
        note("THW_read " + std::to_string(record) + " " + std::to_string(way));
        current_ = records.at(static_cast<std::size_t>(record - 1)).fields();
        return read_answer;
    }
    std::string_view ThwString(int field) override {
        note("ThwString " + std::to_string(field));
        field_ = current_.at(static_cast<std::size_t>(field - 1));
        return field_;
    }
    void HamlogClose() noexcept override { note("HamlogClose"); }

  private:
    void note(const std::string& call) {
        // What an earlier call gave is valid no longer.
        std::fill(field_.begin(), field_.end(), '?');
        calls.push_back(call);
        on_call(call);
    }

    std::array<std::string, fields> current_;
    std::string field_;
};

}  // namespace veldrana
