# The Debian package: cpack makes it of what is installed. Whoever builds it is its maintainer, as dch has it: the
# name in DEBFULLNAME, the address in DEBEMAIL.
cmake_host_system_information(RESULT host QUERY HOSTNAME)
set(maintainer "$ENV{DEBFULLNAME}")
if(NOT maintainer)
  set(maintainer "Builder of Zorík")
endif()
set(address "$ENV{DEBEMAIL}")
if(NOT address)
  execute_process(COMMAND id -un OUTPUT_VARIABLE user OUTPUT_STRIP_TRAILING_WHITESPACE)
  set(address "${user}@${host}")
endif()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME zorik)
set(CPACK_PACKAGE_CONTACT "${maintainer} <${address}>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Lead a dog through caves of boulders, gems and monsters")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_BINARY_DIR}/Finish.cmake)
set(CPACK_SOURCE_GENERATOR "")

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${ZORIK_HOMEPAGE}")
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# The sound's library is loaded with the first cave. Where it is missing the game is silent.
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "libsdl2-2.0-0, fonts-dejavu-core, xdg-utils, desktop-file-utils, shared-mime-info")
# What zktool makes movies with.
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "ffmpeg")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Zorík is a dog, and he digs. Somewhere under the boulders lie the gems,
somewhere behind them is the way out, and the clock is running.
.
Every win is kept as a record of the whole run, tick by tick, which can be
played again for ever. Caves, collections of them and programs for the cat
are made in the game's own editors. Seventy caves come with it, each in Czech
and in English.
.
The package also has zktool, which plays, checks and converts caves and
records without a window.")

configure_file(debian/Finish.cmake.in Finish.cmake @ONLY)
include(CPack)
