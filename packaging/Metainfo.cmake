# Makes METAINFO, the page of the software centres, of what is told in the variables ZORIK_HOMEPAGE, ZORIK_SCREENSHOTS,
# ZORIK_LICENSE and ZORIK_METADATA_LICENSE. What is empty is left out.

# element(VARIABLE INDENT TAG [VALUE]): a line of its own in VARIABLE; none without a value.
function(element variable indent tag)
  set(${variable} "" PARENT_SCOPE)
  if(NOT ARGN)
    return()
  endif()
  string(REPLACE "&" "&amp;" value "${ARGN}")
  string(REPLACE "<" "&lt;" value "${value}")
  string(REGEX REPLACE " .*" "" name ${tag})
  set(${variable} "\n${indent}<${tag}>${value}</${name}>" PARENT_SCOPE)
endfunction()

element(metadata_license "  " metadata_license ${ZORIK_METADATA_LICENSE})
element(project_license "  " project_license ${ZORIK_LICENSE})
element(homepage "  " "url type=\"homepage\"" ${ZORIK_HOMEPAGE})
set(screenshots "")
if(ZORIK_SCREENSHOTS)
  element(picture "      " image ${ZORIK_SCREENSHOTS}/game.png)
  set(screenshots "
  <screenshots>
    <screenshot type=\"default\">
      <caption>A cave of the Natural scheme: boulders, gems, slime, monsters</caption>
      <caption xml:lang=\"cs\">Komnata v přírodním zabarvení: balvany, drahokamy, sliz, potvory</caption>${picture}
    </screenshot>
  </screenshots>")
endif()
configure_file(${CMAKE_CURRENT_LIST_DIR}/zorik.metainfo.xml.in ${METAINFO} @ONLY)
