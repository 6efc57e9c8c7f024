#include "readers/contact_writer.h"

namespace veldrana {

ContactWriter::ContactWriter(const Stage& stage, const LogRequest& request)
    : output_(stage.open_output(std::string(request.in_Dir).append(log_line_file))),
      filter_(request.options.Check15 ? request.options.txtOp_name : std::string()) {}

void ContactWriter::write(const LogLine& contact) {
    if (filter_.empty() || contact.op == filter_) {
        put(line_, contact);
        output_.write_line(line_.text());
        ++kept_;
    }
}

std::size_t ContactWriter::close() {
    output_.close();
    return kept_;
}

}  // namespace veldrana
