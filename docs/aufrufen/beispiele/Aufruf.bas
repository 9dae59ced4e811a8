Option Explicit

' Tests an exchange file with ZEPHOLT and reads the outcome. Whole paths, please.
' Returns "errors 35, warnings 6", or "no protocol: " and the reason.
Public Function Pruefen(Programm As String, Datei As String, Protokoll As String, Katalog As String, _
                        Schema As String, Optional Modus As String = "") As String
    Dim Grund As String
    Grund = ParameterFehler(Datei, Protokoll, Katalog, Modus)
    If Grund = "" Then Grund = Starten(Programm, Kommandotext(Datei, Protokoll, Katalog, Modus), Protokoll)
    If Grund = "" Then Pruefen = Lesen(Protokoll, Schema) Else Pruefen = "no protocol: " & Grund
End Function

' The text of the command as the program gets it: the quotation marks begin behind the "=".
Private Function Kommandotext(Datei As String, Protokoll As String, Katalog As String, Modus As String) As String
    Kommandotext = "file=""" & Datei & """ dialog=de- errorfile=""" & Protokoll & """ catalog=""" & Katalog & """"
    If Modus <> "" Then Kommandotext = Kommandotext & " mode=" & Modus
End Function

' What the program would refuse, in the order of its own tests. Deletes the old protocol.
Private Function ParameterFehler(Datei As String, Protokoll As String, Katalog As String, Modus As String) As String
    Dim System As Object
    Set System = CreateObject("Scripting.FileSystemObject")
    If Not System.FileExists(Datei) Then ParameterFehler = "1003 exchange file not found": Exit Function
    On Error Resume Next
    If System.FileExists(Protokoll) Then System.DeleteFile Protokoll, True
    If Err.Number = 0 Then System.CreateTextFile(Protokoll, False).Close
    If Err.Number = 0 Then System.DeleteFile Protokoll
    If Err.Number <> 0 Then
        ParameterFehler = "1005 protocol can't be made, or the old one not deleted"
        Exit Function
    End If
    On Error GoTo 0
    If Not (System.FolderExists(Katalog) Or System.FileExists(Katalog)) Then
        ParameterFehler = "1006 catalogue not found"
    ElseIf Modus <> "" And Modus <> "E" And Modus <> "I" Then
        ParameterFehler = "1007 mode is neither E nor I"
    End If
End Function

' Starts the program and waits for its end. Shell of VBA does not wait.
Private Function Starten(Programm As String, Text As String, Protokoll As String) As String
    Dim Lauf As Object, Zeile As String
    On Error Resume Next
    Set Lauf = CreateObject("WScript.Shell").Exec("""" & Programm & """ " & Text)
    If Err.Number <> 0 Then Starten = "the program can't be started": Exit Function
    On Error GoTo 0
    Do While Not Lauf.StdErr.AtEndOfStream
        Zeile = Zeile & Lauf.StdErr.ReadLine
    Loop
    Do While Lauf.Status = 0
        DoEvents
    Loop
    If Lauf.ExitCode = 1 And Zeile <> "" Then
        Starten = "run-time failure: " & Zeile
    ElseIf Lauf.ExitCode <> 0 Then
        Starten = "ended from outside"
    ElseIf Dir(Protokoll) = "" Then
        Starten = "it could not be written at the end"
    End If
End Function

' Errors and warnings, counted from the findings: the head of an E1S protocol adds them up.
Private Function Lesen(Protokoll As String, Schema As String) As String
    Dim Xml As Object, Regeln As Object, Warnungen As Long
    Set Regeln = CreateObject("MSXML2.XMLSchemaCache.6.0")
    Regeln.Add "", Schema
    Set Xml = CreateObject("MSXML2.DOMDocument.6.0")
    Set Xml.schemas = Regeln
    Xml.async = False
    If Not Xml.Load(Protokoll) Then
        Lesen = "no protocol: what lies there is none: " & Xml.parseError.reason
        Exit Function
    End If
    Warnungen = Xml.selectNodes("/SIA451/Errors/Error[@E='B']").Length
    Lesen = "errors " & Xml.selectNodes("/SIA451/Errors/Error").Length - Warnungen & ", warnings " & Warnungen
End Function
