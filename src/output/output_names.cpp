#include "output/output_names.h"

#include "common/file_path.h"
#include "common/text.h"

namespace veldrana {

namespace {

std::string with_suffix(std::string_view in_name, std::string_view suffix) {
    const std::string extension = "." + std::string(split_path(in_name).extension);
    if (extension.size() == 1) {
        // No name of a result may be that of the log.
        return std::string(in_name).append(suffix);
    }
    return replace_all(in_name, extension, suffix);
}

}  // namespace

OutputNames make_output_names(std::string_view in_name) {
    const auto with = [in_name](std::string_view suffix) { return with_suffix(in_name, suffix); };
    return {.out_name_conj0 = with("_c0.csv"),
            .out_name_hamj0 = with("_h0.csv"),
            .out_name_conj = with("_cj.csv"),
            .out_name_hamj = with("_hj.csv"),
            .out_name_conj_new = with("_cjn.csv"),
            .out_name_hamj_new = with("_hjn.csv")};
}

std::string log2a_name(std::string_view in_name) {
    return with_suffix(in_name, "_log2a.all");
}

std::string dup_name(std::string_view in_name) {
    return std::string(in_name.substr(0, in_name.find('.'))) + ".dup";
}

}  // namespace veldrana
