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

TEST(Host, TellsWhatItsSettingsFileHasLostAndReadsTheRest) {
    struct HearingHost : QtHost {
        MessageAnswer ShowMessage(const MessageBox& Message) override {
            Heard += Message.Text.substr(0, 5);
            return MessageAnswer::OK;
        }
        std::string Heard;
    };
    const QTemporaryDir Folder;
    const QString Path = Folder.filePath("sub/a.ini");
    const auto ExpectTold = [](const QString& File, const std::string& Told, const std::string& Kept) {
        HearingHost Desktop;
        Desktop.KeepSettings(File);
        QTimer::singleShot(0, [&] { Desktop.EndProcess(); });
        for (int Time = 0; Time < 2; ++Time) Desktop.Run();
        EXPECT_EQ(Desktop.Heard + "|" + Desktop.ReadSetting("a/b"), Told + "|" + Kept);
        Desktop.WriteSetting("a/b", "new");
    };
    ExpectTold(Path, "", "");
    QSaveFile File(Path);
    ASSERT_TRUE(File.open(QIODevice::WriteOnly) && File.write("[a]\nb=old\nmore garbage\n") > 0 && File.commit());
    ExpectTold(Path, "Parts", "old");
    ExpectTold(Path, "", "new");
    EXPECT_EQ(QFile(Path + ".damaged").size(), 23) << "all of it";
    for (const QString& None : {QString("/proc/none/a.ini"), Folder.path()}) ExpectTold(None, "The w", "");
}

}  // namespace
}  // namespace gloamtide
