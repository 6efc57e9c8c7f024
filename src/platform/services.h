// Owns the question whether the services that the program stands on are there: what reads the log
// book's database, what converts its texts, and what sorts. On a system with the log book they are
// its libraries; elsewhere the program has its own.
#pragma once

namespace veldrana {

enum class Service {
    log_book_reader,  // HAMLOG50.DLL
    log_book_texts,   // THDLL2VB.DLL
    sorter,           // KSORT32.DLL
};

class Services {
  public:
    Services() = default;
    Services(const Services&) = delete;
    Services& operator=(const Services&) = delete;
    virtual ~Services() = default;

    virtual bool is_there(Service service) = 0;
};

// The program's own services, which come with it.
class OwnServices : public Services {
  public:
    bool is_there(Service /*service*/) override { return true; }
};

}  // namespace veldrana
