// The stored pictures' scale: column 0 begins at longitude 180 West, row 0 at latitude 80 North.

export const mapWidth = 960; // pixels, 360 degrees
export const mapHeight = 510; // pixels, 150 degrees
export const maskWidth = 956; // pixels of the zone mask that span 360 degrees
export const samples = 8; // along each side of a pixel
