// The module's other side: what src/support/Umgebung_browser.h asks goes to the object that whoever makes the module hands
// over as `umgebung`: the worker of the page, or the tests.
mergeInto(LibraryManager.library, {
  $Umgebung: {
    text: (zeiger, laenge) => {
      let text = '';
      zeiger >>>= 0;
      for (let i = 0; i < laenge; i += 4096) {
        text += String.fromCharCode.apply(null, HEAPU16.subarray((zeiger >>> 1) + i, (zeiger >>> 1) + Math.min(laenge, i + 4096)));
      }
      return text;
    },
    bytes: (zeiger, anzahl) => HEAPU8.subarray(zeiger >>> 0, (zeiger >>> 0) + anzahl),
  },
  zepholt_art__deps: ['$Umgebung'],
  zepholt_art: function (pfad, laenge) { return Module['umgebung']['art'](Umgebung.text(pfad, laenge)); },
  zepholt_eintrag__deps: ['$Umgebung'],
  zepholt_eintrag: function (pfad, laenge, nummer, ziel, platz) {
    const name = Module['umgebung']['eintrag'](Umgebung.text(pfad, laenge), nummer);
    if (name === undefined) return -1;
    const n = Math.min(name.length, platz);
    for (let i = 0; i < n; ++i) HEAPU16[(ziel >>> 1) + i] = name.charCodeAt(i);
    return n;
  },
  zepholt_oeffnen__deps: ['$Umgebung'],
  zepholt_oeffnen: function (pfad, laenge) { return Module['umgebung']['oeffnen'](Umgebung.text(pfad, laenge)); },
  zepholt_groesse: function (datei) { return Module['umgebung']['groesse'](datei); },
  zepholt_lesen__deps: ['$Umgebung'],
  zepholt_lesen: function (datei, stelle, ziel, anzahl) { return Module['umgebung']['lesen'](datei, stelle, Umgebung.bytes(ziel, anzahl)); },
  zepholt_schliessen: function (datei) { return Module['umgebung']['schliessen'](datei); },
  zepholt_anlegbar__deps: ['$Umgebung'],
  zepholt_anlegbar: function (pfad, laenge) { return +Module['umgebung']['anlegbar'](Umgebung.text(pfad, laenge)); },
  zepholt_anlegen__deps: ['$Umgebung'],
  zepholt_anlegen: function (pfad, laenge) { return Module['umgebung']['anlegen'](Umgebung.text(pfad, laenge)); },
  zepholt_schreiben__deps: ['$Umgebung'],
  zepholt_schreiben: function (datei, bytes, anzahl) { return +Module['umgebung']['schreiben'](datei, Umgebung.bytes(bytes, anzahl)); },
  zepholt_beenden: function (datei, gut) { return +Module['umgebung']['beenden'](datei, gut === 1); },
  zepholt_uhr: function (ziel) {
    HEAP32.set(Module['umgebung']['uhr'](), ziel >>> 2);
  },
  zepholt_meldung__deps: ['$Umgebung'],
  zepholt_meldung: function (utf8, anzahl) { return Module['umgebung']['meldung'](Umgebung.bytes(utf8, anzahl).slice()); },
  zepholt_beschriften__deps: ['$Umgebung'],
  zepholt_beschriften: function (was, text, laenge) { return Module['umgebung']['beschriften'](was, Umgebung.text(text, laenge)); },
  zepholt_balken: function (anteil) { return Module['umgebung']['balken'](anteil); },
  zepholt_urteil: function (art, fehler, warnungen) { return Module['umgebung']['urteil'](art, fehler, warnungen); },
  zepholt_abgebrochen: function () { return +Module['umgebung']['abgebrochen'](); },
});
