#include "screens/dialog_views.h"

#include <QAbstractListModel>
#include <QHeaderView>
#include <QListView>
#include <QMenuBar>
#include <QScrollBar>

#include "readers/frmCon_sel.h"
#include "readers/frmRTCL_v4.h"
#include "screens/fonts.h"
#include "screens/form_view.h"
#include "screens/text_view.h"
#include "settings/frmConfig.h"
#include "settings/frmDate.h"
#include "viewers/frmCheck_bak_qso_mas.h"
#include "viewers/frmDisp.h"

namespace veldrana {
namespace {

std::unique_ptr<QDialog> view_of(frmDate& form, Pump& pump, QWidget* parent) {
    auto view = std::make_unique<FormView>(form, pump, parent);
    ViewBuilder& build = view->build;
    view->leave = [&form] { form.leave(); };
    const auto day = [&build](Label& title,
                              std::initializer_list<std::pair<ListBox*, QString>> lists) {
        auto* const table = new QGridLayout;
        int place = 0;
        for (const auto& [list, unit] : lists) {
            QListWidget* const widget = build.list(*list);
            widget->setFixedWidth(widget->fontMetrics().horizontalAdvance("000000") +
                                  widget->verticalScrollBar()->sizeHint().width());
            table->addWidget(caption(unit), 0, place, Qt::AlignHCenter);
            table->addWidget(widget, 1, place++);
        }
        return box(to_qt(title.caption.get()).trimmed(), table);
    };
    auto* const start =
        day(form.lblStart, {{&form.List1, "年"}, {&form.List2, "月"}, {&form.List3, "日"}});
    auto* const end =
        day(form.lblEnd, {{&form.List4, "年"}, {&form.List5, "月"}, {&form.List6, "日"}});
    QPushButton* const ok = build.button(form.cmdOK);
    ok->setDefault(true);
    view->setLayout(column({row({start, end}, false), build.label(form.Label6),
                            row({build.check(form.Check1), build.button(form.cmdGet_date)}),
                            build.label(form.Label7), row_at_right({ok})}));
    view->place(QSize(520, 420));
    return view;
}

std::unique_ptr<QDialog> view_of(frmCon_sel& form, Pump& pump, QWidget* parent) {
    auto view = std::make_unique<FormView>(form, pump, parent);
    ViewBuilder& build = view->build;
    view->leave = [&form] { form.cmdBack.press(); };

    QListWidget* const sample = build.list(form.List2);
    sample->setFont(fixed_font());
    sample->setSelectionMode(QAbstractItemView::NoSelection);
    sample->setFocusPolicy(Qt::NoFocus);
    sample->setMaximumWidth(sample->fontMetrics().horizontalAdvance(QString(18, u'0')));
    QListWidget* const contests = build.list(form.List1);
    contests->setFont(fixed_font());
    // Long rows are looked at by scrolling.
    contests->setUniformItemSizes(false);
    contests->setTextElideMode(Qt::ElideNone);
    contests->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    auto* const lists = new QHBoxLayout;
    lists->addLayout(column({caption("受信した番号"), sample}));
    QLineEdit* const search = build.edit(form.Text1, 0);
    search->setPlaceholderText("検索する dat , mas mst ファイル名かコンテスト名の略称を入力する。");
    QObject::connect(search, &QLineEdit::returnPressed, search,
                     [&form, &pump] { pump.run([&form] { form.Text1_Enter(); }); });
    lists->addLayout(
        column({row({search, build.button(form.cmdSearch), build.button(form.cmdCLR)}, false),
                contests}),
        1);

    auto* const facts = new QGridLayout;
    const std::vector<std::pair<QString, Label*>> names{
        {"No", &form.lblFile_no},         {"コンテスト名", &form.lblCon_name},
        {"個別 DAT", &form.lblDat_name},  {"ナンバー", &form.lblCon_no_1},
        {"", &form.lblCon_no_2},          {"コード・フラグ", &form.lblCode_flag},
        {"処理方法", &form.lblCode_type}, {"種別", &form.lblFile_Syubetu},
    };
    int place = 0;
    for (const auto& [title, label] : names) {
        facts->addWidget(caption(title), place, 0);
        facts->addWidget(build.path_label(*label), place++, 1);
    }
    facts->setColumnStretch(1, 1);

    view->setLayout(column({
        row_with_wide(1, {caption("入力"), build.path_label(form.lblIn_name)}),
        lists,
        row_with_wide(1, {caption("ナンバーの形"), build.path_label(form.lblC_key)}),
        box("選択したコンテスト", facts),
        build.label(form.lblMsg1),
        build.label(form.lblMsg2),
        row_at_right({build.button(form.cmdOK), build.button(form.cmdBack)}),
    }));
    view->place(QSize(980, 720));
    return view;
}

std::unique_ptr<QDialog> view_of(frmDisp& form, Pump& pump, QWidget* parent) {
    auto view = std::make_unique<FormView>(form, pump, parent);
    ViewBuilder& build = view->build;
    view->leave = [&form] { form.mnuOK.press(); };
    auto* const bar = new QMenuBar;
    bar->addAction(build.action(form.mnuOK, bar));
    QLayout* const layout = column({new TextView(form.text())});
    layout->setMenuBar(bar);
    layout->setContentsMargins(0, 0, 0, 0);
    view->setLayout(layout);
    view->place(QSize(900, 640));
    return view;
}

std::unique_ptr<QDialog> view_of(frmCheck_bak_qso_mas& form, Pump& pump, QWidget* parent) {
    auto view = std::make_unique<FormView>(form, pump, parent);
    ViewBuilder& build = view->build;
    view->leave = [&form] { form.mnuBack.press(); };
    auto* const bar = new QMenuBar;
    bar->addAction(build.action(form.mnuBack, bar));
    bar->addAction(build.action(form.mnuHelp, bar));
    QTableWidget* const grid = build.grid(form.Grid1);
    grid->setFont(fixed_font());
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    grid->setSelectionMode(QAbstractItemView::NoSelection);
    QObject::connect(
        grid, &QTableWidget::cellClicked, grid, [&form, &pump, grid](int row, int column) {
            const QModelIndex cell = grid->model()->index(row, column);
            const int within =
                grid->viewport()->mapFromGlobal(QCursor::pos()).x() - grid->visualRect(cell).left();
            const int width = grid->fontMetrics().horizontalAdvance(u'0');
            pump.run([&] {
                form.Grid1.press(
                    {.row = static_cast<std::size_t>(row),
                     .column = static_cast<std::size_t>(column),
                     .character = static_cast<std::size_t>(std::max(0, within / width))});
            });
        });
    QLayout* const layout = column({grid});
    layout->setMenuBar(bar);
    view->setLayout(layout);
    view->place(QSize(820, 320));
    return view;
}

std::unique_ptr<QDialog> view_of(frmRTCL_v4& form, Pump& pump, QWidget* parent) {
    auto view = std::make_unique<FormView>(form, pump, parent);
    ViewBuilder& build = view->build;
    view->leave = [&form] { form.mnuBack.press(); };
    auto* const bar = new QMenuBar;
    const auto add = [&build, bar](CommandButton& head, std::initializer_list<MenuEntry*> entries) {
        QMenu* const menu = bar->addMenu(QString());
        build.binder().bind(head, menu->menuAction());
        for (MenuEntry* const entry : entries) {
            menu->addAction(build.action(*entry, menu));
        }
    };
    add(form.mnuOpen_log, {&form.mnuVer_430mae, &form.mnuVer_430ato});
    add(form.mnuDisp, {&form.mnuInFile, &form.mnuOutFile_txt, &form.mnuOutFile_all});
    bar->addAction(build.action(form.mnuBack, bar));
    QLayout* const layout =
        column({row({build.button(form.cmdMake_txt), build.button(form.cmdMake_all)}, false),
                build.label(form.lblInfo), build.label(form.lblOut_name)});
    layout->setMenuBar(bar);
    view->setLayout(layout);
    view->place(QSize(520, 180));
    return view;
}

std::unique_ptr<QDialog> view_of(frmConfig& form, Pump& pump, QWidget* parent) {
    auto view = std::make_unique<FormView>(form, pump, parent);
    ViewBuilder& build = view->build;
    // It is left by its buttons alone.
    view->leave = [] {};
    view->setWindowFlag(Qt::WindowCloseButtonHint, false);

    auto* const paths = new QGridLayout;
    const auto add = [&](Label& title, TextBox& text, CommandButton& browse, CheckBox* unused) {
        const int place = paths->rowCount();
        paths->addWidget(build.label(title), place, 0);
        paths->addWidget(build.edit(text, 0), place, 1);
        paths->addWidget(build.button(browse), place, 2);
        if (unused != nullptr) {
            paths->addWidget(build.check(*unused), place, 3);
        }
    };
    add(form.lblZlog_dat, form.txtZlog_dat, form.cmdZlog_dat, nullptr);
    add(form.lblName_mas, form.txtName_mas, form.cmdName_mas, &form.chkNo_name);
    add(form.lblQth_mas, form.txtQth_mas, form.cmdQth_mas, &form.chkNo_qth);
    add(form.lblYUbin_mas, form.txtYubin_mas, form.cmdYubin_mas, &form.chkNo_yubin);
    add(form.lblHamlog_hdb, form.txtHamlog_hdb, form.cmdHamlog_hdb, nullptr);
    add(form.lblHamlog_hdb_2, form.txtHamlog_hdb_2, form.cmdHamlog_hdb_2, nullptr);
    add(form.lblZloDir, form.txtZloDir, form.cmdGetZloDir, nullptr);
    add(form.lblAllDir, form.txtAllDir, form.cmdGetAllDir, nullptr);
    paths->setColumnStretch(1, 1);

    auto* const operator_of_station = new QGridLayout;
    operator_of_station->addWidget(build.label(form.lblMyCalls), 0, 0);
    operator_of_station->addWidget(build.edit(form.txtMyCalls, 16), 0, 1);
    operator_of_station->addWidget(build.label(form.lblPassWords), 1, 0);
    operator_of_station->addWidget(build.edit(form.txtPassWords, 16), 1, 1);
    operator_of_station->addWidget(build.check(form.chkShow_PassWords), 1, 2);
    operator_of_station->addWidget(build.label(form.Label3), 2, 0, 1, 4);
    operator_of_station->setColumnStretch(3, 1);

    auto* const whole = column({
        box("フォルダ と ファイル", column({build.label(form.lblMsg1), paths})),
        box("運用者", operator_of_station),
        box("No QSL", column({row({build.label(form.Label1), build.edit(form.Text1, 1)}),
                              build.label(form.Label2)})),
    });
    whole->addStretch();
    whole->addLayout(row_with_wide(
        0, {column({build.label(form.lblMsg), build.label(form.lblMsg2)}),
            build.button(form.cmdSave), build.button(form.cmdOK), build.button(form.cmdEnd)}));
    view->setLayout(whole);
    const QSize least(frmConfig::least_width / twips_of_a_pixel,
                      frmConfig::least_height / twips_of_a_pixel);
    view->setMinimumSize(least.expandedTo(view->minimumSizeHint()));
    view->place(QSize(880, 640));
    return view;
}

// A form without a view of its own: its labels and buttons, one below the other.
std::unique_ptr<QDialog> plain_view(WindowForm& form, Pump& pump, QWidget* parent) {
    auto view = std::make_unique<FormView>(form, pump, parent);
    auto* const layout = new QVBoxLayout;
    for (Control* const control : form.controls()) {
        if (auto* const button = dynamic_cast<CommandButton*>(control)) {
            layout->addWidget(view->build.button(*button));
        } else if (auto* const label = dynamic_cast<Label*>(control)) {
            layout->addWidget(view->build.label(*label));
        }
    }
    view->setLayout(layout);
    view->place(view->sizeHint());
    return view;
}

// The view of the form's own type; nothing if it is of another.
template <class Form>
bool is_shown_as(WindowForm& form, Pump& pump, QWidget* parent, std::unique_ptr<QDialog>& view) {
    auto* const own = dynamic_cast<Form*>(&form);
    if (own != nullptr) {
        view = view_of(*own, pump, parent);
    }
    return own != nullptr;
}

}  // namespace

std::unique_ptr<QDialog> make_view(WindowForm& form, Pump& pump, QWidget* parent) {
    std::unique_ptr<QDialog> view;
    const bool known = is_shown_as<frmDate>(form, pump, parent, view) ||
                       is_shown_as<frmCon_sel>(form, pump, parent, view) ||
                       is_shown_as<frmDisp>(form, pump, parent, view) ||
                       is_shown_as<frmCheck_bak_qso_mas>(form, pump, parent, view) ||
                       is_shown_as<frmRTCL_v4>(form, pump, parent, view) ||
                       is_shown_as<frmConfig>(form, pump, parent, view);
    return known ? std::move(view) : plain_view(form, pump, parent);
}

}  // namespace veldrana
