# A room is one folder of src/ and one library. Its headers are included as
# "room/header.h", and that path resolves only in targets that link the room:
# each room gets an include folder of its own that holds nothing but a link to it.

add_library(monitra_options INTERFACE)
target_compile_options(monitra_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
# What is built for others doesn't tell where.
target_compile_options(monitra_options INTERFACE
  $<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)
if(MONITRA_WERROR)
  target_compile_options(monitra_options INTERFACE -Werror)
endif()
if(MONITRA_SANITIZE)
  target_compile_options(monitra_options INTERFACE -fsanitize=address,undefined
                                                   -fno-sanitize-recover=all
                                                   -fno-omit-frame-pointer)
  target_link_options(monitra_options INTERFACE -fsanitize=address,undefined)
endif()
if(MONITRA_FUZZ)
  target_compile_options(monitra_options INTERFACE -fsanitize=fuzzer-no-link -Wno-sign-conversion)
endif()
if(MONITRA_COVERAGE)
  target_compile_options(monitra_options INTERFACE --coverage -fprofile-update=atomic)
  target_link_options(monitra_options INTERFACE --coverage)
endif()

# monitra_room(<room> [USES <room or target>...] [SOURCES <file>...])
# The target is monitra_<room>; without sources it is a library of headers only.
function(monitra_room room)
  cmake_parse_arguments(ROOM "" "" "USES;SOURCES" ${ARGN})
  set(include_folder ${CMAKE_BINARY_DIR}/include/${room})
  file(MAKE_DIRECTORY ${include_folder})
  file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${room} ${include_folder}/${room} SYMBOLIC)

  set(target monitra_${room})
  list(TRANSFORM ROOM_SOURCES PREPEND ${room}/)
  if(ROOM_SOURCES)
    add_library(${target} STATIC ${ROOM_SOURCES})
    set(scope PUBLIC)
    target_link_libraries(${target} PRIVATE monitra_options)
  else()
    add_library(${target} INTERFACE)
    set(scope INTERFACE)
  endif()
  target_include_directories(${target} ${scope} ${include_folder})
  foreach(used IN LISTS ROOM_USES)
    if(TARGET monitra_${used})
      target_link_libraries(${target} ${scope} monitra_${used})
    else()
      target_link_libraries(${target} ${scope} ${used})
    endif()
  endforeach()
endfunction()
