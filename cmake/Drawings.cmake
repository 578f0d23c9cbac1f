# The drawings: each is one file of the folder "drawings", which becomes part of the program.

# tarnwick_embed_drawings(TARGET): writes a source with the texts of them all and adds it to the target.
function(tarnwick_embed_drawings target)
  set(folder "${CMAKE_SOURCE_DIR}/drawings")
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE "${folder}" "${folder}/*.svg")
  set(texts "")
  foreach(name ${files})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${folder}/${name}")
    file(READ "${folder}/${name}" text)
    string(REGEX REPLACE "\\.svg$" "" name "${name}")
    string(APPEND texts "    {\"${name}\", R\"svg(${text})svg\"},\n")
  endforeach()
  set(DRAWING_TEXTS "${texts}")
  configure_file("${CMAKE_SOURCE_DIR}/cmake/DrawingTexts.cpp.in" "${CMAKE_BINARY_DIR}/drawings/DrawingTexts.cpp" @ONLY)
  target_sources(${target} PRIVATE "${CMAKE_BINARY_DIR}/drawings/DrawingTexts.cpp")
endfunction()
