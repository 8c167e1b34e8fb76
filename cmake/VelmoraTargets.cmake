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
# One floor of src/: a static library velmora_<name>. USES lists what it may include, so an
# include that runs up the house does not link.
function(velmora_room name)
    cmake_parse_arguments(PARSE_ARGV 1 ROOM "" "" "SOURCES;USES")
    add_library(velmora_${name} STATIC ${ROOM_SOURCES})
    target_include_directories(velmora_${name} PUBLIC ${CMAKE_SOURCE_DIR}/src)
    target_link_libraries(velmora_${name} PUBLIC ${ROOM_USES})
    velmora_compile_options(velmora_${name})
endfunction()
