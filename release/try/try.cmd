@echo off
rem Opens the rename dialog in a window on a copy of the sample project city.json, in Russian.
rem The copy goes to %TEMP%\txk_project_rename; the sample beside this file is never written.
rem Accepting the dialog saves the new names into the copy and lists them here.
setlocal
chcp 65001 >nul
for %%I in ("%~dp0..") do set "top=%%~fI"
set "work=%TEMP%\txk_project_rename"
if not exist "%work%" mkdir "%work%"
copy /y "%~dp0samples\city.json" "%work%\city.json" >nul
if errorlevel 1 goto cannot_copy
"%~dp0txhost.exe" "%work%\city.json" --plugin "%top%\txk_project_rename.dll" --gui %*
echo.
echo The project after the dialog: %work%\city.json
if not defined TX_NO_PAUSE pause
exit /b 0

:cannot_copy
echo Cannot copy the sample project into %work%.
if not defined TX_NO_PAUSE pause
exit /b 1
