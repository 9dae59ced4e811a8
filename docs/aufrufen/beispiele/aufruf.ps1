# Tests an exchange file with ZEPHOLT and reads the outcome. For Windows PowerShell 5.1 and PowerShell 7 on Windows.
# aufruf.ps1 PROGRAM EXCHANGE-FILE PROTOCOL CATALOGUE SCHEMA [MODE]; status 0 no errors, 1 errors, 2 no protocol.
param([string]$Programm, [string]$Datei, [string]$Protokoll, [string]$Katalog, [string]$Schema, [string]$Modus = '')
$ErrorActionPreference = 'Stop'

function Enden-OhneProtokoll([string]$Grund) {
    Write-Output "no protocol: $Grund"
    exit 2
}

# .NET has a current folder of its own: it gets whole paths.
$ort = $ExecutionContext.SessionState.Path
$Programm, $Datei, $Protokoll, $Katalog, $Schema = $Programm, $Datei, $Protokoll, $Katalog, $Schema |
    ForEach-Object { $ort.GetUnresolvedProviderPathFromPSPath($_) }

# What the program would refuse, in the order of its own tests. Deletes the old protocol.
if (-not [IO.File]::Exists($Datei)) { Enden-OhneProtokoll '1003 exchange file not found' }
try {
    [IO.File]::Delete($Protokoll)
    [IO.File]::Create($Protokoll).Close()
    [IO.File]::Delete($Protokoll)
} catch {
    Enden-OhneProtokoll "1005 protocol can't be made, or the old one not deleted"
}
if (-not ([IO.Directory]::Exists($Katalog) -or [IO.File]::Exists($Katalog))) {
    Enden-OhneProtokoll '1006 catalogue not found'
}
if ($Modus -cnotin '', 'E', 'I') { Enden-OhneProtokoll '1007 mode is neither E nor I' }

# One text, which goes to the program as it is: the quotation marks begin behind the "=". A call with & would put them
# around each whole parameter, and would not wait for a program of the window subsystem.
$start = New-Object Diagnostics.ProcessStartInfo
$start.FileName = $Programm
$start.Arguments = "file=""$Datei"" dialog=de- errorfile=""$Protokoll"" catalog=""$Katalog"""
if ($Modus) { $start.Arguments += " mode=$Modus" }
$start.UseShellExecute = $false
$start.RedirectStandardError = $true
$start.StandardErrorEncoding = [Text.Encoding]::UTF8
try { $lauf = [Diagnostics.Process]::Start($start) } catch { Enden-OhneProtokoll "the program can't be started" }
$zeile = $lauf.StandardError.ReadToEnd().Trim()
$lauf.WaitForExit()
if ($lauf.ExitCode -eq 1 -and $zeile) { Enden-OhneProtokoll "run-time failure: $zeile" }
if ($lauf.ExitCode -ne 0) { Enden-OhneProtokoll 'ended from outside' }
if (-not [IO.File]::Exists($Protokoll)) { Enden-OhneProtokoll 'it could not be written at the end' }

# Errors and warnings, counted from the findings: the head of an E1S protocol adds them up.
$regeln = New-Object Xml.XmlReaderSettings
$regeln.ValidationType = 'Schema'
[void]$regeln.Schemas.Add([NullString]::Value, $Schema)
$xml = New-Object Xml.XmlDocument
$leser = [Xml.XmlReader]::Create($Protokoll, $regeln)
$mangel = ''
try { $xml.Load($leser) } catch { $mangel = $_.Exception.Message }
$leser.Close()
if ($mangel) { Enden-OhneProtokoll "what lies there is none: $mangel" }
$warnungen = $xml.SelectNodes("/SIA451/Errors/Error[@E='B']").Count
$fehler = $xml.SelectNodes('/SIA451/Errors/Error').Count - $warnungen
Write-Output "errors $fehler, warnings $warnungen"
exit [int]($fehler -gt 0)
