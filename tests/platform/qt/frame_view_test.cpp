#include "platform/qt/frame_view.h"

#include <QImage>
#include <algorithm>

#include "demo_form.h"

namespace gloamtide {
namespace {

using FrameLine = DesktopTest;

// Pixels of a row, past the corners, that are not the frame's background.
long InRow(const QImage& Shown, int Y, QRgb Background) {
    const auto* Row = reinterpret_cast<const QRgb*>(Shown.constScanLine(Y));
    return std::count_if(Row + 5, Row + Shown.width() - 5, [&](QRgb Pixel) { return Pixel != Background; });
}

TEST_F(FrameLine, GoesRoundTheFrameAndIsBrokenByTheCaption) {
    Demo.North.Visible = false;
    Demo.South.Visible = false;
    auto& Frame = Find<FrameView>(Demo.Choice);
    const QRgb Background = qRgb(192, 192, 192);
    const int Line = Frame.fontMetrics().height() / 2;
    const QImage Captioned = Frame.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_GT(InRow(Captioned, Line, Background), 150);
    EXPECT_LT(InRow(Captioned, Line, Background), 185) << "of 190: the caption needs room";
    EXPECT_LT(InRow(Captioned, 1, Background), 20) << "nothing but letters above the line";
    Demo.Choice.Caption = "";
    const QImage Bare = Frame.grab().toImage().convertToFormat(QImage::Format_RGB32);
    EXPECT_EQ(InRow(Bare, 0, Background), 190);
    EXPECT_EQ(InRow(Bare, Bare.height() - 1, Background), 190);
    EXPECT_EQ(InRow(Bare, Bare.height() / 2, Background), 0);
}

}  // namespace
}  // namespace gloamtide
