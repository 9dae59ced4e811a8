// Pictures of the page in each of its states, on a desk and a telephone, light and dark: bilder.mjs PAGE-FOLDER SAMPLES TARGET
// [NAME...]; with names only those. Runs in the folder that seiten_pruefen.sh lays down.
import fs from 'node:fs';
import path from 'node:path';
import { chromium } from 'playwright-core';
import { dienen } from './diener.mjs';

const [seitenordner, proben, ziel, ...gewuenscht] = process.argv.slice(2);
const probe = (name) => path.join(proben, name);
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
const diener = await dienen(seitenordner);
fs.mkdirSync(ziel, { recursive: true });
for (const [breite, schema, sprache] of [[1280, 'light', 'de'], [1280, 'dark', 'fr'], [390, 'light', 'it'], [390, 'dark', 'de']]) {
  const telefon = breite < 500;
  const kontext = await browser.newContext({ viewport: { width: breite, height: telefon ? 844 : 900 }, colorScheme: schema, locale: sprache, isMobile: telefon, hasTouch: telefon });
  const seite = await kontext.newPage();
  const bild = async (was) => {
    const name = `${was}-${breite}-${schema}-${sprache}`;
    if (gewuenscht.length && !gewuenscht.includes(name)) return;
    await seite.waitForTimeout(300);
    await seite.screenshot({ path: path.join(ziel, name + '.png') });
  };
  const gib = (...dateien) => seite.setInputFiles('#eingabe-dateien', dateien);
  const bericht = async () => (await (await seite.waitForSelector('#rahmen iframe')).contentFrame()).waitForSelector('.urteil');
  const meldung = () => seite.waitForSelector('#meldung:not([hidden])');

  await seite.goto(diener.adresse);
  await seite.waitForSelector('html[data-bereit]');
  await seite.waitForFunction(() => navigator.serviceWorker.controller !== null);
  await bild('start');
  await gib('feindlich/feindlich.E1S');
  await bericht();
  await bild('feindlich');
  await seite.click('#zurueck');
  await gib('feindlich/rauschen.01S');
  await bericht();
  await bild('kaputt');
  await seite.click('#zurueck');
  await seite.setInputFiles('#eingabe-katalogdatei', 'schaden.vlt');
  await seite.waitForFunction(() => !document.querySelector('#katalog-weg').hidden);
  await gib(probe('sauber.01S'));
  await meldung();
  await bild('meldung');
  await seite.setInputFiles('#eingabe-katalogordner', probe('katalog'));
  await seite.waitForFunction(() => /^katalog ?:/.test(document.querySelector('#katalog-stand').textContent));
  await bild('katalog');
  await seite.evaluate(() => dispatchEvent(new DragEvent('dragenter')));
  await bild('ziehen');
  await seite.evaluate(() => dispatchEvent(new DragEvent('dragleave')));
  await gib('gross20.01S');
  await seite.waitForFunction(() => document.querySelector('#balken').value > 0.3);
  await bild('lauf');
  await seite.click('#abbrechen');
  await meldung();
  await gib(probe('fehlerhaft.01S'), probe('sauber.E1S'), 'feindlich/eine_zeile.01S', 'feindlich/<img src=x onerror=alert(1)>.01S');
  await seite.waitForSelector('#dateiliste li');
  await bild('liste');
  await seite.locator('#dateiliste button', { hasText: 'fehlerhaft.01S' }).click();
  await bericht();
  await bild('bericht');
  await seite.click('#zurueck');
  await seite.locator('#dateiliste button', { hasText: 'sauber.E1S' }).click();
  await bericht();
  await bild('sauber');
  await kontext.close();
}
await browser.close();
await diener.schliessen();
