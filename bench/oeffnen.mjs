// Opens a page five times and prints how long it takes: oeffnen.mjs PAGE. What the page's thread works beside that is the
// same however busy the machine is with other things.
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
const mitte = (werte) => Math.round([...werte].sort((a, b) => a - b)[2]);
const zeiten = { bild: [], bedienbar: [], arbeit: [], code: [], text: [] };
// Milliseconds from an action to the picture behind it.
const dauer = (seite, tun) => seite.evaluate(async (tun) => {
  const anfang = performance.now();
  const vorher = document.querySelector('#stand p').textContent;
  if (tun === 'code') document.querySelector('.codes a').click();
  else {
    document.querySelector('#text').value = tun;
    document.querySelector('#text').dispatchEvent(new Event('input'));
  }
  while (document.querySelector('#stand p').textContent === vorher) await new Promise((r) => setTimeout(r, 1));
  await new Promise((r) => requestAnimationFrame(() => setTimeout(r)));
  return performance.now() - anfang;
}, tun);
for (let i = 0; i < 5; ++i) {
  const seite = await browser.newPage({ viewport: { width: 1280, height: 900 } });
  await seite.addInitScript(() => {
    const uhr = setInterval(() => {
      if (!document.querySelector('#leiste') || document.querySelector('#leiste').hidden) return;
      window.bedienbar = performance.now();
      clearInterval(uhr);
    }, 4);
  });
  const verbindung = await seite.context().newCDPSession(seite);
  await verbindung.send('Performance.enable', { timeDomain: 'threadTicks' });
  await seite.goto(pathToFileURL(process.argv[2]).href, { waitUntil: 'load', timeout: 0 });
  const [bild, bedienbar] = await seite.evaluate(async () => {
    while (!performance.getEntriesByName('first-contentful-paint').length) await new Promise((r) => setTimeout(r, 5));
    return [performance.getEntriesByName('first-contentful-paint')[0].startTime, window.bedienbar];
  });
  const { metrics } = await verbindung.send('Performance.getMetrics');
  zeiten.arbeit.push(1000 * metrics.find((m) => m.name === 'TaskDuration').value);
  zeiten.bild.push(bild);
  zeiten.bedienbar.push(bedienbar);
  zeiten.code.push(await dauer(seite, 'code'));
  zeiten.text.push(await dauer(seite, '111'));
  await seite.close();
}
await browser.close();
const [bild, bedienbar, arbeit, code, text] = Object.values(zeiten).map(mitte);
console.log(`first screen ${bild} ms, answers ${bedienbar} ms, read altogether with ${arbeit} ms of work; the first choice of a code ${code} ms, a text ${text} ms`);
process.exit(Math.max(bild, bedienbar) < 1000 ? 0 : 1);
