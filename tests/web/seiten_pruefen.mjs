// The page in Chromium: dropping and choosing files, the catalogue, cancelling, large and hostile files, no network, barriers;
// and that nothing leaves. Runs in a folder with playwright-core, axe-core, the samples and the native program's protocols.
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import { chromium } from 'playwright-core';
import { dienen, mitschreiben } from './diener.mjs';

const [seitenordner, proben, lang] = process.argv.slice(2);
const axe = fs.readFileSync('node_modules/axe-core/axe.min.js', 'utf8');
const leitung = await mitschreiben();
const browser = await chromium.launch({
  executablePath: process.env.CHROMIUM ?? '/usr/bin/chromium', args: ['--no-sandbox', '--enable-precise-memory-info'], proxy: { server: leitung.adresse, bypass: '<-loopback>' },
});
const diener = await dienen(seitenordner);
let geprueft = 0;
let falsch = 0;
const erwarte = (name, ist, soll) => {
  ++geprueft;
  if (JSON.stringify(ist) === JSON.stringify(soll)) return;
  ++falsch;
  console.log(`FALSE ${name}: ${JSON.stringify(ist)?.slice(0, 600)} instead of ${JSON.stringify(soll)?.slice(0, 600)}`);
};
const hoechstens = (name, ist, grenze, einheit) => {
  console.log(`   ${name}: ${Math.round(ist * 100) / 100} ${einheit} (at most ${grenze})`);
  erwarte(name, ist <= grenze, true);
};
// A limit of time holds for a machine that does nothing else; on a busy one what goes beyond it is told and not judged.
const hoechstensZeit = (name, ist, grenze, einheit) => {
  const last = os.loadavg()[0] / os.cpus().length;
  if (ist <= grenze || last < 1.5) hoechstens(name, ist, grenze, einheit);
  else console.log(`   ${name}: ${Math.round(ist * 100) / 100} ${einheit} (at most ${grenze}; not judged, the machine is busy: load ${last.toFixed(1)})`);
};
const probe = (name) => path.join(proben, name);
const sauber = (bytes) => bytes.toString('latin1').replace(/<(Date|Time)>[^<]*/g, '<$1>');

// A page whose every request and complaint is noted: nothing but its own files and what it made itself may be asked for.
const oeffnen = async (mehr = {}, adresse = diener.adresse) => {
  const kontext = await browser.newContext({ viewport: { width: 1280, height: 900 }, locale: 'de-CH', acceptDownloads: true, ...mehr });
  const klagen = [];
  const beobachten = (seite) => {
    seite.on('console', (m) => klagen.push(m.text()));
    seite.on('pageerror', (e) => klagen.push(e.message));
    seite.on('filechooser', () => {}); // noticed from the start, not only when one is waited for
    seite.on('dialog', (d) => { klagen.push('dialog ' + d.message()); d.dismiss(); });
  };
  kontext.on('page', beobachten);
  kontext.on('request', (r) => {
    const eigen = r.url().startsWith(adresse.replace(/index\.html$/, '')) || r.url().startsWith('blob:');
    if (!eigen || r.method() !== 'GET' || r.postData()) klagen.push(`${r.method()} ${r.url()}`);
  });
  kontext.setDefaultTimeout(120000);
  const seite = await kontext.newPage();
  const bereit = async () => {
    await seite.goto(adresse);
    await seite.waitForSelector('html[data-bereit]');
  };
  await bereit();
  return { kontext, seite, klagen, bereit, zu: async (name) => { erwarte(name + ': complaints, foreign requests, dialogs', klagen, []); await kontext.close(); } };
};
const barrieren = async (ort, name) => {
  await ort.evaluate(axe);
  const ergebnis = await ort.evaluate(() => window.axe.run(document, { resultTypes: ['violations'], iframes: false }));
  erwarte(name + ': axe', ergebnis.violations.map((v) => v.id + ' ' + v.nodes[0].html.slice(0, 160)), []);
};
const form = async (seite, name) => {
  erwarte(name + ': form', await seite.evaluate(() => {
    const klagen = [];
    if (document.documentElement.scrollWidth > innerWidth) klagen.push('wider than the window: ' + document.documentElement.scrollWidth);
    for (const k of document.querySelectorAll('h1:not(.name),h2,p:not(.v),button,a.knopf')) {
      if (k.checkVisibility() && k.scrollWidth > k.clientWidth + 1 && getComputedStyle(k).display !== 'inline') klagen.push('cut: ' + k.outerHTML.slice(0, 90));
    }
    return klagen.slice(0, 5);
  }), []);
};

