// The lights of cities: a picture of the 1990s by NASA and NOAA, 2700 x 1350, geographic, as Debian's marble-qt-data
// brings it. White lights stand there on land in dim blue, so that red tells them apart.

import { createCanvas, loadImage } from '@napi-rs/canvas';
import { enlarged } from './enlarging.js';
import { marble } from './marble.js';

const dark = 56; // levels of red: of the brightest land without a light, of a full light
const full = 210;

const share = (value) => Math.min(Math.max(value, 0), 1);

// Brightness of the lights in each fine pixel, 0 to 1.
export async function cityLights() {
    const image = await loadImage(marble('maps/earth/citylights/citylights.jpg'));
    const { width, height } = image;
    const context = createCanvas(width, height).getContext('2d');
    context.drawImage(image, 0, 0);
    const { data } = context.getImageData(0, 0, width, height);
    const lights = Float32Array.from({ length: width * height }, (_, i) => share((data[4 * i] - dark) / (full - dark)));
    return enlarged(lights, 1, { width, height }).map(share);
}
