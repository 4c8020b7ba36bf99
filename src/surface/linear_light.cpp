#include "surface/linear_light.h"

#include <cmath>
#include <memory>

namespace gloamtide {
namespace {

double LightOf(double Level) {  // 0 to 1, both
    return Level <= 0.04045 ? Level / 12.92 : std::pow((Level + 0.055) / 1.055, 2.4);
}

std::unique_ptr<const LinearLight> MakeTables() {
    auto Tables = std::make_unique<LinearLight>();
    std::size_t Next = 0;  // the lowest light that has no level yet
    for (std::size_t Level = 0; Level < 256; ++Level) {
        const auto Of = [](double Each) { return LightOf(Each / 255.0) * 65535.0; };
        Tables->Light[Level] = static_cast<std::uint16_t>(std::lround(Of(static_cast<double>(Level))));
        const double Limit = Level == 255 ? 65536.0 : Of(static_cast<double>(Level) + 0.5);
        while (static_cast<double>(Next) < Limit) Tables->Level[Next++] = static_cast<std::uint8_t>(Level);
    }
    return Tables;
}

}  // namespace

const LinearLight& LinearLightTables() {
    static const std::unique_ptr<const LinearLight> Tables = MakeTables();
    return *Tables;
}

}  // namespace gloamtide
