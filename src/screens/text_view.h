// Owns how a text file is looked at: lines are made as they come into view.
#pragma once

#include <QListView>

#include "viewers/viewed_text.h"

namespace veldrana {

class TextView : public QListView {
  public:
    // The text must live as long as the view.
    explicit TextView(const ViewedText& text);

    // The text is another one now.
    void reload();

  private:
    class Lines;
    Lines* lines_;
};

}  // namespace veldrana
