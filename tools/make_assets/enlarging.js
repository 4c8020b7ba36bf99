// Parts of the raster at the size of the fine maps, by cubic interpolation (Catmull and Rom).

import { fineHeight, fineWidth, north, south } from './geometry.js';

// Four raster lines and their weights for each fine line; from: where the first fine line begins, in raster lines.
function taps(count, from, perLine) {
    return Array.from({ length: count }, (_, i) => {
        const place = from + (i + 0.5) * perLine - 0.5;
        const first = Math.floor(place) - 1;
        const t = place - first - 1;
        const weights = [
            (((2 - t) * t - 1) * t) / 2,
            ((3 * t - 5) * t * t + 2) / 2,
            (((4 - 3 * t) * t + 1) * t) / 2,
            ((t - 1) * t * t) / 2,
        ];
        return { first, weights };
    });
}

// values: so many channels for each raster pixel. Returns as many, unrounded, for each fine pixel.
export function enlarged(values, channels, { width, height }) {
    const across = taps(fineWidth, 0, width / fineWidth);
    const down = taps(fineHeight, ((90 - north) * height) / 180, ((north - south) * height) / 180 / fineHeight);
    const fine = new Float32Array(channels * fineWidth * fineHeight);
    const line = new Float32Array(channels * width);
    down.forEach(({ first, weights }, row) => {
        const starts = weights.map((_, i) => Math.min(Math.max(first + i, 0), height - 1) * width * channels);
        for (let i = 0; i < line.length; ++i)
            line[i] = weights.reduce((sum, weight, k) => sum + weight * values[starts[k] + i], 0);
        across.forEach(({ first: left, weights: shares }, column) => {
            for (let c = 0; c < channels; ++c)
                fine[(row * fineWidth + column) * channels + c] = shares.reduce(
                    (sum, share, k) => sum + share * line[((left + k + width) % width) * channels + c], 0);
        });
    });
    return fine;
}
