#include "platform/qt/picture_view.h"

#include <QImage>
#include <QLabel>

#include "demo_form.h"

namespace gloamtide {
namespace {

class Picture : public DesktopTest {
protected:
    Picture() { Demo.OnPicture.Visible = false; }

    // Draws a colour of its own on each pixel.
    void DrawPattern() {
        Bitmap& Canvas = Demo.Picture.Canvas();
        for (int Y = 0; Y < Canvas.Height; ++Y) {
            for (int X = 0; X < Canvas.Width; ++X) Canvas.Row(Y)[X] = RGB(X, Y, X + Y);
        }
        Demo.Picture.Drawn(0, 0, Canvas.Width - 1, Canvas.Height - 1);
    }

    PictureView& View() { return dynamic_cast<PictureView&>(Find<QWidget>(Demo.Picture)); }
};

TEST_F(Picture, IsShownToThePixelWithinItsBorder) {
    DrawPattern();
    const QImage Shown = View().grab().toImage();
    ASSERT_EQ(Shown.size(), QSize(102, 102));
    int Wrong = 0;
    for (int Y = 0; Y < 100; ++Y) {
        for (int X = 0; X < 100; ++X) Wrong += Shown.pixel(1 + X, 1 + Y) != qRgb(X, Y, X + Y);
    }
    EXPECT_EQ(Wrong, 0);
    for (const QPoint Corner : {QPoint(0, 0), QPoint(101, 0), QPoint(0, 101), QPoint(101, 101)}) {
        EXPECT_EQ(Shown.pixelColor(Corner), QColor(Qt::darkGray));
    }
}

TEST_F(Picture, APixelIsASquareOnAScreenTwiceAsDense) {
    DrawPattern();
    QImage Dense(204, 204, QImage::Format_RGB32);
    Dense.setDevicePixelRatio(2.0);
    View().render(&Dense);
    int Wrong = 0;
    for (int Y = 0; Y < 200; ++Y) {
        for (int X = 0; X < 200; ++X) Wrong += Dense.pixel(2 + X, 2 + Y) != qRgb(X / 2, Y / 2, X / 2 + Y / 2);
    }
    EXPECT_EQ(Wrong, 0);
}

TEST_F(Picture, WithoutABitmapIsAllBackColor) {
    Demo.Picture.BackColor = RGB(255, 224, 192);
    const QImage Shown = View().grab().toImage();
    EXPECT_EQ(Shown.pixelColor(1, 1), QColor(255, 224, 192));
    EXPECT_EQ(Shown.pixelColor(100, 100), QColor(255, 224, 192));
}

TEST_F(Picture, WhatIsDrawnComesToTheScreen) {
    struct PaintCounter : QObject {
        QRect Painted;
        bool eventFilter(QObject*, QEvent* Event) override {
            if (Event->type() == QEvent::Paint) Painted = static_cast<QPaintEvent*>(Event)->rect();
            return false;
        }
    } Counter;
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&Window()));
    DrawPattern();
    QCoreApplication::processEvents();
    View().installEventFilter(&Counter);
    Demo.Picture.Drawn(20, 30, 20, 30);
    Demo.Picture.Drawn(25, 35, 29, 39);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !Counter.Painted.isNull(); }));
    EXPECT_EQ(Counter.Painted, QRect(21, 31, 10, 10)) << "what was drawn and no more";
}

TEST_F(Picture, ThePointerIsToldInUserUnitsOverLabelsToo) {
    float X = 0.0F;
    float Y = 0.0F;
    Demo.Picture.MouseMove = [&](float ToX, float ToY) {
        X = ToX;
        Y = ToY;
    };
    QTest::mouseMove(&View(), QPoint(1 + 70, 1 + 50));
    EXPECT_FLOAT_EQ(X, 30.0F);
    EXPECT_FLOAT_EQ(Y, 5.0F);
    Demo.OnPicture.Visible = true;
    Demo.OnPicture.Move(80.0, 35.0);  // 20 and 30 pixels
    QTest::mouseMove(&Find<QLabel>(Demo.OnPicture), QPoint(4, 6));
    EXPECT_FLOAT_EQ(X, 100.0F - 24.0F);
    EXPECT_FLOAT_EQ(Y, 80.0F - 36.0F * 1.5F);
}

}  // namespace
}  // namespace gloamtide
