// gloamtide-still, run as users run it.

#include <gtest/gtest.h>

#include <QImage>
#include <QtCore>

#include "tests/golden.h"

namespace {

const QString Equinox = "--at 2026-03-20T12:00:00Z ";

QString Stored(const char* Name) {
    QFile File(GLOAMTIDE_TEST_DATA "/data/" + QString(Name));
    EXPECT_TRUE(File.open(QIODevice::ReadOnly)) << Name;
    return QString::fromUtf8(File.readAll());
}

class Still : public testing::Test {
protected:
    // Runs it with arguments parted by blanks.
    void Run(const QString& Arguments) { Run(GLOAMTIDE_STILL, Arguments.split(' ', Qt::SkipEmptyParts)); }

    void Run(const QString& Program, const QStringList& Arguments) {
        QProcess Process;
        Process.setProcessEnvironment(Environment);
        Process.setWorkingDirectory(Folder.path());
        Process.start(Program, Arguments);
        Process.waitForFinished(60000);
        ExitCode = Process.exitCode();
        Output = QString::fromUtf8(Process.readAllStandardOutput());
        Error = QString::fromUtf8(Process.readAllStandardError());
    }

    QImage Picture() const { return QImage(Folder.filePath("a.png")); }
    QStringList Files() const { return QDir(Folder.path()).entryList(QDir::Files); }

    const QTemporaryDir Folder;
    QProcessEnvironment Environment = QProcessEnvironment::systemEnvironment();
    int ExitCode = -1;
    QString Output;
    QString Error;
};

TEST_F(Still, TheEquinoxIsLitInTheMiddleWhateverTheUsersOwnScreenAndZone) {
    Run(Equinox + "a.png");
    const QImage Shown = Picture();
    const int South = Shown.height() / 2;  // the southern Atlantic at noon, the Pacific at midnight
    EXPECT_EQ(Shown.pixelColor(1280 - 4 - 591 - 60, South), QColor(0, 119, 225));
    EXPECT_EQ(Shown.pixelColor(1280 - 30, South), QColor(0, 10, 54));
    Environment.insert("QT_SCALE_FACTOR", "2");
    Environment.insert("QT_FONT_DPI", "192");
    Environment.insert("TZ", "JST-9");
    Run(Equinox + "a.png");
    EXPECT_EQ(Shown, Picture());
}

TEST_F(Still, PrintsTheAlmanac) {
    Run("--almanac --at 2026-06-01T12:34:30Z --screen-width 1024 a.png");
    gloamtide::ExpectGoldenText("still_almanac.txt", Output.toStdString());
}

TEST_F(Still, TellsInOneLineWhatIsWrongAndLeavesNoFile) {
    QFile(Folder.filePath("broken.gtf")).open(QIODevice::WriteOnly);
    for (const QString& Line : Stored("still_messages.txt").split('\n', Qt::SkipEmptyParts)) {
        SCOPED_TRACE(Line.toStdString());
        const QStringList Parts = Line.split(" | ");  // arguments, exit code, what the message holds
        Run(Parts.value(0));
        EXPECT_EQ(QString::number(ExitCode), Parts.value(1));
        EXPECT_TRUE(Error.startsWith("gloamtide-still: ") && Error.contains(Parts.value(2))) << Error.toStdString();
        EXPECT_EQ(std::tuple(Error.count('\n'), Output, Files()), std::tuple(1, QString(), QStringList{"broken.gtf"}));
    }
}

TEST_F(Still, GetsOnWithTheShell) {
    const QString Begin =
        "cd $(mktemp -d ./XXXXXX); still() { \"$0\" --at 2026-03-20T12:00:00Z --screen-width 640 \"$@\"; }; "
        "film() { still --until 2026-03-22T12:00:00Z --step ${step:-12h} --only-map --size 97x65 \"$@\"; }; ";
    for (const QString& Line : Stored("still_shell.txt").split('\n', Qt::SkipEmptyParts)) {
        if (Line.startsWith('#')) continue;
        const QStringList Parts = Line.split(" => ");
        Run("/bin/sh", {"-c", Begin + Parts.value(0), GLOAMTIDE_STILL});
        const QString Ended = QString("%1 ").arg(ExitCode) + Output + Error;
        EXPECT_EQ(Ended.trimmed().toStdString(), Parts.value(1).toStdString()) << Line.toStdString();
    }
}

}  // namespace
