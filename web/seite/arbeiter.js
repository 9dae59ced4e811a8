'use strict';
// One test, away from the page: it makes the module, runs it on one exchange file, and hands back protocol and report. A
// worker serves one run, as a process does; it is ready before it is needed.
//
// To cancel, the page takes back an address that it gave along: each look of the run asks whether it still stands. Shared
// memory would need headers of a server; nothing else reaches a worker that is busy. Where even a standing address can't
// be asked for (a page from a folder, in some browsers) the page ends the worker.
const FRAGEN = 200; // milliseconds between two such questions: each takes a few
let modul;
let meldungen = [];
let bild = null; // the progress that the page has not been told yet

const stehtNoch = (adresse) => {
  try {
    const frage = new XMLHttpRequest();
    frage.open('GET', adresse, false);
    frage.send();
    return true;
  } catch {
    return false;
  }
};
const uhr = () => {
  const jetzt = new Date();
  return [jetzt.getFullYear(), jetzt.getMonth() + 1, jetzt.getDate(), jetzt.getHours(), jetzt.getMinutes()];
};
const rufe = (name, ...felder) => {
  const text = felder.join('\0');
  const zeiger = modul._malloc(text.length * 2) >>> 0;
  for (let i = 0; i < text.length; ++i) modul.HEAPU16[(zeiger >>> 1) + i] = text.charCodeAt(i);
  return modul['_' + name](zeiger, text.length);
};

// A file's name keeps its end, which says of which kind it is; its folder here is the same for all.
const ORDNER = '/datei/';
const KATALOG = '/katalog';
const pfadVon = (name) => ORDNER + name.replaceAll('/', '_').replaceAll('\0', '');

// That there is no report: with what the program said, files called as the person knows them.
const ohneBericht = (platte, katalog) => ({
  art: 'nichts', grund: platte.grund, meldung: meldungen.join('\n').replaceAll(ORDNER, '').replaceAll(KATALOG, () => katalog?.name ?? ''),
});

const pruefen = (auftrag) => {
  const { datei, name, sprache, modus, katalog, halt } = auftrag;
  const pfad = pfadVon(name);
  const dateien = { [pfad]: datei };
  if (katalog?.art === 'datei') dateien[KATALOG] = katalog.dateien[0].blob;
  if (katalog?.art === 'ordner') for (const kapitel of katalog.dateien) dateien[`${KATALOG}/${kapitel.name}`] = kapitel.blob;
  const leser = new FileReaderSync();
  const platte = new Platte(dateien, (blob) => new Uint8Array(leser.readAsArrayBuffer(blob)));
  let urteil = null;
  let abgebrochen = false;
  let erreichbar; // the address, when it was asked for first
  let naechsteFrage = performance.now() + FRAGEN;
  bild = {};
  const blick = () => {
    postMessage({ art: 'gang', ...bild });
    bild = {};
    if (performance.now() > naechsteFrage && erreichbar !== false) {
      const steht = stehtNoch(halt);
      erreichbar ??= steht;
      abgebrochen ||= erreichbar && !steht;
      naechsteFrage = performance.now() + FRAGEN;
    }
    return abgebrochen;
  };
  const mehr = {
    uhr,
    meldung: (bytes) => meldungen.push(new TextDecoder().decode(bytes)),
    beschriften: (was, text) => { bild[['name', 'projekt', 'dokument', 'schritt'][was]] = text; },
    balken: (anteil) => { bild.anteil = anteil; },
    abgebrochen: blick,
    urteil: (art, fehler, warnungen) => { urteil = { art: ['ordnung', 'fehlerhaft', 'abgewiesen'][art], fehler, warnungen }; },
  };
  for (const [wort, tun] of Object.entries(mehr)) platte[wort] = tun;
  modul.umgebung = platte;
  const nummer = String(sprache + 1);
  const status = rufe('zepholt_pruefen', pfad, '/protokoll.xml', nummer, modus, katalog ? KATALOG : '', { ordner: '1', datei: '2' }[katalog?.art] ?? '0');
  const protokoll = platte.fertig.get('/protokoll.xml');
  if (abgebrochen) return { art: 'abgebrochen' };
  if (status !== 0 || !protokoll) return ohneBericht(platte, katalog);
  postMessage({ art: 'gang', schreibt: true, anteil: 1 });
  if (rufe('zepholt_berichten', 'html', '/protokoll.xml', pfad, '/bericht.html', nummer, katalog?.name ?? '') !== 0) {
    return ohneBericht(platte, katalog);
  }
  return { art: 'fertig', protokoll, seite: platte.fertig.get('/bericht.html'), urteil, speicher: modul.HEAPU8.length };
};

// The table of a test that is done, from its protocol.
const tabelle = ({ datei, name, sprache, protokoll }) => {
  const pfad = pfadVon(name);
  const leser = new FileReaderSync();
  const platte = new Platte({ [pfad]: datei, '/protokoll.xml': protokoll }, (blob) => new Uint8Array(leser.readAsArrayBuffer(blob)));
  Object.assign(platte, { uhr, meldung: (bytes) => meldungen.push(new TextDecoder().decode(bytes)), urteil: () => {} });
  modul.umgebung = platte;
  const status = rufe('zepholt_berichten', 'csv', '/protokoll.xml', pfad, '/tabelle.csv', String(sprache + 1), '');
  return status === 0 ? { art: 'fertig', tabelle: platte.fertig.get('/tabelle.csv') } : ohneBericht(platte);
};

self.onmessage = async ({ data }) => {
  try {
    if (data.art === 'modul') {
      modul = await ZepholtModul({
        instantiateWasm: (einfuhr, fertig) => {
          WebAssembly.instantiate(data.modul, einfuhr).then((teil) => fertig(teil, data.modul));
          return {};
        },
      });
      postMessage({ art: 'bereit' });
    } else {
      postMessage(data.art === 'pruefen' ? pruefen(data) : tabelle(data));
    }
  } catch (fehler) {
    postMessage({ art: 'nichts', grund: fehler instanceof RangeError ? 'speicher' : '', meldung: String(fehler?.message ?? fehler) });
  }
};
