// Place of a file of Debian's package marble-qt-data, or of the folder that the package was unpacked to.

import path from 'node:path';

export const marble = (file) => path.join(process.env.MARBLE ?? '/', 'usr/share/marble/data', file);
