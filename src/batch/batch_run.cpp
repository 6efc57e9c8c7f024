#include "batch/batch_run.h"

#include <chrono>

#include "app/contest_choice.h"
#include "app/log_opening.h"
#include "app/open_other_logs.h"
#include "app/program.h"
#include "app/program_end.h"
#include "app/start_up.h"
#include "batch/batch_person.h"
#include "common/file_path.h"
#include "common/version.h"
#include "platform/environment.h"
#include "platform/hamlog_library.h"
#include "platform/host_disk.h"
#include "platform/process_starter.h"
#include "readers/ctestwin.h"
#include "readers/frmCon_sel.h"
#include "readers/kind_of_log.h"
#include "readers/zlo_to_all.h"

namespace veldrana {
namespace {

// A program with its ports, and what the command line asks of it.
class BatchProgram {
  public:
    BatchProgram(const BatchOptions& options, const BatchOutput& output)
        : output_(output),
          disk_(options.drives, options.home),
          person_(output.messages, options.answer),
          sorter_(disk_),
          log_book_(make_hamlog_library(disk_)),
          program_({disk_, clock_, person_, sorter_, services_, *log_book_, processes_},
                   disk_.program_path(options.home), environment_variable("WINDIR")) {
        program_.keep_work_files = options.keep_work;
        if (output.show_progress) {
            program_.screen.ProgressBar1.listener = [this] { show_progress(); };
        }
    }

    Program& program() { return program_; }

    bool knows_controls_of(const BatchOptions& options) {
        for (const auto& [name, value] : options.settings) {
            if (program_.screen.find(name) == nullptr) {
                output_.messages << "そのような項目はありません: " << name << '\n';
                return false;
            }
        }
        return true;
    }

    // False if the program has ended meanwhile, or waits for its environment.
    bool start() {
        program_.event([this] { Main(program_); });
        if (program_.start.reached == Start::environment_dialog) {
            tell_what_the_environment_lacks();
        }
        return program_.start.reached == Start::main_screen;
    }

    // False if a control does not take its value.
    bool enter(const BatchOptions& options) {
        bool taken = true;
        program_.event([&] {
            for (const auto& [name, value] : options.settings) {
                if (!program_.screen.find(name)->enter(value)) {
                    output_.messages << "設定できない値です: " << name << "=" << value << '\n';
                    taken = false;
                    return;
                }
            }
        });
        return taken;
    }

    // Chooses the log as its menu entry does; false if it was refused or the program has ended.
    bool open(const std::filesystem::path& log, std::optional<InputKind> kind) {
        const std::string path = disk_.program_path(log);
        const auto as = kind ? kind : kind_of_log(disk_, path);
        const std::string text = lg8bridge_all_name(path);
        const std::optional<FileState> before = state_of(text);
        person_.choose(path);
        open_entry(program_.screen, as.value_or(InputKind::all)).press();
        if (program_.ended()) {
            return false;
        }
        if (!program_.log.accepted) {
            if (!has_backslash(program_.log.in_name)) {
                output_.messages << program_.log.in_name << '\n';
            }
            return false;
        }
        if (kind && kind != program_.log.f_type) {
            output_.messages << "指定された種類のファイルではありません: " << program_.log.in_name
                             << '\n';
            return false;
        }
        return as != InputKind::lg8 || wait_for(text, before);
    }

    // Picks the contest with that data file in the contest dialog and confirms it; false if there
    // is none, if the dialog does not let it, or if the program has ended.
    bool choose_contest(const std::string& Dat_name) {
        bool confirmed = false;
        person_.fill_in([&](WindowForm& form) {
            if (auto* const dialog = dynamic_cast<frmCon_sel*>(&form)) {
                confirmed = confirm(*dialog, Dat_name);
            }
        });
        program_.screen.mnuOpenDat_semi.press();
        return confirmed && !program_.ended();
    }

    // False, with what the screen asks for, if the run cannot be started.
    bool is_ready() {
        const MainScreen& screen = program_.screen;
        if (!screen.cmdStart.enabled) {
            output_.messages << (has_dat(program_) ? "個別ＤＡＴがありません: " : "")
                             << screen.lblDatName.caption.get() << '\n';
        }
        return screen.cmdStart.enabled;
    }

    // Ends the program in order, unless it has ended.
    void end() {
        program_.event([this] { End_Click(program_); });
    }

    // False if they could not be written.
    bool write_counters() {
        for (std::size_t row = 0; row < counter_labels.size(); ++row) {
            output_.results << counter_labels[row] << '\t' << program_.counters.values[row] << '\n';
        }
        output_.results << std::flush;
        return output_.results.good();
    }

    // Makes the .ALL text of a binary log, and tells its path; nobody is asked about its contest.
    bool make_text_of(const std::filesystem::path& log) {
        const std::string path = disk_.program_path(log);
        std::string text;
        program_.event([&] {
            take_log(program_, path);
            text = make_z2a(program_.stage(), path);
        });
        if (!program_.ended()) {
            output_.results << text << '\n' << std::flush;
        }
        return !program_.ended() && output_.results.good();
    }

  private:
    // A file as far as one can see whether it is written.
    struct FileState {
        std::uint64_t size;
        std::string time;
        friend bool operator==(const FileState&, const FileState&) = default;
    };

    std::optional<FileState> state_of(const std::string& path) {
        if (!disk_.file_exists(path)) {
            return std::nullopt;
        }
        return FileState{disk_.size(path), date_time_text(disk_.modified(path))};
    }

