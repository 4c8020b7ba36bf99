#include "platform/headless/headless_host.h"

#include <algorithm>
#include <chrono>
#include <cmath>

namespace gloamtide {
namespace {

// The clock's reading a while later. Only for readings that name a real date.
DateTime Later(const DateTime& Reading, int Milliseconds) {
    using namespace std::chrono;
    const sys_days Date =
        year(Reading.Year) / month(static_cast<unsigned>(Reading.Month)) / day(static_cast<unsigned>(Reading.Day));
    const auto Instant = sys_time<milliseconds>(Date) + hours(Reading.Hour) + minutes(Reading.Minute) +
                         seconds(Reading.Second) + milliseconds(Reading.Milliseconds + Milliseconds);
    const auto Day = floor<days>(Instant);
    const year_month_day Calendar(Day);
    const hh_mm_ss Time(Instant - Day);
    const auto Short = [](auto Value) { return static_cast<std::int16_t>(Value); };
    return {Short(static_cast<int>(Calendar.year())),
            Short(static_cast<unsigned>(Calendar.month())),
            Short(weekday(Day).c_encoding()),
            Short(static_cast<unsigned>(Calendar.day())),
            Short(Time.hours().count()),
            Short(Time.minutes().count()),
            Short(Time.seconds().count()),
            Short(Time.subseconds().count())};
}

}  // namespace

void HeadlessHost::Advance(int Milliseconds) {
    while (Milliseconds > 0) {
        std::vector<Timer*> Running;
        for (const Form* Each : LoadedForms) {
            std::copy_if(Each->Timers.begin(), Each->Timers.end(), std::back_inserter(Running),
                         [](const Timer* Candidate) { return Candidate->Enabled && Candidate->Interval > 0; });
        }
        std::erase_if(Waited, [&](const auto& Entry) {
            return std::find(Running.begin(), Running.end(), Entry.first) == Running.end();
        });
        int Step = Milliseconds;
        for (const Timer* Each : Running) Step = std::min(Step, Each->Interval - Waited[Each]);
        Step = std::max(Step, 0);
        System = Later(System, Step);
        Local = Later(Local, Step);
        Milliseconds -= Step;
        for (const Timer* Each : Running) Waited[Each] += Step;
        for (Timer* Each : Running) {
            if (Waited[Each] < Each->Interval || !Each->Enabled) continue;
            Waited[Each] = 0;
            Each->Tick();
        }
    }
}

MessageAnswer HeadlessHost::ShowMessage(const MessageBox& Message) {
    Messages.push_back({Message, Beeps - BeepsAtLastMessage});
    BeepsAtLastMessage = Beeps;
    if (Answers.empty()) return Message.Buttons == MessageButtons::OK ? MessageAnswer::OK : MessageAnswer::No;
    const MessageAnswer Answer = Answers.front();
    Answers.pop_front();
    return Answer;
}

std::optional<std::string> HeadlessHost::NextFileName() {
    if (FileNames.empty()) return std::nullopt;
    std::optional<std::string> Name = FileNames.front();
    FileNames.pop_front();
    return Name;
}

std::optional<std::string> HeadlessHost::ShowOpenDialog(const FileDialog& Dialog) {
    OpenDialogs.push_back(Dialog);
    return NextFileName();
}

std::optional<std::string> HeadlessHost::ShowSaveDialog(const FileDialog& Dialog) {
    SaveDialogs.push_back(Dialog);
    return NextFileName();
}

// Letters are full boxes, blanks are empty ones: enough to tell where a text stands, the same on every machine.
GlyphMask HeadlessHost::RenderText(const Font& TheFont, const std::string& Text, double Density) {
    const auto AtLeastOne = [](double Size) { return std::max(1, static_cast<int>(std::lround(Size))); };
    const int FlatHeight = AtLeastOne(TheFont.Size * 4.0 / 3.0);  // at density 1
    const int LetterHeight = AtLeastOne(FlatHeight * Density);
    const int LetterWidth = AtLeastOne(std::max(1, FlatHeight / 2) * Density);
    GlyphMask Mask{LetterWidth * static_cast<int>(Text.size()), LetterHeight, {}};
    Mask.Coverage.resize(static_cast<std::size_t>(Mask.Width) * static_cast<std::size_t>(Mask.Height));
    for (std::size_t Pixel = 0; Pixel < Mask.Coverage.size(); ++Pixel) {
        const std::size_t Column = Pixel % static_cast<std::size_t>(Mask.Width);
        Mask.Coverage[Pixel] = Text[Column / static_cast<std::size_t>(LetterWidth)] == ' ' ? 0 : 255;
    }
    return Mask;
}

}  // namespace gloamtide
