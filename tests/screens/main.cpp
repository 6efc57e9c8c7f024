// The tests of the windows, around the toolkit's application, without a display.
#include <QApplication>
#include <gtest/gtest.h>

int main(int count, char** words) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(count, words);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
