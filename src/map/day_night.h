// The lit Earth: the night picture with the day picture laid over it, strip by strip of latitude, and the overlays.
#pragma once

namespace gloamtide {

// Builds the whole picture of the map and shows it.
//   Reads:  GreenwichHour, GreenwichMinute, SunDeclination, TanSunDeclination, EquationOfTimeMapShift, the Show flags,
//           MapTypeShown; TwilightShown and TwilightLinesShown of the extras
//   Sets:   RotationHour, MapShift, the working state of the strips; the picture of FormGTMain.PictureGT
void RedrawMap();

// Copies the lit span at one latitude from the shown day, turned, onto PictureNightSplit. No refraction, no width of
// the Sun's disc: one degree of longitude on either side stands for both.
//   Reads:  StripLatitude (degrees), StripHeight (pixels, negative reaches upward), TanSunDeclination,
//           EquationOfTimeMapShift, MapShift
//   Sets:   StripTop, DayHalfWidth, StripLeftX, StripRightX
void BlitDayStrip();

}  // namespace gloamtide
