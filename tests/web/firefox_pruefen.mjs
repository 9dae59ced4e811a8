// The main road in Firefox, driven by its own remote protocol (WebDriver BiDi): firefox_pruefen.mjs PAGE-FOLDER SAMPLES
// Choose a catalogue and a file, read the report, reload without a network, the same from file://; nothing else is asked for.
import { spawn } from 'node:child_process';
import fs from 'node:fs';
import os from 'node:os';
import path from 'node:path';
import { pathToFileURL } from 'node:url';
import WebSocket from 'ws';
import { dienen } from './diener.mjs';

const [seitenordner, proben] = process.argv.slice(2);
const profil = fs.mkdtempSync(path.join(os.tmpdir(), 'zepholt-firefox-'));
fs.writeFileSync(path.join(profil, 'user.js'), [
  ['intl.accept_languages', 'de-CH, de'], ['app.normandy.enabled', false], ['toolkit.telemetry.server', ''], ['browser.shell.checkDefaultBrowser', false],
  ['datareporting.policy.dataSubmissionEnabled', false], ['browser.aboutwelcome.enabled', false], ['app.update.enabled', false], ['extensions.update.enabled', false],
].map(([name, wert]) => `user_pref(${JSON.stringify(name)}, ${JSON.stringify(wert)});`).join('\n'));
const diener = await dienen(seitenordner);
const firefox = spawn(process.env.FIREFOX ?? '/usr/bin/firefox-esr', ['--headless', '--no-remote', '--profile', profil, '--remote-debugging-port', '0'],
  { stdio: ['ignore', 'ignore', 'pipe'], env: { ...process.env, HOME: profil } });
const adresse = await new Promise((gut, schlecht) => {
  let text = '';
  firefox.stderr.on('data', (stueck) => {
    text += stueck;
    const fund = /WebDriver BiDi listening on (ws:\S+)/.exec(text);
    if (fund) gut(fund[1]);
  });
  firefox.on('exit', () => schlecht(new Error('firefox ended: ' + text)));
});
const draht = new WebSocket(adresse + '/session');
await new Promise((gut, schlecht) => { draht.on('open', gut); draht.on('error', schlecht); });
let nummer = 0;
const offene = new Map();
const anfragen = [];
draht.on('message', (roh) => {
  const m = JSON.parse(roh);
  if (m.method === 'network.beforeRequestSent') anfragen.push(m.params.request.url);
  if (m.id === undefined) return;
  const { gut, schlecht } = offene.get(m.id);
  if (m.type === 'error') schlecht(new Error(m.error + ': ' + m.message));
  else gut(m.result);
});
const rufe = (method, params) => new Promise((gut, schlecht) => {
  offene.set(++nummer, { gut, schlecht });
  draht.send(JSON.stringify({ id: nummer, method, params }));
});

