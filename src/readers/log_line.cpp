#include "readers/log_line.h"

namespace veldrana {

void put(QuotedLine& line, const LogLine& contact) {
    line.clear();
    for (const std::string_view field :
         {contact.year, contact.month, contact.day, contact.time, contact.call, contact.report_sent,
          contact.report_received, contact.band, contact.mode, contact.op, contact.memo,
          contact.frequency, contact.number_received}) {
        line.add(field);
    }
}

}  // namespace veldrana
