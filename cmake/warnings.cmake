# Warnings are errors in both builds.
add_library(tx_warnings INTERFACE)
target_compile_options(tx_warnings INTERFACE
  $<$<COMPILE_LANGUAGE:C,CXX>:-Wall -Wextra -Wpedantic -Werror -Wshadow>
  $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>)
