// gloamtide-still, run as users run it.

#include <gtest/gtest.h>

#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Outcome {
    int ExitCode = -1;
    QString Output;
    QString Error;
};

class Still : public testing::Test {
protected:
    Outcome Run(const QStringList& Arguments,
                const QProcessEnvironment& Environment = QProcessEnvironment::systemEnvironment()) const {
        QProcess Process;
        Process.setProcessEnvironment(Environment);
        Process.setWorkingDirectory(Folder.path());
        Process.start(GLOAMTIDE_STILL, Arguments);
        Process.waitForFinished(60000);
        return {Process.exitCode(), QString::fromUtf8(Process.readAllStandardOutput()),
                QString::fromUtf8(Process.readAllStandardError())};
    }

    QString Path(const QString& Name) const { return Folder.filePath(Name); }
    QStringList Files() const { return QDir(Folder.path()).entryList(QDir::Files); }

    QTemporaryDir Folder;
};

TEST_F(Still, WritesTheWindowAtEachScreenWidth) {
    for (const int Width : {640, 800, 1024, 1280}) {
        const Outcome Ran =
            Run({"--at", "2026-03-20T12:00:00Z", "--screen-width", QString::number(Width), "picture.png"});
        EXPECT_EQ(Ran.ExitCode, 0);
        EXPECT_EQ(Ran.Error, "");
        const QImage Picture(Path("picture.png"));
        EXPECT_EQ(Picture.size(), QSize(Width, Width * 3 / 4));
        EXPECT_EQ(Files(), QStringList{"picture.png"}) << "no other file is written";
    }
}

TEST_F(Still, TheEquinoxIsLitInTheMiddleAndTheSameInstantGivesTheSamePicture) {
    Run({"--at", "2026-03-20T12:00:00Z", "a.png"});
    Run({"--at", "2026-03-20T12:00:00Z", "b.png"});
    const QImage A(Path("a.png"));
    EXPECT_EQ(A, QImage(Path("b.png")));
    const int South = A.height() / 2;  // the southern Atlantic at noon, the Pacific at midnight
    EXPECT_EQ(A.pixelColor(1280 - 4 - 591 - 60, South), QColor(0, 119, 225));
    EXPECT_EQ(A.pixelColor(1280 - 30, South), QColor(0, 10, 54));
}

TEST_F(Still, TheDensityOfTheUsersOwnScreenDoesNotMatter) {
    QProcessEnvironment Dense = QProcessEnvironment::systemEnvironment();
    Dense.insert("QT_SCALE_FACTOR", "2");
    Dense.insert("QT_FONT_DPI", "192");
    Run({"--at", "2026-03-20T12:00:00Z", "--screen-width", "800", "a.png"});
    Run({"--at", "2026-03-20T12:00:00Z", "--screen-width", "800", "b.png"}, Dense);
    EXPECT_EQ(QImage(Path("b.png")).size(), QSize(800, 600));
    EXPECT_EQ(QImage(Path("a.png")), QImage(Path("b.png")));
}

TEST_F(Still, PrintsTheAlmanac) {
    const Outcome Ran = Run({"--almanac", "--at", "2026-06-01T12:00:00Z", "--screen-width", "1024", "picture.png"});
    const QStringList Lines = Ran.Output.split('\n', Qt::SkipEmptyParts);
    EXPECT_EQ(Lines.size(), 18);
    EXPECT_EQ(Lines.value(0).simplified(), "Gloamtide Local Date: June 1, 2026");
    EXPECT_TRUE(Lines.value(1).contains("(Standard Time)"));
    EXPECT_TRUE(Ran.Output.contains("Location Name:            Cleveland, Ohio\n"));
}

TEST_F(Still, ABrokenConfigurationIsToldAndTheDefaultsShown) {
    QFile(Path("broken.gtf")).open(QIODevice::WriteOnly);
    const Outcome Ran = Run({"--config", "broken.gtf", "picture.png"});
    EXPECT_EQ(Ran.ExitCode, 0);
    EXPECT_TRUE(Ran.Error.contains("File Not Found"));
    EXPECT_EQ(Ran.Error.count('\n'), 1);
}

TEST_F(Still, WrongArgumentsAreToldInOneLineAndLeaveNoFile) {
    const QStringList Lines = {
        "",
        "a.png b.png",
        "--at noon a.png",
        "--at 2026-02-30T12:00:00Z a.png",
        "--at 2026-02-20T12:00:00 a.png",
        "--at 2026-03-20T12:00:00Z --at 2026-03-20T12:00:00Z a.png",
        "a.png --at",
        "--screen-width 319 a.png",
        "--screen-width 32768 a.png",
        "--screen-width wide a.png",
        "--screen-width 640 --screen-width 640 a.png",
        "--config nowhere.gtf a.png",
        "--config . a.png",
        "--almanac --almanac a.png",
        "--poster a.png",
    };
    for (const QString& Line : Lines) {
        const Outcome Ran = Run(Line.split(' ', Qt::SkipEmptyParts));
        EXPECT_EQ(Ran.ExitCode, 2) << Line.toStdString();
        EXPECT_EQ(Ran.Error.count('\n'), 1) << Ran.Error.toStdString();
        EXPECT_TRUE(Files().isEmpty()) << Line.toStdString();
    }
}

TEST_F(Still, APictureThatCannotBeWrittenIsTold) {
    for (const QString& Name : {QString("nowhere/a.png"), QString(".")}) {
        const Outcome Ran = Run({Name});
        EXPECT_EQ(Ran.ExitCode, 1);
        EXPECT_EQ(Ran.Error.count('\n'), 1) << Ran.Error.toStdString();
        EXPECT_TRUE(Files().isEmpty());
    }
}

}  // namespace
