#include "readers/log_line.h"

#include <array>

namespace veldrana {

void put(QuotedLine& line, const LogLine& contact) {
    const std::array fields{contact.year,
                            contact.month,
                            contact.day,
                            contact.time,
                            contact.call,
                            contact.report_sent,
                            contact.report_received,
                            contact.band,
                            contact.mode,
                            contact.op,
                            contact.memo,
                            contact.frequency,
                            contact.number_received};
    line.assign(fields);
}

}  // namespace veldrana
