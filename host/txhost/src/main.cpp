// txhost's entry point: the arguments as UTF-8, stdout as raw bytes.
#include <cstdio>
#include <string>
#include <vector>

#include "txhost.h"

#ifdef _WIN32
#include <fcntl.h>
#include <io.h>

#include "tx_host/services/utf.h"

int wmain(int argc, wchar_t** argv) {
  // Binary mode: the UTF-8 bytes and line breaks go out exactly as written, and commands come
  // in as written.
  _setmode(_fileno(stdout), _O_BINARY);
  _setmode(_fileno(stdin), _O_BINARY);
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) {
    const std::wstring_view wide(argv[i]);
    arguments.push_back(tx::host::to_utf8(
        std::u16string_view(reinterpret_cast<const char16_t*>(wide.data()), wide.size())));
  }
  return tx::host::run_txhost(arguments, stdout, stderr);
}
#else
int main(int argc, char** argv) {
  const std::vector<std::string> arguments(argv + 1, argv + argc);
  return tx::host::run_txhost(arguments, stdout, stderr);
}
#endif
