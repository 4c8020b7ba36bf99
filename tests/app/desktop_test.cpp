// The main window on a desktop as people have it, with a window manager or with two screens: scripts/test_screens.sh
// brings them.

#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "app/screens.h"
#include "frame/startup.h"
#include "platform/qt/picture_view.h"
#include "platform/qt/qt_host.h"
#include "tests/fresh_program.h"

namespace gloamtide {
namespace {

class OnADesktop : public testing::Test {
protected:
    void SetUp() override { Start(); }
    ~OnADesktop() override { LoadedForms.clear(); }

    void Start() {
        RenewProgram();
        state.StartupSource = ConfigurationSource::Defaults;
        Desktop = std::make_unique<QtHost>();
        Desktop->KeepSettings(Folder.filePath("gloamtide.ini"));
        Desktop->ChooseScreen(ProgramScreens(), QtHost::LargestWindow());
        StartProgram();
        FormGTMain.MenuShowHideSubSundial.Click();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    }

    FormWindow& Window() const { return *Desktop->WindowOf(FormGTMain); }

    // Sharp, whole, in the middle.
    void ExpectBoardIn(const char* When) const {
        SCOPED_TRACE(When);
        const auto* Board = Window().findChild<QWidget*>("Board");
        const QRect Room = Board->parentWidget()->rect();
        const QRect Placed = Board->geometry();
        EXPECT_TRUE(Room.contains(Placed));
        EXPECT_LE(std::abs(Room.center().x() - Placed.center().x()) + std::abs(Room.center().y() - Placed.center().y()),
                  2);
        EXPECT_TRUE(Room.width() - Placed.width() < 3 || Room.height() - Placed.height() < 3 ||
                    Placed.width() == qRound(FormGTMain.BoardWidth))
            << "as large as the window lets it, or at scale 1";
        EXPECT_TRUE(Window().findChildren<QAbstractScrollArea*>().empty());
        const double Density = Placed.width() / FormGTMain.BoardWidth * Window().devicePixelRatioF();
        EXPECT_TRUE(QTest::qWaitFor([=] { return std::abs(FormGTMain.PictureGT.Density / Density - 1.0) < 0.002; }));
    }

    double MapShare() const {
        const QSize Map = Window().findChild<PictureView*>("PictureGT")->size();
        const QSize Screen = Window().screen()->size();
        return 100.0 * Map.width() * Map.height() / Screen.width() / Screen.height();
    }

    static bool Becomes(const std::function<bool()>& Condition) { return QTest::qWaitFor(Condition); }

    const QTemporaryDir Folder;
    std::unique_ptr<QtHost> Desktop;
};

TEST_F(OnADesktop, TheBoardFillsAndFollowsTheWindow) {
    if (QGuiApplication::platformName() != "xcb") GTEST_SKIP() << "needs a window manager";
    const QRect Screen = Window().screen()->geometry();
    EXPECT_TRUE(Becomes([&] { return Window().isMaximized() && Window().width() == Screen.width(); }));
    ExpectBoardIn("at the start");
    EXPECT_GE(MapShare(), Screen.height() < 800 ? 45.0 : 48.0);

    Window().showNormal();
    EXPECT_TRUE(Becomes([&] { return Window().width() < Screen.width(); }));
    EXPECT_TRUE(Window().screen()->availableGeometry().contains(Window().frameGeometry()));
    ExpectBoardIn("restored");
    Window().resize(700, 650);
    Window().move(60, 50);
    EXPECT_TRUE(Becomes([&] { return Window().size() == QSize(700, 650) && Window().pos() == QPoint(60, 50); }));
    ExpectBoardIn("resized");

    QTest::keyClick(&Window(), Qt::Key_F11);
    EXPECT_TRUE(Becomes([&] { return Window().geometry() == Screen; }));
    ExpectBoardIn("full screen");
    FormGTMain.MenuShowHideSubAlmanac.Click();
    ExpectBoardIn("without almanac");
    EXPECT_GE(MapShare(), 78.0);
    FormGTMain.MenuShowHideSubAlmanac.Click();
    QTest::keyClick(&Window(), Qt::Key_Escape);

    const auto AsItWas = [&] { return Window().size() == QSize(700, 650) && Window().pos() == QPoint(60, 50); };
    EXPECT_TRUE(Becomes(AsItWas)) << "before full screen";
    FormGTMain.MenuConfigure.Click();
    const auto* Dialog = Desktop->WindowOf(FormConfigure);
    EXPECT_TRUE(Becomes([&] { return Dialog->isActiveWindow() && Dialog->pos() == QPoint(60, 50); }));
    FormConfigure.CmdConfigureCancel.Click();
    EXPECT_TRUE(Becomes([&] { return Window().isActiveWindow() && AsItWas(); })) << "before the dialog";
    ExpectBoardIn("after a dialog");

    state.ConfigSaved = True;  // nothing to ask
    FormGTMain.Unload();
    Desktop.reset();
    Start();
    EXPECT_TRUE(Becomes(AsItWas)) << "at the last end";
    ExpectBoardIn("started again");
}

TEST_F(OnADesktop, ANewScreenOfAnotherRatioIsDrawnAtThatRatio) {
    if (QGuiApplication::screens().size() < 2) GTEST_SKIP() << "needs two screens";
    for (QScreen* Each : {QGuiApplication::screens().at(1), QGuiApplication::screens().at(0)}) {
        Window().windowHandle()->setScreen(Each);
        EXPECT_TRUE(Becomes([&] { return Window().devicePixelRatioF() == Each->devicePixelRatio(); }));
        ExpectBoardIn(Each->name().toUtf8());
    }
}

}  // namespace
}  // namespace gloamtide
