#include "app/program.h"

#include <new>

#include "app/config_dialog.h"
#include "app/contest_choice.h"
#include "app/control_list.h"
#include "app/conversion_driver.h"
#include "app/open_other_logs.h"
#include "app/open_text_log.h"
#include "app/option_handlers.h"
#include "app/period_dialog.h"
#include "app/program_end.h"
#include "app/recent_logs.h"
#include "app/rtcl_tool.h"
#include "app/slot_handlers.h"
#include "app/viewing.h"
#include "common/procedure.h"

namespace veldrana {

Program::Program(const Ports& outside, std::string_view program_folder,
                 std::string_view windows_folder)
    : disk(outside.disk),
      clock(outside.clock),
      person(outside.person),
      sorter(outside.sorter),
      services(outside.services),
      log_book(outside.log_book),
      processes(outside.processes),
      paths(make_paths(program_folder, windows_folder)),
      settings(disk, clock, paths.strPath),
      hl_code_mas(paths.hl_code_mas) {
    for (std::size_t i = 0; i < free_viewers.size(); ++i) {
        free_viewers[i] =
            std::make_unique<FreeViewer>(disk, paths.strPath, "frmDisp" + std::to_string(i + 2));
    }
    const auto attach = [this](CommandButton& button, void (*handler)(Program&)) {
        button.Click = [this, handler] { event([this, handler] { handler(*this); }); };
    };
    attach(screen.mnuOpen, mnuOpen_Click);
    attach(screen.mnuOpen_all_txt_set, mnuOpen_all_txt_set_Click);
    attach(screen.mnuOpen_z, mnuOpen_z_Click);
    attach(screen.mnuOpen_z_set, mnuOpen_z_set_Click);
    attach(screen.mnuOpen_cbr, FileOpen_cbr);
    attach(screen.mnuOpen_ADIF, FileOpen_ADIF);
    attach(screen.mnuOpen_Ctestwin_lg8, mnuOpen_Ctestwin_lg8_Click);
    attach(screen.mnuOpen_rtcl_log_set_new4, FileOpen_rtcl_log_set_new4);
    attach(screen.mnuOpen_rtcl_log_set_new430, FileOpen_rtcl_log_set_new430);
    attach(screen.cmdAll_Sort, cmdAll_Sort_Click);
    attach(screen.cmdSort_2, cmdSort_2_Click);
    attach(screen.cmdSort_3, cmdSort_3_Click);
    attach(screen.cmdAll_Redo, cmdAll_Redo_Click);
    attach(screen.cmdCl_rmk1, cmdCl_rmk1_Click);
    attach(screen.cmdCl_rmk2, cmdCl_rmk2_Click);
    attach(screen.mnu_rtcl_new4, mnu_rtcl_new_Click);
    attach(screen.mnu_rtcl_new430, mnu_rtcl_new_Click);
    attach(screen.mnuMake_z2a, mnuMake_z2a_Click);
    attach(screen.mnuOpen_con_n, mnuOpen_con_n_Click);
    attach(screen.tool_open, [](Program& program) {
        program.screen.Frame13.select();
        mnuOpen_all_txt_set_Click(program);
    });
    attach(screen.tool_open_z, [](Program& program) {
        program.screen.Frame13.select();
        mnuOpen_z_set_Click(program);
    });
    attach(screen.cmdStart, cmdStart_Click);
    attach(screen.tool_convert, cmdStart_Click);
    attach(screen.tool_end, End_Click);
    attach(screen.cmdNow, cmdNow_Click);
    attach(screen.cmdDate, cmdDate_Click);
    attach(screen.cmdCheck_bak_qso_mas, cmdCheck_bak_qso_mas_Click);
    attach(screen.cmdCount, cmdCount_Click);
    attach(screen.mnuOpenDat_semi, mnuOpenDat_semi_Click);
    attach(screen.tool_dat_by_contest, mnuOpenDat_semi_Click);
    attach(screen.mnuOpenDat_mnu, mnuOpenDat_mnu_Click);
    attach(screen.tool_dat_by_hand, mnuOpenDat_mnu_Click);
    attach(screen.cmdDisp_dat, cmdDisp_dat_Click);
    attach(screen.cmdSet_UserTxt_A, cmdSet_UserTxt_A_Click);
    attach(screen.cmdSet_UserTxt_B, cmdSet_UserTxt_B_Click);
    attach(screen.mnuConfig, mnuConfig_Click);
    const auto write_options = [](Program& program) { program.settings.write_Veldrana_new_ini(); };
    attach(screen.make_ini, write_options);
    attach(screen.tool_make_ini, write_options);
    attach(screen.cmdDisp_dat2, cmdDisp_dat_Click);
    attach(screen.mnuGet_Value, mnuGet_Value_Click);
    for (std::size_t i = 0; i < RecentEntries::size(); ++i) {
        screen.mnuRecent[i].Click = [this, i] { event([this, i] { mnuRecent_Click(*this, i); }); };
    }
    attach_viewers(*this);
    attach_option_handlers(*this);
}

bool Program::event(const std::function<void()>& body) {
    if (ended_) {
        return false;
    }
    if (in_event_) {
        body();
        return true;
    }
    in_event_ = true;
    try {
        body();
    } catch (const ProgramEnd& end) {
        ended_ = end.cause;
    } catch (const RunTimeError& error) {
        report(error);
    } catch (const std::bad_alloc&) {
        report(RunTimeError(Failure::out_of_memory));
    } catch (const std::exception&) {
        report(RunTimeError(Failure::internal));
    }
    in_event_ = false;
    return !ended_;
}

void Program::report(RunTimeError error) {
    // A failure that passed no procedure's trap gets its line here.
    trace_failure(trace, "", ErrorLine::number_only, error);
    try {
        fatal_error_exit(trace, person, error);
    } catch (...) {
        // Mostly the end that every report comes to; a screen that cannot show it ends there too.
        ended_ = ProgramEnd::Cause::reported;
    }
}

}  // namespace veldrana
