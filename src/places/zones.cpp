#include "places/zones.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "assets/assets.h"
#include "forms/form_configure.h"
#include "forms/form_pictures.h"
#include "state/numbers.h"
#include "state/state.h"
#include "surface/stored_bitmap.h"

namespace gloamtide {
namespace {

struct Zone {
    float Hours;            // west of Greenwich positive
    int MaskCode;           // red value in the zone mask
    const char* ShortName;  // in the panel
    const char* LongText;   // in the list
};

// clang-format off
constexpr Zone Zones[] = {
    // hours  code  short name     long text
    {  12.0F,  240, "GMT - 12:00", "GMT - 12:00 East Border - International Date Line"},
    {  11.0F,  110, "GMT - 11:00", "GMT - 11:00 Samoa"},
    {  10.0F,  100, "GMT - 10:00", "GMT - 10:00 Hawaii, Tahiti"},
    {   9.0F,   90, "GMT - 9:00",  "GMT - 9:00  Alaska"},
    {   8.0F,   80, "GMT - 8:00",  "GMT - 8:00  Pacific Time (US & Canada), North Baja California"},
    {   7.0F,   70, "GMT - 7:00",  "GMT - 7:00  Mountain Time (US & Canada), Western Mexico"},
    {   6.0F,   60, "GMT - 6:00",  "GMT - 6:00  Central Time (US & Canada), Eastern Mexico, Central America"},
    {   5.0F,   50, "GMT - 5:00",  "GMT - 5:00  Eastern Time (US & Canada), Western S. America"},
    {   4.0F,   40, "GMT - 4:00",  "GMT - 4:00  Atlantic Time (Canada), Central S. America"},
    {   3.5F,   35, "GMT - 3:30",  "GMT - 3:30  Newfoundland"},
    {   3.0F,   30, "GMT - 3:00",  "GMT - 3:00  Greenland, Eastern S. America"},
    {   2.0F,   20, "GMT - 2:00",  "GMT - 2:00  Mid-Atlantic Ocean"},
    {   1.0F,   10, "GMT - 1:00",  "GMT - 1:00  Azores, Cape Verde Islands"},
    {   0.0F,    0, "GMT + 0",     "GMT + 0  Greenwich Mean Time, UK, Portugal, Western Africa"},
    {  -1.0F,  230, "GMT + 1:00",  "GMT + 1:00  Western Europe, West Central Africa"},
    {  -2.0F,  220, "GMT + 2:00",  "GMT + 2:00  Eastern Europe, East Central Africa"},
    {  -3.0F,  210, "GMT + 3:00",  "GMT + 3:00  Western Asia, Eastern Africa"},
    {  -3.5F,  205, "GMT + 3:30",  "GMT + 3:30  Iran"},
    {  -4.0F,  200, "GMT + 4:00",  "GMT + 4:00  Oman"},
    {  -4.5F,  195, "GMT + 4:30",  "GMT + 4:30  Afghanistan"},
    {  -5.0F,  190, "GMT + 5:00",  "GMT + 5:00  Pakistan, Turkmenistan, Uzbekistan, W. Kazakhstan, W. Siberia"},
    {  -5.5F,  185, "GMT + 5:30",  "GMT + 5:30  India"},
    { -5.75F,  182, "GMT + 5:45",  "GMT + 5:45  Nepal"},
    {  -6.0F,  180, "GMT + 6:00",  "GMT + 6:00  E. Kazakhstan, Kyrgyzstan, Tajikistan"},
    {  -6.5F,  175, "GMT + 6:30",  "GMT + 6:30  E. Bangladesh, Myanmar"},
    {  -7.0F,  170, "GMT + 7:00",  "GMT + 7:00  Viet Nam, Laos, Thailand, Cambodia, Sumatra, W. Borneo, Java, Extreme W. Central Siberia"},
    {  -8.0F,  160, "GMT + 8:00",  "GMT + 8:00  S. Siberia , Mongolia, China, Hong Kong, Philippines, Malaysia, E. Borneo, W. Australia"},
    {  -9.0F,  150, "GMT + 9:00",  "GMT + 9:00  W. Central Siberia, Japan, Korea, W. New Guinea"},
    {  -9.5F,  145, "GMT + 9:30",  "GMT + 9:30  Central Australia"},
    { -10.0F,  140, "GMT + 10:00", "GMT + 10:00  E. Central Siberia, Guam, E. Australia"},
    { -11.0F,  130, "GMT + 11:00", "GMT + 11:00  Extreme E. Central Siberia, Solomon Is."},
    { -12.0F,  120, "GMT + 12:00", "GMT + 12:00  West Border - International Date Line, E. Siberia, New Zealand, Fiji Is."},
};
// clang-format on
static_assert(std::size(Zones) == 32);
constexpr int GreenwichRow = 13;

int NearestRow(float Hours) {
    if (std::isnan(Hours)) return GreenwichRow;
    const auto Nearest = std::min_element(std::begin(Zones), std::end(Zones), [Hours](const Zone& A, const Zone& B) {
        return std::abs(A.Hours - Hours) < std::abs(B.Hours - Hours);
    });
    return static_cast<int>(Nearest - std::begin(Zones));
}

// In the manner of the short names: GMT + 5:20 for 5 hours 20 minutes east of Greenwich.
std::string OffsetText(float Hours) {
    if (!(std::abs(Hours) <= 24.0F)) return "";  // nothing that a clock could show
    const std::int32_t Minutes = ToInt32(std::abs(Hours) * 60.0);
    std::string Text = Hours > 0.0F ? "GMT - " : "GMT + ";
    Text += std::to_string(Minutes / 60);
    Text += Minutes % 60 < 10 ? ":0" : ":";
    Text += std::to_string(Minutes % 60);
    return Text;
}

// A coordinate as a pair of lists shows it.
float ListedCoordinate(const ComboBox& Degrees, const ComboBox& Minutes, bool Negative) {
    const float Magnitude = Single(Minutes.ListIndex / 60.0 + Degrees.ListIndex);
    return Negative ? -Magnitude : Magnitude;
}

// Decoded when it is first asked for: as long as no place is set nothing needs it.
const PictureSurface& ZoneMask() {
    PictureSurface& Mask = FormPictures.PictureTZmask;
    if (Mask.Picture.Empty()) Mask.SetPicture(DecodeBmp(ZoneMaskBmp()));
    return Mask;
}

}  // namespace

void BuildZoneTable() {
    ConfigureForm& F = FormConfigure;
    for (std::size_t Row = 0; Row < std::size(Zones); ++Row) {
        F.ComboSelTZ.AddItem(Zones[Row].LongText);
        state.ZoneHoursTable[Row] = Zones[Row].Hours;
        state.ZoneShortName[Row] = Zones[Row].ShortName;
    }
    SelectZoneRow();
}

void SelectZoneRow() {
    const int Row = NearestRow(state.ZoneHours);
    const Zone& Selected = Zones[Row];
    FormConfigure.ComboSelTZ.ListIndex = Row;
    state.ZoneText = Selected.Hours == state.ZoneHours ? Selected.ShortName : OffsetText(state.ZoneHours);
}

void ZoneFromLocation() {
    const ConfigureForm& F = FormConfigure;
    state.MaskLongitude = ListedCoordinate(F.ComboSetLongDeg, F.ComboSetLongMin, F.OptionSetLong[1].Value);
    state.MaskLatitude = ListedCoordinate(F.ComboSetLatDeg, F.ComboSetLatMin, F.OptionSetLat[1].Value);
    const float X = Single((180.0 - state.MaskLongitude) * 956.0 / 360.0);
    const long Colour = ZoneMask().Point(X, state.MaskLatitude);
    state.MaskCode = Single(static_cast<double>(Colour & 255));  // 255 outside the mask
    const auto Found = std::find_if(std::begin(Zones), std::end(Zones), [](const Zone& Each) {
        return static_cast<float>(Each.MaskCode) == state.MaskCode;
    });
    if (Found != std::end(Zones)) FormConfigure.ComboSelTZ.ListIndex = static_cast<int>(Found - std::begin(Zones));
}

}  // namespace gloamtide
