#include "map/moon_disc.h"

#include <array>
#include <cstdint>
#include <limits>

#include "forms/form_pictures.h"
#include "map/geometry.h"
#include "state/state.h"

namespace gloamtide {
namespace {

enum class Shade : std::uint8_t { Dark, Lit };
enum class Shape : std::uint8_t { None, Ellipse, Arc };

constexpr Color LitColor = RGB(255, 240, 190);
constexpr Color DarkColor = RGB(128, 128, 128);

// What is laid over the base disc. An ellipse: its centre Toward * (R - Less) to the left of the disc's, as high as the
// disc, Aspect times as high as wide. An arc: of the radius R - Less, from Start to End.
struct Overlay {
    Shape Kind = Shape::None;
    Shade Filling = Shade::Dark;
    int Toward = 0;  // 1 to the left, -1 to the right
    float Less = 0.0F;
    float Aspect = 1.0F;
    float Start = 0.0F;  // radians, counter-clockwise from the right
    float End = 0.0F;
};

constexpr Overlay Ellipse(Shade Filling, int Toward, float Less, float Aspect) {
    return {Shape::Ellipse, Filling, Toward, Less, Aspect, 0.0F, 0.0F};
}
constexpr Overlay LitArc(float Less, float Start, float End) {
    return {Shape::Arc, Shade::Lit, 0, Less, 1.0F, Start, End};
}

struct Recipe {
    float Limit = 0.0F;  // elongation in hours, included
    Shade Base = Shade::Dark;
    Overlay First, Second;
};

using Recipes = std::array<Recipe, 12>;
constexpr Shade Dark = Shade::Dark;
constexpr Shade Lit = Shade::Lit;
constexpr float Beyond = std::numeric_limits<float>::infinity();

// clang-format off
constexpr Recipes SmallMaps = {{
    {2.2F,    Dark, LitArc(0, 1.853539665624F, 4.429645641576F), {}},
    {5.23F,   Lit,  Ellipse(Dark, -1, 3, 1.3F), {}},
    {6.77F,   Lit,  Ellipse(Dark, -1, 3, 1.6F), Ellipse(Lit, 1, 4, 8)},
    {9.07F,   Dark, Ellipse(Lit, 1, 3, 1.6F), {}},
    {11.459F, Dark, Ellipse(Lit, 1, 4, 1.3F), {}},
    {12.541F, Lit,  {}, {}},
    {14.93F,  Dark, Ellipse(Lit, -1, 4, 1.3F), {}},
    {17.23F,  Dark, Ellipse(Lit, -1, 3, 1.6F), {}},
    {18.77F,  Lit,  Ellipse(Dark, 1, 3, 1.6F), Ellipse(Lit, -1, 4, 8)},
    {21.8F,   Lit,  Ellipse(Dark, 1, 3, 1.3F), {}},
    {23.459F, Dark, LitArc(0, 4.995132319224F, 1.288052987976F), {}},
    {Beyond,  Dark, {}, {}},
}};

constexpr Recipes LargeMaps = {{
    {2.2F,    Dark, LitArc(0, 1.790707812552F, 4.492477494648F), LitArc(1, 2.19911485752F, 4.08407044968F)},
    {5.23F,   Lit,  Ellipse(Dark, -1, 4, 1.3F), {}},
    {6.77F,   Lit,  Ellipse(Dark, -1, 4, 1.5F), Ellipse(Lit, 1, 5, 6)},
    {9.07F,   Dark, Ellipse(Lit, 1, 3, 1.6F), {}},
    {11.459F, Dark, Ellipse(Lit, 1, 4, 1.3F), {}},
    {12.541F, Lit,  {}, {}},
    {14.93F,  Dark, Ellipse(Lit, -1, 4, 1.3F), {}},
    {17.23F,  Dark, Ellipse(Lit, -1, 3, 1.6F), {}},
    {18.77F,  Lit,  Ellipse(Dark, 1, 4, 1.5F), Ellipse(Lit, -1, 5, 6)},
    {21.8F,   Lit,  Ellipse(Dark, 1, 4, 1.3F), {}},
    {23.459F, Dark, LitArc(0, 4.932300466152F, 1.350884841048F), LitArc(1, 5.34070751112F, 0.94247779608F)},
    {Beyond,  Dark, {}, {}},
}};
// clang-format on
constexpr Recipe NewMoon = {0.541F, Dark, {}, {}};

const Recipe& ChooseRecipe() {
    const float H = state.MoonElongationHours;
    if (H < NewMoon.Limit) return NewMoon;
    const Recipes& Table = state.ScreenClass < 2 ? SmallMaps : LargeMaps;
    for (const Recipe& Each : Table) {
        if (H <= Each.Limit) return Each;
    }
    return NewMoon;  // an elongation that is no number
}

void DrawFilled(float X, float R, Shade Filling, float Aspect) {
    PictureSurface& Map = FormPictures.PictureNightSplit;
    Map.FillColor = Filling == Lit ? LitColor : DarkColor;
    Map.Circle(X, state.MoonDeclination, R, Map.FillColor, Aspect);
}

void DrawOverlay(const Overlay& Each, float X, float R) {
    switch (Each.Kind) {
        case Shape::None:
            break;
        case Shape::Ellipse:
            DrawFilled(X + static_cast<float>(Each.Toward) * (R - Each.Less), R, Each.Filling, Each.Aspect);
            break;
        case Shape::Arc:
            FormPictures.PictureNightSplit.Arc(X, state.MoonDeclination, R - Each.Less, LitColor, Each.Start, Each.End);
            break;
    }
}

}  // namespace

void DrawMoonDisc() {
    FormPictures.PictureNightSplit.FillStyle = FillStyles::Solid;
    const float X = HourToMapX(state.MoonMapHour);
    const float R = state.MarkerRadiusX;
    const Recipe& Phase = ChooseRecipe();
    DrawFilled(X, R, Phase.Base, 1.0F);
    DrawOverlay(Phase.First, X, R);
    DrawOverlay(Phase.Second, X, R);
}

}  // namespace gloamtide
