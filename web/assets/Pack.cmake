# Makes the pictures of the page small, pixel by pixel the same, and lays the collections and their records beside them.
if(NOT CWEBP)
  message(FATAL_ERROR "cwebp is not here; it is in Debian's package webp.")
endif()
file(GLOB_RECURSE pictures ${ASSETS}/pictures/*.png)
foreach(picture ${pictures})
  string(REGEX REPLACE "[.]png$" ".webp" packed ${picture})
  execute_process(COMMAND ${CWEBP} -quiet -lossless -z 9 ${picture} -o ${packed} COMMAND_ERROR_IS_FATAL ANY)
  file(REMOVE ${picture})
endforeach()

file(GLOB collections ${FROM}/*.zk)
file(COPY ${collections} DESTINATION ${ASSETS}/caves)
file(COPY ${FROM}/records DESTINATION ${ASSETS}/caves)
