# How a floor is built: one static library for each folder under src/.

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
  target_link_options(tarnwick_own INTERFACE -static)
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