    // A person would look whether the converter is done; here its text has to be new and to stay as
    // it is for a while.
    bool wait_for(const std::string& text, const std::optional<FileState>& before) {
        constexpr std::chrono::milliseconds step{100};
        constexpr int longest = 150;  // steps
        constexpr int settled = 5;
        std::optional<FileState> last;
        int unchanged = 0;
        for (int steps = 0; steps < longest && unchanged < settled; ++steps) {
            const std::optional<FileState> now = state_of(text);
            const bool is_new = now && now != before;
            unchanged = is_new && now == last ? unchanged + 1 : 0;
            last = now;
            processes_.sleep(step);
        }
        if (unchanged < settled) {
            output_.messages << "変換プログラムの結果ができません: " << text << '\n';
        }
        return unchanged >= settled;
    }

    bool confirm(frmCon_sel& dialog, const std::string& Dat_name) {
        const int row = dialog.row_of(Dat_name);
        if (row == ListBox::none) {
            output_.messages << "コンテスト一覧にありません: " << Dat_name << '\n';
            return false;
        }
        dialog.List1.index = row;
        if (!dialog.lblMsg1.caption.get().empty()) {
            output_.messages << dialog.lblMsg1.caption.get() << '\n';
        }
        const bool confirmable = dialog.cmdOK.enabled;
        dialog.cmdOK.press();
        return confirmable;
    }

    // In the place of the dialog, which nobody could fill in here.
    void tell_what_the_environment_lacks() {
        const SettingsStore& settings = program_.settings;
        std::ostream& messages = output_.messages;
        messages << "環境設定の確認が必要です: " << settings.path(cfg_ini) << '\n';
        if (program_.start.old_version) {
            messages << "  古い版の設定です (確認後に version=" << program_version
                     << " と書き換えて下さい): version=" << program_.start.version << '\n';
        }
        if (!settings.exists(cfg_ini)) {
            messages << "  設定ファイルがありません: " << cfg_ini << '\n';
        }
        const std::vector<std::string> missing = missing_entries(settings.environment);
        for (const std::string& key : missing) {
            messages << "  設定されていません: " << key << '\n';
        }
        if (!program_.start.old_version && missing.empty() && settings.exists(cfg_ini)) {
            messages << "  初めての起動で設定ファイルを作成しました。もう一度起動して下さい。\n";
        }
        messages << std::flush;
    }

    void show_progress() {
        const ProgressBar& bar = program_.screen.ProgressBar1;
        const std::size_t percent = bar.value * 100 / bar.maximum;
        if (!bar.visible) {
            output_.messages << "\r      \r" << std::flush;
        } else if (percent != shown_percent_) {
            shown_percent_ = percent;
            output_.messages << '\r' << percent << " %" << std::flush;
        }
    }

    BatchOutput output_;
    HostDisk disk_;
    SystemClock clock_;
    BatchPerson person_;
    StableSort sorter_;
    OwnServices services_;
    std::unique_ptr<HamlogLibrary> log_book_;
    HostProcessStarter processes_{disk_};
    Program program_;
    std::size_t shown_percent_ = 0;
};

}  // namespace

namespace {

// How a command ends early; a program that has ended by itself says how.
ExitStatus ended_with(const Program& program, ExitStatus otherwise) {
    return program.ended() == ProgramEnd::Cause::reported ? exit_reported : otherwise;
}

// Starts the program and enters what was set; nothing if all went well.
std::optional<ExitStatus> start(BatchProgram& batch, const BatchOptions& options) {
    if (!batch.knows_controls_of(options)) {
        return exit_usage;
    }
    if (!batch.start()) {
        return ended_with(batch.program(), exit_refused);
    }
    if (!batch.enter(options)) {
        batch.end();
        return ended_with(batch.program(), exit_usage);
    }
    return std::nullopt;
}

}  // namespace

ExitStatus convert(const BatchOptions& options, const ConvertCommand& command,
                   const BatchOutput& output) {
    BatchProgram batch(options, output);
    if (const auto ended = start(batch, options)) {
        return *ended;
    }
    Program& program = batch.program();
    if (!batch.open(command.log, command.kind)) {
        const ExitStatus status = ended_with(program, exit_refused);
        batch.end();
        return status;
    }
    if (!command.contest.empty() && program.screen.Option02.index != 2) {
        output.messages << "--contest は --set Option02=2 と共に使います。\n";
        batch.end();
        return exit_usage;
    }
    if ((!command.contest.empty() && !batch.choose_contest(command.contest)) || !batch.is_ready()) {
        const ExitStatus status = ended_with(program, exit_refused);
        batch.end();
        return status;
    }
    program.screen.cmdStart.press();
    if (program.ended()) {
        if (program.ended() == ProgramEnd::Cause::silent) {
            output.messages << "ログブックを読めません: "
                            << program.settings.environment.hamlog_hdb_dir << '\n';
        }
        return exit_reported;  // whatever ends the program in a run
    }
    const bool done = program.run_finished;
    const bool written = !done || batch.write_counters();
    batch.end();
    if (!written) {
        output.messages << "結果を書き出せません。\n";
        return exit_reported;
    }
    return done ? exit_done : exit_refused;
}

ExitStatus z2a(const BatchOptions& options, const std::filesystem::path& log,
               const BatchOutput& output) {
    BatchProgram batch(options, output);
    if (const auto ended = start(batch, options)) {
        return *ended;
    }
    const bool made = batch.make_text_of(log);
    batch.end();
    return made ? exit_done : exit_reported;
}

}  // namespace veldrana
