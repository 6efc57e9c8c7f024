#include "screens/text_view.h"

#include <QAbstractListModel>
#include <QStyledItemDelegate>

#include "common/list_box_hs.h"
#include "screens/view_builder.h"

namespace veldrana {
namespace {

class TextModel : public QAbstractListModel {
  public:
    TextModel(const ViewedText& text, QObject* parent) : QAbstractListModel(parent), text_(text) {}

    int rowCount(const QModelIndex& parent) const override {
        return parent.isValid() ? 0 : static_cast<int>(text_.count());
    }

    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole || !index.isValid()) {
            return {};
        }
        return to_qt(text_.line(static_cast<std::size_t>(index.row())));
    }

  private:
    const ViewedText& text_;
};

// All lines have the height of one and the width of the longest, so that none is measured.
class LineDelegate : public QStyledItemDelegate {
  public:
    LineDelegate(const QSize& size, QObject* parent) : QStyledItemDelegate(parent), size_(size) {}
    QSize sizeHint(const QStyleOptionViewItem& /*option*/,
                   const QModelIndex& /*index*/) const override {
        return size_;
    }

  private:
    QSize size_;
};

}  // namespace

QListView* text_view(const ViewedText& text) {
    auto* const view = new QListView;
    view->setObjectName("List1");
    view->setFont(fixed_font());
    view->setUniformItemSizes(true);
    view->setSelectionMode(QAbstractItemView::ExtendedSelection);
    view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    view->setTextElideMode(Qt::ElideNone);
    const QFontMetrics metrics(view->font());
    const int column =
        std::max(metrics.horizontalAdvance(u'0'), metrics.horizontalAdvance(u'漢') / 2 + 1);
    const int width = static_cast<int>(text.widest()) * column + ListBoxHS::margin;
    view->setItemDelegate(new LineDelegate(QSize(width, metrics.height()), view));
    view->setModel(new TextModel(text, view));
    return view;
}

}  // namespace veldrana
