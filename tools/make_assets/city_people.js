// How many people live in the cities of the program's table, for the order in which the map names them: from the
// populated places of Natural Earth, 1:110 million, as the npm package globe.gl brings them.

import { readFileSync, writeFileSync } from 'node:fs';
import { tableOfCities } from './city_table.js';

const places = new URL(
    './node_modules/globe.gl/example/datasets/ne_110m_populated_places_simple.geojson', import.meta.url);
const file = new URL('../../src/places/city_people.inc', import.meta.url);
const otherNames = { Bombay: 'Mumbai' };
const sameTown = 0.35; // degrees
const sameName = 3; // degrees, since the table's coordinates are coarse

const plain = (name) => name.normalize('NFD').replace(/[^a-z ]/gi, '').toLowerCase();
const townOf = ({ name }) => name.split(',')[0];

function apart(city, { properties: { longitude, latitude } }) {
    const east = (longitude - city.longitude) * Math.cos((city.latitude * Math.PI) / 180);
    return Math.hypot(east, latitude - city.latitude);
}

// The row that a place belongs to: the nearest of its name, else the nearest of all; undefined where none is near.
function cityOf(place, cities) {
    const named = cities.filter((city) =>
        plain(otherNames[townOf(city)] ?? townOf(city)) === plain(place.properties.name.split(',')[0]));
    const nearest = (candidates, limit) => candidates
        .filter((city) => apart(city, place) < limit)
        .sort((a, b) => apart(a, place) - apart(b, place))[0];
    return nearest(named, sameName) ?? nearest(cities, sameTown);
}

const cities = tableOfCities();
const thousands = new Map();
for (const place of JSON.parse(readFileSync(places, 'utf8')).features) {
    const { pop_max, pop_min, pop_other } = place.properties;
    const people = Math.max(pop_max, pop_min, pop_other);
    const row = cityOf(place, cities)?.row;
    if (row) thousands.set(row, Math.max(thousands.get(row) ?? 0, Math.round(people / 1000)));
}
const rows = cities.map((city) => `${thousands.get(city.row) ?? 0},`.padEnd(8) + `// ${city.name}`);
writeFileSync(file, [
    '// Made from Natural Earth by tools/make_assets: npm run city-people. Thousands of people in and round each city, in',
    '// the order of the table of cities; 0: not among the places of the world map.',
    ...rows,
    '',
].join('\n'));
console.log(`${thousands.size} cities with people`);
