// Takes pictures of the pages: bilder.mjs FOLDER [NAME...]. Each page's first screen, and one record of it with what its code
// means, in three languages; with names only those.
import { readFileSync } from 'node:fs';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const [ordner, ...gewuenscht] = process.argv.slice(2);
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
const seiten = readFileSync('seiten.txt', 'utf8').trim().split('\n').map((z) => z.split(' ')[0]);
const passt = (name) => !gewuenscht.length || gewuenscht.some((g) => g.startsWith(name));
for (const breite of [1280, 390]) {
  for (const schema of ['light', 'dark']) {
    const seite = await browser.newPage({ viewport: { width: breite, height: breite < 500 ? 844 : 900 }, colorScheme: schema });
    seite.setDefaultTimeout(180000);
    const bild = async (name) => {
      if (!gewuenscht.length || gewuenscht.includes(name)) await seite.screenshot({ path: `${ordner}/${name}.png` });
    };
    const ende = `${breite}-${schema}`;
    for (const datei of seiten) {
      const anfang = `${datei.replace('.', '-')}-${ende}`;
      if (!passt(anfang)) continue;
      await seite.goto(pathToFileURL(datei + '.html').href);
      for (const [i, sprache] of ['de', 'fr', 'it'].entries()) {
        if (i) await seite.click(`#sprachen button[value="${i}"]`);
        await seite.evaluate(() => scrollTo(0, 0));
        await bild(anfang + (i ? '-' + sprache : ''));
        const records = seite.locator('#liste .s > article:has(.w)');
        const anzahl = await records.count();
        if (!anzahl) continue;
        const record = records.nth(Math.min(1, anzahl - 1));
        await record.evaluate((k) => scrollTo(0, k.closest('.s').getBoundingClientRect().top + scrollY - 120));
        await seite.waitForTimeout(100);
        if (!i) await bild(anfang + '-record');
        await record.locator('.w summary').first().click();
        await seite.waitForTimeout(100);
        await bild(anfang + (i ? '-' + sprache : '') + '-code');
      }
    }
    if (passt('uebersicht-' + ende)) {
      await seite.goto(pathToFileURL('uebersicht.html').href);
      await bild('uebersicht-' + ende);
    }
    await seite.close();
  }
}
await browser.close();
