#include "map/city_names.h"

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>
#include <vector>

#include "forms/form_pictures.h"
#include "map/geometry.h"
#include "platform/host.h"
#include "state/state.h"
#include "surface/lettering.h"

namespace gloamtide {
namespace {

// Device pixels, the ends left out.
struct Box {
    int Left = 0, Top = 0, Right = 0, Bottom = 0;

    bool Meets(const Box& Other) const {
        return Left < Other.Right && Other.Left < Right && Top < Other.Bottom && Other.Top < Bottom;
    }
    Box Moved(int Across) const { return {Left + Across, Top, Right + Across, Bottom}; }
};

struct CityMark {
    std::size_t City;  // row of the table
    double X, Y;       // of its middle on the unrotated map, device pixels
};

struct PlacedName {
    CityMark Mark;
    GlyphMask Letters;
    Box Place;  // on the unrotated map, perhaps beyond an edge
};

// The rows of a mask that hold letters; above and below there is room for others.
GlyphMask WithoutBlankRows(GlyphMask Mask) {
    const auto Inked = [](std::uint8_t Coverage) { return Coverage != 0; };
    auto& Pixels = Mask.Coverage;
    const auto Below = std::find_if(Pixels.rbegin(), Pixels.rend(), Inked) - Pixels.rbegin();
    Pixels.resize(Pixels.size() - static_cast<std::size_t>(Below / Mask.Width * Mask.Width));
    const auto Above = std::find_if(Pixels.begin(), Pixels.end(), Inked) - Pixels.begin();
    Pixels.erase(Pixels.begin(), Pixels.begin() + Above / Mask.Width * Mask.Width);
    Mask.Height = static_cast<int>(Pixels.size()) / Mask.Width;
    return Mask;
}

// The names on a map of one size, which does not turn: so no name jumps as time passes, but those at the edge do.
class NameLayout {
public:
    NameLayout(int TheColumns, int TheRows, double TheDensity)
        : Columns(TheColumns), Rows(TheRows), Density(TheDensity) {
        for (std::size_t City = 1; City <= static_cast<std::size_t>(state.CityCount); ++City) {
            const double X = LongitudeToMapX(state.CityLongitude[City]);
            const double Y = LatitudeToPixelY(state.CityLatitude[City]);
            Marks.push_back({City, (state.MapWidth - X) * Density, Y * Density});
        }
        std::stable_sort(Marks.begin(), Marks.end(), [](const CityMark& Left, const CityMark& Right) {
            return state.CityPeople[Left.City] > state.CityPeople[Right.City];
        });
        constexpr int Apart = 29;  // device pixels of the map's width for each name
        for (const CityMark& Each : Marks) {
            if (Names.size() >= static_cast<std::size_t>(Columns / Apart)) break;
            PlaceName(Each);
        }
    }

    bool Suits(int TheColumns, int TheRows, double TheDensity) const {
        return Columns == TheColumns && Rows == TheRows && Density == TheDensity;
    }

    // Writes all names on a map that is turned by so many device pixels.
    void Write(PictureSurface& Map, int Turned) const {
        std::vector<Box> Changed;  // places of names that the edge would have cut
        for (const PlacedName& Each : Names) {
            const int Across = Each.Mark.X < Turned ? Columns - Turned : -Turned;
            Box Place = Each.Place.Moved(Across);
            if (Place.Left < 0 || Place.Right > Columns) {
                const auto Other = PlaceWithin(Each, Across, Changed);
                if (!Other) continue;
                Place = Other->Moved(Across);
                Changed.push_back(Place);
            }
            MarkCity(Map, Each.Mark);
            LayText(Map.Canvas(), Each.Letters, Place.Left + Margin(), Place.Top + RimWidth(), RGB(255, 255, 255),
                    RimWidth());
        }
    }

private:
    int Pixels(double Wanted) const { return std::max(1, static_cast<int>(std::lround(Wanted * Density))); }
    int RimWidth() const { return std::max(1, static_cast<int>(std::lround(std::sqrt(Density)))); }
    int Margin() const { return RimWidth() + 1; }  // left and right of the letters, with their rim

    // As a town is called: without its country.
    static std::string TownOf(const CityMark& Mark) {
        const std::string& Name = state.CityName[Mark.City];
        return Name.substr(0, Name.find(','));
    }

    Box MarkBox(const CityMark& Mark) const {
        const int Reach = Pixels(state.CityMarkerRadius) + (Pixels(1.0) - 1) / 2;  // half its pen lies outside
        const int X = static_cast<int>(std::floor(Mark.X));
        const int Y = static_cast<int>(std::floor(Mark.Y));
        return {X - Reach, Y - Reach, X + Reach + 1, Y + Reach + 1};
    }

