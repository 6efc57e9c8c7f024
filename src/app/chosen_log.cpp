#include "app/chosen_log.h"

#include "app/contest_choice.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"

namespace veldrana {
namespace {

constexpr std::size_t full_path_width = 50;
constexpr std::size_t shortened_path_width = 49;

std::string file_name(std::string_view path) {
    return std::string(split_path(path).name);
}

}  // namespace

void set_out_names(Program& program) {
    enter_procedure(program.trace, "Private Sub set_out_names()", [&] {
        ChosenLog& log = program.log;
        MainScreen& screen = program.screen;
        if (!has_backslash(log.in_name)) {
            return;
        }
        log.names = make_output_names(log.in_name);
        log.dup = dup_name(log.in_name);
        const std::string& contest = log.names.out_name_conj_new;
        const std::string& hamlog = log.names.out_name_hamj_new;

        screen.mnuDisp_ham_new.caption = file_name(hamlog);
        screen.mnuDisp_ham_new.enabled = program.disk.file_exists(hamlog);
        screen.mnuDisp_con_new.caption = file_name(contest);
        screen.mnuDisp_con_new.enabled = program.disk.file_exists(contest);
        screen.mnuJARL_Web_OK_conj.caption = file_name(contest);
        screen.mnuJARL_Web_OK_hamj.caption = file_name(hamlog);
        screen.mnuJARL_Web_NO_conj.caption = file_name(contest);
        screen.mnuJARL_Web_NO_hamj.caption = file_name(hamlog);

        screen.lblIn_name.tool_tip = log.in_name;
        screen.lblOut_name1.tool_tip = contest;
        screen.lblOut_name2.tool_tip = hamlog;
        screen.cmdDisp_contest.tool_tip = contest;
        screen.cmdDisp_Hamlog.tool_tip = hamlog;
        screen.tool_dup.tool_tip = log.dup;
        screen.mnuDisp_dup.caption = log.dup;

        log.in_Dir = split_path(log.in_name).folder;
        screen.lblIn_name.fore_colour = colours::blue;
        screen.tool_in.enabled = true;

        const bool in_full = LenMbcs(log.in_name) <= full_path_width;
        const auto shown = [in_full](const std::string& path) {
            return in_full ? path : shortened_path(path, shortened_path_width);
        };
        screen.lblIn_name.caption = shown(log.in_name);
        screen.lblOut_name1.caption = shown(contest);
        screen.lblOut_name2.caption = shown(hamlog);
    });
}

void show_former_outputs(Program& program) {
    Disk& disk = program.disk;
    MainScreen& screen = program.screen;
    const bool contest = disk.file_exists(program.log.names.out_name_conj);
    screen.mnuDisp_con_n.enabled = contest;
    screen.cmdDisp_contest.enabled = contest;
    screen.tool_contest.enabled = contest;
    const bool hamlog = disk.file_exists(program.log.names.out_name_hamj);
    screen.mnuDisp_ham_n.enabled = hamlog;
    screen.cmdDisp_Hamlog.enabled = hamlog;
    screen.tool_hamlog.enabled = hamlog;
    show_former_dupe_list(program);
}

void show_former_dupe_list(Program& program) {
    const bool there = program.disk.file_exists(program.log.dup);
    program.screen.mnuDisp_dup.enabled = there;
    program.screen.tool_dup.enabled = there;
}

void check_readiness(Program& program) {
    const bool chosen = has_backslash(program.log.in_name) && program.log.accepted;
    const bool needs_dat = program.screen.Option02.index == 2;
    program.screen.enable_start(chosen && (!needs_dat || has_dat(program)));
    if (chosen) {
        program.screen.lblInfo.caption = "";
    }
}

}  // namespace veldrana