// A drop as the system makes it: the files lie in the page's own memory, and a folder is one in the file system of the drop.
const fallenlassen = (seite, dateien, wahl = '#ablage') => seite.evaluate(async ([dateien, wahl]) => {
  const uebergabe = new DataTransfer();
  for (const [name, text] of dateien) uebergabe.items.add(new File([Uint8Array.from(atob(text), (z) => z.charCodeAt(0))], name));
  for (const art of ['dragenter', 'dragover', 'drop']) {
    document.querySelector(wahl).dispatchEvent(new DragEvent(art, { bubbles: true, cancelable: true, dataTransfer: uebergabe }));
  }
}, [dateien.map((d) => [path.basename(d), fs.readFileSync(d).toString('base64')]), wahl]);
const ordnerFallenlassen = async (seite, ordner, wahl) => {
  const { x, y, width, height } = await seite.locator(wahl).boundingBox();
  const cdp = await seite.context().newCDPSession(seite);
  const data = { items: [], files: [path.resolve(ordner)], dragOperationsMask: 1 };
  for (const type of ['dragEnter', 'dragOver', 'drop']) await cdp.send('Input.dispatchDragEvent', { type, x: x + width / 2, y: y + Math.min(height / 2, 20), data });
};
const rahmen = async (seite) => {
  const griff = await seite.waitForSelector('#rahmen iframe, #meldung:not([hidden])', { timeout: 120000 });
  if (await griff.evaluate((k) => k.id === 'meldung')) throw new Error('no report: ' + await griff.textContent());
  const f = await griff.contentFrame();
  await f.waitForSelector('.urteil', { timeout: 60000 });
  return f;
};
const urteilIm = async (f) => (await f.textContent('.urteil h1')).trim();
const gesichert = async (seite, knopf) => {
  const [herunter] = await Promise.all([seite.waitForEvent('download'), seite.click(knopf)]);
  return { name: herunter.suggestedFilename(), bytes: fs.readFileSync(await herunter.path()) };
};
const katalogWaehlen = async (seite, was) => {
  await seite.setInputFiles(fs.statSync(was).isDirectory() ? '#eingabe-katalogordner' : '#eingabe-katalogdatei', was);
  await seite.waitForFunction((name) => document.querySelector('#katalog-stand').textContent.startsWith(name), path.basename(was));
};
// Nothing can be kept or removed by the page until `ablageFrei` is set in it.
const ablageBelegen = (seite) => seite.evaluate(() => new Promise((gut) => {
  const frage = indexedDB.open('zepholt', 1);
  frage.onsuccess = () => {
    const ort = frage.result.transaction('ablage', 'readwrite').objectStore('ablage');
    const weiter = () => (self.ablageFrei ? frage.result.close() : void (ort.get('katalog').onsuccess = weiter));
    weiter();
    gut();
  };
}));
// One that throws is false, and the next ones run. ZEPHOLT_STUFEN names some of them by a regular expression.
const stufe = async (text, pruefe) => {
  if (!new RegExp(process.env.ZEPHOLT_STUFEN ?? '').test(text)) return;
  console.log('-- ' + text);
  await pruefe().catch((fehler) => erwarte(text, fehler.message, 'no exception'));
};

