#include "screens/qt_person.h"

#include <memory>

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QMessageBox>

#include "screens/binding.h"
#include "screens/dialog_views.h"

namespace veldrana {
namespace {

QMessageBox::Icon icon_of(Icon icon) {
    switch (icon) {
        case Icon::information:
            return QMessageBox::Information;
        case Icon::warning:
            return QMessageBox::Warning;
        case Icon::critical:
            return QMessageBox::Critical;
        case Icon::none:
            break;
    }
    return QMessageBox::NoIcon;
}

}  // namespace

QStringList name_filters(const std::string& filter) {
    QStringList filters;
    const QStringList pieces = to_qt(filter).split('|');
    for (qsizetype i = 0; i + 1 < pieces.size(); i += 2) {
        QStringList patterns;
        for (const QString& pattern : pieces[i + 1].split(';', Qt::SkipEmptyParts)) {
            // Names are found in any case; the host's dialog tells capitals apart.
            patterns << pattern.trimmed().toLower();
            if (pattern.trimmed().toUpper() != patterns.back()) {
                patterns << pattern.trimmed().toUpper();
            }
        }
        filters << pieces[i].trimmed() + " (" + patterns.join(' ') + ")";
    }
    return filters;
}

QWidget* QtPerson::front() const {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : parent_;
}

std::string QtPerson::program_path(const QString& host) const {
    return disk_.program_path(std::filesystem::path(host.toStdU16String()));
}

Answer QtPerson::show(const MessageBox& box) {
    QMessageBox shown(
        icon_of(box.icon), to_qt(box.title).trimmed(), to_qt(box.text),
        box.buttons == Buttons::ok ? QMessageBox::Ok : QMessageBox::Retry | QMessageBox::Cancel,
        front());
    shown.setTextFormat(Qt::PlainText);
    if (box.buttons == Buttons::retry_cancel) {
        shown.button(QMessageBox::Retry)->setText("再 試 行");
        shown.button(QMessageBox::Cancel)->setText("キャンセル");
        shown.setDefaultButton(QMessageBox::Retry);
    } else {
        shown.button(QMessageBox::Ok)->setText("ＯＫ");
    }
    int answer = 0;
    pump_.wait_for([&] { answer = shown.exec(); });
    if (answer == QMessageBox::Retry) {
        return Answer::retry;
    }
    return box.buttons == Buttons::ok ? Answer::ok : Answer::cancel;
}

std::string QtPerson::choose_file(const FileDialog& dialog) {
    QFileDialog shown(front(),
                      to_qt(dialog.title.empty() ? "ファイルを開く" : dialog.title).trimmed());
    // The captions are seen as they are written; they tell their patterns themselves.
    shown.setOption(QFileDialog::HideNameFilterDetails);
    shown.setNameFilters(name_filters(dialog.filter));
    shown.setFileMode(dialog.must_exist ? QFileDialog::ExistingFile : QFileDialog::AnyFile);
    if (!dialog.folder.empty() && disk_.folder_exists(dialog.folder)) {
        shown.setDirectory(QString::fromStdU16String(disk_.host_path(dialog.folder).u16string()));
    } else if (!last_folder_.isEmpty()) {
        shown.setDirectory(last_folder_);
    }
    int answer = QDialog::Rejected;
    pump_.wait_for([&] { answer = shown.exec(); });
    if (answer != QDialog::Accepted || shown.selectedFiles().isEmpty()) {
        return {};
    }
    last_folder_ = shown.directory().absolutePath();
    return program_path(shown.selectedFiles().front());
}

std::string QtPerson::choose_folder(std::string_view title, std::string_view start) {
    // Without one the toolkit begins where any of its dialogs has been.
    QString folder = last_folder_.isEmpty() ? QDir::currentPath() : last_folder_;
    if (!start.empty() && disk_.folder_exists(start)) {
        folder = QString::fromStdU16String(disk_.host_path(start).u16string());
    }
    QString chosen;
    pump_.wait_for(
        [&] { chosen = QFileDialog::getExistingDirectory(front(), to_qt(title), folder); });
    return chosen.isEmpty() ? std::string() : program_path(chosen);
}

void QtPerson::show_modal(WindowForm& form) {
    const std::unique_ptr<QDialog> view = make_view(form, pump_, front());
    view->show();
    pump_.loop_until([&form] { return !form.window.visible; });
}

void QtPerson::pending_events() {
    pump_.breathe();
}

}  // namespace veldrana
