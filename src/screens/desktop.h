// Owns the desktop program as a whole: the program, its ports and its windows.
#pragma once

#include <array>
#include <filesystem>
#include <map>
#include <memory>

#include <QLabel>
#include <QTranslator>

#include "app/program.h"
#include "platform/host_disk.h"
#include "screens/main_window.h"
#include "screens/qt_person.h"
#include "screens/viewer_beside.h"

namespace veldrana {

class Desktop {
  public:
    // The program's folder, and drive letters beside those that are there anyway.
    Desktop(const std::filesystem::path& home, const std::map<char, std::filesystem::path>& drives);
    ~Desktop();

    // From the first instruction to the main window; false if the program has ended before.
    bool start();
    // The same, and everything behind it, until the program ends; the exit status.
    int run();

    Program& program() noexcept { return program_; }
    // Null before the main screen is there.
    MainWindow* window() const noexcept { return window_.get(); }

  private:
    QTranslator translator_;
    HostDisk disk_;
    Pump pump_;
    QtPerson person_;
    SystemClock clock_;
    StableSort sorter_{disk_};
    OwnServices services_;
    std::unique_ptr<HamlogLibrary> log_book_;
    HostProcessStarter processes_{disk_};
    Program program_;
    std::unique_ptr<QLabel> splash_;
    std::unique_ptr<MainWindow> window_;
    std::array<std::unique_ptr<ViewerBeside>, 3> viewers_;
};

}  // namespace veldrana
