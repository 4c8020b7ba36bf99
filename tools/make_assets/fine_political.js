// The political map, fine: the colours of the stored one, borders smoothed.

import { fineHeight, fineWidth } from './geometry.js';
import { columns, eachPoint, fineAt, rows } from './fine_land.js';
import { seaByDay } from './map_pictures.js';
import { borderColours, politicalColours } from './political_map.js';

const halfBorder = 5; // points on either side of a border that are its line
const ring = Array.from({ length: 16 }, (_, i) => {
    const angle = (i * Math.PI) / 8;
    return [Math.round(halfBorder * Math.cos(angle)), Math.round(halfBorder * Math.sin(angle))];
});

// Red, green, blue of each fine pixel. colourOf: index of each country's colour.
export function finePolitical({ points, pixels }, colourOf) {
    const picture = new Uint8Array(3 * pixels.length);
    pixels.forEach((number, pixel) => picture.set(number < 0 ? seaByDay : pixelColour(pixel), 3 * pixel));
    return picture;

    // Mean over the points of a pixel that are land; an islet too small for any has its country's colour.
    function pixelColour(pixel) {
        const number = pixels[pixel];
        if (inside(pixel, number)) return politicalColours[colourOf[number]];
        const sum = [0, 0, 0];
        let count = 0;
        eachPoint(pixel, (point) => {
            const owner = points[point];
            if (owner < 0) return;
            const colour = (isBorder(point, owner) ? borderColours : politicalColours)[colourOf[owner]];
            for (let c = 0; c < 3; ++c) sum[c] += colour[c];
            ++count;
        });
        return count > 0 ? sum.map((value) => Math.round(value / count)) : politicalColours[colourOf[number]];
    }

    // Whether no other country is near a pixel.
    function inside(pixel, number) {
        const [x, y] = [pixel % fineWidth, Math.floor(pixel / fineWidth)];
        for (let ny = Math.max(y - 3, 0); ny <= Math.min(y + 3, fineHeight - 1); ++ny)
            for (let nx = x - 3; nx <= x + 3; ++nx) {
                const other = pixels[fineAt(nx, ny)];
                if (other >= 0 && other !== number) return false;
            }
        return true;
    }

    function isBorder(point, owner) {
        const [x, y] = [point % columns, Math.floor(point / columns)];
        return ring.some(([dx, dy]) => {
            if (x + dx < 0 || x + dx >= columns || y + dy < 0 || y + dy >= rows) return false;
            const other = points[point + dy * columns + dx];
            return other >= 0 && other !== owner;
        });
    }
}
