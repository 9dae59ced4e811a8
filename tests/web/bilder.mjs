// Pictures of the page for docs/browser: bilder.mjs PAGE-FOLDER SAMPLES TARGET
import fs from 'node:fs';
import path from 'node:path';
import { chromium } from 'playwright-core';
import { dienen } from './diener.mjs';

const [seitenordner, proben, ziel] = process.argv.slice(2);
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
const diener = await dienen(seitenordner);
fs.mkdirSync(ziel, { recursive: true });
for (const [breite, schema, sprache] of [[1280, 'light', 'de'], [1280, 'dark', 'fr'], [390, 'light', 'it'], [390, 'dark', 'de']]) {
  const kontext = await browser.newContext({ viewport: { width: breite, height: breite < 500 ? 844 : 900 }, colorScheme: schema, locale: sprache });
  const seite = await kontext.newPage();
  const bild = (was) => seite.screenshot({ path: path.join(ziel, `${was}-${breite}-${schema}-${sprache}.png`) });
  await seite.goto(diener.adresse);
  await seite.waitForSelector('html[data-bereit]');
  await seite.waitForTimeout(500);
  await bild('start');
  await seite.setInputFiles('#eingabe-katalogordner', path.join(proben, 'katalog'));
  await seite.waitForFunction(() => !document.querySelector('#katalog-weg').hidden);
  await bild('katalog');
  await seite.setInputFiles('#eingabe-dateien', 'gross20.01S');
  await seite.waitForFunction(() => document.querySelector('#balken').value > 0.3);
  await bild('lauf');
  await seite.click('#abbrechen');
  await seite.waitForSelector('#meldung:not([hidden])');
  await seite.setInputFiles('#eingabe-dateien', ['fehlerhaft.01S', 'sauber.E1S'].map((d) => path.join(proben, d)));
  await seite.waitForSelector('#dateiliste li');
  await bild('liste');
  await seite.click('#dateiliste button >> nth=0');
  await (await (await seite.waitForSelector('#rahmen iframe')).contentFrame()).waitForSelector('.urteil');
  await seite.waitForTimeout(300);
  await bild('bericht');
  await kontext.close();
}
await browser.close();
await diener.schliessen();
