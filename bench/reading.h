// The reader of .ALL logs, set up to be measured: memo, operator and frequency in use, nobody
// asked.
#pragma once

#include <cstddef>
#include <filesystem>

#include "platform/host_disk.h"
#include "platform/stage.h"
#include "readers/zlog_text.h"

namespace veldrana {

class NoPerson : public Person {
  public:
    Answer show(const MessageBox& /*box*/) override { return Answer::ok; }
    std::string choose_file(const FileDialog& /*dialog*/) override { return {}; }
    void show_modal(WindowForm& form) override { form.window.visible = false; }
    void pending_events() override {}
};

class Reading {
  public:
    // The folder becomes drive C:.
    explicit Reading(const std::filesystem::path& folder) : disk_({{'C', folder}}, folder) {
        use_.mark(RemarkItem::memo);
        use_.mark(RemarkItem::op);
    }

    // Reads a log of the folder and writes zlog_1.txt beside it; the count of its contacts.
    std::size_t read(const std::string& name) {
        const Stage stage{disk_, trace_, sorter_, person_, lblCFG_, bar_};
        const std::string in_name = "C:\\" + name;
        return a_2_t(stage,
                     {.in_name = in_name, .in_Dir = "C:\\", .options = options_, .use = use_});
    }

  private:
    HostDisk disk_;
    TraceLog trace_;
    StableSort sorter_{disk_};
    NoPerson person_;
    Form form_;
    Label lblCFG_{form_, "lblCFG"};
    ProgressBar bar_{form_, "ProgressBar1"};
    RunOptions options_;
    RemarkUse use_;
};

}  // namespace veldrana
