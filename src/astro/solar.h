// The Sun's place: the low-accuracy theory of Meeus with Smart's series for the equation of time.
#pragma once

namespace gloamtide {

// The solar series at one instant. Geometric: no nutation, no aberration, universal time taken for dynamical time.
struct SolarSeries {
    double Obliquity;         // degrees, mean
    double MeanAnomaly;       // degrees, not reduced
    double EquationOfCentre;  // degrees
    double MeanLongitude;     // degrees, not reduced
    double TrueLongitude;     // degrees, not reduced
    double Eccentricity;
    double Y;               // square of the tangent of half the obliquity
    double EquationOfTime;  // radians, positive when the Sun is ahead of the clock
};

// The one solar series of the program.
//   Centuries: Julian centuries from 2451545.0
//   Source: Meeus, Astronomical Algorithms, chapters 22, 25 and 28; Smart, Textbook on Spherical Astronomy
SolarSeries SolarElements(double Centuries);

// Puts the Sun's place for the shown instant into the state.
//   Reads:  CurrentJD (days), MapWidth (pixels)
//   Sets:   JulianCenturies to JulianCenturies3, MeanObliquity, SunMeanAnomaly, SunEquationOfCentre,
//           SunMeanLongitude, SunTrueLongitude, EarthEccentricity, SunDeclination, TanSunDeclination,
//           SunRightAscension, EquationOfTime, EquationOfTimeMapShift
//   Errors: none
void SolarPosition();

// Right ascension in hours, 0 up to 24, from the direction (X, Y) in the equator's plane. The quadrant is put right on
// the single that the quotient's arc is stored in.
float RightAscensionHours(double Y, double X);

}  // namespace gloamtide
