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

// One that is damaged in part, and one that cannot be written: each is told once, and what can be read is read.
TEST(Host, TellsWhatItsSettingsFileHasLost) {
    struct HearingHost : QtHost {
        MessageAnswer ShowMessage(const MessageBox& Message) override {
            Heard += Message.Text;
            return MessageAnswer::OK;
        }
        std::string Heard;
    };
    const QTemporaryDir Folder;
    const QString Path = Folder.filePath("sub/a.ini");
    const auto Bytes = [](const QString& Name) {
        QFile File(Name);
        return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
    };
    const auto Say = [&](const QString& Name) {
        HearingHost Desktop;
        Desktop.KeepSettings(Name);
        Desktop.EndProcess();
        Desktop.Run();
        Desktop.Run();
        const std::string Read = Desktop.ReadSetting("show/almanac");
        Desktop.WriteSetting("show/almanac", "false");
        return Desktop.Heard.substr(0, 22) + "|" + Read;
    };
    EXPECT_EQ(Say(Path), "|");
    EXPECT_EQ(Say(Path), "|false");
    const QByteArray Damaged =
        QByteArray("[show]\nalmanac=true\n~garbage\nmore garbage\n[other]\nkept=1\n").replace('~', '\0');
    QFile File(Path);
    ASSERT_TRUE(File.open(QIODevice::WriteOnly) && File.write(Damaged) == Damaged.size());
    File.close();
    EXPECT_EQ(Say(Path), "Parts of the settings |true");
    EXPECT_EQ(Bytes(Path + ".damaged"), Damaged);
    EXPECT_TRUE(Bytes(Path).contains("kept=1"));
    EXPECT_EQ(Say(Path), "|false");
    EXPECT_EQ(Say("/proc/none/a.ini"), "The window's place and|");
    EXPECT_EQ(Say(Folder.path()), "The window's place and|") << "a folder";
}

}  // namespace
}  // namespace gloamtide