await stufe('First visit', async () => {
  {
    const { seite, kontext, zu } = await oeffnen();
    await seite.waitForFunction(() => /auch ohne Netz/.test(document.querySelector('#netz-stand').textContent));
    const kb = diener.stand.gesendet / 1000; // the page itself and, once more, what the service worker keeps
    hoechstens('first visit over the wire, with the copy that works offline', kb, 600, 'kB');
    await barrieren(seite, 'start');
    await form(seite, 'start');
    erwarte('without a catalogue the page says what is not tested', (await seite.textContent('#katalog-dazu')).startsWith('Ohne Katalog wird nicht geprüft'), true);
    await zu('first visit');
    await kontext.close();
  }
  {
    const zeiten = [];
    for (let i = 0; i < 3; ++i) {
      const { seite, zu } = await oeffnen();
      zeiten.push(await seite.evaluate(() => performance.now()));
      await zu('ready');
    }
    hoechstensZeit('ready behind a cold start', Math.min(...zeiten) / 1000, 1, 's');
  }
});

await stufe('The main road: drop, read, save; the protocol is the native program’s', async () => {
  const { seite, zu } = await oeffnen();
  await katalogWaehlen(seite, probe('katalog'));
  for (const [name, art] of [['fehlerhaft.01S', 'fehlerhaft'], ['fehlerhaft.E1S', 'fehlerhaft'], ['sauber.01S', 'ordnung'], ['sauber.E1S', 'ordnung']]) {
    await fallenlassen(seite, [probe(name)]);
    const f = await rahmen(seite);
    erwarte(name + ': verdict', await f.evaluate(() => document.querySelector('.urteil').className), `urteil ${art}`);
    const protokoll = await gesichert(seite, '#sichern-protokoll');
    erwarte(name + ': name of the protocol', protokoll.name, name + '.protokoll.xml');
    erwarte(name + ': protocol', sauber(protokoll.bytes) === sauber(fs.readFileSync(name + '.xml')), true);
    const bericht = await gesichert(seite, '#sichern-seite');
    erwarte(name + ': name of the report', bericht.name, name + '.bericht.html');
    const tabelle = await gesichert(seite, '#sichern-tabelle');
    erwarte(name + ': table', tabelle.bytes.equals(fs.readFileSync(name + '.csv')), true);
    await barrieren(seite, name + ' shown');
    await form(seite, name + ' shown');
    await seite.click('#zurueck');
  }
  await seite.click('#sprachen button[value=fr]');
  await barrieren(seite, 'start in French');
  await form(seite, 'start in French');
  await seite.setInputFiles('#eingabe-dateien', probe('fehlerhaft.01S'));
  const f = await rahmen(seite);
  erwarte('French report', await f.evaluate(() => document.documentElement.lang), 'fr');
  erwarte('French protocol', (await gesichert(seite, '#sichern-protokoll')).name, 'fehlerhaft.01S.journal.xml');
  await f.click('#sprachen button[value="2"]');
  erwarte('the report in its frame changes its language', await f.evaluate(() => document.documentElement.lang), 'it');
  await f.click('.codes a >> nth=0');
  erwarte('the report in its frame filters', await f.evaluate(() => document.activeElement.id), 'befunde');
  await zu('main road');
});

