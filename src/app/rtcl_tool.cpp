#include "app/rtcl_tool.h"

#include <array>
#include <string>

#include "common/procedure.h"
#include "readers/frmRTCL_v4.h"

namespace veldrana {
namespace {

// By the places of RtclView.
constexpr std::array<std::string_view, 3> captions{" 入力 ：　", " 出力 TXT：　", " 出力 ALL：　"};

void show_beside(Program& program, RtclView view, const std::string& path) {
    const auto place = static_cast<std::size_t>(view);
    FreeViewer& viewer = *program.free_viewers[place];
    viewer.Form_Load(path);
    viewer.window.caption = std::string(captions[place]) + path;
}

}  // namespace

void mnu_rtcl_new_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnu_rtcl_new_Click()", [&] {
        frmRTCL_v4 form(program.stage(), {.strPath = program.paths.strPath,
                                          .log_folder = program.settings.environment.all_dir});
        form.show_file = [&program](RtclView view, const std::string& path) {
            show_beside(program, view, path);
        };
        form.window.visible = true;
        program.person.show_modal(form);
    });
}

void close_free_viewers(Program& program) {
    for (const auto& viewer : program.free_viewers) {
        if (viewer->window.visible) {
            viewer->cmdOK.press();
        }
    }
}

}  // namespace veldrana
