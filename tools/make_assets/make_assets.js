// Makes the stored pictures of the program and the table of city zones that a test reads.

import { encodeBmp } from './bmp.js';
import { cityZonesText, loadCities } from './cities.js';
import { iconBmp, iconPng } from './icon.js';
import { landPixels } from './land.js';
import { naturalMap } from './natural_map.js';
import { loadNaturalEarth } from './natural_earth.js';
import { politicalMap } from './political_map.js';
import { splash } from './splash.js';
import { write } from './writing.js';
import { zoneMask } from './zone_mask.js';

const writePicture = (file, picture) => write(file, encodeBmp(picture));

const raster = await loadNaturalEarth();
const country = landPixels(raster);
const natural = naturalMap(raster, country);
const political = politicalMap(country);
const cities = loadCities();

writePicture('assets/natural_day.bmp', natural.day);
writePicture('assets/natural_night.bmp', natural.night);
writePicture('assets/political_day.bmp', political.day);
writePicture('assets/political_night.bmp', political.night);
writePicture('assets/zone_mask.bmp', zoneMask(cities));
writePicture('assets/splash.bmp', splash(raster));
writePicture('assets/icon.bmp', iconBmp(raster));
write('assets/icon.png', iconPng(raster, 256));
for (const size of [16, 24, 32, 48, 64, 128]) {
    write(`packaging/icons/${size}.png`, iconPng(raster, size));
}
write('tests/places/city_zones.txt', cityZonesText(cities));
