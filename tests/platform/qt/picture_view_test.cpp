#include "platform/qt/picture_view.h"

#include "demo_form.h"

namespace gloamtide {
namespace {

class Picture : public DesktopTest {
protected:
    Picture() {
        Demo.OnPicture.Visible = false;
        Demo.Picture.BackColor = RGB(255, 224, 192);
    }

    void DrawPattern() {
        Bitmap& Canvas = Demo.Picture.Canvas();
        Pattern = QImage(Canvas.Width, Canvas.Height, QImage::Format_RGB32);
        for (int Y = 0; Y < Canvas.Height; ++Y) {
            for (int X = 0; X < Canvas.Width; ++X) {
                Canvas.Row(Y)[X] = RGB(X, Y, X + Y);
                Pattern.setPixel(X, Y, qRgb(X, Y, X + Y));
            }
        }
        Demo.Picture.Drawn(0, 0, Canvas.Width - 1, Canvas.Height - 1);
    }

    // Asks for the border, the pattern within it, and BackColor where nothing was drawn.
    void ExpectShown(int Density) {
        const int Border = Demo.Picture.BorderWidth;
        QImage Wanted(View.size(), QImage::Format_RGB32);
        Wanted.fill(Qt::darkGray);
        QPainter Painter(&Wanted);
        Painter.setClipRect(Wanted.rect().adjusted(Border, Border, -Border, -Border));
        Painter.fillRect(Wanted.rect(), QColor(255, 224, 192));
        Painter.drawImage(Border, Border, Pattern);
        QImage Shown(View.size() * Density, QImage::Format_RGB32);
        Shown.setDevicePixelRatio(Density);
        View.render(&Shown);
        Shown.setDevicePixelRatio(1.0);
        EXPECT_TRUE(Shown == Wanted.scaled(Shown.size())) << View.width() << " by " << View.height();
    }

    QImage Pattern;
    PictureView& View = dynamic_cast<PictureView&>(Find<QWidget>(Demo.Picture));
};

TEST_F(Picture, IsShownToThePixelWithinItsBorder) {
    ExpectShown(1);
    DrawPattern();
    // With other sizes as until the program draws anew.
    for (const QSize Size : {QSize(100, 100), QSize(100, 120), QSize(120, 100), QSize(80, 70)}) {
        Demo.Picture.Width.SetPixels(Size.width());
        Demo.Picture.Height.SetPixels(Size.height());
        ExpectShown(1);
    }
    Demo.Picture.BorderWidth = 0;
    ExpectShown(2);
}

TEST_F(Picture, WhatIsDrawnComesToTheScreen) {
    struct PaintListener : QObject {
        QRect Painted;
        bool eventFilter(QObject*, QEvent* Event) override {
            if (Event->type() == QEvent::Paint) Painted = static_cast<QPaintEvent*>(Event)->rect();
            return false;
        }
    } Listener;
    DrawPattern();
    QCoreApplication::processEvents();
    View.installEventFilter(&Listener);
    for (const int Left : {20, 50}) {
        Demo.Picture.Drawn(Left, 30, Left, 30);
        Demo.Picture.Drawn(Left + 5, 35, Left + 9, 39);
        Listener.Painted = QRect();
        EXPECT_TRUE(QTest::qWaitFor([&] { return !Listener.Painted.isNull(); }));
        EXPECT_EQ(Listener.Painted, QRect(Left + 1, 31, 10, 10)) << "what was drawn and no more";
    }
}

TEST_F(Picture, PointerDoubleClickAndContextMenuAreToldInUserUnitsOverLabelsToo) {
    Demo.OnPicture.Visible = true;
    Demo.OnPicture.Move(80.0, 35.0);  // 20 and 30 pixels
    QPointF Told;
    Demo.Picture.MouseMove = Demo.Picture.DoubleClick = [&](float X, float Y) { Told = QPointF(X, Y); };
    Demo.Picture.ContextMenu = [&](float X, float Y) {
        Told = QPointF(X, Y);
        return std::vector<MenuChoice>{{"First", [&] { Heard += "First "; }}, {"Second", [&] { Heard += "Second "; }}};
    };
    const QPointF Place(100.0 - 24.0, 80.0 - 36.0 * 1.5);
    for (const auto& [Widget, Pixel] :
         {std::pair<QWidget*, QPoint>(&View, QPoint(1 + 24, 1 + 36)), {&Find<QLabel>(Demo.OnPicture), QPoint(4, 6)}}) {
        QTest::mouseMove(Widget, Pixel);
        EXPECT_EQ(std::exchange(Told, QPointF()), Place);
        QTest::mouseDClick(Widget, Qt::LeftButton, {}, Pixel);
        EXPECT_EQ(std::exchange(Told, QPointF()), Place);
        QContextMenuEvent Asked(QContextMenuEvent::Mouse, Pixel, Widget->mapToGlobal(Pixel));
        QCoreApplication::sendEvent(Widget, &Asked);
        EXPECT_EQ(std::exchange(Told, QPointF()), Place);
        ASSERT_NE(QApplication::activePopupWidget(), nullptr);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Up);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
    }
    EXPECT_EQ(Heard, "Second Second ");
}

}  // namespace
}  // namespace gloamtide
