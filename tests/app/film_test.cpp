// Films: their pictures are those of the same instants, and their files hold them.

#include "app/film.h"

#include <gtest/gtest.h>

#include <QtCore>
#include <QtGui>

#include "app/still_picture.h"
#include "tests/fresh_program.h"

namespace gloamtide {
namespace {

// Pictures that stand still, change in a part, and change slowly all over.
QImage Drawn(std::int64_t Which) {
    QImage Picture(48, 32, QImage::Format_ARGB32);
    Picture.fill(QColor(0, std::max(70, static_cast<int>(Which)), 120));
    if (Which >= 35) QPainter(&Picture).fillRect(static_cast<int>(Which) % 40, 8, 8, 16, Qt::white);
    return Picture;
}

double MeanDifference(const QImage& One, const QImage& Other) {
    double Sum = 0.0;
    for (int Y = 0; Y < One.height(); ++Y) {
        for (int X = 0; X < One.width(); ++X) {
            const QColor A = One.pixelColor(X, Y);
            const QColor B = Other.pixelColor(X, Y);
            Sum += std::abs(A.red() - B.red()) + std::abs(A.green() - B.green()) + std::abs(A.blue() - B.blue());
        }
    }
    return Sum / (3.0 * One.width() * One.height());
}

TEST(Film, HoldsEachPictureAtItsTime) {
    constexpr int Count = 100;
    const QTemporaryDir Folder;
    struct Format {
        const char* Name;
        void (*Write)(const Film&, LongFile&);
        double Loss;  // levels of a channel
    };
    for (const auto& [Name, Write, Loss] : {Format{"film.webp", WriteWebP, 4.0}, Format{"film.gif", WriteGif, 5.0}}) {
        SCOPED_TRACE(Name);
        const QString Path = Folder.filePath(Name);
        std::int64_t Told = 0;
        {
            LongFile File(Path.toStdString());
            Write({Count, 12, Drawn, [&](std::int64_t Done) { Told = Done; }}, File);
            EXPECT_FALSE(QFile::exists(Path));
            File.PutInPlace();
        }
        EXPECT_EQ(Told, Count);
        QImageReader Reader(Path);
        int Shown = 0;  // milliseconds
        for (QImage Picture = Reader.read(); !Picture.isNull(); Picture = Reader.read()) {
            const int Delay = Reader.nextImageDelay();
            for (const int Inside : {Shown + 12, Shown + Delay - 12}) {
                EXPECT_LT(MeanDifference(Picture, Drawn(std::min(Inside * 12 / 1000, Count - 1))), Loss) << Inside;
            }
            Shown += Delay;
        }
        EXPECT_NEAR(Shown, Count * 1000 / 12, 10);
        EXPECT_EQ(Reader.loopCount(), -1);
    }
    EXPECT_EQ(QDir(Folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList({"film.gif", "film.webp"}));
}

// Nothing of the instants before stays in a picture: no dial, no caption, no number of the last day.
TEST(Film, ShowsWhatAStillOfTheInstantShows) {
    StillOptions Asked;
    Asked.Picture = "a.webp";
    Asked.Place = "69.6,18.9";
    for (Boolean* Each : {&state.ShowSun, &state.ShowMoon, &state.ShowAnalemma, &state.ShowSundial, &state.ShowMapGrid,
                          &state.ShowTimezones}) {
        Asked.Shown.emplace_back(Each, True);
    }
    const Step Each = {0, 1};
    for (const bool OnlyMap : {false, true}) {
        Asked.OnlyMap = OnlyMap;
        Asked.Size = OnlyMap ? QSize(700, 333) : QSize();
        Asked.At = InstantOf({1581, 11, 0, 20, 3, 10, 30, 0});
        std::vector<QImage> Film;
        {
            RenewProgram();
            StillPicture Program(Asked);
            for (int Which = 0; Which < 3; ++Which) {
                Program.Show(ReadingOf(After(*Asked.At, Each, Which)));
                Film.push_back(Program.Picture());
            }
            Program.Show({2026, 6, 0, 1, 12, 0, 0, 0});
            Program.Show(ReadingOf(After(*Asked.At, Each, 1)));
            EXPECT_EQ(Program.Picture(), Film[1]);
            LoadedForms.clear();
        }
        for (int Which = 0; Which < 3; ++Which) {
            RenewProgram();
            Asked.At = InstantOf({static_cast<std::int16_t>(1581 + Which), 11, 0, 20, 3, 10, 30, 0});
            StillPicture Program(Asked);
            EXPECT_EQ(Program.Picture(), Film[static_cast<std::size_t>(Which)]) << Which << OnlyMap;
            LoadedForms.clear();
        }
    }
}

}  // namespace
}  // namespace gloamtide
