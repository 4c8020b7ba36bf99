#include "astro/seasons.h"

#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

// The start of a season as a Julian date: a sum of powers of the year, the higher two in thousands of years.
struct SeasonStart {
    double Constant;  // days
    double Year;      // days a year
    double Square;    // days, thousands of years squared
    double Cube;      // days, thousands of years cubed

    double Of(double Y) const {
        const double y = Y / 1000.0;
        return Constant + Year * Y + Square * (y * y) + Cube * (y * y * y);
    }
};

constexpr SeasonStart MarchEquinox = {1721139.2855, 365.2421376, 0.067919, -0.0027879};
constexpr SeasonStart JuneSolstice = {1721233.2486, 365.2417284, -0.053018, 0.009332};
constexpr SeasonStart SeptemberEquinox = {1721325.6978, 365.2425055, -0.126689, 0.0019401};
constexpr SeasonStart DecemberSolstice = {1721414.392, 365.2428898, -0.010965, -0.0084885};

void SetSeason(const char* North, const char* South, double Next) {
    state.SeasonNorth = North;
    state.SeasonSouth = South;
    state.SeasonDaysLeft = Single(Next - state.CurrentJD);
}

}  // namespace

void SeasonCountdown() {
    const double Year = state.LocalYear;
    const double JD = state.CurrentJD;
    if (JD < MarchEquinox.Of(Year)) {
        SetSeason("Winter", "Summer", MarchEquinox.Of(Year));
    } else if (JD <= JuneSolstice.Of(Year)) {
        SetSeason("Spring", "Autumn", JuneSolstice.Of(Year));
    } else if (JD <= SeptemberEquinox.Of(Year)) {
        SetSeason("Summer", "Winter", SeptemberEquinox.Of(Year));
    } else if (JD <= DecemberSolstice.Of(Year)) {
        SetSeason("Autumn", "Spring", DecemberSolstice.Of(Year));
    } else {
        SetSeason("Winter", "Summer", MarchEquinox.Of(Year + 1.0));
    }
}

}  // namespace gloamtide
