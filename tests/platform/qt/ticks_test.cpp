#include "platform/qt/ticks.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

class Ticks : public DesktopTest {
protected:
    Ticks() {
        Demo.Clock.Tick = [this] { ++Count; };
        Demo.Clock.Interval = 1;
    }

    int Count = 0;
};

TEST_F(Ticks, ComeAtTheirIntervalWhileTheTimerIsEnabled) {
    const std::tuple<bool, int, bool> Steps[] = {// enabled, milliseconds, whether ticks come soon
                                                 {false, 1, false},
                                                 {true, 1, true},
                                                 {true, 1000000, false},
                                                 {true, 1, true},
                                                 {true, 0, false}};
    for (const auto& [Enabled, Interval, Come] : Steps) {
        Demo.Clock.Enabled = Enabled;
        Demo.Clock.Interval = Interval;
        Count = 0;
        ASSERT_TRUE(PassTime());
        EXPECT_EQ(Count > 0, Come) << Enabled << " at " << Interval;
    }
}

TEST_F(Ticks, WaitWhileADialogIsOpenThenOneLateOneFollows) {
    const std::function<void()> Dialogs[] = {[&] {
                                                 Desktop.ShowMessage({"A message", "Text"});
                                             },
                                             [&] { Desktop.ShowOpenDialog({}); }, [&] { Desktop.ShowSaveDialog({}); }};
    for (int Case = 0; Case < 6; ++Case) {
        const bool StartsAnew = Case % 2 == 1;  // then none is owed
        Count = 0;
        Demo.Clock.Interval = 1;
        Demo.Clock.Enabled = true;
        WhenOpen<QDialog>([&](QDialog& Box) {
            EXPECT_TRUE(PassTime());
            EXPECT_EQ(Count, 0);
            Demo.Clock.Interval = 1000000;
            Demo.Clock.Enabled = !StartsAnew;
            Demo.Clock.Enabled = true;
            Box.reject();
        });
        Dialogs[Case / 2]();
        EXPECT_EQ(Count, 0) << "the event that asked runs to its end first";
        ASSERT_TRUE(PassTime());
        EXPECT_EQ(Count, StartsAnew ? 0 : 1) << Case;
    }
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
