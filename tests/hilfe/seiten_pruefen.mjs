// The pages of the codes in Chromium: the search finds, every link leads somewhere, nothing is asked of anyone, everybody
// can use them. Pictures of some pages go to the folder "bilder". With the word "alle" each page is looked at, else one of
// twelve.
import { mkdirSync, readdirSync, readFileSync } from 'node:fs';
import { dirname, join, resolve } from 'node:path';
import { fileURLToPath, pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const ordner = resolve(process.argv[2]);
const axe = readFileSync('node_modules/axe-core/axe.min.js', 'utf8');
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
let geprueft = 0;
let falsch = 0;
const erwarte = (name, ist, soll) => {
  ++geprueft;
  if (JSON.stringify(ist) === JSON.stringify(soll)) return;
  ++falsch;
  console.log(`FALSE ${name}: ${JSON.stringify(ist)?.slice(0, 400)} instead of ${JSON.stringify(soll)?.slice(0, 400)}`);
};

const adresse = (datei) => pathToFileURL(join(ordner, datei)).href;

// A page whose complaints and requests out of the folder are noted.
const oeffnen = async (datei, breite = 1280, schema = 'light', mehr = {}) => {
  const kontext = await browser.newContext({ viewport: { width: breite, height: 900 }, colorScheme: schema, ...mehr });
  const seite = await kontext.newPage();
  const klagen = [];
  seite.on('console', (m) => klagen.push(m.text()));
  seite.on('pageerror', (e) => klagen.push(e.message));
  seite.on('request', (r) => { if (!r.url().startsWith(pathToFileURL(ordner).href)) klagen.push(r.url()); });
  await seite.goto(adresse(datei));
  return { seite, zu: async () => { erwarte(datei + ': complaints, requests', klagen, []); await kontext.close(); } };
};
const barrieren = async (seite, name) => {
  await seite.evaluate(axe);
  const ergebnis = await seite.evaluate(() => window.axe.run({ resultTypes: ['violations'], preload: false }));
  erwarte(name + ': axe', ergebnis.violations.map((v) => v.id + ' ' + v.nodes[0].html.slice(0, 120)), []);
};
const form = async (seite, name) => erwarte(name + ': wider than the window',
  await seite.evaluate(() => document.documentElement.scrollWidth > innerWidth), false);

// Every file, read as text: each link leads to a page of the folder.
const sprachen = ['de', 'fr', 'it'];
const seiten = sprachen.flatMap((s) => readdirSync(join(ordner, s)).filter((n) => n.endsWith('.html')).map((n) => `${s}/${n}`));
const da = new Set([...seiten, 'index.html']);
const tot = seiten.flatMap((seite) => [...readFileSync(join(ordner, seite), 'utf8').matchAll(/href="([^"#]+\.html)"/g)]
  .map(([, ziel]) => join(dirname(seite), ziel)).filter((ziel) => !da.has(ziel)).map((ziel) => `${seite} -> ${ziel}`));
erwarte('dead links', tot.slice(0, 10), []);

// Search: by number, by field, by words of the message and of the page, in each language; with and without accents.
const fragen = {
  de: [['4214', 4214], ['G6:13', 4611], ['Mengeneinheit UbR', 4504], ['leistungsposition abschnitt 000', 4214], ['reihenfolge zeilen', 2022]],
  fr: [['4214', 4214], ['g6:13', 4611], ['unité de métré UbR', 4504], ['unite de metre ubr', 4504], ['ordre des lignes', 2022]],
  it: [['4214', 4214], ['G6:13', 4611], ['unità di misura UbR', 4504], ['ordine delle righe', 2022]],
};
for (const sprache of sprachen) {
  const { seite, zu } = await oeffnen(`${sprache}/index.html`);
  for (const [frage, code] of fragen[sprache]) {
    await seite.fill('#suche', frage);
    const treffer = await seite.locator('#treffer b').allTextContents();
    erwarte(`${sprache}: "${frage}" finds ${code}`, treffer.slice(0, 8).includes(String(code)), true);
  }
  // A word that stands in the text of a page and in no message.
  const wort = await seite.evaluate(() => {
    const meldungen = CODES.map((c) => c[2]).join(' ').toLowerCase();
    for (const [code, , , text] of CODES) {
      const selten = text.split(/[^\p{L}]+/u).find((w) => w.length > 7 && !meldungen.includes(w.toLowerCase()));
      if (selten) return [code, selten];
    }
    return null;
  });
  await seite.fill('#suche', wort[1]);
  erwarte(`${sprache}: the word "${wort[1]}" finds ${wort[0]}`,
    (await seite.locator('#treffer b').allTextContents()).includes(String(wort[0])), true);
  await seite.fill('#suche', 'xyzzy');
  erwarte(`${sprache}: nothing found`, await seite.locator('#treffer li').count(), 0);
  await seite.fill('#suche', '4214');
  await barrieren(seite, `${sprache} search`);
  await seite.keyboard.press('Enter');
  await seite.waitForURL(adresse(`${sprache}/4214.html`));
  erwarte(`${sprache}: Enter opens the first hit`, (await seite.textContent('h1')).startsWith('4214'), true);
  await zu();
}

// Without script the pages and indexes are there all the same.
{
  const { seite, zu } = await oeffnen('fr/index.html', 1280, 'light', { javaScriptEnabled: false });
  erwarte('without script: no search', await seite.locator('form:visible').count(), 0);
  erwarte('without script: codes', await seite.locator('main li').count(), 259);
  await zu();
}

// Every kind of page in every width and colour.
mkdirSync('bilder', { recursive: true });
const muster = ['index.html', 'de/4214.html', 'de/index.html', 'fr/4214.html', 'fr/record.html', 'it/4214.html', 'it/feld.html', 'it/etappe.html'];
for (const datei of muster) {
  for (const [breite, schema] of [[320, 'light'], [390, 'dark'], [390, 'light'], [1280, 'dark'], [1280, 'light']]) {
    const { seite, zu } = await oeffnen(datei, breite, schema);
    await form(seite, `${datei} ${breite} ${schema}`);
    await barrieren(seite, `${datei} ${breite} ${schema}`);
    if (breite !== 320) await seite.screenshot({ path: `bilder/${datei.replaceAll('/', '_')}.${breite}.${schema}.png` });
    await zu();
  }
}
const kontext = await browser.newContext({ viewport: { width: 390, height: 900 } });
const seite = await kontext.newPage();
const schritt = process.argv[3] === 'alle' ? 1 : 12;
for (const datei of seiten.filter((n, i) => /\d/.test(n) && i % schritt === 0)) {
  await seite.goto(adresse(datei));
  await form(seite, datei);
  await barrieren(seite, datei);
}
await browser.close();
console.log(`${geprueft} checks, ${falsch} false; pictures in ${fileURLToPath(pathToFileURL(resolve('bilder')))}`);
process.exit(falsch ? 1 : 0);