await stufe('Several files, a folder, the catalogue over a reload and in each form', async () => {
  const { seite, zu, bereit } = await oeffnen();
  await fallenlassen(seite, [probe('sauber.01S')]);
  let f = await rahmen(seite);
  erwarte('without a catalogue: an honest verdict', (await f.textContent('.urteil .dazu b')).trim(), 'Soweit geprüft in Ordnung');
  erwarte('without a catalogue: the note', (await f.textContent('.hinweis.ohne')).includes('nicht geprüft'), true);
  await seite.click('#zurueck');

  await ordnerFallenlassen(seite, probe('katalog'), '#katalog');
  await seite.waitForFunction(() => document.querySelector('#katalog-stand').textContent.startsWith('katalog: 9 Kapiteldateien'));
  await bereit();
  erwarte('the catalogue is kept over a reload', (await seite.textContent('#katalog-stand')).startsWith('katalog: 9 Kapiteldateien'), true);
  await ordnerFallenlassen(seite, 'los', '#ablage');
  await seite.waitForSelector('#dateiliste li');
  erwarte('folder: files below it too, others not', await seite.locator('#dateiliste li span:nth-child(2)').evaluateAll((k) => k.map((e) => e.firstChild.textContent)),
    ['los/a/fehlerhaft.E1S', 'los/fehlerhaft.01S', 'los/sauber.01S']);
  erwarte('folder: verdicts', await seite.locator('#dateiliste b').allTextContents(), ['Fehlerhaft', 'Fehlerhaft', 'In Ordnung']);
  await barrieren(seite, 'list');
  await form(seite, 'list');
  await seite.click('#dateiliste button >> nth=1');
  f = await rahmen(seite);
  erwarte('a file of the list', (await urteilIm(f)).startsWith('35 Fehler'), true);
  erwarte('protocol of a file of the list', sauber((await gesichert(seite, '#sichern-protokoll')).bytes) === sauber(fs.readFileSync('fehlerhaft.01S.xml')), true);
  await seite.click('#zurueck');
  await seite.click('[data-neu]');

  await katalogWaehlen(seite, probe('katalog.vlt'));
  await bereit();
  erwarte('the collected file is kept over a reload', (await seite.textContent('#katalog-stand')).startsWith('katalog.vlt: Sammeldatei'), true);
  await seite.setInputFiles('#eingabe-dateien', probe('fehlerhaft.01S'));
  f = await rahmen(seite);
  erwarte('collected file: protocol', sauber((await gesichert(seite, '#sichern-protokoll')).bytes) === sauber(fs.readFileSync('fehlerhaft.01S.vlt.xml')), true);
  await seite.click('#zurueck');
  await ablageBelegen(seite);
  await seite.click('#katalog-weg');
  erwarte('a catalogue that is still kept is not said to be gone', (await seite.textContent('#katalog-stand')).startsWith('katalog.vlt'), true);
  await seite.evaluate(() => { self.ablageFrei = true; });
  await seite.waitForFunction(() => document.querySelector('#katalog-stand').textContent === 'Noch keiner.');
  await bereit();
  erwarte('a removed catalogue is gone', await seite.textContent('#katalog-stand'), 'Noch keiner.');
  await seite.setInputFiles('#eingabe-katalogordner', 'los');
  await seite.waitForSelector('#meldung:not([hidden])');
  erwarte('a folder without chapters is none', await seite.textContent('#meldung'), 'In diesem Ordner liegen keine Kapiteldateien (.qvm).');
  await fallenlassen(seite, [probe('sauber.01S'), probe('fehlerhaft.E1S')]);
  await seite.waitForSelector('#dateiliste li');
  erwarte('several without a catalogue', await seite.locator('#dateiliste b').allTextContents(), ['Fehlerhaft', 'Soweit geprüft in Ordnung']);
  erwarte('the list says what is not tested', (await seite.textContent('#liste-dazu')).startsWith('Ohne Katalog'), true);
  await zu('several');
});

await stufe('Hostile files', async () => {
  const { seite, zu } = await oeffnen();
  await katalogWaehlen(seite, probe('katalog'));
  for (const name of fs.readdirSync('feindlich').sort()) {
    await seite.setInputFiles('#eingabe-dateien', path.join('feindlich', name));
    const f = await rahmen(seite).catch((fehler) => erwarte(name, fehler.message, 'a report'));
    if (!f) continue;
    erwarte(name + ': protocol', sauber((await gesichert(seite, '#sichern-protokoll')).bytes) === sauber(fs.readFileSync(path.join('feindlich.soll', name + '.xml'))), true);
    erwarte(name + ': no element of the file’s own', await f.evaluate(() => document.querySelectorAll('img, iframe, object, embed, link').length), 0);
    erwarte(name + ': the page’s script and data and no other', await f.evaluate(() => document.scripts.length), 2);
    await seite.click('#zurueck');
  }
  await seite.setInputFiles('#eingabe-katalogdatei', 'schaden.vlt');
  await seite.waitForFunction(() => document.querySelector('#katalog-stand').textContent.startsWith('schaden'));
  await seite.setInputFiles('#eingabe-dateien', probe('sauber.01S'));
  await seite.waitForSelector('#meldung:not([hidden])');
  erwarte('a damaged catalogue is told', (await seite.textContent('#meldung')).startsWith('sauber.01S: Die Prüfung ist ohne Ergebnis'), true);
  erwarte('by its own name', (await seite.textContent('#meldung')).includes(': schaden.vlt, '), true);
  await barrieren(seite, 'message');
  await zu('hostile files');
});

