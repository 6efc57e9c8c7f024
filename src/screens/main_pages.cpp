// The parts of the main window and what stands on its pages.
#include <QHeaderView>

#include "screens/main_window.h"
#include "screens/slot_widgets.h"

namespace veldrana {
namespace {

QGridLayout* rank_table(ViewBuilder& build, MainScreen& screen) {
    auto* const table = new QGridLayout;
    table->setHorizontalSpacing(24);
    const std::vector<std::pair<QString, RankLabels*>> fields{
        {"Name", &screen.lblName}, {"Code", &screen.lblCode}, {"QTH", &screen.lblQth}};
    for (int rank = 0; rank < static_cast<int>(RankLabels::size()); ++rank) {
        table->addWidget(caption(QString("第 %1 順位").arg(rank + 1)), rank + 1, 0);
    }
    for (std::size_t field = 0; field < fields.size(); ++field) {
        const int place = static_cast<int>(field) + 1;
        table->addWidget(caption(fields[field].first), 0, place);
        for (int rank = 0; rank < static_cast<int>(RankLabels::size()); ++rank) {
            table->addWidget(build.label((*fields[field].second)[static_cast<std::size_t>(rank)]),
                             rank + 1, place);
        }
    }
    table->setColumnStretch(4, 1);
    return table;
}

}  // namespace

QWidget* MainWindow::make_files() {
    auto* const table = new QGridLayout;
    const auto add = [table](int place, const QString& title, QLabel* path,
                             std::initializer_list<QWidget*> behind) {
        table->addWidget(caption(title), place, 0);
        table->addWidget(path, place, 1);
        int column = 2;
        for (QWidget* const widget : behind) {
            table->addWidget(widget, place, column++);
        }
    };
    add(0, "入力", build_.path_label(screen_.lblIn_name),
        {build_.button(screen_.cmdDisp_in), build_.label(screen_.lblIn_rec),
         build_.label(screen_.lblInfo)});
    add(1, "個別 DAT", build_.path_label(screen_.lblDatName), {build_.button(screen_.cmdDisp_dat)});
    add(2, "結果 (contest)", build_.path_label(screen_.lblOut_name1),
        {build_.button(screen_.cmdDisp_contest)});
    add(3, "結果 (Hamlog)", build_.path_label(screen_.lblOut_name2),
        {build_.button(screen_.cmdDisp_Hamlog)});
    table->setColumnStretch(1, 1);
    QGroupBox* const files = box("ファイル", table);
    build_.binder().bind(screen_.Frame13, files);
    return files;
}

QTabWidget* MainWindow::make_run_tabs() {
    auto* const tabs = new QTabWidget;
    tabs->setObjectName("SSTab1");
    tabs->addTab(conversion_page(), "読み込み");
    tabs->addTab(output_page(), "出力 ・ QSL");
    tabs->addTab(member_page(), "会員検索");
    tabs->addTab(result_page(), "結果");
    build_.binder().bind(screen_.SSTab1, tabs);
    const std::vector<QRadioButton*> first = build_.radios(screen_.Option2);
    for (std::size_t i = 0; i < first.size(); ++i) {
        tabs->widget(static_cast<int>(i))->layout()->addWidget(first[i]);
    }
    return tabs;
}

QTabWidget* MainWindow::make_source_tabs() {
    auto* const tabs = new QTabWidget;
    tabs->setObjectName("SSTab2");
    tabs->addTab(dat_page(), "dat / mas");
    tabs->addTab(qth_page(), "取得");
    tabs->addTab(text_page(), "Text_data");
    tabs->addTab(rank_page(), "優先順位");
    build_.binder().bind(screen_.SSTab2, tabs);
    const std::vector<QRadioButton*> first = build_.radios(screen_.Option22);
    for (std::size_t i = 0; i < first.size(); ++i) {
        tabs->widget(static_cast<int>(i))->layout()->addWidget(first[i]);
    }
    return tabs;
}

QWidget* MainWindow::conversion_page() {
    auto* const year = box("コンテストの年 ( ＴＸＴ )",
                           row({build_.edit(screen_.txtYYYY, 4), build_.button(screen_.cmdNow)}));
    build_.binder().bind(screen_.Frame14, year);
    return page({
        row({box("オペレーター",
                 row({build_.check(screen_.Check15), build_.edit(screen_.txtOp_name, 12)})),
             box("周波数", row({build_.check(screen_.Check01)}))},
            false),
        row({box("ログの時刻", row(build_.radios(screen_.Option1))), year}, false),
        box("時刻の変換", row(build_.radios(screen_.Option08))),
        box("G ・ L", column({build_.check(screen_.Check21), build_.check(screen_.Check07)})),
        row({box("今回のみ ( ADIF )",
                 column({build_.check(screen_.Check27), build_.check(screen_.Check28)})),
             box("Dupe List", row({build_.check(screen_.Check06)}))},
            false),
    });
}

QWidget* MainWindow::output_page() {
    auto* const order = new QGridLayout;
    order->addWidget(caption("単数回 ・ 複数回の局"), 0, 0);
    order->addLayout(row(build_.radios(screen_.Option05)), 0, 1);
    order->addWidget(caption("順序"), 1, 0);
    order->addLayout(row({row(build_.radios(screen_.Option09)), build_.check(screen_.Check08)}), 1,
                     1);
    order->addWidget(caption("同じ局の中"), 2, 0, Qt::AlignTop);
    order->addLayout(column(build_.radios(screen_.Option06)), 2, 1);
    order->setColumnStretch(1, 1);

    auto* const rule = new QGridLayout;
    const std::vector<QRadioButton*> kinds = build_.radios(screen_.Option07);
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        rule->addWidget(kinds[i], 0, static_cast<int>(i));
    }
    rule->setColumnStretch(static_cast<int>(kinds.size()), 1);
    auto* const no_qsl =
        column({rule,
                row({row(build_.radios(screen_.Option01)), build_.check(screen_.Check19),
                     build_.check(screen_.Check20), build_.button(screen_.cmdDate),
                     build_.button(screen_.cmdCheck_bak_qso_mas)}),
                row({build_.check(screen_.Check18)}), row({build_.check(screen_.Check23)})});

