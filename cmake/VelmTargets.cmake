# What every target of this project has in common.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")

# The QML modules lie in "imports" beside the executables, as the engine expects them.
set(VELM_IMPORTS_DIR "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/imports")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Without this sloppiness ccache never hits a file that uses a precompiled header.
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros "${CCACHE_PROGRAM}")
endif()
find_program(MOLD_PROGRAM mold)
if(MOLD_PROGRAM)
  add_link_options(-fuse-ld=mold)
endif()

if(VELM_SANITIZE)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()

# velm_target_defaults(TARGET): warnings are errors, and no Qt keywords, since GTK and X11 headers come near.
function(velm_target_defaults target)
  # moc stumbles over the concepts of the standard library, so it is told that it has read them.
  # Appended: a QML module has options for moc already.
  set_target_properties(${target} PROPERTIES AUTOMOC ON)
  set_property(TARGET ${target} APPEND PROPERTY AUTOMOC_MOC_OPTIONS -D_GLIBCXX_CONCEPTS)
  target_compile_definitions(${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_TO_ASCII QT_DISABLE_DEPRECATED_BEFORE=0x060400)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror -fpch-preprocess)
endfunction()

# velm_use_wx(TARGET SCOPE): wxWidgets with its headers marked as the system's.
function(velm_use_wx target scope)
  target_include_directories(${target} SYSTEM ${scope} ${wxWidgets_INCLUDE_DIRS})
  target_compile_definitions(${target} ${scope} ${wxWidgets_DEFINITIONS})
  target_link_libraries(${target} ${scope} ${wxWidgets_LIBRARIES})
endfunction()