await stufe('No network: the server is gone for good', async () => {
  const eigener = await dienen(seitenordner);
  const { seite, kontext, klagen } = await oeffnen({}, eigener.adresse);
  await katalogWaehlen(seite, probe('katalog'));
  await seite.waitForFunction(() => /auch ohne Netz/.test(document.querySelector('#netz-stand').textContent));
  await seite.waitForFunction(() => navigator.serviceWorker.controller !== null);
  await eigener.schliessen();
  await kontext.setOffline(true);
  await seite.reload();
  await seite.waitForSelector('html[data-bereit]');
  await fallenlassen(seite, [probe('fehlerhaft.01S')]);
  erwarte('no network: verdict', (await urteilIm(await rahmen(seite))).startsWith('35 Fehler'), true);
  await gesichert(seite, '#sichern-protokoll');
  erwarte('no network: complaints', klagen, []);
  await kontext.close();
});

await stufe('A folder on a stick (file://)', async () => {
  const adresse = pathToFileURL(path.join(seitenordner, 'index.html')).href;
  const { seite, zu, bereit } = await oeffnen({}, adresse);
  await katalogWaehlen(seite, probe('katalog'));
  await fallenlassen(seite, [probe('fehlerhaft.01S')]);
  erwarte('file://: verdict', (await urteilIm(await rahmen(seite))).startsWith('35 Fehler'), true);
  erwarte('file://: protocol', sauber((await gesichert(seite, '#sichern-protokoll')).bytes) === sauber(fs.readFileSync('fehlerhaft.01S.xml')), true);
  await bereit();
  erwarte('file://: the catalogue is kept', (await seite.textContent('#katalog-stand')).startsWith('katalog: 9'), true);
  await seite.setInputFiles('#eingabe-dateien', 'falsch20.01S');
  await seite.waitForFunction(() => document.querySelector('#schritt').textContent !== '');
  await seite.click('#abbrechen');
  await seite.waitForSelector('#meldung:not([hidden])');
  erwarte('file://: cancelled', await seite.textContent('#meldung'), 'Die Prüfung ist abgebrochen; es gibt keinen Bericht.');
  await zu('file://');
});

await stufe('A file of 1 MB', async () => {
  const { seite, zu } = await oeffnen();
  await katalogWaehlen(seite, probe('katalog'));
  const zeiten = [];
  for (let i = 0; i < 3; ++i) {
    await seite.evaluate(() => {
      window.dauer = null;
      const von = performance.now();
      document.querySelector('#eingabe-dateien').addEventListener('change', () => { window.von = performance.now(); }, { once: true, capture: true });
      addEventListener('message', () => {}, { once: true });
      window.beobachter = new MutationObserver(() => {
        const k = document.querySelector('#rahmen iframe');
        if (k) { k.addEventListener('load', () => { window.dauer = performance.now() - (window.von ?? von); }); window.beobachter.disconnect(); }
      });
      window.beobachter.observe(document.querySelector('#rahmen'), { childList: true });
    });
    await seite.setInputFiles('#eingabe-dateien', 'gross1.01S');
    await seite.waitForFunction(() => window.dauer !== null);
    zeiten.push(await seite.evaluate(() => window.dauer));
    await seite.click('#zurueck');
    await seite.waitForTimeout(300);
  }
  hoechstensZeit('1 MB tested and shown', Math.min(...zeiten) / 1000, 0.5, 's');
  await zu('1 MB');
});

