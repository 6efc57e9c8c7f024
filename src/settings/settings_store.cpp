#include "settings/settings_store.h"

#include <limits>
#include <utility>

#include "common/run_time_error.h"
#include "common/text.h"
#include "common/version.h"
#include "settings/option_defaults.h"
#include "settings/option_keys.h"

namespace veldrana {
namespace {

constexpr std::string_view version_key = "version";
constexpr std::string_view restart_key = "restart";
// The mark is its own name.
constexpr std::string_view restart_mark = "restart";
constexpr std::string_view dat_section = "DAT_MAS";
constexpr std::string_view dat_key = "set_dat_in_name";

std::string_view section_of(const OptionKey& key, std::string_view file_name) {
    return key.section.empty() ? file_name : key.section;
}

// The last path that leads to a file, less what the entry leaves out; empty if none does.
std::string last_found(Disk& disk, const std::string& drive_root,
                       std::initializer_list<std::string_view> folders, std::string_view name,
                       bool with_name) {
    std::string found;
    for (const std::string_view folder : folders) {
        const std::string place = drive_root + std::string(folder);
        if (disk.file_exists(place + std::string(name))) {
            found = with_name ? place + std::string(name) : place;
        }
    }
    return found;
}

}  // namespace

void trace_profile_file(const Stage& stage, const SettingsStore& settings, std::string_view name,
                        std::string_view moment) {
    constexpr std::size_t line_of_equals = 32;
    if (!settings.exists(name)) {
        return;
    }
    stage.trace.write("=========  " + std::string(name) + "  ==== " + std::string(moment) +
                      " =======");
    TextInput file(stage.disk, settings.path(name));
    for (std::string_view line; file.next_line(line);) {
        stage.trace.write(line);
    }
    stage.trace.write(std::string(line_of_equals, '='));
}

std::string normalised_lengths(std::string_view list) {
    const std::string first = list.starts_with(',') ? "0" : "";
    return replace_all(first + std::string(list), ",,", ",0,");
}

std::string without_separators(std::string_view date) {
    return replace_all(replace_all(date, "/", ""), "-", "");
}

int stored_number(std::string_view text) {
    constexpr double largest = std::numeric_limits<int>::max();
    try {
        const double number = val(text);
        return number >= -largest && number <= largest ? static_cast<int>(number) : 0;
    } catch (const RunTimeError&) {
        return 0;
    }
}

SettingsStore::SettingsStore(Disk& disk, Clock& clock, std::string strPath)
    : disk_(disk), clock_(clock), strPath_(std::move(strPath)) {}

std::string SettingsStore::today() const {
    return without_separators(date_text(clock_.now()));
}

bool SettingsStore::end_follows_clock() const {
    return stored_number(options.use_system_date_flag) == 1;
}

void SettingsStore::refresh_end_date() {
    if (end_follows_clock() || options.End_date.empty()) {
        options.End_date = today();
    } else {
        options.End_date = without_separators(options.End_date);
    }
}

void SettingsStore::fill_empty_period() {
    if (options.Start_date.empty()) {
        options.Start_date = first_period_day;
    }
    if (options.End_date.empty()) {
        options.End_date = end_without_date;
    }
}

double SettingsStore::version_number() const {
    const std::string text = trim(version).empty() ? "1" : replace_all(version, "t", "0");
    return val(left(text, 4));
}

void SettingsStore::set_default_options() {
    for (const OptionKey& key : option_keys()) {
        std::string& value = options.*key.value;
        const bool keeps_value = key.asked.ends_with("_color") && !value.empty();
        if (!keeps_value) {
            value = key.initial;
        }
    }
    options.End_date = today();
    options.YYYY = present_year(clock_);
}

void SettingsStore::set_default_dirs() {
    environment.name_mas_dir = exists("name_mas.txt") ? strPath_ : "";
    environment.qth_mas_dir = not_used;
    environment.yubin_mas_dir = not_used;
    const std::string root(left(strPath_, 3));
    environment.hamlog_hdb_dir =
        last_found(disk_, root, {"Program Files\\Hamlog\\", "Hamlog\\"}, "Hamlog.hdb", true);
    environment.hamlog_hdb_2_dir = environment.hamlog_hdb_dir;
    environment.zlog_dat_dir =
        last_found(disk_, root, {"Program Files\\zLog\\", "zLog\\"}, "acag.dat", false);
    environment.zlo_dir = environment.zlog_dat_dir;
    environment.all_dir = environment.zlog_dat_dir;
    environment.No_QSL_moji = "N";
    environment.No_QSL_moji_set_flag = "1";
}

ProfileFile SettingsStore::open(std::string_view file_name) {
    ProfileFile file(disk_, path(file_name));
    if (file.is_unread()) {
        unread_.emplace(file_name);
    }
    return file;
}

void SettingsStore::save(std::string_view file_name, ProfileFile& file) {
    if (!unread_.contains(file_name)) {
        static_cast<void>(file.save());
    }
}

void SettingsStore::write_options(std::string_view file_name) {
    for (std::string* const list : {&options.Rmks1_cfg_len, &options.Rmks2_cfg_len}) {
        *list = normalised_lengths(*list);
    }
    ProfileFile file(disk_, path(file_name));
    file.set_value(file_name, version_key, program_version);
    file.set_value(file_name, restart_key, restart_mark);
    for (const OptionKey& key : option_keys()) {
        if (!key.written.empty()) {
            file.set_value(section_of(key, file_name), key.written, options.*key.value);
        }
    }
    save(file_name, file);
}

void SettingsStore::read_options(std::string_view file_name) {
    const ProfileFile file = open(file_name);
    version = file.value(file_name, version_key);
    restart = file.value(file_name, restart_key) == restart_mark;
    for (const OptionKey& key : option_keys()) {
        options.*key.value = file.value(section_of(key, file_name), key.asked);
    }
    // What the source was called before.
    for (std::string* const list :
         {&options.name_yusen_jun, &options.code_yusen_jun, &options.qth_yusen_jun}) {
        *list = replace_all(*list, "user_txt", "Text_data");
    }
    for (std::string* const list : {&options.Rmks1_cfg_len, &options.Rmks2_cfg_len}) {
        *list = normalised_lengths(*list);
    }
}

void SettingsStore::write_Veldrana_new_ini() {
    write_options(new_ini);
}

void SettingsStore::read_Veldrana_new_ini() {
    read_options(new_ini);
}

void SettingsStore::write_Veldrana_ini() {
    write_options(snapshot_ini);
}

void SettingsStore::read_Veldrana_ini() {
    read_options(snapshot_ini);
}

void SettingsStore::write_Veldrana_cfg_ini() {
    ProfileFile file(disk_, path(cfg_ini));
    file.keep_for_owner();  // it holds the password
    file.set_value(cfg_ini, version_key, program_version);
    for (const EnvironmentKey& key : environment_keys()) {
        file.set_value(cfg_ini, key.name, environment.*key.value);
    }
    save(cfg_ini, file);
}

void SettingsStore::read_Veldrana_cfg_ini() {
    const ProfileFile file = open(cfg_ini);
    version = file.value(cfg_ini, version_key);
    for (const EnvironmentKey& key : environment_keys()) {
        environment.*key.value = file.value(cfg_ini, key.name);
    }
    masters_in_use = {.name_mas = is_used(environment.name_mas_dir),
                      .qth_mas = is_used(environment.qth_mas_dir),
                      .yubin_mas = is_used(environment.yubin_mas_dir)};
}

void SettingsStore::write_dat_ini() {
    ProfileFile file(disk_, path(dat_ini));
    file.set_value(dat_section, dat_key, set_dat_in_name);
    save(dat_ini, file);
}

void SettingsStore::read_dat_ini() {
    set_dat_in_name = open(dat_ini).value(dat_section, dat_key);
}

}  // namespace veldrana
