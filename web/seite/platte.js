'use strict';
// The disk of the module in a worker: the exchange file and the catalogue, read where they lie, and the files that come out.
const FENSTER = 1 << 18; // bytes that are read at once where less is asked for

class Platte {
  // `dateien`: path -> Blob. A folder is there when something lies in it; names may be written in any case, as on Windows.
  constructor(dateien, lies) {
    this.dateien = new Map(Object.entries(dateien));
    this.klein = new Map([...this.dateien.keys()].map((pfad) => [pfad.toLowerCase(), pfad]));
    this.lies = lies;
    this.offen = [];
    this.fertig = new Map();
    this.grund = '';
  }

  pfad(pfad) {
    return this.dateien.has(pfad) ? pfad : this.klein.get(pfad.toLowerCase());
  }

  art(pfad) {
    if (this.pfad(pfad) !== undefined || this.fertig.has(pfad)) return 1;
    const davor = pfad.endsWith('/') ? pfad : pfad + '/';
    return [...this.dateien.keys()].some((p) => p.startsWith(davor)) ? 2 : 0;
  }

  eintrag(ordner, nummer) {
    const namen = [...this.dateien.keys()].filter((p) => p.startsWith(ordner) && !p.slice(ordner.length).includes('/'));
    return namen[nummer]?.slice(ordner.length);
  }

  oeffnen(pfad) {
    const blob = this.fertig.get(pfad) ?? this.dateien.get(this.pfad(pfad));
    return blob === undefined ? -1 : this.offen.push({ blob, anfang: 0, bytes: new Uint8Array(0) }) - 1;
  }

  groesse(nummer) {
    return this.offen[nummer].blob.size;
  }

  lesen(nummer, stelle, ziel) {
    const datei = this.offen[nummer];
    const anzahl = Math.max(0, Math.min(ziel.length, datei.blob.size - stelle));
    if (stelle < datei.anfang || stelle + anzahl > datei.anfang + datei.bytes.length) {
      try {
        datei.bytes = this.lies(datei.blob.slice(stelle, stelle + Math.max(anzahl, FENSTER)));
      } catch {
        this.grund = 'unlesbar';
        return -1;
      }
      datei.anfang = stelle;
    }
    const ab = stelle - datei.anfang;
    const stueck = datei.bytes.subarray(ab, ab + anzahl);
    ziel.set(stueck);
    return stueck.length;
  }

  schliessen(nummer) {
    this.offen[nummer] = null;
  }

  anlegbar(pfad) {
    return this.art(pfad) === 0;
  }

  anlegen(pfad) {
    return this.offen.push({ pfad, teile: [] }) - 1;
  }

  schreiben(nummer, bytes) {
    this.offen[nummer].teile.push(bytes.slice());
    return true;
  }

  beenden(nummer, gut) {
    const { pfad, teile } = this.offen[nummer];
    this.offen[nummer] = null;
    if (gut) this.fertig.set(pfad, new Blob(teile));
    return true;
  }
}