await stufe('A large file: the page answers, memory, cancelling in each phase', async () => {
  const datei = lang ? 'gross100.01S' : 'gross20.01S';
  const mb = fs.statSync(datei).size / 1e6;
  const { seite, zu } = await oeffnen();
  await katalogWaehlen(seite, probe('katalog'));
  const wachen = () => seite.evaluate(() => {
    window.laengste = 0;
    window.wache = true;
    let zuletzt = performance.now();
    const tick = () => {
      const jetzt = performance.now();
      window.laengste = Math.max(window.laengste, jetzt - zuletzt);
      zuletzt = jetzt;
      if (window.wache) setTimeout(tick, 4);
    };
    tick();
  });
  // What the renderer's processes hold besides what they held before: all of the browser's, as the system counts it.
  const gehalten = () => {
    let kb = 0;
    for (const p of fs.readdirSync('/proc').filter((n) => /^\d+$/.test(n))) {
      try {
        if (!fs.readFileSync(`/proc/${p}/cmdline`, 'utf8').includes('--type=renderer') || !stammtVonHier(+p)) continue;
        kb += +/Pss:\s+(\d+)/.exec(fs.readFileSync(`/proc/${p}/smaps_rollup`, 'utf8'))[1];
      } catch { /* gone meanwhile */ }
    }
    return kb / 1000;
  };
  const stammtVonHier = (p) => {
    while (p > 1) {
      if (p === process.pid) return true;
      p = +/^\d+ \(.*\) \S (\d+)/s.exec(fs.readFileSync(`/proc/${p}/stat`, 'utf8'))[1];
    }
    return false;
  };
  const vorher = gehalten();
  let spitze = 0;
  const messen = setInterval(() => { spitze = Math.max(spitze, gehalten() - vorher); }, 150);
  await wachen();
  const von = Date.now();
  await seite.setInputFiles('#eingabe-dateien', datei);
  await rahmen(seite);
  const dauer = (Date.now() - von) / 1000;
  clearInterval(messen);
  console.log(`   ${mb.toFixed(0)} MB: ${dauer.toFixed(1)} s from the choice to the report`);
  hoechstensZeit('the page’s longest pause', await seite.evaluate(() => { window.wache = false; return window.laengste; }), 100, 'ms');
  if (lang) hoechstens('memory for each byte of the file', spitze / mb, 4, 'times');
  else console.log(`   memory: ${spitze.toFixed(0)} MB`);
  await seite.click('#zurueck');

  // Each phase that the run shows is cancelled once, as soon as it is seen; a file full of findings has long last ones.
  const phasen = new Set();
  const dateien = [datei, 'falsch20.01S'];
  while (dateien.length) {
    await seite.evaluate((bekannte) => {
      window.abgebrochenIn = '';
      const schritt = document.querySelector('#schritt');
      const blick = new MutationObserver(() => {
        const phase = schritt.textContent.split(':')[0];
        if (phase && !bekannte.includes(phase) && !window.abgebrochenIn) {
          window.abgebrochenIn = phase;
          window.abgebrochenUm = performance.now();
          document.querySelector('#abbrechen').click();
        }
      });
      blick.observe(schritt, { childList: true, characterData: true, subtree: true });
      window.blick = blick;
    }, [...phasen]);
    await seite.setInputFiles('#eingabe-dateien', dateien[0]);
    const ende = await seite.waitForSelector('#meldung:not([hidden]), #rahmen iframe', { timeout: 120000 })
      .then((k) => k.evaluate((e) => (e.id === 'meldung' ? 'cancelled' : 'report')));
    const phase = await seite.evaluate(() => { window.blick.disconnect(); return window.abgebrochenIn; });
    if (ende === 'report') {
      await seite.click('#zurueck');
      if (phase) erwarte(`cancelled in ${phase}`, ende, 'cancelled');
      dateien.shift();
      continue;
    }
    phasen.add(phase);
    erwarte(`cancelled in ${phase}: the message`, await seite.textContent('#meldung'), 'Die Prüfung ist abgebrochen; es gibt keinen Bericht.');
  }
  erwarte('phases that were cancelled', [...phasen].sort(),
    ['Liest Austauschdatei ein', 'Schreibt Fehlerprotokoll', 'Schreibt den Bericht', 'Testet Dokument', 'Testet VLT-Kapitel']);
  await seite.setInputFiles('#eingabe-dateien', probe('fehlerhaft.01S'));
  erwarte('behind a cancel the next test runs', (await urteilIm(await rahmen(seite))).startsWith('35 Fehler'), true);
  await zu('large file');
});

