#include "app/open_other_logs.h"

#include <chrono>
#include <string>

#include "app/contest_choice.h"
#include "app/log_opening.h"
#include "app/open_text_log.h"
#include "app/read_zlo_head.h"
#include "common/file_path.h"
#include "common/procedure.h"
#include "common/text.h"
#include "readers/adif.h"
#include "readers/cabrillo.h"
#include "readers/ctestwin.h"
#include "readers/kind_of_log.h"
#include "readers/rtcl_log.h"
#include "readers/zlo_to_all.h"

namespace veldrana {
namespace {

// A public form of logs: its dialog, its test and its count.
struct PublicForm {
    InputKind kind;
    std::string_view procedure;
    std::string_view filter;
    bool (*is_one)(const Stage&, std::string_view in_name);
    std::string_view refusal;
    std::size_t (*count)(const Stage&, std::string_view in_name);
};
// The spelling of the filters is kept: users know them.
constexpr PublicForm cabrillo{
    InputKind::cbr,
    "Private Sub FileOpen_cbr()",
    "Cabriilo ﾌｧｲﾙ ( *.log , *.cbr , *.txt )|*.log;*.cbr;*.txt",
    is_cabrillo,
    "Cabrillo ﾌｧｲﾙではありません！",
    count_in_name_cbr,
};
constexpr PublicForm adif{
    InputKind::ADIF, "Private Sub FileOpen_ADIF()", "AIF ﾌｧｲﾙ ( *.adi )|*.adi",
    is_adif,         "ADIF ﾌｧｲﾙではありません！",   count_in_name_ADIF,
};

void open_public_form(Program& program, const PublicForm& form, const std::string& path) {
    if (path.empty()) {
        ask_for_dat_file(program.screen);
        return;
    }
    if (!has_backslash(path)) {
        return;
    }
    take_log(program, path);
    if (!form.is_one(program.stage(), path)) {
        refuse_log(program, form.refusal);
        return;
    }
    accept_log(program, form.kind);
    show_record_count(program, form.count(program.stage(), path), "件");
}

void choose_public_form(Program& program, const PublicForm& form) {
    enter_procedure(program.trace, form.procedure, [&] {
        open_public_form(program, form,
                         program.person.choose_file({.filter = std::string(form.filter)}));
    });
}

void open_zlo(Program& program, const std::string& path) {
    if (!has_backslash(path)) {
        return;
    }
    const bool another = path != program.log.in_name;
    take_log(program, path);
    program.screen.Frame11.enabled = true;
    program.screen.Option03.enabled = true;
    accept_log(program, InputKind::zlo);
    if (another && program.screen.Option02.index == 2) {
        read_zlo_head(program);
    }
}

void open_rtcl(Program& program, RtclForm form, const std::string& path) {
    if (!has_backslash(path)) {
        return;
    }
    const bool old_form = form == RtclForm::before_430;
    const InputKind kind = old_form ? InputKind::log_v4 : InputKind::log_v430;
    take_log(program, path);
    program.log.f_type = kind;
    const RtclCheck check = chk_log(program.stage(), path, form);
    if (!check.good()) {
        program.person.show(rtcl_refusal(check.verdict, form, path));
        program.screen.enable_start(false);
        return;
    }
    show_record_count(program, check.records, old_form ? "件" : " 件");
    accept_log(program, kind);
}

std::string choose_rtcl(Program& program, RtclForm form) {
    return program.person.choose_file(rtcl_dialog(form, program.settings.environment.all_dir));
}

void open_lg8(Program& program, const std::string& path) {
    // How long the converter is waited for before its count is read.
    constexpr std::chrono::milliseconds patience{200};
    if (!is_lg8_name(path)) {
        program.person.show({.text = "正しいファイル名を指定して下さい。"});
        return;
    }
    const std::string& strPath = program.paths.strPath;
    static_cast<void>(write_lg8bridge_ini(program.disk, strPath, {path, program.lg8_qso_count}));
    program.processes.start(strPath + std::string(lg8bridge_exe));
    program.processes.sleep(patience);
    program.lg8_qso_count = read_lg8bridge_ini(program.disk, strPath).qso_su_str;
    take_log(program, path);
    program.screen.lblIn_rec.caption = program.lg8_qso_count + " 件";
    program.log.record_count = program.lg8_qso_count;
    accept_log(program, InputKind::lg8);
}

}  // namespace

void FileOpen_cbr(Program& program) {
    choose_public_form(program, cabrillo);
}

void FileOpen_ADIF(Program& program) {
    choose_public_form(program, adif);
}

void mnuOpen_z_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuOpen_z_Click()", [&] {
        open_zlo(program, program.person.choose_file({.filter = "ﾊﾞｲﾅﾘ-ﾌｧｲﾙ ( *.zlo )|*.zlo"}));
    });
}

