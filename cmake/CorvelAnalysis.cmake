# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0

# The target static_analysis: cppcheck and clang-tidy (by .clang-tidy) over all sources. clang cannot read the compiler's
# precompiled headers, so it belongs to the preset analysis, which makes none.
find_program(CORVEL_CPPCHECK cppcheck)
find_program(CORVEL_RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
if(NOT CORVEL_CPPCHECK OR NOT CORVEL_RUN_CLANG_TIDY OR NOT CMAKE_DISABLE_PRECOMPILE_HEADERS)
    return()
endif()

set(folders app PDE pdekit printdialog benchmarks examples resources tests)
add_custom_target(cppcheck
    COMMAND ${CORVEL_CPPCHECK} --enable=warning,performance,portability --library=qt --library=posix --language=c++
        --std=c++20 --inline-suppr --quiet --error-exitcode=1 -I pdekit -I pdekit/protocol -I pdekit/system -I pdekit/views -I pdekit/controls
        -DQ_OBJECT= --library=${CMAKE_SOURCE_DIR}/cmake/cppcheck.cfg
        --suppress=missingInclude --suppress=missingIncludeSystem
        --suppress=readdirCalled # each stream is one thread's
        --suppress=cppcheckError # stumbles over literals of std::chrono
        ${folders}
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} VERBATIM COMMENT "Looking for faults with cppcheck")

get_property(targets GLOBAL PROPERTY CORVEL_TARGETS)
set(mocs) # what the sources include of moc's
foreach(target IN LISTS targets)
    get_target_property(isAutomatic ${target} AUTOMOC)
    if(isAutomatic)
        list(APPEND mocs ${target}_autogen)
    elseif(TARGET ${target}_moc)
        list(APPEND mocs ${target}_moc)
    endif()
endforeach()
list(JOIN folders | either)
add_custom_target(clang_tidy
    COMMAND ${CORVEL_RUN_CLANG_TIDY} -quiet -p ${CMAKE_BINARY_DIR} "^${CMAKE_SOURCE_DIR}/(${either})/"
    WORKING_DIRECTORY ${CMAKE_SOURCE_DIR} VERBATIM COMMENT "Looking for faults with clang-tidy")
add_dependencies(clang_tidy ${mocs})
add_custom_target(static_analysis)
add_dependencies(static_analysis cppcheck clang_tidy)
