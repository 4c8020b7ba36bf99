// The built program on a display of its own, with real keys and mouse.

#include <gtest/gtest.h>

#include <QDate>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <cstring>
#include <optional>

namespace {

// A virtual display with a window manager, for as long as it lives.
class Display {
public:
    Display() {
        // Without -noreset the server starts anew, and throws its clients out, whenever xdotool was its only one.
        Server.start("Xvfb", {"-displayfd", "1", "-screen", "0", "1280x1024x24", "-nolisten", "tcp", "-noreset"});
        if (!Server.waitForStarted() || !Server.waitForReadyRead(20000)) return;
        Name = ":" + QString::fromUtf8(Server.readLine()).trimmed();
        Manager.setProcessEnvironment(Environment());
        Manager.start("openbox", {"--sm-disable"});
        // Windows that come before the manager stands would never get the keyboard.
        Ready = QTest::qWaitFor([&] { return Do({"get_num_desktops"}).toInt() > 0; }, 20000);
    }
    ~Display() {
        for (QProcess* Each : {&Manager, &Server}) {
            Each->terminate();
            Each->waitForFinished();
        }
    }
    Display(const Display&) = delete;
    Display& operator=(const Display&) = delete;

    QProcessEnvironment Environment() const {
        QProcessEnvironment Result = QProcessEnvironment::systemEnvironment();
        Result.insert("DISPLAY", Name);
        Result.insert("QT_QPA_PLATFORM", "xcb");
        Result.insert("ASAN_OPTIONS", "detect_leaks=0");  // the system's message bus library leaks where it connects
        return Result;
    }

    // Output of xdotool, without the end of its last line.
    QString Do(const QStringList& Arguments) const {
        QProcess Tool;
        Tool.setProcessEnvironment(Environment());
        Tool.start("xdotool", Arguments);
        Tool.waitForFinished();
        return QString::fromUtf8(Tool.readAllStandardOutput()).trimmed();
    }

    // The window of that title, once it has the keyboard; an empty text where it does not come in time.
    QString Await(const QString& Title) const {
        QString Found;
        const bool Came = QTest::qWaitFor(
            [&] {
                const QString Active = Do({"getactivewindow", "getwindowname"});
                if (Active == Title) Found = Do({"getactivewindow"});
                return !Found.isEmpty();
            },
            30000);
        return Came ? Found : QString();
    }

    QString Name;
    bool Ready = false;

private:
    QProcess Server;
    QProcess Manager;
};

bool Installed(const QStringList& Programs) {
    return std::all_of(Programs.begin(), Programs.end(),
                       [](const QString& Each) { return !QStandardPaths::findExecutable(Each).isEmpty(); });
}

class Program : public testing::Test {
protected:
    void SetUp() override {
        if (!Installed({"Xvfb", "openbox", "xdotool"})) GTEST_SKIP() << "needs Xvfb, openbox and xdotool";
        Screen.emplace();
        ASSERT_TRUE(Screen->Ready);
        Process.setProcessEnvironment(Screen->Environment());
        Process.setWorkingDirectory(Folder.path());
    }

    void StartWithoutFiles() {
        Process.start(GLOAMTIDE_PROGRAM, QStringList());
        ASSERT_FALSE(Screen->Await("File Not Found").isEmpty()) << Process.readAllStandardError().toStdString();
        Keys({"Return"});
        Main = Screen->Await("Gloamtide (Config File not found -- default configuration used)");
        ASSERT_FALSE(Main.isEmpty());
    }

    void StartWith(const QString& Path) {
        Process.start(GLOAMTIDE_PROGRAM, QStringList());
        ASSERT_FALSE(Screen->Await("Gloamtide (" + Path + ")").isEmpty());
    }

    void Keys(const QStringList& Pressed) const { Screen->Do(QStringList{"key", "--delay", "60"} + Pressed); }
    void Type(const QString& Text) const { Screen->Do({"type", "--delay", "20", Text}); }

