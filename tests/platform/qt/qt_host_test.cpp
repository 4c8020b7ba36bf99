#include "platform/qt/qt_host.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

namespace gloamtide {
namespace {

struct DemoForm : Form {
    DemoForm() : Form("DemoForm", 6000.0, 4500.0) {
        Caption = "A window for tests";
        Picture.Move(150.0, 150.0);
        Picture.Size(1530.0, 1530.0);  // 102 pixels with the border
        Picture.BorderWidth = 1;
        Picture.Scale(100.0, 80.0, 0.0, -70.0);
        OnPicture.Caption = "Noon";
        OnPicture.ForeColor = RGB(255, 255, 0);
        OnPicture.ToolTipText = "When the Sun stands highest";
        OnPicture.Size(40.0, 30.0);
        Choice.Move(1800.0, 150.0);
        Choice.Size(3000.0, 900.0);
        Choice.Caption = "Side";
        North.Caption = "&North";
        South.Caption = "South";
        South.Top = 450.0;
        Tick.Caption = "Ticked";
        Tick.Move(1800.0, 1200.0);
        Heading.Caption = "Year";
        Heading.Move(1800.0, 1500.0);
        Year.Move(2700.0, 1500.0);
        Names.Move(1800.0, 1950.0);
        Names.Width = 2000.0;
        Zones.Move(1800.0, 2400.0);
        OK.Caption = "OK";
        OK.Default = true;
        OK.Move(1800.0, 3000.0);
        Cancel.Caption = "Cancel";
        Cancel.Cancel = true;
        Cancel.Move(3300.0, 3000.0);
        for (const char* Entry : {"Rome", "Athens", "Oslo"}) {
            Names.AddItem(Entry);
            Zones.AddItem(Entry);
        }
    }

    Menu File{*this, "MenuFile", "&File"};
    Menu Open{File, "MenuFileSubOpen", "&Open"};
    Menu OpenSep{File, "MenuFileSubOpenSep"};
    Menu Quit{*this, "MenuQuit", "&Quit"};
    PictureBox Picture{*this, "Picture"};
    Label OnPicture{Picture, "OnPicture"};
    Frame Choice{*this, "Choice"};
    OptionButton North{Choice, "North"};
    OptionButton South{Choice, "South"};
    CheckBox Tick{*this, "Tick"};
    Label Heading{*this, "Heading"};
    TextBox Year{*this, "Year"};
    ComboBox Names{*this, "Names", ComboStyle::DropDownCombo, true};
    ComboBox Zones{*this, "Zones", ComboStyle::DropDownList};
    CommandButton OK{*this, "OK"};
    CommandButton Cancel{*this, "Cancel"};
    Timer Clock{*this, "Clock"};
};

class Desktop : public testing::Test {
protected:
    Desktop() {
        LoadedForms.clear();
        Demo.Show();
    }
    ~Desktop() override { LoadedForms.clear(); }

    QWidget& Window() { return *Host.WindowOf(Demo); }

    template <class Widget>
    Widget& Find(const Control& Record) {
        auto* Found = Window().findChild<Widget*>(QString::fromStdString(Record.Name));
        if (Found == nullptr) throw std::runtime_error("no widget for " + Record.Name);
        return *Found;
    }

    // Runs Answer once the next dialog is open.
    template <class Dialog>
    static void WhenOpen(std::function<void(Dialog&)> Answer) {
        QTimer::singleShot(0, [Answer] {
            if (auto* Box = qobject_cast<Dialog*>(QApplication::activeModalWidget()); Box != nullptr) {
                Answer(*Box);
            } else {
                WhenOpen<Dialog>(Answer);
            }
        });
    }

    DemoForm Demo;
    QtHost Host;  // before the form in the order of ends: windows go first
};

TEST_F(Desktop, ShowsTheFormAsARealWindow) {
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Window().windowTitle(), "A window for tests");
    Demo.Caption = "Another title";
    EXPECT_EQ(Window().windowTitle(), "Another title");
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).text(), "Noon");
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).toolTip(), "When the Sun stands highest");
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).palette().color(QPalette::WindowText), QColor(255, 255, 0));
    EXPECT_EQ(Find<QWidget>(Demo.Picture).geometry().topLeft(), QPoint(10, 10));
    Demo.OnPicture.Caption = "Midnight";
    Demo.OnPicture.Visible = false;
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).text(), "Midnight");
    EXPECT_FALSE(Find<QLabel>(Demo.OnPicture).isVisible());
    Demo.Hide();
    EXPECT_FALSE(Window().isVisible());
    Demo.Unload();
    EXPECT_EQ(Host.WindowOf(Demo), nullptr);
}

