#!/bin/sh
# Tries the release as a Windows user would, with nothing of the build around it: the archive is
# unpacked into an empty folder, Wine runs in a new prefix of its own, and the environment holds
# no build folder on any path. Then:
#  - the plug-in's version resource, as Windows reads it, carries VERSION in both languages;
#  - try\txhost.exe plays the demo script on a copy of the sample city.json and prints exactly
#    the demo's expected text and saves exactly the demo's expected project;
#  - try\demo.cmd, the double-click script, does the same through cmd.exe.
#
# check_unpacked.sh ARCHIVE VERSION VERSION_TOOL EXPECTED_OUTPUT EXPECTED_PROJECT
set -eu
archive=$1 version=$2 version_tool=$3 expected_output=$4 expected_project=$5

root=$(mktemp -d "${TMPDIR:-/tmp}/txk-release.XXXXXX")
prefix=$root/prefix
clean() {
  env -i PATH=/usr/bin:/bin WINEPREFIX="$prefix" wineserver -k >/dev/null 2>&1 || true
  rm -rf "$root"
}
trap clean EXIT
failures=0
fail() {
  printf 'FAILED: %s\n' "$*"
  failures=$((failures + 1))
}

# A Windows path (drive Z: is the Unix root) for a Unix one.
windows_path() { printf 'Z:%s' "$1" | tr / '\\'; }

# A program under Wine with nothing but the system's own folders on PATH.
on_wine() {
  env -i HOME="$root/home" PATH=/usr/bin:/bin LC_ALL=C.UTF-8 WINEPREFIX="$prefix" \
    WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=" TX_NO_PAUSE=1 "$@"
}

mkdir -p "$root/home" "$root/release" "$root/work" "$prefix"
unzip -q "$archive" -d "$root/release"
release=$root/release

# A new prefix, booted with every stream closed (Wine's system processes would otherwise hold
# this script's output open) and a server that stays until the end.
on_wine wineserver -p </dev/null >/dev/null 2>&1
on_wine wine wineboot </dev/null >/dev/null 2>&1

# The version resource, in Russian and in English.
printed=$(cd "$root/work" && on_wine wine "$version_tool" "$(windows_path "$release/txk_project_rename.dll")" |
  tr -d '\r')
wanted="fixed $version.0 $version.0
041904b0 FileVersion $version
041904b0 ProductVersion $version
041904b0 FileDescription Переименование элементов проекта
041904b0 OriginalFilename txk_project_rename.dll
040904b0 FileVersion $version
040904b0 ProductVersion $version
040904b0 FileDescription Rename Project Elements
040904b0 OriginalFilename txk_project_rename.dll"
[ "$printed" = "$wanted" ] || fail "the DLL's version resource:
$printed
expected:
$wanted"

# The demo through try\txhost.exe, in a folder of its own, on a copy named as the end-to-end
# cases name theirs.
cp "$release/try/samples/city.json" "$root/work/project.json"
status=0
(cd "$root/work" && on_wine wine "$(windows_path "$release/try/txhost.exe")" project.json \
  --plugin "$(windows_path "$release/txk_project_rename.dll")" \
  --script "$(windows_path "$release/try/demo.txt")") >"$root/printed.txt" 2>&1 || status=$?
[ "$status" -eq 0 ] || fail "try\\txhost.exe exited $status"
tr -d '\r' <"$root/printed.txt" | sed "s|$(windows_path "$release/try/demo.txt" | sed 's/\\/\\\\/g')|demo.txt|g" \
  >"$root/printed.lf"
cmp -s "$root/printed.lf" "$expected_output" ||
  fail "try\\txhost.exe printed another text than the demo's:
$(diff "$expected_output" "$root/printed.lf" | head -40)"
cmp -s "$root/work/project.json" "$expected_project" || fail "the demo saved another project"

# The same through demo.cmd: it copies the sample itself, into %TEMP%\txk_project_rename.
status=0
(cd "$root/work" && on_wine wine cmd /c "$(windows_path "$release/try/demo.cmd")") \
  >"$root/demo-cmd.txt" 2>&1 || status=$?
[ "$status" -eq 0 ] || fail "try\\demo.cmd exited $status"
# What it prints first is txhost's text, of the copy it calls city.json.
tr -d '\r' <"$root/demo-cmd.txt" | head -n "$(wc -l <"$expected_output")" >"$root/demo-cmd.lf"
sed 's/^saved project\.json:/saved city.json:/' "$expected_output" >"$root/demo-cmd.expected"
cmp -s "$root/demo-cmd.lf" "$root/demo-cmd.expected" ||
  fail "try\\demo.cmd printed another text than the demo's:
$(diff "$root/demo-cmd.expected" "$root/demo-cmd.lf" | head -40)"
saved=$(find "$prefix/drive_c" -path '*/txk_project_rename/city.json' | head -n 1)
if [ -z "$saved" ]; then
  fail "try\\demo.cmd left no copy of city.json in %TEMP%\\txk_project_rename"
else
  cmp -s "$saved" "$expected_project" || fail "try\\demo.cmd saved another project"
fi
unzip -p "$archive" try/samples/city.json | cmp -s - "$release/try/samples/city.json" ||
  fail "the shipped sample try\\samples\\city.json was written"

if [ "$failures" -gt 0 ]; then
  echo "$failures check(s) of the unpacked release failed"
  exit 1
fi
echo "the unpacked release runs: version $version, the demo as text through txhost.exe and demo.cmd"