await stufe('Widths, light and dark, languages', async () => {
  for (const breite of [320, 390, 768, 1280]) {
    for (const schema of ['light', 'dark']) {
      const { seite, zu } = await oeffnen({ viewport: { width: breite, height: 844 }, colorScheme: schema });
      for (const sprache of ['fr', 'it', 'de']) {
        await seite.click(`#sprachen button[value=${sprache}]`);
        await form(seite, `start ${breite} ${schema} ${sprache}`);
      }
      await barrieren(seite, `start ${breite} ${schema}`);
      await fallenlassen(seite, [probe('fehlerhaft.01S')]);
      await rahmen(seite);
      await form(seite, `report ${breite} ${schema}`);
      await barrieren(seite, `report ${breite} ${schema}`);
      await zu(`${breite} ${schema}`);
    }
  }
});

await stufe('Keyboard', async () => {
  const { seite, zu } = await oeffnen();
  const tab = async (bis) => {
    for (let i = 0; i < 40; ++i) {
      await seite.keyboard.press('Tab');
      if (await seite.evaluate((wahl) => document.activeElement.matches(wahl), bis)) return true;
    }
    return false;
  };
  erwarte('keyboard: language', await tab('#sprachen button[value=it]'), true);
  await seite.keyboard.press('Enter');
  erwarte('keyboard: Italian', await seite.textContent('#anfang h1'), 'Testare un file di scambio');
  erwarte('keyboard: files', await tab('#dateien'), true);
  const [wahl] = await Promise.all([seite.waitForEvent('filechooser'), seite.keyboard.press('Enter')]);
  await wahl.setFiles(probe('fehlerhaft.01S'));
  await rahmen(seite);
  erwarte('keyboard: focus at the report', await seite.evaluate(() => document.activeElement.id), 'schau-name');
  const ohneKatalog = [...fs.readFileSync('fehlerhaft.01S.xml', 'latin1').matchAll(/ N="([0-57-9]\d{3})" E="(.)"/g)].map((b) => b[2]);
  const [fehler, warnungen] = ['A', 'B'].map((schwere) => ohneKatalog.filter((s) => s === schwere).length);
  erwarte('the verdict is told', await seite.textContent('#ansage'), `fehlerhaft.01S: Con errori, ${fehler} errori, ${warnungen} avvisi`);
  await zu('keyboard');
});

await browser.close();
await diener.schliessen();
leitung.schliessen();
// The browser itself calls its maker when it starts; of the pages that would have been told above.
const eigene = new Set(['', ...fs.readdirSync(seitenordner)]);
const vomBrowser = ({ art, adresse }) => /(^|\.)(google|googleapis)\.com$/.test(art === 'CONNECT' ? adresse.split(':')[0] : new URL(adresse).hostname);
const vonDerSeite = leitung.anfragen.filter((a) => !vomBrowser(a));
const fremde = vonDerSeite.filter(({ art, adresse, bytes }) => art !== 'GET' || bytes || !/^http:\/\/127\.0\.0\.1:\d+\/[^/?]*$/.test(adresse) || !eigene.has(adresse.split('/').pop()));
console.log(`   ${vonDerSeite.length} requests went over the wire`);
erwarte('what went over the wire besides the page’s own files', fremde, []);
console.log(`${geprueft} checks, ${falsch} false`);
process.exit(falsch ? 1 : 0);
