// The tests of the windows, around the toolkit's application, on a screen that nobody sees.
#include <QApplication>
#include <gtest/gtest.h>

int main(int count, char** words) {
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" VELDRANA_SOURCE_DIR "/tests/screens/screen.json");
    const QApplication application(count, words);
    testing::InitGoogleTest(&count, words);
    return RUN_ALL_TESTS();
}
