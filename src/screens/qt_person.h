// Owns the person at the screen: boxes, file dialogs and forms in windows.
#pragma once

#include <QString>
#include <QWidget>

#include "common/person.h"
#include "platform/host_disk.h"
#include "screens/pump.h"

namespace veldrana {

class QtPerson : public Person {
  public:
    QtPerson(HostDisk& disk, Pump& pump) : disk_(disk), pump_(pump) {}

    // What boxes and dialogs stand in front of; null: nothing.
    void set_parent(QWidget* parent) { parent_ = parent; }

    // A path of the host as the program writes it.
    std::string program_path(const QString& host) const;

    Answer show(const MessageBox& box) override;
    std::string choose_file(const FileDialog& dialog) override;
    std::string choose_folder(std::string_view title, std::string_view start) override;
    void show_modal(WindowForm& form) override;
    void pending_events() override;

  private:
    QWidget* front() const;

    HostDisk& disk_;
    Pump& pump_;
    QWidget* parent_ = nullptr;
    QString last_folder_;
};

// The pairs of a filter, "caption|patterns|...", as the toolkit's dialogs take them: the patterns
// in parentheses behind the caption.
QStringList name_filters(const std::string& filter);

}  // namespace veldrana
