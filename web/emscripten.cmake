# Compiles with Emscripten, wherever that is installed.
find_program(EMCC emcc REQUIRED)
file(REAL_PATH ${EMCC} emcc)
get_filename_component(emscripten ${emcc} DIRECTORY)
include(${emscripten}/cmake/Modules/Platform/Emscripten.cmake)