    void ExpectItEnds() {
        EXPECT_TRUE(Process.waitForFinished(20000));
        EXPECT_EQ(Process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(Process.exitCode(), 0);
    }

    QString PathOf(const QString& Name) const { return Folder.filePath(Name); }

    QByteArray Read(const QString& Name) const {
        QFile File(PathOf(Name));
        return File.open(QIODevice::ReadOnly) ? File.readAll() : QByteArray();
    }

    // A number at the start of a record of a configuration file, which counts from 1.
    template <class Number>
    Number Record(const QString& Name, int Which) const {
        Number Value{};
        const QByteArray Bytes = Read(Name).mid(qsizetype{48} * (Which - 1), sizeof(Number));
        if (Bytes.size() == sizeof(Number)) std::memcpy(&Value, Bytes.constData(), sizeof(Number));
        return Value;
    }

    // Days between the instant shown and the present, as File/Save writes them.
    double SavedOffset(const QString& Name) {
        QFile::remove(PathOf(Name));
        Keys({"alt+f", "s"});
        EXPECT_TRUE(QTest::qWaitFor([&] { return Read(Name).size() == 1008; }, 10000));
        return Record<double>(Name, 1);
    }

    std::optional<Display> Screen;
    const QTemporaryDir Folder;
    QProcess Process;
    QString Main;  // the main window
};

TEST_F(Program, TellsItsFallbackFillsTheScreenAndClosesByItsCloseButton) {
    StartWithoutFiles();
    const QString Geometry = Screen->Do({"getwindowgeometry", "--shell", Main});
    const QRegularExpression AllButAFrame("WIDTH=12[78]\\d\nHEIGHT=(9[5-9]|10[0-2])\\d\n");
    EXPECT_TRUE(Geometry.contains(AllButAFrame)) << Geometry.toStdString();
    Keys({"alt+F4"});
    ASSERT_FALSE(Screen->Await("Save Configuration?").isEmpty());
    Keys({"alt+n"});
    ExpectItEnds();
    EXPECT_EQ(Read("Startup.dat"), "\"Config File not found -- default configuration used\"\r\n");
}

TEST_F(Program, OpensADialogByKeysAndQuitsFromAMenuOpenedByMouse) {
    StartWithoutFiles();
    Keys({"alt+h", "a"});
    ASSERT_FALSE(Screen->Await("About Gloamtide").isEmpty());
    Keys({"Escape"});
    ASSERT_EQ(Screen->Await("Gloamtide (Config File not found -- default configuration used)"), Main);
    Screen->Do({"mousemove", "--window", Main, "18", "10", "click", "1"});  // File
    Keys({"Up", "Return"});                                                 // Quit, its last item
    ASSERT_FALSE(Screen->Await("Save Configuration?").isEmpty());
    Keys({"alt+y"});
    ASSERT_FALSE(Screen->Await("Save As").isEmpty());
    Keys({"Escape"});
    ExpectItEnds();
    EXPECT_TRUE(QDir(Folder.path()).isEmpty()) << "Cancel ends it without saving anything";
}

// Place, date, configuration and animation set with keys and mouse alone, kept, and found again.
TEST_F(Program, KeepsWhatTheUserSetAndComesUpThere) {
    StartWithoutFiles();
    Keys({"alt+c"});
    ASSERT_FALSE(Screen->Await("Gloamtide - Configure").isEmpty());
    Keys({"alt+Down"});
    Type("Tokyo");
    Keys({"Return", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Tab", "Down"});  // to a new date
    Keys({"Tab", "Tab", "Tab", "Tab"});                                         // to its year
    Type("1999");
    Keys({"Return"});
    ASSERT_FALSE(Screen->Await("Gloamtide (Config File not found -- default configuration used)").isEmpty());
    Keys({"alt+f", "a"});
    ASSERT_FALSE(Screen->Await("Save As").isEmpty());
    Type(PathOf("home"));
    Keys({"Return"});
    ASSERT_FALSE(Screen->Await("Gloamtide (" + PathOf("home.gtf") + ")").isEmpty());
    EXPECT_EQ(Read("home.gtf").mid(672, 14), QByteArray("\x0C\0Tokyo, Japan", 14));
    EXPECT_EQ(Record<double>("home.gtf", 16), 35.0 + 41.0 / 60.0);
    EXPECT_EQ(Record<float>("home.gtf", 2), -9.0F);
    const double Begin = Record<double>("home.gtf", 1);
    EXPECT_NEAR(Begin, 365.25 * (1999 - QDate::currentDate().year()), 3.0);

    Keys({"alt+a", "Return"});
    ASSERT_FALSE(Screen->Await("Gloamtide - Configure Animation").isEmpty());
    Keys({"Tab"});
    Type("30");
    Keys({"Return"});
    ASSERT_FALSE(Screen->Await("Gloamtide (" + PathOf("home.gtf") + ")").isEmpty());
    EXPECT_EQ(Record<float>("home.gtf", 12), 30.0F);
    Keys({"alt+a", "Down", "Return"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return SavedOffset("home.gtf") > Begin + 60.0; }, 20000));
    Screen->Do({"mousemove", "--window", Main, "1209", "612", "click", "1"});  // Stop
    // Two readings further apart than two steps are.
    const double Stopped = SavedOffset("home.gtf");
    QElapsedTimer Clock;
    Clock.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return Clock.hasExpired(2200); }, 10000));
    EXPECT_EQ(SavedOffset("home.gtf"), Stopped);
    Keys({"alt+q"});
    ExpectItEnds();
    EXPECT_EQ(Read("Startup.dat"), "\"" + PathOf("home.gtf").toUtf8() + "\"\r\n");
    const QByteArray Kept = Read("home.gtf");

    StartWith(PathOf("home.gtf"));
    Keys({"alt+s", "s", "alt+q"});  // shows the Sun, quits
    ASSERT_FALSE(Screen->Await("Save Configuration?").isEmpty());
    Keys({"alt+n"});
    ExpectItEnds();
    EXPECT_EQ(Read("home.gtf"), Kept);

    StartWith(PathOf("home.gtf"));
    Keys({"alt+s", "s", "alt+q"});
    ASSERT_FALSE(Screen->Await("Save Configuration?").isEmpty());
    Keys({"alt+y"});
    ASSERT_FALSE(Screen->Await("Save As").isEmpty());
    Type(PathOf("sunny"));
    Keys({"Return"});
    ExpectItEnds();
    EXPECT_EQ(Record<std::int16_t>("sunny.gtf", 9), -1);
    EXPECT_EQ(Record<double>("sunny.gtf", 1), Stopped);

    StartWith(PathOf("sunny.gtf"));
    Keys({"alt+q"});
    ExpectItEnds();
}

}  // namespace
