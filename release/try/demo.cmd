@echo off
rem Plays the demo story as text: txhost opens a copy of the sample project city.json, runs the
rem rename dialog with the script demo.txt (tick, chain three operations, change case, undo and
rem redo, type names, a refused accept, the accept) and lists the names it saved.
rem demo.cmd --lang en plays it in English. The sample beside this file is never written.
setlocal
chcp 65001 >nul
for %%I in ("%~dp0..") do set "top=%%~fI"
set "work=%TEMP%\txk_project_rename"
if not exist "%work%" mkdir "%work%"
copy /y "%~dp0samples\city.json" "%work%\city.json" >nul
if errorlevel 1 goto cannot_copy
pushd "%work%"
"%~dp0txhost.exe" city.json --plugin "%top%\txk_project_rename.dll" --script "%~dp0demo.txt" %*
set "status=%errorlevel%"
popd
echo.
echo The project after the demo: %work%\city.json
if not defined TX_NO_PAUSE pause
exit /b %status%

:cannot_copy
echo Cannot copy the sample project into %work%.
if not defined TX_NO_PAUSE pause
exit /b 1
