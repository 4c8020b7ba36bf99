#include "astro/degrees.h"

#include <cmath>

namespace gloamtide {
namespace {

constexpr double DegreesPerRadian = 180.0 / Pi;

}  // namespace

double SinDeg(double X) { return std::sin(X * Pi / 180.0); }
double CosDeg(double X) { return std::cos(X * Pi / 180.0); }
double TanDeg(double X) { return std::tan(X * Pi / 180.0); }
double ArcTanDeg(double X) { return std::atan(X) * DegreesPerRadian; }
double ArcSinDeg(double X) { return std::atan(X / std::sqrt(1.0 - X * X)) * DegreesPerRadian; }

double ArcCosDeg(double& X) {
    if (X >= 1.0) X = 0.99999;
    if (X <= -1.0) X = -0.99999;
    return (std::atan(-X / std::sqrt(1.0 - X * X)) + 2.0 * std::atan(1.0)) * DegreesPerRadian;
}

double ArcCosDeg(double&& X) { return ArcCosDeg(X); }

}  // namespace gloamtide
