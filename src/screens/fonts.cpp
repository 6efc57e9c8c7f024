#include "screens/fonts.h"

#include <QApplication>
#include <QFontDatabase>
#include <QFontMetrics>

namespace veldrana {
namespace {

// The first of the wanted families that is there, else any with Japanese that suits; else the font
// as it is.
template <class Suits>
QFont with_japanese(QFont font, const QStringList& wanted, Suits suits) {
    const QStringList there = QFontDatabase::families(QFontDatabase::Japanese);
    if (there.contains(font.family()) && suits(font.family())) {
        return font;
    }
    for (const QStringList& families : {wanted, there}) {
        for (const QString& family : families) {
            if (there.contains(family) && suits(family)) {
                font.setFamily(family);
                return font;
            }
        }
    }
    return font;
}

bool is_fixed(const QString& family) {
    const QFontMetrics metrics{QFont(family)};
    return metrics.horizontalAdvance(u'i') == metrics.horizontalAdvance(u'W') &&
           metrics.horizontalAdvance(u'漢') == metrics.horizontalAdvance("WW") &&
           metrics.horizontalAdvance(u'ｶ') == metrics.horizontalAdvance(u'W');
}

}  // namespace

QFont interface_font() {
    return with_japanese(QApplication::font(),
                         {"Yu Gothic UI", "Meiryo UI", "MS UI Gothic", "Noto Sans CJK JP",
                          "Noto Sans JP", "IPAexGothic", "IPAPGothic", "VL PGothic"},
                         [](const QString& /*family*/) { return true; });
}

QFont fixed_font() {
    return with_japanese(
        QFontDatabase::systemFont(QFontDatabase::FixedFont),
        {"MS Gothic", "ＭＳ ゴシック", "Noto Sans Mono CJK JP", "IPAGothic", "VL Gothic"},
        is_fixed);
}

}  // namespace veldrana