    return page({
        box("整列", order),
        box("No QSL", no_qsl),
        box("QSL 欄", row({caption("転送"), build_.edit(screen_.txtQSL_Q, 1), caption("発行"),
                           build_.edit(screen_.txtQSL_S, 1), build_.check(screen_.Check2),
                           build_.check(screen_.Check3), caption(" JA の ｸﾗﾌﾞ 局 には "),
                           build_.check(screen_.Check10)})),
    });
}

QWidget* MainWindow::member_page() {
    return page({
        build_.label(screen_.lblJARL_menu),
        build_.label(screen_.lblJARL_after),
        box("検索", row({build_.check(screen_.Check31), build_.check(screen_.Check32),
                         build_.check(screen_.Check33)})),
        box("無登録のマーク", row({build_.edit(screen_.txtQSL_moji, 1)})),
        box("環境設定", row({caption("コールサイン"), build_.label(screen_.lblMyCalls),
                             caption("パスワード"), build_.label(screen_.lblPassWord)})),
        row({build_.button(screen_.cmdStart_JARL), build_.button(screen_.cmdStart_JARL2)}),
    });
}

QWidget* MainWindow::result_page() {
    QTableWidget* const grid = build_.grid(screen_.MSFlexGrid1);
    grid->setSelectionMode(QAbstractItemView::NoSelection);
    grid->setFocusPolicy(Qt::NoFocus);
    grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    grid->verticalHeader()->setDefaultSectionSize(fontMetrics().height() * 3 / 2);
    grid->setFixedHeight(grid->verticalHeader()->length() + 2 * grid->frameWidth());
    grid->setFixedWidth(fontMetrics().horizontalAdvance(u'漢') * 20);
    for (int place = 0; place < grid->rowCount(); ++place) {
        grid->item(place, 1)->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    }
    auto* const beside =
        column({box("設定ファイル", column({build_.button(screen_.cmdDisp_Veldrana_new_ini),
                                            build_.button(screen_.cmdDisp_Veldrana_cfg_ini)})),
                build_.label(screen_.lblIn_rec_count)});
    beside->addStretch();
    return page({
        row({grid, beside}),
        row({build_.check(screen_.Check26), build_.button(screen_.cmdStop)}),
    });
}

QWidget* MainWindow::dat_page() {
    auto* const choice = box("dat 選択 ", row(build_.radios(screen_.Option03)));
    build_.binder().bind(screen_.Frame11, choice);
    auto* const file = box("個別 DAT", row_with_wide(0, {build_.path_label(screen_.Label37),
                                                         build_.button(screen_.cmdDisp_dat2)}));
    build_.binder().bind(screen_.Frame03, file);
    return page({
        box("コード ・ ＱＴＨ", row(build_.radios(screen_.Option02))),
        row({choice, box("code 取得", row(build_.radios(screen_.Option04)))}, false),
        file,
        box("name_mas ．txt より",
            row({build_.check(screen_.Check03), build_.button(screen_.cmdCount)})),
    });
}

QWidget* MainWindow::qth_page() {
    return page({
        box("  ＱＴＨ_ＭＡＳ．ｔｘｔ よりの取得 ",
            column({build_.label(screen_.lblNo_qth_mas), row({build_.check(screen_.Check14)}),
                    row({build_.check(screen_.Check6), build_.check(screen_.Check4),
                         build_.check(screen_.Check7), build_.check(screen_.Check5)}),
                    row({build_.check(screen_.Check16)})})),
        box(" CODE , QTH 欄が空白なら ", row({build_.check(screen_.Check24), caption("CODE"),
                                              build_.check(screen_.Check25), caption("QTH")})),
        box("Entity", row({build_.check(screen_.Check22)})),
    });
}

