// The splash picture and the program's icon, from the natural maps.

import { createRequire } from "node:module";
import { createCanvas, GlobalFonts } from "@napi-rs/canvas";
import { encodeBmp } from "./bmp.js";
import { mapHeight, mapWidth } from "./geometry.js";
import { makePalette, nearest } from "./palette.js";

const splashWidth = 553;
const splashHeight = 165;

// The colour of a map at a place in degrees, smoothed between pixels.
function colourAt({ entries }, palette, longitude, latitude) {
    const x = (((longitude + 540) % 360) / 360) * mapWidth - 0.5;
    const y = Math.min(mapHeight - 1.001, Math.max(0, ((80 - latitude) / 150) * mapHeight - 0.5));
    const [left, top] = [Math.floor(x), Math.floor(y)];
    return [0, 1, 2].map((c) => {
        let sum = 0;
        for (const [dx, dy] of [[0, 0], [1, 0], [0, 1], [1, 1]]) {
            const column = (left + dx + mapWidth) % mapWidth;
            const share = (dx ? x - left : 1 - x + left) * (dy ? y - top : 1 - y + top);
            sum += share * palette[entries[(top + dy) * mapWidth + column]][c];
        }
        return sum;
    });
}

// Day and night side by side: part 0 is night, 1 is day.
function blend(map, part, longitude, latitude) {
    const night = colourAt(map, map.night, longitude, latitude);
    const day = colourAt(map, map.day, longitude, latitude);
    return [0, 1, 2].map((c) => night[c] + (day[c] - night[c]) * part);
}

function bmpOf(canvas) {
    const { width, height } = canvas;
    const data = canvas.getContext("2d").getImageData(0, 0, width, height).data;
    const colours = Array.from({ length: width * height }, (_, pixel) => [...data.subarray(4 * pixel, 4 * pixel + 3)]);
    const palette = makePalette(colours, 256);
    return encodeBmp(width, height, palette, Uint8Array.from(colours, (colour) => nearest(palette, colour)));
}

export function drawSplash(map) {
    const canvas = createCanvas(splashWidth, splashHeight);
    const context = canvas.getContext("2d");
    const image = context.createImageData(splashWidth, splashHeight);
    for (let y = 0; y < splashHeight; ++y) {
        for (let x = 0; x < splashWidth; ++x) {
            const longitude = -35 + (x / splashWidth) * 150;
            const latitude = 58 - (y / splashHeight) * 45;
            const edge = 300 + 45 * Math.sin(((y / splashHeight) * 1.1 - 0.25) * Math.PI); // the terminator
            const part = Math.min(1, Math.max(0, (edge - x) / 26 + 0.5));
            const colour = blend(map, part, longitude, latitude);
            image.data.set([...colour.map(Math.round), 255], 4 * (y * splashWidth + x));
        }
    }
    context.putImageData(image, 0, 0);
    GlobalFonts.registerFromPath(
        createRequire(import.meta.url).resolve("@fontsource/marcellus/files/marcellus-latin-400-normal.woff2"), "Marcellus");
    context.font = "64px Marcellus";
    context.textAlign = "center";
    context.textBaseline = "middle";
    context.shadowColor = "rgba(0, 0, 20, 0.85)";
    context.shadowBlur = 10;
    context.shadowOffsetY = 2;
    context.fillStyle = "#fff6d8";
    context.fillText("Gloamtide", splashWidth / 2, splashHeight / 2 + 4);
    return bmpOf(canvas);
}

// A globe seen from above 15 East, 20 North, its right part in the night; four samples a side for each pixel.
function drawGlobe(map, size, background) {
    const canvas = createCanvas(size, size);
    const context = canvas.getContext("2d");
    const image = context.createImageData(size, size);
    const parts = 4;
    const radius = size / 2 - size / 64;
    const tilt = (20 * Math.PI) / 180;
    for (let y = 0; y < size; ++y) {
        for (let x = 0; x < size; ++x) {
            const sum = [0, 0, 0];
            let inside = 0;
            for (let part = 0; part < parts * parts; ++part) {
                const px = (x + ((part % parts) + 0.5) / parts - size / 2) / radius;
                const py = (size / 2 - y - (Math.floor(part / parts) + 0.5) / parts) / radius;
                if (px * px + py * py > 1) continue;
                const pz = Math.sqrt(1 - px * px - py * py);
                const up = py * Math.cos(tilt) + pz * Math.sin(tilt);
                const toward = pz * Math.cos(tilt) - py * Math.sin(tilt);
                const latitude = (Math.asin(Math.max(-1, Math.min(1, up))) * 180) / Math.PI;
                const longitude = 15 + (Math.atan2(px, toward) * 180) / Math.PI;
                const light = -px * 0.92 + py * 0.25 + 0.08;
                const colour = blend(map, Math.min(1, Math.max(0, light * 9 + 0.5)), longitude, latitude);
                const rim = 0.75 + 0.25 * pz;
                colour.forEach((level, c) => (sum[c] += level * rim));
                ++inside;
            }
            const alpha = inside / parts ** 2;
            const shown = sum.map((level) => (inside ? level / inside : 0));
            const pixel = background
                ? [...shown.map((level, c) => level * alpha + background[c] * (1 - alpha)), 255] : [...shown, 255 * alpha];
            image.data.set(pixel.map(Math.round), 4 * (y * size + x));
        }
    }
    context.putImageData(image, 0, 0);
    return canvas;
}

export function drawIcon(map) {
    return { png: drawGlobe(map, 256, null).toBuffer("image/png"), bmp: bmpOf(drawGlobe(map, 64, [192, 192, 192])) };
}
