// Tests an exchange file with ZEPHOLT and reads the outcome.
// Aufruf PROGRAM EXCHANGE-FILE PROTOCOL CATALOGUE SCHEMA [MODE]; status 0 no errors, 1 errors, 2 no protocol.
using System;
using System.ComponentModel;
using System.Diagnostics;
using System.IO;
using System.Text;
using System.Xml;

class OhneProtokoll : Exception
{
    public OhneProtokoll(string grund) : base(grund) { }
}

static class Aufruf
{
    // The text of the command as the program gets it: the quotation marks begin behind the "=".
    static string Kommandotext(string datei, string protokoll, string katalog, string modus)
    {
        string text = $"file=\"{datei}\" dialog=de- errorfile=\"{protokoll}\" catalog=\"{katalog}\"";
        return modus == "" ? text : text + " mode=" + modus;
    }

    // What the program would refuse, in the order of its own tests. Deletes the old protocol.
    static void ParameterPruefen(string datei, string protokoll, string katalog, string modus)
    {
        if (!File.Exists(datei)) throw new OhneProtokoll("1003 exchange file not found");
        try
        {
            File.Delete(protokoll);
            File.Create(protokoll).Close();
            File.Delete(protokoll);
        }
        catch (Exception fehler) when (fehler is IOException || fehler is UnauthorizedAccessException)
        {
            throw new OhneProtokoll("1005 protocol can't be made, or the old one not deleted");
        }
        if (!Directory.Exists(katalog) && !File.Exists(katalog)) throw new OhneProtokoll("1006 catalogue not found");
        if (modus != "" && modus != "E" && modus != "I") throw new OhneProtokoll("1007 mode is neither E nor I");
    }

    // Starts the program and waits for its end, as a program of the window subsystem needs it.
    static void Starten(string programm, string text, string protokoll)
    {
        var start = new ProcessStartInfo(programm, text)
        {
            UseShellExecute = false,
            RedirectStandardError = true,
            StandardErrorEncoding = Encoding.UTF8,
        };
        Process lauf;
        try
        {
            lauf = Process.Start(start);
        }
        catch (Win32Exception)
        {
            throw new OhneProtokoll("the program can't be started");
        }
        string zeile = lauf.StandardError.ReadToEnd().Trim();
        lauf.WaitForExit();
        if (lauf.ExitCode == 1 && zeile != "") throw new OhneProtokoll("run-time failure: " + zeile);
        if (lauf.ExitCode != 0) throw new OhneProtokoll("ended from outside");
        if (!File.Exists(protokoll)) throw new OhneProtokoll("it could not be written at the end");
    }

    // Errors and warnings, counted from the findings: the head of an E1S protocol adds them up.
    static int[] Lesen(string protokoll, string schema)
    {
        var regeln = new XmlReaderSettings { ValidationType = ValidationType.Schema };
        regeln.Schemas.Add(null, schema);
        var xml = new XmlDocument();
        try
        {
            using (XmlReader leser = XmlReader.Create(protokoll, regeln)) xml.Load(leser);
        }
        catch (Exception fehler) when (fehler is XmlException || fehler is System.Xml.Schema.XmlSchemaException)
        {
            throw new OhneProtokoll("what lies there is none: " + fehler.Message);
        }
        int warnungen = xml.SelectNodes("/SIA451/Errors/Error[@E='B']").Count;
        return new[] { xml.SelectNodes("/SIA451/Errors/Error").Count - warnungen, warnungen };
    }

    static int Main(string[] angaben)
    {
        string datei = Path.GetFullPath(angaben[1]), protokoll = Path.GetFullPath(angaben[2]);
        string katalog = Path.GetFullPath(angaben[3]), modus = angaben.Length > 5 ? angaben[5] : "";
        try
        {
            ParameterPruefen(datei, protokoll, katalog, modus);
            Starten(angaben[0], Kommandotext(datei, protokoll, katalog, modus), protokoll);
            int[] anzahl = Lesen(protokoll, angaben[4]);
            Console.WriteLine("errors {0}, warnings {1}", anzahl[0], anzahl[1]);
            return anzahl[0] > 0 ? 1 : 0;
        }
        catch (OhneProtokoll fehler)
        {
            Console.WriteLine("no protocol: " + fehler.Message);
            return 2;
        }
    }
}
