@echo off
rem Tests an exchange file with ZEPHOLT and reads the outcome.
rem aufruf.bat PROGRAM EXCHANGE-FILE PROTOCOL CATALOGUE [MODE]; status 0 no errors, 1 errors, 2 no protocol.
rem zepholt-bericht.exe, which reads the protocol, stands beside the program.
setlocal disabledelayedexpansion

if not exist "%~f1" (
    echo no protocol: the program can't be started
    exit /b 2
)

rem What the program would refuse, in the order of its own tests. Deletes the old protocol.
if not exist "%~f2" (
    echo no protocol: 1003 exchange file not found
    exit /b 2
)
if exist "%~f3" del /f /q "%~f3" 2>nul
if exist "%~f3" (
    echo no protocol: 1005 the old one can't be deleted
    exit /b 2
)
(type nul >"%~f3") 2>nul
if not exist "%~f3" (
    echo no protocol: 1005 protocol can't be made
    exit /b 2
)
del "%~f3"
if not exist "%~f4" (
    echo no protocol: 1006 catalogue not found
    exit /b 2
)
set modus=
if "%~5"=="" goto starten
if "%~5"=="E" goto mitmodus
if "%~5"=="I" goto mitmodus
echo no protocol: 1007 mode is neither E nor I
exit /b 2
:mitmodus
set modus= mode=%~5

rem The quotation marks begin behind the "=". A batch file waits for a program of the window subsystem too; the prompt
rem doesn't.
:starten
set meldung="%temp%\zepholt-%random%.txt"
"%~f1" file="%~f2" dialog=de- errorfile="%~f3" catalog="%~f4"%modus% 2>%meldung%
set status=%errorlevel%
set laenge=0
for %%d in (%meldung%) do set laenge=%%~zd
if %status%==1 if not %laenge%==0 (
    echo no protocol: run-time failure:
    type %meldung%
    del %meldung%
    exit /b 2
)
del %meldung%
if exist "%~f3" goto lesen
if %status%==0 (
    echo no protocol: it could not be written at the end
) else (
    echo no protocol: ended from outside
)
exit /b 2

rem A batch file can't read XML: the companion does, and its status is the outcome.
:lesen
"%~dp1zepholt-bericht.exe" verdict "%~f3"
exit /b %errorlevel%
