#include "platform/stage.h"

#include <string>

namespace veldrana {

TextInput Stage::open_input(std::string_view path) const {
    trace.write_open_for_input(path);
    return {disk, path};
}

TextOutput Stage::open_output(std::string_view path, WriteMode mode) const {
    trace.write_open_for_output(path);
    return {disk, path, mode};
}

void Stage::copy_lines(std::string_view from, std::string_view to, WriteMode mode) const {
    TextInput input = open_input(from);
    TextOutput output = open_output(to, mode);
    for (std::string_view line; input.next_line(line);) {
        output.write_line(line);
    }
    output.close();
}

void Stage::tell(std::string_view caption, Colour colour) const {
    lblCFG.show(caption, colour);
}

std::size_t Stage::count_file_rec(std::string_view path, std::size_t beyond) const {
    trace.write("count_file_rec " + std::string(path));
    const std::size_t count = line_number_at_end(disk, path);
    ProgressBar1.restart(count + beyond);
    return count;
}

void Stage::sort(const SortCommand& command) const {
    trace.write("sort " + command.from + " " + command.to);
    std::string buffer(256, '\0');
    int answer = SortService::busy;
    while (answer == SortService::busy) {
        person.pending_events();
        answer = sorter.ksort(command.text(), buffer);
    }
}

void Stage::remove(std::string_view path) const {
    disk.remove(path);
}

}  // namespace veldrana