TEST_F(Desktop, ScreenReadersHearWhatControlsAreFor) {
    EXPECT_EQ(Find<QLineEdit>(Demo.Year).accessibleName(), "Year");
    EXPECT_EQ(Find<QRadioButton>(Demo.North).accessibleName(), "North");
    EXPECT_EQ(Find<QPushButton>(Demo.OK).accessibleName(), "OK");
}

TEST_F(Desktop, ButtonsChecksAndOptionsWorkBothWays) {
    int Clicks = 0;
    Demo.OK.Click = [&] { ++Clicks; };
    QTest::mouseClick(&Find<QPushButton>(Demo.OK), Qt::LeftButton);
    EXPECT_EQ(Clicks, 1);
    Find<QCheckBox>(Demo.Tick).click();
    EXPECT_EQ(Demo.Tick.Value, 1);
    Demo.Tick.Value = 0;
    EXPECT_FALSE(Find<QCheckBox>(Demo.Tick).isChecked());
    Demo.North.Value = true;
    EXPECT_TRUE(Find<QRadioButton>(Demo.North).isChecked());
    Find<QRadioButton>(Demo.South).click();
    EXPECT_TRUE(Demo.South.Value);
    EXPECT_FALSE(Demo.North.Value);
    EXPECT_FALSE(Find<QRadioButton>(Demo.North).isChecked());
}

TEST_F(Desktop, TextsAndListsWorkBothWays) {
    QTest::keyClicks(&Find<QLineEdit>(Demo.Year), "1999");
    EXPECT_EQ(Demo.Year.Text, "1999");
    Demo.Year.Text = "-4000";
    EXPECT_EQ(Find<QLineEdit>(Demo.Year).text(), "-4000");

    auto& Names = Find<QComboBox>(Demo.Names);
    EXPECT_EQ(Names.itemText(0), "Athens") << "the record sorts";
    Names.lineEdit()->selectAll();
    QTest::keyClicks(Names.lineEdit(), "My garden");
    EXPECT_EQ(Demo.Names.Text, "My garden");
    EXPECT_EQ(Demo.Names.ListIndex, -1);
    Demo.Names.ListIndex = 2;
    EXPECT_EQ(Names.currentText(), "Rome");

    int Picks = 0;
    int Drops = 0;
    auto& Zones = Find<QComboBox>(Demo.Zones);
    Demo.Zones.Click = [&] { ++Picks; };
    Demo.Zones.DropDown = [&] { ++Drops; };
    Zones.setFocus();
    QTest::keyClick(&Zones, Qt::Key_Down);
    EXPECT_EQ(Demo.Zones.ListIndex, 0);
    EXPECT_EQ(Picks, 1);
    Zones.showPopup();
    Zones.hidePopup();
    EXPECT_EQ(Drops, 1);
    Demo.Zones.Clear();
    EXPECT_EQ(Zones.count(), 0);
}

TEST_F(Desktop, MenusHaveAccessKeysSeparatorsAndChecks) {
    int Opened = 0;
    Demo.Open.Click = [&] { ++Opened; };
    auto* Bar = Window().findChild<QMenuBar*>();
    ASSERT_NE(Bar, nullptr);
    ASSERT_EQ(Bar->actions().size(), 2);
    EXPECT_EQ(Bar->actions().at(0)->text(), "&File");
    const QList<QAction*> Items = Bar->actions().at(0)->menu()->actions();
    ASSERT_EQ(Items.size(), 2);
    EXPECT_TRUE(Items.at(1)->isSeparator());
    Items.at(0)->trigger();
    EXPECT_EQ(Opened, 1);
    EXPECT_FALSE(Items.at(0)->isChecked());
    Demo.Open.Checked = true;
    EXPECT_TRUE(Items.at(0)->isChecked());
    Items.at(0)->trigger();
    EXPECT_TRUE(Items.at(0)->isChecked()) << "the program alone sets the check";
}

TEST_F(Desktop, APictureIsShownToThePixel) {
    Bitmap& Canvas = Demo.Picture.Canvas();
    ASSERT_EQ(Canvas.Width, 100);
    for (int X = 50; X < 100; ++X) Canvas.Row(70)[X] = RGB(200, 100, X);
    Demo.Picture.Drawn(50, 70, 99, 70);
    const QImage Shown = Find<QWidget>(Demo.Picture).grab().toImage();
    EXPECT_EQ(Shown.pixelColor(1 + 50, 1 + 70), QColor(200, 100, 50));
    EXPECT_EQ(Shown.pixelColor(1 + 99, 1 + 70), QColor(200, 100, 99));
    EXPECT_EQ(Shown.pixelColor(1 + 99, 1 + 71), QColor(192, 192, 192));
}

