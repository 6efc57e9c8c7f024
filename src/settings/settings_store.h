// Owns the lasting settings while the program runs, and the profile files beside the program that
// keep them: which key comes from which file, what a new file starts from, and what is put right on
// the way.
//
// A file that is there but could not be read is not written until the program ends: what it holds
// would be lost. A missing file or key reads as empty. A write that the disk refuses is not
// noticed: a run goes on with what is in memory.
#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/disk.h"
#include "platform/profile_file.h"
#include "platform/stage.h"
#include "settings/environment_settings.h"
#include "settings/option_settings.h"

namespace veldrana {

constexpr std::string_view new_ini = "Veldrana_new.ini";   // the options; what the next start loads
constexpr std::string_view snapshot_ini = "Veldrana.ini";  // the options of what was last started
constexpr std::string_view cfg_ini = "Veldrana_cfg.ini";   // the environment
constexpr std::string_view dat_ini = "Veldrana_dat.ini";   // the chosen DAT, for one program run

class SettingsStore {
  public:
    // strPath: the program's folder with a backslash at its end. Nothing is read yet.
    SettingsStore(Disk& disk, Clock& clock, std::string strPath);

    OptionSettings options;
    EnvironmentSettings environment;
    MastersInUse masters_in_use;
    // The version that the file read last was written by.
    std::string version;
    // Full path of the contest data file that is chosen.
    std::string set_dat_in_name;
    // A start was completed before.
    bool restart = false;

    // What a new option file starts from. The colours only where they are empty.
    void set_default_options();
    // What is found beside the program and in the usual folders of its drive.
    void set_default_dirs();

    void write_Veldrana_new_ini();
    void read_Veldrana_new_ini();
    void write_Veldrana_ini();
    void read_Veldrana_ini();
    void write_Veldrana_cfg_ini();
    void read_Veldrana_cfg_ini();
    void write_dat_ini();
    void read_dat_ini();

    // Full path of a file beside the program.
    std::string path(std::string_view name) const { return strPath_ + std::string(name); }
    bool exists(std::string_view name) const { return disk_.file_exists(path(name)); }

    // The version as a number: a blank one is 1, each "t" counts as "0", four characters count.
    double version_number() const;

    // Today as yyyymmdd.
    std::string today() const;
    // Whether the end of the period is always today.
    bool end_follows_clock() const;
    // Puts today into the end of the period if that follows the clock or is empty; otherwise takes
    // "/" and "-" out of it.
    void refresh_end_date();
    // What a run takes for a day of the period that is not set.
    void fill_empty_period();

  private:
    // Opens a file to be read.
    ProfileFile open(std::string_view file_name);
    void write_options(std::string_view file_name);
    void read_options(std::string_view file_name);
    // A failed write is not noticed.
    void save(std::string_view file_name, ProfileFile& file);

    Disk& disk_;
    Clock& clock_;
    std::string strPath_;
    std::set<std::string, std::less<>> unread_;
};

// Copies one of the files, if it is there, into the trace log, between a title line that tells the
// moment, such as "起動時", and a line of "=".
void trace_profile_file(const Stage& stage, const SettingsStore& settings, std::string_view name,
                        std::string_view moment);

// Empty items of a list of lengths become "0", in one pass that does not look back: a run of three
// or more keeps a gap.
std::string normalised_lengths(std::string_view list);

// The number that a stored text reads as: 0 if it is blank, no number or larger than any option.
int stored_number(std::string_view text);

// The text without "/" and "-".
std::string without_separators(std::string_view date);

}  // namespace veldrana
