#include "app/screens.h"

#include "forms/layout.h"

namespace gloamtide {

std::vector<ProgramScreen> ProgramScreens() {
    std::vector<ProgramScreen> Screens;
    for (std::int16_t Class = 0; Class < 4; ++Class) {
        const BoardSize Board = BoardOf(Class);
        Screens.push_back({ScreenWidthOf(Class), {Board.Width, Board.Height}});
    }
    return Screens;
}

}  // namespace gloamtide
