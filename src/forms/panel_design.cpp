// The almanac's panels of the main window: their headings, tool tips and places.

#include "forms/form_gt_main.h"

namespace gloamtide {
namespace {

// A panel for each class of screen, in twips.
struct PanelDesign {
    double Width, Height;
    double RowTops[9];
    double RowHeight;
    double Columns[4];  // left edges: left heading, left value, right heading, right value
    double DaylightLeft, DaylightTop;
    const char* FontName;
    double FontSize;  // points
};

// Kept but for one place: on the smallest panel the note on daylight saving stood on the date above it; it stands
// to the right of the time there, as on the others.
constexpr PanelDesign Panels[4] = {
    {8295,
     1425,
     {0, 150, 300, 450, 600, 750, 900, 1050, 1200},
     135,
     {120, 1800, 4320, 5400},
     2440,
     150,
     "MS Serif",
     6.0},
    {9615,
     1830,
     {0, 195, 405, 600, 795, 1005, 1200, 1395, 1605},
     165,
     {120, 2400, 5040, 6480},
     3000,
     195,
     "MS Serif",
     6.75},
    {10695,
     2220,
     {0, 240, 480, 720, 960, 1200, 1440, 1680, 1920},
     255,
     {120, 2280, 5640, 7080},
     3120,
     240,
     "MS Sans Serif",
     8.25},
    {12975,
     2940,
     {105, 405, 705, 1005, 1305, 1605, 1905, 2205, 2505},
     255,
     {120, 2835, 6840, 8760},
     3675,
     405,
     "MS Sans Serif",
     9.75},
};

// A heading and the value beside it.
struct PanelPair {
    MainForm::PanelLabels& Heading;
    MainForm::PanelLabels& Value;
    const char* Caption;
    const char* ToolTip;
};

void PlacePair(const PanelPair& Pair, std::size_t Class, std::size_t Row, std::size_t Side) {
    const PanelDesign& Panel = Panels[Class];
    const double* Column = Panel.Columns + 2 * Side;
    const double End = Side == 0 ? Panel.Columns[2] : Panel.Width;  // a label is as wide as there is room
    Label& Heading = Pair.Heading[Class];
    Label& Value = Pair.Value[Class];
    Heading.Caption = Pair.Caption;
    Heading.ForeColor = RGB(255, 255, 128);
    Heading.Move(Column[0], Panel.RowTops[Row]);
    Heading.Size(Column[1] - Column[0], Panel.RowHeight);
    Value.ForeColor = RGB(255, 255, 255);
    Value.Move(Column[1], Panel.RowTops[Row]);
    Value.Size(End - Column[1], Panel.RowHeight);
    for (Label* Each : {&Heading, &Value}) {
        Each->ToolTipText = Pair.ToolTip;
        Each->FontName = Panel.FontName;
        Each->FontSize = Panel.FontSize;
    }
}

}  // namespace

void MainForm::DesignPanels() {
    const PanelPair LeftPairs[9] = {
        {LabelGTLocalDate, LabelGTLocalDateShow,
         "Gloamtide Local Date:", "User-designated date at specified Location.  Set with 'Configure' Menu."},
        {LabelGTLocalTime, LabelGTLocalTimeShow,
         "Gloamtide Local Time:", "User-designated time at specified Location.  Set with 'Configure' Menu."},
        {LabelTimezone, LabelTimezoneShow,
         "Time Zone:", "Time zone of user-specified Location. Set with 'Configure' Menu."},
        {LabelGreenwichDate, LabelGreenwichDateShow, "Greenwich Date:",
         "Offset from Gloamtide Local Date by Time Zone & Daylight Savings. (Set with 'Configure' Menu)."},
        {LabelGreenwichTime, LabelGreenwichTimeShow, "Greenwich Time:",
         "Offset from Gloamtide Local Time by Time Zone & Daylight Savings. (Set with 'Configure' Menu)."},
        {LabelGTJulDate, LabelGTJDShow, "Gloamtide Julian Date:",
         "Calculated from Greenwich Date & Time.  (Set with 'Configure' Menu).  Each Julian day starts at noon GMT."},
        {LabelTimeOffset, LabelTimeOffsetShow, "Offset From System Time:",
         "Shows difference between Gloamtide Local Date & Time and System (Windows) time.  Will be set to zero if 'Set "
         "to System Time & Date' option chosen in 'Configure' Menu."},
        {LabelSeason, LabelSeasonShow,
         "Gloamtide Season:", "Shows Season for Gloamtide Date & Time in both Northern and Southern Hemispheres."},
        {LabelCountdown, LabelCountdownShow, "Time Until Next Season:",
         "Shows number of days until beginning of season (equinox or solstice) following current one specified by "
         "Gloamtide Date and Time."},
    };
    const PanelPair RightPairs[9] = {
        {LabelLocationName, LabelLocNameShow,
         "Location Name:", "Name of city or other landmark designated by user.  Set with 'Configure' Menu."},
        {LabelLocationLat, LabelLocLatShow,
         "Location Lat:", "Latitude of  user-specified Location.  Set with 'Configure' Menu."},
        {LabelLocationLong, LabelLocLongShow,
         "Location Long:", "Longtitude of  user-specified Location.  Set with 'Configure' Menu."},
        {LabelLocationSunrise, LabelLocSunriseShow,
         "Location Sunrise:", "Sunrise time for Gloamtide Local Date & Time at Location specified."},
        {LabelLocSunset, LabelLocSunsetShow,
         "Location Sunset:", "Sunset time for Gloamtide Local Date & Time at Location specified."},
        {LabelSolDec, LabelSolDecShow, "Sun's Declination:",
         "Shows sun's apparent position above or below the ecliptic plane (equator).  Peaks at +23.5 degrees at June "
         "solstice and -23.5 degrees at December solstice."},
        {LabelEqtnOfTime, LabelEqtnTimeShow, "Equation Of Time:",
         "Shows difference in minutes and seconds between Apparent solar time (actual sun time) and  Mean Solar Time "
         "(clock time)."},
        {LabelAgeOfMoon, LabelAgeOfMoonShow,
         "Age Of Moon:", "Number of days into moon's 29.53 day synodic cycle (New Moon to New Moon)."},
        {LabelPhaseOfMoon, LabelPhaseOfMoonShow, "Phase Of Moon:",
         "Shows moon's phase as percent of Full and whether it is increasing (Waxing) or decreasing (Waning)."},
    };
    for (std::size_t Class = 0; Class < 4; ++Class) {
        const PanelDesign& Panel = Panels[Class];
        PictureGTData[Class].Size(Panel.Width / TwipsPerPixel, Panel.Height / TwipsPerPixel);
        PictureGTData[Class].BackColor = RGB(0, 0, 0);
        PictureGTData[Class].Description = "Almanac";
        PictureGTData[Class].Visible = false;
        for (std::size_t Row = 0; Row < 9; ++Row) {
            PlacePair(LeftPairs[Row], Class, Row, 0);
            PlacePair(RightPairs[Row], Class, Row, 1);
        }
        // The time gives way to the note beside it.
        LabelGTLocalTimeShow[Class].Width = Panel.DaylightLeft - Panel.Columns[1];
        Label& Note = LabelDaylightStdShow[Class];
        Note.ForeColor = RGB(255, 255, 255);
        Note.Move(Panel.DaylightLeft, Panel.DaylightTop);
        Note.Size(Panel.Columns[2] - Panel.DaylightLeft, Panel.RowHeight);
        Note.ToolTipText = LabelGTLocalTime[Class].ToolTipText.Get();
        Note.FontName = Panel.FontName;
        Note.FontSize = Panel.FontSize;
    }
    LabelCountdown[1].Caption = "Time Until Next Season";
    LabelCountdown[3].Caption = "Time Until Next Season";
}

}  // namespace gloamtide
