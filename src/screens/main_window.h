// Owns the main window: the main screen's controls, laid out. Nothing is decided here.
#pragma once

#include <memory>

#include <QMainWindow>
#include <QTimer>

#include "app/program.h"
#include "screens/qt_person.h"
#include "screens/view_builder.h"
#include "screens/window_place.h"

namespace veldrana {

class MainWindow : public QMainWindow {
  public:
    MainWindow(Program& program, const QtPerson& person, Pump& pump);
    ~MainWindow() override;

  protected:
    // Ends the program in order; while a run goes on the window stays.
    void closeEvent(QCloseEvent* event) override;
    // A log that is dropped on the window goes the way of its menu entry.
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    void make_menu();
    void make_toolbar();
    QWidget* make_files();
    QTabWidget* make_run_tabs();
    QTabWidget* make_source_tabs();
    QWidget* conversion_page();
    QWidget* output_page();
    QWidget* member_page();
    QWidget* result_page();
    QWidget* dat_page();
    QWidget* qth_page();
    QWidget* text_page();
    QWidget* rank_page();
    QWidget* make_remarks();
    QWidget* make_start();
    void follow_window();
    void look_under_pointer();

    Program& program_;
    const QtPerson& person_;
    MainScreen& screen_;
    Pump& pump_;
    ViewBuilder build_;
    QTimer pointer_timer_;
    std::unique_ptr<PlaceTeller> place_;
};

}  // namespace veldrana
