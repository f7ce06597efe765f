# What every target of the project has in common: warnings, sanitizers, include root.

find_package(PkgConfig REQUIRED)
pkg_check_modules(SDL REQUIRED IMPORTED_TARGET sdl)
pkg_check_modules(SDL_mixer REQUIRED IMPORTED_TARGET SDL_mixer)
pkg_check_modules(DevIL REQUIRED IMPORTED_TARGET IL)
pkg_check_modules(GLEW REQUIRED IMPORTED_TARGET glew)
pkg_check_modules(GLU REQUIRED IMPORTED_TARGET glu)
set(OpenGL_GL_PREFERENCE GLVND)
find_package(OpenGL REQUIRED)
find_package(GLUT REQUIRED)

add_library(project_options INTERFACE)
target_include_directories(project_options INTERFACE ${PROJECT_SOURCE_DIR}/src)
target_compile_options(project_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow
  $<$<BOOL:${TOLVANE_WERROR}>:-Werror>
  $<$<BOOL:${TOLVANE_SANITIZE}>:-fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer>)
target_link_options(project_options INTERFACE
  $<$<BOOL:${TOLVANE_SANITIZE}>:-fsanitize=address,undefined>)

# tolvane_library(name SOURCES ... LINK ...): one static library for a subsystem. What it does not
# link, it cannot call: that is what keeps the layers apart.
function(tolvane_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINK" ${ARGN})
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC project_options ${ARG_LINK})
endfunction()
