#include "app/replacement_run.h"

#include <string>

#include "common/procedure.h"
#include "common/text.h"
#include "platform/text_file.h"

namespace veldrana {
namespace {

// Replaces every "#" of a contest file by a blank, without regard to columns.
void cmd_chikan_2(Program& program) {
    enter_procedure(program.trace, "Private Sub cmd_chikan_2()", [&] {
        const Stage stage = program.stage();
        const std::string& file = program.log.names.out_name_conj0;
        const std::string copy = program.paths.drive_path + "uemp_s.csv";
        const auto copy_lines = [&stage](const std::string& from, const std::string& to,
                                         bool replace) {
            TextInput input = stage.open_input(from);
            TextOutput output = stage.open_output(to);
            for (std::string_view line; input.next_line(line);) {
                output.write_line(replace ? replace_all(line, "#", " ") : std::string(line));
                stage.ProgressBar1.step();
            }
            output.close();
        };
        stage.count_file_rec(file);
        copy_lines(file, copy, true);
        stage.count_file_rec(copy);
        copy_lines(copy, file, false);
    });
}

}  // namespace

void cmd_chikan(Program& program) {
    // Check07 is asked, and both answers mean the same.
    enter_procedure(program.trace, "Private Sub cmd_chikan()", [&] { cmd_chikan_2(program); });
}

}  // namespace veldrana
