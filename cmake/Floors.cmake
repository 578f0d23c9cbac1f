# How the floors are built: one static library for each folder under src/, by the table src/floors.txt.

# What all of our own code is compiled with.
add_library(tarnwick_own INTERFACE)
target_include_directories(tarnwick_own INTERFACE "${CMAKE_SOURCE_DIR}/src")
# Not for the resource compiler, which knows no warnings.
target_compile_options(tarnwick_own INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-Wall;-Wextra;-Wpedantic;-Wconversion;-Werror>")
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 warns of overlapping and endless copies inside its own std::string where there are none.
  target_compile_options(tarnwick_own INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict;-Wno-stringop-overflow>")
endif()
target_link_libraries(tarnwick_own INTERFACE Threads::Threads)
if(WIN32)
  # The old 8-bit interfaces throughout: texts inside are in the process's own character set.
  target_compile_definitions(tarnwick_own INTERFACE WIN32_LEAN_AND_MEAN NOMINMAX _WIN32_WINNT=0x0601)
  # The same sources give the same bytes, wherever they lie; and an overrun of the stack is noticed.
  target_compile_options(tarnwick_own INTERFACE
    "$<$<COMPILE_LANGUAGE:CXX>:-fstack-protector-strong;-ffile-prefix-map=${CMAKE_SOURCE_DIR}=.>")
  target_link_options(tarnwick_own INTERFACE -static -fstack-protector-strong -Wl,--no-insert-timestamp)
endif()
if(TARNWICK_SANITIZE)
  target_compile_options(tarnwick_own INTERFACE -fsanitize=${TARNWICK_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  target_link_options(tarnwick_own INTERFACE -fsanitize=${TARNWICK_SANITIZE})
endif()

# tarnwick_floor(NAME [LOWER...]): src/NAME with the system's own folder below it, if it has one.
function(tarnwick_floor name)
  if(WIN32)
    set(system win32)
  else()
    set(system posix)
  endif()
  set(folder "${CMAKE_SOURCE_DIR}/src/${name}")
  file(GLOB sources CONFIGURE_DEPENDS "${folder}/*.cpp" "${folder}/*.h" "${folder}/${system}/*.cpp" "${folder}/${system}/*.h")
  add_library(tarnwick_${name} STATIC ${sources})
  set_target_properties(tarnwick_${name} PROPERTIES LINKER_LANGUAGE CXX)
  list(TRANSFORM ARGN PREPEND tarnwick_)
  target_link_libraries(tarnwick_${name} PRIVATE tarnwick_own PUBLIC ${ARGN})
endfunction()

# tarnwick_floors([WITHOUT...]): all floors of the table but these. A floor links only what stands below it, so that the
# linker, too, finds an arrow that goes up. Their names are in tarnwick_floors, the lowest first.
function(tarnwick_floors)
  set(table "${CMAKE_SOURCE_DIR}/src/floors.txt")
  set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${table}")
  file(STRINGS "${table}" lines REGEX "^[0-9]")
  foreach(line ${lines})
    string(REPLACE " " ";" words "${line}")
    list(SUBLIST words 1 -1 floor_and_links)
    list(GET words 1 name)
    if(NOT name IN_LIST ARGN)
      tarnwick_floor(${floor_and_links})
      list(APPEND names ${name})
    endif()
  endforeach()
  set(tarnwick_floors ${names} PARENT_SCOPE)
endfunction()

# What the operating system's own libraries give to the platform floor.
function(tarnwick_platform_libraries)
  if(WIN32)
    target_link_libraries(tarnwick_platform PUBLIC shell32 ole32 uuid advapi32 user32)
  else()
    find_package(PkgConfig REQUIRED)
    pkg_check_modules(GIO REQUIRED IMPORTED_TARGET gio-2.0 gio-unix-2.0)
    pkg_check_modules(CANBERRA REQUIRED IMPORTED_TARGET libcanberra)
    target_link_libraries(tarnwick_platform PRIVATE PkgConfig::GIO PkgConfig::CANBERRA)
  endif()
endfunction()
