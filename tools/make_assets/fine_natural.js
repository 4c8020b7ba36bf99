// The natural map, fine: the raster's land in the colours of the stored map. It goes on under the sea, so that it holds
// no coasts: the mask of the sea cuts them.

import { enlarged } from './enlarging.js';
import { extended } from './extending.js';
import { atollColour, inlandPixels, strengthened } from './natural_map.js';

// Red, green, blue of each fine pixel.
export function fineNatural(raster) {
    const land = extended(raster, inlandPixels(raster), (mean) => (mean ? strengthened(mean) : atollColour));
    return Uint8ClampedArray.from(enlarged(land, 3, raster));
}
