#include "platform/qt/qt_host.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

TEST(Host, AReadingOfTheClockCountsTheWeekFromSunday) {
    for (int Day = 22; Day <= 28; ++Day) {  // 22 November 2026 is a Sunday
        const DateTime R = ToDateTime(QDateTime(QDate(2026, 11, Day), QTime(23, 59, 58, 125), Qt::UTC));
        EXPECT_EQ(std::tie(R.Year, R.Month, R.Day, R.DayOfWeek), std::tuple(2026, 11, Day, Day - 22));
        EXPECT_EQ(std::tie(R.Hour, R.Minute, R.Second, R.Milliseconds), std::tuple(23, 59, 58, 125));
    }
}

TEST(Host, HasTwoClocksAndAScreenInTwips) {
    QtHost Desktop;
    const auto MinutesOf = [](const DateTime& R) { return R.Hour * 60 + R.Minute; };
    const int Ahead = (MinutesOf(Desktop.LocalTime()) - MinutesOf(Desktop.SystemTime()) + 1440) % 1440;
    EXPECT_NEAR(Ahead, 330, 1) << "the zone that main() sets";
    const QSizeF Screen(Desktop.ScreenWidthTwips(), Desktop.ScreenHeightTwips());
    EXPECT_EQ(Screen, 15.0 * QSizeF(QGuiApplication::primaryScreen()->size()));
}

TEST(Host, TheProcessEndsWhenTheProgramAsksAndNotBefore) {
    QtHost Early;
    Early.EndProcess();
    EXPECT_EQ(Early.Run(), 0);
    QtHost Desktop;
    bool Asked = false;
    QTimer::singleShot(1, [&] { QWidget().showNormal(); });  // a window that closes does not end it
    QTimer::singleShot(3, [&] {
        Asked = true;
        Desktop.EndProcess();
    });
    EXPECT_EQ(Desktop.Run(), 0);
    EXPECT_TRUE(Asked);
}

}  // namespace
}  // namespace gloamtide
