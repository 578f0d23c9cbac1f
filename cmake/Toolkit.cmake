# The windowing toolkit: Debian's wxWidgets on Linux, our own static build of the same source for Windows.

set(TARNWICK_TOOLKIT "" CACHE PATH "Folder of the static toolkit for Windows, as scripts/windows-toolkit.sh prints it")

add_library(tarnwick_toolkit INTERFACE)
if(WIN32)
  if(NOT TARNWICK_TOOLKIT)
    message(FATAL_ERROR "For Windows, give -DTARNWICK_TOOLKIT=<what scripts/windows-toolkit.sh printed>")
  endif()
  target_include_directories(tarnwick_toolkit SYSTEM INTERFACE "${TARNWICK_TOOLKIT}/include")
  target_compile_definitions(tarnwick_toolkit INTERFACE __WXMSW__ _UNICODE UNICODE)
  # Its headers name themselves where they assert.
  target_compile_options(tarnwick_toolkit INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:-ffile-prefix-map=${TARNWICK_TOOLKIT}=wx>")
  # uuid and oleacc both hold IID_IAccessible. Written as a flag, uuid keeps its place before the other, whose copy then
  # stays out.
  target_link_libraries(tarnwick_toolkit INTERFACE
    "${TARNWICK_TOOLKIT}/lib/libwxmsw32u_core.a" "${TARNWICK_TOOLKIT}/lib/libwxbase32u.a" -Wl,-luuid
    kernel32 user32 gdi32 gdiplus msimg32 comdlg32 winspool winmm shell32 shlwapi comctl32 ole32 oleaut32 uuid rpcrt4
    advapi32 version ws2_32 wininet oleacc uxtheme)
else()
  find_package(PkgConfig REQUIRED)
  find_package(wxWidgets 3.2 REQUIRED COMPONENTS core base)
  target_include_directories(tarnwick_toolkit SYSTEM INTERFACE ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(tarnwick_toolkit INTERFACE ${wxWidgets_DEFINITIONS})
  target_compile_options(tarnwick_toolkit INTERFACE ${wxWidgets_CXX_FLAGS})
  # What the toolkit itself stands on here, for the few calls that it does not wrap.
  pkg_check_modules(GTK REQUIRED IMPORTED_TARGET gtk+-3.0 gdk-x11-3.0 x11)
  target_link_libraries(tarnwick_toolkit INTERFACE ${wxWidgets_LIBRARIES} PkgConfig::GTK)
endif()

# tarnwick_use_toolkit(TARGET): links the toolkit and shares one precompiled header of it.
function(tarnwick_use_toolkit target)
  target_link_libraries(${target} PUBLIC tarnwick_toolkit)
  target_precompile_headers(${target} PRIVATE <wx/wx.h>)
endfunction()
