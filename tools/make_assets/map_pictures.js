// A day map and its night map: the same pixels under two palettes, entry 0 being the sea.

import { height, width } from './geometry.js';

export const seaByDay = [0, 119, 225];

export function dayAndNight(pixels, landPalette, { seaByNight, darkerBy }) {
    const clash = landPalette.some((colour) => colour.every((value, c) => value === seaByDay[c]));
    if (clash) throw new Error('a land colour equals the colour of the sea');
    const darkened = landPalette.map((colour) => colour.map((value) => Math.max(value - darkerBy, 0)));
    return {
        day: { width, height, pixels, palette: [seaByDay, ...landPalette] },
        night: { width, height, pixels, palette: [seaByNight, ...darkened] },
    };
}
