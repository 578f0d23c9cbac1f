# What a program for Windows carries beside its code: icon, manifest and version.

# The letter of a version is its third number: "4.7a" is 4, 7, 1, 0.
string(REGEX MATCH "[a-z]$" letter "${TARNWICK_VERSION}")
string(FIND " abcdefghijklmnopqrstuvwxyz" "${letter}" letter_number)
if(NOT letter)
  set(letter_number 0)
endif()
set(TARNWICK_VERSION_NUMBERS "${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}.${letter_number}.0")
string(REPLACE "." ", " TARNWICK_VERSION_LIST "${TARNWICK_VERSION_NUMBERS}")

# The icon is made of the program's drawing.
set(resources "${CMAKE_BINARY_DIR}/resources")
set(drawing "${CMAKE_SOURCE_DIR}/drawings/tarnwick.svg")
set(icon_maker "${CMAKE_SOURCE_DIR}/scripts/make-icon.sh")
foreach(name Tarnwick.rc Tarnwick.manifest)
  configure_file("${CMAKE_SOURCE_DIR}/src/ui/win32/${name}.in" "${resources}/${name}" @ONLY)
endforeach()
add_custom_command(OUTPUT "${resources}/Tarnwick.ico" DEPENDS "${drawing}" "${icon_maker}" VERBATIM
  COMMAND "${icon_maker}" "${drawing}" "${resources}/Tarnwick.ico")

add_library(tarnwick_program_resources OBJECT "${resources}/Tarnwick.rc")
set_source_files_properties("${resources}/Tarnwick.rc" PROPERTIES
  OBJECT_DEPENDS "${resources}/Tarnwick.ico;${resources}/Tarnwick.manifest")
target_include_directories(tarnwick_program_resources PRIVATE "${resources}")
target_link_libraries(tarnwick_program_resources PRIVATE tarnwick_toolkit)
add_custom_target(tarnwick_icon DEPENDS "${resources}/Tarnwick.ico")
add_dependencies(tarnwick_program_resources tarnwick_icon)