QWidget* MainWindow::text_page() {
    const std::vector<QRadioButton*> places = build_.radios(screen_.Option4);
    auto* const table = new QGridLayout;
    table->addWidget(caption("Rmks 1 の"), 0, 0);
    table->addWidget(places[0], 0, 1);
    table->addWidget(places[1], 0, 2);
    table->addWidget(caption("Rmks 2 の"), 1, 0);
    table->addWidget(places[2], 1, 1);
    table->addWidget(places[3], 1, 2);
    table->setColumnStretch(3, 1);
    return page({
        box("ユーザーテキスト",
            column({row({build_.check(screen_.Check8)}),
                    row({caption("A"), build_.check(screen_.Check4_A),
                         build_.button(screen_.cmdSet_UserTxt_A)}),
                    row({caption("B"), build_.check(screen_.Check4_B),
                         build_.button(screen_.cmdSet_UserTxt_B)}),
                    row({build_.check(screen_.Check11), build_.check(screen_.Check13),
                         build_.check(screen_.Check9), build_.check(screen_.Check12)}),
                    row({build_.check(screen_.Check17)})})),
        box("Ｒｍｋｓ の位置", table),
    });
}

QWidget* MainWindow::rank_page() {
    return page({box("取得の優先順位", rank_table(build_, screen_))});
}

QWidget* MainWindow::make_remarks() {
    constexpr int slots = static_cast<int>(remark_slot_count);
    auto* const table = new QGridLayout;
    table->addWidget(caption("項目"), 0, 0);
    auto* const items = new QHBoxLayout;
    for (ItemButton& button : screen_.Command1) {
        items->addWidget(new ItemWidget(button), 1);
    }
    table->addLayout(items, 0, 1, 1, slots + 1);
    const auto add_slots = [&](int place, const QString& title, RemarkSlots& labels,
                               CommandButton& sort) {
        table->addWidget(caption(title), place, 0);
        for (int i = 0; i < slots; ++i) {
            RemarkSlot& slot = labels[static_cast<std::size_t>(i)];
            table->addWidget(new SlotWidget(program_, pump_, slot), place, 1 + i);
            table->setColumnStretch(1 + i, 1);
        }
        table->addWidget(build_.button(sort), place, 1 + slots);
    };
    add_slots(1, "Rmks 1", screen_.lblRmks1, screen_.cmdSort_2);
    add_slots(2, "Rmks 2", screen_.lblRmks2, screen_.cmdSort_3);
    const auto add_comment = [&](int place, const QString& title, TextBox& comment,
                                 CommandButton& clear) {
        table->addWidget(caption(title), place, 0);
        table->addWidget(build_.edit(comment, 0), place, 1, 1, slots);
        table->addWidget(build_.button(clear), place, 1 + slots);
    };
    add_comment(3, "Rmks 1 の文", screen_.txtRmks1, screen_.cmdCl_rmk1);
    add_comment(4, "Rmks 2 の文", screen_.txtRmks2, screen_.cmdCl_rmk2);
    auto* const whole = row({build_.button(screen_.cmdAll_Sort), build_.button(screen_.cmdAll_Redo),
                             build_.button(screen_.cmdRireki), build_.button(screen_.cmdKetasu),
                             build_.check(screen_.Check1)});
    whole->addWidget(build_.label(screen_.lblLen));
    return box("Rmks  ( 項目を枠へドラッグする )", column({table, whole}));
}

QWidget* MainWindow::make_start() {
    QPushButton* const start = build_.button(screen_.cmdStart);
    QFont font = start->font();
    font.setPointSizeF(font.pointSizeF() * 1.4);
    font.setBold(true);
    start->setFont(font);
    start->setMinimumWidth(start->fontMetrics().horizontalAdvance("変　　換") * 2);
    start->setMinimumHeight(start->fontMetrics().height() * 2);
    auto* const progress = new QProgressBar;
    progress->setObjectName("ProgressBar1");
    QSizePolicy kept = progress->sizePolicy();
    kept.setRetainSizeWhenHidden(true);
    progress->setSizePolicy(kept);
    build_.binder().bind(screen_.ProgressBar1, progress);
    auto* const state = new QVBoxLayout;
    state->addStretch();
    state->addWidget(build_.label(screen_.lblCFG));
    state->addWidget(build_.path_label(screen_.lblMsg));
    state->addStretch();
    auto* const panel = new QWidget;
    auto* const layout = new QHBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(start);
    layout->addLayout(state, 1);
    layout->addWidget(progress, 1);
    panel->setLayout(layout);
    return panel;
}

}  // namespace veldrana
