#include "platform/qt/qt_host.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDateTime>
#include <QScreen>
#include <QTimer>

namespace gloamtide {
namespace {

TEST(Host, AReadingOfTheClockCountsTheWeekFromSunday) {
    const DateTime Sunday = ToDateTime(QDateTime(QDate(2026, 11, 22), QTime(23, 59, 58, 125), Qt::UTC));
    EXPECT_EQ(Sunday.Year, 2026);
    EXPECT_EQ(Sunday.Month, 11);
    EXPECT_EQ(Sunday.Day, 22);
    EXPECT_EQ(Sunday.DayOfWeek, 0);
    EXPECT_EQ(Sunday.Hour, 23);
    EXPECT_EQ(Sunday.Minute, 59);
    EXPECT_EQ(Sunday.Second, 58);
    EXPECT_EQ(Sunday.Milliseconds, 125);
    EXPECT_EQ(ToDateTime(QDateTime(QDate(2026, 11, 28), QTime(0, 0), Qt::UTC)).DayOfWeek, 6);
}

TEST(Host, TheScreenCountsInTwips) {
    QtHost Desktop;
    const QSize Screen = QGuiApplication::primaryScreen()->size();
    EXPECT_EQ(Desktop.ScreenWidthTwips(), 15.0 * Screen.width());
    EXPECT_EQ(Desktop.ScreenHeightTwips(), 15.0 * Screen.height());
}

TEST(Host, TheProcessEndsWhenTheProgramAsksEvenBeforeTheLoopRuns) {
    {
        QtHost Desktop;
        Desktop.EndProcess();
        EXPECT_EQ(Desktop.Run(), 0);
    }
    QtHost Desktop;
    QTimer::singleShot(0, [&] { Desktop.EndProcess(); });
    EXPECT_EQ(Desktop.Run(), 0);
}

TEST(Host, IsTheOneInForceAsLongAsItLives) {
    {
        QtHost Desktop;
        EXPECT_EQ(host, &Desktop);
    }
    EXPECT_EQ(host, nullptr);
}

}  // namespace
}  // namespace gloamtide
