'use strict';
(() => {
  const SPRACHEN = ['de', 'fr', 'it'];
  const ALS_DATEI = location.protocol === 'file:';
  const $ = (wahl) => document.querySelector(wahl);
  const zahl = (n) => String(n).replace(/\B(?=(\d{3})+$)/g, '’');
  const gross = (bytes) => (bytes < 1e6 ? `${Math.max(1, Math.round(bytes / 1e3))} kB` : `${zahl(Math.round(bytes / 1e5) / 10)} MB`);

  let sprache = 0;
  let modus = '';
  let katalog = null; // { art, name, dateien: [{ name, blob }], groesse, bleibt }
  let ergebnisse = []; // of the last run
  let gezeigtes = null;
  let laufend = null; // the order that a worker has in hand
  let beschaeftigt = false;
  let katalogDa;
  let netz = 'netz.laedt';

  const wort = (schluessel, ...werte) => (TEXTE[schluessel]?.[sprache] ?? '').replace(/\{(\d)\}/g, (_, i) => werte[i]);
  const anzahlwort = (schluessel, n) => (n === 1 ? wort(schluessel + '1') : wort(schluessel, zahl(n)));
  const ansagen = (text) => { $('#ansage').textContent = text; };
  const melden = (text) => {
    $('#meldung').hidden = !text;
    $('#meldung').textContent = text;
  };

  // --- What is kept: the catalogue in the browser's data base, the language beside it
  const ablage = {
    oeffnen: () => new Promise((gut, schlecht) => {
      const frage = indexedDB.open('zepholt', 1);
      frage.onupgradeneeded = () => frage.result.createObjectStore('ablage');
      frage.onsuccess = () => gut(frage.result);
      frage.onerror = () => schlecht(frage.error);
    }),
    async tun(art, rufen) {
      const db = await this.oeffnen();
      try {
        return await new Promise((gut, schlecht) => {
          const gang = db.transaction('ablage', art);
          const frage = rufen(gang.objectStore('ablage'));
          gang.oncomplete = () => gut(frage.result);
          gang.onerror = gang.onabort = () => schlecht(gang.error);
        });
      } finally {
        db.close();
      }
    },
  };
  const merken = (name, wert) => {
    try {
      localStorage.setItem('zepholt.' + name, wert);
    } catch { /* a browser that keeps nothing: the choice holds for this visit */ }
  };
  const gemerkt = (name) => {
    try {
      return localStorage.getItem('zepholt.' + name);
    } catch {
      return null;
    }
  };

  // --- The module: compiled once, one worker for each run, the next one made ready ahead
  const aufDatei = () => new Promise((gut, schlecht) => {
    const s = document.createElement('script');
    s.src = 'eingebettet.js';
    s.onload = () => gut(self.ZEPHOLT_EINGEBETTET);
    s.onerror = schlecht;
    document.head.append(s);
  });
  const bytesAus = (text) => Uint8Array.from(atob(text), (z) => z.charCodeAt(0));
  const vomServer = async (name) => {
    const antwort = await fetch(name);
    if (!antwort.ok) throw new Error(name + ': ' + antwort.status);
    return antwort;
  };
  // The worker is made from its text, so that the page's content policy holds in it too.
  const geladen = (async () => {
    const { modul, arbeiter } = ALS_DATEI
      ? await aufDatei().then((teile) => ({ modul: bytesAus(teile.modul), arbeiter: teile.arbeiter }))
      : { modul: await vomServer('modul.wasm').then((a) => a.arrayBuffer()), arbeiter: await vomServer('arbeiter.js').then((a) => a.text()) };
    return { modul: await WebAssembly.compile(modul), adresse: URL.createObjectURL(new Blob([arbeiter], { type: 'text/javascript' })) };
  })();
  const arbeiterMachen = async () => {
    const { modul, adresse } = await geladen;
    const arbeiter = new Worker(adresse);
    await new Promise((gut, schlecht) => {
      arbeiter.onmessage = ({ data }) => (data.art === 'bereit' ? gut() : schlecht(new Error(data.meldung)));
      arbeiter.onerror = (e) => schlecht(new Error(e.message));
      arbeiter.postMessage({ art: 'modul', modul });
    });
    return arbeiter;
  };
  let naechster = null;
  const arbeiterHolen = () => {
    const dieser = naechster ?? arbeiterMachen();
    naechster = null;
    return dieser;
  };
  const vorbereiten = () => {
    naechster ??= arbeiterMachen();
    naechster.catch(() => {});
    return naechster;
  };

  // Hands an order to a worker; `gang` gets its progress. Ends with what came of it, or without when it was cancelled.
  const FRIST = 700; // milliseconds for a run to end by itself after a cancel: stretches without a look are ended from here
  const auftragGeben = async (auftrag, gang) => {
    const halt = URL.createObjectURL(new Blob(['']));
    let aus = false;
    let beenden;
    const ende = new Promise((gut) => { beenden = gut; });
    laufend = {
      abbrechen: () => {
        aus = true;
        URL.revokeObjectURL(halt);
        setTimeout(() => beenden({ art: 'abgebrochen' }), FRIST);
      },
    };
    let arbeiter;
    try {
      arbeiter = await arbeiterHolen();
    } catch {
      return { art: 'nichts', grund: 'nichtbereit', meldung: '' };
    }
    arbeiter.onmessage = ({ data }) => (data.art === 'gang' ? gang(data) : beenden(data));
    arbeiter.onerror = (e) => {
      e.preventDefault();
      beenden({ art: 'nichts', grund: /memory|allocat/i.test(e.message) ? 'speicher' : '', meldung: e.message });
    };
    arbeiter.postMessage({ ...auftrag, halt });
    const ergebnis = await ende;
    arbeiter.terminate();
    URL.revokeObjectURL(halt);
    laufend = null;
    vorbereiten();
    return aus ? { art: 'abgebrochen' } : ergebnis;
  };
  const hindernis = ({ grund, meldung }) => [wort(grund || 'ohneergebnis'), meldung].filter(Boolean).join('\n');

  // --- The views
  const zeige = (was) => {
    for (const id of ['anfang', 'lauf', 'liste']) $('#' + id).hidden = id !== was;
    $('#start').hidden = was === 'schau';
    $('#schau').hidden = was !== 'schau';
    if (was !== 'schau') $('#rahmen').replaceChildren();
    $('#sprachen').hidden = was === 'lauf';
    scrollTo(0, 0);
  };
  const urteilswort = (urteil) => wort(urteil.art === 'ordnung' && urteil.ohne ? 'ordnung.ohne' : urteil.art);
  const urteilszahlen = (urteil) => [anzahlwort('fehler', urteil.fehler), anzahlwort('warnungen', urteil.warnungen)].join(', ');

  const seiteZeigen = (ergebnis) => {
    gezeigtes = ergebnis;
    ergebnis.adresse ??= URL.createObjectURL(ergebnis.seite);
    const rahmen = document.createElement('iframe');
    rahmen.sandbox = 'allow-scripts';
    rahmen.title = wort('bericht', ergebnis.name);
    rahmen.src = ergebnis.adresse;
    zeige('schau');
    $('#rahmen').replaceChildren(rahmen);
    $('#schau-name').textContent = ergebnis.name;
    $('#fenster').href = ergebnis.adresse;
    $('#zurueck').textContent = ergebnisse.length > 1 ? wort('zurliste') : wort('neu');
    document.title = ergebnis.name + ' · ZEPHOLT';
    ansagen(`${ergebnis.name}: ${urteilswort(ergebnis.urteil)}, ${urteilszahlen(ergebnis.urteil)}`);
    $('#schau-name').focus();
  };
  const element = (name, klasse, ...kinder) => {
    const knoten = document.createElement(name);
    if (klasse) knoten.className = klasse;
    knoten.append(...kinder);
    return knoten;
  };
  const listeZeigen = () => {
    $('#liste-titel').textContent = wort('anzahl', zahl(ergebnisse.length));
    $('#liste-dazu').textContent = ergebnisse.some((e) => e.urteil?.ohne) ? wort('katalog.ohne.dazu') : '';
    $('#dateiliste').replaceChildren(...ergebnisse.map((e) => {
      if (!e.urteil) return element('li', 'A', element('span', '', element('b', '', wort('ungeprueft.kurz'))), element('span', '', e.name, element('small', '', e.hindernis)));
      const oeffnen = element('button', '', e.name);
      oeffnen.type = 'button';
      oeffnen.addEventListener('click', () => seiteZeigen(e));
      const klasse = e.urteil.art !== 'ordnung' ? 'A' : e.urteil.ohne ? 'offen' : 'ok';
      return element('li', klasse, element('span', '', element('b', '', urteilswort(e.urteil))), element('span', '', oeffnen, element('small', '', urteilszahlen(e.urteil))));
    }));
    zeige('liste');
    document.title = wort('fenstertitel');
    $('#liste-titel').focus();
  };
  const anfangZeigen = () => {
    for (const e of ergebnisse) if (e.adresse) URL.revokeObjectURL(e.adresse);
    ergebnisse = [];
    gezeigtes = null;
    zeige('anfang');
    document.title = wort('fenstertitel');
    ansagen('');
  };

  // --- A run over the chosen files
  const gangZeigen = (gang) => {
    if (gang.schritt !== undefined) $('#schritt').textContent = gang.schritt;
    if (gang.schreibt) $('#schritt').textContent = wort('schreibt');
    if (gang.anteil !== undefined) $('#balken').value = gang.anteil;
    const dazu = [gang.projekt, gang.dokument].filter(Boolean).join(' · ');
    if (dazu) $('#lauf-dazu').textContent = dazu;
  };
  const pruefen = async (dateien) => {
    if (beschaeftigt) return;
    melden('');
    if (!dateien.length) {
      melden(wort('nichts'));
      return;
    }
    beschaeftigt = true;
    await katalogDa;
    await alleDateien(dateien);
    beschaeftigt = false;
  };
  const alleDateien = async (dateien) => {
    const sprachwahl = sprache;
    ergebnisse = [];
    zeige('lauf');
    for (const [i, { datei, name }] of dateien.entries()) {
      $('#lauf-titel').textContent = wort('laeuft');
      $('#lauf-dazu').textContent = dateien.length > 1 ? wort('laeuft.von', i + 1, dateien.length, name) : name;
      $('#schritt').textContent = '';
      $('#balken').value = 0;
      if (i === 0) $('#lauf-titel').focus();
      const auftrag = { art: 'pruefen', datei, name: datei.name, sprache: sprachwahl, modus, katalog };
      const ergebnis = await auftragGeben(auftrag, gangZeigen);
      if (ergebnis.art === 'abgebrochen') {
        anfangZeigen();
        melden(wort('abgebrochen'));
        return;
      }
      const gut = ergebnis.art === 'fertig';
      ergebnisse.push({
        datei, name, sprache: sprachwahl, protokoll: ergebnis.protokoll, seite: gut && new Blob([ergebnis.seite], { type: 'text/html' }),
        urteil: gut ? { ...ergebnis.urteil, ohne: !katalog } : null, hindernis: gut ? '' : hindernis(ergebnis), speicher: ergebnis.speicher,
      });
    }
    if (ergebnisse.length > 1) {
      listeZeigen();
    } else if (ergebnisse[0].urteil) {
      seiteZeigen(ergebnisse[0]);
    } else {
      const text = `${ergebnisse[0].name}: ${ergebnisse[0].hindernis}`;
      anfangZeigen();
      melden(text);
    }
  };

  // --- Choosing files: by a drop, by the two buttons, by the system for an installed page
  const istAustauschdatei = (name) => /\.(01s|e1s)$/i.test(name);
  const ausAuswahl = (dateien, ausOrdner) => [...dateien]
    .map((datei) => ({ datei, name: datei.webkitRelativePath || datei.name }))
    .filter(({ name }) => !ausOrdner || istAustauschdatei(name))
    .sort((a, b) => (a.name < b.name ? -1 : 1));
  const ordnerLesen = (eintrag) => new Promise((gut) => {
    const leser = eintrag.createReader();
    const alle = [];
    const weiter = () => leser.readEntries((einige) => {
      if (!einige.length) return gut(alle);
      alle.push(...einige);
      return weiter();
    }, () => gut(alle));
    weiter();
  });
  const alsDatei = (eintrag) => new Promise((gut) => { eintrag.file(gut, () => gut(null)); });
  // All files below what was dropped, with their paths.
  const ausEintraegen = async (eintraege) => {
    const dateien = [];
    for (let offen = [...eintraege]; offen.length;) {
      const eintrag = offen.shift();
      if (eintrag.isDirectory) {
        offen.push(...await ordnerLesen(eintrag));
      } else {
        const datei = await alsDatei(eintrag);
        if (datei) dateien.push({ datei, name: eintrag.fullPath.replace(/^\//, '') });
      }
    }
    return dateien;
  };
  const fallengelassen = async (uebergabe, aufKatalog) => {
    const eintraege = [...uebergabe.items].map((teil) => teil.webkitGetAsEntry?.()).filter(Boolean);
    const einfach = [...uebergabe.files].map((datei) => ({ datei, name: datei.name }));
    const ordner = eintraege.some((e) => e.isDirectory);
    const alle = ordner ? await ausEintraegen(eintraege) : einfach;
    if (aufKatalog || (ordner && alle.some(({ name }) => istKapitel(name)) && !alle.some(({ name }) => istAustauschdatei(name)))) {
      await (ordner ? katalogAusOrdner(alle, eintraege[0].name) : katalogAusDatei(einfach[0]?.datei));
      return;
    }
    const gewaehlt = alle.filter(({ name }) => !ordner || istAustauschdatei(name));
    await pruefen(gewaehlt.sort((a, b) => (a.name < b.name ? -1 : 1)));
  };

  // --- The catalogue
  const istKapitel = (name) => /\.qvm$/i.test(name);
  const katalogZeigen = () => {
    const stand = $('#katalog-stand');
    stand.classList.toggle('fehlt', !katalog);
    stand.textContent = !katalog ? wort('katalog.ohne')
      : katalog.art === 'datei' ? wort('katalog.datei.stand', katalog.name, '', gross(katalog.groesse))
        : wort('katalog.ordner.stand' + (katalog.dateien.length === 1 ? '1' : ''), katalog.name, zahl(katalog.dateien.length), gross(katalog.groesse));
    $('#katalog-dazu').textContent = !katalog ? wort('katalog.ohne.dazu') : wort(katalog.bleibt ? 'katalog.dazu' : 'katalog.fluechtig');
    $('#katalog-weg').hidden = !katalog;
  };
  const katalogSetzen = async (neuer) => {
    katalog = { ...neuer, groesse: neuer.dateien.reduce((summe, d) => summe + d.blob.size, 0), bleibt: true };
    try {
      await ablage.tun('readwrite', (ort) => ort.put(katalog, 'katalog'));
      navigator.storage?.persist?.().catch?.(() => {});
    } catch {
      katalog.bleibt = false;
    }
    melden('');
    katalogZeigen();
    ansagen(wort('katalog.da'));
  };
  // What lies in folders below is another catalogue's.
  const katalogAusOrdner = async (alle, name) => {
    const kapitel = alle.filter((d) => istKapitel(d.name) && d.name.split('/').length <= 2);
    if (!kapitel.length) {
      melden(wort('katalog.leer'));
      return;
    }
    await katalogSetzen({ art: 'ordner', name, dateien: kapitel.map(({ datei }) => ({ name: datei.name, blob: datei })) });
  };
  const katalogAusDatei = async (datei) => {
    if (datei) await katalogSetzen({ art: 'datei', name: datei.name, dateien: [{ name: datei.name, blob: datei }] });
  };
  // Said to be gone only when it is: who closes the page in between would find it again.
  const katalogEntfernen = async () => {
    katalog = null;
    try {
      await ablage.tun('readwrite', (ort) => ort.delete('katalog'));
    } catch { /* nothing was kept */ }
    katalogZeigen();
    ansagen(wort('katalog.fort'));
    $('#katalog-ordner').focus();
  };
  const katalogHolen = async () => {
    try {
      katalog = await ablage.tun('readonly', (ort) => ort.get('katalog')) ?? null;
    } catch {
      katalog = null;
    }
    katalogZeigen();
  };

  // --- Saving
  const endungDer = (art) => ({ seite: 'html', protokoll: 'xml', tabelle: 'csv' })[art];
  const sichern = (blob, art) => {
    const a = document.createElement('a');
    a.href = URL.createObjectURL(blob);
    a.download = `${gezeigtes.datei.name}.${TEXTE['name.' + art][gezeigtes.sprache]}.${endungDer(art)}`;
    a.click();
    setTimeout(() => URL.revokeObjectURL(a.href), 60000);
  };
  const tabelleSichern = async () => {
    const e = gezeigtes;
    if (!e.tabelle) {
      const ergebnis = await auftragGeben({ art: 'tabelle', datei: e.datei, name: e.datei.name, sprache: e.sprache, protokoll: e.protokoll }, () => {});
      if (ergebnis.art !== 'fertig') {
        ansagen(hindernis(ergebnis));
        return;
      }
      e.tabelle = new Blob([ergebnis.tabelle], { type: 'text/csv' });
    }
    sichern(e.tabelle, 'tabelle');
  };

  // --- The page's own words
  const druecken = (gruppe, wert) => {
    for (const k of document.querySelectorAll(gruppe + ' button')) k.setAttribute('aria-pressed', String(k.value === wert));
  };
  const beschriften = () => {
    document.documentElement.lang = SPRACHEN[sprache];
    document.title = wort('fenstertitel');
    for (const k of document.querySelectorAll('[data-t]')) k.textContent = wort(k.dataset.t);
    for (const k of document.querySelectorAll('[data-aria]')) k.setAttribute('aria-label', wort(k.dataset.aria));
    druecken('#sprachen', SPRACHEN[sprache]);
    $('#modus-dazu').textContent = wort(modus ? 'modus.dazu.' + modus : 'modus.dazu');
    $('#netz-stand').textContent = wort(netz);
    katalogZeigen();
    if (!$('#liste').hidden) listeZeigen();
  };
  const spracheDesBrowsers = () => {
    for (const eine of [gemerkt('sprache'), ...(navigator.languages ?? [])]) {
      const nummer = SPRACHEN.indexOf(String(eine).slice(0, 2).toLowerCase());
      if (nummer >= 0) return nummer;
    }
    return 0;
  };
  const umschalter = (gruppe, tun) => $(gruppe).addEventListener('click', (e) => {
    const k = e.target.closest('button');
    if (!k) return;
    tun(k.value);
    druecken(gruppe, k.value);
    beschriften();
  });

  // --- What a person does
  umschalter('#sprachen', (wert) => {
    sprache = SPRACHEN.indexOf(wert);
    merken('sprache', wert);
    melden('');
  });
  umschalter('#modus', (wert) => { modus = wert; });
  const eingabe = (knopf, feld, tun) => {
    $(knopf).addEventListener('click', () => $(feld).click());
    $(feld).addEventListener('change', async () => {
      const dateien = [...$(feld).files];
      $(feld).value = '';
      await tun(dateien);
    });
  };
  eingabe('#dateien', '#eingabe-dateien', (dateien) => (dateien.length ? pruefen(ausAuswahl(dateien, false)) : undefined));
  eingabe('#ordner', '#eingabe-ordner', (dateien) => pruefen(ausAuswahl(dateien, true)));
  eingabe('#katalog-ordner', '#eingabe-katalogordner', (dateien) => katalogAusOrdner(
    dateien.map((datei) => ({ datei, name: datei.webkitRelativePath || datei.name })), (dateien[0]?.webkitRelativePath ?? '').split('/')[0]));
  eingabe('#katalog-datei', '#eingabe-katalogdatei', (dateien) => katalogAusDatei(dateien[0]));
  $('#katalog-weg').addEventListener('click', katalogEntfernen);
  $('#abbrechen').addEventListener('click', () => laufend?.abbrechen());
  $('#zurueck').addEventListener('click', () => {
    if (ergebnisse.length > 1) {
      listeZeigen();
    } else {
      anfangZeigen();
      $('#dateien').focus();
    }
  });
  for (const k of document.querySelectorAll('[data-neu]')) k.addEventListener('click', () => { anfangZeigen(); $('#dateien').focus(); });
  $('#sichern-seite').addEventListener('click', () => sichern(gezeigtes.seite, 'seite'));
  $('#sichern-protokoll').addEventListener('click', () => sichern(new Blob([gezeigtes.protokoll], { type: 'application/xml' }), 'protokoll'));
  $('#sichern-tabelle').addEventListener('click', tabelleSichern);

  let tiefe = 0; // of elements that the pointer went into while it drags
  const zieht = (an) => document.documentElement.classList.toggle('zieht', an);
  addEventListener('dragenter', (e) => {
    e.preventDefault();
    ++tiefe;
    zieht(true);
  });
  addEventListener('dragleave', () => {
    if (--tiefe <= 0) zieht(false);
  });
  addEventListener('dragover', (e) => {
    e.preventDefault();
    e.dataTransfer.dropEffect = beschaeftigt ? 'none' : 'copy';
  });
  addEventListener('drop', (e) => {
    e.preventDefault();
    tiefe = 0;
    zieht(false);
    if (!beschaeftigt) fallengelassen(e.dataTransfer, Boolean(e.target.closest?.('#katalog')));
  });
  self.launchQueue?.setConsumer(async ({ files }) => {
    const dateien = await Promise.all(files.map((griff) => griff.getFile()));
    if (dateien.length) await pruefen(ausAuswahl(dateien, false));
  });

  // --- Ready
  const netzSetzen = (stand) => {
    netz = stand;
    $('#netz-stand').textContent = wort(netz);
  };
  sprache = spracheDesBrowsers();
  beschriften();
  katalogDa = katalogHolen();
  Promise.all([vorbereiten(), katalogDa]).then(() => { document.documentElement.dataset.bereit = ''; }, () => melden(wort('nichtbereit')));
  if (ALS_DATEI) {
    netzSetzen('netz.datei');
  } else if (navigator.serviceWorker) {
    addEventListener('load', () => navigator.serviceWorker.register('dienst.js').then(() => navigator.serviceWorker.ready)
      .then(() => netzSetzen('netz.bereit'), () => netzSetzen('netz.nicht')));
  } else {
    netzSetzen('netz.nicht');
  }
})();
