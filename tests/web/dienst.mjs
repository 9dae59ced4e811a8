// Serves runs of the module over a socket: dienst.mjs MODULE-FOLDER SOCKET. A request is one line of JSON: the folder to run in,
// the entry and its fields; the answer one line: status and messages. Ends when its standard input does.
import net from 'node:net';
import { modulLaden } from './modul.mjs';

const [ordner, ort] = process.argv.slice(2);
const lauf = await modulLaden(ordner);
const bedienen = async (zeile) => {
  const { wo, was, felder } = JSON.parse(zeile);
  process.chdir(wo);
  try {
    const { status, platte } = await lauf(was, felder);
    return { status, meldungen: platte.meldungen.map((m) => m.toString('latin1')) };
  } catch (fehler) {
    return { status: 134, meldungen: [String(fehler?.stack ?? fehler)] };
  }
};
let reihe = Promise.resolve(); // one run after the other: the folder is the process's
net.createServer((verbindung) => {
  let text = '';
  verbindung.on('data', (stueck) => {
    text += stueck;
    if (!text.endsWith('\n')) return;
    const zeile = text;
    text = '';
    reihe = reihe.then(async () => verbindung.end(JSON.stringify(await bedienen(zeile)) + '\n'));
  });
  verbindung.on('error', () => {});
}).listen(ort);
process.stdin.resume();
process.stdin.on('end', () => process.exit(0));
