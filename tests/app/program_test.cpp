// The built program on a display of its own, with real keys.

#include <gtest/gtest.h>

#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
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
        Process.start(GLOAMTIDE_PROGRAM, QStringList());
        ASSERT_FALSE(Screen->Await("File Not Found").isEmpty()) << Process.readAllStandardError().toStdString();
        Screen->Do({"key", "Return"});
        Main = Screen->Await("Gloamtide (Config File not found -- default configuration used)");
        ASSERT_FALSE(Main.isEmpty());
    }

    void ExpectItEnds() {
        EXPECT_TRUE(Process.waitForFinished(20000));
        EXPECT_EQ(Process.exitStatus(), QProcess::NormalExit);
        EXPECT_EQ(Process.exitCode(), 0);
    }

    std::optional<Display> Screen;
    const QTemporaryDir Folder;
    QProcess Process;
    QString Main;  // the main window
};

TEST_F(Program, TellsItsFallbackFillsTheScreenAndClosesByItsCloseButton) {
    const QString Geometry = Screen->Do({"getwindowgeometry", "--shell", Main});
    EXPECT_TRUE(Geometry.contains("WIDTH=12")) << Geometry.toStdString();  // all over the screen, but for a frame
    Screen->Do({"key", "alt+F4"});
    ExpectItEnds();
}

TEST_F(Program, OpensADialogByKeysAndQuitsFromAMenuOpenedByMouse) {
    Screen->Do({"key", "alt+h", "a"});
    ASSERT_FALSE(Screen->Await("About Gloamtide").isEmpty());
    Screen->Do({"key", "Escape"});
    ASSERT_EQ(Screen->Await("Gloamtide (Config File not found -- default configuration used)"), Main);
    Screen->Do({"mousemove", "--window", Main, "18", "10", "click", "1"});  // File
    Screen->Do({"key", "Up", "Return"});                                    // Quit, its last item
    ExpectItEnds();
}

}  // namespace
