#include "assets/assets.h"

#define GLOAMTIDE_ASSET(Routine, Symbol)           \
    extern "C" const unsigned char Symbol[];       \
    extern "C" const unsigned char Symbol##_end[]; \
    gloamtide::AssetBytes gloamtide::Routine() { return {Symbol, Symbol##_end}; }

GLOAMTIDE_ASSET(NaturalDayBmp, gloamtide_natural_day)
GLOAMTIDE_ASSET(NaturalNightBmp, gloamtide_natural_night)
GLOAMTIDE_ASSET(PoliticalDayBmp, gloamtide_political_day)
GLOAMTIDE_ASSET(PoliticalNightBmp, gloamtide_political_night)
GLOAMTIDE_ASSET(NaturalFineWebp, gloamtide_natural_fine)
GLOAMTIDE_ASSET(PoliticalFineWebp, gloamtide_political_fine)
GLOAMTIDE_ASSET(SeaFinePng, gloamtide_sea_fine)
GLOAMTIDE_ASSET(TerrainDayWebp, gloamtide_terrain_day)
GLOAMTIDE_ASSET(TerrainNightWebp, gloamtide_terrain_night)
GLOAMTIDE_ASSET(ZoneMaskBmp, gloamtide_zone_mask)
GLOAMTIDE_ASSET(SplashBmp, gloamtide_splash)
GLOAMTIDE_ASSET(IconBmp, gloamtide_icon_bmp)
GLOAMTIDE_ASSET(IconPng, gloamtide_icon_png)
GLOAMTIDE_ASSET(HelpHtml, gloamtide_help)
