// Owns the sort service: the one operation with which the whole program sorts text files, told what
// to do by a command text.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/disk.h"

namespace veldrana {

// What a command text says: "/k(2:30)  'in'  'out'", with "/r" behind the key for descending order.
struct SortCommand {
    std::size_t start = 1;   // of the key, bytes of the line from 1
    std::size_t length = 0;  // of the key in bytes
    bool descending = false;
    std::string from;
    std::string to;

    std::string text() const;
    // Failure 5 for a text of another form.
    static SortCommand parse(std::string_view text);
};

class SortService {
  public:
    // What ksort answers while it cannot serve.
    static constexpr int busy = 7000;

    SortService() = default;
    SortService(const SortService&) = delete;
    SortService& operator=(const SortService&) = delete;
    virtual ~SortService() = default;

    // Writes every line of the one file to the other, whole and unchanged, in the order of their
    // key bytes as unsigned bytes; a line that ends in its key has as much of it as there is. Paths
    // may hold blanks. The buffer has no meaning. The answer is a whole number; all but `busy` are
    // alike.
    virtual int ksort(const std::string& command, std::string& buffer) = 0;
};

// The program's own: stable, so equal keys keep the order they came in, descending too. Holds the
// file in memory. The failures of the disk pass.
class StableSort : public SortService {
  public:
    explicit StableSort(Disk& disk) : disk_(disk) {}
    int ksort(const std::string& command, std::string& buffer) override;

  private:
    Disk& disk_;
};

}  // namespace veldrana
