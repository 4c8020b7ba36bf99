#include "map/zone_lines.h"

#include <algorithm>
#include <iterator>

#include "forms/form_pictures.h"
#include "map/geometry.h"
#include "state/state.h"

namespace gloamtide {
namespace {

constexpr float PenUp = 9999.0F;       // in both fields of a row: the next row starts a line
constexpr float EndOfTable = 8888.0F;  // in both fields of a row

constexpr MapPoint ZoneLines[] = {
#include "map/zone_line_points.inc"
};
static_assert(std::size(ZoneLines) == 1139);

// clang-format off
constexpr MapPoint DateLine[] = {
    {PenUp, PenUp},
    {-180.0F, 80.0F}, {-180.0F, 75.0F}, {-168.5F, 67.5F}, {-168.5F, 65.0F}, {-180.0F, 57.5F},
    {PenUp, PenUp},
    {180.0F, 57.5F}, {172.5F, 52.0F}, {180.0F, 47.66F},
    {PenUp, PenUp},
    {-180.0F, 47.66F}, {-180.0F, -6.0F}, {-172.5F, -15.0F}, {-172.5F, -45.0F}, {-180.0F, -54.0F}, {-180.0F, -70.0F},
    {EndOfTable, EndOfTable},
};
// clang-format on
static_assert(std::size(DateLine) == 18);

// A picture and its two colours.
struct LinePicture {
    PictureSurface& Picture;
    Color ZoneColor;
    Color DateColor;
};

// Table: rows from 1.
template <std::size_t Rows>
void DrawTable(PictureSurface& Picture, const std::array<MapPoint, Rows>& Table, Color LineColor) {
    Picture.DrawStyle = DrawStyles::Solid;
    bool Starts = false;
    for (std::size_t Row = 1; Row < Rows && Table[Row].Longitude != EndOfTable; ++Row) {
        const MapPoint& Point = Table[Row];
        if (Point.Longitude == PenUp) {
            Starts = true;
        } else if (Starts) {
            Picture.PSet(LongitudeToMapX(Point.Longitude), Point.Latitude, LineColor);
            Starts = false;
        } else {
            Picture.LineTo(LongitudeToMapX(Point.Longitude), Point.Latitude, LineColor);
        }
    }
}

}  // namespace

void LoadZoneLines() {
    std::copy(std::begin(ZoneLines), std::end(ZoneLines), state.ZoneLinePoints.begin() + 1);
    std::copy(std::begin(DateLine), std::end(DateLine), state.DateLinePoints.begin() + 1);
}

void DrawTimeZoneLines() {
    LoadZoneLines();
    PicturesForm& F = FormPictures;
    const Color ZoneByDay = RGB(160, 160, 160);
    const Color ZoneByNight = RGB(130, 130, 130);
    const Color DateByDay = RGB(255, 80, 80);
    const Color DateByNight = RGB(210, 160, 80);
    const LinePicture Pictures[] = {
        {F.PictureTZDay, ZoneByDay, DateByDay},
        {F.PictureTZNight, ZoneByNight, DateByNight},
        {F.PictureTZCitiesDay, ZoneByDay, DateByDay},
        {F.PictureTZCitiesNight, ZoneByNight, DateByNight},
    };
    for (const LinePicture& Each : Pictures) {
        if (Each.Picture.Picture.Empty()) continue;
        DrawTable(Each.Picture, state.ZoneLinePoints, Each.ZoneColor);
        DrawTable(Each.Picture, state.DateLinePoints, Each.DateColor);
    }
}

}  // namespace gloamtide
