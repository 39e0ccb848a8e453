# SPDX-FileCopyrightText: Corvel print dialog authors
# SPDX-License-Identifier: Apache-2.0

# corvel_script_test(NAME ARGUMENT...): runs the folder's NAME.py in the same environment as the other tests.
function(corvel_script_test name)
    add_test(NAME ${name} COMMAND Python3::Interpreter ${CMAKE_CURRENT_SOURCE_DIR}/${name}.py ${ARGN})
    set(home ${CMAKE_BINARY_DIR}/tests/home/${name})
    file(MAKE_DIRECTORY ${home})
    set(environment "QT_QPA_PLATFORM=offscreen;LC_ALL=C;LANG=C;LANGUAGE=;HOME=${home};XDG_CONFIG_HOME=${home}/config"
        "XDG_CACHE_HOME=${home}/cache;XDG_DATA_HOME=${home}/data;CUPS_SERVER=/nonexistent/cups.sock"
        "DBUS_SYSTEM_BUS_ADDRESS=unix:path=/nonexistent/bus"
        "CORVEL_PDE_PATH=${CORVEL_PDE_BUILD_DIR};PYTHONDONTWRITEBYTECODE=1")
    set_tests_properties(${name} PROPERTIES TIMEOUT 300 ENVIRONMENT "${environment}")
endfunction()
