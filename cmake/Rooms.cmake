# How a room (one folder, one target) is built: shared warnings, sanitizers, and who may see whom.

option(XBR_ASAN "Build with the address and undefined-behaviour sanitizers" OFF)
option(XBR_TSAN "Build with the thread sanitizer" OFF)
option(XBR_FUZZ "Build the fuzz targets; needs Clang" OFF)
option(XBR_WERROR "Treat warnings as errors; off for compilers that warn of more than ours" ON)

add_library(xbr_options INTERFACE)
target_compile_options(xbr_options INTERFACE
    -Wall -Wextra $<$<BOOL:${XBR_WERROR}>:-Werror> -Wpedantic -Wshadow -Woverloaded-virtual -Wreturn-type
    -Wcast-align -Wunused -Wdouble-promotion -Wformat=2 -Wimplicit-fallthrough
    -Wconversion -Wsign-conversion -Wold-style-cast
    $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-cond> $<$<CXX_COMPILER_ID:GNU>:-Wlogical-op>)

# A room's archive holds more than each of its users needs; what is not called goes, and with it the accessors that
# only it would have called.
target_compile_options(xbr_options INTERFACE -ffunction-sections -fdata-sections)
target_link_options(xbr_options INTERFACE -Wl,--gc-sections)

# What the dynamic linker has filled in cannot be written afterwards. As shipped, a smashed stack, a copy beyond its
# target and an index outside a container end the program, and the bytes are the same wherever the tree lies.
if(NOT WIN32)
    target_link_options(xbr_options INTERFACE -Wl,-z,relro,-z,now)
endif()
if(NOT CMAKE_BUILD_TYPE STREQUAL "Debug" AND NOT XBR_FUZZ)
    target_compile_options(xbr_options INTERFACE
        -D_GLIBCXX_ASSERTIONS
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -ffile-prefix-map=${PROJECT_BINARY_DIR}=build)
    if(NOT WIN32) # there it would take one more library beside ours
        target_compile_options(xbr_options INTERFACE -fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
    endif()
endif()

if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # GCC bug 105651: assigning a literal to a std::string is taken for an overlapping copy.
    target_compile_options(xbr_options INTERFACE -Wno-restrict)
endif()
if(XBR_ASAN)
    target_compile_options(xbr_options INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(xbr_options INTERFACE -fsanitize=address,undefined)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
        # One runtime for the program and its libraries; g++ has no other kind.
        execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-runtime-dir
            OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
        target_link_options(xbr_options INTERFACE -shared-libasan -Wl,-rpath,${runtime})
    endif()
elseif(XBR_FUZZ)
    target_compile_options(xbr_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined
        -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(xbr_options INTERFACE -fsanitize=address,undefined)
elseif(XBR_TSAN)
    target_compile_options(xbr_options INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_link_options(xbr_options INTERFACE -fsanitize=thread)
endif()

# xbr_room(NAME [SHARED|EXECUTABLE] SOURCES ... [SEES room ...] [USES library ...])
#
# A room of the project. SEES are rooms whose headers this one may include (visible to its users, too); USES are foreign
# libraries, never visible outside. Includes name the path from the project's root.
function(xbr_room name)
    cmake_parse_arguments(ROOM "SHARED;EXECUTABLE" "" "SOURCES;SEES;USES" ${ARGN})
    if(ROOM_EXECUTABLE)
        add_executable(${name} ${ROOM_SOURCES})
    elseif(ROOM_SHARED AND NOT XBR_FUZZ) # a fuzz target sees what the libraries keep to themselves
        add_library(${name} SHARED ${ROOM_SOURCES})
        if(NOT WIN32) # where nothing else is possible
            target_link_options(${name} PRIVATE -Wl,-z,defs)
        endif()
    else()
        add_library(${name} STATIC ${ROOM_SOURCES})
    endif()
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE xbr_options ${ROOM_USES})
    if(ROOM_SEES)
        target_link_libraries(${name} PUBLIC ${ROOM_SEES})
    endif()
    # Where files are compiled together (CMAKE_UNITY_BUILD), it is all of a room.
    set_target_properties(${name} PROPERTIES UNITY_BUILD_BATCH_SIZE 0)
endfunction()

# Links the host's five libraries to what holds rooms that call them. The rooms themselves do not link them, so that unit
# tests can put fakes in their place; so a linker that keeps only libraries that somebody asked for so far would drop
# them before it comes to the room that asks.
function(xbr_link_host name)
    target_link_libraries(${name} PRIVATE xbrsystem xbrtext xbrgui xbrnet xbrsecurity)
    if(NOT WIN32)
        target_link_options(${name} PRIVATE -Wl,--no-as-needed)
    endif()
endfunction()
