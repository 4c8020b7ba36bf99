#include "platform/qt/widgets.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

class Widgets : public DesktopTest {
protected:
    QRect PlaceOf(const Control& Record) { return Find<QWidget>(Record).geometry(); }
    QColor ColourOf(const Control& Record, QPalette::ColorRole Role) {
        return Find<QWidget>(Record).palette().color(Role);
    }
};

TEST_F(Widgets, ALabelShowsWhatItsRecordSays) {
    auto& Record = Demo.OnPicture;
    auto& Shown = Find<QLabel>(Record);
    const auto Look = [&] {
        return std::tuple(Shown.font().pixelSize(), Shown.font().bold(), Shown.wordWrap(), Shown.autoFillBackground(),
                          (Shown.alignment() & Qt::AlignHCenter) != 0, Shown.isVisible());
    };
    EXPECT_EQ(Look(), std::tuple(11, false, false, false, false, true));
    for (const char* Text : {"<b>Midnight</b>", "Dawn"}) {
        Record.Caption = Text;
        Record.ToolTipText = Text;
        EXPECT_EQ(Shown.text() + Shown.toolTip() + Shown.accessibleName(), QString(Text).repeated(3));
    }
    EXPECT_EQ(Shown.textFormat(), Qt::PlainText);
    Record.FontSize = 12.0;
    for (Property<bool>* Each : {&Record.FontBold, &Record.WordWrap, &Record.Opaque}) *Each = true;
    Record.BackColor = RGB(0, 0, 255);
    Record.TextAlignment = Alignment::Center;
    Record.Visible = false;
    EXPECT_EQ(Look(), std::tuple(16, true, true, true, true, false));
    EXPECT_EQ(ColourOf(Record, QPalette::Window), QColor(0, 0, 255));
}

TEST_F(Widgets, CaptionsAreSpokenWithoutTheirAccessKeysAndHaveTheirColours) {
    const auto Expect = [&](auto& Record, Qt::GlobalColor Colour) {
        Record.Caption = "&Far &north";
        Record.ForeColor = RGB(255, 0, 0);
        EXPECT_EQ(Find<QWidget>(Record).accessibleName(), "Far north") << Record.Name;
        EXPECT_EQ(ColourOf(Record, QPalette::WindowText), Colour) << Record.Name;
    };
    Expect(Demo.OK, Qt::black);  // as the desktop has its buttons
    Expect(Demo.North, Qt::red);
    Expect(Demo.Tick, Qt::red);
    Expect(Demo.Choice, Qt::red);
}

TEST_F(Widgets, StandWhereTheirRecordsSayWithinTheBorderAndCutNoLetters) {
    EXPECT_EQ(PlaceOf(Demo.Picture), QRect(10, 10, 102, 102));
    Demo.OnPicture.Move(80.0, 35.0);  // units of the picture: 20 pixels from the left, 30 from the top
    Demo.OnPicture.Height.SetPixels(20.0);
    EXPECT_EQ(PlaceOf(Demo.OnPicture), QRect(21, 31, 40, 20));
    Demo.OnPicture.Left.SetPixels(90.0);
    const QRect Ink = Find<QLabel>(Demo.OnPicture).fontMetrics().tightBoundingRect("OnPicture");
    EXPECT_EQ(PlaceOf(Demo.OnPicture).left() + Ink.right() + 1, 100) << "it reaches over to the left";
    Demo.OnPicture.Opaque = true;
    Demo.OnPicture.Top.SetPixels(90.0);
    EXPECT_EQ(PlaceOf(Demo.OnPicture), QRect(91, 81, 10, 20)) << "cut off at the right, moved in from below";
    const QSize Heading = PlaceOf(Demo.Heading).size();
    Demo.Heading.Height.SetPixels(7.0);
    EXPECT_EQ(PlaceOf(Demo.Heading).size(), Heading);
    EXPECT_NEAR(PlaceOf(Demo.Heading).center().y(), 120 + 3, 1) << "it reaches over above and below";
}

// Without a border: the map's dates and the hours of the dial.
TEST_F(Widgets, ALabelAtTheEdgeOfAPictureStaysAndKeepsItsFirstLetter) {
    Demo.Picture.BorderWidth = 0;
    auto& Shown = Find<QLabel>(Demo.OnPicture);
    const auto Ink = [](QLabel& Text) {
        QImage Letters(Text.size(), QImage::Format_RGB32);
        Letters.fill(Qt::magenta);
        Text.render(&Letters, {}, {}, {});
        const QRegion Found(
            QBitmap::fromImage(Letters.createMaskFromColor(QColor(Qt::magenta).rgb(), Qt::MaskInColor)));
        return Found.translated(-Found.boundingRect().topLeft());
    };
    Demo.OnPicture.Caption = "10";
    const int Last = 102 - Shown.fontMetrics().tightBoundingRect("10").right();
    Demo.OnPicture.Left.SetPixels(Last);
    EXPECT_EQ(PlaceOf(Demo.OnPicture).left(), Last);
    Demo.OnPicture.Caption = "Jul";
    Demo.OnPicture.Left.SetPixels(0.0);
    QLabel Free("Jul");
    Free.setFont(Shown.font());
    Free.setMargin(9);
    Free.adjustSize();
    EXPECT_TRUE(Ink(Shown) == Ink(Free));
}

