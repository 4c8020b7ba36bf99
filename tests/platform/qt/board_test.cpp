#include "platform/qt/board.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

TEST(Board, FitsAsLargeAsThereIsRoom) {
    const std::tuple<QSizeF, double> Spaces[] = {{{400, 300}, 1.0},    {{410, 900}, 1.0},  {{419.9, 900}, 1.0},
                                                 {{424, 900}, 1.06},   {{9000, 600}, 2.0}, {{200, 300}, 0.5},
                                                 {{399, 300}, 0.9975}, {{0, 0}, 0.125}};
    for (const auto& [Space, Scale] : Spaces) EXPECT_DOUBLE_EQ(ScaleToFit({400, 300}, Space), Scale) << Space.width();
    BoardScale Scale;
    for (const double Factor : {1.0, 1.15, 1.5, 2.41}) {
        Scale.SetFactor(Factor);
        EXPECT_EQ(Scale.Box(3, 0, 7, 5).right() + 1, Scale.Box(10, 0, 9, 5).left()) << "neighbours meet";
    }
}

// A window that can be of any size, and the board in it.
class FollowingBoard : public testing::Test {
protected:
    FollowingBoard() {
        Demo.BoardWidth = 400.0;
        Demo.BoardHeight = 300.0;
        Demo.Picture.DensityChanged = [this] { Densities.push_back(Demo.Picture.Density); };
        Desktop.ChooseScreen({{640, {600, 400}}, {800, {700, 500}}, {1024, {900, 700}}}, {800, 600});
        Demo.Show();
    }
    ~FollowingBoard() override { LoadedForms.clear(); }

    void SetUp() override { ASSERT_TRUE(QTest::qWaitForWindowActive(&Window())); }

    FormWindow& Window() { return *Desktop.WindowOf(Demo); }
    QWidget& Find(const char* Name) { return *Window().findChild<QWidget*>(Name); }
    int ArrowWidth() {
        QStyleOptionComboBox List;
        List.initFrom(&Find("Zones"));
        return Find("Zones").style()->subControlRect(QStyle::CC_ComboBox, &List, QStyle::SC_ComboBoxArrow).width();
    }
    QRect InWindow(QWidget& Which) { return {Which.mapTo(&Window(), QPoint()), Which.size()}; }

    std::vector<double> Densities;
    DemoForm Demo;
    QtHost Desktop;
};

TEST_F(FollowingBoard, StandsInTheMiddleAtEachSize) {
    EXPECT_EQ(Desktop.ScreenWidthTwips(), 800 * TwipsPerPixel) << "the largest screen whose board fits";
    Window().showNormal();
    const int Bar = Window().findChild<QMenuBar*>()->height();
    const double Natural = Demo.North.Width.Pixels();
    const double Arrow = ArrowWidth() / 2.0;
    for (const QSize Size : {QSize(800, 600 + Bar), QSize(1000, 450 + Bar), QSize(480, 330 + Bar)}) {
        Densities.clear();
        Window().resize(Size);
        QCoreApplication::processEvents();
        const double Scale = ScaleToFit({400, 300}, Size - QSize(0, Bar));
        const QPointF Corner((Size.width() - 400 * Scale) / 2, Bar + (Size.height() - Bar - 300 * Scale) / 2);
        const QRect Place = InWindow(Find("OK"));
        EXPECT_LE((Corner + QPointF(120, 200) * Scale - Place.topLeft()).manhattanLength(), 2) << Scale;
        EXPECT_EQ(Find("OK").font().pixelSize(), qRound(11.0 * Scale));
        EXPECT_NEAR(ArrowWidth(), Arrow * Scale, 1.0);
        Demo.North.Caption = "South";
        Demo.North.Caption = "North";
        EXPECT_EQ(Demo.North.Width.Pixels(), Natural) << "the program reckons at scale 1";
        EXPECT_TRUE(Densities.empty()) << "while it moves pictures are stretched";
        ASSERT_TRUE(QTest::qWaitFor([&] { return Demo.Picture.Density == Scale; }));
        // The pointer counts in the program's units at any scale.
        QPointF Told;
        Demo.Picture.MouseMove = [&](float X, float Y) { Told = {X, Y}; };
        auto& Picture = Find("Picture");
        QTest::mouseMove(&Picture, QPoint(Picture.width() / 2, Picture.height() / 2));
        QCoreApplication::processEvents();
        EXPECT_LE((Told - QPointF(50, 5)).manhattanLength(), 4.0);
    }
}

TEST_F(FollowingBoard, FullScreenHasTheBoardAloneUntilTheMenuBarIsAskedFor) {
    QWidget& Bar = *Window().findChild<QMenuBar*>();
    Demo.FullScreen = true;
    QCoreApplication::processEvents();
    EXPECT_TRUE(Window().isFullScreen() && !Bar.isVisible());
    EXPECT_EQ(Window().centralWidget()->geometry(), Window().rect());
    QTest::keyPress(&Window(), Qt::Key_Alt);
    EXPECT_TRUE(Bar.isVisible());
    EXPECT_EQ(Window().centralWidget()->geometry(), Window().rect()) << "the bar lies over it";
    QTest::keyClick(Window().findChild<QPushButton*>("OK"), Qt::Key_F, Qt::AltModifier);
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QApplication::activePopupWidget()->close();
    Demo.Cancel.Visible = false;
    Window().showNormal();
    QCoreApplication::processEvents();
    EXPECT_EQ(std::tuple(Demo.FullScreen.Get(), Bar.isVisible()), std::tuple(false, true));
}

TEST_F(FollowingBoard, ADialogTakesTheWindowsPlaceAndTheWindowIsAsItWas) {
    Window().showNormal();
    Window().setGeometry(60, 70, 620, 460);
    Form Dialog("Dialog", 3000.0, 1500.0);
    Dialog.Show();
    Demo.Hide();
    EXPECT_EQ(Desktop.WindowOf(Dialog)->geometry(), QRect(60, 70, 620, 460));
    Dialog.Unload();
    Demo.Show();
    EXPECT_EQ(std::tuple(Window().geometry(), Window().isMaximized()), std::tuple(QRect(60, 70, 620, 460), false));
    QTemporaryDir Folder;
    for (const QRect Left : {QRect(80, 90, 500, 400), QRect(5000, 4000, 500, 400)}) {
        Demo.Unload();
        Desktop.KeepSettings(Folder.filePath("settings.ini"));
        Demo.Show();
        Window().showNormal();
        Window().setGeometry(Left);
        Demo.Unload();
        Demo.Show();
        const QRect Screen = QGuiApplication::primaryScreen()->geometry();
        EXPECT_EQ(Window().geometry().topLeft() == Left.topLeft(), Screen.contains(Left)) << "off the screen it is not";
        EXPECT_TRUE(Screen.contains(Window().geometry()));
    }
}

}  // namespace
}  // namespace gloamtide
