// gloamtide-still in the shell: what it writes to, and what both programs answer.

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Line {
    const char* Shell;   // $0 is the program, "still" the same with a small screen at a fixed instant
    const char* Output;  // what is printed, errors too
    int Status;
};

const Line Lines[] = {
    // what is no regular file is written through
    {"still a.png && still /dev/stdout | cmp - a.png", "", 0},
    {"mkfifo pipe; timeout 20 cat pipe >b.png & still a.png && still pipe && wait && cmp a.png b.png && test -p pipe",
     "", 0},
    {"{ mknod full c 1 7 && : >full; } 2>/dev/null || ln -sf /dev/full full; still full; test $? = 1 && test -c full",
     "gloamtide-still: full: No space left on device\n", 0},
    {": >a.png; ln a.png b.png; still b.png; test -s a.png && test a.png -ef b.png", "", 0},
    // any name of a file
    {"n=$(printf 'caf\\351').png; still $n && test -s $n && rm $n", "", 0},
    {"still --config $(printf 'caf\\351').gtf a.png", "gloamtide-still: caf\xE9.gtf: No such file or directory\n", 1},
    {"echo no >b.gtf; still --config b.gtf a.png; test $? = 1 && test ! -e a.png",
     "gloamtide-still: b.gtf: not a configuration file\n", 0},
    // the almanac that nobody can read
    {"still --almanac a.png >/dev/full", "gloamtide-still: cannot print the almanac: No space left on device\n", 1},
    {"still --almanac a.png >&-", "gloamtide-still: cannot print the almanac: Bad file descriptor\n", 1},
    // Qt takes neither arguments nor a density
    {"for o in platform style stylesheet session qwindowgeometry; do still -$o x a.png; done 2>&1 | grep -c Unknown",
     "5\n", 0},
    {"timeout 20 \"${0%-still}\" -platform x", "gloamtide: Unknown option 'platform'.\n", 2},
    {"still a.png; export QT_USE_PHYSICAL_DPI=1; still b.png; cmp a.png b.png", "", 0},
    // questions
    {"\"$0\" --help | head -n 1", "Usage: gloamtide-still [options] OUT.png\n", 0},
    {"timeout 20 \"${0%-still}\" --help | head -n 1", "Usage: gloamtide\n", 0},
    {"\"$0\" --version >a; timeout 20 \"${0%-still}\" --version | cmp - a && grep -cx 'Gloamtide [0-9.]*' a", "1\n", 0},
};

TEST(StillOutput, EndsAsItShould) {
    for (const Line& Each : Lines) {
        SCOPED_TRACE(Each.Shell);
        const QTemporaryDir Folder;
        QProcess Shell;
        Shell.setWorkingDirectory(Folder.path());
        Shell.setProcessChannelMode(QProcess::MergedChannels);
        const QString Still = "still() { \"$0\" --at 2026-03-20T12:00:00Z --screen-width 640 \"$@\"; }; ";
        Shell.start("/bin/sh", {"-c", Still + Each.Shell, GLOAMTIDE_STILL});
        EXPECT_TRUE(Shell.waitForFinished(60000));
        EXPECT_EQ(Shell.readAll().toStdString(), Each.Output);
        EXPECT_EQ(Shell.exitCode(), Each.Status);
    }
}

}  // namespace
