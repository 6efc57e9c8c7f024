// A stage on a folder of the host, set up to be measured: nobody is asked, nothing is traced.
#pragma once

#include <filesystem>

#include "platform/host_disk.h"
#include "platform/stage.h"

namespace veldrana {

class NoPerson : public Person {
  public:
    Answer show(const MessageBox& /*box*/) override { return Answer::ok; }
    std::string choose_file(const FileDialog& /*dialog*/) override { return {}; }
    std::string choose_folder(std::string_view /*title*/, std::string_view /*start*/) override {
        return {};
    }
    void show_modal(WindowForm& form) override { form.window.visible = false; }
    void pending_events() override {}
};

class SilentStage {
  public:
    // The folder becomes drive C:.
    explicit SilentStage(const std::filesystem::path& folder) : disk_({{'C', folder}}, folder) {}

    Disk& disk() { return disk_; }
    Stage stage() { return {disk_, trace_, sorter_, person_, lblCFG_, bar_}; }

  private:
    HostDisk disk_;
    TraceLog trace_;
    StableSort sorter_{disk_};
    NoPerson person_;
    Form form_;
    Label lblCFG_{form_, "lblCFG"};
    ProgressBar bar_{form_, "ProgressBar1"};
};

}  // namespace veldrana
