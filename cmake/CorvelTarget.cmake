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
include(CorvelHardening)

# Applies the settings to a target, and a precompiled header of what nearly every file includes.
function(corvel_target target)
    target_link_libraries(${target} PRIVATE corvel_settings)
    target_precompile_headers(${target} PRIVATE
        <memory> <optional> <string> <vector>
        <QtCore/QHash> <QtCore/QObject> <QtCore/QString> <QtCore/QStringList> ${ARGN})
endfunction()
