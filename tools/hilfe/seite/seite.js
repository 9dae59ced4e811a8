// The search: by number, by field reference, by words of message and page; all words must be there.
'use strict';
{
  const formular = document.querySelector('form[role=search]');
  const feld = document.getElementById('suche');
  const liste = document.getElementById('treffer');
  const stand = document.getElementById('stand');
  const hoechstens = 60;

  // Letters without their marks, small: a person types without accents too.
  const einfach = (text) => text.normalize('NFD').replace(/[\u0300-\u036f]/g, '').replace(/[\u2019\u2018]/g, "'").toLowerCase();
  const daten = CODES.map(([code, bezug, text, seite]) => ({
    code, bezug, text, feld: einfach(bezug), meldung: einfach(text), alles: einfach(`${code} ${bezug} ${text} ${seite}`),
  }));

  // Number first, then field, then message, then the page's text; 0 is no hit.
  const rang = (zeile, worte) => {
    if (!worte.every((wort) => zeile.alles.includes(wort))) return 0;
    const [erstes] = worte;
    if (String(zeile.code).startsWith(erstes)) return 4;
    if (zeile.feld === erstes) return 3;
    return worte.every((wort) => zeile.meldung.includes(wort) || zeile.feld.startsWith(wort)) ? 2 : 1;
  };

  const eintrag = ({ code, bezug, text }) => {
    const zeile = document.createElement('li');
    const verweis = document.createElement('a');
    verweis.href = `${code}.html`;
    for (const [art, inhalt] of [['b', code], ['small', bezug], ['span', text]]) {
      const teil = document.createElement(art);
      teil.textContent = inhalt;
      verweis.append(teil);
    }
    zeile.append(verweis);
    return zeile;
  };

  const suchen = () => {
    const worte = einfach(feld.value).split(/\s+/).filter(Boolean);
    const treffer = worte.length === 0 ? [] : daten.map((zeile) => [rang(zeile, worte), zeile]).filter(([r]) => r > 0)
      .sort(([a, x], [b, y]) => b - a || x.code - y.code).map(([, zeile]) => zeile);
    liste.replaceChildren(...treffer.slice(0, hoechstens).map(eintrag));
    stand.textContent = worte.length === 0 ? '' : treffer.length === 0 ? formular.dataset.keine
      : formular.dataset.treffer.replace('{n}', treffer.length);
  };

  formular.hidden = false;
  feld.addEventListener('input', suchen);
  formular.addEventListener('submit', (ereignis) => {
    ereignis.preventDefault();
    liste.querySelector('a')?.click();
  });
  suchen();
}
