// The horizontal sundial of the location: what it would show in a garden there.
//
// Dial units: x from -1100 at the left to 1100 at the right, y from 1100 at the top to -600 at the bottom; the frame is
// the rectangle from (-1000, 1000) to (1000, -500). Angles are degrees clockwise from the top, round the dial's centre
// (0, GnomonBaseY). The pole side is up: north in the north, south in the south.
#pragma once

namespace gloamtide {

// Draws the dial on PictureSundial: shadow, frame, gnomon, hour lines and their numbers. The shadow tells apparent
// solar time to the minute; the three options turn the hour lines.
//   Reads:  LocationLat, LocationLong, EquationOfTime, SunDeclination, LocalHour, LocalMinute, DaylightHours, the
//           three options, HourLineOffset of the last drawing
//   Sets:   the fields of the dial in the state; labels of the dial
void DrawSundial();

// Draws the shadow, or gives the dial its night look where the Sun stands lower than 0.15 degrees.
//   Reads:  SundialHour, LocationLat, SunDeclination, GnomonBaseY, GnomonLength, GnomonHeight, GnomonThickness
//   Sets:   SolarHourAngle, SinSunAltitude; by day SunAltitude, SunAzimuth
void DrawSundialShadow();

// Finds where the line of SundialHour meets the frame and puts its number there.
//   Sets:  HourLineEndX, HourLineEndY, and what ComputeHourLineAngle sets
void PlaceHourLine();

// The angle of the line of SundialHour: tan(angle) = sin(latitude) * tan(hour angle).
//   Sets:  HourLineHourAngle, HourLineAngle, HourLineOffset
void ComputeHourLineAngle();

}  // namespace gloamtide
