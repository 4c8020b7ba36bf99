#include "platform/qt/ticks.h"

#include <QMessageBox>

#include "demo_form.h"

namespace gloamtide {
namespace {

class Ticks : public DesktopTest {
protected:
    Ticks() {
        Demo.Clock.Interval = 1;
        Demo.Clock.Tick = [this] { ++Count; };
        Other.start(1);
    }

    // Waits while another timer of the same interval fires ten times; false if it does not.
    bool PassTime() {
        int Beats = 0;
        const auto Connection = QObject::connect(&Other, &QTimer::timeout, [&] { ++Beats; });
        const bool Passed = QTest::qWaitFor([&] { return Beats >= 10; });
        QObject::disconnect(Connection);
        return Passed;
    }

    QTimer Other;
    int Count = 0;
};

TEST_F(Ticks, ComeWhileTheTimerIsEnabled) {
    ASSERT_TRUE(PassTime());
    EXPECT_EQ(Count, 0);
    Demo.Clock.Enabled = true;
    EXPECT_TRUE(QTest::qWaitFor([&] { return Count >= 3; }));
    Demo.Clock.Enabled = false;
    const int Before = Count;
    ASSERT_TRUE(PassTime());
    EXPECT_EQ(Count, Before);
}

TEST_F(Ticks, WaitWhileAMessageIsOpenThenOneLateOneFollows) {
    int Inside = -1;
    Demo.Clock.Tick = [&] {
        ++Count;
        Demo.Clock.Enabled = false;
    };
    Demo.Clock.Enabled = true;
    WhenOpen<QMessageBox>([&](QMessageBox& Box) {
        EXPECT_TRUE(PassTime());
        Inside = Count;
        Box.accept();
    });
    Desktop.ShowMessage({"A message", "Text"});
    EXPECT_EQ(Inside, 0);
    EXPECT_EQ(Count, 0) << "the event that asked runs to its end first";
    EXPECT_TRUE(QTest::qWaitFor([&] { return Count == 1; }));
    ASSERT_TRUE(PassTime());
    EXPECT_EQ(Count, 1);
}

TEST_F(Ticks, ATimerStoppedWhileTheMessageIsOpenStaysSilent) {
    Demo.Clock.Enabled = true;
    WhenOpen<QMessageBox>([&](QMessageBox& Box) {
        EXPECT_TRUE(PassTime());
        Demo.Clock.Enabled = false;
        Box.accept();
    });
    Desktop.ShowMessage({"A message", "Text"});
    ASSERT_TRUE(PassTime());
    EXPECT_EQ(Count, 0);
}

TEST_F(Ticks, DoNotComeInTheMiddleOfAnEvent) {
    Demo.Clock.Enabled = true;
    const QDeadlineTimer Enough(5);  // milliseconds, several intervals
    while (!Enough.hasExpired()) Desktop.ProcessPendingEvents();
    EXPECT_EQ(Count, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Count > 0; }));
}

}  // namespace
}  // namespace gloamtide
