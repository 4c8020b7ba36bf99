// The Earth as a coloured surface, for the banner and the icon: raster land, flat sea, one twilight between.

import { radians } from './geometry.js';
import { seaByDay } from './map_pictures.js';

const nightSea = [10, 22, 66];
const nightLand = 0.36; // of the brightness by day
const twilight = 0.14; // sine of the Sun's altitude at which day and night are complete

// Returns colourAt(longitude, latitude) in degrees, the Sun being overhead at the given place.
export function litEarth(raster, sun) {
    const [sinSun, cosSun] = [Math.sin(radians(sun.latitude)), Math.cos(radians(sun.latitude))];
    return (longitude, latitude) => {
        const index = rasterIndex(raster, longitude, latitude);
        const land = [0, 1, 2].map((c) => raster.data[4 * index + c]);
        const day = raster.water[index] ? seaByDay : land;
        const night = raster.water[index] ? nightSea : land.map((v, c) => v * nightLand + nightSea[c] / 2);
        const altitude = sinSun * Math.sin(radians(latitude)) +
            cosSun * Math.cos(radians(latitude)) * Math.cos(radians(longitude - sun.longitude));
        const share = smooth((altitude / twilight + 1) / 2);
        return day.map((value, c) => share * value + (1 - share) * night[c]);
    };
}

function rasterIndex({ width, height }, longitude, latitude) {
    const x = Math.floor(((longitude + 180) / 360) * width);
    const y = Math.floor(((90 - latitude) / 180) * height);
    return Math.min(Math.max(y, 0), height - 1) * width + (((x % width) + width) % width);
}

function smooth(t) {
    const clamped = Math.min(Math.max(t, 0), 1);
    return clamped * clamped * (3 - 2 * clamped);
}

// Fills a canvas with the mean of colourAt(x, y) over each pixel; null is transparent.
export function paint(context, columns, rows, colourAt) {
    const samples = 4;
    const image = context.createImageData(columns, rows);
    for (let row = 0; row < rows; ++row)
        for (let column = 0; column < columns; ++column) {
            const sum = [0, 0, 0];
            let count = 0;
            for (let i = 0; i < samples * samples; ++i) {
                const colour = colourAt(column + ((i % samples) + 0.5) / samples,
                    row + (Math.floor(i / samples) + 0.5) / samples);
                if (!colour) continue;
                for (let c = 0; c < 3; ++c) sum[c] += colour[c];
                ++count;
            }
            const alpha = Math.round((255 * count) / (samples * samples));
            const mean = sum.map((value) => Math.round(value / Math.max(count, 1)));
            image.data.set([...mean, alpha], 4 * (row * columns + column));
        }
    context.putImageData(image, 0, 0);
}

// An eight-bit picture of an opaque canvas.
export function opaqueColours(context, columns, rows) {
    const { data } = context.getImageData(0, 0, columns, rows);
    return Array.from({ length: columns * rows }, (_, i) => [data[4 * i], data[4 * i + 1], data[4 * i + 2]]);
}
