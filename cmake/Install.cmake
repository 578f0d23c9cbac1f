# What "cmake --install" puts where, on systems with the usual folders of shared data. Packages are made from that.
include(GNUInstallDirs)
set(packaging "${CMAKE_SOURCE_DIR}/packaging")
set(data "${CMAKE_INSTALL_DATAROOTDIR}")

install(TARGETS Tarnwick tarnwick_notepad RUNTIME)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/guide/" DESTINATION "${data}/tarnwick")
install(FILES "${packaging}/example.tarnwick.tarnwick.desktop" DESTINATION "${data}/applications")
install(FILES "${packaging}/example.tarnwick.tarnwick.metainfo.xml" DESTINATION "${data}/metainfo")
install(FILES "${packaging}/tarnwick.xml" DESTINATION "${data}/mime/packages")
install(FILES "${packaging}/tarnwick.1" "${packaging}/tarnwick-notepad.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")
install(FILES "${packaging}/completions/tarnwick.bash" DESTINATION "${data}/bash-completion/completions" RENAME tarnwick)
install(FILES "${packaging}/completions/_tarnwick" DESTINATION "${data}/zsh/vendor-completions")

# The icons are drawn once; where the tool is there, desktops that want pixels get them, too.
find_program(RSVG_CONVERT rsvg-convert)
function(tarnwick_icon name kind)
  set(drawing "${CMAKE_SOURCE_DIR}/drawings/${name}.svg")
  install(FILES "${drawing}" DESTINATION "${data}/icons/hicolor/scalable/${kind}")
  if(NOT RSVG_CONVERT)
    return()
  endif()
  foreach(side 16 22 24 32 48 64 128 256)
    set(picture "${CMAKE_BINARY_DIR}/icons/${name}-${side}.png")
    add_custom_command(OUTPUT "${picture}" DEPENDS "${drawing}" VERBATIM
      COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_BINARY_DIR}/icons"
      COMMAND "${RSVG_CONVERT}" -w ${side} -h ${side} -o "${picture}" "${drawing}")
    list(APPEND pictures "${picture}")
    install(FILES "${picture}" DESTINATION "${data}/icons/hicolor/${side}x${side}/${kind}" RENAME "${name}.png")
  endforeach()
  add_custom_target("icon-${name}" ALL DEPENDS ${pictures})
endfunction()
tarnwick_icon(tarnwick apps)
tarnwick_icon(application-x-tarnwick-project mimetypes)
