#include "platform/qt/form_window.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

using Windows = DesktopTest;

TEST_F(Windows, FillTheScreenUnderTheirTitle) {
    EXPECT_EQ(Window().frameGeometry(), QGuiApplication::primaryScreen()->availableGeometry());
    EXPECT_EQ(Window().grab().toImage().pixelColor(5, Window().height() - 5), QColor(0, 0, 0));
    for (const char* Title : {"A window for tests", "Another (a[*].gtf)"}) {
        Demo.Caption = Title;
        EXPECT_EQ(Window().windowHandle()->title(), Title);
        EXPECT_EQ(Window().accessibleName(), Window().windowTitle());
    }
    Window().showMinimized();
    Demo.Show();
    EXPECT_FALSE(Window().isMinimized());
    Form Splash("Splash", 3000.0, 1500.0, true);
    Splash.Show();
    EXPECT_TRUE(Desktop.WindowOf(Splash)->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_TRUE(QTest::qWaitForWindowActive(Desktop.WindowOf(Splash)));
    Demo.Show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window())) << "shown again it comes to the front";
    Splash.Unload();
    Demo.Hide();
    EXPECT_FALSE(Window().isVisible());
}

TEST_F(Windows, EnterEscapeAndTheCloseButtonPressOKAndCancel) {
    const auto Press = [&](Qt::Key Key) { QTest::keyClick(&Find<QLineEdit>(Demo.Year), Key); };
    for (const Qt::Key Key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape, Qt::Key_F1, Qt::Key_Space}) Press(Key);
    EXPECT_EQ(Heard, "OK OK Cancel ");
    Window().close();
    EXPECT_TRUE(Window().isVisible()) << "the program decides whether the window goes";
    Demo.OK.Visible = false;
    Press(Qt::Key_Return);
    EXPECT_EQ(Heard, "OK OK Cancel Cancel ") << "a hidden button cannot be pressed";
}

TEST_F(Windows, AHandlerMayUnloadTheFormThatItBelongsTo) {
    Demo.OK.Click = [&] { Demo.Unload(); };
    Demo.Clock.Interval = 1;
    Demo.Clock.Enabled = true;
    Demo.Clock.Tick = [&] { Heard += "Tick "; };
    const QPointer<QWidget> Gone = &Window();
    QTest::mouseClick(&Find<QPushButton>(Demo.OK), Qt::LeftButton);
    EXPECT_FALSE(Gone != nullptr && Gone->isVisible());
    EXPECT_EQ(Desktop.WindowOf(Demo), nullptr);
    Heard = "";
    Demo.OnPicture.Caption = "Nobody hears this";
    ASSERT_TRUE(PassTime());
    EXPECT_EQ(Gone, nullptr);
    EXPECT_EQ(Heard, "") << "no timer of an unloaded form ticks";
    Demo.Show();
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).text(), "Nobody hears this") << "until it is loaded again";
    Demo.Unload();
    Demo.Show();
    ASSERT_TRUE(PassTime());
    Demo.OnPicture.Caption = "Heard";
    EXPECT_EQ(Find<QLabel>(Demo.OnPicture).text(), "Heard") << "though the old window has gone since";
}

TEST_F(Windows, ADialogStartsAtItsFirstFieldEachTimeToBeTypedAnew) {
    EXPECT_EQ(Window().focusWidget(), &Find<QWidget>(Demo.North));
    EXPECT_TRUE(Window().testAttribute(Qt::WA_KeyboardFocusChange)) << "one sees where the keyboard is";
    Demo.Choice.Visible = false;
    Demo.Tick.Visible = false;
    for (const char* Typed : {"5000", "20"}) {
        Find<QComboBox>(Demo.Zones).setFocus();
        Demo.Hide();
        Demo.Show();
        QTest::keyClicks(Window().focusWidget(), Typed);
        EXPECT_EQ(Demo.Year.Text, Typed);
    }
    for (Control* Each : std::initializer_list<Control*>{&Demo.Names, &Demo.Year, &Demo.Names}) {
        Desktop.SetFocus(*Each);  // where the program sends the keyboard
        QTest::keyClicks(Window().focusWidget(), "1999");
    }
    EXPECT_EQ(Demo.Year.Text.Get() + Demo.Names.Text.Get(), "19991999");
}

TEST_F(Windows, AccessKeysReachTheirMenusAndItems) {
    QTest::keyClick(&Window(), Qt::Key_F, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_S);
    QTest::keyClick(&Window(), Qt::Key_Q, Qt::AltModifier);
    EXPECT_EQ(Heard, "Save Quit ") << "a menu without a list acts at once";
}

TEST_F(Windows, TheProgramAloneSetsTheCheckOfAMenuItem) {
    auto& Open = Find<QAction>(Demo.Open);
    for (const bool Checked : {false, true, false}) {
        Demo.Open.Checked = Checked;
        EXPECT_EQ(Open.isChecked(), Checked);
        Open.trigger();
        EXPECT_EQ(Open.isChecked(), Checked);
    }
    EXPECT_EQ(Heard, "Open Open Open ");
}

TEST_F(Windows, KeysThatNoControlUsesAreTheForms) {
    const auto Press = [&](QWidget& Widget, const QString& Key, bool Held) {
        const QKeyCombination Pressed = QKeySequence(Key)[0];
        QKeyEvent Event(QEvent::KeyPress, Pressed.key(), Pressed.keyboardModifiers() | Qt::KeypadModifier,
                        Key == "Space" ? " " : "", Held);
        QCoreApplication::sendEvent(&Widget, &Event);
    };
    for (const char* Key : {"Shift+Right", "Home", "Space"}) {
        Demo.Keys[Key] = [this, Key] { Heard += std::string(Key) + " "; };
        Press(Window(), Key, false);
        Press(Window(), Key, true);                     // had waited while the first was done
        Press(Find<QLineEdit>(Demo.Year), Key, false);  // has a use for it
        ASSERT_TRUE(PassTime());
        Press(Window(), Key, true);
        ASSERT_TRUE(PassTime());
    }
    EXPECT_EQ(Heard, "Shift+Right Shift+Right Home Home Space ") << "Space switches once";
}

TEST_F(Windows, TheButtonOfTheBarStandsAtItsEndAndMakesItNoHigher) {
    auto& Button = Find<QToolButton>(Demo.Now);
    EXPECT_FALSE(Button.isVisible());
    Demo.Now.ToolTipText = "Tip";
    Demo.Now.Visible = true;
    QMenuBar Plain;
    Plain.addMenu("File");
    EXPECT_EQ(Button.parentWidget()->height(), Plain.sizeHint().height());
    EXPECT_EQ(Button.mapTo(&Window(), QPoint(Button.width(), 0)).x(), Window().width());
    QTest::mouseClick(&Button, Qt::LeftButton);
    EXPECT_EQ(Heard + Button.toolTip().toStdString(), "Now Tip");
}

}  // namespace
}  // namespace gloamtide
