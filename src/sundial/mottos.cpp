#include "sundial/mottos.h"

#include <cmath>

#include "forms/form_gt_main.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {

// Kept: the spelling of the first one.
void LoadMottos() {
    state.Mottos = {
        "Carpe diem -- Sieze the day",
        "Its later than you think",
        "You can waste but cannot stop me",
        "Tempus fugit -- Time flies",
        "We are light and darkness",
        "Go about your business",
        "Though silent I speak",
        "Time takes all but memories",
        "Every hour has its changes",
        "If no sun shines, none looks on me",
        "",
        "Time consumeth all things",
        "Grow old along with me, the best is yet to be",
        "Be true as the dial to the sun",
        "Without the sun I am silent",
        "By the shadow shall I mark time",
        "Thus passes the glory of the world",
        "Repose after labor is sweet",
        "I know mine hours, Dost thou know thine?",
        "Time waits for no man",
        "",
        "Let the mind know no twilight",
        "The pleasant hour is the shortest",
        "The sun - never swerving - embraces all",
        "On this moment hangs eternity",
        "The whole of life is but a point of time",
        "hasten slowly",
        "By a shadow I explain the heavens",
        "While time is given, use it",
        "I count bright hours only",
        "The shadow teaches",
        "The day brings with it many things",
        "Light rules me",
        "Learn to number thy days",
        "The sun shines for all",
        "One day at a time",
        "",
    };
}

void ChooseMotto() {
    double Place = std::fmod(RoundHalfEven(state.SystemJD), 36.0);
    if (Place < 0.0) Place += 36.0;
    FormGTMain.LabelSundialMotto.Caption = state.Mottos.at(static_cast<std::size_t>(Place));
}

}  // namespace gloamtide
