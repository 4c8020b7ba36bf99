// The frame of the four stored maps: both axes linear in degrees, 180 W to 180 E and 80 N to 70 S.

export const width = 960;
export const height = 510;
export const north = 80;
export const south = -70;
export const columnsPerDegree = width / 360;
export const rowsPerDegree = height / (north - south);
export const fineWidth = 4096; // of the fine maps, in the same frame
export const fineHeight = 1707;
export const kmPerDegree = 111.2; // of latitude

export const radians = (degrees) => (degrees * Math.PI) / 180;

// Index of a pixel; columns wrap round the globe.
export const at = (column, row) => row * width + ((column + width) % width);

// Calls visit(index) for the neighbours of a pixel, diagonal ones included.
export function eachNeighbour(index, visit) {
    const row = Math.floor(index / width);
    const column = index % width;
    for (let y = Math.max(row - 1, 0); y <= Math.min(row + 1, height - 1); ++y)
        for (let x = column - 1; x <= column + 1; ++x) if (y !== row || x !== column) visit(at(x, y));
}
