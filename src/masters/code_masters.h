// Owns the masters that turn a number received into a code and a QTH: hl_code.mas and the ten
// postal masters yubin_m0.mas to yubin_m9.mas. Both are fixed-column masters
// (masters/master_file.h); keys compare without regard to case.
//
// Columns in bytes from 1, each trimmed:
//
//               hl_code.mas   yubin_m?.mas
//     key       2 to 7        2 to 7, the last six digits of a postal code
//     code      20 to 25      20 to 25
//     QTH       26 to 57      26 to 37
//
// A master of headings alone knows nothing; a missing one is failure 53.
#pragma once

#include <string>
#include <string_view>

#include "masters/code_source.h"
#include "masters/first_rows.h"
#include "masters/master_file.h"

namespace veldrana {

// One master in memory.
class CodeTable {
  public:
    explicit CodeTable(MasterColumn qth) : qth_(qth) {}

    // Replaces what it holds by the records of a file.
    void read(const Stage& stage, std::string_view path);

    // Both empty if no record has that key.
    CodeAndPlace find(std::string_view key) const;

  private:
    MasterColumn qth_;
    FirstRows<CodeAndPlace> rows_;
};

// hl_code.mas, loaded once as long as the program runs.
class HlCodeMas : public CodeSource {
  public:
    explicit HlCodeMas(std::string path);

    void prepare(const Stage& stage) override;  // read_hl_code_mas
    // An empty number finds nothing, whatever the file holds.
    CodeAndPlace find(std::string_view number) override;

  private:
    std::string path_;
    CodeTable table_;
    bool loaded_ = false;
};

// The postal masters of a folder. The first digit of a number names the file, its last six
// characters are the key. Each file is read when the first number asks for it; the files do not
// change while a code stage runs, for which one object serves.
class YubinMas : public CodeSource {
  public:
    // The folder with a backslash at its end.
    YubinMas(const Stage& stage, std::string yubin_mas_dir);

    // For a trimmed number. One that does not begin with a digit asks for a file that is never
    // there: failure 53.
    CodeAndPlace find(std::string_view number) override;

  private:
    void read_get_yubin(std::string_view digit);

    Stage stage_;
    std::string folder_;
    FirstRows<CodeTable> tables_;  // by the digit in their names
};

}  // namespace veldrana
