# Functions that give every target of the project the same compiler settings.

# Applies warnings, sanitizers and the Qt definitions to TARGET.
function(velmora_compile_options target)
    target_compile_options(
        ${target} PRIVATE -Wall -Wextra -Wpedantic $<$<BOOL:${VELMORA_WARNINGS_AS_ERRORS}>:-Werror>
                          -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
                          -Wimplicit-fallthrough)
    target_compile_definitions(
        ${target} PRIVATE QT_NO_KEYWORDS QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
                          QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_DISABLE_DEPRECATED_BEFORE=0x060400)
    if(VELMORA_SANITIZERS)
        target_compile_options(
            ${target} PRIVATE -fsanitize=${VELMORA_SANITIZERS} -fno-sanitize-recover=all
                              -fno-omit-frame-pointer)
        target_link_options(${target} PRIVATE -fsanitize=${VELMORA_SANITIZERS})
    endif()
    if(VELMORA_BUILD_FUZZERS)
        target_compile_options(${target} PRIVATE -fsanitize=fuzzer-no-link)
    endif()
endfunction()

# velmora_room(name SOURCES ... USES ...)
# One folder of src/: a static library velmora_<name>. It sees its own headers and those of the rooms
# that USES lists, with what these use; an include of any other room finds no file.
function(velmora_room name)
    cmake_parse_arguments(PARSE_ARGV 1 ROOM "" "" "SOURCES;USES")
    add_library(velmora_${name} STATIC ${ROOM_SOURCES})
    target_link_libraries(velmora_${name} PUBLIC ${ROOM_USES})
    velmora_room_headers(velmora_${name} PUBLIC)
    velmora_compile_options(velmora_${name})
endfunction()

# velmora_room_headers(target scope)
# Lets the target of the current folder include its headers, as "room/Header.h", from a folder of
# links to these: from src/ itself it would see every other room.
function(velmora_room_headers target scope)
    set(include ${CMAKE_CURRENT_BINARY_DIR}/include)
    cmake_path(
        RELATIVE_PATH CMAKE_CURRENT_SOURCE_DIR BASE_DIRECTORY ${CMAKE_SOURCE_DIR}/src
        OUTPUT_VARIABLE room)
    file(REMOVE_RECURSE ${include}) # links to headers that are no more
    file(MAKE_DIRECTORY ${include}/${room})
    file(GLOB headers RELATIVE ${CMAKE_CURRENT_SOURCE_DIR} CONFIGURE_DEPENDS *.h)
    foreach(header ${headers})
        file(CREATE_LINK ${CMAKE_CURRENT_SOURCE_DIR}/${header} ${include}/${room}/${header} SYMBOLIC)
    endforeach()
    target_include_directories(${target} ${scope} ${include})
    set_property(GLOBAL APPEND PROPERTY VELMORA_ROOMS ${room})
    set_property(GLOBAL PROPERTY VELMORA_ROOM_${room} ${target})
endfunction()
