// Owns the last step of every reader: zlog_1.txt is written with the contacts that pass the filter
// of one operator, and they are counted.
#pragma once

#include <cstddef>
#include <string>

#include "common/quoted_fields.h"
#include "platform/stage.h"
#include "readers/log_line.h"
#include "readers/log_request.h"

namespace veldrana {

class ContactWriter {
  public:
    // Makes zlog_1.txt anew.
    ContactWriter(const Stage& stage, const LogRequest& request);

    // With Check15 and a name in txtOp_name a contact is kept if its operator is that name, to the
    // letter; else every one is.
    void write(const LogLine& contact);

    // Finishes the file; how many contacts were kept.
    std::size_t close();

  private:
    TextOutput output_;
    std::string filter_;
    QuotedLine line_;
    std::size_t kept_ = 0;
};

}  // namespace veldrana
