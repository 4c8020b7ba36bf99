#include "platform/qt/widgets.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "demo_form.h"

namespace gloamtide {
namespace {

using Widgets = DesktopTest;

TEST_F(Widgets, EachControlHasAWidgetOfItsKindAndName) {
    EXPECT_NO_THROW(Find<QLabel>(Demo.OnPicture));
    EXPECT_NO_THROW(Find<QLineEdit>(Demo.Year));
    EXPECT_NO_THROW(Find<QPushButton>(Demo.OK));
    EXPECT_NO_THROW(Find<QRadioButton>(Demo.North));
    EXPECT_NO_THROW(Find<QCheckBox>(Demo.Tick));
    EXPECT_NO_THROW(Find<QComboBox>(Demo.Zones));
    EXPECT_NO_THROW(Find<QAction>(Demo.Open));
    EXPECT_EQ(Find<QRadioButton>(Demo.North).parentWidget(), &Find<QGroupBox>(Demo.Choice));
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).parentWidget(), &Find<QWidget>(Demo.Picture));
}

TEST_F(Widgets, ScreenReadersHearWhatControlsAreFor) {
    EXPECT_EQ(Find<QLineEdit>(Demo.Year).accessibleName(), "Year") << "the label before it";
    EXPECT_EQ(Find<QRadioButton>(Demo.North).accessibleName(), "North");
    EXPECT_EQ(Find<QPushButton>(Demo.OK).accessibleName(), "OK");
    EXPECT_EQ(Find<QGroupBox>(Demo.Choice).accessibleName(), "Side");
    EXPECT_EQ(Find<QWidget>(Demo.Picture).accessibleName(), "The world");
    Demo.OnPicture.Caption = "Midnight";
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).accessibleName(), "Midnight");
}

TEST_F(Widgets, ALabelShowsWhatItsRecordSays) {
    auto& Noon = Find<QLabel>(Demo.OnPicture);
    EXPECT_EQ(Noon.text(), "Noon");
    EXPECT_EQ(Noon.toolTip(), "When the Sun stands highest");
    EXPECT_EQ(Noon.palette().color(QPalette::WindowText), QColor(255, 255, 0));
    Demo.OnPicture.Caption = "<b>Midnight</b>";
    Demo.OnPicture.ForeColor = RGB(255, 255, 255);
    Demo.OnPicture.FontSize = 12.0;
    Demo.OnPicture.FontBold = true;
    Demo.OnPicture.ToolTipText = "";
    EXPECT_EQ(Noon.text(), "<b>Midnight</b>");
    EXPECT_EQ(Noon.textFormat(), Qt::PlainText);
    EXPECT_EQ(Noon.palette().color(QPalette::WindowText), QColor(255, 255, 255));
    EXPECT_EQ(Noon.font().pixelSize(), 16);
    EXPECT_TRUE(Noon.font().bold());
    EXPECT_EQ(Noon.toolTip(), "");
    Demo.OnPicture.Visible = false;
    EXPECT_FALSE(Noon.isVisible());
}

TEST_F(Widgets, StandWhereTheirRecordsSayWithinTheBorder) {
    EXPECT_EQ(Find<QWidget>(Demo.Picture).geometry(), QRect(10, 10, 102, 102));
    Demo.OnPicture.Move(80.0, 35.0);  // units of the picture: 20 pixels from the left, 30 from the top
    Demo.OnPicture.Height.SetPixels(20.0);
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).geometry(), QRect(21, 31, 40, 20));
}

TEST_F(Widgets, ASizeOfZeroBecomesTheNaturalOneAndFollowsTheText) {
    auto& Heading = Find<QLabel>(Demo.Heading);
    EXPECT_EQ(Demo.Heading.Width.Pixels(), Heading.sizeHint().width());
    EXPECT_GT(Demo.OK.Height.Pixels(), 15.0);
    const double Before = Demo.Heading.Width.Pixels();
    Demo.Heading.Caption = "A year between -4000 and 4000";
    EXPECT_GT(Demo.Heading.Width.Pixels(), 3.0 * Before);
    EXPECT_EQ(Heading.width(), Heading.sizeHint().width());
    Demo.Heading.Width.SetPixels(30.0);
    Demo.Heading.Caption = "Another text, longer than thirty pixels";
    EXPECT_EQ(Heading.width(), 30);
}

TEST_F(Widgets, ARowLowerThanItsFontCutsNoLetters) {
    auto& Heading = Find<QLabel>(Demo.Heading);
    Demo.Heading.Height.SetPixels(7.0);
    EXPECT_GE(Heading.height(), Heading.sizeHint().height());
    EXPECT_NEAR(Heading.geometry().center().y(), 100 + 3, 1) << "evenly above and below";
}

TEST_F(Widgets, AButtonIsPressedByMouseAndByEnter) {
    int Clicks = 0;
    int Accepted = 0;
    Demo.Cancel.Click = [&] { ++Clicks; };
    Demo.OK.Click = [&] { ++Accepted; };
    QTest::mouseClick(&Find<QPushButton>(Demo.Cancel), Qt::LeftButton);
    EXPECT_EQ(Clicks, 1);
    QTest::keyClick(&Find<QPushButton>(Demo.Cancel), Qt::Key_Return);
    EXPECT_EQ(Clicks, 2);
    EXPECT_EQ(Accepted, 0) << "the focused button, not the default one";
}

TEST_F(Widgets, ACheckBoxWorksBothWays) {
    int Clicks = 0;
    Demo.Tick.Click = [&] { ++Clicks; };
    Find<QCheckBox>(Demo.Tick).click();
    EXPECT_EQ(Demo.Tick.Value, 1);
    Demo.Tick.Value = 0;
    EXPECT_FALSE(Find<QCheckBox>(Demo.Tick).isChecked());
    EXPECT_EQ(Clicks, 2);
}

TEST_F(Widgets, OptionsExcludeEachOtherBothWays) {
    auto& North = Find<QRadioButton>(Demo.North);
    auto& South = Find<QRadioButton>(Demo.South);
    int Clicks = 0;
    Demo.South.Click = [&] { ++Clicks; };
    Demo.North.Value = true;
    EXPECT_TRUE(North.isChecked());
    South.click();
    South.click();
    EXPECT_TRUE(Demo.South.Value);
    EXPECT_FALSE(Demo.North.Value);
    EXPECT_FALSE(North.isChecked());
    EXPECT_TRUE(South.isChecked());
    EXPECT_EQ(Clicks, 1) << "once for each change";
    South.setFocus();
    QTest::keyClick(&South, Qt::Key_Up);
    EXPECT_TRUE(Demo.North.Value) << "the arrow keys choose";
    Demo.North.Value = false;
    EXPECT_FALSE(North.isChecked()) << "the program can leave none selected";
    EXPECT_FALSE(South.isChecked());
}

TEST_F(Widgets, ATextBoxWorksBothWays) {
    auto& Year = Find<QLineEdit>(Demo.Year);
    QTest::keyClicks(&Year, "1999");
    EXPECT_EQ(Demo.Year.Text, "1999");
    Demo.Year.Text = "-4000";
    EXPECT_EQ(Year.text(), "-4000");
}

}  // namespace
}  // namespace gloamtide