let geprueft = 0;
let falsch = 0;
const erwarte = (name, ist, soll) => {
  ++geprueft;
  if (JSON.stringify(ist) === JSON.stringify(soll)) return;
  ++falsch;
  console.log(`FALSE ${name}: ${JSON.stringify(ist)?.slice(0, 400)} instead of ${JSON.stringify(soll)?.slice(0, 400)}`);
};
await rufe('session.new', { capabilities: {} });
await rufe('session.subscribe', { events: ['network.beforeRequestSent'] });
const { contexts: [{ context }] } = await rufe('browsingContext.getTree', {});
const werte = async (ausdruck, wo = context) => {
  const { result, exceptionDetails } = await rufe('script.evaluate', { expression: ausdruck, target: { context: wo }, awaitPromise: true });
  if (exceptionDetails) throw new Error(exceptionDetails.text);
  return result.value;
};
const warte = async (ausdruck, wo) => {
  for (const ende = Date.now() + 90000; Date.now() < ende; await new Promise((gut) => { setTimeout(gut, 100); })) {
    if (await werte(`Boolean(${ausdruck})`, wo)) return;
  }
  throw new Error('never: ' + ausdruck);
};
const gehe = async (url) => {
  await rufe('browsingContext.navigate', { context, url, wait: 'complete' });
  await warte("document.documentElement.dataset.bereit !== undefined");
};
const gib = async (wahl, dateien) => {
  const { nodes: [element] } = await rufe('browsingContext.locateNodes', { context, locator: { type: 'css', value: wahl } });
  await rufe('input.setFiles', { context, element: { sharedId: element.sharedId }, files: dateien.map((d) => path.resolve(d)) });
};
const bericht = async () => {
  await warte("document.querySelector('#rahmen iframe')");
  for (;;) {
    const { contexts: [baum] } = await rufe('browsingContext.getTree', { root: context });
    const rahmen = baum.children[0]?.context;
    if (rahmen && await werte("document.querySelector('.urteil h1') !== null", rahmen)) return rahmen;
    await new Promise((gut) => { setTimeout(gut, 100); });
  }
};
// The protocol as the page would save it.
const protokoll = () => werte(`new Promise((gut) => {
  const alt = HTMLAnchorElement.prototype.click;
  HTMLAnchorElement.prototype.click = function () { HTMLAnchorElement.prototype.click = alt; fetch(this.href).then((a) => a.arrayBuffer()).then((b) => gut(String.fromCharCode(...new Uint8Array(b)))); };
  document.querySelector('#sichern-protokoll').click();
})`);
const sauber = (text) => text.replace(/<(Date|Time)>[^<]*/g, '<$1>');
const soll = sauber(fs.readFileSync('fehlerhaft.01S.xml', 'latin1'));
const hauptweg = async (name) => {
  await gib('#eingabe-katalogdatei', [path.join(proben, 'katalog.vlt')]);
  await warte("document.querySelector('#katalog-stand').textContent.startsWith('katalog.vlt')");
  const von = Date.now();
  await gib('#eingabe-dateien', [path.join(proben, 'fehlerhaft.01S')]);
  const rahmen = await bericht();
  console.log(`   ${name}: ${(Date.now() - von) / 1000} s from the choice to the report`);
  erwarte(name + ': verdict', (await werte("document.querySelector('.urteil h1').textContent", rahmen)).trim().startsWith('35 Fehler'), true);
  erwarte(name + ': protocol', sauber(await protokoll()) === soll, true);
  await werte("document.querySelector('#sprachen button[value=\"1\"]').click()", rahmen);
  erwarte(name + ': the report changes its language', await werte('document.documentElement.lang', rahmen), 'fr');
};

try {
  await gehe(diener.adresse);
  await hauptweg('server');
  await gehe(diener.adresse);
  erwarte('the catalogue is kept over a reload', await werte("document.querySelector('#katalog-stand').textContent.startsWith('katalog.vlt')"), true);
  await warte("/auch ohne Netz/.test(document.querySelector('#netz-stand').textContent)");
  const adresseVorher = diener.adresse;
  await diener.schliessen();
  await gehe(adresseVorher);
  await gib('#eingabe-dateien', [path.join(proben, 'sauber.01S')]);
  erwarte('no server: verdict', await werte("document.querySelector('.urteil').className", await bericht()), 'urteil ordnung');
  // A cancel reaches the run.
  await gehe(adresseVorher);
  await gib('#eingabe-dateien', ['gross100.01S']);
  await warte("document.querySelector('#schritt').textContent !== ''");
  await werte("document.querySelector('#abbrechen').click()");
  await warte("!document.querySelector('#meldung').hidden");
  erwarte('cancelled', await werte("document.querySelector('#meldung').textContent"), 'Die Prüfung ist abgebrochen; es gibt keinen Bericht.');
  const fremde = anfragen.filter((url) => !url.startsWith(adresseVorher) && !url.startsWith('blob:') && !url.startsWith('about:') && !url.startsWith('data:'));
  erwarte('foreign requests', fremde, []);

  await gehe(pathToFileURL(path.join(seitenordner, 'index.html')).href);
  await hauptweg('file://');
  const bild = await rufe('browsingContext.captureScreenshot', { context });
  fs.writeFileSync('firefox.png', Buffer.from(bild.data, 'base64'));
} finally {
  draht.close();
  firefox.removeAllListeners('exit');
  const ende = new Promise((gut) => { firefox.on('exit', gut); });
  firefox.kill();
  await ende;
  fs.rmSync(profil, { recursive: true, force: true, maxRetries: 5, retryDelay: 200 });
}
console.log(`${geprueft} checks in Firefox, ${falsch} false`);
process.exit(falsch ? 1 : 0);
