/* Holds Wine's desktop open while the Windows build's tests run under Wine.
 *
 * Loading an icon or a bitmap through user32 needs the desktop, and Wine closes the desktop a
 * second after its last user leaves. Between two test programs it would close, and the next
 * program would start the desktop process again, handing it its own output pipe: the test
 * runner then waits on that pipe for as long as the desktop lives, and a program that starts
 * while the desktop is closing may fail outright. wine-run.sh starts this program once, right
 * after booting the prefix and with every stream closed; it uses the desktop, creates the file
 * named by its argument to say so, and stays until the wineserver is stopped (or gives up after
 * half an hour, so that a forgotten server can still end). */
#include <windows.h>

int main(int argc, char** argv) {
  if (GetDesktopWindow() == NULL) return 1;
  if (argc > 1) {
    HANDLE ready = CreateFileA(argv[1], GENERIC_WRITE, 0, NULL, CREATE_ALWAYS, 0, NULL);
    if (ready != INVALID_HANDLE_VALUE) CloseHandle(ready);
  }
  Sleep(30 * 60 * 1000);
  return 0;
}
