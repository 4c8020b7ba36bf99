// Makes the fine maps: the pictures that stand in for the stored maps where these would be shown enlarged.

import { countryColours } from './political_map.js';
import { fineHeight, fineWidth } from './geometry.js';
import { fineLand } from './fine_land.js';
import { fineNatural } from './fine_natural.js';
import { finePolitical } from './fine_political.js';
import { landPixels } from './land.js';
import { loadNaturalEarth } from './natural_earth.js';
import { encodeBitPng } from './png.js';
import { encodeWebp } from './webp.js';
import { write } from './writing.js';

const writeWebp = (file, pixels, ...options) => write(file, encodeWebp(fineWidth, fineHeight, pixels, options));

const raster = await loadNaturalEarth();
const country = landPixels(raster);
const land = fineLand(country);
const sea = land.pixels.map((number) => (number < 0 ? 1 : 0));

write('assets/sea_fine.png', encodeBitPng(fineWidth, fineHeight, sea));
writeWebp('assets/natural_fine.webp', fineNatural(raster), '-q', '95');
writeWebp('assets/political_fine.webp', finePolitical(land, countryColours(country)), '-lossless', '-q', '100');
