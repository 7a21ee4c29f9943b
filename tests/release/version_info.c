/* Prints the version resource of a Windows file as Windows reads it (GetFileVersionInfoW), one
 * line a value, so that a test can compare it with the version the release claims:
 *
 *   fixed FILEVERSION PRODUCTVERSION
 *   LANGCODEPAGE NAME VALUE          for each translation and each name asked for (UTF-8)
 *
 * tx_version_info FILE; exits 1 when the file has no version resource. */
#include <stdio.h>
#include <stdlib.h>
#include <windows.h>

static const wchar_t* const names[] = {L"FileVersion", L"ProductVersion", L"FileDescription",
                                       L"OriginalFilename"};

static void print_utf8(const wchar_t* text) {
  char buffer[1024];
  if (WideCharToMultiByte(CP_UTF8, 0, text, -1, buffer, sizeof buffer, NULL, NULL) > 0) {
    fputs(buffer, stdout);
  }
}

int wmain(int argc, wchar_t** argv) {
  if (argc != 2) {
    fputs("usage: tx_version_info FILE\n", stderr);
    return 2;
  }
  DWORD ignored = 0;
  const DWORD size = GetFileVersionInfoSizeW(argv[1], &ignored);
  if (size == 0) {
    fputs("tx_version_info: the file has no version resource\n", stderr);
    return 1;
  }
  void* data = malloc(size);
  if (data == NULL || !GetFileVersionInfoW(argv[1], 0, size, data)) {
    free(data);
    fputs("tx_version_info: cannot read the version resource\n", stderr);
    return 1;
  }
  VS_FIXEDFILEINFO* fixed = NULL;
  UINT length = 0;
  if (VerQueryValueW(data, L"\\", (void**)&fixed, &length) && length >= sizeof *fixed) {
    printf("fixed %u.%u.%u.%u %u.%u.%u.%u\n", (unsigned)HIWORD(fixed->dwFileVersionMS),
           (unsigned)LOWORD(fixed->dwFileVersionMS), (unsigned)HIWORD(fixed->dwFileVersionLS),
           (unsigned)LOWORD(fixed->dwFileVersionLS), (unsigned)HIWORD(fixed->dwProductVersionMS),
           (unsigned)LOWORD(fixed->dwProductVersionMS), (unsigned)HIWORD(fixed->dwProductVersionLS),
           (unsigned)LOWORD(fixed->dwProductVersionLS));
  }
  WORD* translations = NULL;
  if (VerQueryValueW(data, L"\\VarFileInfo\\Translation", (void**)&translations, &length)) {
    for (UINT i = 0; i + 1 < length / sizeof(WORD); i += 2) {
      for (size_t n = 0; n < sizeof names / sizeof names[0]; ++n) {
        wchar_t query[128];
        swprintf(query, 128, L"\\StringFileInfo\\%04x%04x\\%ls", (unsigned)translations[i],
                 (unsigned)translations[i + 1], names[n]);
        wchar_t* value = NULL;
        UINT value_length = 0;
        printf("%04x%04x ", (unsigned)translations[i], (unsigned)translations[i + 1]);
        print_utf8(names[n]);
        fputs(" ", stdout);
        if (VerQueryValueW(data, query, (void**)&value, &value_length) && value_length > 0) {
          print_utf8(value);
        } else {
          fputs("(none)", stdout);
        }
        fputs("\n", stdout);
      }
    }
  }
  free(data);
  return 0;
}
