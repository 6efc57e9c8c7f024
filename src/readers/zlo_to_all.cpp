#include "readers/zlo_to_all.h"

#include "common/text.h"
#include "common/version.h"
#include "readers/zlo_log.h"

namespace veldrana {
namespace {

constexpr Count longest_path = 120;  // bytes
constexpr std::string_view no_new_multiplier = "-";

// The line of a contact; `line` keeps its memory from contact to contact.
void write_contact(ZloRecord& contact, std::string& line) {
    const MomentDigits moment(contact.time());
    const auto put = [&line](std::string_view text, std::size_t width) {
        append_fixed_width(line, text, width);
    };
    line.clear();
    line.append(moment.year()).append("/").append(moment.month()).append("/").append(moment.day());
    line.append(" ").append(moment.hour()).append(":").append(moment.minute()).append(" ");
    put(contact.call(), 13);
    put(std::to_string(contact.report_sent()), 4);
    put(contact.number_sent(), 8);
    put(std::to_string(contact.report_received()), 4);
    put(contact.number_received(), 8);
    put(contact.multiplier_1_is_new() ? contact.multiplier_1() : no_new_multiplier, 6);
    put(contact.multiplier_2_is_new() ? contact.multiplier_2() : no_new_multiplier, 6);
    put(contact.band(), 5);
    put(contact.mode(), 5);
    put(std::to_string(contact.points()), 3);
    if (const std::string_view op = until_nul(contact.op()); !op.empty()) {
        line.append("%%").append(op).append("%%");
    }
    line += until_nul(contact.memo());
}

}  // namespace

std::string z2a_name(std::string_view in_name) {
    const std::string_view path = trim(MidMbcs(in_name, 1, longest_path));
    return std::string(path.substr(0, path.find('.'))).append("_z2a.all");
}

std::string make_z2a(const Stage& stage, std::string_view in_name) {
    std::string path = z2a_name(in_name);
    RecordFile file(stage, in_name, zlo_record_size);
    TextOutput output = stage.open_output(path);
    output.write_line("zLog for Windows       by Veldrana " + std::string(program_version));
    std::string_view record;
    file.next(record);  // the heading
    ZloRecord contact;
    std::string line;
    while (file.next(record)) {
        contact.take(record);
        write_contact(contact, line);
        output.write_line(line);
    }
    output.close();
    stage.tell("z2a ﾌｧｲﾙ  作 成 終 了", colours::blue);
    return path;
}

}  // namespace veldrana
