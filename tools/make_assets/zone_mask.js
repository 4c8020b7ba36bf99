// The zone mask: the red value of every pixel is the code of its time zone.

import { height, kmPerDegree, north, radians, rowsPerDegree, width } from './geometry.js';
import { codeOfZone, codes, isSeaZone, zoneAt } from './zones.js';

const columns = 956; // the mask is read in its own scale, so the last columns of the picture never are
const columnsPerDegree = columns / 360;
const samples = 5; // points along each side of a pixel
const reach = 5.5; // pixels that a zone on land extends over the sea

const wrap = (column) => (column + columns) % columns;

export function zoneMask(cities) {
    const mask = coastGrown(sampled());
    correctCities(mask, cities);
    report(mask);
    const pixels = new Uint8Array(width * height);
    for (let row = 0; row < height; ++row)
        for (let column = 0; column < width; ++column)
            pixels[row * width + column] = codes.indexOf(mask[row * columns + Math.min(column, columns - 1)]);
    const palette = codes.map((code, i) => [code, (i * 97 + 60) % 256, (i * 151 + 90) % 256]);
    return { width, height, pixels, palette };
}

// Code and land of each pixel: the commonest zone of its points, and of those on land if there are any.
function sampled() {
    const mask = new Uint8Array(columns * height);
    const land = new Uint8Array(columns * height);
    for (let row = 0; row < height; ++row)
        for (let column = 0; column < columns; ++column) {
            const zones = zonesOfPixel(column, row);
            const ashore = zones.filter((zone) => !isSeaZone(zone));
            const pixel = row * columns + column;
            land[pixel] = ashore.length > 0 ? 1 : 0;
            mask[pixel] = commonest((ashore.length > 0 ? ashore : zones).map(codeOfZone));
        }
    return { mask, land };
}

function zonesOfPixel(column, row) {
    const zones = [];
    for (let y = 0; y < samples; ++y)
        for (let x = 0; x < samples; ++x)
            zones.push(zoneAt((column + (x + 0.5) / samples) / columnsPerDegree - 180,
                north - (row + (y + 0.5) / samples) / rowsPerDegree));
    return zones;
}

function commonest(values) {
    const counts = new Map();
    for (const value of values) counts.set(value, (counts.get(value) ?? 0) + 1);
    return [...counts].reduce((a, b) => (b[1] > a[1] ? b : a))[0];
}

// Gives sea pixels near a coast the zone of the land nearest on the globe, so that a port whose pixel is water
// has its own zone.
function coastGrown({ mask, land }) {
    const grown = mask.slice();
    const span = Math.floor(reach);
    for (let row = 0; row < height; ++row) {
        const kmPerColumn = (Math.cos(radians(north - (row + 0.5) / rowsPerDegree)) * kmPerDegree) / columnsPerDegree;
        const offsets = [];
        for (let y = -span; y <= span; ++y)
            for (let x = -span; x <= span; ++x)
                if (Math.hypot(x, y) <= reach && row + y >= 0 && row + y < height)
                    offsets.push({ x, y, km: Math.hypot(x * kmPerColumn, (y * kmPerDegree) / rowsPerDegree) });
        offsets.sort((a, b) => a.km - b.km);
        for (let column = 0; column < columns; ++column) {
            if (land[row * columns + column]) continue;
            const pixelAt = ({ x, y }) => (row + y) * columns + wrap(column + x);
            const coast = offsets.find((offset) => land[pixelAt(offset)]);
            if (coast) grown[row * columns + column] = mask[pixelAt(coast)];
        }
    }
    return grown;
}

// The pixel that the program reads for a city, after its coordinates went through the dialog's degrees and minutes.
function pixelOfCity({ longitude, latitude }) {
    const x = Math.fround((180 - throughDialog(longitude)) * columns / 360);
    const row = Math.floor((north - throughDialog(latitude)) * rowsPerDegree);
    return row * columns + Math.floor(columns - x);
}

function throughDialog(coordinate) {
    const size = Math.abs(Math.fround(coordinate));
    const degrees = Math.floor(size);
    const minutes = Math.floor((size + 0.005 - degrees) * 60);
    return Math.sign(coordinate) * Math.fround(minutes / 60 + degrees);
}

// A city near a border may share its pixel with more of the next zone than of its own: the city's zone goes first.
function correctCities(mask, cities) {
    const holder = new Map();
    for (const city of cities) {
        const pixel = pixelOfCity(city);
        const other = holder.get(pixel);
        if (other && other.code !== city.code) throw new Error(`${other.name} and ${city.name} share a pixel`);
        holder.set(pixel, city);
        if (mask[pixel] === city.code) continue;
        console.log(`zone mask: pixel of ${city.name} from code ${mask[pixel]} to ${city.code}`);
        mask[pixel] = city.code;
    }
}

// Places whose zone anyone can check.
const anchors = [
    ['Cleveland', -81.67, 41.47, 50], ['London', 0, 51.48, 0], ['Kathmandu', 85.2, 27.7, 182],
    ['Alice Springs', 133.88, -23.8, 145], ["St John's", -52.67, 47.55, 40],
];

function report(mask) {
    const unused = codes.filter((code) => !mask.includes(code));
    if (unused.length > 0) throw new Error(`codes that no pixel has: ${unused}`);
    for (const [name, longitude, latitude, code] of anchors) {
        const found = mask[pixelOfCity({ longitude, latitude })];
        if (found !== code) throw new Error(`${name} is on code ${found}, not ${code}`);
    }
    console.log(`zone mask: ${new Set(mask).size} codes, ${anchors.length} known places right`);
}
