// The scale at which a window shows the program's pixels.
#pragma once

#include <QObject>
#include <QRectF>
#include <QSizeF>

namespace gloamtide {

// Screen pixels for each of the program's. Everything on a window's board stands in its place times the scale, edges
// rounded alike.
class BoardScale : public QObject {
    Q_OBJECT

public:
    double Factor() const { return Value; }
    int LowestLetters() const { return Lowest; }
    // LowestLetters: height below which no letters become, pixels.
    void SetFactor(double NewFactor, int LowestLetters = 1);

    int Place(double Pixels) const { return qRound(Pixels * Value); }
    // The widget's rectangle of a place and size in the program's pixels.
    QRect Box(double Left, double Top, double Width, double Height) const;

signals:
    void Changed();

private:
    double Value = 1.0;
    int Lowest = 1;  // pixels
};

// The largest scale at which a board fits into a space; 1 where it would be hardly more than that.
double ScaleToFit(const QSizeF& Board, const QSizeF& Space);

}  // namespace gloamtide
