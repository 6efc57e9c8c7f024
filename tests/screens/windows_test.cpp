// How the windows look and where they stand: nothing cut off, colours that can be read, fonts with
// Japanese, places kept.
#include <fstream>

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>
#include <QScrollArea>
#include <QTabWidget>
#include <QTest>

#include "app/program_end.h"
#include "screens/binding.h"
#include "screens/fonts.h"
#include "screens/slot_widgets.h"
#include "tests/screens/desktop_kit.h"

namespace veldrana {
namespace {

using testing::IsEmpty;

// --- layout ---

// Widgets whose text is wider or higher than they are; a path label shortens its own.
std::vector<std::string> cut_off(QWidget& window) {
    std::vector<std::string> found;
    const auto look = [&found](const QWidget& widget, const QString& text, const QSize& wanted) {
        const bool is_shown = widget.isVisible() && !text.isEmpty();
        if (is_shown && (widget.width() < wanted.width() || widget.height() < wanted.height())) {
            found.push_back(widget.objectName().toStdString() + " \"" + text.toStdString() + "\"");
        }
    };
    for (const QLabel* const label : window.findChildren<QLabel*>()) {
        if (label->sizePolicy().horizontalPolicy() != QSizePolicy::Ignored) {
            look(*label, label->text(), label->sizeHint());
        }
    }
    for (const QAbstractButton* const button : window.findChildren<QAbstractButton*>()) {
        const bool shares_its_row = dynamic_cast<const ItemWidget*>(button) != nullptr;
        const QSize text = button->fontMetrics().size(Qt::TextShowMnemonic, button->text());
        look(*button, button->text(), shares_its_row ? text : button->minimumSizeHint());
    }
    return found;
}

// Also run at twice the size.
class Layout : public DesktopTest {};

TEST_F(Layout, NothingIsCutOffOnAnyPageOfTheMainWindow) {
    kit.window().resize(kit.window().sizeHint());
    for (const char* const name : {"SSTab1", "SSTab2"}) {
        auto& tabs = kit.widget<QTabWidget>(name);
        for (int page = 0; page < tabs.count(); ++page) {
            tabs.setCurrentIndex(page);
            QApplication::processEvents();
            EXPECT_THAT(cut_off(kit.window()), IsEmpty()) << name << " " << page;
        }
    }
}

TEST_F(Layout, MainWindowFitsASmallScreen) {
    const QSize wanted = kit.window().sizeHint();
    EXPECT_LE(wanted.width(), 1366);
    EXPECT_LE(wanted.height(), 768);
}

TEST_F(Layout, WhatDoesNotFitIsScrolledAndTheStartStaysInSight) {
    kit.window().resize(800, 480);
    QApplication::processEvents();
    EXPECT_THAT(cut_off(kit.window()), IsEmpty());
    const auto& start = kit.widget<QPushButton>("cmdStart");
    const QPoint corner = start.mapTo(&kit.window(), start.rect().bottomRight());
    EXPECT_TRUE(kit.window().rect().contains(corner));
    for (const QWidget* outer = &start; outer != nullptr; outer = outer->parentWidget()) {
        EXPECT_EQ(qobject_cast<const QScrollArea*>(outer), nullptr);
    }
}

TEST_F(Layout, NothingIsCutOffInTheDialogs) {
    kit.click("Option02(2)");
    kit.open("mnuOpen", kit.log("allja_sample.all"));
    const std::vector<std::pair<const char*, const char*>> dialogs{{"mnuConfig", "cmdOK"},
                                                                   {"mnuOpenDat_semi", "cmdBack"}};
    for (const auto& [entry, leave] : dialogs) {
        kit.on_dialog([leave = leave](QDialog& dialog) {
            QApplication::processEvents();
            EXPECT_THAT(cut_off(dialog), IsEmpty()) << dialog.objectName().toStdString();
            DesktopKit::part<QPushButton>(dialog, leave).click();
        });
        kit.widget<QAction>(entry).trigger();
    }
    kit.on_dialog([](QDialog& dialog) {
        QApplication::processEvents();
        EXPECT_THAT(cut_off(dialog), IsEmpty());
        DesktopKit::part<QPushButton>(dialog, "cmdOK").click();
    });
    kit.click("cmdDate");
}

// Down each side of the window and along its lines, as one reads.
TEST_F(Layout, TabulatorGoesThroughTheOptionsAsOneReads) {
    std::vector<std::string> names;
    for (QWidget* next = &kit.widget<QPushButton>("cmdDisp_in");; next = next->nextInFocusChain()) {
        if (next->objectName() == "cmdStart") {
            break;
        }
        const bool takes_it = (next->focusPolicy() & Qt::TabFocus) != 0;
        if (takes_it && !next->objectName().isEmpty()) {
            names.push_back(next->objectName().toStdString());
        }
        ASSERT_LT(names.size(), 500U);
    }
    const std::vector<std::string> in_order{
        "cmdDisp_in",  "cmdDisp_dat", "cmdDisp_contest", "cmdDisp_Hamlog", "Check15",
        "txtOp_name",  "Check01",     "Option05(0)",     "Option07(0)",    "txtQSL_Q",
        "Option02(0)", "cmdCount",    "Check14",         "Check8",         "txtRmks1",
        "txtRmks2",    "cmdAll_Sort"};
    auto from = names.begin();
    for (const std::string& name : in_order) {
        const auto found = std::find(from, names.end(), name);
        ASSERT_NE(found, names.end()) << name;
        from = found;
    }
}

// --- colours and fonts ---

double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return std::max(a, b) / std::min(a, b);
}

TEST(Colours, EveryColourOfAFormCanBeReadOnLightAndDark) {
    const std::vector<std::uint32_t> used{0x000000, 0x008000, 0xFF0000, 0x0000FF, 0x808080,
                                          16744576, 4227072,  4425690,  16744448, 0xFFFFFF};
    for (const std::uint32_t bgr : used) {
        for (const QColor& ground : {QColor(Qt::white), QColor(0xEF, 0xEF, 0xEF),
                                     QColor(0x20, 0x20, 0x20), QColor(Qt::black)}) {
            EXPECT_GE(contrast(readable(Colour{bgr}, ground), ground), 4.5)
                << std::hex << bgr << " on " << ground.name().toStdString();
        }
    }
}

TEST(Colours, WhatCanBeReadAlreadyStaysAsItIs) {
    EXPECT_EQ(readable(colours::blue, Qt::white), QColor(0, 0, 255));
    EXPECT_EQ(readable(colours::black, Qt::white), QColor(0, 0, 0));
}

TEST(Fonts, TablesOfTextStandInAFontWithWideJapanese) {
    const QFontMetrics metrics(fixed_font());
    EXPECT_EQ(metrics.horizontalAdvance("漢字"), metrics.horizontalAdvance("0000"));
    EXPECT_EQ(metrics.horizontalAdvance("iiii"), metrics.horizontalAdvance("WWWW"));
    EXPECT_EQ(metrics.horizontalAdvance("ｶﾅ"), metrics.horizontalAdvance("00"));
}

TEST(Fonts, InterfaceHasJapaneseInItsOwnFont) {
    EXPECT_TRUE(QFontMetrics(interface_font()).inFont(u'漢'));
    EXPECT_TRUE(QFontMetrics(interface_font()).inFont(u'ｶ'));
}

// --- places ---

class Places : public DesktopTest {
  protected:
    void start_again() {
        kit.end();
        kit.accept_box();  // the hint that name masters are there
        ASSERT_TRUE(kit.start(DesktopKit::Size::as_left));
    }
};

TEST_F(Places, MainWindowComesBackWhereItWas) {
    kit.window().setGeometry(120, 80, 1250, 800);
    QApplication::processEvents();
    start_again();
    EXPECT_EQ(kit.window().geometry(), QRect(120, 80, 1250, 800));
    EXPECT_FALSE(kit.window().isMaximized());
}

TEST_F(Places, MaximisedWindowComesBackMaximisedWithItsPlaceUnderneath) {
    kit.window().setGeometry(120, 80, 1250, 800);
    QApplication::processEvents();
    kit.window().showMaximized();
    QApplication::processEvents();
    start_again();
    EXPECT_TRUE(kit.window().isMaximized());
    kit.window().showNormal();
    QApplication::processEvents();
    EXPECT_EQ(kit.window().geometry(), QRect(120, 80, 1250, 800));
}

TEST_F(Places, ASideThatIsNoNumberStaysTheWindowsOwn) {
    const QRect design = kit.window().geometry();
    kit.end();
    std::ofstream(kit.home() / "Veldrana_posi.ini")
        << "[Position_Veldrana]\r\nWindowState=0\r\nLeft=abc\r\nTop=90\r\nWidth=1250\r\n";
    kit.accept_box();
    ASSERT_TRUE(kit.start(DesktopKit::Size::as_left));
    EXPECT_EQ(kit.window().geometry().top(), 90);
    EXPECT_EQ(kit.window().geometry().width(), 1250);
    EXPECT_GT(kit.window().geometry().height(), 300);
    EXPECT_EQ(kit.window().geometry().left(), design.left());
}

TEST_F(Places, DialogsComeBackWhereTheyWere) {
    for (const QRect& place : {QRect(50, 60, 700, 500), QRect(90, 30, 650, 450)}) {
        QRect found;
        kit.on_dialog([&](QDialog& dialog) {
            found = dialog.geometry();
            dialog.setGeometry(place);
            QApplication::processEvents();
            DesktopKit::part<QPushButton>(dialog, "cmdOK").click();
        });
        kit.click("cmdDate");
        if (place.left() == 90) {
            EXPECT_EQ(found, QRect(50, 60, 700, 500));
        }
    }
}

}  // namespace
}  // namespace veldrana
