# 32-bit Windows, from XP on.
set(MINGW_PROCESSOR i686)
set(TIDEWRIGHT_OLDEST_WINDOWS 5.1)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
