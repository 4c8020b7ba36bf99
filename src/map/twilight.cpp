#include "map/twilight.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

#include "astro/degrees.h"
#include "forms/form_pictures.h"
#include "map/stored_pictures.h"
#include "state/numbers.h"
#include "state/state.h"
#include "surface/linear_light.h"

namespace gloamtide {
namespace {

constexpr double FullNight = -18.0;  // degrees of the Sun's altitude
constexpr double FullDay = 0.5;

// The sine of the Sun's altitude along a parallel is Middle + Reach * cos(hour angle).
struct Parallel {
    double Middle;
    double Reach;

    explicit Parallel(double Latitude)
        : Middle(SinDeg(Latitude) * SinDeg(state.SunDeclination)),
          Reach(CosDeg(Latitude) * CosDeg(state.SunDeclination)) {}

    // The hour angle, degrees, up to which the Sun stands higher than an altitude: 0 where it never does, 180 where it
    // always does.
    double HalfArc(double Altitude) const {
        return std::acos(std::clamp((SinDeg(Altitude) - Middle) / Reach, -1.0, 1.0)) / std::acos(-1.0) * 180.0;
    }
};

double RowLatitude(double Row, int Rows) { return 80.0 - (Row + 0.5) * 150.0 / Rows; }

// The column where the true Sun stands overhead, a fraction of Columns.
double NoonColumn(int Columns) { return (0.5 - double{state.EquationOfTimeMapShift} / state.MapWidth) * Columns; }

// The instant of a file made by hand can be one that has no Sun.
bool SunIsKnown() {
    return std::abs(state.SunDeclination) <= 90.0 && std::abs(state.EquationOfTimeMapShift) <= Single(state.MapWidth);
}

// How much of a pixel is day, by the sine of the Sun's altitude, in steps of equal sines.
class DayShares {
public:
    static constexpr std::uint32_t Whole = 4096;

    DayShares() {
        for (std::size_t Step = 0; Step < Shares.size(); ++Step) {
            const double Sine = Lowest + (static_cast<double>(Step) + 0.5) / StepsToOne;
            const double T = (ArcSinDeg(Sine) - FullNight) / (FullDay - FullNight);
            Shares[Step] = static_cast<std::uint16_t>(std::lround(Whole * T * T * (3.0 - 2.0 * T)));
        }
    }

    std::uint32_t At(float Sine) const {
        const auto Step = static_cast<int>((Sine - static_cast<float>(Lowest)) * static_cast<float>(StepsToOne));
        return Shares[static_cast<std::size_t>(std::clamp(Step, 0, static_cast<int>(Shares.size()) - 1))];
    }

private:
    const double Lowest = SinDeg(FullNight);
    std::array<std::uint16_t, 2048> Shares{};
    const double StepsToOne = static_cast<double>(Shares.size()) / (SinDeg(FullDay) - Lowest);
};

const DayShares& DayShareTable() {
    static const DayShares Table;
    return Table;
}

// Mixes day and night along a row, and knows the columns' hour angles.
class Mixer {
public:
    explicit Mixer(int TheColumns) : Columns(TheColumns), Cosines(static_cast<std::size_t>(TheColumns)) {
        for (int Column = 0; Column < Columns; ++Column) {
            const double HourAngle = (Column + 0.5 - Noon) * 360.0 / Columns;
            Cosines[static_cast<std::size_t>(Column)] = static_cast<float>(CosDeg(HourAngle));
        }
    }

    void LayRow(const Color* Day, Color* Night, const Parallel& Sun) const {
        // Columns left and right of noon, as if the map went on beyond its seam, once round.
        const int First = ToInt32(std::ceil(Noon - 0.5 * Columns - 0.5));
        const int Last = First + Columns - 1;
        const auto Within = [&](double Half) {
            return std::pair(std::max(First, ToInt32(std::ceil(Noon - Half - 0.5))),
                             std::min(Last, ToInt32(std::floor(Noon + Half - 0.5))));
        };
        const auto [FirstLit, LastLit] = Within(Sun.HalfArc(FullNight) * Columns / 360.0);
        const auto [FirstDay, LastDay] =
            Within(Sun.HalfArc(FullDay) * Columns / 360.0 - 1.0);  // the outermost is mixed
        const auto Mix = [&](int From, int To) { MixColumns(Day, Night, From, To, Sun); };
        const auto Copy = [&](int From, int To) { std::copy(Day + From, Day + To, Night + From); };
        if (FirstDay > LastDay) {
            OnMap(FirstLit, LastLit, Mix);
            return;
        }
        OnMap(FirstLit, FirstDay - 1, Mix);
        OnMap(FirstDay, LastDay, Copy);
        OnMap(LastDay + 1, LastLit, Mix);
    }

private:
    // Lets Lay work on columns First to Last, in the pieces that the map's seam makes of them.
    template <class Work>
    void OnMap(int First, int Last, const Work& Lay) const {
        for (const int Turn : {-Columns, 0, Columns}) {
            const int From = std::max(First - Turn, 0);
            const int To = std::min(Last + 1 - Turn, Columns);
            if (From < To) Lay(From, To);
        }
    }

