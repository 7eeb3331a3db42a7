# Brings what the page needs of the game into the page's folder. It is made natively, in the build folder of the game;
# one that is not there yet is made.
if(NOT EXISTS ${NATIVE}/build.ninja)
  execute_process(COMMAND ${CMAKE_COMMAND} --preset release -B ${NATIVE} -D ZORIK_TESTS=OFF
    WORKING_DIRECTORY ${SOURCE} COMMAND_ERROR_IS_FATAL ANY)
endif()
execute_process(COMMAND ${CMAKE_COMMAND} --build ${NATIVE} --target page_assets COMMAND_ERROR_IS_FATAL ANY)
file(REMOVE_RECURSE ${PAGE}/assets)
file(COPY ${NATIVE}/page-assets/ DESTINATION ${PAGE}/assets)