TEST_F(Widgets, ASizeOfZeroBecomesTheNaturalOneAndFollowsTheText) {
    auto& Shown = Find<QLabel>(Demo.Heading);
    const auto Expect = [&](const char* Text, int Width, int Height) {
        Demo.Heading.Caption = Text;
        const QSize Wanted(Width == 0 ? Shown.sizeHint().width() : Width, Height);
        EXPECT_EQ(Shown.size(), Wanted) << Text;
        EXPECT_EQ(QSizeF(Demo.Heading.Width.Pixels(), Demo.Heading.Height.Pixels()), QSizeF(Wanted)) << Text;
    };
    const int Line = Shown.height();
    Expect("Year", 0, Line);
    Expect("A year between -4000 and 4000", 0, Line);
    Demo.Heading.Width.SetPixels(60.0);
    Expect("Another text, longer than sixty pixels", 60, Line);
    Demo.Heading.WordWrap = true;
    Expect("A text of several lines of sixty pixels", 60, Shown.heightForWidth(60));
    EXPECT_GE(Shown.height(), 3 * Line);
}

TEST_F(Widgets, AButtonIsPressedByMouseAndByEnter) {
    QTest::mouseClick(&Find<QPushButton>(Demo.Cancel), Qt::LeftButton);
    QTest::keyClick(&Find<QPushButton>(Demo.Cancel), Qt::Key_Return);
    EXPECT_EQ(Heard, "Cancel Cancel ") << "the focused button, not the default one";
}

TEST_F(Widgets, OptionsExcludeEachOtherBothWays) {
    auto& North = Find<QRadioButton>(Demo.North);
    auto& South = Find<QRadioButton>(Demo.South);
    const auto ExpectShown = [&](bool IsNorth, bool IsSouth, const char* Why) {
        const std::tuple Shown(North.isChecked(), South.isChecked(), Demo.North.Value.Get(), Demo.South.Value.Get());
        EXPECT_EQ(Shown, std::tuple(IsNorth, IsSouth, IsNorth, IsSouth)) << Why;
    };
    Demo.North.Value = true;
    ExpectShown(true, false, "the program chooses");
    South.click();
    South.click();
    ExpectShown(false, true, "the user chooses");
    South.setFocus();
    QTest::keyClick(&South, Qt::Key_Up);
    ExpectShown(true, false, "the arrow keys choose");
    Demo.North.Value = false;
    ExpectShown(false, false, "the program can leave none selected");
    EXPECT_EQ(Heard, "North South North ") << "once for each change";
}

TEST_F(Widgets, FieldsWorkBothWays) {
    auto& Tick = Find<QCheckBox>(Demo.Tick);
    Tick.click();
    EXPECT_EQ(Demo.Tick.Value, 1);
    Demo.Tick.Value = 0;
    EXPECT_FALSE(Tick.isChecked());
    EXPECT_EQ(Heard, "Tick Tick ");
    auto& Year = Find<QLineEdit>(Demo.Year);
    Demo.Year.Text = "199";
    Year.setCursorPosition(0);
    QTest::keyClicks(&Year, "-4");
    EXPECT_EQ(std::tuple(Demo.Year.Text.Get(), Year.text()), std::tuple("-4199", "-4199")) << "the cursor stays";
}

TEST_F(Widgets, LightLettersOnALightPictureHaveADarkRim) {
    Demo.OnPicture.Size(90.0, 30.0);
    // The darkest pixel of the label, and whether letters are seen at all.
    const auto Darkest = [&](Color Ground, Color Letters) {
        Demo.Picture.Canvas();
        Demo.Picture.BackColor = Ground;
        Demo.OnPicture.ForeColor = Letters;
        const QImage Shown = Find<QWidget>(Demo.Picture).grab(QRect(1, 1, 60, 20)).toImage();
        int Least = 255;
        for (int X = 0; X < 60; ++X) {
            for (int Y = 0; Y < 20; ++Y) Least = std::min(Least, qGray(Shown.pixel(X, Y)));
        }
        return Least;
    };
    const Color Yellow = RGB(255, 255, 0);
    EXPECT_LT(Darkest(RGB(250, 250, 250), Yellow), 60);
    EXPECT_EQ(Darkest(RGB(100, 100, 100), Yellow), 100) << "a dark ground needs none";
    EXPECT_GE(Darkest(RGB(250, 250, 250), RGB(90, 90, 90)), 90) << "nor do dark letters";
}

TEST_F(Widgets, AFramesLineIsBrokenByItsCaption) {
    auto& Frame = Find<QGroupBox>(Demo.Choice);
    // Pixels of a row, past the corners, that are not the background.
    const auto InRow = [&](int Y) {
        const QImage Shown = Frame.grab().toImage();
        int Count = 0;
        for (int X = 5; X < 195; ++X) Count += Shown.pixelColor(X, Y) != QColor(192, 192, 192);
        return Count;
    };
    for (Control* Each : Demo.Choice.Children) Each->Visible = false;
    Demo.Choice.ForeColor = RGB(192, 192, 192);  // letters that nobody sees
    const int Line = Frame.fontMetrics().height() / 2;
    const int Captioned = InRow(Line);
    EXPECT_TRUE(130 < Captioned && Captioned < 185) << Captioned << " of 190: the caption needs room";
    EXPECT_EQ(InRow(0), 0);
    Demo.Choice.ForeColor = RGB(0, 0, 0);
    EXPECT_GT(InRow(Line), Captioned) << "now there are letters";
    Demo.Choice.Caption = "";
    EXPECT_EQ(std::tuple(InRow(0), InRow(Line), InRow(Frame.height() - 1)), std::tuple(190, 0, 190));
}

}  // namespace
}  // namespace gloamtide
