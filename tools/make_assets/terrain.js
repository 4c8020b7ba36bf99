// The terrain by day and by night: the raster, its sea floor and all, with coasts and lakes of its vectors; the night
// dark blue, with the lights of cities.

import { enlarged } from './enlarging.js';
import { extended } from './extending.js';
import { atollColour, inlandPixels } from './natural_map.js';

const lakeColour = [70, 120, 160]; // of lakes that the raster is too coarse for

// Red, green, blue of each fine pixel by day.
export function terrainDay(raster, shares) {
    const openWater = inlandPixels({ ...raster, water: raster.water.map((wet) => 1 - wet) });
    const land = enlarged(extended(raster, inlandPixels(raster), (mean) => mean ?? atollColour), 3, raster);
    const water = enlarged(extended(raster, openWater, (mean) => mean ?? lakeColour), 3, raster);
    return Uint8ClampedArray.from(land, (value, i) => water[i] + (value - water[i]) * shares[Math.floor(i / 3)]);
}

const ground = [2, 3, 10];
const moonlight = [0.09, 0.14, 0.27]; // of the luminance by day
const seaByNight = 0.35; // of what the land has of it
const lightColour = [255, 209, 128];

// The same by night. lights: of each fine pixel, 0 to 1.
export function terrainNight(day, shares, lights) {
    return day.map((_, i) => {
        const [pixel, c] = [Math.floor(i / 3), i % 3];
        const luminance = 0.2126 * day[3 * pixel] + 0.7152 * day[3 * pixel + 1] + 0.0722 * day[3 * pixel + 2];
        const moonlit = ground[c] + luminance * moonlight[c] * (seaByNight + (1 - seaByNight) * shares[pixel]);
        return moonlit + (lightColour[c] - moonlit) * lights[pixel];
    });
}
