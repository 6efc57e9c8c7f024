// Owns the masters that give a call sign its name, code, QTH and remarks: name_mas.txt, qth_mas.txt
// and the user texts A and B of the log book. All are fixed-column masters (masters/master_file.h)
// that the row builder asks once for each contact.
//
// Columns in bytes from 1, each trimmed; qth_mas.txt reads one of them in its own way:
//
//     2 to 7     call, the key, compared without regard to case
//     8 to 19    name
//     20 to 25   code
//     26 to 53   QTH
//     54 to 107  remarks; in qth_mas.txt bytes 54 to 59 are G/L and nothing stands behind them
//
// A master of headings alone is failure 62, a missing one 53. A record with an empty call is found
// by an empty call alone.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "masters/first_rows.h"
#include "masters/master_file.h"
#include "masters/name_source.h"

namespace veldrana {

struct StationColumns {
    MasterColumn name;
    MasterColumn code;
    MasterColumn qth;
    MasterColumn gl;
    MasterColumn rmks;
};

// One master in memory.
class StationTable {
  public:
    explicit StationTable(const StationColumns& columns) : columns_(columns) {}

    // Replaces what it holds by the records of a file, and shows meanwhile that it reads.
    void read(const Stage& stage, std::string_view path);

    // Nothing if no record has that call.
    std::optional<StationData> find(std::string_view call) const;

  private:
    StationColumns columns_;
    // Whole lines: a run asks for few of them, and these are cut into their columns then.
    FirstRows<std::string> rows_;
};

// name_mas.txt, loaded once as long as the program runs.
class NameMas : public NameSource {
  public:
    NameMas();

    // Loads the file of that folder, unless one was loaded before.
    void read_name_mas_txt(const Stage& stage, std::string_view name_mas_dir);

    StationData find(std::string_view call_base) override;

  private:
    StationTable table_;
    bool loaded_ = false;
};

// qth_mas.txt, read anew for each pass.
class QthMas : public NameSource {
  public:
    explicit QthMas(std::string path);

    void prepare(const Stage& stage) override;  // read_qth_from_qth_mas
    StationData find(std::string_view call_base) override;

  private:
    std::string path_;
    StationTable table_;
};

// A user text, read anew for each pass.
class UserText : public NameSource {
  public:
    enum class Letter { A, B };

    // Every search that finds a record adds one to the hits.
    UserText(Letter letter, std::string path, std::size_t& hits);

    void prepare(const Stage& stage) override;  // read_Text_data_A, read_Text_data_B
    StationData find(std::string_view call_base) override;

  private:
    Letter letter_;
    std::string path_;
    std::size_t& hits_;
    StationTable table_;
};

}  // namespace veldrana
