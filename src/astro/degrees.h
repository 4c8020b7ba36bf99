// Trigonometry in degrees; the whole program uses these and no other.
#pragma once

namespace gloamtide {

// Kept: ten decimals, not the full value. It is a little above pi, which puts the tangent of 90 and of 270 degrees on
// the negative side; the six o'clock lines of the sundial rest on that.
constexpr double Pi = 3.1415926536;

double SinDeg(double X);
double CosDeg(double X);
double TanDeg(double X);
double ArcTanDeg(double X);
double ArcSinDeg(double X);  // for magnitudes below 1 only; NaN or infinity beyond

// Arc cosine, 0.2562 to 179.7438 degrees: an argument at or beyond 1 becomes 0.99999 in place, one at or beyond -1
// becomes -0.99999. Polar day and night on the map rest on that.
double ArcCosDeg(double& X);
double ArcCosDeg(double&& X);

}  // namespace gloamtide
