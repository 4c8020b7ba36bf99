// The main window: menu bar, map with its labels, the almanac's panels under it, and the timers.
#pragma once

#include "platform/controls.h"
#include "platform/form.h"
#include "surface/picture_surface.h"

namespace gloamtide {

struct MainForm : Form {
    MainForm();

    Menu MenuFile{*this, "MenuFile", "&File"};
    Menu MenuFileSubOpen{MenuFile, "MenuFileSubOpen", "&Open"};
    Menu MenuFileSubOpenSep{MenuFile, "MenuFileSubOpenSep"};
    Menu MenuFileSubSave{MenuFile, "MenuFileSubSave", "&Save"};
    Menu MenuFileSubSaveSep{MenuFile, "MenuFileSubSaveSep"};
    Menu MenuFileSubSaveAs{MenuFile, "MenuFileSubSaveAs", "Save&As"};
    Menu MenuFileSubSaveAsSep{MenuFile, "MenuFileSubSaveAsSep"};
    Menu MenuFileSubQuit{MenuFile, "MenuFileSubQuit", "&Quit"};
    Menu MenuConfigure{*this, "MenuConfigure", "&Configure"};
    Menu MenuShowHide{*this, "MenuShowHide", "&Show/Hide"};
    Menu MenuShowHideSubSun{MenuShowHide, "MenuShowHideSubSun", "&Sun"};
    Menu MenuShowHideSubSunSep{MenuShowHide, "MenuShowHideSubSunSep"};
    Menu MenuShowHideSubMoon{MenuShowHide, "MenuShowHideSubMoon", "&Moon"};
    Menu MenuShowHideSubMoonSep{MenuShowHide, "MenuShowHideSubMoonSep"};
    Menu MenuShowHideSubAnalemma{MenuShowHide, "MenuShowHideSubAnalemma", "&Analemma"};
    Menu MenuShowHideSubAnaSep{MenuShowHide, "MenuShowHideSubAnaSep"};
    Menu MenuShowHideSubCities{MenuShowHide, "MenuShowHideSubCities", "&Cities"};
    Menu MenuShowHideSubCitSep{MenuShowHide, "MenuShowHideSubCitSep"};
    Menu MenuShowHideSubMapGrid{MenuShowHide, "MenuShowHideSubMapGrid", "&Map Gridlines"};
    Menu MenuShowHideSubMapGridSep{MenuShowHide, "MenuShowHideSubMapGridSep"};
    Menu MenuShowHideSubTimezones{MenuShowHide, "MenuShowHideSubTimezones", "&Time Zones"};
    Menu MenuShowHideSubTZSep{MenuShowHide, "MenuShowHideSubTZSep"};
    Menu MenuShowHideSubSundial{MenuShowHide, "MenuShowHideSubSundial", "S&undial"};
    Menu MenuShowHideSubSDSep{MenuShowHide, "MenuShowHideSubSDSep"};
    Menu MenuShowHideSubAlmanac{MenuShowHide, "MenuShowHideSubAlmanac", "Al&manac"};
    Menu MenuShowHideSubTwilight{MenuShowHide, "MenuShowHideSubTwilight", "Tw&ilight"};
    Menu MenuShowHideSubTwilightLines{MenuShowHide, "MenuShowHideSubTwilightLines", "Twilight &Lines"};
    Menu MenuShowHideSubCityNames{MenuShowHide, "MenuShowHideSubCityNames", "City &Names"};
    Menu MenuShowHideSubFullScreen{MenuShowHide, "MenuShowHideSubFullScreen", "&Full Screen"};
    Menu MenuMap{*this, "MenuMap", "&Map"};
    Menu MenuMapSubNatural{MenuMap, "MenuMapSubNatural", "&Natural"};
    Menu MenuMapSubNaturalSep{MenuMap, "MenuMapSubNaturalSep"};
    Menu MenuMapSubPolitical{MenuMap, "MenuMapSubPolitical", "&Political"};
    Menu MenuMapSubPoliticalSub{MenuMap, "MenuMapSubPoliticalSub"};
    Menu MenuMapSubTerrain{MenuMap, "MenuMapSubTerrain", "&Terrain"};
    Menu MenuAnimation{*this, "MenuAnimation", "&Animation"};
    Menu MenuAnimationSubOptions{MenuAnimation, "MenuAnimationSubOptions", "&Settings"};
    Menu MenuAnimationSubSetSep{MenuAnimation, "MenuAnimationSubSetSep"};
    Menu MenuAnimationSubStart{MenuAnimation, "MenuAnimationSubStart", "&Start"};
    Menu MenuAnimationSubStartSep{MenuAnimation, "MenuAnimationSubStartSep"};
    Menu MenuAnimationSubStop{MenuAnimation, "MenuAnimationSubStop", "Sto&p"};
    Menu MenuAnimationSubStopSep{MenuAnimation, "MenuAnimationSubStopSep"};
    Menu MenuAnimationSubNow{MenuAnimation, "MenuAnimationSubNow", "&Now"};
    Menu MenuAnimationSubFilm{MenuAnimation, "MenuAnimationSubFilm", "Save &Film..."};
    Menu MenuHelp{*this, "MenuHelp", "&Help"};
    Menu MenuHelpSubContents{MenuHelp, "MenuHelpSubContents", "Contents"};
    Menu MenuHelpSubContentsSep{MenuHelp, "MenuHelpSubContentsSep"};
    Menu MenuHelpSubAbout{MenuHelp, "MenuHelpSubAbout", "&About Gloamtide"};
    Menu MenuQuit{*this, "MenuQuit", "&Quit"};
    BarButton ButtonNow{*this, "ButtonNow", "Now"};  // while another instant than the present is shown

