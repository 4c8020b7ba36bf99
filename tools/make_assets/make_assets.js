// Makes the pictures in assets/ and the cities' zones in tests/places/ anew.

import { mkdirSync, writeFileSync } from "node:fs";
import { encodeBmp } from "./bmp.js";
import { readCities } from "./cities.js";
import { countryMap, sampleCountries } from "./countries.js";
import { drawIcon, drawSplash } from "./emblems.js";
import { mapHeight, mapWidth, samples } from "./geometry.js";
import { zoneMask } from "./mask.js";
import { naturalColours } from "./natural.js";
import { makePalette, nearest } from "./palette.js";
import { politicalPicture } from "./political.js";

const root = new URL("../../", import.meta.url);
const write = (name, bytes) => writeFileSync(new URL(name, root), bytes);
const daySea = [0, 119, 225];

// Writes a day map and its night map: the same pixels, the land's colours darker by so many levels.
function writePair(name, palette, entries, nightSea, levels) {
    if (palette.some((colour) => String(colour) === String(daySea))) throw new Error("land in the colour of the sea");
    const darker = palette.map((colour) => colour.map((level) => Math.max(0, level - levels)));
    write(`assets/${name}_day.bmp`, encodeBmp(mapWidth, mapHeight, [daySea, ...palette], entries));
    write(`assets/${name}_night.bmp`, encodeBmp(mapWidth, mapHeight, [nightSea, ...darker], entries));
    return { day: [daySea, ...palette], night: [nightSea, ...darker], entries };
}

const countries = countryMap(sampleCountries(mapWidth * samples, mapHeight * samples));

const political = politicalPicture(countries);
writePair("political", political.palette, political.entries, [0, 0, 3], 50);

const colours = await naturalColours();
const land = colours.filter((_, pixel) => countries[pixel] > 0);
const palette = makePalette(land, 254);
const entries = Uint8Array.from(countries, (country, pixel) => (country ? 1 + nearest(palette, colours[pixel]) : 0));
const natural = writePair("natural", palette, entries, [0, 10, 54], 30);

const cities = readCities();
const mask = zoneMask(cities);
write("assets/zone_mask.bmp", encodeBmp(mapWidth, mapHeight, mask.palette, mask.indices));
mkdirSync(new URL("tests/places/", root), { recursive: true });
write("tests/places/city_zones.txt",
      "# The zone of each city by the world's zone data, found from its coordinates by tools/make_assets.\n" +
      "# Row of the city table, code of the zone mask, zone.\n" +
      cities.map(({ name, zone, code }, place) => `${place + 1} ${code} ${zone}  # ${name}\n`).join(""));

write("assets/splash.bmp", drawSplash(natural));
const icon = drawIcon(natural);
write("assets/icon.png", icon.png);
write("assets/icon.bmp", icon.bmp);
