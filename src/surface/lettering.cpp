#include "surface/lettering.h"

#include <algorithm>

#include "platform/rim.h"

namespace gloamtide {
namespace {

Color Blend(Color Under, Color Over, int Coverage) {
    const auto Mix = [Coverage](int Below, int Above) {
        return (Below * (255 - Coverage) + Above * Coverage + 127) / 255;
    };
    return RGB(Mix(RedOf(Under), RedOf(Over)), Mix(GreenOf(Under), GreenOf(Over)), Mix(BlueOf(Under), BlueOf(Over)));
}

int CoverageAt(const GlyphMask& Mask, int X, int Y) {
    const bool Inside = X >= 0 && Y >= 0 && X < Mask.Width && Y < Mask.Height;
    return Inside ? Mask.Coverage[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Mask.Width) +
                                  static_cast<std::size_t>(X)]
                  : 0;
}

// The strongest coverage within a disc.
int RimAt(const GlyphMask& Mask, int X, int Y, int Reach) {
    int Strongest = 0;
    for (int Down = -Reach; Down <= Reach; ++Down) {
        for (int Right = -Reach; Right <= Reach; ++Right) {
            if (Down * Down + Right * Right > Reach * (Reach + 1)) continue;
            Strongest = std::max(Strongest, CoverageAt(Mask, X + Right, Y + Down));
        }
    }
    return Strongest;
}

}  // namespace

void LayText(Bitmap& Target, const GlyphMask& Mask, int X, int Y, Color TextColor, int Rim) {
    const int FromX = std::max(0, X - Rim);
    const int FromY = std::max(0, Y - Rim);
    const int EndX = std::min(Target.Width, X + Mask.Width + Rim);
    const int EndY = std::min(Target.Height, Y + Mask.Height + Rim);
    for (int Row = FromY; Row < EndY; ++Row) {
        for (int Column = FromX; Column < EndX; ++Column) {
            Color& Pixel = Target.Row(Row)[Column];
            const int Needed = Rim > 0 ? RimNeededOn(Pixel) : 0;
            if (Needed > 0) Pixel = Blend(Pixel, RimColor, Needed * RimAt(Mask, Column - X, Row - Y, Rim) / 255);
            Pixel = Blend(Pixel, TextColor, CoverageAt(Mask, Column - X, Row - Y));
        }
    }
}

}  // namespace gloamtide
