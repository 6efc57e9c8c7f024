#include "app/log_opening.h"

#include "app/chosen_log.h"
#include "app/contest_choice.h"
#include "app/option_handlers.h"
#include "app/recent_logs.h"
#include "common/text.h"
#include "output/output_names.h"
#include "readers/zlo_to_all.h"

namespace veldrana {
namespace {

constexpr std::string_view dat_of_no_use = "使用は無意味、[ 使用しない ] に変更した。";
constexpr int by_hand = 1;

// The contest data file of a log in which no record tells the contest.
void settle_dat(Program& program, InputKind kind) {
    MainScreen& screen = program.screen;
    const bool of_no_use = screen.lblDatName.caption == std::string(dat_of_no_use);
    if (of_no_use) {
        program.selection.Code_flag = "10";
    } else if (kind == InputKind::ADIF) {
        program.selection.Code_flag = "13";
    }
    if (of_no_use && kind != InputKind::lg8) {
        screen.Option02.index = 0;
        screen.Option02.enable_all(true);
        ask_for_dat_file(screen);
    }
    if (screen.Option02.index == 2 && !has_dat(program)) {
        ask_for_dat_file(screen);
        screen.Option03.index = by_hand;
    }
}

}  // namespace

void take_log(Program& program, const std::string& path) {
    ChosenLog& log = program.log;
    MainScreen& screen = program.screen;
    log.accepted = false;
    screen.mnuMake_z2a.enabled = false;
    screen.enable_z2a_viewers(false);
    screen.mnuDisp_log2a.enabled = program.disk.file_exists(log2a_name(path));
    screen.Option03.enable_all(true);
    log.chosen = path;
    program.disk.protect(path);
    if (path != log.in_name) {
        forget_dat(program);
        log.contest_name.clear();
    }
    program.refusals = {};
    log.in_name = path;
    program.run_mode = RunMode::conversion;
    kettuka_disp_clear(program.counters, screen);
    // The count is that of the log before, until this one has been counted.
    log.record_count.clear();
    screen.lblIn_rec.caption = "";
    screen.lblIn_rec_count.caption = "";
    set_out_names(program);
}

void refuse_log(Program& program, std::string_view reason) {
    program.log.in_name = reason;
    program.screen.lblIn_name.show(reason, colours::red);
    check_readiness(program);
}

void accept_log(Program& program, InputKind kind) {
    ChosenLog& log = program.log;
    MainScreen& screen = program.screen;
    log.accepted = true;
    log.f_type = kind;
    const bool needs_year = kind == InputKind::txt;
    screen.txtYYYY.enabled = needs_year;
    screen.Frame14.enabled = needs_year;
    const bool is_zlo = kind == InputKind::zlo;
    screen.mnuMake_z2a.enabled = is_zlo;
    screen.enable_z2a_viewers(is_zlo && program.disk.file_exists(z2a_name(log.in_name)));
    show_former_outputs(program);
    Op02_Chk(program);
    if (!is_zlo) {
        settle_dat(program, kind);
    }
    note_recent_log(program, log.chosen);
    check_readiness(program);
}

void show_record_count(Program& program, std::size_t count, std::string_view unit) {
    program.log.record_count = right_aligned(static_cast<Count>(count), 4);
    program.screen.lblIn_rec.caption = program.log.record_count + std::string(unit);
}

}  // namespace veldrana
