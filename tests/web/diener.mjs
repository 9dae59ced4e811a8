// A web server for the tests: the files of one folder, compressed and marked as servers do; whatever is asked for is noted.
import crypto from 'node:crypto';
import fs from 'node:fs';
import http from 'node:http';
import path from 'node:path';
import zlib from 'node:zlib';

const ARTEN = { html: 'text/html', css: 'text/css', js: 'text/javascript', wasm: 'application/wasm', svg: 'image/svg+xml', png: 'image/png', webmanifest: 'application/manifest+json' };

export const dienen = (ordner) => new Promise((fertig) => {
  const stand = { gesendet: 0, anfragen: [] };
  const server = http.createServer((frage, antwort) => {
    const name = decodeURIComponent(new URL(frage.url, 'http://x').pathname).slice(1) || 'index.html';
    const pfad = path.join(ordner, name);
    stand.anfragen.push(`${frage.method} ${frage.url}`);
    if (frage.method !== 'GET' || name.includes('..') || !fs.existsSync(pfad)) {
      antwort.writeHead(404).end();
      return;
    }
    const marke = `"${crypto.createHash('sha1').update(fs.readFileSync(pfad)).digest('hex')}"`;
    if (frage.headers['if-none-match'] === marke) {
      antwort.writeHead(304, { etag: marke }).end();
      return;
    }
    const gepackt = zlib.gzipSync(fs.readFileSync(pfad), { level: 6 });
    const kopf = { 'content-type': ARTEN[name.split('.').pop()] ?? 'application/octet-stream', 'content-encoding': 'gzip', 'content-length': gepackt.length, etag: marke };
    stand.gesendet += gepackt.length;
    antwort.writeHead(200, kopf).end(gepackt);
  });
  server.listen(0, '127.0.0.1', () => fertig({ stand, adresse: `http://127.0.0.1:${server.address().port}/`, schliessen: () => new Promise((gut) => { server.closeAllConnections?.(); server.close(gut); }) }));
});
