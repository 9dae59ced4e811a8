'use strict';
// Keeps the page's own files, so that it opens without a network. Each version keeps its own and drops the others.
const ABLAGE = 'zepholt-@KENNZAHL@';
const DATEIEN = JSON.parse('@DATEIEN@');

self.addEventListener('install', (e) => {
  e.waitUntil(caches.open(ABLAGE).then((ablage) => ablage.addAll(DATEIEN.map((d) => new Request(d, { cache: 'no-cache' })))));
});
self.addEventListener('activate', (e) => {
  e.waitUntil((async () => {
    for (const name of await caches.keys()) if (name.startsWith('zepholt-') && name !== ABLAGE) await caches.delete(name);
    await self.clients.claim();
  })());
});
self.addEventListener('fetch', (e) => {
  if (e.request.method !== 'GET' || new URL(e.request.url).origin !== self.location.origin) return;
  e.respondWith((async () => {
    const ablage = await caches.open(ABLAGE);
    return (await ablage.match(e.request, { ignoreSearch: true })) ?? fetch(e.request);
  })());
});
