#include "app/read_zlo_head.h"

#include <string>

#include "app/chosen_log.h"
#include "app/contest_choice.h"
#include "app/log_opening.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "masters/code_flag.h"
#include "readers/contest_refusals.h"
#include "readers/manual_dat.h"
#include "readers/zlo_contest.h"
#include "readers/zlo_log.h"

namespace veldrana {
namespace {

constexpr int automatic = 0;
constexpr int by_hand = 1;

// This one's numbers give no codes either, but nobody is asked about it.
constexpr std::string_view contest_without_question = "テレコムＱＳＯパーティー";

void show_count(Program& program, const ZloHeader& header) {
    MainScreen& screen = program.screen;
    program.log.record_count = right_aligned(header.contacts(), 4);
    for (Label* const label : {&screen.lblIn_rec, &screen.lblIn_rec_count}) {
        label->caption = program.log.record_count + " 件";
    }
}

void choose_by_hand(Program& program) {
    no_name_mas_qra_in_header(program.person, program.selection);
    OptionGroup& way = program.screen.Option03;
    way.enable(by_hand, true);
    way.index = by_hand;
    ask_for_dat_file(program.screen);
}

void take_contest(Program& program, const ZloContest& contest) {
    ContestSelection& selection = program.selection;
    selection.Con_name = contest.row.Con_name;
    selection.Code_flag = contest.row.Code_flag;
    selection.Con_no_1 = contest.row.Con_no_1;
    selection.Con_no_2 = contest.row.Con_no_2;
    program.log.contest_name = contest.contest_name;
}

// Asks about a contest that the list does not have; who goes on does so without contest data.
void ask_about_name(Program& program, const ZloContest& contest) {
    if (!contest.found && !program.refusals.list) {
        no_name_mas_qra_in_con_z_name_mas_qra_csv(program.person, contest.contest_name,
                                                  program.refusals);
        program.screen.Option02.index = 0;
    }
}

// The same of a contest that gives no codes.
void ask_about_codes(Program& program) {
    const ContestSelection& selection = program.selection;
    if (selection.Code_flag == no_code_flag && !program.refusals.code &&
        selection.Con_name != contest_without_question) {
        no_get_code(program.person, selection, program.refusals);
        program.screen.Option02.index = 0;
    }
}

// Goes by the data file from before this contest's; kept.
void enable_dat_viewers(Program& program) {
    MainScreen& screen = program.screen;
    for (Control* const control : std::initializer_list<Control*>{
             &screen.tool_dat, &screen.mnuDisp_dat, &screen.cmdDisp_dat, &screen.cmdDisp_dat2}) {
        control->enabled = has_dat(program);
    }
}

void take_data_file(Program& program, const ZloContest& contest) {
    Op04_Chk(program);
    DatFile& dat = program.selection.dat;
    const std::string& Dat_name = contest.row.Dat_name;
    if (!contest.found || Dat_name.find("no.dat") != std::string::npos) {
        dat.dat_in_name.clear();
        dat.name.clear();
        ask_for_dat_file(program.screen);
    } else {
        take_listed_dat(dat_folders(program), Dat_name, dat);
        show_dat_file(program.screen, dat.dat_in_name);
    }
    keep_dat_file(program);
}

void find_contest(Program& program, const std::string& name) {
    MainScreen& screen = program.screen;
    screen.Frame11.enabled = true;
    screen.Option03.enabled = true;
    screen.Option03.index = automatic;
    const ZloContest contest =
        find_zlo_contest(program.stage(), program.paths.contest_name_csv, name);
    take_contest(program, contest);
    ask_about_name(program, contest);
    enable_dat_viewers(program);
    ask_about_codes(program);
    if (screen.Option02.index == 2) {
        take_data_file(program, contest);
    }
}

}  // namespace

void read_zlo_head(Program& program) {
    enter_procedure(program.trace, "Private Sub read_zlo_head()", [&] {
        MainScreen& screen = program.screen;
        if (!has_backslash(program.log.in_name)) {
            screen.lblCFG.show("入力ﾌｧｲﾙをﾒﾆｭｰより指定して下さい。", colours::red);
            screen.lblInfo.show("入力ファイルを指定して下さい", colours::red);
            return;
        }
        const ZloHeader header = zlo_header(program.stage(), program.log.in_name);
        show_count(program, header);
        if (has_backslash(header.contest_name)) {
            screen.lblCFG.caption = header.contest_name;
        }
        const bool refused = program.refusals.code || program.refusals.list;
        if (header.name_length == 0 && !refused) {
            choose_by_hand(program);
            return;
        }
        if (header.name_length > 0) {
            find_contest(program, header.contest_name);
        }
        screen.Option03.enable(by_hand, false);
        check_readiness(program);
    });
}

}  // namespace veldrana
