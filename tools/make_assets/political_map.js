// The political map: countries in calm colours that differ from those of all their neighbours, thin borders.

import { borderingCountries, countries } from './countries.js';
import { at, eachNeighbour, height, width } from './geometry.js';
import { dayAndNight } from './map_pictures.js';

const night = { seaByNight: [0, 0, 3], darkerBy: 50 };
const fills = [
    [246, 226, 150], // straw
    [160, 204, 140], // meadow
    [240, 190, 142], // apricot
    [196, 178, 216], // lilac
    [214, 220, 180], // pale olive
    [226, 154, 168], // rose
    [158, 204, 196], // sage
];
export const politicalColours = [...fills, [236, 238, 240]]; // the last is Antarctica's
const borderTint = 0.78; // of the country's own colour
export const borderColours = politicalColours.map((colour) => colour.map((value) => Math.round(value * borderTint)));

const isAntarctica = ({ properties }) => properties.name === 'Antarctica';

export function politicalMap(country) {
    const colourOf = countryColours(country);
    const pixels = new Uint8Array(width * height);
    country.forEach((number, pixel) => {
        if (number < 0) return;
        pixels[pixel] = 1 + colourOf[number] + (isBorder(country, pixel) ? politicalColours.length : 0);
    });
    return dayAndNight(pixels, [...politicalColours, ...borderColours], night);
}

// For each country the index of its colour.
export function countryColours(country) {
    const neighbours = neighbourSets(country);
    const fillOf = colourCountries(neighbours, country);
    report(neighbours, fillOf);
    return fillOf.map((fill, number) => (isAntarctica(countries[number]) ? fills.length : fill));
}

// Countries that share a border in the polygons, or whose pixels touch.
function neighbourSets(country) {
    const sets = borderingCountries.map((list) => new Set(list));
    country.forEach((number, pixel) => {
        if (number >= 0)
            eachNeighbour(pixel, (next) => {
                if (country[next] >= 0 && country[next] !== number) sets[number].add(country[next]);
            });
    });
    return sets;
}

// Gives each country the fill of least area so far among those that no neighbour has, the country with the fewest
// free fills first and the larger one of equals, so that no fill rules the map.
function colourCountries(neighbours, country) {
    const area = countries.map(() => 0);
    for (const number of country) if (number >= 0) ++area[number];
    const fillOf = countries.map(() => -1);
    const used = fills.map(() => 0);
    const free = (number) => {
        const taken = new Set([...neighbours[number]].map((other) => fillOf[other]));
        return fills.map((_, fill) => fill).filter((fill) => !taken.has(fill));
    };
    const open = new Set(countries.keys());
    while (open.size > 0) {
        const next = [...open].reduce((a, b) => {
            const difference = free(a).length - free(b).length || area[b] - area[a];
            return difference > 0 ? b : a;
        });
        const choice = free(next);
        if (choice.length === 0) throw new Error(`no colour left for ${countries[next].properties.name}`);
        fillOf[next] = choice.reduce((a, b) => (used[b] < used[a] ? b : a));
        used[fillOf[next]] += area[next];
        open.delete(next);
    }
    return fillOf;
}

function report(neighbours, fillOf) {
    let pairs = 0;
    let equal = 0;
    neighbours.forEach((others, number) => others.forEach((other) => {
        if (other <= number) return;
        ++pairs;
        if (fillOf[other] === fillOf[number]) ++equal;
    }));
    console.log(`political map: ${countries.length} countries in ${new Set(fillOf).size} colours, ` +
        `${pairs} neighbouring pairs, ${equal} of them in one colour`);
}

// A line one pixel wide: drawn on the western or northern side of a border only.
function isBorder(country, pixel) {
    const column = pixel % width;
    const row = Math.floor(pixel / width);
    const differs = (other) => country[other] >= 0 && country[other] !== country[pixel];
    return differs(at(column + 1, row)) || (row + 1 < height && differs(at(column, row + 1)));
}
