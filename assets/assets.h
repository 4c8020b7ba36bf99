// The files of this folder that are linked into the programs, as bytes.
#pragma once

#include <span>

namespace gloamtide {

using AssetBytes = std::span<const unsigned char>;

AssetBytes NaturalDayBmp();
AssetBytes NaturalNightBmp();
AssetBytes PoliticalDayBmp();
AssetBytes PoliticalNightBmp();
AssetBytes NaturalFineWebp();
AssetBytes PoliticalFineWebp();
AssetBytes SeaFinePng();
AssetBytes TerrainDayWebp();
AssetBytes TerrainNightWebp();
AssetBytes ZoneMaskBmp();
AssetBytes SplashBmp();
AssetBytes IconBmp();
AssetBytes IconPng();
AssetBytes HelpHtml();

}  // namespace gloamtide
