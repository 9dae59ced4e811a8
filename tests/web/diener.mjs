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

// A proxy that all of a browser's traffic goes through, the service worker's too: each request is noted, with the bytes that it
// carries away; only this machine can be reached.
export const mitschreiben = () => new Promise((fertig) => {
  const anfragen = [];
  const server = http.createServer((frage, antwort) => {
    const eine = { art: frage.method, adresse: frage.url, bytes: 0 };
    anfragen.push(eine);
    frage.on('data', (stueck) => { eine.bytes += stueck.length; });
    if (new URL(frage.url).hostname !== '127.0.0.1') {
      antwort.writeHead(403).end();
      return;
    }
    const weiter = http.request(frage.url, { method: frage.method, headers: frage.headers }, (a) => {
      antwort.writeHead(a.statusCode, a.headers);
      a.pipe(antwort);
    });
    weiter.on('error', () => antwort.destroy());
    frage.pipe(weiter);
  });
  server.on('connect', (frage, draht) => {
    anfragen.push({ art: 'CONNECT', adresse: frage.url, bytes: 0 });
    draht.destroy();
  });
  server.listen(0, '127.0.0.1', () => fertig({ anfragen, adresse: `http://127.0.0.1:${server.address().port}`, schliessen: () => { server.closeAllConnections?.(); server.close(); } }));
});
