#include "dialogs/configure.h"

#include <algorithm>
#include <cmath>

#include "astro/calendar.h"
#include "clock/recomputation.h"
#include "forms/form_configure.h"
#include "forms/form_gt_main.h"
#include "forms/layout.h"
#include "forms/messages.h"
#include "map/day_night.h"
#include "places/zones.h"
#include "state/number_pattern.h"
#include "state/numbers.h"
#include "state/state.h"

namespace gloamtide {
namespace {

// Fills a list anew with the numbers from First to Last, each after a blank.
void FillNumbers(ComboBox& List, int First, int Last) {
    List.Clear();
    for (int Number = First; Number <= Last; ++Number) List.AddItem(std::string(" ").append(std::to_string(Number)));
}

void SelectNearest(ComboBox& List, int Position) { List.ListIndex = std::clamp(Position, 0, List.ListCount() - 1); }

void SelectNegative(ControlArray<OptionButton, 2>& Options, bool Negative) { Options[Negative ? 1 : 0].Value = true; }

void LocationChanged() {
    if (state.ConfigureArmed == True) ZoneFromLocation();
}

// Shows a coordinate, a single, as degrees and minutes. The 0.005 degrees keep whole minutes on their minute.
void ShowCoordinate(ComboBox& Degrees, ComboBox& Minutes, float Coordinate) {
    const double Magnitude = std::abs(Coordinate);
    const double Whole = std::floor(Magnitude);
    Degrees.ListIndex = ToInt16(Whole);
    Minutes.ListIndex = ToInt16(std::floor((Magnitude + 0.005 - Whole) * 60.0));
}

// The nearest minute, at most the last one of so many degrees.
float InMinutes(double Coordinate, int Degrees) {
    const double LastMinute = Degrees + 59.0 / 60.0;
    return Single(RoundHalfEven(std::clamp(Coordinate, -LastMinute, LastMinute) * 60.0) / 60.0);
}

double ListedCoordinate(const ComboBox& Degrees, const ComboBox& Minutes) {
    return Minutes.ListIndex / 60.0 + Degrees.ListIndex;
}

bool YearInRange(const std::string& Text) {
    const double Year = LeadingNumber(Text);
    if (Year == 0.0) return Text == "0";
    return Year >= -4000.0 && Year <= 4000.0;
}

void TakeSystemTime() {
    const DateTime Now = host->LocalTime();
    state.LocalMonth = Now.Month;
    state.LocalDay = Now.Day;
    state.LocalYear = Now.Year;
    state.LocalHour = Now.Hour;
    state.LocalMinute = Now.Minute;
}

void TakeNewTime() {
    const ConfigureForm& F = FormConfigure;
    state.LocalMonth = Single(F.ComboSelMonth.ListIndex + 1);
    state.LocalDay = Single(F.ComboSelDay.ListIndex + 1);
    state.LocalYear = Single(LeadingNumber(F.TextSelYear.Text.Get()));
    state.LocalHour = Single(F.ComboSelHour.ListIndex);
    state.LocalMinute = Single(F.ComboSelMinute.ListIndex);
}

// Kept: the seconds are those that the clock showed last.
void SetInstant() {
    state.WorkMonth = state.LocalMonth;
    state.WorkDay = state.LocalDay;
    state.WorkYear = state.LocalYear;
    state.WorkHour = state.LocalHour;
    state.WorkMinute = state.LocalMinute;
    state.WorkDaylightHours = state.DaylightHours;
    state.WorkZoneHours = state.ZoneHours;
    DateToJulian();
    state.CurrentJD = state.WorkJD;
    state.OffsetDays = state.WorkJD - state.SystemJD;
}

void LeaveConfigure() {
    FormConfigure.Hide();
    FormGTMain.Show();
    RedrawMap();
}

}  // namespace

void ConnectConfigure() {
    ConfigureForm& F = FormConfigure;
    FormGTMain.MenuConfigure.Click = MenuConfigure_Click;
    F.OnLoad = FormConfigure_Form_Load;
    F.ComboCityName.Click = ComboCityName_Click;
    for (ComboBox* Each : {&F.ComboSetLatDeg, &F.ComboSetLatMin, &F.ComboSetLongDeg, &F.ComboSetLongMin}) {
        Each->Click = LocationChanged;
    }
    for (OptionButton& Each : F.OptionSetLong) Each.Click = LocationChanged;
    for (OptionButton& Each : F.OptionSetLat) Each.Click = OptionSetLat_Click;
    for (OptionButton& Each : F.OptionDateTime) Each.Click = OptionDateTime_Click;
    F.ComboSelDay.DropDown = ComboSelDay_DropDown;
    F.CmdConfigureOK.Click = CmdConfigureOK_Click;
    F.CmdConfigureCancel.Click = CmdConfigureCancel_Click;
}

void FillConfigureLists() {
    ConfigureForm& F = FormConfigure;
    for (const char* Month : {"January", "February", "March", "April", "May", "June", "July", "August", "September",
                              "October", "November", "December"}) {
        F.ComboSelMonth.AddItem(Month);
    }
    FillNumbers(F.ComboSelDay, 1, 31);
    FillNumbers(F.ComboSelHour, 0, 23);
    FillNumbers(F.ComboSelMinute, 0, 59);
    FillNumbers(F.ComboSetLatDeg, 0, 79);
    FillNumbers(F.ComboSetLongDeg, 0, 179);
    FillNumbers(F.ComboSetLatMin, 0, 59);
    FillNumbers(F.ComboSetLongMin, 0, 59);
}

void FillLatitudeDegrees() {
    FillNumbers(FormConfigure.ComboSetLatDeg, 0, FormConfigure.OptionSetLat[0].Value ? 79 : 69);
}

void FormConfigure_Form_Load() {
    PlaceOnForm(FormConfigure, FormConfigure.PictureConfigureGT, {{20, 0}, {160, 80}, {320, 240}, {540, 400}});
}

void MenuConfigure_Click() {
    ShowConfigurationInForce();
    FormConfigure.Show();
    FormGTMain.Hide();
}

void ShowConfigurationInForce() {
    ConfigureForm& F = FormConfigure;
    F.ComboCityName.Type(state.LocationName);
    state.ConfigureArmed = False;
    SelectNegative(F.OptionSetLat, state.LocationLat < 0.0);
    SelectNegative(F.OptionSetLong, state.LocationLong < 0.0F);
    FillLatitudeDegrees();
    SelectNearest(F.ComboSetLatDeg, std::abs(state.LocationLatDegrees));
    SelectNearest(F.ComboSetLatMin, state.LocationLatMinutes);
    SelectNearest(F.ComboSetLongDeg, std::abs(state.LocationLongDegrees));
    SelectNearest(F.ComboSetLongMin, state.LocationLongMinutes);
    state.ConfigureArmed = True;

    SelectNearest(F.ComboSelMonth, ToInt16(state.LocalMonth) - 1);
    // The list may have been made for a shorter month.
    if (F.ComboSelDay.ListCount() < ToInt16(state.LocalDay)) FillNumbers(F.ComboSelDay, 1, 31);
    SelectNearest(F.ComboSelDay, ToInt16(state.LocalDay) - 1);
    F.TextSelYear.Text = PlainNumber(state.LocalYear);
    SelectNearest(F.ComboSelHour, ToInt16(state.LocalHour));
    SelectNearest(F.ComboSelMinute, ToInt16(state.LocalMinute));
    if (state.DaylightHours == 0) F.OptionDaylightSavings[0].Value = true;
    if (state.DaylightHours == 1) F.OptionDaylightSavings[1].Value = true;
}

void PickCity(std::size_t Row) {
    ComboBox& Names = FormConfigure.ComboCityName;
    int Position = 0;
    while (Names.ItemData(Position) != static_cast<int>(Row)) ++Position;
    Names.Pick(Position);
    ZoneFromLocation();
}

void PickPlace(const std::string& Name, double Latitude, double Longitude) {
    FormConfigure.ComboCityName.Type(Name);
    ShowPlaceInLists(InMinutes(Latitude, Latitude < 0.0 ? 69 : 79), InMinutes(Longitude, 179));
    ZoneFromLocation();
}

void ComboCityName_Click() {
    const ConfigureForm& F = FormConfigure;
    if (F.ComboCityName.ListIndex < 0) return;
    const auto Row = static_cast<std::size_t>(F.ComboCityName.ItemData(F.ComboCityName.ListIndex));
    ShowPlaceInLists(state.CityLatitude[Row], state.CityLongitude[Row]);
}

void ShowPlaceInLists(float Latitude, float Longitude) {
    ConfigureForm& F = FormConfigure;
    SelectNegative(F.OptionSetLat, Latitude < 0.0F);
    SelectNegative(F.OptionSetLong, Longitude < 0.0F);
    FillLatitudeDegrees();
    ShowCoordinate(F.ComboSetLatDeg, F.ComboSetLatMin, Latitude);
    ShowCoordinate(F.ComboSetLongDeg, F.ComboSetLongMin, Longitude);
}

void OptionSetLat_Click() {
    if (state.ConfigureArmed != True) return;
    const int Degrees = FormConfigure.ComboSetLatDeg.ListIndex;
    FillLatitudeDegrees();
    FormConfigure.ComboSetLatDeg.ListIndex = std::min(Degrees, FormConfigure.ComboSetLatDeg.ListCount() - 1);
    ZoneFromLocation();
}

void OptionDateTime_Click() { FormConfigure.FrameSetGTDate.Visible = FormConfigure.OptionDateTime[1].Value; }

// Kept: a February of the years up to 1582 has 28 days in the list, also where the calendar of the time had 29; and the
// first day is selected, whichever was before.
void ComboSelDay_DropDown() {
    const ConfigureForm& F = FormConfigure;
    const double Year = LeadingNumber(F.TextSelYear.Text.Get());
    const std::int32_t Whole = ToInt32(Year);
    const bool Leap = Year > 1582.0 && Whole % 4 == 0 && (Whole % 400 == 0 || Whole % 100 != 0);
    const int Lengths[12] = {31, Leap ? 29 : 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    FillNumbers(FormConfigure.ComboSelDay, 1, Lengths[std::max<int>(F.ComboSelMonth.ListIndex, 0)]);
    FormConfigure.ComboSelDay.ListIndex = 0;
}

void TakeListedPlace() {
    const ConfigureForm& F = FormConfigure;
    state.LocationName = F.ComboCityName.Text;
    state.LocationLong = Single(ListedCoordinate(F.ComboSetLongDeg, F.ComboSetLongMin));
    if (F.OptionSetLong[1].Value) state.LocationLong *= -1.0F;
    state.LocationLat = ListedCoordinate(F.ComboSetLatDeg, F.ComboSetLatMin);
    if (F.OptionSetLat[1].Value) state.LocationLat *= -1.0;
}

void TakeListedZone() {
    const auto Zone = static_cast<std::size_t>(FormConfigure.ComboSelTZ.ListIndex);
    state.ZoneHours = state.ZoneHoursTable[Zone];
    state.ZoneText = state.ZoneShortName[Zone];
}

void CmdConfigureOK_Click() {
    ConfigureForm& F = FormConfigure;
    state.ConfigSaved = False;
    TakeListedPlace();

    if (F.OptionDateTime[0].Value) {
        TakeSystemTime();
    } else if (YearInRange(F.TextSelYear.Text)) {
        TakeNewTime();
    } else {
        ShowAfterTwoBeeps({"Input Out Of Range", "Year must be from -4000 through +4000: Please re-enter."});
        host->SetFocus(F.TextSelYear);
        return;
    }
    state.DaylightHours = F.OptionDaylightSavings[1].Value ? 1 : 0;
    TakeListedZone();
    SetInstant();
    RecomputeAlmanac();
    LeaveConfigure();
    FormGTMain.Timer1.Enabled = true;
}

void CmdConfigureCancel_Click() { LeaveConfigure(); }

}  // namespace gloamtide
