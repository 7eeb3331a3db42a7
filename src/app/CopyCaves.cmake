# Copies the collections of FROM into TO.
file(GLOB collections ${FROM}/*.zk)
file(MAKE_DIRECTORY ${TO})
foreach(collection ${collections})
  get_filename_component(name ${collection} NAME)
  file(COPY_FILE ${collection} ${TO}/${name} ONLY_IF_DIFFERENT)
endforeach()
