// Owns the one way to fail: a run-time failure with its number and its text.
//
// The numbers are those that operators and their reports have always known; a port that meets a
// foreign error (the system's errno, a library's status) translates it into one of them where it
// enters. What happens to a failure afterwards stands in procedure.h and failure_report.h.
#pragma once

#include <exception>
#include <string>

namespace veldrana {

enum class Failure : int {
    invalid_call = 5,
    overflow = 6,
    out_of_memory = 7,
    subscript = 9,
    type_mismatch = 13,
    internal = 51,
    bad_file = 52,
    file_not_found = 53,
    already_open = 55,
    device_error = 57,
    disk_full = 61,
    input_past_end = 62,
    too_many_files = 67,
    permission_denied = 70,
    path_or_file_access = 75,
    path_not_found = 76,
};

// The Japanese text that the error report shows for a failure.
std::string description_of(Failure failure);

class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(Failure failure);

    Failure failure() const noexcept { return failure_; }
    int number() const noexcept { return static_cast<int>(failure_); }
    const std::string& description() const noexcept { return description_; }
    const char* what() const noexcept override { return description_.c_str(); }

    // The trap of the innermost procedure writes the error line; those around it must not again.
    bool traced() const noexcept { return traced_; }
    void mark_traced() noexcept { traced_ = true; }

  private:
    Failure failure_;
    std::string description_;
    bool traced_ = false;
};

}  // namespace veldrana