TEST_F(Desktop, ThePointerIsToldInUserUnits) {
    float X = -1.0F;
    float Y = -1.0F;
    Demo.Picture.MouseMove = [&](float ToX, float ToY) {
        X = ToX;
        Y = ToY;
    };
    QTest::mouseMove(&Find<QWidget>(Demo.Picture), QPoint(1 + 70, 1 + 50));
    EXPECT_NEAR(X, 30.0F, 1.0F);
    EXPECT_NEAR(Y, 5.0F, 1.6F);
}

TEST_F(Desktop, EnterEscapeAndTheCloseButtonPressOKAndCancel) {
    int Accepted = 0;
    int Cancelled = 0;
    Demo.OK.Click = [&] { ++Accepted; };
    Demo.Cancel.Click = [&] { ++Cancelled; };
    Find<QLineEdit>(Demo.Year).setFocus();
    QTest::keyClick(&Find<QLineEdit>(Demo.Year), Qt::Key_Return);
    EXPECT_EQ(Accepted, 1);
    QTest::keyClick(&Find<QLineEdit>(Demo.Year), Qt::Key_Escape);
    EXPECT_EQ(Cancelled, 1);
    Window().close();
    EXPECT_EQ(Cancelled, 2);
    EXPECT_TRUE(Window().isVisible()) << "the program decides whether the window goes";
}

TEST_F(Desktop, WhileAMessageIsOpenNoTimerTicksAndOneLateTickFollows) {
    int Ticks = 0;
    int TicksInside = 0;
    Demo.Clock.Interval = 1;
    Demo.Clock.Tick = [&] {
        ++Ticks;
        Demo.Clock.Enabled = false;
    };
    Demo.Clock.Enabled = true;
    WhenOpen<QMessageBox>([&](QMessageBox& Box) {
        EXPECT_EQ(Box.windowTitle(), "Save Configuration?");
        EXPECT_EQ(Box.text(), "Do you?");
        EXPECT_EQ(Box.icon(), QMessageBox::Question);
        QTest::qWait(20);  // many intervals of the timer
        TicksInside = Ticks;
        Box.button(QMessageBox::No)->click();
    });
    const MessageAnswer Answer =
        Host.ShowMessage({"Save Configuration?", "Do you?", MessageIcon::Question, MessageButtons::YesNo});
    EXPECT_EQ(Answer, MessageAnswer::No);
    EXPECT_EQ(TicksInside, 0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Ticks == 1; }));
}

TEST_F(Desktop, FileDialogsFilterAndCancel) {
    const FileDialog Asked{"Gloamtide Files (*.gtf)|*.gtf|All Files (*.*)|*.*", "home.gtf"};
    WhenOpen<QFileDialog>([](QFileDialog& Box) {
        EXPECT_EQ(Box.nameFilters(), (QStringList{"Gloamtide Files (*.gtf)", "All Files (*)"}));
        EXPECT_EQ(Box.fileMode(), QFileDialog::ExistingFile);
        Box.reject();
    });
    EXPECT_EQ(Host.ShowOpenDialog(Asked), std::nullopt);
    WhenOpen<QFileDialog>([](QFileDialog& Box) {
        EXPECT_EQ(Box.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_TRUE(Box.selectedFiles().constFirst().endsWith("/home.gtf"));
        Box.reject();
    });
    EXPECT_EQ(Host.ShowSaveDialog(Asked), std::nullopt);
}

TEST_F(Desktop, TextIsMeasuredAndRendered) {
    const GlyphMask Small = Host.RenderText({"MS Serif", 6.0}, "00");
    const GlyphMask Large = Host.RenderText({"MS Sans Serif", 12.0}, "00");
    EXPECT_GT(Small.Width, 4);
    EXPECT_GT(Large.Width, Small.Width);
    EXPECT_EQ(Large.Coverage.size(), static_cast<std::size_t>(Large.Width * Large.Height));
    EXPECT_GT(*std::max_element(Large.Coverage.begin(), Large.Coverage.end()), 200);
    EXPECT_EQ(Host.RenderText({}, "").Width, 0);
}

}  // namespace
}  // namespace gloamtide
