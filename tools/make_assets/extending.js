// A part of the raster, land or sea, drawn on over the rest of it: so that no coast of the raster is left in it.

import { searchMargins } from './natural_map.js';

// Red, green, blue of each raster pixel: colourOf(mean colour of the chosen pixels nearest to it, or null where none is
// near). chosen: 1 for each pixel of the part.
export function extended(raster, chosen, colourOf) {
    const meanNear = chosenMeans(raster, chosen);
    const colours = new Float32Array(3 * chosen.length);
    for (let pixel = 0; pixel < chosen.length; ++pixel) {
        const mean = searchMargins.reduce((found, margin) => found ?? meanNear(pixel, margin), null);
        colours.set(colourOf(mean), 3 * pixel);
    }
    return colours;
}

// Returns meanNear(raster pixel, margin): mean of the chosen in so many pixels on every side, null if there are none.
function chosenMeans({ width, height, data }, chosen) {
    const channels = 4; // red, green, blue, count
    const stride = 3 * width + 1; // the raster stands three times side by side, for boxes across 180 degrees
    const sums = new Float64Array(channels * stride * (height + 1)); // over all that is above and to the left
    for (let y = 0; y < height; ++y)
        for (let x = 0; x < 3 * width; ++x) {
            const pixel = y * width + (x % width);
            const place = ((y + 1) * stride + x + 1) * channels;
            for (let c = 0; c < channels; ++c)
                sums[place + c] = (chosen[pixel] ? (c < 3 ? data[4 * pixel + c] : 1) : 0) + sums[place - channels + c] +
                    sums[place - stride * channels + c] - sums[place - (stride + 1) * channels + c];
        }
    return (pixel, margin) => {
        const [x, y] = [(pixel % width) + width, Math.floor(pixel / width)];
        const [top, bottom] = [Math.max(y - margin, 0), Math.min(y + margin + 1, height)];
        const corner = (row, column) => (row * stride + column) * channels;
        const [a, b] = [corner(top, x - margin), corner(top, x + margin + 1)];
        const [c, d] = [corner(bottom, x - margin), corner(bottom, x + margin + 1)];
        const total = (channel) => sums[d + channel] - sums[c + channel] - sums[b + channel] + sums[a + channel];
        const count = total(3);
        return count > 0 ? [0, 1, 2].map((channel) => total(channel) / count) : null;
    };
}
