// Serves runs of the module on a port of this machine: dienst.mjs MODULE-FOLDER FILE, which gets the port's number. A request is
// fields that end with a zero byte: how many arguments follow, the folder to run in, the entry, the arguments. The answer is
// the status and the messages, a line each. Ends when its standard input does.
import fs from 'node:fs';
import net from 'node:net';
import { modulLaden } from './modul.mjs';

const [ordner, ort] = process.argv.slice(2);
const lauf = await modulLaden(ordner);
// A byte that is no valid UTF-8 becomes a unit U+DC80 to U+DCFF, as in a path of the module.
const textAus = (bytes) => {
  try {
    return new TextDecoder('utf-8', { fatal: true, ignoreBOM: true }).decode(bytes);
  } catch {
    let text = '';
    for (let i = 0; i < bytes.length;) {
      const laenge = [1, 2, 3, 4].find((n) => !bytes.toString('utf8', i, i + n).includes('\ufffd')) ?? 0;
      text += laenge ? bytes.toString('utf8', i, i + laenge) : String.fromCharCode(0xdc00 + bytes[i]);
      i += laenge || 1;
    }
    return text;
  }
};
const felderAus = (bytes) => {
  const felder = [];
  for (let ab = 0, bis; (bis = bytes.indexOf(0, ab)) >= 0; ab = bis + 1) felder.push(textAus(bytes.subarray(ab, bis)));
  return felder;
};
const bedienen = async ([, wo, was, ...felder]) => {
  process.chdir(wo);
  try {
    const { status, platte } = await lauf(was, felder);
    return [status, ...platte.meldungen];
  } catch (fehler) {
    return [134, String(fehler?.stack ?? fehler)];
  }
};
let reihe = Promise.resolve(); // one run after the other: the folder is the process's
const server = net.createServer((verbindung) => {
  let bytes = Buffer.alloc(0);
  verbindung.on('data', (stueck) => {
    bytes = Buffer.concat([bytes, stueck]);
    const felder = felderAus(bytes);
    if (felder.length < 3 + Number(felder[0] ?? 0)) return;
    reihe = reihe.then(async () => {
      const zeilen = await bedienen(felder);
      verbindung.end(Buffer.concat(zeilen.flatMap((z) => [Buffer.from(typeof z === 'number' ? String(z) : z), Buffer.from('\n')])));
    });
  });
  verbindung.on('error', () => {});
});
server.listen(0, '127.0.0.1', () => fs.writeFileSync(ort, String(server.address().port)));
process.stdin.resume();
process.stdin.on('end', () => process.exit(0));
