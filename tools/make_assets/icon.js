// The icon: a globe, half day and half night, seen from above the terminator.

import { createCanvas } from '@napi-rs/canvas';
import { radians } from './geometry.js';
import { litEarth, opaqueColours, paint } from './globe.js';
import { quantise } from './quantiser.js';

const view = { longitude: 20, latitude: 18 };
const sun = { longitude: -58, latitude: 12 };
const margin = 0.03; // of the width, free on every side

// A square canvas of the globe on transparent ground.
function globe(raster, size) {
    const canvas = createCanvas(size, size);
    const earth = litEarth(raster, sun);
    const radius = size * (0.5 - margin);
    paint(canvas.getContext('2d'), size, size, (column, row) => {
        const x = (column - size / 2) / radius;
        const y = (size / 2 - row) / radius;
        return x * x + y * y > 1 ? null : earth(...placeSeenAt(x, y));
    });
    return canvas;
}

// Longitude and latitude, degrees, at a point of the disc of radius 1: the orthographic projection undone.
function placeSeenAt(x, y) {
    const z = Math.sqrt(1 - x * x - y * y);
    const [sinView, cosView] = [Math.sin(radians(view.latitude)), Math.cos(radians(view.latitude))];
    const longitude = view.longitude + (Math.atan2(x, z * cosView - y * sinView) * 180) / Math.PI;
    const latitude = (Math.asin(y * cosView + z * sinView) * 180) / Math.PI;
    return [longitude, latitude];
}

// A square PNG, reduced from a larger picture so that its rim is smooth.
export function iconPng(raster, size) {
    const canvas = createCanvas(size, size);
    const context = canvas.getContext('2d');
    context.imageSmoothingQuality = 'high';
    context.drawImage(globe(raster, 4 * size), 0, 0, size, size);
    return canvas.toBuffer('image/png');
}

export function iconBmp(raster) {
    const size = 64;
    const canvas = createCanvas(size, size);
    const context = canvas.getContext('2d');
    context.fillStyle = 'rgb(192, 192, 192)';
    context.fillRect(0, 0, size, size);
    context.drawImage(globe(raster, size), 0, 0);
    const { palette, entries } = quantise(opaqueColours(context, size, size), 256);
    return { width: size, height: size, pixels: Uint8Array.from(entries), palette };
}
