# 64-bit Windows, from the 64-bit XP on.
set(MINGW_PROCESSOR x86_64)
set(TIDEWRIGHT_OLDEST_WINDOWS 5.2)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
