#include "map/geometry.h"

#include "state/numbers.h"

namespace gloamtide {

void RotateMap() {
    state.RotationHour = Single(state.GreenwichHour + 12.0 + state.GreenwichMinute / 60.0);
    if (state.RotationHour >= 24.0F) state.RotationHour -= 24.0F;
    state.MapShift = ToInt32(HourToMapX(state.RotationHour));
}

}  // namespace gloamtide
