// Owns how the text of a file stands on the screen: lines are made as they come into view.
#pragma once

#include <QListView>

#include "viewers/viewed_text.h"

namespace veldrana {

// The text must live as long as the view.
QListView* text_view(const ViewedText& text);

}  // namespace veldrana
