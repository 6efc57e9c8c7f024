// What a person does while the program works, and how failures pass the toolkit's loops.
#include "screens/pump.h"

#include <stdexcept>

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace veldrana {
namespace {

class PumpTest : public testing::Test {
  protected:
    PumpTest() {
        QObject::connect(&button, &QPushButton::clicked, [this] { ++presses; });
        button.show();
    }
    void press() { QTest::mouseClick(&button, Qt::LeftButton); }

    Pump pump;
    QPushButton button;
    int presses = 0;
};

TEST_F(PumpTest, WhatIsPressedDuringAnActionIsLost) {
    press();
    EXPECT_EQ(presses, 1);
    pump.run([&] {
        EXPECT_TRUE(pump.busy());
        press();
        QTest::keyClick(&button, Qt::Key_Space);
    });
    EXPECT_EQ(presses, 1);
    EXPECT_FALSE(pump.busy());
    press();
    EXPECT_EQ(presses, 2);
}

TEST_F(PumpTest, WhatAnInputMethodBringsDuringAnActionIsLost) {
    QLineEdit field;
    QInputMethodEvent typed;
    typed.setCommitString("漢字");
    pump.run([&] { QApplication::sendEvent(&field, &typed); });
    EXPECT_EQ(field.text(), "");
    QApplication::sendEvent(&field, &typed);
    EXPECT_EQ(field.text(), "漢字");
}

// The toolkit holds it back until the action is done; by then it must be gone.
TEST_F(PumpTest, WhatIsUnderWayWhenALongActionEndsIsLostToo) {
    pump.run([&] {
        pump.breathe();
        const QPointF place(5, 5);
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            QApplication::postEvent(&button, new QMouseEvent(type, place, place, Qt::LeftButton,
                                                             Qt::LeftButton, Qt::NoModifier));
        }
    });
    QApplication::processEvents();
    EXPECT_EQ(presses, 0);
}

TEST_F(PumpTest, ADialogWithinAnActionIsAnswered) {
    pump.run([&] {
        pump.wait_for([&] {
            EXPECT_FALSE(pump.busy());
            press();
        });
        EXPECT_TRUE(pump.busy());
        press();
    });
    EXPECT_EQ(presses, 1);
}

TEST_F(PumpTest, HourglassIsShownWhileALongActionRunsAndNotInItsDialogs) {
    pump.run([&] {
        EXPECT_EQ(QApplication::overrideCursor(), nullptr);
        pump.breathe();
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
        pump.wait_for([] { EXPECT_EQ(QApplication::overrideCursor(), nullptr); });
        EXPECT_NE(QApplication::overrideCursor(), nullptr);
    });
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(PumpTest, FailureOfAnActionComesOutOfTheLoopItRanIn) {
    QTimer::singleShot(0, [&] { pump.run([] { throw std::runtime_error("bad disk"); }); });
    EXPECT_THROW(pump.loop_until([] { return false; }), std::runtime_error);
    EXPECT_FALSE(pump.busy());
}

TEST_F(PumpTest, LoopEndsWhenAnActionHasFinishedIt) {
    bool done = false;
    QTimer::singleShot(0, [&] { pump.run([&] { done = true; }); });
    pump.loop_until([&] { return done; });
    EXPECT_TRUE(done);
}

TEST_F(PumpTest, FailureInAnInnerLoopEndsItAloneIfTheOuterActionHandlesIt) {
    bool handled = false;
    QTimer::singleShot(0, [&] {
        pump.run([&] {
            QTimer::singleShot(0, [&] { pump.run([] { throw std::runtime_error("bad disk"); }); });
            try {
                pump.loop_until([] { return false; });
            } catch (const std::runtime_error&) {
                handled = true;
            }
        });
    });
    pump.loop_until([&] { return handled; });
    EXPECT_TRUE(handled);
}

}  // namespace
}  // namespace veldrana
