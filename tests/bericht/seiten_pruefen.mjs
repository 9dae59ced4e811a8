// The report's pages in Chromium: what they show, that they ask nothing of anyone, that everybody can use them.
import { readFileSync } from 'node:fs';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';

const axe = readFileSync('node_modules/axe-core/axe.min.js', 'utf8');
const browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox'] });
let geprueft = 0;
let falsch = 0;
const erwarte = (name, ist, soll) => {
  ++geprueft;
  if (JSON.stringify(ist) === JSON.stringify(soll)) return;
  ++falsch;
  console.log(`FALSE ${name}: ${JSON.stringify(ist)?.slice(0, 600)} instead of ${JSON.stringify(soll)?.slice(0, 600)}`);
};

// A page whose every request, dialog and complaint is noted.
const oeffnen = async (datei, breite = 1280, schema = 'light', mehr = {}) => {
  const kontext = await browser.newContext({ viewport: { width: breite, height: breite < 500 ? 844 : 900 }, colorScheme: schema, ...mehr });
  kontext.setDefaultTimeout(120000); // a machine that does much else
  const seite = await kontext.newPage();
  const klagen = [];
  seite.on('console', (m) => klagen.push(m.text()));
  seite.on('pageerror', (e) => klagen.push(e.message));
  seite.on('dialog', (d) => { klagen.push('dialog ' + d.message()); d.dismiss(); });
  seite.on('request', (r) => { if (r.url() !== pathToFileURL(datei + '.html').href) klagen.push(r.url()); });
  await seite.goto(pathToFileURL(datei + '.html').href);
  return { seite, klagen, zu: async (name) => { erwarte(name + ': complaints, requests, dialogs', klagen, []); await kontext.close(); } };
};
const barrieren = async (seite, name) => {
  await seite.evaluate(axe);
  const ergebnis = await seite.evaluate(() => window.axe.run({ resultTypes: ['violations'] }));
  erwarte(name + ': axe', ergebnis.violations.map((v) => v.id + ' ' + v.nodes[0].html.slice(0, 120)), []);
};
// Nothing stands outside of the window, nothing is cut, no two boxes lie on each other.
const form = async (seite, name) => {
  erwarte(name + ': form', await seite.evaluate(() => {
    const klagen = [];
    if (document.documentElement.scrollWidth > innerWidth) klagen.push('wider than the window: ' + document.documentElement.scrollWidth);
    const sichtbare = [...document.querySelectorAll('h1,h2:not(.v),h3,h4,dt,dd,button,select,.codes a,.t,.k,label,.angaben dd')].filter((k) => k.checkVisibility?.() && k.getClientRects().length);
    for (const k of sichtbare) if (k.scrollWidth > k.clientWidth + 1 && getComputedStyle(k).display !== 'inline') klagen.push('cut: ' + k.outerHTML.slice(0, 90));
    for (const reihe of document.querySelectorAll('.r, .leiste, .angaben, .m, .codes')) {
      const kaesten = [...reihe.children].map((k) => k.getBoundingClientRect()).filter((k) => k.width);
      for (let i = 0; i < kaesten.length; ++i) for (let j = i + 1; j < kaesten.length && j < i + 4; ++j) {
        const [a, b] = [kaesten[i], kaesten[j]];
        if (a.left < b.right - 1 && b.left < a.right - 1 && a.top < b.bottom - 1 && b.top < a.bottom - 1) klagen.push('overlap in ' + reihe.className);
      }
    }
    return klagen.slice(0, 5);
  }), []);
};
const stand = (seite) => seite.textContent('#stand p');
const zeilen = (seite) => seite.locator('#liste .m > li').count();
// What the plain part holds: 50 findings of each code, 2,000 in all.
const gezeigt = async (seite) => {
  const anzahlen = await seite.locator('.codes em').allTextContents();
  return Math.min(2000, anzahlen.reduce((summe, n) => summe + Math.min(50, +n.replaceAll('’', '')), 0));
};
const zahl = (n) => String(n).replace(/\B(?=(\d{3})+$)/g, '’');
// What the list says, without the places that links lead to.
const bild = (seite) => seite.evaluate(() => {
  const kopie = document.querySelector('#liste').cloneNode(true);
  for (const k of kopie.querySelectorAll('[id]')) k.removeAttribute('id');
  for (const k of kopie.querySelectorAll('[class=""]')) k.removeAttribute('class');
  kopie.normalize();
  return kopie.innerHTML.replace(/>\n+</g, '><').trim();
});

