#include "platform/qt/board.h"

#include <algorithm>

namespace gloamtide {

void BoardScale::SetFactor(double NewFactor, int LowestLetters) {
    if (NewFactor == Value && LowestLetters == Lowest) return;
    Value = NewFactor;
    Lowest = LowestLetters;
    emit Changed();
}

QRect BoardScale::Box(double Left, double Top, double Width, double Height) const {
    const QPoint Corner(Place(Left), Place(Top));
    // Whole pixels keep their size at scale 1, wherever they stand.
    if (Value == 1.0) return {Corner, QSize(qRound(Width), qRound(Height))};
    return {Corner, QPoint(Place(Left + Width) - 1, Place(Top + Height) - 1)};
}

double ScaleToFit(const QSizeF& Board, const QSizeF& Space) {
    constexpr double HardlyMore = 1.05;   // not worth letters of uneven strokes
    constexpr double Smallest = 1.0 / 8;  // a window of next to nothing shows something
    const double Scale = std::min(Space.width() / Board.width(), Space.height() / Board.height());
    return Scale >= 1.0 && Scale < HardlyMore ? 1.0 : std::max(Scale, Smallest);
}

}  // namespace gloamtide
