'use strict';
(() => {
  const SCHUB = 200; // records that are built at once
  const $ = (wahl) => document.querySelector(wahl);
  const liste = $('#liste');
  const stand = $('#stand');
  const weiter = $('#weiter');
  let daten = null;
  let sprache = ['de', 'fr', 'it'].indexOf(document.documentElement.lang);
  const wahl = { schwere: '', code: '', position: '', text: '', ordnung: 'p' };

  // The data stand behind this script. They are read when they are there and something asks for them: reading those of a large
  // file takes a while.
  const D = () => (daten ??= JSON.parse($('#daten').textContent));
  const mitDaten = (tun) => {
    if (document.readyState === 'loading') document.addEventListener('DOMContentLoaded', () => tun(), { once: true });
    else tun();
  };
  const zahl = (n) => String(n).replace(/\B(?=(\d{3})+$)/g, '’');
  const wort = (schluessel, ...werte) => {
    const drei = D().t[schluessel];
    return drei ? drei[sprache].replace(/\{(\d)\}/g, (_, i) => werte[i]) : '';
  };
  const anzahlwort = (schluessel, n) => (n <= 1 && D().t[schluessel + n] ? wort(schluessel + n) : wort(schluessel, zahl(n)));

  // An element with a class and children; a text becomes a text node, never markup.
  const h = (name, klasse, ...kinder) => {
    const knoten = document.createElement(name);
    if (klasse) knoten.className = klasse;
    knoten.append(...kinder);
    return knoten;
  };

  // --- Texts out of the file
  const entpackt = (text) => text.replace(/`(`|..)/g, (_, m) => (m === '`' ? '`' : ' '.repeat(parseInt(m, 36))));
  const UNSICHTBAR = /[\0-\x1f\x7f-\xa0\xad\u061c\u2000-\u200f\u2028-\u202f\u205f-\u206f\ufeff\ufff0-\ufffc\ufffe\uffff]|[\udb40-\udb43][\udc00-\udfff]/u;
  const name = (zeichen) => 'U+' + zeichen.codePointAt(0).toString(16).toUpperCase().padStart(4, '0');
  // What can't be seen is shown: by its number in a field, in one column in the whole line.
  const sichtbar = (ziel, text, art) => {
    let lauf = '';
    const ende = () => { if (lauf) ziel.append(lauf); lauf = ''; };
    for (const zeichen of text) {
      if (UNSICHTBAR.test(zeichen)) {
        ende();
        const c = zeichen.codePointAt(0);
        const bild = c < 32 ? String.fromCodePoint(0x2400 + c) : c === 127 ? '␡' : '▯';
        const marke = h('i', 'c', art === 'zeile' ? bild : name(zeichen));
        if (art === 'zeile') marke.title = name(zeichen);
        ziel.append(marke);
      } else if (zeichen === ' ' && art === 'marke') {
        ende();
        ziel.append(h('i', 'b', '·'));
      } else {
        lauf += zeichen;
      }
    }
    ende();
    return ziel;
  };

  // --- Records
  const typVon = (zeile) => (zeile[0] === 'A' || zeile[0] === 'Z' ? zeile[0] : zeile.slice(0, 1) + zeile.slice(41, 42));
  const spaltentext = (von, bis) => (von === bis ? wort('spalte', von) : wort('spalten', von, bis));
  const ortVon = (typ, f) => (f < 0 ? '' : (D().o[typ + ' ' + D().f[f][0]] ?? ''));

  // What a field is called; without a record, as the type that its reference names has it.
  const feldsatz = (eigenerTyp, f) => {
    if (f < 0) return '';
    const [bezug, bezugstyp] = D().f[f];
    const typ = eigenerTyp || bezugstyp;
    const ort = ortVon(typ, f);
    if (ort === '*') return wort('ganzerrecord') + ' (' + bezug + ')';
    if (ort[0] === '@') return wort('ausserhalb') + ' (' + wort('spalte', ort.slice(1)) + ')';
    if (ort === '') return bezug;
    const felder = ort.split(',').map((i) => D().l[typ][1][i]);
    const namen = felder.map((x) => x[3][sprache]).join(', ');
    const von = Math.min(...felder.map((x) => x[1]));
    const bis = Math.max(...felder.map((x) => x[1] + x[2] - 1));
    return namen + ' (' + bezug + ', ' + spaltentext(von, bis) + ')';
  };

  const kasten = (klasse, schwere, titel, klein, wert, marke) => {
    const dt = h('dt', '', ...(schwere ? [h('span', 'v', wort(schwere) + ': ')] : []), titel, ' ', h('small', '', klein));
    const dd = h('dd', '');
    if (wert === '') dd.append(h('i', '', wort('leer')));
    else sichtbar(dd, wert, marke ? 'marke' : 'feld');
    return h('div', klasse, dt, dd);
  };
  const spanne = (spalte, laenge) => (laenge === 1 ? String(spalte) : spalte + '–' + (spalte + laenge - 1));

  // The stretch around a column that no field covers, with a caret under the column.
  const luecke = (felder, zeile, spalte, schwere) => {
    let von = 1;
    let bis = Math.max(zeile.length, spalte);
    for (const [, s, n] of felder) {
      if (s + n <= spalte) von = Math.max(von, s + n);
      if (s > spalte) bis = Math.min(bis, s - 1);
    }
    const text = zeile.slice(von - 1, bis).trimEnd();
    const kasten1 = kasten(schwere, schwere, wort(felder.length ? 'ausserhalb' : 'inhalt'), wort('spalte', spalte), text, true);
    const dd = kasten1.querySelector('dd');
    if (text.length >= spalte - von + 1 && text.length < 60) dd.append('\n' + ' '.repeat(spalte - von) + '^');
    return kasten1;
  };

  const boxen = (zeile, befunde) => {
    const typ = typVon(zeile);
    const felder = D().l[typ]?.[1] ?? [];
    const marken = new Map();
    const spalten = new Map();
    let ganz = '';
    for (const [c, f] of befunde) {
      const schwere = D().c[c][1];
      const ort = ortVon(typ, f);
      if (ort === '*') ganz = ganz === 'A' ? 'A' : schwere;
      else if (ort[0] === '@') spalten.set(+ort.slice(1), spalten.get(+ort.slice(1)) === 'A' ? 'A' : schwere);
      else if (ort) for (const i of ort.split(',')) marken.set(+i, marken.get(+i) === 'A' ? 'A' : schwere);
    }
    const alle = [];
    felder.forEach(([bezug, spalte, laenge, namen], i) => {
      const wert = zeile.slice(spalte - 1, spalte - 1 + laenge).trimEnd();
      const marke = marken.get(i) ?? '';
      const gattung = typ.length === 2 ? /:(1|11)$/.test(bezug) : /:1$/.test(bezug);
      if (!marke && (wert === '' || gattung)) return;
      const klasse = marke || (ganz ? (ganz === 'A' ? 'ganz' : 'ganzB') : '');
      alle.push([spalte, kasten(klasse, marke, namen[sprache], bezug + ' · ' + spanne(spalte, laenge), wert, marke)]);
    });
    if (!felder.length && !spalten.size) alle.push([1, kasten('', '', wort('inhalt'), spanne(1, zeile.length), zeile, false)]);
    for (const [spalte, schwere] of spalten) alle.push([spalte, luecke(felder, zeile, spalte, schwere)]);
    alle.sort((a, b) => a[0] - b[0]);
    return h('dl', 'r', ...alle.map((x) => x[1]));
  };

  const ganzeZeile = (zeile, befunde) => {
    const typ = typVon(zeile);
    const stellen = [];
    for (const [, f] of befunde) {
      const ort = ortVon(typ, f);
      if (ort[0] === '@') stellen[+ort.slice(1)] = '^';
      else if (ort && ort !== '*') {
        for (const i of ort.split(',')) {
          const [, s, n] = D().l[typ][1][i];
          for (let k = s; k < s + n; ++k) stellen[k] = '^';
        }
      }
    }
    let marken = '';
    for (let k = 1; k < stellen.length; ++k) marken += stellen[k] ?? ' ';
    const pre = h('pre', '');
    pre.tabIndex = 0;
    sichtbar(pre, zeile, 'zeile');
    if (marken) pre.append('\n', h('b', '', marken));
    return h('details', 'z', h('summary', '', wort('ganzezeile')), pre);
  };

  const meldungen = (befunde, zeile) => h('ul', 'm', ...befunde.map(([c, f]) => {
    const [code, schwere, texte] = D().c[c];
    const link = h('a', 'code ' + schwere, String(code));
    link.href = '#c' + code;
    const satz = feldsatz(zeile ? typVon(zeile) : '', f);
    const text = sichtbar(h('div', 't'), texte[sprache], 'feld');
    if (satz) text.append(h('small', '', satz));
    if (wahl.ordnung === 'p') text.append(...falte(String(code)));
    return h('li', schwere, h('span', 'k', h('b', '', wort(schwere)), link), text);
  }));

  const recordTitel = (nummer, zeile, zusatz) => {
    const typ = typVon(zeile);
    const name = D().l[typ]?.[0][sprache] ?? wort('undefiniert');
    const span = sichtbar(h('span', ''), typ + ' ' + name + (zusatz ? ' – ' + zusatz : ''), 'feld');
    return h('h4', '', wort('zeile', zahl(nummer)), span);
  };

  const eintrag = (nummer, roh, befunde, zusatz) => {
    const zeile = entpackt(roh);
    const teile = [recordTitel(nummer, zeile, zusatz)];
    if (befunde.length) teile.push(meldungen(befunde, zeile));
    teile.push(boxen(zeile, befunde), ganzeZeile(zeile, befunde));
    return h('article', 'e', ...teile);
  };

  const umgebung = (a) => {
    const [art, , , anzahl, zeilen] = a;
    if (!anzahl) return art === 'G' ? [h('p', 'p', wort('umgebung0'))] : [];
    const d = h('details', 'u', h('summary', '', wort(art === 'D' ? 'umgebungD' : 'umgebung', zahl(anzahl))));
    for (let i = 0; i < zeilen.length; i += 2) d.append(eintrag(zeilen[i], zeilen[i + 1], [], ''));
    if (anzahl > zeilen.length / 2) d.append(h('p', 'p', wort('umgebungmehr', zahl(anzahl - zeilen.length / 2))));
    return [d];
  };

  const positionstext = (p) => {
    const s = String(p).padStart(9, '0');
    return s.slice(0, -6) + '.' + s.slice(-6, -3) + '.' + s.slice(-3);
  };
  const abschnittTitel = ([art, p]) => {
    if (art === 'G' && p % 1e6 === 0) return wort('art.K', String(p / 1e6).padStart(3, '0'));
    return wort('art.' + art, positionstext(p));
  };
  const herkunft = ([art, , orte]) => {
    const p = h('p', 'p');
    orte.forEach((w, i) => p.append(sichtbar(h('span', ''), i === 0 ? wort('kapitel1', D().w[w]) : D().w[w], 'feld')));
    return p;
  };

  // --- What a code means: texts of the page itself, never of the file. The plain part has them in its language beside the
  // first finding of each code, templates have the rest.
  const falten = new Map([...document.querySelectorAll('template[data-falte]')].map((k) => [k.dataset.falte, k.content]));
  const falte = (code, frage) => {
    if (!falten.has(code + ' ' + sprache)) return [];
    const d = h('details', 'w', h('summary', '', frage ?? wort('heisst', code)));
    d.dataset.code = code;
    return [d];
  };
  const entfalten = (d) => {
    if (d.open && d.dataset.code && d.children.length === 1) d.append(falten.get(d.dataset.code + ' ' + sprache).cloneNode(true));
  };
  const faltenVerteilen = () => {
    const fragen = new Map();
    const befunde = [...liste.querySelectorAll('.m > li')].map((k) => [k.querySelector('.code').textContent, k.querySelector('.t')]);
    for (const [code, text] of befunde) {
      const inhalt = text.querySelector('.w');
      if (!inhalt) continue;
      const teil = document.createDocumentFragment();
      teil.append(...[...inhalt.childNodes].slice(1));
      fragen.set(code, inhalt.textContent);
      falten.set(code + ' ' + sprache, teil);
      inhalt.dataset.code = code;
      entfalten(inhalt);
    }
    for (const [code, text] of befunde) if (!text.querySelector('.w')) text.append(...falte(code, fragen.get(code)));
  };

  // --- Choosing: each hit is a record, or the findings of a position without one, with those findings that fit
  const paare = (flach) => {
    const ergebnis = [];
    for (let i = 0; i < flach.length; i += 2) ergebnis.push([flach[i], flach[i + 1]]);
    return ergebnis;
  };
  const passtZu = () => {
    const text = wahl.text.trim().toLowerCase();
    const position = wahl.position.replace(/[^0-9]/g, '');
    return (a, roh, befunde) => {
      if (position && !(('GX'.includes(a[0])) && positionstext(a[1]).replaceAll('.', '').startsWith(position))) return [];
      const zeile = text && roh ? entpackt(roh) : '';
      return befunde.filter(([c, f]) => {
        const [code, schwere, texte] = D().c[c];
        if (wahl.schwere && schwere !== wahl.schwere) return false;
        if (wahl.code && String(code) !== wahl.code) return false;
        return !text || texte[sprache].toLowerCase().includes(text) || String(code).includes(text) ||
          zeile.toLowerCase().includes(text) || feldsatz(zeile ? typVon(zeile) : '', f).toLowerCase().includes(text);
      });
    };
  };
  const suchen = () => {
    const passt = passtZu();
    const hits = [];
    for (const a of D().a) {
      const ohne = passt(a, '', paare(a[5]));
      if (ohne.length) hits.push({ a, ohne: true, befunde: ohne });
      for (let i = 0; i < a[6].length; i += 3) {
        const befunde = passt(a, a[6][i + 1], paare(a[6][i + 2]));
        if (befunde.length) hits.push({ a, zeile: a[6][i], roh: a[6][i + 1], befunde });
      }
    }
    return hits;
  };
  const nachCode = (hits) => {
    const nach = D().c.map(() => []);
    for (const hit of hits) {
      for (const c of new Set(hit.befunde.map((b) => b[0]))) {
        nach[c].push({ ...hit, c, befunde: hit.befunde.filter((b) => b[0] === c) });
      }
    }
    return nach.flat();
  };

  // --- The list, built in steps
  let lauf = 0;
  const kopfVon = (hit) => {
    if (wahl.ordnung === 'p') return [h('h3', '', abschnittTitel(hit.a)), herkunft(hit.a)];
    const [code, schwere, texte] = D().c[hit.c];
    return [h('h3', '', h('span', 'code ' + schwere, String(code)), sichtbar(h('span', ''), texte[sprache], 'feld')), ...falte(String(code))];
  };
  const bauen = (hits, von, bis) => {
    let schluessel = von > 0 ? gruppe(hits[von - 1]) : null;
    let abschnitt = von > 0 ? liste.lastElementChild : null;
    for (const hit of hits.slice(von, bis)) {
      if (gruppe(hit) !== schluessel) {
        schluessel = gruppe(hit);
        abschnitt = h('section', 's', ...kopfVon(hit));
        liste.append(abschnitt);
      }
      const zusatz = wahl.ordnung === 'c' ? abschnittTitel(hit.a) : '';
      if (hit.ohne) {
        const titel = zusatz ? [h('h4', '', zusatz)] : [];
        abschnitt.append(h('div', 'e', ...titel, meldungen(hit.befunde, ''), ...umgebung(hit.a)));
      } else {
        abschnitt.append(eintrag(hit.zeile, hit.roh, hit.befunde, zusatz));
      }
    }
  };
  const gruppe = (hit) => (wahl.ordnung === 'p' ? hit.a : hit.c);
  const knopf = (text, tun) => {
    const k = h('button', 'knopf', text);
    k.type = 'button';
    k.addEventListener('click', tun);
    return k;
  };
  const zeigen = (hits, von, alle) => {
    const meiner = ++lauf;
    const schritt = (ab) => {
      if (meiner !== lauf) return;
      const bis = Math.min(hits.length, ab + SCHUB);
      bauen(hits, ab, bis);
      weiter.replaceChildren();
      if (bis < hits.length && alle) {
        setTimeout(() => schritt(bis));
      } else if (bis < hits.length) {
        const rest = hits.length - bis;
        weiter.append(knopf(wort('weitere', zahl(Math.min(SCHUB, rest))), () => zeigen(hits, bis, false)));
        if (rest > SCHUB) weiter.append(knopf(wort('allezeigen', zahl(hits.length)), () => zeigen(hits, bis, true)));
      }
    };
    schritt(von);
  };
  const anwenden = (alle) => {
    const gefunden = suchen();
    const n = gefunden.reduce((summe, hit) => summe + hit.befunde.length, 0);
    liste.replaceChildren();
    $('#auszug')?.remove();
    stand.querySelector('p').textContent = n ? wort(n === 1 ? 'treffer1' : 'treffer', zahl(n), zahl(D().n)) : D().n ? wort('keine') : wort('sauber');
    stand.querySelector('button').hidden = !(wahl.schwere || wahl.code || wahl.position || wahl.text);
    for (const a of document.querySelectorAll('.codes a')) {
      if (a.hash === '#c' + wahl.code) a.setAttribute('aria-current', 'true');
      else a.removeAttribute('aria-current');
    }
    zeigen(wahl.ordnung === 'c' ? nachCode(gefunden) : gefunden, 0, alle === true);
  };

  // --- The page's own words
  const beschriften = () => {
    document.documentElement.lang = ['de', 'fr', 'it'][sprache];
    for (const k of document.querySelectorAll('[data-t]')) {
      const n = k.dataset.n;
      k.textContent = n === undefined ? wort(k.dataset.t, ...(k.dataset.w ? JSON.parse(k.dataset.w) : [])) : anzahlwort(k.dataset.t, +n);
    }
    for (const k of document.querySelectorAll('[data-c]')) k.replaceChildren(...sichtbar(h('span', ''), D().c[+k.dataset.c][2][sprache], 'feld').childNodes);
    for (const k of document.querySelectorAll('[data-aria]')) k.setAttribute('aria-label', wort(k.dataset.aria));
    for (const k of document.querySelectorAll('#sprachen button')) k.setAttribute('aria-pressed', String(+k.value === sprache));
    document.title = wort('titel') + ' – ' + $('#name').textContent;
  };
  const druecken = (gruppe, wert) => {
    for (const k of document.querySelectorAll(gruppe + ' button')) k.setAttribute('aria-pressed', String(k.value === wert));
  };
  const umschalter = (gruppe, feld) => {
    $(gruppe).addEventListener('click', (e) => {
      const k = e.target.closest('button');
      if (!k) return;
      wahl[feld] = k.value;
      druecken(gruppe, k.value);
      mitDaten(anwenden);
    });
  };

  for (const k of document.querySelectorAll('[data-skript]')) k.hidden = false;
  for (const k of document.querySelectorAll('[data-ohne]')) k.hidden = true;
  $('#sprachen').addEventListener('click', (e) => {
    const k = e.target.closest('button');
    if (!k) return;
    mitDaten(() => {
      sprache = +k.value;
      beschriften();
      if ($('#leiste')) anwenden();
    });
  });
  if (!$('#leiste')) return; // without findings there is nothing to choose from
  faltenVerteilen();
  liste.addEventListener('toggle', (e) => entfalten(e.target), true);
  umschalter('#schwere', 'schwere');
  umschalter('#ordnung', 'ordnung');
  let uhr = 0;
  for (const [id, feld] of [['#code', 'code'], ['#position', 'position'], ['#text', 'text']]) {
    $(id).addEventListener(feld === 'code' ? 'change' : 'input', (e) => {
      wahl[feld] = e.target.value;
      clearTimeout(uhr);
      uhr = setTimeout(() => mitDaten(anwenden), feld === 'code' ? 0 : 180);
    });
  }
  $('#leiste').addEventListener('submit', (e) => e.preventDefault());
  const leeren = () => {
    Object.assign(wahl, { schwere: '', code: '', position: '', text: '' });
    for (const id of ['#code', '#position', '#text']) $(id).value = '';
    druecken('#schwere', '');
    mitDaten(anwenden);
  };
  stand.querySelector('button').addEventListener('click', () => { leeren(); $('#text').focus(); });
  $('#auszug button')?.addEventListener('click', () => { mitDaten(() => anwenden(true)); $('#befunde').focus(); });
  // A code's link chooses its findings; without script it leads to the first of them.
  document.addEventListener('click', (e) => {
    const a = e.target.closest('a[href^="#c"]');
    if (!a) return;
    e.preventDefault();
    wahl.code = a.hash.slice(2);
    $('#code').value = wahl.code;
    mitDaten(anwenden);
    $('#befunde').focus();
    $('#befunde').scrollIntoView();
  });
})();