    // The places beside a mark, the best first: right, left, then above and below.
    std::vector<Box> PlacesBeside(const CityMark& Mark, const GlyphMask& Letters) const {
        const Box Dot = MarkBox(Mark);
        const int W = Letters.Width + 2 * Margin();
        const int H = Letters.Height + 2 * RimWidth();
        const int X = (Dot.Left + Dot.Right) / 2;
        const int Y = (Dot.Top + Dot.Bottom) / 2;
        const auto At = [&](int Left, int Top) { return Box{Left, Top, Left + W, Top + H}; };
        return {At(Dot.Right, Y - H / 2),   At(Dot.Left - W, Y - H / 2),   At(Dot.Right, Y - H),
                At(Dot.Right, Y),           At(Dot.Left - W, Y - H),       At(Dot.Left - W, Y),
                At(X - W / 2, Dot.Top - H), At(X - W / 2, Dot.Bottom),     At(X - W / 3, Dot.Bottom),
                At(X - W / 3, Dot.Top - H), At(X - 2 * W / 3, Dot.Bottom), At(X - 2 * W / 3, Dot.Top - H)};
    }

    // Whether a place is free of the other names and of all marks, round the Earth.
    bool IsFree(const Box& Place, const CityMark& Of) const {
        if (Place.Top < 0 || Place.Bottom > Rows) return false;
        const auto Meets = [&](const Box& Other) {
            return Place.Meets(Other) || Place.Meets(Other.Moved(Columns)) || Place.Meets(Other.Moved(-Columns));
        };
        return std::none_of(Names.begin(), Names.end(),
                            [&](const PlacedName& Each) { return Each.Mark.City != Of.City && Meets(Each.Place); }) &&
               std::none_of(Marks.begin(), Marks.end(),
                            [&](const CityMark& Each) { return Each.City != Of.City && Meets(MarkBox(Each)); });
    }

    // Letters grow with the root of the density: at a scale of 4 they are twice as large, and the map has room for
    // more.
    void PlaceName(const CityMark& Mark) {
        Font Small = FormPictures.PictureNightSplit.CurrentFont();
        Small.Name = "MS Sans Serif";
        Small.Size = 8.0 / std::sqrt(Density);
        GlyphMask Letters = host->RenderText(Small, TownOf(Mark), Density);
        if (Letters.Coverage.empty()) return;
        Letters = WithoutBlankRows(std::move(Letters));
        for (const Box& Place : PlacesBeside(Mark, Letters)) {
            if (!IsFree(Place, Mark)) continue;
            Names.push_back({Mark, Letters, Place});
            return;
        }
    }

    // Another place for a name, on the map that is moved Across, off its edges and those already changed.
    std::optional<Box> PlaceWithin(const PlacedName& Name, int Across, const std::vector<Box>& Changed) const {
        for (const Box& Place : PlacesBeside(Name.Mark, Name.Letters)) {
            const Box Shown = Place.Moved(Across);
            const auto Meets = [&](const Box& Other) { return Shown.Meets(Other); };
            const bool Clear = std::none_of(Changed.begin(), Changed.end(), Meets);
            if (Clear && Shown.Left >= 0 && Shown.Right <= Columns && IsFree(Place, Name.Mark)) return Place;
        }
        return std::nullopt;
    }

    static void MarkCity(PictureSurface& Map, const CityMark& Mark) {
        if (state.ShowCities == True) return;
        Map.FillStyle = FillStyles::Solid;
        Map.FillColor = QBColor(14);
        Map.Circle(LongitudeToRotatedMapX(state.CityLongitude[Mark.City]), state.CityLatitude[Mark.City],
                   state.CityMarkerRadius, Map.FillColor);
    }

    const int Columns, Rows;  // of the map, device pixels
    const double Density;
    std::vector<CityMark> Marks;  // the largest city first
    std::vector<PlacedName> Names;
};

}  // namespace

void DrawCityNames() {
    static std::optional<NameLayout> Layout;  // depends on nothing but the size
    PictureSurface& Map = FormPictures.PictureNightSplit;
    const Bitmap& Canvas = Map.Canvas();
    if (!Layout || !Layout->Suits(Canvas.Width, Canvas.Height, Map.Density)) {
        Layout.emplace(Canvas.Width, Canvas.Height, Map.Density);
    }
    Layout->Write(Map, static_cast<int>(std::lround(state.MapShift * Map.Density)));
}

}  // namespace gloamtide
