# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0

# What every target of this project is compiled with. Settings travel by target, never by global flags.
add_library(corvel_settings INTERFACE)
target_compile_features(corvel_settings INTERFACE cxx_std_20)
target_compile_definitions(corvel_settings INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY QT_NO_URL_CAST_FROM_STRING
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_NO_FOREACH QT_NO_KEYWORDS QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
target_compile_options(corvel_settings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor -Woverloaded-virtual
    -Wcast-qual -Wformat=2
    $<$<BOOL:${CORVEL_WARNINGS_AS_ERRORS}>:-Werror>
    # What is installed names no folder of the machine that built it.
    -fmacro-prefix-map=${CMAKE_BINARY_DIR}/= -fmacro-prefix-map=${CMAKE_SOURCE_DIR}/=)
if(CORVEL_SANITIZE)
    target_compile_options(corvel_settings INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all
        -fno-omit-frame-pointer)
    target_link_options(corvel_settings INTERFACE -fsanitize=address,undefined)
endif()
if(CORVEL_COVERAGE)
    target_compile_options(corvel_settings INTERFACE --coverage)
    target_link_options(corvel_settings INTERFACE --coverage)
endif()
if(CORVEL_FUZZERS)
    target_compile_options(corvel_settings INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(corvel_settings INTERFACE -fsanitize=fuzzer-no-link)
endif()
include(CorvelHardening)

# Developers' builds use a linker that takes a third of the time; what is installed is linked by the system's own.
if(CMAKE_BUILD_TYPE STREQUAL "Debug" AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    find_program(CORVEL_FAST_LINKER NAMES ld.mold ld.gold)
    if(CORVEL_FAST_LINKER)
        cmake_path(GET CORVEL_FAST_LINKER EXTENSION LAST_ONLY linker)
        string(REPLACE "." "-fuse-ld=" linker ${linker})
        target_link_options(corvel_settings INTERFACE ${linker})
    endif()
endif()

# The precompiled headers are built once each and shared: one for each target took half of the building time. A target
# takes part only if it is compiled alike, so the targets of a header link the Qt libraries that the header does.
function(corvel_precompiled name libraries)
    file(CONFIGURE OUTPUT ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp CONTENT "")
    add_library(corvel_${name}_headers OBJECT ${CMAKE_BINARY_DIR}/precompiled/${name}.cpp)
    target_link_libraries(corvel_${name}_headers PRIVATE corvel_settings ${libraries})
    target_precompile_headers(corvel_${name}_headers PRIVATE
        <memory> <optional> <string> <vector>
        <QtCore/QHash> <QtCore/QObject> <QtCore/QString> <QtCore/QStringList> ${ARGN})
endfunction()
corvel_precompiled(core Qt6::Core)
corvel_precompiled(widgets Qt6::Widgets <QtWidgets/QWidget>)

# corvel_has_object(RESULT FILE...): whether moc finds something in one of the files, or in the header beside one. Asked
# when the build is configured: run cmake again for the first such class of a target.
function(corvel_has_object result)
    set(${result} FALSE PARENT_SCOPE)
    foreach(file IN LISTS ARGN)
        cmake_path(ABSOLUTE_PATH file BASE_DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR})
        cmake_path(REPLACE_EXTENSION file LAST_ONLY .h OUTPUT_VARIABLE header)
        foreach(path IN ITEMS ${file} ${header})
            if(EXISTS ${path})
                file(STRINGS ${path} found REGEX "^ *Q_(OBJECT|GADGET|NAMESPACE)" LIMIT_COUNT 1)
                if(found)
                    set(${result} TRUE PARENT_SCOPE)
                    return()
                endif()
            endif()
        endforeach()
    endforeach()
endfunction()

# Applies the settings to a target, and the shared precompiled headers that it names: core (the default), widgets, or
# test once there are tests.
function(corvel_target target)
    set(headers core)
    if(ARGC GREATER 1)
        set(headers ${ARGV1})
    endif()
    target_link_libraries(${target} PRIVATE corvel_settings)
    target_precompile_headers(${target} REUSE_FROM corvel_${headers}_headers)
    set_property(GLOBAL APPEND PROPERTY CORVEL_TARGETS ${target})
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources EXCLUDE REGEX "^\\$<")
    corvel_has_object(needsMoc ${sources})
    set_target_properties(${target} PROPERTIES AUTOMOC ${needsMoc})
endfunction()
