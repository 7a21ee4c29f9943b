# Cross build of the Windows x64 product with mingw-w64; tests run under Wine.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(_tc x86_64-w64-mingw32)
set(CMAKE_C_COMPILER /usr/bin/${_tc}-gcc-posix)
set(CMAKE_CXX_COMPILER /usr/bin/${_tc}-g++-posix)
set(CMAKE_RC_COMPILER /usr/bin/${_tc}-windres)
set(TX_DLLTOOL /usr/bin/${_tc}-dlltool)
set(CMAKE_STRIP /usr/bin/${_tc}-strip)
# Import libraries for MSVC hosts (COFF short import files) and reading them back.
set(TX_LLVM_DLLTOOL /usr/bin/llvm-dlltool-14)
set(TX_LLVM_READOBJ /usr/bin/llvm-readobj-14)
set(CMAKE_FIND_ROOT_PATH /usr/${_tc})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The runtime is linked statically: the DLLs need no mingw DLL beside them. No link time goes into
# the PE headers, so that the same sources always give the same bytes (the release is checked
# byte for byte).
set(_tx_link "-static -static-libgcc -static-libstdc++ -Wl,--no-insert-timestamp")
set(CMAKE_EXE_LINKER_FLAGS_INIT "${_tx_link}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "${_tx_link}")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "${_tx_link}")
set(CMAKE_RC_FLAGS_INIT "-c 65001") # .rc sources are UTF-8
find_program(WINE_EXECUTABLE wine REQUIRED)
set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE_EXECUTABLE})
