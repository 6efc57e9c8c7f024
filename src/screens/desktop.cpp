#include "screens/desktop.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QScreen>

#include "app/config_dialog.h"
#include "app/start_up.h"
#include "platform/environment.h"
#include "platform/hamlog_library.h"
#include "screens/fonts.h"

namespace veldrana {
namespace {

// In the middle of the screen.
std::unique_ptr<QLabel> make_splash(const QString& text) {
    auto splash = std::make_unique<QLabel>(text);
    splash->setObjectName("read_master");
    splash->setWindowFlags(Qt::SplashScreen);
    splash->setFrameStyle(QFrame::Box | QFrame::Plain);
    splash->setMargin(40);
    splash->adjustSize();
    QRect place = splash->geometry();
    place.moveCenter(splash->screen()->availableGeometry().center());
    splash->setGeometry(place);
    return splash;
}

}  // namespace

Desktop::Desktop(const std::filesystem::path& home,
                 const std::map<char, std::filesystem::path>& drives)
    : disk_(drives, home),
      person_(disk_, pump_),
      log_book_(make_hamlog_library(disk_)),
      program_({disk_, clock_, person_, sorter_, services_, *log_book_, processes_},
               disk_.program_path(home), environment_variable("WINDIR")) {
    QApplication::setFont(interface_font());
    // The toolkit's own dialogs speak as the program does, wherever its texts are installed.
    if (translator_.load("qtbase_ja", QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
        QCoreApplication::installTranslator(&translator_);
    }
    program_.read_master.window.listener = [this] {
        if (!program_.read_master.window.visible) {
            splash_.reset();
        } else if (splash_ == nullptr) {
            splash_ = make_splash(to_qt(program_.read_master.Label1.caption.get()));
            splash_->show();
            pump_.breathe();
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
    for (std::size_t i = 0; i < viewers_.size(); ++i) {
        viewers_[i] = std::make_unique<ViewerBeside>(*program_.free_viewers[i], pump_);
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
    viewers_ = {};
    return program_.ended() == ProgramEnd::Cause::reported ? 1 : 0;
}

}  // namespace veldrana
