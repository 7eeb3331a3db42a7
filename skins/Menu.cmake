# The menus: shaped windows, buttons and the keys that say where all of it stands.
set(menu ${CMAKE_CURRENT_SOURCE_DIR}/Default/Menu)
file(GLOB part_files CONFIGURE_DEPENDS ${menu}/parts/*.svg)

# One drawing of the paw gives six pictures; a style sheet chooses what of it is seen and what is lit.
skin_picture(${menu}/palm.svg Default/Menu/palm)
foreach(look palmPlay fingerPlay fingerRePlay fingerEditor finger4)
  skin_picture(${menu}/palm.svg Default/Menu/${look} ${menu}/${look}.css)
endforeach()

# All others may take parts from the folder of parts.
file(GLOB menu_drawings CONFIGURE_DEPENDS ${menu}/*.svg)
list(REMOVE_ITEM menu_drawings ${menu}/palm.svg)
foreach(svg ${menu_drawings})
  get_filename_component(name ${svg} NAME_WE)
  skin_picture(${svg} Default/Menu/${name})
  add_custom_command(OUTPUT ${SKINS_OUT}/Default/Menu/${name}.bmp APPEND DEPENDS ${part_files})
endforeach()

# skin_text(PATH): a text file of a skin, written in UTF-8, read by the game in Windows-1250.
function(skin_text path)
  set(source ${CMAKE_CURRENT_SOURCE_DIR}/${path})
  set(text ${SKINS_OUT}/${path})
  get_filename_component(folder ${text} DIRECTORY)
  file(MAKE_DIRECTORY ${folder})
  add_custom_command(OUTPUT ${text}
    COMMAND skinmaker text ${source} ${text}
    DEPENDS ${source} skinmaker
    COMMENT "Generating Skins/${path}"
    VERBATIM)
  set(skin_files ${skin_files} ${text} PARENT_SCOPE)
endfunction()

skin_text(Default/Menu/skindata.txt)
skin_text(Default/Menu/catdata.txt)

# All other skins, and a language is one: they hold what is different from the default skin. Drawings and texts are
# made as its own are, finished pictures and sounds are copied.
file(GLOB_RECURSE others RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS *.txt *.svg *.bmp *.jpg *.gif *.wav)
list(FILTER others EXCLUDE REGEX "^Default/")
list(FILTER others INCLUDE REGEX "/(Menu|Game|Sound)/")
foreach(other ${others})
  if(other MATCHES "[.]txt$")
    skin_text(${other})
  elseif(other MATCHES "[.]svg$")
    string(REGEX REPLACE "[.]svg$" "" name ${other})
    skin_picture(${CMAKE_CURRENT_SOURCE_DIR}/${other} ${name})
  else()
    configure_file(${other} ${SKINS_OUT}/${other} COPYONLY)
    list(APPEND skin_files ${SKINS_OUT}/${other})
  endif()
endforeach()
