// Files of the project.

import { mkdirSync, writeFileSync } from 'node:fs';

const project = new URL('../../', import.meta.url);

// file: its place in the project
export function write(file, content) {
    const place = new URL(file, project);
    mkdirSync(new URL('.', place), { recursive: true });
    writeFileSync(place, content);
    console.log(`${file}: ${content.length} bytes`);
}