void mnuOpen_z_set_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuOpen_z_set_Click()", [&] {
        const std::string& folder = program.settings.environment.zlo_dir;
        open_zlo(program, program.person.choose_file(
                              {.title = upper(folder) + "の ＊．ｚｌｏ ファイルを  開く ....",
                               .filter = "バイナリーファイル(*.zlo)|*.zlo|",
                               .folder = folder}));
    });
}

void FileOpen_rtcl_log_set_new4(Program& program) {
    enter_procedure(program.trace, "Private Sub FileOpen_rtcl_log_set_new4()", [&] {
        open_rtcl(program, RtclForm::before_430, choose_rtcl(program, RtclForm::before_430));
    });
}

void FileOpen_rtcl_log_set_new430(Program& program) {
    enter_procedure(program.trace, "Private Sub FileOpen_rtcl_log_set_new430()", [&] {
        open_rtcl(program, RtclForm::from_430, choose_rtcl(program, RtclForm::from_430));
    });
}

void mnuOpen_Ctestwin_lg8_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuOpen_Ctestwin_lg8_Click()", [&] {
        open_lg8(program,
                 program.person.choose_file(
                     {.title = "ファイルを開く", .filter = "Ctestwin lg8 ﾌｧｲﾙ ( *.lg8 )|*.lg8"}));
    });
}

void mnuMake_z2a_Click(Program& program) {
    enter_procedure(program.trace, "Private Sub mnuMake_z2a_Click()", [&] {
        make_z2a(program.stage(), program.log.in_name);
        program.screen.enable_z2a_viewers(true);
    });
}

void open_log(Program& program, const std::string& path) {
    enter_procedure(program.trace, "Private Sub open_log()", [&] {
        switch (kind_of_log(program.disk, path).value_or(InputKind::all)) {
            case InputKind::cbr:
                return open_public_form(program, cabrillo, path);
            case InputKind::ADIF:
                return open_public_form(program, adif, path);
            case InputKind::zlo:
                return open_zlo(program, path);
            case InputKind::lg8:
                return open_lg8(program, path);
            case InputKind::log_v4:
                return open_rtcl(program, RtclForm::before_430, path);
            case InputKind::log_v430:
                return open_rtcl(program, RtclForm::from_430, path);
            case InputKind::all:
            case InputKind::txt:
                return open_text_log(program, path);
        }
    });
}

MenuEntry& open_entry(MainScreen& screen, InputKind kind) {
    switch (kind) {
        case InputKind::cbr:
            return screen.mnuOpen_cbr;
        case InputKind::ADIF:
            return screen.mnuOpen_ADIF;
        case InputKind::zlo:
            return screen.mnuOpen_z;
        case InputKind::lg8:
            return screen.mnuOpen_Ctestwin_lg8;
        case InputKind::log_v4:
            return screen.mnuOpen_rtcl_log_set_new4;
        case InputKind::log_v430:
            return screen.mnuOpen_rtcl_log_set_new430;
        case InputKind::all:
        case InputKind::txt:
            break;
    }
    return screen.mnuOpen;
}

}  // namespace veldrana