const seiten = readFileSync('seiten.txt', 'utf8').trim().split('\n').map((z) => z.split(' '));
for (const [datei, alle, warnungen] of seiten) {
  const n = +alle;
  const gross = n > 2000;

  // The plain part, without script: verdict, findings, no control that would do nothing.
  {
    const { seite, zu } = await oeffnen(datei, 1280, 'light', { javaScriptEnabled: false });
    erwarte(datei + ': findings without script', await seite.locator('#liste .m > li').count(), gross ? await gezeigt(seite) : n);
    const falten = seite.locator('#liste details.w');
    erwarte(datei + ': fold-outs without script', await falten.count(), await seite.locator('.codes a').count());
    if (n > 0) {
      await falten.first().locator('summary').click();
      erwarte(datei + ': unfolds without script', await falten.first().locator('ol li').first().isVisible(), true);
    }
    erwarte(datei + ': controls without script', await seite.locator('button:visible, input:visible').count(), 0);
    await zu(datei + ' without script');
  }

  // With script: the same list is built from the data.
  const { seite, zu } = await oeffnen(datei);
  await barrieren(seite, datei);
  const vorher = await bild(seite);
  if (n > 0 && !gross) {
    await seite.click('#ordnung button[value=p]');
    erwarte(datei + ': list from data', await bild(seite), vorher);
    erwarte(datei + ': findings', await zeilen(seite), n);
  }
  erwarte(datei + ': each finding unfolds', await seite.locator('#liste .m > li details.w').count(), await zeilen(seite));
  if (n > 0) {
    await seite.click('#schwere button[value=B]');
    erwarte(datei + ': warnings', await stand(seite), +warnungen ? `${zahl(warnungen)} von ${zahl(n)} Befunden` : 'Kein Befund passt zur Auswahl.');
    await seite.click('#schwere button[value=""]');
    const code = await seite.locator('.codes a').first();
    const anzahl = await code.locator('em').textContent();
    await code.click();
    erwarte(datei + ': code', await stand(seite), `${anzahl} von ${zahl(n)} Befunden`);
    erwarte(datei + ': focus behind the link', await seite.evaluate(() => document.activeElement.id), 'befunde');
    await barrieren(seite, datei + ' one code');
    await seite.click('#stand button');
    erwarte(datei + ': all again', await stand(seite), `${zahl(n)} von ${zahl(n)} Befunden`);
    await seite.click('#ordnung button[value=c]');
    const codes = await seite.locator('.codes a').count();
    if (!gross) erwarte(datei + ': sections by code', await seite.locator('#liste > section').count(), codes);
    if (!gross) erwarte(datei + ': findings by code', await zeilen(seite), n);
    if (!gross) erwarte(datei + ': a code unfolds once', await seite.locator('#liste details.w').count(), codes);
    await barrieren(seite, datei + ' by code');
    await seite.click('#ordnung button[value=p]');
  }
  for (const [i, sprache, wort] of [[1, 'fr', 'erreur'], [2, 'it', 'error'], [0, 'de', 'Fehler']]) {
    await seite.click(`#sprachen button[value="${i}"]`);
    erwarte(datei + ': language', await seite.evaluate(() => document.documentElement.lang), sprache);
    erwarte(datei + ': verdict in ' + sprache, (await seite.textContent('.urteil')).includes(wort), true);
    await barrieren(seite, datei + ' ' + sprache);
    await form(seite, `${datei} ${sprache}`);
  }
  if (n > 0 && !gross) erwarte(datei + ': German again', await bild(seite), vorher);
  if (n > 0) {
    for (const summary of (await seite.locator('summary:visible').all()).slice(0, 12)) await summary.click();
    await barrieren(seite, datei + ' unfolded');
    await form(seite, datei + ' unfolded');
  }
  const pdf = await seite.pdf({ tagged: true });
  erwarte(datei + ': print', pdf.length > 10000, true);
  await zu(datei);

  for (const breite of [320, 390, 768, 1280]) {
    for (const schema of ['light', 'dark']) {
      const { seite, zu } = await oeffnen(datei, breite, schema);
      await seite.setViewportSize({ width: breite, height: gross ? 2000 : 9000 });
      await seite.waitForTimeout(200);
      await form(seite, `${datei} ${breite} ${schema}`);
      if (breite === 390 || schema === 'dark') await barrieren(seite, `${datei} ${breite} ${schema}`);
      await zu(`${datei} ${breite} ${schema}`);
    }
  }
}

// The page over several files.
for (const [breite, schema] of [[320, 'dark'], [1280, 'light']]) {
  const { seite, zu } = await oeffnen('uebersicht', breite, schema);
  erwarte('overview: files', await seite.locator('.dateien li').count(), 5);
  await barrieren(seite, 'overview');
  await form(seite, 'overview');
  await zu('overview');
}

