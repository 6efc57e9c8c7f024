#include "screens/text_view.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include "common/list_box_hs.h"
#include "screens/binding.h"
#include "screens/fonts.h"

namespace veldrana {
namespace {

// Characters of a line that are drawn. Only what is no text has longer ones, and drawing those
// would take long at each look.
constexpr int longest_shown = 20000;

}  // namespace

class TextView::Lines : public QAbstractListModel {
  public:
    Lines(const ViewedText& text, QObject* parent) : QAbstractListModel(parent), text_(text) {}

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(text_.count());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || !index.isValid()) {
            return {};
        }
        return to_qt(text_.line(static_cast<std::size_t>(index.row()))).left(longest_shown);
    }

    void reload() {
        beginResetModel();
        endResetModel();
    }

  private:
    const ViewedText& text_;
};

namespace {

// All lines have the height of one and the width of the longest, so that none is measured.
class LineDelegate : public QStyledItemDelegate {
  public:
    LineDelegate(const ViewedText& text, const QFont& font, QObject* parent)
        : QStyledItemDelegate(parent), text_(text), metrics_(font) {}

    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        const int column =
            std::max(metrics_.horizontalAdvance(u'0'), metrics_.horizontalAdvance(u'漢') / 2 + 1);
        const int widest = static_cast<int>(std::min<std::size_t>(text_.widest(), longest_shown));
        return {widest * column + ListBoxHS::margin, metrics_.height()};
    }

  private:
    const ViewedText& text_;
    QFontMetrics metrics_;
};

}  // namespace

TextView::TextView(const ViewedText& text) : lines_(new Lines(text, this)) {
    setObjectName("List1");
    setFont(fixed_font());
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::ExtendedSelection);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setTextElideMode(Qt::ElideNone);
    setItemDelegate(new LineDelegate(text, font(), this));
    setModel(lines_);
}

void TextView::reload() {
    lines_->reload();
}

}  // namespace veldrana
