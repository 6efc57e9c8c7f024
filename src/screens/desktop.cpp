#include "screens/desktop.h"

#include <QApplication>

#include "app/config_dialog.h"
#include "app/start_up.h"
#include "platform/environment.h"
#include "platform/hamlog_library.h"

namespace veldrana {

Desktop::Desktop(const std::filesystem::path& home,
                 const std::map<char, std::filesystem::path>& drives)
    : disk_(drives, home),
      person_(disk_, pump_),
      log_book_(make_hamlog_library(disk_)),
      program_({disk_, clock_, person_, sorter_, services_, *log_book_, processes_},
               disk_.program_path(home), environment_variable("WINDIR")) {
    program_.read_master.window.listener = [this] {
        if (!program_.read_master.window.visible) {
            splash_.reset();
        } else if (splash_ == nullptr) {
            splash_ = std::make_unique<QLabel>(to_qt(program_.read_master.Label1.caption.get()));
            splash_->setWindowFlags(Qt::SplashScreen);
            splash_->setMargin(40);
            splash_->show();
            QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        }
    };
}

Desktop::~Desktop() {
    program_.read_master.window.listener = nullptr;
}

bool Desktop::start() {
    pump_.run([this] { program_.event([this] { Main(program_); }); });
    if (program_.start.reached == Start::environment_dialog) {
        pump_.run([this] { program_.event([this] { run_environment_dialog(program_); }); });
    }
    if (program_.ended() || program_.start.reached != Start::main_screen) {
        return false;
    }
    window_ = std::make_unique<MainWindow>(program_, person_, pump_);
    person_.set_parent(window_.get());
    return true;
}

int Desktop::run() {
    if (start()) {
        pump_.loop_until([this] { return program_.ended().has_value(); });
    }
    window_.reset();
    return program_.ended() == ProgramEnd::Cause::reported ? 1 : 0;
}

}  // namespace veldrana