// What a code means, in each language, the same in both orders, at any finding.
{
  const { seite, zu } = await oeffnen('feindlich.E1S');
  const codes = new Set(await seite.locator('.codes a > .code').allTextContents()).size;
  erwarte('meaning: carried for the codes of the page only', await seite.locator('template').count(), 2 * codes);
  const titel = { de: ['Was heisst ', 'Was geprüft wird', 'So beheben Sie es'], fr: ['Que veut dire ', 'Ce qui est contrôlé', 'Comment corriger'], it: ['Che cosa significa ', 'Che cosa si controlla', 'Come correggere'] };
  const texte = new Set();
  for (const [i, sprache] of [[1, 'fr'], [2, 'it'], [0, 'de']]) {
    await seite.click(`#sprachen button[value="${i}"]`);
    const [frage, ...abschnitte] = titel[sprache];
    for (const ordnung of ['c', 'p']) {
      await seite.click(`#ordnung button[value=${ordnung}]`);
      const falte = seite.locator('#liste details.w').last();
      erwarte('meaning: asked in ' + sprache, (await falte.locator('summary').textContent()).startsWith(frage), true);
      await falte.locator('summary').click();
      await falte.locator('h4').first().waitFor(); // it is filled once it has opened
      erwarte('meaning: sections in ' + sprache, await falte.locator('h4').allTextContents(), abschnitte);
      erwarte('meaning: steps in ' + sprache, await falte.locator('ol > li').first().isVisible(), true);
      await falte.locator('summary').click();
      await falte.locator('summary').click();
      erwarte('meaning: once in ' + sprache, await falte.locator('h4').count(), 2);
      texte.add(await falte.locator('h4, p, li').first().textContent());
    }
  }
  erwarte('meaning: three languages', texte.size, 3);
  erwarte('meaning: no text of the file in it', await seite.evaluate(() => [...document.querySelectorAll('template')].filter((k) => k.content.querySelector('script, img, a, b, [class], [id]')).length), 0);
  await zu('meaning');
}

// By position and by text; by keyboard alone.
{
  const { seite, zu } = await oeffnen('fehlerhaft.01S');
  await seite.fill('#position', '241.211.001');
  await seite.waitForFunction(() => document.querySelector('#stand p').textContent.startsWith('13 '));
  erwarte('position: sections', await seite.locator('#liste h3').allTextContents(), ['Position 241.211.001']);
  await seite.fill('#position', '');
  await seite.fill('#text', 'Vorzeichen');
  await seite.waitForFunction(() => !document.querySelector('#stand p').textContent.startsWith('13 '));
  const treffer = await seite.locator('#liste .m > li').allTextContents();
  const zeilenMitText = await seite.locator('#liste .e').evaluateAll((k) => k.filter((e) => e.textContent.includes('Vorzeichen')).length);
  erwarte('text: every record hit has the word', zeilenMitText, await seite.locator('#liste .e').count());
  erwarte('text: hits', treffer.length > 3, true);
  await zu('position and text');
}
{
  const { seite, zu } = await oeffnen('fehlerhaft.E1S');
  const tab = async (bis, hoechstens = 80) => {
    for (let i = 0; i < hoechstens; ++i) {
      await seite.keyboard.press('Tab');
      if (await seite.evaluate((wahl) => document.activeElement.matches(wahl), bis)) return true;
    }
    return false;
  };
  erwarte('keyboard: language', await tab('#sprachen button[value="1"]'), true);
  await seite.keyboard.press('Enter');
  erwarte('keyboard: French', await seite.evaluate(() => document.documentElement.lang), 'fr');
  erwarte('keyboard: a code', await tab('.codes a[href="#c3208"]'), true);
  await seite.keyboard.press('Enter');
  erwarte('keyboard: two findings', await stand(seite), '2 constatations sur 44');
  erwarte('keyboard: everything again', await tab('#stand button'), true);
  await seite.keyboard.press('Space');
  erwarte('keyboard: all findings', await stand(seite), '44 constatations sur 44');
  await seite.keyboard.type('N-WOHNEN');
  await seite.waitForFunction(() => document.querySelector('#stand p').textContent.startsWith('6 ')); // 1, 2 and 3 on the lines that hold it
  erwarte('keyboard: unfold', await tab('summary'), true);
  await seite.keyboard.press('Enter');
  erwarte('keyboard: unfolded', await seite.locator('details[open]').count(), 1);
  await zu('keyboard');
}
// No cap hides: what the plain part holds back comes on demand, in steps or altogether.
{
  const { seite, zu } = await oeffnen('gross.01S');
  const alle = +seiten.find(([datei]) => datei === 'gross.01S')[1];
  erwarte('large: the note', (await seite.textContent('#auszug p')).startsWith(`Hier stehen ${await gezeigt(seite)} von ${zahl(alle)}`), true);
  await seite.click('#schwere button[value=A]');
  erwarte('large: first step', await seite.locator('#liste .s > .e').count(), 200);
  await seite.click('#weiter button >> nth=0');
  erwarte('large: second step', await seite.locator('#liste .s > .e').count(), 400);
  await seite.fill('#position', '241.111.11');
  await seite.waitForFunction(() => document.querySelector('#stand p').textContent.startsWith('1’'));
  await seite.click('#weiter button >> nth=1');
  await seite.waitForFunction(() => !document.querySelector('#weiter button'));
  erwarte('large: all of a choice', zahl(await zeilen(seite)), (await stand(seite)).split(' ')[0]);
  await zu('large');
}
await browser.close();
console.log(`${geprueft} checks, ${falsch} false`);
process.exit(falsch ? 1 : 0);
