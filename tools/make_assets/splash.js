// The banner of the start-up window: the Earth about the June solstice, the name on its night side.

import { createCanvas, GlobalFonts } from '@napi-rs/canvas';
import { createRequire } from 'node:module';
import { litEarth, opaqueColours, paint } from './globe.js';
import { quantise } from './quantiser.js';

const width = 553;
const height = 165;
const sun = { longitude: 14, latitude: 21 };
const west = -34; // longitude of the left edge
const top = 70; // latitude of the upper edge
const degreesPerPixel = 0.6;

GlobalFonts.registerFromPath(
    createRequire(import.meta.url).resolve('@fontsource/marcellus/files/marcellus-latin-400-normal.woff'), 'Marcellus');

export function splash(raster) {
    const canvas = createCanvas(width, height);
    const context = canvas.getContext('2d');
    const earth = litEarth(raster, sun);
    paint(context, width, height, (x, y) => earth(west + x * degreesPerPixel, top - y * degreesPerPixel));
    writeName(context);
    const { palette, entries } = quantise(opaqueColours(context, width, height), 256);
    return { width, height, pixels: Uint8Array.from(entries), palette };
}

function writeName(context) {
    context.textAlign = 'right';
    context.textBaseline = 'alphabetic';
    context.shadowColor = 'rgba(0, 0, 20, 0.8)';
    context.shadowBlur = 8;
    context.fillStyle = 'rgb(250, 240, 214)';
    context.font = '54px Marcellus';
    context.letterSpacing = '2px';
    context.fillText('Gloamtide', width - 20, 92);
    context.font = '16px Marcellus';
    context.letterSpacing = '1px';
    context.fillText('day and night round the world', width - 23, 119);
}
