# Sounds: sounds.txt lists them all, each has a recipe of its name, and all recordings of one are made at once.
add_subdirectory(${PROJECT_SOURCE_DIR}/tools/soundmaker ${CMAKE_CURRENT_BINARY_DIR}/soundmaker)

set(sound_recipes ${CMAKE_CURRENT_SOURCE_DIR}/Default/Sound)
set(sound_list ${sound_recipes}/sounds.txt)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${sound_list})
file(MAKE_DIRECTORY ${SKINS_OUT}/Default/Sound)

file(STRINGS ${sound_list} sound_lines REGEX "^[a-z]")
foreach(line ${sound_lines})
  string(REGEX REPLACE "#.*" "" line "${line}")
  string(REGEX MATCHALL "[^ \t]+" words "${line}")
  list(REMOVE_ITEM words loop)
  list(POP_FRONT words name seconds loudness)
  set(recordings ${SKINS_OUT}/Default/Sound/${name}.wav)
  list(LENGTH words count)
  foreach(recording RANGE 2 ${count})
    list(APPEND recordings ${SKINS_OUT}/Default/Sound/${name}${recording}.wav)
  endforeach()
  add_custom_command(OUTPUT ${recordings}
    COMMAND soundmaker ${sound_list} ${sound_recipes}/${name}.txt ${SKINS_OUT}/Default/Sound
    DEPENDS soundmaker ${sound_list} ${sound_recipes}/${name}.txt
    COMMENT "Generating Skins/Default/Sound/${name}.wav"
    VERBATIM)
  list(APPEND skin_files ${recordings})
endforeach()
