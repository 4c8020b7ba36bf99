#include "app/still_host.h"

#include <QDateTime>
#include <algorithm>

#include "app/command_line.h"
#include "app/screens.h"
#include "forms/form_gt_main.h"
#include "forms/layout.h"

namespace gloamtide {
namespace {

constexpr int DefaultWidth = 1280;  // of the screen, pixels

// The screens as the choice of one for a picture of the map alone needs them: with the map for the board.
std::vector<ProgramScreen> MapScreens() {
    std::vector<ProgramScreen> Screens = ProgramScreens();
    for (ProgramScreen& Each : Screens) {
        const BoardSize Map = MapSizeOf(ScreenClassOf(Each.Width));
        Each.Board = {Map.Width, Map.Height};
    }
    return Screens;
}

}  // namespace

StillHost::StillHost(const StillOptions& TheAsked)
    : Clock(TheAsked.At ? ReadingOf(*TheAsked.At) : ToDateTime(QDateTime::currentDateTimeUtc())), Asked(TheAsked) {
    if (!Asked.Size.isEmpty()) ChooseScreen(Asked.OnlyMap ? MapScreens() : ProgramScreens(), Asked.Size);
}

double StillHost::ScreenWidthTwips() {
    const bool ByTheSize = !Asked.ScreenWidth && !Asked.Size.isEmpty();
    return ByTheSize ? QtHost::ScreenWidthTwips() : Asked.ScreenWidth.value_or(DefaultWidth) * TwipsPerPixel;
}

MessageAnswer StillHost::ShowMessage(const MessageBox& Message) {
    SayError(StillProgram, Message.Title + ": " + Message.Text);
    return Message.Buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::No;
}

// Of all windows only the pictured one is made.
void StillHost::FormLoaded(Form& Which) {
    if (&Which == &FormGTMain) QtHost::FormLoaded(Which);
}

void StillHost::FormUnloaded(Form& Which) {
    if (&Which == &FormGTMain) QtHost::FormUnloaded(Which);
}

// A picture of a given size is that of a window; without one the layout stands pixel for pixel.
void StillHost::Prepare(FormWindow& Window) {
    if (Asked.Size.isEmpty() || Asked.OnlyMap) {
        Window.FixScale(1.0);
    } else {
        Window.Expect(Asked.Size);
    }
}

void StillHost::Present(FormWindow& Window) {
    Window.resize(WindowSize());
    Window.show();
}

// Screens are three quarters as high as wide up to 1080.
QSize StillHost::WindowSize() const {
    const int Width = Asked.ScreenWidth.value_or(DefaultWidth);
    return Asked.Size.isEmpty() ? QSize(Width, std::min(Width * 3 / 4, 1080)) : Asked.Size;
}

}  // namespace gloamtide
