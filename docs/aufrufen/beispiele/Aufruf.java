// Tests an exchange file with ZEPHOLT and reads the outcome.
// Aufruf PROGRAM EXCHANGE-FILE PROTOCOL CATALOGUE SCHEMA [MODE]; status 0 no errors, 1 errors, 2 no protocol.
import java.io.IOException;
import java.nio.charset.StandardCharsets;
import java.nio.file.Files;
import java.nio.file.Path;
import java.util.ArrayList;
import java.util.List;
import javax.xml.XMLConstants;
import javax.xml.parsers.DocumentBuilder;
import javax.xml.parsers.DocumentBuilderFactory;
import javax.xml.parsers.ParserConfigurationException;
import javax.xml.transform.dom.DOMSource;
import javax.xml.validation.SchemaFactory;
import org.w3c.dom.Document;
import org.w3c.dom.Element;
import org.w3c.dom.NodeList;
import org.xml.sax.SAXException;
import org.xml.sax.helpers.DefaultHandler;

public class Aufruf {
    static class OhneProtokoll extends Exception {
        OhneProtokoll(String grund) {
            super(grund);
        }
    }

    static final boolean WINDOWS = System.getProperty("os.name").startsWith("Windows");

    // One parameter. On Windows the quotation marks begin behind the "="; elsewhere the system keeps a value together.
    static String parameter(String schluessel, Path wert) {
        return WINDOWS ? schluessel + "=\"" + wert + "\"" : schluessel + "=" + wert;
    }

    // On Windows ProcessBuilder joins its list with blanks, and puts marks of its own around a part that holds one:
    // around the whole of file="C:\Los 1\x.01S", which the program can't read. So a parameter is handed over in
    // pieces without a blank, which come out as the text that is wanted.
    static List<String> kommando(String programm, List<String> parameter) throws OhneProtokoll {
        List<String> kommando = new ArrayList<>(List.of(programm));
        for (String einer : parameter) {
            if (WINDOWS && einer.contains("  ")) {
                throw new OhneProtokoll("two blanks in a row can't be handed over");
            }
            kommando.addAll(WINDOWS ? List.of(einer.split(" ")) : List.of(einer));
        }
        return kommando;
    }

    // What the program would refuse, in the order of its own tests. Deletes the old protocol.
    static void parameterPruefen(Path datei, Path protokoll, Path katalog, String modus) throws OhneProtokoll {
        if (!Files.isRegularFile(datei)) {
            throw new OhneProtokoll("1003 exchange file not found");
        }
        try {
            Files.deleteIfExists(protokoll);
            Files.createFile(protokoll);
            Files.delete(protokoll);
        } catch (IOException fehler) {
            throw new OhneProtokoll("1005 protocol can't be made, or the old one not deleted");
        }
        if (!Files.exists(katalog)) {
            throw new OhneProtokoll("1006 catalogue not found");
        }
        if (!List.of("", "E", "I").contains(modus)) {
            throw new OhneProtokoll("1007 mode is neither E nor I");
        }
    }

    // Starts the program and waits for its end, as a program of the window subsystem needs it.
    static void starten(List<String> kommando, Path protokoll) throws OhneProtokoll, InterruptedException, IOException {
        Process lauf;
        try {
            lauf = new ProcessBuilder(kommando).start();
        } catch (IOException fehler) {
            throw new OhneProtokoll("the program can't be started");
        }
        String zeile = new String(lauf.getErrorStream().readAllBytes(), StandardCharsets.UTF_8).strip();
        int status = lauf.waitFor();
        if (status == 1 && !zeile.isEmpty()) {
            throw new OhneProtokoll("run-time failure: " + zeile);
        }
        if (status != 0) {
            throw new OhneProtokoll("ended from outside");
        }
        if (!Files.exists(protokoll)) {
            throw new OhneProtokoll("it could not be written at the end");
        }
    }

    // Errors and warnings, counted from the findings: the head of an E1S protocol adds them up.
    static int[] lesen(Path protokoll, Path schema) throws OhneProtokoll, IOException, ParserConfigurationException {
        Document xml;
        try {
            DocumentBuilder leser = DocumentBuilderFactory.newInstance().newDocumentBuilder();
            leser.setErrorHandler(new DefaultHandler()); // the message is this program's
            xml = leser.parse(protokoll.toFile());
            SchemaFactory.newInstance(XMLConstants.W3C_XML_SCHEMA_NS_URI).newSchema(schema.toFile()).newValidator()
                .validate(new DOMSource(xml));
        } catch (SAXException fehler) {
            throw new OhneProtokoll("what lies there is none: " + fehler.getMessage());
        }
        int warnungen = 0;
        NodeList befunde = xml.getElementsByTagName("Error");
        for (int i = 0; i < befunde.getLength(); i++) {
            warnungen += ((Element) befunde.item(i)).getAttribute("E").equals("B") ? 1 : 0;
        }
        return new int[] {befunde.getLength() - warnungen, warnungen};
    }

    public static void main(String[] angaben) throws Exception {
        Path datei = Path.of(angaben[1]).toAbsolutePath();
        Path protokoll = Path.of(angaben[2]).toAbsolutePath();
        Path katalog = Path.of(angaben[3]).toAbsolutePath();
        String modus = angaben.length > 5 ? angaben[5] : "";
        try {
            parameterPruefen(datei, protokoll, katalog, modus);
            List<String> parameter = new ArrayList<>(List.of(parameter("file", datei), "dialog=de-",
                parameter("errorfile", protokoll), parameter("catalog", katalog)));
            if (!modus.isEmpty()) {
                parameter.add("mode=" + modus);
            }
            starten(kommando(angaben[0], parameter), protokoll);
            int[] anzahl = lesen(protokoll, Path.of(angaben[4]));
            System.out.println("errors " + anzahl[0] + ", warnings " + anzahl[1]);
            System.exit(anzahl[0] > 0 ? 1 : 0);
        } catch (OhneProtokoll fehler) {
            System.out.println("no protocol: " + fehler.getMessage());
            System.exit(2);
        }
    }
}
