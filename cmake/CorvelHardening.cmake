# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0

# What every target is hardened with, since the program reads untrusted files and answers.
include(CheckPIESupported)
check_pie_supported(LANGUAGES CXX) # CMAKE_POSITION_INDEPENDENT_CODE then makes programs PIE when they are linked, too
target_compile_options(corvel_settings INTERFACE -fstack-protector-strong)
target_link_options(corvel_settings INTERFACE -Wl,-z,relro,-z,now,-z,noexecstack)

# The checks of the C library need an optimising compiler; the sanitizers have their own.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 12)
    set(fortifyLevel 2)
else()
    set(fortifyLevel 3)
endif()
if(NOT CORVEL_SANITIZE)
    target_compile_options(corvel_settings INTERFACE
        $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
        $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=${fortifyLevel}>)
endif()
