#include "platform/qt/form_window.h"

#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>

#include "demo_form.h"

namespace gloamtide {
namespace {

using Windows = DesktopTest;

TEST_F(Windows, FillTheScreenUnderTheirTitle) {
    EXPECT_TRUE(Window().isVisible());
    EXPECT_EQ(Window().objectName(), "DemoForm");
    EXPECT_EQ(Window().windowTitle(), "A window for tests");
    EXPECT_EQ(Window().frameGeometry(), QGuiApplication::primaryScreen()->availableGeometry());
    EXPECT_FALSE(Window().windowFlags().testFlag(Qt::FramelessWindowHint));
    Demo.Caption = "Another title";
    EXPECT_EQ(Window().windowTitle(), "Another title");
    EXPECT_EQ(Window().grab().toImage().pixelColor(5, Window().height() - 5), QColor(0, 0, 0));
    Demo.Hide();
    EXPECT_FALSE(Window().isVisible());
    Demo.Unload();
    EXPECT_EQ(Desktop.WindowOf(Demo), nullptr);
}

TEST_F(Windows, ABorderlessOneHasNoTitleBarAndCoversTheScreen) {
    Form Splash("Splash", 3000.0, 1500.0, true);
    Splash.Show();
    const QWidget& Cover = *Desktop.WindowOf(Splash);
    EXPECT_TRUE(Cover.windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(Cover.geometry(), QGuiApplication::primaryScreen()->geometry());
    Splash.Unload();
}

TEST_F(Windows, EnterEscapeAndTheCloseButtonPressOKAndCancel) {
    int Accepted = 0;
    int Cancelled = 0;
    Demo.OK.Click = [&] { ++Accepted; };
    Demo.Cancel.Click = [&] { ++Cancelled; };
    QTest::keyClick(&Find<QLineEdit>(Demo.Year), Qt::Key_Return);
    EXPECT_EQ(Accepted, 1);
    QTest::keyClick(&Find<QLineEdit>(Demo.Year), Qt::Key_Escape);
    EXPECT_EQ(Cancelled, 1);
    Window().close();
    EXPECT_EQ(Cancelled, 2);
    EXPECT_TRUE(Window().isVisible()) << "the program decides whether the window goes";
    Demo.OK.Visible = false;
    QTest::keyClick(&Find<QLineEdit>(Demo.Year), Qt::Key_Return);
    EXPECT_EQ(Accepted, 1) << "a hidden button cannot be pressed";
}

TEST_F(Windows, AHandlerMayUnloadTheFormThatItBelongsTo) {
    Demo.OK.Click = [&] { Demo.Unload(); };
    Demo.Clock.Interval = 1;
    Demo.Clock.Enabled = true;
    int Ticks = 0;
    Demo.Clock.Tick = [&] { ++Ticks; };
    QTest::mouseClick(&Find<QPushButton>(Demo.OK), Qt::LeftButton);
    EXPECT_FALSE(Demo.Loaded());
    const int TicksBefore = Ticks;
    Demo.OnPicture.Caption = "Nobody hears this";
    int Beats = 0;
    QTimer Other;
    QObject::connect(&Other, &QTimer::timeout, [&] { ++Beats; });
    Other.start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Beats == 5; }));
    EXPECT_EQ(Ticks, TicksBefore) << "no timer of an unloaded form ticks";
    Demo.Show();
    EXPECT_EQ(Find<QWidget>(Demo.OnPicture).accessibleName(), "Nobody hears this") << "until it is loaded again";
}

TEST_F(Windows, ADialogStartsAtItsFirstFieldEachTime) {
    EXPECT_EQ(Window().focusWidget(), &Find<QWidget>(Demo.North));
    Find<QPushButton>(Demo.OK).setFocus();
    Demo.Hide();
    Demo.Show();
    EXPECT_EQ(Window().focusWidget(), &Find<QWidget>(Demo.North));
}

TEST_F(Windows, TheProgramSendsTheKeyboardToAFieldToBeTypedAnew) {
    Demo.Year.Text = "5000";
    Desktop.SetFocus(Demo.Year);
    auto& Year = Find<QLineEdit>(Demo.Year);
    EXPECT_EQ(Window().focusWidget(), &Year);
    QTest::keyClicks(&Year, "2026");
    EXPECT_EQ(Demo.Year.Text, "2026");
}

TEST_F(Windows, WhatDoesNotFitIsReachedByScrolling) {
    const auto* Scroller = Window().findChild<QScrollArea*>();
    ASSERT_NE(Scroller, nullptr);
    EXPECT_EQ(Scroller->verticalScrollBar()->maximum(), 0);
    Demo.Cancel.Top = 15.0 * (Window().height() + 300);
    QCoreApplication::processEvents();
    EXPECT_GE(Scroller->verticalScrollBar()->maximum(), 300);
    Demo.Cancel.Visible = false;
    QCoreApplication::processEvents();
    EXPECT_EQ(Scroller->verticalScrollBar()->maximum(), 0) << "a hidden control needs no room";
}

}  // namespace
}  // namespace gloamtide