    void MixColumns(const Color* Day, Color* Night, int From, int To, const Parallel& Sun) const {
        const auto Middle = static_cast<float>(Sun.Middle);
        const auto Reach = static_cast<float>(Sun.Reach);
        for (int Column = From; Column < To; ++Column) {
            const std::uint32_t Share = Shares.At(Middle + Reach * Cosines[static_cast<std::size_t>(Column)]);
            const Color ByDay = Day[Column];
            const Color ByNight = Night[Column];
            const auto Channel = [&](unsigned Shift) {
                const std::uint32_t Sum = Share * Light.Light[ByDay >> Shift & 255U] +
                                          (DayShares::Whole - Share) * Light.Light[ByNight >> Shift & 255U];
                return Color{Light.Level[Sum / DayShares::Whole]} << Shift;
            };
            Night[Column] = Channel(0) | Channel(8) | Channel(16);
        }
    }

    const int Columns;
    const double Noon = NoonColumn(Columns);
    std::vector<float> Cosines;  // of the hour angle at the middle of each column
    const LinearLight& Light = LinearLightTables();
    const DayShares& Shares = DayShareTable();
};

struct TwilightLine {
    double Altitude;  // degrees
    Color LineColor;
};

constexpr TwilightLine TwilightLines[] = {
    {-0.833, RGB(255, 190, 90)},  // sunrise and sunset
    {-6.0, RGB(230, 150, 120)},   // civil
    {-12.0, RGB(170, 130, 190)},  // nautical
    {-18.0, RGB(120, 130, 210)},  // astronomical
};

// Both branches, east and west of noon, from row to row; where one crosses the map's edge it comes in at the other.
void DrawTwilightLine(const TwilightLine& Each) {
    PictureSurface& Map = FormPictures.PictureNightSplit;
    const int Rows = Map.Canvas().Height;
    const double Noon = NoonColumn(state.MapWidth);
    const auto HalfWidth = [&](int Row) {
        return Parallel(RowLatitude(Row, Rows)).HalfArc(Each.Altitude) * state.MapWidth / 360.0;
    };
    const double Edge = 0.5 * state.MapWidth;
    double Before = HalfWidth(-1);
    for (int Row = 0; Row <= Rows; ++Row) {
        const double Here = HalfWidth(Row);
        const bool Crosses = std::max(Before, Here) > 0.0 && std::min(Before, Here) < Edge;
        for (const double Side : {-1.0, 1.0}) {
            for (const double Turn : {-1.0, 0.0, 1.0}) {
                const auto X = [&](double Half) {
                    return state.MapWidth - (Noon + Side * Half + Turn * state.MapWidth);
                };
                if (!Crosses || std::max(X(Before), X(Here)) < 0.0 || std::min(X(Before), X(Here)) > state.MapWidth) {
                    continue;
                }
                Map.Line(X(Before), RowLatitude(Row - 1, Rows), X(Here), RowLatitude(Row, Rows), Each.LineColor);
            }
        }
        Before = Here;
    }
}

}  // namespace

void LayTwilight() {
    if (!SunIsKnown()) return;
    PictureSurface& Shown = ShownMapPictures().Day;
    const Bitmap& Day = Shown.Canvas();
    const int Turned = TurnedColumns(Shown, state.MapShift);
    Bitmap& Night = FormPictures.PictureNightSplit.Canvas();
    const Mixer Row(Night.Width);
    std::vector<Color> DayRow(static_cast<std::size_t>(Night.Width));
    for (int Y = 0; Y < Night.Height; ++Y) {
        const Color* Stored = Day.Row(Y);
        std::rotate_copy(Stored, Stored + Turned, Stored + Night.Width, DayRow.begin());
        Row.LayRow(DayRow.data(), Night.Row(Y), Parallel(RowLatitude(Y, Night.Height)));
    }
}

void DrawTwilightLines() {
    if (!SunIsKnown()) return;
    PictureSurface& Map = FormPictures.PictureNightSplit;
    Map.DrawWidth = 1;
    Map.DrawStyle = DrawStyles::Solid;
    for (const TwilightLine& Each : TwilightLines) DrawTwilightLine(Each);
}

}  // namespace gloamtide
