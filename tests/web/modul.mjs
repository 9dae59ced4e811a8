// The module under node: a run is a fresh instance on the machine's own files, as the program is a fresh process.
import fs from 'node:fs';
import path from 'node:path';
import { createRequire } from 'node:module';

const UNGUELTIG = /[\ud800-\udfff]/u;

// What the module asks of a page, answered by the file system. A unit U+DC80 to U+DCFF of a path is a byte of a name that is
// no valid UTF-8.
class Knotenplatte {
  offen = [];
  meldungen = [];
  urteile = [];
  blicke = 0;

  bytes(pfad) {
    if (!UNGUELTIG.test(pfad)) return pfad;
    const teile = [...pfad].map((z) => (z >= '\udc80' && z <= '\udcff' ? Buffer.from([z.charCodeAt(0) & 0xff]) : Buffer.from(z)));
    return Buffer.concat(teile);
  }
  angaben(pfad) {
    return pfad.includes('\0') ? undefined : fs.statSync(this.bytes(pfad), { throwIfNoEntry: false });
  }
  art(pfad) {
    try {
      const a = this.angaben(pfad);
      return !a ? 0 : a.isFile() ? 1 : a.isDirectory() ? 2 : 3;
    } catch {
      return 0;
    }
  }
  eintrag(ordner, nummer) {
    if (nummer === 0) {
      try {
        this.namen = ['.', '..', ...fs.readdirSync(this.bytes(ordner))];
      } catch {
        this.namen = [];
      }
    }
    return this.namen[nummer];
  }
  oeffnen(pfad) {
    try {
      return this.art(pfad) === 1 ? fs.openSync(this.bytes(pfad), 'r') : -1;
    } catch {
      return -1;
    }
  }
  groesse(datei) { return fs.fstatSync(datei).size; }
  lesen(datei, stelle, ziel) {
    let gelesen = 0;
    try {
      for (let n = 1; n > 0 && gelesen < ziel.length; gelesen += n) n = fs.readSync(datei, ziel, gelesen, ziel.length - gelesen, stelle + gelesen);
    } catch {
      return -1;
    }
    return gelesen;
  }
  schliessen(datei) { fs.closeSync(datei); }
  anlegbar(pfad) {
    if (pfad.includes('\0') || fs.lstatSync(this.bytes(pfad), { throwIfNoEntry: false })) return false;
    try {
      fs.closeSync(fs.openSync(this.bytes(pfad), 'wx'));
      fs.unlinkSync(this.bytes(pfad));
      return true;
    } catch {
      return false;
    }
  }
  anlegen(pfad) { return this.offen.push({ pfad, teile: [] }) - 1; }
  schreiben(datei, bytes) { return this.offen[datei].teile.push(Buffer.from(bytes)) > 0; }
  beenden(datei, gut) {
    const { pfad, teile } = this.offen[datei];
    this.offen[datei] = null;
    try {
      if (gut) fs.writeFileSync(this.bytes(pfad), Buffer.concat(teile));
      return true;
    } catch {
      return false;
    }
  }
  uhr() {
    const jetzt = new Date();
    return [jetzt.getFullYear(), jetzt.getMonth() + 1, jetzt.getDate(), jetzt.getHours(), jetzt.getMinutes()];
  }
  meldung(bytes) { this.meldungen.push(Buffer.from(bytes)); }
  beschriften() {}
  balken() {}
  abgebrochen() { ++this.blicke; return false; }
  urteil(...zahlen) { this.urteile.push(zahlen); }
}

// A factory of runs: `rufe(name, felder)` gives the status, the messages and what the page would be told.
export const modulLaden = async (ordner) => {
  const fabrik = createRequire(import.meta.url)(path.resolve(ordner, 'zepholt_modul.js'));
  const wasm = await WebAssembly.compile(fs.readFileSync(path.join(ordner, 'zepholt_modul.wasm')));
  return async (name, felder, platte = new Knotenplatte()) => {
    const modul = await fabrik({
      instantiateWasm: (einfuhr, fertig) => {
        fertig(new WebAssembly.Instance(wasm, einfuhr), wasm);
        return {};
      },
    });
    modul.umgebung = platte;
    const rufe = (funktion, werte) => {
      const text = werte.join('\0');
      const zeiger = modul._malloc(text.length * 2 + 2) >>> 0;
      for (let i = 0; i < text.length; ++i) modul.HEAPU16[(zeiger >>> 1) + i] = text.charCodeAt(i);
      return modul['_zepholt_' + funktion](zeiger, text.length);
    };
    return { status: rufe(name, felder), platte, speicher: modul.HEAPU8.length, weiter: rufe };
  };
};
export { Knotenplatte };
