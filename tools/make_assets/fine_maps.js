// Makes the fine maps: the pictures that stand in for the stored maps where these would be shown enlarged, and the
// terrain.

import { fineLand, landShares } from './fine_land.js';
import { fineNatural } from './fine_natural.js';
import { finePolitical } from './fine_political.js';
import { fineHeight, fineWidth } from './geometry.js';
import { landPixels } from './land.js';
import { cityLights } from './lights.js';
import { loadNaturalEarth } from './natural_earth.js';
import { encodeBitPng } from './png.js';
import { countryColours } from './political_map.js';
import { terrainDay, terrainNight } from './terrain.js';
import { encodeWebp } from './webp.js';
import { write } from './writing.js';

const writeWebp = (file, pixels, ...options) => write(file, encodeWebp(fineWidth, fineHeight, pixels, options));

const raster = await loadNaturalEarth();
const country = landPixels(raster);
const land = fineLand(country);
const shares = landShares(land);
const sea = land.pixels.map((number) => (number < 0 ? 1 : 0));

write('assets/sea_fine.png', encodeBitPng(fineWidth, fineHeight, sea));
writeWebp('assets/natural_fine.webp', fineNatural(raster), '-q', '95');
writeWebp('assets/political_fine.webp', finePolitical(land, countryColours(country)), '-lossless', '-q', '100');

const day = terrainDay(raster, shares);
writeWebp('assets/terrain_day.webp', day, '-q', '90', '-sharp_yuv');
writeWebp('assets/terrain_night.webp', terrainNight(day, shares, await cityLights()), '-q', '90', '-sharp_yuv');