    PictureSurface PictureGTContainer{*this, "PictureGTContainer"};
    Label LabelEastOfIDLDate{PictureGTContainer, "LabelEastOfIDLDate"};
    Label LabelWestOfIDLDate{PictureGTContainer, "LabelWestOfIDLDate"};
    Label LabelZonehour{PictureGTContainer, "LabelZonehour"};
    PictureSurface PictureGT{PictureGTContainer, "PictureGT"};  // the map

    // On the map.
    CommandButton CmdAnimStop{PictureGT, "CmdAnimStop"};
    Label LabelAnimSteps{PictureGT, "LabelAnimSteps"};
    Label LabelAnimInfo{PictureGT, "LabelAnimInfo"};
    Label LabelWorking{PictureGT, "LabelWorking"};
    Label LabelMouseLong{PictureGT, "LabelMouseLong"};
    Label LabelMouseLat{PictureGT, "LabelMouseLat"};
    Label LabelCity{PictureGT, "LabelCity"};

    // The sundial in the map's corner.
    PictureSurface PictureSundial{PictureGT, "PictureSundial"};
    ControlArray<Label, 24> LabelHour{PictureSundial, "LabelHour"};
    Label LabelTwilightNight{PictureSundial, "LabelTwilightNight"};
    Label LabelSundialMotto{PictureSundial, "LabelSundialMotto"};
    CommandButton CommandSDOptions{PictureSundial, "CommandSDOptions"};

    // The almanac: a panel for each ScreenClass, of which one is shown. Headings, and values beside them.
    ControlArray<PictureSurface, 4> PictureGTData{PictureGTContainer, "PictureGTData"};
    using PanelLabels = ControlArray<Label, 4>;
    PanelLabels LabelGTLocalDate{PictureGTData, "LabelGTLocalDate"};
    PanelLabels LabelGTLocalDateShow{PictureGTData, "LabelGTLocalDateShow"};
    PanelLabels LabelGTLocalTime{PictureGTData, "LabelGTLocalTime"};
    PanelLabels LabelGTLocalTimeShow{PictureGTData, "LabelGTLocalTimeShow"};
    PanelLabels LabelDaylightStdShow{PictureGTData, "LabelDaylightStdShow"};
    PanelLabels LabelTimezone{PictureGTData, "LabelTimezone"};
    PanelLabels LabelTimezoneShow{PictureGTData, "LabelTimezoneShow"};
    PanelLabels LabelGreenwichDate{PictureGTData, "LabelGreenwichDate"};
    PanelLabels LabelGreenwichDateShow{PictureGTData, "LabelGreenwichDateShow"};
    PanelLabels LabelGreenwichTime{PictureGTData, "LabelGreenwichTime"};
    PanelLabels LabelGreenwichTimeShow{PictureGTData, "LabelGreenwichTimeShow"};
    PanelLabels LabelGTJulDate{PictureGTData, "LabelGTJulDate"};
    PanelLabels LabelGTJDShow{PictureGTData, "LabelGTJDShow"};
    PanelLabels LabelTimeOffset{PictureGTData, "LabelTimeOffset"};
    PanelLabels LabelTimeOffsetShow{PictureGTData, "LabelTimeOffsetShow"};
    PanelLabels LabelSeason{PictureGTData, "LabelSeason"};
    PanelLabels LabelSeasonShow{PictureGTData, "LabelSeasonShow"};
    PanelLabels LabelCountdown{PictureGTData, "LabelCountdown"};
    PanelLabels LabelCountdownShow{PictureGTData, "LabelCountdownShow"};
    PanelLabels LabelLocationName{PictureGTData, "LabelLocationName"};
    PanelLabels LabelLocNameShow{PictureGTData, "LabelLocNameShow"};
    PanelLabels LabelLocationLat{PictureGTData, "LabelLocationLat"};
    PanelLabels LabelLocLatShow{PictureGTData, "LabelLocLatShow"};
    PanelLabels LabelLocationLong{PictureGTData, "LabelLocationLong"};
    PanelLabels LabelLocLongShow{PictureGTData, "LabelLocLongShow"};
    PanelLabels LabelLocationSunrise{PictureGTData, "LabelLocationSunrise"};
    PanelLabels LabelLocSunriseShow{PictureGTData, "LabelLocSunriseShow"};
    PanelLabels LabelLocSunset{PictureGTData, "LabelLocSunset"};
    PanelLabels LabelLocSunsetShow{PictureGTData, "LabelLocSunsetShow"};
    PanelLabels LabelSolDec{PictureGTData, "LabelSolDec"};
    PanelLabels LabelSolDecShow{PictureGTData, "LabelSolDecShow"};
    PanelLabels LabelEqtnOfTime{PictureGTData, "LabelEqtnOfTime"};
    PanelLabels LabelEqtnTimeShow{PictureGTData, "LabelEqtnTimeShow"};
    PanelLabels LabelAgeOfMoon{PictureGTData, "LabelAgeOfMoon"};
    PanelLabels LabelAgeOfMoonShow{PictureGTData, "LabelAgeOfMoonShow"};
    PanelLabels LabelPhaseOfMoon{PictureGTData, "LabelPhaseOfMoon"};
    PanelLabels LabelPhaseOfMoonShow{PictureGTData, "LabelPhaseOfMoonShow"};

    Timer Timer1{*this, "Timer1"};  // the clock
    Timer Timer2{*this, "Timer2"};  // the map, once a minute
    Timer Timer3{*this, "Timer3"};  // the animation
    Timer Timer4{*this, "Timer4"};  // the rebuild after a change of map type

private:
    void DesignPanels();
    void DesignSundial();
};

extern MainForm FormGTMain;

}  // namespace gloamtide
